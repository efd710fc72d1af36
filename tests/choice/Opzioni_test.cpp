#include "choice/Opzioni.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "choice/OpzioniToolkit.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

using Argomenti = std::vector<std::string>;

class OpzioniTest : public testing::Test {
protected:
    OpzioniTest() { RipristinaGenerale(); }
    void TearDown() override { RipristinaGenerale(); }

    /// What a call is refused with; empty where it is none.
    static std::string Rifiuto(const Argomenti& arguments, const Argomenti& common = {}) {
        try {
            Comando c = LeggeOpzioni(arguments, common);
            MetteInVigore(c);
        } catch (const ErroreUso& e) {
            return e.what();
        }
        return {};
    }
};

std::string Testo(double v) {
    char text[40];
    return {text, std::to_chars(text, text + sizeof text, v).ptr};
}

/// An option with a number, where it arrives, how many units of the program one of its own is, its ends.
struct Numero {
    const char* nome;
    double (*arrivo)(const Comando&);
    double unita, minimo, massimo;
    const char* intervallo;
};

constexpr double grande = 1e12, piccolo = 1e-6;
constexpr auto positivo = "non minore di 0", oltreZero = "maggiore di 0", qualunque = "da -1e+12 a 1e+12",
               resistenza = "da 1 a 5000", fattore = "da 0.01 a 100";

// Forces in kN, moments in kNm, lengths of members in m; measures of sections in mm.
const Numero numeri[] = {
    {"--N", [](const Comando& c) { return c.richiesta.NSd; }, 1e3, -grande, grande, qualunque},
    {"--My", [](const Comando& c) { return c.richiesta.y.M1; }, 1e6, 0, grande, positivo},
    {"--MyQ", [](const Comando& c) { return c.richiesta.y.MQ; }, 1e6, 0, grande, positivo},
    {"--Mz", [](const Comando& c) { return c.richiesta.z.M1; }, 1e6, 0, grande, positivo},
    {"--MzQ", [](const Comando& c) { return c.richiesta.z.MQ; }, 1e6, 0, grande, positivo},
    {"--My2", [](const Comando& c) { return c.richiesta.y.M2; }, 1e6, -grande, grande, qualunque},
    {"--Mz2", [](const Comando& c) { return c.richiesta.z.M2; }, 1e6, -grande, grande, qualunque},
    {"--L0y", [](const Comando& c) { return c.richiesta.L0y; }, 1e3, 0, grande, positivo},
    {"--L0z", [](const Comando& c) { return c.richiesta.L0z; }, 1e3, 0, grande, positivo},
    {"--L0v", [](const Comando& c) { return c.richiesta.L0v; }, 1e3, 0, grande, positivo},
    {"--L", [](const Comando& c) { return c.richiesta.LLT.value_or(-1); }, 1e3, 0, grande, positivo},
    {"--k", [](const Comando& c) { return c.richiesta.k; }, 1, piccolo, grande, oltreZero},
    {"--Kw", [](const Comando& c) { return c.richiesta.Kw; }, 1, piccolo, grande, oltreZero},
    {"--C1", [](const Comando& c) { return c.richiesta.C1.value_or(-1); }, 1, piccolo, grande, oltreZero},
    {"--C2", [](const Comando& c) { return c.richiesta.c2; }, 1, -grande, grande, qualunque},
    {"--C3", [](const Comando& c) { return c.richiesta.c3; }, 1, -grande, grande, qualunque},
    {"--za", [](const Comando& c) { return c.richiesta.za; }, 1, -grande, grande, qualunque},
    {"--fy", [](const Comando& c) { return c.fy; }, 1, 1, 5000, resistenza},
    {"--fu", [](const Comando& c) { return c.fu; }, 1, 1, 5000, resistenza},
    {"--GammaM0", [](const Comando& c) { return c.GammaM0; }, 1, 0.01, 100, fattore},
    {"--GammaM1", [](const Comando& c) { return c.GammaM1; }, 1, 0.01, 100, fattore},
    {"--doppi", [](const Comando& c) { return c.richiesta.dDoppi; }, 1, 0, grande, positivo},
    {"--hmax", [](const Comando& c) { return c.filtri.hMassima.value_or(-1); }, 1, 0, grande, positivo},
    {"--bmax", [](const Comando& c) { return c.filtri.bMassima.value_or(-1); }, 1, 0, grande, positivo},
    {"--gmin", [](const Comando& c) { return c.filtri.gMinimo.value_or(-1); }, 1, 0, grande, positivo},
    {"--gmax", [](const Comando& c) { return c.filtri.gMassimo.value_or(-1); }, 1, 0, grande, positivo},
    {"--diagramma", [](const Comando& c) { return double(c.richiesta.pict); }, 1, 1, 6, "da 1 a 6"},
};

