#include "choice/SagomiInGara.h"

#include <algorithm>
#include <exception>

#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "catalogue/RigaDoppioT.h"
#include "catalogue/RigaSagomi.h"

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

void LeggeSezione(const Lettore& riga, SagomoInGara& sagomo) {
    if (sagomo.schermo == "frmSagomiU") {
        sagomo.sezione = Letta<SezioneSagomoU>(riga);
    } else if (sagomo.schermo == "frmSagomiL") {
        sagomo.sezione = Letta<SezioneSagomoL>(riga);
    } else {
        SezioneDoppioT sezione;
        LeggeRiga(riga, sezione, RigheDi(sagomo.schermo));
        sagomo.sezione = std::move(sezione);
    }
}

/// One sheet of one workbook.
struct Foglio {
    std::filesystem::path cartella;
    std::string_view schermo, nome;
    bool utente = false;
};

void LeggeFoglio(const Foglio& foglio, Gara& gara) {
    Lettore riga;
    riga.DatabaseName(foglio.cartella);
    riga.CampiAttesi(static_cast<int>(Intestazioni(foglio.schermo).size()));
    riga.RecordSource("SELECT * FROM " + NomeFoglioQuery(foglio.nome));
    for (riga.Refresh(); !riga.EOF_(); riga.MoveNext()) {
        if (riga.Testo(0).empty())
            continue; // a row of notes below the table
        SagomoInGara& sagomo = gara.sagomi.emplace_back();
        sagomo.schermo = foglio.schermo;
        sagomo.famiglia = foglio.nome;
        sagomo.utente = foglio.utente;
        sagomo.g = riga.Numero(campoPeso);
        LeggeSezione(riga, sagomo);
    }
}

std::vector<Foglio> FogliDi(const std::filesystem::path& cartella) {
    const auto sagomi = FileAccanto(cartella, "Sagomi.xls");
    const auto utente = FileAccanto(cartella, "SagomiUtente.xls");
    std::error_code nessuno;
    const bool conUtente = std::filesystem::exists(utente, nessuno);
    std::vector<Foglio> fogli;
    for (const FamigliaSchermo& f : FamiglieSchermi()) {
        for (const std::string_view nome : f.fogli)
            fogli.push_back({sagomi, f.schermo, nome});
        if (conUtente && !f.foglioUtente.empty())
            fogli.push_back({utente, f.schermo, f.foglioUtente, true});
    }
    return fogli;
}

} // namespace

const std::string& SagomoInGara::Designazione() const {
    return std::visit([](const auto& s) -> const std::string& { return s.Designation; }, sezione);
}

Gara LeggeGara(const std::filesystem::path& cartella, const std::vector<std::string>& famiglie) {
    Gara gara;
    for (const Foglio& foglio : FogliDi(cartella)) {
        if (!famiglie.empty() && std::ranges::find(famiglie, foglio.nome) == famiglie.end())
            continue;
        try {
            LeggeFoglio(foglio, gara);
        } catch (const std::exception& e) {
            gara.mancanti.emplace_back(e.what());
        }
    }
    return gara;
}

} // namespace sagomi
