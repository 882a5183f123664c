#include "QuorConversions/core/NumberText.h"

#include "QuorConversions/core/ValueFormatter.h"
#include "QuorIniFile/Utf8.h"
#include "tests/support/CommaLocale.h"
#include "tests/support/Objects.h"

#include <cmath>
#include <limits>
#include <random>

using namespace QuorConversions;
using QuorIniFile::ToUtf8;

namespace {

struct Row {
    std::wstring text;
    double leading;
    bool whole; ///< whether the text is that number and nothing else
};

void ExpectNumbers(const std::vector<Row>& rows) {
    for (const auto& [text, leading, whole] : rows) {
        const double value = ParseLeadingNumber(text);
        EXPECT_EQ(value, leading) << ToUtf8(text);
        EXPECT_EQ(std::signbit(value), std::signbit(leading)) << ToUtf8(text);
        EXPECT_EQ(ParseWholeNumber(text), whole ? std::optional(leading) : std::nullopt) << ToUtf8(text);
    }
}

} // namespace

TEST(NumberText, ReadsNumbers) {
    ExpectNumbers({
        {L"0", 0.0, true},
        {L"100.0123", 100.0123, true},
        {L"+1", 1.0, true},
        {L"-1.5", -1.5, true},
        {L"-0", -0.0, true},
        {L"5.", 5.0, true},
        {L".5", 0.5, true},
        {L"-.5", -0.5, true},
        {L"1e3", 1000.0, true},
        {L"1E+03", 1000.0, true},
        {L"1.5E-07", 1.5e-7, true},
        {L".5e1", 5.0, true},
        {L"5.e1", 50.0, true},
        {L"007", 7.0, true},
        {L"1.7976931348623157E+308", std::numeric_limits<double>::max(), true},
        {L"5E-324", std::numeric_limits<double>::denorm_min(), true},
        {L"0.30000000000000004", 0.1 + 0.2, true},
    });
}

TEST(NumberText, ReadsTheLeadingNumberOfAnyText) {
    ExpectNumbers({
        {L"", 0.0, false},        {L"abc", 0.0, false},     {L"-", 0.0, false},      {L"+", 0.0, false},
        {L".", 0.0, false},       {L"-.", 0.0, false},      {L"e5", 0.0, false},     {L".e5", 0.0, false},
        {L"1e", 1.0, false},      {L"1e+", 1.0, false},     {L"1e-x", 1.0, false},   {L"1ee5", 1.0, false},
        {L"1.5.5", 1.5, false},   {L"1..5", 1.0, false},    {L"1,5", 1.0, false},    {L"1-2", 1.0, false},
        {L"--1", 0.0, false},     {L"+-1", 0.0, false},     {L"-+1", 0.0, false},    {L"1e5.5", 1e5, false},
        {L"12 V", 12.0, false},   {L"12V", 12.0, false},    {L"(1)", 0.0, false},    {L"1%", 1.0, false},
        {L"\u0661", 0.0, false},  {L"1\u0661", 1.0, false}, {L"\uFF11", 0.0, false}, {L"x1", 0.0, false},
        {L"1,234.5", 1.0, false}, {L"$1", 0.0, false},      {L"1e1e1", 10.0, false}, {L"1d5", 1.0, false},
    });
}

TEST(NumberText, SkipsBlanksAroundANumberAndNoneInside) {
    ExpectNumbers({
        {L"  1.5", 1.5, true},
        {L"\t1.5", 1.5, true},
        {L"1.5  ", 1.5, true},
        {L" 1.5\t", 1.5, true},
        {L"1 000", 1.0, false},
        {L"- 1", 0.0, false},
        {L"1 e5", 1.0, false},
        {L"1e 5", 1.0, false},
        {L"1 .5", 1.0, false},
        {L"   ", 0.0, false},
        {L"1.5\n", 1.5, false},
        {L"\n1.5", 0.0, false},
    });
}

TEST(NumberText, KnowsNoWordsAndNoHexadecimalDigits) {
    ExpectNumbers({
        {L"inf", 0.0, false},
        {L"-inf", 0.0, false},
        {L"nan", 0.0, false},
        {L"NaN", 0.0, false},
        {L"Infinity", 0.0, false},
        {L"INFINITY", 0.0, false},
        {L"-Infinity", 0.0, false},
        {L"nan(1)", 0.0, false},
        {L"0x10", 0.0, false},
        {L"0X1p3", 0.0, false},
        {L"&H10", 0.0, false},
        {L"1p3", 1.0, false},
    });
}

TEST(NumberText, RefusesANumberThatIsTooLarge) {
    const std::wstring zeros(400, L'0');
    const std::wstring texts[] = {L"1E309",
                                  L"-1E309",
                                  L"1.7976931348623159E308",
                                  L"1e99999999999999999999",
                                  L"1" + zeros,
                                  L"1" + zeros + L".5",
                                  L"1" + zeros + L"e-50",
                                  L"." + zeros + L"1e+800",
                                  L"0." + zeros + L"1e99999999999999999999",
                                  L" 1E400 V"};
    for (const std::wstring& text : texts) {
        EXPECT_QUOR_ERROR((void)ParseLeadingNumber(text), 6, L"QuorConversions", L"Overflow");
        EXPECT_EQ(ParseWholeNumber(text), std::nullopt) << ToUtf8(text);
    }
}

TEST(NumberText, TakesANumberThatIsTooSmallAsZero) {
    const std::wstring zeros(400, L'0');
    ExpectNumbers({
        {L"1E-400", 0.0, true},
        {L"-1E-400", -0.0, true},
        {L"2E-324", 0.0, true},
        {L"1e-99999999999999999999", 0.0, true},
        {L"0." + zeros + L"1", 0.0, true},
        {L"0." + zeros + L"1e50", 0.0, true},
        {L"1" + zeros + L"e-800", 0.0, true},
        {L"0e99999999999999999999", 0.0, true},
        {L"1" + zeros + L"e-400", 1.0, true}, // and one that only looks large
        {L"0." + zeros + L"1e401", 1.0, true},
    });
}

TEST(NumberText, DoesNotDependOnTheLocale) {
    const CommaLocale comma;
    EXPECT_EQ(ParseLeadingNumber(L"1.5"), 1.5);
    EXPECT_EQ(FormatValue(1.5, L"0.00"), L"1.50");
    EXPECT_EQ(FormatValue(1234.5, L"Standard"), L"1,234.50");
}

TEST(NumberText, ReadsAnyTextWhatever) {
    constexpr std::wstring_view characters = L"0123456789..--++eE xn,\t\u00B0";
    std::mt19937_64 random(3);
    for (int i = 0; i < 100'000; ++i) {
        std::wstring text;
        for (auto length = random() % 10; length > 0; --length)
            text += characters[random() % characters.size()];
        try {
            const double leading = ParseLeadingNumber(text);
            ASSERT_TRUE(std::isfinite(leading)) << ToUtf8(text);
            ASSERT_EQ(ParseWholeNumber(text).value_or(leading), leading) << ToUtf8(text);
        } catch (const QuorError& error) {
            ASSERT_EQ(error.Number(), 6) << ToUtf8(text);
            ASSERT_EQ(ParseWholeNumber(text), std::nullopt) << ToUtf8(text);
        }
    }
}
