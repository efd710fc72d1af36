// Every value of a check and of a search against the second derivation of tests/data/joints/riferimento.py.
#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <variant>

#include "Registratore.h"
#include "frame/Numeri.h"
#include "joints/NodoDaFile.h"
#include "joints/OsservatoreProgetto.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

const std::string cartella = SAGOMI_TEST_DATA "/joints/";

std::string Nome(const testing::TestParamInfo<CasoDaFile>& caso) {
    std::string nome;
    for (const char ch : caso.param.nome)
        nome += std::isalnum(static_cast<unsigned char>(ch)) != 0 ? ch : '_';
    return nome;
}

std::string ConRitorni(std::string testo) {
    const auto barra = testo.find('|');
    return barra == std::string::npos ? testo : testo.replace(barra, 1, "\r\n");
}

void Confronta(const CasoDaFile& caso, const Giunto& g) {
    for (const auto& [nome, valore] : Valori(g)) {
        const double atteso = NumeroDaTesto(caso.attesi.at(nome));
        EXPECT_NEAR(valore, atteso, 1e-6 * std::abs(atteso) + 1e-9) << nome;
    }
    for (const auto& [nome, testo] : Testi(g))
        EXPECT_EQ(testo, ConRitorni(caso.attesi.at(nome))) << nome;
}

/// The boxes by the words that the table has for them.
std::string Avvisi(const Registratore& r) {
    std::string parole;
    for (const Messaggio& m : r.messaggi) {
        std::string parola = "altro";
        if (m.testo == "La resistenza è governata dall'anima della trave a trazione")
            parola = "trave";
        if (m.testo == "La resistenza è governata dall'anima della colonna a trazione ridotta")
            parola = "ridotta";
        if (m.titolo == "Giunto flangiato")
            parola = "saldatura";
        parole += (parole.empty() ? "" : ",") + parola;
    }
    return parole;
}

/// Counts, and stops after a candidate.
struct Conta : OsservatoreProgetto {
    explicit Conta(int ferma) : ferma_(ferma) {}
    void Candidato(const Giunto&) override { ++candidati; }
    void Miglioramento(const Giunto&) override { ++miglioramenti; }
    bool InterrompiProgetto() override { return candidati == ferma_; }

    int candidati = 0, miglioramenti = 0;

private:
    int ferma_;
};

std::string Riga(const RigaSelezione& riga) {
    std::string testo;
    for (const ValoreSelezione& v : riga) {
        testo += testo.empty() ? "" : ";";
        testo +=
            std::holds_alternative<double>(v) ? TestoPiano(std::get<double>(v)) : std::get<std::string>(v);
    }
    return testo;
}

class Verifiche : public testing::TestWithParam<CasoDaFile> {};
class Ricerche : public testing::TestWithParam<CasoDaFile> {};

} // namespace

TEST_P(Verifiche, Valori) {
    const CasoDaFile& caso = GetParam();
    NodoDaFile n(caso, false);
    const Registratore boxes;
    ASSERT_TRUE(n.nodo.EsegueCalcolo());
    EXPECT_TRUE(n.giunto().Acquisito);
    Confronta(caso, n.giunto());
    EXPECT_EQ(Avvisi(boxes), caso.attesi.at("avvisi"));
}

TEST_P(Ricerche, TabellaEMigliore) {
    const CasoDaFile& caso = GetParam();
    NodoDaFile n(caso, true);
    const Registratore boxes;
    Conta osservatore(int(NumeroDaTesto(caso.dati.at("ferma"))));
    const bool trovato = n.nodo.EsegueCalcolo(&osservatore);
    EXPECT_EQ(osservatore.candidati, NumeroDaTesto(caso.attesi.at("candidati")));
    const TabellaSelezione& tabella = n.giunto().RisultatiIntermedi_Estrai();
    ASSERT_EQ(tabella.n(), NumeroDaTesto(caso.attesi.at("righe")));
    EXPECT_EQ(osservatore.miglioramenti, tabella.n());
    for (int i = 1; i <= tabella.n(); ++i)
        EXPECT_EQ(Riga(tabella[i]), caso.attesi.at("riga" + std::to_string(i)));
    EXPECT_EQ(trovato, tabella.n() > 0);
    EXPECT_EQ(n.giunto().Acquisito, trovato);
    if (trovato)
        Confronta(caso, n.giunto());
}

INSTANTIATE_TEST_SUITE_P(Riferimento, Verifiche, testing::ValuesIn(LeggeCasi(cartella + "verifiche.txt")),
                         Nome);
INSTANTIATE_TEST_SUITE_P(Riferimento, Ricerche, testing::ValuesIn(LeggeCasi(cartella + "ricerche.txt")),
                         Nome);

// One joint changed again and again: what a road of the calculation does not write keeps what it had.
TEST(Sequenze, Riferimento) {
    std::unique_ptr<NodoDaFile> n;
    for (const CasoDaFile& caso : LeggeCasi(cartella + "sequenze.txt")) {
        SCOPED_TRACE(caso.nome);
        if (caso.nome.substr(2, 2) == ".1") {
            n.reset(); // takes its factors with it
            n = std::make_unique<NodoDaFile>(caso, false);
        } else {
            n->Assegna(caso, false);
        }
        const Registratore boxes;
        ASSERT_TRUE(n->nodo.EsegueCalcolo());
        Confronta(caso, n->giunto());
        EXPECT_EQ(Avvisi(boxes), caso.attesi.at("avvisi"));
    }
}

// Room for the holes, at rest and with the coefficients of a search.
TEST(Limiti, Riferimento) {
    for (const CasoDaFile& caso : LeggeCasi(cartella + "limiti.txt")) {
        SCOPED_TRACE(caso.nome);
        NodoDaFile n(caso, false);
        n.nodo.CollegaSezioni();
        Giunto& g = n.giunto();
        g.sTraveColonna_Calcola();
        (caso.dati.at("ricerca") == "1" ? coefficientiProgetto : coefficientiRiposo).Imposta();
        const auto atteso = [&](const char* nome) { return NumeroDaTesto(caso.attesi.at(nome)); };
        EXPECT_EQ(g.efmin_Ricerca(), atteso("efmin"));
        EXPECT_EQ(g.efMax_Calcola(), atteso("efmax"));
        EXPECT_EQ(g.exMin_Calcola(), atteso("exmin"));
        EXPECT_EQ(g.d2Min_Calcola(), atteso("d2min"));
        EXPECT_EQ(g.LMin_Calcola(), atteso("Lmin"));
        EXPECT_EQ(g.IndiceBulloneMaxGiunto_Calcola(), atteso("bullone"));
        coefficientiRiposo.Imposta();
    }
}

TEST(DiagrammaAlfa, Riferimento) {
    for (const CasoDaFile& caso : LeggeCasi(cartella + "alfa.txt")) {
        const double l1 = NumeroDaTesto(caso.dati.at("lambda1"));
        const double l2 = NumeroDaTesto(caso.dati.at("lambda2"));
        if (caso.attesi.at("alfa") == "errore")
            EXPECT_THROW(Giunto::Falfa(l1, l2), std::out_of_range) << caso.nome;
        else
            EXPECT_NEAR(Giunto::Falfa(l1, l2), NumeroDaTesto(caso.attesi.at("alfa")), 1e-12) << caso.nome;
    }
}
