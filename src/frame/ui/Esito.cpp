#include "frame/ui/Esito.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>

#include <cmath>
#include <limits>

#include "frame/ui/Annunci.h"
#include "frame/ui/Colori.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

enum class Risalto { Niente, Passa, NonPassa, Governa };

QPalette Colori(Risalto risalto, QPalette colours) {
    const QPalette plain = QApplication::palette();
    const bool dark = Scuro(plain.color(QPalette::Base));
    if (risalto == Risalto::Governa) {
        colours = QPalette();
        colours.setColor(QPalette::WindowText, RossoSu(plain.color(QPalette::Window)));
    } else if (risalto != Risalto::Niente) {
        const QColor ground = dark ? plain.color(QPalette::Base) : QColor(Qt::white);
        const QColor ink = dark ? plain.color(QPalette::Text) : QColor(Qt::black);
        colours.setColor(QPalette::Window, ground);
        colours.setColor(QPalette::WindowText, risalto == Risalto::NonPassa ? RossoSu(ground) : ink);
    }
    return colours;
}

/// Keeps a label in the colours of its meaning, whatever palette comes.
class Tinta : public QObject {
public:
    static void Su(QLabel* label, Risalto risalto) {
        auto* tint = dynamic_cast<Tinta*>(
            label->findChild<QObject*>(QStringLiteral("tinta"), Qt::FindDirectChildrenOnly));
        if (tint == nullptr)
            tint = new Tinta(label);
        tint->risalto_ = risalto;
        tint->Colora();
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        EventoProtetto([this, event] {
            if (event->type() == QEvent::ApplicationPaletteChange)
                Colora();
        });
        return QObject::eventFilter(object, event);
    }

private:
    explicit Tinta(QLabel* label) : QObject(label), etichetta_(label) {
        setObjectName(QStringLiteral("tinta"));
        label->installEventFilter(this);
    }
    void Colora() { etichetta_->setPalette(Colori(risalto_, etichetta_->palette())); }

    QLabel* etichetta_;
    Risalto risalto_ = Risalto::Niente;
};

} // namespace

void MostraEsito(QLabel* etichetta, double valore) {
    const QString before = etichetta->text();
    const bool none = std::isnan(valore) || valore == -std::numeric_limits<double>::infinity();
    const bool fails = valore > 1;
    if (!none)
        Tinta::Su(etichetta, fails ? Risalto::NonPassa : Risalto::Passa);
    etichetta->setAutoFillBackground(!none);
    etichetta->setText(none ? QString() : fails ? QStringLiteral("NO") : QStringLiteral("OK"));
    if (etichetta->text() != before && etichetta->isVisible())
        Annuncia(*etichetta, etichetta->text());
}

void MostraGoverna(QLabel* etichetta, bool governa) {
    if (!governa)
        etichetta->setPalette(QPalette());
    Tinta::Su(etichetta, governa ? Risalto::Governa : Risalto::Niente);
    QFont font = etichetta->font();
    font.setBold(governa);
    etichetta->setFont(font);
}

} // namespace sagomi
