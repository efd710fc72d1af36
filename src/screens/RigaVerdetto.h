#pragma once

#include "frame/ui/RigaUtilizzo.h"

namespace sagomi {

struct Verdetto;

/// What stands beside the verdict on a section or a member.
class RigaVerdetto : public RigaUtilizzo {
    Q_OBJECT
public:
    using RigaUtilizzo::RigaUtilizzo;

    /// A verdict without a number leaves utilisation and reason empty.
    void Mostra(const Verdetto& verdetto);
};

} // namespace sagomi
