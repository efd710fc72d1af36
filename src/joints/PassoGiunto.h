#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

/// One value of the calculation of a joint: what screens, report and formulas show.
struct PassoGiunto {
    std::string_view componente; ///< of the joint, as "Anima della colonna a trazione"
    std::string_view nome;       ///< of the value, as its member or the symbol of the rules
    double valore = 0;
    std::string_view unita; ///< "mm", "kN", ...; empty for a pure number
    std::string_view norma; ///< clause that it follows
    std::string testo;      ///< where the result is a text, or a remark
};

using TracciaGiunto = std::vector<PassoGiunto>;

/// The step of a component and name, or null.
const PassoGiunto* Passo(const TracciaGiunto& traccia, std::string_view componente, std::string_view nome);

} // namespace sagomi
