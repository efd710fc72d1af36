#include "frame/ui/GruppoVoci.h"

#include <QGridLayout>
#include <QLabel>

#include "AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

const std::vector<Voce> voci = {{{"La", "a"}, "A", 5, "prima", "a [m]"},
                                {{"Lb", "b"}, "B", 5, "seconda", "b [m]"},
                                {{"Lc", "c"}, "C", 5, "terza", "c [m]", Genere::risultato}};

QRect Posto(const QWidget& group, const char* name) { return Trova<QWidget>(&group, name)->geometry(); }

void Mostra(QWidget& group) {
    group.show();
    QCoreApplication::processEvents();
}

TEST(GruppoVociTest, SideBySideEachFieldFollowsItsCaption) {
    GruppoVoci group;
    group.InRiga(voci);
    Mostra(group);
    EXPECT_LT(Posto(group, "La").right(), Posto(group, "A").left());
    EXPECT_LT(Posto(group, "A").right(), Posto(group, "Lb").left());
    EXPECT_LT(Posto(group, "B").right(), Posto(group, "Lc").left());
    EXPECT_EQ(Trova<QLabel>(&group, "Lb")->buddy(), Trova<QWidget>(&group, "B"));
}

TEST(GruppoVociTest, OneBelowTheOther) {
    GruppoVoci group;
    group.InColonne(voci);
    Mostra(group);
    EXPECT_LT(Posto(group, "A").bottom(), Posto(group, "B").top());
    EXPECT_LT(Posto(group, "B").bottom(), Posto(group, "C").top());
    EXPECT_EQ(Posto(group, "A").left(), Posto(group, "C").left());
}

TEST(GruppoVociTest, AFullColumnGoesOnInTheNext) {
    GruppoVoci group;
    const QGridLayout* grid = group.InColonne(voci, 2);
    Mostra(group);
    EXPECT_EQ(Posto(group, "A").left(), Posto(group, "B").left());
    EXPECT_EQ(Posto(group, "A").top(), Posto(group, "C").top());
    EXPECT_LT(Posto(group, "A").right(), Posto(group, "Lc").left());
    EXPECT_EQ(grid->columnCount(), 4);
}

} // namespace
