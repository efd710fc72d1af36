#include "frame/ui/ColonnaDecimali.h"

#include <QEvent>
#include <QGridLayout>
#include <QLineEdit>

#include <algorithm>

#include "frame/Numeri.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr int bordi = 14; ///< between the text of a box and its edges, both sides together [px]

/// Width of a number from its decimal separator on.
int Coda(const QLineEdit* box) {
    const auto at = box->text().lastIndexOf(QChar(static_cast<ushort>(CarDecimale)));
    return at < 0 ? 0 : box->fontMetrics().horizontalAdvance(box->text().mid(at));
}

/// Boxes of a column: arranged once for all that has changed in them, their texts as their widths and fonts.
class Colonna : public QObject {
public:
    explicit Colonna(const QList<QLineEdit*>& caselle) : QObject(caselle.front()), caselle_(caselle) {
        for (QLineEdit* box : caselle_) {
            Collega(box, &QLineEdit::textChanged, this, [this] { Chiede(); });
            box->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        return EventoProtetto([&] {
            if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
                Chiede();
            return QObject::eventFilter(object, event);
        });
    }

private:
    void Chiede() {
        if (chiesto_)
            return;
        chiesto_ = true;
        QMetaObject::invokeMethod(
            this, [this] { Dispone(); }, Qt::QueuedConnection); // before it is painted
    }

    void Dispone() {
        chiesto_ = false;
        int widest = 0;
        for (const QLineEdit* box : caselle_)
            widest = std::max(widest, Coda(box));
        for (QLineEdit* box : caselle_) {
            const int room = box->width() - bordi - box->fontMetrics().horizontalAdvance(box->text());
            const QMargins margins(0, 0, std::clamp(widest - Coda(box), 0, std::max(room, 0)), 0);
            if (box->textMargins() != margins)
                box->setTextMargins(margins);
        }
    }

    QList<QLineEdit*> caselle_;
    bool chiesto_ = false;
};

} // namespace

void AllineaDecimali(const QList<QLineEdit*>& colonna) {
    if (!colonna.isEmpty())
        new Colonna(colonna); // its first box owns it
}

void AllineaDecimali(const QGridLayout& griglia) {
    for (int column = 0; column < griglia.columnCount(); ++column) {
        QList<QLineEdit*> boxes;
        for (int row = 0; row < griglia.rowCount(); ++row)
            if (const QLayoutItem* item = griglia.itemAtPosition(row, column))
                if (auto* box = qobject_cast<QLineEdit*>(item->widget()); box != nullptr && box->isReadOnly())
                    boxes << box;
        AllineaDecimali(boxes);
    }
}

} // namespace sagomi
