#include "catalogue/Lettore.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <utility>

#include "catalogue/Catalogo.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Minuscole.h"
#include "catalogue/OrdineQuery.h"
#include "catalogue/OrdineRighe.h"
#include "catalogue/ScritturaRighe.h"

namespace sagomi {

namespace {

std::out_of_range Fuori(const char* cosa, int i, int n) {
    return std::out_of_range(std::string(cosa) + " " + std::to_string(i) + " fuori da 0.." +
                             std::to_string(n - 1));
}

ErroreCatalogo NonModificabile() {
    return ErroreCatalogo("Le righe di questa tabella non si possono modificare.");
}

bool HaTesto(const Valore& v, std::string_view testo) {
    const auto* suo = std::get_if<std::string>(&v);
    return suo != nullptr ? *suo == testo : TestoDi(v) == testo;
}

/// The field of that name, capitals ignored, as SQL finds it.
std::optional<std::size_t> ColonnaDi(const std::vector<std::string>& campi, std::string_view nome) {
    const auto trovato = std::ranges::find(campi, Minuscole(nome), Minuscole);
    if (trovato == campi.end())
        return std::nullopt;
    return static_cast<std::size_t>(trovato - campi.begin());
}

constexpr std::string_view nomePosto = "_rowid_"; ///< SQLite's name of a record's place

/// The query with the place of each row in its sheet behind the fields.
std::string ConPosti(const std::string& query) {
    constexpr std::string_view inizio = "SELECT * FROM ";
    if (!query.starts_with(inizio))
        throw NonModificabile();
    return "SELECT *, " + std::string(nomePosto) + query.substr(inizio.size() - 6);
}

} // namespace

void Lettore::Refresh() {
    try {
        const std::shared_ptr<const Catalogo> catalogo = Catalogo::Apre(chiesta_.cartella);
        if (!Riordina(catalogo))
            Legge(catalogo);
    } catch (...) {
        if (letto_)
            chiesta_ = inVigore_;
        throw;
    }
    modifica_.reset();
    inVigore_ = chiesta_;
    letto_ = true;
    riga_ = -1;
    MoveFirst();
}

/// Puts the rows in hand into the order of the query; false where they are not those that it gives.
bool Lettore::Riordina(const std::shared_ptr<const Catalogo>& catalogo) {
    const auto nuova = SeparaOrdine(chiesta_.query);
    const auto vecchia = SeparaOrdine(inVigore_.query);
    if (riordinabili_.lock() != catalogo || chiesta_.cartella != inVigore_.cartella ||
        chiesta_.tabella != inVigore_.tabella || !nuova || !vecchia || nuova->righe != vecchia->righe)
        return false;
    const auto colonna = ColonnaDi(esito_.campi, nuova->colonna);
    if (!colonna)
        return false;
    Controlla(esito_.campi.size());
    ordine_ = OrdineRighe(esito_.righe, *colonna, nuova->unione);
    return true;
}

/// Rows of one sheet are fetched as they stand there, and sorted here: so they can be sorted otherwise later.
void Lettore::Legge(const std::shared_ptr<const Catalogo>& catalogo) {
    const auto ordinata = SeparaOrdine(chiesta_.query);
    const bool comeStanno = ordinata && !ordinata->unione;
    EsitoQuery nuovo = Esegue(*catalogo, comeStanno ? ordinata->righe : chiesta_.query);
    const auto colonna = ordinata ? ColonnaDi(nuovo.campi, ordinata->colonna) : std::nullopt;
    if (comeStanno && !colonna)
        nuovo = Esegue(*catalogo, chiesta_.query);
    std::vector<std::size_t> posti;
    if (!chiesta_.tabella.empty())
        posti = SeparaPosti(nuovo);
    Controlla(nuovo.campi.size());
    if (comeStanno && colonna) {
        ordine_ = OrdineRighe(nuovo.righe, *colonna, false);
    } else {
        ordine_.resize(nuovo.righe.size());
        std::iota(ordine_.begin(), ordine_.end(), 0U);
    }
    esito_ = std::move(nuovo);
    posti_ = std::move(posti);
    impronta_ = catalogo->Impronta();
    riordinabili_ = colonna ? catalogo : nullptr;
    ++lettura_;
}

EsitoQuery Lettore::Esegue(const Catalogo& catalogo, std::string_view query) const {
    return catalogo.Esegue(chiesta_.tabella.empty() ? query : ConPosti(std::string(query)));
}

void Lettore::Controlla(std::size_t campi) const {
    if (static_cast<int>(campi) < campiAttesi_)
        throw ErroreCatalogo("Errore nella lettura di \"" + chiesta_.cartella.filename().string() +
                             "\": la tabella ha " + std::to_string(campi) + " colonne invece di " +
                             std::to_string(campiAttesi_) + ".");
}

/// Every change of row ends here. The receiver is copied: it may plug in another one while it runs.
void Lettore::Porta(int riga) {
    riga_ = riga;
    if (BOF() || EOF_())
        return;
    if (const auto avvisa = rigaCambiata)
        avvisa();
}

void Lettore::MoveFirst() { Porta(0); }

void Lettore::MoveLast() { Porta(Righe() - 1); }

void Lettore::MoveNext() {
    if (!EOF_())
        Porta(riga_ + 1);
}

void Lettore::MovePrevious() {
    if (!BOF())
        Porta(riga_ - 1);
}

void Lettore::MoveTo(int riga) {
    if (riga < 0 || riga >= Righe())
        throw Fuori("riga", riga, Righe());
    Porta(riga);
}

bool Lettore::CercaRecord(std::string_view nome) {
    for (int i = 0; i < Righe(); ++i)
        if (HaTesto(Cella(i, 0), nome)) {
            Porta(i);
            return true;
        }
    MoveLast();
    return false;
}

const std::string& Lettore::NomeCampo(int campo) const {
    if (campo < 0 || campo >= Campi())
        throw Fuori("campo", campo, Campi());
    return esito_.campi[static_cast<std::size_t>(campo)];
}

const Valore& Lettore::Cella(int riga, int campo) const {
    const std::vector<Valore>& celle = Riga(riga);
    if (campo < 0 || campo >= Campi())
        throw Fuori("campo", campo, Campi());
    return celle[static_cast<std::size_t>(campo)];
}

const std::vector<Valore>& Lettore::Riga(int riga) const {
    if (riga < 0 || riga >= Righe())
        throw Fuori("riga", riga, Righe());
    return esito_.righe[Posto(riga)];
}

const Valore& Lettore::Campo(int campo) const {
    static const Valore vuoto;
    return BOF() || EOF_() ? vuoto : Cella(riga_, campo);
}

double Lettore::Numero(int campo) const { return NumeroDi(Campo(campo)); }

std::string Lettore::Testo(int campo) const { return TestoDi(Campo(campo)); }

/// Takes the last column off, the places. A field of that name would stand in its way.
std::vector<std::size_t> Lettore::SeparaPosti(EsitoQuery& esito) {
    esito.campi.pop_back();
    if (std::ranges::find(esito.campi, nomePosto, [](const std::string& c) { return Minuscole(c); }) !=
        esito.campi.end())
        throw ErroreCatalogo("Una colonna non si può chiamare \"" + std::string(nomePosto) + "\".");
    std::vector<std::size_t> posti;
    for (auto& riga : esito.righe) {
        posti.push_back(static_cast<std::size_t>(NumeroDi(riga.back())) - 1);
        riga.pop_back();
    }
    return posti;
}

void Lettore::Edit() {
    static_cast<void>(RigaDelFoglio(riga_));
    modifica_ = {riga_, Riga(riga_)};
}

void Lettore::AddNew() {
    if (inVigore_.tabella.empty())
        throw NonModificabile();
    modifica_ = {-1, std::vector<Valore>(esito_.campi.size())};
}

void Lettore::Campo(int campo, Valore valore) {
    if (!modifica_ || campo < 0 || campo >= Campi())
        throw Fuori("campo", campo, modifica_ ? Campi() : 0);
    modifica_->campi[static_cast<std::size_t>(campo)] = std::move(valore);
}

void Lettore::Update() {
    if (!modifica_)
        throw NonModificabile();
    const Modifica m = *std::exchange(modifica_, std::nullopt);
    RigaScritta riga{{}, m.campi};
    if (m.riga >= 0)
        riga.riga = RigaDelFoglio(m.riga);
    const EsitoScrittura scritto = ScriveRighe(inVigore_.cartella, impronta_, inVigore_.tabella, {riga});
    impronta_ = scritto.impronta;
    Accoglie(m, scritto.righe.front());
}

void Lettore::Accoglie(Modifica modifica, std::size_t posto) {
    ++lettura_;
    riordinabili_.reset();
    if (modifica.riga >= 0) {
        esito_.righe[Posto(modifica.riga)] = std::move(modifica.campi);
        return;
    }
    const bool oltre = riga_ >= Righe(); // EOF stays behind the last row
    ordine_.push_back(static_cast<std::uint32_t>(esito_.righe.size()));
    esito_.righe.push_back(std::move(modifica.campi));
    posti_.push_back(posto);
    if (oltre && riga_ > 0)
        riga_ = Righe();
}

std::size_t Lettore::RigaDelFoglio(int riga) const {
    if (riga < 0 || riga >= Righe() || posti_.empty())
        throw NonModificabile();
    return posti_[Posto(riga)];
}

void MuoviRecord(Lettore& lettore, bool avanti) {
    if (avanti) {
        lettore.MoveNext();
        if (lettore.EOF_())
            lettore.MoveLast();
    } else {
        lettore.MovePrevious();
        if (lettore.BOF())
            lettore.MoveFirst();
    }
}

} // namespace sagomi
