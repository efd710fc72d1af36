#include "composite/ui/frmConnettori.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

#include "composite/AcciaioCls.h"
#include "composite/DisegniTraveMista.h"
#include "composite/VerificaTrave.h"
#include "composite/ui/FormaConnettori.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Esito.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "report/RelazioneTrave.h"
#include "report/ui/ComandoRelazione.h"

namespace sagomi {

namespace {

constexpr int cifre = 4;

/// Places of txtInput, with what they hold and begin with.
struct DatoPiolo {
    Singolo AcciaioCls::*valore;
    double inizio; ///< 0: empty
};
constexpr std::array<DatoPiolo, 4> dati{{{&AcciaioCls::hPiolo, 100},
                                         {&AcciaioCls::fu, fuPioloIniziale},
                                         {&AcciaioCls::GammaV, GammaVIniziale},
                                         {&AcciaioCls::Luce, 0}}};
constexpr const char* diametroIniziale = "19";

/// What the screen says of a kind of slab.
struct TestiSoletta {
    const char* tipo;
    const char* orditura;
    const char* paragrafo;
};
constexpr std::array<TestiSoletta, 3> testiSoletta{
    {{"Soletta Piena", "soletta PIENA", "EC4#6.3.2."},
     {"Nervature trasversali alle travi", "nervature TRASVERSALI", "EC4#6.3.3.1."},
     {"Nervature parallele alle travi", "nerv.PARALLELE alle travi", "EC4#6.3.3.2."}}};

constexpr const char* titolo = "Progetto Connesioni - Pioli muniti di testa (Pioli Nelson) - ";

std::string Cifre(double valore) {
    std::string text = FormatoCifre(cifre, valore);
    return text.erase(0, text.find_first_not_of(' '));
}

} // namespace

frmConnettori::frmConnettori() : Schermo(QStringLiteral("frmConnettori")) {
    ComponeConnettori(*this);
    setWindowTitle(QString::fromUtf8(titolo) + QStringLiteral("EC4 #6.3."));
    txtInput_ = Vettore<QLineEdit>(QStringLiteral("txtInput"));
    Campo("txtInput_3")->clear();
    findChild<ImmagineDisegno*>()->Mostra(DisegnoConnettori(AcciaioCls(), 0));
    PreparaContenuto();
    CollegaEntrate();
    Collega(findChild<QPushButton*>(QStringLiteral("CmdProgetta")), &QPushButton::clicked, this,
            [this] { Progetta(); });
    Collega(findChild<QPushButton*>(QStringLiteral("lblDomandaPrd")), &QPushButton::clicked, this,
            [this] { MostraResistenze(); });
    AggiungeRelazione(*this, [this] { return DaRiportare(); });
    DimensionaIniziale({});
}

QLineEdit* frmConnettori::Campo(const char* nome) const {
    return findChild<QLineEdit*>(QString::fromLatin1(nome));
}

QLabel* frmConnettori::Scritta(const char* nome) const {
    return findChild<QLabel*>(QString::fromLatin1(nome));
}

void frmConnettori::CollegaEntrate() {
    entrate_ = new FiltroCampi(this, [this](QLineEdit* box) {
        const bool last = box == Campo("TxtMsd");
        if (last)
            Progetta();
        return last;
    });
    for (QLineEdit* box : txtInput_ + QList<QLineEdit*>{Campo("TxtMsd")}) {
        entrate_->Osserva(box);
        Collega(box, &QLineEdit::textChanged, this, [this] { Cambiata(); });
    }
    for (QLineEdit* box : txtInput_) {
        RegolaPositivo(box);
        Collega(box, &QLineEdit::textChanged, this, [this, box] {
            svuotate_.remove(box);
            if (!Caricamento && box->text().isEmpty())
                svuotate_.insert(box);
        });
    }
    Collega(entrate_, &FiltroCampi::conclusa, this, [this] { regole_.Applica(); });
    for (QComboBox* list : findChildren<QComboBox*>())
        Collega(list, &QComboBox::currentIndexChanged, this, [this] { Cambiata(); });
    for (QRadioButton* option : Vettore<QRadioButton>(QStringLiteral("OptConnect")))
        Collega(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                Cambiata();
        });
}

/// A number that cannot be is marked; one that is not given yet is not.
void frmConnettori::RegolaPositivo(QLineEdit* casella) {
    regole_.Aggiunge({.caselle = {casella}, .motivo = [casella] {
                          const double value = Singolo(NumeroIn(casella));
                          return value < 0               ? tr("Il valore non può essere negativo")
                                 : !std::isfinite(value) ? tr("Il numero è troppo grande")
                                                         : QString();
                      }});
}

void frmConnettori::Apre(Schermo& da) {
    trave_ = dynamic_cast<TraveInUso*>(&da);
    if (trave_ == nullptr)
        trave_ = &NavigaSchermi::Unico().Prende<TraveInUso>(QStringLiteral("frmAcciaioCls"));
    progettata_ = progettata_ && isVisible();
    svuotate_.clear();
    NavigaSchermi::Unico().Apre(*this, da);
    FuocoSu(txtInput_[0]);
}

