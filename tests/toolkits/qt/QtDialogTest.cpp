#include "toolkits/qt/QtDialog.h"

#include "QuorConversions/qt/QtPlatform.h"
#include "QuorConversions/qt/QtText.h"
#include "tests/toolkits/SampleDialog.h"
#include "tests/toolkits/qt/QtScreen.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <exception>
#include <map>
#include <stdexcept>

using namespace QuorConversions;
using QtToolkit::FromQt;
using QtToolkit::QtPlatform;
using QtToolkit::ToQt;
using Support::ExpectShowsTheModel;
using Support::LetLayOut;
using Support::SampleDialog;
using Support::WhenShown;

namespace {

using Texts = std::vector<std::wstring>;

/// With more boxes than a screen has lines.
class TallDialog : public SampleDialog {
public:
    TallDialog() {
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            labels[i]->SetCaption(L"Value " + std::to_wstring(i + 1));
            probe.AddRow({labels[i], boxes[i]});
        }
    }
    std::vector<Label*> labels = AddArray<Label>(L"lblMore", 100);
    std::vector<TextBox*> boxes = AddArray<TextBox>(L"txtMore", 100);
};

/// Counts the windows that are shown.
class ShownWindows : public QObject {
public:
    ShownWindows() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show && watched->isWidgetType() &&
            static_cast<QWidget*>(watched)->isWindow())
            ++count;
        return false;
    }
    int count = 0;
};

/// A dialog in its window, and keys and a mouse in front of it. What is pressed goes to the window, as from
/// the system.
class QtDialogTest : public testing::Test {
protected:
    /// Runs a dialog while `act` acts on it. It is closed at the latest when that returns.
    void Run(SampleDialog& shown, const std::function<void()>& act) {
        std::exception_ptr failure;
        WhenShown([name = ToQt(shown.Name())](const QWidget& w) { return w.objectName() == name; },
                  [&](QWidget& w) {
                      QWidget* const before = std::exchange(window, &w);
                      EXPECT_TRUE(QTest::qWaitForWindowActive(&w));
                      try {
                          act();
                      } catch (...) { // it must not pass through the event loop
                          failure = std::current_exception();
                      }
                      dynamic_cast<QDialog&>(w).done(0);
                      window = before;
                  });
        shown.RunOn(platform);
        if (failure)
            std::rethrow_exception(failure);
    }
    void Run(const std::function<void()>& act) { Run(dialog, act); }

    template <class T = QWidget>
    T& Shows(const Control& control) const {
        auto* const widget = window->findChild<T*>(ToQt(control.Name()));
        if (!widget)
            throw std::logic_error("no widget shows the control");
        return *widget;
    }
    QLineEdit& Box(const TextBox& box) const { return Shows<QLineEdit>(box); }

    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(window->windowHandle(), static_cast<Qt::Key>(key), modifiers);
    }
    void Type(const QString& text) const {
        for (const QChar character : text)
            QTest::keyClick(window->windowHandle(), character.toLatin1());
    }
    void Click(const QWidget& widget, QPoint at) const {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, at));
    }
    void Click(const QWidget& widget) const { Click(widget, widget.rect().center()); }
    void GoTo(Control& control) const {
        Shows(control).setFocus(Qt::TabFocusReason);
        ASSERT_EQ(control.Owner().ActiveControl(), &control);
    }
    /// Turns the mouse wheel over a control, one notch towards the hand.
    void TurnWheelOver(const Control& control) const {
        QWidget& widget = Shows(control);
        const QPointF at = widget.rect().center();
        QWheelEvent turned(at, widget.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                           Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turned); // as from the system: it goes on to the widget around
        qApp->notify(&widget, &turned);
    }
    /// A button that is pressed by its access key stays down for a moment.
    void LetSpringBack() const {
        EXPECT_TRUE(QTest::qWaitFor([this] {
            const auto buttons = window->findChildren<QAbstractButton*>();
            return std::none_of(buttons.begin(), buttons.end(),
                                [](const QAbstractButton* button) { return button->isDown(); });
        }));
    }
    /// What is clicked now is a click of its own.
    void LetDoubleClickPass() const { QTest::qWait(QApplication::doubleClickInterval() * 5 / 4); }
    /// As a window manager does, also when the window in front has gone.
    static void BringToFront(QWidget& inFront) {
        inFront.activateWindow();
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == inFront.windowHandle(); }));
    }
    bool SawEvent(const std::wstring& event) const {
        return std::find(dialog.events.begin(), dialog.events.end(), event) != dialog.events.end();
    }
    static std::wstring NameOf(const Control* control) { return control ? control->Name() : L""; }
    std::wstring Focused() const { return NameOf(dialog.ActiveControl()); }

    QtPlatform platform;
    SampleDialog dialog;
    QWidget* window = nullptr;
};

} // namespace

// A dialog that nobody knows

TEST_F(QtDialogTest, ShowsADialogThatItKnowsNothingOf) {
    dialog.kind.SetListIndex(0);
    dialog.name.SetText(L"\U0001F321 probe");
    Run([&] {
        ExpectShowsTheModel(*window, dialog);
        EXPECT_EQ(Shows<QComboBox>(dialog.kind).currentText(), QStringLiteral("ice & water"));
        EXPECT_EQ(Shows<QComboBox>(dialog.kind).itemText(1), QStringLiteral("&zinc"));
        EXPECT_EQ(FromQt(Shows<QComboBox>(dialog.kind).itemText(2)), L"\U0001F321 bath");
        EXPECT_EQ(FromQt(Box(dialog.name).text()), L"\U0001F321 probe");
        EXPECT_EQ(window->windowTitle(), QStringLiteral("Sample Settings"));
    });
}

