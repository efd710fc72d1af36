#pragma once

#include <QList>

#include "frame/ui/EtichettaRisultato.h"

namespace sagomi {

/// The values of a formula in one text, "a + b = c", to be read as a whole; each piece is painted under its
/// symbol.
class EtichettaValori : public EtichettaRisultato {
    Q_OBJECT
public:
    explicit EtichettaValori(QWidget* parent = nullptr);

    /// Siblings above the label: the symbol of each term, last the one behind the sum, where the sum begins.
    void Sotto(const QList<QWidget*>& simboli) { simboli_ = simboli; }

    /// Marks the term that governs: bold, its symbol too, and named in the description.
    /// @param termine  from 0; -1 for none
    /// @param nome     what a screen reader says of it
    void Evidenzia(int termine, const QString& nome = {});

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int Inizio(const QWidget* simbolo) const { return simbolo->x() - x(); }
    void Dipinge();

    QList<QWidget*> simboli_;
    int governa_ = -1;
};

} // namespace sagomi
