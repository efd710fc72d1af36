#include "catalogue/Lettore.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "catalogue/Catalogo.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Minuscole.h"
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
    EsitoQuery nuovo;
    std::vector<std::size_t> posti;
    ImprontaFile impronta;
    try {
        const auto catalogo = Catalogo::Apri(chiesta_.cartella);
        const bool modificabile = !chiesta_.tabella.empty();
        nuovo = catalogo->Esegue(modificabile ? ConPosti(chiesta_.query) : chiesta_.query);
        impronta = catalogo->Impronta();
        if (modificabile)
            posti = SeparaPosti(nuovo);
        if (static_cast<int>(nuovo.campi.size()) < campiAttesi_)
            throw ErroreCatalogo("Errore nella lettura di \"" + chiesta_.cartella.filename().string() +
                                 "\": la tabella ha " + std::to_string(nuovo.campi.size()) +
                                 " colonne invece di " + std::to_string(campiAttesi_) + ".");
    } catch (...) {
        if (letto_)
            chiesta_ = inVigore_;
        throw;
    }
    esito_ = std::move(nuovo);
    posti_ = std::move(posti);
    impronta_ = impronta;
    modifica_.reset();
    inVigore_ = chiesta_;
    letto_ = true;
    riga_ = -1;
    MoveFirst();
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
        if (TestoDi(Cella(i, 0)) == nome) {
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
    return esito_.righe[static_cast<std::size_t>(riga)];
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
    modifica_ = {riga_, esito_.righe[static_cast<std::size_t>(riga_)]};
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
    if (modifica.riga >= 0) {
        esito_.righe[static_cast<std::size_t>(modifica.riga)] = std::move(modifica.campi);
        return;
    }
    const bool oltre = riga_ >= Righe(); // EOF stays behind the last row
    esito_.righe.push_back(std::move(modifica.campi));
    posti_.push_back(posto);
    if (oltre && riga_ > 0)
        riga_ = Righe();
}

std::size_t Lettore::RigaDelFoglio(int riga) const {
    if (riga < 0 || riga >= static_cast<int>(posti_.size()))
        throw NonModificabile();
    return posti_[static_cast<std::size_t>(riga)];
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
