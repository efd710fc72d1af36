#pragma once

#include <charconv>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <ostream>
#include <stdexcept>

#include "choice/Scelta.h"
#include "frame/Acciaio.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Unita.h"

/// The sets of forces that the rows of a choice are held against the screens with.
namespace sagomi::prove {

/// A set of forces in the units of the screens, numbers with a point.
struct Forze {
    const char* nome;
    int acciaio; ///< index in the list
    std::int16_t normativa;
    std::int16_t pict;
    const char *N, *L0y, *L0z;
    const char *My1, *My2, *MyQ, *Mz1, *Mz2, *MzQ;
    const char *L, *k, *Kw, *C2, *C3, *za;
};

inline void PrintTo(const Forze& f, std::ostream* os) { *os << f.nome; }

// clang-format off
inline constexpr Forze forze[] = {
    {"trave",          0, normativaNTC, pictEstremitaConcordi,    "0",    "5",   "5",   "60",  "0",   "0",  "0",  "0",  "0",  "5",   "1",   "1", "0",    "0",    "0"},
    {"pressoflessa",   1, normativaEC3, pictEstremitaDiscordi,    "250",  "5",   "2.5", "40",  "-15", "0",  "5",  "2",  "0",  "2.5", "1",   "1", "0",    "0",    "0"},
    {"campata",        2, normativaNTC, pictDistribuitoConcorde,  "120",  "6",   "3",   "30",  "10",  "45", "3",  "0",  "4",  "6",   "1",   "1", "0.45", "0.52", "100"},
    {"sottile",        2, normativaEC3, pictConcentratoContro,    "900",  "4",   "4",   "80",  "60",  "50", "10", "10", "5",  "4",   "0.5", "1", "0.3",  "0.2",  "-80"},
    {"tesa",           0, normativaEC3, pictEstremitaConcordi,    "-150", "3",   "3",   "25",  "25",  "0",  "4",  "-4", "0",  "3",   "1",   "1", "0",    "0",    "0"},
    {"troppa",         1, normativaNTC, pictEstremitaConcordi,    "9000", "3",   "3",   "10",  "0",   "0",  "0",  "0",  "0",  "3",   "1",   "1", "0",    "0",    "0"},
    {"soloForza",      0, normativaEC3, pictEstremitaConcordi,    "600",  "6",   "3",   "0",   "0",   "0",  "0",  "0",  "0",  "3",   "1",   "1", "0",    "0",    "0"},
    {"soloTrazione",   2, normativaNTC, pictEstremitaConcordi,    "-800", "6",   "6",   "0",   "0",   "0",  "0",  "0",  "0",  "6",   "1",   "1", "0",    "0",    "0"},
    {"soloMz",         1, normativaEC3, pictEstremitaDiscordi,    "0",    "4",   "4",   "0",   "0",   "0",  "15", "-6", "0",  "4",   "1",   "1", "0",    "0",    "0"},
    {"contro",         0, normativaNTC, pictDistribuitoContro,    "80",   "7",   "3.5", "50",  "-20", "90", "2",  "2",  "1",  "3.5", "1",   "1", "0.45", "0.52", "150"},
    {"concentrata",    1, normativaNTC, pictConcentratoConcorde,  "60",   "5",   "5",   "20",  "20",  "70", "0",  "0",  "3",  "5",   "1",   "1", "0.55", "0.4",  "-60"},
    {"incastrata",     2, normativaEC3, pictConcentratoContro,    "300",  "3",   "1.5", "120", "-90", "80", "6",  "-3", "2",  "1.5", "0.5", "0.5", "0.42", "0.3", "0"},
    {"snella",         0, normativaEC3, pictEstremitaConcordi,    "40",   "12",  "12",  "15",  "10",  "0",  "1",  "0",  "0",  "12",  "1",   "1", "0",    "0",    "0"},
    {"tozza",          1, normativaEC3, pictEstremitaConcordi,    "1500", "0.5", "0.5", "90",  "40",  "0",  "9",  "4",  "0",  "0.5", "1",   "1", "0",    "0",    "0"},
    {"alta",           1, normativaAltro, pictEstremitaDiscordi,    "700",  "6",   "2",   "200", "-50", "0",  "12", "8",  "0",  "2",   "1",   "1", "0",    "0",    "0"},
    {"altissima",      2, normativaAltro, pictDistribuitoConcorde,  "1200", "5",   "2.5", "60",  "30",  "90", "4",  "2",  "2",  "2.5", "0.7", "1", "0.45", "0.5",  "120"},
    {"tesaInflessa",   2, normativaNTC, pictConcentratoConcorde,  "-400", "5",   "5",   "30",  "-10", "60", "3",  "-1", "2",  "5",   "1",   "1", "0.5",  "0.5",  "80"},
    {"caricoAppeso",   1, normativaNTC, pictDistribuitoConcorde,  "0",    "8",   "8",   "10",  "0",   "100","0",  "0",  "0",  "8",   "1",   "1", "0.45", "0.53", "-200"},
    {"minima",         0, normativaEC3, pictEstremitaConcordi,    "1",    "1",   "1",   "0.5", "0",   "0",  "0.1","0",  "0",  "1",   "1",   "1", "0",    "0",    "0"},
    {"biassiale",      0, normativaAltro, pictDistribuitoContro,    "450",  "4",   "4",   "70",  "50",  "60", "25", "10", "15", "4",   "1",   "1", "0.45", "0.5",  "50"}};
// clang-format on
static_assert(std::size(forze) >= 20);

inline double Letto(const char* text) {
    double v = 0;
    const char* end = text + std::strlen(text);
    if (std::from_chars(text, end, v).ptr != end)
        throw std::invalid_argument(text);
    return v;
}

inline MomentiMembratura Momenti(const char* M1, const char* M2, const char* MQ) {
    return {.M1 = kNm_a_Nmm(Letto(M1)), .M2 = kNm_a_Nmm(Letto(M2)), .MQ = kNm_a_Nmm(Letto(MQ))};
}

inline Richiesta RichiestaDi(const Forze& f) {
    Richiesta r;
    r.TipoAcciaio = NomeAcciaio[f.acciaio + 1];
    r.fy = fyAcciaio[f.acciaio + 1];
    r.fu = fuAcciaio[f.acciaio + 1];
    r.NSd = kN_a_N(Letto(f.N));
    r.L0y = m_a_mm(Letto(f.L0y));
    r.L0z = m_a_mm(Letto(f.L0z));
    r.y = Momenti(f.My1, f.My2, f.MyQ);
    r.z = Momenti(f.Mz1, f.Mz2, f.MzQ);
    r.pict = f.pict;
    r.tipoDiagramma = TipoDiPict(f.pict);
    r.LLT = m_a_mm(Letto(f.L));
    r.k = Letto(f.k);
    r.Kw = Letto(f.Kw);
    r.c2 = Letto(f.C2);
    r.c3 = Letto(f.C3);
    r.za = Letto(f.za);
    return r;
}

} // namespace sagomi::prove
