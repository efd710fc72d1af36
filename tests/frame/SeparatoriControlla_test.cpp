#include <gtest/gtest.h>

#include "Ambiente.h"
#include "Registratore.h"
#include "frame/Numeri.h"

using namespace sagomi;
using prove::ConSeparatori;

namespace {

/// A text box in memory; one that garbles what is written into it is a system gone wrong.
class Casella : public CasellaTesto {
public:
    void Nasconde() override { nascosta = true; }
    void Testo(std::string_view testo) override { contenuto = storpia ? "x" + std::string(testo) : testo; }
    [[nodiscard]] std::string Testo() const override { return contenuto; }

    bool nascosta = false;
    bool storpia = false;
    std::string contenuto;
};

class SeparatoriControllaTest : public testing::Test {
protected:
    ConSeparatori ripristina{'.', ','};
    prove::Registratore r;
    Casella casella;
};

TEST_F(SeparatoriControllaTest, ItalianSettingsPassInSilence) {
    bool esito = false;
    SeparatoriControlla(casella, {u',', u'.'}, false, &esito);
    EXPECT_TRUE(casella.nascosta);
    EXPECT_EQ(casella.contenuto, "1.234.567,8");
    EXPECT_EQ(CarDecimale, u',');
    EXPECT_EQ(CarMigliaia, u'.');
    EXPECT_TRUE(SeparatoriOk);
    EXPECT_TRUE(esito);
    EXPECT_TRUE(r.testi.empty());
}

TEST_F(SeparatoriControllaTest, EqualSeparatorsAreAnError) {
    bool esito = true;
    SeparatoriControlla(casella, {u'.', u'.'}, true, &esito); // silence is for the warning alone
    ASSERT_EQ(r.messaggi.size(), 1U);
    EXPECT_EQ(r.testi[0], "Errore nelle impostazioni internazionali del pannello di controllo.\n"
                          "Il separatore decimale è stato impostato come \".\"\n"
                          "E' stato impostato lo stesso carattere per il simbolo raggruppamento cifre.\n"
                          "Cambiare il simbolo raggruppamento cifre e riavviare il programma.");
    EXPECT_EQ(r.messaggi[0].titolo, "ERRORE");
    EXPECT_EQ(r.messaggi[0].icona, Icona::Stop);
    EXPECT_FALSE(SeparatoriOk);
    EXPECT_FALSE(esito);
}

TEST_F(SeparatoriControllaTest, ANumberThatDoesNotComeBackIsAnError) {
    casella.storpia = true;
    SeparatoriControlla(casella, {u',', u' '});
    ASSERT_EQ(r.messaggi.size(), 1U);
    EXPECT_EQ(r.testi[0], "Errore sconosciuto nelle impostazioni internazionali del pannello di controllo.\n"
                          "Provare a cambiare i simboli del separatore decimale\n"
                          "e del raggruppamento cifre e riavviare il programma.");
    EXPECT_EQ(r.messaggi[0].titolo, "ERRORE");
    EXPECT_EQ(r.messaggi[0].icona, Icona::Stop);
    EXPECT_FALSE(SeparatoriOk);
    // numbers go on being read with the characters found
    EXPECT_EQ(ValoreNumerico("1 234,5"), 1234.5);
}

TEST_F(SeparatoriControllaTest, PointAndCommaAreWarnedOf) {
    SeparatoriControlla(casella, {u'.', u','});
    ASSERT_EQ(r.messaggi.size(), 1U);
    EXPECT_EQ(r.testi[0],
              "E' impostato come separatore decimale \".\" e come separatore delle migliaia \",\"\n"
              "Se la lingua è Italiano è meglio usare la  \",\"\n"
              " come separatore decimale.\n"
              "Il programma funzionerà comunque correttamente se si usa \n"
              "come separatore delle migliaia lo spazio,\n"
              "impostazione consigliata perchè elimina qualunque ambiguità.\n"
              "Il tastierino numerico inserisce il separatore decimale scelto nelle impostazioni "
              "internazionali.");
    EXPECT_EQ(r.messaggi[0].titolo, "ATTENZIONE ");
    EXPECT_EQ(r.messaggi[0].icona, Icona::Avviso);
    EXPECT_TRUE(SeparatoriOk);
}

TEST_F(SeparatoriControllaTest, PointAndCommaPassWhenSilenceIsAskedFor) {
    SeparatoriControlla(casella, {u'.', u','}, true);
    EXPECT_TRUE(r.testi.empty());
    EXPECT_TRUE(SeparatoriOk);
}

TEST_F(SeparatoriControllaTest, ASystemMayGroupWithAWideCharacterOrNotAtAll) {
    SeparatoriControlla(casella, {u',', u'\u202F'});
    EXPECT_EQ(casella.contenuto, "1\u202F234\u202F567,8");
    EXPECT_TRUE(SeparatoriOk);
    SeparatoriControlla(casella, {u'.', 0});
    EXPECT_EQ(casella.contenuto, "1234567.8");
    EXPECT_TRUE(SeparatoriOk);
    EXPECT_TRUE(r.testi.empty());
}

} // namespace
