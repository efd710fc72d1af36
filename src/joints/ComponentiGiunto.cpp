#include "joints/ComponentiGiunto.h"

#include <array>
#include <utility>

#include "frame/Numeri.h"
#include "joints/Giunto.h"

namespace sagomi {

namespace {

using enum ComponenteGiunto;

/// What the texts of the check say, the longer ones first where one holds another.
constexpr std::array<std::pair<std::string_view, ComponenteGiunto>, 7> parole{{
    {"pannello", Pannello},
    {"anima della colonna a trazione", AnimaColonnaTesa},
    {"anima della colonna a compressione", AnimaColonnaCompressa},
    {"anima della colonna a instabilit", InstabilitaAnimaColonna},
    {"anima della trave", AnimaTrave},
    {"ala della colonna", AlaColonna},
    {"flangia", Flangia},
}};

ComponenteGiunto Componente(std::string_view testo) {
    for (const auto& [parola, componente] : parole)
        if (testo.find(parola) != std::string_view::npos)
            return componente;
    return Nessuno;
}

void Aggiunge(EvidenzaGiunto& e, std::string_view testo, FilaGiunto fila) {
    const ComponenteGiunto componente = Componente(testo);
    if (componente != Nessuno)
        e.governano.push_back({componente, fila});
}

std::string Forza(double kN) {
    std::string cifre = FormatoCifre(4, kN);
    return cifre.erase(0, cifre.find_first_not_of(' ')) + " kN";
}

/// Force of a row, or of both.
double ForzaDi(const Giunto& g, FilaGiunto fila) {
    if (fila == FilaGiunto::Esterna)
        return g.FtRd_EffSup;
    return fila == FilaGiunto::Interna ? double(g.FtRd_EffInf) : g.FtRd_EffInf + g.FtRd_EffSup;
}

} // namespace

std::string NomeComponente(const ComponenteFila& quale) {
    static constexpr std::array<std::string_view, 12> nomi{"",
                                                           "pannello d'anima della colonna",
                                                           "anima della colonna compressa",
                                                           "instabilità dell'anima della colonna",
                                                           "bulloni",
                                                           "anima della colonna tesa",
                                                           "ala della colonna",
                                                           "flangia d'estremità",
                                                           "anima della trave tesa",
                                                           "ala della trave",
                                                           "saldature della trave",
                                                           "irrigidimenti della colonna"};
    std::string nome(nomi.at(static_cast<std::size_t>(quale.componente)));
    if (quale.fila == FilaGiunto::Interna)
        nome += ", fila interna";
    else if (quale.fila == FilaGiunto::Esterna)
        nome += ", fila esterna";
    return nome;
}

EvidenzaGiunto Governa(const Giunto& g) {
    EvidenzaGiunto e;
    if (!g.Acquisito)
        return e;
    if (g.TipoMessaggio == 1 || Componente(g.ComponenteDebole) == AnimaTrave) {
        Aggiunge(e, g.ComponenteDebole, FilaGiunto::Nessuna);
    } else {
        if (g.nf == 2)
            Aggiunge(e, g.ComponenteDeboleFilaSup, FilaGiunto::Esterna);
        Aggiunge(e, g.ComponenteDeboleFilaInf, g.nf == 2 ? FilaGiunto::Interna : FilaGiunto::Nessuna);
    }
    for (const ComponenteFila& quale : e.governano) {
        const double forza = ForzaDi(g, quale.fila);
        e.testo += (e.testo.empty() ? "governa: " : "; ") + NomeComponente(quale) + " " + Forza(forza);
    }
    return e;
}

} // namespace sagomi
