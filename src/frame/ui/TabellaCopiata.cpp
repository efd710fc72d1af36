#include "frame/ui/TabellaCopiata.h"

#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QTextDocument>

namespace sagomi {

namespace {

constexpr qsizetype righeDisegnate = 200; ///< of a longer table nobody wants a picture

QString RigaHtml(const QStringList& cells, const QString& tag) {
    QString row = QStringLiteral("<tr>");
    for (const QString& c : cells)
        row += u'<' + tag + u'>' + c.toHtmlEscaped() + QStringLiteral("</") + tag + u'>';
    return row + QStringLiteral("</tr>\n");
}

QString Html(const QString& title, const QList<QStringList>& rows) {
    QString html = QStringLiteral("<table>\n");
    if (!title.isEmpty())
        html += QStringLiteral("<caption>") + title.toHtmlEscaped() + QStringLiteral("</caption>\n");
    for (qsizetype i = 0; i < rows.size(); ++i)
        html += RigaHtml(rows[i], i == 0 ? QStringLiteral("th") : QStringLiteral("td"));
    return html + QStringLiteral("</table>\n");
}

/// Twice as fine as the screen.
QImage Figura(QString html) {
    constexpr int scala = 2;
    html.replace(QStringLiteral("<table>"),
                 QStringLiteral(
                     "<table border='1' cellspacing='0' cellpadding='3' style='border-collapse:collapse'>"));
    QTextDocument document;
    document.setDefaultFont(QGuiApplication::font());
    document.setDefaultStyleSheet(QStringLiteral("* { color: black } th { text-align: left }"));
    document.setHtml(html);
    const QSize size = document.size().toSize();
    QImage picture(size * scala, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scala);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    document.drawContents(&painter);
    return picture;
}

/// A line of text; a cell of several lines stands in one.
QString RigaTesto(QStringList cells) {
    for (QString& c : cells)
        c.replace(u'\n', u' ').replace(u'\t', u' ');
    return cells.join(u'\t') + u'\n';
}

} // namespace

QMimeData* TabellaCopiata(const QString& titolo, const QList<QStringList>& righe) {
    QString text;
    for (const QStringList& row : righe)
        text += RigaTesto(row);
    const QString html = Html(titolo, righe);
    auto* data = new QMimeData;
    data->setText(text);
    data->setHtml(html);
    if (righe.size() <= righeDisegnate)
        data->setImageData(Figura(html));
    return data;
}

} // namespace sagomi
