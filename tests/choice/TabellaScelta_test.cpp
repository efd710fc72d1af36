#include "choice/TabellaScelta.h"

#include <gtest/gtest.h>

#include "frame/Numeri.h"

using namespace sagomi;

namespace {

SagomoInGara Sagomo(const char* nome, const char* famiglia) {
    SagomoInGara s;
    s.famiglia = famiglia;
    SezioneDoppioT sezione;
    sezione.Designation = nome;
    s.sezione = sezione;
    return s;
}

RigaScelta Riga(double g, double massimo, bool verificato = true) {
    RigaScelta r;
    r.g = g;
    r.massimo = massimo;
    r.verificato = verificato;
    r.governa = VerificaScelta::Svergolamento;
    return r;
}

struct TabellaSceltaTest : testing::Test {
    std::vector<SagomoInGara> sagomi{Sagomo("IPE 100", "IPE"), Sagomo("IPE 80", "IPE"),
                                     Sagomo("HEA 100", "HEA"), Sagomo("HEA 120", "HEA")};
    std::vector<RigaScelta> righe{Riga(8.1, 0.9), Riga(6.0, 1.2, false), Riga(16.7, 0.5),
                                  Riga(16.7, RigaScelta::nessuno, false)};
    std::vector<std::uint32_t> posti{0, 1, 2, 3};

