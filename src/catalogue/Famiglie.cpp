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

/// What follows the sheets; key 0 is the only one that the screens do not share.
std::string_view Suffisso(std::string_view schermo, int ordine) {
    switch (ordine) {
    case 0:
        if (schermo == "frmSagomiL")
            return " ORDER BY [iy (cm)]";
        if (schermo == "frmSaldatiAsimm")
            return " ORDER BY [Wy1 (cm3)]";
        return " ORDER BY [Wy (cm3)] ASC";
    case 1:
        return " ORDER BY [Iy (cm4)]";
    case 2:
        return " ORDER BY [g (Kg/m)]";
    default:
        throw std::out_of_range("OptionOrdina " + std::to_string(ordine) + " fuori da 0..2");
    }
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
         ""},
        {"frmSaldati",
         {"HSE", "HSL", "HSU", "HSH", "ISE", "HSA"},
         {"Wy", "Iy", "g"},
         "SELECT * FROM [ISE$] ORDER BY [Wy (cm3)]",
         "ISE",
         0,
         "DoppioT Simmetrico"},
        {"frmSaldatiAsimm",
         {"HSD"},
         {"Wy1", "Iy", "g"},
         "SELECT * FROM [HSD$] ORDER BY [Wy1 (cm3)]",
         "HSD",
         0,
         "DoppioT Asimmetrico"},
        {"frmSagomiU",
         {"UPN", "UAP"},
         {"Wy", "Iy", "g"},
         "SELECT * FROM [UPN$] ORDER BY [Wy (cm3)]",
         "UPN",
         0,
         ""},
        {"frmSagomiL",
         {"L Uguali", "L Disuguali"},
         {"iy", "Iy", "g"},
         "SELECT * FROM ['L Uguali'$] ORDER BY [g (Kg/m)]",
         "L Uguali",
         2,
         ""}};
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

std::string ComponiQuery(std::string_view schermo, const std::vector<std::string>& scelti, int ordine) {
    const std::string_view suffisso = Suffisso(schermo, ordine);
    std::string query;
    for (const std::string& foglio : scelti) {
        query += query.empty() ? "SELECT * FROM " : " UNION SELECT * FROM ";
        query += NomeFoglioQuery(foglio);
    }
    return query.empty() ? query : query.append(suffisso);
}

std::string ComponiQueryFoglio(std::string_view schermo, std::string_view foglioQuery, int ordine) {
    return "SELECT * FROM " + std::string(foglioQuery) + std::string(Suffisso(schermo, ordine));
}

std::optional<std::string> CambioFamigliaQuery(std::string_view schermo, const std::vector<bool>& spunte,
                                               int ordine, std::string_view foglioQuery) {
    if (!foglioQuery.empty())
        return ComponiQueryFoglio(schermo, foglioQuery, ordine);
    std::string query = ComponiQuery(schermo, FogliSpuntati(FamigliaDi(schermo), spunte), ordine);
    if (query.empty()) {
        Avvisa(messaggioNessunTipo);
        return std::nullopt;
    }
    return query;
}

const std::vector<std::string_view>& Intestazioni(std::string_view schermo) {
    static const Elenco doppioT = IntestazioniLaminati("g (Kg/m)");
    static const Elenco canali = IntestazioniLaminati("g (kg/m)");
    static const Elenco saldati = IntestazioniSaldati();
    static const Elenco saldatiAsimm = IntestazioniSaldatiAsimm();
    static const Elenco angolari = IntestazioniAngolari();
    const std::string_view nome = FamigliaDi(schermo).schermo;
    if (nome == "frmDoppioT")
        return doppioT;
    if (nome == "frmSagomiU")
        return canali;
    if (nome == "frmSaldati")
        return saldati;
    if (nome == "frmSaldatiAsimm")
        return saldatiAsimm;
    return angolari;
}

} // namespace sagomi
