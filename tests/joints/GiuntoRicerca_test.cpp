// The search of a design: what it reads, what it leaves, how it ends. Its tables of improvements stand in
// GiuntoTabelle_test.cpp.
#include <gmock/gmock.h>
#include <limits>

#include <cstdlib>
#include <functional>
#include <new>

#include "Registratore.h"
#include "frame/Attesa.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "joints/Nodo.h"
#include "joints/OsservatoreProgetto.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// Something plugged into the yield port while it lives.
class Attesa {
public:
    explicit Attesa(PortaAttesa porta) : precedente_(CollegaAttesa(std::move(porta))) {}
    ~Attesa() { CollegaAttesa(std::move(precedente_)); }
    Attesa(const Attesa&) = delete;
    Attesa& operator=(const Attesa&) = delete;

private:
    PortaAttesa precedente_;
};

struct Osservatore : OsservatoreProgetto {
    void Candidato(const Giunto& g) override {
        ++candidati;
        coefBordo = CoefBordo.Stretto();
        bullone = g.IndiceBullone();
        if (g.MplRdGIUNTO > massimo)
            massimo = g.MplRdGIUNTO;
        if (adOgnuno)
            adOgnuno(g);
    }
    void Miglioramento(const Giunto& g) override {
        ++miglioramenti;
        righe = g.RisultatiIntermedi_Estrai().n();
    }
    void Avviso(std::string_view testo) override { avvisi.emplace_back(testo); }
    bool InterrompiProgetto() override { return candidati == ferma; }

    int candidati = 0, miglioramenti = 0, righe = 0, ferma = -1;
    int bullone = 0;
    double massimo = 0;
    float coefBordo = 0;
    std::vector<std::string> avvisi;
    std::function<void(const Giunto&)> adOgnuno;
};

class Ricerca : public testing::Test {
protected:
    Ricerca() {
        RipristinaGenerale();
        n.ImpostaNodo();
        n.Tipovie = nodoT;
        n.NumeroGiunti = 1;
        n.CaratterizzaGiunti();
        n.TraveDx = IPE300();
        n.Colonnainf = HEB300();
        g().tf_max = 25;
        g().L_max = 150;
        g().u_max = 20;
    }
    ~Ricerca() override { RipristinaGenerale(); }

    Giunto& g() { return *n.ConnessioneCorrente; }

    static void AlRiposo() {
        EXPECT_EQ(CoefBordo.Stretto(), 0.5F);
        EXPECT_EQ(CoefAnima.Stretto(), 0.5F);
        EXPECT_EQ(CoefRaccordo.Stretto(), 1.0F);
    }

    Nodo n;
    Osservatore o;
    Registratore boxes;
};

} // namespace

TEST_F(Ricerca, CoefficientiInForzaSoloDurante) {
    EXPECT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_EQ(o.coefBordo, 1.2F);
    AlRiposo();
    EXPECT_GT(o.candidati, o.miglioramenti);
    EXPECT_EQ(o.miglioramenti, g().RisultatiIntermedi_Estrai().n());
    EXPECT_EQ(o.righe, o.miglioramenti);
    EXPECT_TRUE(boxes.testi.empty());
}

TEST_F(Ricerca, IlMiglioreEVerificato) {
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_TRUE(g().Acquisito);
    EXPECT_NEAR(g().MplRdGIUNTO, o.massimo, 1e-9 * o.massimo);
    EXPECT_GT(g().Sj_Mela, 0);
    const TabellaSelezione& tabella = g().RisultatiIntermedi_Estrai();
    const int ultima = tabella.n();
    EXPECT_EQ(tabella[1].n(), 7);
    EXPECT_EQ(tabella.Numero(1, 1), 1);
    EXPECT_EQ(tabella.Numero(ultima, 1), ultima);
    EXPECT_EQ(tabella.Numero(ultima, 3), g().Diam);
    EXPECT_EQ(tabella.Numero(ultima, 4), g().tf);
    EXPECT_EQ(tabella.Numero(ultima, 5), g().bf);
    EXPECT_EQ(tabella.Numero(ultima, 6), g().ef);
    EXPECT_EQ(tabella.Numero(ultima, 7), g().d2);
    EXPECT_THROW((void)tabella[0], std::out_of_range);
    EXPECT_THROW((void)tabella[ultima + 1], std::out_of_range);
}

