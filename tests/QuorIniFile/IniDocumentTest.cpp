#include "QuorIniFile/detail/IniDocument.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

TEST(IniDocument, ANewKeyFollowsTheIndentedLinesThatContinueTheLastValue) {
    EXPECT_EQ(With("[A]\nx=1\n  more\n\teven more\n\n[B]\n", "A", "y", "2"),
              "[A]\nx=1\n  more\n\teven more\ny=2\n\n[B]\n");
    EXPECT_EQ(With("[A]\r\nx=1\r\n more", "A", "y", "2"), "[A]\r\nx=1\r\n more\r\ny=2");
    EXPECT_EQ(With("[A]\nx=1\n\n; remark\n  more\n", "A", "y", "2"), "[A]\nx=1\n\n; remark\n  more\ny=2\n")
        << "some programs let blank lines and comments stand inside a value";
    EXPECT_EQ(With("[A]\nx=1\n  k=v\n  more\n", "A", "y", "2"), "[A]\nx=1\n  k=v\n  more\ny=2\n");
    EXPECT_EQ(With("[A]\n  more\n[B]\n", "A", "y", "2"), "[A]\n  more\ny=2\n[B]\n")
        << "a key above it would get it for its value";
}

TEST(IniDocument, ANewKeyFollowsTheLineBelowALastValueThatEndsInABackslash) {
    EXPECT_EQ(With("[A]\nx=1 \\\n2 \\\n3\nno key\n", "A", "y", "4"), "[A]\nx=1 \\\n2 \\\n3\ny=4\nno key\n");
    EXPECT_EQ(With("[A]\r\nx=1\\\r\n\r\n[B]\r\n", "A", "y", "2"), "[A]\r\nx=1\\\r\n\r\ny=2\r\n[B]\r\n")
        << "right below the backslash it would become a part of the value";
    EXPECT_EQ(With("[A]\nx=1\\\n; remark\n2\n", "A", "y", "3"), "[A]\nx=1\\\n; remark\n2\ny=3\n");
    EXPECT_EQ(With("[A]\nx=1\\\n  [B]\n", "A", "y", "2"), "[A]\nx=1\\\ny=2\n  [B]\n")
        << "a header is a header wherever it stands";
}

