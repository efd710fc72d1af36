#include "criticalloads/ui/frmTimoshenko.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using Testi = std::vector<std::string>;

// IPE 200, 4 m: L^2C/C1 = 33.0668, root(E Iz C) / L^2 = 2566.22 N. Values of a second calculation in Python:
// the rows of the published tables around that ratio, times L/4, L/8, L or L/2.
class FrmTimoshenkoTest : public AmbienteSchermi {
protected:
    frmTimoshenko& Apre(double L = 4000) {
        opener_ = &Avvia();
        VaA(*opener_, "IPE 200");
        registratore.testi.clear();
        Sezione().LLT = L;
        auto& t = NavigaSchermi::Unico().Prende<frmTimoshenko>();
        t.Apre(*opener_);
        return t;
    }
    static std::string Mcr(const frmTimoshenko& t) { return Scritta(&t, "Lbl_Mcr"); }
    static QRadioButton& Opzione(const frmTimoshenko& t, const char* name) {
        return *Trova<QRadioButton>(&t, name);
    }
    frmDoppioT* opener_ = nullptr;
};

TEST_F(FrmTimoshenkoTest, HasItsControlsWithTheirTexts) {
    auto& t = Apre();
    EXPECT_EQ(t.windowTitle(), "Timoshenko");
    const std::pair<const char*, const char*> labels[] = {{"LblTxt_L", "L (m)"},
                                                          {"LblTxtIz", "Iz (cm4)"},
                                                          {"LblTxtIT", "IT (cm4)"},
                                                          {"LblTxtIw", "Iw (cm6)"},
                                                          {"LblMcr", "M    [kNm] ="}};
    for (const auto& [name, text] : labels)
        EXPECT_EQ(Scritta(&t, name), text);
    EXPECT_EQ(Trova<QLabel>(&t, "LblMcr")->property("pedice"), "cr");
    EXPECT_EQ(Trova<QLineEdit>(&t, "Txt_L")->toolTip(), "Luce trave fra vincoli laterali");
    const std::pair<const char*, const char*> buttons[] = {{"chkNoIw", "Trascura Iw"},
                                                           {"Option1_0", "Appoggiata"},
                                                           {"Option1_1", "Mensola"},
                                                           {"optTipoCarico_0", "Concentrato"},
                                                           {"optTipoCarico_1", "Distribuito"},
                                                           {"optQuotaCarico_0", "Estradosso"},
                                                           {"optQuotaCarico_1", "Baricentro"},
                                                           {"optQuotaCarico_2", "Intradosso"},
                                                           {"Command1", "Calcolo"}};
    for (const auto& [name, text] : buttons)
        EXPECT_EQ(Trova<QAbstractButton>(&t, name)->text(), text);
    EXPECT_EQ(Titolo(&t, "fraVincoli"), "Vincoli");
    EXPECT_EQ(Titolo(&t, "fraTipoCarico"), "Tipo di Carico");
    EXPECT_EQ(Titolo(&t, "fraQuotaCarico"), "Quota Carico");
}

TEST_F(FrmTimoshenkoTest, StartsFromTheSectionWithoutCalculating) {
    auto& t = Apre(0);
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(Testo(&t, "Txt_L"), "0");
    EXPECT_EQ(Testo(&t, "TxtIz"), Locale("142.4"));
    EXPECT_EQ(Testo(&t, "TxtIT"), Locale("6.98"));
    EXPECT_EQ(Testo(&t, "TxtIw"), "12990");
    EXPECT_EQ(t.E.Stretto(), 210000.F);
    EXPECT_EQ(t.G.Stretto(), 80769.F);
    EXPECT_FALSE(t.NoIw);
    EXPECT_TRUE(Opzione(t, "Option1_0").isChecked());
    EXPECT_TRUE(Opzione(t, "optTipoCarico_0").isChecked());
    EXPECT_TRUE(Opzione(t, "optQuotaCarico_0").isChecked());
    EXPECT_EQ(Mcr(t), "");
    EXPECT_EQ(t.focusWidget()->objectName(), "Txt_L");
    EXPECT_EQ(Trova<QLineEdit>(&t, "Txt_L")->selectedText(), "0");
}

