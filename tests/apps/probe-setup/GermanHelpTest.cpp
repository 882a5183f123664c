// The help in German: all pages of the English one, with the same numbers.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

namespace {

const QString helpFolder = QStringLiteral(QUOR_SAMPLES "/../docs/help/");

QString TextOf(const QString& page) {
    QFile file(page);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// How often each number stands in the text of a page, with a point where the language has a comma.
QMap<QString, int> NumbersOf(QString text) {
    static const QRegularExpression markUp(
        QStringLiteral("(href|width|cellpadding|cellspacing|border)=\"[^\"]*\"|"
                       "&#\\d+;"));
    static const QRegularExpression number(QStringLiteral("\\d+(?:\\d|[.]\\d)*"));
    text.remove(markUp);
    text.replace(QLatin1Char(','), QLatin1Char('.'));
    QMap<QString, int> numbers;
    for (auto matches = number.globalMatch(text); matches.hasNext();)
        ++numbers[matches.next().captured()];
    return numbers;
}

} // namespace

TEST(GermanHelp, HasEveryPageOfTheEnglishOneWithTheSameNumbers) {
    const QStringList pages = QDir(helpFolder).entryList({QStringLiteral("*.html")});
    EXPECT_GT(pages.size(), 20);
    for (const QString& page : pages) {
        const QString german = TextOf(helpFolder + QStringLiteral("de/") + page);
        EXPECT_TRUE(german.contains(QLatin1String("<html lang=\"de\">"))) << page.toStdString();
        EXPECT_EQ(NumbersOf(german), NumbersOf(TextOf(helpFolder + page))) << page.toStdString();
    }
}
