#include "QuorIniFile/detail/IniFormat.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace QuorIniFile;
using namespace std::string_literals;

TEST(IniFormat, EveryKindOfLineIsToldApart) {
    const struct {
        const char* line;
        IniLineKind kind;
        const char* name;
        const char* value;
    } cases[] = {
        {"", IniLineKind::Blank, "", ""},
        {" \t ", IniLineKind::Blank, "", ""},
        {"; R0=1", IniLineKind::Comment, "", ""},
        {"  # R0=1", IniLineKind::Comment, "", ""},
        {"[Probe 1]", IniLineKind::Section, "Probe 1", ""},
        {"  [ Probe 1 ]  ", IniLineKind::Section, " Probe 1 ", ""},
        {"[]", IniLineKind::Section, "", ""},
        {"[Probe 1] ; in the bath", IniLineKind::Section, "Probe 1", ""},
        {"[Probe 1]# see [Probe 2]", IniLineKind::Section, "Probe 1", ""},
        {"[Range [0..100]]", IniLineKind::Section, "Range [0..100]", ""},
        {"[Probe 1] spare", IniLineKind::Section, "Probe 1", ""},
        {"[Probe] 1] spare", IniLineKind::Section, "Probe] 1", ""},
        {"[Probe 1", IniLineKind::BrokenSection, "", ""},
        {"[R0=1", IniLineKind::BrokenSection, "", ""},
        {"R0=100.02", IniLineKind::Key, "R0", "100.02"},
        {" \tR0\t = 100.02 ; ohms ", IniLineKind::Key, "R0", "100.02 ; ohms"},
        {"R0=", IniLineKind::Key, "R0", ""},
        {"=1", IniLineKind::Key, "", "1"},
        {"Path=a=b", IniLineKind::Key, "Path", "a=b"},
        {"R0 100.02", IniLineKind::Malformed, "", ""},
        {"\rR0\r=1\r", IniLineKind::Key, "\rR0\r", "1\r"},
    };
    for (const auto& expected : cases) {
        const IniLine line = ClassifyLine(expected.line);
        EXPECT_EQ(line.kind, expected.kind) << expected.line;
        EXPECT_EQ(line.name, expected.name) << expected.line;
        EXPECT_EQ(line.value, expected.value) << expected.line;
    }
}

TEST(IniFormat, ACommentBehindANumberIsPartedFromIt) {
    const struct {
        const char* value;
        const char* plain;
        const char* comment;
    } cases[] = {
        {"100.02", "100.02", ""},
        {"100.02 ; ohms ; at 0 C", "100.02", "; ohms ; at 0 C"},
        {"100.02\t;ohms", "100.02", ";ohms"},
        {"100.02;ohms", "100.02;ohms", ""},
        {"100.02;ohms ; at 0 C", "100.02;ohms", "; at 0 C"},
        {"100.02 # ohms", "100.02 # ohms", ""},
        {"; ohms", "", "; ohms"},
        {"\"a ; b\"", "\"a ; b\"", ""},
        {"\"5\" ; ohms", "\"5\"", "; ohms"},
        {"", "", ""},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(SplitComment(expected.value).plain, expected.plain) << expected.value;
        EXPECT_EQ(SplitComment(expected.value).comment, expected.comment) << expected.value;
    }
}

TEST(IniFormat, OnlyTheValueOfALineIsRewritten) {
    const auto number = [](std::string comment) { return IniNewValue{"5", false, std::move(comment)}; };
    EXPECT_EQ(RewriteLine("R0=1", number("")), "R0=5");
    EXPECT_EQ(RewriteLine(" r0\t=  1 \t ; ohms  ", number("")), " r0\t=  5 \t ; ohms  ");
    EXPECT_EQ(RewriteLine("R0=1  ", number("")), "R0=5  ");
    EXPECT_EQ(RewriteLine("R0 = ", number("")), "R0 = 5");
    EXPECT_EQ(RewriteLine("R0 = ; ohms", number("")), "R0 = 5 ; ohms");
    EXPECT_EQ(RewriteLine("R0=1   ; ohms", number("; Ohm")), "R0=5 ; Ohm");
    EXPECT_EQ(RewriteLine("R0=\"a ; b\"", number("")), "R0=5");

    EXPECT_EQ(RewriteLine("Name = a \t", {"c", true, {}}), "Name = c \t");
}

