#include "catalogue/SagomoUtente.h"

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fogli.h"
#include "Registratore.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Lettore.h"
#include "catalogue/LettoreXls.h"
#include "catalogue/ScrittoreXls.h"
#include "catalogue/ScritturaRighe.h"
#include "frame/Ambiente.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

using S = std::string;

class SagomoUtenteTest : public testing::Test {
protected:
    SagomoUtenteTest() { InstallaCartellaUtente(file); }

    /// Rows as the user types them in a spreadsheet: some cells, the others empty.
    void Scrive(const char* tabella, const std::vector<std::vector<Valore>>& righe) const {
        std::vector<RigaScritta> scritte;
        for (const auto& riga : righe)
            scritte.push_back({scritte.size() + 1, riga}); // below the headings
        ScriveRighe(file, ImprontaDi(file), tabella, scritte);
    }
    int Completa(const char* tabella, RigheDoppioT righe) const {
        return CompletaRighe(file, tabella, righe, [](SezioneDoppioT& s) { s.fy = 235; });
    }
    [[nodiscard]] Valore Campo(std::size_t foglio, std::size_t riga, std::size_t colonna) const {
        return LeggeXls(file).fogli.at(foglio).Legge(riga, colonna);
    }

    prove::CartellaDiProva dir;
    std::filesystem::path file = dir.percorso / "SagomiUtente.xls";
};

constexpr const char* simmetrico = "'DoppioT Simmetrico'$";
constexpr const char* asimmetrico = "'DoppioT Asimmetrico'$";

TEST_F(SagomoUtenteTest, AtFirstThereAreHeadingsAndNoRows) {
    const CartellaDati cartella = LeggeXls(file);
    ASSERT_EQ(cartella.fogli.size(), 2U);
    EXPECT_EQ(cartella.fogli[0].nome, "DoppioT Simmetrico");
    EXPECT_EQ(cartella.fogli[1].nome, "DoppioT Asimmetrico");
    const char* titoli[2] = {"designation|g (Kg/m)|h (mm)|b (mm)|tw (mm)|tf (mm)|r (mm)|A (cm2)|Iy (cm4)|"
                             "Wy (cm3)|Wpl,y (cm3)|iy (cm)|Iz (cm4)|Wz (cm3)|Wpl,z (cm3)|iz (cm)|IT (cm4)|"
                             "Iw (cm6)|",
                             "designation|g (Kg/m)|h (mm)|b1 (mm)|b2 (mm)|tw (mm)|tf1 (mm)|tf2 (mm)|r (mm)|"
                             "A (cm2)|Iy (cm4)|Wy1 (cm3)|Wy2 (cm3)|Wpl,y (cm3)|iy (cm)|Iz (cm4)|Wz (cm3)|"
                             "Wpl,z (cm3)|iz (cm)|IT (cm4)|Iw (cm6)|"};
    for (std::size_t f = 0; f < 2; ++f) {
        ASSERT_EQ(cartella.fogli[f].righe.size(), 1U);
        S detti;
        for (const Cella& c : cartella.fogli[f].righe[0])
            detti += std::get<S>(c.valore) + "|";
        EXPECT_EQ(detti, titoli[f]);
    }
}

TEST_F(SagomoUtenteTest, WhatTheUserHasIsNotWrittenOver) {
    Scrive(simmetrico, {{S("mia")}});
    const S prima = prove::LeggeByte(file);
    InstallaCartellaUtente(file);
    EXPECT_EQ(prove::LeggeByte(file), prima);
}

// 300 x 200 x 10 x 20 without fillets, by hand: A = 106 cm2, Iy = 17171.3 cm4, Iz = 2668.8 cm4,
// Wply = 40 x 28 + 26^2 / 4 = 1289 cm3, Wplz = 2 x 2 x 20^2 / 4 + 26 / 4 = 406.5 cm3, g = 83.21 kg/m,
// IT = (2 x 20 x 2^3 + 26) / 3 = 115.33 cm4, Iw = Iz / 4 x 28^2 = 523091 cm6.
TEST_F(SagomoUtenteTest, ARowWithItsDimensionsIsCompleted) {
    Scrive(simmetrico, {{S("S1"), {}, 300.0, 200.0, 10.0, 20.0, 0.0}});
    EXPECT_EQ(Completa(simmetrico, RigheDoppioT::Saldate), 1);
    const double attesi[] = {83.21, 300,     200,     10,      20,    0,       106,       17171.3, 1144.76,
                             1289,  12.7276, 2668.83, 266.883, 406.5, 5.01775, 346.0 / 3, 523091};
    for (std::size_t c = 1; c < 18; ++c)
        EXPECT_NEAR(std::get<double>(Campo(0, 1, c)), attesi[c - 1], 1e-5 * attesi[c - 1]) << c;
    EXPECT_EQ(Campo(0, 1, 0), Valore(S("S1")));
    EXPECT_EQ(Completa(simmetrico, RigheDoppioT::Saldate), 0) << "once";
}

