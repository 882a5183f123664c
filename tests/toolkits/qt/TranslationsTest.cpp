#include "QuorConversions/qt/Translations.h"

#include "QuorConversions/qt/QtText.h"
#include "QuorConversions/resources/StringIds.h"
#include "QuorConversions/resources/StringTable.h"
#include "tests/support/Objects.h"
#include "tests/toolkits/qt/OwnTexts.h"
#include "toolkits/qt/HelpWindow.h"

#include <QAction>
#include <QCoreApplication>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <memory>
#include <set>
#include <string>

using namespace QuorConversions;
using QtToolkit::InstallTranslations;
using QtToolkit::ToQt;

namespace {

struct Entry {
    std::int32_t id;
    const wchar_t* text;
};
#define QUOR_STRING(id, name, text) Entry{id, text},
constexpr Entry stringTable[] = {
#include "QuorConversions/resources/strings.def"
};
#undef QUOR_STRING

/// Symbols, and names that are the same in every language.
bool IsTheSameInEveryLanguage(std::int32_t id) {
    static const std::set<std::int32_t> same = {IDS_MESSAGE_TITLE,
                                                IDS_OK_BUTTON,
                                                IDS_IEC751,
                                                IDS_YSI400,
                                                IDS_ITS_SR5,
                                                IDS_RTPW,
                                                IDS_R0,
                                                IDS_ALPHA,
                                                IDS_DELTA,
                                                IDS_BETA,
                                                IDS_A,
                                                IDS_B,
                                                IDS_C,
                                                IDS_D,
                                                IDS_A4,
                                                IDS_C4,
                                                IDS_DC,
                                                IDS_CALLENDAR_VAN_DUSEN,
                                                IDS_IPTS_68,
                                                IDS_ITS_90,
                                                IDS_THERMISTOR,
                                                IDS_W_T90,
                                                IDS_T_OF_R,
                                                IDS_R_OF_T,
                                                IDS_OFFSET,
                                                IDS_PT100,
                                                IDS_INI_SYSTEM,
                                                IDS_INI_SYSTEM_AT_PATH};
    return same.count(id) > 0;
}

/// The letter behind "&".
QChar AccessKey(const QString& text) {
    const auto mark = text.indexOf('&');
    return mark < 0 || mark + 1 == text.size() ? QChar() : text.at(mark + 1).toUpper();
}

/// Expects that all texts have access keys, and no two the same.
void ExpectUniqueAccessKeys(const QStringList& texts) {
    QSet<QChar> keys;
    for (const QString& text : texts) {
        EXPECT_FALSE(AccessKey(text).isNull()) << text.toStdString();
        keys << AccessKey(text);
    }
    EXPECT_EQ(keys.size(), texts.size()) << texts.join(" | ").toStdString();
}

class TranslationsTest : public testing::Test {
protected:
    TranslationsTest() { InstallTranslations(QLocale(QLocale::German, QLocale::Germany)); }
    ~TranslationsTest() override { InstallTranslations(QLocale::c()); }
};

} // namespace

TEST_F(TranslationsTest, HaveAGermanTextForEveryEntryOfTheStringTable) {
    for (const auto& [id, english] : stringTable) {
        const std::wstring german = TableText(id);
        EXPECT_FALSE(german.empty()) << id;
        EXPECT_EQ(german == english, IsTheSameInEveryLanguage(id)) << id;
        EXPECT_EQ(std::count(german.begin(), german.end(), L'~'),
                  std::count(english, english + std::wcslen(english), L'~'))
            << id;
        EXPECT_EQ(german.back() == L' ', english[std::wcslen(english) - 1] == L' ') << id;
        EXPECT_EQ(std::count(german.begin(), german.end(), L'&'),
                  std::count(english, english + std::wcslen(english), L'&'))
            << id;
    }
    EXPECT_EQ(TableText(138), L"");
    EXPECT_EQ(TableText(0), L"");
}

TEST_F(TranslationsTest, HaveGermanForEveryTextOfTheToolkitsOwn) {
    Support::ExpectTranslated(QStringLiteral(QUOR_OWN_TEXTS), 20,
                              [](const QString& text) { return text == "Navigation"; });
}

TEST_F(TranslationsTest, GiveNoTwoButtonsOfADialogTheSameAccessKey) {
    QStringList buttons;
    for (const auto id :
         {IDS_OK_BUTTON, IDS_CANCEL_BUTTON, IDS_HELP_BUTTON, IDS_OPEN_BUTTON, IDS_SAVE_AS_BUTTON})
        buttons << ToQt(TableText(id));
    ExpectUniqueAccessKeys(buttons);
}

