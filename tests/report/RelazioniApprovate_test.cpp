// Reports as text, held against files that a person has read. Their numbers are proven by Passi.h.
#include <cmath>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Approvato.h"
#include "Registratore.h"
#include "composite/AcciaioCls.h"
#include "composite/VerificaTrave.h"
#include "fasteners/Bullone.h"
#include "fasteners/Saldatura.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "joints/NodoDisegnato.h"
#include "report/CapitoliMomento.h"
#include "report/CapitoliSagomo.h"
#include "report/CapitoliStabilita.h"
#include "report/CapitoloEfficace.h"
#include "report/Passi.h"
#include "report/PassiSagomo.h"
#include "report/RelazioneCollegamenti.h"
#include "report/RelazioneNodo.h"
#include "report/RelazioneSagomo.h"
#include "report/RelazioneTrave.h"
#include "report/TestoRelazione.h"
#include "sections/AreaEfficace.h"
#include "sections/SezioneDoppia.h"
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

    /// A report whose numbers give its values, without the line that names the version.
    static std::string Testo(const std::string& nome, Relazione r) {
        SCOPED_TRACE(nome);
        ProvaNumeri(r);
        r.data.clear();
        std::string testo = TestoRelazione(r);
        const std::string programma = ProgrammaRelazione();
        if (const std::size_t i = testo.find(programma); i != std::string::npos)
            testo.replace(i, programma.size(), "Programma");
        return testo;
    }
    static void Approvata(const std::string& nome, const Relazione& r) {
        ConfrontaApprovato("report/" + nome + ".txt", Testo(nome, r));
    }
    /// The lines of a text that are not among others yet, and how many it has: what a person has to read of
    /// it.
    static std::string Nuove(const std::string& testo, std::set<std::string>& viste) {
        std::string nuove;
        std::istringstream righe(testo);
        int quante = 0;
        for (std::string riga; std::getline(righe, riga); ++quante)
            if (viste.insert(riga).second)
                nuove += riga + "\n";
        return "-- " + std::to_string(quante) + " righe\n" + nuove;
    }
    /// Reports on one thing in one file, each with what those before it do not say.
    static void Approvate(const std::string& nome, const std::vector<Relazione>& relazioni) {
        std::set<std::string> viste{""};
        std::string testo;
        for (const Relazione& r : relazioni)
            testo += Nuove(Testo(nome, r), viste);
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
    static std::vector<std::pair<std::string, Relazione>> RelazioniDi(SezioneDoppioT s) {
        s.ClassePressoFlessioneCalcola();
        s.McrFunz();
        s.MbRdSub();
        const DiagrammiMembratura diagrammi{
            {80e6, -40e6, 30e6, 2e6}, {4e6, 2e6, 0, 0}, diagrammaCampata, pictDistribuitoContro};
        const CurveInstabilita curve{s.CurvaInstabilita("yy"), s.CurvaInstabilita("zz")};
        return {{"sezione", RelazioneSezione(s, "FrmPresFless")},
                {"membratura", RelazioneMembratura(s, curve, diagrammi, "FrmPresFless")},
                {"svergolamento", RelazioneSvergolamento(s, "FrmMsverg")},
                {"resistenze", RelazioneResistenze(s, "FrmMcRd", {s.NSd, 2000})}};
    }
    static void Sezione(const std::string& nome, const SezioneDoppioT& s) {
        for (const auto& [quale, relazione] : RelazioniDi(s))
            Approvata(quale + "-" + nome, relazione);
    }
    static void SezioneInBreve(const std::string& nome, const SezioneDoppioT& s) {
        std::vector<Relazione> relazioni;
        for (const auto& [quale, relazione] : RelazioniDi(s))
            relazioni.push_back(relazione);
        Approvate("sagomo-" + nome, relazioni);
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

/// A report of chapters that no screen puts together by themselves.
Relazione Capitoli(const std::string& oggetto, std::vector<CapitoloRelazione> capitoli) {
    Relazione r{.titolo = "Capitoli", .oggetto = oggetto};
    r.capitoli = std::move(capitoli);
    return SenzaCapitoliVuoti(std::move(r));
}

// Thin flanges, thin lower flanges, plates of class 3, and what happens at the ends: no length, no critical
// moment, a force beyond all, strengths that are overtyped.
TEST_F(RelazioniApprovate, SezioniAiLimiti) {
    SezioneInBreve("ali-sottili", Saldata(8, 5));
    SezioneInBreve("ala-inferiore-sottile", Saldata(4, 20, 240, 6));
    SezioneInBreve("ala-inferiore-larga", Saldata(6, 8, 400, 30));
    SezioneInBreve("anima-tesa", Saldata(3, 40, 60, 4)); // beyond the table of buckling factors
    SezioneInBreve("anima-tutta-compressa", Saldata(4, 2, 500, 60));
    SezioneDoppioT terza = Saldata(11, 15);
    terza.NSd = 1200e3;
    SezioneInBreve("classe3", terza);
    SezioneDoppioT senza = Saldata(12, 15);
    senza.LLT = 0;
    senza.fu = 360;
    SezioneInBreve("senza-lunghezza", senza);
    senza.LLT = 4000;
    senza.Kw = 0;
    SezioneInBreve("senza-mcr", senza);
    senza.NSd = 9e6;
    SezioneInBreve("oltre-senza-mcr", senza);
    senza.Kw = 1;
    SezioneInBreve("oltre", senza);
    SezioneDoppioT alta = Saldata(12, 15);
    alta.c2 = 0.459;
    alta.c3 = 0.525;
    alta.za = -120;
    alta.k = 0.5;
    alta.Kw = 0.7;
    alta.C1 = 1.285;
    alta.LLT = 12000;
    alta.Mysd = -20e6;
    alta.Mzsd = -3e6;
    alta.BetaMy = 2.5;
    SezioneInBreve("carico-appeso", alta);
    SezioneDoppioT asimmetrica = Saldata(12, 15, 180, 25);
    asimmetrica.c2 = 0.459;
    asimmetrica.c3 = 0.525;
    asimmetrica.za = 250;
    SezioneInBreve("asimmetrica-caricata", asimmetrica);
    asimmetrica.ErroreDatiDatabase = true;
    SezioneInBreve("dati-errati", asimmetrica);
}

// Where the two factors are not the same it shows which one counts.
TEST_F(RelazioniApprovate, FattoriDiversi) {
    Normativa = normativaAltro;
    GammaM0Altro = 1;
    GammaM1Altro = 1.1;
    ImpostaGamma();
    SezioneDoppioT terza = Saldata(11, 15);
    terza.NSd = 900e3;
    SezioneInBreve("fattori-classe2", Saldata(14, 20));
    SezioneInBreve("fattori-classe3", terza);
    SezioneInBreve("fattori-classe3-inflessa", Saldata(5, 20));
    SezioneInBreve("fattori-classe4", Saldata(3, 5));
}

TEST_F(RelazioniApprovate, MomentiCriticiEDiagrammi) {
    SezioneDoppioT s = Saldata(12, 15);
    std::vector<CapitoloRelazione> capitoli;
    for (const double L : {0.0, 1000.0, 6000.0}) {
        s.LLT = L;
        s.McrFunz();
        s.MbRdSub();
        capitoli.push_back(CapitoloMomentoCritico(s));
        capitoli.push_back(CapitoloSvergolamento(s));
    }
    s.Saldata = false;
    capitoli.push_back(CapitoloMomentoCritico(s));
    for (std::int16_t pict = 0; pict <= nPict + 1; ++pict)
        capitoli.push_back(CapitoloMomenti({80e6, -40e6, 30e6, 2e6}, {4e6, 2e6, 1e6, 0},
                                           pict < 3 ? diagrammaEstremita : diagrammaCampata, pict));
    Approvata("momenti-critici", Capitoli("saldata", capitoli));
}

/// An angle of S275, radii of gyration about as they are.
SezioneSagomoL Angolare(double h, double b, double t) {
    SezioneSagomoL l;
    l.Designation = "L";
    l.TipoAcciaio = "S275 (Fe430)";
    l.fy = 275;
    l.fu = 430;
    l.h = Singolo(h), l.b = Singolo(b), l.t = Singolo(t), l.r1 = 12, l.r2 = 6;
    l.Area = Singolo((h + b - t) * t);
    l.Jy = Singolo(l.Area * h * h / 10), l.Jz = Singolo(l.Area * b * b / 11);
    l.iY = Singolo(0.32 * h), l.Iz = Singolo(0.29 * b), l.iV = Singolo(0.2 * b);
    l.Wely = Singolo(l.Jy / h * 1.4), l.Welz = Singolo(l.Jz / b * 1.4);
    l.L0y = 2500, l.L0z = 2000, l.L0v = 1500;
    return l;
}

TEST_F(RelazioniApprovate, Angolari) {
    int n = 0;
    std::vector<Relazione> relazioni;
    for (const auto& [h, b, t] : {std::tuple{100.0, 100.0, 12.0},
                                  {100.0, 100.0, 10.0},
                                  {100.0, 100.0, 9.0},
                                  {100.0, 100.0, 6.0},
                                  {150.0, 100.0, 12.0},
                                  {150.0, 100.0, 8.0},
                                  {200.0, 90.0, 14.0}})
        for (const bool doppi : {false, true}) {
            SezioneSagomoL l = Angolare(h, b, t);
            l.InizializzaSezione();
            if (doppi) {
                const SezioneSagomoL uno = l;
                RendeDoppia(l, SingoloDi(uno), 10, n % 3 == 0);
                l.InizializzaSezione();
            }
            relazioni.push_back(
                Capitoli(l.Designation,
                         {CapitoloDati(l), CapitoloAzioni(l, -80e3), CapitoloClassi(l), CapitoloEfficace(l),
                          CapitoloResistenze(l),
                          CapitoloInstabilita(l, {l.CurvaInstabilita("yy"), l.CurvaInstabilita("zz")})}));
            ++n;
        }
    Approvate("angolari", relazioni);
}

// Thin webs, thin flanges, both; alone and in pairs.
TEST_F(RelazioniApprovate, CanaliSottiliEInCoppia) {
    int n = 0;
    std::vector<Relazione> relazioni;
    for (const auto& [h, b, tw, tf] : {std::tuple{200.0, 75.0, 8.5, 11.5},
                                       {400.0, 75.0, 3.0, 11.5},
                                       {400.0, 150.0, 10.0, 4.0},
                                       {400.0, 150.0, 3.0, 4.0}})
        for (const bool doppi : {false, true}) {
            SezioneSagomoU u;
            u.Designation = "canale";
            u.TipoAcciaio = "S355 (Fe510)";
            u.fy = 355;
            u.h = Singolo(h), u.b = Singolo(b), u.tw = Singolo(tw), u.tf = Singolo(tf), u.r1 = 3;
            u.Area = Singolo(h * tw + 2 * (b - tw) * tf);
            u.iY = Singolo(0.38 * h), u.Iz = Singolo(0.3 * b);
            u.Jy = Singolo(u.Area * u.iY * u.iY), u.Jz = Singolo(u.Area * u.Iz * u.Iz);
            u.Wely = Singolo(2 * u.Jy / h), u.Welz = Singolo(u.Jz / b * 1.5);
            u.Wply = Singolo(1.15 * u.Wely), u.Wplz = Singolo(1.8 * u.Welz);
            u.L0y = 3500;
            u.L0z = 1250;
            u.NSd = 50e3;
            if (doppi) {
                SezioneSagomoU uno = u;
                uno.InizializzaSezione();
                RendeDoppia(u, SingoloDi(uno), 12, n % 4 == 1);
            }
            InizializzaConAreaEfficace(u);
            relazioni.push_back(
                Capitoli(u.Designation,
                         {CapitoloDati(u), CapitoloAzioni(u, 50e3), CapitoloClassi(u), CapitoloEfficace(u),
                          CapitoloResistenze(u),
                          CapitoloInstabilita(u, {u.CurvaInstabilita("yy"), u.CurvaInstabilita("zz")})}));
            ++n;
            if (!doppi)
                relazioni.push_back(RelazioneResistenze(u, "FrmMcRd", {-70e3, 850}));
        }
    Approvate("canali", relazioni);
}

TEST_F(RelazioniApprovate, BulloniDiOgniClasse) {
    std::vector<Relazione> relazioni;
    std::int16_t posizione = 1;
    for (const float classe : {4.6F, 4.8F, 5.6F, 5.8F, 6.8F, 8.8F, 10.9F})
        for (const bool gambo : {false, true}) {
            Bullone b;
            b.Classe(classe);
            b.d(posizione++);
            b.Gambo = gambo;
            b.CalcolaResistenzaTaglio();
            b.fu = 510;
            b.t = 8;
            b.e1 = 2.2F * b.do_;
            b.p1 = 3.4F * b.do_;
            b.e2 = 1.4F * b.do_;
            b.p2 = 2.7F * b.do_;
            b.RifollamentoCalcola();
            b.FvSd = 6e3;
            b.FtSd = gambo ? 9e3 : 0;
            relazioni.push_back(RelazioneBullone(b, "S355 (Fe510)"));
        }
    for (const auto sbagliata : {&Bullone::e1, &Bullone::p1, &Bullone::e2, &Bullone::p2, &Bullone::do_}) {
        Bullone b;
        b.Classe(8.8F);
        b.d(7);
        b.CalcolaResistenzaTaglio();
        b.fu = 360;
        b.t = 10;
        b.e1 = b.e2 = 50;
        b.p1 = b.p2 = 90;
        b.*sbagliata = sbagliata == &Bullone::do_ ? 30 : 5; // one alone
        b.RifollamentoCalcola();
        b.FvSd = 10e3;
        relazioni.push_back(RelazioneBullone(b, "S235 (Fe360)"));
    }
    for (const double fu : {360.0, 430.0, 510.0, 520.0, 540.0, 450.0, 0.0}) {
        Saldatura s;
        s.fu = fu;
        relazioni.push_back(RelazioneSaldatura(s, "acciaio"));
    }
    Approvate("bulloni-e-saldature", relazioni);
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
        InizializzaConAreaEfficace(u);
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

/// A beam of a file with studs of 19 x 100 of 450, factor 1.25, over 8 m.
AcciaioCls TraveLetta(const std::string& nome) {
    AcciaioCls t;
    const std::int16_t n = ApreFile(std::string(SAGOMI_TEST_DATA "/composite/") + nome + ".sco", "L");
    EXPECT_TRUE(t.FileLeggeScrive("L", n));
    ChiudeFile(n);
    t.Luce = 8;
    t.fu = 450;
    t.dPiolo = 19;
    t.hPiolo = 100;
    t.GammaV = 1.25;
    return t;
}

/// What changes a beam that is reported.
struct Variante {
    const char* nome;
    void (*cambia)(AcciaioCls&);
};

// Studs that are short, thick, two in a row, without data; moments of nothing, of all and beyond; bars that
// are none or a great many; no concrete above the steel.
TEST_F(RelazioniApprovate, TraviAiLimiti) {
    const Variante varianti[] = {
        {"pioli-corti", [](AcciaioCls& t) { t.hPiolo = 70; }},
        {"pioli-giusti", [](AcciaioCls& t) { t.hPiolo = 76; }},
        {"pioli-medi", [](AcciaioCls& t) { t.hPiolo = 85; }},
        {"pioli-senza-dati", [](AcciaioCls& t) { t.fu = t.GammaV = 0; }},
        {"pioli-strani",
         [](AcciaioCls& t) {
             t.fu = 1;
             t.GammaV = 1;
             t.dPiolo = 40;
         }},
        {"pioli-due", [](AcciaioCls& t) { t.Nr = 2; }},
        {"pioli-nessuno", [](AcciaioCls& t) { t.dPiolo = 0; }},
        {"luce-breve", [](AcciaioCls& t) { t.Luce = 0.9; }},
        {"luce-nessuna", [](AcciaioCls& t) { t.Luce = 0; }},
        {"momento-nullo", [](AcciaioCls& t) { t.Msd = 0; }},
        {"momento-piccolo", [](AcciaioCls& t) { t.Msd = t.TipoVerifica % 2 == 0 ? 0.5 : -0.5; }},
        {"momento-grande", [](AcciaioCls& t) { t.Msd = t.TipoVerifica % 2 == 0 ? 900e6 : -900e6; }},
        {"barre-nessuna", [](AcciaioCls& t) { t.As = 0; }},
        {"barre-molte", [](AcciaioCls& t) { t.As = 30000; }},
        {"soletta-sottile",
         [](AcciaioCls& t) {
             t.hc = 40;
             t.ha = 0;
             t.TipoSoletta = solettaPiena;
         }},
        {"soletta-dentro",
         [](AcciaioCls& t) {
             t.hc = -60;
             t.ha = 0;
             t.TipoSoletta = solettaPiena;
             t.As = 500;
         }},
        {"acciaio-riscritto", [](AcciaioCls& t) { t.Sezione->fy = 460; }},
    };
    const auto relazione = [](const char* nome, std::int16_t tipo, const Variante* v) {
        AcciaioCls t = TraveLetta(nome);
        t.TipoVerifica = tipo;
        t.As = 1000;
        t.Msd = tipo == sluPositivo || tipo == metodoNPositivo ? 90e6 : -60e6;
        if (v != nullptr)
            v->cambia(t);
        return Testo(nome, RelazioneTraveVerificata(t));
    };
    for (const char* nome : {"piena", "parallela", "trasversale"}) {
        std::string testo;
        for (const std::int16_t tipo : {sluPositivo, sluNegativo, metodoNPositivo, metodoNNegativo}) {
            std::set<std::string> intera{""};
            Nuove(relazione(nome, tipo, nullptr), intera);
            for (const Variante& v : varianti) {
                std::set<std::string> viste = intera;
                testo += "\n" + std::string(v.nome) + ", verifica " + std::to_string(tipo) + "\n" +
                         Nuove(relazione(nome, tipo, &v), viste);
            }
        }
        ConfrontaApprovato("report/limiti-" + std::string(nome) + ".txt", testo);
    }
    AcciaioCls senza;
    EXPECT_TRUE(RelazioneTrave(senza, {}).capitoli.empty());
    senza.Sezione = TraveLetta("piena").Sezione;
    EXPECT_EQ(RelazioneTrave(senza, {}).oggetto, senza.Sezione->Designation) << "no title of its own";
}

/// A node with its joints computed.
Nodo NodoCalcolato(std::int16_t tipo, int nf, const char* irrigidimenti, Singolo forzaColonna = 0) {
    Nodo n = NodoDisegnato(tipo, nf, irrigidimenti);
    n.Colonnainf->Nsd() = forzaColonna; // kN
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
    return n;
}

// Nodes without an upper column, the factor of shear worked out, a shear and moments that are too much,
// joints that were not computed, and results of a file that other factors do not give.
TEST_F(RelazioniApprovate, NodiAiLimiti) {
    Nodo senzaColonna = NodoCalcolato(nodoCroceSenzaColonna, 1, "Si");
    senzaColonna.TraveSx->lunghezza() = 0;
    senzaColonna.TraveSx->Mysd = 400;
    senzaColonna.TraveDx->Vsd() = -900;
    for (int i = 1; i <= 2; ++i)
        senzaColonna.Giunti[i]->Beta_Cautel = false;
    Approvata("nodo-croce-senza-colonna", RelazioneNodo(senzaColonna, ""));
    EXPECT_EQ(RelazioneNodo(senzaColonna, "").oggetto, "HE 200 B, IPE 270, IPE 330");
    senzaColonna.TraveDx->Designation.clear();
    EXPECT_EQ(RelazioneNodo(senzaColonna, "").oggetto, "HE 200 B, IPE 330");
    Nodo nonCalcolato = NodoDisegnato(nodoL, 2, "Cp");
    Approvata("nodo-non-calcolato", RelazioneNodo(nonCalcolato, ""));
    Nodo letto = NodoCalcolato(nodoT, 2, "Cp");
    letto.ConnessioneCorrente->Traccia.clear();
    Approvata("nodo-letto", RelazioneNodo(letto, "come salvato"));
    Normativa = normativaEC3;
    ImpostaGamma();
    Approvata("nodo-letto-altra-norma", RelazioneNodo(letto, "come salvato"));
}

// A column whose stress reduces the resistance of its flange and web.
TEST_F(RelazioniApprovate, NodoDiColonnaCompressa) {
    Nodo n = NodoCalcolato(nodoT, 2, "No", 1650);
    EXPECT_LT(n.ConnessioneCorrente->Kfc, 1);
    EXPECT_LT(n.ConnessioneCorrente->Kwc, 1);
    Approvata("nodo-colonna-compressa", RelazioneNodo(n, "colonna compressa"));
}

// On paper and screen subscripts are low: the text, where they run on, does not show it.
TEST_F(RelazioniApprovate, Segni) {
    std::set<std::string> viste;
    std::string testo;
    const auto segni = [&](const Relazione& r) {
        for (const CapitoloRelazione& c : r.capitoli)
            for (const PassoRelazione& p : c.passi)
                if (const std::string riga = p.simbolo + " | " + p.formula + " | " + p.unita;
                    viste.insert(riga).second)
                    testo += riga + "\n";
    };
    for (const char* irrigidimenti : {"No", "Cp", "Si"})
        segni(RelazioneNodo(NodoCalcolato(nodoCroce, 2, irrigidimenti), ""));
    for (const SezioneDoppioT& s : {Saldata(20, 15), Saldata(3, 8), Saldata(8, 20, 180, 12)})
        for (const auto& [quale, relazione] : RelazioniDi(s))
            segni(relazione);
    for (const char* nome : {"piena", "trasversale", "parallela"})
        for (const std::int16_t tipo : {sluPositivo, metodoNPositivo}) {
            AcciaioCls t = TraveLetta(nome);
            t.TipoVerifica = tipo;
            segni(RelazioneTraveVerificata(t));
        }
    ConfrontaApprovato("report/segni.txt", testo);
}

// A modulus or a moment that is no number leaves its place empty.
TEST(PassiSagomo, AMomentWithoutANumberIsEmpty) {
    const double none = std::nan("");
    for (const auto& [W, M, empty] :
         {std::tuple{1e6, 223e6, false}, {none, 223e6, true}, {1e6, none, true}, {none, none, true}}) {
        const PassoRelazione p = PassoMomento(true, 4, {1, 1, W}, 235, M);
        EXPECT_EQ(p.valore.empty(), empty);
        EXPECT_EQ(p.numeri.empty(), empty);
    }
}

TEST_F(RelazioniApprovate, Nodi) {
    for (const auto& [nome, tipo, nf, irrigidimenti] :
         {std::tuple{"T", nodoT, 2, "No"}, {"L", nodoL, 1, "Cp"}, {"croce", nodoCroce, 2, "Si"}})
        Approvata(std::string("nodo-") + nome,
                  RelazioneNodo(NodoCalcolato(tipo, nf, irrigidimenti), "nodo di prova"));
}

} // namespace
