#include "composite/ui/frmAcciaioCls.h"

#include <QAction>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QStackedWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

#include "catalogue/Lettore.h"
#include "composite/DisegniTraveMista.h"
#include "composite/DisegnoVivo.h"
#include "composite/ui/CampiTrave.h"
#include "composite/ui/FormaTrave.h"
#include "drawing/ui/FrmPltSezione.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/ChiudiProgramma.h"
#include "frame/ui/DocumentoSchermo.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Esito.h"
#include "frame/ui/Guida.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/UpDown.h"
#include "report/RelazioneTrave.h"
#include "report/ui/ComandoRelazione.h"
#include "screens/SchermoDettaglio.h"
#include "screens/SchermoSezione.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

/// Boxes that stay empty where a new beam has a 0.
constexpr std::array<const char*, 10> nuove{"txtDati_1", "txtDati_2", "txtDati_3", "txtDati_4", "TxtLam_0",
                                            "TxtLam_1",  "TxtLam_2",  "TxtLam_3",  "TxtLam_4",  "Txt_M"};

bool Plastica(const AcciaioCls& t) { return t.TipoVerifica < metodoNPositivo; }

/// Whether two sections are the same steel to the eye.
bool Stessa(const SezioneDoppioT& a, const SezioneDoppioT& b) {
    const auto values = [](const SezioneDoppioT& s) {
        return std::array<double, 7>{s.h, s.b, s.tw, s.tf, s.r, s.bAlaInf, s.tAlaInf};
    };
    return a.Designation == b.Designation && values(a) == values(b) && a.fy == b.fy;
}

bool StesseMisure(const SezioneDoppioT& a, const SezioneDoppioT& b) {
    const auto values = [](const SezioneDoppioT& s) {
        return std::array<double, 7>{s.h,
                                     s.b,
                                     s.tw,
                                     s.tf,
                                     s.r,
                                     s.SaldataAsimm ? double(s.bAlaInf) : 0.0,
                                     s.SaldataAsimm ? double(s.tAlaInf) : 0.0};
    };
    return values(a) == values(b);
}

/// The entry that a reason of the check speaks of.
const char* CasellaDellaNota(const std::string& nota) {
    if (nota.starts_with("interasse"))
        return "TxtLam_3";
    if (nota.starts_with("hc"))
        return "txtDati_1";
    if (nota.starts_with("beff"))
        return "txtDati_2";
    return nota.starts_with("c ") ? "txtDati_4" : nullptr;
}

} // namespace

frmAcciaioCls::frmAcciaioCls() : Schermo(QStringLiteral("frmAcciaioCls")) {
    ComponeTrave(*this);
    documento_ = new DocumentoSchermo(*this, {"AcciaioCls", "Sco", "sco"});
    PreparaContenuto();
    CollegaCaselle();
    CollegaRegole();
    CollegaOpzioni();
    CollegaComandi();
    CollegaMenu();
    Nuova();
    DimensionaIniziale({1340, 690}); // the drawing has what the desktop gives
}

QLineEdit* frmAcciaioCls::Campo(const char* nome) const {
    return findChild<QLineEdit*>(QString::fromLatin1(nome));
}

// ---- handlers

void frmAcciaioCls::CollegaMenu() {
    const auto entry = [this](const char* name, auto f) {
        Collega(findChild<QAction*>(QString::fromLatin1(name)), &QAction::triggered, this, f);
    };
    entry("mnuFileItem_0", [this] {
        ConcludeEntrate();
        ChiudiProgramma();
    });
    entry("mnuFileItem_1", [this] { documento_->Apre(); });
    entry("mnuFileItem_2", [this] {
        ConcludeEntrate();
        documento_->Salva();
    });
    entry("mnuFileItem_3", [this] { Ritorna(); });
    entry("mnuFileNuovo", [this] {
        documento_->Nuovo([this] {
            Nuova();
            MetteInUso();
        });
    });
    entry("mnuFileSubito", [this] {
        ConcludeEntrate();
        documento_->SalvaSubito();
    });
    auto* file = findChild<QMenu*>(QStringLiteral("mnuFile"));
    AggiungeRelazione(*this, *file, findChild<QAction*>(QStringLiteral("mnuFileItem_3")), [this] {
        return AssicuraRisultati() ? RelazioneTraveVerificata(trave_) : Relazione();
    });
    documento_->CollegaRecenti(*findChild<QMenu*>(QStringLiteral("mnuRecenti")));
    NavigaSchermi::Unico().CollegaMenu(*this);
}

