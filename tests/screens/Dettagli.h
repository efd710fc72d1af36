#pragma once

#include <QLabel>
#include <QLineEdit>

#include <string>

#include "screens/Ambiente.h"

namespace sagomi::prove {

/// Text of a label, by the object name.
inline std::string Scritta(const QObject* screen, const char* name) {
    return Trova<QLabel>(screen, name)->text().toStdString();
}

/// Types a number, given with a point, in the separators of the locale that the test runs in.
inline void Scrive(const QObject* screen, const char* name, const char* text) {
    Trova<QLineEdit>(screen, name)->setText(QString::fromStdString(Locale(text)));
}

/// Colour of a label's text.
inline QColor Colore(const QObject* screen, const char* name) {
    return Trova<QLabel>(screen, name)->palette().color(QPalette::WindowText);
}

inline const QColor rosso(255, 0, 0);

} // namespace sagomi::prove
