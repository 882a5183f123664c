#include "QuorIniFile/detail/IniValue.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <random>
#include <string>
#include <utility>

using namespace QuorIniFile;
using namespace std::string_literals;

namespace {

using Limits = std::numeric_limits<double>;

std::uint64_t Bits(double value) { return std::bit_cast<std::uint64_t>(value); }

} // namespace

TEST(IniValue, DoublesAreSpelledAsShortAsTheyReadBack) {
    const std::pair<double, const char*> cases[] = {
        {0.0, "0"},
        {-0.0, "-0"},
        {100.0, "100"},
        {100.02, "100.02"},
        {0.1, "0.1"},
        {0.1 + 0.2, "0.30000000000000004"},
        {-5.775e-7, "-5.775e-07"},
        {Limits::denorm_min(), "5e-324"},
        {Limits::max(), "1.7976931348623157e+308"},
        {Limits::quiet_NaN(), "NaN"},
        {-Limits::quiet_NaN(), "NaN"},
        {Limits::infinity(), "Infinity"},
        {-Limits::infinity(), "-Infinity"},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(FormatDouble(value), text);
}

TEST(IniValue, DoublesAreReadInEverySpellingThatIsANumber) {
    const std::pair<const char*, double> cases[] = {
        {"100.02", 100.02},
        {"+100.02", 100.02},
        {"-0", -0.0},
        {".5", 0.5},
        {"5.", 5.0},
        {"1E3", 1000.0},
        {"1e-3", 0.001},
        {"5e-324", Limits::denorm_min()},
        {"0e-999", 0.0},
        {"infinity", Limits::infinity()},
        {"-INFINITY", -Limits::infinity()},
        {"0.1000000000000000055511151231257827021181583404541015625", 0.1},
    };
    for (const auto& [text, value] : cases) {
        const auto read = ParseDouble(text);
        ASSERT_TRUE(read.has_value()) << text;
        EXPECT_EQ(Bits(*read), Bits(value)) << text;
    }
    ASSERT_TRUE(ParseDouble("nan").has_value());
    EXPECT_NE(*ParseDouble("nan"), *ParseDouble("NAN"));
}

TEST(IniValue, WhatIsNoDoubleToItsEndIsNotRead) {
    for (const std::string& text :
         {""s,     "12abc"s, "1,5"s,    "1 2"s,    "0x10"s, "1e"s,  "e1"s,    "."s,
          "-"s,    "+"s,     "+-1"s,    "-+1"s,    "--1"s,  "inf"s, "-inf"s,  "nan(1)"s,
          "-NaN"s, "1e999"s, "-1e999"s, "1e-999"s, "1\0"s,  " 1"s,  R"("1")"s})
        EXPECT_EQ(ParseDouble(text), std::nullopt) << text;
}

TEST(IniValue, IntegersHaveSixteenBits) {
    EXPECT_EQ(FormatInteger(-32768), "-32768");
    EXPECT_EQ(ParseInteger("-32768"), -32768);
    EXPECT_EQ(ParseInteger("32767"), 32767);
    EXPECT_EQ(ParseInteger("+7"), 7);
    EXPECT_EQ(ParseInteger("007"), 7);
    for (const char* text : {"", "32768", "-32769", "70000", "1.0", "1e2", "0x1", "+-1", "1 ", "."})
        EXPECT_EQ(ParseInteger(text), std::nullopt) << text;
}

TEST(IniValue, FlagsAreReadInFiveSpellings) {
    EXPECT_EQ(FormatBoolean(true), "True");
    EXPECT_EQ(FormatBoolean(false), "False");
    for (const char* text : {"True", "TRUE", "true", "-1", "1"})
        EXPECT_EQ(ParseBoolean(text), true) << text;
    for (const char* text : {"False", "FALSE", "false", "0"})
        EXPECT_EQ(ParseBoolean(text), false) << text;
    for (const char* text : {"", "yes", "2", "+1", "Tru", "-0"})
        EXPECT_EQ(ParseBoolean(text), std::nullopt) << text;
}

TEST(IniValue, ANumberThatNoDoubleCanHoldIsToldFromWhatIsNoNumber) {
    for (const char* text : {"1E400", "-1e309", "+1E400", "1E-400", "-1E-400"}) {
        EXPECT_TRUE(IsBeyondDouble(text)) << text;
        EXPECT_EQ(ParseDouble(text), std::nullopt) << text;
    }
    for (const char* text :
         {"1E308", "0", "5E-324", "Infinity", "NaN", "1E400x", "1E400 ", "", "inf", "+-1E400"})
        EXPECT_FALSE(IsBeyondDouble(text)) << text;
}

TEST(IniValue, TextStandsAsItIsOrInQuotesWhereItWouldNotSurvive) {
    const std::pair<std::wstring, std::string> cases[] = {
        {L"", ""},
        {L"1.0", "1.0"},
        {LR"(C:\Data\new)", R"(C:\Data\new)"},
        {L"a; b # c = d", "a; b # c = d"},
        {L"a\tb", "a\tb"},
        {L"K\u00F6ln \U0001F321", "K\xC3\xB6ln \xF0\x9F\x8C\xA1"},
        {L" edge", R"(" edge")"},
        {L"edge\t", "\"edge\t\""},
        {L" ", R"(" ")"},
        {L"; a", R"("; a")"},
        {L"a ; b", R"("a ; b")"},
        {L"a\t;", "\"a\t;\""},
        {L"a;b", "a;b"},
        {L"#a", R"("#a")"},
        {L"\"", R"("\"")"},
        {LR"(2" \ 3)", R"("2\" \\ 3")"},
        {L"two\r\nlines", R"("two\r\nlines")"},
        {L"bell\a", R"("bell\u{7}")"},
        {std::wstring(L"a\0b", 3), R"("a\u{0}b")"},
        {L"\u0085", R"("\u{85}")"},
        {std::wstring(1, static_cast<wchar_t>(0xD8FF)), R"("\u{D8FF}")"},
    };
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(EncodeText(text, IniEncoding::Utf8), bytes);
        EXPECT_EQ(DecodeText(bytes), text);
    }
}

TEST(IniValue, ALatin1FileGetsLatin1AndEscapesForTheRest) {
    const std::pair<std::wstring, std::string> cases[] = {
        {L"20 \u00B0C", "20 \xB0"
                        "C"},
        {L"10 k\u2126", R"("10 k\u{2126}")"},
        {L"\u00B0 \u2126", "\"\xB0 \\u{2126}\""},
        {L"\u00C3\u00B6", R"("\u{C3}\u{B6}")"}, // as it stands it would read back as one letter
        {L"\u0093quoted\u0094", "\x93quoted\x94"},
    };
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(EncodeText(text, IniEncoding::Latin1), bytes);
        EXPECT_EQ(DecodeText(bytes), text);
    }
}

