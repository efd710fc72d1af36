// Pictures of the choice at work, where SAGOMI_FIGURE names a folder; with SAGOMI_SCURO in a dark palette.

#include <QApplication>

#include "choice/ui/FrmScelta.h"
#include "choice/ui/ModelloScelta.h"
#include "choice/ui/VistaGrafico.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FigureScelta : public AmbienteSchermi {
protected:
    void SetUp() override {
        if (folder.isEmpty())
            GTEST_SKIP();
        before = QApplication::palette();
        if (qEnvironmentVariableIsSet("SAGOMI_SCURO"))
            QApplication::setPalette(Scura());
        AmbienteSchermi::SetUp();
    }
    void TearDown() override {
        if (folder.isEmpty())
            return;
        AmbienteSchermi::TearDown();
        QApplication::setPalette(before);
    }
    static QPalette Scura() {
        QPalette dark(QColor(53, 53, 53));
        dark.setColor(QPalette::Base, QColor(35, 35, 35));
        dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
        return dark;
    }
    void Figura(Schermo& s) const {
        QTest::qWait(100); // the chart follows the table
        s.grab().save(folder + u'/' + s.objectName() + QStringLiteral(".png"));
    }

    QString folder = qEnvironmentVariable("SAGOMI_FIGURE");
    QPalette before;
};

TEST_F(FigureScelta, OfAColumnWithABendingMoment) {
    SchermoSezione& main = Avvia();
    for (const auto& [box, text] : {std::pair{"TxtNsd", "150"}, {"Txt_L0_0", "4"}, {"Txt_L0_1", "2.5"}})
        Scrive(&main, box, text);
    NavigaSchermi::Unico().Apre("FrmScelta", main);
    auto& s = dynamic_cast<FrmScelta&>(Aperto("FrmScelta"));
    for (const auto& [box, text] : {std::pair{"TxtM1_0", "50"},
                                    {"TxtM2_0", "-20"},
                                    {"TxtM1_1", "5"},
                                    {"TxtM2_1", "3"},
                                    {"TxtHMax", "400"}})
        Scrive(&s, box, text);
    const auto* chart = Trova<VistaGrafico>(&s, "Grafico");
    ASSERT_TRUE(QTest::qWaitFor([&] { return s.Scelta().Finita() && !chart->Dati().fronte.empty(); }));
    Figura(s);
    Preme(&s, "CmdConfronta");
    Figura(Aperto("FrmConfronto"));
}

} // namespace
