#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "frame/Ripristino.h"
#include "frame/Singolo.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

/// The section in use, whichever kind it is, and what may be asked of a kind. A new kind of section is its
/// class, its place in RiferimentoSezione and its row of CapacitaDi; a kind that lacks the row, or whose
/// class does not keep it, does not compile.
namespace sagomi {

/// The section of the screen in use; empty before the first row.
using RiferimentoSezione = std::variant<std::monostate, std::shared_ptr<SezioneDoppioT>,
                                        std::shared_ptr<SezioneSagomoU>, std::shared_ptr<SezioneSagomoL>>;

inline RiferimentoSezione SezioneCorrente; ///< what every detail screen reads

inline const bool SezioneCorrenteSiSvuota =
    AggiungeRipristino([] { SezioneCorrente.emplace<std::monostate>(); });

/// What every kind has: name and material, depth and area, buckling, its drawing.
template <typename S>
concept Sagomo = std::copyable<S> && requires(S& s, Superficie* oggetto, std::string_view testo) {
    { s.fy } -> std::same_as<Singolo&>;
    { s.fu } -> std::same_as<Singolo&>;
    { s.h } -> std::same_as<Singolo&>;
    { s.Area } -> std::same_as<Singolo&>;
    { s.Designation } -> std::same_as<std::string&>;
    { s.TipoAcciaio } -> std::same_as<std::string&>;
    { s.ClasseCompressione } -> std::same_as<std::int16_t&>;
    { s.betaA() } -> std::convertible_to<double>;
    { s.CurvaInstabilita(testo) } -> std::convertible_to<std::string>;
    s.PlottaSezione(oggetto, testo, testo);
};

/// Buckling lengths about the axes of its legs or flanges.
template <typename S>
concept ConLunghezze = requires(S& s) {
    { s.L0y } -> std::same_as<Singolo&>;
    { s.L0z } -> std::same_as<Singolo&>;
    { s.LamdaY() } -> std::convertible_to<double>;
    { s.LamdaZ() } -> std::convertible_to<double>;
};

/// Besides these, a length for the minor principal axis: angles.
template <typename S>
concept ConLunghezzaV = ConLunghezze<S> && requires(S& s) {
    { s.L0v } -> std::same_as<Singolo&>;
    { s.LamdaV() } -> std::convertible_to<double>;
};

/// Bending resistances about both axes by class, under an axial force: double-T and channels.
template <typename S>
concept ConMomenti = requires(S& s) {
    { s.NSd } -> std::same_as<Singolo&>;
    { s.ClasseFlessioneY } -> std::same_as<std::int16_t&>;
    { s.ClasseFlessioneZ } -> std::same_as<std::int16_t&>;
    { s.ClassePressoFlessione } -> std::same_as<std::int16_t&>;
    { s.Ntrascurabile } -> std::convertible_to<double>;
    { s.McyRd } -> std::convertible_to<double>;
    { s.MczRd } -> std::convertible_to<double>;
    requires std::convertible_to<decltype(s.Wply), double> && std::convertible_to<decltype(s.Wplz), double>;
    requires std::convertible_to<decltype(s.Wely), double> && std::convertible_to<decltype(s.Welz), double>;
    requires std::convertible_to<decltype(s.WyEff), double> && std::convertible_to<decltype(s.WzEff), double>;
};

/// A web and flanges, each with its class and limits in bending and in compression: double-T and channels.
template <typename S>
concept ConAnimaEAli = requires(S& s) {
    { s.b } -> std::same_as<Singolo&>;
    { s.tw } -> std::same_as<Singolo&>;
    { s.tf } -> std::same_as<Singolo&>;
    { s.c } -> std::convertible_to<double>;
    { s.d } -> std::convertible_to<double>;
    { s.SnellWeb() } -> std::convertible_to<double>;
    { s.SnellAla() } -> std::convertible_to<double>;
    requires std::same_as<decltype(s.ClasseWebF), std::int16_t>;
    requires std::same_as<decltype(s.ClasseWebC), std::int16_t>;
    requires std::same_as<decltype(s.ClasseAlaF), std::int16_t>;
    requires std::same_as<decltype(s.ClasseAlaC), std::int16_t>;
    requires std::convertible_to<decltype((s.Limite0WebF)), std::string>;
    requires std::convertible_to<decltype((s.Limite1WebF)), std::string>;
    requires std::convertible_to<decltype((s.Limite0WebC)), std::string>;
    requires std::convertible_to<decltype((s.Limite1WebC)), std::string>;
    requires std::convertible_to<decltype((s.Limite0AlaF)), std::string>;
    requires std::convertible_to<decltype((s.Limite1AlaF)), std::string>;
    requires std::convertible_to<decltype((s.Limite0AlaC)), std::string>;
    requires std::convertible_to<decltype((s.Limite1AlaC)), std::string>;
};

/// Flanges that may differ, the lower one with a class of its own: double-T.
template <typename S>
concept ConAliDiverse = ConAnimaEAli<S> && requires(S& s) {
    { s.SaldataAsimm } -> std::convertible_to<bool>;
    { s.cAlaInf } -> std::convertible_to<double>;
    { s.tAlaInf } -> std::convertible_to<double>;
    { s.SnellAlaInf() } -> std::convertible_to<double>;
    requires std::same_as<decltype(s.ClasseAlaInfF), std::int16_t>;
    requires std::same_as<decltype(s.ClasseAlaInfC), std::int16_t>;
};

/// Effective outlines of class 4 in compression and in bending, one of which can be asked for in a drawing:
/// double-T and channels.
template <typename S>
concept ConContorniEfficaci = requires(S& s) {
    { s.SezioneComp4 } -> std::same_as<std::shared_ptr<SezioneGenerica>&>;
    { s.SezioneWy4 } -> std::same_as<std::shared_ptr<SezioneGenerica>&>;
    { s.SezioneWz4 } -> std::same_as<std::shared_ptr<SezioneGenerica>&>;
    { s.SezioneEfficaceDaPlottare } -> std::same_as<std::int16_t&>;
};

/// What a kind of section has of the above, yes and no.
struct Capacita {
    bool lunghezze, lunghezzaV, momenti, animaEAli, aliDiverse, contorniEfficaci;

