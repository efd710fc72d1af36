#pragma once

#include <utility>

#include "sections/SezioneCorrente.h"

namespace sagomi {

/// While one lives, a section is the one in use; the one before comes back at its end.
class SezioneInForza {
public:
    SezioneInForza() : prima_(SezioneCorrente) {}
    explicit SezioneInForza(RiferimentoSezione sezione) : SezioneInForza() {
        SezioneCorrente = std::move(sezione);
    }
    ~SezioneInForza() { SezioneCorrente = std::move(prima_); }
    SezioneInForza(const SezioneInForza&) = delete;
    SezioneInForza& operator=(const SezioneInForza&) = delete;

private:
    RiferimentoSezione prima_;
};

} // namespace sagomi