    std::vector<std::uint32_t> Ordinati(const OrdineScelta& o) {
        OrdinaScelta(posti, righe, sagomi, o);
        return posti;
    }
};

using Posti = std::vector<std::uint32_t>;

TEST_F(TabellaSceltaTest, ThoseThatHoldComeFirstByTheirWeight) {
    EXPECT_EQ(Ordinati({}), (Posti{0, 2, 1, 3}));
}

TEST_F(TabellaSceltaTest, ANumberThatIsNoneComesLastEitherWay) {
    EXPECT_EQ(Ordinati({ColonnaUtilizzo(), false}), (Posti{2, 0, 1, 3}));
    EXPECT_EQ(Ordinati({ColonnaUtilizzo(), true}), (Posti{1, 0, 2, 3}));
}

TEST_F(TabellaSceltaTest, NamesAreSortedByTheirNumbers) {
    EXPECT_EQ(Ordinati({colonnaNome, false}), (Posti{2, 3, 1, 0})) << "IPE 80 before IPE 100";
    EXPECT_EQ(Ordinati({colonnaNome, true}), (Posti{0, 1, 3, 2}));
}

TEST_F(TabellaSceltaTest, TheLightestThatHoldsOfEachFamily) {
    EXPECT_EQ(PiuLeggeriFra(posti, righe, sagomi), (Posti{0, 2})) << "IPE 80 is lighter, but fails";
}

TEST_F(TabellaSceltaTest, AUtilisationHasItsVerdictAndWhatGoverns) {
    EXPECT_EQ(TestoUtilizzo(Riga(1, 0.92)), "OK  92 %  svergolamento");
    EXPECT_EQ(TestoUtilizzo(Riga(1, 1.002, false)), "NO  " + Formato("0.0", 100.2) + " %  svergolamento")
        << "what fails does not read 100 %";
    RigaScelta none = Riga(1, RigaScelta::nessuno, false);
    EXPECT_EQ(TestoUtilizzo(none), "-");
    none.motivo = "perché";
    EXPECT_EQ(TestoUtilizzo(none), "perché");
    none.massimo = 0.5;
    EXPECT_EQ(TestoUtilizzo(none), "perché") << "one check has no verdict: 50 % of another tells nothing";
    none.massimo = 1.5;
    EXPECT_EQ(TestoUtilizzo(none), "NO  150 %  svergolamento");
}

TEST_F(TabellaSceltaTest, AReasonIsShortInTheColumnAndWholeInACopy) {
    RigaScelta channel = Riga(1, RigaScelta::nessuno, false);
    channel.motivo = "La flessione di canali e angolari non ha una verifica";
    EXPECT_EQ(TestoUtilizzo(channel), "flessione senza verifica");
    EXPECT_EQ(TestoInteroScelta(channel, sagomi[0], ColonnaUtilizzo()), channel.motivo);
    channel.motivo = "La verifica a membratura non ha un verdetto";
    EXPECT_EQ(TestoUtilizzo(channel), "membratura senza verdetto");
    EXPECT_EQ(TestoInteroScelta(channel, sagomi[0], ColonnaUtilizzo()), channel.motivo);
}

// 10,000 places with many equal numbers and some that are none: three runs, merged in pieces.
TEST_F(TabellaSceltaTest, SortedInPiecesTheOrderIsTheSame) {
    constexpr std::uint32_t n = 10000;
    righe.clear();
    sagomi.clear();
    posti.clear();
    for (std::uint32_t i = 0; i < n; ++i) {
        const std::uint32_t h = i * 2654435761U >> 20U;
        righe.push_back(Riga(h % 97, h % 13 == 0 ? RigaScelta::nessuno : 0.01 * (h % 151), h % 3 != 0));
        sagomi.push_back(Sagomo(("IPE " + std::to_string(h % 700)).c_str(), h % 2 == 0 ? "IPE" : "HEA"));
        posti.push_back(i);
    }
    const Posti all = posti;
    for (const OrdineScelta o :
         {OrdineScelta{}, {colonnaNome, true}, {colonnaPeso, false}, {ColonnaUtilizzo(), true}}) {
        OrdineInCorso pieces;
        pieces.Comincia(all, PrimaNellaScelta(righe, sagomi, o));
        int steps = 1;
        while (!pieces.Avanza(std::chrono::microseconds(0)))
            ++steps;
        EXPECT_GE(steps, 5) << "three runs, two rounds of merging";
        posti = all;
        EXPECT_EQ(pieces.Prende(), Ordinati(o)) << o.colonna;
    }
    OrdineInCorso none;
    none.Comincia({}, PrimaNellaScelta(righe, sagomi, {}));
    EXPECT_TRUE(none.Avanza(std::chrono::microseconds(0)));
    EXPECT_TRUE(none.Prende().empty());
}

TEST_F(TabellaSceltaTest, WhereNothingActsThereIsNoVerdictAndNoLightest) {
    for (RigaScelta& r : righe) {
        r.massimo = RigaScelta::nessuno;
        r.verificato = true;
    }
    EXPECT_TRUE(righe[0].SenzaVerdetto());
    EXPECT_EQ(TestoUtilizzo(righe[0]), "");
    EXPECT_EQ(Ordinati({}), (Posti{1, 0, 2, 3})) << "by weight";
    EXPECT_TRUE(PiuLeggeriFra(posti, righe, sagomi).empty());
}

TEST_F(TabellaSceltaTest, FieldsAreInTheUnitsOfTheirHeadings) {
    RigaScelta r;
    r.NplRd = 1234567; // N
    r.McyRd = 12.34e6; // N mm
    r.A = 5381;        // mm2
    r.NbvRd = 98765;   // N
    const auto text = [&](const char* heading) {
        for (int c = 0; c <= ColonnaUtilizzo(); ++c)
            if (std::string_view(ColonneScelta()[static_cast<std::size_t>(c)].titolo) == heading)
                return TestoScelta(r, sagomi[0], c);
        return std::string("no such column");
    };
    EXPECT_EQ(text("Npl,Rd (kN)"), Formato("#,##0", 1235));
    EXPECT_EQ(text("Mcy,Rd (kNm)"), Formato("0.0", 12.3));
    EXPECT_EQ(text("A (cm2)"), Formato("0.0", 53.8));
    EXPECT_EQ(text("Nbv,Rd (kN)"), "99");
    EXPECT_EQ(text("Nbz,Rd (kN)"), "") << "no number";
    EXPECT_EQ(text("Mb,Rd (kNm)"), "") << "no number";
    EXPECT_EQ(text("sagomo"), "IPE 100");
    EXPECT_EQ(text("famiglia"), "IPE");
}

} // namespace
