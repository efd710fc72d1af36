#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace sagomi {

/// Whether an argument is an option of the toolkit of the windows, which takes them with one dash or two.
/// @return how many arguments behind it are its value, 0 or 1; nothing where it is no such option
std::optional<std::size_t> ValoriNelToolkit(std::string_view argomento);

} // namespace sagomi
