#include "frame/ui/Collocazione.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

const QRect desktop(0, 0, 1366, 740);

TEST(CollocazioneTest, OpensBesideTheCallerWhereThereIsRoom) {
    EXPECT_EQ(PostoLibero({500, 400}, {.disponibile = desktop, .chiamante = {0, 0, 700, 600}}),
              QPoint(700, 0));
    EXPECT_EQ(PostoLibero({500, 400}, {.disponibile = desktop, .chiamante = {600, 100, 766, 600}}),
              QPoint(100, 100));
    EXPECT_EQ(PostoLibero({500, 400}, {.disponibile = {0, 0, 800, 1000}, .chiamante = {50, 0, 700, 550}}),
              QPoint(50, 550));
}

TEST(CollocazioneTest, AWindowLowerThanItsCallersEdgeIsMovedUp) {
    EXPECT_EQ(PostoLibero({500, 600}, {.disponibile = desktop, .chiamante = {0, 300, 700, 440}}),
              QPoint(700, 140));
}

TEST(CollocazioneTest, ElseStandsOverWhatMayBeCoveredAndOverNoEntryOrResult) {
    const Stanze rooms{.disponibile = desktop,
                       .chiamante = desktop,
                       .protette = {{766, 400, 600, 300}},
                       .copribile = {0, 400, 766, 300}};
    const QRect window(PostoLibero({700, 500}, rooms), QSize(700, 500));
    EXPECT_TRUE(desktop.contains(window));
    EXPECT_FALSE(window.intersects(rooms.protette[0]));
    EXPECT_TRUE(window.intersects(rooms.copribile));
}

TEST(CollocazioneTest, TheSecondWindowStandsBesideTheFirstWhereThereIsRoom) {
    const QRect caller(0, 0, 1366, 740);
    const QRect first(0, 340, 600, 400);
    const QRect second(
        PostoLibero({600, 400}, {.disponibile = desktop, .chiamante = caller, .aperte = {first}}),
        QSize(600, 400));
    EXPECT_FALSE(second.intersects(first));
    const QRect wide(
        PostoLibero({900, 400}, {.disponibile = desktop, .chiamante = caller, .aperte = {first}}),
        QSize(900, 400));
    // 740 - 400 = 340 lines above the first are free; at the right edge 600 - 466 = 134 columns are shared
    const QRect shared = wide & first;
    EXPECT_EQ(shared.width() * shared.height(), 134 * 60);
}

TEST(CollocazioneTest, APlaceBesideTheCallerThatIsTakenIsNone) {
    const QRect beside(700, 0, 500, 400);
    const QRect second(
        PostoLibero({500, 400},
                    {.disponibile = {0, 0, 1920, 1080}, .chiamante = {0, 0, 700, 600}, .aperte = {beside}}),
        QSize(500, 400));
    EXPECT_FALSE(second.intersects(beside));
}

TEST(CollocazioneTest, AWindowLargerThanTheDesktopShowsItsUpperLeftCorner) {
    EXPECT_EQ(PostoLibero({1500, 900}, {.disponibile = desktop, .chiamante = desktop}), QPoint(0, 0));
}

} // namespace
