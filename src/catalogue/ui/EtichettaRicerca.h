#pragma once

#include <QLabel>
#include <QTimer>

namespace sagomi {

/// What is being typed to find a row, in the lower left corner of the table; goes by itself.
class EtichettaRicerca : public QLabel {
    Q_OBJECT
public:
    explicit EtichettaRicerca(QWidget* tabella);

    /// @param trovato  whether a row begins so
    void Mostra(const QString& testo, bool trovato);

private:
    QTimer fine_;
};

} // namespace sagomi