TEST_F(QtDialogTest, DoesNothingWhileNobodyDoesAnything) {
    Run([&] {
        LetLayOut(200); // a window that lays itself out for ever keeps a processor busy
    });
}

TEST_F(QtDialogTest, AListIsAsWideAsItsLongestItemAlsoWhenThatComesLater) {
    dialog.kind.AddItem(L"zinc, and a little of something else in it");
    Run([&] {
        const auto& list = Shows<QComboBox>(dialog.kind);
        const auto widthOf = [&](int item) {
            return list.fontMetrics().horizontalAdvance(list.itemText(item));
        };
        EXPECT_GT(list.width(), widthOf(3));
        dialog.kind.AddItem(
            L"zinc, and a little of something else in it, and more of that than one would think");
        LetLayOut();
        EXPECT_GT(list.width(), widthOf(4));
    });
}

TEST_F(QtDialogTest, FollowsEveryChangeOfTheModel) {
    Run([&] {
        dialog.SetTitle(L"Other Settings");
        dialog.probe.SetCaption(L"Other:");
        dialog.lblName.SetCaption(L"Called:");
        dialog.ok.SetCaption(L"&Done");
        dialog.ok.SetEnabled(false);
        dialog.r0.SetVisible(false);
        dialog.voltages[0]->SetText(L"1.5");
        dialog.kind.Clear();
        dialog.kind.AddItem(L"one");
        dialog.kind.SetListIndex(0);
        dialog.tabs.RemoveTab(0);
        ExpectShowsTheModel(*window, dialog);
        EXPECT_EQ(Shows<QTabBar>(dialog.tabs).currentIndex(), 1);
        EXPECT_EQ(Box(dialog.name).accessibleName(), QStringLiteral("Called"));
        dialog.low.SetEnabled(false);
        EXPECT_FALSE(Box(*dialog.temperatures[0]).isEnabled());
        dialog.low.SetVisible(false);
        EXPECT_FALSE(Box(*dialog.temperatures[0]).isVisible());
        dialog.kind.SetListIndex(-1);
        EXPECT_EQ(Shows<QComboBox>(dialog.kind).currentIndex(), -1);
    });
}

TEST_F(QtDialogTest, CountsCharactersOfTwoUnitsOnce) {
    dialog.name.SetText(L"a\U0001F321b\U0001F321c");
    Run([&] {
        dialog.name.SetSelection(2, 2); // "b" and the character behind it
        EXPECT_EQ(FromQt(Box(dialog.name).selectedText()), L"b\U0001F321");
        Press(Qt::Key_End);
        EXPECT_EQ(dialog.name.SelStart(), 5U);
        Press(Qt::Key_Left, Qt::ShiftModifier);
        Press(Qt::Key_Left, Qt::ShiftModifier);
        EXPECT_EQ(dialog.name.SelStart(), 3U);
        EXPECT_EQ(dialog.name.SelLength(), 2U);
        Press(Qt::Key_Backspace);
        EXPECT_EQ(dialog.name.Text(), L"a\U0001F321b");
        Press(Qt::Key_Backspace);
        Press(Qt::Key_Backspace);
        EXPECT_EQ(dialog.name.Text(), L"a");
        EXPECT_EQ(dialog.name.SelStart(), 1U);
    });
}

// Keys

TEST_F(QtDialogTest, MovesTheFocusThroughTheControlsInTheOrderOfTheModelAndRound) {
    Run([&] {
        Texts forwards;
        for (int i = 0; i < 12; ++i) {
            forwards.push_back(Focused());
            EXPECT_EQ(FromQt(window->focusWidget()->objectName()), Focused());
            Press(Qt::Key_Tab);
        }
        EXPECT_EQ(forwards, (Texts{L"txtName", L"txtR0", L"cboKind", L"tabPages", L"txtTemperature(0)",
                                   L"txtTemperature(1)", L"txtVoltage(0)", L"txtVoltage(1)", L"cmdOK",
                                   L"cmdCancel", L"cmdMore", L"txtName"}));
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(Focused(), L"txtName");
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(Focused(), L"cmdMore");
    });
}

TEST_F(QtDialogTest, PressesTheButtonOfAnAccessKey) {
    Run([&] {
        Press(Qt::Key_M, Qt::AltModifier);
        LetSpringBack();
        EXPECT_TRUE(SawEvent(L"click cmdMore"));
        EXPECT_EQ(Focused(), L"cmdMore");
        EXPECT_TRUE(dialog.IsOpen());
        Press(Qt::Key_O, Qt::AltModifier);
        LetSpringBack();
        EXPECT_TRUE(SawEvent(L"click cmdOK"));
        EXPECT_FALSE(dialog.IsOpen());
        EXPECT_FALSE(window->isVisible());
    });
}

TEST_F(QtDialogTest, PressesNoButtonThatIsDisabledOrHidden) {
    dialog.ok.SetEnabled(false);
    dialog.more.SetVisible(false);
    Run([&] {
        Press(Qt::Key_O, Qt::AltModifier);
        Press(Qt::Key_M, Qt::AltModifier);
        Click(Shows(dialog.ok));
        LetSpringBack();
        EXPECT_FALSE(SawEvent(L"click cmdOK"));
        EXPECT_FALSE(SawEvent(L"click cmdMore"));
        EXPECT_EQ(Focused(), L"txtName");
        EXPECT_TRUE(dialog.IsOpen());
    });
}

