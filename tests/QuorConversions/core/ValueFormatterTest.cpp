#include "QuorConversions/core/ValueFormatter.h"

#include "QuorConversions/core/NumberText.h"
#include "QuorIniFile/Utf8.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <fstream>
#include <limits>
#include <random>
#include <string>

using namespace QuorConversions;
using QuorIniFile::FromUtf8;
using QuorIniFile::ToUtf8;

namespace {

constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();

struct Row {
    const wchar_t* format;
    double value;
    std::wstring text;
};

template <std::size_t count>
void ExpectTexts(const Row (&rows)[count], const NumberSeparators& separators = {}) {
    for (const auto& [format, value, text] : rows)
        EXPECT_EQ(ToUtf8(FormatValue(value, format, separators)), ToUtf8(text))
            << ToUtf8(format) << " of " << value;
}

std::uint64_t Bits(double value) { return std::bit_cast<std::uint64_t>(value); }

double RandomDouble(std::mt19937_64& random) {
    for (;;)
        if (const auto value = std::bit_cast<double>(random()); std::isfinite(value))
            return value;
}

} // namespace

TEST(ValueFormatter, ShowsWithoutAFormatTheShortestTextThatReadsBack) {
    ExpectTexts({
        {L"", 0.0, L"0"},
        {L"", -0.0, L"-0"}, // so that it comes back, too
        {L"", 1.0, L"1"},
        {L"", -1.5, L"-1.5"},
        {L"", 100.0123, L"100.0123"},
        {L"", 0.1, L"0.1"},
        {L"", 0.1 + 0.2, L"0.30000000000000004"},
        {L"", 0.00001, L"0.00001"},
        {L"", 0.000012345678901234567, L"0.000012345678901234568"},
        {L"", 0.00000999, L"9.99E-06"},
        {L"", 1.5e-7, L"1.5E-07"},
        {L"", -3e-100, L"-3E-100"},
        {L"", 999999999999999.0, L"999999999999999"},
        {L"", 999999999999999.9, L"999999999999999.9"},
        {L"", 1e15, L"1E+15"},
        {L"", 1234567890123456.0, L"1.234567890123456E+15"},
        {L"", largest, L"1.7976931348623157E+308"},
        {L"", smallest, L"5E-324"},
        {L"", 2.2250738585072014e-308, L"2.2250738585072014E-308"},
    });
}

TEST(ValueFormatter, FillsPlaces) {
    ExpectTexts({
        {L"0", 0.0, L"0"},
        {L"0", 42.0, L"42"},
        {L"000", 7.0, L"007"},
        {L"#", 0.0, L""},
        {L"#", 7.0, L"7"},
        {L"0.00", 1.5, L"1.50"},
        {L"0.##", 1.5, L"1.5"},
        {L"##.##", 1.0, L"1."},
        {L"##.##", 0.0, L"."},
        {L"##.##", 0.05, L".05"},
        {L"0.", 5.0, L"5."},
        {L".00", 12.3, L"12.30"},
        {L".00", 0.5, L".50"},
        {L"0.0#", 1.0, L"1.0"},
        {L"0.0#", 1.25, L"1.25"},
        {L"#0#", 5.0, L"05"},
        {L"0.0#0", 1.5, L"1.500"},
        {L"0.0000", 100.0123, L"100.0123"},
        {L"0.0000", -0.00385055, L"-0.0039"},
    });
}

