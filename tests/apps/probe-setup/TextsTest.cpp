#include "tests/toolkits/qt/OwnTexts.h"

#include <QTranslator>

// The texts of the program in other languages.

TEST(Texts, HaveGermanForEveryTextOfTheProgram) {
    QTranslator german;
    ASSERT_TRUE(german.load(QStringLiteral(":/probe-setup/translations/probe-setup_de.qm")));
    ASSERT_TRUE(QCoreApplication::installTranslator(&german));
    Support::ExpectTranslated(QStringLiteral(QUOR_OWN_TEXTS), 100, [](const QString& text) {
        return text == "Name" || text == "&Name" || text == "&Filter:" || text == "&Name:" ||
               text == "Probe Setup" || text == "Probe Setup %1" ||
               text == QStringLiteral("%1[*] \u2013 Probe Setup");
    });
}
