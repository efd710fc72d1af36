#pragma once

#include <string>
#include <vector>

#include "frame/Messaggi.h"

namespace sagomi::prove {

/// Hears every message while it lives, and answers the questions.
class Registratore {
public:
    explicit Registratore(bool risposta = false) : risposta_(risposta) {
        precedente_ = CollegaMessaggi([this](const Messaggio& m) {
            messaggi.push_back(m);
            testi.push_back(m.testo);
            return m.bottoni == Bottoni::SiNo ? (risposta_ ? Risposta::Si : Risposta::No) : Risposta::Ok;
        });
    }
    ~Registratore() { CollegaMessaggi(precedente_); }
    Registratore(const Registratore&) = delete;
    Registratore& operator=(const Registratore&) = delete;

    std::vector<Messaggio> messaggi;
    std::vector<std::string> testi;

private:
    bool risposta_;
    PortaMessaggi precedente_;
};

} // namespace sagomi::prove
