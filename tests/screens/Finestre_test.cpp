#include <QFontDatabase>
#include <QGroupBox>
#include <QScreen>

#include "frame/ui/Collocazione.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FinestreTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        PostiFinestre().clear();
        s = &Avvia();
    }
    void TearDown() override {
        AmbienteSchermi::TearDown();
        PostiFinestre().clear();
    }
    Schermo& Apre(const char* name) {
        NavigaSchermi::Unico().Apre(QString::fromLatin1(name), *s);
        return Aperto(name);
    }
    frmDoppioT* s = nullptr;
};

TEST_F(FinestreTest, ADetailComesBackWhereItWasLeft) {
    auto& detail = Apre("FrmMcRd");
    detail.move(11, 31);
    detail.close();
    detail.move(0, 0);
    Apre("FrmMcRd");
    EXPECT_EQ(detail.pos(), QPoint(11, 31));
}

TEST_F(FinestreTest, SoDoesAScreenThatTakesThePlaceOfItsCaller) {
    for (const char* name : {"frmBulloni", "frmSaldature", "frmGiunti", "frmAcciaioCls"}) {
        s->move(7, 9);
        auto& screen = Apre(name);
        screen.move(11, 31);
        screen.close();
        EXPECT_EQ(s->pos(), QPoint(7, 9)) << name;
        screen.move(0, 0);
        Apre(name);
        EXPECT_EQ(screen.pos(), QPoint(11, 31)) << name;
        NavigaSchermi::Unico().Lascia(screen);
    }
}

TEST_F(FinestreTest, TheSectionAndItsValuesMayBeCovered) {
    for (const QGroupBox* room : s->findChildren<QGroupBox*>())
        EXPECT_EQ(room->property("copribile").toBool(),
                  room->title() == QLatin1String("Sagomo") ||
                      room->title() == QLatin1String("Valori del sagomo"))
            << room->title().toStdString();
}

TEST_F(FinestreTest, CaptionsAreNeverCut) {
    const QFontMetrics metrics(QFontDatabase::systemFont(QFontDatabase::TitleFont));
    for (const char* name : {"frmGamma", "FrmMsverg", "FrmPresFless", "FrmVerifiche", "FrmClasseDoppioTU"}) {
        const auto& window = Apre(name);
        const int desktop = window.screen()->availableGeometry().width() - 16;
        EXPECT_GE(window.minimumWidth(),
                  std::min(desktop, metrics.horizontalAdvance(window.windowTitle()) + 100))
            << name;
    }
}

} // namespace
