#include "catalogue/FoglioLetto.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

CellaLetta Numero(unsigned riga, unsigned colonna, double v) {
    return {std::bit_cast<std::uint64_t>(v), static_cast<std::uint16_t>(riga),
            static_cast<std::uint16_t>(colonna), CellaLetta::Tipo::Numero, 0};
}

CellaLetta Vuota(unsigned riga, unsigned colonna) {
    CellaLetta c = Numero(riga, colonna, 0);
    c.tipo = CellaLetta::Tipo::Vuota;
    return c;
}

FoglioLetto Con(std::initializer_list<CellaLetta> celle) {
    FoglioLetto f("x", std::make_shared<TestiLetti>());
    for (const CellaLetta& c : celle)
        f.Aggiunge(c);
    f.Termina();
    return f;
}

TEST(FoglioLetto, CellsByRowWithAValueAndColumn) {
    const FoglioLetto f = Con({Numero(2, 0, 1), Numero(2, 1, 2), Numero(9, 3, 3), Numero(9, 7, 4)});
    ASSERT_EQ(f.Righe(), 2U);
    EXPECT_EQ(f.NumeroRiga(0), 2U);
    EXPECT_EQ(f.NumeroRiga(1), 9U);
    EXPECT_EQ(f.Colonne(), 8U);
    EXPECT_EQ(f.Cella(0, 1)->Numero(), 2);
    EXPECT_EQ(f.Cella(0, 2), nullptr);
    EXPECT_EQ(f.Cella(1, 0), nullptr);
    EXPECT_EQ(f.Cella(1, 7)->Numero(), 4);
    EXPECT_EQ(f.Cella(1, 8), nullptr);
}

TEST(FoglioLetto, OrderAndRepetition) {
    const FoglioLetto f = Con({Numero(1, 1, 1), Numero(0, 0, 2), Numero(1, 0, 3), Numero(1, 1, 4)});
    ASSERT_EQ(f.Righe(), 2U);
    EXPECT_EQ(f.Celle(), 3U);
    EXPECT_EQ(f.Cella(1, 0)->Numero(), 3);
    EXPECT_EQ(f.Cella(1, 1)->Numero(), 4); // the later one
}

TEST(FoglioLetto, EmptyCellsCountForNothingButTakeTheirPlace) {
    const FoglioLetto f = Con({Numero(0, 0, 1), Vuota(0, 9), Numero(1, 0, 2), Vuota(1, 0), Vuota(5, 0)});
    EXPECT_EQ(f.Righe(), 1U);
    EXPECT_EQ(f.Colonne(), 1U);
    const FoglioLetto nulla = Con({});
    EXPECT_EQ(nulla.Righe(), 0U);
    EXPECT_EQ(nulla.Colonne(), 0U);
    EXPECT_EQ(FoglioLetto().Righe(), 0U);
}

TEST(FoglioLetto, TextsSharedAndOwn) {
    auto comuni = std::make_shared<TestiLetti>();
    comuni->InCorso() += "zero";
    comuni->Chiude();
    comuni->Chiude(); // an empty one
    comuni->InCorso() += "due";
    comuni->Chiude();
    FoglioLetto f("x", comuni);
    f.TestiPropri().InCorso() += "mio";
    f.TestiPropri().Chiude();
    f.Aggiunge({2, 0, 0, CellaLetta::Tipo::TestoComune, 0});
    f.Aggiunge({0, 0, 1, CellaLetta::Tipo::Testo, 0});
    f.Termina();
    EXPECT_EQ(f.ValoreDi(f.Cella(0, 0)), Valore(std::string("due")));
    EXPECT_EQ(f.ValoreDi(f.Cella(0, 1)), Valore(std::string("mio")));
    EXPECT_TRUE(Vuoto(f.ValoreDi(f.Cella(0, 2))));
    EXPECT_EQ((*comuni)[1], "");
}

TEST(FoglioDa, APlaceForEachCellUpToTheLastOfItsRow) {
    const FoglioLetto letto = Con({Numero(1, 2, 5), Numero(3, 0, 6)});
    EXPECT_EQ(PostiDi(letto), 4U + 2U * 3U);
    const Foglio f = FoglioDa(letto);
    ASSERT_EQ(f.righe.size(), 4U);
    EXPECT_EQ(f.righe[0].size(), 0U);
    EXPECT_EQ(f.righe[1].size(), 3U);
    EXPECT_EQ(f.Legge(1, 2), Valore(5.0));
    EXPECT_EQ(f.Legge(3, 0), Valore(6.0));
    EXPECT_EQ(PostiDi(Con({})), 0U);
}

} // namespace
