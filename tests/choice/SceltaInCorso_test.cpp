#include "choice/SceltaInCorso.h"

#include <gtest/gtest.h>

#include <cmath>

#include "frame/GeneraleSagomi.h"

using namespace sagomi;
using namespace std::chrono_literals;

namespace {

struct SceltaInCorsoTest : testing::Test {
    SceltaInCorsoTest() {
        RipristinaGenerale();
        ImpostaGamma();
        richiesta.TipoAcciaio = "S275 (Fe430)";
        richiesta.fy = 275;
        richiesta.fu = 430;
        richiesta.y.M1 = 50e6;
        richiesta.L0y = richiesta.L0z = 3000;
    }
    static std::vector<SagomoInGara> Alcuni() { return LeggeGara(SAGOMI_BIN, {"IPE", "HEA", "HEB"}).sagomi; }

    Richiesta richiesta;
    SceltaInCorso scelta;
};

TEST_F(SceltaInCorsoTest, PiecesGiveTheRowsOfOneSweep) {
    scelta.Sagomi(Alcuni());
    scelta.Comincia(richiesta, {});
    int pieces = 1;
    for (double before = 0; !scelta.Avanza(0us); ++pieces) {
        EXPECT_GT(scelta.Avanzamento(), before);
        before = scelta.Avanzamento();
    }
    EXPECT_GT(pieces, 1);
    EXPECT_EQ(scelta.Avanzamento(), 1);
    std::vector<std::string> messages;
    const auto whole = Valuta(scelta.Sagomi(), richiesta, {}, messages);
    const auto places = scelta.Ammesse();
    ASSERT_EQ(places.size(), whole.size());
    for (const RigaScelta& row : whole) {
        const RigaScelta& mine = scelta.Riga(static_cast<std::uint32_t>(row.indice));
        EXPECT_EQ(mine.indice, row.indice);
        EXPECT_EQ(mine.massimo, row.massimo);
        EXPECT_EQ(mine.MbRd, row.MbRd);
    }
}

// 32 rows between two looks at the clock; all of them where there is time.
TEST_F(SceltaInCorsoTest, AsManyPiecesAsTheTimeAllows) {
    auto some = LeggeGara(SAGOMI_BIN, {"L Uguali"}).sagomi;
    ASSERT_EQ(some.size(), 114U);
    for (const auto& [rows, pieces] : {std::pair{114, 4}, {96, 3}, {97, 4}, {65, 3}, {33, 2}, {32, 1}}) {
        scelta.Sagomi({some.begin(), some.begin() + rows});
        scelta.Comincia(richiesta, {});
        int done = 1;
        while (!scelta.Avanza(0us))
            ++done;
        EXPECT_EQ(done, pieces) << rows;
        scelta.Comincia(richiesta, {});
        EXPECT_TRUE(scelta.Avanza(10min)) << rows;
        EXPECT_EQ(scelta.Ammesse().size(), static_cast<std::size_t>(rows));
    }
}

TEST_F(SceltaInCorsoTest, WhatIsInSightComesFirst) {
    scelta.Sagomi(Alcuni());
    scelta.Comincia(richiesta, {});
    const auto last = static_cast<std::uint32_t>(scelta.Sagomi().size() - 1);
    EXPECT_FALSE(scelta.Avanza(0us, std::vector{last}));
    EXPECT_TRUE(scelta.Valida(last));
    EXPECT_TRUE(scelta.Valida(0)) << "and a piece of the others";
    EXPECT_FALSE(scelta.Valida(last - 1));
}

TEST_F(SceltaInCorsoTest, APlaceThatIsNoneIsPassedOver) {
    scelta.Sagomi(Alcuni());
    scelta.Comincia(richiesta, {});
    const auto size = static_cast<std::uint32_t>(scelta.Sagomi().size());
    EXPECT_FALSE(scelta.Avanza(0us, std::vector{size, size + 1, size + 1000000, 4000000000U}));
    EXPECT_EQ(scelta.Ammesse().size(), 32U) << "a piece of the others";
}

TEST_F(SceltaInCorsoTest, AnotherRequestMakesAllRowsInvalid) {
    scelta.Sagomi(Alcuni());
    scelta.Comincia(richiesta, {});
    while (!scelta.Avanza(1ms)) {
    }
    Filtri only;
    only.famiglie = {"HEA"};
    scelta.Comincia(richiesta, only);
    EXPECT_FALSE(scelta.Valida(0));
    while (!scelta.Avanza(1ms)) {
    }
    for (const std::uint32_t place : scelta.Ammesse())
        EXPECT_EQ(scelta.Sagomi()[place].famiglia, "HEA");
    EXPECT_FALSE(scelta.Ammesse().empty());
    scelta.Ferma();
    EXPECT_TRUE(scelta.Finita());
    EXPECT_TRUE(scelta.Ammesse().empty());
}

TEST_F(SceltaInCorsoTest, SectionsMayArriveLater) {
    auto all = Alcuni();
    const std::size_t n = all.size();
    std::vector<SagomoInGara> second(all.begin() + 10, all.end());
    all.resize(10);
    scelta.Sagomi(all);
    scelta.Comincia(richiesta, {});
    EXPECT_TRUE(scelta.Avanza(1s));
    scelta.Aggiunge(second);
    EXPECT_FALSE(scelta.Finita());
    while (!scelta.Avanza(1ms)) {
    }
    EXPECT_EQ(scelta.Ammesse().size(), n);
}

TEST_F(SceltaInCorsoTest, ReadingInPiecesGivesTheSameCatalogue) {
    const Gara whole = LeggeGara(SAGOMI_BIN);
    LetturaGara pieces(std::filesystem::path(SAGOMI_BIN) / "Sagomi.xls",
                       std::filesystem::path(SAGOMI_BIN) / "SagomiUtente.xls");
    std::vector<SagomoInGara> read;
    for (bool more = true; more;) {
        more = pieces.Legge(100);
        EXPECT_TRUE(pieces.letti.sagomi.size() == 100 || !more) << pieces.letti.sagomi.size();
        EXPECT_LE(pieces.letti.sagomi.size(), 100U);
        for (SagomoInGara& s : pieces.letti.sagomi)
            read.push_back(std::move(s));
        pieces.letti.sagomi.clear();
    }
    ASSERT_EQ(read.size(), whole.sagomi.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        EXPECT_EQ(read[i].Designazione(), whole.sagomi[i].Designazione());
        EXPECT_EQ(read[i].famiglia, whole.sagomi[i].famiglia);
    }
}

} // namespace