TEST_F(TranslationsTest, GiveTheHelpWindowUniqueAccessKeysInBothLanguages) {
    for (const auto language : {QLocale::German, QLocale::English}) {
        InstallTranslations(QLocale(language));
        const QtToolkit::HelpWindow window;
        QStringList around;
        for (const QAction* const menu : window.menuBar()->actions()) {
            around << menu->text();
            QStringList items;
            for (const QAction* const item : menu->menu()->actions())
                if (!item->isSeparator())
                    items << item->text();
            ExpectUniqueAccessKeys(items);
        }
        for (const QPushButton* const button : window.findChildren<QPushButton*>())
            around << button->text();
        ExpectUniqueAccessKeys(around);
    }
}

TEST_F(TranslationsTest, MakeWholeSentencesOfTheParts) {
    const auto platform = std::make_shared<Support::ScriptedPlatform>();
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_CVD);
    platform->InDialog([](Scripted::Person& person) {
        EXPECT_EQ(person.Sees().Title(), L"Callendar-Van Dusen \u2013 Einstellungen");
        EXPECT_EQ(person.Reads(L"cmdOKCancelHelp(1)"), L"&Abbrechen");
        person.Click(L"Abbrechen");
    });
    EXPECT_FALSE(conversion.Edit());
    std::wstring file;
    EXPECT_FALSE(conversion.Settings()->OpenFile(0, file));
    EXPECT_EQ(platform->FileRequests().at(0).title, L"Callendar-Van Dusen-Datei \u00F6ffnen");
    EXPECT_EQ(platform->FileRequests().at(0).filter, L"Callendar-Van Dusen Dateien (*.cvd)|*.cvd");
    // The notes name what the user is to look for by the text that stands there.
    EXPECT_NE(TableText(IDS_RANGE_5_SELECT_NONE).find(TableText(IDS_NO_RANGE)), std::wstring::npos);
    EXPECT_NE(TableText(IDS_RANGE_5_SELECT_NONE).find(TableText(IDS_HIGH_RANGE)), std::wstring::npos);
}

TEST_F(TranslationsTest, ReportAnErrorOfTheStoreInGerman) {
    const auto platform = std::make_shared<Support::ScriptedPlatform>();
    CQuorConversion conversion(platform);
    std::shared_ptr<QuorIniFile::INIFile> none;
    EXPECT_FALSE(conversion.ReadFromFile(none, L"/missing/probes.ini", L"Probe"));
    EXPECT_EQ(platform->Messages().at(0).text, L"Fehler beim Lesen der Einstellungen.\r"
                                               L"\rFehler: 53 - Datei nicht gefunden: /missing/probes.ini"
                                               L"\r(QuorIniFile)");
    conversion.WriteToFile(none, L"/dev/null", L"Probe");
    EXPECT_EQ(platform->Messages().at(1).text,
              L"Fehler beim Schreiben der Einstellungen.\r"
              L"\rFehler: 75 - Fehler beim Zugriff auf Pfad oder Datei: /dev/null: Es ist keine "
              L"gew\u00F6hnliche Datei\r(QuorIniFile)");
}

TEST_F(TranslationsTest, NeverReachSectionsAndKeys) {
    const auto write = [](EQuorConversionType type) {
        const auto memory = std::make_shared<Support::MemoryIniFile>();
        std::shared_ptr<QuorIniFile::INIFile> file = memory;
        CQuorConversion conversion(std::make_shared<Support::ScriptedPlatform>());
        conversion.SetConversionType(type);
        conversion.WriteToFile(file, L"", L"Probe");
        return memory->operations;
    };
    for (std::int32_t type = CONV_ITS90; type <= CONV_TCTYPEPOLY; ++type) {
        const auto german = write(EQuorConversionType{type});
        InstallTranslations(QLocale::c());
        EXPECT_EQ(german, write(EQuorConversionType{type})) << type;
        InstallTranslations(QLocale(QLocale::German));
    }
}

TEST_F(TranslationsTest, ServeEveryGermanAndLeaveOtherLanguagesInEnglish) {
    InstallTranslations(QLocale(QLocale::German, QLocale::Austria));
    EXPECT_EQ(TableText(IDS_CANCEL_BUTTON), L"&Abbrechen");
    for (const auto language : {QLocale::English, QLocale::French, QLocale::C}) {
        InstallTranslations(QLocale(language));
        EXPECT_EQ(TableText(IDS_CANCEL_BUTTON), L"&Cancel");
        EXPECT_EQ(QCoreApplication::translate("HelpWindow", "Topics"), "Topics");
    }
}
