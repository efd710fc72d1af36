#pragma once

#include <QWidget>

#include <functional>

#include "drawing/ui/SuperficieSchermo.h"

namespace sagomi {

/// The window of a preview: shows a drawing that is drawn anew at each painting, so it is crisp at every
/// magnification. The wheel zooms at the pointer, dragging moves, a double click shows all of it again; with
/// the keys + and - zoom, the arrows move, Home fits.
class AreaDisegno : public QWidget {
    Q_OBJECT
public:
    using Pittore = std::function<void(Superficie&)>;

    explicit AreaDisegno(QWidget* parent = nullptr);

    /// The painter of the picture; an empty one clears it. The view stays.
    void Mostra(Pittore pittore);

    void Adatta();
    /// Magnifies so that the point under `intorno` [pixels] stays where it is.
    void Ingrandisce(double fattore, const QPointF& intorno);
    void Ingrandisce(double fattore) { Ingrandisce(fattore, rect().center()); }

    [[nodiscard]] const VistaSchermo& Vista() const { return vista_; }

    [[nodiscard]] QSize sizeHint() const override { return {640, 520}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {240, 200}; }

signals:
    void vistaCambiata(double zoom);

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Sposta(const QPointF& passo);
    void Tasto(QKeyEvent* event);

    Pittore pittore_;
    VistaSchermo vista_;
    QPointF presa_; ///< where the drag is
    bool trascina_ = false;
};

} // namespace sagomi
