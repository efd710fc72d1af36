#include "choice/Scelta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

#include "Registratore.h"
#include "choice/TabellaScelta.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Unita.h"

using namespace sagomi;

namespace {

/// Rows of the real workbook, read once.
const std::vector<SagomoInGara>& Sagomi() {
    static const std::vector<SagomoInGara> sagomi = LeggeGara(SAGOMI_BIN).sagomi;
    return sagomi;
}

class SceltaTest : public testing::Test {
protected:
    void SetUp() override {
        RipristinaGenerale();
        Normativa = normativaEC3;
        ImpostaGamma();
    }
    void TearDown() override {
        RipristinaGenerale();
        EXPECT_TRUE(registratore.testi.empty()) << registratore.testi.front() << ": told, not collected";
    }

    static Richiesta Acciaio275() {
        Richiesta r;
        r.TipoAcciaio = "S275 (Fe430)";
        r.fy = 275;
        r.fu = 430;
        return r;
    }

    std::vector<RigaScelta> Valuta(const Richiesta& r, const Filtri& f = {}) {
        return sagomi::Valuta(Sagomi(), r, f, messaggi);
    }

    /// The one row of that name.
    RigaScelta Riga(const Richiesta& r, std::string_view nome) {
        for (const RigaScelta& riga : Valuta(r))
            if (Sagomi()[riga.indice].Designazione() == nome)
                return riga;
        throw std::out_of_range(std::string(nome));
    }

