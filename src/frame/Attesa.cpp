#include "frame/Attesa.h"

#include <utility>

namespace sagomi {

namespace {

PortaAttesa& Porta() {
    static PortaAttesa porta;
    return porta;
}

} // namespace

PortaAttesa CollegaAttesa(PortaAttesa porta) { return std::exchange(Porta(), std::move(porta)); }

bool Prosegue() { return !Porta() || Porta()(); }

} // namespace sagomi
