#include "screens/FrmInstabSagomi.h"

#include <QLabel>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Mostra.h"
#include "screens/ColonnaInstabilita.h"
#include "screens/PannelloAzioni.h"
#include "screens/PannelloInstabilita.h"
#include "screens/SchermoSezione.h"
#include "screens/TestaDettaglio.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

constexpr const char* motivoLunghezza = "La lunghezza di libera inflessione non può essere negativa";
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

/// Where the derivation about an axis starts and what it is for [mm, N].
struct Asse {
    double i = nessunNumero, N = 0, NbRd = nessunNumero;
};

template <ConLunghezze S> Asse AsseDi(const S& s, int axis) {
    Asse of;
    if constexpr (requires { s.Iz; }) {
        of.i = axis == 0 ? s.iY : s.Iz;
        of.NbRd = axis == 0 ? s.NbyRd : s.NbzRd;
    }
    if constexpr (ConLunghezzaV<S>)
        if (axis == 2) {
            of.i = s.iV;
            of.NbRd = s.NbvRd;
        }
    if constexpr (ConMomenti<S>)
        of.N = s.NSd;
    return of;
}

} // namespace

FrmInstabSagomi::FrmInstabSagomi(const QString& nome, const QByteArray& assi)
    : SchermoDettaglio(nome), azioni_(new PannelloColonna(nullptr, assi.contains("v-v"))),
      colonne_(new PannelloInstabilita), assi_(static_cast<int>(assi.count(' ')) + 1) {
    setWindowTitle(tr("Resistenza all'instabilità - EC3 #6.3.1"));
    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(9, 9, 9, 9);
    column->setSpacing(6);
    auto* head = new TestaDettaglio;
    head->setObjectName(QStringLiteral("fraSezione"));
    column->addWidget(head);
    azioni_->setObjectName(QStringLiteral("fraAzioni"));
    column->addWidget(azioni_);
    colonne_->setObjectName(QStringLiteral("fraColonne"));
    colonne_->ImpostaAssi(assi);
    column->addWidget(colonne_);
    column->addStretch();
    setCentralWidget(centre);
    for (int i = 0; i < assi_; ++i)
        findChild<QLabel*>(QStringLiteral("Lbl_chi_%1").arg(i))
            ->setObjectName(QStringLiteral("Lbl_Chi_%1").arg(i));
    CollegaControlli();
    CollegaDati();
    DimensionaIniziale({});
}

void FrmInstabSagomi::CollegaDati() {
    QList<QLineEdit*> boxes;
    for (Casella* box : {azioni_->Txt_L0_0, azioni_->Txt_L0_1, azioni_->Txt_L0_2}) {
        if (box == nullptr)
            continue;
        boxes << box;
        regole_.Aggiunge({.caselle = {box}, .motivo = [box] {
                              const double L = NumeroIn(box);
                              return L >= 0 && std::isfinite(L) ? QString() : tr(motivoLunghezza);
                          }});
    }
    if (azioni_->TxtNsd != nullptr)
        boxes << azioni_->TxtNsd;
    CalcolaA(boxes);
}

void FrmInstabSagomi::RiempieDati() {
    SullaSezioneInUso([this]<ConLunghezze S>(const S& s) {
        Riempie(azioni_->Txt_L0_0, mm_a_m(s.L0y));
        Riempie(azioni_->Txt_L0_1, mm_a_m(s.L0z));
        if constexpr (ConLunghezzaV<S>)
            if (azioni_->Txt_L0_2 != nullptr)
                Riempie(azioni_->Txt_L0_2, mm_a_m(s.L0v));
        if constexpr (ConMomenti<S>)
            if (azioni_->TxtNsd != nullptr)
                Riempie(azioni_->TxtNsd, N_a_kN(s.NSd));
    });
    FuocoSu(azioni_->TxtNsd != nullptr ? azioni_->TxtNsd : azioni_->Txt_L0_0);
}

void FrmInstabSagomi::Riporta() {
    if (RiportaAlChiamante() && chiamante_->RigaInMano())
        chiamante_->Risultati();
}

void FrmInstabSagomi::Calcola() {
    SullaSezioneInUso([this](const auto& s) { colonne_->MostraAcciaio(s.fy); });
    for (int i = 0; i < assi_; ++i)
        CompletaForm1(i);
}

void FrmInstabSagomi::CompletaForm1(int asse) {
    double lamda = nessunNumero;
    Asse of;
    SullaSezioneInUso([&](const ConLunghezze auto& s) {
        lamda = Snellezza(s, asse);
        of = AsseDi(s, asse);
    });
    ColonnaInstabilita(lamda, asse, *this);
    colonne_->MostraAsse(asse, of.i, of.N, std::isfinite(lamda) ? of.NbRd : nessunNumero);
}

} // namespace sagomi