    bool operator==(const Capacita&) const = default;
};

/// The row of a kind; there is none but those written here.
template <typename S> struct CapacitaDi;

template <> struct CapacitaDi<SezioneDoppioT> {
    static constexpr Capacita dichiarate{.lunghezze = true,
                                         .lunghezzaV = false,
                                         .momenti = true,
                                         .animaEAli = true,
                                         .aliDiverse = true,
                                         .contorniEfficaci = true};
};

template <> struct CapacitaDi<SezioneSagomoU> {
    static constexpr Capacita dichiarate{.lunghezze = true,
                                         .lunghezzaV = false,
                                         .momenti = true,
                                         .animaEAli = true,
                                         .aliDiverse = false,
                                         .contorniEfficaci = true};
};

template <> struct CapacitaDi<SezioneSagomoL> {
    static constexpr Capacita dichiarate{.lunghezze = true,
                                         .lunghezzaV = true,
                                         .momenti = false,
                                         .animaEAli = false,
                                         .aliDiverse = false,
                                         .contorniEfficaci = false};
};

/// What the class of a kind really has.
template <typename S>
inline constexpr Capacita capacitaVere{.lunghezze = ConLunghezze<S>,
                                       .lunghezzaV = ConLunghezzaV<S>,
                                       .momenti = ConMomenti<S>,
                                       .animaEAli = ConAnimaEAli<S>,
                                       .aliDiverse = ConAliDiverse<S>,
                                       .contorniEfficaci = ConContorniEfficaci<S>};

/// A kind keeps its row: each concept holds where the row says so, and nowhere else.
template <Sagomo S> consteval bool Mantiene() {
    constexpr Capacita detta = CapacitaDi<S>::dichiarate;
    constexpr Capacita vera = capacitaVere<S>;
    static_assert(detta.lunghezze == vera.lunghezze);
    static_assert(detta.lunghezzaV == vera.lunghezzaV);
    static_assert(detta.momenti == vera.momenti);
    static_assert(detta.animaEAli == vera.animaEAli);
    static_assert(detta.aliDiverse == vera.aliDiverse);
    static_assert(detta.contorniEfficaci == vera.contorniEfficaci);
    return detta == vera;
}

/// Every kind that a reference may hold keeps its row.
template <typename... S>
consteval bool Mantengono(const std::variant<std::monostate, std::shared_ptr<S>...>*) {
    return (Mantiene<S>() && ...);
}
static_assert(Mantengono(static_cast<const RiferimentoSezione*>(nullptr)));

/// Runs a piece of work on a section of any kind that it takes. A generic lambda takes every kind; one whose
/// parameter names a concept (const ConMomenti auto& s) takes the kinds that have it. One that takes no kind
/// at all does not compile.
/// @param f            takes a reference to a section
/// @param riferimento  the section, as a rule the one in use
/// @return whether f has run: false without a section, or with one of a kind that f does not take
template <typename F, typename... S>
bool SullaSezione(F&& f, const std::variant<std::monostate, std::shared_ptr<S>...>& riferimento) {
    static_assert((std::invocable<F&, S&> || ...), "no kind of section fits");
    return std::visit(
        [&f](const auto& sezione) {
            if constexpr (requires { f(*sezione); }) {
                if (sezione)
                    f(*sezione);
                return sezione != nullptr;
            } else
                return false;
        },
        riferimento);
}

/// SullaSezione on the section in use.
template <typename F> bool SullaSezioneInUso(F&& f) { return SullaSezione(f, SezioneCorrente); }

/// The section in use where it is of kind T, else nullptr.
/// @param riferimento  another section, kept from an earlier row
template <Sagomo T> T* SezioneInUso(const RiferimentoSezione& riferimento = SezioneCorrente) {
    const auto* sezione = std::get_if<std::shared_ptr<T>>(&riferimento);
    return sezione == nullptr ? nullptr : sezione->get();
}

} // namespace sagomi
