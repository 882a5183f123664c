// What a save does to the text of a file: the lines that were written change, and no other byte.

#include "QuorIniFile/IniStore.h"

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using namespace QuorIniFile;
using namespace std::string_literals;

namespace {

/// The text of a file after `write` was done in its section "A".
template <class Write>
std::string After(std::string_view text, const Write& write) {
    const TempFolder folder;
    folder.Write("a.ini", text);
    IniStore store;
    store.SetFileName(folder.Name("a.ini"));
    store.SetSection(L"A");
    write(store);
    return folder.Read("a.ini");
}

} // namespace

TEST(IniStoreLayout, OnlyTheValueOfAWrittenLineChanges) {
    const std::string before = "\xEF\xBB\xBF; a host's own file\r\n"
                               "stray=1\r\n"
                               "[Display]\n"
                               "Colour=blue\n"
                               "\r\n"
                               "\t[a]   ; the probe\r\n"
                               "  r0\t =  100.02   ; ohms\r\n"
                               "nonsense\r\n"
                               "lone=one\rtwo=2\r\r\n"
                               "Name = \"old\"\t\r\n"
                               "R0=again\r\n"
                               "\r\n"
                               "[Foreign]\r"
                               "\n\tx=\xFF\x00\x01\n"
                               "[broken\n"
                               "last=1"s;
    std::string after = before;
    after.replace(after.find("100.02"), 6, "99.5");
    after.replace(after.find("\"old\""), 5, "new");
    EXPECT_EQ(After(before,
                    [](IniStore& store) {
                        store.WriteDouble(L"R0", 99.5, L"");
                        store.WriteString(L"NAME", L"new");
                    }),
              after);
}

TEST(IniStoreLayout, AValueThatStandsThereAlreadyChangesNothing) {
    const std::string text =
        "[A]\nd=+1.50E2 ; ohms\nz=-0\nn=NAN\ni=007 ; seven\nb=-1\nt= \"plain\" \nw=a\\b\n";
    EXPECT_EQ(After(text,
                    [](IniStore& store) {
                        store.WriteDouble(L"d", 150, L"");
                        store.WriteDouble(L"z", -0.0, L"");
                        store.WriteDouble(L"n", std::numeric_limits<double>::quiet_NaN(), L"");
                        store.WriteInteger(L"i", 7, L"");
                        store.WriteBoolean(L"b", true);
                        store.WriteString(L"t", L"plain");
                        store.WriteString(L"w", L"a\\b");
                    }),
              text);
}

TEST(IniStoreLayout, ADoubleThatDiffersInOneBitIsAnother) {
    EXPECT_EQ(After("[A]\nd=0.1\nz=0.0\n",
                    [](IniStore& store) {
                        store.WriteDouble(L"d", std::nextafter(0.1, 1), L"");
                        store.WriteDouble(L"z", -0.0, L"");
                    }),
              "[A]\nd=0.10000000000000002\nz=-0\n");
}

TEST(IniStoreLayout, ACommentOfTheCallerTakesThePlaceOfTheOldOne) {
    EXPECT_EQ(After("[A]\nd=1.50 ;  ohms\ni = 2   \nk=3 ; kept\n",
                    [](IniStore& store) {
                        store.WriteDouble(L"d", 1.5, L"Ohm\r\nat 0 \u00B0C");
                        store.WriteInteger(L"i", 4, L"four");
                        store.WriteInteger(L"k", 5, L" ");
                        store.WriteDouble(L"new", 6, L"six");
                    }),
              "[A]\nd=1.50 ; Ohm  at 0 \xC2\xB0"
              "C\ni = 4 ; four\nk=5 ; kept\nnew=6 ; six\n");
}

