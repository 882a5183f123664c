#include "QuorConversions/qt/QtPlatform.h"

#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorConversions/rtd/CQuorPT100.h"
#include "tests/support/TempFolder.h"
#include "tests/toolkits/SampleDialog.h"
#include "tests/toolkits/qt/QtScreen.h"
#include "toolkits/qt/HelpWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QWindow>

#include <functional>
#include <memory>
#include <optional>
#include <string>

using namespace QuorConversions;
using QtToolkit::FromQt;
using QtToolkit::HelpWindow;
using QtToolkit::QtPlatform;
using QtToolkit::ToQt;
using Support::SampleDialog;
using Support::WhenShown;

namespace {

constexpr std::uint32_t openFlags = 0x281804;
constexpr std::uint32_t saveFlags = 0x280806;

template <class T>
bool IsA(const QWidget& window) {
    return qobject_cast<const T*>(&window) != nullptr;
}

HelpWindow* OpenHelpWindow() {
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (auto* const help = dynamic_cast<HelpWindow*>(window); help && help->isVisible())
            return help;
    return nullptr;
}

class QtPlatformTest : public testing::Test {
protected:
    /// The next message is closed at the latest when `act` returns.
    void InMessage(const std::function<void(QMessageBox&)>& act = [](QMessageBox&) {}) {
        WhenShown(IsA<QMessageBox>, [this, act](QWidget& window) {
            ++messages;
            act(dynamic_cast<QMessageBox&>(window));
            dynamic_cast<QMessageBox&>(window).done(QMessageBox::Ok);
        });
    }
    /// What the platform answers when `act` has done something with its file dialog, which is cancelled at
    /// the latest when that returns.
    std::optional<std::wstring> Ask(const std::function<void(QFileDialog&)>& act) {
        bool shown = false;
        WhenShown(IsA<QFileDialog>, [&](QWidget& window) {
            shown = true;
            act(dynamic_cast<QFileDialog&>(window));
            if (window.isVisible())
                dynamic_cast<QFileDialog&>(window).reject();
        });
        auto answer = platform.AskForFile(request);
        EXPECT_TRUE(shown);
        return answer;
    }
    static QLineEdit& NameOf(const QFileDialog& dialog) {
        return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    }
    /// Types a name and says that it is the one.
    static void Enter(const QFileDialog& dialog, const QString& name) {
        NameOf(dialog).selectAll();
        QTest::keyClicks(&NameOf(dialog), name);
        QTest::keyClick(&NameOf(dialog), Qt::Key_Return);
    }

    TempFolder folder;
    QtPlatform platform;
    FileRequest request{FileDialogKind::Open,
                        L"Open PT100 File",
                        L"PT100 Files (*.pt1)|*.pt1",
                        L"pt1",
                        L"*.pt1",
                        folder.Path().wstring() + L"/",
                        openFlags,
                        0};
    int messages = 0;
};

} // namespace

// Handles

TEST_F(QtPlatformTest, NumbersWindowsFromOneAndKnowsThemAgain) {
    QWidget first;
    QWidget second;
    EXPECT_EQ(platform.HandleOf(first), 1);
    EXPECT_EQ(platform.HandleOf(second), 2);
    EXPECT_EQ(platform.HandleOf(first), 1);
    EXPECT_EQ(platform.WindowOf(1), &first);
    EXPECT_EQ(platform.WindowOf(2), &second);
}

TEST_F(QtPlatformTest, KnowsNoWindowOfANumberThatItHasNotGiven) {
    QWidget only;
    EXPECT_EQ(platform.HandleOf(only), 1);
    for (const std::int32_t handle : {0, 2, -1, INT32_MAX, INT32_MIN})
        EXPECT_EQ(platform.WindowOf(handle), nullptr) << handle;
}

TEST_F(QtPlatformTest, GivesTheNumberOfAWindowThatIsGoneToTheNextOne) {
    auto first = std::make_unique<QWidget>();
    QWidget second;
    EXPECT_EQ(platform.HandleOf(*first), 1);
    EXPECT_EQ(platform.HandleOf(second), 2);
    first.reset();
    EXPECT_EQ(platform.WindowOf(1), nullptr);
    QWidget third;
    EXPECT_EQ(platform.HandleOf(second), 2);
    EXPECT_EQ(platform.HandleOf(third), 1);
    EXPECT_EQ(platform.WindowOf(1), &third);
}

