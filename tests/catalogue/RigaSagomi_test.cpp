#include "catalogue/RigaSagomi.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fogli.h"
#include "Registratore.h"
#include "catalogue/ControlloDati.h"
#include "catalogue/Lettore.h"
#include "catalogue/ScrittoreXls.h"
#include "frame/Ambiente.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

using namespace sagomi;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

using S = std::string;

/// A table of one row.
class RigaSagomiTest : public testing::Test {
protected:
    void Carica(const std::vector<Valore>& riga) {
        Foglio f{"UPN", {}};
        for (std::size_t c = 0; c < riga.size(); ++c) {
            f.Scrive(0, c, "c" + std::to_string(c));
            f.Scrive(1, c, riga[c]);
        }
        ScriveXls({{f}}, dir.percorso / "a.xls");
        lettore.DatabaseName(dir.percorso / "a.xls");
        lettore.RecordSource("SELECT * FROM [UPN$]");
        lettore.Refresh();
    }

    /// Powers of two, so that each place in the row can be told from the value in the section.
    static std::vector<Valore> Potenze(const char* nome, int campi) {
        std::vector<Valore> riga = {S(nome)};
        for (int i = 1; i < campi; ++i)
            riga.emplace_back(static_cast<double>(1 << i));
        return riga;
    }

    /// The messages of the value check on a row.
    template <typename T> std::vector<S> Controlla(const std::vector<Valore>& riga) {
        Carica(riga);
        T s;
        LeggeRiga(lettore, s);
        s.fy = 235;
        s.InizializzaSezione();
        const prove::Registratore r;
        ControlloDatiSagomi(lettore, s);
        return r.testi;
    }

    prove::CartellaDiProva dir;
    Lettore lettore;
};

TEST_F(RigaSagomiTest, EveryFieldOfAChannelByItsPlaceInMillimetres) {
    Carica(Potenze("UPN 200", 19));
    SezioneSagomoU s;
    LeggeRiga(lettore, s);
    EXPECT_EQ(s.Designation, "UPN 200");
    const double letti[] = {s.h,        s.b,          s.tw,          s.tf,          s.r1,
                            s.r2,       s.Area / 100, s.Jy / 10000,  s.Wely / 1000, s.Wply / 1000,
                            s.iY / 10,  s.Jz / 10000, s.Welz / 1000, s.Wplz / 1000, s.Iz / 10,
                            s.JT / 1e4, s.Jw / 1e6};
    for (int i = 0; i < 17; ++i)
        EXPECT_EQ(letti[i], 1 << (i + 2)) << i;
    EXPECT_EQ(double(s.pendenza), double(s.r2));
}

TEST_F(RigaSagomiTest, EveryFieldOfAnAngleByItsPlaceInMillimetres) {
    Carica(Potenze("L 100x100x10", 18));
    SezioneSagomoL s;
    LeggeRiga(lettore, s);
    EXPECT_EQ(s.Designation, "L 100x100x10");
    const double letti[] = {s.h,          s.b,           s.t,       s.r1,         s.r2,          s.Area / 100,
                            s.Jy / 10000, s.Wely / 1000, s.iY / 10, s.Jz / 10000, s.Welz / 1000, s.Iz / 10};
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(letti[i], 1 << (i + 2)) << i;
    EXPECT_EQ(s.iV, 10.0 * (1 << 17));
}

TEST_F(RigaSagomiTest, ATableThatIsTooNarrowIsTold) {
    Carica(Potenze("UPN 200", 18));
    SezioneSagomoU u;
    EXPECT_THROW(LeggeRiga(lettore, u), std::out_of_range);
    Carica(Potenze("L 100x100x10", 17));
    SezioneSagomoL l;
    EXPECT_THROW(LeggeRiga(lettore, l), std::out_of_range);
}

/// UPN 400 of EN 10365: the widest deviations of its family.
const std::vector<Valore> upn400 = {S("UPN 400"), 71.8,  400.0,   110.0,  14.0,    18.0, 18.0,
                                    9.0,          91.5,  20350.0, 1020.0, 1240.0,  14.9, 846.0,
                                    102.0,        190.0, 3.04,    81.6,   221000.0};
