#include "drawing/ui/StampaTesto.h"

#include "drawing/PagineTesto.h"
#include "drawing/ui/AnteprimaPagine.h"
#include "drawing/ui/ScegliDispositivo.h"

namespace sagomi {

bool StampaTesto(const std::vector<std::string>& righe, const QString& nome, QWidget* sopra, QString* esito,
                 double corpo) {
    PagineTesto pages(righe, corpo);
    return StampaPagine(
        nome, [&pages](Superficie& page, int number) { return pages.Pagina(page, number); }, sopra, esito);
}

void AnteprimaTesto(const std::vector<std::string>& righe, const QString& nome, QWidget* sopra,
                    double corpo) {
    PagineTesto pages(righe, corpo);
    AnteprimaPagine(
        nome,
        [&pages](QPrinter& printer) {
            StampaSu(printer, [&pages](Superficie& page, int number) { return pages.Pagina(page, number); });
        },
        sopra);
}

} // namespace sagomi
