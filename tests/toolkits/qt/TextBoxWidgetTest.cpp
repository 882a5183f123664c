#include "toolkits/qt/TextBoxWidget.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

using QuorConversions::QtToolkit::KeyAsciiOf;
using QuorConversions::QtToolkit::TextBoxWidget;

namespace {

const auto none = Qt::NoModifier;
const auto control = Qt::ControlModifier;
const auto shift = Qt::ShiftModifier;
const auto alt = Qt::AltModifier;
const auto altGr = Qt::ControlModifier | Qt::AltModifier;
const auto keypad = Qt::KeypadModifier;

/// A key as the system reports it.
struct Key {
    const char* name;
    int key;
    Qt::KeyboardModifiers modifiers;
    const char16_t* text;
    std::int16_t keyAscii;
};

void PrintTo(const Key& key, std::ostream* out) { *out << key.name; }

const Key keys[] = {
    {"Copy", Qt::Key_C, control, u"\x03", 3},
    {"Paste", Qt::Key_V, control, u"\x16", 22},
    {"Cut", Qt::Key_X, control, u"\x18", 24},
    {"Undo", Qt::Key_Z, control, u"\x1A", 26},
    {"CopyByInsert", Qt::Key_Insert, control, u"", 3},
    {"PasteByInsert", Qt::Key_Insert, shift, u"", 22},
    {"CutByDelete", Qt::Key_Delete, shift, u"\x7F", 24},
    {"Backspace", Qt::Key_Backspace, none, u"\b", 8},
    {"BackspaceOverAWord", Qt::Key_Backspace, control, u"\x7F", 8},
    {"Return", Qt::Key_Return, none, u"\r", 13},
    {"EnterOfTheKeypad", Qt::Key_Enter, keypad, u"\r", 13},
    {"Digit", Qt::Key_7, none, u"7", '7'},
    {"DigitOfTheKeypad", Qt::Key_7, keypad, u"7", '7'},
    {"Space", Qt::Key_Space, none, u" ", ' '},
    {"CapitalLetter", Qt::Key_E, shift, u"E", 'E'},
    {"LetterWithAccent", Qt::Key_Eacute, none, u"\u00E9", 0xE9},
    {"EuroByAltGr", Qt::Key_E, altGr, u"\u20AC", 0x20AC},
    {"AtByTheSwitchOfGroups", Qt::Key_At, Qt::GroupSwitchModifier, u"@", '@'},
    {"ArabicSeparator", Qt::Key_unknown, none, u"\u066B", 0x66B},
    {"GreatestPositiveCode", Qt::Key_unknown, none, u"\u7FFF", 0x7FFF},
    {"FullWidthMinus", Qt::Key_unknown, none, u"\uFF0D", 0xFF0D - 0x10000},
    {"CharacterOfTwoUnits", Qt::Key_unknown, none, u"\U0001F321", 0xFFFD - 0x10000},
    {"Left", Qt::Key_Left, none, u"", 0},
    {"Right", Qt::Key_Right, shift, u"", 0},
    {"Home", Qt::Key_Home, none, u"", 0},
    {"End", Qt::Key_End, none, u"", 0},
    {"Delete", Qt::Key_Delete, none, u"\x7F", 0},
    {"Tab", Qt::Key_Tab, none, u"\t", 0},
    {"Backtab", Qt::Key_Backtab, shift, u"", 0},
    {"Escape", Qt::Key_Escape, none, u"\x1B", 0},
    {"FunctionKey", Qt::Key_F1, none, u"", 0},
    {"ShiftAlone", Qt::Key_Shift, shift, u"", 0},
    {"SelectAll", Qt::Key_A, control, u"\x01", 0},
    {"AccessKey", Qt::Key_O, alt, u"o", 0},
    {"KeyOfTheSystem", Qt::Key_E, Qt::MetaModifier, u"e", 0},
};

class KeyAsciiTest : public testing::TestWithParam<Key> {};

/// A box on the screen, and what it asks its filter.
class TextBoxWidgetTest : public testing::Test {
protected:
    void SetUp() override {
        box.resize(box.sizeHint());
        box.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
        box.setFocus();
        QApplication::clipboard()->setText(QStringLiteral("2.5"));
    }

    std::string Text() const { return box.text().toStdString(); }
    /// Where the cursor blinks.
    int CursorX() {
        box.grab(); // the text is scrolled when it is drawn
        return box.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
    }
    /// Chooses an entry of the context menu.
    void Choose(const char* entry) {
        QContextMenuEvent asksForMenu(QContextMenuEvent::Mouse, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&box, &asksForMenu);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* const action : menu->actions())
            if (action->text().startsWith(QLatin1String(entry)))
                action->trigger();
        menu->close();
    }
    /// Presses a key that has a text, as the system reports it.
    void Press(int key, const QString& text, Qt::KeyboardModifiers modifiers = none) {
        QTest::sendKeyEvent(QTest::Click, &box, static_cast<Qt::Key>(key), text, modifiers);
    }

