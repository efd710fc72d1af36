#pragma once

#include <QAbstractButton>
#include <QGroupBox>

#include <string>

#include "frame/Numeri.h"
#include "screens/Dettagli.h"

namespace sagomi::prove {

/// The number that a label shows; a label that shows none gives 0.
inline double Numero(const QObject* screen, const char* name) {
    return ValoreNumerico(Scritta(screen, name));
}

inline void Preme(const QObject* screen, const char* name) { Trova<QAbstractButton>(screen, name)->click(); }

inline std::string Titolo(const QObject* screen, const char* name) {
    return Trova<QGroupBox>(screen, name)->title().toStdString();
}

/// A screen that has been opened.
inline Schermo& Aperto(const char* name) {
    Schermo* s = NavigaSchermi::Unico().Trova(QString::fromLatin1(name));
    if (s == nullptr || !s->isVisible())
        throw std::runtime_error(std::string(name) + " did not open");
    return *s;
}

} // namespace sagomi::prove
