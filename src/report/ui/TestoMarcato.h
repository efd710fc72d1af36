#pragma once

#include <QFont>
#include <QList>
#include <QString>

class QPaintDevice;
class QPainter;
class QPointF;

namespace sagomi {

/// How a markup is set: words in one font, or a formula, whose single letters are italic.
enum class StileMarcato { Parole, Formula };

/// A text with sub- and superscripts, broken into lines at its blanks. The markup is that of
/// `PassoRelazione`; a letter with U+0305 behind it gets a bar above.
class TestoMarcato {
public:
    /// @param larghezza  of a line; 0 for one line of any length
    /// @param carta      what it is measured for [units of the device]
    TestoMarcato(const QString& markup, const QFont& carattere, StileMarcato stile, double larghezza,
                 const QPaintDevice* carta);

    [[nodiscard]] double Altezza() const;
    /// Of the longest line.
    [[nodiscard]] double Larghezza() const;
    [[nodiscard]] bool Vuoto() const { return righe_.isEmpty(); }

    /// Paints from the top left corner. Base lines of texts side by side agree, whatever their fonts.
    void Dipinge(QPainter& pittore, const QPointF& angolo) const;

private:
    enum class Quota { Riga, Pedice, Apice };
    /// A stretch in one font.
    struct Tratto {
        QString testo;
        Quota quota = Quota::Riga;
        bool corsivo = false, barra = false;
    };
    using Parola = QList<Tratto>;

    [[nodiscard]] QList<Parola> Parole(const QString& markup, StileMarcato stile) const;
    [[nodiscard]] QFont Carattere(const Tratto& t) const;
    [[nodiscard]] double Larghezza(const Tratto& t) const;
    [[nodiscard]] double Larghezza(const Parola& parola) const;
    void Spezza(const QList<Parola>& parole, double larghezza);
    double DipingeTratto(QPainter& pittore, const Tratto& t, QPointF base) const;
    [[nodiscard]] double Interlinea() const;
    [[nodiscard]] double Corpo() const;

    QFont carattere_;
    const QPaintDevice* carta_;
    QList<QList<Parola>> righe_;
};

} // namespace sagomi
