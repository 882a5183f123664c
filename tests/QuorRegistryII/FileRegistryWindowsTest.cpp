// The folder of the user, where APPDATA names it.

#include "QuorRegistryII/FileRegistry.h"

#include "tests/support/Environment.h"
#include "tests/support/RaisedError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

using QuorRegistryII::FileRegistry;
using Support::ChangedVariable;
using Support::ErrorOf;

TEST(FileRegistry, WithoutAFolderItIsTheUsersApplicationData) {
    const TempFolder folder;
    const ChangedVariable data("APPDATA", folder.Path().string().c_str());
    FileRegistry registry(L"App");
    EXPECT_EQ(registry.FileName(), folder.Path().wstring() + L"\\App\\App.ini");
    registry.WriteValue(L"A", L"x", L"1");
    EXPECT_EQ(folder.Read("App/App.ini"), "[A]\nx=1\n");
}

TEST(FileRegistry, AUserWithoutApplicationDataHasNoRegistry) {
    for (const char* const none : {static_cast<const char*>(nullptr), "relative", "\\App"}) {
        const ChangedVariable data("APPDATA", none);
        const auto error = ErrorOf([] { const FileRegistry registry(L"App"); });
        EXPECT_EQ(error.Number(), 76);
        EXPECT_EQ(error.Description(), L"Path not found: App.ini: The user's configuration folder is not "
                                       L"known, because HOME (on Windows APPDATA) is not set");
    }
}

TEST(FileRegistry, AnApplicationNameIsNoPathAndNoStream) {
    for (const wchar_t* const name : {L"a\\b", L"C:a", L"a:b", L"a*", L"a.", L"a ", L"a\tb"})
        EXPECT_EQ(ErrorOf([&] { const FileRegistry registry(name, L"C:\\"); }).Number(), 52)
            << testing::PrintToString(std::wstring(name));
    EXPECT_NO_THROW(const FileRegistry registry(L"Probe Setup 1.0", L"C:\\"));
}
