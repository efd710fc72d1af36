#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

class Giunto;
class Nodo;

/// What the boxes of a joint show, by the names of their controls: "txtF1", "TxtSj_0", "Textd", ... A text is
/// as the box has it, its unit stands outside.
///
/// Results (resistances, stiffness, geometry that the welds take part in, stiffeners) are empty while the
/// joint is not Acquisito; bolt, parameters and actions are there as long as the joint is. Without names of
/// their own: "TxtMjRd", "TxtMel" [kNm], "TxtVrd0", "TxtVrd1" [kN], and the classes "ResistenzaGiunto",
/// "RigidezzaGiunto1", "RigidezzaGiunto2".
class TestiGiunto {
public:
    using Mappa = std::map<std::string, std::string, std::less<>>;

    /// @param indice  1 the right joint, 2 the left one; of one that is not in the node all is empty
    TestiGiunto(const Nodo& nodo, int indice);

    /// The text of a control; empty where it has none.
    [[nodiscard]] const std::string& operator[](std::string_view controllo) const;
    /// The same without the leading blank.
    [[nodiscard]] std::string Valore(std::string_view controllo) const;
    /// All that have a text.
    [[nodiscard]] const Mappa& Tutti() const { return testi_; }

private:
    Mappa testi_;
};

/// A coefficient of stiffness, or a resistance that nothing exhausts.
inline constexpr const char* testoInfinito = "Infinito";
/// In the place of the class of stiffness where the beam has no span.
inline constexpr const char* testoLuceNonData = " luce non data";
/// Beside results that come from a file, until they are computed again.
inline constexpr const char* testoDalFile = "dal file, non ricalcolati";

/// " Il momento resistente del giunto è governato ", with the component where the rows had to give way to it.
/// Empty while the joint is not Acquisito.
[[nodiscard]] std::string TestoGovernante(const Giunto& giunto);

/// What the acting moment and shear of the beam mean for a joint.
struct VerdettoGiunto {
    bool presente = false;     ///< there is one: the joint is Acquisito and has its beam
    bool resiste = false;      ///< |M| is not above Mj,Rd: green, else red
    std::string forma;         ///< in the shape: "solo M" where only the shear is too much
    std::string taglio;        ///< beside the shear, in red: "V > Vj,Rd"
    std::string notaTaglio;    ///< beside the shear: the row in compression alone does not carry it
    std::string notaMomento;   ///< two rows and M below 0: the outer one does not count
    std::string notaRigidezza; ///< beside the stiffness at Mj,Sd: M is above Mj,Rd
};
[[nodiscard]] VerdettoGiunto Giudica(const Giunto& giunto);

/// A component that limits a result: the controls of both.
struct ComponenteGovernante {
    std::string_view componente; ///< as "txtF6_0"
    std::string_view risultato;  ///< "txtFmin0", "txtFmin1" or "TxtMjRd"
};

/// What governs the inner row, the outer row and, where the rows had to give way to it, the moment, in this
/// order. Empty while the joint is not Acquisito.
[[nodiscard]] std::vector<ComponenteGovernante> ComponentiGovernanti(const Giunto& giunto);

} // namespace sagomi
