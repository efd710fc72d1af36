// Studs against a second, independent derivation: tests/data/composite/riferimento.py

#include <cmath>

#include "TraveDiProva.h"
#include "composite/ProgettoConnettori.h"
#include "sections/CasiDaFile.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

std::string NomeDiProva(const testing::TestParamInfo<CasoDaFile>& info) {
    std::string buono;
    for (const char ch : info.param.nome)
        buono += std::isalnum(static_cast<unsigned char>(ch)) != 0 ? ch : '_';
    return buono;
}

class PioliTabelle : public AmbienteTrave, public testing::WithParamInterface<CasoDaFile> {
protected:
    [[nodiscard]] double Dato(const char* chiave) const { return NumeroDaTesto(GetParam().dati.at(chiave)); }

    [[nodiscard]] AcciaioCls Trave() const {
        fck = Dato("fck");
        AcciaioCls t;
        t.TipoSoletta = static_cast<std::int16_t>(Dato("TipoSoletta"));
        t.hc = Dato("hc");
        t.ha = Dato("ha");
        t.bb = Dato("bb");
        t.bs = Dato("bs");
        t.iNervature = Dato("iNervature");
        t.b0t = Dato("b0t");
        t.beff = 1000;
        InUso(235, 300, 150, 7, 11);
        EXPECT_TRUE(t.InizializzaAcciaioCls());
        t.Sezione->McyRd = Dato("Ma");
        t.dPiolo = Dato("d");
        t.hPiolo = Dato("h");
        t.fu = Dato("fu");
        t.GammaV = Dato("GammaV");
        t.Nr = static_cast<std::int16_t>(Dato("Nr"));
        t.Luce = Dato("Luce");
        t.Vl = Dato("Vl");
        t.MplRd = Dato("MplRd");
        t.Msd = Dato("Msd");
        return t;
    }

    void Uguale(const char* chiave, double valore) const {
        const auto posto = GetParam().attesi.find(chiave);
        const double atteso = posto == GetParam().attesi.end() ? 0 : NumeroDaTesto(posto->second);
        EXPECT_NEAR(valore, atteso, 1e-9 * std::abs(atteso) + 1e-12) << chiave;
    }
    [[nodiscard]] std::string Testo(const char* chiave) const {
        const auto posto = GetParam().attesi.find(chiave);
        return posto == GetParam().attesi.end() ? "" : posto->second;
    }
};

TEST_P(PioliTabelle, AsDerivedTwice) {
    AcciaioCls t = Trave();
    if (t.TipoSoletta != solettaPiena) {
        EXPECT_EQ(t.b0, Dato("b0"));
    }
    t.CalcolaPrd();
    EXPECT_EQ(t.MessaggioPioli, Testo("messaggio"));
    Uguale("PRd1", t.PRd1);
    Uguale("PRd2", t.PRd2);
    Uguale("kRiduzione", t.kRiduzione);
    Uguale("PRd", t.PRd);
    t.CalcolaNumeroConnettori();
    Uguale("nConnettori", t.nConnettori);
    EXPECT_NEAR(t.Passo, GetParam().attesi.contains("Passo") ? NumeroDaTesto(Testo("Passo")) : 0, 1e-3);
    EXPECT_EQ(t.Unita, Testo("Unita"));
    Uguale("nervature", t.nNervaturePasso);
}

// The whole design, partial, where the limits of the deck let it begin.
TEST_P(PioliTabelle, PartialDesign) {
    AcciaioCls t = Trave();
    const EsitoConnettori esito = ProgettaConnettori(t, true);
    if (!registratore.testi.empty() || Testo("nParziale").empty()) {
        EXPECT_FALSE(esito.n);
        return;
    }
    if (!esito.n) { // ribs that do not hold the studs
        EXPECT_FALSE(esito.messaggio.empty());
        return;
    }
    Uguale("nParziale", *esito.n);
    EXPECT_EQ(esito.Passo.has_value(), *esito.n >= 2);
    if (esito.Passo) {
        EXPECT_NEAR(*esito.Passo, std::floor(NumeroDaTesto(Testo("PassoParziale"))), 1e-9);
    }
}

INSTANTIATE_TEST_SUITE_P(Riferimento, PioliTabelle,
                         testing::ValuesIn(LeggeCasi(SAGOMI_TEST_DATA "/composite/pioli.txt")), NomeDiProva);

} // namespace