TEST_F(QtDialogTest, GoesToTheBoxWhoseLabelHasTheAccessKey) {
    dialog.r0.SetText(L"100.02");
    Run([&] {
        Press(Qt::Key_R, Qt::AltModifier);
        EXPECT_EQ(Focused(), L"txtR0");
        EXPECT_EQ(Box(dialog.r0).selectedText(), QStringLiteral("100.02"));
        Press(Qt::Key_K, Qt::AltModifier);
        EXPECT_EQ(Focused(), L"cboKind");
        Press(Qt::Key_N, Qt::AltModifier);
        EXPECT_EQ(Focused(), L"txtName");
        EXPECT_EQ(dialog.r0.Text(), L"100.02");
        EXPECT_EQ(dialog.name.Text(), L"");
    });
}

TEST_F(QtDialogTest, TurnsToThePageOfAnAccessKeyAndGoesIntoAGroup) {
    Run([&] {
        Press(Qt::Key_H, Qt::AltModifier);
        EXPECT_EQ(dialog.tabs.Selected(), 2U);
        EXPECT_TRUE(Shows(dialog.note).isVisible());
        EXPECT_FALSE(Shows(*dialog.temperatures[0]).isVisible());
        Press(Qt::Key_L, Qt::AltModifier);
        EXPECT_EQ(dialog.tabs.Selected(), 0U);
        EXPECT_TRUE(Shows(*dialog.temperatures[0]).isVisible());
        GoTo(dialog.more);
        Press(Qt::Key_P, Qt::AltModifier);
        EXPECT_EQ(Focused(), L"tabPages") << "where the focus stood in the group before";
    });
}

TEST_F(QtDialogTest, MovesOnWithEnterFromEveryControlAndPressesNothing) {
    for (const int enter : {Qt::Key_Return, Qt::Key_Enter}) {
        SampleDialog entered;
        Run(entered, [&] {
            std::size_t steps = 0;
            do {
                const Control* const before = entered.ActiveControl();
                Press(enter);
                EXPECT_NE(entered.ActiveControl(), before);
                ++steps;
            } while (entered.ActiveControl() != &entered.name && steps < 20);
            EXPECT_EQ(steps, 11U) << "once round";
            EXPECT_TRUE(entered.IsOpen());
            EXPECT_TRUE(window->isVisible());
        });
        for (const std::wstring& event : entered.events)
            EXPECT_FALSE(event.starts_with(L"click")) << testing::PrintToString(event);
    }
}

TEST_F(QtDialogTest, DoesNothingForAnEnterWhereNothingHasTheFocus) {
    for (const auto& control : dialog.Controls())
        if (control->TakesFocus())
            control->SetEnabled(false);
    Run([&] {
        Press(Qt::Key_Return);
        EXPECT_TRUE(dialog.IsOpen());
    });
    EXPECT_EQ(dialog.events, (Texts{L"activate", L"activate"}));
}

TEST_F(QtDialogTest, CancelsWithEscapeFromEveryControl) {
    for (const wchar_t* const name : {L"txtR0", L"cboKind", L"tabPages", L"cmdOK"}) {
        SampleDialog escaped;
        Run(escaped, [&] {
            GoTo(*escaped.Find(name));
            Press(Qt::Key_Escape);
            EXPECT_FALSE(escaped.IsOpen());
        });
        EXPECT_EQ(escaped.events.back(), L"click cmdCancel");
    }
}

TEST_F(QtDialogTest, StaysOpenAtEscapeWithoutACancelButtonThatCanBePressed) {
    dialog.cancel.SetEnabled(false);
    Run([&] {
        Press(Qt::Key_Escape);
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_TRUE(window->isVisible());
    });
}

TEST_F(QtDialogTest, ClosesAnOpenListAtEscapeAndNothingElse) {
    Run([&] {
        GoTo(dialog.kind);
        auto& list = Shows<QComboBox>(dialog.kind);
        Press(Qt::Key_Down, Qt::AltModifier);
        ASSERT_TRUE(list.view()->isVisible());
        QTest::keyClick(list.view(), Qt::Key_Escape);
        EXPECT_FALSE(list.view()->isVisible());
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_EQ(dialog.kind.ListIndex(), -1);
    });
}

TEST_F(QtDialogTest, PressesTheFocusedButtonWithSpace) {
    Run([&] {
        GoTo(dialog.more);
        Press(Qt::Key_Space);
        EXPECT_EQ(dialog.events.back(), L"click cmdMore");
        GoTo(dialog.ok);
        Press(Qt::Key_Space);
        EXPECT_FALSE(dialog.IsOpen());
    });
}

TEST_F(QtDialogTest, TypesWhatTheModelPutsInThePlaceOfAKey) {
    dialog.onKeyPress = [](std::int16_t& keyAscii) {
        if (keyAscii == '.')
            keyAscii = ',';
        else if (keyAscii > '9')
            keyAscii = 0;
    };
    Run([&] {
        Type(QStringLiteral("1x.5"));
        EXPECT_EQ(dialog.name.Text(), L"1,5");
        EXPECT_EQ(dialog.name.SelStart(), 3U);
        ExpectShowsTheModel(*window, dialog);
    });
}

TEST_F(QtDialogTest, BringsWhatIsPastedAndDroppedToTheModel) {
    QApplication::clipboard()->setText(QStringLiteral("99.9746"));
    Run([&] {
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(dialog.name.Text(), L"99.9746");
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(dialog.name.Text(), L"");
        QMimeData text;
        text.setText(QStringLiteral("0.00385"));
        QLineEdit& box = Box(dialog.r0);
        QDragEnterEvent enters(box.rect().center(), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&box, &enters);
        QDropEvent drops(box.rect().center(), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&box, &drops);
        EXPECT_EQ(dialog.r0.Text(), L"0.00385");
    });
}