// With one row the width goes by 5 mm in both kinds of search: from 150.
TEST_F(Ricerca, UnaFilaPassoDi5) {
    g().TipoProgetto = 1;
    o.adOgnuno = [](const Giunto& c) { EXPECT_EQ(std::fmod(c.bf, 5), 0); };
    EXPECT_TRUE(n.EsegueCalcolo(&o));
}

TEST_F(Ricerca, UnaRigaTornaNelGiunto) {
    g().nf = 2;
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    const TabellaSelezione tabella = g().RisultatiIntermedi_Estrai();
    ASSERT_EQ(tabella[1].n(), 10);
    for (const int riga : {1, tabella.n() / 2, tabella.n()}) {
        g().DatiSelezione_Completa(tabella, riga);
        EXPECT_EQ(g().L, g().ex + g().dX);
        EXPECT_EQ(g().u, tabella.Numero(riga, 10));
        g().Mrd_Giunto_Calcola();
        EXPECT_NEAR(g().MplRdGIUNTO, ValoreNumerico(std::get<std::string>(tabella[riga][2])), 0.005001);
    }
    EXPECT_THROW(g().DatiSelezione_Completa(tabella, tabella.n() + 1), std::out_of_range);
}

// With stiffeners in tension the throat of their weld stands between bolt and stiffener, in two rows.
TEST_F(Ricerca, DueFileIrrigidite) {
    g().nf = 2;
    g().Irrigidimenti = "Si";
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_EQ(g().u, std::ceil(1.41421356 * g().Af));
    EXPECT_GT(g().mxc, 0);
}

TEST_F(Ricerca, ObiettivoRaggiuntoSubito) {
    n.TraveDx->Mysd = 0.001;
    g().TipoUscitaProgetto = 2;
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_EQ(o.candidati, 1);
    EXPECT_EQ(g().RisultatiIntermedi_Estrai().n(), 1);
    EXPECT_EQ(g().tf, 1);
}

// The moment grows with the thickness until something else governs: the first of equals is kept.
TEST_F(Ricerca, PariFermanoLoSpessore) {
    double prima = 0;
    double tfPrima = 0;
    int pari = 0;
    o.adOgnuno = [&](const Giunto& c) {
        EXPECT_TRUE(c.tf == 1 || c.tf == tfPrima + 1);
        if (c.tf == tfPrima + 1 && c.MplRdGIUNTO == prima)
            ++pari;
        prima = c.MplRdGIUNTO;
        tfPrima = c.tf;
    };
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_GT(pari, 0);
    const TabellaSelezione& tabella = g().RisultatiIntermedi_Estrai();
    EXPECT_EQ(tabella.Numero(tabella.n(), 4), g().tf);
    EXPECT_LT(g().tf, 25);
}

TEST_F(Ricerca, FermataDopoIlCandidato) {
    o.ferma = 5;
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_EQ(o.candidati, 5);
    EXPECT_EQ(g().tf, 5); // the best so far is in the joint, checked
    EXPECT_TRUE(g().Acquisito);
    AlRiposo();
}

TEST_F(Ricerca, FermataDallaPorta) {
    int giri = 0;
    const Attesa attesa([&] { return ++giri < 3; });
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_EQ(o.candidati, 3);
    EXPECT_EQ(g().tf, 3);
}

