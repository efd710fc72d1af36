// Composite beams against a second, independent derivation: tests/data/composite/riferimento.py

#include <cmath>

#include "TraveDiProva.h"
#include "composite/VerificaTrave.h"
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

class TraviTabelle : public AmbienteTrave, public testing::WithParamInterface<CasoDaFile> {
protected:
    [[nodiscard]] double Dato(const std::string& chiave) const {
        const auto posto = GetParam().dati.find(chiave);
        return posto == GetParam().dati.end() ? 0 : NumeroDaTesto(posto->second);
    }
    [[nodiscard]] double Atteso(const std::string& chiave) const {
        return NumeroDaTesto(GetParam().attesi.at(chiave));
    }

    void Sezione() const {
        auto s = std::make_shared<SezioneDoppioT>();
        s->fy = Dato("s.fy");
        s->h = Dato("s.h");
        s->b = Dato("s.b");
        s->tw = Dato("s.tw");
        s->tf = Dato("s.tf");
        s->r = Dato("s.r");
        s->r1 = Dato("s.r1");
        s->Saldata = Dato("s.r1") == 0;
        s->SaldataAsimm = Dato("s.bInf") > 0;
        s->bAlaInf = s->SaldataAsimm ? Dato("s.bInf") : Dato("s.b");
        s->tAlaInf = s->SaldataAsimm ? Dato("s.tInf") : Dato("s.tf");
        SezioneCorrente = s;
        AcciaioCls::InizializzaTrave();
    }

    [[nodiscard]] AcciaioCls Trave() const {
        GammaM0 = Dato("GammaM0");
        fck = Dato("fck");
        fsk = Dato("fsk");
        CoeffOmogeneizzazione = Dato("n");
        Sezione();
        AcciaioCls t;
        t.TipoSoletta = static_cast<std::int16_t>(Dato("TipoSoletta"));
        t.TipoVerifica = static_cast<std::int16_t>(Dato("TipoVerifica"));
        t.hc = Dato("hc");
        t.beff = Dato("beff");
        t.As = Dato("As");
        t.c = Dato("c");
        t.ha = Dato("ha");
        t.bb = Dato("bb");
        t.bs = Dato("bs");
        t.iNervature = Dato("iNervature");
        t.b0t = Dato("b0t");
        t.Msd = Dato("Msd");
        EXPECT_TRUE(t.InizializzaAcciaioCls());
        return t;
    }

    void Fra(const std::string& chiave, double valore) const {
        if (!GetParam().attesi.contains(chiave + "_min"))
            return;
        const double minimo = Atteso(chiave + "_min");
        const double massimo = Atteso(chiave + "_max");
        // The level of a cut and the results are kept in 32 bits.
        const double stretto = 1e-6 * std::max(std::abs(minimo), std::abs(massimo)) + 1e-4;
        EXPECT_GE(valore, minimo - stretto) << chiave;
        EXPECT_LE(valore, massimo + stretto) << chiave;
    }
};

TEST_P(TraviTabelle, AsDerivedTwice) {
    AcciaioCls t = Trave();
    registratore.testi.clear();
    if (t.TipoVerifica == sluPositivo)
        t.MplRdPositivo();
    else if (t.TipoVerifica == sluNegativo)
        t.MplRdNegativo();
    else
        t.SigmaCalcola();
    if (Atteso("cambia") == 0) {
        EXPECT_EQ(registratore.testi,
                  std::vector<std::string>{"ERRORE! La funzione non cambia segno fra x1 e x2"});
        EXPECT_EQ(t.yNeutro, 0);
        return;
    }
    if (t.TipoVerifica < metodoNPositivo) {
        EXPECT_NEAR(MomentoInEquilibrio(t), Atteso("Meq"), 2e-6 * std::abs(Atteso("Meq")) + 10);
    }
    Fra("MplRd", t.MplRd);
    Fra("Vl", t.Vl);
    Fra("yNeutro", t.yNeutro);
    Fra("Jid", t.Jid);
    Fra("SigmaCls", t.SigmaCls);
    Fra("SigmaInf", t.SigmaInf);
    Fra("SigmaSup", t.SigmaSup);
    Fra("SigmaArm", t.SigmaArm);
    Fra("Ss", t.Ss);
}

INSTANTIATE_TEST_SUITE_P(Riferimento, TraviTabelle,
                         testing::ValuesIn(LeggeCasi(SAGOMI_TEST_DATA "/composite/travi.txt")), NomeDiProva);

} // namespace
