#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "joints/ComponentiGiunto.h"

namespace sagomi {

class Giunto;
class Nodo;
class SezioneDoppioT;

/// A point of a view [mm]: x from the axis of the column, positive towards the beam that is meant; y upwards
/// from the upper face of the beams.
struct PuntoNodo {
    double x = 0, y = 0;
};
using ContornoNodo = std::vector<PuntoNodo>;

/// A rectangle of a view [mm].
struct CampoNodo {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;

    [[nodiscard]] ContornoNodo Contorno() const { return {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}; }
};

/// A section as it is drawn; without one, 0.
struct ProfiloNodo {
    double h = 0, b = 0, tw = 0, tf = 0, r = 0;
    std::string nome;

    ProfiloNodo() = default;
    explicit ProfiloNodo(const SezioneDoppioT* sezione);
    [[nodiscard]] bool Presente() const { return h > 2 * tf && b > tw && tw > 0 && tf > 0; }
    [[nodiscard]] double Netta() const { return h - 2 * tf; } ///< between the flanges
};

/// A row of bolts; none of both for the one at the flange in compression.
struct FilaDisegnata {
    double y = 0;
    FilaGiunto fila = FilaGiunto::Nessuna;
};

/// One beam with its end plate. What is not known yet is 0 and not drawn.
struct LatoNodo {
    ProfiloNodo trave;
    double xColonna = 0;        ///< face of the column, where the plate begins
    double tf = 0, bf = 0;      ///< plate
    double alto = 0, basso = 0; ///< its edges
    double xFori = 0;           ///< half pitch of the bolts
    double d = 0, d0 = 0, testa = 0, dado = 0, larghezza = 0, rondella = 0, spessoreRondella = 0;
    double tfColonna = 0;
    double Af = 0, aw = 0;
    double ef = 0, ex = 0, dX = 0, d2 = 0, u = 0;
    int nf = 1;
    std::string classe;              ///< of the bolts
    std::vector<FilaDisegnata> file; ///< from above

    LatoNodo() = default;
    LatoNodo(const Giunto* giunto, const SezioneDoppioT* trave, const ProfiloNodo& colonna);

    [[nodiscard]] bool Piastra() const { return tf > 0 && trave.Presente(); }
    [[nodiscard]] bool Bulloni() const { return Piastra() && d > 0 && d2 > 0; }
    [[nodiscard]] bool Forata() const { return Bulloni() && bf > 0 && ef > 0 && xFori > 0; }
    /// End of the beam.
    [[nodiscard]] double xTrave() const { return xColonna + (tf > 0 ? tf : 0); }
    /// Upper and lower edge of beam and plate.
    [[nodiscard]] double Cima() const;
    [[nodiscard]] double Fondo() const;
    /// Fillets of the flanges, seen from the side: triangles whose first point is the corner.
    [[nodiscard]] std::vector<std::array<PuntoNodo, 3>> Cordoni() const;
    /// y of a row; of the inner one where there is none outside.
    [[nodiscard]] double Fila(FilaGiunto fila) const;

private:
    void Piastra(const Giunto& g);
    void Bulloni(const Giunto& g);
};

/// The node as it is drawn, from the fields of node and joint.
class GeometriaNodo {
public:
    /// @param giunto     the one that is meant; null for the current one of the node
    /// @param dueTravi   the other beam is drawn too
    GeometriaNodo(const Nodo& nodo, const Giunto* giunto, bool dueTravi);

    ProfiloNodo colonna;
    LatoNodo lato;                                         ///< of the joint that is meant
    LatoNodo altro;                                        ///< without a beam where there is none
    bool destro = true;                                    ///< the beam that is meant is at the right
    bool sopra = true;                                     ///< the column goes on above the beams
    bool dueTravi = true;                                  ///< also where a beam is not there yet
    std::vector<ContornoNodo> irrigidimenti;               ///< the lower one first; closed outlines
    double lunghezzaIrr = 0, lunghezzaSup = 0;             ///< of the lower and the upper one
    double spessoreIrr = 0, larghezzaIrr = 0, golaIrr = 0; ///< of both, and throat of their weld

    [[nodiscard]] CampoNodo Laterale() const;  ///< what the side view takes
    [[nodiscard]] CampoNodo Prospetto() const; ///< what the front view takes
    [[nodiscard]] bool Vuota() const { return !colonna.Presente() && !lato.trave.Presente(); }
    /// What is not known yet, in the words of the screen.
    [[nodiscard]] std::vector<std::string> Mancanze() const;
    /// Outline of a component at a row, in the side or the front view; nothing where it is not to be seen.
    [[nodiscard]] std::vector<ContornoNodo> ZoneLaterali(const ComponenteFila& quale) const;
    [[nodiscard]] std::vector<ContornoNodo> ZoneFrontali(const ComponenteFila& quale) const;

private:
    void Irrigidisce(const Giunto& g);
    [[nodiscard]] ContornoNodo Irrigidimento(PuntoNodo da, PuntoNodo a, double lunghezza) const;
    [[nodiscard]] std::vector<ContornoNodo> Striscia(FilaGiunto fila, double x1, double x2) const;
    [[nodiscard]] std::vector<ContornoNodo> ZoneAnima(ComponenteGiunto componente) const;
    [[nodiscard]] std::vector<ContornoNodo> ZoneBulloni(FilaGiunto fila) const;
    [[nodiscard]] std::vector<ContornoNodo> ZoneSaldature() const;
    [[nodiscard]] double Alta() const; ///< height of the beams, or of what stands for them
};

} // namespace sagomi
