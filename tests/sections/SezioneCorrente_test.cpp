#include "sections/SezioneCorrente.h"

#include <gtest/gtest.h>

#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

/// What every kind has, without a rule behind it.
struct Comune {
    Singolo fy, fu, h, Area;
    std::string Designation, TipoAcciaio;
    std::int16_t ClasseCompressione = 0;
    [[nodiscard]] double betaA() const { return 1; }
    [[nodiscard]] std::string CurvaInstabilita(std::string_view /*asse*/) const { return "c"; }
    void PlottaSezione(Superficie* /*oggetto*/, std::string_view /*maschera*/, std::string_view /*d*/) const {
    }
};

/// Two legs: no bending, no web, three axes.
struct DueLati : Comune {
    Singolo L0y, L0z, L0v;
    std::shared_ptr<SezioneGenerica> SezioneComp4;
    [[nodiscard]] double LamdaY() const { return 1; }
    [[nodiscard]] double LamdaZ() const { return 2; }
    [[nodiscard]] double LamdaV() const { return 3; }
};

/// A web and two flanges that are equal.
struct TrePezzi : Comune {
    Singolo b, tw, tf, L0y, L0z, NSd, Wely, Welz, Wply, Wplz;
    double c = 0, d = 0, McyRd = 0, MczRd = 0, WyEff = 0, WzEff = 0, Ntrascurabile = 0;
    std::int16_t ClasseFlessioneY = 0, ClasseFlessioneZ = 0, ClassePressoFlessione = 0;
    std::int16_t ClasseWebF = 0, ClasseWebC = 0, ClasseAlaF = 0, ClasseAlaC = 0;
    std::int16_t SezioneEfficaceDaPlottare = 0;
    std::string Limite0WebF, Limite1WebF, Limite0WebC, Limite1WebC;
    std::string Limite0AlaF, Limite1AlaF, Limite0AlaC, Limite1AlaC;
    std::shared_ptr<SezioneGenerica> SezioneComp4, SezioneWy4, SezioneWz4;
    [[nodiscard]] double LamdaY() const { return 1; }
    [[nodiscard]] double LamdaZ() const { return 2; }
    [[nodiscard]] double SnellWeb() const { return 0; }
    [[nodiscard]] double SnellAla() const { return 0; }
};

/// A strength kept in the wrong width.
struct SenzaLarghezza : DueLati {
    double fy = 0;
};

using Prova = std::variant<std::monostate, std::shared_ptr<TrePezzi>, std::shared_ptr<DueLati>>;

} // namespace

namespace sagomi {

template <> struct CapacitaDi<DueLati> {
    static constexpr Capacita dichiarate{.lunghezze = true,
                                         .lunghezzaV = true,
                                         .momenti = false,
                                         .animaEAli = false,
                                         .aliDiverse = false,
                                         .contorniEfficaci = false};
};

template <> struct CapacitaDi<TrePezzi> {
    static constexpr Capacita dichiarate{.lunghezze = true,
                                         .lunghezzaV = false,
                                         .momenti = true,
                                         .animaEAli = true,
                                         .aliDiverse = false,
                                         .contorniEfficaci = true};
};

} // namespace sagomi

namespace {

static_assert(Mantengono(static_cast<const Prova*>(nullptr)));
static_assert(!Sagomo<SenzaLarghezza>);
static_assert(!Sagomo<int>);

class SezioneCorrenteTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

TEST_F(SezioneCorrenteTest, NothingRunsWithoutASection) {
    EXPECT_FALSE(SullaSezioneInUso([](auto& /*s*/) { FAIL(); }));
    EXPECT_EQ(SezioneInUso<SezioneDoppioT>(), nullptr);
    SezioneCorrente = std::shared_ptr<SezioneDoppioT>();
    EXPECT_FALSE(SullaSezioneInUso([](auto& /*s*/) { FAIL(); }));
    EXPECT_EQ(SezioneInUso<SezioneDoppioT>(), nullptr);
}

TEST_F(SezioneCorrenteTest, TheSectionInUseIsReachedAndChanged) {
    const auto s = std::make_shared<SezioneDoppioT>();
    SezioneCorrente = s;
    EXPECT_TRUE(SullaSezioneInUso([](auto& inUso) { inUso.fy = 355; }));
    EXPECT_EQ(s->fy, 355);
    EXPECT_EQ(SezioneInUso<SezioneDoppioT>(), s.get());
}

TEST_F(SezioneCorrenteTest, AnEarlierReferenceKeepsItsSection) {
    SezioneCorrente = std::make_shared<SezioneDoppioT>();
    const RiferimentoSezione prima = SezioneCorrente;
    const SezioneDoppioT* const vecchia = SezioneInUso<SezioneDoppioT>();
    SezioneCorrente = std::make_shared<SezioneDoppioT>();
    EXPECT_EQ(SezioneInUso<SezioneDoppioT>(prima), vecchia);
    EXPECT_NE(SezioneInUso<SezioneDoppioT>(), vecchia);
}

TEST_F(SezioneCorrenteTest, TheBlockOfSettingsComesBackWithoutASection) {
    SezioneCorrente = std::make_shared<SezioneDoppioT>();
    RipristinaGenerale();
    EXPECT_TRUE(std::holds_alternative<std::monostate>(SezioneCorrente));
}

TEST(SullaSezione, AWorkThatAsksForAConceptTakesTheKindsThatHaveIt) {
    const auto conMomenti = [](ConMomenti auto& s) { s.NSd = 7; };
    const auto conLunghezze = [](ConLunghezze auto& s) { s.L0y = 3000; };
    const auto due = std::make_shared<DueLati>();
    const auto tre = std::make_shared<TrePezzi>();
    EXPECT_FALSE(SullaSezione(conMomenti, Prova(due)));
    EXPECT_TRUE(SullaSezione(conMomenti, Prova(tre)));
    EXPECT_EQ(tre->NSd, 7);
    EXPECT_TRUE(SullaSezione(conLunghezze, Prova(due)));
    EXPECT_TRUE(SullaSezione(conLunghezze, Prova(tre)));
    EXPECT_EQ(due->L0y, 3000);
    EXPECT_EQ(tre->L0y, 3000);
    EXPECT_FALSE(SullaSezione(conLunghezze, Prova()));
}

} // namespace