TEST(IniFormat, ACommentBehindATextInQuotesIsPartedFromItAndNothingElseOfAText) {
    const struct {
        const char* value;
        const char* plain;
        const char* comment;
    } cases[] = {
        {R"("a" ; c)", R"("a")", "; c"},
        {"\"a\"\t;c ; d", R"("a")", ";c ; d"},
        {R"("" ;)", R"("")", ";"},
        {R"("a;b ; c" ; d)", R"("a;b ; c")", "; d"},
        {R"("2\" \\" ; c)", R"("2\" \\")", "; c"},
        {R"("C:\Data" ; c)", R"("C:\Data")", "; c"},
        {R"("a")", R"("a")", ""},
        {R"("a";c)", R"("a";c)", ""},
        {R"("a" # c)", R"("a" # c)", ""},
        {R"("a" b ; c)", R"("a" b ; c)", ""},
        {R"("a" ; "b")", R"("a" ; "b")", ""},
        {R"("a" ; the "b" one)", R"("a" ; the "b" one)", ""},
        {R"("C:\" ; c)", R"("C:\" ; c)", ""},
        {R"("a ; c)", R"("a ; c)", ""},
        {R"(" ; c)", R"(" ; c)", ""},
        {"a ; c", "a ; c", ""},
        {"1.0 ; c", "1.0 ; c", ""},
        {"", "", ""},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(SplitTextComment(expected.value).plain, expected.plain) << expected.value;
        EXPECT_EQ(SplitTextComment(expected.value).comment, expected.comment) << expected.value;
    }
}

TEST(IniFormat, ATextKeepsTheCommentBehindATextInQuotes) {
    EXPECT_EQ(RewriteLine(R"( Name = "Rig 4"  ; the old one )", {"Rig 5", true, {}}),
              R"( Name = "Rig 5"  ; the old one )");
    EXPECT_EQ(RewriteLine(R"(Path="C:\Data" ; runs)", {R"(D:\new)", true, {}}), R"(Path="D:\\new" ; runs)");
    EXPECT_EQ(RewriteLine(R"(Name="a" ; c)", {R"(" b")", true, {}}), R"(Name=" b" ; c)");
    EXPECT_EQ(RewriteLine(R"(Name="a" ; c)", {"", true, {}}), R"(Name="" ; c)");
    EXPECT_EQ(RewriteLine(R"(Name="5" ; c)", {"6", false, {}}), "Name=6 ; c") << "and so does a number";
}

TEST(IniFormat, ATextBeforeACommentGetsQuotesAndKeepsTheComment) {
    EXPECT_EQ(RewriteLine("Version=1.0 ; from the certificate", {"1.0", true, {}}),
              R"(Version="1.0" ; from the certificate)");
    EXPECT_EQ(RewriteLine("Path = a\\b\t;c", {"a\\b", true, {}}), "Path = \"a\\\\b\"\t;c");
    EXPECT_EQ(RewriteLine("Name=; c", {"", true, {}}), R"(Name="" ; c)");

    EXPECT_EQ(RewriteLine("Version=0.9 ; from the certificate", {"1.0", true, {}}),
              R"(Version="1.0" ; from the certificate)");
    EXPECT_EQ(RewriteLine("Name = a ; b \t", {"c", true, {}}), "Name = \"c\" ; b \t");
    EXPECT_EQ(RewriteLine("Columns=Channel;Probe", {"Channel", true, {}}), "Columns=Channel")
        << "a comment begins behind a blank";
    EXPECT_EQ(RewriteLine("Columns=Channel;Probe", {"Channel;Probe", true, {}}), "Columns=Channel;Probe");
    EXPECT_EQ(RewriteLine("Columns=a ; b", {"a ; b", true, {}}), "Columns=a ; b");
    EXPECT_EQ(RewriteLine("Columns=a ; b", {"a", true, {}}), R"(Columns="a" ; b)");
    EXPECT_EQ(RewriteLine(R"(Version=0.9 ; a "draft")", {"1.0", true, {}}), R"(Version="1.0" ; a 'draft')")
        << "another quote would make all of the line the text";
    EXPECT_EQ(RewriteLine("Version=1.0 # remark", {"1.0", true, {}}), "Version=1.0");
}

