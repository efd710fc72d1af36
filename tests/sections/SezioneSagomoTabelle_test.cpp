// Channels and angles, single and in pairs, against a second, independent derivation:
// tests/data/sections/riferimento_sagomi.py tells how the expected values came about. Rows of the catalogue
// and sections that no mill makes, classes 1 to 4, four grades, three sets of partial factors.

#include <cmath>
#include <functional>

#include <gtest/gtest.h>

#include "CasiDaFile.h"
#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "sections/AreaEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneGenerica.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

using namespace sagomi;
using prove::CasoDaFile;

namespace {

struct SchermoFinto : MostraVplRd {
    bool visibile = false;
    void lblVplRd(bool v) override { visibile = v; }
};

template <typename S> using Membri = std::map<std::string, std::function<void(S&, const std::string&)>>;

template <typename S, typename M> auto Su(M S::*membro) {
    return [membro](S& s, const std::string& v) { s.*membro = static_cast<M>(prove::NumeroDaTesto(v)); };
}

template <typename S> Membri<S> Comuni() {
    return {{"fy", Su(&S::fy)},
            {"h", Su(&S::h)},
            {"b", Su(&S::b)},
            {"r1", Su(&S::r1)},
            {"Area", Su(&S::Area)},
            {"Jy", Su(&S::Jy)},
            {"Jz", Su(&S::Jz)},
            {"Wely", Su(&S::Wely)},
            {"Welz", Su(&S::Welz)},
            {"iY", Su(&S::iY)},
            {"Iz", Su(&S::Iz)},
            {"L0y", Su(&S::L0y)},
            {"L0z", Su(&S::L0z)},
            {"dDoppi", Su(&S::dDoppi)},
            {"Doppi", Su(&S::Doppi)},
            {"DoppiCorto", Su(&S::DoppiCorto)},
            {"TipoAcciaio", [](S& s, const std::string& v) { s.TipoAcciaio = v; }},
            {"GammaM0", [](S&, const std::string& v) { GammaM0 = prove::NumeroDaTesto(v); }},
            {"GammaM1", [](S&, const std::string& v) { GammaM1 = prove::NumeroDaTesto(v); }}};
}

const Membri<SezioneSagomoU>& MembriU() {
    using S = SezioneSagomoU;
    static const Membri<S> membri = [] {
        Membri<S> m = Comuni<S>();
        m.insert({{"tw", Su(&S::tw)},
                  {"tf", Su(&S::tf)},
                  {"pendenza", Su(&S::pendenza)},
                  {"Wply", Su(&S::Wply)},
                  {"Wplz", Su(&S::Wplz)},
                  {"NSd", Su(&S::NSd)}});
        return m;
    }();
    return membri;
}

const Membri<SezioneSagomoL>& MembriL() {
    using S = SezioneSagomoL;
    static const Membri<S> membri = [] {
        Membri<S> m = Comuni<S>();
        m.insert({{"t", Su(&S::t)}, {"r2", Su(&S::r2)}, {"iV", Su(&S::iV)}, {"L0v", Su(&S::L0v)}});
        return m;
    }();
    return membri;
}

template <typename S> S Legge(const CasoDaFile& caso, const Membri<S>& membri) {
    S s;
    for (const auto& [nome, valore] : caso.dati)
        membri.at(nome)(s, valore);
    return s;
}

using Letture = std::map<std::string, double>;

Letture LeggeContorno(const SezioneGenerica& g) {
    return {{"AreaContorno", g.Area},
            {"xG", g.xG},
            {"yG", g.yG},
            {"JyContorno", g.JotaXG},
            {"JzContorno", g.JotaYG}};
}

Letture LeggeAssiale(const SezioneSagomoU& s, const std::string& quando) {
    return {{"NplRd" + quando, s.NplRd},
            {"Ntrascurabile" + quando, s.Ntrascurabile},
            {"ClassePressoFlessione" + quando, s.ClassePressoFlessione}};
}

Letture LeggeCanale(const SezioneSagomoU& s) {
    Letture v{{"c", s.c},
              {"d", s.d},
              {"pf", s.pf()},
              {"tf1", s.tf1()},
              {"tf2", s.tf2()},
              {"JotaT", s.JotaT()},
              {"JotaOmega", s.JotaOmega()},
              {"SnellWeb", s.SnellWeb()},
              {"SnellAla", s.SnellAla()},
              {"ClasseWebC", s.ClasseWebC},
              {"ClasseWebF", s.ClasseWebF},
              {"ClasseAlaC", s.ClasseAlaC},
              {"ClasseAlaF", s.ClasseAlaF},
              {"ClasseCompressione", s.ClasseCompressione},
              {"ClasseFlessioneY", s.ClasseFlessioneY},
              {"ClasseFlessioneZ", s.ClasseFlessioneZ},
              {"betaA", s.betaA()},
              {"McyRd", s.McyRd},
              {"MczRd", s.MczRd},
              {"eNy", s.eNy},
              {"eNz", s.eNz},
              {"WyEff", s.WyEff},
              {"WzEff", s.WzEff},
              {"NbyRd", s.NbyRd},
              {"NbzRd", s.NbzRd},
              {"VplyRd", s.VplyRd},
              {"VplzRd", s.VplzRd}};
    if (s.SezioneComp4)
        v["AreaComp4"] = s.SezioneComp4->Area;
    v.merge(LeggeContorno(*s.SezioneGenericaCorrente));
    return v;
}

void Confronta(const Letture& letto, const std::map<std::string, std::string>& attesi) {
    for (const auto& [nome, testo] : attesi) {
        const double atteso = prove::NumeroDaTesto(testo);
        ASSERT_TRUE(letto.contains(nome)) << nome;
        EXPECT_NEAR(letto.at(nome), atteso, 1e-6 * std::abs(atteso) + 1e-7) << nome;
    }
}

/// Chords of 8 steps against true arcs.
void ConfrontaArea(const SezioneGenerica& contorno, const std::string& esatta) {
    const double area = prove::NumeroDaTesto(esatta);
    EXPECT_NEAR(contorno.Area, area, 0.0025 * area);
}

class SezioneSagomoTabelle : public testing::TestWithParam<CasoDaFile> {
protected:
    void TearDown() override { RipristinaGenerale(); }

