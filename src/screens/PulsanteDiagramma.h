#pragma once

#include <QAbstractButton>

#include <cstdint>

namespace sagomi {

/// A moment diagram to be chosen, by mouse or by keyboard: of a row of these one is down.
class PulsanteDiagramma : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(int pict READ Pict WRITE ImpostaPict)
public:
    explicit PulsanteDiagramma(QWidget* parent = nullptr);

    /// Shape that is shown, 1 to 6.
    [[nodiscard]] int Pict() const { return pict_; }
    void ImpostaPict(int pict);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool FrecciaFra(int key);
    void Dipinge();

    std::int16_t pict_ = 1;
};

} // namespace sagomi
