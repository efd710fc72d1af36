#pragma once

#include <QWidget>

namespace sagomi {

/// What the picture of a bolted plate shows [mm].
struct ForaturaDisegnata {
    double d = 0;   ///< bolt
    double do_ = 0; ///< hole
    double e1 = 0;  ///< end distance, in the direction of the load
    double p1 = 0;  ///< pitch in the direction of the load
    double e2 = 0;  ///< edge distance, across the load
    double p2 = 0;  ///< pitch across the load
};

/// Two rows of two bolts at the end of a plate, to scale, with the names of the distances and the direction
/// of the load: a vector drawing in two line weights on the palette's colours, crisp at every scale.
class DisegnoForatura : public QWidget {
    Q_OBJECT
public:
    explicit DisegnoForatura(QWidget* parent = nullptr);

    /// A distance that is not above 0 clears the picture.
    void Mostra(const ForaturaDisegnata& foratura);
    [[nodiscard]] const ForaturaDisegnata& Mostrata() const { return foratura_; }

    [[nodiscard]] QSize sizeHint() const override { return {260, 150}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {180, 130}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ForaturaDisegnata foratura_;
};

} // namespace sagomi