// Nothing that happens at the port changes the result: another row, other factors, other settings of the
// joint.
TEST_F(Ricerca, QuelCheAccadeIntantoNonCambiaNulla) {
    ASSERT_TRUE(n.EsegueCalcolo());
    const Giunto atteso = g();
    n.ImpostaNodo();
    n.Tipovie = nodoT;
    n.NumeroGiunti = 1;
    n.CaratterizzaGiunti();
    const Attesa attesa([&] {
        GammaM0 = 1.3;
        GammaM1 = 1.3;
        GammaM2 = 2.5;
        CoefBordo = 3;
        n.TraveDx->tf = 30;
        n.Colonnainf->tw = 2;
        n.Colonnainf->NSd = 9999;
        g().tf_max = 2;
        g().Irrigidimenti = "Si";
        n.VColSup = 500;
        return true;
    });
    ASSERT_TRUE(n.EsegueCalcolo());
    EXPECT_EQ(g().MplRdGIUNTO, atteso.MplRdGIUNTO);
    EXPECT_EQ(g().Sj_Mela, atteso.Sj_Mela);
    EXPECT_EQ(g().Vrd0, atteso.Vrd0);
    EXPECT_EQ(g().tf, atteso.tf);
    EXPECT_EQ(g().Irrigidimenti, "No");
    EXPECT_EQ(g().RisultatiIntermedi_Estrai(), atteso.RisultatiIntermedi_Estrai());
    EXPECT_EQ(GammaM2, Singolo(2.5)); // the user's
    EXPECT_EQ(n.TraveDx->tf, 30);
    AlRiposo();
}

TEST_F(Ricerca, IlNodoPuoEssereSvuotatoIntanto) {
    const Attesa attesa([&] {
        n.CancellaMemoria();
        n.LiberaOggetti();
        return true;
    });
    EXPECT_TRUE(n.EsegueCalcolo(&o));
}

TEST_F(Ricerca, NessunCandidatoLasciaIlGiunto) {
    g().tf_max = 0.9;
    g().tf = 12;
    g().bf = 160;
    g().IndiceBullone(6);
    g().Acquisito = true;
    EXPECT_FALSE(n.EsegueCalcolo(&o));
    EXPECT_EQ(o.candidati, 0);
    ASSERT_EQ(boxes.testi.size(), 2U); // the first on the welds of so thin a plate
    EXPECT_EQ(boxes.testi[1], "Nessuna configurazione del giunto è possibile entro i limiti assegnati");
    EXPECT_EQ(g().tf, 12);
    EXPECT_EQ(g().bf, 160);
    EXPECT_EQ(g().IndiceBullone(), 6);
    EXPECT_EQ(g().MplRdGIUNTO, 0);
    EXPECT_FALSE(g().Acquisito);
    EXPECT_EQ(g().RisultatiIntermedi_Estrai().n(), 0);
    AlRiposo();
}

TEST_F(Ricerca, TravePiuLargaDellaColonna) {
    n.TraveDx->b = 320;
    EXPECT_FALSE(n.EsegueCalcolo(&o));
    EXPECT_EQ(boxes.testi.size(), 1U);
}

TEST_F(Ricerca, SenzaRigheVecchieDopoUnaRicercaVuota) {
    ASSERT_TRUE(n.EsegueCalcolo());
    g().tf_max = 0;
    EXPECT_FALSE(n.EsegueCalcolo());
    EXPECT_EQ(g().RisultatiIntermedi_Estrai().n(), 0);
}

// A stiffener much thicker than the flange of the current beam leaves no room above the first bolt.
TEST_F(Ricerca, ErroreDiceLaGrandezzaELasciaIlGiunto) {
    n.Tipovie = nodoCroce;
    n.NumeroGiunti = 2;
    n.CaratterizzaGiunti();
    n.TraveSx = IPE300();
    n.TraveSx->tf = 60;
    g().Irrigidimenti = "Si";
    g().tf = 12;
    EXPECT_FALSE(n.EsegueCalcolo(&o));
    ASSERT_EQ(boxes.testi.size(), 1U);
    EXPECT_THAT(boxes.testi[0], testing::HasSubstr("m2c = -"));
    EXPECT_EQ(g().tf, 12);
    EXPECT_FALSE(g().Acquisito);
    EXPECT_EQ(g().RisultatiIntermedi_Estrai().n(), 0);
    AlRiposo();
}

TEST_F(Ricerca, MomentoAgenteNonPositivo) {
    g().TipoUscitaProgetto = 2;
    g().tf = 12;
    g().Acquisito = true;
    for (const double M : {0.0, -30.0}) {
        n.TraveDx->Mysd = M;
        EXPECT_FALSE(n.EsegueCalcolo(&o));
    }
    EXPECT_THAT(boxes.testi, testing::Each("Mj,Sd deve essere > 0 per progettare"));
    EXPECT_EQ(boxes.testi.size(), 2U);
    EXPECT_EQ(o.candidati, 0);
    EXPECT_EQ(g().tf, 12);
    EXPECT_TRUE(g().Acquisito);
}

