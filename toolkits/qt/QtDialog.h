#pragma once

#include "QuorConversions/controls/Dialog.h"

#include <QDialog>

#include <exception>
#include <functional>
#include <unordered_map>

class QGridLayout;
class QLabel;
class QLineEdit;
class QScrollArea;

namespace QuorConversions::QtToolkit {

/// A dialog of the library on the screen, for the one time that it is run. Each control is a widget whose
/// objectName is the control's name. What the user does is reported to the model; the widgets show what the
/// model says, and nothing else.
class QtDialog final : public QDialog, private DialogListener {
public:
    QtDialog(Dialog& dialog, DialogInput& input, QWidget* owner);

    /// Shows the dialog until the model is hidden. Raises what the model has raised meanwhile.
    void Run();

    /// Esc.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct View {
        QWidget* widget = nullptr;
        std::function<void()> follow; ///< makes the widget show what the control says
    };

    void Build();
    QWidget* MakeFrame(const Frame& frame);
    void FillRow(QGridLayout& grid, int row, const Frame::Row& controls, int columns);
    QWidget* MakeView(Control& control);
    View MakeLabel(const Label& label);
    View MakeButton(PushButton& button);
    View MakeTextBox(TextBox& box);
    View MakeList(DropDownList& list);
    View MakeTabs(TabStrip& tabs);
    void ReportEdit(TextBox& box, const QLineEdit& widget);
    /// Says in the line below the boxes what the model advises.
    void ShowAdvice();
    /// Gives labels the boxes that they name, and boxes the names that a screen reader says.
    void NameViews();
    [[nodiscard]] Control* ControlOf(const QObject* widget) const;

    /// Reports something to the model. The first exception ends the dialog, and Run raises it: none may pass
    /// through the event loop.
    void Report(const std::function<void()>& report) noexcept;

    /// Makes the window as large as what stands in it, never smaller than it was: rows that come and go do
    /// not make it jump. It stays on the screen.
    void Fit();
    void PutInPlace();
    /// How much larger the window is with the frame around it.
    [[nodiscard]] QSize FrameSize() const;
    /// The part of the screen that the window may take.
    [[nodiscard]] QRect Room() const;
    void ScrollToFocus();
    /// Shows the ring around a widget that has the focus; null for none.
    void PutRingOn(QWidget* widget);

    void OnControlChanged(const Control& control) override;
    void OnFocusMoved(const Control* focused) override;
    void OnTitleChanged() override;
    void OnHidden() override;

    Dialog& m_dialog;
    DialogInput& m_input;
    QScrollArea* m_area = nullptr; // scrolls the content where the screen is too small for it
    QWidget* m_content = nullptr;
    std::unordered_map<const Control*, View> m_views;
    std::unordered_map<const QObject*, Control*> m_controls;
    const Control* m_reporting = nullptr; // whose widget is ahead of its control for a moment
    bool m_pasting = false;
    QLabel* m_advice = nullptr;
    QWidget* m_ring = nullptr; // shows which control has the focus
    QPoint m_shownAt;
    std::exception_ptr m_failure;
};

} // namespace QuorConversions::QtToolkit
