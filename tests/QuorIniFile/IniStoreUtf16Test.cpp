// UTF-16 files with a byte-order mark: read, edited and kept, byte for byte outside the lines that are
// written.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "tests/QuorIniFile/RaisedBy.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Utf16.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using Support::RefusalOf;
using namespace std::string_literals;
using Texts = std::vector<std::wstring>;

namespace {

/// A store on "a.ini", in either byte order.
class IniStoreUtf16 : public testing::TestWithParam<const char*> {
protected:
    IniStoreUtf16() {
        store.SetFileName(folder.Name("a.ini"));
        store.SetSection(L"A");
    }
    /// A text with its byte-order mark, as the test's byte order has it.
    [[nodiscard]] static std::string Utf16(std::u16string_view text) {
        const std::u16string marked = u"\uFEFF" + std::u16string(text);
        return GetParam() == "LittleEndian"s ? Utf16Le(marked) : Utf16Be(marked);
    }
    void File(std::string_view bytes) const { folder.Write("a.ini", bytes); }
    [[nodiscard]] std::string File() const { return folder.Read("a.ini"); }
    [[nodiscard]] auto Inode() const { return StampOf(folder.Name("a.ini")).inode; }
    void Put(const wchar_t* key, std::int16_t value) { store.WriteInteger(key, value, L""); }
    std::wstring Text(const wchar_t* key) {
        std::wstring text = L"-";
        static_cast<void>(store.ReadString(key, text));
        return text;
    }

    TempFolder folder;
    IniStore store;
};

INSTANTIATE_TEST_SUITE_P(ByteOrder, IniStoreUtf16, testing::Values("LittleEndian", "BigEndian"),
                         [](const auto& order) { return std::string(order.param); });

} // namespace

TEST_P(IniStoreUtf16, IsReadAsTheTextThatItSpells) {
    File(Utf16(u"; \u00B0\r\n[A]\r\nR0=100.0123 ; ohms\r\nPoints=-3\r\nOn=True\r\nname=20 \u00B0C, \u2126, "
               u"\U0001F321\r\nK\u00F6ln=1\r\n[\u6E29\u5EA6]\r\nx=2"));
    double number = 0;
    std::int16_t count = 0;
    bool flag = false;
    ASSERT_TRUE(store.ReadDouble(L"R0", number) && store.ReadInteger(L"points", count) &&
                store.ReadBoolean(L"on", flag));
    EXPECT_EQ(number, 100.0123);
    EXPECT_EQ(count, -3);
    EXPECT_TRUE(flag);
    EXPECT_EQ(Text(L"name"), L"20 \u00B0C, \u2126, \U0001F321");
    EXPECT_EQ(Text(L"K\u00F6ln"), L"1");
    EXPECT_EQ(Text(L"none"), L"-");
    EXPECT_EQ(store.Sections(), (Texts{L"A", L"\u6E29\u5EA6"}));
    store.SetSection(L"\u6E29\u5EA6");
    EXPECT_EQ(Text(L"x"), L"2");
}

TEST_P(IniStoreUtf16, IsKeptByteForByteOutsideTheLineThatIsWritten) {
    // Units with the bytes 0A and 0D are no line ends, and NUL is a character.
    const std::u16string before =
        u"; \u0A0A\u0D0A\u0A0D, mixed line ends\n[A]\r\n  a b \u00A0 = \0 1\nbroken\r\n"s;
    const std::u16string after = u"\ny=\"\u2126\"\r\n[B\r\n[C] ; \U0001F321\n\n\nlast"s;
    File(Utf16(before + u" x\t=  1  ; one\r\n" + after));
    Put(L"x", 2);
    EXPECT_EQ(File(), Utf16(before + u" x\t=  2  ; one\r\n" + after));
    store.WriteString(L"X", L"20 \u00B0C; \U0001F321");
    EXPECT_EQ(File(), Utf16(before + u" x\t=  \"20 \u00B0C; \U0001F321\"  ; one\r\n" + after));
    store.WriteDouble(L"x", 0.1, L"at 20 \u00B0, \u2126");
    EXPECT_EQ(File(), Utf16(before + u" x\t=  0.1 ; at 20 \u00B0, \u2126\r\n" + after));
}

