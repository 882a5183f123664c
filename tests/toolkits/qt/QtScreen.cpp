#include "tests/toolkits/qt/QtScreen.h"

#include "QuorConversions/qt/QtText.h"
#include "tests/support/TestedScreen.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QEventLoop>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include <exception>
#include <stdexcept>

using namespace QuorConversions;
using QtToolkit::FromQt;
using QtToolkit::ToQt;
using Scripted::InputDriver;

namespace Support {
namespace {

/// Watches for a window to be shown.
class Watcher final : public QObject {
public:
    Watcher(std::function<bool(QWidget&)> isIt, std::function<void(QWidget&)> action)
        : m_isIt(std::move(isIt)), m_action(std::move(action)) {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show)
            if (auto* const widget = qobject_cast<QWidget*>(watched);
                widget && widget->isWindow() && m_isIt(*widget)) {
                QTimer::singleShot(0, widget, [action = m_action, widget] { action(*widget); });
                // At once: without an outermost event loop it may be deleted at the end only.
                qApp->removeEventFilter(this);
                deleteLater();
            }
        return false;
    }

private:
    std::function<bool(QWidget&)> m_isIt;
    std::function<void(QWidget&)> m_action;
};

/// Counts how often something asks to be laid out.
class LayoutRequests final : public QObject {
public:
    LayoutRequests() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest)
            ++count;
        return false;
    }
    int count = 0;
};

/// The keys that have a code of their own.
const struct {
    std::int16_t keyAscii;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
} namedKeys[] = {
    {3, Qt::Key_C, Qt::ControlModifier},    {22, Qt::Key_V, Qt::ControlModifier},
    {24, Qt::Key_X, Qt::ControlModifier},   {26, Qt::Key_Z, Qt::ControlModifier},
    {8, Qt::Key_Backspace, Qt::NoModifier}, {13, Qt::Key_Return, Qt::NoModifier},
};

void ExpectShows(const QWidget& widget, const Control& control) {
    EXPECT_EQ(widget.isVisible(), control.IsShown());
    if (control.IsShown()) { // a group greys what stands in it
        EXPECT_EQ(widget.isEnabled(), control.Enabled());
    }
    const QString caption = ToQt(control.Caption());
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        EXPECT_EQ(label->text(), caption);
    }
    if (const auto* const button = qobject_cast<const QPushButton*>(&widget)) {
        EXPECT_EQ(button->text(), caption);
    }
    if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) {
        EXPECT_EQ(group->title(), caption);
    }
    if (const auto* const box = qobject_cast<const QLineEdit*>(&widget)) {
        const auto& model = dynamic_cast<const TextBox&>(control);
        EXPECT_EQ(box->text(), ToQt(model.Text()));
        EXPECT_EQ(FromQt(box->selectedText()).size(), model.SelLength());
        EXPECT_EQ(box->accessibleDescription(), ToQt(model.Advice()));
    }
    if (const auto* const list = qobject_cast<const QComboBox*>(&widget)) {
        const auto& model = dynamic_cast<const DropDownList&>(control);
        EXPECT_EQ(list->currentIndex(), model.ListIndex());
        ASSERT_EQ(list->count(), model.ListCount());
        for (int i = 0; i < list->count(); ++i)
            EXPECT_EQ(list->itemText(i), ToQt(model.List(i)));
    }
    if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
        const auto& model = dynamic_cast<const TabStrip&>(control);
        ASSERT_EQ(static_cast<std::size_t>(tabs->count()), model.Tabs().size());
        for (int i = 0; i < tabs->count(); ++i)
            EXPECT_EQ(tabs->isTabVisible(i), model.Tabs()[static_cast<std::size_t>(i)].present);
        EXPECT_EQ(static_cast<std::size_t>(tabs->currentIndex()), model.Selected());
    }
}

} // namespace

void WhenShown(const std::function<bool(QWidget&)>& isIt, const std::function<void(QWidget&)>& action) {
    new Watcher(isIt, action); // it goes when it has seen the window
}

void LetLayOut(int moment) {
    for (int tries = 0; tries < 50; ++tries) {
        const LayoutRequests requests;
        QEventLoop loop; // its timers ring in their order, however late
        QTimer::singleShot(moment, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
        QCoreApplication::processEvents(); // what the last of them has asked for
        if (requests.count == 0)
            return;
    }
    ADD_FAILURE() << "something lays itself out again and again";
}

void ExpectShowsTheModel(const QWidget& window, const Dialog& dialog) {
    EXPECT_EQ(window.windowTitle(), ToQt(dialog.Title()));
    for (const auto& control : dialog.Controls()) {
        const auto* const widget = window.findChild<QWidget*>(ToQt(control->Name()));
        ASSERT_NE(widget, nullptr) << "no widget shows " << testing::PrintToString(control->Name());
        SCOPED_TRACE(testing::PrintToString(control->Name()));
        ExpectShows(*widget, *control);
    }
    if (dialog.ActiveControl() && dialog.ActiveControl()->IsUsable()) {
        ASSERT_NE(window.focusWidget(), nullptr);
        EXPECT_EQ(FromQt(window.focusWidget()->objectName()), dialog.ActiveControl()->Name());
    }
}

template <class T>
T& QtInputDriver::WidgetOf(const Control& control) const {
    auto* const widget = m_window.findChild<T*>(ToQt(control.Name()));
    if (!widget)
        throw std::logic_error("no widget shows the control");
    return *widget;
}

QWidget* QtInputDriver::Focused() const {
    Activate();
    return m_window.focusWidget() ? m_window.focusWidget() : &m_window;
}

void QtInputDriver::Activate() const {
    const auto isInFront = [this] { return QGuiApplication::focusWindow() == m_window.windowHandle(); };
    if (m_window.isHidden() || QTest::qWaitFor(isInFront, 20))
        return;
    m_window.activateWindow(); // as a window manager does when the window in front has gone
    EXPECT_TRUE(QTest::qWaitFor(isInFront));
}

void QtInputDriver::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(Focused(), key, modifiers);
    Look();
}

