#include "QuorIniFile/detail/IniError.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace QuorIniFile;

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
