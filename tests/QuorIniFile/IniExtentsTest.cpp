#include "QuorIniFile/detail/IniExtents.h"

#include <gtest/gtest.h>

#include <string>

using namespace QuorIniFile;

namespace {

const std::string text = "; opens\n[A]\nx=1\n; of x\n\n; apart\n\n; on B\n[B]\n; c\ny=2\nno key\n\n[broken\n";

std::string Cut(const IniExtent& extent) { return text.substr(extent.start, extent.end - extent.start); }

} // namespace

TEST(IniExtents, ASectionIsItsHeaderItsKeysAndTheCommentsThatTouchThem) {
    const auto headers = AllHeaders(text);
    EXPECT_EQ(Cut(SectionExtent(text, headers, 0)), "[A]\nx=1\n; of x\n\n") << "the text keeps its opening";
    EXPECT_EQ(Cut(SectionExtent(text, headers, 1)), "; on B\n[B]\n; c\ny=2\nno key\n\n");
}

TEST(IniExtents, ABodyIsWhatFollowsTheHeaderWithoutTheBlankLinesAtItsEnd) {
    const auto headers = AllHeaders(text);
    EXPECT_EQ(Cut(BodyExtent(text, headers, 0)), "x=1\n; of x\n");
    EXPECT_EQ(Cut(BodyExtent(text, headers, 1)), "; c\ny=2\nno key\n");
    EXPECT_EQ(Cut(BodyExtent(text, headers, 2)), "");
}

TEST(IniExtents, ExtentsThatTouchAreOneAndTheLastTakesABlankLineAboveItAlong) {
    const std::string lines = "a\n\nb\nc\n\n \nd\n"; // 0, 2, 3, 5, 7, 8, 10
    const auto joined = JoinExtents(lines, {{10, 12}, {5, 7}, {3, 5}});
    ASSERT_EQ(joined.size(), 2U);
    EXPECT_EQ(joined[0].start, 3U) << "the blank line before stays";
    EXPECT_EQ(joined[0].end, 7U);
    EXPECT_EQ(joined[1].start, 8U);
    EXPECT_EQ(joined[1].end, 12U);
    EXPECT_TRUE(JoinExtents(lines, {}).empty());
}
