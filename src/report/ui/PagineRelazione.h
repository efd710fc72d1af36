#pragma once

#include <QList>

#include "report/Relazione.h"
#include "report/ui/BlocchiRelazione.h"

class QPainter;
class QPaintDevice;

namespace sagomi {

/// A report laid out on pages A4: each has a head with project, object, date, program and its number.
class PagineRelazione {
public:
    /// @param carta  in use until the last page is painted
    PagineRelazione(const Relazione& relazione, const QPaintDevice& carta);
    PagineRelazione(const PagineRelazione&) = delete;
    PagineRelazione& operator=(const PagineRelazione&) = delete;

    [[nodiscard]] int Numero() const { return static_cast<int>(pagine_.size()); }
    /// Paints a page, counted from 0, on a painter whose origin is the corner of the paper.
    void Dipinge(QPainter& pittore, int pagina) const;

private:
    void Impagina();
    void Testata(QPainter& pittore, int pagina) const;
    [[nodiscard]] double AltezzaGruppo(qsizetype da) const;

    Relazione relazione_;
    StileRelazione stile_;
    Blocchi blocchi_;
    QList<QList<qsizetype>> pagine_; ///< pieces of each
};

} // namespace sagomi
