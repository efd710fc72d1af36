#include "choice/TabellaScelta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>
#include <optional>
#include <random>
#include <set>

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

/// A name in pieces: runs of figures as their number, all else letter by letter.
using Pezzo = std::pair<char, double>; // first letter, number of a run of figures
std::vector<Pezzo> Pezzi(const std::string& name) {
    std::vector<Pezzo> pieces;
    for (std::size_t i = 0; i < name.size();) {
        const std::size_t end = std::min(name.find_first_not_of("0123456789", i), name.size());
        pieces.emplace_back(name[i], end > i ? std::stod(name.substr(i, end - i)) : -1);
        i = std::max(end, i + 1);
    }
    return pieces;
}

bool PrimaPerPezzi(const Pezzo& a, const Pezzo& b) {
    return a.second >= 0 && b.second >= 0 ? a.second < b.second : a.first < b.first;
}

TEST_F(TabellaSceltaTest, NamesArePiecesOfLettersAndNumbers) {
    const std::vector<std::string> names = {
        "",           "IPE",          "IPE ",        "IPE 80", "IPE 080",  "IPE 100", "IPE 100 A",
        "IPE 100x5",  "IPE 100x",     "IPE100",      "HE 100", "HE 100 B", "HE 1000", "L 50x50x5",
        "L 50x50x10", "L 50x5x50",    "80",          "80 IPE", "8",        "08 A",    "L 50x6",
        "L 50x60",    "L 5x600",      "IPE 80 O",    "IPE 9",  "UB 10x20", "UB 10x3", "UB 10-3",
        "UB 10 30",   "12345678 902", "12345678901", "IPEè",   "è"};
    sagomi.clear();
    for (const std::string& name : names)
        sagomi.push_back(Sagomo(name.c_str(), "F"));
    const auto ascending = PrimaNellaScelta(righe, sagomi, {colonnaNome, false});
    const auto descending = PrimaNellaScelta(righe, sagomi, {colonnaNome, true});
    for (std::uint32_t a = 0; a < names.size(); ++a)
        for (std::uint32_t b = 0; b < names.size(); ++b) {
            const bool first =
                std::ranges::lexicographical_compare(Pezzi(names[a]), Pezzi(names[b]), PrimaPerPezzi);
            EXPECT_EQ(ascending(a, b), first) << names[a] << " and " << names[b];
            EXPECT_EQ(descending(b, a), first) << names[a] << " and " << names[b];
        }
}

/// Rows where much is equal and some is no number.
void Sorteggia(std::vector<SagomoInGara>& sagomi, std::vector<RigaScelta>& righe, unsigned seed) {
    std::mt19937 random(seed);
    const auto number = [&] { return random() % 5 == 0 ? RigaScelta::nessuno : double(random() % 4) / 2; };
    sagomi.clear();
    righe.clear();
    for (int i = 0; i < 40; ++i) {
        sagomi.push_back(
            Sagomo(("S " + std::to_string(random() % 9)).c_str(), random() % 3 == 0 ? "A" : "B"));
        RigaScelta& r = righe.emplace_back(Riga(double(random() % 6), number(), random() % 3 != 0));
        for (double* v : {&r.h, &r.b, &r.A, &r.NplRd, &r.NbyRd, &r.NbzRd, &r.NbvRd, &r.McyRd, &r.MbRd,
                          &r.sezione, &r.membratura, &r.svergolamento})
            *v = number();
        r.classe = static_cast<int>(random() % 4);
    }
}

// Each column either way: a row before another is not behind it, and none before itself; numbers rise or
// fall, those that are none stand last, and equal rows stay as they stood.
TEST_F(TabellaSceltaTest, EachColumnIsAnOrderEitherWay) {
    Sorteggia(sagomi, righe, 3);
    for (int column = 0; column <= ColonnaUtilizzo(); ++column)
        for (const bool descending : {false, true}) {
            const OrdineScelta order{column, descending};
            const PrimaDi first = PrimaNellaScelta(righe, sagomi, order);
            posti.resize(righe.size());
            std::iota(posti.begin(), posti.end(), 0U);
            OrdinaScelta(posti, righe, sagomi, order);
            const auto value = ColonneScelta()[static_cast<std::size_t>(column)].valore;
            for (std::size_t i = 1; i < posti.size(); ++i) {
                const std::uint32_t a = posti[i - 1], b = posti[i];
                EXPECT_FALSE(first(a, a));
                EXPECT_FALSE(first(b, a));
                EXPECT_TRUE(first(a, b) || a < b) << column;
                if (value == nullptr)
                    continue;
                const double x = value(righe[a]), y = value(righe[b]);
                EXPECT_TRUE(std::isnan(y) || (descending ? x > y : x < y) || (x == y && a < b))
                    << column << ": " << x << ' ' << y;
            }
        }
}

