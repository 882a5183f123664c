#include "QuorIniFile/detail/IniText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

using namespace QuorIniFile;

namespace {

std::optional<IniText::Section> Find(IniText& text, std::string_view section) {
    return text.FindSection(DecodeBytes(section));
}

std::string ValueOf(IniText& text, std::string_view section, std::string_view key) {
    const auto number = Find(text, section);
    if (!number)
        return "no section";
    const auto value = text.FindValue(*number, DecodeBytes(key));
    return value ? std::string(*value) : "no key";
}

void Write(IniText& text, std::string_view section, std::string_view key, const IniNewValue& value) {
    if (const auto number = Find(text, section))
        text.Write(*number, DecodeBytes(key), key, value);
    else
        text.AddSection(section, DecodeBytes(key), key, value);
}

/// The text with all changes.
std::string Merged(const IniText& text) {
    return text.ComposedText().value_or(std::string(text.ExtendedText()));
}

/// `text` with one more number under a key.
std::string With(const std::string& text, std::string_view section, std::string_view key, std::string value) {
    IniText changed(text);
    Write(changed, section, key, {std::move(value), false, {}});
    return Merged(changed);
}

/// A section of that many keys K0=0, K1=1, ...
std::string ManyKeys(int count) {
    std::string text = "[A]\n";
    for (int i = 0; i < count; ++i)
        text += "K" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    return text;
}

} // namespace

TEST(IniText, TheFirstSectionAndTheFirstKeyOfANameCount) {
    IniText text("[A]\nx=1\nX=2\n[a]\nx=3\ny=4\n");
    EXPECT_EQ(ValueOf(text, "a", "X"), "1");
    EXPECT_EQ(ValueOf(text, "A", "y"), "no key");
    EXPECT_EQ(ValueOf(text, "B", "x"), "no section");
}

TEST(IniText, KeysBeforeTheFirstHeaderAndBelowABrokenOneAreOutOfReach) {
    IniText text("x=0\n[A]\nx=1\n[B\ny=2\n  [C]\nz=3\n");
    EXPECT_EQ(ValueOf(text, "A", "x"), "1");
    EXPECT_EQ(ValueOf(text, "A", "y"), "no key")
        << "a key below a broken header is no key of the section above";
    EXPECT_EQ(ValueOf(text, "B", "y"), "no section");
    EXPECT_EQ(ValueOf(text, "", "x"), "no section");
    EXPECT_EQ(ValueOf(text, "C", "z"), "3");
}

TEST(IniText, ABracketInsideALineIsNoHeader) {
    IniText text("[A]\nx=[B]\n;[C]\ny [D]\nz=1");
    EXPECT_EQ(ValueOf(text, "A", "x"), "[B]");
    EXPECT_EQ(ValueOf(text, "A", "z"), "1");
    for (const char* section : {"B", "C", "D"})
        EXPECT_EQ(ValueOf(text, section, "z"), "no section") << section;
}

TEST(IniText, WithoutAChangeTheTextIsTheSame) {
    for (const char* text : {"", "\n", "\xEF\xBB\xBF", "x", "[A]\nx=1", "\r\n[A]\r\nx=1\r\n;\r\n"}) {
        IniText read(text);
        EXPECT_FALSE(read.IsDifferent());
        EXPECT_EQ(Merged(read), text);
    }
}

TEST(IniText, WritingWhatStandsThereIsNoChange) {
    IniText text("[A]\nx = 1 ; ohms\n");
    Write(text, "A", "x", {"1", false, {}});
    EXPECT_FALSE(text.IsDifferent());
}

