#pragma once

#include <QWidget>

namespace sagomi {

/// The tab of what is typed in a check and found in a design: bolt and plate, with the least and the greatest
/// value of each beside it.
class PaginaParametri : public QWidget {
    Q_OBJECT
public:
    explicit PaginaParametri(QWidget* parent = nullptr);
};

} // namespace sagomi
