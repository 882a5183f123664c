#include "toolkits/qt/HelpWindow.h"

#include "tests/support/Objects.h"
#include "tests/support/TempFolder.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QHelpContentWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

using QuorConversions::QtToolkit::HelpWindow;

namespace {

const wchar_t* const collection = L"" QUOR_HELP_COLLECTION;

/// A help window at the ITS-90 page, and what a person would find in it.
class HelpWindowTest : public testing::Test {
protected:
    void SetUp() override {
        window.ShowTopic(collection, 10110);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(QTest::qWaitFor([this] { return Topics().model()->rowCount() > 1; }, 60'000));
    }

    QTextBrowser& Page() const { return *window.findChild<QTextBrowser*>(); }
    QHelpContentWidget& Topics() const { return *window.findChild<QHelpContentWidget*>(); }
    QLineEdit& FindText() const { return *window.findChild<QLineEdit*>(); }
    std::string Shown() const { return Page().documentTitle().toStdString(); }
    std::string Selected() const { return Topics().currentIndex().data().toString().toStdString(); }
    bool Says(const QString& text) const {
        const auto labels = window.findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel* label) { return label->isVisible() && label->text() == text; });
    }
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window.windowHandle(), static_cast<Qt::Key>(key), modifiers);
    }
    void Type(const QString& text) {
        for (const QChar character : text)
            QTest::keyClick(window.windowHandle(), character.toLatin1());
    }
    /// As the window system reports a click: whether it arrives depends on what is blocked.
    void Click(const QString& topic) {
        Topics().scrollTo(Topic(topic));
        const QPoint place = Topics().visualRect(Topic(topic)).center();
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                          Topics().viewport()->mapTo(&window, place));
    }
    /// The place of a topic in the list.
    QModelIndex Topic(const QString& title) const {
        return Topics()
            .model()
            ->match(Topics().model()->index(0, 0), Qt::DisplayRole, title, 1,
                    Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }

    HelpWindow window;
};

} // namespace

TEST_F(HelpWindowTest, ShowsThePageOfTheContextNumberAndSelectsItsTopic) {
    EXPECT_EQ(Shown(), "ITS-90");
    EXPECT_EQ(Selected(), "ITS-90");
    EXPECT_EQ(window.windowTitle(), "ITS-90 - Help");
    EXPECT_TRUE(Page().toPlainText().contains("triple point of water"));
    window.ShowTopic(collection, 10145);
    EXPECT_EQ(Shown(), "PT100");
    EXPECT_EQ(Selected(), "PT100");
    EXPECT_TRUE(window.isVisible());
}

TEST_F(HelpWindowTest, NamesACollectionThatItCannotShowAndStaysAsItWas) {
    const TempFolder folder;
    folder.Write("text.qhc", "this is no collection");
    const auto expectRefusal = [&](const std::wstring& file, std::int32_t topic, std::int32_t number,
                                   const std::wstring& description) {
        EXPECT_QUOR_ERROR(window.ShowTopic(file, topic), number, L"HelpWindow", description);
        EXPECT_EQ(Shown(), "ITS-90");
        EXPECT_EQ(Selected(), "ITS-90");
    };
    const std::wstring missing = folder.Name("missing.qhc");
    const std::wstring text = folder.Name("text.qhc");
    expectRefusal(missing, 10110, 53, L"There is no help file \"" + missing + L"\".");
    expectRefusal(L"", 10110, 53, L"There is no help file \"\".");
    expectRefusal(folder.Path().wstring(), 10110, 53,
                  L"There is no help file \"" + folder.Path().wstring() + L"\".");
    expectRefusal(text, 10110, 75, L"The file \"" + text + L"\" is not a help collection.");
    expectRefusal(collection, 4711, 9,
                  L"The help file \"" + std::wstring(collection) + L"\" has no topic 4711.");
    EXPECT_EQ(folder.Files(), std::vector<std::string>{"text.qhc"}) << "files were made by looking";
}