TEST(IniText, ANewKeyFollowsTheLastKeyOfItsSection) {
    EXPECT_EQ(With("[A]\nx=1\n\n; about B\n[B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\n\n; about B\n[B]\n");
    EXPECT_EQ(With("[A]\nx=1\nno key\n[B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\nno key\n[B]\n");
    EXPECT_EQ(With("[A]\n; about A\n[B]\n", "A", "y", "2"), "[A]\ny=2\n; about A\n[B]\n");
    EXPECT_EQ(With("[A]\nx=1\n  [B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\n  [B]\n");
    EXPECT_EQ(With("[A]\nx=1\n[broken\nz=3\n", "A", "y", "2"), "[A]\nx=1\ny=2\n[broken\nz=3\n");
}

TEST(IniText, ANewKeyFollowsTheIndentedLinesThatContinueTheLastValue) {
    EXPECT_EQ(With("[A]\nx=1\n  more\n\teven more\n\n[B]\n", "A", "y", "2"),
              "[A]\nx=1\n  more\n\teven more\ny=2\n\n[B]\n");
    EXPECT_EQ(With("[A]\r\nx=1\r\n more", "A", "y", "2"), "[A]\r\nx=1\r\n more\r\ny=2");
    EXPECT_EQ(With("[A]\nx=1\n\n; remark\n  more\n", "A", "y", "2"), "[A]\nx=1\n\n; remark\n  more\ny=2\n")
        << "some programs let blank lines and comments stand inside a value";
    EXPECT_EQ(With("[A]\nx=1\n  k=v\n  more\n", "A", "y", "2"), "[A]\nx=1\n  k=v\n  more\ny=2\n");
    EXPECT_EQ(With("[A]\n  more\n[B]\n", "A", "y", "2"), "[A]\n  more\ny=2\n[B]\n")
        << "a key above it would get it for its value";
}

TEST(IniText, ANewKeyFollowsTheLineBelowALastValueThatEndsInABackslash) {
    EXPECT_EQ(With("[A]\nx=1 \\\n2 \\\n3\nno key\n", "A", "y", "4"), "[A]\nx=1 \\\n2 \\\n3\ny=4\nno key\n");
    EXPECT_EQ(With("[A]\r\nx=1\\\r\n\r\n[B]\r\n", "A", "y", "2"), "[A]\r\nx=1\\\r\n\r\ny=2\r\n[B]\r\n")
        << "right below the backslash it would become a part of the value";
    EXPECT_EQ(With("[A]\nx=1\\\n; remark\n2\n", "A", "y", "3"), "[A]\nx=1\\\n; remark\n2\ny=3\n");
    EXPECT_EQ(With("[A]\nx=1\\\n  [B]\n", "A", "y", "2"), "[A]\nx=1\\\n\ny=2\n  [B]\n")
        << "a header is a header wherever it stands";
}

TEST(IniText, ANewKeyBelowALineThatEndsInABackslashGetsABlankLineAbove) {
    EXPECT_EQ(With("[A]\nFolder=C:\\Data\\\n[B]\n", "A", "New", "7"),
              "[A]\nFolder=C:\\Data\\\n\nNew=7\n[B]\n");
    EXPECT_EQ(With("[A]\r\nx=C:\\\r\n", "A", "y", "2"), "[A]\r\nx=C:\\\r\n\r\ny=2\r\n");
    EXPECT_EQ(With("[A]\r\nx=C:\\", "A", "y", "2"), "[A]\r\nx=C:\\\r\n\r\ny=2")
        << "also where the last line has no end, which stays so";
    EXPECT_EQ(With("[A]\nx=1 ; C:\\\n; remark\n", "A", "y", "2"), "[A]\nx=1 ; C:\\\n\ny=2\n; remark\n");
    EXPECT_EQ(With("\xEF\xBB\xBF[A] ; C:\\\n", "A", "y", "2"), "\xEF\xBB\xBF[A] ; C:\\\ny=2\n")
        << "a header is no value";
}

TEST(IniText, AKeyBelowAWrittenTextThatEndsInABackslashGetsABlankLineAboveToo) {
    IniText text("[A]\nx=C:\\\n");
    Write(text, "A", "y", {"D:\\", true, {}});
    Write(text, "A", "z", {"1", false, {}});
    Write(text, "B", "y", {"E:\\", true, {}});
    Write(text, "B", "z", {"2", false, {}});
    EXPECT_EQ(Merged(text), "[A]\nx=C:\\\n\ny=D:\\\n\nz=1\n\n[B]\ny=E:\\\n\nz=2\n");
    EXPECT_EQ(ValueOf(text, "B", "z"), "2");
    Write(text, "A", "x", {"1", false, {}});
    EXPECT_EQ(Merged(text), "[A]\nx=1\ny=D:\\\n\nz=1\n\n[B]\ny=E:\\\n\nz=2\n");
}

TEST(IniText, AValueThatIsWrittenSoThatItEndsInABackslashGetsABlankLineBelow) {
    const auto written = [](const char* before) {
        IniText text(before);
        Write(text, "A", "x", {"C:\\", true, {}});
        return Merged(text);
    };
    EXPECT_EQ(written("[A]\nx=C:\ny=2\n"), "[A]\nx=C:\\\n\ny=2\n");
    EXPECT_EQ(written("[A]\r\nx=C:\r\n[B]\r\n"), "[A]\r\nx=C:\\\r\n\r\n[B]\r\n");
    EXPECT_EQ(written("[A]\nx=C:\n\ny=2\n"), "[A]\nx=C:\\\n\ny=2\n") << "there is one already";
    EXPECT_EQ(written("[A]\nx=1 \\\n2\n"), "[A]\nx=C:\\\n2\n") << "the lines below stay those of the value";
    EXPECT_EQ(written("[A]\nx=C:\n"), "[A]\nx=C:\\\n");
    EXPECT_EQ(written("[A]\nx=C:"), "[A]\nx=C:\\");
    IniText text("[A]\nx=C:\n[B]\ny=1\n");
    Write(text, "A", "x", {"C:\\", true, {}});
    Write(text, "A", "z", {"2", false, {}});
    EXPECT_EQ(Merged(text), "[A]\nx=C:\\\n\nz=2\n[B]\ny=1\n") << "one blank line, not two";
    IniText renamed("[A]\nx=1\n");
    ASSERT_TRUE(renamed.RenameSection(Find(renamed, "A").value(), "C:\\"));
    EXPECT_EQ(Merged(renamed), "[C:\\]\nx=1\n");
}

TEST(IniText, ANewKeyDoesNotFollowLinesThatContinueNothing) {
    EXPECT_EQ(With("[A]\nx=1\nno key\n  more\n", "A", "y", "2"), "[A]\nx=1\ny=2\nno key\n  more\n");
    EXPECT_EQ(With("[A]\nx=1\n  ; about B\n  [B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\n  ; about B\n  [B]\n");
    EXPECT_EQ(With("[A]\nx=1\n; C:\\Data\\\n\n[B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\n; C:\\Data\\\n\n[B]\n");
}

TEST(IniText, ABlankLineThatContinuesAValueStaysAboveANewKeyWhenTheSectionBelowGoes) {
    IniText text("[A]\nx=C:\\\n\n[B]\ny=1\n");
    Write(text, "A", "z", {"2", false, {}});
    text.RemoveSection(Find(text, "B").value());
    EXPECT_EQ(Merged(text), "[A]\nx=C:\\\n\nz=2\n");
}

TEST(IniText, AValueIsRewrittenOnItsKeyLineAndItsContinuationLinesStay) {
    EXPECT_EQ(With("[A]\nx=1 \\\n2\n  k=v\n", "A", "x", "3"), "[A]\nx=3\n2\n  k=v\n");
    EXPECT_EQ(With("[A]\nx=1\n  k=v\n", "A", "k", "2"), "[A]\nx=1\n  k=2\n")
        << "an indented line with an equals sign is a key of its own";
}

TEST(IniText, ANewKeyTakesTheLineEndOfTheLineItFollows) {
    EXPECT_EQ(With("[A]\r\nx=1\r\n[B]\n", "A", "y", "2"), "[A]\r\nx=1\r\ny=2\r\n[B]\n");
    EXPECT_EQ(With("[A]\r\nx=1\n[B]\r\n", "A", "y", "2"), "[A]\r\nx=1\ny=2\n[B]\r\n");
    EXPECT_EQ(With("[A]\r\nx=1", "A", "y", "2"), "[A]\r\nx=1\r\ny=2")
        << "a file whose last line has no end stays one";
    EXPECT_EQ(With("[A]", "A", "y", "2"), "[A]\ny=2");
}

TEST(IniText, ANewSectionFollowsABlankLineOfItsOwnAtTheEnd) {
    EXPECT_EQ(With("", "A", "x", "1"), "[A]\nx=1\n");
    EXPECT_EQ(With("\xEF\xBB\xBF", "A", "x", "1"), "\xEF\xBB\xBF[A]\nx=1\n");
    EXPECT_EQ(With("[A]\nx=1\n", "B", "y", "2"), "[A]\nx=1\n\n[B]\ny=2\n");
    EXPECT_EQ(With("[A]\r\nx=1\r\n", "B", "y", "2"), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(With("[A]\r\nx=1\r\n\r\n", "B", "y", "2"), "[A]\r\nx=1\r\n\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(With("[A]\nx=1\n \t\n", "B", "y", "2"), "[A]\nx=1\n \t\n\n[B]\ny=2\n");
    EXPECT_EQ(With("\n", "B", "y", "2"), "\n\n[B]\ny=2\n");
}

TEST(IniText, ANewSectionAfterALastLineWithoutAnEndLeavesTheFileWithoutOne) {
    EXPECT_EQ(With("[A]\nx=1", "B", "y", "2"), "[A]\nx=1\n\n[B]\ny=2");
    EXPECT_EQ(With("[A]\r\nx=1", "B", "y", "2"), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2");
    EXPECT_EQ(With("[A]\nx=1\n  ", "B", "y", "2"), "[A]\nx=1\n  \n\n[B]\ny=2");
}

TEST(IniText, ChangesOfAllKindsMeetAtTheEndOfTheFile) {
    IniText text("[A]\r\nx=1\r\n[B]\r\ny=2");
    Write(text, "C", "z", {"3", false, {}});
    Write(text, "B", "v", {"4", false, {}});
    Write(text, "D", "w", {"5", false, {}});
    Write(text, "B", "y", {"6", false, {}});
    Write(text, "C", "u", {"7", false, {}});
    Write(text, "A", "t", {"8", false, {}});
    Write(text, "B", "s", {"9", false, {}});
    EXPECT_EQ(Merged(text), "[A]\r\nx=1\r\nt=8\r\n[B]\r\ny=6\r\nv=4\r\ns=9\r\n\r\n"
                            "[C]\r\nz=3\r\nu=7\r\n\r\n[D]\r\nw=5");
    EXPECT_EQ(ValueOf(text, "b", "V"), "4");
    EXPECT_EQ(ValueOf(text, "C", "u"), "7");
}

TEST(IniText, AKeyMayBeWrittenAgainAndAgain) {
    IniText text("[A]\nx = 1 ; ohms\n");
    Write(text, "A", "x", {"2", false, {}});
    Write(text, "A", "X", {"3", false, "; Ohm"});
    Write(text, "A", "y", {"\"a\"", true, {}});
    Write(text, "A", "Y", {"b", true, {}});
    EXPECT_EQ(Merged(text), "[A]\nx = 3 ; Ohm\ny=b\n");
    EXPECT_EQ(ValueOf(text, "A", "x"), "3 ; Ohm");
    Write(text, "A", "x", {"c", true, {}});
    EXPECT_EQ(Merged(text), "[A]\nx = \"c\" ; Ohm\ny=b\n");
}

TEST(IniText, ALargeSectionIsSearchedAndChangedLikeASmallOne) {
    for (const int count : {10, 10'000}) {
        IniText text(ManyKeys(count) + "k1=again\n; the end of A\n[B]\nx=1\n");
        const std::string last = "K" + std::to_string(count - 1);
        EXPECT_EQ(ValueOf(text, "A", last), std::to_string(count - 1));
        EXPECT_EQ(ValueOf(text, "A", "k1"), "1");
        EXPECT_EQ(ValueOf(text, "A", "x"), "no key");
        Write(text, "A", "k1", {"one", true, {}});
        Write(text, "A", "New", {"2", false, {}});
        std::string expected = ManyKeys(count) + "k1=again\nNew=2\n; the end of A\n[B]\nx=1\n";
        expected.replace(expected.find("K1=1\n"), 4, "K1=one");
        EXPECT_EQ(Merged(text), expected);
    }
}

TEST(IniText, ALargeSectionWithoutKeysGetsItsFirstKeyBehindItsHeader) {
    const std::string comment = ";" + std::string(10'000, '-') + "\n";
    EXPECT_EQ(With("[A]\n" + comment, "A", "x", "1"), "[A]\nx=1\n" + comment);
}

TEST(IniText, ChangesCanBeMadeInATextThatSomebodyElseHasChanged) {
    IniText ours("[A]\nx=1 ; ohms\ny=2\nname=old\nz=3\n");
    Write(ours, "A", "x", {"10", false, {}});
    Write(ours, "A", "y", {"20", false, "; ours"});
    Write(ours, "A", "name", {"\"a ; b \"", true, {}});
    Write(ours, "A", "z", {"30", false, {}});
    Write(ours, "B", "new", {"40", false, {}});

    IniText theirs("; theirs\r\n[C]\r\nv=1\r\n[a]\r\nname = old\r\ny=2 ; theirs\r\nX =5 ; Ohm\r\n");
    EXPECT_FALSE(ours.ApplyChangesTo(theirs));
    EXPECT_EQ(Merged(theirs), "; theirs\r\n[C]\r\nv=1\r\n[a]\r\nname = \"a ; b \"\r\ny=20 ; ours\r\n"
                              "X =10 ; Ohm\r\nz=30\r\n\r\n[B]\r\nnew=40\r\n");
}

TEST(IniText, ACommentBehindATextIsThatOfTheTextThatSomebodyElseHasChanged) {
    IniText ours("[A]\nVersion=1.0 ; ours\nname=\"a\" ; ours\n");
    Write(ours, "A", "Version", {"1.0", true, {}});
    Write(ours, "A", "name", {"b", true, {}});
    EXPECT_EQ(Merged(ours), "[A]\nVersion=\"1.0\" ; ours\nname=\"b\" ; ours\n");
    const std::pair<const char*, const char*> cases[] = {
        {"[A]\nVersion=1.0 ; theirs\nname=\"a\" ; theirs\n",
         "[A]\nVersion=\"1.0\" ; theirs\nname=\"b\" ; theirs\n"},
        {"[A]\nVersion=0.9 ; theirs\nname=c ; theirs\n",
         "[A]\nVersion=\"1.0\" ; theirs\nname=\"b\" ; theirs\n"},
        {"[A]\nVersion=1.0\nname=a\n", "[A]\nVersion=1.0\nname=b\n"},
        {"", "[A]\nVersion=1.0\nname=b\n"},
    };
    for (const auto& [before, after] : cases) {
        IniText theirs(before);
        EXPECT_FALSE(ours.ApplyChangesTo(theirs));
        EXPECT_EQ(Merged(theirs), after);
    }
}

TEST(IniText, ATextThatStandsThereStaysAsItIsAndIsPutInQuotesInATextThatSomebodyElseHasChanged) {
    IniText ours("[A]\nColumns=a ; b\n");
    Write(ours, "A", "Columns", {"a ; b", true, {}});
    EXPECT_EQ(Merged(ours), "[A]\nColumns=a ; b\n");
    const std::pair<const char*, const char*> cases[] = {
        {"[A]\nColumns = a ; b\n", "[A]\nColumns = a ; b\n"},
        {"[A]\nColumns=\"a ; b\" ; theirs\n", "[A]\nColumns=\"a ; b\" ; theirs\n"},
        {"[A]\nColumns=c\n", "[A]\nColumns=\"a ; b\"\n"},
        {"", "[A]\nColumns=\"a ; b\"\n"},
    };
    for (const auto& [before, after] : cases) {
        IniText theirs(before);
        EXPECT_FALSE(ours.ApplyChangesTo(theirs));
        EXPECT_EQ(Merged(theirs), after);
    }
}

TEST(IniText, NamesInLatin1AreFoundByTheirText) {
    IniText text("[K\xF6ln]\nW\xE4rme=1\n" + ManyKeys(1000).substr(4));
    EXPECT_EQ(text.Encoding(), IniEncoding::Latin1);
    EXPECT_EQ(ValueOf(text, "k\xC3\xB6LN", "w\xC3\xA4rme"), "1") << "through the index";
    IniText small("[K\xF6ln]\nW\xE4rme=1\n");
    EXPECT_EQ(ValueOf(small, "k\xC3\xB6ln", "w\xC3\xA4rme"), "1") << "by search";

    const auto section = Find(text, "K\xC3\xB6ln");
    text.Write(*section, L"N\u00F6tig", "N\xF6tig", {"1", false, {}});
    EXPECT_EQ(ValueOf(text, "K\xC3\xB6ln", "n\xC3\xB6tig"), "1") << "among the changes";
    IniText other("[K\xC3\xB6ln]\n");
    EXPECT_FALSE(text.ApplyChangesTo(other));
    EXPECT_EQ(ValueOf(other, "K\xC3\xB6ln", "N\xC3\xB6tig"), "1");
}

namespace {

/// `text` without a section.
std::string Without(const std::string& text, std::string_view section) {
    IniText changed(text);
    changed.RemoveSection(Find(changed, section).value());
    return Merged(changed);
}

/// `text` with another name for a section.
std::string Renamed(const std::string& text, std::string_view from, std::string_view to) {
    IniText changed(text);
    EXPECT_TRUE(changed.RenameSection(Find(changed, from).value(), to));
    return Merged(changed);
}

} // namespace

TEST(IniText, ARemovedSectionGoesWithItsHeaderItsKeysAndTheBlankLinesBehindIt) {
    EXPECT_EQ(Without("[A]\nx=1\n\n[B]\ny=2\nno key\n\n[C]\nz=3\n", "B"), "[A]\nx=1\n\n[C]\nz=3\n");
    EXPECT_EQ(Without("[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n", "A"), "[B]\r\ny=2\r\n");
    EXPECT_EQ(Without("[A]\nx=1\n  [B]\ny=2\n[C]\n", "b"), "[A]\nx=1\n[C]\n");
    EXPECT_EQ(Without("\xEF\xBB\xBF[A]\nx=1\n", "A"), "\xEF\xBB\xBF");
}

TEST(IniText, ARemovedSectionTakesTheLinesAlongThatContinueItsLastValue) {
    EXPECT_EQ(Without("[A]\nx=1\n  more\n\n  still more\n\n[B]\n", "A"), "[B]\n");
    EXPECT_EQ(Without("[A]\nx=1 \\\n\n2 \\\n; 3\n\n; apart\n\n[B]\n", "A"), "; apart\n\n[B]\n");
    EXPECT_EQ(Without("[A]\nx=C:\\\n; about B\n[B]\n", "A"), "; about B\n[B]\n");

    IniText back("[A]\nx=1 \\\n2\n  more\n\n[B]\n");
    back.RemoveSection(Find(back, "A").value());
    Write(back, "A", "y", {"3", false, {}});
    EXPECT_EQ(Merged(back), "[A]\ny=3\n\n[B]\n");
}

TEST(IniText, RemovingTheSectionThatWasAddedLastGivesTheTextBack) {
    for (const std::string text : {"[A]\nx=1\n",
                                   "[A]\nx=1\n\n",
                                   "[A]\nx=1\n\n \t\n\n",
                                   "[A]\r\nx=1\r\n",
                                   "[A]\r\nx=1\r\n\r\n",
                                   "[A]\nx=1\r\n\n",
                                   "[A]\nx=1",
                                   "[A]\r\nx=1",
                                   "[A]\nx=1\n  ",
                                   "[A]\nx=1\r",
                                   "[A]",
                                   "x",
                                   "\r",
                                   "\n",
                                   "\r\n\r\n",
                                   "  ",
                                   "; remark\n",
                                   "; remark",
                                   "[A]\nx=1\\\n",
                                   "[A]\nx=1\n  more\n\n",
                                   "[A\n",
                                   "\xEF\xBB\xBF",
                                   "\xEF\xBB\xBF\n",
                                   ""}) {
        const std::string added = With(text, "B", "y", "2");
        EXPECT_EQ(Without(added, "B"), text);
        EXPECT_EQ(Without(Without(With(added, "C", "z", "3"), "B"), "C"), text);
        EXPECT_EQ(Without(Without(With(added, "C", "z", "3"), "C"), "B"), text);

        IniText both(With(added, "C", "z", "3"));
        both.RemoveSection(Find(both, "B").value());
        both.RemoveSection(Find(both, "C").value());
        EXPECT_EQ(Merged(both), text) << "in one save";
        IniText unsaved(text);
        Write(unsaved, "B", "y", {"2", false, {}});
        unsaved.RemoveSection(Find(unsaved, "B").value());
        EXPECT_FALSE(unsaved.IsDifferent());
        EXPECT_EQ(Merged(unsaved), text);
    }
}

TEST(IniText, RemovingTheLastSectionLeavesAllBlankLinesAboveButOne) {
    EXPECT_EQ(Without("[A]\nx=1\n\n \t\n[B]\ny=2\n\n", "B"), "[A]\nx=1\n\n");
    EXPECT_EQ(Without("[A]\nx=1\n[B]\ny=2\n", "B"), "[A]\nx=1\n");
    EXPECT_EQ(Without("\n[B]\ny=2\n", "B"), "");
}

TEST(IniText, CommentsThatTouchARemovedSectionGoWithItAndOthersStay) {
    EXPECT_EQ(
        Without("[A]\nx=1\n\n; group\n\n; about B\n# more\n[B]\ny=2\n;z=3\n\n; group\n\n; about C\n[C]\n",
                "B"),
        "[A]\nx=1\n\n; group\n\n; group\n\n; about C\n[C]\n");
    EXPECT_EQ(Without("[A]\nx=1\n[B]\ny=2\n; about C\n[C]\n", "B"), "[A]\nx=1\n; about C\n[C]\n");
    EXPECT_EQ(Without("[A]\nx=1\n[B]\n; about C\n[C]\n", "B"), "[A]\nx=1\n; about C\n[C]\n");
    EXPECT_EQ(Without("[A]\nx=1\n\n[B]\ny=2\n\n; the end of the file\n", "B"),
              "[A]\nx=1\n\n; the end of the file\n");
    EXPECT_EQ(Without("; about the file\n[A]\nx=1\n\n[B]\n", "A"), "; about the file\n[B]\n")
        << "what opens the file may speak of all of it";
}

TEST(IniText, LaterSectionsOfARemovedNameDoNotComeToLight) {
    EXPECT_EQ(Without("[A]\nx=1\n\n[B]\n\n[a]\nx=2\n\n[C]\n", "A"), "[B]\n\n[C]\n");
}

TEST(IniText, ARenamedSectionHasAnotherHeaderAndNothingElse) {
    EXPECT_EQ(Renamed("; a\n  [A] ; remark\r\nx = 1\r\n[B]\n", "a", "New [name]"),
              "; a\n  [New [name]] ; remark\r\nx = 1\r\n[B]\n");
    EXPECT_EQ(Renamed("[A]\nx=1\n[B]\n[a]\nx=2\n", "A", "C"), "[C]\nx=1\n[B]\n[C]\nx=2\n");
    EXPECT_EQ(Renamed("[A]\n", "A", "a"), "[a]\n");
}

TEST(IniText, AHeaderThatWouldNotGiveTheNameBackKeepsItsOwn) {
    IniText text("[A] tail]\nx=1\n[B] tail\n");
    EXPECT_EQ(text.SectionNames(), (std::vector<std::string_view>{"A] tail", "B"}));
    EXPECT_TRUE(text.RenameSection(Find(text, "A] tail").value(), "C"));
    EXPECT_FALSE(text.RenameSection(Find(text, "B").value(), "D];"));
    EXPECT_EQ(Merged(text), "[C]\nx=1\n[B] tail\n");
}

TEST(IniText, ARenamedSectionIsFoundUnderItsNewNameAlone) {
    IniText text("[A]\nx=1\n[B]\ny=2\n");
    ASSERT_TRUE(text.RenameSection(Find(text, "A").value(), "C"));
    EXPECT_EQ(ValueOf(text, "A", "x"), "no section");
    EXPECT_EQ(ValueOf(text, "c", "x"), "1");
    ASSERT_TRUE(text.RenameSection(Find(text, "B").value(), "A"));
    ASSERT_TRUE(text.RenameSection(Find(text, "C").value(), "B"));
    Write(text, "B", "x", {"3", false, {}});
    EXPECT_EQ(Merged(text), "[B]\nx=3\n[A]\ny=2\n") << "two sections may change their names";
}

TEST(IniText, RenamingThereAndBackIsNoChange) {
    IniText text("[A]\nx=1\n");
    ASSERT_TRUE(text.RenameSection(Find(text, "A").value(), "B"));
    EXPECT_TRUE(text.IsDifferent());
    ASSERT_TRUE(text.RenameSection(Find(text, "B").value(), "A"));
    EXPECT_FALSE(text.IsDifferent());
    EXPECT_EQ(ValueOf(text, "A", "x"), "1");
}

TEST(IniText, ARemovedSectionTakesWhatWasWrittenIntoItAlong) {
    IniText text("[A]\nx=1\n");
    Write(text, "A", "x", {"2", false, {}});
    Write(text, "B", "y", {"3", false, {}});
    text.RemoveSection(Find(text, "B").value());
    EXPECT_EQ(Merged(text), "[A]\nx=2\n");
    EXPECT_EQ(ValueOf(text, "B", "y"), "no section");
    text.RemoveSection(Find(text, "A").value());
    EXPECT_EQ(ValueOf(text, "A", "x"), "no section");
    EXPECT_EQ(Merged(text), "");
    EXPECT_TRUE(text.IsDifferent());
}

TEST(IniText, ARemovedSectionThatIsWrittenAgainStandsInItsOldPlaceWithTheNewKeysAlone) {
    IniText text("; about A\n\n; on A\n[A] ; here\n; keys\nx=1\nold=1\n; tail\n\n; B\n[B]\ny=2\n");
    text.RemoveSection(Find(text, "A").value());
    Write(text, "A", "new", {"3", false, {}});
    Write(text, "A", "x", {"4", false, {}});
    EXPECT_EQ(ValueOf(text, "A", "old"), "no key");
    EXPECT_EQ(Merged(text), "; about A\n\n; on A\n[A] ; here\nnew=3\nx=4\n\n; B\n[B]\ny=2\n");
    text.RemoveSection(Find(text, "A").value());
    EXPECT_EQ(Merged(text), "; about A\n\n; B\n[B]\ny=2\n");
}

TEST(IniText, SectionsOfAllKindsOfChangeStandInTheOrderOfTheText) {
    IniText text("x=0\n[A]\n[B\n[C]\nz=3\n[c]\n[D]\n\n[E]");
    Write(text, "F", "x", {"1", false, {}});
    Write(text, "G", "x", {"1", false, {}});
    Write(text, "D", "x", {"1", false, {}});
    text.RemoveSection(Find(text, "A").value());
    text.RemoveSection(Find(text, "E").value());
    text.RemoveSection(Find(text, "F").value());
    ASSERT_TRUE(text.RenameSection(Find(text, "G").value(), "A"));
    EXPECT_EQ(text.SectionNames(), (std::vector<std::string_view>{"C", "D", "A"}));
    EXPECT_EQ(Merged(text), "x=0\n[B\n[C]\nz=3\n[c]\n[D]\nx=1\n\n[A]\nx=1");
}

TEST(IniText, RemovalsAndNewNamesAreAppliedToATextThatHasChangedSince) {
    IniText ours("[A]\nx=1\n\n[B]\ny=2\n\n[C]\nz=3\n");
    ours.RemoveSection(Find(ours, "A").value());
    ASSERT_TRUE(ours.RenameSection(Find(ours, "B").value(), "A"));
    ours.RemoveSection(Find(ours, "C").value());
    Write(ours, "C", "w", {"4", false, {}});
    Write(ours, "A", "y", {"5", false, {}});

    IniText theirs("; theirs\n\n[C]\nz=3\nmore=1\n\n[A]\nx=7\n\n[B]\ny=2\nmine=1\n");
    EXPECT_FALSE(ours.ApplyChangesTo(theirs));
    EXPECT_EQ(Merged(theirs), "; theirs\n\n[C]\nw=4\n\n[A]\ny=5\nmine=1\n");
}

TEST(IniText, WhatIsGoneAlreadyNeedsNoRemovalAndNoNewName) {
    IniText ours("[A]\nx=1\n\n[B]\ny=2\n");
    ours.RemoveSection(Find(ours, "A").value());
    ASSERT_TRUE(ours.RenameSection(Find(ours, "B").value(), "C"));
    Write(ours, "C", "y", {"3", false, {}});
    IniText theirs("[D]\n");
    EXPECT_FALSE(ours.ApplyChangesTo(theirs));
    EXPECT_EQ(Merged(theirs), "[D]\n\n[C]\ny=3\n");
}

TEST(IniText, TheSectionThatSomebodyElseHasPutInThePlaceOfAGoneOneIsLeftAlone) {
    IniText removed("[A]\nx=1\n");
    ASSERT_TRUE(removed.RenameSection(Find(removed, "A").value(), "B"));
    removed.RemoveSection(Find(removed, "B").value());
    IniText renamed("[A]\nx=1\n");
    ASSERT_TRUE(renamed.RenameSection(Find(renamed, "A").value(), "b"));
    ASSERT_TRUE(renamed.RenameSection(Find(renamed, "B").value(), "C"));
    const std::string text = "[B]\ntheirs=1\n";
    for (IniText* const ours : {&removed, &renamed}) {
        IniText theirs(text);
        EXPECT_FALSE(ours->ApplyChangesTo(theirs));
        EXPECT_EQ(Merged(theirs), text);
    }
}

TEST(IniText, ANameThatSomebodyElseHasGivenMeanwhileIsToldAndNotTaken) {
    IniText ours("[A]\nx=1\n");
    ASSERT_TRUE(ours.RenameSection(Find(ours, "A").value(), "B"));
    IniText theirs("[A]\nx=1\n[b]\ny=2\n");
    const auto conflict = ours.ApplyChangesTo(theirs);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->kind, IniConflict::Kind::NameIsTaken);
    EXPECT_EQ(conflict->section, "B");
    EXPECT_EQ(Merged(theirs), "[A]\nx=1\n[b]\ny=2\n");
}

TEST(IniText, ASectionThatSomebodyElseHasRemovedIsAddedAgainWithAllItsKeysOrNotAtAll) {
    IniText ours("[A]\nx=1\ny=2\n");
    Write(ours, "A", "x", {"3", false, {}});
    IniText part("[B]\n");
    const auto conflict = ours.ApplyChangesTo(part);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->kind, IniConflict::Kind::SectionIsGone);
    EXPECT_EQ(conflict->section, "A");

    Write(ours, "A", "Y", {"2", false, {}});
    IniText whole("[B]\n");
    EXPECT_FALSE(ours.ApplyChangesTo(whole));
    EXPECT_EQ(Merged(whole), "[B]\n\n[A]\nx=3\ny=2\n");
}

TEST(IniText, ALongSectionThatSomebodyElseHasRemovedIsAddedAgainWithAllItsKeysOrNotAtAll) {
    IniText ours(ManyKeys(1000) + "k7=again\n");
    for (int i = 0; i < 999; ++i)
        Write(ours, "A", "k" + std::to_string(i), {"1", false, {}});
    IniText part("[B]\n");
    const auto conflict = ours.ApplyChangesTo(part);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->kind, IniConflict::Kind::SectionIsGone);
    Write(ours, "A", "k999", {"1", false, {}});
    IniText whole("[B]\n");
    EXPECT_FALSE(ours.ApplyChangesTo(whole));
    EXPECT_EQ(ValueOf(whole, "A", "K999"), "1");
}

TEST(IniText, RenamingThereAndBackLeavesNoChangeWhereAllHeadersAreSpelledAlike) {
    IniText alike("[A]\n[B]\n[A]\n[A]\n[A]\n");
    ASSERT_TRUE(alike.RenameSection(Find(alike, "A").value(), "C"));
    ASSERT_TRUE(alike.RenameSection(Find(alike, "C").value(), "A"));
    EXPECT_FALSE(alike.IsDifferent());

    IniText various("[A]\n[B]\n[a]\n");
    ASSERT_TRUE(various.RenameSection(Find(various, "A").value(), "C"));
    ASSERT_TRUE(various.RenameSection(Find(various, "C").value(), "A"));
    EXPECT_TRUE(various.IsDifferent());
    EXPECT_EQ(Merged(various), "[A]\n[B]\n[A]\n");
}

TEST(IniText, ASectionThatWasRemovedUnderANewNameComesBackWhenTheNameIsFreeAgain) {
    IniText text("[A]\nx=1\n[B]\ny=2\n[C]\nz=3\n");
    ASSERT_TRUE(text.RenameSection(Find(text, "A").value(), "N"));
    text.RemoveSection(Find(text, "N").value());
    ASSERT_TRUE(text.RenameSection(Find(text, "B").value(), "N"));
    EXPECT_EQ(ValueOf(text, "N", "y"), "2");
    ASSERT_TRUE(text.RenameSection(Find(text, "N").value(), "M"));
    EXPECT_EQ(ValueOf(text, "N", "y"), "no section");
    Write(text, "N", "w", {"4", false, {}});
    EXPECT_EQ(Merged(text), "[N]\nw=4\n[M]\ny=2\n[C]\nz=3\n");
}

TEST(IniText, TheFirstSectionOfANameIsFoundFromWhereverTheLastSearchEnded) {
    IniText text("x=0\n[A]\nx=1\n  [B]\ny=2\n[a]\nz=3\n[broken\n[C] ; c\nw=4\n");
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(ValueOf(text, "B", "y"), "2");
        EXPECT_EQ(ValueOf(text, "A", "x"), "1") << "the next section has the name too, but is not the first";
        EXPECT_EQ(ValueOf(text, "C", "w"), "4");
        EXPECT_EQ(ValueOf(text, "a", "z"), "no key");
        EXPECT_EQ(ValueOf(text, "b", "x"), "no key");
        EXPECT_EQ(ValueOf(text, "nowhere", "x"), "no section");
        EXPECT_EQ(ValueOf(text, "broken", "x"), "no section");
        EXPECT_EQ(ValueOf(text, "c", "w"), "4");
    }
    EXPECT_EQ(text.SectionNames(), (std::vector<std::string_view>{"A", "B", "C"}));
}

TEST(IniText, OfManySectionsOfOneNameInARowTheFirstCountsAndEndsBeforeTheSecond) {
    IniText text("[A]\nx=1\n[A]\ny=2\n[A]\ny=3\n[A]\ny=4\n[B]\nx=5\n[]\n[]\n[]\nx=6\n[a]\nx=7\n[b\n[b\n[b\n["
                 "D]\nx=8\n");
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(ValueOf(text, "A", "x"), "1");
        EXPECT_EQ(ValueOf(text, "a", "y"), "no key");
        EXPECT_EQ(ValueOf(text, "B", "x"), "5");
        EXPECT_EQ(ValueOf(text, "", "x"), "no key");
        EXPECT_EQ(ValueOf(text, "D", "x"), "8");
    }
    EXPECT_EQ(text.SectionNames(), (std::vector<std::string_view>{"A", "B", "", "D"}));
}

TEST(IniText, TheFirstSectionIsReadWithoutALookAtTheRest) {
    std::string many = "[First]\nx=1\n";
    for (int i = 0; i < 100'000; ++i)
        many += "[Section " + std::to_string(i) + "]\nkey=a value that takes some bytes\n";
    many += "[Last]\nx=2\n";
    const auto time = [&many](std::string_view section, const std::string& value) {
        double best = std::numeric_limits<double>::infinity();
        for (int round = 0; round < 5; ++round) {
            IniText text(many);
            const auto start = std::chrono::steady_clock::now();
            EXPECT_EQ(ValueOf(text, section, "x"), value);
            best = std::min(best,
                            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        }
        return best;
    };
    EXPECT_LT(20 * time("First", "1"), time("Last", "2"));
}

TEST(IniText, TheFirstKeyOfANameCountsWithItsLine) {
    const std::string text = "[A]\n; x=0\n\t x = 1 ; one\nX=2\ny=\n\n[B]\nz=3\n";
    IniText read(text);
    EXPECT_EQ(ValueOf(read, "A", "x"), "1 ; one");
    EXPECT_EQ(ValueOf(read, "A", "X"), "1 ; one");
    EXPECT_EQ(ValueOf(read, "A", "Y"), "");
    EXPECT_EQ(ValueOf(read, "A", "z"), "no key") << "that one belongs to the next section";
    EXPECT_EQ(With(text, "A", "X", "5"), "[A]\n; x=0\n\t x = 5 ; one\nX=2\ny=\n\n[B]\nz=3\n");
    EXPECT_EQ(With(text, "A", "w", "5"), "[A]\n; x=0\n\t x = 1 ; one\nX=2\ny=\nw=5\n\n[B]\nz=3\n");
}

TEST(IniText, FewAndManyKeysAreFoundInTheSameWay) {
    for (const int count : {1, 31, 32, 33, 34, 1000}) {
        IniText text(ManyKeys(count) + "k0=again\nW\xE4rme=warm\n"); // Latin-1
        SCOPED_TRACE(count);
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(ValueOf(text, "A", "K0"), "0");
            EXPECT_EQ(ValueOf(text, "A", "k" + std::to_string(count - 1)), std::to_string(count - 1));
            EXPECT_EQ(ValueOf(text, "A", "w\xC3\xA4rme"), "warm");
            EXPECT_EQ(ValueOf(text, "A", "K" + std::to_string(count)), "no key");
        }
    }
}

TEST(IniText, NewKeysAreFoundInTheirSectionsHoweverManyAndStandInTheOrderOfTheirWriting) {
    for (const int count : {1, 15, 32, 33, 1000}) {
        SCOPED_TRACE(count);
        IniText text("[Old]\nfirst=1\n");
        std::string keys;
        for (int i = 0; i < count; ++i) {
            const std::string key = "K" + std::to_string(i);
            for (const char* const section : {"Old", "New", "Other"})
                Write(text, section, key, {std::to_string(i), false, {}});
            keys += key + "=" + std::to_string(i) + "\n";
        }
        Write(text, "Old", "k0", {"zero", true, {}});
        Write(text, "New", "k0", {"zero", true, {}});
        EXPECT_EQ(ValueOf(text, "new", "k" + std::to_string(count - 1)),
                  count == 1 ? "zero" : std::to_string(count - 1));
        EXPECT_EQ(ValueOf(text, "Other", "K0"), "0");
        EXPECT_EQ(ValueOf(text, "Other", "first"), "no key");
        EXPECT_EQ(ValueOf(text, "Old", "K" + std::to_string(count)), "no key");
        std::string changed = keys;
        changed.replace(0, 4, "K0=zero");
        EXPECT_EQ(Merged(text), "[Old]\nfirst=1\n" + changed + "\n[New]\n" + changed + "\n[Other]\n" + keys);
        EXPECT_EQ(text.ReadText(), "[Old]\nfirst=1\n");
    }
}

TEST(IniText, ALineThatIsWrittenAgainIsTheLastOneWhateverItsLength) {
    IniText text("[A]\nx=one\ny=other\n");
    for (const std::string& value : {std::string("longer than before"), std::string("short"),
                                     std::string(200'000, 'x'), std::string("one"), std::string()}) {
        Write(text, "A", "x", {value, true, {}});
        EXPECT_EQ(ValueOf(text, "A", "x"), value);
        EXPECT_EQ(ValueOf(text, "A", "y"), "other");
        EXPECT_EQ(text.IsDifferent(), value != "one");
    }
    EXPECT_EQ(Merged(text), "[A]\nx=\ny=other\n");
}

TEST(IniText, WhatIsWrittenInTurnIntoSeveralSectionsIsReadAndMergedInTheOrderOfItsWriting) {
    for (const int count :
         {3, 33, 1000}) { // a few keys, more than are looked through, more than are read again
        const std::string keys = ManyKeys(count).substr(std::string("[A]\n").size());
        IniText text("[A]\n" + keys + "[B]\n" + keys);
        const auto writeBoth = [&text](const std::string& key, const std::string& value) {
            for (const char* const section : {"A", "B"})
                Write(text, section, key, {section + value, false, {}});
        };
        writeBoth("new", "1");
        writeBoth("K2", "2");
        writeBoth("K0", "3");
        writeBoth("newer", "4");
        writeBoth("new", "5");
        writeBoth("K2", "6");
        EXPECT_EQ(ValueOf(text, "A", "k0") + ValueOf(text, "A", "new") + ValueOf(text, "B", "k2"), "A3A5B6");
        const std::string rest = keys.substr(std::min(keys.size(), keys.find("K3=")));
        const auto changed = [&](const std::string& section) {
            return "[" + section + "]\nK0=" + section + "3\nK1=1\nK2=" + section + "6\n" + rest +
                   "new=" + section + "5\nnewer=" + section + "4\n";
        };
        EXPECT_EQ(Merged(text), changed("A") + changed("B"));
        IniText empty("");
        EXPECT_FALSE(text.ApplyChangesTo(empty));
        EXPECT_EQ(Merged(empty), "[A]\nnew=A5\nK2=A6\nK0=A3\nnewer=A4\n\n"
                                 "[B]\nnew=B5\nK2=B6\nK0=B3\nnewer=B4\n");
    }
}

TEST(IniText, WhatGoesWithItsSectionIsGoneAndTheSectionCanBeWrittenAgain) {
    for (const int count : {1, 33, 1000}) {
        for (const char* const before : {"[B]\nx=other\n", "[A]\nold=1\n\n[B]\nx=other\n"}) {
            IniText text(before);
            for (const char* const value : {"old", "new"}) {
                for (int i = 0; i < count; ++i)
                    Write(text, "A", "K" + std::to_string(i), {value, true, {}});
                EXPECT_EQ(ValueOf(text, "A", "k" + std::to_string(count - 1)), value);
                if (std::string_view(value) == "old")
                    text.RemoveSection(Find(text, "A").value());
            }
            EXPECT_EQ(ValueOf(text, "A", "old"), "no key");
            EXPECT_EQ(ValueOf(text, "B", "x"), "other");
        }
    }
}

TEST(IniText, OfSectionsThatWereAddedAnyCanBeRemovedAndRenamed) {
    IniText text("[A]\nx=1");
    for (const char* const section : {"B", "C", "D", "E"})
        Write(text, section, "y", {section, true, {}});
    text.RemoveSection(Find(text, "B").value());
    EXPECT_TRUE(text.RenameSection(Find(text, "D").value(), "B"));
    EXPECT_EQ(ValueOf(text, "b", "y"), "D");
    EXPECT_EQ(ValueOf(text, "D", "y"), "no section");
    EXPECT_EQ(text.SectionNames(), (std::vector<std::string_view>{"A", "C", "B", "E"}));
    EXPECT_EQ(Merged(text), "[A]\nx=1\n\n[C]\ny=C\n\n[B]\ny=D\n\n[E]\ny=E");
    for (const char* const section : {"C", "E", "B"})
        text.RemoveSection(Find(text, section).value());
    EXPECT_FALSE(text.IsDifferent());
    EXPECT_EQ(text.ExtendedText(), "[A]\nx=1");
}

TEST(IniText, AddedSectionsStandAtTheEndOfWhatRemovalsLeave) {
    const auto added = [](const std::string& before, std::string_view gone) {
        IniText text(before);
        Write(text, "N", "x", {"1", false, {}});
        Write(text, "O", "x", {"1", false, {}});
        text.RemoveSection(Find(text, gone).value());
        return Merged(text);
    };
    EXPECT_EQ(added("[A]\nx=1\n", "A"), "[N]\nx=1\n\n[O]\nx=1\n")
        << "the first section has no blank line above";
    EXPECT_EQ(added("[A]\nx=1", "A"), "[N]\nx=1\n\n[O]\nx=1");
    EXPECT_EQ(added("\xEF\xBB\xBF[A]\r\n", "A"), "\xEF\xBB\xBF[N]\r\nx=1\r\n\r\n[O]\r\nx=1\r\n");
    EXPECT_EQ(added("[A]\nx=1\n\n[B]\ny=2", "B"), "[A]\nx=1\n\n[N]\nx=1\n\n[O]\nx=1");
    EXPECT_EQ(added("[A]\nx=1\n", "N"), "[A]\nx=1\n\n[O]\nx=1\n");
}

TEST(IniText, WhatStandsInOnePieceAfterASaveIsTheTextAsItWasRead) {
    IniText text("[A]\nx=1\n");
    Write(text, "B", "y", {"2", false, {}});
    EXPECT_TRUE(text.IsDifferent() && text.HasWrites());
    EXPECT_EQ(text.ComposedText(), std::nullopt) << "nothing stands elsewhere";
    EXPECT_EQ(text.ExtendedText(), "[A]\nx=1\n\n[B]\ny=2\n");
    text.TakeAsRead();
    EXPECT_FALSE(text.IsDifferent() || text.HasWrites());
    EXPECT_EQ(text.ReadText(), "[A]\nx=1\n\n[B]\ny=2\n");
    Write(text, "B", "y", {"3", false, {}});
    Write(text, "C", "z", {"4", false, {}});
    EXPECT_EQ(Merged(text), "[A]\nx=1\n\n[B]\ny=3\n\n[C]\nz=4\n");
    IniText other("[A]\n");
    EXPECT_FALSE(text.ApplyChangesTo(other));
    EXPECT_EQ(Merged(other), "[A]\n\n[B]\ny=3\n\n[C]\nz=4\n") << "what was saved is not written again";
}

TEST(IniText, AddedTextsAndNumbersAreToldApartWhereSomebodyElseHasCommentedThem) {
    IniText ours("");
    for (const char* const section : {"A", "B"}) {
        Write(ours, section, "text", {"1.0", true, {}});
        Write(ours, section, "number", {"1.0", false, {}});
        Write(ours, section, "both", {"a ; b", true, {}});
    }
    Write(ours, "A", "text", {"2.0", true, {}});
    IniText theirs(
        "[A]\nnumber=2 ; ohms\ntext=2.0 ; theirs\nboth=2\n[B]\nnumber=2 ; ohms\ntext=1.0 ; theirs\n");
    EXPECT_FALSE(ours.ApplyChangesTo(theirs));
    EXPECT_EQ(Merged(theirs), "[A]\nnumber=1.0 ; ohms\ntext=\"2.0\" ; theirs\nboth=\"a ; b\"\n"
                              "[B]\nnumber=1.0 ; ohms\ntext=\"1.0\" ; theirs\nboth=\"a ; b\"\n");
}