TEST(ValueFormatter, ShowsAnOptionalPlaceBetweenZerosAndDigitsAlone) {
    ExpectTexts({
        {L"0#", 0.0, L"0"},        {L"0#", 0.4, L"0"},
        {L"0#", 5.0, L"05"},       {L"0#", 42.0, L"42"},
        {L"0#", 123.0, L"123"},    {L"0##", 0.0, L"0"},
        {L"0##", 5.0, L"005"},     {L"00#", 0.0, L"00"},
        {L"#0#", 0.0, L"0"},       {L"#0#", 5.0, L"05"},
        {L"0#0", 0.0, L"000"},     {L"0#0#", 0.0, L"000"},
        {L"0#0#", 5.0, L"0005"},   {L"0,###", 0.0, L"0"},
        {L"0,###", 5.0, L"0,005"}, {L"0##,#00", 0.0, L"000,000"},
        {L"0\\x#", 0.0, L"0x"},    {L"0#E+0", 0.0, L"0E+0"},
        {L"0#.", 0.0, L"0."},      {L"0#.#", 0.0, L"0."},
        {L"0#.#", 0.5, L"0.5"},    {L"0#.0", 0.0, L"00.0"},
        {L"0#.0", 0.5, L"00.5"},   {L".#0", 0.0, L".0"},
        {L".#0", 5.0, L"5.0"},     {L".#0", -5.0, L"-5.0"},
        {L".#0", 5.5, L"5.50"},    {L".#0", 5.25, L"5.25"},
        {L".#0", 0.05, L".05"},    {L"#.#0", 5.0, L"5.0"},
        {L"#.#0", 0.0, L".0"},     {L".##0", 5.0, L"5.0"},
        {L".##0", 5.5, L"5.500"},  {L".#0#", 5.0, L"5.0"},
        {L".#00", 5.0, L"5.00"},   {L".#0#0", 5.0, L"5.000"},
        {L".0#", 5.0, L"5.0"},     {L".0#0", 5.0, L"5.000"},
        {L"0.#0", 5.0, L"5.00"},   {L"#0.#0", 0.0, L"0.00"},
    });
}

TEST(ValueFormatter, RoundsHalfAwayFromZeroOnTheShortestDecimalText) {
    ExpectTexts({
        {L"0.00", 1.005, L"1.01"}, // although the double is a little below
        {L"0.00", -1.005, L"-1.01"},
        {L"0.00", 2.675, L"2.68"},
        {L"0", 2.5, L"3"},
        {L"0", -2.5, L"-3"},
        {L"0", 0.5, L"1"},
        {L"0", 0.49999999999999994, L"0"},
        {L"0", 9.5, L"10"},
        {L"0.0", 0.04, L"0.0"},
        {L"0.0", 0.05, L"0.1"},
        {L"0.0", 0.049999, L"0.0"},
        {L"0.00", 0.005, L"0.01"},
        {L"0.00", 0.0005, L"0.00"},
        {L"0.000", 99.9995, L"100.000"},
        {L"0.#", 1.96, L"2."},
        {L"0.###", 1.2996, L"1.3"},
    });
}

TEST(ValueFormatter, GivesAZeroThatItShowsNoMinusSign) {
    ExpectTexts({
        {L"0.00", -0.0, L"0.00"},
        {L"0.00", -0.004, L"0.00"},
        {L"0.00", -0.005, L"-0.01"},
        {L"#", -0.4, L""},
        {L"0.00E+00", -0.0, L"0.00E+00"},
        {L"0%", -0.004, L"0%"},
        {L"0,", -499.0, L"0"},
    });
}

TEST(ValueFormatter, CoversTheWholeRangeOfDouble) {
    ExpectTexts({
        {L"0.00", 1e308, L"1" + std::wstring(308, L'0') + L".00"},
        {L"0.0", -largest, L"-17976931348623157" + std::wstring(292, L'0') + L".0"},
        {L"0.00", smallest, L"0.00"},
        {L"0.000E+00", smallest, L"5.000E-324"},
        {L"0.000E+00", largest, L"1.798E+308"},
        {L"0.################", 1e-16, L"0.0000000000000001"},
        {L"#,##0", 1e21, L"1,000,000,000,000,000,000,000"},
        {L"0%", largest, L"17976931348623157" + std::wstring(294, L'0') + L"%"},
        {L"0.00000000000000000000", 0.1, L"0.10000000000000000000"}, // the digits that are there, no others
    });
}

