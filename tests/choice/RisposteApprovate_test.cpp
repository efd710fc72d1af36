// Answers and pictures of the choice, held against files that a person has read.
#include <algorithm>
#include <memory>
#include <regex>
#include <sstream>

#include <gtest/gtest.h>

#include "Approvato.h"
#include "choice/Comando.h"
#include "choice/ConfrontoScelta.h"
#include "choice/GraficoScelta.h"
#include "choice/StampaScelta.h"
#include "choice/TabellaScelta.h"
#include "drawing/SuperficieRitratta.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class RisposteApprovate : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }

    static std::string Risposta(const std::vector<std::string>& argomenti) {
        std::istringstream ingresso;
        std::ostringstream uscita, errori;
        const auto esito = EsegueComando(argomenti, SAGOMI_BIN, ingresso, uscita, errori);
        std::string testo = uscita.str();
        if (const std::size_t i = testo.find("Sagomi "); i != std::string::npos)
            testo.erase(i, testo.find('\n', i) - i); // with its version
        // The last figures are the processor's.
        testo = std::regex_replace(testo, std::regex("(\\.\\d{8})\\d+"), "$1");
        return "esito " + std::to_string(esito.value_or(-1)) + "\n" + testo + errori.str();
    }
    static void Approvata(const std::string& nome, const std::string& testo) {
        ConfrontaApprovato("choice/" + nome, testo);
    }
};

struct Domanda {
    const char* nome;
    std::vector<std::string> argomenti;
};

const std::vector<Domanda> domande{
    {"trave",
     {"--verifica", "IPE 300", "--acciaio", "S235", "--My", "60", "--My2", "-20", "--L", "5", "--L0y", "5",
      "--L0z", "2.5"}},
    {"campata", {"--verifica", "HEA 200", "--acciaio",   "S355", "--N",   "120",  "--My",        "30",
                 "--MyQ",      "60",      "--diagramma", "3",    "--L0y", "6",    "--L0z",       "6",
                 "--L",        "6",       "--za",        "95",   "--C2",  "0.45", "--normativa", "EC3"}},
    {"tesa", {"--verifica", "HEB 160", "--N", "-300", "--Mz", "10", "--L0y", "4", "--L0z", "4"}},
    {"canali", {"--verifica", "UPN 200", "--N", "200", "--L0y", "3", "--L0z", "3", "--doppi", "12"}},
    {"angolari", {"--verifica", "L 100x100x10", "--N", "80", "--L0y", "2", "--L0z", "2", "--L0v", "1"}},
    {"angolari-snelli",
     {"--verifica", "L 100x100x8", "--acciaio", "S355", "--N", "80", "--L0y", "2", "--L0z", "2", "--L0v", "1",
      "--doppi", "10"}},
    {"nessuna-forza", {"--verifica", "IPE 200"}},
};

TEST_F(RisposteApprovate, Verifiche) {
    for (const Domanda& d : domande) {
        Approvata(std::string("verifica-") + d.nome + ".txt", Risposta(d.argomenti));
        for (const char* formato : {"json", "csv"}) {
            auto argomenti = d.argomenti;
            argomenti.push_back(std::string("--") + formato);
            Approvata(std::string("verifica-") + d.nome + "." + formato, Risposta(argomenti));
        }
    }
}

TEST_F(RisposteApprovate, Scelte) {
    const Domanda scelte[] = {
        {"trave",
         {"--scelta", "--famiglie", "IPE,HEA", "--My", "80", "--L", "4", "--L0y", "4", "--L0z", "4"}},
        {"colonna",
         {"--scelta", "--famiglie", "HEB,UPN", "--N", "600", "--Mz", "5", "--L0y", "5", "--L0z", "5",
          "--acciaio", "S355"}},
        {"angolari",
         {"--scelta", "--famiglie", "L Uguali,L Disuguali", "--N", "60", "--L0y", "2", "--L0z", "2"}},
    };
    for (const Domanda& d : scelte)
        for (const char* formato : {"txt", "json", "csv"}) {
            auto argomenti = d.argomenti;
            if (formato[0] != 't')
                argomenti.push_back(std::string("--") + formato);
            Approvata(std::string("scelta-") + d.nome + "." + formato, Risposta(argomenti));
        }
}