TEST_F(HelpWindowTest, DoesNotAppearWhenThereIsNothingToShow) {
    HelpWindow other;
    EXPECT_THROW(other.ShowTopic(L"missing.qhc", 10110), QuorIniFile::QuorError);
    EXPECT_FALSE(other.isVisible());
}

TEST_F(HelpWindowTest, WritesNothingBesideTheCollection) {
    const TempFolder folder;
    const std::filesystem::path built(QUOR_HELP_COLLECTION);
    for (const char* const extension : {".qhc", ".qch"})
        std::filesystem::copy_file(std::filesystem::path(built).replace_extension(extension),
                                   folder.Path(std::string("help") + extension));
    // The collection knows its pages by name.
    std::filesystem::rename(folder.Path("help.qch"), folder.Path("quor-conversions.qch"));
    const auto files = folder.Files();
    const auto bytes = folder.Read("help.qhc");
    {
        HelpWindow other;
        other.ShowTopic(folder.Name("help.qhc"), 10118);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        QTest::qWait(50);
        EXPECT_EQ(other.windowTitle(), "W(T90) - Help");
    }
    EXPECT_EQ(folder.Files(), files);
    EXPECT_EQ(folder.Read("help.qhc"), bytes);
}

TEST_F(HelpWindowTest, FollowsLinksAndFindsTheWayBackByKeyboard) {
    Page().setFocus();
    Press(Qt::Key_Tab); // the first link
    Press(Qt::Key_Return);
    EXPECT_EQ(Shown(), "All topics");
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Shown(), "ITS-90");
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Shown(), "All topics");
    window.ShowTopic(collection, 10114);
    Press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Shown(), "All topics");
}

TEST_F(HelpWindowTest, ShowsTheTopicThatIsChosenInTheListByKeyboardOrMouse) {
    Topics().setFocus();
    Topics().setCurrentIndex(Topic("Units"));
    Press(Qt::Key_Return);
    EXPECT_EQ(Shown(), "Units");
    Click("Thermistor");
    EXPECT_EQ(Shown(), "Thermistor");
}

TEST_F(HelpWindowTest, FindsTextInThePageAndSaysWhenThereIsNone) {
    Press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(FindText().hasFocus());
    Type("1.11807");
    Press(Qt::Key_Return);
    EXPECT_EQ(Page().textCursor().selectedText(), "1.11807");
    EXPECT_FALSE(Says("Continued from the beginning."));
    Press(Qt::Key_F3);
    EXPECT_EQ(Page().textCursor().selectedText(), "1.11807");
    EXPECT_TRUE(Says("Continued from the beginning."));
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_TRUE(Says("Continued from the end."));
    Press(Qt::Key_F, Qt::ControlModifier);
    Type("steam engine");
    Press(Qt::Key_Return);
    EXPECT_TRUE(Says("The page does not contain this text."));
    EXPECT_EQ(Page().textCursor().selectedText(), "1.11807") << "a search without result moves nothing";
}

TEST_F(HelpWindowTest, SearchesInAllPagesAndOpensWhatIsFound) {
    auto& text = *window.findChild<QLineEdit*>("search");
    auto& results = *window.findChild<QListWidget*>("searchResults");
    const auto titles = [&results] {
        QStringList found;
        for (int row = 0; row < results.count(); ++row)
            found += results.item(row)->text();
        return found;
    };
    Press(Qt::Key_S, Qt::AltModifier);
    ASSERT_TRUE(text.hasFocus());
    EXPECT_FALSE(results.isVisible());
    Type("Steinhart");
    EXPECT_TRUE(results.isVisible());
    EXPECT_FALSE(Topics().isVisible());
    EXPECT_TRUE(titles().contains("Thermistor")) << titles().join(", ").toStdString();
    EXPECT_FALSE(titles().contains("Callendar-Van Dusen"));
    const qsizetype some = titles().size();
    Type(" zzz"); // every word must be there
    EXPECT_EQ(titles(), QStringList{"No page contains this."});
    Press(Qt::Key_Return);
    EXPECT_EQ(Shown(), "ITS-90") << "which leads nowhere";
    text.clear();
    EXPECT_FALSE(results.isVisible());
    EXPECT_TRUE(Topics().isVisible());
    Type("sTEINHART");
    EXPECT_EQ(titles().size(), some) << "in any case of letters";
    results.setCurrentRow(static_cast<int>(titles().indexOf("Thermistor")));
    results.setFocus();
    Press(Qt::Key_Return);
    EXPECT_EQ(Shown(), "Thermistor");
    text.setFocus();
    Press(Qt::Key_Return);
    EXPECT_EQ(Shown(), titles().front().toStdString()) << "Return opens the first page";
}

