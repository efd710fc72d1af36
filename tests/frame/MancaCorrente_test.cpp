// The power fails in the middle of saves. Of what was not flushed the disk keeps whatever it likes; a file is
// the old one or the new one, and a save that has been told to be done stays.

#include <gtest/gtest.h>

#include <set>

#include "Ambiente.h"
#include "DiscoVolatile.h"
#include "frame/FileAtomico.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"

using namespace sagomi;
using prove::DiscoVolatile;
using Passo = DiscoVolatile::Passo;

namespace {

/// Saves one after the other, and what of them had been told to be done after each step.
class MancaCorrente : public testing::Test {
protected:
    void Salva(const std::string& nome, const std::string& testo) {
        tentati_[nome].push_back({disco.Diario().size(), testo});
        if (ScriveAtomico(cartella.percorso / nome, testo))
            riusciti_[nome].push_back({disco.Diario().size(), testo});
    }

    /// What a file may be after so many steps; empty text for no file.
    [[nodiscard]] std::set<std::string> Ammessi(const std::string& nome, std::size_t passi) const {
        std::set<std::string> ammessi;
        std::size_t da = 0;
        std::string ultimo = "(nessuno)";
        if (const auto fatti = riusciti_.find(nome); fatti != riusciti_.end())
            for (const auto& [quando, testo] : fatti->second)
                if (quando <= passi) {
                    ultimo = testo;
                    da = quando;
                }
        ammessi.insert(ultimo);
        for (const auto& [quando, testo] : tentati_.at(nome))
            if (quando >= da && quando < passi)
                ammessi.insert(testo);
        return ammessi;
    }

    /// Looks at every state after every step.
    /// @return how many were wrong
    int Guarda() {
        int sbagliati = 0;
        for (std::size_t passi = 0; passi <= disco.Diario().size(); ++passi)
            disco.OgniStato(passi, [&](const DiscoVolatile::Contenuti& stato) {
                ++stati;
                for (const auto& [nome, salvataggi] : tentati_) {
                    const auto c = stato.find(nome);
                    const std::string testo = c == stato.end() ? "(nessuno)" : c->second;
                    sbagliati += Ammessi(nome, passi).contains(testo) ? 0 : 1;
                }
            });
        return sbagliati;
    }

    using Salvataggi = std::vector<std::pair<std::size_t, std::string>>;
    prove::CartellaDiProva cartella;
    DiscoVolatile disco;
    int stati = 0;

private:
    std::map<std::string, Salvataggi> tentati_, riusciti_;
};

TEST_F(MancaCorrente, AFileIsTheOldOneOrTheNewOne) {
    Salva("dati", "il primo testo");
    Salva("dati", "un secondo, più lungo del primo");
    Salva("dati", "terzo");
    EXPECT_EQ(Guarda(), 0);
    EXPECT_GT(stati, 40); // 21 steps, each with what may be pending
}

TEST_F(MancaCorrente, TwoFilesAtOnceDoNotHurtEachOther) {
    Salva("uno", "uno 1");
    Salva("due", "due 1");
    Salva("uno", "uno 2");
    Salva("due", "due 2");
    EXPECT_EQ(Guarda(), 0);
}

// Each step of the second save fails once: the first text stays, unless the second is told to be there.
TEST_F(MancaCorrente, ADiskThatFailsOnTheWayChangesNothing) {
    Salva("dati", "primo");
    const std::size_t passi = disco.Diario().size();
    for (std::size_t guasto = passi; guasto < 2 * passi; ++guasto) {
        DiscoVolatile altro;
        altro.Guasta(guasto);
        ASSERT_TRUE(ScriveAtomico(cartella.percorso / "dati", "primo"));
        const bool riuscito = ScriveAtomico(cartella.percorso / "dati", "secondo");
        altro.OgniStato(altro.Diario().size(), [&](const DiscoVolatile::Contenuti& stato) {
            const auto c = stato.find("dati");
            ASSERT_NE(c, stato.end()) << guasto;
            EXPECT_TRUE(c->second == (riuscito ? "secondo" : "primo") || guasto == 2 * passi - 1) << guasto;
        });
    }
    CollegaDisco(&disco);
}

// The model notices what is left out.
TEST_F(MancaCorrente, WithoutTheFlushOfTheBytesAFileIsBroken) {
    disco.Mente(Passo::Svuota);
    Salva("dati", "primo");
    Salva("dati", "secondo");
    EXPECT_GT(Guarda(), 0);
}

TEST_F(MancaCorrente, WithoutTheFlushOfTheFolderASaveIsLost) {
    disco.Mente(Passo::SvuotaCartella);
    Salva("dati", "primo");
    Salva("dati", "secondo");
    EXPECT_GT(Guarda(), 0);
}

/// The steps of one save, in their order.
void AttendeUnSalvataggio(const DiscoVolatile& disco) {
    std::vector<Passo> passi;
    for (const auto& voce : disco.Diario())
        if (passi.empty() || voce.passo != Passo::Scrive || passi.back() != Passo::Scrive)
            passi.push_back(voce.passo);
    EXPECT_EQ(passi, (std::vector{Passo::Crea, Passo::Scrive, Passo::Svuota, Passo::Chiude, Passo::Rinomina,
                                  Passo::SvuotaCartella}));
}

TEST_F(MancaCorrente, DataFilesAreSavedSo) {
    const std::int16_t n = ApreFile(cartella.percorso / "trave.sco", "S");
    ASSERT_GT(n, 0);
    EXPECT_TRUE(ScriveRiga(n, "riga"));
    EXPECT_TRUE(ChiudeFile(n));
    AttendeUnSalvataggio(disco);
}

TEST_F(MancaCorrente, SettingsAreSavedSo) {
    RipristinaGenerale();
    PathProgramma = cartella.percorso;
    EXPECT_TRUE(IniLeggeScrive("S"));
    RipristinaGenerale();
    AttendeUnSalvataggio(disco);
}

} // namespace
