#include "tests/toolkits/qt/Looks.h"

#include "QuorConversions/qt/Translations.h"

#include <QApplication>

#include <algorithm>

using QuorConversions::QtToolkit::InstallTranslations;

namespace Support {

namespace {

QPalette Dark() {
    QPalette palette(QColor(45, 45, 45));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 38));
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    for (const QPalette::ColorRole text : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, text, QColor(140, 140, 140));
    return palette;
}

QPalette HighContrast() {
    QPalette palette(Qt::black);
    for (const QPalette::ColorRole text : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(text, Qt::white);
    for (const QPalette::ColorRole ground :
         {QPalette::Base, QPalette::AlternateBase, QPalette::Window, QPalette::Button, QPalette::ToolTipBase})
        palette.setColor(ground, Qt::black);
    palette.setColor(QPalette::ToolTipText, Qt::yellow);
    palette.setColor(QPalette::Link, Qt::yellow);
    palette.setColor(QPalette::LinkVisited, Qt::yellow);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    for (const QPalette::ColorRole text : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, text, Qt::green);
    return palette;
}

} // namespace

std::string TestName(const Look& look) {
    std::string name = look.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

void PrintTo(const Look& look, std::ostream* out) { *out << look.name; }

Dressed::Dressed(const Look& look) : m_palette(QApplication::palette()), m_font(QApplication::font()) {
    if (look.dark)
        QApplication::setPalette(look.highContrast ? HighContrast() : Dark());
    QFont font = m_font;
    if (look.pointSize > 0)
        font.setPointSize(look.pointSize);
    QApplication::setFont(font);
    QLocale::setDefault(QLocale(look.language));
    InstallTranslations(QLocale());
    QApplication::setLayoutDirection(look.direction);
}

Dressed::~Dressed() {
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QLocale::setDefault(QLocale::c());
    InstallTranslations(QLocale());
    QApplication::setFont(m_font);
    QApplication::setPalette(m_palette);
}

} // namespace Support