/// A call where that value of an option goes with all others.
Argomenti Chiamata(const std::string& name, double value) {
    Argomenti call{"--scelta", name, Testo(value)};
    for (const auto& [other, with] : {std::pair{"--My2", "--My"}, {"--Mz2", "--Mz"}})
        if (name == other)
            call.insert(call.end(), {with, Testo(grande)});
    if (name == "--MyQ" || name == "--MzQ")
        call.insert(call.end(), {"--diagramma", "3"});
    return call;
}

TEST_F(OpzioniTest, ANumberArrivesInTheUnitsOfTheProgramUpToTheEndsOfItsRange) {
    constexpr double endless = std::numeric_limits<double>::infinity();
    for (const Numero& n : numeri) {
        for (const double v : {n.minimo, n.massimo, n.minimo + 1, std::min(n.massimo, 3.0)})
            EXPECT_DOUBLE_EQ(n.arrivo(LeggeOpzioni(Chiamata(n.nome, v))), v * n.unita) << n.nome << ' ' << v;
        for (const double v : {std::nextafter(n.minimo, -endless), std::nextafter(n.massimo, endless)}) {
            const std::string refusal = Rifiuto(Chiamata(n.nome, v));
            if (std::string_view(n.nome) != "--diagramma" || v > 6 || v < 1) {
                EXPECT_EQ(refusal, std::string(n.nome) + " non può valere " + Testo(v) +
                                       ": vuole un numero " + n.intervallo);
            }
        }
        EXPECT_EQ(Rifiuto({"--scelta", n.nome, "x"}),
                  std::string(n.nome) + " vuole un numero col punto decimale, per esempio 2.5, non \"x\"");
        EXPECT_EQ(Rifiuto({"--scelta", n.nome}), std::string(n.nome) + " vuole un numero");
    }
    EXPECT_TRUE(LeggeOpzioni({"--scelta", "--doppi", "0"}).richiesta.doppi);
    EXPECT_FALSE(LeggeOpzioni({"--scelta"}).richiesta.doppi);
}

TEST_F(OpzioniTest, WhatIsAlmostAnOptionIsToldAsThatOne) {
    const std::pair<const char*, const char*> almost[] = {
        {"--verfica", "--verifica"}, {"--sclta", "--scelta"},
        {"--jsn", "--json"},         {"--csw", "--csv"},
        {"--hmx", "--hmax"},         {"--gmx", "--gmax"},
        {"--L0x", "--L0y"},          {"--MyR", "--My2"},
        {"--helq", "--help"},        {"--relazion", "--relazione"},
        {"--Gamma0", "--GammaM0"},   {"--verifixy", "--verifica"},
        {"--famglia", "--famiglie"}, {"--diagrama", "--diagramma"},
        {"--prgetto", "--progetto"}, {"--sceltaxy", "--scelta"}};
    for (const auto& [wrong, meant] : almost)
        EXPECT_EQ(Rifiuto({"--scelta", wrong}),
                  '"' + std::string(wrong) + "\" non è un'opzione: forse " + meant);
    for (const char* far : {"--qq", "--verifxyz", "--X", "--fyfyfy"}) // short names are all alike
        EXPECT_EQ(Rifiuto({"--scelta", far}), '"' + std::string(far) +
                                                  "\" non è un'opzione: si attende un file Gfl o Sco, "
                                                  "--verifica o --scelta");
}

