#include "report/ui/TestoMarcato.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace sagomi {

namespace {

constexpr double corpoPiccolo = 0.7; ///< of sub- and superscripts against the text
constexpr double calo = 0.2;         ///< of a subscript, in bodies of the font
constexpr double salita = 0.38;      ///< of a superscript
constexpr double distacco = 0.06;    ///< around both
constexpr double interlinea = 1.35;  ///< from line to line
constexpr double primaBase = 9.5;    ///< of the first line of smaller fonts, below the corner [pt]
constexpr double puntiPollice = 72;
constexpr QChar barraSopra(0x0305);

bool Lettera(QChar c) { return c.isLetter() && c != QChar(0x221A); }

} // namespace

TestoMarcato::TestoMarcato(const QString& markup, const QFont& carattere, StileMarcato stile,
                           double larghezza, const QPaintDevice* carta)
    : carattere_(carattere), carta_(carta) {
    for (const QString& line : markup.split(u'\n'))
        if (!line.trimmed().isEmpty())
            Spezza(Parole(line.trimmed(), stile), larghezza);
}

/// Words end at blanks of the line itself; a subscript with a blank stays whole.
QList<TestoMarcato::Parola> TestoMarcato::Parole(const QString& markup, StileMarcato stile) const {
    QList<Parola> words{{}};
    Quota at = Quota::Riga;
    const auto add = [&](QChar c) {
        const bool letter = stile == StileMarcato::Formula && at == Quota::Riga && Lettera(c);
        Parola& word = words.last();
        if (word.isEmpty() || word.last().quota != at || word.last().corsivo != letter || word.last().barra)
            word.append({QString(), at, letter});
        word.last().testo += c;
    };
    for (qsizetype i = 0; i < markup.size(); ++i) {
        const QChar c = markup[i];
        if (c == u'^' && i + 1 < markup.size() && markup[i + 1] == u'{') {
            at = Quota::Apice;
            ++i;
        } else if (c == u'{') {
            at = Quota::Pedice;
        } else if (c == u'}') {
            at = Quota::Riga;
        } else if (c == barraSopra && !words.last().isEmpty()) {
            words.last().last().barra = true;
        } else if (c == u' ' && at == Quota::Riga) {
            if (!words.last().isEmpty())
                words.append(Parola());
        } else {
            add(c);
        }
    }
    if (words.last().isEmpty())
        words.removeLast();
    // Several letters in a formula are a word or a unit: "min", "mm".
    for (Parola& word : words)
        for (Tratto& t : word)
            t.corsivo = t.corsivo && t.testo.size() == 1;
    return words;
}

QFont TestoMarcato::Carattere(const Tratto& t) const {
    QFont font = carattere_;
    font.setItalic(t.corsivo || carattere_.italic());
    if (t.quota != Quota::Riga)
        font.setPointSizeF(font.pointSizeF() * corpoPiccolo);
    return font;
}

double TestoMarcato::Larghezza(const Tratto& t) const {
    const double gap = t.quota == Quota::Riga ? 0 : distacco * Corpo();
    return QFontMetricsF(Carattere(t), carta_).horizontalAdvance(t.testo) + gap;
}

double TestoMarcato::Larghezza(const Parola& parola) const {
    double width = 0;
    for (const Tratto& t : parola)
        width += Larghezza(t);
    return width;
}

/// In units of the device.
double TestoMarcato::Corpo() const { return carattere_.pointSizeF() * carta_->logicalDpiY() / puntiPollice; }

double TestoMarcato::Interlinea() const { return interlinea * Corpo(); }

void TestoMarcato::Spezza(const QList<Parola>& parole, double larghezza) {
    const double blank = QFontMetricsF(carattere_, carta_).horizontalAdvance(u' ');
    double used = 0;
    righe_.append(QList<Parola>());
    for (const Parola& word : parole) {
        const double width = Larghezza(word);
        if (larghezza > 0 && used > 0 && used + blank + width > larghezza) {
            righe_.append(QList<Parola>());
            used = 0;
        }
        used += (used > 0 ? blank : 0) + width;
        righe_.last().append(word);
    }
}

double TestoMarcato::Altezza() const {
    const double first = std::max(0.0, primaBase / carattere_.pointSizeF() - 1) * Corpo();
    return righe_.isEmpty() ? 0 : first + static_cast<double>(righe_.size()) * Interlinea();
}

double TestoMarcato::Larghezza() const {
    const double blank = QFontMetricsF(carattere_, carta_).horizontalAdvance(u' ');
    double longest = 0;
    for (const QList<Parola>& line : righe_) {
        double width = blank * static_cast<double>(line.size() - 1);
        for (const Parola& word : line)
            width += Larghezza(word);
        longest = std::max(longest, width);
    }
    return longest;
}

/// @return its width
double TestoMarcato::DipingeTratto(QPainter& pittore, const Tratto& t, QPointF base) const {
    const double height = Corpo();
    const QFont font = Carattere(t);
    const QFontMetricsF metrics(font, carta_);
    if (t.quota == Quota::Pedice)
        base.ry() += calo * height;
    else if (t.quota == Quota::Apice)
        base.ry() -= salita * height;
    if (t.quota != Quota::Riga)
        base.rx() += distacco * height / 2;
    pittore.setFont(font);
    pittore.drawText(base, t.testo);
    if (t.barra) {
        const double last = metrics.horizontalAdvance(t.testo.back());
        const double right = base.x() + metrics.horizontalAdvance(t.testo);
        const double top = base.y() - metrics.capHeight() * 1.22;
        pittore.drawLine(QPointF(right - last, top), QPointF(right, top));
    }
    return Larghezza(t);
}

void TestoMarcato::Dipinge(QPainter& pittore, const QPointF& angolo) const {
    const QFontMetricsF metrics(carattere_, carta_);
    const double blank = metrics.horizontalAdvance(u' ');
    const double first = std::max(primaBase, carattere_.pointSizeF()) / carattere_.pointSizeF() * Corpo();
    QPointF base(angolo.x(), angolo.y() + first);
    for (const QList<Parola>& line : righe_) {
        base.setX(angolo.x());
        for (const Parola& word : line) {
            for (const Tratto& t : word)
                base.rx() += DipingeTratto(pittore, t, base);
            base.rx() += blank;
        }
        base.ry() += Interlinea();
    }
}

} // namespace sagomi
