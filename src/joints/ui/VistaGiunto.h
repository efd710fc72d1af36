#pragma once

#include <memory>

#include "drawing/ui/ImmagineDisegno.h"
#include "joints/ComponentiGiunto.h"

namespace sagomi {

class Nodo;
class Giunto;
struct TracciatoNodo;

/// The joint in sight while it is worked on: side view above, front view of the plate below, to scale, with
/// what governs hatched in red and the limit that an entry breaks as a dimension in red. What cannot be drawn
/// yet is named. A click on a component tells it; so do the arrow keys and Enter, which go from one component
/// to the next. Printed, saved and copied by its context menu like every picture.
class VistaGiunto : public ImmagineDisegno {
    Q_OBJECT
public:
    explicit VistaGiunto(QWidget* parent = nullptr);

    /// Shows a joint as it is now, in whatever state: node and joint are copied.
    /// @param giunto  null for the current one of the node
    void Mostra(const Nodo& nodo, const Giunto* giunto, const EvidenzaGiunto& evidenza);

    /// The component at a point of the widget.
    [[nodiscard]] ComponenteFila Componente(const QPointF& punto) const;
    /// The component that the keys have gone to; marked by a frame.
    [[nodiscard]] ComponenteGiunto Scelto() const { return scelto_; }

signals:
    void ComponenteScelto(sagomi::ComponenteGiunto componente);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void Passa(int passi);

    std::shared_ptr<TracciatoNodo> tracciato_; ///< where the components lie, since the last painting
    ComponenteGiunto scelto_ = ComponenteGiunto::Nessuno;
};

} // namespace sagomi