TEST(ValueFormatter, GroupsByThreeAndScalesByThousands) {
    ExpectTexts({
        {L"#,##0", 1234567.0, L"1,234,567"},
        {L"#,##0", 123.0, L"123"},
        {L"#,##0", 999.5, L"1,000"},
        {L"#,##0.00", -1234.5, L"-1,234.50"},
        {L"0,000,000", 12.0, L"0,000,012"},
        {L"0,0", 1234.0, L"1,234"},
        {L"0,", 1234567.0, L"1235"},
        {L"0.00,,", 1234567.0, L"1.23"},
        {L"0,.00", 1234567.0, L"1234.57"},
        {L"#,##0,.0", 1234567890.0, L"1,234,567.9"},
        {L"0,,", 499999.0, L"0"},
        {L"0.,", 1500.0, L"2."},
    });
}

TEST(ValueFormatter, ShowsPercentages) {
    ExpectTexts({
        {L"0%", 0.125, L"13%"},
        {L"0.0%", -0.125, L"-12.5%"},
        {L"%0", 0.5, L"%50"},
        {L"0%%", 0.5, L"50%%"},
        {L"0\"%\"", 0.5, L"1%"},
        {L"0\\%", 5.0, L"5%"},
        {L"0.00%", 0.000049, L"0.00%"},
    });
}

TEST(ValueFormatter, ShowsExponents) {
    ExpectTexts({
        {L"0.00E+00", 12345.0, L"1.23E+04"},
        {L"0.00E+00", 0.00012345, L"1.23E-04"},
        {L"0.00E+00", -5.0, L"-5.00E+00"},
        {L"0.00E+00", 0.0, L"0.00E+00"},
        {L"0.00E+00", 9.995, L"1.00E+01"},
        {L"0.00E+00", 1e100, L"1.00E+100"},
        {L"0.00E-00", 12345.0, L"1.23E04"},
        {L"0.00E-00", 0.01, L"1.00E-02"},
        {L"0.00e+00", 12345.0, L"1.23e+04"},
        {L"0.00e-00", 12345.0, L"1.23e04"},
        {L"0.0E+0", 1e10, L"1.0E+10"},
        {L"0.0E+000", 1.0, L"1.0E+000"},
        {L"0.0E+##", 1.0, L"1.0E+0"},
        {L"0.0E+#0", 1.0, L"1.0E+0"},
        {L"0E+0", 95.0, L"1E+2"},
        {L"#.##E+0", 1.5, L"1.5E+0"},
        {L"#.##E+0", 0.0, L"0.E+0"},
        {L".00E+00", 12345.0, L".12E+05"},
        {L"##0.0E+0", 12345.0, L"12.3E+3"},
        {L"##0.0E+0", 123456.0, L"123.5E+3"},
        {L"##0.0E+0", 0.00012, L"120.0E-6"},
        {L"##0.0E+0", 999.96, L"1.0E+3"},
        {L"##0.0E+0", 0.0, L"0.0E+0"},
        {L"00.0E+00", 1234567.0, L"01.2E+06"},
        {L"0.0E+00\" V\"", 15.0, L"1.5E+01 V"},
        {L"0.0%E+00", 15.0, L"1.5%E+03"},
    });
}

TEST(ValueFormatter, ShowsLiteralsAsTheyStand) {
    ExpectTexts({
        {L"\"R0 = \"0.0", 1.25, L"R0 = 1.3"},
        {L"0.0\" \u00B0C\"", 21.0, L"21.0 \u00B0C"},
        {L"\\#0", 5.0, L"#5"},
        {L"\\\"0\\\"", 5.0, L"\"5\""},
        {L"0 mV", 5.0, L"5 mV"},
        {L"$0.00", -5.0, L"-$5.00"},
        {L"(0)", 5.0, L"(5)"},
        {L"\"0;0\"0", 5.0, L"0;05"},
        {L"000-00-0000", 123456789.0, L"123-45-6789"},
        {L"0-00", 12345.0, L"123-45"},
        {L"0.0 0", 1.23, L"1.2 3"},
        {L"\"text\"", 5.0, L"text"},
        {L"\"text\"", -5.0, L"-text"},
        {L"\"text\"", -0.1, L"-text"},
        {L"\"text\"", 0.0, L"text"},
        {L"\"\"", 5.0, L""},
    });
}

