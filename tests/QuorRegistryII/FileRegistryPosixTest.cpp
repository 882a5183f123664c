// The folder of the user, where HOME names it.

#include "QuorRegistryII/FileRegistry.h"

#include "tests/support/Environment.h"
#include "tests/support/RaisedError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;
using QuorIniFile::QuorError;
using QuorRegistryII::FileRegistry;
using Support::ChangedVariable;
using Support::ErrorOf;

TEST(FileRegistry, TheFirstWriteMakesItsFoldersForTheUserAlone) {
    const TempFolder folder;
    FileRegistry registry(L"Probe Setup", folder.Name("new/folder"));
    registry.WriteValue(L"A", L"x", L"1");
    EXPECT_EQ(fs::status(folder.Path("new/folder")).permissions(), fs::perms::owner_all);
    EXPECT_EQ(folder.Read("new/folder/Probe Setup.ini"), "[A]\nx=1\n");
}

TEST(FileRegistry, WithoutAFolderItIsTheUsersConfigurationFolder) {
    const TempFolder folder;
    const ChangedVariable home("HOME", folder.Path().string().c_str());
    {
        const ChangedVariable xdg("XDG_CONFIG_HOME", folder.Path("xdg").string().c_str());
        EXPECT_EQ(FileRegistry(L"App").FileName(), folder.Name("xdg/App/App.ini"));
    }
    for (const char* notAbsolute : {static_cast<const char*>(nullptr), "", "relative"}) {
        const ChangedVariable xdg("XDG_CONFIG_HOME", notAbsolute);
        EXPECT_EQ(FileRegistry(L"App").FileName(), folder.Name(".config/App/App.ini"));
    }
}

TEST(FileRegistry, AUserWithoutAHomeHasNoRegistry) {
    const ChangedVariable home("HOME", nullptr);
    const ChangedVariable xdg("XDG_CONFIG_HOME", nullptr);
    const QuorError error = ErrorOf([] { const FileRegistry registry(L"App"); });
    EXPECT_EQ(error.Number(), 76);
    EXPECT_EQ(error.Source(), L"QuorRegistryII");
    EXPECT_EQ(error.Description(), L"Path not found: App.ini: The user's configuration folder is not known, "
                                   L"because HOME (on Windows APPDATA) is not set");
    ASSERT_NE(error.Cause(), nullptr) << "another language says it in its words";
    EXPECT_EQ(error.Cause()->code, QuorIniFile::INI_CAUSE_NO_HOME);
}