TEST(IniDocument, ANewKeyDoesNotFollowLinesThatContinueNothing) {
    EXPECT_EQ(With("[A]\nx=1\nno key\n  more\n", "A", "y", "2"), "[A]\nx=1\ny=2\nno key\n  more\n");
    EXPECT_EQ(With("[A]\nx=1\n  ; about B\n  [B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\n  ; about B\n  [B]\n");
    EXPECT_EQ(With("[A]\nx=1\n; C:\\Data\\\n\n[B]\n", "A", "y", "2"), "[A]\nx=1\ny=2\n; C:\\Data\\\n\n[B]\n");
}

TEST(IniDocument, ABlankLineThatContinuesAValueStaysAboveANewKeyWhenTheSectionBelowGoes) {
    IniDocument document("[A]\nx=C:\\\n\n[B]\ny=1\n");
    Write(document, "A", "z", {"2", false, {}});
    document.RemoveSection(document.FindSection("B").value());
    EXPECT_EQ(document.Text(), "[A]\nx=C:\\\n\nz=2\n");
}

TEST(IniDocument, AValueIsRewrittenOnItsKeyLineAndItsContinuationLinesStay) {
    EXPECT_EQ(With("[A]\nx=1 \\\n2\n  k=v\n", "A", "x", "3"), "[A]\nx=3\n2\n  k=v\n");
    EXPECT_EQ(With("[A]\nx=1\n  k=v\n", "A", "k", "2"), "[A]\nx=1\n  k=2\n")
        << "an indented line with an equals sign is a key of its own";
}

TEST(IniDocument, ANewKeyTakesTheLineEndOfTheLineItFollows) {
    EXPECT_EQ(With("[A]\r\nx=1\r\n[B]\n", "A", "y", "2"), "[A]\r\nx=1\r\ny=2\r\n[B]\n");
    EXPECT_EQ(With("[A]\r\nx=1\n[B]\r\n", "A", "y", "2"), "[A]\r\nx=1\ny=2\n[B]\r\n");
    EXPECT_EQ(With("[A]\r\nx=1", "A", "y", "2"), "[A]\r\nx=1\r\ny=2")
        << "a file whose last line has no end stays one";
    EXPECT_EQ(With("[A]", "A", "y", "2"), "[A]\ny=2");
}

TEST(IniDocument, ANewSectionFollowsABlankLineOfItsOwnAtTheEnd) {
    EXPECT_EQ(With("", "A", "x", "1"), "[A]\nx=1\n");
    EXPECT_EQ(With("\xEF\xBB\xBF", "A", "x", "1"), "\xEF\xBB\xBF[A]\nx=1\n");
    EXPECT_EQ(With("[A]\nx=1\n", "B", "y", "2"), "[A]\nx=1\n\n[B]\ny=2\n");
    EXPECT_EQ(With("[A]\r\nx=1\r\n", "B", "y", "2"), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(With("[A]\r\nx=1\r\n\r\n", "B", "y", "2"), "[A]\r\nx=1\r\n\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(With("[A]\nx=1\n \t\n", "B", "y", "2"), "[A]\nx=1\n \t\n\n[B]\ny=2\n");
    EXPECT_EQ(With("\n", "B", "y", "2"), "\n\n[B]\ny=2\n");
}

TEST(IniDocument, ANewSectionAfterALastLineWithoutAnEndLeavesTheFileWithoutOne) {
    EXPECT_EQ(With("[A]\nx=1", "B", "y", "2"), "[A]\nx=1\n\n[B]\ny=2");
    EXPECT_EQ(With("[A]\r\nx=1", "B", "y", "2"), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2");
    EXPECT_EQ(With("[A]\nx=1\n  ", "B", "y", "2"), "[A]\nx=1\n  \n\n[B]\ny=2");
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
    EXPECT_FALSE(ours.ApplyChangesTo(theirs));
    EXPECT_EQ(theirs.Text(), "; theirs\r\n[C]\r\nv=1\r\n[a]\r\nname = \"a ; b \"\r\ny=20 ; ours\r\n"
                             "X =10 ; Ohm\r\nz=30\r\n\r\n[B]\r\nnew=40\r\n");
}

TEST(IniDocument, ACommentBehindATextIsThatOfTheTextThatSomebodyElseHasChanged) {
    IniDocument ours("[A]\nVersion=1.0 ; ours\nname=\"a\" ; ours\n");
    Write(ours, "A", "Version", {"1.0", true, {}});
    Write(ours, "A", "name", {"b", true, {}});
    EXPECT_EQ(ours.Text(), "[A]\nVersion=\"1.0\" ; ours\nname=\"b\" ; ours\n");
    const std::pair<const char*, const char*> cases[] = {
        {"[A]\nVersion=1.0 ; theirs\nname=\"a\" ; theirs\n",
         "[A]\nVersion=\"1.0\" ; theirs\nname=\"b\" ; theirs\n"},
        {"[A]\nVersion=1.0\nname=a\n", "[A]\nVersion=1.0\nname=b\n"},
        {"", "[A]\nVersion=1.0\nname=b\n"},
    };
    for (const auto& [before, after] : cases) {
        IniDocument theirs(before);
        EXPECT_FALSE(ours.ApplyChangesTo(theirs));
        EXPECT_EQ(theirs.Text(), after);
    }
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
    EXPECT_FALSE(document.ApplyChangesTo(other));
    EXPECT_EQ(ValueOf(other, "K\xC3\xB6ln", "N\xC3\xB6tig"), "1");
}

namespace {

/// `text` without a section.
std::string Without(const std::string& text, std::string_view section) {
    IniDocument document(text);
    document.RemoveSection(document.FindSection(section).value());
    return document.Text();
}

/// `text` with another name for a section.
std::string Renamed(const std::string& text, std::string_view from, std::string_view to) {
    IniDocument document(text);
    EXPECT_TRUE(document.RenameSection(document.FindSection(from).value(), to));
    return document.Text();
}

} // namespace

TEST(IniDocument, ARemovedSectionGoesWithItsHeaderItsKeysAndTheBlankLinesBehindIt) {
    EXPECT_EQ(Without("[A]\nx=1\n\n[B]\ny=2\nno key\n\n[C]\nz=3\n", "B"), "[A]\nx=1\n\n[C]\nz=3\n");
    EXPECT_EQ(Without("[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n", "A"), "[B]\r\ny=2\r\n");
    EXPECT_EQ(Without("[A]\nx=1\n  [B]\ny=2\n[C]\n", "b"), "[A]\nx=1\n[C]\n");
    EXPECT_EQ(Without("\xEF\xBB\xBF[A]\nx=1\n", "A"), "\xEF\xBB\xBF");
}

TEST(IniDocument, ARemovedSectionTakesTheLinesAlongThatContinueItsLastValue) {
    EXPECT_EQ(Without("[A]\nx=1\n  more\n\n  still more\n\n[B]\n", "A"), "[B]\n");
    EXPECT_EQ(Without("[A]\nx=1 \\\n\n2 \\\n; 3\n\n; apart\n\n[B]\n", "A"), "; apart\n\n[B]\n");
    EXPECT_EQ(Without("[A]\nx=C:\\\n; about B\n[B]\n", "A"), "; about B\n[B]\n");

    IniDocument back("[A]\nx=1 \\\n2\n  more\n\n[B]\n");
    back.RemoveSection(back.FindSection("A").value());
    Write(back, "A", "y", {"3", false, {}});
    EXPECT_EQ(back.Text(), "[A]\ny=3\n\n[B]\n");
}

TEST(IniDocument, RemovingTheSectionThatWasAddedLastGivesTheTextBack) {
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

        IniDocument both(With(added, "C", "z", "3"));
        both.RemoveSection(both.FindSection("B").value());
        both.RemoveSection(both.FindSection("C").value());
        EXPECT_EQ(both.Text(), text) << "in one save";
        IniDocument unsaved(text);
        Write(unsaved, "B", "y", {"2", false, {}});
        unsaved.RemoveSection(unsaved.FindSection("B").value());
        EXPECT_FALSE(unsaved.Changed());
        EXPECT_EQ(unsaved.Text(), text);
    }
}

TEST(IniDocument, RemovingTheLastSectionLeavesAllBlankLinesAboveButOne) {
    EXPECT_EQ(Without("[A]\nx=1\n\n \t\n[B]\ny=2\n\n", "B"), "[A]\nx=1\n\n");
    EXPECT_EQ(Without("[A]\nx=1\n[B]\ny=2\n", "B"), "[A]\nx=1\n");
    EXPECT_EQ(Without("\n[B]\ny=2\n", "B"), "");
}

TEST(IniDocument, CommentsThatTouchARemovedSectionGoWithItAndOthersStay) {
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

TEST(IniDocument, LaterSectionsOfARemovedNameDoNotComeToLight) {
    EXPECT_EQ(Without("[A]\nx=1\n\n[B]\n\n[a]\nx=2\n\n[C]\n", "A"), "[B]\n\n[C]\n");
}

TEST(IniDocument, ARenamedSectionHasAnotherHeaderAndNothingElse) {
    EXPECT_EQ(Renamed("; a\n  [A] ; remark\r\nx = 1\r\n[B]\n", "a", "New [name]"),
              "; a\n  [New [name]] ; remark\r\nx = 1\r\n[B]\n");
    EXPECT_EQ(Renamed("[A]\nx=1\n[B]\n[a]\nx=2\n", "A", "C"), "[C]\nx=1\n[B]\n[C]\nx=2\n");
    EXPECT_EQ(Renamed("[A]\n", "A", "a"), "[a]\n");
}

TEST(IniDocument, AHeaderThatWouldNotGiveTheNameBackKeepsItsOwn) {
    IniDocument document("[A] tail]\nx=1\n[B] tail\n");
    EXPECT_EQ(document.SectionNames(), (std::vector<std::string_view>{"A] tail", "B"}));
    EXPECT_TRUE(document.RenameSection(document.FindSection("A] tail").value(), "C"));
    EXPECT_FALSE(document.RenameSection(document.FindSection("B").value(), "D];"));
    EXPECT_EQ(document.Text(), "[C]\nx=1\n[B] tail\n");
}

TEST(IniDocument, ARenamedSectionIsFoundUnderItsNewNameAlone) {
    IniDocument document("[A]\nx=1\n[B]\ny=2\n");
    ASSERT_TRUE(document.RenameSection(document.FindSection("A").value(), "C"));
    EXPECT_EQ(ValueOf(document, "A", "x"), "no section");
    EXPECT_EQ(ValueOf(document, "c", "x"), "1");
    ASSERT_TRUE(document.RenameSection(document.FindSection("B").value(), "A"));
    ASSERT_TRUE(document.RenameSection(document.FindSection("C").value(), "B"));
    Write(document, "B", "x", {"3", false, {}});
    EXPECT_EQ(document.Text(), "[B]\nx=3\n[A]\ny=2\n") << "two sections may change their names";
}

TEST(IniDocument, RenamingThereAndBackIsNoChange) {
    IniDocument document("[A]\nx=1\n");
    ASSERT_TRUE(document.RenameSection(document.FindSection("A").value(), "B"));
    EXPECT_TRUE(document.Changed());
    ASSERT_TRUE(document.RenameSection(document.FindSection("B").value(), "A"));
    EXPECT_FALSE(document.Changed());
    EXPECT_EQ(ValueOf(document, "A", "x"), "1");
}

TEST(IniDocument, ARemovedSectionTakesWhatWasWrittenIntoItAlong) {
    IniDocument document("[A]\nx=1\n");
    Write(document, "A", "x", {"2", false, {}});
    Write(document, "B", "y", {"3", false, {}});
    document.RemoveSection(document.FindSection("B").value());
    EXPECT_EQ(document.Text(), "[A]\nx=2\n");
    EXPECT_EQ(ValueOf(document, "B", "y"), "no section");
    document.RemoveSection(document.FindSection("A").value());
    EXPECT_EQ(ValueOf(document, "A", "x"), "no section");
    EXPECT_EQ(document.Text(), "");
    EXPECT_TRUE(document.Changed());
}

TEST(IniDocument, ARemovedSectionThatIsWrittenAgainStandsInItsOldPlaceWithTheNewKeysAlone) {
    IniDocument document("; about A\n\n; on A\n[A] ; here\n; keys\nx=1\nold=1\n; tail\n\n; B\n[B]\ny=2\n");
    document.RemoveSection(document.FindSection("A").value());
    Write(document, "A", "new", {"3", false, {}});
    Write(document, "A", "x", {"4", false, {}});
    EXPECT_EQ(ValueOf(document, "A", "old"), "no key");
    EXPECT_EQ(document.Text(), "; about A\n\n; on A\n[A] ; here\nnew=3\nx=4\n\n; B\n[B]\ny=2\n");
    document.RemoveSection(document.FindSection("A").value());
    EXPECT_EQ(document.Text(), "; about A\n\n; B\n[B]\ny=2\n");
}

TEST(IniDocument, SectionsOfAllKindsOfChangeStandInTheOrderOfTheText) {
    IniDocument document("x=0\n[A]\n[B\n[C]\nz=3\n[c]\n[D]\n\n[E]");
    Write(document, "F", "x", {"1", false, {}});
    Write(document, "G", "x", {"1", false, {}});
    Write(document, "D", "x", {"1", false, {}});
    document.RemoveSection(document.FindSection("A").value());
    document.RemoveSection(document.FindSection("E").value());
    document.RemoveSection(document.FindSection("F").value());
    ASSERT_TRUE(document.RenameSection(document.FindSection("G").value(), "A"));
    EXPECT_EQ(document.SectionNames(), (std::vector<std::string_view>{"C", "D", "A"}));
    EXPECT_EQ(document.Text(), "x=0\n[B\n[C]\nz=3\n[c]\n[D]\nx=1\n\n[A]\nx=1");
}

TEST(IniDocument, RemovalsAndNewNamesAreAppliedToATextThatHasChangedSince) {
    IniDocument ours("[A]\nx=1\n\n[B]\ny=2\n\n[C]\nz=3\n");
    ours.RemoveSection(ours.FindSection("A").value());
    ASSERT_TRUE(ours.RenameSection(ours.FindSection("B").value(), "A"));
    ours.RemoveSection(ours.FindSection("C").value());
    Write(ours, "C", "w", {"4", false, {}});
    Write(ours, "A", "y", {"5", false, {}});

    IniDocument theirs("; theirs\n\n[C]\nz=3\nmore=1\n\n[A]\nx=7\n\n[B]\ny=2\nmine=1\n");
    EXPECT_FALSE(ours.ApplyChangesTo(theirs));
    EXPECT_EQ(theirs.Text(), "; theirs\n\n[C]\nw=4\n\n[A]\ny=5\nmine=1\n");
}

TEST(IniDocument, WhatIsGoneAlreadyNeedsNoRemovalAndNoNewName) {
    IniDocument ours("[A]\nx=1\n\n[B]\ny=2\n");
    ours.RemoveSection(ours.FindSection("A").value());
    ASSERT_TRUE(ours.RenameSection(ours.FindSection("B").value(), "C"));
    Write(ours, "C", "y", {"3", false, {}});
    IniDocument theirs("[D]\n");
    EXPECT_FALSE(ours.ApplyChangesTo(theirs));
    EXPECT_EQ(theirs.Text(), "[D]\n\n[C]\ny=3\n");
}

TEST(IniDocument, TheSectionThatSomebodyElseHasPutInThePlaceOfAGoneOneIsLeftAlone) {
    IniDocument removed("[A]\nx=1\n");
    ASSERT_TRUE(removed.RenameSection(removed.FindSection("A").value(), "B"));
    removed.RemoveSection(removed.FindSection("B").value());
    IniDocument renamed("[A]\nx=1\n");
    ASSERT_TRUE(renamed.RenameSection(renamed.FindSection("A").value(), "b"));
    ASSERT_TRUE(renamed.RenameSection(renamed.FindSection("B").value(), "C"));
    const std::string text = "[B]\ntheirs=1\n";
    for (const IniDocument* ours : {&removed, &renamed}) {
        IniDocument theirs(text);
        EXPECT_FALSE(ours->ApplyChangesTo(theirs));
        EXPECT_EQ(theirs.Text(), text);
    }
}

TEST(IniDocument, ANameThatSomebodyElseHasGivenMeanwhileIsToldAndNotTaken) {
    IniDocument ours("[A]\nx=1\n");
    ASSERT_TRUE(ours.RenameSection(ours.FindSection("A").value(), "B"));
    IniDocument theirs("[A]\nx=1\n[b]\ny=2\n");
    const auto conflict = ours.ApplyChangesTo(theirs);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->kind, IniConflict::Kind::NameIsTaken);
    EXPECT_EQ(conflict->section, "B");
    EXPECT_EQ(theirs.Text(), "[A]\nx=1\n[b]\ny=2\n");
}

TEST(IniDocument, ASectionThatSomebodyElseHasRemovedIsAddedAgainWithAllItsKeysOrNotAtAll) {
    IniDocument ours("[A]\nx=1\ny=2\n");
    Write(ours, "A", "x", {"3", false, {}});
    IniDocument part("[B]\n");
    const auto conflict = ours.ApplyChangesTo(part);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->kind, IniConflict::Kind::SectionIsGone);
    EXPECT_EQ(conflict->section, "A");

    Write(ours, "A", "Y", {"2", false, {}});
    IniDocument whole("[B]\n");
    EXPECT_FALSE(ours.ApplyChangesTo(whole));
    EXPECT_EQ(whole.Text(), "[B]\n\n[A]\nx=3\ny=2\n");
}

TEST(IniDocument, ALongSectionThatSomebodyElseHasRemovedIsAddedAgainWithAllItsKeysOrNotAtAll) {
    IniDocument ours(ManyKeys(1000) + "k7=again\n");
    for (int i = 0; i < 999; ++i)
        Write(ours, "A", "k" + std::to_string(i), {"1", false, {}});
    IniDocument part("[B]\n");
    const auto conflict = ours.ApplyChangesTo(part);
    ASSERT_TRUE(conflict);
    EXPECT_EQ(conflict->kind, IniConflict::Kind::SectionIsGone);
    Write(ours, "A", "k999", {"1", false, {}});
    IniDocument whole("[B]\n");
    EXPECT_FALSE(ours.ApplyChangesTo(whole));
    EXPECT_EQ(ValueOf(whole, "A", "K999"), "1");
}

TEST(IniDocument, RenamingThereAndBackLeavesNoChangeWhereAllHeadersAreSpelledAlike) {
    IniDocument alike("[A]\n[B]\n[A]\n[A]\n[A]\n");
    ASSERT_TRUE(alike.RenameSection(alike.FindSection("A").value(), "C"));
    ASSERT_TRUE(alike.RenameSection(alike.FindSection("C").value(), "A"));
    EXPECT_FALSE(alike.Changed());

    IniDocument various("[A]\n[B]\n[a]\n");
    ASSERT_TRUE(various.RenameSection(various.FindSection("A").value(), "C"));
    ASSERT_TRUE(various.RenameSection(various.FindSection("C").value(), "A"));
    EXPECT_TRUE(various.Changed());
    EXPECT_EQ(various.Text(), "[A]\n[B]\n[A]\n");
}

TEST(IniDocument, ASectionThatWasRemovedUnderANewNameComesBackWhenTheNameIsFreeAgain) {
    IniDocument document("[A]\nx=1\n[B]\ny=2\n[C]\nz=3\n");
    ASSERT_TRUE(document.RenameSection(document.FindSection("A").value(), "N"));
    document.RemoveSection(document.FindSection("N").value());
    ASSERT_TRUE(document.RenameSection(document.FindSection("B").value(), "N"));
    EXPECT_EQ(ValueOf(document, "N", "y"), "2");
    ASSERT_TRUE(document.RenameSection(document.FindSection("N").value(), "M"));
    EXPECT_EQ(ValueOf(document, "N", "y"), "no section");
    Write(document, "N", "w", {"4", false, {}});
    EXPECT_EQ(document.Text(), "[N]\nw=4\n[M]\ny=2\n[C]\nz=3\n");
}
