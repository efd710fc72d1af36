#include "choice/ui/FrmScelta.h"

#include <QAction>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStatusBar>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iterator>
#include <tuple>
#include <utility>

#include "catalogue/Catalogo.h"
#include "catalogue/ui/GrigliaCatalogo.h"
#include "choice/GraficoScelta.h"
#include "choice/ui/ModelloScelta.h"
#include "choice/ui/PannelliScelta.h"
#include "choice/ui/VistaGrafico.h"
#include "frame/Acciaio.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/ScriveTesto.h"
#include "screens/SchermoDettaglio.h"
#include "screens/SchermoSezione.h"

namespace sagomi {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds primoPasso{10};  ///< what a key waits for
constexpr milliseconds altroPasso{8};   ///< behind the table, between two looks at the user
constexpr milliseconds lettura{150};    ///< what the first opening waits for
constexpr int dopoLaTabella = 12;       ///< the chart follows [ms]
constexpr std::size_t righeLette = 128; ///< rows between two looks at the clock
constexpr const char* motivoEstremita = "M1 deve essere positivo e non minore di M2 in valore assoluto";
constexpr const char* motivoCampata = "MQ deve essere positivo";
constexpr const char* motivoLunghezza = "La lunghezza non può essere negativa";
constexpr const char* motivoDistanza = "La distanza fra i due sagomi non può essere negativa";

/// A file with its state, to be held against a later one.
std::string Impronta(const std::filesystem::path& file) {
    std::error_code nessuno;
    const auto size = std::filesystem::file_size(file, nessuno);
    const auto time = std::filesystem::last_write_time(file, nessuno).time_since_epoch().count();
    return file.string() + ' ' + std::to_string(size) + ' ' + std::to_string(time) + '\n';
}

bool Vuota(const QLineEdit* box) { return box->text().trimmed().isEmpty(); }

std::optional<double> Limite(const QLineEdit* box) {
    return Vuota(box) ? std::nullopt : std::optional(NumeroIn(box));
}

/// The main screen that somebody works for.
SchermoSezione* PrincipaleDi(Schermo& da) {
    if (auto* main = dynamic_cast<SchermoSezione*>(&da))
        return main;
    for (Schermo* opener : da.Catena())
        if (auto* main = dynamic_cast<SchermoSezione*>(opener))
            return main;
    return nullptr;
}

QString Conta(double n, const char* uno, const char* molti) {
    return QString::fromStdString(Formato("#,##0", n)) + u' ' + QString::fromUtf8(n == 1 ? uno : molti);
}

} // namespace

FrmScelta::FrmScelta() : Schermo(QStringLiteral("FrmScelta")), modello_(new ModelloScelta(scelta_, this)) {
    setWindowTitle(QStringLiteral("Scelta del sagomo"));
    Compone();
    PreparaContenuto();
    centralWidget()->installEventFilter(this); // else it would scroll by the arrow keys
    CollegaEntrate();
    CollegaRegole();
    CollegaTabella();
    CollegaComandi();
    passi_.setSingleShot(true);
    passi_.setInterval(0);
    Collega(&passi_, &QTimer::timeout, this, [this] { Avanza(); });
    disegno_.setSingleShot(true);
    disegno_.setInterval(dopoLaTabella);
    Collega(&disegno_, &QTimer::timeout, this, [this] { AggiornaGrafico(); });
    MostraSegnaposti();
    MostraRiassunto();
    constexpr QSize misura(1240, 700);
    DimensionaIniziale(misura);
}

FrmScelta::~FrmScelta() = default;

Casella* FrmScelta::CasellaDi(const char* nome) const {
    auto* box = findChild<Casella*>(QString::fromLatin1(nome));
    if (box == nullptr)
        throw std::out_of_range(std::string("nessuna casella si chiama ") + nome);
    return box;
}

double FrmScelta::Numero(const char* nome) const { return NumeroIn(CasellaDi(nome)); }

