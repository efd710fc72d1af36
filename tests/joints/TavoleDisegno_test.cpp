// Where the parts of a drawing stand on many sheets, and what is drawn of a joint whose sizes are typed one
// by one: tables that a person has looked at. The pictures of some of the cases stand in
// DisegniApprovati_test.cpp.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "Approvato.h"
#include "NodoDisegnato.h"
#include "drawing/SuperficieFinta.h"
#include "frame/Numeri.h"
#include "joints/DiagrammaRigidezza.h"
#include "joints/DisegnoNodo.h"
#include "joints/FiguraGiunto.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

std::string Cifra(double v) { return TestoPiano(std::round(v * 10) / 10 + 0.0); }

/// Columns: the sheet, then a point of each view, the first line of the data and the first line over the
/// views.
class Collocazione {
public:
    explicit Collocazione(const SuperficieFinta& s) : s_(s) {}

    [[nodiscard]] std::string Riga() const {
        std::string riga = Testo("HE 200 B") + Testo("Colonna") + Testo("governa") + Testo("Quote in mm");
        if (!s_.cerchi.empty())
            riga += " foro " + Punto(s_.cerchi[0].x, s_.cerchi[0].y) + ' ' +
                    Cifra(s_.InX(s_.cerchi[0].r) - s_.InX(0));
        return riga;
    }

private:
    [[nodiscard]] std::string Punto(double x, double y) const {
        return Cifra(s_.InX(x)) + ' ' + Cifra(s_.InY(y));
    }
    [[nodiscard]] std::string Testo(const std::string& inizio) const {
        const auto t = std::find_if(s_.scritte.begin(), s_.scritte.end(),
                                    [&](const auto& x) { return x.testo.starts_with(inizio); });
        if (t == s_.scritte.end())
            return {};
        return " " + t->testo + ' ' + Punto(t->x, t->y) + ' ' + Cifra(t->corpo) + ';';
    }

    const SuperficieFinta& s_;
};

const std::array<std::pair<const char*, std::int16_t>, 4> nodi{
    {{"croce", nodoCroce}, {"croce senza colonna", nodoCroceSenzaColonna}, {"T", nodoT}, {"L", nodoL}}};

// Sheets from upright to level ones, on paper and on the screen.
TEST(TavoleDisegno, SheetsOfTheWorkshop) {
    std::string tavola;
    for (const auto& [nome, tipo] : nodi)
        for (const std::string_view dispositivo : {dispositivoVideo, dispositivoStampante})
            for (const double larga : {150.0, 190.0, 277.0, 400.0, 700.0, 1300.0})
                for (const double alta : {140.0, 200.0, 277.0, 420.0, 800.0}) {
                    SuperficieFinta s(larga, alta);
                    const SuUscita uscita(&s, dispositivo);
                    DisegnoNodo(NodoDisegnato(tipo, 2, larga < 300 ? "Si" : "No")).PlottaInOggetto(&s, "");
                    tavola += std::string(nome) + ' ' + std::string(dispositivo) + ' ' + Cifra(larga) +
                              " x " + Cifra(alta) + ':' + Collocazione(s).Riga() + '\n';
                }
    ConfrontaApprovato("joints/fogli.txt", tavola);
}

TEST(TavoleDisegno, PicturesBesideTheFigures) {
    const std::string titoli =
        "governa: ala della colonna, fila esterna 90 kN; flangia d'estremità, fila interna 120 kN";
    std::string tavola;
    for (const auto& [nome, tipo] : nodi)
        for (const bool sinistro : {false, true})
            for (const double larga : {300.0, 480.0, 1100.0})
                for (const double alta : {320.0, 600.0, 1000.0}) {
                    SuperficieFinta s(larga, alta);
                    const SuUscita uscita(&s);
                    const Nodo n = NodoDisegnato(tipo, larga < 400 ? 1 : 2, "Cp", sinistro && tipo < nodoT);
                    FiguraGiunto(n, nullptr, {{}, alta > 500 || larga > 1000 ? titoli : "", {}, {}})
                        .PlottaInOggetto(&s, "");
                    tavola += std::string(nome) + (sinistro ? " sinistro " : " destro ") + Cifra(larga) +
                              " x " + Cifra(alta) + ':' + Collocazione(s).Riga() + '\n';
                }
    ConfrontaApprovato("joints/figure.txt", tavola);
}

