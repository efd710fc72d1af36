#include "joints/RelazioneGiunto.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "Approvato.h"
#include "Registratore.h"
#include "frame/FileDati.h"
#include "joints/NodoDaFile.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::Contains;
using testing::Not;

namespace {

const TestaRelazione testa{"nodo 12.Gfl", "Nodo di prova, però leggero"};

/// The case of that number of the table of checks, computed.
class Calcolato : public NodoDaFile {
public:
    explicit Calcolato(int numero) : NodoDaFile(Caso(numero), false) { nodo.EsegueCalcolo(); }

    static CasoDaFile Caso(int numero) {
        static const auto casi = LeggeCasi(SAGOMI_TEST_DATA "/joints/verifiche.txt");
        return casi.at(static_cast<std::size_t>(numero - 1));
    }
    [[nodiscard]] std::vector<std::string> Righe() const { return RigheRelazione(nodo, testa); }

private:
    Registratore boxes_;
};

/// What the lines are in a file.
std::string ByteScritti(const Nodo& nodo) {
    const auto percorso = std::filesystem::temp_directory_path() /
                          ("relazione_" + std::to_string(reinterpret_cast<std::uintptr_t>(&nodo)) + ".txt");
    const std::int16_t nFile = ApreFile(percorso, "S");
    EXPECT_TRUE(StampaRelazione(nodo, testa, [&](std::string_view r) { return ScriveRiga(nFile, r); }));
    ChiudeFile(nFile);
    std::ifstream f(percorso, std::ios::binary);
    std::string byte{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
    std::filesystem::remove(percorso);
    return byte;
}

int Posto(const std::vector<std::string>& righe, const std::string& riga) {
    const auto i = std::find(righe.begin(), righe.end(), riga);
    return i == righe.end() ? -1 : int(i - righe.begin());
}

// All values of the approved files were held against those of verifiche.txt by a script of its own: cross
// node with two rows and stiffeners, T node with two rows and Cp, T node with one row, left joint of a cross,
// Beta 0.
TEST(RelazioneGiunto, AlByte) {
    for (const int numero : {1, 3, 4, 18, 63}) {
        const Calcolato caso(numero);
        ConfrontaApprovato("joints/relazioni/verifica_" + std::to_string(numero) + ".txt",
                           ByteScritti(caso.nodo));
    }
}

// The values are those of case 1 of verifiche.txt, rounded by hand.
TEST(RelazioneGiunto, GruppiInOrdine) {
    const auto righe = Calcolato(1).Righe();
    const char* gruppi[] = {
        "   NOME FILE: nodo 12.Gfl",
        "   DESCRIZIONE: Nodo di prova, però leggero",
        "  -------------------------- GIUNTO : destro --------------------------",
        "     Colonna Inferiore : HEM 280",
        "     Trave : HEA 160",
        "  ---- Bulloni ----",
        "     d = 24 [mm]",
        "     d0 = 26 [mm]",
        "     lb = 73.25 [mm]",
        "  ---- Saldature trave ----",
        "     Ala: af = 6 [mm]",
        "     Anima: aw = 3 [mm]",
        "  ---- Flangia ----",
        "     Spessore: tf = 18 [mm]",
        "     Larghezza: bf = 182 [mm]",
        "     Distanza orizzontale del foro dal bordo (lato flangia): ef = 40 [mm]",
        "     Passo orizzontale fori: w = 102 [mm]",
        "     Passo verticale fori interni: p = 72 [mm]",
        "     Distanza orizzontale del foro dal bordo (lato colonna): ec = 93 [mm]",
        "     Distanza orizzontale del foro dall'anima della colonna: mc = 22.55 [mm]",
        "     Distanza orizzontale del foro dall'anima della trave: mf = 44.61 [mm]",
        "     Distanza verticale del foro dall'ala della trave: m1 = 24.21 [mm]",
        "     Distanza verticale del foro dall'ala della trave: m2 = 47.21 [mm]",
        "     Distanza verticale del foro dal bordo della flangia: ex = 41 [mm]",
        "     Distanza del bordo inferiore della flangia dall'ala della trave: u = 7 [mm]",
        "     Altezza della flangia: hf = 254 [mm]",
        "  ---- Irrigidimenti ----",
        "     Spessore = 9 [mm]",
        "     Larghezza: B = 130 [mm]",
        "     Lunghezza irrigidimento inferiore = 236 [mm]",
        "     Lunghezza irrigidimento superiore = 236 [mm]",
        "  --------- Resistenza dei singoli componenti ----------",
        "     Anima della colonna a trazione  = 1,628 [kN]",
        "     Anima della trave a trazione = 462.4 [kN]",
        "     Singola fila di bulloni a trazione = 406.7 [kN]",
        "     Ala della colonna a flessione     Fila int. = 406.7 [kN]",
        "                                  Fila est. = 406.7 [kN]",
        "     Flangia d'estremità a flessione     Fila int. = 339.8 [kN]",
        "                                    Fila est. = 171.7 [kN]",
        "     Anima della colonna a compressione (schiacciamento) = 1,820 [kN]",
        "     Pannello d'anima della colonna a taglio = 2,281 [kN]",
        "  ----- Coefficiente di rigidezza dei componenti ------",
        "     Pannello d'anima della colonna a taglio = 0.38",
        "     Anima della colonna a trazione  = Infinito",
        "     Ala della colonna a flessione     = 1.519",
        "     Singola fila di bulloni a trazione = 0.5210",
        "     Flangia d'estremità a flessione   = 0.0461",
        "     Anima della colonna a compressione = Infinito",
        "  ----- Coefficienti correttivi dei componenti ------",
        "     Ala della colonna a flessione     = 0.5135",
        "  ----------------------------------------------------------------",
        "     Coefficiente riduttivo di taglio beta = 0.4286",
        "     Coefficiente riduttivo Kwc = 1",
        "     Coefficiente riduttivo Kfc = 1",
        "     Resistenza efficace bulloni interni Frd.eff = 339.8 [kN]",
        "     Resistenza efficace bulloni esterni Frd.eff = 171.7 [kN]",
        "     Taglio sollecitante = 0 [kN]",
        "     Taglio Resistente Giunto Vj.rd (solo fila in zona compressa) = 271.1 [kN]",
        "     Taglio Resistente Giunto Vj.rd (fila compressa e fila tesa) = 348.6 [kN]",
        "     Momento sollecitante = 85.5 [kNm]",
        "     Momento Resistente Elastico del Giunto Mj.rd = 47.42 [kNm]",
        "     Momento Resistente Ultimo del Giunto Mj.rd = 71.14 [kNm]",
        "     Momento Resistente Trave Mrd = 67.40 [kNm]",
        " Giunto a completo ripristino di",
        "  resistenza (EC3-6.9.6.3)",
        "     Rigidezza rotazionale secante per Mj.Rd Sj = 10,186 [kNm/rad]",
        "     Rigidezza rotazionale secante per Mj.el Sj = 20,115 [kNm/rad]",
        "     Rigidezza rotazionale secante per Mj.Sd Sj = 7,288 [kNm/rad]",
        "     Limite Rigido - Semirigido telaio controventato = 6,246 [kNm/rad]",
        "     Limite Rigido - Semirigido telaio non controventato = 19,518 [kNm/rad]",
        "     Limite Semirigido - Cerniera = 390.4 [kNm/rad]",
        " Telaio controventato:Giunto rigido (EC3-6.9.6.2)",
        " Telaio non controventato:Giunto rigido (EC3-6.9.6.2)",
        "  -------------------------- GIUNTO : sinistro --------------------------",
        "non calcolato"};
    int ultimo = -1;
    for (const char* riga : gruppi) {
        const auto i = std::find(righe.begin() + ultimo + 1, righe.end(), riga);
        ASSERT_NE(i, righe.end()) << riga;
        ultimo = int(i - righe.begin());
    }
    EXPECT_EQ(ultimo + 1, int(righe.size()));
}

TEST(RelazioneGiunto, UnaFilaSenzaIrrigidimenti) {
    const auto righe = Calcolato(4).Righe();
    EXPECT_THAT(righe, Not(Contains(testing::HasSubstr("Fila est."))));
    EXPECT_THAT(righe, Not(Contains(testing::HasSubstr("bulloni esterni"))));
    EXPECT_THAT(righe, Not(Contains(testing::HasSubstr(": m2 = "))));
    EXPECT_THAT(righe, Not(Contains(testing::HasSubstr("Irrigidimenti"))));
    EXPECT_THAT(righe,
                Contains(testing::StartsWith("     Anima della colonna a compressione (instabilità) = ")));
    EXPECT_EQ(Posto(righe, "  -------------------------- GIUNTO : sinistro --------------------------"), -1);
}

TEST(RelazioneGiunto, SoloCompressioneHaUnaLunghezza) {
    const auto righe = Calcolato(3).Righe();
    EXPECT_THAT(righe, Contains(testing::StartsWith("     Lunghezza irrigidimenti = ")));
    EXPECT_THAT(righe, Not(Contains(testing::HasSubstr("irrigidimento inferiore"))));
    EXPECT_THAT(righe, Not(Contains(testing::HasSubstr("(instabilità)"))));
}

TEST(RelazioneGiunto, SinistroDopoIlDestro) {
    const auto righe = Calcolato(18).Righe();
    const int destro =
        Posto(righe, "  -------------------------- GIUNTO : destro --------------------------");
    EXPECT_EQ(destro, 2);
    EXPECT_EQ(righe[3], "non calcolato");
    EXPECT_EQ(righe[4], "  -------------------------- GIUNTO : sinistro --------------------------");
    EXPECT_THAT(righe, Contains("     Trave : IPE 120"));
}

TEST(RelazioneGiunto, BetaZeroInfinito) {
    const auto righe = Calcolato(63).Righe();
    const std::string riga = "     Pannello d'anima della colonna a taglio = Infinito";
    EXPECT_EQ(std::count(righe.begin(), righe.end(), riga), 2); // resistance and coefficient
}

TEST(RelazioneGiunto, CasellaVuotaSenzaUnita) {
    Calcolato caso(4);
    caso.giunto().Trave->lunghezza() = 0;
    const auto righe = caso.Righe();
    EXPECT_THAT(righe, Contains("     Limite Semirigido - Cerniera = "));
    EXPECT_THAT(righe, Contains(" luce non data"));
}

TEST(RelazioneGiunto, ChiScriveFermaLaRelazione) {
    const Calcolato caso(4);
    int scritte = 0;
    EXPECT_FALSE(StampaRelazione(caso.nodo, testa, [&](std::string_view) { return ++scritte < 3; }));
    EXPECT_EQ(scritte, 3);
}

} // namespace
