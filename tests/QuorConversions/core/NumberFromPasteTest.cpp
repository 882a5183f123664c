#include "QuorConversions/core/NumberFromPaste.h"

#include "QuorConversions/core/NumberText.h"
#include "QuorConversions/core/detail/modEditing.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"

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

namespace {

// What becomes of a text.
enum Outcome {
    isNumber,   ///< `number` is pasted
    isTold,     ///< `number` is pasted, and the user is told what was read
    isNoNumber, ///< nothing is pasted
    isTwofold,  ///< nothing is pasted: there are two readings
};

struct Row {
    const wchar_t* text;
    const wchar_t* separator;
    Outcome outcome;
    const wchar_t* number = L"";
};

const wchar_t* const both = nullptr; ///< the same under both separators, but for the separator in the number

const Row rows[] = {
    // Plain numbers
    {L"100.0123", L".", isNumber, L"100.0123"},
    {L"100.0123", L",", isNumber, L"100,0123"},
    {L"5", both, isNumber, L"5"},
    {L"5.", both, isNumber, L"5."},
    {L".5", both, isNumber, L".5"},
    {L"007", both, isNumber, L"007"},
    {L"0.30000000000000004", both, isNumber, L"0.30000000000000004"},
    {L"1.234567890123456789012345678901234567890", both, isNumber,
     L"1.234567890123456789012345678901234567890"},
    {L"100.0100", both, isNumber, L"100.0100"},
    {L"", both, isNoNumber},
    {L"   ", both, isNoNumber},
    {L".", both, isNoNumber},
    {L",", both, isNoNumber},
    {L"-", both, isNoNumber},
    {L"abc", both, isNoNumber},
    {L"NaN", both, isNoNumber},
    {L"Infinity", both, isNoNumber},
    {L"0x1F", both, isNoNumber},

    // Signs
    {L"-5.5", both, isNumber, L"-5.5"},
    {L"+5.5", both, isNumber, L"+5.5"},
    {L"\u22122.3502171E-4", both, isNumber, L"-2.3502171E-4"},
    {L"\u20102.5", both, isNumber, L"-2.5"},
    {L"\u20112.5", both, isNumber, L"-2.5"},
    {L"\u20122.5", both, isNumber, L"-2.5"},
    {L"\u20132.5", both, isNumber, L"-2.5"},
    {L"\uFE632.5", both, isNumber, L"-2.5"},
    {L"\uFF0D2.5", both, isNumber, L"-2.5"},
    {L"\uFF0B2.5", both, isNumber, L"+2.5"},
    {L"\u2212 2.5", both, isNumber, L"-2.5"},
    {L"- 2.5", both, isTwofold},
    {L"\u2013 2.5", both, isTwofold},
    {L"-\u00A02.5", both, isTwofold},
    {L"A4 = - 2.5", both, isNumber, L"-2.5"},
    {L"A4 = \u2013 2.5", both, isNumber, L"-2.5"},
    {L"A4: - 2.5", both, isTwofold},
    {L"A4: -2.5", both, isNumber, L"-2.5"},
    {L"--2.5", both, isNoNumber},
    {L"+-2.5", both, isNoNumber},
    {L"2.5-", both, isNoNumber},
    {L"2.5\u2212", both, isNoNumber},
    {L"\u20142.5", both, isNoNumber}, // em dash
    {L"\u20152.5", both, isNoNumber}, // horizontal bar
    {L"\u00AD2.5", both, isNoNumber}, // soft hyphen
    {L"2\u00AD5", both, isNoNumber},  // soft hyphen
    {L"\u207B2.5", both, isNoNumber}, // superscript minus
    {L"\uF02D2.5", both, isNoNumber}, // the minus of a symbol font, for private use
    {L"\u001E2.5", both, isNoNumber}, // a control character
    {L"\u00112.5", both, isNoNumber}, // a control character
    {L"2.5\u0007", both, isNoNumber}, // a control character
    {L"~2.5", both, isNoNumber},
    {L"<2.5", both, isNoNumber},
    {L"\u200E2.5", both, isNoNumber}, // a mark of direction

    // Blanks
    {L" 2.5 ", both, isNumber, L"2.5"},
    {L"\t2.5\r\n", both, isNumber, L"2.5"},
    {L"\u2028\u00852.5\u2029", both, isNumber, L"2.5"},
    {L"\uFEFF2.5\u200B", both, isNumber, L"2.5"},
    {L"1 234.5", both, isNumber, L"1234.5"},
    {L"1\u00A0234.5", both, isNumber, L"1234.5"},
    {L"1\u2009234\u202F567", both, isNumber, L"1234567"},
    {L"1\u16802\u2003", both, isNoNumber},
    {L"1\u2007234.5", both, isNumber, L"1234.5"},
    {L"1\u205F234.5", both, isNumber, L"1234.5"},
    {L"1\u3000234.5", both, isNumber, L"1234.5"},
    {L"1\u200B234.5", both, isNumber, L"1234.5"},
    {L"1\uFEFF234.5", both, isNumber, L"1234.5"},
    {L"1 \u200B234.5", both, isNumber, L"1234.5"},
    {L"0.003 908 3", both, isNumber, L"0.0039083"},
    {L"0.003 908 31", both, isNumber, L"0.00390831"},
    {L"1 234.567 89", both, isNumber, L"1234.56789"},
    {L"1234.567 89", both, isNumber, L"1234.56789"},
    {L"1  234.5", both, isTwofold},
    {L"1\t234.5", both, isNoNumber},
    {L"1\n234.5", both, isNoNumber},
    {L"12 34.5", both, isNoNumber},
    {L"1234 567.5", both, isNoNumber},
    {L"0 123.5", both, isNoNumber},
    {L"0.12 345", both, isNoNumber},
    {L"0.003 9083", both, isNoNumber},
    {L"1 2", both, isNoNumber},
    {L"1'234.5", both, isNumber, L"1234.5"},
    {L"1\u2019234\u2019567.5", both, isNumber, L"1234567.5"},
    {L"0.123'456", both, isNoNumber},
    {L"1'23.5", both, isNoNumber},
    {L"'123", both, isNoNumber},
    {L"1 234'567", both, isNoNumber},

    // Points and commas
    {L"1,234.5", both, isNumber, L"1234.5"},
    {L"1.234,5", both, isNumber, L"1234.5"},
    {L"1,234,567.8", both, isNumber, L"1234567.8"},
    {L"1.234.567,8", both, isNumber, L"1234567.8"},
    {L"1,234.567", both, isNumber, L"1234.567"},
    {L"1.234.567", both, isNumber, L"1234567"},
    {L"1,234,567", both, isNumber, L"1234567"},
    {L"1,234,567.8,9", both, isNoNumber},
    {L"1.234,567,8", both, isNoNumber},
    {L"1,23.5", both, isNoNumber},
    {L"1.234.56", both, isNoNumber},
    {L"0,123.4", both, isNoNumber},
    {L"0.123.456", both, isNoNumber},
    {L"1 234,567.8", both, isNoNumber},
    {L"1..5", both, isNoNumber},
    {L"25.48317", both, isNumber, L"25.48317"},
    {L"10.000", both, isTold, L"10.000"},
    {L"10.000 \u03A9", both, isTold, L"10.000"},
    {L"-1.234", both, isTold, L"-1.234"},
    {L"1.234E-7", both, isNumber, L"1.234E-7"},
    {L"12.345E-7", both, isTold, L"12.345E-7"},
    {L"1234.567", both, isNumber, L"1234.567"},
    {L"0.123", both, isNumber, L"0.123"},
    {L"0,00385", L",", isNumber, L"0,00385"},
    {L"10,000", L",", isTold, L"10,000"},
    {L"100,012", L",", isTold, L"100,012"},
    {L"1,5", L",", isNumber, L"1,5"},
    {L"1,5", L".", isNumber, L"1.5"},
    {L"0,003", L".", isNumber, L"0.003"},
    {L"-0,003", L".", isNumber, L"-0.003"},
    {L",003", L".", isNumber, L".003"},
    {L"0,00385", L".", isNumber, L"0.00385"},
    {L"25,48317", L".", isNumber, L"25.48317"},
    {L"1234,567", L".", isNumber, L"1234.567"},
    {L"1 234,567", L".", isNumber, L"1234.567"},
    {L"1,234 567", L".", isNumber, L"1.234567"},
    {L"-5,775E-7", L".", isNumber, L"-5.775E-7"},
    {L"-5,775 \u00D7 10\u207B\u2077", L".", isNumber, L"-5.775E-7"},
    {L"-57,755E-7", L".", isTwofold},
    {L"100,012", L".", isTwofold},
    {L"1,234", L".", isTwofold},
    {L"100,012 \u03A9", L".", isTwofold},
    {L"R0 = 100,012", L".", isTwofold},

    // Another separator than point and comma
    {L"1\u066B5", L"\u066B", isNumber, L"1\u066B5"},
    {L"1.5", L"\u066B", isNumber, L"1\u066B5"},
    {L"1,234", L"\u066B", isTwofold},
    {L"1.234\u066B567", L"\u066B", isNoNumber},
    {L"1\u066B5", L".", isNoNumber},

    // Exponents
    {L"1E5", both, isNumber, L"1E5"},
    {L"3.9083E-03", both, isNumber, L"3.9083E-03"},
    {L"3.9083e\u22123", both, isNumber, L"3.9083E-3"},
    {L"3.9083e+3", both, isNumber, L"3.9083E+3"},
    {L"3.9083D-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 E-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 E3", both, isNoNumber},
    {L"3.9083E", both, isNoNumber},
    {L"3.9083E-", both, isNoNumber},
    {L"3.9083E - 3", both, isNoNumber},
    {L"3.9083E-3E-3", both, isNoNumber},
    {L"3.9083 \u00D7 10^-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10\u207B\u00B3", both, isNumber, L"3.9083E-3"},
    {L"3.9083\u00D710\u00B2", both, isNumber, L"3.9083E2"},
    {L"3.9083 \u00B7 10\u207B\u00B9\u2070", both, isNumber, L"3.9083E-10"},
    {L"3.9083 \u22C5 10^\u22123", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u2219 10^3", both, isNumber, L"3.9083E3"},
    {L"3.9083 x 10**-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083*10^-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10 -3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10 \u22123", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10\u20133", both, isNumber, L"3.9083E-3"},
    {L"3.9083 x 10+3", both, isNumber, L"3.9083E+3"},
    {L"3.9083 x 104", both, isTwofold},
    {L"3.9083 x 10 4", both, isTwofold},
    {L"3.9083 x 10", both, isNoNumber},
    {L"3.9083 x 10 - 3", both, isNoNumber},
    {L"3.9083 x 2", both, isNoNumber},
    {L"3.9083 10-3", both, isNoNumber},
    {L"10^-3", both, isNoNumber},
    {L"10\u207B\u00B3", both, isNoNumber},
    {L"3.9083 \u00D7 10^(-3)", both, isNoNumber},
    {L"\uFF13.\uFF19\uFF10", both, isNumber, L"3.90"},
    {L"3.9 \u00D7 \uFF11\uFF10\u207B\u00B3", both, isNumber, L"3.9E-3"},
    {L"1E400", both, isNumber, L"1E400"},
    {L"1E-400", both, isNumber, L"1E-400"},

    // Units
    {L"100.01\u03A9", both, isNumber, L"100.01"},
    {L"100.01 \u2126", both, isNumber, L"100.01"},
    {L"100.01 ohm", both, isNumber, L"100.01"},
    {L"100.01ohms", both, isNumber, L"100.01"},
    {L"-38.8344 \u00B0C", both, isNumber, L"-38.8344"},
    {L"-38.8344\u2103", both, isNumber, L"-38.8344"},
    {L"273.16 K", both, isNumber, L"273.16"},
    {L"273.16K", both, isNoNumber},
    {L"10.5 mV", both, isNumber, L"10.5"},
    {L"0.0405 mV/\u00B0C", both, isNumber, L"0.0405"},
    {L"0.0405 mV/K", both, isNumber, L"0.0405"},
    {L"3.9083E-3 1/\u00B0C", both, isNumber, L"3.9083E-3"},
    {L"3.9083E-31/\u00B0C", both, isNoNumber},
    {L"3.9083E-3 1/K", both, isNumber, L"3.9083E-3"},
    {L"3.9083 1/\u00B0C", both, isNumber, L"3.9083"},
    {L"3.9083E-3 \u00B0C\u207B\u00B9", both, isNumber, L"3.9083E-3"},
    {L"-5.775E-7 \u00B0C\u207B\u00B2", both, isNumber, L"-5.775E-7"},
    {L"-5.775E-7\u00B0C\u207B\u00B3", both, isNumber, L"-5.775E-7"},
    {L"-4.183E-12 \u2103\u207B\u2074", both, isNumber, L"-4.183E-12"},
    {L"3.9083E-3 \u00B0C-1", both, isNumber, L"3.9083E-3"},
    {L"3.9083E-3 \u00B0C\u22121", both, isNumber, L"3.9083E-3"},
    {L"3.9083E-3 K\u207B\u00B9", both, isNumber, L"3.9083E-3"},
    {L"3.9083E-3K\u207B\u00B9", both, isNoNumber},
    {L"3.9083 \u00D7 10\u207B\u00B3 \u00B0C\u207B\u00B9", both, isNumber, L"3.9083E-3"},
    {L"1 234.5 \u03A9", both, isNumber, L"1234.5"},
    {L"5 k\u03A9", both, isNoNumber},
    {L"5k\u03A9", both, isNoNumber},
    {L"5 mK", both, isNoNumber},
    {L"5 m\u03A9", both, isNoNumber},
    {L"5 \u00B5V", both, isNoNumber},
    {L"5 V", both, isNoNumber},
    {L"5 %", both, isNoNumber},
    {L"5 ppm", both, isNoNumber},
    {L"5 \u00B0F", both, isNoNumber},
    {L"\u03A9", both, isNoNumber},
    {L"\u03A9 5", both, isNoNumber},

    // Names
    {L"R0 = 100.01 \u03A9", both, isNumber, L"100.01"},
    {L"R0=100.01", both, isNumber, L"100.01"},
    {L"R\u2080 = 100.01", both, isNumber, L"100.01"},
    {L"ALPHA: 0.00385", both, isNumber, L"0.00385"},
    {L"\u03B1 = 0.00385", both, isNumber, L"0.00385"},
    {L"A[7]: -1.5E-4", both, isNumber, L"-1.5E-4"},
    {L"a(4) = 1.5", both, isNumber, L"1.5"},
    {L"R(0 \u00B0C) = 100.01", both, isNumber, L"100.01"},
    {L"R(0.01 \u00B0C) = 25.5", both, isNumber, L"25.5"},
    {L"R0/\u03A9 = 100.01", both, isNumber, L"100.01"},
    {L"R0 [\u03A9]: 100.01", both, isNumber, L"100.01"},
    {L"Temperature 2: 100.01", both, isNumber, L"100.01"},
    {L"Coefficient A = 3.9E-3", both, isNumber, L"3.9E-3"},
    {L"C15 = 3.9E-3", both, isNumber, L"3.9E-3"},
    {L"= 100.01", both, isNumber, L"100.01"},
    {L"R0 =", both, isNoNumber},
    {L"A\u00B710\u00B3 = 3.9083", both, isNoNumber},
    {L"A x 10^3 = 3.9083", both, isNoNumber},
    {L"A x 103 = 3.9083", both, isNoNumber},
    {L"A x1000 = 3.9083", both, isNoNumber},
    {L"A E3 = 3.9083", both, isNoNumber},
    {L"A103 = 3.9083", both, isNoNumber},
    {L"1000 A = 3.9083", both, isNoNumber},
    {L"R0/k\u03A9 = 0.1", both, isNoNumber},
    {L"R0 (k\u03A9) = 0.1", both, isNoNumber},
    {L"R0 k\u03A9: 0.1", both, isNoNumber},
    {L"U [\u00B5V] = 0.1", both, isNoNumber},
    {L"U \u00B5V = 0.1", both, isNoNumber},
    {L"T mK = 0.1", both, isNoNumber},
    {L"A/ppm = 0.1", both, isNoNumber},
    {L"A in % = 0.1", both, isNoNumber},
    {L"-a4 = 0.1", both, isNoNumber},
    {L"\u2212a4 = 0.1", both, isNoNumber},
    {L"minus a4 = 0.1", both, isNoNumber},
    {L"ln(R0) = 4.6", both, isNoNumber},
    {L"lnR = 4.6", both, isNoNumber},
    {L"log R0 = 2", both, isNoNumber},
    {L"1/A = 2", both, isNoNumber},
    {L"A\u00B2 = 2", both, isNoNumber},
    {L"A/B = 2", both, isNoNumber},
    {L"A = B = 2", both, isNoNumber},
    {L"12:30", both, isNoNumber},

    // What says more than a number
    {L"100.01 \u00B1 0.02", both, isNoNumber},
    {L"100.01(2)", both, isNoNumber},
    {L"(100.01)", both, isNoNumber},
    {L"[100.01]", both, isNoNumber},
    {L"1/2", both, isNoNumber},
    {L"\u00BD", both, isNoNumber},
    {L"1\u00BD", both, isNoNumber},
    {L"\u0661\u0662", both, isNoNumber},
    {L"\u2460", both, isNoNumber},
    {L"100.01\u00B2", both, isNoNumber},
    {L"1.5; 2.5", both, isNoNumber},
    {L"100\uFF0E5", both, isNoNumber},
};

/// Every row under every separator that it holds for, with the number as it is then.
void ForEachCase(
    const std::function<void(const Row&, const std::wstring& separator, std::wstring number)>& act) {
    for (const Row& row : rows)
        for (const std::wstring separator : {L".", L",", L"\u066B"}) {
            std::wstring number = row.number;
            if (!row.separator && separator != L"\u066B")
                std::replace(number.begin(), number.end(), L'.', separator.front());
            else if (!row.separator || row.separator != separator)
                continue;
            act(row, separator, number);
        }
}

double ValueOf(const std::wstring& number, const std::wstring& separator) {
    const auto value = ParseWholeNumber(ToPointDecimal(number, separator));
    EXPECT_TRUE(value) << ToUtf8(number);
    return value.value_or(0);
}

} // namespace

TEST(NumberFromPaste, ReadsWhatAPersonMeansOrRefuses) {
    EXPECT_GE(std::size(rows), 120U);
    ForEachCase([](const Row& row, const std::wstring& separator, const std::wstring& number) {
        SCOPED_TRACE(ToUtf8(L"\"" + std::wstring(row.text) + L"\" under \"" + separator + L"\""));
        const PastedNumber pasted = NumberFromPaste(row.text, separator);
        const bool taken = row.outcome == isNumber || row.outcome == isTold;
        EXPECT_EQ(pasted.number, taken ? std::optional(number) : std::nullopt);
        EXPECT_EQ(pasted.couldGroup, row.outcome == isTold);
        EXPECT_EQ(pasted.refusal, row.outcome == isNoNumber  ? PasteRefusal::NoNumber
                                  : row.outcome == isTwofold ? PasteRefusal::TwoReadings
                                                             : PasteRefusal::None);
    });
}

TEST(NumberFromPaste, GivesTextThatTheDialogsReadAsAWhole) {
    ForEachCase([](const Row& row, const std::wstring& separator, const std::wstring& number) {
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