TEST_F(FrmTimoshenkoTest, LengthComesFromTheSectionAtEachActivation) {
    auto& t = Apre();
    EXPECT_EQ(Testo(&t, "Txt_L"), "4");
    Sezione().LLT = 5700;
    t.AllAttivazione();
    EXPECT_EQ(Testo(&t, "Txt_L"), Locale("5.7"));
}

TEST_F(FrmTimoshenkoTest, SimplySupportedBeam) {
    auto& t = Apre();
    Preme(&t, "Command1");
    EXPECT_EQ(Mcr(t), Locale(" 38.22"));
    Preme(&t, "optQuotaCarico_1");
    EXPECT_EQ(Mcr(t), Locale(" 50.16"));
    Preme(&t, "optQuotaCarico_2");
    EXPECT_EQ(Mcr(t), Locale(" 64.86"));
    Preme(&t, "optTipoCarico_1");
    EXPECT_EQ(Mcr(t), Locale(" 51.74"));
    Preme(&t, "optQuotaCarico_1");
    EXPECT_EQ(Mcr(t), Locale(" 41.74"));
    Preme(&t, "optQuotaCarico_0");
    EXPECT_EQ(Mcr(t), Locale(" 33.47"));
    EXPECT_EQ(t.L.Stretto(), 4000.F);
    EXPECT_EQ(t.Iz.Stretto(), 1424000.F);
    EXPECT_EQ(t.IT.Stretto(), 69800.F);
    EXPECT_EQ(t.Iw.Stretto(), 12.99e9F);
}

