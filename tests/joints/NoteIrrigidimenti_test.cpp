#include "joints/NoteIrrigidimenti.h"

#include <gmock/gmock.h>

#include "drawing/SuperficieFinta.h"
#include "joints/Nodo.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

Nodo NodoConTravi(const Sezione& destra, const Sezione& sinistra) {
    Nodo nodo;
    nodo.ImpostaNodo();
    nodo.CaratterizzaGiunti();
    nodo.PuntatoreTraveDestra(destra);
    nodo.PuntatoreTraveSinistra(sinistra);
    nodo.PuntatoreColonna(HEB300());
    nodo.PreparaSalvataggio();
    return nodo;
}

TEST(NoteIrrigidimenti, TraviDiAltezzaDiversa) {
    Nodo nodo = NodoConTravi(IPE300(), IPE600());
    const IrrigidimentiNodo irr(nodo);
    EXPECT_TRUE(irr.inclinato);
    const auto note = NoteIrrigidimenti(irr);
    EXPECT_THAT(note, Contains(HasSubstr("l'irrigidimento inferiore è inclinato")));
    EXPECT_THAT(note, Contains(HasSubstr("cartella \"Geometria\" è quella reale, lungo la linea media")));
    EXPECT_THAT(note, Contains("L'irrigidimento superiore è sempre orizzontale, qualunque sia l'altezza "
                               "delle travi."));
}

TEST(NoteIrrigidimenti, SoloZonaCompressaSenzaQuelloSuperiore) {
    Nodo nodo = NodoConTravi(IPE300(), IPE600());
    nodo.ConnessioneCorrente->Irrigidimenti = "Cp";
    EXPECT_THAT(NoteIrrigidimenti(IrrigidimentiNodo(nodo)), Not(Contains(HasSubstr("superiore"))));
}

TEST(NoteIrrigidimenti, UnaTrave) {
    Nodo nodo = NodoConTravi(IPE300(), IPE600());
    nodo.NumeroGiunti = 1;
    const IrrigidimentiNodo irr(nodo);
    EXPECT_FALSE(irr.inclinato);
    EXPECT_THAT(NoteIrrigidimenti(irr), Not(Contains(HasSubstr("inclinato"))));
}

/// Height difference of the lower stiffener's dimension line, the first that carries the letter.
double Pendenza(const IrrigidimentiNodo& irr) {
    SuperficieFinta video(230, 250);
    const SuUscita uscita(&video);
    DisegnoIrrigidimenti(irr).PlottaInOggetto(&video, "FrmInfoGiunti");
    EXPECT_EQ(video.Testi(), std::vector<std::string>{"L"});
    double massima = 0;
    for (const auto& l : video.linee)
        if (std::abs(l.x2 - l.x1) > 40)
            massima = std::max(massima, std::abs(l.y2 - l.y1));
    return massima;
}

TEST(DisegnoIrrigidimenti, InclinatoSoloConTraviDiverse) {
    IrrigidimentiNodo irr;
    irr.dueTravi = true;
    EXPECT_LT(Pendenza(irr), 1e-9);
    irr.inclinato = true;
    EXPECT_GT(Pendenza(irr), 40);
}

} // namespace