TEST_F(Ricerca, CasiNonPrevisti) {
    g().TipoProgetto = 2;
    EXPECT_FALSE(g().LMin_Calcola());
    EXPECT_FALSE(n.EsegueCalcolo(&o));
    g().TipoProgetto = 0;
    g().TipoUscitaProgetto = 3;
    EXPECT_FALSE(n.EsegueCalcolo(&o));
    EXPECT_THAT(boxes.testi, testing::ElementsAre("Caso non previsto negli step della routine progetto",
                                                  "Caso non previsto nell'uscita dalla sub progetto"));
    AlRiposo();
}

// A slender web of the beam governs: told to the observer, not in boxes.
TEST_F(Ricerca, AvvisiAllOsservatore) {
    n.TraveDx->tw = 3;
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_THAT(o.avvisi, testing::Contains("La resistenza è governata dall'anima della trave a trazione"));
    EXPECT_LE(boxes.testi.size(), 1U); // of the check of the best
}

// Room for the holes at rest: 0.5, 0.5, 1. HE 300 B, IPE 300, M20 (d0 22): 11; 144.5 - 27 - 11 = 106.5,
// 146.45 - root of 2 4 - 11; plate of 170: 79.5 - 27 - 11 = 41.5.
TEST_F(Ricerca, SpazioPerIFori) {
    n.CollegaSezioni();
    Giunto& c = g();
    c.sTraveColonna_Calcola();
    c.IndiceBullone(7);
    c.aw = 4;
    c.Af = 6;
    EXPECT_EQ(c.efmin_Ricerca(), 11);
    EXPECT_EQ(c.exMin_Calcola(), 11);
    EXPECT_EQ(c.efMax_Calcola(), 106);
    c.bf = 170;
    EXPECT_EQ(c.efMax_Calcola(), 41);
    EXPECT_EQ(c.d2Min_Calcola(), 20); // 8.49 + 11
    EXPECT_EQ(c.LMin_Calcola(), 20);  // 9 + 8.49 = 17.49, 18, a multiple of 5
    c.TipoProgetto = 1;
    EXPECT_EQ(c.LMin_Calcola(), 18);
}

// 144.5 - 27 = 117 diameters: no hole of the table exceeds it, and the answer is the first bolt; with a plate
// of 130, 59.5 - 27 = 32: d0 33 of M30 exceeds it, so M27; an extension of 30 leaves 21: d0 22 exceeds, so
// M18.
TEST_F(Ricerca, BulloneMassimo) {
    n.CollegaSezioni();
    Giunto& c = g();
    c.sTraveColonna_Calcola();
    c.Af = 6;
    EXPECT_EQ(c.IndiceBulloneMaxGiunto_Calcola(), 1);
    c.bf = 130;
    EXPECT_EQ(c.IndiceBulloneMaxGiunto_Calcola(), 10);
    c.nf = 2;
    c.L = 30;
    EXPECT_EQ(c.IndiceBulloneMaxGiunto_Calcola(), 6);
    c.L = 5; // no room at all
    EXPECT_EQ(c.IndiceBulloneMaxGiunto_Calcola(), 1);
}

// The extension may grow 10 mm past the best before the search gives up.
TEST_F(Ricerca, EstensioneOltreIlMigliore) {
    g().nf = 2;
    double massima = 0;
    o.adOgnuno = [&](const Giunto& c) { massima = std::max(massima, c.L); };
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_GE(massima, std::min(g().L + 10, 150.0));
}

// Steps of 5 mm would never get there.
TEST_F(Ricerca, UnLimiteSmisuratoNonSiCerca) {
    g().nf = 2;
    g().L_max = 1e30;
    EXPECT_FALSE(n.EsegueCalcolo(&o));
    EXPECT_EQ(o.candidati, 0);
    g().L_max = 150;
    n.Colonnainf->b = 1e30;
    o.ferma = 1;
    EXPECT_FALSE(n.EsegueCalcolo(&o));
    EXPECT_EQ(o.candidati, 0);
}

