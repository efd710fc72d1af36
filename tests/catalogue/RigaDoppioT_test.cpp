#include "catalogue/RigaDoppioT.h"

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
            f.Scrivi(0, c, "c" + std::to_string(c));
            f.Scrivi(1, c, riga[c]);
        }
        ScriviXls({{f}}, dir.percorso / "a.xls");
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

} // namespace