TEST_F(FrmTimoshenkoTest, ANegativeConstantGivesNoMoment) {
    auto& t = Apre();
    for (const char* box : {"TxtIz", "TxtIT", "TxtIw"}) {
        const QString was = Trova<QLineEdit>(&t, box)->text();
        Scrive(&t, box, "-5");
        Preme(&t, "Command1");
        EXPECT_EQ(Mcr(t), "") << box;
        Trova<QLineEdit>(&t, box)->setText(was);
        Preme(&t, "Command1");
        EXPECT_EQ(Mcr(t), Locale(" 38.22")) << box;
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmTimoshenkoTest, WithoutWarping) {
    auto& t = Apre();
    Preme(&t, "chkNoIw");
    EXPECT_TRUE(t.NoIw);
    EXPECT_EQ(Mcr(t), Locale(" 29.70"));
    Preme(&t, "optQuotaCarico_2");
    EXPECT_EQ(Mcr(t), Locale(" 57.24"));
    Preme(&t, "optTipoCarico_1");
    EXPECT_EQ(Mcr(t), Locale(" 39.01"));
    Preme(&t, "optQuotaCarico_1");
    EXPECT_EQ(Mcr(t), Locale(" 36.31"));
    Preme(&t, "optQuotaCarico_0");
    EXPECT_EQ(Mcr(t), Locale(" 33.87"));
}

TEST_F(FrmTimoshenkoTest, CantileverWithWarpingHasOneLoadOnly) {
    auto& t = Apre();
    Preme(&t, "optTipoCarico_1");
    Preme(&t, "optQuotaCarico_2");
    Preme(&t, "Option1_1");
    EXPECT_TRUE(Opzione(t, "optTipoCarico_0").isChecked());
    EXPECT_FALSE(Opzione(t, "optTipoCarico_1").isEnabled());
    EXPECT_FALSE(Opzione(t, "optQuotaCarico_0").isEnabled());
    EXPECT_FALSE(Opzione(t, "optQuotaCarico_2").isEnabled());
    EXPECT_TRUE(Opzione(t, "optQuotaCarico_1").isChecked());
    EXPECT_EQ(Mcr(t), Locale(" 59.94"));
}

TEST_F(FrmTimoshenkoTest, CantileverWithoutWarpingHasFourLoads) {
    auto& t = Apre();
    Preme(&t, "Option1_1");
    Preme(&t, "chkNoIw");
    EXPECT_TRUE(Opzione(t, "optTipoCarico_1").isEnabled());
    EXPECT_TRUE(Opzione(t, "optQuotaCarico_0").isEnabled());
    EXPECT_TRUE(Opzione(t, "optQuotaCarico_2").isEnabled());
    EXPECT_EQ(Mcr(t), Locale(" 41.19"));
    Preme(&t, "optQuotaCarico_0");
    EXPECT_EQ(Mcr(t), Locale(" 33.69"));
    Preme(&t, "optTipoCarico_1");
    EXPECT_TRUE(Opzione(t, "optQuotaCarico_1").isChecked());
    EXPECT_FALSE(Opzione(t, "optQuotaCarico_0").isEnabled());
    EXPECT_FALSE(Opzione(t, "optQuotaCarico_2").isEnabled());
    EXPECT_TRUE(Opzione(t, "optTipoCarico_1").isEnabled());
    EXPECT_EQ(Mcr(t), Locale(" 65.95"));
    Preme(&t, "optTipoCarico_0");
    EXPECT_TRUE(Opzione(t, "optQuotaCarico_2").isEnabled());
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(FrmTimoshenkoTest, UntickingLeavesTheOptionsAsTheyAre) {
    auto& t = Apre();
    Preme(&t, "Option1_1");
    Preme(&t, "chkNoIw");
    Preme(&t, "optTipoCarico_1");
    Preme(&t, "chkNoIw");
    EXPECT_FALSE(t.NoIw);
    EXPECT_TRUE(Opzione(t, "optTipoCarico_1").isChecked());
    EXPECT_TRUE(Opzione(t, "optTipoCarico_1").isEnabled());
    EXPECT_EQ(Mcr(t), Locale(" 29.97")) << "the table of the end load, halved all the same";
}

TEST_F(FrmTimoshenkoTest, ComingBackToTheSimplySupportedBeamEnablesEverything) {
    auto& t = Apre();
    Preme(&t, "Option1_1");
    Preme(&t, "Option1_0");
    for (const char* name : {"optTipoCarico_1", "optQuotaCarico_0", "optQuotaCarico_2"})
        EXPECT_TRUE(Opzione(t, name).isEnabled()) << name;
    EXPECT_EQ(Mcr(t), Locale(" 50.16"));
}

TEST_F(FrmTimoshenkoTest, ALengthThatIsNoneIsRefusedAndHasNoResult) {
    auto& t = Apre();
    Preme(&t, "Command1");
    for (const char* none : {"", "0", "-1", "abc"}) {
        registratore.testi.clear();
        registratore.messaggi.clear();
        Scrive(&t, "Txt_L", none);
        Preme(&t, "Command1");
        EXPECT_EQ(registratore.testi, Testi{"L deve essere > 0"}) << none;
        EXPECT_EQ(registratore.messaggi[0].icona, Icona::Stop);
        EXPECT_EQ(Mcr(t), "");
    }
}

TEST_F(FrmTimoshenkoTest, AChangedEntryClearsTheResult) {
    auto& t = Apre();
    Preme(&t, "Command1");
    EXPECT_EQ(Mcr(t), Locale(" 38.22"));
    auto* length = Trova<QLineEdit>(&t, "Txt_L");
    QTest::keyClicks(length, "-5");
    EXPECT_EQ(Mcr(t), "");
    EXPECT_EQ(length->toolTip(), "Il valore non può essere negativo");
    EXPECT_TRUE(registratore.testi.empty());
    length->selectAll();
    QTest::keyClicks(length, "4");
    QTest::keyClick(length, Qt::Key_Return);
    EXPECT_EQ(Mcr(t), Locale(" 38.22"));
}

TEST_F(FrmTimoshenkoTest, EnterInAnEntryCalculates) {
    auto& t = Apre();
    const std::pair<const char*, const char*> entries[] = {
        {"Txt_L", "5"}, {"TxtIT", "7"}, {"TxtIz", "150"}, {"TxtIw", "20000"}};
    std::string before;
    for (const auto& [name, text] : entries) {
        auto* box = Trova<QLineEdit>(&t, name);
        box->setFocus();
        box->setText(QString::fromLatin1(text));
        QTest::keyClick(box, Qt::Key_Return);
        EXPECT_NE(Mcr(t), before) << name;
        before = Mcr(t);
        EXPECT_EQ(t.focusWidget(), box);
    }
    EXPECT_EQ(t.Iw.Stretto(), 20e9F);
}

TEST_F(FrmTimoshenkoTest, ALongSlenderBeamLeavesTheTableWithAMessage) {
    auto& t = Apre();
    Scrive(&t, "Txt_L", "14"); // ratio 33.0668 · 3.5^2 = 405.07
    Preme(&t, "Command1");
    EXPECT_EQ(registratore.testi, Testi{"Rapporto L^2C/C1 > 400"});
    // 15.8 · 2566.22 / 12.25 · 14000 / 4
    EXPECT_EQ(Mcr(t), Locale(" 11.58"));
}

TEST_F(FrmTimoshenkoTest, WithoutAnyTorsionalStiffnessThereIsNoResult) {
    auto& t = Apre();
    Preme(&t, "Command1");
    Scrive(&t, "TxtIw", "0");
    Preme(&t, "Command1");
    EXPECT_EQ(registratore.testi, Testi{"Rapporto L^2C/C1 > 400"}) << "above 400 times nothing";
    EXPECT_EQ(Mcr(t), Locale(" 40.55")); // 15.8 · 2566.22 · 4000 / 4
    Scrive(&t, "TxtIT", "0");
    Preme(&t, "Command1");
    EXPECT_EQ(Mcr(t), "");
}

TEST_F(FrmTimoshenkoTest, AnotherSectionBringsItsOwnConstants) {
    auto& t = Apre();
    Preme(&t, "Command1");
    QTest::keyClick(&t, Qt::Key_Escape);
    EXPECT_FALSE(t.isVisible());
    VaA(*opener_, "IPE 300");
    t.Apre(*opener_);
    EXPECT_EQ(Testo(&t, "TxtIz"), Locale("603.8"));
    EXPECT_EQ(Testo(&t, "Txt_Prof"), "IPE 300");
    EXPECT_EQ(Mcr(t), "") << "the result was another section's";
}

TEST_F(FrmTimoshenkoTest, PictureFollowsTheOptions) {
    auto& t = Apre();
    auto* picture = Trova<QWidget>(&t, "Picture1");
    QList<QImage> seen{picture->grab().toImage()};
    for (const char* name : {"optQuotaCarico_2", "optTipoCarico_1", "Option1_1"}) {
        Preme(&t, name);
        const QImage now = picture->grab().toImage();
        EXPECT_FALSE(seen.contains(now)) << name;
        seen << now;
    }
}

TEST_F(FrmTimoshenkoTest, LengthThatIsNoneIsToldOnceOnLeavingIt) {
    auto& t = Apre();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&t));
    auto* L = Trova<QLineEdit>(&t, "Txt_L");
    auto* button = Trova<QPushButton>(&t, "Command1");
    const auto digita = [&](const char* text) {
        registratore.testi.clear();
        L->setFocus();
        L->selectAll();
        QTest::keyClicks(L, text);
        EXPECT_TRUE(registratore.testi.empty());
    };
    const Testi once{"L deve essere > 0"};
    digita("0");
    QTest::keyClick(L, Qt::Key_Tab);
    EXPECT_EQ(registratore.testi, once) << "left";
    digita("-2");
    QTest::keyClick(L, Qt::Key_Return);
    EXPECT_EQ(registratore.testi, once) << "Enter also calculates";
    digita("0");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(registratore.testi, once) << "so does the click that leaves it";
    QCoreApplication::processEvents();
    button->click();
    EXPECT_EQ(registratore.testi.size(), 2U) << "asked for again";
    EXPECT_EQ(Mcr(t), "");
    digita("4");
    QTest::keyClick(L, Qt::Key_Tab);
    EXPECT_TRUE(registratore.testi.empty());
}

} // namespace
