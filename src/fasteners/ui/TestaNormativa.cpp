#include "fasteners/ui/TestaNormativa.h"

#include <QHBoxLayout>
#include <QLabel>

#include "frame/GeneraleSagomi.h"
#include "frame/ui/EtichettaRisultato.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Voce.h"

namespace sagomi {

namespace {

constexpr int caratteri = 5;

EtichettaRisultato* Posa(QHBoxLayout* row, const Dicitura& caption, const char* name, const char* help,
                         const char* read) {
    EtichettaRisultato* value =
        CreaValore({.nome = name, .caratteri = caratteri, .aiuto = help, .letta = read});
    QLabel* label = CreaDicitura(caption);
    label->setBuddy(value);
    row->addWidget(label);
    row->addWidget(value);
    return value;
}

} // namespace

TestaNormativa::TestaNormativa(QWidget* parent) : QWidget(parent) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    Lbl_Normativa_ =
        Posa(row, {"LblNormativa", "Normativa"}, "Lbl_Normativa", "Normativa in vigore", "Normativa");
    Lbl_GammaM2_ = Posa(row, {"LblGammaM2", "γ{M2}"}, "Lbl_GammaM2",
                        "Coefficiente parziale delle unioni, EC3 1-8 2.2", "GammaM2 in vigore");
    row->addStretch(1);
    Mostra();
}

void TestaNormativa::Mostra() {
    sagomi::Mostra(Lbl_Normativa_, NomeNormativa());
    sagomi::Mostra(Lbl_GammaM2_, TestoPiano(GammaM2));
}

} // namespace sagomi