struct Misura {
    const char* nome;
    double Giunto::*campo;
};
const Misura misure[] = {{"tf", &Giunto::tf}, {"bf", &Giunto::bf}, {"ef", &Giunto::ef},
                         {"d2", &Giunto::d2}, {"ex", &Giunto::ex}, {"L", &Giunto::L},
                         {"u", &Giunto::u},   {"Af", &Giunto::Af}, {"aw", &Giunto::aw}};

/// How much of each kind is drawn, and the texts.
std::string Conto(const SuperficieFinta& s) {
    std::array<int, 4> linee{};
    for (const auto& l : s.linee)
        ++linee[static_cast<std::size_t>(l.tipo)];
    std::string riga;
    for (const int n : linee)
        riga += ' ' + std::to_string(n);
    riga += ", " + std::to_string(s.cerchi.size()) + ", " + std::to_string(s.aree.size()) + ':';
    for (const auto& t : s.scritte)
        if (t.testo.find(" = ") == std::string::npos) // the column of data has tests of its own
            riga += ' ' + t.testo + ';';
    return riga;
}

// Lines of each type, circles, areas and texts with one size not there yet or with its first digits.
TEST(TavoleDisegno, SizesThatAreBeingTyped) {
    std::string tavola;
    for (const int nf : {1, 2})
        for (const Misura& m : misure)
            for (const double valore : {-1.0, 0.0, 0.5, 1.0, 16.0}) {
                const Nodo n = NodoDisegnato(nodoT, nf, "Si");
                Giunto& g = *n.ConnessioneCorrente;
                g.*m.campo = valore;
                g.dX = nf == 2 ? g.L - g.ex : 0;
                SuperficieFinta figura(480, 600);
                SuperficieFinta foglio(700, 500);
                {
                    const SuUscita uscita(&figura);
                    FiguraGiunto(n, nullptr, {}).PlottaInOggetto(&figura, "");
                }
                const SuUscita uscita(&foglio);
                DisegnoNodo(n).PlottaInOggetto(&foglio, "");
                const std::string caso = std::to_string(nf) + ' ' + m.nome + ' ' + Cifra(valore);
                tavola += caso + " figura" + Conto(figura) + '\n' + caso + " foglio" + Conto(foglio) + '\n';
            }
    ConfrontaApprovato("joints/misure.txt", tavola);
}

/// All texts but the column of data, where they stand on the surface.
std::string Scritte(const SuperficieFinta& s) {
    std::string riga;
    for (const auto& t : s.scritte)
        if (t.testo.find(" = ") == std::string::npos)
            riga += ' ' + t.testo + ' ' + Cifra(s.InX(t.x)) + ' ' + Cifra(s.InY(t.y)) + ';';
    return riga;
}

// Texts inside and under beams from 80 to 600 mm, on paper and on the screen.
TEST(TavoleDisegno, TextsOfShallowAndDeepBeams) {
    const std::array sezioni{Laminato("IPE 80", 80, 46, 3.8, 5.2, 5, 764, 801400),
                             Laminato("IPE 120", 120, 64, 4.4, 6.3, 7, 1321, 3178000),
                             Laminato("IPE 160", 160, 82, 5, 7.4, 9, 2009, 8693000), IPE600()};
    std::string tavola;
    for (const Sezione& trave : sezioni)
        for (const int nf : {1, 2})
            for (const std::int16_t tipo : {nodoT, nodoCroceSenzaColonna})
                for (const bool carta : {false, true}) {
                    const Nodo n = NodoDisegnato(tipo, nf, nf == 1 ? "Cp" : "Si", false, trave);
                    SuperficieFinta s(carta ? 190 : 800, carta ? 277 : 500);
                    const SuUscita uscita(&s, carta ? dispositivoStampante : dispositivoVideo);
                    DisegnoNodo(n).PlottaInOggetto(&s, "");
                    tavola += trave->Designation + ' ' + std::to_string(nf) +
                              (tipo == nodoT ? " T" : " croce") + (carta ? " carta:" : " video:") +
                              Scritte(s) + '\n';
                }
    ConfrontaApprovato("joints/travi.txt", tavola);
}

