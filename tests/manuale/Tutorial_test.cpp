#include "EsecutoreTutorial.h"

#include <QFile>
#include <QSet>

#include "TestoPdf.h"
#include "frame/ui/IndiceGuida.h"
#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class TutorialTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        CopiaAccanto("GiuntoFlangiato.hlp");
    }
    /// Works through the tutorial of the help as it stands.
    QStringList Segue(const QString& text) {
        EsecutoreTutorial reader(cartella.path());
        reader.Esegue(PassiTutorial(text));
        return reader.Errori();
    }
    /// What the text reads in the report of the joint stands there.
    void ControllaRelazione(const QList<PassoTutorial>& steps) {
        const std::string pdf = TestoPdf(cartella.filePath(QStringLiteral("giunto.pdf")).toStdString());
        for (const char* word : {"Soppalco di via Roma", "Portale del soppalco", "HEB 200", "IPE 360"})
            EXPECT_NE(pdf.find(word), std::string::npos) << word;
        int figures = 0;
        for (const PassoTutorial& p : steps)
            if (p.verbo == u"riporta") {
                const std::string text = QString(p.testo).replace(u',', u'.').toStdString();
                EXPECT_TRUE(pdf.find(text) != std::string::npos ||
                            pdf.find(Locale(text)) != std::string::npos)
                    << p.riga << ": " << text;
                ++figures;
            }
        EXPECT_GE(figures, 4);
    }
};

QList<PassoTutorial> DelVerbo(const QList<PassoTutorial>& steps, const char* verb) {
    QList<PassoTutorial> found;
    for (const PassoTutorial& p : steps)
        if (p.verbo == QLatin1String(verb))
            found << p;
    return found;
}

// A reader who does what the text says finds what it says, on the real screens.
TEST_F(TutorialTest, ReaderGetsItsFigures) {
    Avvia();
    const QStringList errors = Segue(LeggeGuida(QStringLiteral("Sagomi.hlp")));
    EXPECT_TRUE(errors.isEmpty()) << errors.join(u'\n').toStdString();
    for (const char* file : {"solaio.Sco", "giunto.dxf", "giunto.txt", "giunto.pdf", "portale.Gfl"})
        EXPECT_TRUE(QFile::exists(cartella.filePath(QLatin1String(file)))) << file;
    QFile report(cartella.filePath(QStringLiteral("giunto.txt")));
    ASSERT_TRUE(report.open(QIODevice::ReadOnly));
    const QByteArray text = report.readAll();
    for (const char* word : {"Portale del soppalco", "IPE 360", "HEB 200"})
        EXPECT_TRUE(text.contains(word)) << word;
    if (ConLettorePdf())
        ControllaRelazione(PassiTutorial(LeggeGuida(QStringLiteral("Sagomi.hlp"))));
}

// From the column to the report: what is promised is there.
TEST_F(TutorialTest, EveryPartOfTheFrameIsWorked) {
    const QList<PassoTutorial> steps = PassiTutorial(LeggeGuida(QStringLiteral("Sagomi.hlp")));
    EXPECT_GE(DelVerbo(steps, "legge").size(), 40);
    EXPECT_GE(DelVerbo(steps, "scrive").size(), 35);
    EXPECT_GE(DelVerbo(steps, "foto").size(), 6);
    QSet<QString> screens;
    for (const PassoTutorial& p : steps)
        screens << p.schermo;
    for (const char* name : {"frmDoppioT", "FrmInstabDoppioT", "FrmPresFless", "FrmMsverg", "FrmVerifiche",
                             "frmGiunti", "frmAcciaioCls", "frmConnettori", "FrmPltSezione"})
        EXPECT_TRUE(screens.contains(QLatin1String(name))) << name;
}

// A figure, a name or a box that is not as the text has it does not pass.
TEST_F(TutorialTest, WhatIsNotSoIsFound) {
    Avvia();
    const char* right = R"(<p><i data-legge="frmDoppioT.Txt_fy">235</i></p>)";
    EXPECT_TRUE(Segue(QLatin1String(right)).isEmpty());
    for (const char* wrong :
         {R"(<i data-legge="frmDoppioT.Txt_fy">236</i>)", R"(<i data-legge="frmDoppioT.No">1</i>)",
          R"(<b data-preme="frmDoppioT.CmdPlotta">Disegna</b>)", R"(<b data-sagomo="frmDoppioT">XYZ 1</b>)",
          R"(<i data-messaggio="frmDoppioT">niente</i>)", R"(<i data-legge="FrmMcRd.Lbl_W_0">1</i>)",
          R"(<i data-scrive="frmDoppioT.Txt_fy">0</i><i data-legge="frmDoppioT.Txt_fy">235</i>)"})
        EXPECT_EQ(Segue(QLatin1String(wrong)).size(), 1) << wrong;
}

TEST(PassiTutorial, KeepOrderLineAndText) {
    const auto steps = PassiTutorial(QStringLiteral(
        "<p>\n<span class=\"x\" data-legge=\"a.b_0\" data-conto=\"1\">1,5<sub>x</sub>\n&lt; 2</span> <b\n"
        "data-preme=\"c.d\">Va</b></p>"));
    ASSERT_EQ(steps.size(), 2);
    EXPECT_EQ(steps[0].verbo, "legge");
    EXPECT_EQ(steps[0].schermo, "a");
    EXPECT_EQ(steps[0].controllo, "b_0");
    EXPECT_EQ(steps[0].testo, "1,5x < 2");
    EXPECT_EQ(steps[0].riga, 2);
    EXPECT_EQ(steps[1].testo, "Va");
    EXPECT_EQ(NomeFoto(0), "esempio-01");
}

} // namespace