TEST_F(OpzioniTest, ASteelIsNamedShortOrWhole) {
    struct Acciaio {
        const char *breve, *intero;
        double fy, fu;
    };
    for (const auto& [brief, whole, fy, fu] : {Acciaio{"S235", "S235 (Fe360)", 235, 360},
                                               {"S275", "S275 (Fe430)", 275, 430},
                                               {"S355", "S355 (Fe510)", 355, 510}})
        for (const char* name : {brief, whole}) {
            Comando c = LeggeOpzioni({"--scelta", "--acciaio", name});
            MetteInVigore(c);
            EXPECT_EQ(c.richiesta.TipoAcciaio, whole);
            EXPECT_EQ(c.richiesta.fy, fy);
            EXPECT_EQ(c.richiesta.fu, fu);
        }
    for (const std::string wrong : {"", "S", "S2", "S275 ", "(Fe430)"})
        EXPECT_EQ(Rifiuto({"--scelta", "--acciaio", wrong}),
                  "--acciaio vuole S235, S275, S355, non \"" + wrong + '"');
    Comando c = LeggeOpzioni({"--scelta", "--fy", "1", "--fu", "1"});
    MetteInVigore(c);
    EXPECT_EQ(c.richiesta.fy, 1);
    EXPECT_EQ(c.richiesta.fu, 1);
}

// NTC has 1.05 and 1.05; EC3 has 1.
TEST_F(OpzioniTest, ACodeHasItsFactorsToFourDecimals) {
    for (const char* option : {"--GammaM0", "--GammaM1"}) {
        for (const char* equal : {"1.05", "1.05004", "1.04996"})
            EXPECT_EQ(Rifiuto({"--scelta", option, equal}), "") << equal;
        for (const char* other : {"1.05006", "1.04994", "0.9", "100", "1"})
            EXPECT_EQ(Rifiuto({"--scelta", option, other}),
                      std::string(option) + " vale con --normativa Altro: NTC ha il suo")
                << other;
        EXPECT_EQ(Rifiuto({"--scelta", "--normativa", "EC3", option, "1"}), "");
        EXPECT_EQ(Rifiuto({"--scelta", "--normativa", "EC3", option, "1.05"}),
                  std::string(option) + " vale con --normativa Altro: EC3 ha il suo");
        EXPECT_EQ(Rifiuto({"--scelta", "--normativa", "Altro", option, "1.1"}),
                  "--normativa Altro vuole --GammaM0 e --GammaM1")
            << "one of them alone";
    }
    EXPECT_EQ(Rifiuto({"--scelta", "--normativa", "Altro", "--GammaM0", "0.5", "--GammaM1", "0.75"}), "");
    EXPECT_EQ(Normativa, normativaAltro);
    EXPECT_EQ(GammaM0, 0.5);
    EXPECT_EQ(GammaM1, 0.75);
    EXPECT_EQ(Rifiuto({"--scelta", "--normativa", "EC3"}), "");
    EXPECT_EQ(Normativa, normativaEC3);
    EXPECT_EQ(GammaM0, 1);
    EXPECT_EQ(Rifiuto({"--scelta"}), "");
    EXPECT_EQ(Normativa, normativaNTC);
    EXPECT_EQ(GammaM0, Singolo(1.05));
}

TEST_F(OpzioniTest, AMomentThatNoDiagramHasIsRefused) {
    const std::string larger = "--My2 e --Mz2 non possono superare --My e --Mz in valore assoluto";
    const std::string span = "--MyQ e --MzQ vogliono --diagramma da 3 a 6";
    for (const std::string axis : {"--My", "--Mz"}) {
        for (const char* end : {"5", "-5", "0"})
            EXPECT_EQ(Rifiuto({"--scelta", axis, "5", axis + "2", end}), "");
        for (const char* end : {"5.1", "-5.1"})
            EXPECT_EQ(Rifiuto({"--scelta", axis, "5", axis + "2", end}), larger);
        for (int shape = 1; shape <= 6; ++shape)
            EXPECT_EQ(Rifiuto({"--scelta", axis + "Q", "1", "--diagramma", std::to_string(shape)}),
                      shape < 3 ? span : "");
    }
    for (const char* shape : {"1.5", "5.999"})
        EXPECT_EQ(Rifiuto({"--scelta", "--diagramma", shape}), "--diagramma vuole un numero intero da 1 a 6");
}

