#include "joints/ui/FrmInfoGiunti.h"

#include <QTextBrowser>

#include "joints/ui/GiuntoFinto.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmInfoGiuntiTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        CopiaAccanto("FormuleGiunto.rtf");
        Avvia();
        auto& navigator = NavigaSchermi::Unico();
        navigator.Aggiunge({QStringLiteral("GiuntoFinto"), [] { return new GiuntoFinto; }, {}, {}});
        giunto = &navigator.Prende<GiuntoFinto>(QStringLiteral("GiuntoFinto"));
        info = &navigator.Prende<FrmInfoGiunti>(QStringLiteral("FrmInfoGiunti"));
    }
    void TearDown() override {
        NavigaSchermi::Unico().Toglie(QStringLiteral("GiuntoFinto"));
        AmbienteSchermi::TearDown();
    }
    [[nodiscard]] std::string Testo() const {
        return Trova<QTextBrowser>(info, "RichTextBox4")->toPlainText().toStdString();
    }
    [[nodiscard]] bool Figura() const { return Trova<QWidget>(info, "Figura")->isVisible(); }

    GiuntoFinto* giunto = nullptr;
    FrmInfoGiunti* info = nullptr;
};

TEST_F(FrmInfoGiuntiTest, LaFormulaConPediciEApici) {
    info->MostraFormula(*giunto, "k5");
    EXPECT_TRUE(info->isVisible());
    EXPECT_EQ(info->windowTitle(), "Informazioni");
    EXPECT_THAT(Testo(), testing::HasSubstr("k5 = 2 As / (tw,c · lb)"));
    const QString html = Trova<QTextBrowser>(info, "RichTextBox4")->toHtml();
    EXPECT_TRUE(html.contains(QStringLiteral("vertical-align:sub")));
    EXPECT_FALSE(Figura());
}

TEST_F(FrmInfoGiuntiTest, SenzaFileUnErroreEIlTestoResta) {
    info->MostraFormula(*giunto, "k5");
    const std::string before = Testo();
    ASSERT_TRUE(QFile::remove(QString::fromStdString((PathProgramma / "FormuleGiunto.rtf").string())));
    info->MostraFormula(*giunto, "k6");
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{"Errore n° 53 - File non trovato: FormuleGiunto.rtf"});
    EXPECT_EQ(Testo(), before);
}

TEST_F(FrmInfoGiuntiTest, LeNoteSeguonoIlNodo) {
    info->MostraIrrigidimenti(*giunto);
    EXPECT_TRUE(Figura());
    EXPECT_THAT(Testo(), testing::HasSubstr("l'irrigidimento inferiore è inclinato"));
    EXPECT_THAT(Testo(), testing::HasSubstr("L'irrigidimento superiore è sempre orizzontale"));
    giunto->nodo.ConnessioneCorrente->Irrigidimenti = "Cp";
    info->Aggiorna();
    EXPECT_THAT(Testo(), testing::Not(testing::HasSubstr("superiore è sempre")));
    info->MostraFormula(*giunto, "Kwc");
    EXPECT_FALSE(Figura());
    info->Aggiorna();
    EXPECT_THAT(Testo(), testing::HasSubstr("Kwc"));
}

} // namespace
