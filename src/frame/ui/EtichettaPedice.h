#pragma once

#include <QLabel>

namespace sagomi {

/// A label whose text leaves a gap of blanks ("N         [kN]"), with a subscript standing over the gap.
class EtichettaPedice : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString pedice READ Pedice WRITE ImpostaPedice)
public:
    explicit EtichettaPedice(QWidget* parent = nullptr);

    [[nodiscard]] QString Pedice() const { return pedice_->text(); }
    void ImpostaPedice(const QString& testo);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Disponi();
    QLabel* pedice_;
};

} // namespace sagomi
