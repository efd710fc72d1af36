#pragma once

#include <string>
#include <vector>

#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "report/Relazione.h"

/// How a report writes numbers: as the screens do.
namespace sagomi {

inline std::string Kilo(double N) { return Formato("0.0##", N_a_kN(N)); }             ///< force, in kN
inline std::string KiloMetri(double Nmm) { return Formato("0.0##", Nmm_a_kNm(Nmm)); } ///< moment, in kNm
inline std::string Metri(double mm) { return Formato("0.0##", mm_a_m(mm)); }          ///< length, in m
inline std::string Rapporto(double v) { return Formato("0.0###", v); }                ///< pure number
inline std::string Intero(double v) { return Formato("0", v); }                       ///< in formulas
inline std::string Piano(const NumeroMostrato& v) { return v.Mostrabile() ? TestoPiano(v) : std::string(); }

/// In brackets where it is negative, to stand behind a sign.
inline std::string ConSegno(const std::string& numero) {
    return numero.starts_with('-') ? '(' + numero + ')' : numero;
}

/// Four figures, without the blank in front.
inline std::string Cifre(const NumeroMostrato& v) {
    std::string testo = FormatoCifre(4, v);
    testo.erase(0, testo.find_first_not_of(' '));
    return testo;
}

/// Four figures to stand in a formula: without separators of thousands.
inline std::string InFormula(double v) {
    constexpr double mille = 1000;
    return v <= -mille || v >= mille ? Intero(v) : Cifre(v);
}

/// The steps of a chapter.
inline PassoRelazione Dato(std::string descrizione, std::string simbolo, std::string valore,
                           std::string unita = {}, std::string norma = {}) {
    return {.descrizione = std::move(descrizione),
            .simbolo = std::move(simbolo),
            .valore = std::move(valore),
            .unita = std::move(unita),
            .norma = std::move(norma)};
}

} // namespace sagomi
