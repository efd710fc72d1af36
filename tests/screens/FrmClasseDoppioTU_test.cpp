#include "screens/FrmClasseDoppioTU.h"

#include <QPushButton>

#include "frame/ui/UpDown.h"
#include "screens/Dettagli.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmClasseDoppioTUTest : public AmbienteSchermi {
protected:
    FrmClasseDoppioTU& Apre(const char* section) {
        s = &Avvia();
        VaA(*s, section);
        Trova<QPushButton>(s, "LblClasse")->click();
        return dynamic_cast<FrmClasseDoppioTU&>(
            *NavigaSchermi::Unico().Trova(QStringLiteral("FrmClasseDoppioTU")));
    }
    /// Texts of the labels name_0, name_1, ...
    static std::vector<std::string> Testi(const Schermo& f, const char* name) {
        std::vector<std::string> texts;
        for (const QLabel* label : f.Vettore<QLabel>(QString::fromLatin1(name)))
            texts.push_back(label->text().toStdString());
        return texts;
    }
    /// A welded section of different flanges, S355, its web and flanges slender.
    static std::shared_ptr<SezioneDoppioT> Asimmetrica() {
        auto z = std::make_shared<SezioneDoppioT>();
        z->Saldata = true;
        z->SaldataAsimm = true;
        z->fy = 355;
        z->h = 1000;
        z->b = 400;
        z->tf = 10;
        z->tw = 6;
        z->r = 5;
        z->bAlaInf = 250;
        z->tAlaInf = 12.5;
        z->Area = 12865;
        z->Jy = 2e9;
        z->Jz = 7e7;
        z->iY = 394;
        z->iZ = 74;
        z->Wely = 3.9e6;
        z->Welz = 3.5e5;
        z->Wply = 4.5e6;
        z->Wplz = 6e5;
        z->InizializzaSezione();
        return z;
    }
    frmDoppioT* s = nullptr;
};

using Lista = std::vector<std::string>;

// IPE 300: d = 300 - 2 (10.7 + 15) = 248.6, / 7.1 = 35.014; c = 75 - 3.55 - 15 = 56.45, / 10.7 = 5.276.
TEST_F(FrmClasseDoppioTUTest, ShowsEachPlateOfARolledSection) {
    auto& f = Apre("IPE 300");
    EXPECT_EQ(f.windowTitle(), "Classificazione - EC3 #5.5.2  NTC2018 #4.2.3.1");
    EXPECT_EQ(Testo(&f, "Txt_Prof"), "IPE 300");
    EXPECT_EQ(Testo(&f, "Txt_TipoAcciaio"), "S235 (Fe360)");
    EXPECT_EQ(Testo(&f, "Txt_fy"), "235");
    EXPECT_EQ(Scritta(&f, "Lbl_fy"), "235");
    EXPECT_EQ(Scritta(&f, "Lbl_eps"), Locale("1.00"));
    EXPECT_EQ(Scritta(&f, "Lbl_d"), Locale("248.6"));
    EXPECT_EQ(Scritta(&f, "Lbl_tw"), Locale("7.1"));
    EXPECT_EQ(Scritta(&f, "lblAnimaPer"), " x ");
    EXPECT_EQ(Scritta(&f, "Lbl_SnellWeb"), Locale("35.01"));
    EXPECT_EQ(Testi(f, "Lbl_LimiteWeb"), (Lista{"0", "72", "33", "38"}));
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseWebF"), "1");
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseWebC"), "2");
    EXPECT_EQ(Scritta(&f, "Lbl_c"), Locale("56.45"));
    EXPECT_EQ(Scritta(&f, "Lbl_tf"), Locale("10.70"));
    EXPECT_EQ(Scritta(&f, "lblAlaPer"), " x ");
    EXPECT_EQ(Scritta(&f, "Lbl_SnellAla"), Locale("5.28"));
    EXPECT_EQ(Testi(f, "Lbl_LimiteAla"), (Lista{"0", "9", "0", "9"}));
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseAlaF"), "1");
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseAlaC"), "1");
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseC"), "1") << "in bending: there is no force";
}

TEST_F(FrmClasseDoppioTUTest, ClassInCompressionWithBendingFollowsTheForce) {
    auto& f = Apre("IPE 300");
    Scrive(s, "TxtNsd", "300");
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseC"), "2");
}

