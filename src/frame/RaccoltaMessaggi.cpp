#include "frame/RaccoltaMessaggi.h"

#include <algorithm>
#include <utility>

namespace sagomi {

RaccoltaMessaggi::RaccoltaMessaggi() {
    precedente_ = CollegaMessaggi([this](const Messaggio& m) {
        if (m.bottoni != Bottoni::Ok)
            return Inoltra(precedente_, m);
        if (std::find(raccolti.begin(), raccolti.end(), m) == raccolti.end())
            raccolti.push_back(m);
        return Risposta::Ok;
    });
}

RaccoltaMessaggi::~RaccoltaMessaggi() {
    const PortaMessaggi porta = precedente_;
    CollegaMessaggi(std::move(precedente_));
    try {
        for (const Messaggio& m : raccolti)
            Inoltra(porta, m);
    } catch (...) { // NOLINT: a listener that fails ends the telling; a destructor lets nothing out
    }
}

} // namespace sagomi
