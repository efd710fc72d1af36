#pragma once

#include <string>
#include <vector>

#include "choice/ui/ConConfronto.h"
#include "frame/ui/Schermo.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace sagomi {

class ImmagineDisegno;

/// Rows of a choice side by side: their outlines to one scale, their values, and how the others differ from
/// the first.
class FrmConfronto : public Schermo, public ConConfronto {
    Q_OBJECT
public:
    FrmConfronto();

    void Mostra(std::vector<Confrontato> righe, const std::vector<std::string>& note) override;

private:
    void Compone();
    void RiempieTabella();
    void Copia() const;

    std::vector<Confrontato> righe_;
    ImmagineDisegno* disegno_ = nullptr;
    QTableWidget* tabella_ = nullptr;
    QLabel* note_ = nullptr;
    QPushButton* copia_ = nullptr;
};

} // namespace sagomi