void frmAcciaioCls::CollegaOpzioni() {
    const auto kinds = Vettore<QRadioButton>(QStringLiteral("OptTipoSoletta"));
    const auto checks = Vettore<QRadioButton>(QStringLiteral("OpTipoVerifica"));
    for (int i = 0; i < kinds.size(); ++i)
        Collega(kinds[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on && !Caricamento) {
                trave_.TipoSoletta = static_cast<std::int16_t>(i);
                MostraTipi();
                Cambiata();
            }
        });
    for (int i = 0; i < checks.size(); ++i)
        Collega(checks[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on && !Caricamento) {
                trave_.TipoVerifica = static_cast<std::int16_t>(i);
                MostraTipi();
                Cambiata();
            }
        });
}

void frmAcciaioCls::CollegaCaselle() {
    entrate_ = new FiltroCampi(this, [this](QLineEdit* box) { return Invio(box); });
    for (QLineEdit* box : findChildren<QLineEdit*>()) {
        if (box->isReadOnly() && !box->objectName().startsWith(u"txtHsd"))
            continue;
        if (!box->property(proprietaParole).toBool())
            entrate_->Osserva(box);
        else
            Collega(box, &QLineEdit::returnPressed, this, [this] { FuocoSuccessivo(this); });
        Collega(box, &QLineEdit::textChanged, this, [this] { Cambiata(); });
    }
    Collega(entrate_, &FiltroCampi::conclusa, this, [this](QLineEdit* box) { Conclusa(box); });
}

void frmAcciaioCls::CollegaComandi() {
    const auto button = [this](const char* name, auto f) {
        Collega(findChild<QPushButton*>(QString::fromLatin1(name)), &QPushButton::clicked, this, f);
    };
    button("cmdCalcola", [this] { Calcola(); });
    button("cmdConnessioni", [this] {
        AssicuraRisultati();
        NavigaSchermi::Unico().Apre(QStringLiteral("frmConnettori"), *this);
    });
    button("CmdPlotta",
           [this] { FrmPltSezione::Mostra(*this, objectName(), [this] { return DisegnoVivo(trave_); }); });
    button("cmdLamiera",
           [this] { FrmPltSezione::Mostra(*this, objectName(), [this] { return DisegnoLamiera(trave_); }); });
    Collega(findChild<UpDown*>(QStringLiteral("UpDown1")), &UpDown::passo, this,
            [this](bool su) { PassoDiRiga(su); });
    Collega(findChild<UpDown*>(QStringLiteral("UpDown2")), &UpDown::passo, this,
            [this](bool su) { PassoDiAcciaio(su); });
}

void frmAcciaioCls::CollegaRegole() {
    for (QLineEdit* box : findChildren<QLineEdit*>())
        if (Entrata::Di(box) != nullptr && box->objectName() != u"Txt_M")
            RegolaSegno(box);
    regole_.Aggiunge({.caselle = {Campo("Txt_M")}, .motivo = [this] {
                          return std::isfinite(Singolo(kNm_a_Nmm(NumeroIn(Campo("Txt_M")))))
                                     ? QString()
                                     : tr("Il numero è troppo grande");
                      }});
    RegolaMateriale("Txt_fck", "fck", " N/mm2", limitiResistenza);
    RegolaMateriale("Txt_fsk", "fsk", " N/mm2", limitiResistenza);
    RegolaMateriale("txtDati_5", "n", "", limitiRapporto);
    for (const char* name : {"TxtLam_3", "txtDati_1", "txtDati_2", "txtDati_4"})
        regole_.Aggiunge({.caselle = {Campo(name)}, .motivo = [this, name] {
                              const char* marked = CasellaDellaNota(nota_.toStdString());
                              return marked != nullptr && std::string_view(marked) == name ? nota_
                                                                                           : QString();
                          }});
}