// ---- the beam on the screen

void frmConnettori::Aggiorna() {
    if (trave_ == nullptr)
        return;
    Riempie();
    SvuotaUscite();
    MostraTipo();
    MostraMomento();
    regole_.Applica();
    Disegna();
}

/// What the beam has and the entries do not, as after a file; where it has nothing, where they begin, but for
/// those that the user has emptied.
void frmConnettori::Riempie() {
    const QScopedValueRollback loading(Caricamento, true);
    for (std::size_t i = 0; i < dati.size(); ++i) {
        QLineEdit* box = txtInput_[static_cast<qsizetype>(i)];
        Singolo& value = Trave().*dati[i].valore;
        const bool emptied = svuotate_.contains(box) && !(value > 0);
        if (emptied || InDigitazione(box) ||
            (value > 0 && Singolo(NumeroIn(box)).Stretto() == value.Stretto()))
            continue;
        if (!(value > 0))
            value = dati[i].inizio;
        box->setText(value > 0 ? QString::fromStdString(TestoPiano(value)) : QString());
    }
    RiempieDiametro();
    findChild<QComboBox*>(QStringLiteral("ComboNr"))->setCurrentIndex(Trave().Nr == 2 ? 1 : 0);
    RiempieMomento();
}

void frmConnettori::RiempieDiametro() {
    auto* list = findChild<QComboBox*>(QStringLiteral("Combo1"));
    if (!(Trave().dPiolo > 0))
        Trave().dPiolo = ValoreNumerico(diametroIniziale);
    const QString text = QString::fromStdString(TestoPiano(Trave().dPiolo));
    if (list->findText(text) < 0)
        list->addItem(text);
    list->setCurrentIndex(list->findText(text));
}

/// The moment that the stresses are those of is not changed here.
void frmConnettori::RiempieMomento() {
    QLineEdit* box = Campo("TxtMsd");
    if (!InDigitazione(box) && Singolo(kNm_a_Nmm(NumeroIn(box))).Stretto() != Trave().Msd.Stretto())
        box->setText(QString::fromStdString(TestoMomento(Trave().Msd)));
    box->setEnabled(Trave().TipoVerifica < metodoNPositivo);
}

void frmConnettori::MostraTipo() {
    const bool elastic = Trave().TipoVerifica >= metodoNPositivo;
    const QString method = elastic ? QStringLiteral("Metodo n") : QStringLiteral("EC4 #6.3.");
    setWindowTitle(QString::fromUtf8(titolo) + method);
    auto* full = findChild<QRadioButton*>(QStringLiteral("OptConnect_0"));
    full->setText(elastic ? method : QStringLiteral("A completo ripristino"));
    auto* partial = findChild<QRadioButton*>(QStringLiteral("OptConnect_1"));
    partial->setEnabled(!elastic);
    if (elastic) {
        const QScopedValueRollback loading(Caricamento, true);
        full->setChecked(true);
    }
    const TestiSoletta& texts = testiSoletta[static_cast<std::size_t>(Trave().TipoSoletta)];
    Scritta("lblTipoSoletta")->setText(QString::fromUtf8(texts.tipo));
    Scritta("lblOrditura")->setText(QString::fromUtf8(texts.orditura));
    Scritta("lblParagrafo")->setText(QString::fromUtf8(texts.paragrafo));
    const bool deck = Trave().TipoSoletta != solettaPiena;
    for (const char* name : {"lblb0", "txtb0", "lblNervPasso", "TxtNerv", "lblNerv"})
        findChild<QWidget*>(QString::fromLatin1(name))->setVisible(deck);
    Campo("txtb0")->setText(deck && Trave().b0 > 0 ? QString::fromStdString(FormatoCifre(cifre, Trave().b0))
                                                   : QString());
}

void frmConnettori::MostraMomento() {
    const AcciaioCls& t = Trave();
    const bool positive = t.TipoVerifica == sluPositivo || t.TipoVerifica == metodoNPositivo;
    const bool wrong = t.TipoVerifica >= metodoNPositivo && (positive ? t.Msd < 0 : t.Msd > 0);
    std::string text = positive ? "Momento positivo" : "Momento negativo";
    if (wrong)
        text += " - " + std::string(testoSegnoMsd);
    sagomi::Mostra(Scritta("lblMomento"), text);
    MostraGoverna(Scritta("lblMomento"), wrong);
}

// ---- entries

bool frmConnettori::ValidaDati() const {
    return std::ranges::all_of(txtInput_, [](const QLineEdit* box) {
        const double value = Singolo(NumeroIn(box));
        return value > 0 && std::isfinite(value);
    });
}

void frmConnettori::Leggedati() {
    AcciaioCls& t = Trave();
    for (std::size_t i = 0; i < dati.size(); ++i)
        t.*dati[i].valore = NumeroIn(txtInput_[static_cast<qsizetype>(i)]);
    t.dPiolo = ValoreNumerico(findChild<QComboBox*>(QStringLiteral("Combo1"))->currentText().toStdString());
    t.Nr = static_cast<std::int16_t>(findChild<QComboBox*>(QStringLiteral("ComboNr"))->currentIndex() + 1);
    t.Msd = kNm_a_Nmm(NumeroIn(Campo("TxtMsd")));
}