TEST_F(QtDialogTest, ShowsTheAdviceOfABoxInItAndBelowTheBoxes) {
    Run([&] {
        const auto& line = *window->findChild<QLabel*>(QStringLiteral("advice"));
        EXPECT_EQ(line.text(), QString());
        const int top = Box(dialog.r0).mapTo(window, QPoint()).y();
        dialog.r0.SetAdvice(L"Only 1 of 1E would be stored");
        EXPECT_EQ(line.text(), QStringLiteral("R0: Only 1 of 1E would be stored"));
        EXPECT_EQ(Box(dialog.r0).accessibleDescription(), QStringLiteral("Only 1 of 1E would be stored"));
        dialog.name.SetAdvice(L"Not a name");
        EXPECT_EQ(line.text(), QStringLiteral("Name: Not a name")) << "of the box with the focus";
        Press(Qt::Key_Tab);
        EXPECT_EQ(line.text(), QStringLiteral("R0: Only 1 of 1E would be stored"));
        LetLayOut();
        EXPECT_EQ(Box(dialog.r0).mapTo(window, QPoint()).y(), top) << "the rows stay where they are";
        dialog.r0.SetAdvice({});
        dialog.name.SetAdvice({});
        EXPECT_EQ(line.text(), QString());
    });
}

TEST_F(QtDialogTest, ShowsTheAdviceOfBoxesThatNobodySeesOnLinesOfTheirOwn) {
    Run([&] {
        const auto& line = *window->findChild<QLabel*>(QStringLiteral("advice"));
        dialog.r0.SetAdvice(L"1.24 would be stored for 1.239");
        dialog.r0.SetVisible(false);
        EXPECT_EQ(line.text(), QStringLiteral("R0: 1.24 would be stored for 1.239"));
        dialog.name.SetAdvice(L"Not a name");
        EXPECT_EQ(line.text(), QStringLiteral("Name: Not a name\nR0: 1.24 would be stored for 1.239"));
        LetLayOut();
        EXPECT_GE(line.height(), line.heightForWidth(line.width())) << "both lines have their room";
        EXPECT_EQ(line.visibleRegion().boundingRect(), line.rect());
    });
}

TEST_F(QtDialogTest, ShowsAdviceThatComesWhileTheUserTypes) {
    dialog.onEdit = [&](TextBox& box) { box.SetAdvice(L"of " + box.Text()); };
    Run([&] {
        Type(QStringLiteral("1"));
        EXPECT_EQ(Box(dialog.name).accessibleDescription(), QStringLiteral("of 1"));
    });
}

TEST_F(QtDialogTest, UndoTakesBackWhatAPasteHasDoneToEveryBox) {
    dialog.onPaste = [&](TextBox& box, const std::wstring& text) {
        box.SetSelection(0, box.Text().size());
        box.ReplaceSelection(text);
        dialog.r0.SetSelection(0, dialog.r0.Text().size());
        dialog.r0.ReplaceSelection(L"also");
    };
    dialog.name.SetText(L"a");
    dialog.r0.SetText(L"b");
    QApplication::clipboard()->setText(QStringLiteral("pasted"));
    Run([&] {
        Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(dialog.name.Text(), L"pasted");
        EXPECT_EQ(dialog.r0.Text(), L"also");
        ExpectShowsTheModel(*window, dialog);
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(dialog.name.Text(), L"a");
        Press(Qt::Key_Tab);
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(dialog.r0.Text(), L"b");
    });
}

TEST_F(QtDialogTest, PressesHelpByF1WhereverTheFocusIs) {
    dialog.SetHelpButton(dialog.more);
    Run([&] {
        for (Control* const control :
             std::initializer_list<Control*>{&dialog.name, &dialog.kind, &dialog.tabs, &dialog.ok}) {
            GoTo(*control);
            dialog.events.clear();
            Press(Qt::Key_F1);
            EXPECT_TRUE(SawEvent(L"click cmdMore"));
            EXPECT_EQ(dialog.ActiveControl(), control);
        }
    });
}

TEST_F(QtDialogTest, ShowsWhereTheFocusIsThatTheTabKeyBrings) {
    dialog.kind.SetListIndex(0);
    Run([&] {
        std::map<const Control*, QImage> without;
        for (const Control* const control :
             {static_cast<const Control*>(&dialog.kind), static_cast<const Control*>(&dialog.tabs),
              static_cast<const Control*>(&dialog.ok)})
            without[control] = Shows(*control).grab().toImage();
        for (int tabs = 0; tabs < 12; ++tabs) {
            Press(Qt::Key_Tab);
            if (const auto found = without.find(dialog.ActiveControl()); found != without.end()) {
                EXPECT_NE(Shows(*found->first).grab().toImage(), found->second)
                    << testing::PrintToString(found->first->Name());
                without.erase(found);
            }
        }
        EXPECT_TRUE(without.empty());
    });
}

TEST_F(QtDialogTest, PutsTheRingAroundTheControlThatHasTheFocusFromTheStartAndWhenTheWindowGrows) {
    dialog.name.SetEnabled(false);
    dialog.r0.SetEnabled(false);
    Run([&] {
        ASSERT_EQ(Focused(), L"cboKind");
        const auto& ring = *window->findChild<QWidget*>(QStringLiteral("focusRing"));
        const QWidget& list = Shows(dialog.kind);
        EXPECT_EQ(ring.geometry(), list.geometry());
        EXPECT_EQ(ring.parentWidget(), list.parentWidget());
        const QRect before = list.geometry();
        window->resize(window->size() + QSize(200, 100));
        LetLayOut();
        EXPECT_NE(list.geometry(), before);
        EXPECT_EQ(ring.geometry(), list.geometry());
    });
}

