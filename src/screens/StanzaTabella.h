#pragma once

#include <QWidget>

namespace sagomi {

class GrigliaCatalogo;

/// The room of a table: the table ends with a whole row, what is left below looks like the window.
class StanzaTabella : public QWidget {
    Q_OBJECT
public:
    explicit StanzaTabella(GrigliaCatalogo* tabella, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void Posa();

    GrigliaCatalogo* tabella_;
};

} // namespace sagomi