void FrmScelta::CollegaEntrate() {
    entrate_ = new FiltroCampi(this);
    for (Casella* box : findChildren<Casella*>()) {
        if (box->isReadOnly())
            continue;
        entrate_->Osserva(box);
        Collega(box, &QLineEdit::textChanged, this, [this] { Ricomincia(); });
    }
    Collega(entrate_, &FiltroCampi::conclusa, this, [this] { Ricomincia(); });
    Collega(forze_, &PannelloForze::diagrammaScelto, this, [this] { Ricomincia(); });
    Collega(famiglie_, &PannelloFamiglieScelta::cambiate, this, [this] { Ricomincia(); });
    for (QCheckBox* box : {doppi_, accostati_})
        Collega(box, &QCheckBox::toggled, this, [this] { Ricomincia(); });
    Collega(soloVerificati_, &QCheckBox::toggled, this, [this] {
        if (possibili_ && scelta_.Finita())
            MostraRighe();
    });
}

void FrmScelta::CollegaRegole() {
    for (int asse = 0; asse < 2; ++asse) {
        const auto i = static_cast<std::size_t>(asse);
        Casella* M1 = forze_->M1.at(i);
        Casella* M2 = forze_->M2.at(i);
        Casella* MQ = forze_->MQ.at(i);
        const auto write = [](QLineEdit* box, double value) {
            if (NumeroIn(box) != value)
                box->setText(QString::fromStdString(TestoPiano(value)));
        };
        regole_.Aggiunge({.caselle = {M1, M2},
                          .motivo =
                              [M1, M2] {
                                  const double larger = NumeroIn(M1);
                                  return larger < 0 || std::abs(NumeroIn(M2)) > larger ? tr(motivoEstremita)
                                                                                       : QString();
                              },
                          .corregge =
                              [M1, M2, write] {
                                  double a = NumeroIn(M1);
                                  double b = NumeroIn(M2);
                                  CorreggeM1M2(a, b);
                                  write(M1, a);
                                  write(M2, b);
                              }});
        regole_.Aggiunge({.caselle = {MQ},
                          .motivo =
                              [this, MQ] {
                                  const bool used = TipoDiPict(forze_->Pict()) == diagrammaCampata;
                                  return used && NumeroIn(MQ) < 0 ? tr(motivoCampata) : QString();
                              },
                          .corregge =
                              [MQ, write] {
                                  double Q = NumeroIn(MQ);
                                  CorreggeMQ(Q);
                                  write(MQ, Q);
                              }});
    }
    const auto notNegative = [this](Casella* box, const char* reason) {
        regole_.Aggiunge({.caselle = {box}, .motivo = [box, reason] {
                              const double value = NumeroIn(box);
                              return value >= 0 && std::isfinite(value) ? QString() : tr(reason);
                          }});
    };
    for (const char* name : {"Txt_L0_0", "Txt_L0_1", "Txt_L0_2", "Txt_L"})
        notNegative(CasellaDi(name), motivoLunghezza);
    notNegative(dDoppi_, motivoDistanza);
}

void FrmScelta::CollegaTabella() {
    Collega(tabella_, &GrigliaCatalogo::ordineChiesto, this, [this](int column) { Ordina(column); });
    Collega(tabella_, &QAbstractItemView::activated, this, [this] { Prende(); });
    Collega(modello_, &ModelloScelta::rigaInMano, this, [this] {
        tabella_->SegueRiga();
        disegno_.start();
    });
    Collega(grafico_, &VistaGrafico::scelto, this, [this](quint32 place) { modello_->VaiA(place); });
    grafico_->suggerimento = [this](std::uint32_t place) {
        const RigaScelta& row = scelta_.Riga(place);
        return QString::fromStdString(scelta_.Sagomi()[place].Designazione() + ", " +
                                      Formato("#,##0.0", row.g) + " kg/m\n" + TestoUtilizzo(row));
    };
}

void FrmScelta::CollegaComandi() {
    auto* take = new QAction(this); // from any box, where Enter alone goes on
    take->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)});
    addAction(take);
    Collega(take, &QAction::triggered, this, [this] { Prende(); });
    Collega(prendi_, &QPushButton::clicked, this, [this] { Prende(); });
    Collega(confronta_, &QPushButton::clicked, this, [this] { Confronta(); });
    Collega(copia_, &QPushButton::clicked, this, [this] { Copia(); });
    Collega(stampa_, &QPushButton::clicked, this, [this] { Stampa(); });
    Collega(esporta_, &QPushButton::clicked, this, [this] { Esporta(); });
}

void FrmScelta::Apre(Schermo& da) {
    if (auto* main = PrincipaleDi(da))
        chiamante_ = main;
    PrendeDalChiamante(false);
    if (!mancanti_.empty()) // what could not be read then, perhaps now
        lettoDa_.clear();
    LeggeCatalogo();
    NavigaSchermi::Unico().Apre(*this, da);
}

