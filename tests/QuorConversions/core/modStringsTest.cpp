#include "QuorConversions/core/modStrings.h"

#include <gtest/gtest.h>

using QuorConversions::ReplaceTildes;

TEST(ReplaceTildesTest, FillsEachTildeWithTheNextValue) {
    const struct {
        const wchar_t* textTemplate;
        const wchar_t* values;
        const wchar_t* result;
    } cases[] = {
        {L"Files (*.~)|*.~", L"cvd|cvd", L"Files (*.cvd)|*.cvd"}, // a bar in the template means nothing
        {L"Open ~ File", L"PT100", L"Open PT100 File"},
        {L"no mark", L"x|y", L"no mark"},
        {L"", L"x", L""},
        {L"~", L"", L""},
        {L"~, ~, ~.", L"one|two", L"one, two, ."}, // values run out
        {L"<~>", L"one|two|three", L"<one>"},      // values are left over
        {L"~~", L"a|b", L"ab"},
        {L"~-~-~", L"a||c", L"a--c"},             // an empty value takes its mark
        {L"<~>", L"  in  side  ", L"<in  side>"}, // blanks inside stay
        {L"<~>", L"   ", L"<>"},
        {L"<~>", L"\tx\t", L"<\tx\t>"}, // only blanks are trimmed
        {L"~ ~", L"a~b|c", L"a~b c"},   // a mark inside a value is text
        {L"a ~ b", L"|x", L"a  b"},
    };
    for (const auto& [textTemplate, values, result] : cases)
        EXPECT_EQ(ReplaceTildes(textTemplate, values), result);
}