TEST_F(RisposteApprovate, Aiuto) { Approvata("aiuto.txt", Risposta({"--help"})); }

DatiGrafico Dati(int n) {
    DatiGrafico d;
    d.famiglie = {"IPE", "HEA", "UPN"};
    for (int i = 0; i < n; ++i)
        d.punti.push_back({20.0 + 7 * i, 1.45 - 0.11 * i, static_cast<std::uint16_t>(i % 3), i > 4,
                           static_cast<std::uint32_t>(i)});
    d.fronte = FronteLeggeri(d.punti);
    d.leggeri = {5, 6};
    d.scelto = 6;
    d.nomeScelto = "IPE 240";
    return d;
}

TEST_F(RisposteApprovate, Grafici) {
    for (const auto& [nome, l, h] :
         {std::tuple{"largo", 900, 300}, {"alto", 420, 500}, {"piccolo", 260, 180}})
        Approvata(std::string("figure/grafico-") + nome + ".svg",
                  InSvg(DisegnoGrafico(std::make_shared<DatiGrafico>(Dati(12))), l, h, "FrmScelta"));
    for (const auto& [nome, g, u] :
         {std::tuple{"destra", 900.0, 0.3}, {"sopra", 60.0, 3.0}, {"angolo", 900.0, 3.0}}) {
        DatiGrafico fuori = Dati(12);
        fuori.punti.push_back({g, u, 0, u < 1, 99});
        fuori.scelto = 12;
        fuori.nomeScelto = "HL 1100";
        Approvata(std::string("figure/grafico-fuori-") + nome + ".svg",
                  InSvg(DisegnoGrafico(std::make_shared<DatiGrafico>(fuori)), 900, 300, "FrmScelta"));
    }
    DatiGrafico vuoto;
    vuoto.avviso = "nessuna forza";
    Approvata("figure/grafico-vuoto.svg",
              InSvg(DisegnoGrafico(std::make_shared<DatiGrafico>(vuoto)), 900, 300, "FrmScelta"));
    Approvata("figure/grafico-carta.svg", InSvg(DisegnoGrafico(std::make_shared<DatiGrafico>(Dati(12))), 190,
                                                120, "FrmScelta", dispositivoStampante));
}

/// As many families, three marks of each, one of them beyond the axes.
DatiGrafico DatiDi(std::size_t famiglie) {
    DatiGrafico d;
    for (std::size_t f = 0; f < famiglie; ++f) {
        d.famiglie.push_back("Fam " + std::string(f % 4, 'i') + std::to_string(f));
        const double x = static_cast<double>(f);
        for (const double u : {1.4 - 0.02 * x, 0.95 - 0.015 * x, 1.8})
            d.punti.push_back({14 + 1.7 * x + 9 * u, u, static_cast<std::uint16_t>(f), u <= 1,
                               static_cast<std::uint32_t>(d.punti.size())});
        d.leggeri.push_back(static_cast<std::uint32_t>(d.punti.size() - 2));
    }
    d.fronte = FronteLeggeri(d.punti);
    return d;
}

/// One section in hand among others that hold and weigh 20 to 97.
DatiGrafico InMano(double g, double u, const std::string& nome) {
    DatiGrafico d = Dati(12);
    d.punti.push_back({g, u, 1, u <= 1, 99});
    d.scelto = 12;
    d.nomeScelto = nome;
    return d;
}

struct Figura {
    const char* nome;
    DatiGrafico dati;
    double l = 900, h = 300;
};

// Each form of a mark, legends of one and of several columns, sheets of all sizes.
TEST_F(RisposteApprovate, GraficiDiMolteFamiglie) {
    for (const Figura& f : {Figura{"forme", DatiDi(13)},
                            {"forme-piccolo", DatiDi(13), 420, 190},
                            {"colonne", DatiDi(43)},
                            {"colonne-basso", DatiDi(31), 1100, 170},
                            {"stretto", DatiDi(7), 200, 400}})
        Approvata(std::string("figure/grafico-") + f.nome + ".svg",
                  InSvg(DisegnoGrafico(std::make_shared<DatiGrafico>(f.dati)), f.l, f.h, "FrmScelta"));
}