TEST_F(OpzioniTest, WhatHasNoUseForTheQuestionIsKeptInMindByItsFirstOption) {
    const Comando c =
        LeggeOpzioni({"--scelta", "--hmax", "9", "--N", "1", "--L", "3", "--k", "1", "--za", "5"});
    EXPECT_EQ(c.soloSagomi, "--N");
    EXPECT_EQ(c.soloSvergolamento, "--L");
    EXPECT_EQ(c.fattoreChiesto, "--k");
    EXPECT_FALSE(c.coppiaChiesta || c.assiVChiesti);
    const Comando d = LeggeOpzioni({"--verifica", "UPN 200", "--za", "1", "--doppi", "2", "--L0v", "1"},
                                   {"--k", "2", "--acciaio", "S275"});
    EXPECT_EQ(d.soloSagomi, "--k") << "whoever says it";
    EXPECT_EQ(d.soloSvergolamento, "--za") << "of this very call";
    EXPECT_EQ(d.fattoreChiesto, "--za");
    EXPECT_TRUE(d.coppiaChiesta && d.assiVChiesti);
    EXPECT_EQ(d.richiesta.k, 2);
    const Comando e = LeggeOpzioni({"--scelta"}, {"--hmax", "3", "--doppi", "2", "--L0v", "1", "--L", "3"});
    EXPECT_TRUE(e.soloSvergolamento.empty() && e.fattoreChiesto.empty());
    EXPECT_FALSE(e.coppiaChiesta || e.assiVChiesti);
    EXPECT_EQ(e.richiesta.L0v, 1000);
    const Comando f = LeggeOpzioni({"--scelta", "--normativa", "EC3", "--verificati", "--gmin", "3"});
    EXPECT_EQ(f.soloSagomi, "");
    EXPECT_EQ(Rifiuto({"--verifica", "IPE 300"}, {"--hmax", "300", "--verificati"}), "")
        << "it holds for other jobs";
    EXPECT_EQ(Rifiuto({"nodo.gfl", "--accostati", "--relazione", "o.txt"}),
              "--accostati vale per un sagomo: un file ha i suoi dati");
    for (const char* option : {"--progetto", "--normativa"})
        EXPECT_EQ(Rifiuto({"nodo.gfl", option, "NTC", "--relazione", "o.txt"}), "") << option;
    EXPECT_EQ(Rifiuto({"--verifica", "IPE 300", "--gmin", "1"}),
              "--gmin va con --scelta: un sagomo solo non si sceglie");
}

TEST_F(OpzioniTest, HelpAndVersionComeBeforeWhatElseIsAsked) {
    EXPECT_EQ(LeggeOpzioni({"--help", "nodo.gfl"}).modo, ModoComando::Aiuto);
    EXPECT_EQ(LeggeOpzioni({"nodo.gfl", "--version"}).modo, ModoComando::Versione);
    EXPECT_EQ(LeggeOpzioni({"--json"}).modo, ModoComando::Lavori);
    EXPECT_EQ(LeggeOpzioni({"IPE 300", "--pdf", "a.pdf"}).modo, ModoComando::Relazione);
    EXPECT_EQ(Rifiuto({"--csv"}), "manca che cosa fare: --verifica o --scelta");
    EXPECT_EQ(Rifiuto({"--N", "1"}), "manca che cosa fare: --verifica o --scelta");
    for (const char* twice : {"--N", "--famiglie", "--relazione"})
        EXPECT_EQ(Rifiuto({"--scelta", twice, "1", twice, "1"}), std::string(twice) + " sta due volte");
}

TEST_F(OpzioniTest, AnAnswerNeitherOverwritesAnotherNorWhatIsRead) {
    const std::string different = "--relazione, --pdf e --dxf vogliono file diversi";
    for (const auto& [one, other] :
         {std::pair{"--relazione", "--pdf"}, {"--relazione", "--dxf"}, {"--pdf", "--dxf"}}) {
        EXPECT_EQ(Rifiuto({"IPE 300", one, "o", other, "o"}), different);
        EXPECT_EQ(Rifiuto({"IPE 300", one, "o", other, "./o"}), different);
        EXPECT_EQ(Rifiuto({"IPE 300", one, "o", other, "p"}), "");
    }
    for (const char* option : {"--relazione", "--pdf", "--dxf"}) {
        EXPECT_EQ(Rifiuto({"nodo.gfl", option, "./nodo.gfl"}),
                  "\"./nodo.gfl\" è il file da leggere: non si sovrascrive");
        EXPECT_EQ(Rifiuto({"nodo.gfl", option, "nodo.txt"}), "");
        EXPECT_EQ(Rifiuto({"nodo.gfl", option, ""}), std::string(option) + " vuole un file");
    }
    EXPECT_EQ(Rifiuto({"nodo.gfl", "--relazione", "-"}), "");
    for (const char* option : {"--pdf", "--dxf"})
        EXPECT_EQ(Rifiuto({"nodo.gfl", option, "-"}), std::string(option) + " vuole un file");
}

