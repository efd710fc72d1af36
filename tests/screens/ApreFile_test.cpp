#include "screens/ApreFile.h"

#include <QLineEdit>

#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class ApreFileTest : public AmbienteSchermi {};

TEST_F(ApreFileTest, AFileOfABeamOpensOnItsScreen) {
    Avvia();
    EXPECT_TRUE(ApreFile(QStringLiteral(SAGOMI_TEST_DATA "/composite/piena.sco")));
    EXPECT_EQ(Aperto("frmAcciaioCls").windowTitle(), "AcciaioCls/Flessione - File: piena.sco");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(ApreFileTest, AFileOfAJointOpensOnItsScreen) {
    Avvia();
    EXPECT_TRUE(ApreFile(QStringLiteral(SAGOMI_TEST_DATA "/joints/nodo.Gfl")));
    Schermo& g = Aperto("frmGiunti");
    EXPECT_EQ(g.windowTitle(), "Giunto Flangiato - F1 per aiuto - File: nodo.Gfl");
    EXPECT_EQ(Trova<QLineEdit>(&g, "TxtDescrizione")->text(), "Nodo di prova, però leggero");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(ApreFileTest, WhatIsNoFileOfTheProgramIsTold) {
    Avvia();
    EXPECT_FALSE(ApreFile(QStringLiteral("foglio.txt")));
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_EQ(registratore.testi[0], "Errore: foglio.txt non è un file di Sagomi (Gfl, Sco)");
    EXPECT_TRUE(Aperto("frmDoppioT").isVisible());
}

TEST_F(ApreFileTest, WithoutAScreenTheFileIsNotBlamed) {
    ASSERT_EQ(NavigaSchermi::Unico().Attivo(), nullptr);
    EXPECT_FALSE(ApreFile(QStringLiteral("trave.sco")));
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{"Errore: trave.sco non si apre dalla riga di comando"});
}

TEST_F(ApreFileTest, AFileThatIsNotThereIsTold) {
    Avvia();
    EXPECT_FALSE(ApreFile(QStringLiteral("/nessuna/trave.SCO")));
    ASSERT_FALSE(registratore.testi.empty());
    EXPECT_TRUE(registratore.testi[0].starts_with("Non è possibile leggere il file "))
        << registratore.testi[0];
}

} // namespace
