#include "report/RelazioneNodo.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "frame/Ambiente.h"
#include "frame/GeneraleSagomi.h"
#include "joints/ComponentiGiunto.h"
#include "joints/NodoDisegnato.h"
#include "report/Passi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class RelazioneNodoTest : public testing::Test {
protected:
    RelazioneNodoTest() : nodo(NodoDisegnato(nodoT, 1, "No")) {
        nodo.TraveDx->McyRd = 484e3 * 235 / 1.05;
        nodo.TraveDx->NplRd = 1e6;
        nodo.ConnessioneCorrente->Criterio1 = false;
        nodo.EsegueCalcolo();
    }
    void TearDown() override { RipristinaGenerale(); }
    [[nodiscard]] Giunto& giunto() const { return *nodo.ConnessioneCorrente; }
    /// What the check of the moment says that governs.
    [[nodiscard]] std::string Governante() const {
        for (const CapitoloRelazione& c : RelazioneNodo(nodo, "").capitoli)
            if (c.titolo == "Verifica a momento, giunto destro")
                return c.verdetto->governa;
        return "nessun capitolo";
    }

    Registratore quiet;
    Nodo nodo;
};

TEST_F(RelazioneNodoTest, TheRowsGovernUnlessTheyHadToGiveWay) {
    ASSERT_TRUE(giunto().Acquisito);
    giunto().ComponenteDeboleFilaInf = " Fila int. dalla flangia di estremità a flessione";
    giunto().ComponenteDebole = " dal pannello della colonna a taglio";
    giunto().TipoMessaggio = 0;
    EXPECT_EQ(Governante(), "flangia d'estremità");
    giunto().TipoMessaggio = 1;
    EXPECT_EQ(Governante(), "pannello d'anima della colonna");
    giunto().TipoMessaggio = 0;
    giunto().nf = 2;
    giunto().ComponenteDeboleFilaSup = " Fila est. ala della colonna a flessione";
    EXPECT_EQ(Governante(), "ala della colonna, fila esterna; flangia d'estremità, fila interna");
}

/// How many steps begin with a word.
long Quanti(const Relazione& r, std::string_view inizio) {
    long n = 0;
    for (const CapitoloRelazione& c : r.capitoli)
        n += std::ranges::count_if(
            c.passi, [&](const PassoRelazione& p) { return p.descrizione.starts_with(inizio); });
    return n;
}

// One and two rows, with and without stiffeners: the numbers give the value beside them.
TEST_F(RelazioneNodoTest, FormulasGiveTheValuesBesideThem) {
    for (const int nf : {1, 2})
        for (const char* irrigidimenti : {"No", "Cp", "Si"}) {
            nodo = NodoDisegnato(nodoT, nf, irrigidimenti);
            nodo.TraveDx->McyRd = 484e3 * 235 / 1.05;
            nodo.TraveDx->NplRd = 1e6;
            giunto().Criterio1 = false;
            nodo.EsegueCalcolo();
            ASSERT_TRUE(giunto().Acquisito);
            const Relazione r = RelazioneNodo(nodo, "");
            ProvaNumeri(r);
            for (const char* simbolo : {"B{t,Rd}", "M{pl,Rd}", "F{t,1,Rd}", "F{t,2,Rd}", "F{t,3,Rd}"}) {
                EXPECT_FALSE(Passo(r, simbolo).formula.empty()) << simbolo;
                EXPECT_FALSE(Passo(r, simbolo).numeri.empty()) << simbolo << nf << irrigidimenti;
            }
        }
    giunto().fubl = 500; // since the check
    EXPECT_EQ(Passo(RelazioneNodo(nodo, ""), "B{t,Rd}").numeri, "");
}

// With the formulas beside the program: the least of the modes, whose own formulas stand above it.
TEST_F(RelazioneNodoTest, NumbersStandBehindTheFirstLineOfABlock) {
    PathInstallazione = std::filesystem::path(SAGOMI_TEST_DATA) / "../../data";
    const Relazione r = RelazioneNodo(nodo, "");
    PathInstallazione.clear();
    ProvaNumeri(r);
    const PassoRelazione minimo = Passo(r, "F{individuale}");
    EXPECT_EQ(minimo.formula, "min(F{t,1,Rd}; F{t,2,Rd}; F{t,3,Rd})");
    EXPECT_TRUE(minimo.numeri.starts_with("min("));
    EXPECT_NE(minimo.numeri.find("\nn = min(e{c}"), std::string::npos) << minimo.numeri;
    EXPECT_EQ(minimo.numeri.find("M{pl}"), std::string::npos) << minimo.numeri;
    const PassoRelazione momento = Passo(r, "M{j,Rd}");
    EXPECT_EQ(momento.formula, "z{est} · F{est} + z{int} · F{int}");
    EXPECT_TRUE(momento.numeri.ends_with("t{f,b}")) << momento.numeri;
}