TEST_F(HelpWindowTest, ClosesFirstTheFindBarByEscapeAndThenItself) {
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(FindText().isVisible());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(FindText().isVisible());
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    window.ShowTopic(collection, 10110);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(HelpWindowTest, MakesTextLargerAndSmaller) {
    const auto size = [this] { return Page().font().pointSizeF(); };
    const double before = size();
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(size(), before);
    Press(Qt::Key_Equal, Qt::ControlModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(size(), before);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(size(), before);
}

TEST_F(HelpWindowTest, CanBeUsedWhileTheModalDialogThatAskedForItIsOpen) {
    auto dialog = std::make_unique<QDialog>();
    dialog->setModal(true);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    Press(Qt::Key_Home, Qt::AltModifier);
    Click("Units");
    ASSERT_EQ(Shown(), "ITS-90") << "the test proves nothing: the dialog does not block the window";

    window.ShowTopic(collection, 10111);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    Press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Shown(), "All topics");
    Click("Units");
    EXPECT_EQ(Shown(), "Units");
    EXPECT_TRUE(dialog->isVisible());

    dialog->hide();
    dialog.reset();
    QTest::qWait(20);
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Shown(), "All topics");
    Click("Polynomial");
    EXPECT_EQ(Shown(), "Polynomial");
}

TEST_F(HelpWindowTest, CanBeUsedAfterAMessageThatAskedForItHasGoneFromItsDialog) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    {
        QMessageBox message(&dialog);
        message.setModal(true);
        message.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&message));
        window.ShowTopic(collection, 10111);
        Press(Qt::Key_Home, Qt::AltModifier);
        EXPECT_EQ(Shown(), "All topics");
        message.hide();
    }
    QTest::qWait(20);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Shown(), "IPTS-68");
    Click("Polynomial");
    EXPECT_EQ(Shown(), "Polynomial");
}

TEST_F(HelpWindowTest, KeepsNoProgramRunning) {
    QWidget host;
    host.show();
    QTimer::singleShot(0, &host, &QWidget::close);
    QTimer patience;
    patience.callOnTimeout([] { QCoreApplication::exit(1); });
    patience.start(60'000);
    EXPECT_EQ(QApplication::exec(), 0) << "the program went on after its last window";
}

TEST_F(HelpWindowTest, TellsAScreenReaderWhatEverythingIs) {
    EXPECT_EQ(Page().accessibleName(), "Help page");
    EXPECT_EQ(Topics().accessibleName(), "Topics");
    EXPECT_EQ(FindText().accessibleName(), "Find in page");
    for (const QAction* const action : window.findChildren<QAction*>())
        EXPECT_FALSE(action->text().isEmpty() && !action->isSeparator() && !action->parent())
            << "an action without a text";
}

TEST_F(HelpWindowTest, ReadsThePageAgainWhenThePaletteBecomesAnotherOne) {
    const auto linkColour = [this] {
        QTextCursor cursor(Page().document());
        cursor.setPosition(1);
        return cursor.charFormat().foreground().color();
    };
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Link, QColor(10, 200, 30));
    QApplication::setPalette(dark);
    EXPECT_TRUE(QTest::qWaitFor([&] { return linkColour() == QColor(10, 200, 30); }));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Link, QColor(0, 0, 255));
    QApplication::setPalette(dark);
    EXPECT_TRUE(QTest::qWaitFor([&] { return linkColour() == QColor(0x80, 0xC0, 0xFF); }))
        << "a dark blue cannot be read on a dark ground";
    QApplication::setPalette(before);
}
