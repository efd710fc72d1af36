#include "catalogue/RigaDoppioT.h"

#include <limits>
#include <stdexcept>

#include <gtest/gtest.h>

#include "Fogli.h"
#include "catalogue/Lettore.h"
#include "catalogue/ScrittoreXls.h"
#include "frame/Ambiente.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

using S = std::string;

class RigaDoppioTTest : public testing::Test {
protected:
    void Carica(std::vector<Valore> riga) {
        Foglio f{"IPE", {}};
        for (std::size_t c = 0; c < riga.size(); ++c) {
            f.Scrive(0, c, "c" + std::to_string(c));
            f.Scrive(1, c, riga[c]);
        }
        ScriveXls({{f}}, dir.percorso / "a.xls");
        lettore.DatabaseName(dir.percorso / "a.xls");
        lettore.RecordSource("SELECT * FROM [IPE$]");
        lettore.Refresh();
    }
    prove::CartellaDiProva dir;
    Lettore lettore;
    SezioneDoppioT s;
};

// Powers of two, so that each place in the row can be told from the value in the section.
TEST_F(RigaDoppioTTest, EveryFieldByItsPlaceInMillimetres) {
    std::vector<Valore> riga = {S("IPE 200")};
    for (int i = 1; i <= 18; ++i)
        riga.emplace_back(static_cast<double>(1 << i));
    Carica(riga);
    LeggeRiga(lettore, s);
    EXPECT_EQ(s.Designation, "IPE 200");
    EXPECT_EQ(double(s.g), 0); // the weight is not read
    EXPECT_EQ(double(s.h), 4);
    EXPECT_EQ(double(s.b), 8);
    EXPECT_EQ(double(s.tw), 16);
    EXPECT_EQ(double(s.tf), 32);
    EXPECT_EQ(double(s.r1), 64);
    EXPECT_EQ(double(s.r2), 128);
    EXPECT_EQ(double(s.Area), 256.0 * 100);
    EXPECT_EQ(double(s.Jy), 512.0 * 10000);
    EXPECT_EQ(double(s.Wely), 1024.0 * 1000);
    EXPECT_EQ(double(s.Wply), 2048.0 * 1000);
    EXPECT_EQ(double(s.iY), 4096.0 * 10);
    EXPECT_EQ(double(s.Jz), 8192.0 * 10000);
    EXPECT_EQ(double(s.Welz), 16384.0 * 1000);
    EXPECT_EQ(double(s.Wplz), 32768.0 * 1000);
    EXPECT_EQ(double(s.iZ), 65536.0 * 10);
    EXPECT_EQ(double(s.JT), 131072.0 * 10000);
    EXPECT_EQ(double(s.Jw), 262144.0 * 1000000);
}

TEST_F(RigaDoppioTTest, StoredAsSingles) {
    std::vector<Valore> riga(19, 0.0);
    riga[0] = S("IPE 80");
    riga[4] = 3.8;
    Carica(riga);
    LeggeRiga(lettore, s);
    EXPECT_EQ(s.tw.Stretto(), 3.8F);
    EXPECT_EQ(double(s.tw), double(3.8F));
}

TEST_F(RigaDoppioTTest, EmptyFieldsAreZeroAndTextsAreReadAsNumbers) {
    std::vector<Valore> riga(19, Valore());
    riga[2] = S("200 circa");
    riga[18] = 1.0; // so that the row has 19 columns
    Carica(riga);
    s.h = 1;
    s.b = 1;
    s.Designation = "prima";
    LeggeRiga(lettore, s);
    EXPECT_EQ(s.Designation, "");
    EXPECT_EQ(double(s.h), 200);
    EXPECT_EQ(double(s.b), 0);
}

TEST_F(RigaDoppioTTest, NoRowLeavesTheSection) {
    Carica(std::vector<Valore>(19, 1.0));
    lettore.MoveNext();
    s.h = 7;
    LeggeRiga(lettore, s);
    EXPECT_EQ(double(s.h), 7);
    LeggeRiga(Lettore(), s);
    EXPECT_EQ(double(s.h), 7);
}

