#include "sections/SezioneDoppia.h"

#include <cmath>

#include <gtest/gtest.h>

#include "CasiDaFile.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;

namespace {

/// UPN 200 of EN 10365 [mm]; e 20.1.
SagomoSingolo Upn200() {
    return {"UPN 200", 3220, 1910e4, 148e4, 228e3, 51.8e3, 20.1, 100, 77, 21.4, 75, 200};
}

// By hand.
TEST(SezioneDoppia, ChannelsBackToBackWithoutAGapTurnAboutTheirBacks) {
    const SagomoDoppio due = UdoppiCalcolaSub(Upn200(), 0, false);
    EXPECT_EQ(due.Area, 6440);
    EXPECT_EQ(due.Jy, 3820e4);
    EXPECT_EQ(due.iY, 77);
    EXPECT_NEAR(due.iZ, std::sqrt(21.4 * 21.4 + 20.1 * 20.1), 1e-12);
    EXPECT_NEAR(due.Jz, 6440 * (21.4 * 21.4 + 20.1 * 20.1), 1e-6);
    EXPECT_EQ(due.Wely, 2 * 1910e4 / 100) << "twice that of one, not four times";
    EXPECT_NEAR(due.Welz, due.Jz / 75, 1e-6);
    EXPECT_EQ(due.Wply, 456e3);
    EXPECT_NEAR(due.Wplz, 6440 * 20.1, 1e-6);
}

TEST(SezioneDoppia, ChannelsWithTheirTipsTogetherAreStiffer) {
    const SagomoDoppio due = UdoppiCalcolaSub(Upn200(), 10, true);
    EXPECT_NEAR(due.Wplz, 6440 * (75 - 20.1 + 5), 1e-6);
    EXPECT_NEAR(due.Welz, due.Jz / 80, 1e-6);
    EXPECT_GT(due.Jz, UdoppiCalcolaSub(Upn200(), 10, false).Jz);
}

TEST(SezioneDoppia, ThePrefixDoesNotPileUp) {
    SezioneSagomoU s;
    s.iY = 1;
    RendeDoppia(s, Upn200(), 12, false);
    RendeDoppia(s, Upn200(), 12, true);
    EXPECT_EQ(s.Designation, "2 UPN 200");
    EXPECT_EQ(double(s.Area), 6440);
    EXPECT_EQ(double(s.b), 75);
    EXPECT_EQ(double(s.h), 200);
    EXPECT_TRUE(s.Doppi && s.DoppiCorto);
    EXPECT_EQ(double(s.dDoppi), 12);
}

/// A section whose constants are those of its own outline.
template <typename S> S Esatta(const prove::CasoDaFile& caso) {
    const auto dato = [&caso](const char* nome) { return prove::NumeroDaTesto(caso.dati.at(nome)); };
    S s;
    s.fy = 235;
    s.h = dato("h");
    s.b = dato("b");
    s.r1 = dato("r1");
    if constexpr (std::is_same_v<S, SezioneSagomoU>) {
        s.tw = dato("tw");
        s.tf = dato("tf");
        s.pendenza = dato("pendenza");
        s.Wply = dato("Wply") / 2;
    } else {
        s.t = dato("t");
        s.r2 = dato("r2");
    }
    s.InizializzaSezione();
    const SezioneGenerica& g = *s.SezioneGenericaCorrente;
    s.Area = g.Area;
    s.Jy = g.JotaXG;
    s.Jz = g.JotaYG;
    s.iY = std::sqrt(g.JotaXG / g.Area);
    s.Iz = std::sqrt(g.JotaYG / g.Area);
    return s;
}

/// The constants of pairs, integrated over both pieces (tests/data/sections/riferimento_sagomi.py).
template <typename S> int ConfrontaCoppie(const char* file) {
    int coppie = 0;
    for (const auto& caso : prove::LeggeCasi(std::string(SAGOMI_TEST_DATA "/sections/") + file)) {
        const auto dato = [&caso](const char* nome) { return prove::NumeroDaTesto(caso.dati.at(nome)); };
        if (caso.dati.at("Doppi") != "1")
            continue;
        ++coppie;
        S s = Esatta<S>(caso);
        RendeDoppia(s, SingoloDi(s), dato("dDoppi"), caso.dati.at("DoppiCorto") == "1");
        const auto vicino = [&](const char* nome, double valore) {
            EXPECT_NEAR(valore, dato(nome), 2e-6 * dato(nome)) << caso.nome << ' ' << nome;
        };
        vicino("Area", s.Area);
        vicino("Jy", s.Jy);
        vicino("Jz", s.Jz);
        vicino("iY", s.iY);
        vicino("Iz", s.Iz);
        vicino("Wely", s.Wely);
        vicino("Welz", s.Welz);
        if constexpr (std::is_same_v<S, SezioneSagomoU>) {
            vicino("Wply", s.Wply);
            vicino("Wplz", s.Wplz);
        }
    }
    return coppie;
}

TEST(SezioneDoppia, AgreesWithBothPiecesIntegrated) {
    EXPECT_EQ(ConfrontaCoppie<SezioneSagomoU>("canali.txt"), 26);
    EXPECT_EQ(ConfrontaCoppie<SezioneSagomoL>("angolari.txt"), 21);
}

} // namespace
