#include "drawing/ui/StampaTesto.h"

#include <QPrinter>
#include <QProcess>

#include "drawing/ui/Immagini.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class StampaTestoTest : public AmbienteFinestre {
protected:
    void TearDown() override {
        ImpostaSceltaStampante({});
        AmbienteFinestre::TearDown();
    }
    /// "Print to file" of the dialog.
    void RispondeStampante(bool accepted, int copies = 1) {
        ImpostaSceltaStampante([=, this](QPrinter& printer, QWidget*) {
            lavoro = printer.docName();
            printer.setOutputFileName(pdf());
            printer.setCopyCount(copies);
            return accepted;
        });
    }
    QString pdf() const { return cartella.filePath(QStringLiteral("testo.pdf")); }

    QString lavoro;
};

std::vector<std::string> Righe(int quante) {
    std::vector<std::string> righe;
    for (int i = 1; i <= quante; ++i)
        righe.push_back("     riga " + std::to_string(i) + " d'estremità");
    return righe;
}

TEST_F(StampaTestoTest, LeRigheStannoSuPiuPagine) {
    RispondeStampante(true);
    QString esito;
    EXPECT_TRUE(StampaTesto(Righe(150), QStringLiteral("nodo.Gfl"), nullptr, &esito));
    EXPECT_EQ(lavoro, "nodo.Gfl");
    EXPECT_EQ(esito, "STAMPANTE: " + pdf());
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    EXPECT_FALSE(PaginaPdf(pdf(), 3).isNull());
    QProcess lettore;
    lettore.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf(), QStringLiteral("-")});
    ASSERT_TRUE(lettore.waitForFinished());
    const QString testo = QString::fromUtf8(lettore.readAllStandardOutput());
    for (const int i : {1, 75, 150})
        EXPECT_TRUE(testo.contains(QStringLiteral("riga %1 d'estremità").arg(i))) << i;
}

TEST_F(StampaTestoTest, OgniCopiaHaTutteLePagine) {
    RispondeStampante(true, 2);
    EXPECT_TRUE(StampaTesto(Righe(100), QStringLiteral("nodo"), nullptr));
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    EXPECT_FALSE(Inchiostro(PaginaPdf(pdf(), 4)).isEmpty());
}

TEST_F(StampaTestoTest, ChiRinunciaNonStampa) {
    RispondeStampante(false);
    EXPECT_FALSE(StampaTesto(Righe(1), QStringLiteral("nodo"), nullptr));
    EXPECT_FALSE(QFile::exists(pdf()));
    EXPECT_TRUE(registratore.testi.empty());
}

} // namespace
