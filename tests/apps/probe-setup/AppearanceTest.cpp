// How the window presents itself: icon, About, and texts that can be read in every palette.

#include "apps/probe-setup/FindBox.h"
#include "tests/apps/probe-setup/WindowTest.h"

#include <QLineEdit>

#include <algorithm>
#include <cmath>

using namespace ProbeSetup;

namespace {

/// The contrast of two colours by the rule of the Web Content Accessibility Guidelines: 21 for black on
/// white.
double ContrastOf(const QColor& a, const QColor& b) {
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

TEST(Placeholder, CanBeReadInLightDarkAndHighContrastPalettes) {
    FindBox box("Part of a name");
    struct Colours {
        const char* name;
        QColor text;
        QColor base;
    };
    for (const Colours& colours : {Colours{"light", Qt::black, Qt::white},
                                   Colours{"dark", QColor(0xe0, 0xe0, 0xe0), QColor(0x20, 0x20, 0x20)},
                                   Colours{"high contrast", Qt::yellow, Qt::black},
                                   Colours{"high contrast, light", Qt::black, Qt::yellow}}) {
        QPalette palette;
        palette.setColor(QPalette::Text, colours.text);
        palette.setColor(QPalette::Base, colours.base);
        palette.setColor(QPalette::PlaceholderText, colours.base); // as bad as it can be
        box.setPalette(palette);
        const QColor shown = box.palette().color(QPalette::PlaceholderText);
        EXPECT_EQ(shown.alpha(), 255) << colours.name;
        EXPECT_GE(ContrastOf(shown, colours.base), 4.5) << colours.name;
        EXPECT_NE(shown, colours.text) << colours.name << ": it is told from a text that was typed";
    }
}

using Appearance = WindowTest;

TEST_F(Appearance, TheFindBoxOfTheWindowIsOne) {
    EXPECT_TRUE(dynamic_cast<FindBox*>(&Find<QLineEdit>("find")));
}

TEST_F(Appearance, TheWindowHasAnIconOfItsOwn) {
    const QImage image = window->windowIcon().pixmap(64).toImage();
    ASSERT_FALSE(image.isNull()) << "libqt6svg6 is missing";
    EXPECT_EQ(image.pixelColor(image.width() / 2, 6), QColor(0x1f, 0x4e, 0x79));
}

TEST_F(Appearance, AboutNamesVersionLicenceAndQt) {
    QCoreApplication::setApplicationVersion("1.2.3");
    QString text;
    WillAnswer(QMessageBox::Ok, &text);
    Action("about").trigger();
    QCoreApplication::setApplicationVersion({});
    EXPECT_TRUE(text.startsWith("Probe Setup 1.2.3|")) << text.toStdString();
    EXPECT_TRUE(text.contains("Licence: MIT.")) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Qt ") + QLatin1String(qVersion()))) << text.toStdString();
}
