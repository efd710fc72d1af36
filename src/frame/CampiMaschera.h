#pragma once

#include <string>
#include <string_view>

namespace sagomi {

/// The text fields of a screen, as the mechanics may know them: by the name of the control and, for the
/// elements of a control array, by index.
class CampiMaschera {
public:
    static constexpr int campoSolo = -1; ///< index of a control that is no array

    virtual ~CampiMaschera() = default;
    [[nodiscard]] virtual std::string Testo(std::string_view controllo, int indice) const = 0;
    virtual void Testo(std::string_view controllo, int indice, std::string_view testo) = 0;
};

} // namespace sagomi