// The mouse

TEST_F(QtDialogTest, TurnsNoListAndNoTabWithTheWheelThatHasNoFocus) {
    dialog.kind.SetListIndex(0);
    dialog.name.SetText(L"1");
    Run([&] {
        TurnWheelOver(dialog.kind);
        TurnWheelOver(dialog.tabs);
        TurnWheelOver(dialog.name);
        EXPECT_EQ(dialog.kind.ListIndex(), 0);
        EXPECT_EQ(dialog.tabs.Selected(), 0U);
        EXPECT_EQ(dialog.name.Text(), L"1");
        EXPECT_EQ(Focused(), L"txtName") << "the wheel brings no focus";
    });
}

TEST_F(QtDialogTest, TurnsTheListOrTheTabThatHasTheFocusWithTheWheel) {
    dialog.kind.SetListIndex(0);
    Run([&] {
        GoTo(dialog.kind);
        TurnWheelOver(dialog.kind);
        EXPECT_EQ(dialog.kind.ListIndex(), 1);
        GoTo(dialog.tabs);
        TurnWheelOver(dialog.tabs);
        EXPECT_EQ(dialog.tabs.Selected(), 1U);
        ExpectShowsTheModel(*window, dialog);
    });
}

TEST_F(QtDialogTest, TurnsNothingWithTheWheelWhileAnotherWindowIsInFront) {
    dialog.kind.SetListIndex(0);
    QWidget help;
    Run([&] {
        GoTo(dialog.kind);
        help.winId();
        help.windowHandle()->setTransientParent(window->windowHandle());
        help.show();
        BringToFront(help);
        TurnWheelOver(dialog.kind);
        EXPECT_EQ(dialog.kind.ListIndex(), 0);
        help.hide();
    });
}

TEST_F(QtDialogTest, SelectsAllOfABoxWithTheClickThatGoesToItAndPutsTheCursorWithTheNext) {
    dialog.r0.SetText(L"100.02345");
    Run([&] {
        QLineEdit& box = Box(dialog.r0);
        Click(box);
        EXPECT_EQ(Focused(), L"txtR0");
        EXPECT_EQ(box.selectedText(), QStringLiteral("100.02345"));
        LetDoubleClickPass();
        Click(box, QPoint(box.width() - 4, box.height() / 2));
        EXPECT_FALSE(box.hasSelectedText());
        EXPECT_EQ(box.cursorPosition(), 9);
        EXPECT_EQ(dialog.r0.SelStart(), 9U);
        EXPECT_EQ(dialog.r0.SelLength(), 0U);
    });
}

TEST_F(QtDialogTest, KeepsAllOfABoxSelectedWhereTheHandTremblesInTheFirstClick) {
    dialog.r0.SetText(L"100.02345");
    Run([&] {
        QLineEdit& box = Box(dialog.r0);
        const QPoint at = box.mapTo(window, QPoint(box.width() - 20, box.height() / 2));
        QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, at);
        QTest::mouseMove(window->windowHandle(), at - QPoint(2, 1));
        QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, at - QPoint(2, 1));
        EXPECT_EQ(box.selectedText(), QStringLiteral("100.02345"));
        EXPECT_EQ(dialog.r0.SelLength(), 9U);
    });
}

TEST_F(QtDialogTest, SelectsAPartOfABoxThatHasTheFocusWithTheMouse) {
    dialog.name.SetText(L"100.02345");
    Run([&] {
        QLineEdit& box = Box(dialog.name);
        const QPoint end = box.mapTo(window, QPoint(box.width() - 4, box.height() / 2));
        QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, end);
        QTest::mouseMove(window->windowHandle(), end - QPoint(box.width() - 8, 0));
        QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, end - QPoint(box.width() - 8, 0));
        EXPECT_EQ(dialog.name.SelStart(), 0U);
        EXPECT_EQ(dialog.name.SelLength(), 9U);
    });
}

TEST_F(QtDialogTest, TakesTheItemThatIsChosenByKeyboard) {
    dialog.kind.SetListIndex(0);
    dialog.events.clear();
    Run([&] {
        GoTo(dialog.kind);
        Press(Qt::Key_Down);
        EXPECT_EQ(dialog.kind.ListIndex(), 1);
        Press(Qt::Key_End);
        EXPECT_EQ(dialog.kind.ListIndex(), 2);
        Type(QStringLiteral("i")); // the first letter of "ice & water"
        EXPECT_EQ(dialog.kind.ListIndex(), 0);
        EXPECT_EQ(std::count(dialog.events.begin(), dialog.events.end(), L"click cboKind"), 3);
    });
}

TEST_F(QtDialogTest, TakesTheItemThatIsChosenByMouseAlsoTheSameOneAgain) {
    Run([&] {
        auto& list = Shows<QComboBox>(dialog.kind);
        const auto choose = [&](int item) {
            Click(list);
            LetDoubleClickPass();
            ASSERT_TRUE(list.view()->isVisible());
            QTest::mouseClick(list.view()->viewport(), Qt::LeftButton, {},
                              list.view()->visualRect(list.model()->index(item, 0)).center());
        };
        choose(2);
        EXPECT_EQ(dialog.kind.ListIndex(), 2);
        choose(2);
        EXPECT_EQ(dialog.kind.ListIndex(), 2);
        EXPECT_EQ(std::count(dialog.events.begin(), dialog.events.end(), L"click cboKind"), 2);
        EXPECT_EQ(Focused(), L"cboKind");
    });
}

