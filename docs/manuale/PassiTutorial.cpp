#include "PassiTutorial.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace sagomi {

namespace {

const QRegularExpression& Elemento() {
    static const QRegularExpression element(
        QStringLiteral(
            R"re(<(\w+)[^>]*?\sdata-(sagomo|scrive|sceglie|spunta|toglie|preme|menu|legge|messaggio|)re"
            R"re(progetto|file|riporta|chiude|foto)="([^"]*)"[^>]*>(.*?)</\1>)re"),
        QRegularExpression::DotMatchesEverythingOption);
    return element;
}

} // namespace

QList<PassoTutorial> PassiTutorial(const QString& html) {
    QList<PassoTutorial> steps;
    for (auto found = Elemento().globalMatch(html); found.hasNext();) {
        const QRegularExpressionMatch m = found.next();
        const QString object = m.captured(3);
        steps << PassoTutorial{m.captured(2), object.section(u'.', 0, 0), object.section(u'.', 1),
                               QTextDocumentFragment::fromHtml(m.captured(4)).toPlainText().simplified(),
                               static_cast<int>(html.left(m.capturedStart()).count(u'\n')) + 1};
    }
    return steps;
}

QString NomeFoto(int n) { return QStringLiteral("esempio-%1").arg(n + 1, 2, 10, QLatin1Char('0')); }

} // namespace sagomi
