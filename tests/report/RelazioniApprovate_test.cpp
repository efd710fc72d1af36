// Reports as text, held against files that a person has read. Their numbers are proven by Passi.h.
#include <string>

#include <gtest/gtest.h>

#include "Approvato.h"
#include "Registratore.h"
#include "composite/AcciaioCls.h"
#include "fasteners/Bullone.h"
#include "fasteners/Saldatura.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "joints/NodoDisegnato.h"
#include "report/Passi.h"
#include "report/RelazioneCollegamenti.h"
#include "report/RelazioneNodo.h"
#include "report/RelazioneSagomo.h"
#include "report/RelazioneTrave.h"
#include "report/TestoRelazione.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class RelazioniApprovate : public testing::Test {
protected:
    RelazioniApprovate() { RipristinaGenerale(); }
    void TearDown() override { RipristinaGenerale(); }

    /// Without the line that names the version.
    static void Approvata(const std::string& nome, Relazione r) {
        r.data.clear();
        std::string testo = TestoRelazione(r);
        const std::string programma = ProgrammaRelazione();
        if (const std::size_t i = testo.find(programma); i != std::string::npos)
            testo.replace(i, programma.size(), "Programma");
        ConfrontaApprovato("report/" + nome + ".txt", testo);
    }
    static SezioneDoppioT Saldata(double tw, double tf, double bInf = 0, double tInf = 0) {
        SezioneDoppioT s;
        s.Designation = "saldata";
        s.TipoAcciaio = "S235 (Fe360)";
        s.fy = 235;
        s.L0y = s.L0z = s.LLT = 4000;
        s.k = s.Kw = s.C1 = 1;
        s.NSd = 100e3;
        s.Mysd = 50e6;
        s.Mzsd = 5e6;
        s.BetaMy = s.BetaMz = s.BetaMLT = 1.1;
        for (int volta = 0; volta < 2; ++volta) // of class 4 Npl,Rd takes the area found before
            if (bInf > 0)
                s.InizializzaSezioneUtente(nullptr, 500, 250, tw, tf, 5, bInf, tInf);
            else
                s.InizializzaSezioneUtente(nullptr, 500, 250, tw, tf, 5);
        return s;
    }
    static void Sezione(const std::string& nome, SezioneDoppioT s) {
        s.ClassePressoFlessioneCalcola();
        s.McrFunz();
        s.MbRdSub();
        Approvata("sezione-" + nome, RelazioneSezione(s, "FrmPresFless"));
        Approvata("membratura-" + nome,
                  RelazioneMembratura(
                      s, {"b", "c"},
                      {{80e6, -40e6, 30e6, 2e6}, {4e6, 2e6, 0, 0}, diagrammaCampata, pictDistribuitoContro},
                      "FrmPresFless"));
        Approvata("svergolamento-" + nome, RelazioneSvergolamento(s, "FrmMsverg"));
        Approvata("resistenze-" + nome, RelazioneResistenze(s, "FrmMcRd", {s.NSd, 2000}));
    }
    Registratore quiet;
};

TEST_F(RelazioniApprovate, Sezioni) {
    Sezione("plastica", Saldata(20, 15));
    Sezione("elastica", Saldata(5, 15));
    Sezione("classe4", Saldata(3, 8));
    Sezione("disuguale", Saldata(8, 20, 180, 12));
    SezioneDoppioT laminata;
    laminata.Designation = "IPE 300";
    laminata.TipoAcciaio = "S275 (Fe430)";
    laminata.fy = 275;
    laminata.L0y = 5000;
    laminata.L0z = laminata.LLT = 2500;
    laminata.k = laminata.Kw = laminata.C1 = 1;
    laminata.h = 300, laminata.b = 150, laminata.tw = 7.1, laminata.tf = 10.7, laminata.r1 = 15;
    laminata.Area = 5381, laminata.Jy = 83.56e6, laminata.Jz = 6.038e6, laminata.iY = 124.6,
    laminata.iZ = 33.5;
    laminata.Wely = 557.1e3, laminata.Wply = 628.4e3, laminata.Welz = 80.5e3, laminata.Wplz = 125.2e3;
    laminata.JT = 20.1e4, laminata.Jw = 125.9e9;
    laminata.NSd = 300e3;
    laminata.Mysd = 40e6;
    laminata.BetaMy = laminata.BetaMz = laminata.BetaMLT = 1.3;
    laminata.InizializzaSezione();
    Sezione("laminata", laminata);
    laminata.NSd = -200e3;
    Sezione("tesa", laminata);
    laminata.NSd = 0;
    Sezione("inflessa", laminata);
}

