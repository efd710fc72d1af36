#include "frame/RaccoltaMessaggi.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include "Registratore.h"

using namespace sagomi;
using Testi = std::vector<std::string>;

namespace {

TEST(RaccoltaMessaggi, TellsEachOnceAndAtTheEnd) {
    prove::Registratore r;
    {
        const RaccoltaMessaggi raccolta;
        for (int i = 0; i < 3; ++i) {
            Avvisa("primo");
            Avvisa("secondo", "titolo", Icona::Stop);
        }
        Avvisa("primo", "altro titolo");
        EXPECT_TRUE(r.testi.empty());
        EXPECT_EQ(raccolta.raccolti.size(), 3U);
    }
    EXPECT_EQ(r.testi, (Testi{"primo", "secondo", "primo"}));
    EXPECT_EQ(r.messaggi[1].icona, Icona::Stop);
    EXPECT_EQ(r.messaggi[2].titolo, "altro titolo");
}

TEST(RaccoltaMessaggi, QuestionsGoThroughAtOnce) {
    prove::Registratore r(true);
    const RaccoltaMessaggi raccolta;
    EXPECT_TRUE(Chiede("continuo?"));
    EXPECT_EQ(r.testi, Testi{"continuo?"});
}

TEST(RaccoltaMessaggi, OneInsideAnotherHandsItsMessagesOn) {
    prove::Registratore r;
    {
        const RaccoltaMessaggi fuori;
        for (int i = 0; i < 2; ++i) {
            const RaccoltaMessaggi dentro;
            Avvisa("uno");
        }
        EXPECT_TRUE(r.testi.empty());
    }
    EXPECT_EQ(r.testi, Testi{"uno"});
}

TEST(RaccoltaMessaggi, WorkThatFailsStillTellsWhatItHeard) {
    prove::Registratore r;
    EXPECT_THROW(
        {
            const RaccoltaMessaggi raccolta;
            Avvisa("uno");
            throw std::runtime_error("rotto");
        },
        std::runtime_error);
    EXPECT_EQ(r.testi, Testi{"uno"});
}

TEST(RaccoltaMessaggi, WithNobodyListeningTheyAreKeptAsEver) {
    const PortaMessaggi prima = CollegaMessaggi({});
    MessaggiRaccolti().clear();
    {
        const RaccoltaMessaggi raccolta;
        Avvisa("uno");
        Avvisa("uno");
        EXPECT_FALSE(Chiede("continuo?"));
    }
    EXPECT_EQ(MessaggiRaccolti(), (Testi{"continuo?", "uno"}));
    MessaggiRaccolti().clear();
    CollegaMessaggi(prima);
}

} // namespace
