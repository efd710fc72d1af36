#include "frame/Attesa.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

TEST(Attesa, WithNobodyListeningWorkGoesOn) { EXPECT_TRUE(Prosegue()); }

TEST(Attesa, TheListenerIsAskedAndMayStopTheWork) {
    int chieste = 0;
    const PortaAttesa prima = CollegaAttesa([&chieste] { return ++chieste < 3; });
    int passi = 0;
    while (Prosegue())
        ++passi;
    EXPECT_EQ(passi, 2);
    EXPECT_TRUE(CollegaAttesa(prima)) << "the one that is unplugged comes back";
    EXPECT_TRUE(Prosegue());
    EXPECT_EQ(chieste, 3);
}

} // namespace
