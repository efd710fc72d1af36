#pragma once

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRect>
#include <QStandardPaths>
#include <QString>

#include <algorithm>

namespace sagomi::prove {

/// The smallest box around what is darker than a mid grey; empty when nothing is.
inline QRect Inchiostro(const QImage& picture) {
    QRect box;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qGray(picture.pixel(x, y)) < 128)
                box |= QRect(x, y, 1, 1);
    return box;
}

/// Whether the tools that read a PDF are there.
inline bool ConPoppler() {
    return !QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty() &&
           !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

/// A page of a PDF, at 10 pixels to the millimetre.
inline QImage PaginaPdf(const QString& pdf, int pagina = 1) {
    const QString prefix = pdf + QStringLiteral("-page");
    const QString n = QString::number(pagina);
    QProcess::execute(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-r"), QStringLiteral("254"), QStringLiteral("-gray"),
                       QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-f"), n,
                       QStringLiteral("-l"), n, pdf, prefix});
    return QImage(prefix + QStringLiteral(".png"));
}

/// The words of a PDF, pages parted by form feeds.
inline QString TestoPdf(const QString& pdf) {
    QProcess run;
    run.start(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    run.waitForFinished();
    return QString::fromUtf8(run.readAllStandardOutput());
}

inline QByteArray Byte(const QString& file) {
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace sagomi::prove