// The same with a lower flange of 300 x 20: A = 126 cm2, centre of gravity 12.7778 cm above the lower edge,
// Iy = sum of A (y - yG)^2 and own inertias, by hand.
TEST_F(SagomoUtenteTest, DifferentFlangesGoToTheirOwnColumns) {
    Scrive(asimmetrico, {{S("A1"), {}, 300.0, 200.0, 300.0, 10.0, 20.0, 20.0, 0.0}});
    EXPECT_EQ(Completa(asimmetrico, RigheDoppioT::SaldateAsimmetriche), 1);
    const double yG = (40 * 29 + 26 * 15 + 60 * 1) / 126.0;
    const double Iy = 40 * std::pow(29 - yG, 2) + 26 * std::pow(15 - yG, 2) + 60 * std::pow(1 - yG, 2) +
                      (20 * 8 + 30 * 8 + 26.0 * 26 * 26) / 12;
    EXPECT_NEAR(std::get<double>(Campo(1, 1, 9)), 126, 1e-4);
    EXPECT_NEAR(std::get<double>(Campo(1, 1, 10)), Iy, 1e-5 * Iy);
    EXPECT_NEAR(std::get<double>(Campo(1, 1, 11)), Iy / (30 - yG), 1e-2);
    EXPECT_NEAR(std::get<double>(Campo(1, 1, 12)), Iy / yG, 1e-2);
    EXPECT_EQ(Campo(1, 1, 4), Valore(300.0));
    EXPECT_EQ(Campo(1, 1, 7), Valore(20.0));
}

TEST_F(SagomoUtenteTest, RowsWithValuesAndRowsThatAreNoneStay) {
    Scrive(simmetrico, {{S("giusta o no"), 1.0, 300.0, 200.0, 10.0, 20.0, 0.0, 7.0, 7.0, 7.0, 7.0, 7.0, 7.0,
                         7.0, 7.0, 7.0, 7.0, 7.0},
                        {},
                        {S("senza anima"), {}, 300.0, 200.0, {}, 20.0},
                        {S("ali che si toccano"), {}, 40.0, 200.0, 10.0, 20.0},
                        {S("completa"), {}, 300.0, 200.0, 10.0, 20.0}});
    const CartellaDati prima = LeggeXls(file);
    const prove::Registratore r;
    EXPECT_EQ(Completa(simmetrico, RigheDoppioT::Saldate), 1);
    EXPECT_THAT(r.testi, testing::IsEmpty());
    const Foglio dopo = LeggeXls(file).fogli[0];
    for (std::size_t riga = 0; riga < 5; ++riga)
        for (std::size_t c = 0; c < 18; ++c)
            EXPECT_EQ(dopo.Legge(riga, c), prima.fogli[0].Legge(riga, c)) << riga << ' ' << c;
    EXPECT_NEAR(std::get<double>(dopo.Legge(5, 7)), 106, 1e-4);
}

// The sheet of equal flanges has 18 columns, rows of different ones 21.
TEST_F(SagomoUtenteTest, ASheetWithTooFewColumnsIsToldAndLeft) {
    Scrive(simmetrico, {{S("S1"), {}, 300.0, 200.0, 10.0, 20.0, 0.0}});
    const S prima = prove::LeggeByte(file);
    try {
        Completa(simmetrico, RigheDoppioT::SaldateAsimmetriche);
        FAIL();
    } catch (const ErroreCatalogo& e) {
        EXPECT_STREQ(e.what(),
                     "Errore nella lettura di \"SagomiUtente.xls\": la tabella ha 18 colonne invece di 21.");
    }
    EXPECT_EQ(prove::LeggeByte(file), prima);
}

TEST_F(SagomoUtenteTest, PlatesThatMakeNoSectionAreNotAccepted) {
    const PiattiSaldati buoni{.h = 500, .b = 250, .tf = 15, .tw = 10, .r = 6, .b2 = 200, .tf2 = 20};
    EXPECT_TRUE(buoni.Accettabili());
    for (double PiattiSaldati::*lato :
         {&PiattiSaldati::h, &PiattiSaldati::b, &PiattiSaldati::tf, &PiattiSaldati::tw})
        for (const double valore : {0.0, -1.0, std::nan(""), 1e6, 1e30}) {
            PiattiSaldati p = buoni;
            p.*lato = valore;
            EXPECT_FALSE(p.Accettabili()) << valore;
        }
    PiattiSaldati p = buoni;
    p.b2 = 0;
    EXPECT_FALSE(p.Accettabili());
    p = buoni;
    p.tf2 = 480;
    EXPECT_FALSE(p.Accettabili()) << "no web is left";
    p = buoni;
    p.r = -1;
    EXPECT_FALSE(p.Accettabili());
    p = buoni;
    p.tw = 201;
    EXPECT_FALSE(p.Accettabili()) << "thicker than the lower flange is wide";
    p = buoni;
    p.r = 95; // 10 + 2 x 95 = 200, the narrower flange
    EXPECT_TRUE(p.Accettabili());
    p.r = 95.5;
    EXPECT_FALSE(p.Accettabili());
    p = buoni;
    p.b2 = 2000, p.b = 2000, p.r = 232; // 15 + 20 + 2 x 232 = 499, less than 500
    EXPECT_TRUE(p.Accettabili());
    p.r = 232.5;
    EXPECT_FALSE(p.Accettabili()) << "no straight web is left";
    EXPECT_TRUE(
        (PiattiSaldati{.h = 500, .b = 250, .tf = 15, .tw = 10, .r = 0, .b2 = {}, .tf2 = {}}).Accettabili());
}

TEST(NomeUtente, AQuotationMarkBecomesTwoApostrophes) {
    EXPECT_EQ(NomeUtente("H \"12\""), "H ''12''");
    EXPECT_EQ(NomeUtente("\"\"\"x\""), "''''''x''");
    EXPECT_EQ(NomeUtente("L'ala"), "L'ala");
    EXPECT_EQ(NomeUtente(""), "");
}

} // namespace
