#pragma once

#include <span>

namespace sagomi {

class Nodo;
class frmGiunti;

/// What a box of the joint screen is.
enum class GenereCampo {
    azione,    ///< of the node: both joints hang on it
    luce,      ///< the same, a length
    parametro, ///< of the current joint, typed in a check
    limite     ///< of a design of the current joint
};

/// A box and its number in the node.
struct CampoGiunto {
    const char* casella;
    GenereCampo genere;
    double (*legge)(const Nodo& nodo);
    void (*scrive)(Nodo& nodo, double valore);
    void (frmGiunti::*controlla)() = nullptr; ///< its limit
};

/// All boxes, in the order of the tabs.
std::span<const CampoGiunto> CampiDelGiunto();

} // namespace sagomi