// Texts inside the beams or under them, as the beams become deeper: those of bolts and weld, and the names.
TEST(TavoleDisegno, TextsFromShallowToDeepBeams) {
    std::string tavola;
    for (int h = 70; h <= 340; h += 9)
        for (const auto& [l, alta] : {std::pair{480, 340}, {800, 500}, {900, 120}, {190, 277}})
            for (const bool sinistro : {false, true}) {
                const auto trave =
                    Laminato("T " + std::to_string(h), h, 0.5 * h, 0.02 * h, 0.035 * h, 9, 1000, 1e6);
                const Nodo n = NodoDisegnato(nodoCroce, 1 + h % 2, h % 3 == 0 ? "No" : "Si", sinistro, trave);
                SuperficieFinta s(l, alta);
                const SuUscita uscita(&s, l < 200 ? dispositivoStampante : dispositivoVideo);
                DisegnoNodo(n).PlottaInOggetto(&s, "");
                tavola +=
                    std::to_string(h) + ' ' + std::to_string(l) + (sinistro ? " sinistro:" : " destro:");
                for (const auto& t : s.scritte)
                    for (const char* inizio :
                         {"T ", "IPE", "HE ", "4 M", "6 M", "cl.", "aw", "af", "2 piatti"})
                        if (t.testo.starts_with(inizio))
                            tavola += ' ' + t.testo + ' ' + Cifra(s.InX(t.x)) + ' ' + Cifra(s.InY(t.y)) + ';';
                tavola += '\n';
            }
    ConfrontaApprovato("joints/altezze.txt", tavola);
}

// A stiffener has the text of its weld where that is known, however thin.
TEST(TavoleDisegno, WeldOfAStiffener) {
    for (const auto& [gola, volte] : {std::pair{0, 0}, {1, 2}, {5, 2}}) {
        const Nodo n = NodoDisegnato(nodoT, 2, "Si");
        n.ConnessioneCorrente->Irr_a = std::int16_t(gola);
        n.ConnessioneCorrente->Acquisito = true;
        SuperficieFinta s(800, 500);
        const SuUscita uscita(&s);
        DisegnoNodo(n).PlottaInOggetto(&s, "");
        const auto testi = s.Testi();
        EXPECT_EQ(std::count(testi.begin(), testi.end(), "a " + std::to_string(gola)), volte) << gola;
    }
}

// The texts of the diagram of stiffness at several sizes, spans and acting moments.
TEST(TavoleDisegno, TextsOfTheStiffnessDiagram) {
    std::string tavola;
    for (const double luce : {0.0, 0.25, 1.0, 3.0, 9.0}) {
        Nodo n = NodoDisegnato(nodoT, 2);
        n.TraveDx->McyRd = 484e3 * 235 / 1.05;
        n.TraveDx->lunghezza() = luce;
        n.ConnessioneCorrente->Criterio1 = false;
        n.EsegueCalcolo();
        const double Mj = n.ConnessioneCorrente->MplRdGIUNTO;
        for (const double parte : {0.0, 0.5, 0.97, 1.0, 1.04, 1.6}) {
            n.TraveDx->Mysd = parte * Mj;
            n.ConnessioneCorrente->Sj_MjSd = n.ConnessioneCorrente->Sj_MjRd * (2 - std::min(parte, 1.0));
            for (const auto& [l, h] : {std::pair{300, 160}, {300, 400}, {440, 280}, {900, 200}}) {
                SuperficieFinta s(l, h);
                const SuUscita uscita(&s);
                DiagrammaRigidezza(*n.ConnessioneCorrente).PlottaInOggetto(&s, "");
                tavola += Cifra(luce) + " m, " + TestoPiano(parte) + " Mj, " + std::to_string(l) + " x " +
                          std::to_string(h) + ':' + Scritte(s) + '\n';
            }
        }
    }
    ConfrontaApprovato("joints/curve.txt", tavola);
}

} // namespace
