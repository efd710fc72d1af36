#include "screens/VociSezione.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

#include "catalogue/Famiglie.h"

namespace sagomi {

namespace {

Voce Lunghezza(const Dicitura& asse, const char* nome, const char* aiuto, const char* letta) {
    return {.etichetta = asse, .nome = nome, .aiuto = aiuto, .letta = letta};
}

std::vector<Voce> LunghezzeYZ() {
    return {Lunghezza({"Lbl_L0_0", "y-y"}, "Txt_L0_0",
                      "Lunghezza di libera inflessione per l'instabilità intorno a y-y", "Lunghezza y-y [m]"),
            Lunghezza({"Lbl_L0_1", "z-z"}, "Txt_L0_1",
                      "Lunghezza di libera inflessione per l'instabilità intorno a z-z",
                      "Lunghezza z-z [m]")};
}

std::vector<Voce> LunghezzeYZV() {
    std::vector<Voce> lengths = LunghezzeYZ();
    lengths.push_back(Lunghezza({"Lbl_L0_2", "v-v"}, "Txt_L0_2",
                                "Lunghezza di libera inflessione per l'instabilità intorno a v-v",
                                "Lunghezza v-v [m]"));
    return lengths;
}

Voce Classe(const Dicitura& etichetta, const char* nome, const char* aiuto, const char* letta) {
    return {etichetta, nome, 3, aiuto, letta, Genere::risultato};
}

Voce ClasseCompressione() {
    return Classe({"LblClasseCompressione", "Compressione"}, "TxtClasseCompressione",
                  "Classe della sezione compressa", "Classe Compressione");
}

Voce ClasseFlessioneZ() {
    return Classe({"LblClasseFlessioneZ", "Flessione Mz"}, "TxtClasseFlessioneZ",
                  "Classe della sezione inflessa intorno a z-z", "Classe Flessione Mz");
}

std::vector<Voce> ClassiDoppioT() {
    return {ClasseCompressione(),
            Classe({"LblClasseFlessioneY", "Flessione My"}, "TxtClasseFlessioneY",
                   "Classe della sezione inflessa intorno a y-y", "Classe Flessione My"),
            ClasseFlessioneZ(),
            Classe({"LblClassePressFless", "Presso-Flessione"}, "TxtClassePressFless",
                   "Classe della sezione sotto N ed M", "Classe Presso-Flessione")};
}

/// Channels have no class of their own for axial force with bending.
std::vector<Voce> ClassiU() {
    return {ClasseCompressione(),
            Classe({"LblClasseFlessione", "Flessione My"}, "TxtClasseFlessione",
                   "Classe della sezione inflessa intorno a y-y", "Classe Flessione My"),
            ClasseFlessioneZ()};
}

Voce Resistenza(const Dicitura& etichetta, const char* nome, const char* aiuto, const char* letta) {
    return {etichetta, nome, 7, aiuto, letta, Genere::risultato};
}

RigaResistenze NbRd() {
    return {
        {Resistenza({"LblNbRd_0", "N         [kN]", "by,Rd"}, "TxtNbRd_0",
                    "Resistenza di progetto all'instabilità per inflessione intorno a y-y", "N by,Rd [kN]"),
         Resistenza({"LblNbRd_1", "N         [kN]", "bz,Rd"}, "TxtNbRd_1",
                    "Resistenza di progetto all'instabilità per inflessione intorno a z-z", "N bz,Rd [kN]")},
        "LblNbRd",
        "Come nasce la resistenza all'instabilità",
        "Dettagli by"};
}

RigaResistenze NbRdAngolari() {
    RigaResistenze row = NbRd();
    row.assi.push_back(Resistenza({"LblNbRd_2", "N         [kN]", "bv,Rd"}, "TxtNbRd_2",
                                  "Resistenza di progetto all'instabilità per inflessione intorno a v-v",
                                  "N bv,Rd [kN]"));
    return row;
}

RigaResistenze McRd() {
    return {
        {Resistenza({"LblMcRd_0", "M         [kNm]", "cy,Rd"}, "TxtMcRd_0",
                    "Momento resistente di progetto della sezione intorno all'asse y-y", "M cy,Rd [kNm]"),
         Resistenza({"LblMcRd_1", "M         [kNm]", "cz,Rd"}, "TxtMcRd_1",
                    "Momento resistente di progetto della sezione intorno all'asse z-z", "M cz,Rd [kNm]")},
        "LblMcRd",
        "Come nasce il momento resistente",
        "Dettagli cy"};
}

RigaResistenze VplRd() {
    return {{Resistenza({"LblVplRd_0", "V         [kN]", "ply,Rd"}, "TxtVplRd_0",
                        "Resistenza di progetto a taglio (impegna l'anima) EC3 #5.4.6.", "V ply,Rd [kN]"),
             Resistenza({"LblVplRd_1", "V         [kN]", "plz,Rd"}, "TxtVplRd_1",
                        "Resistenza di progetto a taglio (impegna le ali) EC3 #5.4.6.", "V plz,Rd [kN]")},
            "lblVplRd",
            "L'anima è snella: instabilità per taglio",
            "Dettagli ply"};
}

Voce Piatto(const Dicitura& etichetta, const char* nome, const char* aiuto, const char* letta) {
    return {.etichetta = etichetta, .nome = nome, .aiuto = aiuto, .letta = letta};
}

/// Of channels z is the direction of the web: the boxes keep their names, what they hold changes places.
RigaResistenze VplRdCanali() {
    RigaResistenze row = VplRd();
    std::swap(row.assi[0].aiuto, row.assi[1].aiuto);
    row.lettoBottone = "Dettagli plz";
    return row;
}

Voce Accosta(const char* nome, const char* testo, const char* aiuto) {
    return {.etichetta = {nome, testo}, .nome = nome, .aiuto = aiuto, .letta = testo};
}

const std::vector<VociSchermo>& Schermi() {
    static const std::vector<VociSchermo> screens = {
        {"frmDoppioT",
         "Doppio T Laminati - F1 per aiuto",
         LunghezzeYZ(),
         true,
         ClassiDoppioT(),
         {NbRd(), McRd(), VplRd()},
         true},
        {"frmSaldati",
         "Doppio T Saldati Simmetrici - F1 per aiuto",
         LunghezzeYZ(),
         true,
         ClassiDoppioT(),
         {NbRd(), McRd(), VplRd()}},
        {"frmSaldatiAsimm",
         "Doppio T Saldati Asimmetrici - F1 per aiuto",
         LunghezzeYZ(),
         true,
         ClassiDoppioT(),
         {NbRd(), McRd(), VplRd()},
         false,
         true,
         {},
         true},
        {"frmSagomiU",
         "Sagomi U",
         LunghezzeYZ(),
         true,
         ClassiU(),
         {NbRd(), McRd(), VplRdCanali()},
         false,
         false,
         Accosta("chkDoppiAla", "Accosta ali", "Le punte delle ali affacciate, invece delle anime")},
        {"frmSagomiL",
         "Sagomi L",
         LunghezzeYZV(),
         false,
         {ClasseCompressione()},
         {NbRdAngolari()},
         false,
         false,
         Accosta("chkDoppiCorto", "Accosta lato corto", "I lati corti affacciati, invece dei lunghi")}};
    return screens;
}

} // namespace

std::vector<Voce> VociUtente(std::string_view schermo) {
    if (FamigliaDi(schermo).foglioUtente.empty())
        return {};
    const bool different = schermo == "frmSaldatiAsimm";
    std::vector<Voce> plates = {
        {{"LblProfUtente_0", "designation"},
         "TxtProfUtente_0",
         18,
         "Nome del sagomo",
         "Nome del sagomo utente"},
        Piatto({"LblProfUtente_1", "h (mm):"}, "TxtProfUtente_1", "Altezza totale", "h utente (mm)"),
        Piatto({"LblProfUtente_2", different ? "b1 (mm):" : "b (mm):"}, "TxtProfUtente_2",
               different ? "Larghezza dell'ala superiore" : "Larghezza delle ali",
               different ? "b1 utente (mm)" : "b utente (mm)"),
        Piatto({"LblProfUtente_3", "tw (mm):"}, "TxtProfUtente_3", "Spessore dell'anima", "tw utente (mm)"),
        Piatto({"LblProfUtente_4", different ? "tf1 (mm):" : "tf (mm):"}, "TxtProfUtente_4",
               different ? "Spessore dell'ala superiore" : "Spessore delle ali",
               different ? "tf1 utente (mm)" : "tf utente (mm)"),
        Piatto({"LblProfUtente_5", "r (mm):"}, "TxtProfUtente_5", "Lato dei cordoni fra anima e ali",
               "r utente (mm)")};
    if (different) {
        plates.push_back(Piatto({"LblProfUtente_6", "b2 (mm):"}, "TxtProfUtente_6",
                                "Larghezza dell'ala inferiore", "b2 utente (mm)"));
        plates.push_back(Piatto({"LblProfUtente_7", "tf2 (mm):"}, "TxtProfUtente_7",
                                "Spessore dell'ala inferiore", "tf2 utente (mm)"));
    }
    return plates;
}

const VociSchermo& VociDi(std::string_view schermo) {
    const auto& screens = Schermi();
    const auto s = std::find_if(screens.begin(), screens.end(),
                                [schermo](const VociSchermo& x) { return x.schermo == schermo; });
    if (s == screens.end())
        throw std::out_of_range("nessuna voce per \"" + std::string(schermo) + "\"");
    return *s;
}

const char* DescrizioneColonna(std::string_view intestazione, std::string_view schermo) {
    static const std::map<std::string_view, const char*> angles = {{"h", "Lato lungo"},
                                                                   {"b", "Lato corto"},
                                                                   {"r1", "Raggio del raccordo fra i lati"},
                                                                   {"r2", "Raggio all'estremità dei lati"}};
    static const std::map<std::string_view, const char*> columns = {
        {"g", "Massa a metro"},
        {"h", "Altezza totale"},
        {"b", "Larghezza delle ali"},
        {"b1", "Larghezza dell'ala superiore"},
        {"b2", "Larghezza dell'ala inferiore"},
        {"t", "Spessore dei lati"},
        {"tw", "Spessore dell'anima"},
        {"tf", "Spessore delle ali"},
        {"tf1", "Spessore dell'ala superiore"},
        {"tf2", "Spessore dell'ala inferiore"},
        {"r", "Raccordo di saldatura fra anima e ali"},
        {"r1", "Raggio del raccordo fra anima e ali"},
        {"r2", "Raggio all'estremità delle ali; maggiore di 0 nelle ali inclinate"},
        {"A", "Area della sezione"},
        {"Iy", "Momento d'inerzia intorno a y-y"},
        {"Wy", "Modulo di resistenza elastico intorno a y-y"},
        {"Wy1", "Modulo di resistenza elastico dell'ala superiore intorno a y-y"},
        {"Wy2", "Modulo di resistenza elastico dell'ala inferiore intorno a y-y"},
        {"Wpl,y", "Modulo di resistenza plastico intorno a y-y"},
        {"iy", "Raggio d'inerzia intorno a y-y"},
        {"Iz", "Momento d'inerzia intorno a z-z"},
        {"Wz", "Modulo di resistenza elastico intorno a z-z"},
        {"Wpl,z", "Modulo di resistenza plastico intorno a z-z"},
        {"iz", "Raggio d'inerzia intorno a z-z"},
        {"Iu", "Momento d'inerzia maggiore, intorno a u-u"},
        {"iu", "Raggio d'inerzia intorno a u-u"},
        {"Iv", "Momento d'inerzia minore, intorno a v-v"},
        {"iv", "Raggio d'inerzia intorno a v-v"},
        {"IT", "Momento d'inerzia torsionale"},
        {"Iw", "Costante d'ingobbamento"}};
    const std::string_view quantity = intestazione.substr(0, intestazione.find(' '));
    if (const auto own = angles.find(quantity); own != angles.end() && schermo == "frmSagomiL")
        return own->second;
    const auto found = columns.find(quantity);
    return found == columns.end() ? "" : found->second;
}

} // namespace sagomi
