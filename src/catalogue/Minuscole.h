#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace sagomi {

/// ASCII letters small, as the names of sheets, tables and fields are compared.
inline std::string Minuscole(std::string_view testo) {
    std::string m(testo);
    std::ranges::transform(m, m.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return m;
}

} // namespace sagomi