// Flange of the column 19, plate, washer 3, half of nut 15.8 and head 11.5 of M18.
TEST_F(Ricerca, LunghezzaDelGambo) {
    int visti = 0;
    o.adOgnuno = [&](const Giunto& c) {
        if (c.IndiceBullone() != 6)
            return;
        ++visti;
        EXPECT_NEAR(c.lb, 19 + c.tf + 3 + 13.65, 1e-5);
    };
    ASSERT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_GT(visti, 0);
}

// From there no step goes on: -1e30 + 5 is -1e30.
TEST_F(Ricerca, UnaTraveSmisurataNonSiCerca) {
    const Attesa attesa([] { return true; });
    for (const std::int16_t file : {1, 2})
        for (const float b :
             {-1e30F, -std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
            g().nf = file;
            auto trave = IPE300();
            trave->b = b;
            n.TraveDx = trave;
            EXPECT_FALSE(n.EsegueCalcolo(&o));
            EXPECT_EQ(o.candidati, 0) << b;
        }
}

// A plate of 10 mm has no room for a hole: there is no candidate that would ask.
TEST_F(Ricerca, ChiedeDiProseguireAncheSenzaCandidati) {
    auto stretta = IPE300();
    stretta->b = 10;
    n.TraveDx = stretta;
    int domande = 0;
    const Attesa attesa([&] { return ++domande < 3; });
    EXPECT_FALSE(n.EsegueCalcolo(&o));
    EXPECT_EQ(o.candidati, 0);
    EXPECT_EQ(domande, 3);
}

// 10 m of extension or of column are still searched: the first candidate stops it.
TEST_F(Ricerca, DieciMetriSiCercanoAncora) {
    g().nf = 2;
    const auto cercata = [this](double L, double b) {
        g().L_max = L;
        n.Colonnainf->b = b;
        o.candidati = 0;
        o.ferma = 1;
        (void)n.EsegueCalcolo(&o);
        return o.candidati > 0;
    };
    EXPECT_TRUE(cercata(10000, 300));
    EXPECT_FALSE(cercata(10001, 300));
    EXPECT_TRUE(cercata(150, 10000));
    EXPECT_FALSE(cercata(150, 10001));
    g().nf = 1; // has no extension
    EXPECT_TRUE(cercata(10001, 300));
    EXPECT_FALSE(cercata(150, 10001));
}

// Steel without strength carries no moment: no larger bolt, edge or thickness is tried, and with two rows no
// larger extension, as the first one of 20 mm is more than 10 beyond none. Widths from 150 to 300 by 5: 31.
TEST_F(Ricerca, SenzaMomentoUnCandidatoALarghezza) {
    n.TraveDx->fy = 0;
    n.TraveDx->McyRd = 1;
    for (const std::int16_t nf : {1, 2}) {
        g().nf = nf;
        o.candidati = 0;
        EXPECT_FALSE(n.EsegueCalcolo(&o));
        EXPECT_EQ(o.massimo, 0);
        EXPECT_EQ(o.candidati, 31) << nf;
    }
}

// The plate of each candidate: beam, extension above and below.
TEST_F(Ricerca, AltezzaDellaFlangia) {
    g().nf = 2;
    o.ferma = 300;
    for (const char* irrigidimenti : {"No", "Si"}) {
        g().Irrigidimenti = irrigidimenti;
        o.candidati = 0;
        o.adOgnuno = [](const Giunto& c) {
            EXPECT_GT(c.u, 0);
            EXPECT_NEAR(c.hf, 300 + c.L + c.u, 1e-9);
        };
        (void)n.EsegueCalcolo(&o);
        EXPECT_EQ(o.candidati, 300);
    }
}

// No plate of a whole millimetre: nothing is searched, so nothing is asked.
TEST_F(Ricerca, SenzaSpessoriNonSiChiedeNulla) {
    g().tf_max = 0.9;
    int domande = 0;
    const Attesa attesa([&] { return ++domande > 0; });
    EXPECT_FALSE(n.EsegueCalcolo(&o));
    EXPECT_EQ(domande, 0);
    g().tf_max = 1;
    o.ferma = 1;
    EXPECT_TRUE(n.EsegueCalcolo(&o));
    EXPECT_EQ(o.candidati, 1);
}
