#include "QuorIniFile/detail/IniError.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace QuorIniFile;
using Texts = std::vector<std::wstring>;

TEST(IniError, NamesTheFileAndTheCause) {
    const QuorError error = FileError(ERR_PATH_FILE_ACCESS, L"a.ini", L"It is a folder");
    EXPECT_EQ(error.Number(), 75);
    EXPECT_EQ(error.Source(), L"QuorIniFile");
    EXPECT_EQ(error.Description(), L"Path/File access error: a.ini: It is a folder");
}

TEST(IniError, EveryNumberOfTheStoreHasItsText) {
    const std::pair<EErrorNumber, const wchar_t*> cases[] = {
        {ERR_BAD_FILE_NAME, L"Bad file name or number: a.ini"},
        {ERR_FILE_NOT_FOUND, L"File not found: a.ini"},
        {ERR_DEVICE_IO, L"Device I/O error: a.ini"},
        {ERR_DISK_FULL, L"Disk full: a.ini"},
        {ERR_PERMISSION_DENIED, L"Permission denied: a.ini"},
        {ERR_PATH_FILE_ACCESS, L"Path/File access error: a.ini"},
        {ERR_PATH_NOT_FOUND, L"Path not found: a.ini"},
    };
    for (const auto& [number, text] : cases)
        EXPECT_EQ(FileError(number, L"a.ini").Description(), text);
}

TEST(IniError, CarriesWhatItsDescriptionSays) {
    const QuorError error =
        FileError(ERR_PERMISSION_DENIED, L"a.ini", INI_CAUSE_IN_USE_BY_STOPPED, {L"12 (host)"});
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Source(), L"QuorIniFile");
    EXPECT_EQ(error.Description(),
              L"Permission denied: a.ini: In use by process 12 (host), which is stopped");
    ASSERT_TRUE(error.Cause());
    EXPECT_EQ(error.Cause()->code, INI_CAUSE_IN_USE_BY_STOPPED);
    EXPECT_EQ(error.Cause()->fileName, L"a.ini");
    EXPECT_EQ(error.Cause()->values, Texts{L"12 (host)"});
}

TEST(IniError, HasACauseWithoutANumberWhereItsOwnNumberSaysItAll) {
    const QuorError error = FileError(ERR_FILE_NOT_FOUND, L"a.ini");
    ASSERT_TRUE(error.Cause());
    EXPECT_EQ(error.Cause()->code, INI_CAUSE_NONE);
    EXPECT_EQ(error.Cause()->fileName, L"a.ini");
    EXPECT_EQ(error.Cause()->values, Texts{});
}

TEST(IniError, KeepsTheWordsOfTheSystemAsAValue) {
    const QuorError error = FileError(ERR_PATH_FILE_ACCESS, L"a.ini", L"Is a directory");
    EXPECT_EQ(error.Cause()->code, INI_CAUSE_SYSTEM);
    EXPECT_EQ(error.Cause()->values, Texts{L"Is a directory"});
}

TEST(IniError, EveryCauseKeepsItsNumberAndItsText) {
    const struct {
        std::int32_t cause;
        Texts values;
        const wchar_t* text;
    } cases[] = {
        {1, {L"Is a directory"}, L"Is a directory"},
        {2, {L"x.tmp", L"Is a directory"}, L"x.tmp: Is a directory"},
        {10, {}, L"It is not a regular file"},
        {11, {}, L"It is a mount point, which cannot be replaced"},
        {12, {}, L"The file is read-only"},
        {13, {}, L"Its folder does not allow new files"},
        {14, {L"x.lock"}, L"x.lock: It is not the lock file of a save"},
        {15,
         {},
         L"The user's configuration folder is not known, because HOME (on Windows APPDATA) is not set"},
        {20, {}, L"It is larger than 4 GiB"},
        {21, {}, L"It would be larger than 4 GiB"},
        {22, {}, L"It is larger than 4 GiB as UTF-8"},
        {23, {}, L"The file is UTF-16 text without a byte-order mark"},
        {24, {}, L"The file is UTF-16 text with an odd number of bytes"},
        {25, {L"7"}, L"The file is UTF-16 text with half a surrogate pair in line 7"},
        {26, {}, L"The file is UTF-32 text"},
        {27, {}, L"With these changes it would be UTF-16 text"},
        {28, {}, L"With these changes it would be no valid UTF-16 text"},
        {29, {}, L"With these changes it would be UTF-32 text"},
        {40, {}, L"In use by another program"},
        {41, {L"12 (host)"}, L"In use by process 12 (host)"},
        {42, {L"12"}, L"In use by process 12, which is stopped"},
        {43, {L"12"}, L"In use by process 12, which has ended; a process that it has started has its lock"},
        {44, {}, L"Another program keeps writing it"},
        {45, {L"x.lock"}, L"Another program keeps removing x.lock"},
        {46, {}, L"Another program has replaced it at the same moment"},
        {47, {L"x.kept"}, L"Another program has replaced it at the same moment; its file is kept as x.kept"},
        {60, {L"P ~"}, L"There is no section \"P ~\""},
        {61, {L"P"}, L"There is a section \"P\" already"},
        {62, {L"P"}, L"No section can have the name \"P\""},
        {63, {L"P"}, L"No key can have the name \"P\""},
        {64,
         {L"P"},
         L"Another program has removed or renamed the section \"P\", of which only a part was written"},
        {65,
         {L"P"},
         L"The file is in Latin-1, which cannot spell the name \"P\"; save the file as UTF-8 first"},
        {80, {}, L"An edit of it has not ended"},
        {81, {}, L"No edit can begin between Hold and Release"},
        {82, {}, L"A record could not be written whole, so nothing was saved"},
    };
    std::vector<std::int32_t> known;
    for (const auto& [cause, values, text] : cases) {
        known.push_back(cause);
        EXPECT_EQ(FileError(ERR_PATH_FILE_ACCESS, L"a.ini", EIniCause{cause}, values).Description(),
                  std::wstring(L"Path/File access error: a.ini: ") + text);
    }
    const std::vector<std::int32_t> all = {
#define QUOR_INI_CAUSE(number, name, text) number,
#include "QuorIniFile/IniTexts.def"
    };
    EXPECT_EQ(known, all);
}

TEST(IniError, ValuesStandAsTheyAreInTheirPlaces) {
    EXPECT_EQ(FillTildes(L"~ of ~.", {L" a|b ", L"~"}), L" a|b  of ~.");
    EXPECT_EQ(FillTildes(L"~ of ~.", {L"a", L"b", L"c"}), L"a of b.");
    EXPECT_EQ(FillTildes(L"~ of ~.", {L"a"}), L"a of .");
    EXPECT_EQ(FillTildes(L"", {L"a"}), L"");
}