TEST(IniFormat, LinesEndInLfOrCrlfAndALoneCrIsACharacter) {
    const std::string text = "a\nb\r\n\rc\r\n\nd\r";
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const IniCut cut = CutLine(text, at);
        lines.emplace_back(cut.line);
        at = cut.next;
    }
    EXPECT_EQ(lines, (std::vector<std::string>{"a", "b", "\rc", "", "d\r"}));
}

TEST(IniFormat, AWalkGivesEveryLineItsNumber) {
    IniWalker walker("\xEF\xBB\xBF[Probe 1]\r\nR0=1\r\n\r\nR1 2");
    std::vector<std::pair<std::size_t, IniLineKind>> lines;
    while (walker.Next())
        lines.emplace_back(walker.Number(), walker.Line().kind);
    EXPECT_EQ(lines, (std::vector<std::pair<std::size_t, IniLineKind>>{{1, IniLineKind::Section},
                                                                       {2, IniLineKind::Key},
                                                                       {3, IniLineKind::Blank},
                                                                       {4, IniLineKind::Malformed}}));
    IniWalker nothing("\xEF\xBB\xBF");
    EXPECT_FALSE(nothing.Next());
    EXPECT_FALSE(nothing.Next());
}

TEST(IniFormat, Utf16IsRecognisedWithAndWithoutItsMark) {
    EXPECT_TRUE(IsUtf16("\xFF\xFE[\0"s));
    EXPECT_TRUE(IsUtf16("\xFE\xFF\0["s));
    EXPECT_TRUE(IsUtf16("[\0A\0"s));
    EXPECT_TRUE(IsUtf16("\0[\0A"s));
    for (const std::string& text : {""s, "["s, "\0"s, "\0\0"s, "[A\0]"s, "\xEF\xBB\xBF[A]"s})
        EXPECT_FALSE(IsUtf16(text)) << testing::PrintToString(text);
}

TEST(IniFormat, AFileIsUtf8OnlyWhenAllOfItIs) {
    EXPECT_EQ(EncodingOf(""), IniEncoding::Utf8);
    EXPECT_EQ(EncodingOf("[A]\nName=K\xC3\xB6ln\n"), IniEncoding::Utf8);
    EXPECT_EQ(EncodingOf("\xEF\xBB\xBF[A]\n"), IniEncoding::Utf8);
    EXPECT_EQ(EncodingOf("[A]\nName=K\xC3\xB6ln\nUnit=\xB0"
                         "C\n"),
              IniEncoding::Latin1);
}

TEST(IniFormat, NamesAreTheSameWhateverTheCaseOfTheirAsciiLetters) {
    EXPECT_TRUE(SameName("numCOEFFICIENTS", *NameToFind(L"NumCoefficients")));
    EXPECT_FALSE(SameName("NumCoefficient", *NameToFind(L"NumCoefficients")));
    EXPECT_FALSE(SameName("{R0", *NameToFind(L"[R0")));
    EXPECT_FALSE(SameName("\xC3\x84", *NameToFind(L"\u00E4"))) << "only ASCII letters have no case";

    EXPECT_TRUE(SameName("numCOEFFICIENTS", L"NumCoefficients"));
    EXPECT_FALSE(SameName("NumCoefficient", L"NumCoefficients"));
    EXPECT_FALSE(SameName("{R0", L"[R0"));
    EXPECT_FALSE(SameName("\xC3\x84", L"\u00E4"));
    EXPECT_FALSE(SameName("", L"\u00E4"));
}

