#include "frame/Acciaio.h"

#include <gtest/gtest.h>

#include <limits>

#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

TEST(Acciaio, AnOvertypedStrengthBelongsToTheNameOfTheGrade) {
    RipristinaGenerale();
    EXPECT_EQ(AcciaioMostrato("S235 (Fe360)", 235), "S235 (Fe360)");
    EXPECT_EQ(AcciaioMostrato("S235 (Fe360)", 460), "S235 (Fe360), fy 460");
    EXPECT_EQ(AcciaioMostrato("S235 (Fe360)", 0.5), "S235 (Fe360), fy 0.5");
    EXPECT_EQ(AcciaioMostrato("S355 (Fe510)", 235.5), "S355 (Fe510), fy 235.5");
    EXPECT_EQ(AcciaioMostrato("S355 (Fe510)", 355), "S355 (Fe510)");
}

TEST(Acciaio, WhatHasNoStrengthOfItsOwnIsNotOvertyped) {
    RipristinaGenerale();
    EXPECT_EQ(AcciaioMostrato("Ghisa", 100), "Ghisa");
    EXPECT_EQ(AcciaioMostrato("S235 (Fe360)", 0), "S235 (Fe360)");
    EXPECT_EQ(AcciaioMostrato("S235 (Fe360)", std::numeric_limits<double>::infinity()), "S235 (Fe360)");
    fyAcciaio[1] = 240;
    EXPECT_FALSE(FyRiscritta("S235 (Fe360)", 240)) << "the user's list counts";
    RipristinaGenerale();
}

} // namespace