TEST_F(RigaDoppioTTest, TableWithTooFewColumns) {
    Carica({S("IPE 80"), 6.0, 80.0});
    EXPECT_THROW(LeggeRiga(lettore, s), std::out_of_range);
}

/// Powers of two in every place of a row, a name in the first.
std::vector<Valore> Potenze(int campi) {
    std::vector<Valore> riga = {S("nome")};
    for (int i = 1; i < campi; ++i)
        riga.emplace_back(static_cast<double>(1 << i));
    return riga;
}

TEST_F(RigaDoppioTTest, WeldedSectionsHaveNoSecondRadius) {
    Carica(Potenze(18));
    s.SaldataAsimm = true;
    LeggeRiga(lettore, s, RigheDoppioT::Saldate);
    EXPECT_TRUE(s.Saldata);
    EXPECT_FALSE(s.SaldataAsimm);
    EXPECT_EQ(double(s.tf), 32);
    EXPECT_EQ(double(s.r), 64);
    EXPECT_EQ(double(s.Area), 128.0 * 100);
    EXPECT_EQ(double(s.Wely), 512.0 * 1000);
    EXPECT_EQ(double(s.WelyInf), 512.0 * 1000) << "both fibres alike";
    EXPECT_EQ(double(s.iZ), 32768.0 * 10);
    EXPECT_EQ(double(s.Jw), 131072.0 * 1000000);
}

TEST_F(RigaDoppioTTest, DifferentFlangesTakeTheirOwnColumns) {
    Carica(Potenze(21));
    LeggeRiga(lettore, s, RigheDoppioT::SaldateAsimmetriche);
    EXPECT_TRUE(s.Saldata && s.SaldataAsimm);
    EXPECT_EQ(double(s.b), 8);
    EXPECT_EQ(double(s.bAlaInf), 16);
    EXPECT_EQ(double(s.tw), 32);
    EXPECT_EQ(double(s.tf), 64);
    EXPECT_EQ(double(s.tAlaInf), 128);
    EXPECT_EQ(double(s.r), 256);
    EXPECT_EQ(double(s.Area), 512.0 * 100);
    EXPECT_EQ(double(s.Wely), 2048.0 * 1000);
    EXPECT_EQ(double(s.WelyInf), 4096.0 * 1000);
    EXPECT_EQ(double(s.Wply), 8192.0 * 1000);
    EXPECT_EQ(double(s.JT), 524288.0 * 10000);
    EXPECT_EQ(double(s.Jw), 1048576.0 * 1000000);
}

TEST_F(RigaDoppioTTest, FieldsAloneAreReadAsTheirRow) {
    for (const auto& [righe, campi] :
         {std::pair{RigheDoppioT::Saldate, 18}, {RigheDoppioT::SaldateAsimmetriche, 21}}) {
        Carica(Potenze(campi));
        LeggeRiga(lettore, s, righe);
        SezioneDoppioT altra;
        LeggeCampi(Potenze(campi), altra, righe);
        EXPECT_EQ(altra.Designation, "nome");
        EXPECT_EQ(CampiRiga(altra, righe), CampiRiga(s, righe));
        EXPECT_THROW(LeggeCampi(Potenze(campi - 1), altra, righe), std::out_of_range);
    }
}

// A weight of 2 kg/m, which a row that is read does not give.
TEST_F(RigaDoppioTTest, FieldsGoBackToTheirPlaces) {
    for (const auto& [righe, campi] :
         {std::pair{RigheDoppioT::Saldate, 18}, {RigheDoppioT::SaldateAsimmetriche, 21}}) {
        Carica(Potenze(campi));
        LeggeRiga(lettore, s, righe);
        s.g = 2;
        EXPECT_EQ(CampiRiga(s, righe), Potenze(campi));
    }
}

TEST_F(RigaDoppioTTest, FieldsAreWrittenAsAPersonWould) {
    s.tw = 7.1; // held as 7.099999904632568
    s.iY = std::numeric_limits<double>::quiet_NaN();
    const auto campi = CampiRiga(s, RigheDoppioT::Saldate);
    EXPECT_EQ(campi[4], Valore(7.1));
    EXPECT_EQ(campi[11], Valore());
}

} // namespace
