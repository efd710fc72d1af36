#include "fasteners/ui/AmbienteBulloni.h"
#include "frame/ui/Casella.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

TEST_F(FrmBulloniTest, SumAndVerdictOfShearAndTension) {
    Apre();
    M16();
    Scrive("Txt_FSd_0", "20");
    Scrive("Txt_FSd_1", "50");
    // 20 / 60.288 + 50 / 1.4 / 90.432
    EXPECT_EQ(Somma(), Locale(" 0.3317 +  0.3949 =  0.7267"));
    EXPECT_EQ(Verdetto(), "OK");
    Scrive("Txt_FSd_0", "60");
    EXPECT_EQ(Somma(), Locale(" 0.9952 +  0.3949 =  1.390"));
    EXPECT_EQ(Verdetto(), "NO");
    EXPECT_EQ(Trova<QLabel>(b, "Lbl_Risultato_1")->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    Scrive("Txt_FSd_0", "");
    EXPECT_EQ(Somma(), Locale(" 0 +  0.3949 =  0.3949"));
    EXPECT_EQ(Verdetto(), "OK");
}

TEST_F(FrmBulloniTest, ForcesAndThicknessesThatCannotBeAreMarked) {
    Apre();
    M16();
    Scrive("Txt_FSd_0", "20");
    Scrive("Txt_FSd_1", "-5");
    EXPECT_EQ(Somma(), "");
    EXPECT_EQ(Verdetto(), "");
    EXPECT_EQ(Trova<QLineEdit>(b, "Txt_FSd_1")->toolTip(), "La forza non può essere negativa");
    Scrive("Txt_FSd_1", "5");
    EXPECT_EQ(Verdetto(), "OK");
    Scrive("Txt_Rif_0", "-10");
    EXPECT_EQ(Legge("Txt_Rif_7"), "");
    EXPECT_EQ(Trova<QLineEdit>(b, "Txt_Rif_0")->toolTip(), "Lo spessore non può essere negativo");
    Scrive("Txt_Rif_0", "10");
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 115.2"));
    EXPECT_TRUE(registratore.testi.empty());
}

// Ft,Rd 90.432: 100 / 1.4 / 90.432 = 0.7899 passes in the sum, 100 / 90.432 = 1.106 does not.
TEST_F(FrmBulloniTest, TensionAloneBeyondItsResistanceIsNoThoughTheSumPasses) {
    Apre();
    M16();
    Scrive("Txt_FSd_1", "100");
    EXPECT_EQ(Somma(), Locale(" 0 +  0.7899 =  0.7899")) << "the sum keeps its value";
    EXPECT_EQ(Verdetto(), "NO");
    EXPECT_EQ(Scritta("LblUtilizzo"), "Utilizzo " + Locale("110.6") + " % (governa trazione)");
    EXPECT_TRUE(Trova<QLabel>(b, "LblSimTrazione")->font().bold()) << "marked in the line, too";
    EXPECT_FALSE(Trova<QLabel>(b, "LblSimTaglio")->font().bold());
    EXPECT_EQ(Trova<QLabel>(b, "Lbl_Risultato_0")->accessibleDescription(), "Termine che governa: trazione");
    const std::string motivo =
        "Ft,Sd = " + Locale("100.0") + " kN supera da sola Ft,Rd = " + Locale("90.432") + " kN";
    EXPECT_EQ(Scritta("LblMotivo"), motivo);
    EXPECT_EQ(Trova<Casella>(b, "Txt_FSd_1")->SegnoMostrato(), Casella::Impossibile);
    EXPECT_EQ(Trova<Casella>(b, "Txt_FSd_1")->toolTip().toStdString(), motivo);
    EXPECT_EQ(Trova<Casella>(b, "Txt_FSd_0")->SegnoMostrato(), Casella::Nessuno);
    Scrive("Txt_FSd_1", "90");
    EXPECT_EQ(Verdetto(), "OK");
    EXPECT_EQ(Scritta("LblMotivo"), "");
    EXPECT_EQ(Trova<Casella>(b, "Txt_FSd_1")->SegnoMostrato(), Casella::Nessuno);
    EXPECT_EQ(Scritta("LblUtilizzo"), "Utilizzo " + Locale("99.5") + " % (governa trazione)");
}

TEST_F(FrmBulloniTest, ShearBeyondBearingIsNoAsSoonAsThereIsAPlate) {
    Apre();
    M16();
    Scrive("Txt_Rif_0", "");
    Scrive("Txt_FSd_0", "50");
    EXPECT_EQ(Verdetto(), "OK") << "no plate";
    EXPECT_EQ(Scritta("LblUtilizzo"), "Utilizzo " + Locale("82.9") + " % (governa taglio)"); // 50 / 60.288
    Scrive("Txt_Rif_0", "4"); // 115.2 · 4 / 10 = 46.08
    EXPECT_EQ(Somma(), Locale(" 0.8294 +  0 =  0.8294"));
    EXPECT_EQ(Verdetto(), "NO");
    EXPECT_EQ(Scritta("LblMotivo"),
              "Fv,Sd = " + Locale("50.0") + " kN supera da sola Fb,Rd = " + Locale("46.08") + " kN");
    EXPECT_EQ(Trova<Casella>(b, "Txt_FSd_0")->SegnoMostrato(), Casella::Impossibile);
    Scrive("Txt_Rif_0", "8");
    EXPECT_EQ(Verdetto(), "OK");
    Scrive("Txt_Rif_2", "21"); // below 1.2 do: nothing is borne
    EXPECT_EQ(Legge("Txt_Rif_7"), " 0");
    EXPECT_EQ(Verdetto(), "NO");
    Diametro("16");
    EXPECT_EQ(Verdetto(), "OK") << "usual distances again";
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmBulloniTest, LengthsThatCannotBeLeaveNeitherResultNorVerdict) {
    Apre();
    M16();
    Scrive("Txt_FSd_0", "20");
    for (const char* box : {"Txt_Rif_0", "Txt_Rif_1", "Txt_Rif_2", "Txt_Rif_3", "Txt_Rif_4", "Txt_Rif_5"}) {
        const std::string before = Legge(box);
        auto* entry = Trova<Casella>(b, box);
        entry->setFocus();
        entry->selectAll();
        QTest::keyClicks(entry, "-5");
        QTest::keyClick(entry, Qt::Key_Return);
        EXPECT_EQ(Legge(box), "-5") << "marked, not mended";
        EXPECT_EQ(entry->SegnoMostrato(), Casella::Impossibile) << box;
        EXPECT_TRUE(entry->toolTip().contains("non può essere negativ")) << box;
        for (const char* result : {"Txt_Rif_6", "Txt_Rif_7"})
            EXPECT_EQ(Legge(result), "") << box;
        EXPECT_EQ(Verdetto(), "") << box;
        EXPECT_EQ(Scritta("LblUtilizzo"), "") << box;
        entry->setText(QString::fromStdString(before));
        EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 115.2")) << box;
        EXPECT_EQ(Verdetto(), "OK") << box;
        EXPECT_EQ(entry->SegnoMostrato(), Casella::Nessuno) << box;
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmBulloniTest, ADistanceOnItsWayEmptiesTheResultAndIsPutBack) {
    Apre();
    M16();
    auto* e1 = Trova<QLineEdit>(b, "Txt_Rif_2");
    e1->setFocus();
    e1->selectAll();
    QTest::keyClicks(e1, "0");
    EXPECT_EQ(Legge("Txt_Rif_7"), "");
    QTest::keyClick(e1, Qt::Key_Return);
    EXPECT_EQ(Legge("Txt_Rif_2"), "54");
    EXPECT_EQ(Legge("Txt_Rif_7"), Locale(" 115.2"));
    e1->setFocus();
    e1->selectAll();
    QTest::keyClicks(e1, "27"); // 27 / 54, at each key
    EXPECT_EQ(Legge("Txt_Rif_6"), Locale(" 0.5"));
}

TEST_F(FrmBulloniTest, ZeroResistanceHasNeitherSumNorVerdict) {
    partenza = &Avvia();
    ClasseBullone[1] = 12.9; // a settings file may hold any
    Riapre();
    EXPECT_FALSE(registratore.testi.empty());
    for (const std::string& testo : registratore.testi)
        EXPECT_EQ(testo, "Classe bullone non implementata");
    EXPECT_EQ(Legge("Txt_FVRd"), " 0");
    EXPECT_EQ(Legge("Txt_FtRd"), Locale(" 33.35")) << "0.9 · 1200 · 38.6 / 1.25";
    EXPECT_EQ(Somma(), "");
    EXPECT_EQ(Verdetto(), "");
    registratore.testi.clear();
    Classe("8.8");
    Scrive("Txt_FSd_0", "0");
    EXPECT_EQ(Somma(), " 0 +  0 =  0");
    EXPECT_TRUE(registratore.testi.empty());
    Classe("12.9");
    EXPECT_EQ(registratore.testi.size(), 1U);
}

} // namespace
