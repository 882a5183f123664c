#include "QuorIniFile/IniSections.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace QuorIniFile;

namespace {

const std::string text = "x=0\n[A]\nx=1\n  [B]\ny=2\n[a]\nz=3\n[broken\n[C] ; c\n";

/// What stands between the header of a section and the next one.
std::string Body(IniSections& sections, std::string_view name) {
    const auto section = sections.Find(text, name);
    if (!section)
        return "no section";
    const std::size_t begin = sections.Begin(text, *section);
    return text.substr(begin, sections.End(text, *section) - begin);
}

} // namespace

TEST(IniSections, TheBodyOfASectionEndsBeforeTheNextHeader) {
    IniSections sections;
    EXPECT_EQ(Body(sections, "a"), "x=1\n  ");
    EXPECT_EQ(Body(sections, "b"), "y=2\n");
    EXPECT_EQ(Body(sections, "C"), "");
    EXPECT_EQ(Body(sections, "broken"), "no section");
    EXPECT_EQ(Body(sections, ""), "no section");
}

TEST(IniSections, TheFirstOfANameIsFoundFromWhereverTheLastSearchEnded) {
    IniSections sections;
    EXPECT_EQ(sections.Find(text, "B"), 1U);
    EXPECT_EQ(sections.Find(text, "A"), 0U) << "the next section has the name too, but is not the first";
    EXPECT_EQ(sections.Find(text, "C"), 3U);
    EXPECT_EQ(sections.Find(text, "a"), 0U);
    EXPECT_EQ(sections.Find(text, "b"), 1U);
    EXPECT_EQ(sections.Find(text, "nowhere"), std::nullopt);
    EXPECT_EQ(sections.Find(text, "c"), 3U);
}

TEST(IniSections, OfSectionsThatNobodyCanAskForOneMarksTheEndOfTheOneBefore) {
    IniSections sections;
    EXPECT_EQ(sections.Count(text), 4U) << "A, B, the second A with the broken one, C";
    EXPECT_EQ(sections.Name(text, 1), "B");
    EXPECT_EQ(sections.Name(text, 3), "C");
    IniSections none;
    EXPECT_EQ(none.Count("x=[A]\n;[B]\n"), 0U);
}

TEST(IniSections, AllHeadersAreThoseOfOneNameAndBrokenOnesToo) {
    std::vector<std::string> found;
    for (const IniHeader& header : AllHeaders(text)) {
        EXPECT_EQ(text[header.start], '[');
        EXPECT_EQ(text[header.next - 1], '\n');
        found.emplace_back(header.name.value_or("(broken)"));
    }
    EXPECT_EQ(found, (std::vector<std::string>{"A", "B", "a", "(broken)", "C"}));
    EXPECT_TRUE(AllHeaders("x=[A]\n;[B]\n").empty());
}