TEST_F(FrmClasseDoppioTUTest, ClassFourHasNoUpperLimit) {
    auto& f = Apre("IPE 300");
    Scrive(s, "Txt_fy", "355"); // epsilon 0.81362: web 43.04
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_eps"), Locale("0.814"));
    EXPECT_EQ(Scritta(&f, "Lbl_SnellWeb"), Locale("43.04"));
    EXPECT_EQ(Testi(f, "Lbl_LimiteWeb"), (Lista{"0", "72", "42", "¥"}));
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseWebC"), "4");
}

TEST_F(FrmClasseDoppioTUTest, InfinityIsPaintedForTheMark) {
    auto& f = Apre("IPE 300");
    auto* limit = Trova<QLabel>(&f, "Lbl_LimiteWeb_3");
    limit->setText(QString(QChar(0x221E)));
    const QImage infinity = limit->grab().toImage();
    limit->setText(QStringLiteral("¥"));
    const QImage mark = limit->grab().toImage();
    limit->setText(QStringLiteral("38"));
    EXPECT_NE(mark, limit->grab().toImage());
    int different = 0;
    for (int x = 0; x < mark.width(); ++x)
        for (int y = 0; y < mark.height(); ++y)
            different += mark.pixel(x, y) != infinity.pixel(x, y) ? 1 : 0;
    EXPECT_LE(different, mark.width() * mark.height() / 20) << "the same sign, at most a pixel aside";
}

TEST_F(FrmClasseDoppioTUTest, ExplainsTheClassInNineLines) {
    auto& f = Apre("IPE 300");
    Trova<QPushButton>(&f, "LblClasse")->click();
    ASSERT_EQ(registratore.testi.size(), 1U);
    // half of the web's 7.1 · 248.6 · 235 / 1.05 = 395.04 kN, below a quarter of 1204.3
    EXPECT_EQ(registratore.testi[0],
              "Poiché non è logico penalizzare la resistenza a presso-flessione della sezione,\n"
              "classificandola in base alla classe a compressione dell'anima\n"
              "anche in presenza di azioni assiali modeste,\n"
              "si adotta un criterio mutuato dalla regola EC3 #6.2.9.1 (4)\n"
              "Se Nsd < " +
                  Locale(" 197.5") +
                  " kN\n"
                  "(valore minore fra la metà della resistenza plastica dell'anima\n"
                  " ed un quarto della resistenza plastica della sezione)\n"
                  "si assume la classe a flessione.\n"
                  "Altrimenti si assume la classe a compressione.");
}

TEST_F(FrmClasseDoppioTUTest, EqualFlangesShowNoLowerOne) {
    auto& f = Apre("IPE 300");
    for (const char* name : {"lblAlaInf", "Lbl_cInf", "Lbl_tfInf", "Lbl_SnellAlaInf", "Lbl_LimiteAlaInf_0",
                             "Lbl_LimiteAlaInf_1", "Lbl_ClasseAlaInfF", "Lbl_ClasseAlaInfC"})
        EXPECT_TRUE(Trova<QLabel>(&f, name)->isHidden()) << name;
}

// epsilon 0.81362. Web 1000 - 22.5 - 10 = 967.5 / 6 = 161.25, / epsilon = 198.19. Upper flange (200 - 3 - 5)
// / 10 = 19.2: 23.6. Lower one (125 - 8) / 12.5 = 9.36: 11.5, class 3; its limits stand for both.
TEST_F(FrmClasseDoppioTUTest, DifferentFlangesShowTheLowerOne) {
    auto& f = Apre("IPE 300");
    const QSize before = f.size();
    SezioneCorrente = Asimmetrica();
    f.AllAttivazione();
    EXPECT_EQ(Scritta(&f, "Lbl_d"), Locale("967.5"));
    EXPECT_EQ(Scritta(&f, "Lbl_SnellWeb"), Locale("198.19"));
    EXPECT_EQ(Testi(f, "Lbl_LimiteWeb"), (Lista{"124", "¥", "42", "¥"}));
    EXPECT_EQ(Scritta(&f, "Lbl_c"), Locale("192.00"));
    EXPECT_EQ(Scritta(&f, "Lbl_SnellAla"), Locale("23.6"));
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseAlaC"), "4");
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseAlaF"), "4");
    EXPECT_FALSE(Trova<QLabel>(&f, "Lbl_cInf")->isHidden());
    EXPECT_EQ(Scritta(&f, "Lbl_cInf"), Locale("117.00"));
    EXPECT_EQ(Scritta(&f, "lblAlaInfPer"), " x ");
    EXPECT_EQ(Scritta(&f, "Lbl_tfInf"), Locale("12.50"));
    EXPECT_EQ(Scritta(&f, "Lbl_SnellAlaInf"), Locale("11.5"));
    EXPECT_EQ(Testi(f, "Lbl_LimiteAlaInf"), (Lista{"10", "14"}));
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseAlaInfC"), "3");
    EXPECT_EQ(Scritta(&f, "Lbl_ClasseAlaInfF"), "3");
    EXPECT_EQ(Testi(f, "Lbl_LimiteAla"), Lista({"10", Locale("15.9"), "10", "14"})) << "of the lower flange";
    EXPECT_GT(f.height(), before.height()) << "the window makes room";
}