    std::vector<std::int16_t> asked;
    std::vector<std::string> pasted;
    std::function<std::int16_t(std::int16_t)> answer = [](std::int16_t keyAscii) { return keyAscii; };
    TextBoxWidget box{[this](std::int16_t keyAscii) {
                          asked.push_back(keyAscii);
                          return answer(keyAscii);
                      },
                      [this](const QString& text) {
                          pasted.push_back(text.toStdString());
                          box.ReplaceText(text);
                      },
                      nullptr};
};

using Codes = std::vector<std::int16_t>;

} // namespace

TEST_P(KeyAsciiTest, IsWhatTheKeyTypesOrDoes) {
    const Key& key = GetParam();
    const QKeyEvent event(QEvent::KeyPress, key.key, key.modifiers, QString::fromUtf16(key.text));
    EXPECT_EQ(KeyAsciiOf(event), key.keyAscii);
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyAsciiTest, testing::ValuesIn(keys),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(TextBoxWidgetTest, TypesTheKeyThatTheFilterLetsPass) {
    QTest::keyClicks(&box, QStringLiteral("-1.5e3"));
    EXPECT_EQ(Text(), "-1.5e3");
    EXPECT_EQ(asked, (Codes{'-', '1', '.', '5', 'e', '3'}));
}

TEST_F(TextBoxWidgetTest, TypesTheKeyThatTheFilterPutsInThePlaceOfThePressedOne) {
    answer = [](std::int16_t keyAscii) { return keyAscii == '.' ? std::int16_t{','} : keyAscii; };
    QTest::keyClicks(&box, QStringLiteral("1.5"));
    EXPECT_EQ(Text(), "1,5");
}

TEST_F(TextBoxWidgetTest, TypesAReplacedKeyOverWhatIsSelected) {
    box.setText(QStringLiteral("12345"));
    box.setSelection(1, 3);
    answer = [](std::int16_t) { return std::int16_t{','}; };
    QTest::keyClick(&box, '.');
    EXPECT_EQ(Text(), "1,5");
    EXPECT_EQ(box.cursorPosition(), 2);
}

TEST_F(TextBoxWidgetTest, TypesAReplacedKeyWithTheHighestCode) {
    answer = [](std::int16_t) { return std::int16_t{-1}; };
    QTest::keyClick(&box, '1');
    EXPECT_EQ(box.text(), QString(QChar(0xFFFF)));
}

TEST_F(TextBoxWidgetTest, TypesNothingForAKeyThatTheFilterSwallows) {
    box.setText(QStringLiteral("12"));
    box.selectAll();
    answer = [](std::int16_t) { return std::int16_t{0}; };
    QTest::keyClicks(&box, QStringLiteral("x"));
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_V, control);
    QTest::keyClick(&box, Qt::Key_X, control);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(Text(), "12");
    EXPECT_EQ(box.selectedText(), QStringLiteral("12"));
    EXPECT_EQ(asked, (Codes{'x', 8, 22, 24, 13}));
}

TEST_F(TextBoxWidgetTest, TypesTheCharacterThatPassesWhateverItsCode) {
    Press(Qt::Key_unknown, QString(QChar(0xFF15)));
    EXPECT_EQ(box.text(), QString(QChar(0xFF15)));
}

TEST_F(TextBoxWidgetTest, CopiesPastesCutsUndoesAndDeletesBackwards) {
    QTest::keyClicks(&box, QStringLiteral("17"));
    QTest::keyClick(&box, Qt::Key_V, control);
    EXPECT_EQ(Text(), "2.5");
    QTest::keyClick(&box, Qt::Key_Z, control);
    EXPECT_EQ(Text(), "17");
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(Text(), "1");
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_C, control);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1"));
    QApplication::clipboard()->clear();
    QTest::keyClick(&box, Qt::Key_X, control);
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1"));
    EXPECT_EQ(asked, (Codes{'1', '7', 22, 26, 8, 3, 24}));
}

