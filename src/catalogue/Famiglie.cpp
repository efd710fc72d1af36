#include "catalogue/Famiglie.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <stdexcept>

#include "catalogue/TabellaFoglio.h"
#include "frame/Messaggi.h"

namespace sagomi {

namespace {

using Elenco = std::vector<std::string_view>;

/// The columns of rolled sections. Channels differ in the capitals of the weight's unit only.
Elenco IntestazioniLaminati(std::string_view peso) {
    return {"designation", peso,          "h (mm)",   "b (mm)",   "tw (mm)",     "tf (mm)", "r1 (mm)",
            "r2 (mm)",     "A (cm2)",     "Iy (cm4)", "Wy (cm3)", "Wpl,y (cm3)", "iy (cm)", "Iz (cm4)",
            "Wz (cm3)",    "Wpl,z (cm3)", "iz (cm)",  "IT (cm4)", "Iw (cm6)"};
}

Elenco IntestazioniSaldati() {
    return {"Designation", "g (Kg/m)", "h (mm)",      "b (mm)",   "tw (mm)",     "tf (mm)",
            "r (mm)",      "A (cm2)",  "Iy (cm4)",    "Wy (cm3)", "Wpl,y (cm3)", "iy (cm)",
            "Iz (cm4)",    "Wz (cm3)", "Wpl,z (cm3)", "iz (cm)",  "IT (cm4)",    "Iw (cm6)"};
}

Elenco IntestazioniSaldatiAsimm() {
    return {"Designation", "g (Kg/m)", "h (mm)",   "b1 (mm)",     "b2 (mm)",   "tw (mm)",   "tf1 (mm)",
            "tf2 (mm)",    "r (mm)",   "A (cm2)",  "Iy (cm4)",    "Wy1 (cm3)", "Wy2 (cm3)", "Wpl,y (cm3)",
            "iy (cm)",     "Iz (cm4)", "Wz (cm3)", "Wpl,z (cm3)", "iz (cm)",   "IT (cm4)",  "Iw (cm6)"};
}

Elenco IntestazioniAngolari() {
    return {"designation", "g (kg/m)", "h (mm)",   "b (mm)",   "t (mm)",   "r1 (mm)",
            "r2 (mm)",     "A (cm2)",  "Iy (cm4)", "Wy (cm3)", "iy (cm)",  "Iz (cm4)",
            "Wz (cm3)",    "iz (cm)",  "Iu (cm4)", "iu (cm)",  "Iv (cm4)", "iv (cm)"};
}

/// What follows the sheets.
std::string Suffisso(const FamigliaSchermo& famiglia, int ordine) {
    if (ordine < 0 || ordine >= static_cast<int>(famiglia.chiavi.size()))
        throw std::out_of_range("OptionOrdina " + std::to_string(ordine) + " fuori da 0..2");
    return " ORDER BY " + std::string(famiglia.chiavi[static_cast<std::size_t>(ordine)]);
}

std::vector<std::string> FogliSpuntati(const FamigliaSchermo& famiglia, const std::vector<bool>& spunte) {
    std::vector<std::string> scelti;
    const std::size_t n = std::min(famiglia.fogli.size(), spunte.size());
    for (std::size_t i = 0; i < n; ++i)
        if (spunte[i])
            scelti.emplace_back(famiglia.fogli[i]);
    return scelti;
}

} // namespace

const std::vector<FamigliaSchermo>& FamiglieSchermi() {
    static const std::vector<FamigliaSchermo> famiglie = {
        {"frmDoppioT",
         {"HEA", "HEB", "HEM", "IPE", "IPEO", "IPEA", "IPEX", "IPN", "HD", "HEX", "HP", "HEAA", "UC", "UB",
          "W", "HL"},
         {"Wy", "Iy", "g"},
         "SELECT * FROM [IPE$] ORDER BY [Wy (cm3)]",
         "IPE",
         0,
         "",
         {"[Wy (cm3)] ASC", "[Iy (cm4)]", "[g (Kg/m)]"},
         IntestazioniLaminati("g (Kg/m)"),
         true},
        {"frmSaldati",
         {"HSE", "HSL", "HSU", "HSH", "ISE", "HSA"},
         {"Wy", "Iy", "g"},
         "SELECT * FROM [ISE$] ORDER BY [Wy (cm3)]",
         "ISE",
         0,
         "DoppioT Simmetrico",
         {"[Wy (cm3)] ASC", "[Iy (cm4)]", "[g (Kg/m)]"},
         IntestazioniSaldati(),
         true},
        {"frmSaldatiAsimm",
         {"HSD"},
         {"Wy1", "Iy", "g"},
         "SELECT * FROM [HSD$] ORDER BY [Wy1 (cm3)]",
         "HSD",
         0,
         "DoppioT Asimmetrico",
         {"[Wy1 (cm3)]", "[Iy (cm4)]", "[g (Kg/m)]"},
         IntestazioniSaldatiAsimm()},
        {"frmSagomiU",
         {"UPN", "UAP"},
         {"Wy", "Iy", "g"},
         "SELECT * FROM [UPN$] ORDER BY [Wy (cm3)]",
         "UPN",
         0,
         "",
         {"[Wy (cm3)] ASC", "[Iy (cm4)]", "[g (Kg/m)]"},
         IntestazioniLaminati("g (kg/m)")},
        {"frmSagomiL",
         {"L Uguali", "L Disuguali"},
         {"iy", "Iy", "g"},
         "SELECT * FROM ['L Uguali'$] ORDER BY [g (Kg/m)]",
         "L Uguali",
         2,
         "",
         {"[iy (cm)]", "[Iy (cm4)]", "[g (Kg/m)]"},
         IntestazioniAngolari()}};
    return famiglie;
}

const FamigliaSchermo& FamigliaDi(std::string_view schermo) {
    const auto& famiglie = FamiglieSchermi();
    const auto f = std::find_if(famiglie.begin(), famiglie.end(),
                                [schermo](const FamigliaSchermo& x) { return x.schermo == schermo; });
    if (f == famiglie.end())
        throw std::out_of_range("nessuna famiglia di sagomi per \"" + std::string(schermo) + "\"");
    return *f;
}

std::string NomeTabella(std::string_view foglio) {
    const std::string nome(foglio);
    return nome.find(' ') == std::string::npos ? nome + "$" : "'" + nome + "'$";
}

std::string NomeFoglioQuery(std::string_view foglio) {
    const std::string tabella = NomeTabella(foglio);
    const bool chiudeLeParentesi = tabella.find(']') != std::string::npos;
    return chiudeLeParentesi ? TraVirgolette(tabella) : "[" + tabella + "]";
}

std::string ComponeQuery(std::string_view schermo, const std::vector<std::string>& scelti, int ordine) {
    const std::string suffisso = Suffisso(FamigliaDi(schermo), ordine);
    std::string query;
    for (const std::string& foglio : scelti) {
        query += query.empty() ? "SELECT * FROM " : " UNION SELECT * FROM ";
        query += NomeFoglioQuery(foglio);
    }
    return query.empty() ? query : query.append(suffisso);
}

std::string ComponeQueryFoglio(std::string_view schermo, std::string_view foglioQuery, int ordine) {
    return "SELECT * FROM " + std::string(foglioQuery) + Suffisso(FamigliaDi(schermo), ordine);
}

std::optional<std::string> CambioFamigliaQuery(std::string_view schermo, const std::vector<bool>& spunte,
                                               int ordine, std::string_view foglioQuery) {
    if (!foglioQuery.empty())
        return ComponeQueryFoglio(schermo, foglioQuery, ordine);
    std::string query = ComponeQuery(schermo, FogliSpuntati(FamigliaDi(schermo), spunte), ordine);
    if (query.empty()) {
        Avvisa(messaggioNessunTipo);
        return std::nullopt;
    }
    return query;
}

const std::vector<std::string_view>& Intestazioni(std::string_view schermo) {
    return FamigliaDi(schermo).intestazioni;
}

} // namespace sagomi