    prove::Registratore registratore;
};

class CanaliTabelle : public SezioneSagomoTabelle {};
class AngolariTabelle : public SezioneSagomoTabelle {};

TEST_P(CanaliTabelle, AgreeWithTheSecondDerivation) {
    auto s = Legge(GetParam(), MembriU());
    SchermoFinto schermo;
    s.InizializzaSezione(&schermo);
    Letture letto = LeggeAssiale(s, "Primo");
    InizializzaConAreaEfficace(s, &schermo);
    letto.merge(LeggeAssiale(s, ""));
    letto.merge(LeggeCanale(s));

    auto attesi = GetParam().attesi;
    EXPECT_EQ(schermo.visibile, attesi.extract("animaSnella").mapped() == "1");
    ConfrontaArea(*s.SezioneGenericaCorrente, attesi.extract("AreaEsatta").mapped());
    Confronta(letto, attesi);
    EXPECT_EQ(std::isnan(s.McyRd), !attesi.contains("McyRd")) << "none for a pair of class 4";
    EXPECT_EQ(std::isnan(s.MczRd), !attesi.contains("MczRd"));
    EXPECT_EQ(letto.contains("AreaComp4"), attesi.contains("AreaComp4"));
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_P(AngolariTabelle, AgreeWithTheSecondDerivation) {
    auto s = Legge(GetParam(), MembriL());
    InizializzaConAreaEfficace(s);
    Letture letto = LeggeContorno(*s.SezioneGenericaCorrente);
    letto.insert({{"SnellAla", s.SnellAla},
                  {"SnellAla1", s.SnellAla1},
                  {"ClasseCompressione", s.ClasseCompressione},
                  {"betaA", s.betaA()},
                  {"NbyRd", s.NbyRd},
                  {"NbzRd", s.NbzRd},
                  {"NbvRd", s.NbvRd}});
    if (s.SezioneComp4)
        letto["AreaComp4"] = s.SezioneComp4->Area;

    auto attesi = GetParam().attesi;
    const auto limite = [&attesi](const char* nome) {
        const std::string testo = attesi.extract(nome).mapped();
        return testo == "inf" ? std::string(limiteInfinito) : testo == "-" ? std::string() : testo;
    };
    EXPECT_EQ(s.Classe4LarghezzaGovernante, attesi.extract("larghezza").mapped());
    EXPECT_EQ(s.Limite0Ala, limite("da"));
    EXPECT_EQ(s.Limite1Ala, limite("a"));
    ConfrontaArea(*s.SezioneGenericaCorrente, attesi.extract("AreaEsatta").mapped());
    Confronta(letto, attesi);
    EXPECT_EQ(letto.contains("AreaComp4"), attesi.contains("AreaComp4"));
    EXPECT_TRUE(registratore.testi.empty());
}

std::vector<CasoDaFile> Casi(const char* file) {
    return prove::LeggeCasi(std::string(SAGOMI_TEST_DATA "/sections/") + file);
}

std::string Nome(const testing::TestParamInfo<CasoDaFile>& i) {
    std::string nome = std::to_string(i.index) + "_";
    for (const char ch : i.param.nome)
        if (std::isalnum(static_cast<unsigned char>(ch)))
            nome += ch;
    return nome;
}

INSTANTIATE_TEST_SUITE_P(Riferimento, CanaliTabelle, testing::ValuesIn(Casi("canali.txt")), Nome);
INSTANTIATE_TEST_SUITE_P(Riferimento, AngolariTabelle, testing::ValuesIn(Casi("angolari.txt")), Nome);

} // namespace
