#pragma once

#include <memory>
#include <variant>

#include "sections/SezioneCorrente.h"

namespace sagomi {

/// The kinds of a reference, held by value and in the same order.
template <typename R> struct TipiPerValore;
template <typename... S> struct TipiPerValore<std::variant<std::monostate, std::shared_ptr<S>...>> {
    using Tipo = std::variant<S...>;
};

/// A section of any kind: one list of kinds, that of RiferimentoSezione.
using SezioneQualsiasi = TipiPerValore<RiferimentoSezione>::Tipo;

} // namespace sagomi
