#include "toolkits/qt/QtDialog.h"

#include "QuorConversions/controls/ControlNames.h"
#include "QuorConversions/qt/QtText.h"
#include "toolkits/qt/TextBoxWidget.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace QuorConversions::QtToolkit {
namespace {

/// Where a character of a text stands in the QString of the text: characters beyond 0xFFFF take two places
/// there.
int PlaceInQt(const std::wstring& text, std::size_t at) {
    return static_cast<int>(ToQt(std::wstring_view(text).substr(0, at)).size());
}

std::size_t PlaceInText(const QString& text, int at) { return FromQt(text.left(at)).size(); }

std::size_t ControlsIn(const Frame::Row& row) {
    return row.size() - static_cast<std::size_t>(std::count(row.begin(), row.end(), nullptr));
}

bool IsEnter(const QEvent& event) {
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Makes a widget enabled and visible as its control is. Asking first saves laying out what does not change.
void ShowOrHide(QWidget& widget, const Control& control) {
    if (widget.isEnabledTo(widget.parentWidget()) != control.Enabled())
        widget.setEnabled(control.Enabled());
    if (widget.isHidden() == control.Visible())
        widget.setVisible(control.Visible());
}

/// Over the edge of the button, list or tabs that have the focus: what the style draws is hardly seen on a
/// dark screen.
class FocusRing final : public QWidget {
public:
    explicit FocusRing(QWidget* parent) : QWidget(parent) {
        setObjectName(QStringLiteral("focusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
    }
};

/// As large as what stands in it, where the screen has room for that.
class FittingScrollArea final : public QScrollArea {
public:
    using QScrollArea::QScrollArea;

    [[nodiscard]] QSize sizeHint() const override {
        const QWidget& content = *widget();
        QSize size = content.sizeHint().expandedTo(content.minimumSizeHint());
        if (content.layout()->hasHeightForWidth())
            size.setHeight(std::max(size.height(), content.layout()->totalHeightForWidth(size.width())));
        return size;
    }
};

} // namespace

QtDialog::QtDialog(Dialog& dialog, DialogInput& input, QWidget* owner)
    : QDialog(owner), m_dialog(dialog), m_input(input) {
    setObjectName(ToQt(dialog.Name()));
    setWindowTitle(ToQt(dialog.Title()));
}

void QtDialog::Run() {
    // The dialog fills its controls when it becomes active. Before it is drawn, nobody has to watch.
    m_input.Activate();
    Build();
    m_dialog.SetListener(this);
    PutInPlace();
    if (m_dialog.IsOpen()) {
        exec();
        if (pos() != m_shownAt) // a window that nobody has moved comes back to where this one came
            m_dialog.SetPlace(Dialog::Placement{pos().x(), pos().y()});
    }
    m_dialog.SetListener(nullptr);
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void QtDialog::Build() {
    m_area = new FittingScrollArea(this);
    m_content = new QWidget(m_area->viewport()); // where it stays: moving all that stands in it takes time
    auto* const columns = new QHBoxLayout(m_content);
    auto* const first = new QVBoxLayout;
    columns->addLayout(first, 1);
    for (const Frame* const frame : m_dialog.Columns())
        if (frame == m_dialog.Columns().front())
            first->addWidget(MakeFrame(*frame), 1);
        else
            columns->addWidget(MakeFrame(*frame));
    // A line that is always there, so that the rows do not move when it says something.
    m_advice = new QLabel(m_content);
    m_advice->setObjectName(QStringLiteral("advice"));
    m_advice->setTextFormat(Qt::PlainText);
    m_advice->setWordWrap(true);
    m_advice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    m_advice->setMinimumHeight(m_advice->fontMetrics().height());
    first->addWidget(m_advice);
    m_ring = new FocusRing(m_content);
    NameViews();
    for (const auto& control : m_dialog.Controls())
        if (const auto view = m_views.find(control.get()); view != m_views.end())
            view->second.follow();

    m_area->setWidget(m_content);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_area);
    m_content->installEventFilter(this);

    if (m_dialog.ActiveControl())
        OnFocusMoved(m_dialog.ActiveControl());
    ShowAdvice();
}

void QtDialog::ShowAdvice() {
    QStringList lines;
    for (const TextBox* const box : m_dialog.AdvisedBoxes())
        for (const ControlName& name : ControlNames(m_dialog))
            if (name.control == box)
                lines += ToQt(name.name + L": " + box->Advice());
    const QString text = lines.join(QChar::LineFeed);
    if (text == m_advice->text())
        return;
    m_advice->setText(text);
    QAccessibleEvent said(m_advice, QAccessible::Alert); // a screen reader says it at once
    QAccessible::updateAccessibility(&said);
}

QWidget* QtDialog::MakeFrame(const Frame& frame) {
    View view;
    if (frame.Caption().empty()) {
        view.widget = new QWidget(m_content);
        view.follow = [] {};
    } else {
        auto* const box = new QGroupBox(m_content);
        view = {box, [box, &frame] { box->setTitle(ToQt(frame.Caption())); }};
    }
    QWidget& widget = *view.widget;
    widget.setObjectName(ToQt(frame.Name()));
    auto* const grid = new QGridLayout(&widget);
    if (frame.Caption().empty())
        grid->setContentsMargins({});
    std::size_t columns = 1;
    for (const Frame::Row& row : frame.Rows())
        columns = std::max(columns, row.size());
    int number = 0;
    for (const Frame::Row& row : frame.Rows())
        FillRow(*grid, number++, row, static_cast<int>(columns));
    grid->setRowStretch(number, 1); // what is left over stands below the last row

    const auto follow = [&widget, &frame, also = view.follow] {
        also();
        ShowOrHide(widget, frame);
    };
    m_views.emplace(&frame, View{&widget, follow});
    return &widget;
}

void QtDialog::FillRow(QGridLayout& grid, int row, const Frame::Row& controls, int columns) {
    const bool isAlone = ControlsIn(controls) == 1;
    // In columns of their own, a label and its list above a grid do not widen the numbers of the grid's rows.
    const bool isShort = !isAlone && 2 * controls.size() < static_cast<std::size_t>(columns);
    auto* const line = isShort ? new QHBoxLayout : nullptr;
    for (std::size_t column = 0; column < controls.size(); ++column) {
        Control* const control = controls[column];
        if (!control)
            continue;
        QWidget* const widget = control->Kind() == ControlKind::Frame
                                    ? MakeFrame(static_cast<const Frame&>(*control))
                                    : MakeView(*control);
        if (isAlone) {
            grid.addWidget(widget, row, 0, 1, columns);
            if (auto* const note = qobject_cast<QLabel*>(widget)) {
                // A sentence of its own: it takes the lines it needs, and makes the dialog no wider.
                note->setWordWrap(true);
                note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
            }
        } else if (line) {
            line->addWidget(widget);
        } else {
            grid.addWidget(widget, row, static_cast<int>(column));
        }
    }
    if (line) {
        line->addStretch(1);
        grid.addLayout(line, row, 0, 1, columns);
    }
}

QWidget* QtDialog::MakeView(Control& control) {
    View view;
    switch (control.Kind()) {
    case ControlKind::Label:
        view = MakeLabel(static_cast<const Label&>(control));
        break;
    case ControlKind::PushButton:
        view = MakeButton(static_cast<PushButton&>(control));
        break;
    case ControlKind::TextBox:
        view = MakeTextBox(static_cast<TextBox&>(control));
        break;
    case ControlKind::DropDownList:
        view = MakeList(static_cast<DropDownList&>(control));
        break;
    case ControlKind::TabStrip:
        view = MakeTabs(static_cast<TabStrip&>(control));
        break;
    case ControlKind::Frame:
        return MakeFrame(static_cast<const Frame&>(control));
    }
    QWidget& widget = *view.widget;
    widget.setObjectName(ToQt(control.Name()));
    if (control.TakesFocus()) {
        // The wheel gives no focus: turned over a list on the way past, it changes nothing.
        widget.setFocusPolicy(Qt::StrongFocus);
        widget.installEventFilter(this);
        m_controls.emplace(&widget, &control);
    }
    const auto follow = [&widget, &control, also = std::move(view.follow)] {
        also();
        ShowOrHide(widget, control);
    };
    m_views.emplace(&control, View{&widget, follow});
    return &widget;
}

QtDialog::View QtDialog::MakeLabel(const Label& label) {
    auto* const widget = new QLabel(m_content);
    widget->setTextFormat(Qt::PlainText);
    return {widget, [widget, &label] { widget->setText(ToQt(label.Caption())); }};
}

QtDialog::View QtDialog::MakeButton(PushButton& button) {
    auto* const widget = new QPushButton(m_content);
    widget->setAutoDefault(false); // no button answers the Enter key
    connect(widget, &QPushButton::clicked, this, [this, &button] { Report([&] { m_input.Click(button); }); });
    return {widget, [widget, &button] { widget->setText(ToQt(button.Caption())); }};
}

QtDialog::View QtDialog::MakeTextBox(TextBox& box) {
    auto* const widget = new TextBoxWidget(
        [this](std::int16_t keyAscii) {
            std::int16_t counts = 0;
            Report([&] { counts = m_input.KeyPress(keyAscii); });
            return counts;
        },
        [this, &box](const QString& text) {
            m_pasting = true;
            Report([&] { m_input.Paste(box, FromQt(text)); });
            m_pasting = false;
        },
        m_content);
    const auto report = [this, &box, widget] { ReportEdit(box, *widget); };
    connect(widget, &QLineEdit::textChanged, this, report);
    connect(widget, &QLineEdit::cursorPositionChanged, this, report);
    connect(widget, &QLineEdit::selectionChanged, this, report);
    return {widget, [this, widget, &box] {
                widget->ShowAdvice(ToQt(box.Advice()));
                if (m_reporting == &box)
                    return;
                const QSignalBlocker silence(widget);
                if (const QString text = ToQt(box.Text()); widget->text() != text) {
                    if (m_pasting)
                        widget->ReplaceText(text);
                    else
                        widget->setText(text);
                }
                const int start = PlaceInQt(box.Text(), box.SelStart());
                const int end = PlaceInQt(box.Text(), box.SelStart() + box.SelLength());
                if (start == end) {
                    widget->deselect();
                    widget->setCursorPosition(start);
                } else if (widget->selectionStart() != start || widget->selectionEnd() != end) {
                    widget->setSelection(start, end - start);
                }
            }};
}

void QtDialog::ReportEdit(TextBox& box, const QLineEdit& widget) {
    const QString text = widget.text();
    const bool selected = widget.hasSelectedText();
    const std::size_t start = PlaceInText(text, selected ? widget.selectionStart() : widget.cursorPosition());
    const std::size_t end = selected ? PlaceInText(text, widget.selectionEnd()) : start;
    const auto* const before = std::exchange(m_reporting, &box);
    Report([&] { m_input.Edit(box, FromQt(text), start, end - start); });
    m_reporting = before;
}

QtDialog::View QtDialog::MakeList(DropDownList& list) {
    auto* const widget = new QComboBox(m_content);
    connect(widget, &QComboBox::activated, this,
            [this, &list](int index) { Report([&] { m_input.Choose(list, index); }); });
    return {widget, [this, widget, &list] {
                const QSignalBlocker silence(widget);
                if (isVisible()) // it is as wide as its items anyway when it is shown, and sooner there
                    widget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
                for (int index = 0; index < list.ListCount(); ++index)
                    if (const QString text = ToQt(list.List(index)); index >= widget->count())
                        widget->addItem(text);
                    else if (widget->itemText(index) != text)
                        widget->setItemText(index, text);
                while (widget->count() > list.ListCount())
                    widget->removeItem(widget->count() - 1);
                widget->setCurrentIndex(list.ListIndex());
            }};
}

QtDialog::View QtDialog::MakeTabs(TabStrip& tabs) {
    auto* const widget = new QTabBar(m_content);
    connect(widget, &QTabBar::currentChanged, this, [this, &tabs](int tab) {
        Report([&] { m_input.SelectTab(tabs, static_cast<std::size_t>(tab)); });
    });
    return {widget, [widget, &tabs] {
                const QSignalBlocker silence(widget);
                for (int tab = 0; tab < static_cast<int>(tabs.Tabs().size()); ++tab) {
                    const TabStrip::Tab& model = tabs.Tabs()[static_cast<std::size_t>(tab)];
                    if (tab >= widget->count())
                        widget->addTab(ToQt(model.caption));
                    widget->setTabVisible(tab, model.present);
                    widget->setTabEnabled(tab, model.present); // else keys and the wheel go there
                }
                widget->setCurrentIndex(static_cast<int>(tabs.Selected()));
                widget->updateGeometry(); // while it is hidden, it does not tell by itself
            }};
}

void QtDialog::NameViews() {
    for (const ControlName& name : ControlNames(m_dialog)) {
        QWidget& widget = *m_views.at(name.control).widget;
        if (!name.label)
            continue; // a button says its own caption
        widget.setAccessibleName(ToQt(name.units.empty() ? name.name : name.name + L", " + name.units));
        if (auto* const label = qobject_cast<QLabel*>(m_views.at(name.label).widget);
            label && !label->buddy())
            label->setBuddy(&widget);
    }
}

Control* QtDialog::ControlOf(const QObject* widget) const {
    const auto found = m_controls.find(widget);
    return found == m_controls.end() ? nullptr : found->second;
}

void QtDialog::Report(const std::function<void()>& report) noexcept {
    if (m_failure)
        return; // the dialog has ended; what its window still does on its way out is not the user's
    try {
        report();
    } catch (...) {
        m_failure = std::current_exception();
        done(Rejected);
    }
}

bool QtDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_content) {
        if (event->type() == QEvent::LayoutRequest)
            Fit();
        return QDialog::eventFilter(watched, event);
    }
    Control* const control = ControlOf(watched);
    if (!control)
        return QDialog::eventFilter(watched, event);
    if ((event->type() == QEvent::Move || event->type() == QEvent::Resize) &&
        control == m_dialog.ActiveControl() && !m_ring->isHidden()) // also before the window is shown
        PutRingOn(static_cast<QWidget*>(watched));
    if (event->type() == QEvent::FocusIn)
        Report([&] { m_input.Focus(*control); });
    if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore(); // the wheel scrolls the window instead
        return true;
    }
    if (IsEnter(*event) && control->Kind() != ControlKind::TextBox) {
        Report([&] { m_input.Tab(); }); // Enter moves on wherever it is pressed
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool QtDialog::event(QEvent* event) {
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::WindowActivate && m_dialog.IsOpen())
        Report([&] { m_input.Activate(); });
    return handled;
}

void QtDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event); // puts a window without a place into the middle of its owner
    if (event->spontaneous())
        return; // it comes back from having been minimized
    m_shownAt = pos();
    // How large the frame around it is turns out when it stands there.
    const auto settle = [this] {
        Fit();
        PutInPlace();
        ScrollToFocus();
    };
    QMetaObject::invokeMethod(this, settle, Qt::QueuedConnection);
}

