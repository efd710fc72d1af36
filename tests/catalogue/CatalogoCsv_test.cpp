#include "catalogue/CatalogoCsv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Famiglie.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using testing::HasSubstr;

namespace {

using S = std::string;

const S testaSaldati =
    "designation,g_kg_m,h_mm,b_mm,tw_mm,tf_mm,r_mm,A_cm2,Iy_cm4,Wy_cm3,Wply_cm3,iy_cm,Iz_cm4,Wz_cm3,Wplz_cm3,"
    "iz_cm,IT_cm4,Iw_cm6\n";
const S rigaSaldata =
    "ISE 300x37,37.1,300,150,6,10,5,47.3,7503,500.2,559.5,12.59,563.1,75.08,115.3,,12.02,118400\n";
const S testaCanali =
    "designation,g_kg_m,h_mm,b_mm,tw_mm,tf_mm,r1_mm,r2_mm,A_cm2,Iy_cm4,Wy_cm3,Wply_cm3,iy_cm,Iz_cm4,Wz_cm3,"
    "Wplz_cm3,iz_cm,IT_cm4,Iw_cm6,e_cm\n";
const S rigaCanale =
    "UPN 50,5.6,50,38,5,7,7,3.5,7.1,26.4,10.6,13.1,1.92,9.12,3.742,6.894,1.13,1.12,30,1.369\n";

TEST(FoglioDaCsv, HeadingsOfTheScreenAndFiguresOfTheTable) {
    const Foglio f = FoglioDaCsv("ISE", "frmSaldati", testaSaldati + rigaSaldata);
    EXPECT_EQ(f.nome, "ISE");
    ASSERT_EQ(f.righe.size(), 2U);
    EXPECT_EQ(f.Legge(0, 0), Valore(S("Designation")));
    EXPECT_EQ(f.Legge(0, 10), Valore(S("Wpl,y (cm3)")));
    EXPECT_EQ(f.Legge(1, 0), Valore(S("ISE 300x37")));
    EXPECT_EQ(f.Legge(1, 7), Valore(47.3));
    EXPECT_TRUE(Vuoto(f.Legge(1, 15))); // an empty field is an empty cell
    EXPECT_EQ(f.Legge(1, 17), Valore(118400.0));
}

TEST(FoglioDaCsv, DistanceOfTheCentroidIsNotWritten) {
    const Foglio f = FoglioDaCsv("UPN", "frmSagomiU", testaCanali + rigaCanale);
    EXPECT_EQ(f.righe[0].size(), 19U);
    EXPECT_EQ(f.righe[1].size(), 19U);
    EXPECT_EQ(f.Legge(0, 1), Valore(S("g (kg/m)")));
    EXPECT_EQ(f.Legge(1, 18), Valore(30.0));
}

// Each column of the table by its number, from the first figure to the last.
TEST(FoglioDaCsv, EveryColumnInItsPlace) {
    S riga = "nome";
    for (int c = 1; c < 18; ++c)
        riga += "," + std::to_string(c) + ".5";
    const Foglio f = FoglioDaCsv("ISE", "frmSaldati", testaSaldati + riga + "\n" + riga + "\n");
    ASSERT_EQ(f.righe.size(), 3U);
    for (std::size_t c = 1; c < 18; ++c) {
        EXPECT_EQ(f.Legge(1, c), Valore(static_cast<double>(c) + 0.5));
        EXPECT_EQ(f.Legge(2, c), f.Legge(1, c));
        EXPECT_EQ(f.Legge(0, c), Valore(S(Intestazioni("frmSaldati")[c])));
    }
}

S Errore(const S& csv, const char* schermo = "frmSaldati") {
    try {
        FoglioDaCsv("ISE", schermo, csv);
    } catch (const ErroreCatalogo& e) {
        return e.what();
    }
    return "";
}

TEST(FoglioDaCsv, TellsSheetLineAndWhatIsWrong) {
    EXPECT_EQ(Errore(""), "Errore nella tabella \"ISE\", riga 1: manca.");
    EXPECT_EQ(Errore("designation,g_kg_m\n"), "Errore nella tabella \"ISE\", riga 1: 2 colonne.");
    EXPECT_EQ(Errore(testaSaldati + "ISE 300x37,37.1\n"), "Errore nella tabella \"ISE\", riga 2: 2 valori.");
    S scambiate = testaSaldati;
    scambiate.replace(scambiate.find("h_mm,b_mm"), 9, "b_mm,h_mm");
    EXPECT_EQ(Errore(scambiate), "Errore nella tabella \"ISE\", riga 1: \"b_mm\" al posto di \"h (mm)\".");
    EXPECT_EQ(Errore("nome" + testaSaldati.substr(11)),
              "Errore nella tabella \"ISE\", riga 1: \"nome\" al posto di \"Designation\".");
    S ultima = testaSaldati;
    ultima.replace(ultima.find("Iw_cm6"), 6, "IT_cm4");
    EXPECT_EQ(Errore(ultima), "Errore nella tabella \"ISE\", riga 1: \"IT_cm4\" al posto di \"Iw (cm6)\".");
    S lettere = rigaSaldata;
    lettere.replace(lettere.find("7503"), 4, "75o3");
    EXPECT_EQ(Errore(testaSaldati + rigaSaldata + lettere),
              "Errore nella tabella \"ISE\", riga 3: \"75o3\" non è un numero.");
    EXPECT_THAT(Errore(testaSaldati + rigaSaldata, "frmSaldatiAsimm"), HasSubstr("18 colonne"));
}

TEST(CatalogoDaCsv, MissingTableIsTold) {
    const prove::CartellaDiProva dir;
    try {
        CatalogoDaCsv(dir.percorso);
        FAIL();
    } catch (const ErroreCatalogo& e) {
        EXPECT_EQ(e.what(), "Errore nella lettura di \"" + (dir.percorso / "HEA.csv").string() +
                                "\": il file non si apre.");
    }
}

TEST(CatalogoDaCsv, SheetsInTheOrderOfTheBoxes) {
    const CartellaDati c = CatalogoDaCsv(SAGOMI_CATALOGUE_DATA);
    std::vector<S> nomi;
    for (const Foglio& f : c.fogli)
        nomi.push_back(f.nome);
    EXPECT_THAT(nomi,
                testing::ElementsAre("HEA", "HEB", "HEM", "IPE", "IPEO", "IPEA", "IPEX", "IPN", "HD", "HEX",
                                     "HP", "HEAA", "UC", "UB", "W", "HL", "HSE", "HSL", "HSU", "HSH", "ISE",
                                     "HSA", "HSD", "UPN", "UAP", "L Uguali", "L Disuguali"));
}

} // namespace