TEST_F(QtPlatformTest, GivesADialogTheNumberOfItsWindowWhileItIsShown) {
    SampleDialog dialog;
    std::int32_t handle = 0;
    WhenShown([](const QWidget& window) { return window.objectName() == QLatin1String("frmSample"); },
              [&](const QWidget& window) {
                  handle = dialog.WindowHandle();
                  EXPECT_EQ(platform.WindowOf(handle), &window);
                  dialog.Hide();
              });
    dialog.RunOn(platform);
    EXPECT_EQ(handle, 1);
    EXPECT_EQ(dialog.WindowHandle(), 0);
    EXPECT_EQ(platform.WindowOf(1), nullptr);
}

// Messages

TEST_F(QtPlatformTest, ShowsAMessageAsPlainTextLineByLine) {
    InMessage([](const QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Quor Scientific"));
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        EXPECT_EQ(box.text(), QStringLiteral("<b>Files</b> (*.a&b)\n\n100 %"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.buttons().size(), 1);
        EXPECT_EQ(box.focusWidget(), box.button(QMessageBox::Ok));
        EXPECT_TRUE(box.isModal());
    });
    platform.ShowMessage({L"<b>Files</b> (*.a&b)\r\r100 %", L"Quor Scientific", ICON_INFORMATION, L"", 0});
    EXPECT_EQ(messages, 1);
}

TEST_F(QtPlatformTest, ShowsTheIconOfAnErrorAndEndsWithEnterEscapeOrItsFrame) {
    for (const auto& end : std::initializer_list<std::function<void(QMessageBox&)>>{
             [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); },
             [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); },
             [](QMessageBox& box) { box.close(); }}) {
        InMessage([&](QMessageBox& box) {
            EXPECT_EQ(box.icon(), QMessageBox::Critical);
            end(box);
            EXPECT_FALSE(box.isVisible());
        });
        platform.ShowMessage({L"It failed.", L"Quor Scientific", ICON_CRITICAL, L"help.qhc", 10110});
    }
    EXPECT_EQ(messages, 3);
}

TEST_F(QtPlatformTest, StandsInFrontOfTheDialogThatShowsAMessage) {
    SampleDialog dialog;
    dialog.onClick = [&](Control&) {
        InMessage([&](const QMessageBox& box) {
            EXPECT_EQ(box.parentWidget(), platform.WindowOf(dialog.WindowHandle()));
        });
        platform.ShowMessage({L"Enter a valid RTPW value.", L"Quor Scientific", ICON_INFORMATION, L"", 0});
    };
    WhenShown([](const QWidget& window) { return window.objectName() == QLatin1String("frmSample"); },
              [&](const QWidget& window) {
                  window.findChild<QPushButton*>(QStringLiteral("cmdMore"))->click();
                  EXPECT_TRUE(dialog.IsOpen());
                  dialog.Hide();
              });
    dialog.RunOn(platform);
    EXPECT_EQ(messages, 1);
}

TEST_F(QtPlatformTest, TellsOfAMissingHelpFileInFrontOfTheMessageThatNamesIt) {
    const std::wstring missing = folder.Name("missing.qhc");
    InMessage([&](QMessageBox& box) {
        InMessage([&](const QMessageBox& report) {
            EXPECT_NE(&report, &box);
            EXPECT_TRUE(box.isVisible()) << "the message stays until it is answered";
        });
        QTest::mouseClick(box.button(QMessageBox::Help), Qt::LeftButton);
        EXPECT_TRUE(box.isVisible());
    });
    platform.ShowMessage({L"It failed.", L"Quor Scientific", ICON_CRITICAL, missing, 10110});
    EXPECT_EQ(messages, 2);
}

#ifdef QUOR_HELP_COLLECTION

