#pragma once

#include <QObject>
#include <QWidget>

#include <string>
#include <type_traits>
#include <utility>

#include "frame/Impostazioni.h"

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

/// Whether a painting of this widget has failed; and remembers that it has, to be told when it is over.
bool DipintoFallito(const QWidget* oggetto);
void RicordaDipintoFallito(QWidget* oggetto, const DescrizioneErrore& errore);

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

/// The same around the painting of a widget. No box can be shown in the middle of it, and the next painting
/// would fail alike: the error is told afterwards, and the widget stays empty from then on.
template <typename F> void DipintoProtetto(QWidget* oggetto, F&& f) {
    if (DipintoFallito(oggetto))
        return;
    try {
        std::forward<F>(f)();
    } catch (...) {
        RicordaDipintoFallito(oggetto, ErroreInVolo());
    }
}

/// The guard of every event handler, connected or overridden: nothing is thrown out of it, and a setting that
/// it changes is written at once.
/// @return what the handler returns, where it is a bool; false when something was thrown
template <typename F> bool EventoProtetto(F&& f) {
    bool esito = false;
    Protetto("Errore", [&] {
        if constexpr (std::is_same_v<std::invoke_result_t<F&>, bool>)
            esito = f();
        else
            f();
    });
    ScriveImpostazioniCambiate();
    return esito;
}

/// Connects a handler with its guard. The connection lives as long as `contesto`.
template <typename Mittente, typename Segnale, typename F>
QMetaObject::Connection Collega(Mittente* mittente, Segnale segnale, const QObject* contesto, F f) {
    return QObject::connect(mittente, segnale, contesto, [f = std::move(f)](auto&&... args) mutable {
        EventoProtetto([&] {
            if constexpr (std::is_invocable_v<F&, decltype(args)...>)
                f(std::forward<decltype(args)>(args)...);
            else
                f();
        });
    });
}

} // namespace sagomi
