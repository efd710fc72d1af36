#pragma once

#include <QWidget>

namespace sagomi {

/// The beam of a critical load: its supports, its load, and the height at which the load acts.
class DisegnoTrave : public QWidget {
    Q_OBJECT
public:
    explicit DisegnoTrave(QWidget* parent = nullptr);

    /// @param mensola      cantilever, else simply supported
    /// @param distribuito  the load is distributed
    /// @param quota        0 top flange, 1 centroid, 2 bottom flange
    void Mostra(bool mensola, bool distribuito, int quota);

    [[nodiscard]] QSize sizeHint() const override { return {190, 96}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {150, 84}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool mensola_ = false;
    bool distribuito_ = false;
    int quota_ = 0;
};

} // namespace sagomi
