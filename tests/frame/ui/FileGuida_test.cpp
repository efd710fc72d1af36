#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

class FileGuidaTest : public testing::TestWithParam<const char*> {};

QString Testo(const QString& file) {
    QFile help(QStringLiteral(SAGOMI_BIN "/") + file);
    return help.open(QIODevice::ReadOnly) ? QString::fromUtf8(help.readAll()) : QString();
}

QStringList Trova(const QString& text, const char* pattern) {
    QStringList found;
    const QRegularExpression expression{QLatin1String(pattern)};
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found << match.next().captured(1);
    return found;
}

QSet<QString> Ancore(const QString& text) {
    const QStringList names = Trova(text, "<a name=\"([^\"]+)\">");
    return {names.begin(), names.end()};
}

TEST_P(FileGuidaTest, LiesBesideTheProgramAndEveryLinkLeadsToATopic) {
    const QString file = QString::fromLatin1(GetParam());
    const QString text = Testo(file);
    ASSERT_FALSE(text.isEmpty());
    const QStringList links = Trova(text, "href=\"([^\"]+)\"");
    EXPECT_GT(links.size(), 10);
    for (const QString& link : links) {
        const QString other = link.section(u'#', 0, 0);
        EXPECT_TRUE(Ancore(other.isEmpty() ? text : Testo(other)).contains(link.section(u'#', 1)))
            << link.toStdString();
    }
}

TEST_P(FileGuidaTest, NoTopicStandsTwice) {
    const QStringList names = Trova(Testo(QString::fromLatin1(GetParam())), "<a name=\"([^\"]+)\">");
    QSet<QString> seen;
    for (const QString& name : names) {
        EXPECT_FALSE(seen.contains(name)) << name.toStdString();
        seen << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Guida, FileGuidaTest, testing::Values("Sagomi.hlp", "GiuntoFlangiato.hlp"));

} // namespace
