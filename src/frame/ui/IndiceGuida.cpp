#include "frame/ui/IndiceGuida.h"

#include <QDir>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <QWidget>

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

#include "frame/Cartelle.h"
#include "frame/LetturaFile.h"

namespace sagomi {

namespace {

constexpr std::size_t byteMassimi = std::size_t{16} << 20U;

QString TestoDelFile(const QString& file) {
    try {
        const FileLetto read = LeggeFile(file.toStdString(), byteMassimi);
        return QString::fromUtf8(reinterpret_cast<const char*>(read.byte.data()),
                                 static_cast<qsizetype>(read.byte.size()));
    } catch (const std::runtime_error&) {
        return {};
    }
}

/// The plain text of a piece of HTML. Places alone, as most headings have them, need no document.
QString Piano(const QString& html) {
    static const QRegularExpression place(QStringLiteral("<a name=\"[^\"]+\"></a>"));
    if (const QString text = QString(html).remove(place); !text.contains(u'<') && !text.contains(u'&'))
        return text.simplified();
    return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
}

/// Letters as they are compared: without case and accents.
QString Piegato(const QString& text) {
    static const QRegularExpression accents(QStringLiteral("\\p{M}"));
    return text.normalized(QString::NormalizationForm_KD).remove(accents).toCaseFolded();
}

/// By their titles without case and accents, which are made once each.
QList<ArgomentoGuida> PerAlfabeto(const QList<ArgomentoGuida>& words) {
    std::vector<std::pair<QString, qsizetype>> order;
    for (qsizetype i = 0; i < words.size(); ++i)
        order.emplace_back(Piegato(words[i].titolo), i);
    std::ranges::sort(order);
    QList<ArgomentoGuida> sorted;
    for (const auto& [title, i] : order)
        sorted << words[i];
    return sorted;
}

QString PrimaAncora(const QString& html) {
    static const QRegularExpression name(QStringLiteral("<a name=\"([^\"]+)\">"));
    return name.match(html).captured(1);
}

qsizetype Posto(const QString& html, const QString& name) {
    return html.indexOf(QLatin1String("name=\"") + name + u'"');
}

/// @return  the first of the names that has a place which fits the screen
QString Trova(const QString& html, const QString& screen, const QStringList& names) {
    for (const QString& name : names)
        if (Posto(html, screen + u'.' + name) >= 0)
            return screen + u'.' + name;
    const qsizetype screenPlace = screen.isEmpty() ? -1 : Posto(html, screen);
    for (const QString& name : names)
        if (const qsizetype place = Posto(html, name); place >= 0 && place > screenPlace)
            return name;
    for (const QString& name : names)
        if (const QString shared = QStringLiteral("*.") + name; Posto(html, shared) >= 0)
            return shared;
    return {};
}

/// The name of a control, and that of its array.
QStringList Nomi(const QString& name) {
    static const QRegularExpression index(QStringLiteral("_\\d+$"));
    QStringList names{name};
    if (const QString array = QString(name).remove(index); array != name)
        names << array;
    return names;
}

/// One message of a cell as a text tells it: all its parts in their order; no letters: it does not.
PostoMessaggio Detto(const QString& message, const QString& text) {
    PostoMessaggio told;
    qsizetype from = 0;
    for (const QString& piece : message.split(QStringLiteral("..."))) {
        const QString part = piece.simplified();
        const qsizetype at = text.indexOf(part, from);
        if (at < 0)
            return {};
        from = at + part.size();
        told.lettere += static_cast<int>(part.size());
        if (part.size() > told.parole.size())
            told.parole = part;
    }
    return told;
}

/// The longest of the messages of a cell that a text tells.
PostoMessaggio MessaggioDetto(const QString& cell, const QString& text) {
    constexpr int poche = 6; // letters; fewer stand in any text
    PostoMessaggio longest;
    for (const QString& message : cell.split(u';'))
        if (PostoMessaggio told = Detto(message, text); told.lettere >= std::max(poche, longest.lettere + 1))
            longest = std::move(told);
    longest.cella = cell;
    return longest;
}

} // namespace

QString LeggeGuida(const QString& file) {
    const QDir folder(QString::fromStdString(CartellaInstallata().string()));
    for (const QString& name : folder.entryList(QDir::Files))
        if (name.compare(file, Qt::CaseInsensitive) == 0)
            return TestoDelFile(folder.filePath(name));
    return {};
}

QList<ArgomentoGuida> ArgomentiGuida(const QString& file, const QString& html) {
    static const QRegularExpression heading(QStringLiteral("<h([123])>(.*?)</h\\1>"),
                                            QRegularExpression::DotMatchesEverythingOption);
    QList<ArgomentoGuida> topics;
    qsizetype below = 0;
    const auto endAt = [&](qsizetype end) {
        if (!topics.isEmpty())
            topics.last().corpo = html.mid(below, end - below);
    };
    for (auto found = heading.globalMatch(html); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        endAt(match.capturedStart());
        below = match.capturedEnd();
        const QString inside = match.captured(2);
        topics << ArgomentoGuida{file, PrimaAncora(inside), Piano(inside), match.captured(1).toInt()};
    }
    endAt(html.size());
    return topics;
}

QList<ArgomentoGuida> IndiceGuida(const QString& file, const QString& html) {
    static const QRegularExpression bold(
        QStringLiteral("<a name=\"([^\"]+)\"></a>(?:<a name=\"[^\"]+\"></a>)*<b>(.*?)</b>"),
        QRegularExpression::DotMatchesEverythingOption);
    QList<ArgomentoGuida> words;
    for (auto found = bold.globalMatch(html); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        words << ArgomentoGuida{file, match.captured(1), Piano(match.captured(2)), 0};
    }
    for (const ArgomentoGuida& topic : ArgomentiGuida(file, html))
        words << ArgomentoGuida{file, topic.ancora, topic.titolo, 0};
    return PerAlfabeto(words);
}

RicercaGuida::RicercaGuida(QList<ArgomentoGuida> argomenti) : argomenti_(std::move(argomenti)) {}

bool RicercaGuida::NelTitolo(qsizetype i, const QStringList& parole) {
    return std::ranges::all_of(parole, [&](const QString& w) { return cercati_[i].titolo.contains(w); });
}

bool RicercaGuida::Contiene(qsizetype i, const QStringList& parole) {
    std::optional<QString>& text = cercati_[i].testo;
    if (!text)
        text = Piegato(Piano(argomenti_[i].corpo));
    return std::ranges::all_of(
        parole, [&](const QString& w) { return cercati_[i].titolo.contains(w) || text->contains(w); });
}

QList<ArgomentoGuida> RicercaGuida::Cerca(const QString& parole) {
    const QStringList words = Piegato(parole).split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return argomenti_;
    if (cercati_.isEmpty())
        for (const ArgomentoGuida& topic : argomenti_)
            cercati_ << Cercato{Piegato(topic.titolo), {}};
    QList<ArgomentoGuida> titled;
    QList<ArgomentoGuida> others;
    for (qsizetype i = 0; i < argomenti_.size(); ++i)
        if (NelTitolo(i, words))
            titled << argomenti_[i];
        else if (Contiene(i, words))
            others << argomenti_[i];
    return titled + others;
}

QList<ArgomentoGuida> CercaGuida(const QList<ArgomentoGuida>& argomenti, const QString& parole) {
    return RicercaGuida(argomenti).Cerca(parole);
}

QString AncoraDi(const QString& html, const QWidget* controllo) {
    if (controllo == nullptr)
        return {};
    const QString screen = controllo->window()->objectName();
    for (const QWidget* w = controllo; w != nullptr && !w->isWindow(); w = w->parentWidget())
        if (!w->objectName().isEmpty())
            if (const QString place = Trova(html, screen, Nomi(w->objectName())); !place.isEmpty())
                return place;
    if (Posto(html, screen) >= 0 && !screen.isEmpty())
        return screen;
    return AncoraDi(html, controllo->window()->parentWidget());
}

QString AncoraDi(const QString& html, const QString& argomento) {
    const QString screen = argomento.section(u'.', 0, -2);
    if (argomento.isEmpty())
        return {};
    const QString place = Trova(html, screen, Nomi(argomento.section(u'.', -1)));
    return place.isEmpty() && Posto(html, screen) >= 0 ? screen : place;
}

PostoMessaggio PostoDelMessaggio(const QString& html, const QString& testo) {
    static const QRegularExpression table(
        QStringLiteral("<table[^>]*>\\s*<tr><td><b>Messaggio</b></td>(.*?)</table>"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression row(QStringLiteral("<tr><td>(.*?)</td>"),
                                        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression name(QStringLiteral("<a name=\"([^\"]+)\">"));
    const QString text = testo.simplified();
    PostoMessaggio place;
    for (auto tables = table.globalMatch(html); tables.hasNext();) {
        const QRegularExpressionMatch t = tables.next();
        for (auto rows = row.globalMatch(t.captured(1)); rows.hasNext();)
            if (PostoMessaggio told = MessaggioDetto(Piano(rows.next().captured(1)), text);
                told.lettere > place.lettere) {
                QRegularExpressionMatch above;
                if (html.lastIndexOf(name, t.capturedStart(), &above) < 0)
                    continue;
                place = std::move(told);
                place.ancora = above.captured(1);
            }
    }
    return place;
}

} // namespace sagomi
