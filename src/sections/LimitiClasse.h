#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace sagomi {

/// Upper limits of classes 1, 2 and 3 of a plate, in units of epsilon, with the texts that the screens show
/// of them. The texts are made once, not at each section.
class LimitiClasse {
public:
    LimitiClasse(double l1, double l2, double l3);
    /// @param testo3  shown instead of the third limit's own figures
    LimitiClasse(double l1, double l2, double l3, std::string testo3);

    /// The class whose limit a slenderness does not pass; one that is no number passes all.
    /// @param s                 slenderness over epsilon [-]
    /// @param limite0, limite1  receive the texts of the lower and upper limit of that class: "0" below class
    ///                          1, limiteInfinito above class 4
    std::int16_t Classe(double s, std::string& limite0, std::string& limite1) const;

private:
    std::array<double, 3> limiti_;
    std::array<std::string, 5> testi_; ///< lower limit of class i at i - 1, upper one at i
};

/// Web in compression, ENV 1993-1-1 table 5.3.1 sheet 1: 33, 38, 42.
const LimitiClasse& LimitiAnimaCompressa();

/// Web in bending, neutral axis at mid-height, table 5.3.1 sheet 1: 72, 83, 124.
const LimitiClasse& LimitiAnimaInflessa();

/// Outstand in compression, table 5.3.1 sheet 3, limits of welded sections: 9, 10, 14.
const LimitiClasse& LimitiAlaCompressa();

/// Outstand in bending with its tip in compression, table 5.3.1 sheet 3, limits of welded sections: 9, 10 and
/// 21 times the root of 0.57, the buckling factor of table 5.3.3.
const LimitiClasse& LimitiAlaInflessa();

/// The same with other numbers.
/// @param l1, l2  upper limits of classes 1 and 2
/// @param a, kS   class 3 reaches to a times the root of kS
/// @param bLim    the limit shown is bLim times the root of kS
LimitiClasse LimitiAlaInflessa(double l1, double l2, double a, double kS, double bLim);

} // namespace sagomi
