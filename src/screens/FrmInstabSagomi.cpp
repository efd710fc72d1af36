#include "screens/FrmInstabSagomi.h"

#include <QLabel>
#include <QVBoxLayout>

#include <limits>
#include <type_traits>

#include "screens/ColonnaInstabilita.h"
#include "screens/PannelloInstabilita.h"
#include "screens/TestaDettaglio.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

constexpr double nessunNumero = std::numeric_limits<double>::quiet_NaN();

/// The slenderness about an axis; no number with a negative length.
template <ConLunghezze S> double Snellezza(const S& s, int axis) {
    double length = axis == 0 ? s.L0y : s.L0z;
    double lamda = axis == 0 ? s.LamdaY() : s.LamdaZ();
    if constexpr (ConLunghezzaV<S>)
        if (axis == 2) {
            length = s.L0v;
            lamda = s.LamdaV();
        }
    return length < 0 ? nessunNumero : lamda;
}

} // namespace

FrmInstabSagomi::FrmInstabSagomi(const QString& nome, const QByteArray& assi)
    : SchermoDettaglio(nome), colonne_(new PannelloInstabilita),
      assi_(static_cast<int>(assi.count(' ')) + 1) {
    setWindowTitle(tr("Resistenza all'instabilità - EC3 #6.3.1"));
    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(9, 9, 9, 9);
    column->setSpacing(6);
    auto* head = new TestaDettaglio;
    head->setObjectName(QStringLiteral("fraSezione"));
    column->addWidget(head);
    colonne_->setObjectName(QStringLiteral("fraColonne"));
    colonne_->ImpostaAssi(assi);
    column->addWidget(colonne_);
    column->addStretch();
    setCentralWidget(centre);
    for (int i = 0; i < assi_; ++i)
        findChild<QLabel*>(QStringLiteral("Lbl_chi_%1").arg(i))
            ->setObjectName(QStringLiteral("Lbl_Chi_%1").arg(i));
    CollegaControlli();
    DimensionaIniziale({});
}

void FrmInstabSagomi::Calcola() {
    SullaSezioneInUso([this](const auto& s) { colonne_->MostraAcciaio(s.fy); });
    for (int i = 0; i < assi_; ++i)
        CompletaForm1(i);
}

void FrmInstabSagomi::CompletaForm1(int asse) {
    double lamda = nessunNumero;
    SullaSezioneInUso([&lamda, asse](const ConLunghezze auto& s) { lamda = Snellezza(s, asse); });
    ColonnaInstabilita(lamda, asse, *this);
}

} // namespace sagomi
