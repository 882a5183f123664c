#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "tests/QuorIniFile/RaisedBy.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

using namespace QuorIniFile;
using Support::RaisedBy;

namespace {

/// A store on the file "a.ini" of a folder of its own, with section "A" selected.
class IniStoreTest : public testing::Test {
protected:
    IniStoreTest() {
        store.SetFileName(folder.Name("a.ini"));
        store.SetSection(L"A");
    }
    void File(std::string_view bytes) const { folder.Write("a.ini", bytes); }
    [[nodiscard]] std::string File() const { return folder.Read("a.ini"); }

    TempFolder folder;
    IniStore store;
};

} // namespace

TEST_F(IniStoreTest, MakesTheFolderOfItsFileOnRequest) {
    IniStore fresh;
    EXPECT_EQ(RaisedBy([&] { fresh.MakeFolder(); }).Number(), 52) << "without a file name";
    fresh.SetFileName(folder.Name("new/probes/a.ini"));
    fresh.SetSection(L"A");
    EXPECT_EQ(RaisedBy([&] { fresh.WriteString(L"x", L"1"); }).Number(), 76) << "a write makes no folder";
    fresh.MakeFolder();
    fresh.WriteString(L"x", L"1");
    EXPECT_EQ(folder.Read("new/probes/a.ini"), "[A]\nx=1\n");
    fresh.MakeFolder();
    EXPECT_EQ(folder.Read("new/probes/a.ini"), "[A]\nx=1\n") << "a folder that is there stays";
}

TEST_F(IniStoreTest, ValuesOfEveryKindComeBack) {
    store.WriteString(L"Version", L"1.0");
    store.WriteInteger(L"NumCoefficients", 4, L"");
    store.WriteBoolean(L"UsePolynomial", true);
    store.WriteDouble(L"Coefficients0", 100.02, L"");
    EXPECT_EQ(File(), "[A]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=True\nCoefficients0=100.02\n");

    IniStore other;
    other.SetFileName(folder.Name("a.ini"));
    other.SetSection(L"a");
    std::wstring text;
    std::int16_t number = 0;
    bool flag = false;
    double value = 0;
    EXPECT_TRUE(other.ReadString(L"VERSION", text));
    EXPECT_TRUE(other.ReadInteger(L"numcoefficients", number));
    EXPECT_TRUE(other.ReadBoolean(L"UsePolynomial", flag));
    EXPECT_TRUE(other.ReadDouble(L"Coefficients0", value));
    EXPECT_EQ(text, L"1.0");
    EXPECT_EQ(number, 4);
    EXPECT_TRUE(flag);
    EXPECT_EQ(value, 100.02);
}

TEST_F(IniStoreTest, WhatIsMissingOrOfAnotherKindLeavesTheVariable) {
    File("[A]\nempty=\ntext=12abc\ncomma=1,5\nlarge=40000\nhuge=1e999\n");
    std::wstring text = L"kept";
    std::int16_t number = 7;
    bool flag = true;
    double value = 1.5;
    EXPECT_FALSE(store.ReadString(L"missing", text));
    for (const wchar_t* key : {L"missing", L"empty", L"text", L"comma", L"large", L"huge"}) {
        EXPECT_FALSE(store.ReadInteger(key, number)) << key;
        EXPECT_FALSE(store.ReadBoolean(key, flag)) << key;
        EXPECT_TRUE(key == std::wstring(L"large") || !store.ReadDouble(key, value)) << key;
    }
    store.SetSection(L"B");
    EXPECT_FALSE(store.ReadString(L"text", text));
    EXPECT_EQ(text, L"kept");
    EXPECT_EQ(number, 7);
    EXPECT_TRUE(flag);
    EXPECT_EQ(value, 1.5);
}

TEST_F(IniStoreTest, AnEmptyTextIsFound) {
    File("[A]\nname=\n");
    std::wstring text = L"old";
    EXPECT_TRUE(store.ReadString(L"name", text));
    EXPECT_EQ(text, L"");
}

TEST_F(IniStoreTest, ACommentBehindANumberOrFlagIsPassedOver) {
    File("[A]\nvalue=100.02 ; ohms\ncount=4\t;four\nflag=True ; yes\ntext=a ; b\nnone=4;four\n");
    std::wstring text;
    std::int16_t number = 0;
    bool flag = false;
    double value = 0;
    EXPECT_TRUE(store.ReadDouble(L"value", value));
    EXPECT_TRUE(store.ReadInteger(L"count", number));
    EXPECT_TRUE(store.ReadBoolean(L"flag", flag));
    EXPECT_TRUE(store.ReadString(L"text", text));
    EXPECT_FALSE(store.ReadInteger(L"none", number)) << "a comment stands apart from the value";
    EXPECT_EQ(value, 100.02);
    EXPECT_EQ(number, 4);
    EXPECT_TRUE(flag);
    EXPECT_EQ(text, L"a ; b") << "text may hold a semicolon";
}

