#pragma once

#include <vector>

#include "frame/Messaggi.h"

namespace sagomi {

/// While one lives, messages are kept aside instead of being shown; equal ones are kept once. At its end each
/// is told, in the order of its first arrival, to whoever was listening before: the user of a long job reads
/// a thing once and not for every step. Questions go through at once, since the job waits for their answer.
class RaccoltaMessaggi {
public:
    RaccoltaMessaggi();
    ~RaccoltaMessaggi();
    RaccoltaMessaggi(const RaccoltaMessaggi&) = delete;
    RaccoltaMessaggi& operator=(const RaccoltaMessaggi&) = delete;

    /// What has been kept so far; a job may drop what has become idle.
    std::vector<Messaggio> raccolti;

private:
    PortaMessaggi precedente_;
};

} // namespace sagomi
