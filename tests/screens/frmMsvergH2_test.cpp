#include "screens/frmMsvergH2.h"

#include <QPushButton>

#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmMsvergH2Test : public AmbienteSchermi {
protected:
    Schermo& Apre() {
        Preme(&Avvia(), "Command2");
        m_ = &Aperto("FrmMsverg");
        Preme(m_, "CmdH2");
        return Aperto("frmMsvergH2");
    }
    Schermo* m_ = nullptr;
};

// ENV 1993-1-1, table F.1.2: C1, C2, C3 for k 1.0 and 0.5.
TEST_F(FrmMsvergH2Test, ShowsThePublishedRows) {
    auto& h = Apre();
    EXPECT_EQ(h.windowTitle(), "EC3 (edizione 1992) - Prospetto F 1.2 ");
    const char* rows[10][3] = {{"1.132", "0.459", "0.525"}, {"0.972", "0.304", "0.980"},
                               {"1.285", "1.562", "0.753"}, {"0.712", "0.652", "1.070"},
                               {"1.365", "0.553", "1.730"}, {"1.070", "0.432", "3.050"},
                               {"1.565", "1.267", "2.640"}, {"0.938", "0.715", "4.800"},
                               {"1.046", "0.430", "1.120"}, {"1.010", "0.410", "1.890"}};
    const auto C1 = h.Vettore<QPushButton>("lblC1");
    const auto C2 = h.Vettore<QLabel>("lblC2");
    const auto C3 = h.Vettore<QLabel>("lblC3");
    const auto k = h.Vettore<QLabel>("lblK");
    ASSERT_EQ(C1.size(), 10);
    ASSERT_EQ(k.size(), 10);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(C1[i]->text().toStdString(), Locale(rows[i][0])) << i;
        EXPECT_EQ(C2[i]->text().toStdString(), Locale(rows[i][1])) << i;
        EXPECT_EQ(C3[i]->text().toStdString(), Locale(rows[i][2])) << i;
        EXPECT_EQ(k[i]->text().toStdString(), Locale(i % 2 == 0 ? "1.0" : "0.5")) << i;
    }
}

TEST_F(FrmMsvergH2Test, EveryRowHandsItsFactorsOver) {
    auto& h = Apre();
    for (int i = 0; i < 10; ++i) {
        Preme(m_, "CmdH2");
        h.Vettore<QPushButton>("lblC1")[i]->click();
        EXPECT_FALSE(h.isVisible());
        EXPECT_NEAR(ValoreNumerico(Testo(m_, "Txt_C1")),
                    ValoreNumerico(h.Vettore<QPushButton>("lblC1")[i]->text().toStdString()), 1e-9);
        EXPECT_NEAR(ValoreNumerico(Testo(m_, "Txt_C2")),
                    ValoreNumerico(h.Vettore<QLabel>("lblC2")[i]->text().toStdString()), 1e-9);
        EXPECT_NEAR(ValoreNumerico(Testo(m_, "Txt_C3")),
                    ValoreNumerico(h.Vettore<QLabel>("lblC3")[i]->text().toStdString()), 1e-9);
        EXPECT_EQ(Testo(m_, "Txt_k"), i % 2 == 0 ? "1" : Locale("0.5"));
    }
}

TEST_F(FrmMsvergH2Test, LoadCasesAreDrawn) {
    auto& h = Apre();
    const QImage image = Trova<QWidget>(&h, "Image1")->grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours << image.pixel(x, y);
    EXPECT_GT(colours.size(), 3);
}

} // namespace
