// Boxes and options of the joint screen, and the limits that they are held against.
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

#include "frame/Acciaio.h"
#include "frame/Numeri.h"
#include "frame/NumeroPulito.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/DocumentoSchermo.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Protetto.h"
#include "joints/LimitiGiunto.h"
#include "joints/ui/ComuneGiunti.h"
#include "joints/ui/VistaGiunto.h"
#include "joints/ui/frmGiunti.h"
#include "joints/ui/frmGiuntiCampi.h"
#include "ui_frmGiunti.h"

namespace sagomi {

namespace {

constexpr const char* irrigidimenti[] = {"No", "Si", "Cp"};

int IndiceIrrigidimenti(const Giunto& g) {
    const auto* found = std::ranges::find(irrigidimenti, g.Irrigidimenti);
    return found == std::end(irrigidimenti) ? 0 : static_cast<int>(found - irrigidimenti);
}

const CampoGiunto* CampoDellaCasella(const QString& box) {
    for (const CampoGiunto& c : CampiDelGiunto())
        if (box == QLatin1String(c.casella))
            return &c;
    return nullptr;
}

QString Testo(double value) {
    return value == 0 ? QString() : QString::fromStdString(TestoPiano(Singolo(value)));
}

/// A parameter with its limits, by its box.
struct Limitato {
    const char* casella;
    ParametroGiunto parametro;
    const char* campo; ///< as the drawing names it
    double Giunto::*valore;
};

constexpr Limitato limitati[] = {
    {"Textbf", ParametroGiunto::bf, "bf", &Giunto::bf}, {"Textef", ParametroGiunto::ef, "ef", &Giunto::ef},
    {"Textd2", ParametroGiunto::d2, "d2", &Giunto::d2}, {"Textex", ParametroGiunto::ex, "ex", &Giunto::ex},
    {"Textdx", ParametroGiunto::dX, "dX", &Giunto::dX}, {"Textu", ParametroGiunto::u, "u", &Giunto::u},
};

QString TestoCampo(const CampoAmmesso& range) {
    const auto number = [](double mm) { return QString::fromStdString(TestoPiano(Singolo(mm))); };
    if (!range.massimo)
        return QStringLiteral("almeno ") + number(range.minimo);
    return QStringLiteral("da ") + number(range.minimo) + QStringLiteral(" a ") + number(*range.massimo);
}

/// Whether an entry is an action on the column.
bool DellaColonna(std::string_view casella) {
    return casella == "TxtM_Col" || casella == "TxtN_Col" || casella == "TxtV_Col" || casella == "TxtV_Sup";
}

} // namespace

void frmGiunti::CollegaEntrate() {
    entrate_ = new FiltroCampi(this);
    for (const CampoGiunto& c : CampiDelGiunto()) {
        QLineEdit* box = Casella(c.casella);
        entrate_->Osserva(box);
        Collega(box, &QLineEdit::textEdited, this, [this, box](const QString& text) {
            digitati_[box] = text;
            Digitata(box);
        });
        Collega(box, &QLineEdit::textChanged, this, [this, box](const QString& text) {
            if (!CaricaForm && !InDigitazione(box))
                Conclusa(box, text); // the program has written it
        });
    }
    Collega(entrate_, &FiltroCampi::conclusa, this, [this](QLineEdit* box) {
        const bool typed = digitati_.contains(box);
        Conclusa(box, typed ? digitati_.take(box) : box->text());
    });
    auto* description = Casella("TxtDescrizione");
    Collega(description, &QLineEdit::textChanged, this, [this] { DescrizioneCambiata(); });
}

/// What the description is given to has no quotes inside a text.
void frmGiunti::DescrizioneCambiata() {
    if (CaricaForm)
        return;
    QLineEdit* box = Casella("TxtDescrizione");
    if (box->text().contains(u'"')) {
        const auto cursor = box->cursorPosition() + box->text().left(box->cursorPosition()).count(u'"');
        const QScopedValueRollback loading(CaricaForm, true);
        box->setText(box->text().replace(u'"', QStringLiteral("''")));
        box->setCursorPosition(static_cast<int>(cursor));
    }
    documento_->Modifica();
}

void frmGiunti::Conclusa(QLineEdit* casella, const QString& testo) {
    const CampoGiunto* field = CampoDellaCasella(casella->objectName());
    if (field == nullptr || CaricaForm || inRicerca_)
        return;
    Accetta(*field, casella, testo);
    MostraDisegno();
}

/// A text that is no number becomes the number again; another number goes into the node.
void frmGiunti::Accetta(const CampoGiunto& campo, QLineEdit* casella, const QString& testo) {
    TingeGruppo(casella, DellaColonna(campo.casella));
    const double before = campo.legge(NodoCorrente);
    double value = before;
    std::string text = testo.toStdString();
    const bool changed = campo.genere == GenereCampo::luce ? Nodo::ControllaLunghezza(text, value)
                                                           : Nodo::Controll_Dati(text, value);
    if (text != testo.toStdString()) {
        const QScopedValueRollback loading(CaricaForm, true);
        casella->setText(Testo(before));
    }
    if (changed) {
        campo.scrive(NodoCorrente, value);
        if (campo.genere == GenereCampo::azione || campo.genere == GenereCampo::luce)
            DatiCambiati();
        else
            GiuntoCambiato(campo.genere == GenereCampo::limite);
    }
    if (value != 0)
        Controlla(campo);
    MostraCampi();
}

void frmGiunti::Controlla(const CampoGiunto& campo) {
    if (campo.controlla != nullptr && SagomiAssegnati(NodoCorrente))
        (this->*campo.controlla)();
}

/// Both joints hang on it.
void frmGiunti::DatiCambiati() {
    NodoCorrente.No_Acquisito();
    DimenticaSelezioni();
    AzzeraParametri();
    AzzeraRisultati();
    documento_->Modifica();
    MostraObiettivo();
}

/// The improvements of a search belong to the data that it had.
void frmGiunti::DimenticaSelezioni() {
    for (std::int16_t i = 1; i <= NodoCorrente.NumeroGiunti; ++i)
        NodoCorrente.Giunti[i]->AzzeraSelezione();
}

/// The current joint hangs on it.
/// @param parametri  those that a design has found go, too
void frmGiunti::GiuntoCambiato(bool parametri) {
    if (parametri)
        Corrente().AzzeraSelezione();
    if (parametri && Corrente().Criterio1)
        NodoCorrente.AzzeraParametriConnessione(NodoCorrente.nGiunto);
    AzzeraRisultati();
    documento_->Modifica();
    ScriveEntrate();
}

void frmGiunti::AzzeraParametri() {
    for (std::int16_t i = 1; i <= NodoCorrente.NumeroGiunti; ++i)
        if (NodoCorrente.Giunti[i]->Criterio1)
            NodoCorrente.AzzeraParametriConnessione(i);
    ScriveEntrate();
}

void frmGiunti::ScriveEntrate() {
    const QScopedValueRollback loading(CaricaForm, true);
    for (const CampoGiunto& c : CampiDelGiunto()) {
        QLineEdit* box = Casella(c.casella);
        const double value = c.legge(NodoCorrente);
        if (!NumeroPulito(box->text().toStdString()) || ValoreNumerico(box->text().toStdString()) != value ||
            (c.genere == GenereCampo::parametro && value == 0))
            box->setText(Testo(value));
        const bool negative =
            value < 0 && (c.genere == GenereCampo::parametro || c.genere == GenereCampo::limite);
        SegnaEntrata(box, negative ? QStringLiteral("Il valore non può essere negativo") : QString());
    }
    auto* bolts = findChild<QComboBox*>(QStringLiteral("CboDiametriBulloni"));
    bolts->setCurrentIndex(std::max<int>(Corrente().IndiceBullone(), 1) - 1);
    MostraCampi();
}

/// While the user types, the drawing alone follows, with the limit that the number breaks.
void frmGiunti::Digitata(QLineEdit* casella) {
    const CampoGiunto* field = CampoDellaCasella(casella->objectName());
    if (field == nullptr || field->genere != GenereCampo::parametro || !SagomiAssegnati(NodoCorrente) ||
        !NumeroPulito(casella->text().toStdString()))
        return;
    const double typed = ValoreNumerico(casella->text().toStdString());
    if (!std::isfinite(typed))
        return;
    Nodo scratch = NodoCorrente;
    scratch.ConnessioneCorrente = std::make_shared<Giunto>(Corrente());
    Giunto& g = *scratch.ConnessioneCorrente;
    g.Acquisito = false;
    field->scrive(scratch, typed);
    EvidenzaGiunto marks;
    PreparaLimiti(g);
    g.Derivati_Calcola();
    for (const Limitato& l : limitati)
        if (casella->objectName() == QLatin1String(l.casella)) {
            const CampoAmmesso range = CampoDi(g, l.parametro);
            const double value = g.*l.valore;
            if (value < range.minimo)
                marks.limite = "min " + TestoPiano(Singolo(range.minimo));
            else if (range.massimo && value > *range.massimo)
                marks.limite = "max " + TestoPiano(Singolo(*range.massimo));
            if (!marks.limite.empty())
                marks.parametro = l.campo;
        }
    vista_->Mostra(scratch, &g, marks);
}

/// The least and the greatest value beside each parameter.
void frmGiunti::MostraCampi() {
    const bool known = SagomiAssegnati(NodoCorrente);
    Giunto g = Corrente();
    if (known)
        PreparaLimiti(g);
    for (const Limitato& l : limitati) {
        QLabel* label = Etichetta((std::string("LblCampo") + l.casella).c_str());
        label->setText(known && Casella(l.casella)->isEnabled() ? TestoCampo(CampoDi(g, l.parametro))
                                                                : QString());
    }
    const BulloneMassimo bolt = known ? BulloneMax(g) : BulloneMassimo{};
    auto* bolts = findChild<QComboBox*>(QStringLiteral("CboDiametriBulloni"));
    Etichetta("LblCampoCboDiametriBulloni")
        ->setText(known && !bolt.tutti ? QStringLiteral("fino a ") + bolts->itemText(bolt.indice - 1)
                                       : QString());
    MostraNotaTf();
}

void frmGiunti::MostraNotaTf() {
    const Giunto& g = Corrente();
    const double tf = g.Criterio1 ? g.tf_max : g.tf;
    const QString note = g.Trave && g.Trave->h > 0 ? QString::fromStdString(NotaSpessore(g, tf)) : QString();
    Etichetta("lbltf")->setText(note);
    Etichetta("LblCampoTexttf")->setText(g.Criterio1 ? QString() : note);
}

// ---------------------------------------------------------------------------------------------- limits

/// Runs a limit on the current joint, with its welds sized; what it replaces is shown.
void frmGiunti::Limite(const std::function<void(Giunto&)>& controllo) {
    Suggerimento.clear();
    if (!SagomiAssegnati(NodoCorrente))
        return;
    Giunto& g = Corrente();
    const Giunto before = g;
    PreparaLimiti(g);
    controllo(g);
    const bool replaced = before.bf != g.bf || before.ef != g.ef || before.d2 != g.d2 || before.dX != g.dX ||
                          before.ex != g.ex || before.u != g.u || before.L != g.L ||
                          before.L_max != g.L_max || before.u_max != g.u_max ||
                          before.IndiceBullone() != g.IndiceBullone();
    if (replaced) {
        AzzeraRisultati();
        documento_->Modifica();
    } else if (g.Acquisito) {
        g.Af = before.Af; // those of the results
        g.aw = before.aw;
    }
    ScriveEntrate();
}

void frmGiunti::IndiceBulloneMax_Calcola(std::int16_t& Risultato) {
    Risultato = 1;
    Suggerimento.clear();
    if (!SagomiAssegnati(NodoCorrente))
        return;
    Giunto copy = Corrente();
    PreparaLimiti(copy);
    const BulloneMassimo bolt = BulloneMax(copy);
    Risultato = bolt.indice;
    Suggerimento = bolt.suggerimento;
}

void frmGiunti::bf_controlla() {
    Limite([](Giunto& g) { bf_Controlla(g); });
}

void frmGiunti::ef_controlla() {
    Limite([this](Giunto& g) { ef_Controlla(g, Suggerimento); });
}

void frmGiunti::dx_Controlla() {
    Limite([](Giunto& g) { sagomi::dx_Controlla(g); });
}

void frmGiunti::d2_Controlla() {
    Limite([](Giunto& g) { sagomi::d2_Controlla(g); });
}

void frmGiunti::ex_controlla() {
    Limite([](Giunto& g) { ex_Controlla(g); });
}

void frmGiunti::u_controlla() {
    Limite([](Giunto& g) { u_Controlla(g); });
}

void frmGiunti::L_Controlla() {
    Limite([](Giunto& g) { sagomi::L_Controlla(g); });
}

void frmGiunti::u_max_controlla() {
    Limite([](Giunto& g) { u_max_Controlla(g); });
}

void frmGiunti::L_max_controlla() {
    Limite([](Giunto& g) { L_max_Controlla(g); });
}

void frmGiunti::BulloneScelto(int indice) {
    if (CaricaForm || inRicerca_ || indice < 0 || indice + 1 == Corrente().IndiceBullone())
        return;
    ConcludeEntrate();
    Corrente().IndiceBullone(static_cast<std::int16_t>(indice + 1));
    GiuntoCambiato(false);
    if (SagomiAssegnati(NodoCorrente)) {
        std::int16_t largest = 0;
        IndiceBulloneMax_Calcola(largest);
        Limite([](Giunto& g) { bullone_Controlla(g); });
    }
    MostraDisegno();
}

// --------------------------------------------------------------------------------------------- options

void frmGiunti::CollegaOpzioni() {
    const auto group = [this](const char* name, const std::function<void(int)>& chosen) {
        Collega(Opzione(name, 0)->group(), &QButtonGroup::idToggled, this, [this, chosen](int i, bool on) {
            if (!on || CaricaForm || inRicerca_)
                return;
            ConcludeEntrate(); // what is typed belongs to the joint as it was
            chosen(i);
        });
    };
    group("Optvie", [this](int i) { NodoScelto(static_cast<std::int16_t>(i)); });
    group("Optres", [this](int i) {
        OpzioneScelta([i](Giunto& g) {
            g.Classe = i == 0 ? "8.8" : "10.9";
            g.fubl = i == 0 ? 800 : 1000;
        });
    });
    group("Optfila",
          [this](int i) { OpzioneScelta([i](Giunto& g) { g.nf = static_cast<std::int16_t>(i + 1); }); });
    group("Optirr", [this](int i) { IrrigidimentoScelto(i); });
    group("OptBeta", [this](int i) { OpzioneScelta([i](Giunto& g) { g.Beta_Cautel = i == 0; }); });
    group("OptCriterio", [this](int) {
        EseguiCriterio();
        documento_->Modifica();
    });
    group("OptTipoProgetto", [this](int i) {
        OpzioneScelta([i](Giunto& g) { g.TipoProgetto = static_cast<std::int16_t>(i); });
    });
    group("OptOttimizza", [this](int i) {
        OpzioneScelta([i](Giunto& g) { g.TipoUscitaProgetto = static_cast<std::int16_t>(i); });
    });
    Collega(ui_->CboGiunto, &QComboBox::currentIndexChanged, this, [this](int i) { GiuntoScelto(i); });
    auto* bolts = findChild<QComboBox*>(QStringLiteral("CboDiametriBulloni"));
    Collega(bolts, &QComboBox::currentIndexChanged, this, [this](int i) { BulloneScelto(i); });
}

void frmGiunti::OpzioneScelta(const std::function<void(Giunto&)>& scrive) {
    scrive(Corrente());
    GiuntoCambiato(true);
    AbilitaControlli();
    MostraObiettivo();
    MostraDisegno();
}

/// Both joints share the column: another choice than that of the other joint is asked about.
void frmGiunti::IrrigidimentoScelto(int i) {
    if (!NodoCorrente.ControllaGiunti(irrigidimenti[i])) {
        const QScopedValueRollback loading(CaricaForm, true);
        Sceglie("Optirr", IndiceIrrigidimenti(Corrente()));
        return;
    }
    OpzioneScelta([i](Giunto& g) { g.Irrigidimenti = irrigidimenti[i]; });
}

void frmGiunti::NodoScelto(std::int16_t tipo) {
    Nodo& n = NodoCorrente;
    n.Tipovie = tipo;
    n.NumeroGiunti = tipo <= nodoCroceSenzaColonna ? 2 : 1;
    if (n.NumeroGiunti == 1) {
        n.Giunti[2].reset();
        n.nGiunto = 1;
        if (inAttesa_ == RuoloSagomo::TraveSx)
            AbbandonaScelta();
    } else if (!n.Giunti[2]) {
        n.Giunti[2]->IndiceBullone(1);
    }
    if (tipo == nodoCroceSenzaColonna || tipo == nodoL)
        n.VColSup = 0;
    n.CaratterizzaGiunti();
    n.CollegaSezioni();
    n.ConnessioneCorrente = n.Giunti[n.nGiunto].Usa();
    DatiCambiati();
    ScriveSagomi();
    CriterioScelto();
}

void frmGiunti::GiuntoScelto(int indice) {
    if (CaricaForm || inRicerca_ || indice < 0)
        return;
    ConcludeEntrate();
    NodoCorrente.nGiunto = static_cast<std::int16_t>(indice + 1);
    CriterioScelto();
}

void frmGiunti::CriterioScelto() {
    NodoCorrente.Cambia();
    const Giunto& g = Corrente();
    {
        const QScopedValueRollback loading(CaricaForm, true);
        Sceglie("Optvie", NodoCorrente.Tipovie);
        ui_->CboGiunto->setCurrentIndex(NodoCorrente.nGiunto - 1);
        Sceglie("OptCriterio", g.Criterio1 ? 0 : 1);
        Sceglie("Optres", g.Classe == "10.9" ? 1 : 0);
        Sceglie("OptBeta", g.Beta_Cautel ? 0 : 1);
        Sceglie("Optfila", g.nf == 2 ? 1 : 0);
        Sceglie("Optirr", IndiceIrrigidimenti(g));
        Sceglie("OptTipoProgetto", g.TipoProgetto == 1 ? 1 : 0);
        Sceglie("OptOttimizza", std::clamp<int>(g.TipoUscitaProgetto, 0, 2));
    }
    EseguiCriterio();
    ScriviDatiInForm();
    MostraDisegno();
}

void frmGiunti::EseguiCriterio() {
    const bool design = Opzione("OptCriterio", 0)->isChecked();
    Corrente().Criterio1 = design;
    Corrente().Criterio2 = !design;
    ui_->cmdCalcola->setText(design ? QStringLiteral("&Progetta") : QStringLiteral("&Verifica"));
    ui_->cmdCalcola->setToolTip(design ? QStringLiteral("Progetta il giunto")
                                       : QStringLiteral("Verifica il giunto"));
    ui_->cmdCalcola->setStatusTip(ui_->cmdCalcola->toolTip() + QStringLiteral(" (") +
                                  ui_->cmdCalcola->shortcut().toString(QKeySequence::NativeText) + u')');
    AbilitaControlli();
    MostraObiettivo();
    MostraCampi();
}

/// What the kind of node, the analysis and the rows of bolts ask for.
void frmGiunti::AbilitaControlli() {
    const Giunto& g = Corrente();
    const bool design = g.Criterio1;
    const bool twoRows = g.nf == 2;
    const bool twoBeams = NodoCorrente.NumeroGiunti == 2;
    for (const char* name : {"TxtL_Sn", "TxtM_Sn", "TxtV_Sn", "TxtN_Sn"})
        Casella(name)->setEnabled(twoBeams);
    findChild<QPushButton*>(QStringLiteral("CmdTraveSx"))->setEnabled(twoBeams);
    Etichetta("LblTraveSx")->setEnabled(twoBeams);
    Casella("TxtV_Sup")->setEnabled(NodoCorrente.Tipovie == nodoCroce || NodoCorrente.Tipovie == nodoT);
    for (const char* name : {"Texttf_1", "TextL", "Textu_1"})
        Casella(name)->setEnabled(design);
    for (const char* name : {"OptTipoProgetto", "OptOttimizza"})
        for (QAbstractButton* option : Opzione(name, 0)->group()->buttons())
            option->setEnabled(design);
    for (const char* name : {"Texttf", "Textbf", "Textef", "Textd2", "Textex", "Textdx", "Textu"})
        static_cast<sagomi::Casella*>(Casella(name))->ImpostaRisultato(design);
    for (const char* name : {"Textex", "Textdx", "Textu"})
        Casella(name)->setEnabled(twoRows);
    findChild<QComboBox*>(QStringLiteral("CboDiametriBulloni"))->setEnabled(!design);
    Etichetta("LblModo")->setText(design ? tr("I parametri sono trovati dal progetto.")
                                         : tr("Parametri da verificare."));
    ui_->pagResistenza->MostraFile(g.nf);
    ui_->pagRigidezza->MostraFile(g.nf);
}

/// The moment that a design is to reach.
void frmGiunti::MostraObiettivo() {
    const Giunto& g = Corrente();
    QString text;
    if (g.Criterio1 && g.Trave && g.Trave->h > 0) {
        const double Mb = Nmm_a_kNm(g.Trave->McyRd);
        const double goals[] = {1.2 * Mb, Mb, g.Trave->Mysd};
        constexpr const char* names[] = {"1.2 Mb,Rd = ", "Mb,Rd = ", "Mj,Sd = "};
        const int i = std::clamp<int>(g.TipoUscitaProgetto, 0, 2);
        text = QString::fromLatin1(names[i]) + QString::fromStdString(FormatoCifre(4, goals[i])).trimmed() +
               QStringLiteral(" kNm");
    }
    Etichetta("LblObiettivo")->setText(text);
}

/// Names of the sections and of the joints.
void frmGiunti::ScriveSagomi() {
    const QScopedValueRollback loading(CaricaForm, true);
    const auto write = [this](const char* name, const std::shared_ptr<SezioneDoppioT>& section) {
        QLabel* label = Etichetta(name);
        label->setText(Assegnato(section) ? QString::fromStdString(section->Designation)
                                          : QStringLiteral("NON ASSEGNATO"));
        label->setToolTip(Assegnato(section)
                              ? QString::fromStdString(AcciaioMostrato(section->TipoAcciaio, section->fy))
                              : QString());
    };
    write("LblTraveDx", NodoCorrente.TraveDx.Riferimento());
    write("LblTraveSx", NodoCorrente.TraveSx.Riferimento());
    write("LblColonnaInf", NodoCorrente.Colonnainf);
    ui_->CboGiunto->clear();
    ui_->CboGiunto->addItem(QStringLiteral("Giunto destro"));
    if (NodoCorrente.NumeroGiunti == 2)
        ui_->CboGiunto->addItem(QStringLiteral("Giunto sinistro"));
    ui_->CboGiunto->setCurrentIndex(NodoCorrente.nGiunto - 1);
}

} // namespace sagomi