TEST_F(OpzioniTest, NamesAreDividedAtTheCommasAndValuesAtTheEqualSign) {
    EXPECT_EQ(LeggeOpzioni({"--scelta", "--famiglie", "IPE,L Uguali,,UPN"}).filtri.famiglie,
              (Argomenti{"IPE", "L Uguali", "", "UPN"}));
    EXPECT_EQ(LeggeOpzioni({"--scelta", "--famiglie=IPE,"}).filtri.famiglie, (Argomenti{"IPE", ""}));
    EXPECT_EQ(LeggeOpzioni({"a=b", "--progetto=c=d", "--pdf", "o"}).sagomo, "a=b");
    EXPECT_EQ(LeggeOpzioni({"a=b", "--progetto=c=d", "--pdf", "o"}).progetto, "c=d");
}

// A dash or two are a value; a word behind two dashes is the next option.
TEST_F(OpzioniTest, AValueIsNotTheNextOption) {
    EXPECT_EQ(Rifiuto({"--scelta", "--famiglie", "--x"}), "--famiglie vuole nomi di famiglie con la virgola");
    for (const char* value : {"--", "-", "-x"})
        EXPECT_EQ(LeggeOpzioni({"--scelta", "--famiglie", value}).filtri.famiglie, Argomenti{value});
    for (const char* folder : {"--", "-", "-x"}) {
        Argomenti arguments{"--cartella", folder, "--scelta"};
        EXPECT_EQ(PrendeCartella(arguments), folder);
        EXPECT_EQ(arguments, Argomenti{"--scelta"});
    }
    for (Argomenti arguments : {Argomenti{"--cartella", "--x"}, {"--cartella", "--N"}, {"--cartella="}})
        EXPECT_THROW(PrendeCartella(arguments), ErroreUso);
    Argomenti joined{"trave.sco", "--cartella=--x", "--N"};
    EXPECT_EQ(PrendeCartella(joined), "--x");
    EXPECT_EQ(joined, (Argomenti{"trave.sco", "--N"}));
}

// Behind a "=" there is no other option, nor a second sign.
TEST_F(OpzioniTest, WhatStandsBehindAnEqualSignIsAValueWhateverItIs) {
    for (const char* text : {"--x", "--N", "--json", "a=b", "-", "="})
        EXPECT_EQ(LeggeOpzioni({"IPE 300", "--relazione=o.txt", std::string("--progetto=") + text}).progetto,
                  text);
    EXPECT_EQ(LeggeOpzioni({"--verifica=--scelta", "--N=3"}).sagomo, "--scelta");
    EXPECT_EQ(Rifiuto({"--scelta", "--N=--My"}),
              "--N vuole un numero col punto decimale, per esempio 2.5, non \"--My\"");
    EXPECT_EQ(Rifiuto({"IPE 300", "--relazione=o.txt", "--progetto", "--x"}), "--progetto vuole un testo");
}

// A name of megabytes is near none, which is known from its length.
TEST_F(OpzioniTest, AnOptionOfAnyLengthIsRefusedAtOnce) {
    const std::string endless = "--" + std::string(std::size_t{1} << 24U, 'x');
    EXPECT_TRUE(
        Rifiuto({"--scelta", endless}).ends_with("si attende un file Gfl o Sco, --verifica o --scelta"));
}

TEST_F(OpzioniTest, TheToolkitHasItsOwnOptionsWithOneDashOrTwo) {
    for (const std::string with :
         {"style", "stylesheet", "platform", "platformpluginpath", "platformtheme", "plugin", "qwindowtitle",
          "qwindowicon", "session", "display", "qwindowgeometry", "geometry", "title", "icon",
          "desktopFileName", "name", "visual", "fontengine"})
        for (const std::string dashes : {"-", "--"}) {
            EXPECT_EQ(ValoriNelToolkit(dashes + with), 1U) << with;
            EXPECT_EQ(ValoriNelToolkit(dashes + with + "=x"), 0U) << with;
        }
    for (const std::string without :
         {"widgetcount", "reverse", "qmljsdebugger", "testability", "nograb", "dograb", "sync"})
        for (const std::string dashes : {"-", "--"})
            EXPECT_EQ(ValoriNelToolkit(dashes + without), 0U) << without;
    for (const char* none : {"style", "-", "--", "", "---style", "-styl", "-N", "nodo.gfl"})
        EXPECT_EQ(ValoriNelToolkit(none), std::nullopt) << none;
}

} // namespace
