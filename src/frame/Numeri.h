#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "frame/Decimale.h"
#include "frame/Singolo.h"

/// Numbers as the user types and reads them, with the separators of the system.
/// No function here raises an error, A16Bit and A32Bit apart.
namespace sagomi {

inline std::uint16_t CarDecimale = '.'; ///< decimal separator, a 16-bit character code
inline std::uint16_t CarMigliaia = ','; ///< grouping separator, a 16-bit character code; 0 for none
inline bool SeparatoriOk = true;        ///< the check of the separators has not failed

/// A number to be shown, with the number of figures that its type is worth: 7 for a single, 15 for a double
/// or an integer. std::nullopt is the null value. Made implicitly of what the caller has in hand.
class NumeroMostrato {
public:
    NumeroMostrato(double valore) : valore_(valore) {} // NOLINT: conversion is the point
    NumeroMostrato(float valore) : valore_(double(valore)), singolo_(true) {} // NOLINT
    NumeroMostrato(Singolo valore) : NumeroMostrato(valore.Stretto()) {}      // NOLINT
    NumeroMostrato(std::nullopt_t) : nullo_(true) {}                          // NOLINT
    template <std::integral T>
    NumeroMostrato(T valore) : NumeroMostrato(static_cast<double>(valore)) {} // NOLINT
    template <typename T>
    NumeroMostrato(const std::optional<T>& valore) // NOLINT
        : NumeroMostrato(valore ? NumeroMostrato(*valore) : NumeroMostrato(std::nullopt)) {}

    /// False for a null value, an infinity or a NaN: these show as an empty text.
    [[nodiscard]] bool Mostrabile() const;
    [[nodiscard]] double Valore() const { return valore_; }
    /// The digits that a picture rounds: 15 figures of a double, which are free of the noise of its binary
    /// form, of a single the fewest that read back to it.
    [[nodiscard]] Decimale Cifre() const;
    /// The figures that the type is worth: 7 of a single, 15 of a double.
    [[nodiscard]] Decimale CifreTipo() const;

private:
    double valore_ = 0;
    bool singolo_ = false;
    bool nullo_ = false;
};

/// The number that a text of the screen begins with: grouping separators are left out, the first decimal
/// separator counts as such, blanks may stand in front, an exponent may follow; the first character that fits
/// nowhere ends it. No number gives 0; one too large gives an infinity.
double ValoreNumerico(std::string_view testo);

/// Result boxes, as a rule with 4 figures: a blank or "-", then the number to `nCifre` figures, grouped.
/// Integers are never cut, short numbers never padded, and below 1 the figures count from the separator.
std::string FormatoCifre(int nCifre, const NumeroMostrato& valore);

/// The same with powers of ten below 1: " 1.235E-03".
std::string FormatoCifreEsp(int nCifre, const NumeroMostrato& valore);

/// A blank or "-", then the grouped number to `nDec` decimals; a value that rounds to zero is " 0".
std::string FormatoDecimali(int nDec, const NumeroMostrato& valore);

/// A blank or "-", then mantissa and power of ten with nCar - 6 decimals. Below 6 the least width is told in
/// a message and the text is empty.
std::string FormatoEsponenziale(int nCar, const NumeroMostrato& valore);

/// Renders a picture such as "0.0##", "#,##0.00" or "#.000E+00" with the separators in force, rounding half
/// away from zero. 0 is a digit that always shows, # one that shows when there is something to show; a comma
/// between digits groups them by three; text before and after the digits stays. A minus goes in front of all,
/// unless only zeros show.
std::string Formato(std::string_view figura, const NumeroMostrato& valore);

/// Plain text for entry boxes: the figures of the type (15 or 7), no grouping, no power of ten, a zero in
/// front of the separator. ValoreNumerico reads it back.
std::string TestoPiano(const NumeroMostrato& valore);

/// Conversion to an integer, half to even: 2.5 is 2, 3.5 is 4. Outside the range, or for a NaN, throws
/// ErroreAritmetico.
std::int16_t A16Bit(double valore);
std::int32_t A32Bit(double valore);

/// A 16-bit character code as UTF-8; empty for 0.
std::string Utf8DaCodice(std::uint16_t codice);

/// The hidden text box through which the separators are tried out.
struct CasellaTesto {
    virtual ~CasellaTesto() = default;
    virtual void Nasconde() = 0;
    virtual void Testo(std::string_view testo) = 0;
    [[nodiscard]] virtual std::string Testo() const = 0;
};

/// What the system uses; 0 when it has none.
struct Separatori {
    char16_t decimale = u'.';
    char16_t migliaia = u',';
};

/// Takes over the system's separators and checks them, once at the start. Tells the user when they are equal,
/// when a number does not come back from the box, and, unless `silenzioso`, when they are point and comma.
/// `esito`, where given, receives SeparatoriOk.
void SeparatoriControlla(CasellaTesto& casella, const Separatori& sistema, bool silenzioso = false,
                         bool* esito = nullptr);

} // namespace sagomi
