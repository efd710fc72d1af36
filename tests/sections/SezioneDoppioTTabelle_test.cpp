// Whole sections against a second, independent derivation: tests/data/sections/riferimento.py tells how the
// expected values came about. Rolled, welded and unequal sections of the catalogue and some that no mill
// makes, classes 1 to 4, four grades, three sets of partial factors.

#include "sections/SezioneDoppioT.h"

#include <functional>

#include <gtest/gtest.h>

#include "CasiDaFile.h"
#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;
using prove::CasoDaFile;

namespace {

struct SchermoFinto : MostraVplRd {
    bool visibile = false;
    void lblVplRd(bool v) override { visibile = v; }
};

using Scrittura = std::function<void(SezioneDoppioT&, const std::string&)>;

Scrittura Su(Singolo SezioneDoppioT::*membro) {
    return [membro](SezioneDoppioT& s, const std::string& v) { s.*membro = prove::NumeroDaTesto(v); };
}
Scrittura Su(bool SezioneDoppioT::*membro) {
    return [membro](SezioneDoppioT& s, const std::string& v) { s.*membro = v == "1"; };
}

const std::map<std::string, Scrittura>& Scritture() {
    using S = SezioneDoppioT;
    static const std::map<std::string, Scrittura> scritture = {
        {"fy", Su(&S::fy)},
        {"h", Su(&S::h)},
        {"b", Su(&S::b)},
        {"tw", Su(&S::tw)},
        {"tf", Su(&S::tf)},
        {"r1", Su(&S::r1)},
        {"r2", Su(&S::r2)},
        {"r", Su(&S::r)},
        {"bAlaInf", Su(&S::bAlaInf)},
        {"tAlaInf", Su(&S::tAlaInf)},
        {"Area", Su(&S::Area)},
        {"Wely", Su(&S::Wely)},
        {"Welz", Su(&S::Welz)},
        {"Wply", Su(&S::Wply)},
        {"Wplz", Su(&S::Wplz)},
        {"iY", Su(&S::iY)},
        {"iZ", Su(&S::iZ)},
        {"Jz", Su(&S::Jz)},
        {"JT", Su(&S::JT)},
        {"Jw", Su(&S::Jw)},
        {"L0y", Su(&S::L0y)},
        {"L0z", Su(&S::L0z)},
        {"NSd", Su(&S::NSd)},
        {"Mysd", Su(&S::Mysd)},
        {"Mzsd", Su(&S::Mzsd)},
        {"BetaMy", Su(&S::BetaMy)},
        {"BetaMz", Su(&S::BetaMz)},
        {"BetaMLT", Su(&S::BetaMLT)},
        {"LLT", Su(&S::LLT)},
        {"k", Su(&S::k)},
        {"Kw", Su(&S::Kw)},
        {"C1", Su(&S::C1)},
        {"c2", Su(&S::c2)},
        {"c3", Su(&S::c3)},
        {"za", Su(&S::za)},
        {"Saldata", Su(&S::Saldata)},
        {"SaldataAsimm", Su(&S::SaldataAsimm)},
        {"TipoAcciaio", [](S& s, const std::string& v) { s.TipoAcciaio = v; }},
        {"GammaM0", [](S&, const std::string& v) { GammaM0 = prove::NumeroDaTesto(v); }},
        {"GammaM1", [](S&, const std::string& v) { GammaM1 = prove::NumeroDaTesto(v); }}};
    return scritture;
}

using Letture = std::map<std::string, double>;

void LeggeMembri(const SezioneDoppioT& s, Letture& v) {
    v = {{"c", s.c},
         {"d", s.d},
         {"cAlaInf", s.cAlaInf},
         {"yG", s.yG},
         {"ClasseWebC", s.ClasseWebC},
         {"ClasseWebF", s.ClasseWebF},
         {"ClasseAlaC", s.ClasseAlaC},
         {"ClasseAlaF", s.ClasseAlaF},
         {"ClasseAlaInfC", s.ClasseAlaInfC},
         {"ClasseAlaInfF", s.ClasseAlaInfF},
         {"ClasseCompressione", s.ClasseCompressione},
         {"ClasseFlessioneY", s.ClasseFlessioneY},
         {"ClasseFlessioneZ", s.ClasseFlessioneZ},
         {"ClassePressoFlessione", s.ClassePressoFlessione},
         {"NplRd", s.NplRd},
         {"Ntrascurabile", s.Ntrascurabile},
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
}

void LeggeContorni(const SezioneDoppioT& s, Letture& v) {
    v["AreaContorno"] = s.SezioneGenericaCorrente->Area;
    v["JyContorno"] = s.SezioneGenericaCorrente->JotaXG;
    v["JzContorno"] = s.SezioneGenericaCorrente->JotaYG;
    if (s.SezioneComp4)
        v["AreaComp4"] = s.SezioneComp4->Area;
    if (s.SezioneWy4)
        v["AreaWy4"] = s.SezioneWy4->Area;
    if (s.SezioneWz4)
        v["AreaWz4"] = s.SezioneWz4->Area;
}

void LeggeVerifiche(SezioneDoppioT& s, Letture& v) {
    v["JotaT"] = s.JotaT();
    v["JotaOmega"] = s.JotaOmega();
    v["betaA"] = s.betaA();
    s.MNRd(v["MNy"], v["MNz"], v["beta"]);
    v["Resistenza"] = s.InterazioneMNResistenza();
    v["muY"] = s.muY();
    v["muZ"] = s.muZ();
    v["kY"] = s.kY();
    v["kZ"] = s.kZfunz();
    v["Instabilita"] = s.InterazioneMNInstab(v["Py"], v["Pz"]);
    v["zCentroTaglio"] = s.zCentroTaglio();
    s.McrFunz();
    s.MbRdSub();
    v["Mcr"] = s.Mcr;
    v["LamdaLT"] = s.LamdaLT;
    v["ChiLT"] = s.ChiLT;
    v["MbRd"] = s.MbRd;
    v["muLT"] = s.muLT();
    v["kLT"] = s.kLT();
    v["FlessoTorsionale"] = s.InterazioneFlessoTorsionale();
    v["FrecciaY"] = FrecciaIniziale(s, "yy");
    v["FrecciaZ"] = FrecciaIniziale(s, "zz");
}

std::vector<CasoDaFile> TuttiICasi() {
    std::vector<CasoDaFile> tutti;
    for (const char* file : {"laminati", "saldati", "asimmetrici", "sintetici"}) {
        const auto casi = prove::LeggeCasi(std::string(SAGOMI_TEST_DATA "/sections/") + file + ".txt");
        tutti.insert(tutti.end(), casi.begin(), casi.end());
    }
    return tutti;
}

class SezioneDoppioTTabelle : public testing::TestWithParam<CasoDaFile> {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

TEST_P(SezioneDoppioTTabelle, AgreesWithTheSecondDerivation) {
    prove::Registratore registratore;
    const CasoDaFile& caso = GetParam();
    SezioneDoppioT s;
    for (const auto& [nome, valore] : caso.dati)
        Scritture().at(nome)(s, valore);

    SchermoFinto schermo;
    s.InizializzaSezione(&schermo);
    Letture letto;
    LeggeMembri(s, letto);
    LeggeContorni(s, letto);
    LeggeVerifiche(s, letto);

    auto attesi = caso.attesi;
    EXPECT_EQ(s.CurvaInstabilita("yy") + "/" + s.CurvaInstabilita("zz"), attesi.extract("curve").mapped());
    EXPECT_EQ(schermo.visibile, attesi.extract("animaSnella").mapped() == "1");
    EXPECT_EQ(registratore.testi.size(), attesi.extract("psiFuori").mapped() == "1" ? 1U : 0U);
    // chords of 8 steps against true arcs
    const double esatta = prove::NumeroDaTesto(attesi.extract("AreaEsatta").mapped());
    EXPECT_NEAR(letto.at("AreaContorno"), esatta, 0.0025 * esatta);
    for (const auto& [nome, testo] : attesi) {
        const double atteso = prove::NumeroDaTesto(testo);
        ASSERT_TRUE(letto.contains(nome)) << nome;
        EXPECT_NEAR(letto.at(nome), atteso, 1e-6 * std::abs(atteso) + 1e-7) << nome;
    }
    EXPECT_EQ(letto.contains("AreaComp4"), attesi.contains("AreaComp4"));
    EXPECT_EQ(letto.contains("AreaWy4"), attesi.contains("AreaWy4"));
    EXPECT_EQ(letto.contains("AreaWz4"), attesi.contains("AreaWz4"));
    EXPECT_FALSE(s.ErroreDatiDatabase);
}

INSTANTIATE_TEST_SUITE_P(Riferimento, SezioneDoppioTTabelle, testing::ValuesIn(TuttiICasi()),
                         [](const auto& i) {
                             std::string nome = std::to_string(i.index) + "_";
                             for (const char ch : i.param.nome)
                                 if (std::isalnum(static_cast<unsigned char>(ch)))
                                     nome += ch;
                             return nome;
                         });

} // namespace
