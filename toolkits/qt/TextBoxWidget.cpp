#include "toolkits/qt/TextBoxWidget.h"

#include "QuorConversions/controls/Dialog.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPolygonF>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QtMath>

#include <utility>

namespace QuorConversions::QtToolkit {
namespace {

constexpr std::int16_t backspaceKey = 8;
constexpr std::int16_t enterKey = 13;
constexpr std::int16_t pasteKey = 22;

/// Keys that stand for what they do, in whatever combination the system has for it.
const struct {
    const char* entry; // of the context menu: Qt's own text, in Qt's own translation
    QKeySequence::StandardKey key;
    std::int16_t keyAscii;
    void (QLineEdit::*perform)();
} editingKeys[] = {
    {"&Copy", QKeySequence::Copy, 3, nullptr},          // copying is const
    {"&Paste", QKeySequence::Paste, pasteKey, nullptr}, // it asks what is to be pasted
    {"Cu&t", QKeySequence::Cut, 24, &QLineEdit::cut},
    {"&Undo", QKeySequence::Undo, 26, &QLineEdit::undo},
};

/// A character typed with Control, Alt or the system key is a command. Both Control and Alt are AltGr.
bool IsTyped(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isPlain = modifiers == Qt::NoModifier || modifiers == (Qt::ControlModifier | Qt::AltModifier);
    return isPlain && !event.text().isEmpty() && event.text().front().unicode() >= u' ' &&
           event.text().front().unicode() != 127;
}

/// Whether the key is a command and yet has a character, which a line of text would type unasked: one with
/// Alt or the system key, or an invisible mark with Control.
bool WouldTypeUnasked(const QKeyEvent& event) {
    if (event.text().isEmpty() || IsTyped(event))
        return false;
    return event.modifiers() & (Qt::AltModifier | Qt::MetaModifier) ||
           event.text().front().category() == QChar::Other_Format;
}

} // namespace

std::int16_t KeyAsciiOf(const QKeyEvent& event) {
    for (const auto& row : editingKeys)
        if (event.matches(row.key))
            return row.keyAscii;
    if (event.key() == Qt::Key_Backspace)
        return backspaceKey;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return enterKey;
    if (!IsTyped(event))
        return 0;
    return DialogInput::KeyAsciiOf(event.text().toUcs4().front());
}

TextBoxWidget::TextBoxWidget(KeyFilter filter, PasteHandler paste, QWidget* parent)
    : QLineEdit(parent), m_filter(std::move(filter)), m_paste(std::move(paste)) {
    setLayoutDirection(Qt::LeftToRight);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    Measure();
}

void TextBoxWidget::Measure() {
    ensurePolished();
    // Seventeen digits, two signs, a separator, an exponent of three digits, and the cursor; added up,
    // because laying out a text takes long.
    const QFontMetricsF metrics(font());
    const qreal width = 20 * metrics.horizontalAdvance(u'8') + 2 * metrics.horizontalAdvance(u'-') +
                        metrics.horizontalAdvance(u'.') + metrics.horizontalAdvance(u'E') +
                        metrics.averageCharWidth();
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QSize contents(qCeil(width) + 4, fontMetrics().height()); // 2 on each side of the text
    setMinimumWidth(style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, this).width());
}

void TextBoxWidget::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Measure();
}

void TextBoxWidget::keyPressEvent(QKeyEvent* event) {
    const std::int16_t pressed = KeyAsciiOf(*event);
    if (pressed == 0 && WouldTypeUnasked(*event))
        return event->ignore();
    if (pressed == 0)
        return QLineEdit::keyPressEvent(event);
    event->accept();
    const std::int16_t counts = m_filter(pressed);
    if (counts == 0 || counts == enterKey) // an Enter that nobody took does nothing to a line of text
        return;
    // X11 has a key for the text that is selected elsewhere, too.
    const bool fromSelection =
        event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) && event->key() == Qt::Key_Insert;
    if (counts == pasteKey && fromSelection)
        PasteFrom(QClipboard::Selection);
    else if (counts == pressed && counts != pasteKey)
        QLineEdit::keyPressEvent(event);
    else
        Perform(counts);
}

