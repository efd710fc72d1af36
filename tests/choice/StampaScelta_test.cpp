#include "choice/StampaScelta.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"

using namespace sagomi;

namespace {

Richiesta Chiesta() {
    RipristinaGenerale();
    Richiesta r;
    r.TipoAcciaio = "S275 (Fe430)";
    r.fy = 275;
    r.fu = 430;
    r.NSd = 250e3;
    r.y = {.M1 = 40e6, .M2 = -15e6, .MQ = 62e6};
    r.L0y = 5000;
    r.L0z = 2500;
    r.L0v = 4000;
    r.tipoDiagramma = diagrammaCampata;
    r.pict = pictConcentratoContro;
    return r;
}

std::string Intera(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}

void Contiene(const std::string& text, std::initializer_list<std::string> pieces) {
    for (const std::string& piece : pieces)
        EXPECT_NE(text.find(piece), std::string::npos) << piece << "\nin\n" << text;
}

TEST(StampaSceltaTest, TheHeadTellsAllThatWasAskedFor) {
    Richiesta r = Chiesta();
    r.LLT = 3000;
    r.k = 0.7;
    r.Kw = 0.5;
    r.C1 = 1.3;
    r.c2 = 0.4;
    r.c3 = 0.6;
    r.za = 90;
    r.doppi = r.accostati = true;
    r.dDoppi = 10;
    Filtri f;
    f.hMassima = 300;
    f.gMinimo = 20;
    f.famiglie = {"IPE", "UPN"};
    f.soloVerificati = true;
    const auto n = [](double v) { return TestoPiano(v); };
    Contiene(Intera(TestataScelta(r, f)), {"S275 (Fe430)",
                                           "fy 275 N/mm2",
                                           "NSd 250 kN",
                                           "My,1 40 kNm",
                                           "My,2 -15 kNm",
                                           "My,Q 62 kNm",
                                           "Mz,1 0 kNm",
                                           "Momenti di estremità contro un carico concentrato",
                                           "L0,y 5 m",
                                           "L0,z " + n(2.5) + " m",
                                           "L0,v 4 m",
                                           "L 3 m",
                                           "k " + n(0.7),
                                           "kw " + n(0.5),
                                           "C1 " + n(1.3),
                                           "C2 " + n(0.4),
                                           "C3 " + n(0.6),
                                           "zg 90 mm",
                                           "in coppia, distanza 10 mm, accostati",
                                           "h ≤ 300 mm",
                                           "g ≥ 20 kg/m",
                                           "famiglie: IPE, UPN",
                                           "solo verificati"});
}

TEST(StampaSceltaTest, WhatWasNotGivenIsToldAsWhatStandsForIt) {
    Contiene(Intera(TestataScelta(Chiesta(), {})),
             {"L come L0,z", "C1 del diagramma", "canali e angolari singoli", "tutte le famiglie",
              "senza limiti di misura e di massa", "verificati e non"});
}

TEST(StampaSceltaTest, WithoutALengthLateralBucklingHasNoFactors) {
    Richiesta r = Chiesta();
    r.L0z = 0;
    const std::string head = Intera(TestataScelta(r, {}));
    Contiene(head, {"svergolamento senza lunghezza"});
    EXPECT_EQ(head.find("C1"), std::string::npos);
}

TEST(StampaSceltaTest, ManyFamiliesTakeMoreLines) {
    Filtri f;
    for (int i = 0; i < 40; ++i)
        f.famiglie.push_back("Famiglia " + std::to_string(i));
    const auto lines = TestataScelta(Chiesta(), f);
    EXPECT_LE(std::ranges::max(lines, {}, &std::string::size).size(), 140U);
    Contiene(Intera(lines), {"Famiglia 0", "Famiglia 39"});
}

TEST(StampaSceltaTest, MessagesStandBelowTheTable) {
    std::vector<SagomoInGara> sections(2);
    std::vector<RigaScelta> rows(2);
    SezioneDoppioT section;
    section.Designation = "IPE 300";
    sections[1].sezione = section;
    rows[1].g = 42;
    const std::uint32_t shown[] = {1};
    const auto lines = StampaScelta(Chiesta(), {}, shown, rows, sections, {"manca un foglio"});
    ASSERT_GT(lines.size(), 4U);
    EXPECT_EQ(lines.back(), "avviso: manca un foglio");
    EXPECT_EQ(lines[lines.size() - 2], "");
    EXPECT_TRUE(lines[lines.size() - 3].starts_with("IPE 300")) << "the row that is shown, no other";
    EXPECT_TRUE(lines[lines.size() - 4].starts_with("sagomo "));
}

} // namespace
