#pragma once

#include <QWidget>

namespace sagomi {

/// A round bracket as tall as its place in a formula, so that it can hold a fraction.
class Parentesi : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool destra READ Destra WRITE ImpostaDestra)
public:
    explicit Parentesi(QWidget* parent = nullptr);

    /// The closing bracket.
    [[nodiscard]] bool Destra() const { return destra_; }
    void ImpostaDestra(bool destra);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Dipinge();

    bool destra_ = false;
};

} // namespace sagomi
