#include "apps/probe-setup/FindBox.h"

#include <QEvent>

namespace ProbeSetup {

FindBox::FindBox(const QString& placeholder) {
    setClearButtonEnabled(true);
    setPlaceholderText(placeholder);
    ColourPlaceholder();
}

void FindBox::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ColourPlaceholder();
}

void FindBox::ColourPlaceholder() {
    // Paler than a text that was typed, and still of a contrast in which small letters can be read.
    constexpr float share = 0.72F; // of the colour of texts
    const QColor text = palette().color(QPalette::Text);
    const QColor base = palette().color(QPalette::Base);
    const auto mix = [](float a, float b) { return a * share + b * (1 - share); };
    const QColor colour = QColor::fromRgbF(mix(text.redF(), base.redF()), mix(text.greenF(), base.greenF()),
                                           mix(text.blueF(), base.blueF()));
    if (palette().color(QPalette::PlaceholderText) == colour)
        return;
    QPalette own = palette();
    own.setColor(QPalette::PlaceholderText, colour);
    setPalette(own);
}

} // namespace ProbeSetup
