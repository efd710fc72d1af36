#pragma once

#include <QWidget>

namespace sagomi {

/// The tab of the node: its description and kind, its sections with their actions.
class PaginaDati : public QWidget {
    Q_OBJECT
public:
    explicit PaginaDati(QWidget* parent = nullptr);

private:
    QWidget* CreaNodo();
    QWidget* CreaSagomi();
};

} // namespace sagomi
