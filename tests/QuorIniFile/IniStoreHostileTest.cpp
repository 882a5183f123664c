// Files that no friend has written: a clear result, no crash, and the file stays as it is.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/detail/IniText.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <utility>

using namespace QuorIniFile;
using namespace std::string_literals;

namespace {

std::string Many(int count, std::string_view part) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += part;
    return text;
}

/// The processor time of opening a file, reading a key, changing one and saving, in seconds: the shortest of
/// a few rounds, so that the work of other programs does not count.
double TimeOf(const std::string& text, const std::wstring& section = L"A") {
    Support::InterceptedFiles files;
    files.flushes = false;
    double best = std::numeric_limits<double>::infinity();
    for (int round = 0; round < 3; ++round) {
        const TempFolder folder;
        folder.Write("a.ini", text);
        const std::clock_t start = std::clock();
        IniStore store(files);
        store.SetFileName(folder.Name("a.ini"));
        store.SetSection(section);
        std::int16_t value = 0;
        static_cast<void>(store.ReadInteger(L"x", value));
        store.WriteInteger(L"y", 12345, L"");
        best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return best;
}

/// The processor time of renaming sections one after the other, all held, and of saving them, in seconds: the
/// shortest of a few rounds. The file has five times as many sections, half of them twice. `theirs` stands in
/// it by the time of the save.
double TimeOfRenames(int count, const std::function<void(IniStore&, int)>& rename,
                     const std::string& theirs = "") {
    std::string text;
    for (int i = 0; i < 5 * count; ++i)
        text += "[S" + std::to_string(i) + "]\nx=1\n" + (i % 2 == 0 ? "" : "[s" + std::to_string(i) + "]\n");
    Support::InterceptedFiles files;
    files.flushes = false;
    double best = std::numeric_limits<double>::infinity();
    for (int round = 0; round < 3; ++round) {
        const TempFolder folder;
        folder.Write("a.ini", text);
        const std::clock_t start = std::clock();
        IniStore store(files);
        store.SetFileName(folder.Name("a.ini"));
        store.Hold();
        for (int i = 0; i < count; ++i)
            rename(store, i);
        folder.Write("a.ini", theirs + text);
        store.Release();
        best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return best;
}

/// Four times the text may take four times as long and some more, but not its square, sixteen times.
void ExpectLinear(const std::function<std::string(int)>& text, int count) {
    EXPECT_LT(TimeOf(text(4 * count)), 10 * TimeOf(text(count)));
}

class IniStoreHostile : public testing::Test {
protected:
    IniStoreHostile() { files.flushes = false; }
    void Open(const std::string& bytes) {
        folder.Write("a.ini", bytes);
        store.SetFileName(folder.Name("a.ini"));
        store.SetSection(L"A");
    }
    /// The text under a key, or "-" when there is none.
    std::wstring Text(const wchar_t* section, const std::wstring& key) {
        store.SetSection(section);
        std::wstring text = L"-";
        const bool found = store.ReadString(key, text);
        EXPECT_NE(found, text == L"-");
        return text;
    }
    [[nodiscard]] std::string File() const { return folder.Read("a.ini"); }

    TempFolder folder;
    Support::InterceptedFiles files;
    IniStore store{files};
};

} // namespace

TEST_F(IniStoreHostile, FilesWithoutASectionHaveNoKeys) {
    for (const std::string& text : {""s, "\n"s, "\xEF\xBB\xBF"s, "\xEF\xBB"s, "["s, "]"s, "="s, "[\n=\n]"s,
                                    "\0"s, "\0\0\0\0"s, "\r"s, "x=1"s, "[A"s, "[A\nx=1"s, "]A[\nx=1"s}) {
        const TempFolder own;
        own.Write("a.ini", text);
        IniStore fresh;
        fresh.SetFileName(own.Name("a.ini"));
        fresh.SetSection(L"A");
        std::wstring value = L"kept";
        EXPECT_FALSE(fresh.ReadString(L"x", value)) << testing::PrintToString(text);
        EXPECT_EQ(value, L"kept");
        EXPECT_EQ(own.Read("a.ini"), text);
    }
}

TEST_F(IniStoreHostile, Utf16ThatIsNotValidOrHasNoMarkIsRefusedForReadingAndWritingAndStays) {
    const std::wstring unmarked = L"without a byte-order mark";
    const std::wstring odd = L"with an odd number of bytes"; // cut off in the middle of a character
    const std::wstring half = L"with half a surrogate pair in line 2";
    const std::pair<std::string, std::wstring> cases[] = {
        {"[\0A\0]\0\n\0"s, unmarked},
        {"\0[\0A\0]\0\n"s, unmarked},
        {"[\0A\0]"s, unmarked},
        {"\0[\0"s, unmarked},
        {"\xFF\xFE[\0A\0]"s, odd},
        {"\xFE\xFF\0[\0A\0]\0"s, odd},
        {"\xFF\xFE["s, odd},
        {"\xFE\xFF\0"s, odd},
        {"\xFF\xFE\n\0\x3C\xD8[\0"s, half},
        {"\xFE\xFF\0\n\xDF\x21"s, half},
    };
    for (const auto& [text, cause] : cases) {
        const TempFolder own;
        own.Write("a.ini", text);
        IniStore fresh;
        fresh.SetFileName(own.Name("a.ini"));
        for (const bool writing : {false, true}) {
            try {
                bool flag = false;
                if (writing)
                    fresh.WriteBoolean(L"x", true);
                else
                    static_cast<void>(fresh.ReadBoolean(L"x", flag));
                ADD_FAILURE() << "UTF-16 was taken for lines: " << testing::PrintToString(text);
            } catch (const QuorError& error) {
                EXPECT_EQ(error.Number(), 75);
                EXPECT_EQ(error.Description(), L"Path/File access error: " + own.Name("a.ini") +
                                                   L": The file is UTF-16 text " + cause);
            }
        }
        EXPECT_EQ(own.Read("a.ini"), text);
    }
}

TEST_F(IniStoreHostile, AFileOfOneNulIsNotMadeIntoWhatNobodyCouldLoad) {
    Open("\0"s);
    EXPECT_EQ(Text(L"A", L"x"), L"-");
    EXPECT_THROW(store.WriteInteger(L"x", 1, L""), QuorError);
    EXPECT_EQ(File(), "\0"s);
}

TEST_F(IniStoreHostile, NulBytesAreOrdinaryBytes) {
    Open("[A]\nx=1\0 2\ny\0=3\nz=4\n"s);
    EXPECT_EQ(Text(L"A", L"x"), L"1\0 2"s);
    EXPECT_EQ(Text(L"A", L"y\0"s), L"3");
    store.WriteInteger(L"z", 5, L"");
    EXPECT_EQ(File(), "[A]\nx=1\0 2\ny\0=3\nz=5\n"s);
}

TEST_F(IniStoreHostile, KeysWithoutAnEqualsSignAreNoKeys) {
    Open("[A]\nx\nx 1\nx:1\nx=2\n");
    EXPECT_EQ(Text(L"A", L"x"), L"2");
    EXPECT_EQ(Text(L"A", L"x 1"), L"-");
}

TEST_F(IniStoreHostile, AHeaderWithoutItsBracketHidesItsKeys) {
    Open("[A]\nx=1\n[B\nx=2\ny=3\n[C]\nz=4\n");
    EXPECT_EQ(Text(L"A", L"x"), L"1");
    EXPECT_EQ(Text(L"A", L"y"), L"-");
    EXPECT_EQ(Text(L"B", L"x"), L"-");
    EXPECT_EQ(Text(L"C", L"z"), L"4");
    store.SetSection(L"A");
    store.WriteInteger(L"y", 5, L"");
    EXPECT_EQ(File(), "[A]\nx=1\ny=5\n[B\nx=2\ny=3\n[C]\nz=4\n");
}

TEST_F(IniStoreHostile, ALineOfTenMegabytesIsALine) {
    const std::string line = Many(10'000'000, "x");
    const std::pair<std::string, std::wstring> texts[] = {
        {line, L"-"},
        {"[A]\n" + line + "\ny=1\n", L"1"},
        {"[A]\nlong=" + line + "\ny=1\n", L"1"},
        {"[A]\n" + line + "=1\ny=1\n", L"1"},
        {"[A] ;" + line + "\ny=1\n", L"1"},
        {"[" + line + "]\n[A]\ny=1\n", L"1"},
        {"[A]\n" + Many(10'000'000, "[") + "\ny=1", L"-"}, // below a header without its bracket
    };
    for (const auto& [text, expected] : texts) {
        Open(text);
        EXPECT_EQ(Text(L"A", L"y"), expected);
        EXPECT_TRUE(File() == text);
        store.SetFileName(folder.Name("other.ini"));
    }
    Open("[A]\nlong=" + line + "\ny=1\n");
    EXPECT_EQ(Text(L"A", L"long").size(), line.size());
    EXPECT_EQ(Text(L"A", L"y"), L"1");
}

TEST_F(IniStoreHostile, LongBlanksAreNoPartOfNamesAndValues) {
    const std::string blanks = Many(1'000'000, " ");
    Open(blanks + "[A]" + blanks + ";" + blanks + "\n" + blanks + "x" + blanks + "=" + blanks + "1" + blanks +
         "\n");
    EXPECT_EQ(Text(L"A", L"x"), L"1");
}

TEST_F(IniStoreHostile, OfAMillionSectionsOfOneNameTheFirstCounts) {
    std::string text;
    for (int i = 0; i < 1'000'000; ++i)
        text += "[A]\nx=" + std::to_string(i) + "\n";
    Open(text);
    EXPECT_EQ(Text(L"A", L"x"), L"0");
    store.WriteInteger(L"y", 1, L"");
    EXPECT_TRUE(File() == "[A]\nx=0\ny=1\n" + text.substr(8));
}

TEST_F(IniStoreHostile, ManyOfAnythingTakeTimeInProportion) {
    using Text = std::function<std::string(int)>;
    const auto numbered = [](const char* before, const char* behind) {
        return [=](int count) {
            std::string text = "[A]\n";
            for (int i = 0; i < count; ++i)
                text += before + std::to_string(i) + behind;
            return text;
        };
    };
    const auto repeated = [](const std::string& before, const std::string& part, int each) {
        return [=](int count) { return before + Many(count * each, part) + "\n"; };
    };
    const std::pair<const char*, Text> cases[] = {
        {"sections", numbered("[", "]\n")},
        {"keys", numbered("K", "=1\n")},
        {"sections of one name", repeated("", "[A]\n", 4)},
        {"sections of two names in turn", repeated("", "[A]\n[B]\n", 4)},
        {"keys of one name", repeated("[A]\n", "x=1\n", 4)},
        {"keys of one long name",
         [](int count) { return "[A]\n" + Many(count / 50, Many(300, "x") + "=1\n"); }},
        {"headers without a bracket", repeated("", "[A\n", 4)},
        {"brackets", repeated("[A]\n", "[", 40)},
        {"brackets that close", repeated("[", "]", 10)},
        {"brackets, blanks and semicolons", repeated("[", "] ;", 4)},
        {"semicolons", repeated("[A]\nx=", ";", 20)},
        {"quotes", repeated("[A]\nx=\"", "\"\\", 20)},
        {"blank lines", repeated("[A]\n", "\n", 20)},
        {"continuation lines", repeated("[A]\nx=1\n", " k\n", 10)},
        {"lines below a backslash", repeated("[A]\nx=1\\\n", "\\\n", 10)},
        {"blanks", repeated("[A]\n", " ", 40)},
        {"blanks and brackets", repeated("", "    [\n", 4)},
        {"carriage returns", repeated("[A]\nx=1", "\r", 40)},
        {"Latin-1", repeated("[A]\nx=", "\xB0", 40)},
        {"UTF-8", repeated("[A]\nx=", "\xC2\xB0", 20)},
        {"NUL", repeated("[A]\nx=", "\0"s, 40)},
    };
    for (const auto& [name, text] : cases) {
        SCOPED_TRACE(name);
        ExpectLinear(text, 10'000);
    }
}

TEST_F(IniStoreHostile, ManyHeldRenamesTakeTimeInProportion) {
    const auto name = [](const wchar_t* letter, int number) { return letter + std::to_wstring(number); };
    const std::pair<const char*, std::function<void(IniStore&, int)>> cases[] = {
        {"other names", [&](IniStore& held, int i) { held.RenameSection(name(L"S", i), name(L"New", i)); }},
        {"there and back",
         [&](IniStore& held, int i) {
             held.RenameSection(name(L"S", i), L"T");
             held.RenameSection(L"T", name(L"S", i));
         }},
        {"names that are exchanged",
         [&](IniStore& held, int i) {
             held.RenameSection(name(L"S", i), L"T");
             held.RenameSection(name(L"S", i + 1), name(L"S", i));
             held.RenameSection(L"T", name(L"S", i + 1));
         }},
        {"one name that is removed each time",
         [&](IniStore& held, int i) {
             held.RenameSection(name(L"S", i), L"T");
             held.RemoveSection(L"T");
         }},
    };
    for (const auto& [what, rename] : cases) {
        SCOPED_TRACE(what);
        EXPECT_LT(TimeOfRenames(2000, rename), 10 * TimeOfRenames(500, rename));
        EXPECT_LT(TimeOfRenames(2000, rename, "; theirs\n"), 10 * TimeOfRenames(500, rename, "; theirs\n"))
            << "into a text that another program has changed";
    }
}

TEST_F(IniStoreHostile, ManyHeldRenamesOfSectionsThatAreGoneTakeTimeInProportion) {
    const auto time = [](int count) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += "[S" + std::to_string(i) + "]\n";
        IniText ours(text);
        for (int i = 0; i < count; ++i)
            EXPECT_TRUE(ours.RenameSection(ours.FindSection(L"S" + std::to_wstring(i)).value(),
                                           "A new name " + std::to_string(i)));
        double best = std::numeric_limits<double>::infinity();
        for (int round = 0; round < 3; ++round) {
            IniText theirs("[A]\nx=1\n");
            const std::clock_t start = std::clock();
            EXPECT_FALSE(ours.ApplyChangesTo(theirs));
            best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
        }
        return best;
    };
    EXPECT_LT(time(8000), 10 * time(2000));
}

TEST_F(IniStoreHostile, ALongNameBehindManyShortOnesIsFoundInProportion) {
    const auto time = [](int count) {
        const std::string name = Many(50 * count, "x");
        std::string text; // no two of the same name in a row, which would count as one
        for (int i = 0; i < count; ++i)
            text += "[y" + std::to_string(i) + "]\n";
        return TimeOf(text + '[' + name + "]\n", std::wstring(name.begin(), name.end()));
    };
    EXPECT_LT(time(16'000), 10 * time(4000));
}

TEST_F(IniStoreHostile, AHundredThousandKeysOfOneNameHideAllButTheFirst) {
    std::string text = "[A]\n";
    for (int i = 0; i < 100'000; ++i)
        text += "x=" + std::to_string(i) + "\n";
    Open(text + "y=last\n");
    EXPECT_EQ(Text(L"A", L"x"), L"0");
    EXPECT_EQ(Text(L"A", L"y"), L"last");
}

TEST_F(IniStoreHostile, AMillionKeysOfOneSectionAreReadAndWritten) {
    std::string text = "[A]\n";
    std::string expected = text;
    for (int i = 0; i < 1'000'000; ++i) {
        text += "Key" + std::to_string(i) + "=1\n";
        expected += "Key" + std::to_string(i) + (i % 10 == 0 ? "=2\n" : "=1\n");
    }
    Open(text);
    store.Hold();
    std::int16_t value = 0;
    for (int i = 0; i < 1'000'000; i += 10) {
        ASSERT_TRUE(store.ReadInteger(L"key" + std::to_wstring(i), value));
        store.WriteInteger(L"Key" + std::to_wstring(i), 2, L"");
    }
    for (int i = 0; i < 100'000; ++i) {
        store.WriteInteger(L"New" + std::to_wstring(i), 3, L"");
        expected += "New" + std::to_string(i) + "=3\n";
    }
    store.Release();
    EXPECT_TRUE(File() == expected);
}

TEST_F(IniStoreHostile, NoiseIsNeverMoreThanNoise) {
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same noise in every run
    const std::string alphabet = "[[]]==;#\"\\\n\n\n\r \tAxy1\xC3\xB6\xF6\xEF\xBB\xBF"s + '\0';
    store.Hold();
    for (int i = 0; i < 2000; ++i) {
        std::string text(random() % 60, '\0');
        for (char& c : text)
            c = alphabet[random() % alphabet.size()];
        const std::string name = std::to_string(i % 2) + ".ini"; // another name each time: it is loaded anew
        folder.Write(name, "##" + text);
        store.SetFileName(folder.Name(name));
        store.SetSection(L"A");
        std::wstring value;
        static_cast<void>(store.ReadString(L"x", value));
        ASSERT_EQ(folder.Read(name), "##" + text);
        if (i % 40 != 0)
            continue;
        store.WriteString(L"x", L"new");
        store.WriteString(L"y", L" new ");
        store.Hold(); // only SetFileName saves
        store.SetFileName(folder.Name("none.ini"));
        store.SetFileName(folder.Name(name));
        ASSERT_TRUE(store.ReadString(L"x", value) && value == L"new") << testing::PrintToString(text);
        ASSERT_TRUE(store.ReadString(L"y", value) && value == L" new ") << testing::PrintToString(text);
    }
}
