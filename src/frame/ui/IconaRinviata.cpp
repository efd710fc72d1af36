#include "frame/ui/IconaRinviata.h"

#include <QIconEngine>
#include <QPixmap>

#include <utility>

namespace sagomi {

namespace {

class Rinviata : public QIconEngine {
public:
    explicit Rinviata(std::function<QIcon()> crea) : crea_(std::move(crea)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        Icona().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return Icona().pixmap(size, 1, mode, state);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override {
        return Icona().pixmap(size / scale, scale, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return Icona().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return Icona().availableSizes(mode, state);
    }
    bool isNull() override { return Icona().isNull(); }
    [[nodiscard]] QIconEngine* clone() const override { return new Rinviata(*this); }

private:
    const QIcon& Icona() {
        if (crea_)
            icona_ = std::exchange(crea_, nullptr)();
        return icona_;
    }

    std::function<QIcon()> crea_;
    QIcon icona_;
};

} // namespace

QIcon IconaRinviata(std::function<QIcon()> crea) { return QIcon(new Rinviata(std::move(crea))); }

} // namespace sagomi
