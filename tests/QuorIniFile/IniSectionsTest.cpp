#include "QuorIniFile/detail/IniSections.h"

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
    for (int round = 0; round < 3; ++round) { // the first searches have no index
        EXPECT_EQ(sections.Find(text, "B"), 1U);
        EXPECT_EQ(sections.Find(text, "A"), 0U) << "the next section has the name too, but is not the first";
        EXPECT_EQ(sections.Find(text, "C"), 4U);
        EXPECT_EQ(sections.Find(text, "a"), 0U);
        EXPECT_EQ(sections.Find(text, "b"), 1U);
        EXPECT_EQ(sections.Find(text, "nowhere"), std::nullopt);
        EXPECT_EQ(sections.Find(text, "c"), 4U);
    }
}

TEST(IniSections, AreReadAsFarAsTheyAreAskedFor) {
    const std::string many = "[A]\n[B]\n[C]\n[D]\n[E]\n[F]\n[b]\n[G]\n";
    IniSections sections;
    IniSections::Section expected = 0;
    for (const char* const name : {"A", "B", "C", "D", "E", "F"})
        EXPECT_EQ(sections.Find(many, name), expected++);
    EXPECT_EQ(sections.Find(many, "B"), 1U) << "not the next one";
    EXPECT_EQ(sections.Find(many, "G"), 7U);
    EXPECT_TRUE(sections.CanBeFound(many, 1));
    EXPECT_FALSE(sections.CanBeFound(many, 6)) << "the second B";
    EXPECT_TRUE(sections.CanBeFound(many, 7));
}

TEST(IniSections, OfBrokenHeadersInARowOneMarksTheEndOfTheSectionBefore) {
    IniSections sections;
    EXPECT_EQ(sections.Count("[A]\n[broken\n[again\n[C]\n"), 3U);
    EXPECT_EQ(sections.Name("[A]\n[broken\n[again\n[C]\n", 2), "C");
    EXPECT_FALSE(sections.CanBeFound("[A]\n[broken\n[again\n[C]\n", 1));
    IniSections none;
    EXPECT_EQ(none.Count("x=[A]\n;[B]\n"), 0U);
}

TEST(IniSections, OfOneNameInARowTheFirstIsFoundAndTheSecondMarksItsEnd) {
    const std::string many = "[A]\nx=1\n[A]\nx=2\n[A]\nx=3\n[A]\nx=4\n[B]\nx=5\n[]\n[]\n[]\nx=6\n[a]\nx=7\n";
    IniSections sections;
    for (int round = 0; round < 4; ++round) {
        EXPECT_EQ(sections.Find(many, "A"), 0U);
        EXPECT_EQ(sections.Find(many, "B"), 2U);
        EXPECT_EQ(sections.Find(many, ""), 3U);
        EXPECT_EQ(many.substr(sections.Begin(many, 0), sections.End(many, 0) - sections.Begin(many, 0)),
                  "x=1\n");
        EXPECT_EQ(many.substr(sections.Begin(many, 2), sections.End(many, 2) - sections.Begin(many, 2)),
                  "x=5\n");
        EXPECT_EQ(sections.Begin(many, 3), sections.End(many, 3));
    }
    EXPECT_EQ(sections.Count(many), 6U);
    EXPECT_FALSE(sections.CanBeFound(many, 1));
    EXPECT_FALSE(sections.CanBeFound(many, 4));
    EXPECT_FALSE(sections.CanBeFound(many, 5)) << "in small letters it is the first one too";
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

TEST(IniSections, KnowWhetherLaterSectionsOfTheirNameAreSpelledInAnotherWay) {
    const std::string many = "[A]\n[A]\n[A]\n[B]\n[C]\n[C]\n[c]\n[B]\n[b]\n";
    IniSections sections;
    EXPECT_FALSE(sections.HasOtherSpellings(many, 0));
    EXPECT_TRUE(sections.HasOtherSpellings(many, sections.Find(many, "B").value()));
    EXPECT_TRUE(sections.HasOtherSpellings(many, sections.Find(many, "C").value()));
}
