// The folder of the user, where APPDATA names it.

#include "QuorRegistryII/FileRegistry.h"

#include "QuorIniFile/QuorError.h"
#include "tests/support/Environment.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

using QuorIniFile::QuorError;
using QuorRegistryII::FileRegistry;
using Support::ChangedVariable;

namespace {

std::int32_t NumberRaisedFor(const std::wstring& application, const std::wstring& folder) {
    try {
        const FileRegistry registry(application, folder);
    } catch (const QuorError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace

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
        EXPECT_EQ(NumberRaisedFor(L"App", L""), 76);
        try {
            const FileRegistry registry(L"App");
        } catch (const QuorError& error) {
            EXPECT_EQ(error.Description(), L"Path not found: App.ini: The user's configuration folder is not "
                                           L"known, because HOME (on Windows APPDATA) is not set");
        }
    }
}

TEST(FileRegistry, AnApplicationNameIsNoPathAndNoStream) {
    for (const wchar_t* const name : {L"a\\b", L"C:a", L"a:b", L"a*", L"a.", L"a ", L"a\tb"})
        EXPECT_EQ(NumberRaisedFor(name, L"C:\\"), 52) << testing::PrintToString(std::wstring(name));
    EXPECT_EQ(NumberRaisedFor(L"Probe Setup 1.0", L"C:\\"), 0);
}
