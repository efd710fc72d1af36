#include "frame/ui/Voce.h"

#include <QGridLayout>
#include <QLabel>

#include <gtest/gtest.h>

#include <memory>

#include "frame/ui/Casella.h"
#include "frame/ui/EtichettaPedice.h"
#include "frame/ui/EtichettaRisultato.h"

using namespace sagomi;

namespace {

TEST(VoceTest, CaptionAndFieldAreBuddies) {
    const Coppia pair = CreaCoppia({{"LblN", "N     [kN]", "Sd"}, "TxtN", 8, "Forza", "NSd [kN]"});
    const std::unique_ptr<QWidget> label(pair.etichetta);
    const std::unique_ptr<QWidget> field(pair.campo);
    EXPECT_EQ(pair.etichetta->buddy(), pair.campo);
    EXPECT_EQ(pair.etichetta->objectName(), "LblN");
    EXPECT_EQ(qobject_cast<EtichettaPedice*>(pair.etichetta)->Pedice(), "Sd");
    EXPECT_EQ(pair.campo->objectName(), "TxtN");
    EXPECT_EQ(pair.campo->toolTip(), "Forza");
    EXPECT_EQ(pair.campo->accessibleName(), "NSd [kN]");
}

TEST(VoceTest, TheKindDecidesWhatTheFieldIs) {
    const auto field = [](Genere kind) {
        return std::unique_ptr<QWidget>(CreaCampo({.nome = "x", .caratteri = 5, .genere = kind}));
    };
    const auto entry = field(Genere::entrata);
    const auto result = field(Genere::risultato);
    const auto value = field(Genere::valore);
    EXPECT_FALSE(qobject_cast<Casella*>(entry.get())->isReadOnly());
    EXPECT_TRUE(qobject_cast<Casella*>(result.get())->isReadOnly());
    EXPECT_EQ(qobject_cast<Casella*>(entry.get())->Caratteri(), 5);
    EXPECT_EQ(qobject_cast<EtichettaRisultato*>(value.get())->Caratteri(), 5);
}

TEST(VoceTest, ASubscriptBehindItsTextStaysBesideIt) {
    QWidget window;
    auto* grid = new QGridLayout(&window);
    QLabel* behind = CreaDicitura({"", "C", "1"});
    QLabel* inside = CreaDicitura({"", "M      [kNm]", "cr"});
    PosaDicitura(*grid, behind, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    PosaDicitura(*grid, inside, 1, 0, Qt::AlignRight | Qt::AlignVCenter);
    window.show();
    EXPECT_EQ(behind->width(), behind->sizeHint().width()) << "no wider than text and subscript";
    EXPECT_EQ(behind->geometry().right(), inside->geometry().right());
}

} // namespace