TEST_F(QtPlatformTest, ShowsTheTopicOfAMessageAndLeavesTheMessageOpen) {
    InMessage([](const QMessageBox& box) {
        QTest::mouseClick(box.button(QMessageBox::Help), Qt::LeftButton);
        ASSERT_TRUE(box.isVisible()) << "the message stays until it is answered";
        HelpWindow* const help = OpenHelpWindow();
        ASSERT_NE(help, nullptr);
        EXPECT_EQ(help->findChild<QTextBrowser*>()->documentTitle(), QStringLiteral("PT100"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == help->windowHandle(); }));
        QTest::keyClick(help->windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(help->isVisible()) << "the message blocks the help";
        EXPECT_TRUE(box.isVisible());
    });
    platform.ShowMessage({L"It failed.", L"Quor Scientific", ICON_CRITICAL, L"" QUOR_HELP_COLLECTION, 10145});
    EXPECT_EQ(messages, 1);
}

TEST_F(QtPlatformTest, ShowsTheTopicOfAContextNumberInOneWindow) {
    const std::wstring collection = L"" QUOR_HELP_COLLECTION;
    EXPECT_EQ(platform.CallHelp(collection, helpCommandContext, 10110), 1);
    HelpWindow* const help = OpenHelpWindow();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->findChild<QTextBrowser*>()->documentTitle(), QStringLiteral("ITS-90"));
    EXPECT_EQ(platform.CallHelp(collection, helpCommandContext, 10145), 1);
    EXPECT_EQ(OpenHelpWindow(), help);
    EXPECT_EQ(help->findChild<QTextBrowser*>()->documentTitle(), QStringLiteral("PT100"));
}

TEST_F(QtPlatformTest, SaysThatThereIsNoSuchTopic) {
    const std::wstring collection = L"" QUOR_HELP_COLLECTION;
    InMessage([&](const QMessageBox& box) {
        EXPECT_EQ(FromQt(box.text()), L"An error occurred while attempting to display help topic.\n\n"
                                      L"Error: 9 - The help file \"" +
                                          collection + L"\" has no topic 4711.\n(HelpWindow)");
    });
    EXPECT_EQ(platform.CallHelp(collection, helpCommandContext, 4711), 0);
    EXPECT_EQ(messages, 1);
    EXPECT_EQ(OpenHelpWindow(), nullptr);
}

#endif

// Help

TEST_F(QtPlatformTest, SaysThatThereIsNoHelpFile) {
    for (const std::wstring& missing : {folder.Name("missing.qhc"), std::wstring()}) {
        InMessage([&](const QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), QStringLiteral("Quor Scientific"));
            EXPECT_EQ(box.icon(), QMessageBox::Critical);
            EXPECT_EQ(FromQt(box.text()), L"An error occurred while attempting to display help topic.\n\n"
                                          L"Error: 53 - There is no help file \"" +
                                              missing + L"\".\n(HelpWindow)");
            EXPECT_EQ(box.button(QMessageBox::Help), nullptr);
        });
        EXPECT_EQ(platform.CallHelp(missing, helpCommandContext, 10110), 0);
    }
    EXPECT_EQ(messages, 2);
    EXPECT_EQ(OpenHelpWindow(), nullptr);
}

TEST_F(QtPlatformTest, DoesNothingForOtherHelpCommands) {
    for (const std::uint32_t command : {0U, 2U, 3U, 0x101U})
        EXPECT_EQ(platform.CallHelp(L"missing.qhc", command, 10110), 0);
    QTest::qWait(20);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(OpenHelpWindow(), nullptr);
}

// File dialogs

TEST_F(QtPlatformTest, AsksForAFileUnderTheTitleInTheFolderWithTheFilter) {
    folder.Write("one.pt1", "");
    const auto chosen = Ask([&](const QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Open PT100 File"));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.nameFilters(), QStringList{QStringLiteral("PT100 Files (*.pt1)")});
        EXPECT_EQ(FromQt(dialog.directory().absolutePath()), folder.Path().wstring());
        EXPECT_EQ(NameOf(dialog).text(), QString()) << "a pattern is no name";
        Enter(dialog, QStringLiteral("one.pt1"));
    });
    EXPECT_EQ(chosen, folder.Name("one.pt1"));
}

TEST_F(QtPlatformTest, ShowsTheFilesThatTheFilterNames) {
    const struct {
        const wchar_t* filter;
        QStringList names;
    } cases[] = {
        {L"W(T90) Files (*.w90)|*.w90", {QStringLiteral("W(T90) Files (*.w90)")}},
        {L"Settings|*.pt1;*.cvd", {QStringLiteral("Settings (*.pt1 *.cvd)")}},
        {L"PT100 Files (*.pt1)|*.pt1|All files|*",
         {QStringLiteral("PT100 Files (*.pt1)"), QStringLiteral("All files (*)")}},
    };
    for (const auto& tested : cases) {
        request.filter = tested.filter;
        EXPECT_EQ(Ask([&](const QFileDialog& dialog) { EXPECT_EQ(dialog.nameFilters(), tested.names); }),
                  std::nullopt);
    }
}

