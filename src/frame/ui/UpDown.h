#pragma once

#include <QAbstractSpinBox>

namespace sagomi {

/// The little pair of step buttons: up and down, by mouse, by the arrow keys when it has the focus, or by
/// stepUp() and stepDown().
class UpDown : public QAbstractSpinBox {
    Q_OBJECT
public:
    explicit UpDown(QWidget* parent = nullptr);

    void stepBy(int steps) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void passo(bool su); ///< one step; true for up

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
    /// Repeats the step while the mouse is held down on this window.
    void timerEvent(QTimerEvent* event) override;
};

} // namespace sagomi
