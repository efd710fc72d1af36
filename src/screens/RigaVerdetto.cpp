#include "screens/RigaVerdetto.h"

#include <cmath>

#include "sections/Verdetto.h"

namespace sagomi {

namespace {

QString Nome(TermineVerifica termine) {
    switch (termine) {
    case TermineVerifica::N:
        return QStringLiteral("N");
    case TermineVerifica::My:
        return QStringLiteral("My");
    case TermineVerifica::Mz:
        return QStringLiteral("Mz");
    case TermineVerifica::Nessuno:
        break;
    }
    return {};
}

} // namespace

int TermineDi(const Verdetto& verdetto) { return static_cast<int>(verdetto.governa) - 1; }

void RigaVerdetto::Mostra(const Verdetto& verdetto) {
    const double used =
        std::isfinite(verdetto.utilizzo) ? verdetto.utilizzo : std::numeric_limits<double>::quiet_NaN();
    RigaUtilizzo::Mostra(used, Nome(verdetto.governa), QString::fromStdString(verdetto.motivo));
}

} // namespace sagomi
