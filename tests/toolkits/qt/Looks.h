#pragma once

#include "tests/support/DecimalSeparator.h"

#include <QFont>
#include <QLocale>
#include <QPalette>

#include <ostream>
#include <string>

namespace Support {

/// How a person has set up the screen.
struct Look {
    const char* name;
    bool dark;
    QLocale::Language language;
    int pointSize; ///< 0 for the usual one
    Qt::LayoutDirection direction;
    bool highContrast = false; ///< white and yellow on black
};

inline constexpr Look looks[] = {
    {"light", false, QLocale::English, 0, Qt::LeftToRight},
    {"dark", true, QLocale::English, 0, Qt::LeftToRight},
    {"german", false, QLocale::German, 0, Qt::LeftToRight},
    {"large", false, QLocale::English, 18, Qt::LeftToRight},
    {"large-german", true, QLocale::German, 15, Qt::LeftToRight},
    {"high-contrast", true, QLocale::English, 0, Qt::LeftToRight, true},
    {"mirrored", false, QLocale::English, 0, Qt::RightToLeft},
};

/// Its name, for the name of a test: "large_german".
[[nodiscard]] std::string TestName(const Look& look);
void PrintTo(const Look& look, std::ostream* out);

/// The application in one look, the texts of the toolkit included, and as it was afterwards.
class Dressed {
public:
    explicit Dressed(const Look& look);
    Dressed(const Dressed&) = delete;
    Dressed& operator=(const Dressed&) = delete;
    ~Dressed();

private:
    FreshDecimalSeparator m_separator;
    QPalette m_palette;
    QFont m_font;
};

} // namespace Support