TEST(ValueFormatter, TakesOddFormatsLiterallyWhereTheyAreOdd) {
    ExpectTexts({
        {L"0.0.0", 1.25, L"1.2.5"},
        {L",0", 1234.0, L",1234"},
        {L"0 ,", 1234.0, L"1234 ,"},
        {L"0.0,0", 1234.0, L"1234.00"},
        {L"0E", 5.0, L"5E"},
        {L"0E+", 5.0, L"5E+"},
        {L"0E+x", 5.0, L"5E+x"},
        {L"0E5", 5.0, L"5E5"},
        {L"0E+0E+0", 50.0, L"5E+1E+0"},
        {L"E+0", 5.0, L"E+5"},
        {L"0E+0 0#.,E+0", 5.0, L"5E+0 0#.,E+0"},
        {L"0\"V", 5.0, L"5V"},
        {L"0\"", 5.0, L"5"},
        {L"0\\", 5.0, L"5\\"},
        {L"[Red]@?*_", 5.0, L"[Red]@?*_"},
        {L"%", 5.0, L"%"},
        {L".", 5.0, L"."},
        {L";", 5.0, L"5"},
        {L";;;;", -5.0, L"-5"},
        {L"0;0;0;\"more\"", 0.0, L"0"},
    });
}

TEST(ValueFormatter, ChoosesTheSectionByTheValueItself) {
    ExpectTexts({
        {L"0.00;(0.00);\"zero\"", 5.0, L"5.00"},
        {L"0.00;(0.00);\"zero\"", -5.0, L"(5.00)"},
        {L"0.00;(0.00);\"zero\"", 0.0, L"zero"},
        {L"0.00;(0.00);\"zero\"", -0.0, L"zero"},
        {L"0.00;(0.00);\"zero\"", 0.001, L"0.00"},
        {L"0.00;(0.00);\"zero\"", -0.001, L"(0.00)"},
        {L"0.00;(0.00)", 0.0, L"0.00"},
        {L"0;\"a;b\"0\\;;\"z\"", -1.0, L"a;b1;"},
        {L"0.0;-0.000", -1.5, L"-1.500"},
    });
}

TEST(ValueFormatter, UsesThePositiveSectionForAnEmptyOne) {
    ExpectTexts({
        {L"0.0;;\"z\"", -5.0, L"-5.0"},
        {L"0.0;;\"z\"", 0.0, L"z"},
        {L"0.0;(0.0);", 0.0, L"0.0"},
        {L"0.0;", -5.0, L"-5.0"},
        {L";(0)", 5.25, L"5.25"},
        {L";(0)", -5.25, L"(5)"},
        {L";;\"z\"", -0.25, L"-0.25"},
    });
}

TEST(ValueFormatter, KnowsTheNamedFormatsInAnyCase) {
    ExpectTexts({
        {L"General Number", 1.5e-7, L"1.5E-07"},
        {L"GENERAL NUMBER", -1234.5, L"-1234.5"},
        {L"general number", -0.0, L"-0"},
        {L"Fixed", 1234.565, L"1234.57"},
        {L"fIXED", 0.0, L"0.00"},
        {L"Standard", -1234567.0, L"-1,234,567.00"},
        {L"Percent", 0.125, L"12.50%"},
        {L"Scientific", 12345.0, L"1.23E+04"},
        {L"Fixed ", 5.0, L"Fixed "}, // is no name
    });
}

