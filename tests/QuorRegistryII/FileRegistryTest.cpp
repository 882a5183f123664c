#include "QuorRegistryII/FileRegistry.h"

#include "tests/support/RaisedError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using QuorIniFile::QuorError;
using QuorRegistryII::FileRegistry;
using Support::ErrorOf;

TEST(FileRegistry, WhatIsWrittenIsReadInALaterRun) {
    const TempFolder folder;
    FileRegistry(L"Probe Setup", folder.Path().wstring()).WriteValue(L"frmCVDSettings", L"Left", L" 120 ");
    FileRegistry later(L"Probe Setup", folder.Path().wstring());
    std::wstring value;
    EXPECT_TRUE(later.ReadValue(L"FRMCVDSETTINGS", L"left", value));
    EXPECT_EQ(value, L" 120 ");
    EXPECT_EQ(folder.Read("Probe Setup.ini"), "[frmCVDSettings]\nLeft=\" 120 \"\n");
}

TEST(FileRegistry, WhatIsMissingLeavesTheVariableAndMakesNoFile) {
    const TempFolder folder;
    FileRegistry registry(L"Probe Setup", folder.Name("new/folder"));
    std::wstring value = L"kept";
    EXPECT_FALSE(registry.ReadValue(L"A", L"x", value));
    EXPECT_TRUE(folder.Files().empty());
    registry.WriteValue(L"A", L"y", L"1");
    EXPECT_FALSE(registry.ReadValue(L"A", L"x", value));
    EXPECT_EQ(value, L"kept");
}

TEST(FileRegistry, TwoRegistriesOfOneApplicationAgree) {
    const TempFolder folder;
    FileRegistry one(L"Probe Setup", folder.Path().wstring());
    FileRegistry two(L"Probe Setup", folder.Path().wstring());
    one.WriteValue(L"A", L"x", L"1");
    two.WriteValue(L"A", L"x", L"2");
    std::wstring value;
    EXPECT_TRUE(one.ReadValue(L"A", L"x", value));
    EXPECT_EQ(value, L"2");
}

TEST(FileRegistry, AnApplicationNameMustBeAFileName) {
    for (const std::wstring& name : {std::wstring(), std::wstring(L"."), std::wstring(L".."),
                                     std::wstring(L"a/b"), std::wstring(L"a\0b", 3)})
        EXPECT_EQ(ErrorOf([&] { const FileRegistry registry(name, L"/tmp"); }).Number(), 52);
    const QuorError error = ErrorOf([] { const FileRegistry registry(L"a/b", L"/tmp"); });
    EXPECT_EQ(error.Description(), L"Bad file name or number: a/b");
    ASSERT_NE(error.Cause(), nullptr);
    EXPECT_EQ(error.Cause()->code, QuorIniFile::INI_CAUSE_NONE);
    EXPECT_EQ(error.Cause()->fileName, L"a/b");
}

TEST(FileRegistry, AFileThatCannotBeReadIsAnErrorNotAMissingValue) {
    const TempFolder folder;
    fs::create_directory(folder.Path("App.ini"));
    FileRegistry registry(L"App", folder.Path().wstring());
    std::wstring value;
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(registry.ReadValue(L"A", L"x", value)); }).Number(), 75);
}
