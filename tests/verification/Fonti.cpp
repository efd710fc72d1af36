#include "Fonti.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace sagomi::verifica {

namespace {

constexpr std::string_view nelTesto = "Valori e pagine letti nel testo pubblicato.";
constexpr std::string_view riportati = "Valori riportati, esempio per esempio, da raccolte pubbliche di "
                                       "prove che citano il documento; le pagine non "
                                       "sono state viste e si citano solo gli esempi.";
constexpr std::string_view correnti =
    "Valori di tabella correnti, uguali in più manuali; la pagina non è indicata.";

} // namespace

const std::vector<Fonte>& Fonti() {
    static const std::vector<Fonte> fonti{
        {"MSB04", "ArcelorMittal, Peiner Träger, Corus (testo di CTICM e SCI)",
         "Steel Buildings in Europe. Multi-Storey Steel Buildings. Part 4: Detailed Design",
         "progetto RFCS SECHALO", "2010", nelTesto},
        {"MSB05", "ArcelorMittal, Peiner Träger, Corus (testo di CTICM e SCI)",
         "Steel Buildings in Europe. Multi-Storey Steel Buildings. Part 5: Joint Design",
         "progetto RFCS SECHALO", "2010",
         "Pagina 5-41 letta nel testo pubblicato; le altre riportate, con la pagina, da raccolte pubbliche "
         "di "
         "prove."},
        {"ECCS119", "N. Boissonnade, R. Greiner, J.P. Jaspart, J. Lindner",
         "Rules for Member Stability in EN 1993-1-1. Background documentation and design guidelines",
         "ECCS, pubblicazione 119", "2006",
         "Valori dell'esempio svolto 5 riportati da due raccolte pubbliche indipendenti di confronti."},
        {"JRC-Simões", "R. Simões", "Eurocodes. Design of steel buildings with worked examples",
         "JRC, seminario di Bruxelles, 16-17 ottobre 2014", "2014",
         "Valori riportati, con la pagina, da raccolte pubbliche di prove."},
        {"JRC-Wald", "F. Wald", "Eurocodes. Design of steel buildings: bolts, welds, column base",
         "JRC, seminario di Bruxelles, 16-17 ottobre 2014", "2014", riportati},
        {"EUR22898", "B. Johansson, R. Maquoi, G. Sedlacek, C. Müller, D. Beg",
         "Commentary and worked examples to EN 1993-1-5: Plated structural elements",
         "JRC ed ECCS, EUR 22898 EN, 1a ed.", "2007",
         "Valori del punto 17.5.2 riportati, con la pagina, da una raccolta pubblica di prove."},
        {"P387", "M.E. Brettle, D.G. Brown", "Steel Building Design: Worked Examples for Students",
         "The Steel Construction Institute, P387", "2009", riportati},
        {"P364", "M.E. Brettle", "Steel Building Design: Worked Examples. Open Sections",
         "The Steel Construction Institute, P364", "2009",
         "Valori riportati, con il foglio di calcolo dell'esempio, da tre raccolte pubbliche di prove "
         "concordi."},
        {"P363", "The Steel Construction Institute, BCSA", "Steel Building Design: Design Data",
         "The Steel Construction Institute, P363", "2009",
         "Righe delle tabelle delle sezioni riportate con la pagina da una raccolta pubblica di prove."},
        {"Orange", "ArcelorMittal", "The Orange Book: tabelle di progetto secondo Eurocodice 3",
         "tabelle dei bulloni non precaricati e precaricati", "s. d.",
         "Righe trascritte dalle tabelle nelle prove del programma, in precedenza; la pagina e l'edizione "
         "non "
         "sono indicate."},
        {"P398", "The Steel Construction Institute, BCSA",
         "Joints in Steel Construction: Moment-Resisting Joints to Eurocode 3",
         "The Steel Construction Institute, P398", "2013",
         "Esempio C.1: valori dei fogli 4-7 riportati da una raccolta pubblica di prove, momento e taglio "
         "dal "
         "testo di un calcolo pubblicato."},
        {"Gardner05", "L. Gardner, D.A. Nethercot", "Designers' Guide to EN 1993-1-1",
         "Thomas Telford, 1a ed.", "2005", riportati},
        {"Gardner11", "L. Gardner, D.A. Nethercot", "Designers' Guide to Eurocode 3",
         "ICE Publishing, 2a ed.", "2011",
         "Valori riportati, con le pagine, da una raccolta pubblica di prove."},
        {"ESDEP", "ESDEP Society", "European Steel Design Education Programme, lezioni sulle curve ECCS",
         "tabella 1, Reduction factors", "1994", riportati},
        {"SN003", "Access Steel, CTICM", "NCCI SN003: Elastic critical moment for lateral torsional buckling",
         "SN003b-EN-EU", "2008", riportati},
        {"Timoshenko", "S.P. Timoshenko, J.M. Gere", "Theory of Elastic Stability", "McGraw-Hill, 2a ed.",
         "1961",
         "Tabelle 6-3, 6-4 e 6-5 del capitolo 6 e fattori k del capitolo 9: valori di tabella correnti; la "
         "pagina non è indicata."},
        {"AISC", "American Institute of Steel Construction", "Steel Construction Manual, table 1-1",
         "15a ed.", "2017", correnti},
        {"JIS", "Japanese Standards Association",
         "JIS G 3192: Dimensions, mass and permissible variations of hot rolled steel sections", "", "2014",
         correnti},
        {"EN10365", "CEN; ArcelorMittal",
         "EN 10365: Hot rolled steel channels, I and H sections; Sections and Merchant Bars", "", "2017",
         correnti},
        {"EN10056", "CEN; ArcelorMittal", "EN 10056-1: Structural steel equal and unequal leg angles", "",
         "2017", correnti},
        {"ENV1993", "CEN", "ENV 1993-1-1: Design of steel structures. General rules and rules for buildings",
         "prospetti 5.5.2 e F.1.2", "1992", correnti},
        {"Johnson", "R.P. Johnson", "Composite Structures of Steel and Concrete", "Blackwell, 3a ed.", "2004",
         "Esempio della figura 3.29, equazioni 3.110 e 3.111: lette in un estratto pubblicato del libro."},
    };
    return fonti;
}

const Fonte& FonteDi(std::string_view sigla) {
    const auto f = std::ranges::find(Fonti(), sigla, &Fonte::sigla);
    if (f == Fonti().end())
        throw std::out_of_range("fonte " + std::string(sigla));
    return *f;
}

} // namespace sagomi::verifica