// The name of the section in hand stays between the axes, the count of those beyond them beside its ring.
TEST_F(RisposteApprovate, GraficiDelSagomoInMano) {
    DatiGrafico uguali = InMano(60, 0.7, "IPE 300");
    for (const double g : {60.0, 60.2, 60.9, 62.0}) // on each other, and beside
        for (const std::uint16_t f : {0, 1})
            uguali.punti.push_back({g, 0.7, f, true, 100});
    uguali.punti.push_back({60, 0.7, 0, false, 101});
    DatiGrafico lontani = InMano(300, 1.48, "HL 1100");
    for (int i = 0; i < 1200; ++i)
        lontani.punti.push_back({5000.0 + i, 0.2, 2, true, 200});
    DatiGrafico angolo = InMano(225, 1.47, "IPE 500");
    angolo.punti.push_back({400, 0.4, 0, true, 102});
    for (const Figura& f : {Figura{"mano-nell-angolo", angolo},
                            {"mano-sinistra", InMano(1, 0.6, "HEA 1000 con un nome lungo")},
                            {"mano-basso", InMano(70, 0.03, "HEM 900")},
                            {"mano-orlo", InMano(70, 0.14, "HEM 800")},
                            {"mano-uguali", uguali},
                            {"mano-lontani", lontani},
                            {"mano-sotto-il-conto", InMano(900, 1.32, "HL 920")},
                            {"mano-accanto-al-conto", InMano(30, 2.5, "UPN 80")}})
        Approvata(std::string("figure/grafico-") + f.nome + ".svg",
                  InSvg(DisegnoGrafico(std::make_shared<DatiGrafico>(f.dati)), f.l, f.h, "FrmScelta"));
    Approvata("figure/grafico-mano-file.svg",
              InSvg(DisegnoGrafico(std::make_shared<DatiGrafico>(InMano(70, 0.6, "IPE 300"))), 190, 120,
                    "FrmScelta", dispositivoSvg));
    DatiGrafico avvisato = DatiDi(3);
    avvisato.avviso = "Scrivere NSd";
    Approvata("figure/grafico-avviso.svg",
              InSvg(DisegnoGrafico(std::make_shared<DatiGrafico>(avvisato)), 700, 240, "FrmScelta"));
}

Richiesta Trenta() {
    ImpostaGamma();
    Richiesta r;
    r.TipoAcciaio = "S235 (Fe360)";
    r.fy = 235;
    r.fu = 360;
    r.y.M1 = 30e6;
    r.NSd = 50e3;
    r.L0y = r.L0z = 3000;
    r.LLT = 3000;
    return r;
}

/// Rows of the workbook by their names, checked.
std::vector<Confrontato> Verificati(const Richiesta& r, const std::vector<std::string>& nomi,
                                    std::vector<std::string>& messaggi) {
    static const Gara gara = LeggeGara(SAGOMI_BIN);
    std::vector<Confrontato> righe;
    for (const std::string& nome : nomi)
        if (const auto s = std::ranges::find(gara.sagomi, nome, &SagomoInGara::Designazione);
            s != gara.sagomi.end())
            righe.push_back({*s, Verifica(*s, r, messaggi)});
    EXPECT_EQ(righe.size(), nomi.size());
    return righe;
}

// Pairs side by side and on each other, different flanges, slim and small beside large.
TEST_F(RisposteApprovate, ConfrontiDiCoppieEDisuguali) {
    Richiesta r = Trenta();
    r.y = {};
    r.doppi = true;
    r.dDoppi = 14;
    r.L0v = 2000;
    std::vector<std::string> messaggi;
    for (const bool accostati : {false, true}) {
        r.accostati = accostati;
        const std::string nome = accostati ? "accostate" : "coppie";
        const auto righe = Verificati(r, {"L 150x100x10", "UPN 200", "HSD 500x74", "L 50x50x5"}, messaggi);
        Approvata("figure/confronto-" + nome + ".svg", InSvg(DisegnoConfronto(righe), 760, 300, "FrmScelta"));
        std::string tabella;
        for (const LineaConfronto& l : LineeConfronto(righe)) {
            tabella += l.voce;
            for (std::size_t i = 0; i < l.valori.size(); ++i)
                tabella += " | " + l.valori[i] + " " + l.differenze[i];
            tabella += "\n";
        }
        Approvata("confronto-" + nome + ".txt", tabella);
    }
    Approvata("figure/confronto-stretto.svg",
              InSvg(DisegnoConfronto(Verificati(r, {"HEM 300", "IPE 300", "UPN 200"}, messaggi)), 260, 300,
                    "FrmScelta"));
    Approvata("figure/confronto-carta.svg",
              InSvg(DisegnoConfronto(Verificati(r, {"UPN 80", "IPE 600"}, messaggi)), 190, 120, "FrmScelta",
                    dispositivoStampante));
}

