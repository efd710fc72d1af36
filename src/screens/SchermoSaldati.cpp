#include "screens/SchermoSaldati.h"

#include <QLabel>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStackedWidget>

#include <algorithm>

#include "catalogue/Catalogo.h"
#include "catalogue/ControlloDati.h"
#include "catalogue/Famiglie.h"
#include "catalogue/ScritturaRighe.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/ui/Protetto.h"
#include "screens/NoteSezione.h"

namespace sagomi {

namespace {

/// Positions of cmdUtente and, but for elimina, of cmdUtenteEdita.
enum Azione { aggiungi = 0, modifica = 1, elimina = 2 };
enum Conclusione { aggiungiNuovo = 0, annulla = 1, inserisciModifiche = 2 };

constexpr const char* messaggioElimina =
    "Per eliminare un record aprire il file SagomiUtente.xls con Excel ed eliminare la riga.\r\n"
    "Si può però modificare il record.";
constexpr const char* messaggioDati = "Dati non accettabili od incompleti ! Controllare";
constexpr const char* domandaRilettura = "\nRileggere la tabella?";

constexpr int raggio = 5; ///< the box that may be empty

/// Which plate of a row each box holds: h, b, tw, tf, r, then the lower flange.
constexpr Singolo SezioneDoppioT::*membri[] = {
    &SezioneDoppioT::h, &SezioneDoppioT::b,       &SezioneDoppioT::tw,     &SezioneDoppioT::tf,
    &SezioneDoppioT::r, &SezioneDoppioT::bAlaInf, &SezioneDoppioT::tAlaInf};

} // namespace

SchermoSaldati::SchermoSaldati(const QString& nome, RigheDoppioT righe) : SchermoDi(nome), righe_(righe) {
    CollegaControlli();
    CollegaRisultati(RisultatiDoppioT());
    for (const char* command : {"Command1", "Command2"}) // they start from a fresh section
        Collega(Pulsante(command), &QPushButton::clicked, this, [this] { DatiRisultati(); });
    CollegaDettagli({{"LblClasse", "FrmClasseDoppioTU"},
                     {"LblNbRd", "FrmInstabDoppioT"},
                     {"LblMcRd", "FrmMcRd"},
                     {"Command1", "FrmPresFless"}});
    CollegaSvergolamento();
    TrovaUtente();
    CollegaUtente();
    TornaAiSagomiStandard();
    Carica();
}

void SchermoSaldati::TrovaUtente() {
    ChkTipoUtente = findChild<QCheckBox*>(QStringLiteral("ChkTipoUtente"));
    Frame1 = findChild<QWidget*>(QStringLiteral("Frame1"));
    frUtenteComandi = findChild<QWidget*>(QStringLiteral("frUtenteComandi"));
    frUtenteEdita = findChild<QWidget*>(QStringLiteral("frUtenteEdita"));
    cmdUtente = Vettore<QPushButton>(QStringLiteral("cmdUtente"));
    cmdUtenteEdita = Vettore<QPushButton>(QStringLiteral("cmdUtenteEdita"));
    TxtProfUtente = Vettore<QLineEdit>(QStringLiteral("TxtProfUtente"));
}

void SchermoSaldati::CollegaUtente() {
    Collega(ChkTipoUtente, &QCheckBox::toggled, this, [this] { CambiaTipo(); });
    Collega(cmdUtente[aggiungi], &QPushButton::clicked, this, [this] { Modifica(aggiungiNuovo); });
    Collega(cmdUtente[modifica], &QPushButton::clicked, this, [this] { Modifica(inserisciModifiche); });
    Collega(cmdUtente[elimina], &QPushButton::clicked, this,
            [] { Avvisa(messaggioElimina, {}, Icona::Avviso); });
    for (const int action : {aggiungiNuovo, inserisciModifiche})
        Collega(cmdUtenteEdita[action], &QPushButton::clicked, this, [this, action] { Conferma(action); });
    Collega(cmdUtenteEdita[annulla], &QPushButton::clicked, this, [this] {
        MostraModifica(false);
        DatiRisultati();
    });
    Collega(Data1, &LettoreDati::rigaCambiata, this, [this] {
        if (InModifica() && !rileggendo_ && !AggiungeSagomoUtente)
            RiempieDati(); // the boxes show the row that they would rewrite
    });
    Collega(TxtProfUtente[0], &QLineEdit::returnPressed, this, [this] { FuocoSu(TxtProfUtente[1]); });
    for (QLineEdit* box : TxtProfUtente)
        Collega(box, &QLineEdit::textChanged, this, [this] { MostraBozza(); });
}

std::string SchermoSaldati::TabellaUtente() const {
    return NomeTabella(FamigliaDi(objectName().toStdString()).foglioUtente);
}

void SchermoSaldati::CambiaTipo() {
    bool standard = !ChkTipoUtente->isChecked();
    const bool leaves = standard;
    SettaTipoUtente(standard);
    if (!leaves)
        return;
    // The boxes were out of use: with none ticked there would be nothing to come back to.
    if (std::ranges::none_of(ChkTipo, &QCheckBox::isChecked))
        for (QCheckBox* box : ChkTipo)
            box->setChecked(box->text().toStdString() == FamigliaDi(objectName().toStdString()).primoFoglio);
    if (LeggeInSilenzio([this] { return CambioFamiglia(*this); })) {
        Data1->MoveFirst(); // also where a row has the name of the one that was in hand
        return;
    }
    bool shipped = false;
    SettaTipoUtente(shipped); // the user's own are still the ones that are read
}

void SchermoSaldati::SettaTipoUtente(bool& standard) {
    if (!standard && !ApreUtente())
        standard = true;
    for (QCheckBox* box : ChkTipo)
        box->setEnabled(standard);
    TipoUtente = !standard;
    frUtenteComandi->setVisible(TipoUtente);
    const QSignalBlocker quiet(ChkTipoUtente);
    ChkTipoUtente->setChecked(TipoUtente);
    if (standard)
        TornaAiSagomiStandard();
    MostraStatoTabella();
    AggiornaBarraDiStato();
}

/// Reads the table while the handlers do nothing.
bool SchermoSaldati::LeggeInSilenzio(const std::function<bool()>& legge) {
    const QScopedValueRollback writing(AggiungeSagomoUtente, true);
    return legge();
}

bool SchermoSaldati::ApreUtente() {
    const std::filesystem::path file = FileAccanto(PathProgramma, cartellaUtente);
    const std::string table = "[" + TabellaUtente() + "]";
    const QScopedValueRollback own(TipoUtente, true);
    Data1->DatabaseName(file);
    Data1->Recordset().TabellaModificabile(TabellaUtente());
    if (!LeggeInSilenzio([&] { return LeggeTabella(*this, "SELECT * FROM " + table, {}); }))
        return false;
    TabellaOrdine = table;
    Completa(); // a workbook that cannot be written can still be read
    return LeggeTabella(*this, "SELECT * FROM " + table, {});
}

void SchermoSaldati::Completa() {
    const QScopedValueRollback writing(AggiungeSagomoUtente, true);
    try {
        CompletaRighe(Data1->Recordset().DatabaseName(), TabellaUtente(), righe_,
                      [this](SezioneDoppioT& section) { LeggeEntrate(section); });
    } catch (const ErroreCatalogo& e) {
        Avvisa(e.what());
    }
}

void SchermoSaldati::TornaAiSagomiStandard() {
    Data1->DatabaseName(FileAccanto(PathProgramma, "Sagomi.xls"));
    Data1->Recordset().TabellaModificabile({});
    // One family alone is what the table is sorted over, ticked or not.
    const auto& sheets = FamigliaDi(objectName().toStdString()).fogli;
    TabellaOrdine = sheets.size() == 1 ? NomeFoglioQuery(sheets.front()) : std::string();
    MostraModifica(false);
}

void SchermoSaldati::Aggiorna() {
    if (!TipoUtente)
        SchermoDi::Aggiorna();
    else if (LeggeInSilenzio([this] { return CambioFamiglia(*this, TabellaOrdine); })) {
        Completa();
        CambioFamiglia(*this, TabellaOrdine);
    }
}

void SchermoSaldati::MostraModifica(bool visibile) {
    findChild<QStackedWidget*>(QStringLiteral("pagineValori"))
        ->setCurrentWidget(visibile ? frUtenteEdita : Frame1);
}

bool SchermoSaldati::InModifica() const {
    return !frUtenteEdita->isHidden() && !cmdUtenteEdita[inserisciModifiche]->isHidden();
}

void SchermoSaldati::Modifica(int azione) {
    cmdUtenteEdita[aggiungiNuovo]->setVisible(azione == aggiungiNuovo);
    cmdUtenteEdita[inserisciModifiche]->setVisible(azione == inserisciModifiche);
    for (QLineEdit* box : TxtProfUtente)
        box->clear();
    MostraModifica(true);
    if (azione == inserisciModifiche)
        RiempieDati();
    FuocoSu(TxtProfUtente[0]);
}

/// The plain numbers of the row, not the figures that are shown.
void SchermoSaldati::RiempieDati() {
    SezioneDoppioT row;
    LeggeRiga(Data1->Recordset(), row, righe_);
    TxtProfUtente[0]->setText(QString::fromStdString(row.Designation));
    for (int i = 1; i < TxtProfUtente.size(); ++i)
        TxtProfUtente[i]->setText(QString::fromStdString(TestoPiano(row.*membri[i - 1])));
}

PiattiSaldati SchermoSaldati::PiattiScritti() const {
    const auto number = [this](int i) { return NumeroIn(TxtProfUtente[i]); };
    PiattiSaldati plates{.h = number(1),
                         .b = number(2),
                         .tf = number(4),
                         .tw = number(3),
                         .r = number(5),
                         .b2 = {},
                         .tf2 = {}};
    if (righe_ == RigheDoppioT::SaldateAsimmetriche) {
        plates.b2 = number(6);
        plates.tf2 = number(7);
    }
    return plates;
}

/// The section that is being typed, as far as it is one.
void SchermoSaldati::MostraBozza() {
    const PiattiSaldati plates = PiattiScritti();
    if (frUtenteEdita->isHidden() || !plates.Accettabili())
        return;
    const MessaggiTaciuti quiet;
    SezioneDoppioT draft;
    LeggeEntrate(draft);
    InizializzaSaldata(draft, plates);
    MostraSagoma(&draft);
}

bool SchermoSaldati::DatiAccettabili() {
    const bool named = !TxtProfUtente[0]->text().trimmed().isEmpty();
    if (named && PiattiScritti().Accettabili())
        return true;
    Avvisa(messaggioDati);
    const auto wrong =
        named ? std::ranges::find_if(
                    TxtProfUtente.begin() + 1, TxtProfUtente.end(),
                    [this](QLineEdit* box) { return box != TxtProfUtente[raggio] && !(NumeroIn(box) > 0); })
              : TxtProfUtente.begin();
    FuocoSu(wrong == TxtProfUtente.end() ? TxtProfUtente[1] : *wrong);
    return false;
}

void SchermoSaldati::DatiSagomoUtenteCalcola() {
    const auto section = std::make_shared<SezioneDoppioT>();
    LeggeEntrate(*section);
    SezioneCorrente = section;
    InizializzaSaldata(*section, PiattiScritti(), this);
}

void SchermoSaldati::DatiSagomoUtenteInserisce(const std::string& nome) {
    SezioneDoppioT* section = SezioneInUso<SezioneDoppioT>();
    if (section == nullptr)
        return;
    section->Designation = NomeUtente(nome);
    int field = 0;
    for (Valore& value : CampiRiga(*section, righe_))
        Data1->Recordset().Campo(field++, std::move(value));
}

void SchermoSaldati::Conferma(int azione) {
    if (!DatiAccettabili())
        return;
    DatiSagomoUtenteCalcola();
    try {
        ScriveRiga(azione);
        if (azione == aggiungiNuovo)
            Data1->MoveLast();
        else
            Data1->MoveTo(
                Data1->Recordset().RigaCorrente()); // it stays in hand, also among others of its name
        AggiornaBarraDiStato();
    } catch (const CartellaCambiata& e) {
        if (Chiede(std::string(e.what()) + domandaRilettura))
            Rilegge();
        DatiRisultati();
    } catch (const ErroreCatalogo& e) {
        Avvisa(e.what());
        DatiRisultati();
    }
}

void SchermoSaldati::ScriveRiga(int azione) {
    const QScopedValueRollback writing(AggiungeSagomoUtente, true);
    if (azione == aggiungiNuovo)
        Data1->Recordset().AddNew();
    else
        Data1->Recordset().Edit();
    DatiSagomoUtenteInserisce(TxtProfUtente[0]->text().trimmed().toStdString());
    Data1->Update();
}

bool SchermoSaldati::FrecciaDiRiga(int key) {
    const auto at = TxtProfUtente.indexOf(qobject_cast<QLineEdit*>(focusWidget()));
    if (at < 0 || (key != Qt::Key_Up && key != Qt::Key_Down))
        return SchermoDi::FrecciaDiRiga(key);
    FuocoSu(TxtProfUtente[std::clamp<qsizetype>(at + (key == Qt::Key_Down ? 1 : -1), 0,
                                                TxtProfUtente.size() - 1)]);
    return true;
}

// Plates are computed when they are confirmed.
void SchermoSaldati::Conclusa(QLineEdit* casella) {
    if (!TxtProfUtente.contains(casella))
        SchermoDi::Conclusa(casella);
}

void SchermoSaldati::Rilegge() {
    const Lettore& rows = Data1->Recordset();
    const auto inHand = [&] { return RigaInMano() ? rows.Riga(rows.RigaCorrente()) : std::vector<Valore>(); };
    const std::vector<Valore> before = inHand();
    {
        const QScopedValueRollback keeping(rileggendo_, true);
        Aggiorna();
    }
    if (InModifica() && inHand() != before)
        RiempieDati(); // another row would be rewritten, or others have changed this one
}

void SchermoSaldati::Risultati() {
    SchermoDi::Risultati();
    cmdUtente[modifica]->setEnabled(RigaInMano());
    if (const SezioneDoppioT* section = SezioneInUso<SezioneDoppioT>(); section != nullptr && RigaInMano())
        MostraNote(NotaMcyRd(*section), NotaVplzRd(*section));
}

void SchermoSaldati::MostraNote(const std::string& McyRd, const std::string& VplzRd) {
    for (const auto& [name, text] : {std::pair{"LblFibraInferiore", &McyRd}, {"LblAliDiverse", &VplzRd}})
        if (auto* note = findChild<QLabel*>(QString::fromLatin1(name)))
            MostraNota(note, *text);
}

void SchermoSaldati::SvuotaRisultati() {
    SchermoDi::SvuotaRisultati();
    MostraNote({}, {});
    cmdUtente[modifica]->setEnabled(false);
}

void SchermoSaldati::LeggeSezione(const Lettore& riga, SezioneDoppioT& sezione) {
    LeggeRiga(riga, sezione, righe_);
}

void SchermoSaldati::ControllaSezione(const Lettore& riga, SezioneDoppioT& sezione) {
    ControlloDatiSaldati(riga, sezione);
}

} // namespace sagomi
