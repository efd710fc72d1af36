#include "fasteners/ui/GeneraleCollegamenti.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

#include "fasteners/Bullone.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/LetturaNumero.h"
#include "frame/Numeri.h"
#include "frame/ui/Collocazione.h"
#include "frame/ui/Twips.h"

namespace sagomi {

namespace {

constexpr int sinistraTwips = 120;
constexpr int altoTwips = 800;

} // namespace

void ComboClassiBulloniCarica(QComboBox* elenco) {
    const QSignalBlocker quiet(elenco);
    elenco->clear();
    for (const Singolo& classe : ClasseBullone)
        elenco->addItem(QString::fromStdString(NumeroFile(classe)));
    elenco->setCurrentIndex(IndiceClasseBullone);
}

double ClasseScelta(const QComboBox* elenco) {
    return LeggeNumero<double>(elenco->currentText().toStdString()).valore;
}

void ComboDiametriBulloniCarica(QComboBox* elenco) {
    const QSignalBlocker quiet(elenco);
    elenco->clear();
    for (const DimensioneBullone& bolt : TabellaBulloni())
        elenco->addItem(QString::number(bolt.d));
    elenco->setCurrentIndex(0);
}

void PassoAcciaioCorrente(bool su) {
    const int index = IndiceAcciaio + (su ? 1 : -1);
    IndiceAcciaio = static_cast<std::int16_t>(std::clamp(index, 0, std::max(NomeAcciaio.n() - 1, 0)));
}

void MostraAcciaioCorrente(QLineEdit* tipo, QLineEdit* fu) {
    tipo->setText(QString::fromStdString(NomeAcciaio[IndiceAcciaio + 1]));
    fu->setText(QString::fromStdString(TestoPiano(fuAcciaio[IndiceAcciaio + 1])));
}

void DisponeInAlto(QWidget* finestra) {
    if (!PostiFinestre().contains(finestra->objectName()))
        finestra->move(sinistraTwips / twipsAPixel, altoTwips / twipsAPixel);
}

} // namespace sagomi
