#pragma once

#include "tests/support/Environment.h"

#include <clocale>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <string>

/// Makes the whole process, C and C++, write numbers the German way while it lives, and proves that the
/// decimal separator is a comma then. QUOR_TEST_LOCALES is the folder in which the build has made the locale.
class CommaLocale {
public:
    CommaLocale() {
        Support::SetVariable("LOCPATH", QUOR_TEST_LOCALES);
        if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
            std::setlocale(LC_ALL, "German"); // where locales are not files
        // std::locale by name would leak inside the C library, which the sanitizer rightly reports.
        m_before = std::locale::global(std::locale(std::locale::classic(), new GermanNumbers));
        std::ostringstream text;
        text << 1234.5;
        if (*std::localeconv()->decimal_point != ',' || text.str() != "1.234,5")
            throw std::runtime_error("the comma locale is not set");
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale() {
        std::locale::global(m_before);
        std::setlocale(LC_ALL, "C");
        Support::SetVariable("LOCPATH", nullptr);
    }

private:
    struct GermanNumbers : std::numpunct<char> {
        [[nodiscard]] char do_decimal_point() const override { return ','; }
        [[nodiscard]] char do_thousands_sep() const override { return '.'; }
        [[nodiscard]] std::string do_grouping() const override { return "\3"; }
    };

    std::locale m_before;
};
