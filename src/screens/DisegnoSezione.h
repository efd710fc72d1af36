#pragma once

#include <QPolygonF>
#include <QWidget>

namespace sagomi {

/// What the picture of a double-T section shows: its outline and the names of its dimensions.
struct SagomaDisegnata {
    QPolygonF contorno; ///< closed outline [mm], y upwards
    double h = 0;       ///< overall height [mm]
    double b = 0;       ///< flange width [mm]
    double tw = 0;      ///< web thickness [mm]
    double tf = 0;      ///< thickness of the upper flange [mm]
    double raggio = 0;  ///< root radius or fillet [mm]
    double yG = 0;      ///< centroid above the bottom [mm]
    QString nomeRaggio; ///< "r1" or "r"
};

/// The picture of the section in hand, to its proportions, with its dimension names: a vector drawing in two
/// line weights on the palette's colours, crisp at every scale.
class DisegnoSezione : public QWidget {
    Q_OBJECT
public:
    explicit DisegnoSezione(QWidget* parent = nullptr);

    /// An empty outline clears the picture.
    void Mostra(const SagomaDisegnata& sagoma);

    [[nodiscard]] QSize sizeHint() const override { return {200, 230}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {125, 170}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    SagomaDisegnata sagoma_;
};

} // namespace sagomi
