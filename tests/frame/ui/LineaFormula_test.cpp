#include "frame/ui/LineaFormula.h"

#include <QLabel>

#include "AmbienteFinestre.h"
#include "frame/ui/EtichettaPedice.h"
#include "frame/ui/EtichettaRisultato.h"
#include "frame/ui/Parentesi.h"
#include "frame/ui/RegoleEntrate.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// N/Nr + M/Mr, with a longer numerator for the second term.
Formula DueTermini() {
    return {.termini = {{.sopra = {{"", "N", "Sd"}},
                         .sotto = {{"", "N", "Rd"}},
                         .valoreSopra = VoceValore("N1", "forza [kN]", "NSd"),
                         .valoreSotto = VoceValore("N2", "resistenza [kN]", "NRd")},
                        {.sopra = {{"", "M", "Sd"}},
                         .sotto = {{"", "M", "Rd"}},
                         .valoreSopra = VoceValore("M1", "momento [kNm]", "MSd"),
                         .valoreSotto = VoceValore("M2", "resistenza [kNm]", "MRd"),
                         .altro = {{"", "M", "Sd"}, {"", "+"}, {"", "e", "N"}},
                         .valoreAltro = VoceValore("M3", "momento [kNm]", "MSd + eN"),
                         .piu = "LblValPiu"}},
            .uguale = "LblValUguale",
            .somma = VoceSomma("Somma", "somma"),
            .esito = VoceEsito("Esito")};
}

struct LineaFormulaTest : AmbienteFinestre {
    void SetUp() override {
        AmbienteFinestre::SetUp();
        linea.Compone(DueTermini());
        linea.resize(linea.sizeHint());
    }
    QRect Posto(const char* name) const { return Trova<QWidget>(&linea, name)->geometry(); }
    LineaFormula linea;
};

TEST_F(LineaFormulaTest, GivesItsLabelsByTermAndByName) {
    EXPECT_EQ(linea.Sopra(0), Trova<QLabel>(&linea, "N1"));
    EXPECT_EQ(linea.Sotto(0), Trova<QLabel>(&linea, "N2"));
    EXPECT_EQ(linea.Sopra(1), Trova<QLabel>(&linea, "M1"));
    EXPECT_EQ(linea.Sotto(1), Trova<QLabel>(&linea, "M2"));
    EXPECT_EQ(linea.Altro(0), nullptr);
    EXPECT_EQ(linea.Altro(1), Trova<QLabel>(&linea, "M3"));
    EXPECT_EQ(linea.Esponente(0), nullptr);
    EXPECT_EQ(linea.Somma(), Trova<QLabel>(&linea, "Somma"));
    EXPECT_EQ(linea.Sopra(0)->toolTip(), "forza [kN]");
    EXPECT_EQ(linea.Sopra(0)->accessibleName(), "NSd");
}

TEST_F(LineaFormulaTest, ValuesStandUnderTheirSymbolsAndTheSumAtTheEnd) {
    linea.show();
    QCoreApplication::processEvents();
    EXPECT_LT(Posto("N1").bottom(), Posto("N2").top());
    EXPECT_LT(Posto("N1").right(), Posto("LblValPiu").left());
    EXPECT_LT(Posto("LblValPiu").right(), Posto("M1").left());
    EXPECT_LT(Posto("M1").right(), Posto("LblValUguale").left());
    EXPECT_LT(Posto("LblValUguale").right(), Posto("Somma").left());
    EXPECT_LT(Posto("Somma").right(), Posto("Esito").left());
    int above = 0;
    for (const auto* symbol : linea.findChildren<EtichettaPedice*>())
        above += symbol->mapTo(&linea, QPoint()).y() < Posto("N1").top() ? 1 : 0;
    EXPECT_EQ(above, 6) << "the symbols of both forms, the hidden one too";
}

TEST_F(LineaFormulaTest, OneNumeratorShowsAtATime) {
    const auto* first = linea.Sopra(1);
    const auto* other = linea.Altro(1);
    EXPECT_TRUE(first->isVisibleTo(&linea));
    EXPECT_FALSE(other->isVisibleTo(&linea));
    linea.MostraAltro(true);
    EXPECT_FALSE(first->isVisibleTo(&linea));
    EXPECT_TRUE(other->isVisibleTo(&linea));
    EXPECT_TRUE(linea.Sopra(0)->isVisibleTo(&linea)) << "a term with one form keeps it";
}

TEST_F(LineaFormulaTest, SumBringsItsVerdict) {
    linea.MostraSomma(0.5);
    EXPECT_EQ(linea.Somma()->text().toStdString(), Locale("0.5"));
    EXPECT_EQ(Trova<QLabel>(&linea, "Esito")->text(), "OK");
    linea.MostraSomma(1.0625);
    EXPECT_EQ(linea.Somma()->text().toStdString(), Locale("1.063"));
    EXPECT_EQ(Trova<QLabel>(&linea, "Esito")->text(), "NO");
}

TEST_F(LineaFormulaTest, TheTermThatGovernsStandsOut) {
    linea.Evidenzia(1);
    for (const char* name : {"M1", "M2", "M3"}) {
        EXPECT_TRUE(Trova<QLabel>(&linea, name)->font().bold()) << name;
        EXPECT_EQ(Trova<QLabel>(&linea, name)->accessibleDescription(),
                  "Termine che governa. " + Trova<QLabel>(&linea, name)->toolTip());
    }
    EXPECT_FALSE(linea.Sopra(0)->font().bold());
    int bold = 0;
    for (const auto* symbol : linea.findChildren<EtichettaPedice*>())
        bold += symbol->font().bold() ? 1 : 0;
    EXPECT_EQ(bold, 4) << "M over M, and the two of the longer form";
    linea.Evidenzia(-1);
    EXPECT_FALSE(linea.Sopra(1)->font().bold());
    EXPECT_EQ(linea.Sopra(1)->accessibleDescription(), "");
}

TEST_F(LineaFormulaTest, OfASumThatIsEmptiedNoTermGoverns) {
    linea.Evidenzia(0);
    SvuotaRisultato(linea.Somma());
    EXPECT_FALSE(linea.Sopra(0)->font().bold());
}

TEST(LineaFormula, AnExponentPutsItsTermIntoBrackets) {
    LineaFormula line;
    line.Compone({.termini = {{.sopra = {{"", "M"}},
                               .sotto = {{"", "R"}},
                               .valoreSopra = VoceValore("a", "", ""),
                               .valoreSotto = VoceValore("b", "", ""),
                               .esponente = {"", "α"},
                               .valoreEsponente = VoceValore("c", "", "", 1)}},
                  .uguale = "uguale",
                  .somma = VoceSomma("s", "")});
    EXPECT_EQ(line.findChildren<Parentesi*>().size(), 4) << "two round the symbols, two round the values";
    EXPECT_EQ(line.Esponente(0), Trova<QLabel>(&line, "c"));
    line.MostraSomma(2); // no verdict of its own
    EXPECT_EQ(line.findChildren<QLabel*>(QStringLiteral("Esito")).size(), 0);
}

} // namespace