TEST(IniValue, ACharacterOfTwoUnitsOf16BitsIsWrittenOrEscapedAsOne) {
    const struct {
        std::u16string text;
        const char* utf8;
        const char* latin1;
    } cases[] = {
        {u"20 \u00B0C",
         "20 \xC2\xB0"
         "C",
         "20 \xB0"
         "C"},
        {u"\U0001F321", "\xF0\x9F\x8C\xA1", R"("\u{1F321}")"},
        {u"a\U0010FFFFb",
         "a\xF4\x8F\xBF\xBF"
         "b",
         R"("a\u{10FFFF}b")"},
        {u"\"\U00010000", "\"\\\"\xF0\x90\x80\x80\"", R"("\"\u{10000}")"},
        {{u'a', 0xD83C}, R"("a\u{D83C}")", R"("a\u{D83C}")"},
        {{0xDF21, 0xD83C}, R"("\u{DF21}\u{D83C}")", R"("\u{DF21}\u{D83C}")"},
        {{0xD83C, 0xD83C, 0xDF21}, "\"\\u{D83C}\xF0\x9F\x8C\xA1\"", R"("\u{D83C}\u{1F321}")"},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(EncodeText(expected.text, IniEncoding::Utf8), expected.utf8);
        EXPECT_EQ(EncodeText(expected.text, IniEncoding::Latin1), expected.latin1);
    }
}

TEST(IniValue, QuotedTextOfOtherProgramsIsReadAsTheyMeanIt) {
    const std::pair<const char*, const wchar_t*> cases[] = {
        {R"("C:\Data")", L"C:\\Data"},
        {R"("C:\")", L"C:\\"},
        {R"("C:\Data\\x")", L"C:\\Data\\\\x"},
        {R"("a" or "b")", L"\"a\" or \"b\""},
        {R"(")", L"\""},
        {R"("")", L""},
        {R"("a)", L"\"a"},
        {R"(a")", L"a\""},
        {R"(a\nb)", L"a\\nb"},
        {R"("\u{41}\u{00000042}")", L"AB"},
        {R"("\u{}")", L"\\u{}"},
        {R"("\u{41")", L"\\u{41"},
        {R"("\u{123456789}")", L"\\u{123456789}"},
        {R"("\u41")", L"\\u41"},
        {R"("a" ; b)", L"a"},
        {R"("two\nlines; " ; b)", L"two\nlines; "},
        {R"("C:\Data" ; b)", L"C:\\Data"},
        {R"("a" ; "b")", L"\"a\" ; \"b\""},
        {R"("a";b)", L"\"a\";b"},
        {R"(a ; b)", L"a ; b"},
    };
    for (const auto& [value, text] : cases)
        EXPECT_EQ(DecodeText(value), text) << value;
}

TEST(IniValue, EveryWideStringComesBackFromEitherEncoding) {
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same strings in every run
    const wchar_t special[] = L" \t\"\\;#=\r\n{}u[]\u00B0\u00C3\u00E4\u2126n";
    for (int i = 0; i < 100'000; ++i) {
        std::wstring text(random() % 8, L'\0');
        for (wchar_t& c : text) {
            switch (random() % 4) {
            case 0:
                c = static_cast<wchar_t>(random());
                break;
            case 1:
                c = static_cast<wchar_t>(random() % 0x120);
                break;
            default:
                c = special[random() % (std::size(special) - 1)];
            }
        }
        for (const IniEncoding encoding : {IniEncoding::Utf8, IniEncoding::Latin1}) {
            const std::string bytes = EncodeText(text, encoding);
            ASSERT_EQ(DecodeText(bytes), text) << bytes;
            const std::string line = "Key=" + bytes;
            ASSERT_EQ(ClassifyLine(line).value, bytes);
            ASSERT_EQ(bytes.find('\n'), std::string::npos);
        }
    }
}

TEST(IniValue, ARemarkBecomesOneLine) {
    EXPECT_EQ(FormatComment(L"", IniEncoding::Utf8), "");
    EXPECT_EQ(FormatComment(L" \n", IniEncoding::Utf8), "");
    EXPECT_EQ(FormatComment(L" ohms\nat 0 \u00B0C ", IniEncoding::Utf8), "; ohms at 0 \xC2\xB0"
                                                                         "C");
    EXPECT_EQ(FormatComment(L"\u2126 at 0 \u00B0C", IniEncoding::Latin1), "; ? at 0 \xB0"
                                                                          "C");
}
