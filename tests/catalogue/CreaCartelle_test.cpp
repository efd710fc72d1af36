#include "catalogue/CreaCartelle.h"

#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fogli.h"
#include "catalogue/Catalogo.h"
#include "catalogue/CatalogoCsv.h"
#include "catalogue/ContenitoreOle.h"
#include "catalogue/LettoreXls.h"
#include "catalogue/ScrittoreXls.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using testing::HasSubstr;

namespace {

namespace fs = std::filesystem;
using S = std::string;

class CreaCartelleTest : public testing::Test {
protected:
    int Crea(const std::vector<S>& argomenti) {
        std::vector<const char*> tutti{"crea_sagomi_xls"};
        for (const S& a : argomenti)
            tutti.push_back(a.c_str());
        std::ostringstream detti;
        const int esito = CreaCartelle(tutti, detti);
        detto = detti.str();
        return esito;
    }
    prove::CartellaDiProva dir;
    fs::path file = dir.percorso / "a.xls";
    S detto;
};

TEST_F(CreaCartelleTest, OtherArgumentsAreAnsweredWithTheUse) {
    for (const std::vector<S>& argomenti :
         {std::vector<S>{}, {file.string()}, {"--utente"}, {"--utente", file.string(), "altro"}}) {
        EXPECT_EQ(Crea(argomenti), 2);
        EXPECT_THAT(detto, HasSubstr("crea_sagomi_xls --utente <file .xls>\n"));
    }
    EXPECT_FALSE(fs::exists(file));
}

// One of the sections as their tables give it, whatever lay there.
TEST_F(CreaCartelleTest, TheWorkbookOfSectionsTakesThePlaceOfAnOlderOne) {
    prove::ScriveByte(file, "vecchia");
    RendeSolaLettura(file);
    EXPECT_EQ(Crea({SAGOMI_CATALOGUE_DATA, file.string()}), 0);
    EXPECT_EQ(detto, "");
    EXPECT_EQ(prove::LeggeByte(file),
              ContenitoreOle("Workbook", ComponeBiff(CatalogoDaCsv(SAGOMI_CATALOGUE_DATA))));
}

TEST_F(CreaCartelleTest, TheUsersWorkbookIsMadeWhereThereIsNone) {
    EXPECT_EQ(Crea({"--utente", file.string()}), 0);
    const CartellaDati letta = LeggeXls(file);
    ASSERT_FALSE(letta.fogli.empty());
    for (const Foglio& foglio : letta.fogli)
        EXPECT_EQ(foglio.righe.size(), 1U) << foglio.nome << ": the headings alone";
    prove::ScriveByte(file, "la mia");
    EXPECT_EQ(Crea({"--utente", file.string()}), 0);
    EXPECT_EQ(prove::LeggeByte(file), "la mia");
}

TEST_F(CreaCartelleTest, WhatFailsIsTold) {
    EXPECT_EQ(Crea({dir.percorso.string(), file.string()}), 1);
    EXPECT_THAT(detto, HasSubstr("HEA.csv\": il file non si apre.\n"));
    EXPECT_EQ(Crea({"--utente", (dir.percorso / "manca" / "a.xls").string()}), 1);
    EXPECT_THAT(detto, HasSubstr("la cartella non esiste.\n"));
}

} // namespace
