#include "QuorIniFile/IniDocument.h"

#include <gtest/gtest.h>

#include <string>

using namespace QuorIniFile;

namespace {

std::string ValueOf(const IniDocument& document, std::string_view section, std::string_view key) {
    const auto number = document.FindSection(section);
    if (!number)
        return "no section";
    const auto line = document.FindKey(*number, key);
    return line ? std::string(line->value) : "no key";
}

void Write(IniDocument& document, std::string_view section, std::string_view key, const IniNewValue& value) {
    const auto number = document.FindSection(section);
    document.Write(number ? *number : document.AddSection(section), key, key, value);
}

/// `text` with one more number under a key.
std::string With(const std::string& text, std::string_view section, std::string_view key, std::string value) {
    IniDocument document(text);
    Write(document, section, key, {std::move(value), false, {}});
    return document.Text();
}

/// A section of that many keys K0=0, K1=1, ...
std::string ManyKeys(int count) {
    std::string text = "[A]\n";
    for (int i = 0; i < count; ++i)
        text += "K" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    return text;
}

} // namespace

TEST(IniDocument, TheFirstSectionAndTheFirstKeyOfANameCount) {
    const IniDocument document("[A]\nx=1\nX=2\n[a]\nx=3\ny=4\n");
    EXPECT_EQ(ValueOf(document, "a", "X"), "1");
    EXPECT_EQ(ValueOf(document, "A", "y"), "no key");
    EXPECT_EQ(ValueOf(document, "B", "x"), "no section");
}

TEST(IniDocument, KeysBeforeTheFirstHeaderAndBelowABrokenOneAreOutOfReach) {
    const IniDocument document("x=0\n[A]\nx=1\n[B\ny=2\n  [C]\nz=3\n");
    EXPECT_EQ(ValueOf(document, "A", "x"), "1");
    EXPECT_EQ(ValueOf(document, "A", "y"), "no key")
        << "a key below a broken header is no key of the section above";
    EXPECT_EQ(ValueOf(document, "B", "y"), "no section");
    EXPECT_EQ(ValueOf(document, "", "x"), "no section");
    EXPECT_EQ(ValueOf(document, "C", "z"), "3");
}

TEST(IniDocument, ABracketInsideALineIsNoHeader) {
    const IniDocument document("[A]\nx=[B]\n;[C]\ny [D]\nz=1");
    EXPECT_EQ(ValueOf(document, "A", "x"), "[B]");
    EXPECT_EQ(ValueOf(document, "A", "z"), "1");
    for (const char* section : {"B", "C", "D"})
        EXPECT_EQ(ValueOf(document, section, "z"), "no section") << section;
}

TEST(IniDocument, WithoutAChangeTheTextIsTheSame) {
    for (const char* text : {"", "\n", "\xEF\xBB\xBF", "x", "[A]\nx=1", "\r\n[A]\r\nx=1\r\n;\r\n"}) {
        const IniDocument document(text);
        EXPECT_FALSE(document.Changed());
        EXPECT_EQ(document.Text(), text);
    }
}

TEST(IniDocument, WritingWhatStandsThereIsNoChange) {
    IniDocument document("[A]\nx = 1 ; ohms\n");
    Write(document, "A", "x", {"1", false, {}});
    EXPECT_FALSE(document.Changed());
}

