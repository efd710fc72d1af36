#include "joints/ConsigliGiunto.h"

#include <gmock/gmock.h>

#include <set>
#include <stdexcept>

using namespace sagomi;
using testing::ElementsAre;

namespace {

TEST(ConsigliGiunto, OgniArgomentoHaUnTestoEUnNomeSuoi) {
    std::set<std::string> testi, nomi;
    for (int i = 0; i < numConsigliGiunto; ++i) {
        testi.insert(ConsiglioGiunto(i, "8.8"));
        nomi.insert(std::string(NomeConsiglio(i)));
    }
    EXPECT_EQ(testi.size(), 21U);
    EXPECT_EQ(nomi.size(), 21U);
    EXPECT_THROW((void)ConsiglioGiunto(21, "8.8"), std::out_of_range);
    EXPECT_THROW((void)ConsiglioGiunto(-1, "8.8"), std::out_of_range);
    EXPECT_THAT([] { (void)ConsiglioGiunto(21, "8.8"); },
                testing::ThrowsMessage<std::out_of_range>("argomento 21 fuori da 0..20"));
}

TEST(ConsigliGiunto, BulloniSecondoLaClasse) {
    EXPECT_EQ(ConsiglioGiunto(3, "8.8"), "Per aumentare la resistenza della fila di bulloni è necessario "
                                         "adottare un diametro maggiore oppure la classe 10.9. ");
    EXPECT_EQ(ConsiglioGiunto(3, "10.9"), "Per aumentare la resistenza della fila di bulloni è necessario "
                                          "adottare un diametro maggiore. ");
}

TEST(ConsigliGiunto, RigheDellAnimaCompressa) {
    EXPECT_THAT(
        RigheConsiglio(1, "8.8"),
        ElementsAre("Per aumentare la resistenza dell'anima della colonna in compressione è possibile: ",
                    "- Aumentare tf ed u;", "- Porre l'irrigidimento in zona compressa;",
                    "- Cambiare il sagomo della colonna, aumentando lo spessore dell'anima, dell'ala o il "
                    "raggio di raccordo;",
                    "- Cambiare il sagomo della trave aumentando lo spessore dell'ala."));
    EXPECT_THAT(RigheConsiglio(4, "8.8"), testing::Contains("- Cambiare il sagomo della colonna, aumentando "
                                                            "lo spessore dell'anima ."));
}

TEST(ConsigliGiunto, RigheUniteDaUnACapo) {
    EXPECT_EQ(ConsiglioGiunto(20, "8.8"),
              "Per diminuire il coefficiente correttivo dell'ala della colonna bisogna :\r\n- aumentare d1.");
}

} // namespace
