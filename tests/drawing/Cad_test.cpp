#include "drawing/Cad.h"

#include <gtest/gtest.h>

#include "Registratore.h"
#include "drawing/CadFinto.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

TEST(Cad, WithoutAProgramTheTwoLinesAreShown) {
    Registratore registratore;
    EXPECT_FALSE(CadApre());
    ASSERT_EQ(registratore.messaggi.size(), 1U);
    EXPECT_EQ(registratore.testi[0],
              "Impossibile aprire Autocad.\r\nControllare che la versione di Autocad non sia LT");
    EXPECT_EQ(registratore.messaggi[0].icona, Icona::Stop);
    EXPECT_FALSE(AppCad);
    EXPECT_FALSE(ModelSpaceCad);
    CadZoomExtents();
}

TEST(Cad, TriesBothNamesInOrder) {
    Registratore registratore;
    {
        const CadFinto cad("nessuno");
        EXPECT_FALSE(CadApre());
        EXPECT_EQ(cad.cercati, (std::vector<std::string>{"AutoCAD.Application.17", "AutoCAD.Application"}));
    }
    EXPECT_EQ(registratore.testi.size(), 1U);
    const CadFinto cad("AutoCAD.Application");
    EXPECT_TRUE(CadApre());
    EXPECT_EQ(cad.cercati.size(), 2U);
    EXPECT_EQ(registratore.testi.size(), 1U);
}

TEST(Cad, ConnectingShowsTheProgramAndTakesItsModelSpace) {
    const CadFinto cad("AutoCAD.Application.17");
    ASSERT_TRUE(CadApre());
    EXPECT_EQ(*cad.chiamate,
              (std::vector<std::string>{"Visible True", "ActiveDocument", "ModelSpace", "Attiva"}));
    EXPECT_TRUE(AppCad && DocumentoAttivoCad && ModelSpaceCad);
    cad.chiamate->clear();
    CadZoomExtents();
    EXPECT_EQ(*cad.chiamate, (std::vector<std::string>{"ZoomExtents", "Attiva"}));
}

TEST(Cad, EveryPrimitiveArrivesWithItsArgumentsAndColour) {
    const CadFinto cad("AutoCAD.Application.17");
    ASSERT_TRUE(CadApre());
    cad.chiamate->clear();
    const SuUscita uscita(nullptr, dispositivoDwg);
    const std::vector<double> x{0, 10, 10};
    const std::vector<double> y{0, 0, 20};
    yOrigine = 5;
    LineaPlt(1, 2, 3, 4);
    PennaPlt(12);
    CerchioPlt(1, 2, 6);
    PolilineaPlt(3, x, y);
    PennaPlt(8);
    PolilineaPlt(3, x, y, true);
    TestoPlt(1.5, 2, 2.5, "HEA 200");
    EXPECT_TRUE(TestoCad) << "the text added last";
    EXPECT_EQ(*cad.chiamate,
              (std::vector<std::string>{"ModelSpace.AddLine (1 7 0) (3 9 0)", "Color 7",
                                        "ModelSpace.AddCircle (1 7 0) 6", "Color 12",
                                        "ModelSpace.AddLightWeightPolyline 0 5 10 5 10 25", "Color 12",
                                        "ModelSpace.AddLightWeightPolyline 0 5 10 5 10 25 0 5", "Color 8",
                                        "ModelSpace.AddText HEA 200 (1.5 7 0) 2.5", "Color 8"}));
}

TEST(Cad, TheBlockReceivesEveryPrimitive) {
    const CadFinto cad("AutoCAD.Application.17");
    ASSERT_TRUE(CadApre());
    BloccoCad = cad.Blocco("Flangia");
    cad.chiamate->clear();
    const SuUscita uscita(nullptr, dispositivoBlocco);
    const std::vector<double> x{0, 10};
    const std::vector<double> y{0, 20};
    LineaPlt(1, 2, 3, 4);
    CerchioPlt(1, 2, 6);
    PolilineaPlt(2, x, y, true);
    TestoPlt(0, 0, 1, "b");
    EXPECT_EQ(*cad.chiamate, (std::vector<std::string>{"Flangia.AddLine (1 2 0) (3 4 0)", "Color 7",
                                                       "Flangia.AddCircle (1 2 0) 6", "Color 7",
                                                       "Flangia.AddLightWeightPolyline 0 0 10 20 0 0",
                                                       "Color 7", "Flangia.AddText b (0 0 0) 1", "Color 7"}));
}

TEST(Cad, WithoutAContainerNothingHappens) {
    const std::vector<double> v{0, 1};
    CadLinea(nullptr, 0, 0, 1, 1);
    CadCerchio(nullptr, 0, 0, 1);
    CadPolilinea(nullptr, 2, v, v, true);
    CadTesto(nullptr, 0, 0, 1, "a");
    EXPECT_FALSE(TestoCad);
}

TEST(Cad, LettingGoForgetsEverything) {
    const CadFinto cad("AutoCAD.Application.17");
    ASSERT_TRUE(CadApre());
    CadLascia();
    EXPECT_FALSE(AppCad || DocumentoAttivoCad || ModelSpaceCad || BloccoCad || TestoCad);
}

} // namespace