/// A number that cannot be is marked and stays; hc and c of a slab below the top of the steel may be
/// negative.
void frmAcciaioCls::RegolaSegno(QLineEdit* casella) {
    const bool anySign = casella->objectName() == u"txtDati_1" || casella->objectName() == u"txtDati_4";
    regole_.Aggiunge({.caselle = {casella}, .motivo = [casella, anySign] {
                          const double value = Singolo(NumeroIn(casella));
                          return !std::isfinite(value)   ? tr("Il numero è troppo grande")
                                 : value < 0 && !anySign ? tr("Il valore non può essere negativo")
                                                         : QString();
                      }});
}

/// A global that cannot be is put back, so that nothing may be computed with what the box shows.
void frmAcciaioCls::RegolaMateriale(const char* nome, const char* simbolo, const char* unita, Limiti limiti) {
    const QString reason = QStringLiteral("%1: da %2 a %3%4")
                               .arg(QLatin1String(simbolo))
                               .arg(limiti.minimo)
                               .arg(limiti.massimo)
                               .arg(QLatin1String(unita));
    QLineEdit* box = Campo(nome);
    regole_.Aggiunge({.caselle = {box},
                      .motivo =
                          [=] {
                              const bool stands =
                                  box->text().isEmpty() || limiti.Comprende(Singolo(NumeroIn(box)));
                              return stands ? QString() : reason;
                          },
                      .manca = [box] { return box->text().isEmpty(); }});
}

bool frmAcciaioCls::Invio(QLineEdit* casella) {
    if (casella != Campo("Txt_M"))
        return false;
    Calcola();
    return true;
}

// ---- opening, closing

void frmAcciaioCls::Apre(Schermo& da) {
    if (&da != this) {
        origine = &da;
        chiamante_ = dynamic_cast<SchermoSezione*>(&da);
    }
    PrendeSezione();
    NavigaSchermi::Unico().Passa(*this, &da == this ? nullptr : &da);
    Campo("txtTitolo")->setFocus();
}

/// The steel of the screen that opened this one, when it is another one than was taken there last. Without a
/// double-T there the beam keeps its own, or begins with an empty one.
void frmAcciaioCls::PrendeSezione() {
    const auto* there =
        chiamante_ == nullptr || !chiamante_->RigaInMano() ? nullptr : SezioneInUso<SezioneDoppioT>();
    findChild<UpDown*>(QStringLiteral("UpDown1"))->setEnabled(there != nullptr);
    if (there != nullptr && there != trave_.Sezione.get() && (!presa_ || !Stessa(*there, *presa_))) {
        presa_ = std::make_shared<SezioneDoppioT>(*there);
        trave_.Sezione = std::make_shared<SezioneDoppioT>(*there);
        MostraSezione();
        SvuotaUscite();
        regole_.Applica();
        if (!documento_->File().isEmpty())
            documento_->Modifica(); // it has another steel there
    } else if (!trave_.Sezione) {
        SezioneNuova();
        MostraSezione();
    }
}

void frmAcciaioCls::SezioneNuova() {
    trave_.Sezione = std::make_shared<SezioneDoppioT>();
    if (presa_)
        *trave_.Sezione = *presa_;
    else {
        trave_.Sezione->TipoAcciaio = NomeAcciaio[IndiceAcciaio + 1];
        trave_.Sezione->fy = fyAcciaio[IndiceAcciaio + 1];
        trave_.Sezione->fu = fuAcciaio[IndiceAcciaio + 1];
    }
}