// The printed choice: all that can be asked for, and what stands for what was not.
TEST_F(RisposteApprovate, Stampa) {
    Richiesta r = Trenta();
    Filtri f;
    std::vector<std::string> messaggi;
    const std::vector<std::string> nomi{"IPE 80", "HEA 1000", "UPN 200", "L 100x100x10", "HSD 500x74"};
    const auto stampa = [&](const std::string& nome) {
        std::vector<SagomoInGara> sagomi;
        std::vector<RigaScelta> righe;
        std::vector<std::uint32_t> posti;
        for (const Confrontato& c : Verificati(r, nomi, messaggi)) {
            posti.insert(posti.begin(), static_cast<std::uint32_t>(righe.size()));
            sagomi.push_back(c.sagomo);
            righe.push_back(c.esito.riga);
        }
        sagomi[1].famiglia = "Più famiglie è meglio";
        std::string testo;
        for (const std::string& linea : StampaScelta(r, f, posti, righe, sagomi, messaggi))
            testo += linea + "\n";
        Approvata("stampa-" + nome + ".txt", testo);
    };
    stampa("poche");
    r.y = {.M1 = 12.5e6, .M2 = -3e6, .MQ = 0.5e6};
    r.z = {.M1 = 1e6, .M2 = 0, .MQ = 2.25e6};
    r.pict = pictDistribuitoConcorde;
    r.tipoDiagramma = TipoDiPict(r.pict);
    r.C1 = 1.285;
    r.c2 = 1.562;
    r.c3 = 0.753;
    r.k = 0.7;
    r.za = -120;
    r.L0v = 1250;
    r.doppi = r.accostati = true;
    r.dDoppi = 12;
    f = {.hMassima = 1200, .bMassima = 350.5, .gMinimo = 6, .gMassimo = 400, .famiglie = {}};
    for (int i = 1; i <= 25; ++i)
        f.famiglie.push_back("Famiglia è " + std::to_string(i * i * i));
    f.soloVerificati = true;
    stampa("tutte");
    r.LLT.reset();
    r.L0z = 0;
    f = {};
    stampa("senza-lunghezza");
}

TEST_F(RisposteApprovate, Confronto) {
    const Richiesta r = Trenta();
    std::vector<Confrontato> righe;
    std::vector<std::string> messaggi;
    const Gara gara = LeggeGara(SAGOMI_BIN, {"IPE", "HEA", "UPN", "L Uguali"});
    for (const char* nome : {"IPE 300", "HEA 200", "UPN 200", "L 100x100x10"})
        for (const SagomoInGara& s : gara.sagomi)
            if (s.Designazione() == nome)
                righe.push_back({s, Verifica(s, r, messaggi)});
    std::string tabella;
    for (const LineaConfronto& l : LineeConfronto(righe)) {
        tabella += l.voce + " | " + l.aiuto;
        for (std::size_t i = 0; i < l.valori.size(); ++i)
            tabella += " | " + l.valori[i] + " " + l.differenze[i];
        tabella += "\n";
    }
    Approvata("confronto.txt", tabella);
    Approvata("figure/confronto.svg", InSvg(DisegnoConfronto(righe), 700, 260, "FrmScelta"));
    std::string righeTabella;
    for (const Confrontato& c : righe)
        for (std::size_t k = 0; k < ColonneScelta().size(); ++k)
            righeTabella += TestoScelta(c.esito.riga, c.sagomo, static_cast<int>(k)) + "\n";
    Approvata("tabella.txt", righeTabella);
}

} // namespace
