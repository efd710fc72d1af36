#pragma once

#include <QLabel>

namespace sagomi {

/// A label whose text leaves gaps of blanks ("N         [kN]", "W [mm  ]"): a subscript stands over the first
/// gap, or behind a text that has none, and a superscript over the last one.
class EtichettaPedice : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString pedice READ Pedice WRITE ImpostaPedice)
    Q_PROPERTY(QString apice READ Apice WRITE ImpostaApice)
public:
    explicit EtichettaPedice(QWidget* parent = nullptr);

    [[nodiscard]] QString Pedice() const { return pedice_->text(); }
    void ImpostaPedice(const QString& testo);

    [[nodiscard]] QString Apice() const { return apice_->text(); }
    void ImpostaApice(const QString& testo);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] int InizioPedice() const;
    [[nodiscard]] int InizioApice() const;
    [[nodiscard]] QSize Contenuto() const;
    void AdattaCorpo();
    void Dispone();
    QLabel* pedice_;
    QLabel* apice_;
};

} // namespace sagomi