TEST_F(QtPlatformTest, BeginsWithTheNameOfTheFileThatWasLast) {
    folder.Write("last.pt1", "");
    request.fileName = L"last.pt1";
    EXPECT_EQ(Ask([](const QFileDialog& dialog) {
                  EXPECT_EQ(NameOf(dialog).text(), QStringLiteral("last.pt1"));
                  QTest::keyClick(&NameOf(dialog), Qt::Key_Return);
              }),
              folder.Name("last.pt1"));
}

TEST_F(QtPlatformTest, AnswersNothingWhenTheFileDialogIsCancelled) {
    EXPECT_EQ(Ask([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), std::nullopt);
}

TEST_F(QtPlatformTest, OpensNoFileThatIsNotThere) {
    const auto chosen = Ask([&](const QFileDialog& dialog) {
        InMessage(); // says so
        Enter(dialog, QStringLiteral("missing.pt1"));
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(chosen, std::nullopt);
    EXPECT_EQ(messages, 1);
}

TEST_F(QtPlatformTest, OpensAFileWithoutAnExtensionUnderItsOwnName) {
    folder.Write("plain", "");
    EXPECT_EQ(Ask([](const QFileDialog& dialog) { Enter(dialog, QStringLiteral("plain")); }),
              folder.Name("plain"));
}

TEST_F(QtPlatformTest, SavesUnderTheNameThatIsTypedWithTheExtensionThatItLacks) {
    request.kind = FileDialogKind::Save;
    request.title = L"Save PT100 File As";
    request.flags = saveFlags;
    EXPECT_EQ(Ask([](const QFileDialog& dialog) {
                  EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
                  EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save PT100 File As"));
                  Enter(dialog, QStringLiteral("new"));
              }),
              folder.Name("new.pt1"));
    EXPECT_EQ(Ask([](const QFileDialog& dialog) { Enter(dialog, QStringLiteral("other.txt")); }),
              folder.Name("other.txt"));
    EXPECT_EQ(folder.Files(), std::vector<std::string>{}) << "asking writes nothing";
}

TEST_F(QtPlatformTest, AsksBeforeAFileIsOverwrittenWhereTheFlagSaysSo) {
    folder.Write("there.pt1", "");
    request.kind = FileDialogKind::Save;
    request.flags = saveFlags;
    QMessageBox::StandardButton answer = QMessageBox::No;
    const auto save = [&] {
        return Ask([&](const QFileDialog& dialog) {
            WhenShown(IsA<QMessageBox>, [&](QWidget& window) {
                ++messages;
                dynamic_cast<QMessageBox&>(window).button(answer)->click();
            });
            Enter(dialog, QStringLiteral("there")); // the extension is added first
        });
    };
    EXPECT_EQ(save(), std::nullopt);
    EXPECT_EQ(messages, 1);
    answer = QMessageBox::Yes;
    EXPECT_EQ(save(), folder.Name("there.pt1"));
    EXPECT_EQ(messages, 2);
    request.flags = 0;
    EXPECT_EQ(Ask([](const QFileDialog& dialog) { Enter(dialog, QStringLiteral("there")); }),
              folder.Name("there.pt1"));
}

TEST_F(QtPlatformTest, AsksInTheNearestFolderThatIsStillThere) {
    request.folder = folder.Name("gone") + L"/further/";
    request.kind = FileDialogKind::Save;
    request.flags = saveFlags;
    EXPECT_EQ(Ask([&](const QFileDialog& dialog) {
                  EXPECT_EQ(FromQt(dialog.directory().absolutePath()), folder.Path().wstring());
                  Enter(dialog, QStringLiteral("named"));
              }),
              folder.Name("named.pt1"));
}

TEST_F(QtPlatformTest, TakesFileNamesInEveryScript) {
    const std::wstring name = L"W\u00E4rme-\u6E29-\U0001F321.pt1";
    folder.Write(QString::fromStdWString(name).toStdString(), "");
    request.fileName = name;
    EXPECT_EQ(Ask([](const QFileDialog& dialog) { QTest::keyClick(&NameOf(dialog), Qt::Key_Return); }),
              folder.Path().wstring() + L"/" + name);
}

TEST_F(QtPlatformTest, StandsInFrontOfTheWindowOfTheNumber) {
    QWidget owner;
    request.owner = platform.HandleOf(owner);
    Ask([&](const QFileDialog& dialog) { EXPECT_EQ(dialog.parentWidget(), &owner); });
    QtPlatform hosted(&owner);
    request.owner = 4711;
    WhenShown(IsA<QFileDialog>, [&](QWidget& window) {
        EXPECT_EQ(window.parentWidget(), &owner) << "a number that nobody knows is none";
        dynamic_cast<QFileDialog&>(window).reject();
    });
    EXPECT_EQ(hosted.AskForFile(request), std::nullopt);
}

TEST_F(QtPlatformTest, SavesAndOpensSettingsThroughItsDialogs) {
    const auto shared = std::make_shared<QtPlatform>();
    CQuorPT100 saved(shared);
    saved.SetFilePath(folder.Path().wstring() + L"/");
    saved.SetCoefficients(0, 100.02);
    std::wstring file;
    const auto type = [](const QString& name) {
        WhenShown(IsA<QFileDialog>,
                  [name](QWidget& window) { Enter(dynamic_cast<QFileDialog&>(window), name); });
    };
    type(QStringLiteral("probe"));
    EXPECT_TRUE(saved.SaveFileAs(0, file));
    const auto files = folder.Files();
    ASSERT_EQ(files.size(), 1U);
    EXPECT_TRUE(files[0].starts_with("probe."));
    EXPECT_EQ(file, folder.Name(files[0]));
    CQuorPT100 opened(shared);
    opened.SetFilePath(folder.Path().wstring() + L"/");
    file.clear();
    type(QString::fromStdString(files[0]));
    EXPECT_TRUE(opened.OpenFile(0, file));
    EXPECT_EQ(file, folder.Name(files[0]));
    EXPECT_EQ(opened.Coefficients(0), 100.02);
}

// The pointer

TEST_F(QtPlatformTest, ShowsTheBusyPointerOnceHoweverOftenItIsSet) {
    EXPECT_EQ(platform.MousePointer(), POINTER_DEFAULT);
    platform.SetMousePointer(POINTER_HOURGLASS);
    platform.SetMousePointer(POINTER_HOURGLASS);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_EQ(platform.MousePointer(), POINTER_HOURGLASS);
    platform.SetMousePointer(POINTER_DEFAULT);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    platform.SetMousePointer(POINTER_DEFAULT);
    EXPECT_EQ(platform.MousePointer(), POINTER_DEFAULT);
}

TEST_F(QtPlatformTest, KeepsThePointerOfTheHost) {
    const auto hostsOwn = static_cast<EMousePointer>(99);
    QApplication::setOverrideCursor(Qt::CrossCursor);
    platform.SetMousePointer(hostsOwn);
    EXPECT_EQ(platform.MousePointer(), hostsOwn);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
    platform.SetMousePointer(POINTER_HOURGLASS);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    platform.SetMousePointer(hostsOwn);
    EXPECT_EQ(platform.MousePointer(), hostsOwn);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
    QApplication::restoreOverrideCursor();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(QtPlatformTest, GivesThePointerBackWhenItGoes) {
    {
        QtPlatform busy;
        busy.SetMousePointer(POINTER_HOURGLASS);
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// The separator

TEST_F(QtPlatformTest, TakesTheDecimalSeparatorFromTheLocale) {
    const QLocale before;
    const struct {
        QLocale locale;
        const wchar_t* separator;
    } cases[] = {
        {QLocale(QLocale::German, QLocale::Germany), L","},
        {QLocale(QLocale::English, QLocale::UnitedStates), L"."},
        {QLocale(QLocale::Arabic, QLocale::Egypt), L"\u066B"},
        {QLocale::c(), L"."},
    };
    for (const auto& tested : cases) {
        QLocale::setDefault(tested.locale);
        EXPECT_EQ(platform.DecimalSeparator(), tested.separator);
    }
    QLocale::setDefault(before);
}
