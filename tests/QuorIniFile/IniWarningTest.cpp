#include "QuorIniFile/IniWarning.h"

#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/QuorError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <limits>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

using namespace QuorIniFile;

namespace {

using Kind = IniWarningKind;
using Warnings = std::vector<IniWarning>;

} // namespace

namespace QuorIniFile {

void PrintTo(const IniWarning& warning, std::ostream* stream) {
    *stream << "kind " << static_cast<std::int32_t>(warning.kind) << " in line " << warning.line << ", first "
            << warning.first << ", " << testing::PrintToString(warning.section) << ' '
            << testing::PrintToString(warning.key);
}

} // namespace QuorIniFile

TEST(IniWarning, AFileWithoutAProblemHasNone) {
    EXPECT_EQ(WarningsOf(""), Warnings{});
    EXPECT_EQ(WarningsOf("; about\n\n[A]\nx=1\n y = \n=\n# more\n[B] ; remark\nx=2\n"), Warnings{});
}

TEST(IniWarning, AKeyThatStandsTwiceIsToldWithTheLineThatIsRead) {
    EXPECT_EQ(WarningsOf("[Host]\nColour=red\nSize=1\n colour = blue\n[B]\nColour=1\n[C]\nx=1\nX=2\nx=3\n"),
              (Warnings{{Kind::DuplicateKey, 4, 2, L"Host", L"colour"},
                        {Kind::DuplicateKey, 9, 8, L"C", L"X"},
                        {Kind::DuplicateKey, 10, 8, L"C", L"x"}}));
}

TEST(IniWarning, ASectionThatStandsTwiceIsToldUnderTheNameThatIsReadAndItsKeysAreNot) {
    EXPECT_EQ(WarningsOf("[Host]\nx=1\n[Other]\n[HOST]\nx=2\nx=3\n\n[host] ; again\n"),
              (Warnings{{Kind::DuplicateSection, 4, 1, L"Host", L""},
                        {Kind::DuplicateSection, 8, 1, L"Host", L""}}));
}

TEST(IniWarning, AHeaderWithoutItsBracketIsToldAndTheKeysBelowItAreNot) {
    EXPECT_EQ(WarningsOf("[A]\n  [B\nx=1\nx=2\n[B]\n"), (Warnings{{Kind::UnclosedHeader, 2, 0, L"", L""}}));
}

TEST(IniWarning, ALineThatIsNothingIsToldInAnySection) {
    EXPECT_EQ(WarningsOf("top\n[A]\nx 1\n[a]\nx 2\n[B\nx 3\n"),
              (Warnings{{Kind::MalformedLine, 1, 0, L"", L""},
                        {Kind::MalformedLine, 3, 0, L"A", L""},
                        {Kind::DuplicateSection, 4, 2, L"A", L""},
                        {Kind::MalformedLine, 5, 0, L"a", L""},
                        {Kind::UnclosedHeader, 6, 0, L"", L""},
                        {Kind::MalformedLine, 7, 0, L"", L""}}));
}

TEST(IniWarning, KeysAboveTheFirstHeaderAreTold) {
    EXPECT_EQ(
        WarningsOf("\xEF\xBB\xBFx=0\r\n; about\r\nx=1\r\n[]\r\nx=2\r\n"),
        (Warnings{{Kind::KeyAboveSections, 1, 0, L"", L"x"}, {Kind::KeyAboveSections, 3, 0, L"", L"x"}}));
}

TEST(IniWarning, HeadersAndKeysBehindACarriageReturnAloneAreTold) {
    EXPECT_EQ(WarningsOf("[A]\rx=1\r[B]\rx=2\r"), (Warnings{{Kind::LineEndsInCr, 1, 0, L"", L""}}));
    EXPECT_EQ(WarningsOf("; about\rx=1"), (Warnings{{Kind::LineEndsInCr, 1, 0, L"", L""}}));
    EXPECT_EQ(WarningsOf("[A]\r\nx=1\ry=2\r\nx=3\n"),
              (Warnings{{Kind::LineEndsInCr, 2, 0, L"A", L""}, {Kind::DuplicateKey, 3, 2, L"A", L"x"}}));
}

TEST(IniWarning, ACarriageReturnInATextIsNoLineEndAndIsNotTold) {
    EXPECT_EQ(WarningsOf("[A]\r\nx=one\rtwo\r\n; a\rb\ny=\r\r\nz\rz=1\n"), Warnings{});
}