    std::vector<std::string> messaggi;
    sagomi::prove::Registratore registratore;
};

// IPE 300, S275, EC3: A 53.8 cm2, Wpl,y 628.4 cm3. Npl = 5381 x 275; Mpl = 628.4 cm3 x 275 = 172.8 kNm. Short
// and restrained (L0 and L near 0) every check of a moment alone is M / Mpl; in class 1 the section's squares
// it.
TEST_F(SceltaTest, ABeamUnderAMomentAlone) {
    Richiesta r = Acciaio275();
    r.y.M1 = r.y.M2 = kNm_a_Nmm(100);
    r.LLT = 1;
    const RigaScelta ipe = Riga(r, "IPE 300");
    EXPECT_EQ(ipe.classe, 1);
    EXPECT_NEAR(Nmm_a_kNm(ipe.McyRd), 172.8, 0.1);
    EXPECT_NEAR(ipe.MbRd, ipe.McyRd, 1);
    EXPECT_NEAR(ipe.sezione, std::pow(100 / 172.8, 2), 1e-3);
    EXPECT_NEAR(ipe.membratura, 100 / 172.8, 1e-3);
    EXPECT_NEAR(ipe.svergolamento, 100 / 172.8, 1e-3);
    EXPECT_TRUE(ipe.verificato);
    EXPECT_NEAR(ipe.massimo, 100 / 172.8, 1e-3);
    const RigaScelta small = Riga(r, "IPE 200"); // Mpl 220.6 cm3 x 275 = 60.7 kNm
    EXPECT_FALSE(small.verificato);
    EXPECT_NEAR(small.massimo, std::pow(100 / 60.7, 2), 0.02);
    EXPECT_EQ(small.governa, VerificaScelta::Sezione);
}

// HEA 200, S235, L0z 4 m: lamda = 4000 / 49.8 = 80.3 over 93.9 = 0.855, curve c (h/b 0.95): fi = 0.5 (1 +
// 0.49 0.655 + 0.731) = 1.026, chi = 1 / (1.026 + sqrt(1.053 - 0.731)) = 0.628; Nb = 0.628 x 5383 x 235 = 794
// kN.
TEST_F(SceltaTest, AColumnUnderAnAxialForce) {
    Richiesta r = Acciaio275();
    r.TipoAcciaio = "S235 (Fe360)";
    r.fy = 235;
    r.NSd = kN_a_N(400);
    r.L0y = r.L0z = 4000;
    const RigaScelta hea = Riga(r, "HEA 200");
    EXPECT_NEAR(N_a_kN(hea.NbzRd), 794, 3);
    EXPECT_NEAR(hea.membratura, 400 / N_a_kN(hea.NbzRd), 1e-6);
    EXPECT_EQ(hea.governa, VerificaScelta::Membratura) << "and lateral-torsional buckling, which is the same";
    r.NSd = -r.NSd;
    EXPECT_NEAR(Riga(r, "HEA 200").membratura, 400 / (5.383 * 235), 2e-3) << "in tension the area alone";
}

TEST_F(SceltaTest, AForceBeyondTheSectionFailsWithItsReason) {
    Richiesta r = Acciaio275();
    r.NSd = kN_a_N(3000);
    r.L0y = r.L0z = 3000;
    const RigaScelta ipe = Riga(r, "IPE 200");
    EXPECT_FALSE(ipe.verificato);
    EXPECT_EQ(ipe.governa, VerificaScelta::Membratura);
    EXPECT_TRUE(ipe.motivo.starts_with("NSd = 3000")) << ipe.motivo;
}

TEST_F(SceltaTest, WithoutALengthThereIsNoLateralTorsionalBuckling) {
    Richiesta r = Acciaio275();
    r.y.M1 = kNm_a_Nmm(10);
    const RigaScelta ipe = Riga(r, "IPE 200");
    EXPECT_TRUE(std::isnan(ipe.svergolamento));
    EXPECT_TRUE(std::isnan(ipe.MbRd));
    EXPECT_TRUE(ipe.verificato) << "what was not asked for is no failure";
    r.L0z = 3000;
    EXPECT_FALSE(std::isnan(Riga(r, "IPE 200").svergolamento)) << "restraints hold against both, as a rule";
}

TEST_F(SceltaTest, WithoutForcesThereAreResistancesAlone) {
    Richiesta r = Acciaio275();
    r.L0y = r.L0z = 3000;
    EXPECT_TRUE(SenzaAzioni(r));
    for (const char* name : {"IPE 200", "UPN 200", "L 100x100x10"}) {
        const RigaScelta row = Riga(r, name);
        EXPECT_TRUE(row.SenzaVerdetto()) << name;
        EXPECT_GT(row.NbyRd, 0) << name;
        for (const double check : {row.sezione, row.membratura, row.svergolamento})
            EXPECT_TRUE(std::isnan(check)) << name;
        EXPECT_EQ(row.governa, VerificaScelta::Nessuna);
    }
    EXPECT_GT(Riga(r, "IPE 200").MbRd, 0);
    auto all = Valuta(r);
    OrdinaPerPeso(all);
    EXPECT_TRUE(std::ranges::is_sorted(all, {}, &RigaScelta::g));
    r.NSd = -1;
    EXPECT_FALSE(Riga(r, "IPE 200").SenzaVerdetto()) << "a pull";
    r.NSd = 0;
    r.z.M1 = 1;
    EXPECT_FALSE(SenzaAzioni(r));
    EXPECT_FALSE(Riga(r, "IPE 200").SenzaVerdetto());
    EXPECT_FALSE(Riga(r, "UPN 200").verificato);
}

TEST_F(SceltaTest, EndFactorsOfZeroGiveNoVerdict) {
    Richiesta r = Acciaio275();
    r.y.M1 = kNm_a_Nmm(10);
    r.LLT = 3000;
    r.Kw = 0;
    const RigaScelta ipe = Riga(r, "IPE 200");
    EXPECT_TRUE(std::isnan(ipe.svergolamento));
    EXPECT_FALSE(ipe.verificato);
    EXPECT_EQ(ipe.motivo, "La verifica a svergolamento non ha un verdetto");
}

// UPN 200: 32.2 cm2 in S275, short: 885.5 kN, in a pair twice that; 25.3 kg/m.
TEST_F(SceltaTest, ChannelsAndAnglesAreCheckedUnderTheAxialForce) {
    Richiesta r = Acciaio275();
    r.NSd = kN_a_N(400);
    const RigaScelta single = Riga(r, "UPN 200");
    EXPECT_NEAR(single.massimo, 400 / 885.5, 1e-3);
    EXPECT_TRUE(std::isnan(single.sezione));
    r.doppi = true;
    r.dDoppi = 10;
    const RigaScelta pair = Riga(r, "UPN 200");
    EXPECT_TRUE(pair.doppio);
    EXPECT_NEAR(pair.massimo, 400 / (2 * 885.5), 1e-3);
    EXPECT_NEAR(pair.g, 2 * single.g, 1e-9);
    EXPECT_EQ(pair.b, 2 * single.b + 10);
    const RigaScelta angle = Riga(r, "L 100x100x10");
    EXPECT_FALSE(std::isnan(angle.NbvRd));
    r.y.M1 = 1;
    EXPECT_FALSE(Riga(r, "UPN 200").verificato) << "a moment that nothing checks";
    EXPECT_FALSE(Riga(r, "UPN 200").motivo.empty());
}

TEST_F(SceltaTest, FiltersHoldRowsBack) {
    Richiesta r = Acciaio275();
    r.y.M1 = kNm_a_Nmm(60);
    Filtri f;
    f.famiglie = {"IPE", "HEA"};
    f.hMassima = 300;
    f.bMassima = 250;
    f.gMinimo = 20;
    f.gMassimo = 60;
    f.soloVerificati = true;
    const auto righe = Valuta(r, f);
    ASSERT_FALSE(righe.empty());
    for (const RigaScelta& riga : righe) {
        const std::string& famiglia = Sagomi()[riga.indice].famiglia;
        EXPECT_TRUE(famiglia == "IPE" || famiglia == "HEA");
        EXPECT_TRUE(riga.h <= 300 && riga.b <= 250 && riga.g >= 20 && riga.g <= 60 && riga.massimo <= 1);
    }
}

// Each limit alone, at a measure that rows have: those that just keep it take part.
TEST_F(SceltaTest, ALimitHoldsBackWhatIsBeyondItAlone) {
    Richiesta r = Acciaio275();
    r.NSd = kN_a_N(60);
    const auto expected = [&](const std::vector<RigaScelta>& all, auto&& keeps) {
        std::vector<std::size_t> places;
        for (const RigaScelta& row : all)
            if (keeps(row))
                places.push_back(row.indice);
        return places;
    };
    const auto places = [&](const Filtri& f) {
        return expected(Valuta(r, f), [](const RigaScelta&) { return true; });
    };
    for (const int kind : {0, 1, 2}) {
        r.doppi = kind > 0;
        r.accostati = kind > 1;
        r.dDoppi = 10;
        const std::vector<RigaScelta> all = Valuta(r);
        ASSERT_EQ(all.size(), Sagomi().size());
        for (std::size_t i = 7; i < all.size(); i += 211) {
            const RigaScelta limit = all[i];
            Filtri h, b, light, heavy, family;
            h.hMassima = limit.h;
            b.bMassima = limit.b;
            light.gMinimo = limit.g;
            heavy.gMassimo = limit.g;
            family.famiglie = {Sagomi()[i].famiglia};
            EXPECT_EQ(places(h), expected(all, [&](auto& x) { return x.h <= limit.h; }));
            EXPECT_EQ(places(b), expected(all, [&](auto& x) { return x.b <= limit.b; }));
            EXPECT_EQ(places(light), expected(all, [&](auto& x) { return x.g >= limit.g; }));
            EXPECT_EQ(places(heavy), expected(all, [&](auto& x) { return x.g <= limit.g; }));
            EXPECT_EQ(places(family), expected(all, [&](auto& x) {
                          return Sagomi()[x.indice].famiglia == Sagomi()[i].famiglia;
                      }));
        }
        Filtri good;
        good.soloVerificati = true;
        EXPECT_EQ(places(good), expected(all, [](auto& x) { return x.verificato; }));
    }
}

// Of the six moments each alone is an action, and about y-y one that buckles a beam.
TEST_F(SceltaTest, EachMomentAloneIsAnAction) {
    const std::string_view told = "svergolamento non verificato: manca L o L0z";
    const std::vector<SagomoInGara> some(Sagomi().begin(), Sagomi().begin() + 2);
    const Richiesta none = Acciaio275();
    EXPECT_TRUE(SenzaAzioni(none));
    for (const auto moment : {&MomentiMembratura::M1, &MomentiMembratura::M2, &MomentiMembratura::MQ})
        for (const auto axis : {&Richiesta::y, &Richiesta::z}) {
            Richiesta r = none;
            r.pict = pictDistribuitoConcorde;
            r.tipoDiagramma = TipoDiPict(r.pict);
            (r.*axis).M1 = moment == &MomentiMembratura::M2 ? 1e6 : 0;
            (r.*axis).*moment = 1e6;
            EXPECT_FALSE(SenzaAzioni(r));
            for (const double L : {0.0, 3000.0}) {
                r.L0z = L;
                messaggi.clear();
                EXPECT_FALSE(sagomi::Valuta(some, r, {}, messaggi).empty());
                EXPECT_EQ(std::ranges::count(messaggi, told), axis == &Richiesta::y && L == 0 ? 1 : 0);
                messaggi.clear();
                Verifica(some[0], r, messaggi);
                EXPECT_EQ(std::ranges::count(messaggi, told), axis == &Richiesta::y && L == 0 ? 1 : 0);
            }
            r.L0z = 0;
            (r.*axis).M1 = 0;
            (r.*axis).*moment = 0.5; // an action, however small
            EXPECT_FALSE(SenzaAzioni(r));
        }
    Richiesta pull = none;
    pull.NSd = 1;
    EXPECT_FALSE(SenzaAzioni(pull));
    messaggi.clear();
    EXPECT_FALSE(sagomi::Valuta(some, pull, {}, messaggi).empty());
    EXPECT_TRUE(messaggi.empty());
}

// A force that is the resistance to the last bit.
TEST_F(SceltaTest, WhatIsUsedToTheFullHolds) {
    for (const char* name : {"UPN 200", "L 100x100x10"}) {
        Richiesta r = Acciaio275();
        r.L0y = r.L0z = r.L0v = 3000;
        r.NSd = 1000;
        const RigaScelta slack = Riga(r, name);
        r.NSd = std::min(slack.NbyRd, slack.NbzRd);
        if (!std::isnan(slack.NbvRd))
            r.NSd = std::min(r.NSd, slack.NbvRd);
        const RigaScelta full = Riga(r, name);
        EXPECT_EQ(full.membratura, 1) << name;
        EXPECT_TRUE(full.verificato) << name;
        r.NSd = std::nextafter(r.NSd, 1e12) * (1 + 1e-12);
        EXPECT_FALSE(Riga(r, name).verificato) << name;
    }
}

// A section without moduli bears no moment: the reason names the resistance of the action.
TEST_F(SceltaTest, AResistanceOfNothingIsNamed) {
    for (const bool y : {true, false}) {
        SagomoInGara without = *std::ranges::find(Sagomi(), "HEA 200", &SagomoInGara::Designazione);
        auto& section = std::get<SezioneDoppioT>(without.sezione);
        (y ? section.Wely : section.Welz) = 0;
        (y ? section.Wply : section.Wplz) = 0;
        Richiesta r = Acciaio275();
        (y ? r.y : r.z).M1 = kNm_a_Nmm(10);
        const RigaScelta row = Verifica(without, r, messaggi).riga;
        EXPECT_TRUE(std::isinf(row.massimo));
        EXPECT_EQ(row.motivo, y ? "La resistenza a My è 0" : "La resistenza a Mz è 0");
    }
}

TEST_F(SceltaTest, TheLightestThatHoldsComesFirst) {
    Richiesta r = Acciaio275();
    r.y.M1 = kNm_a_Nmm(100);
    r.LLT = 3000;
    auto righe = Valuta(r);
    OrdinaPerPeso(righe);
    const auto fails = std::ranges::find(righe, false, &RigaScelta::verificato);
    EXPECT_TRUE(std::ranges::is_sorted(righe.begin(), fails, {}, &RigaScelta::g));
    EXPECT_TRUE(std::none_of(fails, righe.end(), [](const RigaScelta& x) { return x.verificato; }));
    EXPECT_TRUE(std::ranges::is_sorted(righe, {}, ChiavePeso));
}

TEST_F(SceltaTest, TheTableHasTheOrderOfTheCommandLineAndTheSameLightest) {
    Richiesta r = Acciaio275();
    r.y.M1 = kNm_a_Nmm(100);
    r.LLT = 3000;
    auto righe = Valuta(r);
    const auto perPosto = righe; // of all rows, in their order
    ASSERT_EQ(righe.size(), Sagomi().size());
    OrdinaPerPeso(righe);
    std::vector<std::uint32_t> posti(righe.size());
    std::iota(posti.begin(), posti.end(), 0U);
    OrdinaScelta(posti, perPosto, Sagomi(), {});
    EXPECT_TRUE(std::ranges::equal(posti, righe, {}, {}, &RigaScelta::indice));
    std::set<std::string> famiglie;
    std::vector<std::uint32_t> primi; // of each family in that order
    for (const RigaScelta& riga : righe)
        if (riga.verificato && famiglie.insert(Sagomi()[riga.indice].famiglia).second)
            primi.push_back(static_cast<std::uint32_t>(riga.indice));
    const auto leggeri = PiuLeggeriFra(posti, perPosto, Sagomi());
    ASSERT_FALSE(leggeri.empty());
    ASSERT_EQ(leggeri.size(), primi.size());
    for (std::size_t i = 0; i < primi.size(); ++i) {
        EXPECT_EQ(Sagomi()[leggeri[i]].famiglia, Sagomi()[primi[i]].famiglia);
        EXPECT_EQ(perPosto[leggeri[i]].g, perPosto[primi[i]].g);
    }
}

TEST_F(SceltaTest, TheSectionInUseStaysAndPiecesGiveTheSame) {
    auto own = std::make_shared<SezioneDoppioT>();
    own->TipoAcciaio = "S460";
    own->Designation = "mia";
    SezioneCorrente = own;
    Richiesta r = Acciaio275();
    r.NSd = kN_a_N(900);
    r.y.M1 = kNm_a_Nmm(50);
    r.L0y = r.L0z = 4000;
    const auto all = Valuta(r);
    EXPECT_EQ(std::get<std::shared_ptr<SezioneDoppioT>>(SezioneCorrente), own);
    EXPECT_EQ(own->Designation, "mia");
    std::size_t done = 0;
    for (std::size_t from = 0; from < Sagomi().size(); from += 100) {
        const auto part =
            std::span(Sagomi()).subspan(from, std::min<std::size_t>(100, Sagomi().size() - from));
        for (const RigaScelta& riga : sagomi::Valuta(part, r, {}, messaggi)) {
            const RigaScelta& same = all.at(done++);
            EXPECT_EQ(same.indice, from + riga.indice);
            EXPECT_TRUE(same.massimo == riga.massimo || std::isnan(riga.massimo));
        }
    }
    EXPECT_EQ(done, all.size());
}

TEST_F(SceltaTest, WhatIsToldIsCollectedOnce) {
    Richiesta r = Acciaio275();
    r.y.M1 = -kNm_a_Nmm(10);
    EXPECT_FALSE(Valuta(r).empty());
    EXPECT_EQ(
        std::ranges::count_if(messaggi, [](auto& m) { return m.starts_with("M1 deve essere positivo."); }),
        1);
}

} // namespace