TEST_P(IniStoreUtf16, TakesNewKeysAndSections) {
    File(Utf16(u"[A]\r\nx=1\r\n\r\n[B]\r\ny=1"));
    store.WriteString(L"K\u00F6ln", L"20 \u00B0C");
    EXPECT_EQ(File(), Utf16(u"[A]\r\nx=1\r\nK\u00F6ln=20 \u00B0C\r\n\r\n[B]\r\ny=1"));
    store.SetSection(L"\U0001F321");
    store.WriteString(L"z", L"\u2126");
    EXPECT_EQ(File(),
              Utf16(u"[A]\r\nx=1\r\nK\u00F6ln=20 \u00B0C\r\n\r\n[B]\r\ny=1\r\n\r\n[\U0001F321]\r\nz=\u2126"));
}

TEST_P(IniStoreUtf16, OfAMarkAloneIsAnEmptyFileInUtf16) {
    File(Utf16(u""));
    EXPECT_EQ(store.Sections(), Texts{});
    store.WriteString(L"x", L"\u00B0");
    EXPECT_EQ(File(), Utf16(u"[A]\nx=\u00B0\n"));
}

TEST_P(IniStoreUtf16, LosesSectionsAndGetsOtherNames) {
    File(Utf16(u"; mine\n[A] ; first\nx=1\n\n; of B\n[B]\ny=1\n\n[C]\nz=1\n"));
    store.RenameSection(L"A", L"\u00D6l \U0001F321");
    store.RemoveSection(L"B");
    EXPECT_EQ(File(), Utf16(u"; mine\n[\u00D6l \U0001F321] ; first\nx=1\n\n[C]\nz=1\n"));
    EXPECT_EQ(store.Sections(), (Texts{L"\u00D6l \U0001F321", L"C"}));
    EXPECT_EQ(RefusalOf([&] { store.RenameSection(L"C", L"\u00D6l \U0001F321"); }),
              L"Path/File access error: " + folder.Name("a.ini") +
                  L": There is a section \"\u00D6l \U0001F321\" already");
}

TEST_P(IniStoreUtf16, IsEditedAsItIsThen) {
    File(Utf16(u"[A]\nx=1\n"));
    EXPECT_EQ(Text(L"x"), L"1");
    File(Utf16(u"; \u00B0\n[A]\nx=5\n"));
    store.Edit([&] {
        std::int16_t value = 0;
        ASSERT_TRUE(store.ReadInteger(L"x", value));
        Put(L"x", static_cast<std::int16_t>(value + 1));
        store.WriteString(L"y", L"\u2126");
    });
    EXPECT_EQ(File(), Utf16(u"; \u00B0\n[A]\nx=6\ny=\u2126\n"));
    EXPECT_EQ(folder.Files(), std::vector<std::string>{"a.ini"});
}

TEST_P(IniStoreUtf16, IsNotReplacedForAValueThatStandsThere) {
    File(Utf16(u"[A]\nx=1.50\ny=\u2126\n"));
    const auto inode = Inode();
    store.WriteDouble(L"x", 1.5, L"");
    store.WriteString(L"y", L"\u2126");
    store.Edit([&] { store.WriteString(L"y", L"\u2126"); });
    EXPECT_EQ(Inode(), inode);
    EXPECT_EQ(File(), Utf16(u"[A]\nx=1.50\ny=\u2126\n"));
}

