#pragma once

#include <QLabel>

namespace sagomi {

/// A label with true subscripts: a formula, or a word with its symbol behind it. In the markup a subscript
/// stands in braces ("χ β{A} A f{y} / γ{M1}"), a superscript in braces behind a caret ("W [mm^{3}]").
class EtichettaFormula : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString formula READ Formula WRITE ImpostaFormula)
    Q_PROPERTY(QString simbolo READ Simbolo WRITE ImpostaSimbolo)
public:
    explicit EtichettaFormula(QWidget* parent = nullptr);

    /// A formula in the place of the text, which becomes the markup without its signs.
    [[nodiscard]] QString Formula() const { return formula_; }
    void ImpostaFormula(const QString& markup);

    /// A symbol behind the text; the text does not hold it.
    [[nodiscard]] QString Simbolo() const { return simbolo_; }
    void ImpostaSimbolo(const QString& markup);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString Markup() const;

    QString formula_, simbolo_;
};

} // namespace sagomi
