#include "tests/toolkits/qt/OwnTexts.h"

#include "apps/probe-setup/Wording.h"

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

TEST(Texts, HaveGermanForEveryTextOfTheProbeFile) {
    QTranslator german;
    ASSERT_TRUE(german.load(QStringLiteral(":/probe-setup/translations/probe-setup_de.qm")));
    ASSERT_TRUE(QCoreApplication::installTranslator(&german));
    const auto expectTranslated = [](const char* name, const char* text) {
        const QString english = QString::fromUtf8(text);
        const QString translated = QCoreApplication::translate("ProbeTexts", text);
        EXPECT_EQ(translated == english, english == QLatin1String("~")) << name << " has no translation";
        EXPECT_EQ(translated.count(QLatin1Char('~')), english.count(QLatin1Char('~'))) << name;
    };
#define QUOR_PROBE_TEXT(number, name, text) expectTranslated(#name, text);
#include "QuorProbeFile/ProbeTexts.def"
    QuorProbeFile::ProbeProblem problem{QuorProbeFile::WARNING_R0_NOT_POSITIVE,
                                        5,
                                        L"P",
                                        L"Coefficients0",
                                        L"R0 is 0; limit: above 0",
                                        {{QuorProbeFile::PROBE_TEXT_NOT_ABOVE_ZERO, {L"R0", L"0"}}}};
    EXPECT_EQ(ProbeSetup::Wording::Of(problem), QStringLiteral("Warnung: R0 ist 0; Grenze: \u00FCber 0"));
    ASSERT_TRUE(QCoreApplication::removeTranslator(&german));
    EXPECT_EQ(ProbeSetup::Wording::Of(problem), QStringLiteral("Warning: R0 is 0; limit: above 0"));
}