void QtInputDriver::Look() const {
    if (m_dialog.IsOpen())
        ExpectShowsTheModel(m_window, m_dialog);
}

void QtInputDriver::GoTo(Control& control) {
    Activate();
    auto& widget = WidgetOf<QWidget>(control);
    if (!widget.isVisible() || !control.TakesFocus())
        return; // there is nothing to go to
    if (control.Kind() == ControlKind::TextBox) {
        if (auto* const area = m_window.findChild<QScrollArea*>())
            area->ensureWidgetVisible(&widget);
        QTest::mouseClick(&widget, Qt::LeftButton);
    } else {
        for (std::size_t step = 0; step < m_dialog.Controls().size() && !widget.hasFocus(); ++step)
            Key(Qt::Key_Tab);
    }
    Look();
}

void QtInputDriver::SelectAll() { Key(Qt::Key_A, Qt::ControlModifier); }

void QtInputDriver::Press(std::int16_t keyAscii) {
    for (const auto& named : namedKeys)
        if (named.keyAscii == keyAscii)
            return Key(named.key, named.modifiers);
    QTest::sendKeyEvent(QTest::Click, Focused(), Qt::Key_unknown, QString(QChar(keyAscii)), Qt::NoModifier);
    Look();
}

void QtInputDriver::Paste(const std::wstring& text) {
    QApplication::clipboard()->setText(ToQt(text));
    Key(Qt::Key_V, Qt::ControlModifier);
}

void QtInputDriver::Tab(bool backwards) {
    Key(backwards ? Qt::Key_Backtab : Qt::Key_Tab, backwards ? Qt::ShiftModifier : Qt::NoModifier);
}

void QtInputDriver::Escape() { Key(Qt::Key_Escape); }

void QtInputDriver::Help() { Key(Qt::Key_F1); }

void QtInputDriver::Click(PushButton& button) {
    Activate();
    QTest::mouseClick(&WidgetOf<QPushButton>(button), Qt::LeftButton);
    Look();
}

void QtInputDriver::Choose(DropDownList& list, std::int32_t index) {
    GoTo(list);
    auto& box = WidgetOf<QComboBox>(list);
    QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier); // opens it
    QTest::keyClick(box.view(), Qt::Key_Home);
    for (std::int32_t i = 0; i < index; ++i)
        QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Return);
    Look();
}

void QtInputDriver::SelectTab(TabStrip& tabs, std::size_t tab) {
    Activate();
    auto& bar = WidgetOf<QTabBar>(tabs);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(static_cast<int>(tab)).center());
    Look();
}

void QtInputDriver::MoveTo(std::int32_t left, std::int32_t top) { m_window.move(left, top); }

void QtInputDriver::Close() { m_window.close(); }

void QtScreen::Run(Dialog& dialog, DialogInput& input, const std::function<void(InputDriver&)>& act) {
    std::exception_ptr failure;
    WhenShown([name = ToQt(dialog.Name())](QWidget& window) { return window.objectName() == name; },
              [&](QWidget& window) {
                  QtInputDriver driver(window, dialog);
                  driver.Activate();
                  ExpectShowsTheModel(window, dialog);
                  try {
                      act(driver);
                  } catch (...) { // it must not pass through the event loop
                      failure = std::current_exception();
                  }
                  if (dialog.IsOpen())
                      dynamic_cast<QDialog&>(window).done(0);
              });
    m_platform.RunDialog(dialog, input);
    if (failure)
        std::rethrow_exception(failure);
}

void QtScreen::ShowMessage(const MessageRequest& request, const std::function<void()>& whileShown) {
    WhenShown([](QWidget& window) { return qobject_cast<QMessageBox*>(&window) != nullptr; },
              [&](QWidget& window) {
                  const auto& box = dynamic_cast<const QMessageBox&>(window);
                  EXPECT_EQ(box.text(), ToQt(request.text).replace('\r', '\n'));
                  EXPECT_EQ(box.icon(),
                            request.icon == ICON_CRITICAL ? QMessageBox::Critical : QMessageBox::Information);
                  EXPECT_EQ(box.button(QMessageBox::Help) != nullptr, !request.helpFile.empty());
                  whileShown();
                  QTest::keyClick(&window, Qt::Key_Return);
              });
    m_platform.ShowMessage(request);
}

std::shared_ptr<Scripted::Screen> TestedScreen() { return std::make_shared<QtScreen>(); }

} // namespace Support
