#pragma once

#include <string>
#include <vector>

#include "choice/ConfrontoScelta.h"

namespace sagomi {

/// The screen that shows rows side by side, as the choice knows it.
class ConConfronto {
public:
    ConConfronto() = default;
    virtual ~ConConfronto() = default;
    ConConfronto(const ConConfronto&) = delete;
    ConConfronto& operator=(const ConConfronto&) = delete;

    /// Shows these rows from now on.
    /// @param note  what is to be said of them, beside the table
    virtual void Mostra(std::vector<Confrontato> righe, const std::vector<std::string>& note) = 0;
};

} // namespace sagomi