TEST_F(RelazioniApprovate, Canali) {
    for (const double tw : {8.5, 2.5}) {
        SezioneSagomoU u;
        u.Designation = "UPN 200";
        u.TipoAcciaio = "S235 (Fe360)";
        u.fy = 235;
        u.h = 200, u.b = 75, u.tw = tw, u.tf = tw > 3 ? 11.5 : 3, u.r1 = tw > 3 ? 11.5 : 3,
        u.pendenza = tw > 3 ? 6 : 0;
        u.fu = 360;
        u.Area = tw > 3 ? 3220 : 935, u.Jy = 19.1e6, u.Jz = 1.48e6, u.iY = 77, u.Iz = 21.4, u.Wely = 191e3,
        u.Welz = 27e3;
        u.Wply = 228e3, u.Wplz = 51.8e3;
        u.L0y = u.L0z = 2000;
        u.InizializzaSezione();
        const std::string nome = tw > 3 ? "canale" : "canale-sottile";
        Approvata("resistenze-" + nome, RelazioneResistenze(u, "FrmMcRd", {50e3, 1000}));
    }
}

TEST_F(RelazioniApprovate, Bulloni) {
    for (const int caso : {0, 1, 2, 3, 4}) {
        Bullone b;
        b.Classe(caso % 2 == 0 ? 8.8F : 10.9F);
        b.d(caso < 2 ? 4 : 7);
        if (caso < 2)
            b.do_ = 16;
        b.CalcolaResistenzaTaglio();
        b.fu = 430;
        b.t = caso == 4 ? 2 : 10;
        b.e1 = caso == 3 ? 1000 : 40;
        b.p1 = caso == 3 ? 1000 : 70;
        b.e2 = caso == 1 ? 21.6 : 60;
        b.p2 = caso == 2 ? 60 : 80;
        b.RifollamentoCalcola();
        b.FvSd = caso == 3 ? 0 : 30e3;
        b.FtSd = caso == 2 ? 0 : 40e3;
        Approvata("bullone-" + std::to_string(caso), RelazioneBullone(b, "S275 (Fe430)", caso != 4));
    }
    Saldatura s;
    s.fu = 430;
    Approvata("saldatura", RelazioneSaldatura(s, "S275 (Fe430)"));
}

TEST_F(RelazioniApprovate, Travi) {
    for (const char* nome : {"piena", "sotto", "parallela", "trasversale"})
        for (const std::int16_t tipo : {sluPositivo, sluNegativo, metodoNPositivo, metodoNNegativo}) {
            AcciaioCls t;
            const std::int16_t n = ApreFile(std::string(SAGOMI_TEST_DATA "/composite/") + nome + ".sco", "L");
            ASSERT_TRUE(t.FileLeggeScrive("L", n));
            ChiudeFile(n);
            t.TipoVerifica = tipo;
            t.As = 1000;
            t.Msd = tipo == sluPositivo || tipo == metodoNPositivo ? 90e6 : -60e6;
            t.Luce = 8;
            t.fu = 450;
            t.dPiolo = 19;
            t.hPiolo = 100;
            t.GammaV = 1.25;
            Approvata(std::string("trave-") + nome + "-" + std::to_string(tipo), RelazioneTraveVerificata(t));
        }
}

TEST_F(RelazioniApprovate, Nodi) {
    for (const auto& [nome, tipo, nf, irrigidimenti] :
         {std::tuple{"T", nodoT, 2, "No"}, {"L", nodoL, 1, "Cp"}, {"croce", nodoCroce, 2, "Si"}}) {
        Nodo n = NodoDisegnato(tipo, nf, irrigidimenti);
        for (const auto& trave : {n.TraveDx.Riferimento(), n.TraveSx.Riferimento()})
            if (trave) {
                trave->McyRd = 484e3 * 235 / 1.05;
                trave->NplRd = 1e6;
                trave->lunghezza() = 6;
                trave->Mysd = 40;
                trave->Vsd() = 30;
            }
        for (std::int16_t i = n.NumeroGiunti; i >= 1; --i) {
            n.nGiunto = i;
            n.ConnessioneCorrente = n.Giunti[i].Usa();
            n.ConnessioneCorrente->Criterio1 = false;
            n.EsegueCalcolo();
            EXPECT_TRUE(n.ConnessioneCorrente->Acquisito);
        }
        Approvata(std::string("nodo-") + nome, RelazioneNodo(n, "nodo di prova"));
    }
}

} // namespace
