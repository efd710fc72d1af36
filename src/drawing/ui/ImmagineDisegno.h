#pragma once

#include <QWidget>

#include "drawing/Disegno.h"

class QPainter;

namespace sagomi {

/// A small picture that stands beside the figures of a screen: shows a drawing and offers it to the printer,
/// files, the clipboard, the CAD program and the preview by its context menu, which the menu key opens where
/// the picture has the focus.
class ImmagineDisegno : public QWidget {
    Q_OBJECT
public:
    explicit ImmagineDisegno(QWidget* parent = nullptr);

    /// One that draws nothing clears the picture; its sizes count all the same.
    void Mostra(Disegno disegno);
    [[nodiscard]] const Disegno& Mostrato() const { return disegno_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    Disegno disegno_;
};

/// Paints a drawing over the whole of a widget, in its font and palette. False when it failed, which is told.
bool DipingeDisegno(QPainter& pittore, QWidget& widget, const Disegno& disegno);

} // namespace sagomi
