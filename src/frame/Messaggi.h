#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

/// What the user is told when something happens in the middle of a calculation: the one way out of the
/// mechanics to a screen. The program plugs a message box into the port, the tests a recorder.
enum class Icona { Nessuna, Informazione, Avviso, Stop, Domanda };
enum class Bottoni { Ok, OkSalta, SiNo };
enum class Risposta { Ok, Salta, Si, No };

struct Messaggio {
    std::string testo; ///< UTF-8; CR, LF and CR LF all mean a new line
    Icona icona = Icona::Nessuna;
    std::string titolo; ///< the program's name where the caller gave none
    Bottoni bottoni = Bottoni::Ok;

    bool operator==(const Messaggio&) const = default;
};

using PortaMessaggi = std::function<Risposta(const Messaggio&)>;

/// The program's name, title of every message that brings none.
inline constexpr std::string_view nomeProgramma = "Sagomi";

/// Plugs a receiver into the port and returns the one that was there, to be put back.
/// An empty function brings back the default: texts are kept in MessaggiRaccolti, questions are answered no.
PortaMessaggi CollegaMessaggi(PortaMessaggi porta);

/// Hands a message to a receiver, which may be the empty default.
Risposta Inoltra(const PortaMessaggi& porta, const Messaggio& messaggio);

/// Shows a message; returns when it has been read. A text that begins with "ERRORE" or "Errore" gets the
/// warning icon where none is asked for.
void Avvisa(std::string_view testo, std::string_view titolo = {}, Icona icona = Icona::Nessuna);

/// The same for one of several messages in a row.
/// @return whether the user wants to skip those that follow
bool AvvisaSaltabile(std::string_view testo, std::string_view titolo = {});

/// Asks a question; true for yes.
bool Chiede(std::string_view testo, std::string_view titolo = {}, Icona icona = Icona::Domanda);

/// While one lives and is active, no message reaches anybody and questions are answered no: for what is
/// computed while an entry is still being typed.
class MessaggiTaciuti {
public:
    explicit MessaggiTaciuti(bool attivo = true);
    ~MessaggiTaciuti();
    MessaggiTaciuti(const MessaggiTaciuti&) = delete;
    MessaggiTaciuti& operator=(const MessaggiTaciuti&) = delete;

    /// Whether one would have been told.
    [[nodiscard]] bool Trattenuti() const { return trattenuti_; }

private:
    bool attivo_;
    bool trattenuti_ = false;
    PortaMessaggi precedente_;
};

/// Texts that arrived while nothing was plugged in.
std::vector<std::string>& MessaggiRaccolti();

} // namespace sagomi