TEST_F(TextBoxWidgetTest, DoesWhatTheKeyDoesThatTheFilterPutsInThePlaceOfALetter) {
    std::int16_t replacement = 0;
    answer = [&](std::int16_t) { return replacement; };
    const auto become = [&](std::int16_t keyAscii) {
        replacement = keyAscii;
        QTest::keyClick(&box, 'q');
        return Text();
    };
    EXPECT_EQ(become(22), "2.5");
    EXPECT_EQ(become(8), "2.");
    box.selectAll();
    EXPECT_EQ(become(3), "2.");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("2."));
    EXPECT_EQ(become(24), "");
    EXPECT_EQ(become(26), "2.");
    EXPECT_EQ(become(13), "2.") << "an Enter does nothing to a line of text";
    EXPECT_EQ(become(7), "2.") << "a code that no key has does nothing";
}

TEST_F(TextBoxWidgetTest, LetsKeysPassThatAreNoCharacters) {
    box.setText(QStringLiteral("12345"));
    answer = [](std::int16_t) { return std::int16_t{0}; };
    QTest::keyClick(&box, Qt::Key_Home);
    EXPECT_EQ(box.cursorPosition(), 0);
    QTest::keyClick(&box, Qt::Key_Right);
    EXPECT_EQ(box.cursorPosition(), 1);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(Text(), "1345");
    QTest::keyClick(&box, Qt::Key_End, shift);
    EXPECT_EQ(box.selectedText(), QStringLiteral("345"));
    QTest::keyClick(&box, Qt::Key_A, control);
    EXPECT_EQ(box.selectedText(), QStringLiteral("1345"));
    QTest::keyClick(&box, Qt::Key_F5);
    EXPECT_EQ(Text(), "1345");
    EXPECT_EQ(asked, Codes{});
}

TEST_F(TextBoxWidgetTest, TypesNothingForALetterWithAltOrTheKeyOfTheSystem) {
    Press(Qt::Key_Q, QStringLiteral("q"), alt);
    Press(Qt::Key_Q, QStringLiteral("Q"), alt | shift);
    Press(Qt::Key_Q, QStringLiteral("q"), Qt::MetaModifier);
    EXPECT_EQ(Text(), "") << "a command is no character, also where it commands nothing here";
    EXPECT_EQ(asked, Codes{});
}

TEST_F(TextBoxWidgetTest, TypesNothingForAnInvisibleMarkWithControl) {
    Press(Qt::Key_Shift, QString(QChar(0x200F)), control | shift);
    EXPECT_EQ(box.text().size(), 0) << "a number with a mark that nobody sees is none";
}

TEST_F(TextBoxWidgetTest, AsksForEachCharacterThatAnInputMethodCommits) {
    answer = [](std::int16_t keyAscii) { return keyAscii == '5' ? keyAscii : std::int16_t{0}; };
    box.setText(QStringLiteral("12"));
    box.selectAll();
    QInputMethodEvent typed;
    typed.setCommitString(QString::fromUtf16(u"\uFF0D5\U0001F321"));
    QApplication::sendEvent(&box, &typed);
    EXPECT_EQ(Text(), "5");
    EXPECT_EQ(asked, (Codes{0xFF0D - 0x10000, '5', 0xFFFD - 0x10000}));
}

TEST_F(TextBoxWidgetTest, ReplacesWhatAnInputMethodReplaces) {
    box.setText(QStringLiteral("12"));
    QInputMethodEvent typed;
    typed.setCommitString(QStringLiteral("34"), -1, 1);
    QApplication::sendEvent(&box, &typed);
    EXPECT_EQ(Text(), "134");
}

TEST_F(TextBoxWidgetTest, TakesATextThatIsDroppedOnIt) {
    QMimeData text;
    text.setText(QStringLiteral("99.9746"));
    const QPoint middle = box.rect().center();
    QDragEnterEvent enters(middle, Qt::CopyAction, &text, Qt::LeftButton, none);
    QApplication::sendEvent(&box, &enters);
    EXPECT_TRUE(enters.isAccepted());
    QDropEvent drops(middle, Qt::CopyAction, &text, Qt::LeftButton, none);
    QApplication::sendEvent(&box, &drops);
    EXPECT_EQ(Text(), "99.9746");
}

TEST_F(TextBoxWidgetTest, AsksWhatBecomesOfATextFromKeysMenuAndDrops) {
    QTest::keyClick(&box, Qt::Key_V, control);
    QTest::keyClick(&box, Qt::Key_Insert, shift);
    Choose("&Paste");
    QMimeData text;
    text.setText(QStringLiteral("99.9746"));
    QDragEnterEvent enters(box.rect().center(), Qt::MoveAction, &text, Qt::LeftButton, none);
    QApplication::sendEvent(&box, &enters);
    QDropEvent drops(box.rect().center(), Qt::CopyAction | Qt::MoveAction, &text, Qt::LeftButton, none);
    drops.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&box, &drops);
    EXPECT_EQ(drops.dropAction(), Qt::CopyAction) << "a refused text must not vanish where it came from";
    EXPECT_EQ(pasted, (std::vector<std::string>{"2.5", "2.5", "2.5", "99.9746"}));
}