TEST_P(IniStoreUtf16, IsWarnedOfWithTheNumbersOfItsLines) {
    File(Utf16(u"a=1\r\n; \u0A0A\r\n[\u00D6l]\r\nx=1\r\nX=2\r\nno key\r\n"));
    EXPECT_EQ(store.Warnings(),
              (std::vector<IniWarning>{{IniWarningKind::KeyAboveSections, 1, 0, L"", L"a"},
                                       {IniWarningKind::DuplicateKey, 5, 4, L"\u00D6l", L"X"},
                                       {IniWarningKind::MalformedLine, 6, 0, L"\u00D6l", L""}}));
}

TEST_P(IniStoreUtf16, HasChangedWhenItsBytesHave) {
    File(Utf16(u"[A]\nx=1\n"));
    EXPECT_EQ(Text(L"x"), L"1");
    EXPECT_FALSE(store.FileChanged());
    Put(L"x", 2);
    EXPECT_FALSE(store.FileChanged());
    File(Utf16(u"[A]\nx=2\n"));
    EXPECT_FALSE(store.FileChanged()) << "the same text";
    File(Utf16(u"[A]\nx=3\n"));
    EXPECT_TRUE(store.FileChanged());
    store.Reload();
    EXPECT_FALSE(store.FileChanged());
    EXPECT_EQ(Text(L"x"), L"3");
    for (const std::string& sameText : {"\xEF\xBB\xBF[A]\nx=3\n"s, "[A]\nx=3\n"s,
                                        Utf16Be(u"\uFEFF[A]\nx=3\n"), Utf16Le(u"\uFEFF[A]\nx=3\n")}) {
        File(sameText);
        EXPECT_TRUE(store.FileChanged()) << "in another encoding";
        store.Reload();
        EXPECT_FALSE(store.FileChanged());
        EXPECT_EQ(Text(L"x"), L"3");
    }
}

TEST_P(IniStoreUtf16, ThatAnotherProgramMakesOfTheFileGetsWhatIsHeld) {
    for (const std::string& loaded : {"[A]\nx=\xC2\xB0\n"s, "; K\xF6ln\n[A]\nx=\xB0\n"s, ""s,
                                      Utf16Be(u"\uFEFF[A]\nx=\u00B0\n"), Utf16Le(u"\uFEFF[A]\nx=\u00B0\n")}) {
        File(loaded);
        store.Reload();
        store.Hold();
        store.WriteString(L"x", L"20 \u00B0C");
        store.WriteDouble(L"\u00D6l", 1.5, L"at 20 \u00B0");
        File(Utf16(u"; theirs, \u2126\r\n[A]\r\nx=\u00B0\r\n"));
        EXPECT_TRUE(store.FileChanged());
        store.Release();
        EXPECT_EQ(File(),
                  Utf16(u"; theirs, \u2126\r\n[A]\r\nx=20 \u00B0C\r\n\u00D6l=1.5 ; at 20 \u00B0\r\n"));
        EXPECT_FALSE(store.FileChanged());
    }
}

TEST_P(IniStoreUtf16, IsKeptByALoadAnewWithWhatIsHeld) {
    File("[A]\nx=1\n");
    store.Hold();
    store.WriteString(L"y", L"\u00B0");
    File(Utf16(u"[A]\nx=5\n"));
    store.Reload();
    EXPECT_EQ(Text(L"x"), L"5");
    EXPECT_EQ(Text(L"y"), L"\u00B0");
    store.Release();
    EXPECT_EQ(File(), Utf16(u"[A]\nx=5\ny=\u00B0\n"));
}