TEST(IniStoreLayout, ACommentBehindATextStaysWhenAnotherTextIsWritten) {
    EXPECT_EQ(After("[A]\nt = 5 ; ohms\nVersion=0.9 ; from the certificate\nColumns=Channel ; Probe\n",
                    [](IniStore& store) {
                        store.WriteString(L"t", L"six");
                        store.WriteString(L"Version", L"1.0");
                        store.WriteString(L"Columns", L"Time");
                        std::wstring version;
                        EXPECT_TRUE(store.ReadString(L"Version", version));
                        EXPECT_EQ(version, L"1.0");
                    }),
              "[A]\nt = \"six\" ; ohms\nVersion=\"1.0\" ; from the certificate\nColumns=\"Time\" ; Probe\n");
}

TEST(IniStoreLayout, NoPartOfATextThatWasWrittenBecomesAComment) {
    EXPECT_EQ(After("[A]\na=x\nb=\"y\"\n",
                    [](IniStore& store) {
                        for (const wchar_t* const text : {L"Channel ; Probe", L"Time\t;", L"Time;Probe"}) {
                            for (const wchar_t* const key : {L"a", L"b", L"c"})
                                store.WriteString(key, text);
                            std::wstring read;
                            EXPECT_TRUE(store.ReadString(L"a", read));
                            EXPECT_EQ(read, text);
                        }
                        store.WriteString(L"c", L"Channel ; Probe");
                        store.WriteString(L"b", L"Channel ; Probe");
                        store.WriteString(L"b", L"Time");
                    }),
              "[A]\na=Time;Probe\nb=Time\nc=\"Channel ; Probe\"\n");
}

TEST(IniStoreLayout, ACommentBehindATextThatIsWrittenAgainOrStandsInQuotesStays) {
    TempFolder folder;
    folder.Write("a.ini", "[A]\nVersion=1.0 ; from the certificate\nColumns=Channel ; Probe\n"
                          "Name = \"Rig 4\" ; the old one\nPath=\"C:\\Data\" ; runs\n");
    IniStore store;
    store.SetFileName(folder.Name("a.ini"));
    store.SetSection(L"A");
    store.WriteString(L"Version", L"1.0");
    store.WriteString(L"Columns", L"Channel ; Probe");
    store.WriteString(L"Name", L"Rig 5");
    store.WriteString(L"Path", L"C:\\Data");
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nVersion=\"1.0\" ; from the certificate\nColumns=Channel ; Probe\n"
                                    "Name = \"Rig 5\" ; the old one\nPath=\"C:\\Data\" ; runs\n");
    const std::pair<const wchar_t*, const wchar_t*> written[] = {
        {L"Version", L"1.0"}, {L"Columns", L"Channel ; Probe"}, {L"Name", L"Rig 5"}, {L"Path", L"C:\\Data"}};
    for (const auto& [key, text] : written) {
        std::wstring read;
        EXPECT_TRUE(store.ReadString(key, read));
        EXPECT_EQ(read, text);
    }
}

TEST(IniStoreLayout, ASemicolonRightBehindACharacterOrBetweenTextsInQuotesBeginsNoComment) {
    EXPECT_EQ(After("[A]\nb=x;y\nc=\"x\" ; \"y\"\n",
                    [](IniStore& store) {
                        store.WriteString(L"b", L"x");
                        store.WriteString(L"c", L"z");
                    }),
              "[A]\nb=x\nc=z\n");
}

TEST(IniStoreLayout, ANewKeyStandsBehindTheLastOneOfItsSection) {
    EXPECT_EQ(After("[A]\r\nx=1\r\n\r\n; about B\r\n[B]\r\ny=2\r\n",
                    [](IniStore& store) {
                        store.WriteInteger(L"z", 3, L"");
                        store.WriteInteger(L"v", 4, L"");
                    }),
              "[A]\r\nx=1\r\nz=3\r\nv=4\r\n\r\n; about B\r\n[B]\r\ny=2\r\n");
}

TEST(IniStoreLayout, ALastLineWithoutAnEndStaysOne) {
    EXPECT_EQ(After("[A]\r\nx=1", [](IniStore& store) { store.WriteInteger(L"x", 2, L""); }), "[A]\r\nx=2");
    EXPECT_EQ(After("[A]\r\nx=1", [](IniStore& store) { store.WriteInteger(L"y", 2, L""); }),
              "[A]\r\nx=1\r\ny=2");
}

