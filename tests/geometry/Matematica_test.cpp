#include "geometry/Matematica.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Registratore.h"

using namespace sagomi;

namespace {

/// A function that counts its evaluations.
template <typename F> struct Contata {
    F f;
    int volte = 0;
    double yEquazione(double x) {
        ++volte;
        return f(x);
    }
};
template <typename F> Contata(F) -> Contata<F>;

struct CasoZero {
    const char* nome;
    double (*f)(double);
    double x1, x2, tolleranza, radice;
};
void PrintTo(const CasoZero& c, std::ostream* os) { *os << c.nome; }

class ZeroFunzioneTest : public testing::TestWithParam<CasoZero> {};

TEST_P(ZeroFunzioneTest, FindsTheRoot) {
    const CasoZero& c = GetParam();
    prove::Registratore r;
    Contata o{c.f};
    double x1 = c.x1;
    double x2 = c.x2;
    const double x = ZeroFunzione(o, x1, x2, c.tolleranza);
    EXPECT_LT(std::abs(c.f(x)), c.tolleranza);
    EXPECT_NEAR(x, c.radice, 1e-5);
    EXPECT_LT(o.volte, 100);
    EXPECT_TRUE(r.testi.empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Radici, ZeroFunzioneTest, testing::Values(
    CasoZero{"line",           [](double x) { return 2 * x - 6; },           0,  10, 1e-9,  3},
    CasoZero{"line_reversed",  [](double x) { return 6 - 2 * x; },           10, 0,  1e-9,  3},
    CasoZero{"square_root",    [](double x) { return x * x - 2; },           0,  2,  1e-12, 1.4142135623730951},
    CasoZero{"cubic",          [](double x) { return x * x * x - x - 2; },   1,  2,  1e-10, 1.5213797068045676},
    CasoZero{"cosine",         [](double x) { return std::cos(x) - x; },     0,  1,  1e-12, 0.7390851332151607},
    CasoZero{"stuck_end",      [](double x) { return std::pow(x, 10) - 1; }, 0,  1.3, 1e-9, 1},
    CasoZero{"exponential",    [](double x) { return std::exp(x) - 20; },    0,  6,  1e-9,  2.995732273553991},
    CasoZero{"corner",         [](double x) { return x < 1 ? x - 1 : 50 * (x - 1); }, -3, 9, 1e-9, 1}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(ZeroFunzione, FirstEndWithinTheToleranceNeedsNoMore) {
    Contata o{[](double x) { return x - 1; }};
    double x1 = 1;
    double x2 = 5;
    EXPECT_EQ(ZeroFunzione(o, x1, x2, 0.001), 1);
    EXPECT_EQ(o.volte, 1);
}

TEST(ZeroFunzione, BothEndsWithinTheToleranceGiveTheFirst) {
    Contata o{[](double) { return 0.0; }};
    double x1 = 2;
    double x2 = 3;
    EXPECT_EQ(ZeroFunzione(o, x1, x2, 0.001), 2);
}

TEST(ZeroFunzione, SecondEndComesBackAfterTwoEvaluations) {
    Contata o{[](double x) { return x - 5; }};
    double x1 = 1;
    double x2 = 5;
    EXPECT_EQ(ZeroFunzione(o, x1, x2, 0.001), 5);
    EXPECT_EQ(o.volte, 2);
}

TEST(ZeroFunzione, TheToleranceItselfIsNotWithin) {
    Contata o{[](double x) { return x; }};
    double x1 = 0.5;
    double x2 = -1;
    EXPECT_EQ(ZeroFunzione(o, x1, x2, 0.5), 0);
    EXPECT_EQ(o.volte, 3);
}

TEST(ZeroFunzione, SameSignIsReported) {
    prove::Registratore r;
    Contata o{[](double x) { return x * x + 1; }};
    double x1 = -1;
    double x2 = 4;
    EXPECT_EQ(ZeroFunzione(o, x1, x2, 1e-6), 0);
    ASSERT_EQ(r.messaggi.size(), 1U);
    EXPECT_EQ(r.messaggi[0].testo, "ERRORE! La funzione non cambia segno fra x1 e x2");
    EXPECT_EQ(r.messaggi[0].icona, Icona::Stop);
}

/// A step that no tolerance closes: it never comes near 0.
double Gradino(double x) { return x < 0.3 ? -1 : 2; }

TEST(ZeroFunzione, AsksAfterAHundredIterations) {
    prove::Registratore r(false);
    Contata o{Gradino};
    double x1 = 0;
    double x2 = 1;
    const double x = ZeroFunzione(o, x1, x2, 1e-3);
    EXPECT_EQ(r.testi, (std::vector<std::string>{
                           "ERRORE! Il procedimento non converge!\nSuperate 100 iterazioni.\nProseguire ?",
                           "ERRORE! Procedimento non convergente!\nRISULTATI ERRATI!"}));
    EXPECT_EQ(o.volte, 102);
    EXPECT_EQ(r.messaggi[0].bottoni, Bottoni::SiNo);
    EXPECT_EQ(x, x2); // the last estimate
    EXPECT_NEAR(x, 0.3, 1e-6);
}

TEST(ZeroFunzione, AYesBringsTheNextQuestionAtTwoHundred) {
    std::vector<std::string> domande;
    const auto precedente = CollegaMessaggi([&](const Messaggio& m) {
        if (m.bottoni == Bottoni::SiNo)
            domande.push_back(m.testo);
        return domande.size() < 3 ? Risposta::Si : Risposta::No;
    });
    Contata o{Gradino};
    double x1 = 0;
    double x2 = 1;
    ZeroFunzione(o, x1, x2, 0.5);
    CollegaMessaggi(precedente);
    ASSERT_EQ(domande.size(), 3U);
    EXPECT_NE(domande[1].find("Superate 200 iterazioni."), std::string::npos);
    EXPECT_NE(domande[2].find("Superate 300 iterazioni."), std::string::npos);
    EXPECT_EQ(o.volte, 302);
}

TEST(ZeroFunzione, WithoutAScreenTheAnswerIsNo) {
    CollegaMessaggi({});
    MessaggiRaccolti().clear();
    Contata o{Gradino};
    double x1 = 0;
    double x2 = 1;
    EXPECT_NEAR(ZeroFunzione(o, x1, x2, 1e-3), 0.3, 1e-6);
    EXPECT_EQ(MessaggiRaccolti().size(), 2U);
    MessaggiRaccolti().clear();
}

TEST(ZeroFunzione, EqualValuesEndAtOnce) {
    prove::Registratore r(true);
    Contata o{[](double) { return 0.0; }};
    double x1 = 2;
    double x2 = 3;
    EXPECT_EQ(ZeroFunzione(o, x1, x2, 0), 3);
    EXPECT_EQ(r.testi, std::vector<std::string>{"ERRORE! Procedimento non convergente!\nRISULTATI ERRATI!"});
}

TEST(ZeroFunzione, AnUndefinedValueEndsAtOnce) {
    prove::Registratore r(true);
    Contata o{[](double x) { return x == 0 ? -1 : x == 1 ? 1 : std::nan(""); }};
    double x1 = 0;
    double x2 = 1;
    ZeroFunzione(o, x1, x2, 1e-6);
    EXPECT_EQ(r.testi, std::vector<std::string>{"ERRORE! Procedimento non convergente!\nRISULTATI ERRATI!"});
}

TEST(ZeroFunzione, HandsTheExtraOn) {
    struct Retta {
        double yEquazione(double x, bool doppia) const { return (doppia ? 2 : 1) * x - 6; }
    } o;
    double x1 = 0;
    double x2 = 10;
    EXPECT_NEAR(ZeroFunzione(o, x1, x2, 1e-9, true), 3, 1e-6);
    x1 = 0;
    x2 = 10;
    EXPECT_NEAR(ZeroFunzione(o, x1, x2, 1e-9, false), 6, 1e-6);
}

TEST(ZeroFunzione, MovesItsArguments) {
    Contata o{[](double x) { return x * x - 2; }};
    double x1 = 0;
    double x2 = 2;
    ZeroFunzione(o, x1, x2, 1e-12);
    EXPECT_NEAR(x2, 1.4142, 0.01);
}

TEST(yInterpola, StraightLine) {
    EXPECT_EQ(yInterpola(2, 10, 6, 30, 3), 15.0);
    EXPECT_EQ(yInterpola(2, 10, 6, 30, 10), 50.0);
    EXPECT_EQ(yInterpola(6, 30, 2, 10, 3), 15.0);
    EXPECT_FALSE(yInterpola(2, 10, 2, 30, 2));
}

TEST(yInterpola, Table) {
    const std::vector<double> xs{0, 10, 20, 40};
    const std::vector<double> ys{1, 2, 4, 10};
    EXPECT_EQ(yInterpolaTabella(1, xs, ys, 5), 1.5);
    EXPECT_EQ(yInterpolaTabella(2, xs, ys, 15), 3.0);
    EXPECT_EQ(yInterpolaTabella(3, xs, ys, 30), 7.0);
    EXPECT_EQ(yInterpolaTabella(4, xs, ys, 30), 7.0); // the last row uses the one before
    EXPECT_EQ(yInterpolaTabella(4, xs, ys, 50), 13.0);
    EXPECT_EQ(yInterpolaTabella(2, {0, 10}, {1, 3}, 20), 5.0); // of two rows too
    EXPECT_THROW((void)yInterpolaTabella(0, xs, ys, 5), std::out_of_range);
    EXPECT_THROW((void)yInterpolaTabella(5, xs, ys, 5), std::out_of_range);
    EXPECT_THROW((void)yInterpolaTabella(1, {3}, {4}, 5), std::out_of_range);
}

TEST(IndiceTabella, EqualSteps) {
    const std::vector<double> xs{10, 15, 20, 25};
    EXPECT_EQ(IndiceTabella(xs, 10), 1);
    EXPECT_EQ(IndiceTabella(xs, 14.9), 1);
    EXPECT_EQ(IndiceTabella(xs, 15), 2);
    EXPECT_EQ(IndiceTabella(xs, 24.9), 3);
    EXPECT_EQ(IndiceTabella(xs, 25), 4);
    EXPECT_EQ(IndiceTabella(xs, 1e300), 4);
    EXPECT_EQ(IndiceTabella(xs, 3), 1);
    EXPECT_EQ(IndiceTabella(xs, -1e300), 1);
    EXPECT_EQ(IndiceTabella({5, 3, 1}, 3.5), 1);
    EXPECT_EQ(IndiceTabella({5, 3, 1}, 0.5), 3);
    EXPECT_EQ(IndiceTabella({7}, 100), 1);
    EXPECT_EQ(IndiceTabella(xs, std::nan("")), 1);
    EXPECT_THROW((void)IndiceTabella({}, 1), std::out_of_range);
}

TEST(Indici, Cyclic) {
    const std::vector<double> a(5);
    EXPECT_EQ(IndiceSuccessivo(a, 5, 1), 2);
    EXPECT_EQ(IndiceSuccessivo(a, 5, 5), 1);
    EXPECT_EQ(IndiceSuccessivo(a, 3, 3), 1);
    EXPECT_EQ(IndicePrecedente(a, 5, 1), 5);
    EXPECT_EQ(IndicePrecedente(a, 5, 4), 3);
    int primo = 0;
    int ultimo = 0;
    LimitiArray(a, 4, primo, ultimo);
    EXPECT_EQ(primo, 1);
    EXPECT_EQ(ultimo, 4);
}

TEST(Ordina, AscendingWithItsIndices) {
    std::vector<double> a{5, 3, 9, 1, 3};
    std::vector<int> indici;
    Ordina(a, 1, 5, &indici);
    EXPECT_EQ(a, (std::vector<double>{1, 3, 3, 5, 9}));
    EXPECT_EQ(indici, (std::vector<int>{4, 2, 5, 1, 3}));
}

TEST(Ordina, PartOfTheArray) {
    std::vector<double> a{9, 8, 7, 6, 5};
    std::vector<int> indici{10, 20, 30, 40, 50};
    Ordina(a, 2, 4, &indici);
    EXPECT_EQ(a, (std::vector<double>{9, 6, 7, 8, 5}));
    EXPECT_EQ(indici, (std::vector<int>{10, 40, 30, 20, 50}));
    Ordina(a, 1, 5);
    EXPECT_EQ(a, (std::vector<double>{5, 6, 7, 8, 9}));
    EXPECT_THROW(Ordina(a, 0, 3), std::out_of_range);
    EXPECT_THROW(Ordina(a, 1, 6), std::out_of_range);
    std::vector<int> corto{1};
    EXPECT_THROW(Ordina(a, 1, 5, &corto), std::out_of_range);
    std::vector<double> vuoto;
    Ordina(vuoto, 1, 0);
    EXPECT_TRUE(vuoto.empty());
}

TEST(Scambia, Values) {
    double a = 3;
    double b = -4;
    Scambia(a, b);
    EXPECT_EQ(a, -4);
    EXPECT_EQ(b, 3);
    Scambia(a, b, true);
    EXPECT_EQ(a, -3);
    EXPECT_EQ(b, 4);
}

TEST(Arrotondamenti, HalfGoesUp) {
    EXPECT_EQ(Arrotonda(2.5), 3);
    EXPECT_EQ(Arrotonda(2.49), 2);
    EXPECT_EQ(Arrotonda(7), 7);
    EXPECT_EQ(Arrotonda(-2.5), -2);
    EXPECT_EQ(Arrotonda(-2.6), -3);
    EXPECT_EQ(ArrotondaEccesso(2), 2);
    EXPECT_EQ(ArrotondaEccesso(2.01), 3);
    EXPECT_EQ(ArrotondaEccesso(-2.5), -2);
}

// By hand, x^2 - 2 between 0 and 2: the line gives 1, then 4/3; there 2 stays behind a second time and counts
// half, 1: 4/3 + (2/9)(2/3)/(11/9) = 16/11. At 16/11 it is 14/121, above 0: the line from 4/3 gives 1.4123...
TEST(CercaZero, AnEndThatStaysCountsHalf) {
    std::vector<double> provate;
    const auto f = [&provate](double x) {
        provate.push_back(x);
        return x * x - 2;
    };
    double x1 = 0;
    double x2 = 2;
    CercaZero(f, x1, x2, 1e-9);
    ASSERT_GT(provate.size(), 5U);
    const double atteso[] = {0, 2, 1, 4.0 / 3, 16.0 / 11};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_NEAR(provate[i], atteso[i], 1e-12) << i;
}

TEST(Ordina, OnePlaceIsInOrderAndNumbered) {
    std::vector<double> a{3, 1, 2};
    std::vector<int> indici;
    Ordina(a, 2, 2, &indici);
    EXPECT_EQ(a, (std::vector<double>{3, 1, 2}));
    EXPECT_EQ(indici, (std::vector<int>{1, 2, 3}));
    EXPECT_THROW(Ordina(a, 4, 4, &indici), std::out_of_range);
}

} // namespace