void FrmScelta::AllAttivazione() {
    if (chiamante_ == nullptr)
        return;
    LeggeCatalogo();
    PrendeDalChiamante(true);
    Ricomincia();
}

void FrmScelta::Aggiorna() {
    if (inRiempimento_)
        return;
    if (PrendeDalChiamante(true))
        Ricomincia();
}

// Both workbooks, as the main screens read them; again only where one of them has changed.
void FrmScelta::LeggeCatalogo() {
    const auto sagomi = FileAccanto(PathProgramma, "Sagomi.xls");
    const auto utente = FileAccanto(PathProgramma, "SagomiUtente.xls");
    if (std::string stamp = Impronta(sagomi) + Impronta(utente); stamp != lettoDa_)
        lettoDa_ = std::move(stamp);
    else
        return;
    inOrdine_.Ferma();
    mancanti_.clear();
    confrontati_.clear();
    modello_->Mostra({}, {});
    scelta_.Sagomi({});
    lettura_ = std::make_unique<LetturaGara>(sagomi, utente);
}

bool FrmScelta::PrendeDalChiamante(bool soloCambiate) {
    if (chiamante_ == nullptr)
        return false;
    const QScopedValueRollback filling(inRiempimento_, true);
    QList<std::pair<const char*, const QLineEdit*>> twins;
    constexpr const char* lengths[] = {"Txt_L0_0", "Txt_L0_1", "Txt_L0_2"};
    for (qsizetype i = 0; i < chiamante_->Txt_L0.size() && i < 3; ++i)
        twins.append({lengths[i], chiamante_->Txt_L0[i]});
    if (chiamante_->TxtNsd != nullptr)
        twins.append({"TxtNsd", chiamante_->TxtNsd});
    QList<QString> seen;
    for (const auto& [name, box] : twins) {
        const bool changed = visti_.size() <= seen.size() || visti_[seen.size()] != box->text();
        if (changed || !soloCambiate)
            CasellaDi(name)->setText(TestoPulito(box));
        seen << box->text();
    }
    const EntrateAcciaio steel{chiamante_->ComboTipoAcciaio->currentIndex(), chiamante_->FyInForza(),
                               chiamante_->FuInForza()};
    const std::array<double, 3> code{double(Normativa), GammaM0, GammaM1};
    const bool some = seen != visti_ || steel != acciaio_ || code != normativa_;
    normativa_ = code;
    visti_ = seen;
    acciaio_ = steel;
    nomeAcciaio_ = chiamante_->ComboTipoAcciaio->currentText().toStdString();
    ScriveTesto(acciaioMostrato_, nomeAcciaio_);
    ScriveTesto(fyMostrata_, TestoPiano(Singolo(acciaio_.fy)));
    return some;
}

Richiesta FrmScelta::RichiestaInForza() const {
    Richiesta r;
    r.TipoAcciaio = nomeAcciaio_;
    r.fy = acciaio_.fy;
    r.fu = acciaio_.fu;
    r.NSd = kN_a_N(NumeroIn(forze_->TxtNsd));
    r.L0y = m_a_mm(Numero("Txt_L0_0"));
    r.L0z = m_a_mm(Numero("Txt_L0_1"));
    // An angle buckles about v-v: without a length of its own by the greater of the others.
    r.L0v = Vuota(CasellaDi("Txt_L0_2")) ? std::max(r.L0y, r.L0z) : m_a_mm(Numero("Txt_L0_2"));
    r.y = forze_->Momenti(0);
    r.z = forze_->Momenti(1);
    r.pict = forze_->Pict();
    r.tipoDiagramma = TipoDiPict(r.pict);
    if (!Vuota(CasellaDi("Txt_L")))
        r.LLT = m_a_mm(Numero("Txt_L"));
    r.k = Numero("Txt_k");
    r.Kw = Numero("Txt_Kw");
    if (!Vuota(CasellaDi("Txt_C1")))
        r.C1 = Numero("Txt_C1");
    r.c2 = Numero("Txt_C2");
    r.c3 = Numero("Txt_C3");
    r.za = Numero("Txt_Zg");
    r.doppi = doppi_->isChecked();
    r.dDoppi = NumeroIn(dDoppi_);
    r.accostati = accostati_->isChecked();
    return r;
}