// Lines of a block that do not begin with its symbol are a text: they stay below, the numbers stay numbers.
TEST_F(RelazioneNodoTest, ATextOfABlockStaysApartFromTheNumbers) {
    const CartellaDiProva cartella;
    ScriveByte(cartella.percorso / "FormuleGiunto.rtf",
               "{\\rtf1\\ansi\\uc1\n{\\fonttbl{\\f0 Arial;}}\n{\\pard\\plain\\v\nSTART-RTF-GIUNTO\n"
               "ID-RTF-GIUNTO-VplRd_Pannello_c\n\\pard\\plain{\\b V{\\sub x}}  Taglio \\par\n"
               "\\pard\\plain\\li567 se A > 0:\\par\n\\pard\\plain\\li567 W = A f\\par\n"
               "\\v\nID-RTF-GIUNTO-VplRd_Pannello_c\n}}\n");
    PathInstallazione = cartella.percorso;
    const PassoRelazione p = Passo(RelazioneNodo(nodo, ""), "V{x}");
    PathInstallazione.clear();
    EXPECT_EQ(p.formula, "\nse A > 0:\nW = A f");
    EXPECT_NE(p.numeri, "");
    EXPECT_EQ(p.numeri.find('\n'), std::string::npos) << p.numeri;
}

// A file keeps the resistance in single precision: what differs by less has the same steps.
TEST_F(RelazioneNodoTest, AJointThatWasReadHasItsStepsWhileTheyLeadToItsResistance) {
    giunto().Traccia.clear();
    const double letta = giunto().MplRdGIUNTO;
    giunto().MplRdGIUNTO = Singolo(letta * (1 + 2e-7));
    EXPECT_TRUE(Ha(RelazioneNodo(nodo, ""), "B{t,Rd}"));
    giunto().MplRdGIUNTO = Singolo(letta * 1.01);
    EXPECT_FALSE(Ha(RelazioneNodo(nodo, ""), "B{t,Rd}"));
}

// Moments that turn a column the same way: beta 2, half the shear of the panel (ENV 1993-1-1 annex J).
TEST_F(RelazioneNodoTest, MomentsOfOppositeSignsHalveThePanel) {
    nodo = NodoDisegnato(nodoCroce, 1, "No");
    for (const auto& trave : {nodo.TraveDx.Riferimento(), nodo.TraveSx.Riferimento()}) {
        trave->McyRd = 484e3 * 235 / 1.05;
        trave->NplRd = 1e6;
    }
    nodo.TraveDx->Mysd = 40;
    nodo.TraveSx->Mysd = -40;
    nodo.nGiunto = 1;
    nodo.ConnessioneCorrente = nodo.Giunti[1].Usa();
    giunto().Criterio1 = false;
    nodo.EsegueCalcolo();
    ASSERT_EQ(giunto().Beta, 2);
    const Relazione r = RelazioneNodo(nodo, "");
    ProvaNumeri(r);
    const std::string numeri = Passo(r, "V{plRd_Pannello_c}").numeri;
    EXPECT_NE(numeri.find(" · 2) · 10^{-3}"), std::string::npos) << numeri;
}

TEST_F(RelazioneNodoTest, WithoutASpanThereAreNeitherASpanNorLimits) {
    nodo.TraveDx->lunghezza() = 6;
    EXPECT_EQ(Quanti(RelazioneNodo(nodo, ""), "Limite "), 3);
    nodo.TraveDx->lunghezza() = 0;
    const Relazione r = RelazioneNodo(nodo, "");
    EXPECT_EQ(Quanti(r, "Limite "), 0);
    for (const PassoRelazione& p : r.capitoli[0].passi)
        if (p.descrizione == "Trave destra, luce") {
            EXPECT_EQ(p.valore, "non data");
            EXPECT_EQ(p.unita, "");
        }
}

} // namespace
