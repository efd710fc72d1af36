#pragma once

#include <QObject>

#include <string>
#include <utility>

namespace sagomi {

/// An error with the number that its origin gave it (a data error of the reader, say).
struct DescrizioneErrore {
    int numero = 0;
    std::string testo;
};

/// Describes the exception in flight; call it inside a catch block.
DescrizioneErrore ErroreInVolo();

/// `prefisso` + " n° " + number + " - " + text in a message box.
void AvvisaErrore(const std::string& prefisso, const DescrizioneErrore& e);

/// Runs a piece of an event handler; an exception becomes a message box and the program goes on.
/// @return false when something was thrown
template <typename F> bool Protetto(const std::string& prefisso, F&& f) {
    try {
        std::forward<F>(f)();
        return true;
    } catch (...) {
        AvvisaErrore(prefisso, ErroreInVolo());
        return false;
    }
}

/// Connects a handler that nothing can be thrown out of. The connection lives as long as `contesto`.
template <typename Mittente, typename Segnale, typename F>
QMetaObject::Connection Collega(Mittente* mittente, Segnale segnale, const QObject* contesto, F f) {
    return QObject::connect(mittente, segnale, contesto, [f = std::move(f)](auto&&... args) mutable {
        Protetto("Errore", [&] {
            if constexpr (std::is_invocable_v<F&, decltype(args)...>)
                f(std::forward<decltype(args)>(args)...);
            else
                f();
        });
    });
}

} // namespace sagomi