bool frmConnettori::Parziale() const {
    return findChild<QRadioButton*>(QStringLiteral("OptConnect_1"))->isChecked();
}

void frmConnettori::Cambiata() {
    if (Caricamento || trave_ == nullptr)
        return;
    Leggedati();
    trave_->TraveModificata();
    SvuotaUscite();
    MostraMomento();
    regole_.Applica();
    Disegna();
}

// ---- design

int frmConnettori::ParzRipCoppie(int n, double MplRd, double Msd, double MaplRd) const {
    return sagomi::ParzRipCoppie(n, MplRd, Msd, MaplRd);
}

void frmConnettori::Progetta() {
    if (trave_ == nullptr)
        return;
    SvuotaUscite();
    if (!ValidaDati()) {
        Avvisa("Dati non accettabili od incompleti ! Controllare", "Attenzione !", Icona::Stop);
        return;
    }
    Leggedati();
    const bool accepted = trave_->AssicuraRisultati();
    MostraTipo();
    if (!accepted) {
        Disegna();
        return;
    }
    const EsitoConnettori esito = ProgettaConnettori(Trave(), Parziale());
    Mostra(esito);
    Disegna();
    progettata_ = true;
    if (esito.nervatureDoppie > 0)
        SuggerimentoPerNervatura(esito.nervatureDoppie);
}

/// The studs are a chapter of their beam's report.
Relazione frmConnettori::DaRiportare() {
    if (trave_ == nullptr || !ValidaDati())
        return {};
    Leggedati();
    return trave_->AssicuraRisultati() ? RelazioneTraveVerificata(Trave()) : Relazione();
}

void frmConnettori::Mostra(const EsitoConnettori& esito) {
    sagomi::Mostra(Scritta("lblHsuD"), esito.messaggio);
    MostraGoverna(Scritta("lblHsuD"), true);
    if (!esito.PRd)
        return;
    const auto show = [this](const char* name, const std::string& text) {
        Campo(name)->setText(QString::fromStdString(text));
    };
    show("TxtPrd", FormatoCifre(cifre, N_a_kN(*esito.PRd)));
    sagomi::Mostra(Scritta("lblK"), "k = " + Cifre(Trave().kRiduzione));
    findChild<QPushButton*>(QStringLiteral("lblDomandaPrd"))->setEnabled(true);
    if (esito.n)
        show("txtn", std::to_string(*esito.n));
    if (!esito.Passo)
        return;
    show("txtPasso", TestoPiano(*esito.Passo));
    sagomi::Mostra(Scritta("lblUnita"), esito.Unita);
    if (esito.nervature) {
        show("TxtNerv", std::to_string(*esito.nervature));
        sagomi::Mostra(Scritta("lblNerv"), *esito.nervature == 1 ? "nervatura" : " nervature");
    }
}

/// The two formulas of PRd with their values.
void frmConnettori::MostraResistenze() {
    const AcciaioCls& t = Trave();
    if (!(t.PRd > 0))
        return;
    const auto kN = [](double N) { return Cifre(N_a_kN(N)) + " kN"; };
    Avvisa("PRd1 = " + TestoPiano(0.8) + " fu A/gammaV = " + kN(t.PRd1) + "\nPRd2 = " + TestoPiano(0.29) +
               " alfa d2 (fck Ecm)^" + TestoPiano(0.5) + "/gammaV = " + kN(t.PRd2) +
               "\nPRd = k min(PRd1, PRd2) = " + Cifre(t.kRiduzione) + " x " + kN(std::min(t.PRd1, t.PRd2)) +
               " = " + kN(t.PRd),
           {}, Icona::Informazione);
}

void frmConnettori::SvuotaUscite() {
    for (const char* name : {"TxtPrd", "txtn", "txtPasso", "TxtNerv"})
        Campo(name)->clear();
    for (const char* name : {"lblHsuD", "lblK", "lblUnita", "lblNerv"})
        Scritta(name)->clear();
    findChild<QPushButton*>(QStringLiteral("lblDomandaPrd"))->setEnabled(false);
    nervatureDoppie_ = 0;
    progettata_ = false;
}

void frmConnettori::SuggerimentoPerNervatura(int n) {
    nervatureDoppie_ = n;
    NavigaSchermi::Unico().Apre(QStringLiteral("frmSuggerimento"), *this);
}

/// The beam with the studs that the entries ask for, designed in silence on a copy.
void frmConnettori::Disegna() {
    AcciaioCls copy = Trave();
    int n = 0;
    if (ValidaDati() && copy.Vl > 0) {
        const MessaggiTaciuti quiet;
        n = ProgettaConnettori(copy, Parziale()).n.value_or(0);
    }
    findChild<ImmagineDisegno*>(QStringLiteral("pctConnettori"))->Mostra(DisegnoConnettori(copy, n));
}

} // namespace sagomi
