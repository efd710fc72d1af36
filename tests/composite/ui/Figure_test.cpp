// Pictures of the screens at work, where SAGOMI_FIGURE names a folder; with SAGOMI_SCURO in a dark palette.

#include <QApplication>

#include "AmbienteTravi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FigureTravi : public AmbienteTravi {
protected:
    void SetUp() override {
        if (folder.isEmpty())
            GTEST_SKIP();
        before = QApplication::palette();
        if (qEnvironmentVariableIsSet("SAGOMI_SCURO"))
            QApplication::setPalette(Scura());
        AmbienteTravi::SetUp();
    }
    void TearDown() override {
        if (folder.isEmpty())
            return;
        AmbienteTravi::TearDown();
        QApplication::setPalette(before);
    }
    static QPalette Scura() {
        QPalette dark(QColor(53, 53, 53));
        dark.setColor(QPalette::Base, QColor(35, 35, 35));
        dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
        return dark;
    }
    void Figura(Schermo& s, const char* state) const {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        s.grab().save(folder + u'/' + s.objectName() + u'_' + QString::fromLatin1(state) +
                      QStringLiteral(".png"));
    }

    QString folder = qEnvironmentVariable("SAGOMI_FIGURE");
    QPalette before;
};

TEST_F(FigureTravi, OfTheScreensAtWork) {
    Apre();
    Figura(*f, "nuova");
    Piena();
    Figura(*f, "piena");
    Preme(f, "cmdCalcola");
    Figura(*f, "piena_M+");
    Sceglie("OpTipoVerifica", 1);
    Preme(f, "cmdCalcola");
    Figura(*f, "piena_M-");
    Grecata(1);
    Sceglie("OpTipoVerifica", 0);
    Preme(f, "cmdConnessioni");
    Schermo& c = Aperto("frmConnettori");
    Figura(c, "nuova");
    Trova<QLineEdit>(&c, "txtInput_3")->setText(QString::fromStdString(Locale("7.6")));
    Figura(c, "digitando");
    Preme(&c, "CmdProgetta");
    Figura(c, "trasversale");
    if (Schermo* advice = NavigaSchermi::Unico().Trova(QStringLiteral("frmSuggerimento")))
        Figura(*advice, "trasversale");
    Grecata(2);
    Sceglie("OpTipoVerifica", 2);
    Scrive({{"Txt_M", "-200"}});
    Preme(f, "cmdCalcola");
    Figura(*f, "parallela_n");
    Figura(c, "parallela_n");
    Scrive({{"txtDati_4", "300"}});
    Preme(f, "cmdCalcola");
    Figura(*f, "nota");
}

} // namespace