TEST_F(TabellaSceltaTest, TheLightestAreThoseOfTheDefinition) {
    for (unsigned seed = 1; seed <= 50; ++seed) {
        Sorteggia(sagomi, righe, seed);
        posti = {39, 3, 17, 5, 5, 21, 0, 11, 30, 31, 32, 33, 8, 9, 2};
        std::set<std::uint32_t> expected;
        for (const char* family : {"A", "B"}) {
            std::optional<std::pair<double, std::uint32_t>> best;
            for (const std::uint32_t p : posti)
                if (sagomi[p].famiglia == family && righe[p].verificato && !std::isnan(righe[p].massimo))
                    best = std::min(best.value_or(std::pair(1e9, 0U)), std::pair(righe[p].g, p));
            if (best)
                expected.insert(best->second);
        }
        const Posti found = PiuLeggeriFra(posti, righe, sagomi);
        EXPECT_EQ(std::set(found.begin(), found.end()), expected) << seed;
        EXPECT_EQ(found.size(), expected.size()) << seed;
    }
}

// At most 99.99 times as much is told as a number; what holds to the last bit reads 100 %.
TEST_F(TabellaSceltaTest, AUtilisationIsToldAsFarAsItSaysSomething) {
    const std::string beyond = "NO  > " + Formato("#,##0", 9999) + " %  svergolamento";
    EXPECT_EQ(TestoUtilizzo(Riga(1, 250, false)), beyond);
    EXPECT_EQ(TestoUtilizzo(Riga(1, 99.991, false)), beyond);
    EXPECT_EQ(TestoUtilizzo(Riga(1, std::numeric_limits<double>::infinity(), false)), beyond);
    EXPECT_EQ(TestoUtilizzo(Riga(1, 99.99, false)), "NO  9999 %  svergolamento");
    EXPECT_EQ(TestoUtilizzo(Riga(1, 1)), "OK  100 %  svergolamento");
    EXPECT_EQ(TestoUtilizzo(Riga(1, 0.9999)), "OK  100 %  svergolamento");
    EXPECT_EQ(TestoUtilizzo(Riga(1, 1.00001, false)),
              "NO  " + Formato("0.0###", 100.001) + " %  svergolamento");
    EXPECT_EQ(TestoUtilizzo(Riga(1, 1.006, false)), "NO  101 %  svergolamento");
    EXPECT_EQ(TestoUtilizzo(Riga(1, 1, false)), "-") << "another check has no verdict";
    RigaScelta none = Riga(1, 0.5);
    none.governa = VerificaScelta::Nessuna;
    EXPECT_EQ(TestoUtilizzo(none), "OK  50 %");
}

// A copy has all figures of each column, in its unit.
TEST_F(TabellaSceltaTest, ACopyHasAllFigures) {
    RigaScelta r = Riga(12.345678, 0.87654321);
    r.h = 301.25;
    r.A = 5381.25;
    r.NbyRd = 1234567.5;
    r.MbRd = 12345678.5;
    r.classe = 3;
    const auto whole = [&](int column) { return TestoInteroScelta(r, sagomi[1], column); };
    EXPECT_EQ(whole(colonnaNome), "IPE 80");
    EXPECT_EQ(whole(colonnaFamiglia), "IPE");
    EXPECT_EQ(whole(colonnaPeso), TestoPiano(12.345678));
    EXPECT_EQ(whole(colonnaPeso + 1), TestoPiano(301.25));
    EXPECT_EQ(whole(colonnaPeso + 3), TestoPiano(53.8125));
    EXPECT_EQ(whole(colonnaPeso + 4), "3");
    EXPECT_EQ(whole(colonnaPeso + 6), TestoPiano(1234.5675));
    EXPECT_EQ(whole(colonnaPeso + 7), "") << "no number";
    EXPECT_EQ(whole(colonnaPeso + 10), TestoPiano(12.3456785));
    EXPECT_EQ(whole(ColonnaUtilizzo()), "OK  88 %  svergolamento");
}

// Two runs are merged once: three steps, and not a fourth.
TEST_F(TabellaSceltaTest, WhatIsSortedIsNotMergedAgain) {
    for (const auto& [places, least] : {std::pair<std::size_t, int>{OrdineInCorso::tratto, 1},
                                        {OrdineInCorso::tratto + 1, 3},
                                        {2 * OrdineInCorso::tratto, 3},
                                        {4 * OrdineInCorso::tratto, 7},
                                        {3 * OrdineInCorso::tratto, 6}}) {
        Posti falling(places);
        std::iota(falling.rbegin(), falling.rend(), 0U);
        OrdineInCorso pieces;
        pieces.Comincia(falling, std::less<std::uint32_t>());
        int steps = 1;
        while (!pieces.Avanza(std::chrono::microseconds(0)))
            ++steps;
        EXPECT_EQ(steps, least) << places;
        EXPECT_TRUE(std::ranges::is_sorted(pieces.Prende()));
        pieces.Comincia(falling, std::less<std::uint32_t>());
        EXPECT_TRUE(pieces.Avanza(std::chrono::minutes(10))) << "in one go where there is time";
    }
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
