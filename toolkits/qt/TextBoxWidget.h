#pragma once

#include <QClipboard>
#include <QLineEdit>

#include <cstdint>
#include <functional>

namespace QuorConversions::QtToolkit {

/// The key code by which the dialogs know a key: that of its character, or 3 copy, 22 paste, 24 cut, 26 undo,
/// 8 backspace, 13 Enter. 0 for a key that is no character, as the arrows, Home, Delete, Tab and the function
/// keys are.
[[nodiscard]] std::int16_t KeyAsciiOf(const QKeyEvent& event);

/// A box for a value: as wide as the longest number, which stands at its right edge and is written from left
/// to right in every language. Each key with a code is asked about before it does what it does.
class TextBoxWidget : public QLineEdit {
public:
    /// The answer is the key that counts; 0 for none.
    using KeyFilter = std::function<std::int16_t(std::int16_t keyAscii)>;
    /// Takes a text that is pasted, by key, menu or middle button, or dropped.
    using PasteHandler = std::function<void(const QString& text)>;

    TextBoxWidget(KeyFilter filter, PasteHandler paste, QWidget* parent);

    /// Puts `text` in the place of the whole text, as an editing step that Undo takes back.
    void ReplaceText(const QString& text);
    /// Marks the box, with `advice` as the tool tip and for screen readers; an empty text takes
    /// the mark away.
    void ShowAdvice(const QString& advice);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// Becomes as wide as the longest number is in the present font.
    void Measure();
    /// Does what the key of that code does to the text.
    void Perform(std::int16_t keyAscii);
    void PasteFrom(QClipboard::Mode clipboard);
    void Paste(const QString& text);

    KeyFilter m_filter;
    PasteHandler m_paste;
    bool m_clickBringsFocus = false;
    bool m_clickSelectsAll = false;
};

} // namespace QuorConversions::QtToolkit
