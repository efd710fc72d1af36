#include "frame/ui/Voce.h"

#include <QGridLayout>

#include "frame/ui/Casella.h"
#include "frame/ui/EtichettaFormula.h"
#include "frame/ui/EtichettaPedice.h"
#include "frame/ui/EtichettaRisultato.h"

namespace sagomi {

namespace {

void Nomina(QWidget* widget, const Voce& voce) {
    widget->setObjectName(QString::fromUtf8(voce.nome));
    widget->setToolTip(QString::fromUtf8(voce.aiuto));
    widget->setAccessibleName(QString::fromUtf8(voce.letta));
}

Casella* CreaCasella(const Voce& voce) {
    auto* box = new Casella;
    Nomina(box, voce);
    box->ImpostaCaratteri(voce.caratteri);
    box->ImpostaRisultato(voce.genere == Genere::risultato);
    return box;
}

QLabel* CreaFormula(const Dicitura& scritta, Qt::Alignment alignment) {
    auto* label = new EtichettaFormula;
    label->setObjectName(QString::fromUtf8(scritta.nome));
    label->ImpostaFormula(QString::fromUtf8(scritta.testo));
    label->ImpostaSimbolo(QString::fromUtf8(scritta.simbolo));
    label->setAlignment(alignment);
    return label;
}

} // namespace

QLabel* CreaDicitura(const Dicitura& scritta, Qt::Alignment allineamento) {
    const QString subscript = QString::fromUtf8(scritta.pedice);
    if (*scritta.simbolo != '\0' || QByteArrayView(scritta.testo).contains('{'))
        return CreaFormula(scritta, allineamento);
    auto* label = subscript.isEmpty() ? new QLabel : new EtichettaPedice;
    label->setObjectName(QString::fromUtf8(scritta.nome));
    label->setTextFormat(Qt::PlainText);
    label->setText(QString::fromUtf8(scritta.testo));
    label->setAlignment(allineamento);
    if (!subscript.isEmpty())
        static_cast<EtichettaPedice*>(label)->ImpostaPedice(subscript);
    return label;
}

void PosaDicitura(QGridLayout& griglia, QLabel* scritta, int riga, int colonna, Qt::Alignment allineamento) {
    const bool beside = qobject_cast<EtichettaPedice*>(scritta) != nullptr && !scritta->text().contains(u' ');
    scritta->setAlignment(beside ? Qt::AlignLeft | Qt::AlignVCenter : allineamento);
    griglia.addWidget(scritta, riga, colonna, beside ? allineamento : Qt::Alignment());
}

EtichettaRisultato* CreaValore(const Voce& voce) {
    auto* label = new EtichettaRisultato;
    Nomina(label, voce);
    label->ImpostaCaratteri(voce.caratteri);
    label->ImpostaDecimali(voce.decimali);
    return label;
}

QWidget* CreaCampo(const Voce& voce) {
    if (voce.genere == Genere::valore)
        return CreaValore(voce);
    return CreaCasella(voce);
}

Coppia CreaCoppia(const Voce& voce) {
    const Coppia pair{CreaDicitura(voce.etichetta, Qt::AlignRight | Qt::AlignVCenter), CreaCampo(voce)};
    pair.etichetta->setBuddy(pair.campo);
    return pair;
}

} // namespace sagomi
