#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QString>

#include <string>
#include <string_view>

#include "frame/Numeri.h"

namespace sagomi {

/// Shows a text of the mechanics on a label.
inline void Mostra(QLabel* etichetta, const std::string& testo) {
    etichetta->setText(QString::fromStdString(testo));
}

/// Shows a number by a picture such as "0.0##"; one that is none leaves the label empty.
inline void Mostra(QLabel* etichetta, std::string_view figura, const NumeroMostrato& valore) {
    Mostra(etichetta, Formato(figura, valore));
}

/// Refills an entry with a value of the section, in the figures that sections keep.
inline void Riempie(QLineEdit* casella, double valore) {
    casella->setText(QString::fromStdString(TestoPiano(Singolo(valore))));
}

} // namespace sagomi
