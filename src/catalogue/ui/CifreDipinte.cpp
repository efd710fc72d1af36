#include "catalogue/ui/CifreDipinte.h"

#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>

namespace sagomi {

namespace {

constexpr QChar nessuno;

bool Cifra(QChar c) { return c >= u'0' && c <= u'9'; }

/// What numbers are written with; everything else may join with its neighbours in ways of its own.
bool DiNumero(QChar c) {
    return Cifra(c) || c == u'.' || c == u',' || c == u'-' || c == u'\'' || c == u' ' || c == u'\u00A0' ||
           c == u'\u202F';
}

/// One line without a width, as the style lays out a cell.
void Stende(QTextLayout& layout) {
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

} // namespace

void CifreDipinte::CambiaFont(const QFont& font) {
    font_ = font;
    passi_.clear();
    QTextLayout layout(QStringLiteral("0"), font);
    Stende(layout);
    altezza_ = layout.lineAt(0).height();
    base_ = layout.lineAt(0).ascent();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    glifi_.setRawFont(runs.isEmpty() ? QRawFont() : runs.front().rawFont());
}

CifreDipinte::Passo CifreDipinte::Misura(QChar questo, QChar dopo) const {
    const QString text = dopo == nessuno ? QString(questo) : QString(questo) + dopo;
    QTextLayout layout(text, *font_);
    Stende(layout);
    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (runs.size() != 1 || runs.front().glyphIndexes().size() != text.size() ||
        runs.front().rawFont() != glifi_.rawFont())
        return {};
    const QList<QPointF> places = runs.front().positions();
    const double next = text.size() > 1 ? places[1].x() : layout.lineAt(0).horizontalAdvance();
    return {runs.front().glyphIndexes().front(), next, true};
}

const CifreDipinte::Passo& CifreDipinte::PassoFra(QChar questo, QChar dopo) {
    const quint32 key = (quint32(questo.unicode()) << 16) | dopo.unicode();
    auto found = passi_.find(key);
    if (found == passi_.end())
        found = passi_.insert(key, Misura(questo, dopo));
    return *found;
}

bool CifreDipinte::Compone(const QFont& font, const QString& testo) {
    if (!std::all_of(testo.begin(), testo.end(), DiNumero))
        return false;
    if (!font_ || (!font.isCopyOf(*font_) && font != *font_))
        CambiaFont(font);
    indici_.clear();
    posti_.clear();
    larghezza_ = 0;
    for (qsizetype i = 0; i < testo.size(); ++i) {
        const Passo& step = PassoFra(testo[i], i + 1 < testo.size() ? testo[i + 1] : nessuno);
        if (!step.noto)
            return false;
        indici_.append(step.glifo);
        posti_.append({larghezza_, 0});
        larghezza_ += step.avanti;
    }
    return !indici_.isEmpty();
}

void CifreDipinte::Dipinge(QPainter& painter, const QRect& room) {
    glifi_.setGlyphIndexes(indici_);
    glifi_.setPositions(posti_);
    const int top = room.top() + room.height() / 2 - static_cast<int>(altezza_) / 2; // as styles halve
    painter.drawGlyphRun({room.left() + room.width() - larghezza_, top + base_}, glifi_);
}

} // namespace sagomi
