#include "frame/Messaggi.h"

#include <gtest/gtest.h>

#include "Registratore.h"

using namespace sagomi;

namespace {

TEST(Messaggi, FillsTitleAndIcon) {
    prove::Registratore r;
    Avvisa("fy deve essere > 0");
    Avvisa("ERRORE !! Non è stato selezionato nessun tipo di sagomo");
    Avvisa("Errore in L0");
    Avvisa("Errore nelle impostazioni", "ERRORE", Icona::Stop);
    ASSERT_EQ(r.messaggi.size(), 4U);
    EXPECT_EQ(r.messaggi[0].titolo, "Sagomi");
    EXPECT_EQ(r.messaggi[0].icona, Icona::Nessuna);
    EXPECT_EQ(r.messaggi[1].icona, Icona::Avviso);
    EXPECT_EQ(r.messaggi[2].icona, Icona::Avviso);
    EXPECT_EQ(r.messaggi[3].icona, Icona::Stop);
    EXPECT_EQ(r.messaggi[3].titolo, "ERRORE");
}

TEST(Messaggi, AnswersNoWhenNobodyListens) {
    CollegaMessaggi({});
    MessaggiRaccolti().clear();
    EXPECT_FALSE(Chiede("Proseguire ?"));
    EXPECT_EQ(MessaggiRaccolti(), std::vector<std::string>{"Proseguire ?"});
    EXPECT_EQ(Inoltra({}, {"Letto", Icona::Nessuna, "", Bottoni::Ok}), Risposta::Ok) << "nothing was asked";
    EXPECT_EQ(Inoltra({}, {"Letto ?", Icona::Nessuna, "", Bottoni::SiNo}), Risposta::No);
    MessaggiRaccolti().clear();
}

TEST(Messaggi, NothingIsHeardWhileMessagesAreSilenced) {
    prove::Registratore r(true);
    {
        const MessaggiTaciuti quiet;
        Avvisa("MbRd = 0");
        EXPECT_FALSE(Chiede("Proseguire ?"));
        const MessaggiTaciuti inner(false);
        Avvisa("MbRd = 0");
    }
    EXPECT_TRUE(r.testi.empty());
    Avvisa("MbRd = 0");
    EXPECT_EQ(r.testi.size(), 1U);
}

TEST(Messaggi, RecorderAnswersYes) {
    prove::Registratore r(true);
    EXPECT_TRUE(Chiede("Proseguire ?"));
}

TEST(Messaggi, AMessageThatCanBeSkippedTellsWhetherItWas) {
    const PortaMessaggi prima = CollegaMessaggi([](const Messaggio&) { return Risposta::Salta; });
    EXPECT_TRUE(AvvisaSaltabile("Riga 3"));
    CollegaMessaggi([](const Messaggio&) { return Risposta::Ok; });
    EXPECT_FALSE(AvvisaSaltabile("Riga 3"));
    CollegaMessaggi(prima);
}

} // namespace