TEST_F(IniStoreTest, ReadingFromAMissingFileIsAnErrorAndMakesNone) {
    bool flag = false;
    for (int i = 0; i < 2; ++i) {
        const QuorError error = RaisedBy([&] { static_cast<void>(store.ReadBoolean(L"x", flag)); });
        EXPECT_EQ(error.Number(), 53);
        EXPECT_EQ(error.Description(), L"File not found: " + folder.Name("a.ini"));
    }
    EXPECT_TRUE(folder.Files().empty());

    File("[A]\nx=True\n");
    EXPECT_TRUE(store.ReadBoolean(L"x", flag)) << "it has come since";
}

TEST_F(IniStoreTest, WithoutAGoodFileNameNothingIsReadOrWritten) {
    IniStore fresh;
    bool flag = false;
    const QuorError error = RaisedBy([&] { static_cast<void>(fresh.ReadBoolean(L"x", flag)); });
    EXPECT_EQ(error.Number(), 52);
    EXPECT_EQ(error.Description(), L"Bad file name or number: ");
    EXPECT_EQ(RaisedBy([&] { fresh.WriteBoolean(L"x", true); }).Number(), 52);

    for (const std::wstring& name :
         {std::wstring(), std::wstring(L"a\0b", 3), std::wstring(1, static_cast<wchar_t>(0xD800))}) {
        EXPECT_EQ(RaisedBy([&] { store.SetFileName(name); }).Number(), 52);
        EXPECT_EQ(store.FileName(), folder.Name("a.ini")) << "the name before stays";
    }
}

TEST_F(IniStoreTest, ATextInMemoryIsReadLikeAFileAndNeverSaved) {
    File("[A]\nx=1\n");
    const auto before = IniStore::OfText(store.Text());
    store.WriteString(L"x", L"2");
    before->SetSection(L"a");
    std::wstring value;
    EXPECT_TRUE(before->ReadString(L"X", value));
    EXPECT_EQ(value, L"1");
    EXPECT_EQ(RaisedBy([&] { before->WriteString(L"x", L"3"); }).Number(), 52);
    EXPECT_EQ(RaisedBy([&] { before->Edit([] {}); }).Number(), 52);
    EXPECT_TRUE(IniStore::OfText("")->Sections().empty());
    EXPECT_EQ(File(), "[A]\nx=2\n");
}

TEST_F(IniStoreTest, AValueOfAnUnknownTypeIsWrittenAsItStandsInALine) {
    const char* const lines[] = {"Part=00123 ; asset", "Big=12345678901234567891",
                                 "On=True ; by M",     "Note=\"K 17\" ; old",
                                 "Due=2027-05 ; n",    "Empty=",
                                 "Path=C:\\a;b",       "Ort=K\xC3\xB6ln ; b\xC3\xA4h"};
    std::string text = "[A]\n";
    for (const char* const line : lines)
        text.append(line).append("\n");
    const auto from = IniStore::OfText(text);
    store.Hold();
    for (IniLines line = from->Lines(); line.Next();)
        if (line.Is(IniLines::Kind::Key))
            store.WriteAsItStands(line.Name(), line.ValueWithComment());
    store.Release();
    EXPECT_EQ(File(), text);
    // Over another value: its comment stays where none is given.
    store.WriteAsItStands(L"Part", L"7");
    store.WriteAsItStands(L"Big", L"007 ; new");
    EXPECT_EQ(File().substr(0, 33), "[A]\nPart=7 ; asset\nBig=007 ; new\n");
    File("[A]\n; caf\xE9\nx=1\n");
    store.Reload();
    store.WriteAsItStands(L"x", L"\u03A9");
    EXPECT_EQ(File(), "[A]\n; caf\xE9\nx=\"\\u{3A9}\"\n");
}

TEST_F(IniStoreTest, SettingTheFileNameTouchesNoFile) {
    store.SetFileName(folder.Name("b.ini"));
    EXPECT_EQ(store.FileName(), folder.Name("b.ini"));
    EXPECT_EQ(store.Section(), L"A");
    EXPECT_TRUE(folder.Files().empty());
}

TEST_F(IniStoreTest, WithoutASectionTheOneWithoutANameIsMeant) {
    IniStore fresh;
    fresh.SetFileName(folder.Name("a.ini"));
    fresh.WriteBoolean(L"x", true);
    EXPECT_EQ(File(), "[]\nx=True\n");
}

