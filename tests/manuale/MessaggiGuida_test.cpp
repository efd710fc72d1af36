#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include "frame/ui/IndiceGuida.h"

using namespace sagomi;

namespace {

const QStringList fileGuida{QStringLiteral(SAGOMI_SORGENTI "/data/Sagomi.hlp"),
                            QStringLiteral(SAGOMI_SORGENTI "/data/GiuntoFlangiato.hlp")};

QString Letto(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What the sources tell: a message with numbers for its values, then the cells that may explain it.
QList<QStringList> Detti() {
    QProcess python;
    python.start(QStringLiteral(SAGOMI_PYTHON),
                 QStringList{QStringLiteral(SAGOMI_SORGENTI "/tests/manuale/messaggi.py"),
                             QStringLiteral("--detti"), QStringLiteral(SAGOMI_SORGENTI "/src")} +
                     fileGuida);
    EXPECT_TRUE(python.waitForFinished());
    QList<QStringList> told;
    for (const QString& line :
         QString::fromUtf8(python.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts))
        told << line.split(u'\t');
    return told;
}

// F1 on a message shows the row that is about it, of all the rows of both files.
TEST(MessaggiGuida, EachMessageOfTheSourcesFindsItsOwnRow) {
    if (QStringLiteral(SAGOMI_PYTHON).isEmpty())
        GTEST_SKIP() << "no Python";
    const QStringList help{Letto(fileGuida[0]), Letto(fileGuida[1])};
    int messages = 0;
    for (const QStringList& told : Detti()) {
        PostoMessaggio nearest;
        for (const QString& html : help)
            if (const PostoMessaggio place = PostoDelMessaggio(html, told[0]);
                place.lettere > nearest.lettere)
                nearest = place;
        EXPECT_TRUE(told.mid(1).contains(nearest.cella))
            << told[0].toStdString() << ": " << nearest.cella.toStdString();
        ++messages;
    }
    EXPECT_GE(messages, 95);
}

} // namespace
