#pragma once

#include <QLabel>

namespace sagomi {

/// A label that paints the mark for "no limit", which the models and files hold as "¥", as an infinity sign,
/// and an ink that could not be read on its ground darker than the palette has it.
class EtichettaSimbolo : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace sagomi
