#include "screens/frmMsvergH1.h"

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

#include "screens/Comandi.h"
#include "sections/DisegniMomento.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmMsvergH1Test : public AmbienteSchermi {
protected:
    Schermo& Apre() {
        Preme(&Avvia(), "Command2");
        m_ = &Aperto("FrmMsverg");
        Preme(m_, "CmdH1");
        return Aperto("frmMsvergH1");
    }
    Schermo* m_ = nullptr;
};

// ENV 1993-1-1, table F.1.1: C1 and C3 for k 1.0, 0.7, 0.5.
TEST_F(FrmMsvergH1Test, ShowsThePublishedRows) {
    auto& h = Apre();
    EXPECT_EQ(h.windowTitle(), "EC3 - Prospetto F 1.1");
    const char* rows[27][2] = {{"1.000", "1.000"}, {"1.000", "1.113"}, {"1.000", "1.144"}, {"1.141", "0.998"},
                               {"1.270", "1.565"}, {"1.305", "2.283"}, {"1.323", "0.992"}, {"1.473", "1.556"},
                               {"1.514", "2.271"}, {"1.563", "0.977"}, {"1.739", "1.531"}, {"1.788", "2.235"},
                               {"1.879", "0.939"}, {"2.092", "1.473"}, {"2.150", "2.150"}, {"2.281", "0.855"},
                               {"2.538", "1.340"}, {"2.609", "1.957"}, {"2.704", "0.676"}, {"3.009", "1.059"},
                               {"3.093", "1.546"}, {"2.927", "0.366"}, {"3.009", "0.575"}, {"3.093", "0.837"},
                               {"2.752", "0.000"}, {"3.063", "0.000"}, {"3.149", "0.000"}};
    const auto C1 = h.Vettore<QPushButton>("lblC1");
    const auto C3 = h.Vettore<QLabel>("lblC3");
    const auto k = h.Vettore<QLabel>("lblK");
    ASSERT_EQ(C1.size(), 27);
    ASSERT_EQ(C3.size(), 27);
    ASSERT_EQ(k.size(), 27);
    const char* restraint[] = {"1.0", "0.7", "0.5"};
    for (int i = 0; i < 27; ++i) {
        EXPECT_EQ(C1[i]->text().toStdString(), Locale(rows[i][0])) << i;
        EXPECT_EQ(C3[i]->text().toStdString(), Locale(rows[i][1])) << i;
        EXPECT_EQ(k[i]->text().toStdString(), Locale(restraint[i % 3])) << i;
    }
}

TEST_F(FrmMsvergH1Test, EveryRowHandsItsFactorsOver) {
    auto& h = Apre();
    for (int i = 0; i < 27; ++i) {
        Preme(m_, "CmdH1");
        ASSERT_TRUE(h.isVisible());
        h.Vettore<QPushButton>("lblC1")[i]->click();
        EXPECT_FALSE(h.isVisible());
        EXPECT_NEAR(ValoreNumerico(Testo(m_, "Txt_C1")),
                    ValoreNumerico(h.Vettore<QPushButton>("lblC1")[i]->text().toStdString()), 1e-9);
        EXPECT_NEAR(ValoreNumerico(Testo(m_, "Txt_C3")),
                    ValoreNumerico(h.Vettore<QLabel>("lblC3")[i]->text().toStdString()), 1e-9);
        EXPECT_EQ(ValoreNumerico(Testo(m_, "Txt_k")),
                  ValoreNumerico(h.Vettore<QLabel>("lblK")[i]->text().toStdString()));
        EXPECT_EQ(Testo(m_, "Txt_C2"), "0");
    }
}

TEST_F(FrmMsvergH1Test, ArrowScrollsTheTableAndTurnsAround) {
    auto& h = Apre();
    QCoreApplication::processEvents();
    const QScrollBar* bar = Trova<QScrollArea>(&h, "scorre")->verticalScrollBar();
    auto* arrow = Trova<QToolButton>(&h, "Freccia");
    ASSERT_GT(bar->maximum(), 0);
    EXPECT_EQ(bar->value(), 0);
    EXPECT_EQ(arrow->arrowType(), Qt::DownArrow);
    for (int clicks = 0; bar->value() < bar->maximum() && clicks < 20; ++clicks) {
        const int before = bar->value();
        arrow->click();
        EXPECT_GT(bar->value(), before);
    }
    EXPECT_EQ(arrow->arrowType(), Qt::UpArrow);
    arrow->click();
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(FrmMsvergH1Test, EscapeLeavesTheFactorsAsTheyWere) {
    auto& h = Apre();
    QTest::keyClick(&h, Qt::Key_Escape);
    EXPECT_FALSE(h.isVisible());
    EXPECT_EQ(Testo(m_, "Txt_C1"), "1");
    EXPECT_EQ(Testo(m_, "Txt_C3"), "0");
}

TEST_F(FrmMsvergH1Test, DiagramsAreNamedByTheirRatio) {
    const std::pair<double, const char*> names[] = {{1, "+1"},      {0.75, "+3/4"},  {0.5, "+1/2"},
                                                    {0.25, "+1/4"}, {0, "0"},        {-0.25, "-1/4"},
                                                    {-0.5, "-1/2"}, {-0.75, "-3/4"}, {-1, "-1"}};
    for (const auto& [psi, name] : names)
        EXPECT_EQ(TestoPsi(psi), name);
    EXPECT_FALSE(Trova<QWidget>(&Apre(), "Image1")->grab().isNull());
}

} // namespace
