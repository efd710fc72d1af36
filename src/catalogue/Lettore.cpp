#include "catalogue/Lettore.h"

#include <stdexcept>
#include <utility>

#include "catalogue/Catalogo.h"
#include "catalogue/ErroreCatalogo.h"

namespace sagomi {

namespace {

std::out_of_range Fuori(const char* cosa, int i, int n) {
    return std::out_of_range(std::string(cosa) + " " + std::to_string(i) + " fuori da 0.." +
                             std::to_string(n - 1));
}

} // namespace

void Lettore::Refresh() {
    EsitoQuery nuovo;
    try {
        nuovo = Catalogo::Apri(chiesta_.cartella)->Esegue(chiesta_.query);
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
    if (riga < 0 || riga >= Righe())
        throw Fuori("riga", riga, Righe());
    if (campo < 0 || campo >= Campi())
        throw Fuori("campo", campo, Campi());
    return esito_.righe[static_cast<std::size_t>(riga)][static_cast<std::size_t>(campo)];
}

const Valore& Lettore::Campo(int campo) const {
    static const Valore vuoto;
    return BOF() || EOF_() ? vuoto : Cella(riga_, campo);
}

double Lettore::Numero(int campo) const { return NumeroDi(Campo(campo)); }

std::string Lettore::Testo(int campo) const { return TestoDi(Campo(campo)); }

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
