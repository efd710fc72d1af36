// A limit that is broken is told in the picture once: at its dimension, or over the picture where there is
// none.
#include <gmock/gmock.h>

#include <algorithm>

#include "NodoDisegnato.h"
#include "drawing/SuperficieFinta.h"
#include "joints/FiguraGiunto.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// How often a picture tells a limit.
std::ptrdiff_t Volte(const Nodo& n, const char* campo) {
    SuperficieFinta s(480, 600);
    const SuUscita uscita(&s);
    FiguraGiunto(n, nullptr, {{}, {}, campo, "min 22"}).PlottaInOggetto(&s, "frmGiunti");
    return std::count_if(s.scritte.begin(), s.scritte.end(),
                         [](const auto& t) { return t.testo.find("min 22") != std::string::npos; });
}

struct Misura {
    const char* nome;
    double Giunto::*campo;
};
const Misura misure[] = {{"nessuna", nullptr},       {"tf", &Giunto::tf}, {"bf", &Giunto::bf},
                         {"ef", &Giunto::ef},        {"d2", &Giunto::d2}, {"ex", &Giunto::ex},
                         {"dX", &Giunto::dX},        {"u", &Giunto::u},   {"L", &Giunto::L},
                         {"diametro", &Giunto::Diam}};

// Each size of the plate as it is, not there yet, and with its first digit typed.
TEST(LimiteInFigura, IsToldOnceWhateverIsMissing) {
    const StatoUscita prima;
    for (const int nf : {1, 2})
        for (const Misura& m : misure)
            for (const double valore : {0.0, 0.5, 1.0}) {
                const Nodo n = NodoDisegnato(nodoT, nf);
                Giunto& g = *n.ConnessioneCorrente;
                if (m.campo != nullptr)
                    g.*m.campo = valore;
                if (m.campo == &Giunto::ex || m.campo == &Giunto::dX)
                    g.L = g.ex + g.dX; // no other size follows
                for (const char* campo : {"tf", "bf", "ef", "d2", "ex", "dX", "u", "L"})
                    EXPECT_EQ(Volte(n, campo), 1)
                        << nf << " file, " << m.nome << ' ' << valore << ": " << campo;
            }
}

// Sections that are missing are told a line each, the sizes of the plate in one line when all sections are
// there.
TEST(LimiteInFigura, WhatIsMissingIsToldBySectionsFirst) {
    const auto detto = [](bool colonna, bool destra, bool sinistra) {
        Nodo n;
        n.ImpostaNodo();
        n.CaratterizzaGiunti();
        if (colonna)
            n.PuntatoreColonna(HEB200());
        if (destra)
            n.PuntatoreTraveDestra(IPE270());
        if (sinistra)
            n.PuntatoreTraveSinistra(IPE330());
        return DescrizioneGiunto(n, nullptr, {});
    };
    const std::string inizio = "Vista laterale e prospetto della flangia. ";
    EXPECT_EQ(detto(false, true, true), inizio + "Trave IPE 270, Manca colonna.");
    EXPECT_EQ(detto(true, false, true), inizio + "Colonna HE 200 B, Manca trave destra.");
    EXPECT_EQ(detto(true, true, false), inizio + "Colonna HE 200 B, Trave IPE 270, Manca trave sinistra.");
    EXPECT_EQ(detto(true, false, false),
              inizio + "Colonna HE 200 B, Manca trave destra, Manca trave sinistra.");
    EXPECT_EQ(detto(true, true, true), inizio + "Colonna HE 200 B, Trave IPE 270, Mancano tf, bf, ef, d1.");
    EXPECT_EQ(detto(false, false, false), "Nessun sagomo assegnato.");
}

} // namespace