Filtri FrmScelta::FiltriInForza() const {
    Filtri f;
    f.hMassima = Limite(CasellaDi("TxtHMax"));
    f.bMassima = Limite(CasellaDi("TxtBMax"));
    f.gMinimo = Limite(CasellaDi("TxtGMin"));
    f.gMassimo = Limite(CasellaDi("TxtGMax"));
    f.famiglie = famiglie_->Scelte();
    if (f.famiglie.empty())
        f.famiglie.emplace_back(); // no family has that name: nothing is ticked, nothing shown
    else if (famiglie_->Tutte())
        f.famiglie.clear();
    f.soloVerificati = soloVerificati_->isChecked();
    return f;
}

// Of end moments alone the picture is the one of their signs.
void FrmScelta::SegueSegno() {
    const double M2 = NumeroIn(forze_->M2[0]);
    if (TipoDiPict(forze_->Pict()) == diagrammaEstremita && M2 != 0)
        forze_->ImpostaPict(M2 < 0 ? pictEstremitaDiscordi : pictEstremitaConcordi);
}

/// What an empty box stands for is seen in it.
void FrmScelta::MostraSegnaposti() {
    const auto show = [this](const char* name, double value) {
        const QString text = value > 0 ? QString::fromStdString(Formato("0.0##", value)) : QString();
        if (QLineEdit* box = CasellaDi(name); box->placeholderText() != text)
            box->setPlaceholderText(text);
    };
    const Richiesta r = RichiestaInForza();
    show("Txt_L", mm_a_m(r.L0z));
    show("Txt_L0_2", mm_a_m(std::max(r.L0y, r.L0z)));
    show("Txt_C1", possibili_ ? EffettiDelDiagramma(r.y, r.tipoDiagramma, r.pict).C1 : 0);
}

void FrmScelta::Ricomincia() {
    if (inRiempimento_ || chiamante_ == nullptr)
        return;
    {
        const QScopedValueRollback mending(inRiempimento_, true);
        possibili_ = regole_.Applica();
        SegueSegno();
    }
    const MessaggiTaciuti quiet;
    MostraSegnaposti();
    inOrdine_.Ferma();
    if (!possibili_) {
        passi_.stop();
        scelta_.Ferma();
        modello_->Rinnova(0, modello_->rowCount() - 1);
        avanzamento_->hide();
        modello_->SvuotaLeggeri();
        MostraRiassunto();
        AggiornaConfronto();
        disegno_.start();
        return;
    }
    scelta_.Comincia(RichiestaInForza(), FiltriInForza());
    Avanza();
    AggiornaConfronto();
}

void FrmScelta::Avanza() {
    if (inOrdine_.InCorso()) {
        AvanzaOrdine();
        return;
    }
    using Orologio = std::chrono::steady_clock;
    const auto end = Orologio::now() + (modello_->rowCount() == 0 ? lettura : altroPasso);
    while (lettura_ && Orologio::now() < end) {
        const bool more = lettura_->Legge(righeLette);
        scelta_.Aggiunge(std::exchange(lettura_->letti.sagomi, {}));
        if (more)
            continue;
        mancanti_ = std::move(lettura_->letti.mancanti);
        lettura_.reset();
    }
    const bool done = scelta_.Avanza(passi_.isActive() ? altroPasso : primoPasso, InVista()) && !lettura_;
    avanzamento_->setVisible(!done);
    if (done) {
        passi_.stop();
        MostraRighe();
        return;
    }
    MostraParziale();
    passi_.start();
}

std::vector<std::uint32_t> FrmScelta::InVista() const {
    std::vector<std::uint32_t> places;
    const int first = tabella_->rowAt(0);
    if (first < 0)
        return places;
    const int last = tabella_->rowAt(tabella_->viewport()->height() - 1);
    const auto shown = modello_->Posti();
    for (int row = first; row <= (last < 0 ? modello_->rowCount() - 1 : last); ++row)
        places.push_back(shown[static_cast<std::size_t>(row)]);
    return places;
}

// The rows in sight have their values, in the order of before; the others follow.
void FrmScelta::MostraParziale() {
    avanzamento_->setValue(static_cast<int>(scelta_.Avanzamento() * avanzamento_->maximum()));
    // While the catalogue is being read the table grows, by doubling: to sort is dear.
    const bool grows = lettura_ && std::ssize(scelta_.Sagomi()) >= 2 * modello_->rowCount();
    if (grows || modello_->rowCount() == 0)
        MostraRighe();
    else {
        modello_->SvuotaLeggeri();
        MostraRiassunto();
        tabella_->viewport()->update();
    }
    if (!grafico_->Dati().punti.empty())
        AggiornaGrafico(); // empties it
}

