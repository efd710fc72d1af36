#pragma once

#include <QWidget>

class QGridLayout;

namespace sagomi {

/// The tab of the analysis: design or check, its goal and limits, bolts, rows, stiffeners, Beta.
class PaginaProgetto : public QWidget {
    Q_OBJECT
public:
    explicit PaginaProgetto(QWidget* parent = nullptr);

private:
    QWidget* CreaAnalisi();
    QWidget* CreaAttesa();
    QWidget* CreaImpostazioni();
    void PosaLimiti(QGridLayout& grid);
};

} // namespace sagomi