TEST(IniStoreLayout, AnIndentedLineBelowAValueThatGetsABackslashStaysWithIt) {
    EXPECT_EQ(After("[A]\nk=v\n  more\n", [](IniStore& store) { store.WriteString(L"k", L"w\\"); }),
              "[A]\nk=w\\\n  more\n");
    EXPECT_EQ(After("[A]\nk=v\nmore=1\n", [](IniStore& store) { store.WriteString(L"k", L"w\\"); }),
              "[A]\nk=w\\\n\nmore=1\n");
}

TEST(IniStoreLayout, ALineKeepsItsEndWhenTheLastSectionGoesAndAnotherComes) {
    EXPECT_EQ(After("[A]\r\nx=1\r\n[B]\ny=2\nz=3",
                    [](IniStore& store) {
                        store.Hold();
                        store.WriteInteger(L"x", 5, L"");
                        store.RemoveSection(L"B");
                        store.SetSection(L"C");
                        store.WriteInteger(L"k", 7, L"");
                        store.Release();
                    }),
              "[A]\r\nx=5\r\n\n[C]\nk=7");
}

TEST(IniStoreLayout, ACarriageReturnAtTheEndOfTheFileStaysWithItsValue) {
    EXPECT_EQ(After("[A]\nx=1\r",
                    [](IniStore& store) {
                        store.WriteInteger(L"y", 2, L"");
                        std::wstring text;
                        EXPECT_TRUE(store.ReadString(L"x", text));
                        EXPECT_EQ(text, L"1\r");
                    }),
              "[A]\nx=1\r\r\ny=2");
}

TEST(IniStoreLayout, NewSectionsStandAtTheEnd) {
    EXPECT_EQ(After("[B]\nx=1\n; the end\n",
                    [](IniStore& store) {
                        store.WriteInteger(L"x", 2, L"");
                        store.SetSection(L"A - Settings");
                        store.WriteInteger(L"y", 3, L"");
                    }),
              "[B]\nx=1\n; the end\n\n[A]\nx=2\n\n[A - Settings]\ny=3\n");
}

TEST(IniStoreLayout, ALatin1FileStaysLatin1) {
    EXPECT_EQ(After("[K\xF6ln]\nW\xE4rme = 20 \xB0"
                    "C\nOther=1\n",
                    [](IniStore& store) {
                        store.SetSection(L"k\u00F6ln");
                        std::wstring text;
                        EXPECT_TRUE(store.ReadString(L"w\u00E4rme", text));
                        EXPECT_EQ(text, L"20 \u00B0C");
                        store.WriteString(L"Other", L"30 \u00B0");
                        store.WriteString(L"W\u00E4rme", L"5 \u2126");
                        store.WriteString(L"\u00D6l", L"warm");
                    }),
              "[K\xF6ln]\nW\xE4rme = \"5 \\u{2126}\"\nOther=30 \xB0\n\xD6l=warm\n");
}

TEST(IniStoreLayout, AUtf8FileStaysUtf8) {
    EXPECT_EQ(After("[A]\nt=\xC2\xB0\n", [](IniStore& store) { store.WriteString(L"t", L"\u2126 \u00B0"); }),
              "[A]\nt=\xE2\x84\xA6 \xC2\xB0\n");
}

TEST(IniStoreLayout, TextIsReadTheSameBeforeAndAfterTheSave) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nr=5 ; ohms\n");
    IniStore store;
    store.SetFileName(folder.Name("a.ini"));
    store.SetSection(L"A");
    store.Hold();
    store.WriteDouble(L"r", 6, L"");
    std::wstring held;
    std::wstring saved;
    EXPECT_TRUE(store.ReadString(L"r", held));
    store.Release();
    EXPECT_TRUE(store.ReadString(L"r", saved));
    EXPECT_EQ(held, L"6 ; ohms");
    EXPECT_EQ(saved, held);
}