// While the catalogue is being read its rows move: many of them stand as they come.
void FrmScelta::MostraRighe() {
    std::vector<std::uint32_t> places = scelta_.Ammesse();
    if (soloVerificati_->isChecked())
        std::erase_if(places, [this](std::uint32_t p) { return !scelta_.Riga(p).verificato; });
    if (lettura_ && places.size() > OrdineInCorso::tratto) {
        modello_->Mostra(std::move(places), {});
        MostraRiassunto();
        return;
    }
    inOrdine_.Comincia(std::move(places), PrimaNellaScelta(scelta_.Righe(), scelta_.Sagomi(), ordine_));
    AvanzaOrdine();
}

// As long as that goes on the table has the values in the order of before.
void FrmScelta::AvanzaOrdine() {
    if (!inOrdine_.Avanza(altroPasso)) {
        avanzamento_->show();
        tabella_->viewport()->update();
        modello_->SvuotaLeggeri();
        MostraRiassunto(); // what stood there was of before
        passi_.start();
        return;
    }
    avanzamento_->setVisible(!scelta_.Finita() || lettura_);
    std::vector<std::uint32_t> places = inOrdine_.Prende();
    std::vector<std::uint32_t> lightest;
    if (Fatta())
        lightest = PiuLeggeriFra(places, scelta_.Righe(), scelta_.Sagomi());
    const std::vector<std::uint32_t> selected = Selezionate();
    modello_->Mostra(std::move(places), std::move(lightest));
    Riseleziona(selected);
    MostraRiassunto();
    if (!scelta_.Finita() || lettura_)
        passi_.start(); // the rest waited for the order
}

