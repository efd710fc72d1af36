#pragma once

#include "frame/ui/RigaUtilizzo.h"

namespace sagomi {

struct Verdetto;

/// Place of the term that governs in a line of N, My and Mz; -1 where none does.
int TermineDi(const Verdetto& verdetto);

/// What stands beside the verdict on a section or a member.
class RigaVerdetto : public RigaUtilizzo {
    Q_OBJECT
public:
    using RigaUtilizzo::RigaUtilizzo;

    /// A verdict without a number leaves utilisation and reason empty.
    void Mostra(const Verdetto& verdetto);
};

} // namespace sagomi
