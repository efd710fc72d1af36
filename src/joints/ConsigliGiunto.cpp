#include "joints/ConsigliGiunto.h"

#include <array>
#include <stdexcept>

namespace sagomi {

namespace {

struct Consiglio {
    std::string_view nome;
    std::vector<std::string> righe;
};

constexpr const char* cambiareColonna = "- Cambiare il sagomo della colonna, aumentando lo spessore "
                                        "dell'anima, dell'ala o il raggio di raccordo;";
constexpr const char* rigidezzaFlangia =
    "Per aumentare il coefficiente di rigidezza dell'ala della flangia bisogna agire sui seguenti parametri:";

// The row of bolts, whose line depends on their class, is put together in RigheConsiglio.
const std::array<Consiglio, numConsigliGiunto>& Consigli() {
    static const std::array<Consiglio, numConsigliGiunto> consigli{{
        {"pannello d'anima della colonna",
         {"Per aumentare la resistenza del pannello d'anima della colonna bisogna: ",
          "- Cambiare il sagomo con un altro avente uno spessore d'anima maggiore."}},
        {"anima della colonna a compressione",
         {"Per aumentare la resistenza dell'anima della colonna in compressione è possibile: ",
          "- Aumentare tf ed u;", "- Porre l'irrigidimento in zona compressa;", cambiareColonna,
          "- Cambiare il sagomo della trave aumentando lo spessore dell'ala."}},
        {"instabilità dell'anima della colonna",
         {"Per aumentare la resistenza dell'anima della colonna a instabilità è possibile: ",
          "- Cambiare il sagomo della colonna, aumentando lo spessore dell'anima;",
          "- Porre l'irrigidimento in zona compressa;", "- Aumentare tf ed u;"}},
        {"singola fila di bulloni", {"Per aumentare la resistenza della fila di bulloni è necessario "}},
        {"anima della colonna a trazione",
         {"Per aumentare la resistenza dell'anima della colonna a trazione è possibile: ", "- Ridurre ef;",
          "- Aumentare d1 e d2;", "- Porre l'irrigidimento in zona tesa;",
          "- Cambiare il sagomo della colonna, aumentando lo spessore dell'anima ."}},
        {"ala della colonna",
         {"Per aumentare la resistenza dell'ala dellla colonna a flessione è possibile: ", "- aumentare d.",
          "- aumentare ef;", "- aumentare d1 e d2."}},
        {"ala della colonna, fila interna",
         {"Per aumentare la resistenza della fila interna dell'ala dellla colonna a flessione è possibile: ",
          "- aumentare d.", "- aumentare ef;", "- aumentare d1 e d2."}},
        {"ala della colonna, fila esterna",
         {"Per aumentare la resistenza della fila esterna dell'ala dellla colonna a flessione è possibile: ",
          "- aumentare d.", "- aumentare ef;", "- aumentare d1 e d2."}},
        {"flangia di estremità",
         {"Per aumentare la resistenza della flangia di estremità a flessione è possibile: ",
          "- aumentare tf;", "- ridurre d1."}},
        {"flangia di estremità, fila interna",
         {"Per aumentare la resistenza della fila interna della flangia di estremità a flessione è "
          "possibile: ",
          "- aumentare tf;", "- ridurre ef;", "- ridurre d1."}},
        {"flangia di estremità, fila esterna",
         {"Per aumentare la resistenza della fila esterna della flangia di estremità a flessione è "
          "possibile: ",
          "- aumentare tf;", "- ridurre d2."}},
        {"anima della trave",
         {"Per aumentare la resistenza bisogna intervenire sui seguenti fattori:",
          "- Cambiare la trave con un sagomo avente uno spessore d'anima maggiore."}},
        {"resistenza efficace delle file",
         {"Per aumentare la resistenza efficace delle file di bulloni, bisogna maggiorare la resistenza "
          "della "
          "componente scritta con uguale colore."}},
        {"resistenza efficace della fila",
         {"Per aumentare la resistenza della fila di bulloni bisogna maggiorare il valore di rottura della "
          "componente scritta con uguale colore."}},
        {"momento resistente",
         {"Per aumentare il momento resistente:",
          "- aumentare la resistenza della fila esterna di bulloni che ha il braccio maggiore rispetto al "
          "centro delle compressioni",
          "- aumentare il valore della componente con uguale colorazione alla resistenza della fila "
          "(Cartella "
          "Resistenza)",
          "- cambiare la trave adottando un sagomo con altezza maggiore."}},
        {"rigidezza della flangia",
         {rigidezzaFlangia, "- aumentare ef.", "- aumentare tf.", "- diminuire d1.", "- diminuire d2."}},
        {"rigidezza dei bulloni",
         {"Per aumentare il coefficiente di rigidezza dei bulloni bisogna agire sui seguenti parametri:",
          "- diminuire la loro lunghezza lb.", "- aumentare la loro area resistente."}},
        {"rigidezza dell'ala della colonna",
         {"Per aumentare il coefficiente di rigidezza dell'ala della colonna bisogna agire sui seguenti "
          "parametri:",
          "- aumentare ef."}},
        {"correzione della flangia",
         {"Per diminuire il coefficiente correttivo della flangia bisogna:", "- aumentare d1."}},
        {"correzione dei bulloni",
         {"Per diminuire il coefficiente correttivo dei bulloni bisogna:", "- aumentare d1."}},
        {"correzione dell'ala della colonna",
         {"Per diminuire il coefficiente correttivo dell'ala della colonna bisogna :", "- aumentare d1."}},
    }};
    return consigli;
}

constexpr int filaBulloni = 3;

const Consiglio& Di(int argomento) {
    if (argomento < 0 || argomento >= numConsigliGiunto)
        throw std::out_of_range("argomento " + std::to_string(argomento) + " fuori da 0.." +
                                std::to_string(numConsigliGiunto - 1));
    return Consigli()[static_cast<std::size_t>(argomento)];
}

} // namespace

std::vector<std::string> RigheConsiglio(int argomento, std::string_view classe) {
    std::vector<std::string> righe = Di(argomento).righe;
    if (argomento == filaBulloni)
        righe[0] += classe == "10.9" ? "adottare un diametro maggiore. "
                                     : "adottare un diametro maggiore oppure la classe 10.9. ";
    return righe;
}

std::string ConsiglioGiunto(int argomento, std::string_view classe) {
    std::string testo;
    for (const std::string& riga : RigheConsiglio(argomento, classe))
        testo += (testo.empty() ? "" : "\r\n") + riga;
    return testo;
}

std::string_view NomeConsiglio(int argomento) { return Di(argomento).nome; }

} // namespace sagomi
