#include "QuorConversions/core/NumberFromPaste.h"

#include "QuorConversions/core/NumberText.h"
#include "QuorConversions/core/detail/modEditing.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "tests/support/PasteRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <functional>
#include <random>
#include <string>
#include <vector>

using namespace QuorConversions;
using QuorIniFile::ToUtf8;
using Support::ForEachPaste;
using Support::PasteRow;
using Support::pasteRows;

namespace {

double ValueOf(const std::wstring& number, const std::wstring& separator) {
    const auto value = ParseWholeNumber(ToPointDecimal(number, separator));
    EXPECT_TRUE(value) << ToUtf8(number);
    return value.value_or(0);
}

} // namespace

TEST(NumberFromPaste, ReadsWhatAPersonMeansOrRefuses) {
    EXPECT_GE(std::size(pasteRows), 120U);
    ForEachPaste([](const PasteRow& row, const std::wstring& separator, const std::wstring& number) {
        SCOPED_TRACE(ToUtf8(L"\"" + std::wstring(row.text) + L"\" under \"" + separator + L"\""));
        const PastedNumber pasted = NumberFromPaste(row.text, separator);
        const bool taken = Support::IsTaken(row);
        EXPECT_EQ(pasted.number, taken ? std::optional(number) : std::nullopt);
        EXPECT_EQ(pasted.isToBeTold, row.outcome == Support::isTold);
        EXPECT_EQ(pasted.refusal, row.outcome == Support::isNoNumber  ? PasteRefusal::NoNumber
                                  : row.outcome == Support::isTwofold ? PasteRefusal::TwoReadings
                                                                      : PasteRefusal::None);
    });
}

TEST(NumberFromPaste, TakesThePointForAnEmptySeparatorAndTheFirstCharacterOfALongOne) {
    EXPECT_EQ(NumberFromPaste(L"1.234,5", L"").number, L"1234.5");
    EXPECT_EQ(NumberFromPaste(L"0,003", L"").number, L"0.003");
    EXPECT_EQ(NumberFromPaste(L"100,012", L"").refusal, PasteRefusal::TwoReadings);
    EXPECT_EQ(NumberFromPaste(L"100,012", L",.").number, L"100,012");
    EXPECT_EQ(NumberFromPaste(L"", L"").refusal, PasteRefusal::NoNumber);
}

TEST(NumberFromPaste, GivesTextThatTheDialogsReadAsAWhole) {
    ForEachPaste([](const PasteRow& row, const std::wstring& separator, const std::wstring& number) {
        const PastedNumber pasted = NumberFromPaste(row.text, separator);
        if (!pasted.number)
            return;
        // The number of the row, by a conversion of its own.
        std::string expected = ToUtf8(ToPointDecimal(number, separator));
        expected.erase(0, expected.starts_with('+') ? 1 : 0);
        double value = 0;
        const auto [end, problem] =
            std::from_chars(expected.data(), expected.data() + expected.size(), value);
        ASSERT_EQ(end, expected.data() + expected.size()) << expected;
        const std::wstring text = ToPointDecimal(*pasted.number, separator);
        if (expected == "1E400") {
            EXPECT_THROW((void)ParseLeadingNumber(text), QuorIniFile::QuorError);
            return;
        }
        EXPECT_EQ(std::bit_cast<std::uint64_t>(ParseLeadingNumber(text)), std::bit_cast<std::uint64_t>(value))
            << expected;
        EXPECT_EQ(ParseWholeNumber(text), std::optional(value)) << expected;
    });
}

