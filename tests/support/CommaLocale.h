#pragma once

#include <clocale>
#include <locale>
#include <stdexcept>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): setenv is not in cstdlib

/// Makes the whole process, C and C++, speak German while it lives, and proves that the decimal separator is
/// a comma then. QUOR_TEST_LOCALES is the folder in which the build has made the locale.
class CommaLocale {
public:
    CommaLocale() {
        ::setenv("LOCPATH", QUOR_TEST_LOCALES, 1);
        m_before = std::locale::global(std::locale("de_DE.UTF-8"));
        if (*std::localeconv()->decimal_point != ',')
            throw std::runtime_error("the comma locale is not set");
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;
    ~CommaLocale() {
        std::locale::global(m_before);
        std::setlocale(LC_ALL, "C");
        ::unsetenv("LOCPATH");
    }

private:
    std::locale m_before;
};