TEST_F(IniStoreTest, ANameThatWouldNotReadBackIsRefusedBeforeAnythingIsChanged) {
    File("[B]\nx=1\n");
    const std::wstring surrogate(1, static_cast<wchar_t>(0xDC00));
    for (const std::wstring& key : {std::wstring(L"a=b"), std::wstring(L" a"), std::wstring(L";a"),
                                    std::wstring(L"[a"), std::wstring(L"a\nb"), surrogate}) {
        const QuorError error = RaisedBy([&] { store.WriteBoolean(key, true); });
        EXPECT_EQ(error.Number(), 75);
        EXPECT_EQ(error.Description(), L"Path/File access error: " + folder.Name("a.ini") +
                                           L": No key can have the name \"" + key + L"\"");
    }
    for (const std::wstring& section : {std::wstring(L"a] ; b"), std::wstring(L"a\r"), surrogate}) {
        store.SetSection(section);
        const QuorError error = RaisedBy([&] { store.WriteString(L"x", L"1"); });
        EXPECT_EQ(error.Number(), 75);
        EXPECT_NE(error.Description().find(L"No section can have the name"), std::wstring::npos);
        bool flag = false;
        EXPECT_FALSE(store.ReadBoolean(L"x", flag)) << "looking for it is no error";
    }
    store.SetSection(L"B");
    store.WriteBoolean(L"x", true);
    EXPECT_EQ(File(), "[B]\nx=1\n") << "1 is True already, and nothing was left pending";
}

TEST_F(IniStoreTest, ANameThatTheFilesLatin1CannotSpellIsRefusedBeforeAnythingIsChanged) {
    const std::string text = "[K\xF6ln]\nx=1\n";
    File(text);
    const std::wstring refusal = L"Path/File access error: " + folder.Name("a.ini") +
                                 L": The file is in Latin-1, which cannot spell the name \"";
    for (const std::wstring name : {L"K\u00F6ln \u2126", L"\u00B5 \u03A9", L"\u00C3\u00BC"}) {
        EXPECT_FALSE(store.CanSpell(name));
        const std::wstring told = refusal + name + L"\"; save the file as UTF-8 first";
        store.SetSection(name);
        EXPECT_EQ(RaisedBy([&] { store.WriteInteger(L"x", 2, L""); }).Description(), told);
        EXPECT_EQ(RaisedBy([&] { store.RenameSection(L"K\u00F6ln", name); }).Description(), told);
        store.SetSection(L"K\u00F6ln");
        EXPECT_EQ(RaisedBy([&] { store.WriteInteger(name, 2, L""); }).Description(), told);
        EXPECT_EQ(File(), text);
    }
    EXPECT_TRUE(store.CanSpell(L"\u00B5 \u00FC"));
    store.RenameSection(L"K\u00F6ln", L"\u00B5 \u00FC");
    EXPECT_EQ(File(), "[\xB5 \xFC]\nx=1\n");
}

TEST_F(IniStoreTest, AnyOtherNameComesBackInAnySpelling) {
    store.SetSection(L" Range [0..100], \u2126 ");
    store.WriteInteger(L"C\u00F6 [0] ; \"x\"", 3, L"");
    store.WriteInteger(L"", 4, L"");
    EXPECT_EQ(File(), "[ Range [0..100], \xE2\x84\xA6 ]\nC\xC3\xB6 [0] ; \"x\"=3\n=4\n");
    IniStore other;
    other.SetFileName(folder.Name("a.ini"));
    other.SetSection(L" RANGE [0..100], \u2126 ");
    std::int16_t number = 0;
    EXPECT_TRUE(other.ReadInteger(L"c\u00F6 [0] ; \"X\"", number));
    EXPECT_EQ(number, 3);
    EXPECT_TRUE(other.ReadInteger(L"", number));
    EXPECT_EQ(number, 4);
}

TEST_F(IniStoreTest, NamesAndValuesOfEveryLengthComeBack) {
    for (const std::size_t length : {0U, 1U, 15U, 16U, 255U, 256U, 4095U, 4096U, 65535U, 65537U, 300'000U}) {
        const TempFolder own;
        const std::wstring section = L"s" + std::wstring(length, L's');
        const std::wstring key(length, L'k');
        const std::wstring value(length, L'\u2126');
        for (const wchar_t* behind : {L"", L"\u00F6"}) { // the second time the section stands in the file
            IniStore writer;
            writer.SetFileName(own.Name("a.ini"));
            writer.SetSection(section);
            writer.WriteString(key, value);
            writer.WriteString(L"last", value + behind + L' '); // in quotes, for its blank
            IniStore reader;
            reader.SetFileName(own.Name("a.ini"));
            reader.SetSection(section);
            std::wstring text;
            EXPECT_TRUE(reader.ReadString(key, text) && text == value) << length;
            EXPECT_TRUE(reader.ReadString(L"last", text) && text == value + behind + L' ') << length;
        }
    }
}