// The rows have other places in the table now: what the user has selected are sections.
void FrmScelta::Riseleziona(const std::vector<std::uint32_t>& posti) {
    if (posti.size() < 2)
        return;
    std::vector<bool> marked(scelta_.Sagomi().size());
    for (const std::uint32_t p : posti)
        marked[p] = true;
    QItemSelection rows;
    const int count = modello_->rowCount();
    const auto chosen = [&](int row) {
        return marked[modello_->Posti()[static_cast<std::size_t>(row)]] || row == modello_->RigaInMano();
    };
    for (int row = 0; row < count; ++row) {
        const int first = row;
        while (row < count && chosen(row))
            ++row;
        if (row > first)
            rows.select(modello_->index(first, 0), modello_->index(row - 1, modello_->columnCount() - 1));
    }
    tabella_->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

void FrmScelta::MostraRiassunto() {
    const auto places = modello_->Posti();
    const bool valid = Fatta() && !places.empty();
    const auto rows = scelta_.Righe();
    const auto holds = [&](std::uint32_t p) { return scelta_.Valida(p) && rows[p].verificato; };
    const auto some = valid ? std::ranges::count_if(places, holds) : 0;
    QString text;
    if (valid && !modello_->Leggeri().empty()) {
        const std::uint32_t best = *std::ranges::min_element(modello_->Leggeri(), {}, [&](std::uint32_t p) {
            return std::tuple(rows[p].g, rows[p].massimo, p);
        });
        text = tr("Il più leggero: %1, %2 kg/m, %3 %")
                   .arg(QString::fromStdString(scelta_.Sagomi()[best].Designazione()),
                        QString::fromStdString(Formato("#,##0.0", rows[best].g)),
                        QString::fromStdString(Formato("0", rows[best].massimo * 100)));
    } else if (valid && !SenzaAzioni(scelta_.RichiestaInForza()))
        text = tr("Nessun sagomo è verificato");
    riassunto_->setText(text);
    QString told = Conta(double(places.size()), "sagomo", "sagomi");
    if (valid && !SenzaAzioni(scelta_.RichiestaInForza()))
        told += QStringLiteral(", ") + Conta(double(some), "verificato", "verificati");
    told += QStringLiteral(" · ") + QString::fromStdString(NomeNormativa());
    QStringList notes;
    for (const std::string& m : scelta_.Messaggi())
        notes << QString::fromStdString(m).simplified();
    for (const std::string& m : mancanti_)
        notes << QString::fromStdString(m).simplified();
    if (!notes.isEmpty())
        told += QStringLiteral(" · ") + notes.join(QStringLiteral(" · "));
    barra_->setText(told);
    barra_->setToolTip(notes.join(u'\n'));
    prendi_->setEnabled(possibili_ && !places.empty());
    for (QPushButton* command : {confronta_, copia_, stampa_, esporta_})
        command->setEnabled(valid);
}

void FrmScelta::AggiornaGrafico() {
    auto chart = std::make_shared<DatiGrafico>();
    if (Fatta()) {
        *chart = DatiGraficoDi(modello_->Posti(), scelta_.Righe(), scelta_.Sagomi());
        std::uint32_t held = 0;
        if (modello_->InMano(held)) {
            const auto at = std::ranges::find(chart->punti, held, &PuntoGrafico::posto);
            if (at != chart->punti.end())
                chart->scelto = static_cast<std::uint32_t>(at - chart->punti.begin());
            chart->nomeScelto = scelta_.Sagomi()[held].Designazione();
        }
    }
    grafico_->MostraDati(std::move(chart));
}

// A first click on a heading sorts by it, a second one the other way, a third one as at the start.
void FrmScelta::Ordina(int colonna) {
    if (ordine_.colonna != colonna)
        ordine_ = {colonna, false};
    else if (!ordine_.discendente)
        ordine_.discendente = true;
    else
        ordine_ = {};
    const QString heading = ordine_.colonna < 0
                                ? QString()
                                : modello_->headerData(colonna, Qt::Horizontal, Qt::DisplayRole).toString();
    tabella_->MostraOrdine(heading, ordine_.discendente ? Qt::DescendingOrder : Qt::AscendingOrder);
    if (possibili_ && scelta_.Finita())
        MostraRighe();
}

std::vector<std::uint32_t> FrmScelta::Selezionate() const {
    std::vector<std::uint32_t> places;
    QModelIndexList rows = tabella_->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    for (const QModelIndex& row : rows)
        places.push_back(modello_->Posti()[static_cast<std::size_t>(row.row())]);
    return places;
}

void FrmScelta::Prende() {
    std::uint32_t held = 0;
    ConcludeEntrate();
    if (!possibili_ || chiamante_ == nullptr || !modello_->InMano(held) || !scelta_.Valida(held))
        return;
    const QScopedValueRollback filling(inRiempimento_, true);
    SchermoSezione* main = PrendeSagomo(scelta_.Sagomi()[held], scelta_.RichiestaInForza(), acciaio_);
    if (main == nullptr)
        return;
    SchermoSezione* from = chiamante_;
    close();
    if (main != from)
        NavigaSchermi::Unico().Passa(*main, from);
}

bool FrmScelta::FrecciaDiRiga(int tasto) {
    if ((tasto != Qt::Key_Up && tasto != Qt::Key_Down) || modello_->rowCount() == 0)
        return false;
    const int row = modello_->RigaInMano() + (tasto == Qt::Key_Down ? 1 : -1);
    if (row >= 0 && row < modello_->rowCount())
        modello_->MoveTo(row);
    return true;
}

bool FrmScelta::eventFilter(QObject* object, QEvent* event) {
    return EventoProtetto([this, object, event] {
        if (event->type() == QEvent::KeyPress && FrecciaDiRiga(static_cast<QKeyEvent*>(event)->key()))
            return true;
        return Schermo::eventFilter(object, event);
    });
}

// What the control with the focus has no use for belongs to the table.
void FrmScelta::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([this, event] {
        const auto more = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
        if (event->modifiers() == Qt::NoModifier && FrecciaDiRiga(event->key()))
            return;
        if (!more && !event->text().isEmpty() && event->text().front().isPrint())
            tabella_->Digita(event->text());
        else
            Schermo::keyPressEvent(event);
    });
}

// All columns in sight.
QSize FrmScelta::DimensioneContenuto() const {
    QSize size = Schermo::DimensioneContenuto();
    if (const QWidget* room = tabella_ == nullptr ? nullptr : tabella_->parentWidget()) {
        const QMargins around = room->parentWidget()->layout()->contentsMargins();
        size.rwidth() = std::max(size.width(), tabella_->LarghezzaIntera() + around.left() + around.right());
    }
    return size;
}

void FrmScelta::ScalaContenuto(double rapporto) {
    Schermo::ScalaContenuto(rapporto);
    tabella_->Scala(rapporto, rapporto);
}

} // namespace sagomi
