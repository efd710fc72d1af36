#pragma once

#include <string>
#include <string_view>

/// What a text of the screen looks like before ValoreNumerico reads it.
namespace sagomi {

/// Whether a text says one number by the locale and nothing else, so that it is read as it looks: an empty
/// text, or a sign, digits, a decimal separator, an exponent; group marks only before three digits, the first
/// behind one to three of them. Blanks around it do not count.
bool NumeroPulito(std::string_view testo);

/// The text with what word processors put into numbers turned into what is typed: a typographic minus becomes
/// "-"; blanks that do not break go, or become the group mark where the locale groups by one of them.
std::string NumeroRipulito(std::string_view testo);

} // namespace sagomi
