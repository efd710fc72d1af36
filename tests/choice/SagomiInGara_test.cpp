#include "choice/SagomiInGara.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <variant>

#include "sections/PressoFlessione.h"

using namespace sagomi;

namespace {

std::ptrdiff_t Conta(const Gara& gara, std::string_view famiglia) {
    return std::ranges::count(gara.sagomi, famiglia, &SagomoInGara::famiglia);
}

// One list of kinds: what a row holds by value the section in use refers to.
template <typename... S>
consteval bool StessiTipi(const std::variant<S...>*,
                          const std::variant<std::monostate, std::shared_ptr<S>...>*) {
    return true;
}
static_assert(StessiTipi(static_cast<const decltype(SagomoInGara::sezione)*>(nullptr),
                         static_cast<const RiferimentoSezione*>(nullptr)));
static_assert(ConDiagrammi<SezioneDoppioT> && !ConDiagrammi<SezioneSagomoU> && !ConDiagrammi<SezioneSagomoL>);

// Rows of the tables: 18 IPE, 18 UPN, 114 equal angles.
TEST(SagomiInGara, AllFamiliesAreRead) {
    const Gara gara = LeggeGara(SAGOMI_BIN);
    EXPECT_TRUE(gara.mancanti.empty());
    EXPECT_EQ(Conta(gara, "IPE"), 18);
    EXPECT_EQ(Conta(gara, "UPN"), 18);
    EXPECT_EQ(Conta(gara, "L Uguali"), 114);
    std::set<std::string> screens;
    for (const SagomoInGara& s : gara.sagomi)
        screens.insert(s.schermo);
    EXPECT_EQ(screens.size(), 5U);
}

// HSD 500x74: 73.8 kg/m, lower flange 250 x 15.
TEST(SagomiInGara, ARowHasItsKindAndItsWeight) {
    const Gara gara = LeggeGara(SAGOMI_BIN, {"HSD"});
    const auto row = std::ranges::find(gara.sagomi, "HSD 500x74", &SagomoInGara::Designazione);
    ASSERT_NE(row, gara.sagomi.end());
    EXPECT_DOUBLE_EQ(row->g, 73.8);
    EXPECT_EQ(row->schermo, "frmSaldatiAsimm");
    const auto& section = std::get<SezioneDoppioT>(row->sezione);
    EXPECT_TRUE(section.SaldataAsimm);
    EXPECT_EQ(section.bAlaInf, 250);
}

TEST(SagomiInGara, OnlyTheFamiliesAskedForAreRead) {
    const Gara gara = LeggeGara(SAGOMI_BIN, {"IPE", "HEA"});
    EXPECT_EQ(static_cast<std::ptrdiff_t>(gara.sagomi.size()), Conta(gara, "IPE") + Conta(gara, "HEA"));
}

TEST(SagomiInGara, AMissingWorkbookIsToldOnce) {
    const Gara gara = LeggeGara("/nessuna", {"IPE", "HEA"});
    EXPECT_TRUE(gara.sagomi.empty());
    EXPECT_EQ(gara.mancanti.size(), 1U);
}

} // namespace