namespace {

std::string Scientific(double value) {
    char text[40];
    return {text, std::to_chars(text, text + sizeof text, value, std::chars_format::scientific).ptr};
}

std::string Fixed(double value) {
    char text[100];
    return {text, std::to_chars(text, text + sizeof text, value, std::chars_format::fixed).ptr};
}

std::wstring Wide(const std::string& text) { return {text.begin(), text.end()}; }

std::wstring Replaced(std::wstring text, const std::wstring& what, const std::wstring& by) {
    if (const auto at = text.find(what); at != std::wstring::npos)
        text.replace(at, what.size(), by);
    return text;
}

/// Digits in groups of three: those before the point, and, where `behind` says so, those behind it.
std::wstring Grouped(const std::string& number, const std::wstring& divider, const std::wstring& point,
                     const std::wstring& behind) {
    const bool minus = number.starts_with('-');
    const std::string digits = number.substr(minus ? 1 : 0);
    const auto at = std::min(digits.find('.'), digits.size());
    std::wstring text = minus ? L"-" : L"";
    for (std::size_t i = 0; i < at; ++i)
        text +=
            (i > 0 && (at - i) % 3 == 0 ? divider : L"") + std::wstring(1, static_cast<wchar_t>(digits[i]));
    text += point; // always: of "615,212" alone nobody can know what it means, and the user is told
    if (at == digits.size())
        return text + L"0";
    for (std::size_t i = at + 1; i < digits.size(); ++i)
        text += (i > at + 1 && (i - at - 1) % 3 == 0 ? behind : L"") +
                std::wstring(1, static_cast<wchar_t>(digits[i]));
    return text;
}

/// "3.9083 x 10-3" with the parts as a certificate writes them.
std::wstring Power(double value, const std::wstring& times, const std::wstring& ten, bool raised) {
    const std::string text = Scientific(value);
    const auto letter = text.find('e');
    std::wstring power = Wide(text.substr(letter + 1));
    if (power.front() == L'+')
        power.erase(0, 1);
    if (raised)
        for (wchar_t& c : power)
            c = c == L'-' ? L'\u207B'
                          : std::wstring(L"\u2070\u00B9\u00B2\u00B3\u2074\u2075\u2076\u2077\u2078\u2079")
                                [static_cast<std::size_t>(c - L'0')];
    return Wide(text.substr(0, letter)) + times + ten + power;
}

struct Style {
    const char* name;
    std::wstring (*write)(double);
    bool plain;        ///< without an exponent
    bool mayBeRefused; ///< where one of the two separators gives the text two readings
};

const Style styles[] = {
    {"as programs print", [](double v) { return Wide(Scientific(v)); }, false, false},
    {"with a long minus", [](double v) { return Replaced(Wide(Scientific(v)), L"-", L"\u2212"); }, false,
     false},
    {"plain", [](double v) { return Wide(Fixed(v)); }, true, false},
    {"plain with a comma", [](double v) { return Replaced(Wide(Fixed(v)), L".", L","); }, true, true},
    {"with blanks", [](double v) { return Grouped(Fixed(v), L"\u202F", L".", L"\u2009"); }, true, false},
    {"with commas", [](double v) { return Grouped(Fixed(v), L",", L".", L""); }, true, true},
    {"with points", [](double v) { return Grouped(Fixed(v), L".", L",", L""); }, true, true},
    {"with apostrophes",
     [](double v) { return L"R0 = " + Grouped(Fixed(v), L"\u2019", L".", L"") + L" \u03A9"; }, true, false},
    {"with a raised power",
     [](double v) { return Power(v, L" \u00D7 ", L"10", true) + L" \u00B0C\u207B\u00B9"; }, false, false},
    {"with a power of a caret",
     [](double v) { return Replaced(Power(v, L"\u00B7", L"10^", false), L".", L","); }, false, true},
};

} // namespace

TEST(NumberFromPaste, NeverChangesADigitOfANumberOnACertificate) {
    std::mt19937_64 random(20240229);
    std::vector<std::size_t> refused(std::size(styles));
    for (int i = 0; i < 100000; ++i) {
        // Every third one any double at all; the others as they stand on certificates, of few digits, too.
        double value = std::bit_cast<double>(random());
        if (i % 3 == 1)
            value = std::ldexp(static_cast<double>(random() >> 11U), static_cast<int>(random() % 60) - 80) *
                    (random() % 2 == 0 ? 1 : -1);
        else if (i % 3 == 2)
            value = static_cast<double>(static_cast<std::int64_t>(random() % 20000000) - 10000000) /
                    std::pow(10.0, static_cast<double>(random() % 8));
        if (!std::isfinite(value))
            continue;
        int exponent = 0;
        const std::size_t number = random() % std::size(styles);
        // Nobody writes three hundred digits.
        if (styles[number].plain && value != 0 && (std::abs(value) < 1e-20 || std::abs(value) > 1e20))
            value = std::ldexp(std::frexp(value, &exponent), 1);
        const std::wstring text = styles[number].write(value);
        const std::wstring separator = random() % 2 == 0 ? L"." : L",";
        const PastedNumber pasted = NumberFromPaste(text, separator);
        if (!pasted.number)
            ++refused[number];
        else
            ASSERT_EQ(std::bit_cast<std::uint64_t>(ValueOf(*pasted.number, separator)),
                      std::bit_cast<std::uint64_t>(value))
                << ToUtf8(text) << " under " << ToUtf8(separator);
    }
    for (std::size_t number = 0; number < std::size(styles); ++number) {
        const std::size_t allowed = styles[number].mayBeRefused ? 1000 : 0; // of ten thousand
        EXPECT_LE(refused[number], allowed) << styles[number].name;
    }
}
