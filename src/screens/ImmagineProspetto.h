#pragma once

#include <QWidget>

namespace sagomi {

/// The moment diagrams or load cases of a table of factors, one band for each, beside the rows of the table.
class ImmagineProspetto : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int prospetto READ Prospetto WRITE ImpostaProspetto)
public:
    explicit ImmagineProspetto(QWidget* parent = nullptr);

    /// 1 for table F.1.1 (moment diagrams), 2 for F.1.2 (load cases).
    [[nodiscard]] int Prospetto() const { return prospetto_; }
    void ImpostaProspetto(int prospetto);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int Fasce() const;
    void DisegnaFascia(class QPainter& painter, const QRectF& fascia, std::size_t i);
    int prospetto_ = 1;
};

} // namespace sagomi