TEST_P(IniStoreUtf16, ThatAnotherProgramTurnsIntoBytesGetsWhatIsHeldInThoseBytes) {
    const std::string texts[][2] = {
        {"; theirs\n[A]\nx=\xC2\xB0\n", "; theirs\n[A]\nx=20 \xC2\xB0"
                                        "C\ny=1 ; \xC2\xB0\n"},
        {"\xEF\xBB\xBF[A]\r\nx=1\r\n", "\xEF\xBB\xBF[A]\r\nx=20 \xC2\xB0"
                                       "C\r\ny=1 ; \xC2\xB0\r\n"},
        {"; K\xF6ln\n[A]\nx=\xB0\n", "; K\xF6ln\n[A]\nx=20 \xB0"
                                     "C\ny=1 ; \xB0\n"},
    };
    for (const auto& [theirs, both] : texts) {
        File(Utf16(u"[A]\nx=1\n"));
        store.Reload();
        store.Hold();
        store.WriteString(L"x", L"20 \u00B0C");
        store.WriteInteger(L"y", 1, L"\u00B0");
        File(theirs);
        store.Release();
        EXPECT_EQ(File(), both);
    }
}

TEST_P(IniStoreUtf16, ThatIsDeletedBeginsAnewAsUtf8) {
    File(Utf16(u"[A]\nx=1\n"));
    store.Hold();
    store.WriteString(L"x", L"\u00B0");
    fs::remove(folder.Path("a.ini"));
    store.Release();
    EXPECT_EQ(File(), "[A]\nx=\xC2\xB0\n");
}

TEST_P(IniStoreUtf16, GetsNoHalfOfASurrogatePair) {
    File(Utf16(u"[A]\nx=1\n"));
    const std::wstring half{L'a', static_cast<wchar_t>(0xD83C), L'b'};
    store.WriteString(L"x", half);
    EXPECT_EQ(File(), Utf16(u"[A]\nx=\"a\\u{D83C}b\"\n"));
    EXPECT_EQ(Text(L"x"), half);
    EXPECT_NE(RefusalOf([&] { store.WriteInteger(half, 1, L""); }), L"");
    EXPECT_EQ(File(), Utf16(u"[A]\nx=\"a\\u{D83C}b\"\n"));
}

TEST_P(IniStoreUtf16, ThatIsNotValidIsRefusedAndStaysAndWhatIsHeldIsSavedLater) {
    File(Utf16(u"[A]\nx=1\n"));
    store.Hold();
    Put(L"x", 2);
    const std::string half = Utf16(u"; theirs\n[A]\nx="s + char16_t{0xDC00});
    File(half);
    const std::wstring error = L"Path/File access error: " + folder.Name("a.ini") +
                               L": The file is UTF-16 text with half a surrogate pair in line 3";
    EXPECT_EQ(RefusalOf([&] { store.Reload(); }), error);
    EXPECT_EQ(RefusalOf([&] { store.Release(); }), error);
    EXPECT_EQ(File(), half);
    File(Utf16(u"; theirs\n[A]\nx=5\n"));
    Put(L"y", 3);
    EXPECT_EQ(File(), Utf16(u"; theirs\n[A]\nx=2\ny=3\n"));
}

TEST_P(IniStoreUtf16, ThatWouldBeLargerThanFourGigabytesIsNotSaved) {
    if (std::getenv("QUOR_NIGHTLY") == nullptr || GetParam() == "BigEndian"s)
        GTEST_SKIP() << "takes minutes and 6 GB of memory; set QUOR_NIGHTLY to run it in one byte order";
    const std::string start = Utf16(u"[A]\nx=1\n");
    File(start);
    const std::uintmax_t size = (std::uintmax_t{1} << 32U) - 2;
    fs::resize_file(folder.Path("a.ini"), size); // takes no room: what follows is one hole, of NULs
    store.Hold();
    Put(L"y", 2);
    EXPECT_EQ(RefusalOf([&] { store.Release(); }),
              L"Path/File access error: " + folder.Name("a.ini") + L": It would be larger than 4 GiB");
    EXPECT_EQ(fs::file_size(folder.Path("a.ini")), size);
    EXPECT_EQ(Text(L"x"), L"1");
    EXPECT_EQ(folder.Files(), std::vector<std::string>{"a.ini"});
    fs::remove(folder.Path("a.ini"));
}