// Needs no window manager, so that it can be tried on an X server alone: DISPLAY=:9 QT_QPA_PLATFORM=xcb.
TEST(TextBoxWidgetSelection, TakesTheTextSelectedElsewhereWithTheMiddleButton) {
    if (!QApplication::clipboard()->supportsSelection())
        GTEST_SKIP() << "this screen has no selection beside its clipboard";
    std::vector<std::string> pasted;
    TextBoxWidget box([](std::int16_t keyAscii) { return keyAscii; },
                      [&](const QString& text) { pasted.push_back(text.toStdString()); }, nullptr);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
    QApplication::clipboard()->setText(QStringLiteral("7.5"), QClipboard::Selection);
    QTest::mouseClick(&box, Qt::MiddleButton);
    EXPECT_EQ(pasted, std::vector<std::string>{"7.5"});
    EXPECT_EQ(box.text(), QString()) << "what becomes of it is not the box's to say";
    QTest::keyClick(&box, Qt::Key_Insert, control | shift);
    EXPECT_EQ(pasted, (std::vector<std::string>{"7.5", "7.5"}));
}

TEST_F(TextBoxWidgetTest, UndoTakesBackAPasteAndNothingElse) {
    QTest::keyClicks(&box, QStringLiteral("17"));
    QTest::keyClick(&box, Qt::Key_V, control);
    QTest::keyClicks(&box, QStringLiteral("3"));
    EXPECT_EQ(Text(), "2.53");
    QTest::keyClick(&box, Qt::Key_Z, control);
    EXPECT_EQ(Text(), "2.5");
    QTest::keyClick(&box, Qt::Key_Z, control);
    EXPECT_EQ(Text(), "17");
}

TEST_F(TextBoxWidgetTest, TheMenuAsksAboutTheKeysThatItsEntriesStandFor) {
    QTest::keyClicks(&box, QStringLiteral("17"));
    asked.clear();
    Choose("&Undo");
    EXPECT_EQ(asked, Codes{26});
    EXPECT_EQ(Text(), "");
    QTest::keyClick(&box, Qt::Key_V, control);
    box.selectAll();
    asked.clear();
    Choose("&Copy");
    Choose("Cu&t");
    Choose("&Paste");
    EXPECT_EQ(asked, (Codes{3, 24, 22}));
    EXPECT_EQ(Text(), "2.5");
    answer = [](std::int16_t) { return std::int16_t{0}; };
    Choose("&Undo");
    EXPECT_EQ(Text(), "2.5") << "a key that does not count";
}

TEST_F(TextBoxWidgetTest, MarksItselfAndTellsWhy) {
    const QImage before = box.grab().toImage();
    box.ShowAdvice(QStringLiteral("Not a number: 0 would be stored"));
    EXPECT_NE(box.grab().toImage(), before);
    EXPECT_EQ(box.toolTip(), QStringLiteral("Not a number: 0 would be stored"));
    EXPECT_EQ(box.accessibleDescription(), QStringLiteral("Not a number: 0 would be stored"));
    box.ShowAdvice({});
    EXPECT_EQ(box.grab().toImage(), before);
    EXPECT_EQ(box.toolTip(), QString());
}

TEST_F(TextBoxWidgetTest, IsWideEnoughForTheLongestNumberInAnyFont) {
    for (const int size : {8, 12, 36}) {
        QFont font = box.font();
        font.setPointSize(size);
        box.setFont(font);
        box.resize(box.sizeHint());
        box.setText(QStringLiteral("-2.2250738585072014E-308"));
        QTest::keyClick(&box, Qt::Key_Home);
        const int first = CursorX();
        QTest::keyClick(&box, Qt::Key_End);
        const int last = CursorX();
        EXPECT_GE(last - first, box.fontMetrics().horizontalAdvance(box.text()) - 2)
            << "the text was scrolled";
        EXPECT_GT(first, 0);
        EXPECT_LT(last, box.width());
    }
}

TEST_F(TextBoxWidgetTest, ShowsNumbersAtItsRightEdgeAlsoFromRightToLeft) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(box.layoutDirection(), Qt::LeftToRight);
    EXPECT_TRUE(box.alignment() & Qt::AlignRight);
    QTest::keyClicks(&box, QStringLiteral("-1.5"));
    EXPECT_GT(CursorX(), box.width() / 2);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}