/// A beam without data, on the section last taken.
void frmAcciaioCls::Nuova() {
    trave_ = AcciaioCls();
    SezioneNuova();
    ScriveTrave();
    VuotaZeri();
}

void frmAcciaioCls::VuotaZeri() {
    const QScopedValueRollback loading(Caricamento, true);
    for (const char* name : nuove)
        Campo(name)->clear();
    if (!presa_)
        for (QLineEdit* box : Vettore<QLineEdit>(QStringLiteral("txtHsd")))
            box->clear();
    Disegna();
}

void frmAcciaioCls::AllAttivazione() {
    Guida::ImpostaFile(FileGuida());
    MetteInUso();
    MostraNormativa();
    const QScopedValueRollback loading(Caricamento, true);
    if (GammaM0Visto_ != GammaM0)
        SvuotaUscite();
    GammaM0Visto_ = GammaM0;
    MostraSegno();
    Disegna();
    if (!calcolata_)
        AlleFinestre(); // what they show may be of another section or of other factors
}

void frmAcciaioCls::Ritorna() {
    Schermo* sections = NavigaSchermi::Unico().Trova(QString::fromStdString(ScreenAttivo));
    if (sections != nullptr && sections != this)
        NavigaSchermi::Unico().Passa(*sections, this);
    else
        NavigaSchermi::Unico().Lascia(*this);
}

void frmAcciaioCls::closeEvent(QCloseEvent* event) {
    bool stays = !ChiusuraInCorso; // an error on the way loses nothing
    if (!ChiusuraInCorso)
        EventoProtetto([this, &stays] {
            ConcludeEntrate();
            stays = !documento_->Nuovo([this] {
                for (Schermo* s : NavigaSchermi::Unico().VisibiliDa(*this))
                    s->hide(); // they work on this beam
                presa_.reset();
                Nuova();
            });
        });
    if (stays)
        event->ignore();
    else
        Schermo::closeEvent(event);
}

void frmAcciaioCls::ScalaContenuto(double rapporto) {
    Schermo::ScalaContenuto(rapporto);
    auto* section = findChild<QLabel*>(QStringLiteral("lblMessaggioClasse"));
    section->setMinimumHeight(2 * section->fontMetrics().lineSpacing());
}

// ---- screen and beam

void frmAcciaioCls::DatiLeggeScrive(std::string_view modo) {
    if (!trave_.Sezione)
        SezioneNuova();
    else if (modo == "L") // the one in use stays as it is until this one can take its place
        trave_.Sezione = std::make_shared<SezioneDoppioT>(*trave_.Sezione);
    const QScopedValueRollback loading(Caricamento, true);
    CampiTrave fields(*this);
    trave_.Sezione->DatiAcciaioClsLeggeScrive(modo, fields);
    trave_.DatiGrecataLeggeScrive(fields, modo);
    trave_.DatiSolettaLeggeScrive(fields, modo);
    trave_.DatiProgettoLeggeScrive(fields, modo);
    if (modo != "L")
        MostraTipi();
    else if (!trave_.Sezione->SaldataAsimm) { // both flanges are one
        trave_.Sezione->bAlaInf = trave_.Sezione->b;
        trave_.Sezione->tAlaInf = trave_.Sezione->tf;
    }
}

/// The steel of the beam becomes the section in use, once it is a section.
void frmAcciaioCls::MetteInUso() {
    if (SezionePossibile(trave_))
        SezioneCorrente = trave_.Sezione;
}

/// The whole screen from the beam, nothing computed.
void frmAcciaioCls::ScriveTrave() {
    DatiLeggeScrive("S");
    MostraSezione();
    MostraTipi();
    SvuotaUscite();
    MostraSegno();
    regole_.Applica();
    Disegna();
    AlleFinestre();
}