void QtDialog::closeEvent(QCloseEvent* event) {
    Report([&] { m_input.Close(); });
    event->setAccepted(!m_dialog.IsOpen() || m_failure);
}

void QtDialog::reject() {
    Report([&] { m_input.Escape(); });
}

void QtDialog::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event))
        event->accept(); // there is no default button
    else if (event->matches(QKeySequence::HelpContents))
        Report([&] { m_input.Help(); });
    else
        QDialog::keyPressEvent(event);
}

bool QtDialog::focusNextPrevChild(bool next) {
    Report([&] { m_input.Tab(!next); });
    return true;
}

void QtDialog::Fit() {
    ensurePolished();
    m_area->updateGeometry();
    const QSize room = Room().size() - FrameSize();
    const QSize needed = layout()->sizeHint();
    // A bar at the side, where not all rows fit, must not hide the ends of the boxes.
    const bool scrolls = needed.height() > room.height();
    const int bar = scrolls ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    const QSize fits = needed + QSize(bar, 0);
    const QSize wanted = (isVisible() ? fits.expandedTo(size()) : fits).boundedTo(room);
    if (wanted == size())
        return;
    resize(wanted);
    if (isVisible())
        PutInPlace();
}

QSize QtDialog::FrameSize() const {
    return isVisible() ? frameGeometry().size() - size() : QSize(0, 0); // not known before
}

