#pragma once

#include "QuorConversions/qt/QtPlatform.h"
#include "toolkits/scripted/Screen.h"

#include <QWidget>

#include <functional>

namespace Support {

/// Calls `action` inside the event loop of the next window that is shown and that `isIt` knows.
void WhenShown(const std::function<bool(QWidget&)>& isIt, const std::function<void(QWidget&)>& action);

/// Returns when nothing has asked to be laid out for a moment, in milliseconds. The moment is longer than the
/// timers of the widgets: a list takes its new width after 20 ms. Fails where there is no such moment.
void LetLayOut(int moment = 60);

/// Expects that each widget of the window shows what its control says.
void ExpectShowsTheModel(const QWidget& window, const QuorConversions::Dialog& dialog);

/// The driver with keyboard and mouse.
class QtInputDriver final : public QuorConversions::Scripted::InputDriver {
public:
    QtInputDriver(QWidget& window, QuorConversions::Dialog& dialog) : m_window(window), m_dialog(dialog) {}

    void GoTo(QuorConversions::Control& control) override;
    void SelectAll() override;
    void Press(std::int16_t keyAscii) override;
    void Paste(const std::wstring& text) override;
    void Tab(bool backwards) override;
    void Escape() override;
    void Help() override;
    void Click(QuorConversions::PushButton& button) override;
    void Choose(QuorConversions::DropDownList& list, std::int32_t index) override;
    void SelectTab(QuorConversions::TabStrip& tabs, std::size_t tab) override;
    void MoveTo(std::int32_t left, std::int32_t top) override;
    void Close() override;

    /// Brings the window to the front.
    void Activate() const;

private:
    template <class T>
    [[nodiscard]] T& WidgetOf(const QuorConversions::Control& control) const;
    /// Where a key arrives.
    [[nodiscard]] QWidget* Focused() const;
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void Look() const;

    QWidget& m_window;
    QuorConversions::Dialog& m_dialog;
};

/// A screen with real windows.
class QtScreen final : public QuorConversions::Scripted::Screen {
public:
    void Run(QuorConversions::Dialog& dialog, QuorConversions::DialogInput& input,
             const std::function<void(QuorConversions::Scripted::InputDriver&)>& act) override;
    void ShowMessage(const QuorConversions::MessageRequest& request,
                     const std::function<void()>& whileShown) override;

private:
    QuorConversions::QtToolkit::QtPlatform m_platform;
};

} // namespace Support