TEST(IniWarning, NamesAreComparedAsTheyAreReadInWhateverEncodingTheyStand) {
    EXPECT_EQ(WarningsOf("[K\xF6ln]\nW\xE4rme=1\nw\xC3\xA4rme=2\n[k\xC3\xB6ln]\n"),
              (Warnings{{Kind::DuplicateKey, 3, 2, L"Köln", L"wärme"},
                        {Kind::DuplicateSection, 4, 1, L"Köln", L""}}));
}

TEST(IniWarning, ManyKeysAndSectionsTakeTimeInProportion) {
    using Text = std::function<std::string(int)>;
    const auto repeated = [](const std::string& before, const std::string& part, const std::string& behind) {
        return [=](int count) {
            std::string text = "[A]\n";
            for (int i = 0; i < count; ++i)
                text += before + (part.empty() ? std::to_string(i) : part) + behind;
            return text;
        };
    };
    const std::pair<const char*, Text> cases[] = {
        {"keys", repeated("K", "", "=1\n")},
        {"keys of one name", repeated("", "x", "=1\n")},
        {"sections", repeated("[", "", "]\nx=1\n")},
        {"sections of one name", repeated("[", "A", "]\nx=1\n")},
        {"unclosed headers", repeated("[", "A", "\n")},
        {"lines that are nothing", repeated("", "x", "\n")},
        {"short sections behind a long one",
         [&](int count) { return repeated("K", "", "=1\n")(count) + repeated("[B", "", "]\nx=1\n")(count); }},
    };
    const auto time = [](const std::string& text) {
        double best = std::numeric_limits<double>::infinity();
        for (int round = 0; round < 3; ++round) {
            const std::clock_t start = std::clock();
            static_cast<void>(WarningsOf(text));
            best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
        }
        return best;
    };
    for (const auto& [name, text] : cases) {
        SCOPED_TRACE(name);
        // Four times as much may take four times as long and some more, but not its square, sixteen times.
        EXPECT_LT(time(text(20'000)), 10 * time(text(5000)));
    }
}

TEST(IniWarning, OfAHundredThousandKeysAndSectionsOfOneNameAllButTheFirstAreTold) {
    std::string text = "[A]\n";
    for (int i = 0; i < 100'000; ++i)
        text += "x=1\n";
    for (int i = 0; i < 100'000; ++i)
        text += "[A]\n";
    const Warnings warnings = WarningsOf(text);
    ASSERT_EQ(warnings.size(), 199'999U);
    EXPECT_EQ(warnings.front(), (IniWarning{Kind::DuplicateKey, 3, 2, L"A", L"x"}));
    EXPECT_EQ(warnings.back(), (IniWarning{Kind::DuplicateSection, 200'001, 1, L"A", L""}));
}

namespace {

class IniStoreWarnings : public testing::Test {
protected:
    IniStoreWarnings() {
        store.SetFileName(folder.Name("a.ini"));
        store.SetSection(L"A");
    }

    TempFolder folder;
    IniStore store;
};

} // namespace

TEST_F(IniStoreWarnings, AreThoseOfTheTextThatWasLoadedOrLastSaved) {
    folder.Write("a.ini", "[A]\nx=1\nX=2\n");
    EXPECT_EQ(store.Warnings(), (Warnings{{Kind::DuplicateKey, 3, 2, L"A", L"X"}}));
    store.Hold();
    store.WriteInteger(L"y", 3, L"");
    store.RenameSection(L"A", L"B");
    folder.Write("a.ini", "; theirs\n[A]\nx=1\nX=2\n");
    EXPECT_EQ(store.Warnings(), (Warnings{{Kind::DuplicateKey, 3, 2, L"A", L"X"}}));
    store.Release();
    EXPECT_EQ(store.Warnings(), (Warnings{{Kind::DuplicateKey, 4, 3, L"B", L"X"}}));
}

TEST_F(IniStoreWarnings, OfAFileThatIsNotThereAreAnError) {
    try {
        static_cast<void>(store.Warnings());
        ADD_FAILURE() << "there is no file";
    } catch (const QuorError& error) {
        EXPECT_EQ(error.Number(), 53);
        EXPECT_EQ(error.Description(), L"File not found: " + folder.Name("a.ini"));
    }
    store.Hold();
    store.WriteInteger(L"x", 1, L"");
    EXPECT_EQ(store.Warnings(), Warnings{}) << "nothing stands in the file that is still to be made";
}
