#pragma once

#include <string>
#include <utility>
#include <vector>

namespace sagomi {

class Superficie;

/// Font of printed lists: its characters are all of one width, so blanks line up.
inline constexpr const char* carattereElenchi = "Courier New";

inline constexpr double corpoElenchi = 10; ///< [points]

/// Lines of text (UTF-8) on pages of paper, with margins. A line longer than the page is wide goes
/// on below.
class PagineTesto {
public:
    explicit PagineTesto(std::vector<std::string> righe, double corpo = corpoElenchi)
        : righe_(std::move(righe)), corpo_(corpo) {}

    /// Prints a page, in the order of the pages; page 0 begins anew.
    /// @return whether another one follows
    bool Pagina(Superficie& foglio, int numero);

private:
    [[nodiscard]] std::vector<std::string> Spezzate(const Superficie& foglio, double larghezza) const;

    std::vector<std::string> righe_;
    double corpo_;                       ///< [points]
    std::vector<std::string> sulFoglio_; ///< cut to the width of the page
    std::size_t prossima_ = 0;
};

} // namespace sagomi