QRect QtDialog::Room() const {
    // A screen may be gone since the place was remembered.
    const auto& place = m_dialog.Place();
    const QScreen* const found =
        place && !isVisible() ? QGuiApplication::screenAt({place->left, place->top}) : nullptr;
    return (found ? found : screen())->availableGeometry();
}

void QtDialog::PutInPlace() {
    const auto& place = m_dialog.Place();
    if (!isVisible())
        Fit();
    if (!isVisible() && !place)
        return; // the middle of the owner
    const QPoint before = pos();
    const QPoint wanted = isVisible() ? before : QPoint(place->left, place->top);
    const QRect room = Room();
    const QSize outer = size() + FrameSize();
    move(std::clamp(wanted.x(), room.left(), std::max(room.left(), room.right() - outer.width() + 1)),
         std::clamp(wanted.y(), room.top(), std::max(room.top(), room.bottom() - outer.height() + 1)));
    m_shownAt += pos() - before; // it is not the user who moves it
}

void QtDialog::ScrollToFocus() {
    if (m_dialog.ActiveControl())
        m_area->ensureWidgetVisible(m_views.at(m_dialog.ActiveControl()).widget);
}

void QtDialog::OnControlChanged(const Control& control) {
    const auto view = m_views.find(&control);
    if (view == m_views.end())
        return;
    view->second.follow();
    if (control.Kind() == ControlKind::Label)
        NameViews();
    ShowAdvice();
}

void QtDialog::OnFocusMoved(const Control* focused) {
    QWidget* const widget = focused ? m_views.at(focused).widget : nullptr;
    if (widget && !widget->hasFocus()) // with this reason, every style shows where the focus is
        widget->setFocus(Qt::TabFocusReason);
    PutRingOn(focused && focused->Kind() != ControlKind::TextBox ? widget : nullptr);
    ScrollToFocus();
    ShowAdvice();
}

void QtDialog::PutRingOn(QWidget* widget) {
    m_ring->setVisible(widget);
    if (!widget)
        return;
    m_ring->setParent(widget->parentWidget()); // where it moves along
    m_ring->setGeometry(widget->geometry());
    m_ring->show();
    m_ring->raise();
}

void QtDialog::OnTitleChanged() { setWindowTitle(ToQt(m_dialog.Title())); }

void QtDialog::OnHidden() { done(Accepted); }

} // namespace QuorConversions::QtToolkit