TEST_F(QtDialogTest, TurnsToNoTabThatIsTakenOutByKeysNorByTheWheel) {
    dialog.tabs.RemoveTab(1);
    dialog.tabs.RemoveTab(2);
    Run([&] {
        GoTo(dialog.tabs);
        Press(Qt::Key_Right);
        EXPECT_EQ(dialog.tabs.Selected(), 0U);
        ExpectShowsTheModel(*window, dialog);
        TurnWheelOver(dialog.tabs);
        ExpectShowsTheModel(*window, dialog);
        Press(Qt::Key_End);
        ExpectShowsTheModel(*window, dialog);
    });
}

TEST_F(QtDialogTest, TurnsToNoTabThatIsTakenOutBeforeTheOthers) {
    dialog.tabs.RemoveTab(0);
    Run([&] {
        GoTo(dialog.tabs);
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left}) {
            Press(key);
            ExpectShowsTheModel(*window, dialog);
            EXPECT_NE(dialog.tabs.Selected(), 0U);
        }
    });
}

TEST_F(QtDialogTest, TurnsToTheTabThatIsClickedOrReachedByArrow) {
    Run([&] {
        auto& bar = Shows<QTabBar>(dialog.tabs);
        Click(bar, bar.tabRect(2).center());
        EXPECT_EQ(dialog.tabs.Selected(), 2U);
        EXPECT_EQ(Focused(), L"tabPages");
        Press(Qt::Key_Left);
        EXPECT_EQ(dialog.tabs.Selected(), 1U);
        ExpectShowsTheModel(*window, dialog);
    });
}

// Reading it aloud

TEST_F(QtDialogTest, TellsScreenReadersTheLabelAndTheUnitsOfEachBox) {
    Run([&] {
        const auto spoken = [&](const Control& control) {
            return FromQt(QAccessible::queryAccessibleInterface(&Shows(control))->text(QAccessible::Name));
        };
        EXPECT_EQ(spoken(dialog.name), L"Name");
        EXPECT_EQ(spoken(dialog.r0), L"R0, \u03A9");
        EXPECT_EQ(spoken(dialog.kind), L"Kind");
        EXPECT_EQ(spoken(*dialog.temperatures[1]), L"Temperature 2, \u00B0C");
        EXPECT_EQ(spoken(*dialog.voltages[0]), L"Voltage 1, mV");
        EXPECT_EQ(spoken(dialog.ok), L"OK");
        dialog.temperatureUnits[1]->SetCaption(L"\u00B0F");
        EXPECT_EQ(spoken(*dialog.temperatures[1]), L"Temperature 2, \u00B0F");
    });
}

TEST_F(QtDialogTest, ShowsUnitsAsTheyStandInTheFile) {
    dialog.lblR0Units.SetCaption(L"<b>m</b> & k\u03A9");
    Run([&] {
        const auto& units = Shows<QLabel>(dialog.lblR0Units);
        EXPECT_EQ(FromQt(units.text()), L"<b>m</b> & k\u03A9");
        EXPECT_EQ(units.textFormat(), Qt::PlainText);
        EXPECT_EQ(FromQt(Box(dialog.r0).accessibleName()), L"R0, <b>m</b> & k\u03A9");
    });
}

TEST_F(QtDialogTest, TakesNothingInADialogThatIsReadOnly) {
    dialog.name.SetText(L"100");
    dialog.kind.SetListIndex(0);
    dialog.events.clear();
    for (const auto& control : dialog.Controls())
        control->SetEnabled(control.get() == &dialog.cancel || control.get() == &dialog.buttons);
    Run([&] {
        EXPECT_EQ(Focused(), L"cmdCancel");
        Click(Box(dialog.name));
        Type(QStringLiteral("7"));
        Press(Qt::Key_N, Qt::AltModifier);
        Press(Qt::Key_O, Qt::AltModifier);
        LetSpringBack();
        TurnWheelOver(dialog.kind);
        TurnWheelOver(dialog.tabs);
        EXPECT_EQ(Focused(), L"cmdCancel");
        EXPECT_EQ(dialog.name.Text(), L"100");
        EXPECT_EQ(dialog.kind.ListIndex(), 0);
        EXPECT_EQ(dialog.tabs.Selected(), 0U);
        ExpectShowsTheModel(*window, dialog);
        Press(Qt::Key_Escape);
    });
    EXPECT_EQ(dialog.events.back(), L"click cmdCancel");
}

// Its end

TEST_F(QtDialogTest, TellsTheModelThatItsFrameIsClosedAndPressesNoButton) {
    Run([&] {
        window->close();
        EXPECT_FALSE(dialog.IsOpen());
        EXPECT_FALSE(window->isVisible());
    });
    EXPECT_TRUE(SawEvent(L"close"));
    EXPECT_FALSE(SawEvent(L"click cmdCancel"));
}

TEST_F(QtDialogTest, StaysOpenWhereTheModelDoesNotLetItsFrameClose) {
    dialog.onClose = [] {};
    Run([&] {
        EXPECT_FALSE(window->close());
        EXPECT_TRUE(window->isVisible());
    });
    EXPECT_TRUE(SawEvent(L"close"));
}

TEST_F(QtDialogTest, NeverShowsADialogThatIsHiddenWhileItLoads) {
    dialog.onActivate = [&] { dialog.Hide(); };
    dialog.SetPlace(Dialog::Placement{9000, 9000});
    const ShownWindows shown;
    dialog.RunOn(platform);
    EXPECT_EQ(shown.count, 0);
    EXPECT_EQ(dialog.events, (Texts{L"got txtName", L"activate"}));
    EXPECT_EQ(dialog.WindowHandle(), 0);
    ASSERT_TRUE(dialog.Place());
    EXPECT_EQ(dialog.Place()->left, 9000) << "a window that was not there cannot have been moved";
}

