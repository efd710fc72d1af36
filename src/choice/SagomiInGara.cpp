#include "choice/SagomiInGara.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <utility>

#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "catalogue/RigaDoppioT.h"
#include "catalogue/RigaSagomi.h"
#include "catalogue/SagomoUtente.h"
#include "frame/Messaggi.h"

namespace sagomi {

namespace {

constexpr int campoPeso = 1;

RigheDoppioT RigheDi(std::string_view schermo) {
    return schermo == "frmSaldati"        ? RigheDoppioT::Saldate
           : schermo == "frmSaldatiAsimm" ? RigheDoppioT::SaldateAsimmetriche
                                          : RigheDoppioT::Laminate;
}

template <typename S> S Letta(const Lettore& riga) {
    S sezione;
    LeggeRiga(riga, sezione);
    return sezione;
}

/// A row of the user's own that has its dimensions only has what follows from them, as its screen completes
/// it. Its constants do not depend on the steel.
void Completa(const Lettore& riga, SezioneDoppioT& sezione, SagomoInGara& sagomo) {
    constexpr double fy = 235, fu = 360;
    const MessaggiTaciuti quiet;
    const RigheDoppioT righe = RigheDi(sagomo.schermo);
    const std::vector<Valore> campi = Completati(riga, righe, [](SezioneDoppioT& s) {
        s.fy = fy;
        s.fu = fu;
    });
    if (campi.empty())
        return;
    LeggeCampi(campi, sezione, righe);
    sagomo.g = NumeroDi(campi.at(campoPeso));
}

void LeggeSezione(const Lettore& riga, SagomoInGara& sagomo) {
    if (sagomo.schermo == "frmSagomiU") {
        sagomo.sezione = Letta<SezioneSagomoU>(riga);
    } else if (sagomo.schermo == "frmSagomiL") {
        sagomo.sezione = Letta<SezioneSagomoL>(riga);
    } else {
        SezioneDoppioT sezione;
        LeggeRiga(riga, sezione, RigheDi(sagomo.schermo));
        if (sagomo.utente)
            Completa(riga, sezione, sagomo);
        sagomo.sezione = std::move(sezione);
    }
}

} // namespace

const std::string& SagomoInGara::Designazione() const {
    return std::visit([](const auto& s) -> const std::string& { return s.Designation; }, sezione);
}

/// One sheet of one workbook.
struct LetturaGara::Foglio {
    std::filesystem::path cartella;
    std::string_view schermo, nome;
    bool utente = false;
};

LetturaGara::LetturaGara(const std::filesystem::path& sagomi, const std::filesystem::path& utente,
                         const std::vector<std::string>& famiglie) {
    std::error_code nessuno;
    const bool conUtente = std::filesystem::exists(utente, nessuno);
    for (const FamigliaSchermo& f : FamiglieSchermi()) {
        for (const std::string_view nome : f.fogli)
            fogli_.push_back({sagomi, f.schermo, nome});
        if (conUtente && !f.foglioUtente.empty())
            fogli_.push_back({utente, f.schermo, f.foglioUtente, true});
    }
    if (!famiglie.empty())
        std::erase_if(fogli_,
                      [&](const Foglio& f) { return std::ranges::find(famiglie, f.nome) == famiglie.end(); });
}

LetturaGara::~LetturaGara() = default;

void LetturaGara::Apre() {
    const Foglio& foglio = fogli_[foglio_];
    righe_ = std::make_unique<Lettore>();
    righe_->DatabaseName(foglio.cartella);
    righe_->CampiAttesi(static_cast<int>(Intestazioni(foglio.schermo).size()));
    righe_->RecordSource("SELECT * FROM " + NomeFoglioQuery(foglio.nome));
    righe_->Refresh();
}

void LetturaGara::Prende() {
    if (righe_->Testo(0).empty())
        return; // a row of notes below the table
    const Foglio& foglio = fogli_[foglio_];
    SagomoInGara& sagomo = letti.sagomi.emplace_back();
    sagomo.schermo = foglio.schermo;
    sagomo.famiglia = foglio.nome;
    sagomo.utente = foglio.utente;
    sagomo.g = righe_->Numero(campoPeso);
    LeggeSezione(*righe_, sagomo);
}

bool LetturaGara::Legge(std::size_t righe) {
    for (std::size_t n = 0; foglio_ < fogli_.size() && n < righe;) {
        try {
            if (righe_ == nullptr)
                Apre();
            for (; !righe_->EOF_() && n < righe; righe_->MoveNext(), ++n)
                Prende();
        } catch (const std::exception& e) {
            if (std::ranges::find(letti.mancanti, e.what()) == letti.mancanti.end())
                letti.mancanti.emplace_back(e.what());
            righe_.reset();
            ++foglio_;
            continue;
        }
        if (!righe_->EOF_())
            continue; // the piece is full
        righe_.reset();
        ++foglio_;
    }
    return foglio_ < fogli_.size();
}

Gara LeggeGara(const std::filesystem::path& cartella, const std::vector<std::string>& famiglie) {
    constexpr std::size_t tutte = std::numeric_limits<std::size_t>::max();
    LetturaGara lettura(FileAccanto(cartella, "Sagomi.xls"), FileAccanto(cartella, "SagomiUtente.xls"),
                        famiglie);
    while (lettura.Legge(tutte)) {
    }
    return std::move(lettura.letti);
}

} // namespace sagomi