/// L 150x100x10 of EN 10056-1.
const std::vector<Valore> l150 = {S("L 150x100x10"),
                                  19.0,
                                  150.0,
                                  100.0,
                                  10.0,
                                  12.0,
                                  6.0,
                                  24.2,
                                  552.0,
                                  54.1,
                                  4.78,
                                  198.0,
                                  25.8,
                                  2.86,
                                  637.0,
                                  5.13,
                                  113.0,
                                  2.16};

TEST_F(RigaSagomiTest, PublishedRowsPass) {
    EXPECT_THAT(Controlla<SezioneSagomoU>(upn400), IsEmpty());
    EXPECT_THAT(Controlla<SezioneSagomoL>(l150), IsEmpty());
}

TEST_F(RigaSagomiTest, OneBoxForEachFieldInOrder) {
    auto canale = upn400;
    for (const std::size_t campo : {8U, 9U, 13U, 17U, 18U})
        canale[campo] = std::get<double>(canale[campo]) * 3;
    const auto u = Controlla<SezioneSagomoU>(canale);
    const char* valoriU[] = {" 274.5", " 61,050", " 2,538", " 244.8", " 663,000"};
    ASSERT_EQ(u.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_THAT(u[i], HasSubstr(S("database\r") + valoriU[i] + "\r"));
    auto angolare = l150;
    for (const std::size_t campo : {7U, 8U, 11U})
        angolare[campo] = std::get<double>(angolare[campo]) * 2;
    const auto l = Controlla<SezioneSagomoL>(angolare);
    const char* valoriL[] = {" 48.4", " 1,104", " 396"};
    ASSERT_EQ(l.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_THAT(l[i], HasSubstr(S("database\r") + valoriL[i] + "\r"));
}

TEST_F(RigaSagomiTest, OtherFieldsAreNotLookedAt) {
    auto canale = upn400;
    for (const std::size_t campo : {1U, 10U, 11U, 12U, 14U, 15U, 16U})
        canale[campo] = 1.0;
    EXPECT_THAT(Controlla<SezioneSagomoU>(canale), IsEmpty());
    auto angolare = l150;
    for (const std::size_t campo : {1U, 9U, 10U, 12U, 13U, 14U, 15U, 16U, 17U})
        angolare[campo] = 1.0;
    EXPECT_THAT(Controlla<SezioneSagomoL>(angolare), IsEmpty());
}

// Iz may be off by 2 % on tapered flanges, by 1 % on parallel ones.
TEST_F(RigaSagomiTest, TaperedFlangesHaveMoreRoom) {
    Carica(upn400);
    SezioneSagomoU s;
    LeggeRiga(lettore, s);
    EXPECT_EQ(VociSagomiU(s).size(), 0U) << "without an outline there is nothing to compare";
    s.fy = 235;
    s.InizializzaSezione();
    EXPECT_EQ(VociSagomiU(s)[2].tolleranza, 0.02);
    s.pendenza = 0.5; // however flat the slope
    EXPECT_EQ(VociSagomiU(s)[2].tolleranza, 0.02);
    s.pendenza = 0;
    s.InizializzaSezione();
    EXPECT_EQ(VociSagomiU(s)[2].tolleranza, 0.01);
    EXPECT_EQ(VociSagomiU(s)[3].tolleranza, 0.092);
    EXPECT_EQ(VociSagomiU(s)[4].tolleranza, 0.45);
    EXPECT_EQ(VociSagomiL({}).size(), 0U);
}

TEST_F(RigaSagomiTest, WithoutARowTheSectionStays) {
    Carica(Potenze("L 100x100x10", 19));
    SezioneSagomoL l;
    SezioneSagomoU u;
    l.h = u.h = 7;
    l.iV = 8;
    for (const bool oltre : {true, false}) {
        oltre ? lettore.MoveLast() : lettore.MoveFirst();
        oltre ? lettore.MoveNext() : lettore.MovePrevious();
        LeggeRiga(lettore, l);
        LeggeRiga(lettore, u);
        EXPECT_EQ(l.h, 7);
        EXPECT_EQ(l.iV, 8);
        EXPECT_EQ(u.h, 7);
        EXPECT_EQ(l.Designation + u.Designation, "");
    }
}

} // namespace