TEST_F(QtDialogTest, EndsWhereTheModelHidesWhenItsWindowBecomesActive) {
    dialog.onActivate = [&] {
        if (dialog.events.size() > 2)
            dialog.Hide();
    };
    dialog.RunOn(platform);
    EXPECT_FALSE(dialog.IsOpen());
    EXPECT_EQ(dialog.events, (Texts{L"got txtName", L"activate", L"activate"}));
}

TEST_F(QtDialogTest, EndsWithTheErrorThatTheModelRaised) {
    dialog.onClick = [](Control& control) {
        if (control.Name() == L"cmdMore")
            throw std::runtime_error("no such thing");
    };
    const auto run = [&] {
        Run([&] {
            Click(Shows(dialog.more));
            EXPECT_FALSE(window->isVisible());
        });
    };
    try {
        run();
        ADD_FAILURE() << "no error came out";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "no such thing");
    }
    EXPECT_EQ(dialog.WindowHandle(), 0);
    EXPECT_EQ(platform.WindowOf(1), nullptr);
    dialog.SetTitle(L"nobody follows it any more");
}

TEST_F(QtDialogTest, EndsWithTheFirstOfTheErrorsThatTheModelRaised) {
    dialog.onKeyPress = [&](std::int16_t&) {
        dialog.onLostFocus = dialog.onGotFocus = [](Control&) { throw std::runtime_error("the second"); };
        throw std::runtime_error("the first");
    };
    try {
        Run([&] {
            Type(QStringLiteral("1"));
            Press(Qt::Key_Tab);
            Shows(dialog.more).setFocus();
        });
        ADD_FAILURE() << "no error came out";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "the first");
    }
}

TEST_F(QtDialogTest, EndsWithTheErrorOfAModelThatCannotLoad) {
    dialog.onActivate = [] { throw std::runtime_error("nothing to load"); };
    const ShownWindows shown;
    EXPECT_THROW(dialog.RunOn(platform), std::runtime_error);
    EXPECT_EQ(shown.count, 0);
    EXPECT_EQ(dialog.WindowHandle(), 0);
}