TEST(IniFormat, ANameOfAnyLengthIsNoOtherOneThatDiffersInOneCharacter) {
    const std::wstring name = L"Coefficients0 of range";
    for (std::size_t length = 1; length <= name.size(); ++length) {
        const std::wstring wanted = name.substr(0, length);
        const std::string bytes(wanted.begin(), wanted.end());
        EXPECT_TRUE(SameName(bytes, wanted)) << bytes;
        for (std::size_t at = 0; at < length; ++at) {
            for (const unsigned other : {0x100U, 0x1U, 0x8000U}) { // the first has the byte of ours in it
                std::wstring another = wanted;
                another[at] = static_cast<wchar_t>(static_cast<unsigned>(another[at]) ^ other);
                EXPECT_FALSE(SameName(bytes, another)) << bytes << " at " << at << " with " << other;
            }
        }
    }
}

TEST(IniFormat, ANameIsFoundInUtf8AndInLatin1) {
    const std::string wanted = *NameToFind(L"K\u00F6ln");
    EXPECT_TRUE(SameName("K\xC3\xB6ln", wanted));
    EXPECT_TRUE(SameName("k\xF6LN", wanted));
    EXPECT_FALSE(SameName("Koln", wanted));
    for (const std::string name : {"K\xC3\xB6ln", "k\xF6LN"})
        EXPECT_TRUE(SameName(name, L"K\u00F6ln"));
    EXPECT_FALSE(SameName("Koln", L"K\u00F6ln"));
    EXPECT_FALSE(SameName("\xC3\xB6", L"\u00C3\u00B6")) << "what is valid UTF-8 is no Latin-1";
    EXPECT_TRUE(SameName("\xF0\x9D\x84\x9E", L"\U0001D11E")) << "one character of one unit or two";
    std::string buffer;
    EXPECT_EQ(CanonicalName("K\xF6ln", buffer), "K\xC3\xB6ln");
    EXPECT_EQ(CanonicalName("K\xC3\xB6ln", buffer), "K\xC3\xB6ln");
}

TEST(IniFormat, ANameIsSpelledInTheEncodingOfTheFile) {
    EXPECT_EQ(NameToWrite(L"K\u00F6ln", IniEncoding::Utf8), "K\xC3\xB6ln");
    EXPECT_EQ(NameToWrite(L"K\u00F6ln", IniEncoding::Latin1), "K\xF6ln");
    EXPECT_EQ(NameToWrite(L"10 k\u2126", IniEncoding::Latin1), std::nullopt) << "Latin-1 has no ohm";
    EXPECT_EQ(NameToWrite(L"\u00C3\u00B6", IniEncoding::Latin1), std::nullopt)
        << "as Latin-1 these two would read back as one letter";
    EXPECT_EQ(NameToWrite(L"\u01C3\u01BC", IniEncoding::Latin1), std::nullopt) << "nor do halves of them";
}

TEST(IniFormat, ANameThatIsNoTextIsInNoFile) {
    const std::wstring surrogate(1, static_cast<wchar_t>(0xD800));
    EXPECT_EQ(NameToFind(surrogate), std::nullopt);
    EXPECT_EQ(NameToWrite(surrogate, IniEncoding::Latin1), std::nullopt);
}

TEST(IniFormat, ANameThatWouldNotReadBackIsRefused) {
    for (const std::string& name :
         {""s, "Probe 1"s, " Probe 1 "s, "a]b"s, "a]"s, "a]  "s, "[a"s, "; a"s, "a=b"s})
        EXPECT_TRUE(IsSectionName(name)) << name;
    for (const std::string& name : {"a\nb"s, "a\rb"s, "a\0b"s, "a] ; b"s, "a]#b"s})
        EXPECT_FALSE(IsSectionName(name)) << name;

    for (const std::string& name : {""s, "R0"s, "R 0"s, "a]"s, "a;b"s, "a[0]"s})
        EXPECT_TRUE(IsKeyName(name)) << name;
    for (const std::string& name : {"a=b"s, " a"s, "a\t"s, ";a"s, "#a"s, "[a]"s, "a\nb"s, "a\rb"s, "a\0b"s})
        EXPECT_FALSE(IsKeyName(name)) << name;
}
