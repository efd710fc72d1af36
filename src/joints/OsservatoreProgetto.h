#pragma once

#include <string_view>

namespace sagomi {

class Giunto;

/// Follows a search while it runs and can stop it. The joint it is shown is the search's own; nothing here
/// may throw.
class OsservatoreProgetto {
public:
    virtual ~OsservatoreProgetto() = default;

    /// Each candidate, computed.
    virtual void Candidato(const Giunto& giunto) { (void)giunto; }
    /// Each candidate that is better than all before, after Candidato; the table has its row.
    virtual void Miglioramento(const Giunto& giunto) { (void)giunto; }
    /// What a check would tell in a box.
    virtual void Avviso(std::string_view testo) { (void)testo; }
    /// Looked at after each candidate: true ends the search with the best so far.
    virtual bool InterrompiProgetto() { return false; }
};

} // namespace sagomi