/// Name, steel and measures of the section; of a symmetrical one the lower flange follows the upper.
void frmAcciaioCls::MostraSezione() {
    const QScopedValueRollback loading(Caricamento, true);
    CampiTrave fields(*this);
    trave_.Sezione->DatiAcciaioClsLeggeScrive("S", fields);
    for (const char* name : {"txtHsd_1", "txtHsd_3"})
        dynamic_cast<Casella*>(Campo(name))->ImpostaRisultato(!trave_.Sezione->SaldataAsimm);
    MostraMisure();
}

/// Of a symmetrical section the lower flange follows the upper; measures that are not those of the name any
/// more are told.
void frmAcciaioCls::MostraMisure() {
    const QScopedValueRollback loading(Caricamento, true);
    const SezioneDoppioT& s = *trave_.Sezione;
    if (!s.SaldataAsimm) {
        Riempie(Campo("txtHsd_1"), s.b);
        Riempie(Campo("txtHsd_3"), s.tf);
    }
    const bool other = presa_ && presa_->Designation == s.Designation && !StesseMisure(*presa_, s);
    findChild<QLabel*>(QStringLiteral("lblSagomo"))->setText(other ? tr("misure modificate") : QString());
}

void frmAcciaioCls::MostraTipi() {
    findChild<QGroupBox*>(QStringLiteral("FrameLamiera"))->setVisible(trave_.TipoSoletta != solettaPiena);
    auto* plastic = findChild<QGroupBox*>(QStringLiteral("frSLU"));
    auto* elastic = findChild<QGroupBox*>(QStringLiteral("frMetodoN"));
    for (QWidget* up = plastic->parentWidget(); up != nullptr; up = up->parentWidget())
        if (auto* pages = qobject_cast<QStackedWidget*>(up))
            pages->setCurrentWidget(Plastica(trave_) ? plastic : elastic);
    const bool parallel = trave_.TipoSoletta == nervatureParallele;
    Campo("TxtLam_4")->setEnabled(parallel);
}

/// A moment of the sign of the other check is told beside it.
void frmAcciaioCls::MostraSegno() {
    const bool wrong = (trave_.TipoVerifica == metodoNPositivo && trave_.Msd < 0) ||
                       (trave_.TipoVerifica == metodoNNegativo && trave_.Msd > 0);
    auto* label = findChild<QLabel*>(QStringLiteral("lblSegnoMsd"));
    label->setText(wrong ? QString::fromUtf8(testoSegnoMsd.data()) : QString());
    MostraGoverna(label, wrong);
}

void frmAcciaioCls::MostraNormativa() {
    const QString rules = QString::fromStdString(NomeNormativa());
    findChild<QAction*>(QStringLiteral("NormativaMain"))->setText(QStringLiteral("Normativa: ") + rules);
    findChild<QLabel*>(QStringLiteral("lblNormativa"))
        ->setText(rules + QStringLiteral(", γM0 = ") + QString::fromStdString(TestoPiano(GammaM0)));
}

void frmAcciaioCls::PassoDiRiga(bool su) {
    if (chiamante_ == nullptr)
        return;
    MuoviRecord(chiamante_->Data1->Recordset(), su);
    if (const auto* row = SezioneInUso<SezioneDoppioT>(); row != nullptr && row != trave_.Sezione.get()) {
        presa_ = std::make_shared<SezioneDoppioT>(*row);
        trave_.Sezione = std::make_shared<SezioneDoppioT>(*row);
    }
    MostraSezione();
    Cambiata();
}

/// The section taken has the steel of its row: the beam keeps its own when it is opened on it again.
void frmAcciaioCls::PrendeAcciaio() {
    if (!presa_)
        return;
    const auto taken = std::make_shared<SezioneDoppioT>(*presa_);
    taken->TipoAcciaio = chiamante_->ComboTipoAcciaio->currentText().toStdString();
    taken->fy = NumeroIn(chiamante_->Txt_fy);
    presa_ = taken;
}

