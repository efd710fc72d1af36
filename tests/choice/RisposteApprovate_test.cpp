// Answers and pictures of the choice, held against files that a person has read.
#include <memory>
#include <regex>
#include <sstream>

#include <gtest/gtest.h>

#include "Approvato.h"
#include "choice/Comando.h"
#include "choice/ConfrontoScelta.h"
#include "choice/GraficoScelta.h"
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

TEST_F(RisposteApprovate, Confronto) {
    ImpostaGamma();
    Richiesta r;
    r.TipoAcciaio = "S235 (Fe360)";
    r.fy = 235;
    r.fu = 360;
    r.y.M1 = 30e6;
    r.NSd = 50e3;
    r.L0y = r.L0z = 3000;
    r.LLT = 3000;
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