void TextBoxWidget::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent composed(event->preeditString(), event->attributes());
    composed.setCommitString({}, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&composed);
    for (const char32_t character : event->commitString().toUcs4()) { // they are keys like all others
        QKeyEvent key(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString::fromUcs4(&character, 1));
        keyPressEvent(&key);
    }
    event->accept();
}

void TextBoxWidget::Perform(std::int16_t keyAscii) {
    for (const auto& row : editingKeys)
        if (row.keyAscii == keyAscii) {
            if (row.perform)
                (this->*row.perform)();
            else if (keyAscii == pasteKey)
                PasteFrom(QClipboard::Clipboard);
            else
                copy();
            return;
        }
    if (keyAscii == backspaceKey)
        backspace();
    else if (const QChar typed(static_cast<char16_t>(keyAscii)); typed >= u' ')
        insert(QString(typed));
}

void TextBoxWidget::focusInEvent(QFocusEvent* event) {
    m_clickBringsFocus = event->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(event);
}

void TextBoxWidget::mousePressEvent(QMouseEvent* event) {
    // The click that goes to a box leaves its text selected, as the Tab key does; the next one puts the
    // cursor.
    m_clickSelectsAll = std::exchange(m_clickBringsFocus, false) && event->button() == Qt::LeftButton;
    if (m_clickSelectsAll)
        event->accept();
    else
        QLineEdit::mousePressEvent(event);
}

void TextBoxWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!m_clickSelectsAll) // also where the hand trembles
        QLineEdit::mouseMoveEvent(event);
}

void TextBoxWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton)
        return QLineEdit::mouseReleaseEvent(event);
    event->accept();
    if (QGuiApplication::clipboard()->supportsSelection())
        PasteFrom(QClipboard::Selection);
}

void TextBoxWidget::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* const action : menu->actions())
        for (const auto& row : editingKeys)
            if (action->text().startsWith(QLineEdit::tr(row.entry))) { // it does what its key does
                disconnect(action, nullptr, this, nullptr);
                connect(action, &QAction::triggered, this,
                        [this, key = row.keyAscii] { Perform(m_filter(key)); });
            }
    menu->popup(event->globalPos());
}

void TextBoxWidget::dropEvent(QDropEvent* event) {
    const QString text = event->mimeData()->text();
    if (isReadOnly() || text.isEmpty())
        return QLineEdit::dropEvent(event);
    QDragLeaveEvent leaves; // takes away the cursor that showed the place
    dragLeaveEvent(&leaves);
    event->setDropAction(Qt::CopyAction); // what is not taken must not vanish where it came from
    event->accept();
    Paste(text);
}

void TextBoxWidget::PasteFrom(QClipboard::Mode clipboard) {
    Paste(QGuiApplication::clipboard()->text(clipboard));
}

void TextBoxWidget::Paste(const QString& text) {
    if (!isReadOnly() && !text.isEmpty())
        m_paste(text);
}

void TextBoxWidget::ReplaceText(const QString& text) {
    selectAll();
    insert(text);
    home(false); // a step of its own: what is typed next is another one
    end(false);
}

void TextBoxWidget::ShowAdvice(const QString& advice) {
    if (advice == accessibleDescription())
        return;
    setAccessibleDescription(advice);
    setToolTip(advice);
    update();
}

void TextBoxWidget::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (accessibleDescription().isEmpty())
        return;
    // A corner and a line: an icon would take the room of the longest number.
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    const QRectF inside = QRectF(rect()).adjusted(2, 2, -2, -2);
    const qreal corner = inside.height() / 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDark ? QColor(0xFF, 0xB0, 0x00) : QColor(0xB3, 0x47, 0x00));
    painter.drawPolygon(QPolygonF(
        {inside.topLeft(), inside.topLeft() + QPointF(corner, 0), inside.topLeft() + QPointF(0, corner)}));
    painter.drawRect(QRectF(inside.left(), inside.bottom() - 2, inside.width(), 2));
}

} // namespace QuorConversions::QtToolkit
