#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QPointF>
#include <QString>

#include <functional>

class QPaintDevice;
class QPainter;

namespace sagomi {

struct CapitoloRelazione;
struct PassoRelazione;
struct Relazione;
struct VerdettoRelazione;

/// Fonts, inks and measures of a report on a device.
struct StileRelazione {
    explicit StileRelazione(const QPaintDevice& carta);

    /// Millimetres in units of the device.
    [[nodiscard]] double mm(double millimetri) const { return millimetri * unita; }

    const QPaintDevice* carta;
    double unita;     ///< one millimetre
    double larghezza; ///< of what is written
    QFont testo, grassetto, nota, titolo, capitolo, formula;
    QColor inchiostro, grigio, filo, accento, passa, nonPassa;
};

/// A piece of a page that is not broken.
struct BloccoRelazione {
    double altezza = 0;
    bool conIlSeguente = false; ///< does not stand alone at the foot of a page
    std::function<void(QPainter& pittore, QPointF angolo)> dipinge;
};
using Blocchi = QList<BloccoRelazione>;

/// All pieces of a report, in order: title, drawing beside the verdicts, chapters.
Blocchi BlocchiDi(const Relazione& relazione, const StileRelazione& stile);

} // namespace sagomi
