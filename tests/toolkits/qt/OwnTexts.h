#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QString>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace Support {

/// Expects that the language which is installed has a text for each one that lupdate has found in the
/// sources, and every place for a value in it. `isTheSame` names those that are the same in both languages.
template <class IsTheSame>
void ExpectTranslated(const QString& ownTexts, int atLeast, const IsTheSame& isTheSame) {
    QFile file(ownTexts);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QByteArray context;
    int texts = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText().toUtf8();
        if (xml.name() != QLatin1String("source"))
            continue;
        const QString source = xml.readElementText();
        const QString translated = QCoreApplication::translate(context, source.toUtf8());
        EXPECT_EQ(translated == source, isTheSame(source))
            << context.toStdString() << " has no translation of: " << source.toStdString();
        for (const char* const place : {"%1", "%2", "%3", "%4"})
            EXPECT_EQ(translated.count(place), source.count(place)) << source.toStdString();
        ++texts;
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_GT(texts, atLeast);
}

} // namespace Support