TEST_F(QtDialogTest, ShowsADialogOverADialog) {
    SampleDialog inner;
    dialog.onClick = [&](Control& control) {
        if (&control != &dialog.more)
            return;
        const QWidget* const outer = window;
        Run(inner, [&] {
            EXPECT_EQ(window->parentWidget(), outer);
            EXPECT_EQ(platform.WindowOf(dialog.WindowHandle()), outer);
            EXPECT_EQ(platform.WindowOf(inner.WindowHandle()), window);
            EXPECT_NE(inner.WindowHandle(), dialog.WindowHandle());
            Type(QStringLiteral("7"));
            Press(Qt::Key_Escape);
        });
    };
    Run([&] {
        Click(Shows(dialog.more));
        EXPECT_FALSE(inner.IsOpen());
        EXPECT_EQ(inner.name.Text(), L"7");
        EXPECT_TRUE(dialog.IsOpen());
        BringToFront(*window);
        EXPECT_EQ(dialog.name.Text(), L"");
        EXPECT_EQ(Focused(), L"cmdMore");
        Press(Qt::Key_Escape);
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_FALSE(SawEvent(L"click cmdOK"));
}

TEST_F(QtDialogTest, BringsTheErrorOfAnInnerDialogThroughTheOuterOne) {
    SampleDialog inner;
    inner.onClick = [](Control&) { throw std::runtime_error("from inside"); };
    dialog.onClick = [&](Control&) { Run(inner, [&] { Click(Shows(inner.more)); }); };
    EXPECT_THROW(Run([&] { Click(Shows(dialog.more)); }), std::runtime_error);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

// Its place and size

TEST_F(QtDialogTest, StandsWhereItStoodAndRemembersWhereItIsMoved) {
    dialog.SetPlace(Dialog::Placement{120, 340});
    Run([&] {
        EXPECT_EQ(window->pos(), QPoint(120, 340));
        window->move(500, 600);
    });
    ASSERT_TRUE(dialog.Place());
    EXPECT_EQ(dialog.Place()->left, 500);
    EXPECT_EQ(dialog.Place()->top, 600);
}

TEST_F(QtDialogTest, RemembersWhereItIsMovedAlsoWhenItWasMinimizedSince) {
    Run([&] {
        window->move(500, 600);
        QShowEvent restored;
        QSpontaneKeyEvent::setSpontaneous(&restored);
        qApp->notify(window, &restored);
    });
    ASSERT_TRUE(dialog.Place());
    EXPECT_EQ(dialog.Place()->left, 500);
    EXPECT_EQ(dialog.Place()->top, 600);
}

TEST_F(QtDialogTest, RemembersNoPlaceOfAWindowThatNobodyMoved) {
    Run([&] { Press(Qt::Key_Escape); });
    EXPECT_FALSE(dialog.Place());
}

TEST_F(QtDialogTest, StandsOnTheScreenAlsoWhereItsPlaceIsNotAndKeepsThePlaceInMind) {
    for (const auto& place :
         {Dialog::Placement{-900, -900}, Dialog::Placement{2500, 1590}, Dialog::Placement{20000, 20000}}) {
        SampleDialog away;
        away.SetPlace(place);
        Run(away, [&] {
            LetLayOut();
            EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()));
        });
        ASSERT_TRUE(away.Place());
        EXPECT_EQ(away.Place()->left, place.left) << "nobody moved it: its screen may come back";
        EXPECT_EQ(away.Place()->top, place.top);
    }
}

TEST_F(QtDialogTest, GrowsWithItsRowsStaysOnTheScreenAndNeverShrinks) {
    dialog.low.SetVisible(false);
    dialog.SetPlace(Dialog::Placement{300, 5000}); // at the lower edge of the screen
    Run([&] {
        LetLayOut();
        const QRect before = window->frameGeometry();
        const QRect screen = window->screen()->availableGeometry();
        EXPECT_EQ(before.bottom(), screen.bottom());
        dialog.low.SetVisible(true);
        LetLayOut();
        const QRect grown = window->frameGeometry();
        EXPECT_GT(grown.height(), before.height());
        EXPECT_GE(grown.width(), before.width());
        EXPECT_TRUE(screen.contains(grown));
        dialog.low.SetVisible(false);
        LetLayOut();
        EXPECT_EQ(window->frameGeometry(), grown);
    });
    EXPECT_EQ(dialog.Place()->top, 5000) << "it was not the user who moved it";
}

TEST_F(QtDialogTest, IsAsLargeAsWhatStandsInIt) {
    Run([&] {
        const auto& area = *window->findChild<QScrollArea*>();
        EXPECT_EQ(window->size(), area.widget()->size());
        for (const auto& control : dialog.Controls())
            if (control->IsShown()) {
                const QWidget& widget = Shows(*control);
                EXPECT_TRUE(window->rect().contains(QRect(widget.mapTo(window, QPoint()), widget.size())))
                    << testing::PrintToString(control->Name());
            }
    });
}

TEST_F(QtDialogTest, ScrollsWhereTheScreenIsTooSmallAndShowsTheBoxThatHasTheFocus) {
    TallDialog tall;
    Run(tall, [&] {
        LetLayOut();
        EXPECT_TRUE(window->screen()->availableGeometry().contains(window->frameGeometry()));
        const auto& area = *window->findChild<QScrollArea*>();
        const auto isSeen = [&](const Control& control) {
            const QWidget& widget = Shows(control);
            return QRect(QPoint(), area.viewport()->size())
                .contains(QRect(widget.mapTo(area.viewport(), QPoint()), widget.size()));
        };
        EXPECT_TRUE(isSeen(tall.name));
        EXPECT_FALSE(isSeen(*tall.boxes[99]));
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(tall.ActiveControl(), tall.boxes[99]);
        EXPECT_TRUE(isSeen(*tall.boxes[99])) << "by the Tab key";
        Press(Qt::Key_Return);
        EXPECT_EQ(tall.ActiveControl(), &tall.name);
        EXPECT_TRUE(isSeen(tall.name)) << "by Enter";
        EXPECT_TRUE(tall.SetFocus(*tall.boxes[60]));
        EXPECT_TRUE(isSeen(*tall.boxes[60])) << "by the model, as when it refuses a value";
        Press(Qt::Key_N, Qt::AltModifier);
        EXPECT_TRUE(isSeen(tall.name)) << "by an access key";
    });
}

TEST_F(QtDialogTest, ShowsTheBoxThatHasTheFocusWhenTheDialogIsShown) {
    TallDialog tall;
    tall.onActivate = [&] { tall.SetFocus(*tall.boxes[99]); };
    Run(tall, [&] {
        LetLayOut();
        const auto& area = *window->findChild<QScrollArea*>();
        const QWidget& box = Shows(*tall.boxes[99]);
        EXPECT_TRUE(QRect(QPoint(), area.viewport()->size())
                        .contains(QRect(box.mapTo(area.viewport(), QPoint()), box.size())));
    });
}

TEST_F(QtDialogTest, FitsTheScreenOnWhichItStands) {
    ASSERT_EQ(QGuiApplication::screens().size(), 2);
    const QRect small = QGuiApplication::screens()[1]->availableGeometry();
    TallDialog tall;
    tall.SetPlace(Dialog::Placement{small.left() + 20, small.top() + 20});
    Run(tall, [&] {
        LetLayOut();
        EXPECT_EQ(window->screen(), QGuiApplication::screens()[1]);
        EXPECT_TRUE(small.contains(window->frameGeometry()))
            << window->width() << " x " << window->height() << " at " << window->x() << ", " << window->y();
        EXPECT_FALSE(window->findChild<QScrollArea*>()->horizontalScrollBar()->isVisible());
    });
}

TEST_F(QtDialogTest, FitsTheScreenOfItsOwner) {
    const QRect small = QGuiApplication::screens()[1]->availableGeometry();
    QWidget host;
    host.setGeometry(QRect(small.topLeft() + QPoint(50, 50), QSize(300, 200)));
    host.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    QtPlatform hosted(&host);
    TallDialog tall;
    WhenShown([](const QWidget& w) { return w.objectName() == QLatin1String("frmSample"); },
              [&](const QWidget& w) {
                  LetLayOut();
                  EXPECT_EQ(w.parentWidget(), &host);
                  EXPECT_TRUE(small.contains(w.frameGeometry()));
                  tall.Hide();
              });
    tall.RunOn(hosted);
    EXPECT_FALSE(tall.Place());
}

TEST_F(QtDialogTest, ScrollsWithTheWheelOverAListThatHasNoFocus) {
    TallDialog tall;
    tall.kind.SetListIndex(0);
    Run(tall, [&] {
        const int before = Shows(tall.name).mapTo(window, QPoint()).y();
        TurnWheelOver(tall.kind);
        EXPECT_LT(Shows(tall.name).mapTo(window, QPoint()).y(), before);
        EXPECT_EQ(tall.kind.ListIndex(), 0);
    });
}
