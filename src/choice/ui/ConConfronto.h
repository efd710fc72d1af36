#pragma once

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
    virtual void Mostra(std::vector<Confrontato> righe) = 0;
};

} // namespace sagomi