TEST(IniDocument, ANewKeyFollowsTheLastKeyOfItsSection) {
    EXPECT_EQ(With("[A]\nx=1\n\n; about B\n[B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\n\n; about B\n[B]\n");
    EXPECT_EQ(With("[A]\nx=1\nno key\n[B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\nno key\n[B]\n");
    EXPECT_EQ(With("[A]\n; about A\n[B]\n", "A", "y", "2"), "[A]\ny=2\n; about A\n[B]\n");
    EXPECT_EQ(With("[A]\nx=1\n  [B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\n  [B]\n");
    EXPECT_EQ(With("[A]\nx=1\n[broken\nz=3\n", "A", "y", "2"), "[A]\nx=1\ny=2\n[broken\nz=3\n");
}

TEST(IniDocument, ANewKeyTakesTheLineEndOfTheLineItFollows) {
    EXPECT_EQ(With("[A]\r\nx=1\r\n[B]\n", "A", "y", "2"), "[A]\r\nx=1\r\ny=2\r\n[B]\n");
    EXPECT_EQ(With("[A]\r\nx=1\n[B]\r\n", "A", "y", "2"), "[A]\r\nx=1\ny=2\n[B]\r\n");
    EXPECT_EQ(With("[A]\r\nx=1", "A", "y", "2"), "[A]\r\nx=1\r\ny=2")
        << "a file whose last line has no end stays one";
    EXPECT_EQ(With("[A]", "A", "y", "2"), "[A]\ny=2");
}

TEST(IniDocument, ANewSectionFollowsABlankLineAtTheEnd) {
    EXPECT_EQ(With("", "A", "x", "1"), "[A]\nx=1\n");
    EXPECT_EQ(With("\xEF\xBB\xBF", "A", "x", "1"), "\xEF\xBB\xBF[A]\nx=1\n");
    EXPECT_EQ(With("[A]\nx=1\n", "B", "y", "2"), "[A]\nx=1\n\n[B]\ny=2\n");
    EXPECT_EQ(With("[A]\r\nx=1\r\n", "B", "y", "2"), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(With("[A]\r\nx=1\r\n\r\n", "B", "y", "2"), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(With("[A]\nx=1\n \t\n", "B", "y", "2"), "[A]\nx=1\n \t\n[B]\ny=2\n");
    EXPECT_EQ(With("\n", "B", "y", "2"), "\n[B]\ny=2\n");
}

TEST(IniDocument, ANewSectionAfterALastLineWithoutAnEndLeavesTheFileWithoutOne) {
    EXPECT_EQ(With("[A]\nx=1", "B", "y", "2"), "[A]\nx=1\n\n[B]\ny=2");
    EXPECT_EQ(With("[A]\r\nx=1", "B", "y", "2"), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2");
    EXPECT_EQ(With("[A]\nx=1\n  ", "B", "y", "2"), "[A]\nx=1\n  \n[B]\ny=2");
}

TEST(IniDocument, ChangesOfAllKindsMeetAtTheEndOfTheFile) {
    IniDocument document("[A]\r\nx=1\r\n[B]\r\ny=2");
    Write(document, "C", "z", {"3", false, {}});
    Write(document, "B", "v", {"4", false, {}});
    Write(document, "D", "w", {"5", false, {}});
    Write(document, "B", "y", {"6", false, {}});
    Write(document, "C", "u", {"7", false, {}});
    Write(document, "A", "t", {"8", false, {}});
    Write(document, "B", "s", {"9", false, {}});
    EXPECT_EQ(document.Text(), "[A]\r\nx=1\r\nt=8\r\n[B]\r\ny=6\r\nv=4\r\ns=9\r\n\r\n"
                               "[C]\r\nz=3\r\nu=7\r\n\r\n[D]\r\nw=5");
    EXPECT_EQ(ValueOf(document, "b", "V"), "4");
    EXPECT_EQ(ValueOf(document, "C", "u"), "7");
}

TEST(IniDocument, AKeyMayBeWrittenAgainAndAgain) {
    IniDocument document("[A]\nx = 1 ; ohms\n");
    Write(document, "A", "x", {"2", false, {}});
    Write(document, "A", "X", {"3", false, "; Ohm"});
    Write(document, "A", "y", {"\"a\"", true, {}});
    Write(document, "A", "Y", {"b", true, {}});
    EXPECT_EQ(document.Text(), "[A]\nx = 3 ; Ohm\ny=b\n");
    EXPECT_EQ(ValueOf(document, "A", "x"), "3 ; Ohm");
    Write(document, "A", "x", {"c", true, {}});
    EXPECT_EQ(document.Text(), "[A]\nx = c\ny=b\n");
}

TEST(IniDocument, ALargeSectionIsSearchedAndChangedLikeASmallOne) {
    for (const int count : {10, 10'000}) {
        IniDocument document(ManyKeys(count) + "k1=again\n; the end of A\n[B]\nx=1\n");
        const std::string last = "K" + std::to_string(count - 1);
        EXPECT_EQ(ValueOf(document, "A", last), std::to_string(count - 1));
        EXPECT_EQ(ValueOf(document, "A", "k1"), "1");
        EXPECT_EQ(ValueOf(document, "A", "x"), "no key");
        Write(document, "A", "k1", {"one", true, {}});
        Write(document, "A", "New", {"2", false, {}});
        std::string expected = ManyKeys(count) + "k1=again\nNew=2\n; the end of A\n[B]\nx=1\n";
        expected.replace(expected.find("K1=1\n"), 4, "K1=one");
        EXPECT_EQ(document.Text(), expected);
    }
}

TEST(IniDocument, ALargeSectionWithoutKeysGetsItsFirstKeyBehindItsHeader) {
    const std::string comment = ";" + std::string(10'000, '-') + "\n";
    EXPECT_EQ(With("[A]\n" + comment, "A", "x", "1"), "[A]\nx=1\n" + comment);
}

TEST(IniDocument, ChangesCanBeMadeInATextThatSomebodyElseHasChanged) {
    IniDocument ours("[A]\nx=1 ; ohms\ny=2\nname=old\nz=3\n");
    Write(ours, "A", "x", {"10", false, {}});
    Write(ours, "A", "y", {"20", false, "; ours"});
    Write(ours, "A", "name", {"\"a ; b \"", true, {}});
    Write(ours, "A", "z", {"30", false, {}});
    Write(ours, "B", "new", {"40", false, {}});

    IniDocument theirs("; theirs\r\n[C]\r\nv=1\r\n[a]\r\nname = old\r\ny=2 ; theirs\r\nX =5 ; Ohm\r\n");
    ours.ApplyChangesTo(theirs);
    EXPECT_EQ(theirs.Text(), "; theirs\r\n[C]\r\nv=1\r\n[a]\r\nname = \"a ; b \"\r\ny=20 ; ours\r\n"
                             "X =10 ; Ohm\r\nz=30\r\n\r\n[B]\r\nnew=40\r\n");
}

TEST(IniDocument, NamesInLatin1AreFoundByTheirText) {
    IniDocument document("[K\xF6ln]\nW\xE4rme=1\n" + ManyKeys(1000).substr(4));
    EXPECT_EQ(document.Encoding(), IniEncoding::Latin1);
    EXPECT_EQ(ValueOf(document, "k\xC3\xB6LN", "w\xC3\xA4rme"), "1") << "through the index";
    EXPECT_EQ(ValueOf(IniDocument("[K\xF6ln]\nW\xE4rme=1\n"), "k\xC3\xB6ln", "w\xC3\xA4rme"), "1")
        << "by search";

    const auto section = document.FindSection("K\xC3\xB6ln");
    document.Write(*section, "N\xC3\xB6tig", "N\xF6tig", {"1", false, {}});
    EXPECT_EQ(ValueOf(document, "K\xC3\xB6ln", "n\xC3\xB6tig"), "1") << "among the changes";
    IniDocument other("[K\xC3\xB6ln]\n");
    document.ApplyChangesTo(other);
    EXPECT_EQ(ValueOf(other, "K\xC3\xB6ln", "N\xC3\xB6tig"), "1");
}
