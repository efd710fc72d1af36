#pragma once

#include <string>
#include <string_view>

namespace sagomi {

/// A finite number as its decimal digits: 0.c1c2c3... times ten to the power `punto`.
/// Every text of a number starts here, so that rounding works on the digits the user would write and not on
/// the binary form behind them: 2.675 to two decimals is 2.68.
struct Decimale {
    bool negativo = false;
    std::string cifre; ///< without leading or trailing zeros; empty for zero
    int punto = 0;     ///< digits in front of the decimal separator; below 0 for leading zeros after it

    [[nodiscard]] bool Zero() const { return cifre.empty(); }
};

/// The fewest digits that read back to the same number. The value must be finite.
Decimale CifreMinime(double valore);
Decimale CifreMinime(float valore);

/// So many digits that nothing is lost for rounding to 15 figures or fewer: rounding the fewest digits of a
/// number a second time could go the wrong way.
Decimale CifreEsatte(double valore);

/// Rounds half away from zero to `nDec` digits after the separator.
Decimale ArrotondaDecimali(Decimale d, int nDec);

/// Rounds half away from zero to `nCifre` significant digits.
Decimale ArrotondaSignificative(Decimale d, int nCifre);

/// The digits before the separator; empty below 1.
std::string CifreIntere(const Decimale& d);

/// The digits after the separator; empty for an integer.
std::string CifreDecimali(const Decimale& d);

/// "-1234.5", "0.05", "0": no grouping, no blank, a zero in front of the separator.
std::string TestoPosizionale(const Decimale& d, std::string_view separatore);

/// "1.5E-05", "-1E+20": one digit before the separator, two or more in the exponent.
std::string TestoEsponente(const Decimale& d, std::string_view separatore);

/// "+05" or "-05": an exponent with its sign and at least `nCifre` digits.
std::string EsponenteConSegno(int esponente, int nCifre);

} // namespace sagomi
