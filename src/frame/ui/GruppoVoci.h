#pragma once

#include <QGroupBox>

#include <vector>

#include "frame/ui/Voce.h"

class QGridLayout;

namespace sagomi {

/// A room of entries or of results: captions and fields by a table.
class GruppoVoci : public QGroupBox {
    Q_OBJECT
public:
    explicit GruppoVoci(QWidget* parent = nullptr);

    /// Side by side, with the spare width behind.
    void InRiga(const std::vector<Voce>& voci);

    /// One below the other, and in columns where there are more than the rows hold.
    /// @param righe           rows of a column; 0 for as many as there are fields
    /// @param spazioColonne   between caption and field [px]
    /// @return the grid, for what stands beside the fields
    QGridLayout* InColonne(const std::vector<Voce>& voci, int righe = 0, int spazioColonne = 6);
};

} // namespace sagomi
