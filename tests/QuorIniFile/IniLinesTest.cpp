#include "QuorIniFile/IniLines.h"

#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

using namespace QuorIniFile;

namespace {

class IniLinesTest : public testing::Test {
protected:
    void Load(const std::string& text) {
        folder.Write("a.ini", text);
        store.SetFileName(folder.Name("a.ini"));
    }
    /// "number kind name=value" of each line.
    static std::vector<std::wstring> Told(IniLines lines) {
        std::vector<std::wstring> told;
        while (lines.Next()) {
            std::wstring line = std::to_wstring(lines.Number());
            switch (lines.What()) {
            case IniLines::Kind::Header:
                line += L" [" + lines.Name() + L"]";
                break;
            case IniLines::Kind::UnclosedHeader:
                line += L" unclosed";
                break;
            case IniLines::Kind::Key:
                line += L" " + lines.Name() + L"=" + lines.Value();
                break;
            case IniLines::Kind::Malformed:
                line += L" malformed";
                break;
            }
            told.push_back(line);
        }
        return told;
    }
    using Lines = std::vector<std::wstring>;

    TempFolder folder;
    IniStore store;
};

} // namespace

TEST_F(IniLinesTest, WalksFromHeaderToHeaderAndKeyToKey) {
    Load("\xEF\xBB\xBF; a comment\r\n[A]\r\n\r\nx = 1 ; ohms\r\nx=2\r\nrubbish\r\n[B\r\n y=\"a ; "
         "b\"\r\n[\xC3\x84]");
    EXPECT_EQ(Told(store.Lines()), (Lines{L"2 [A]", L"4 x=1", L"5 x=2", L"6 malformed", L"7 unclosed",
                                          L"8 y=\"a ; b\"", L"9 [\u00C4]"}));
}

TEST_F(IniLinesTest, WalksThroughWhatWasWrittenToo) {
    Load("[A]\nx=1\n");
    store.Hold();
    store.SetSection(L"B");
    store.WriteInteger(L"y", 2, L"");
    EXPECT_EQ(Told(store.Lines()), (Lines{L"1 [A]", L"2 x=1", L"4 [B]", L"5 y=2"}));
    store.WriteInteger(L"y", 3, L"");
    EXPECT_EQ(Told(store.Lines()).back(), L"5 y=3");
    store.Discard();
    EXPECT_EQ(Told(store.Lines()), (Lines{L"1 [A]", L"2 x=1"}));
}

TEST_F(IniLinesTest, GoesOnFromAPlaceThatAnEarlierWalkHasPassed) {
    Load("[A]\nx=1\n[B]\ny=2\n");
    IniLines lines = store.Lines();
    while (lines.Next() && !lines.HasName("b")) {
    }
    EXPECT_EQ(Told(store.Lines(lines.Here())), (Lines{L"3 [B]", L"4 y=2"}));
}

TEST_F(IniLinesTest, PassesEverythingOverUpToTheNextHeader) {
    Load("x=[A]\n; [B]\n \t[C]\n\n   \nmalformed [D]\n[E\nz=1");
    IniLines lines = store.Lines();
    ASSERT_TRUE(lines.NextHeader());
    EXPECT_EQ(lines.Name(), L"C");
    EXPECT_EQ(lines.Number(), 3U);
    ASSERT_TRUE(lines.NextHeader());
    EXPECT_TRUE(lines.Is(IniLines::Kind::UnclosedHeader));
    EXPECT_EQ(lines.Number(), 7U);
    EXPECT_FALSE(lines.NextHeader());
}

TEST_F(IniLinesTest, PassesEverythingOverUpToTheNextHeaderOrKeyOfAName) {
    Load("type=0\n[A]\n; Type=1\n \tTYPE = 2\n\nTypes=3\nType\nx=[B]\nxType=4\ntype=5\n[C\nType=6");
    IniLines lines = store.Lines();
    std::vector<std::wstring> told;
    while (lines.NextHeaderOr("Type"))
        told.push_back(std::to_wstring(lines.Number()) +
                       (lines.Is(IniLines::Kind::Key) ? L" is " : L" begins ") +
                       (lines.Is(IniLines::Kind::Key) ? lines.Value() : lines.Name()));
    EXPECT_EQ(told, (std::vector<std::wstring>{L"1 is 0", L"2 begins A", L"4 is 2", L"10 is 5", L"11 begins ",
                                               L"12 is 6"}));
}

TEST_F(IniLinesTest, TellsAWholeNumberWithoutTheCommentBehindIt) {
    Load("[A]\nx=-7 ; degrees\ny=1.5\nz=40000\n");
    IniLines lines = store.Lines();
    std::vector<std::optional<std::int16_t>> numbers;
    while (lines.Next())
        if (lines.Is(IniLines::Kind::Key))
            numbers.push_back(lines.Integer());
    EXPECT_EQ(numbers, (std::vector<std::optional<std::int16_t>>{std::int16_t{-7}, {}, {}}));
}

TEST_F(IniLinesTest, AFileThatIsNotThereHasNoLines) {
    store.SetFileName(folder.Name("missing.ini"));
    EXPECT_THROW(static_cast<void>(store.Lines()), QuorError);
}