void frmAcciaioCls::PassoDiAcciaio(bool su) {
    if (chiamante_ != nullptr) {
        const QScopedValueRollback loading(Caricamento, true);
        MuoviAcciaio(su, *chiamante_, Campo("Txt_TipoAcciaio"), Campo("Txt_fy"));
        PrendeAcciaio();
    }
    Cambiata();
}

// ---- changes

/// Something has been typed, chosen or written: nothing that was shown is true any more.
void frmAcciaioCls::Cambiata() {
    if (Caricamento)
        return;
    const MaterialiTrave before;
    DatiLeggeScrive("L");
    MetteInUso();
    documento_->Modifica();
    SvuotaUscite();
    MostraMisure();
    MostraSegno();
    regole_.Applica();
    Disegna();
    AlleFinestre();
    if (entrate_->InDigitazione())
        before.Imposta(); // the settings hear of what stands
    else
        before.RimetteImpossibili();
}

void frmAcciaioCls::Conclusa(QLineEdit* casella) {
    if (Caricamento)
        return;
    const MaterialiTrave before;
    DatiLeggeScrive("L");
    CorreggeLamiera(casella);
    before.RimetteImpossibili();
}

/// The spacing or the width at the beam, once they are given, are mended when they are left.
void frmAcciaioCls::CorreggeLamiera(const QLineEdit* casella) {
    const bool deck = casella->objectName().startsWith(u"TxtLam");
    const bool given = trave_.iNervature > 0 &&
                       (trave_.TipoSoletta != nervatureParallele || trave_.b0t > 0 || trave_.bb == 0);
    if (!deck || !given || trave_.TipoSoletta == solettaPiena || trave_.DatiGrecataAccettabili())
        return;
    trave_.CorreggeGrecata();
    ScriveCorrette();
    Cambiata();
}

void frmAcciaioCls::ScriveCorrette() {
    const QScopedValueRollback loading(Caricamento, true);
    for (const auto& [name, value] :
         {std::pair{"TxtLam_3", trave_.iNervature}, std::pair{"TxtLam_4", trave_.b0t}})
        if (Singolo(NumeroIn(Campo(name))).Stretto() != value.Stretto())
            Riempie(Campo(name), value);
}

/// Windows that were opened from here hear of a change.
void frmAcciaioCls::AlleFinestre() {
    for (Schermo* s : NavigaSchermi::Unico().VisibiliDa(*this))
        s->Aggiorna();
}

void frmAcciaioCls::TraveModificata() {
    documento_->Modifica();
    QLineEdit* moment = Campo("Txt_M");
    if (Singolo(kNm_a_Nmm(NumeroIn(moment))).Stretto() == trave_.Msd.Stretto())
        return;
    const QScopedValueRollback loading(Caricamento, true);
    moment->setText(QString::fromStdString(TestoMomento(trave_.Msd)));
    if (!Plastica(trave_)) // the stresses are those of the other moment
        SvuotaUscite();
    MostraSegno();
    Disegna();
}

bool frmAcciaioCls::AssicuraRisultati() {
    ConcludeEntrate();
    if (!calcolata_)
        Calcola();
    return calcolata_;
}

// ---- file

void frmAcciaioCls::FileLeggeScrive(std::string_view modo, std::int16_t nFile) {
    const MaterialiTrave before;
    if (modo != "L") {
        DatiLeggeScrive("L");
        fileRiuscito_ = trave_.FileLeggeScrive(modo, nFile);
        before.RimetteImpossibili();
        return;
    }
    AcciaioCls read;
    fileRiuscito_ = read.FileLeggeScrive(modo, nFile);
    if (!fileRiuscito_)
        return;
    trave_ = std::move(read);
    MetteInUso();
    ScriveTrave();
    before.RimetteImpossibili();
}

} // namespace sagomi