TEST(ValueFormatter, ShowsWhatIsNoNumberUnderAnyFormat) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const auto* format : {L"", L"0.00", L"0;(0);\"z\"", L"Percent"}) {
        EXPECT_EQ(FormatValue(std::nan(""), format), L"NaN");
        EXPECT_EQ(FormatValue(-std::nan(""), format), L"NaN");
        EXPECT_EQ(FormatValue(infinity, format), L"Infinity");
        EXPECT_EQ(FormatValue(-infinity, format), L"-Infinity");
    }
}

TEST(ValueFormatter, ShowsTheUsersSeparators) {
    ExpectTexts(
        {
            {L"", 1.5, L"1,5"},
            {L"", 1.5e-7, L"1,5E-07"},
            {L"0.00", 1.5, L"1,50"},
            {L"#,##0.00", 1234567.5, L"1.234.567,50"},
            {L"Standard", -1234.5, L"-1.234,50"},
            {L"0.0\".,\"", 1.5, L"1,5.,"},
            {L"0.0.0", 1.25, L"1,2.5"}, // the second point is none
            {L"0E+0.", 50.0, L"5E+1."},
        },
        {L",", L"."});
    EXPECT_EQ(FormatValue(1234.5, L"#,##0.0", {L"<point>", L"\u202F"}), L"1\u202F234<point>5");
}

TEST(ValueFormatter, ShowsEveryDoubleSoThatItReadsBackBitForBit) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 100'000; ++i) {
        const double value = RandomDouble(random);
        const std::wstring text = FormatValue(value, L"");
        ASSERT_EQ(Bits(ParseLeadingNumber(text)), Bits(value)) << ToUtf8(text);
    }
    // Values as people have them, most of which are shown as plain decimals.
    std::uniform_real_distribution<double> power(-6, 17);
    for (int i = 0; i < 100'000; ++i) {
        const double value = std::pow(10, power(random));
        const std::wstring text = FormatValue(value, L"");
        ASSERT_EQ(Bits(ParseLeadingNumber(text)), Bits(value)) << ToUtf8(text);
        ASSERT_EQ(text.find(L'E') == std::wstring::npos, value >= 1e-5 && value < 1e15) << ToUtf8(text);
    }
}

TEST(ValueFormatter, ShowsSomethingUnderAnyFormatWhatever) {
    constexpr std::wstring_view characters = L"00##..,,%EEee++--\"\\;; x[]@\u00B0\xFFFF";
    std::mt19937_64 random(2);
    for (int i = 0; i < 100'000; ++i) {
        std::wstring format;
        for (auto length = random() % 13; length > 0; --length)
            format += characters[random() % characters.size()];
        const double value = i % 2 == 0 ? RandomDouble(random) : std::ldexp(RandomDouble(random), -1074);
        ASSERT_LT(FormatValue(value, format).size(), 800U) << ToUtf8(format) << " of " << value;
    }
    EXPECT_EQ(FormatValue(5, std::wstring(100'000, L'0')).size(), 100'000U);
    EXPECT_EQ(FormatValue(5, std::wstring(100'000, L'"')), L"");
    EXPECT_EQ(FormatValue(5, std::wstring(100'000, L';')), L"5");
}

TEST(ValueFormatter, AgreesWithAnIndependentFormatter) {
    std::ifstream file(QUOR_TEST_DATA "/value-format-rows.txt", std::ios::binary);
    std::wstring format;
    int rows = 0;
    for (std::string line; std::getline(file, line);) {
        const auto tab = line.find('\t');
        if (line.starts_with("# "))
            continue;
        if (tab == std::string::npos) {
            format = FromUtf8(line.substr(1)).value();
            continue;
        }
        double value = 0;
        ASSERT_EQ(std::from_chars(line.data(), line.data() + tab, value).ptr, line.data() + tab) << line;
        EXPECT_EQ(ToUtf8(FormatValue(value, format)), line.substr(tab + 1))
            << ToUtf8(format) << " of " << value;
        ++rows;
    }
    EXPECT_EQ(rows, 10'000);
}
