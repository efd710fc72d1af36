#pragma once

#include <QByteArray>
#include <QWidget>

namespace sagomi {

struct VociSchermo;

/// What a main screen answers: the classes and the design resistances, with the buttons that tell how they
/// come about.
class PannelloRisultati : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QByteArray schermo READ NomeSchermo WRITE ImpostaSchermo)
public:
    explicit PannelloRisultati(QWidget* parent = nullptr);

    /// Builds the results of a main screen; to be set once.
    [[nodiscard]] QByteArray NomeSchermo() const { return schermo_; }
    void ImpostaSchermo(const QByteArray& nome);

    /// Shows a text in a result box; a name that the screen does not have throws std::out_of_range.
    void Mostra(const char* nome, const QString& testo);
    /// Empties every result, or those of one array of boxes ("TxtNbRd").
    void Svuota(const QString& array = {});

private:
    QWidget* CreaClassi(const VociSchermo& voci);
    QWidget* CreaResistenze(const VociSchermo& voci);

    QByteArray schermo_;
};

} // namespace sagomi