TEST_F(FrmClasseDoppioTUTest, EffectiveOutlinesCanBeSeenWhereTheyExist) {
    auto& f = Apre("IPE 300");
    for (const char* name : {"pltAeff_0", "pltAeff_1", "pltAeff_2"})
        EXPECT_TRUE(Trova<QPushButton>(&f, name)->isHidden()) << name;
    Scrive(s, "Txt_fy", "355"); // class 4 in compression only
    f.AllAttivazione();
    EXPECT_FALSE(Trova<QPushButton>(&f, "pltAeff_0")->isHidden());
    EXPECT_TRUE(Trova<QPushButton>(&f, "pltAeff_1")->isHidden());
    EXPECT_TRUE(Trova<QPushButton>(&f, "pltAeff_2")->isHidden());
    Scrive(s, "Txt_fy", "235"); // the same section keeps the outline, not the class
    f.AllAttivazione();
    EXPECT_TRUE(Trova<QPushButton>(&f, "pltAeff_0")->isHidden());
    SezioneCorrente = Asimmetrica();
    f.AllAttivazione();
    for (const char* name : {"pltAeff_0", "pltAeff_1", "pltAeff_2"})
        EXPECT_FALSE(Trova<QPushButton>(&f, name)->isHidden()) << name;
    EXPECT_EQ(Trova<QPushButton>(&f, "pltAeff_0")->toolTip(),
              "Area efficace per compressione semplice (Alt+A)");
}

TEST_F(FrmClasseDoppioTUTest, OpensThePreviewOnTheOutlineChosen) {
    auto& f = Apre("IPE 300");
    SezioneCorrente = Asimmetrica();
    f.AllAttivazione();
    for (int i = 2; i >= 0; --i) {
        Trova<QPushButton>(&f, ("pltAeff_" + std::to_string(i)).c_str())->click();
        EXPECT_EQ(Sezione().SezioneEfficaceDaPlottare, i);
        auto* preview = NavigaSchermi::Unico().Trova(QStringLiteral("FrmPltSezione"));
        ASSERT_NE(preview, nullptr);
        EXPECT_TRUE(preview->isVisible());
        EXPECT_EQ(preview->origine, &f);
        NavigaSchermi::Unico().Lascia(*preview);
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmClasseDoppioTUTest, StepsRowAndGradeOfTheCaller) {
    auto& f = Apre("IPE 300");
    Trova<UpDown>(&f, "UpDown1")->stepDown();
    EXPECT_EQ(Testo(&f, "Txt_Prof"), "IPE 270");
    EXPECT_EQ(Scritta(&f, "Lbl_d"), Locale("219.6")); // 270 - 2 (10.2 + 15)
    Trova<UpDown>(&f, "UpDown2")->stepUp();
    EXPECT_EQ(Scritta(&f, "Lbl_fy"), "275");
    EXPECT_EQ(Scritta(&f, "Lbl_eps"), Locale("0.924"));
}

TEST_F(FrmClasseDoppioTUTest, EscapeGoesBackToTheCaller) {
    auto& f = Apre("IPE 300");
    QTest::keyClick(&f, Qt::Key_Escape);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(NavigaSchermi::Unico().Attivo(), s);
}

} // namespace
