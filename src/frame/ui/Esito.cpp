#include "frame/ui/Esito.h"

#include <QLabel>

#include <cmath>
#include <limits>

namespace sagomi {

void MostraEsito(QLabel* etichetta, double valore) {
    if (std::isnan(valore) || valore == -std::numeric_limits<double>::infinity()) {
        etichetta->clear();
        etichetta->setAutoFillBackground(false);
        return;
    }
    const bool fails = valore > 1;
    QPalette colours = etichetta->palette();
    colours.setColor(QPalette::Window, Qt::white);
    colours.setColor(QPalette::WindowText, fails ? QColor(255, 0, 0) : QColor(Qt::black));
    etichetta->setPalette(colours);
    etichetta->setAutoFillBackground(true);
    etichetta->setText(fails ? QStringLiteral("NO") : QStringLiteral("OK"));
}

} // namespace sagomi
