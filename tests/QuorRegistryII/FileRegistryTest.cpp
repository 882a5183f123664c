#include "QuorRegistryII/FileRegistry.h"

#include "QuorIniFile/QuorError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using QuorIniFile::QuorError;
using QuorRegistryII::FileRegistry;

namespace {

/// Sets or, with nothing, removes a variable of the environment while it lives.
class Environment {
public:
    Environment(const char* variable, const char* value) : m_variable(variable) {
        if (const char* const before = std::getenv(variable)) {
            m_wasSet = true;
            m_before = before;
        }
        Set(value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { Set(m_wasSet ? m_before.c_str() : nullptr); }

private:
    void Set(const char* value) const {
        if (value != nullptr)
            ::setenv(m_variable, value, 1);
        else
            ::unsetenv(m_variable);
    }

    const char* m_variable;
    bool m_wasSet = false;
    std::string m_before;
};

template <class Action>
std::int32_t NumberRaisedBy(const Action& action) {
    try {
        action();
    } catch (const QuorError& error) {
        return error.Number();
    }
    return 0;
}

/// The error that `action` raises.
template <class Action>
QuorError ErrorOf(const Action& action) {
    try {
        action();
    } catch (const QuorError& error) {
        return error;
    }
    ADD_FAILURE() << "nothing was raised";
    return {0, L"", L""};
}

} // namespace

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

TEST(FileRegistry, TheFirstWriteMakesItsFoldersForTheUserAlone) {
    const TempFolder folder;
    FileRegistry registry(L"Probe Setup", folder.Name("new/folder"));
    registry.WriteValue(L"A", L"x", L"1");
    EXPECT_EQ(fs::status(folder.Path("new/folder")).permissions(), fs::perms::owner_all);
    EXPECT_EQ(folder.Read("new/folder/Probe Setup.ini"), "[A]\nx=1\n");
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

TEST(FileRegistry, WithoutAFolderItIsTheUsersConfigurationFolder) {
    const TempFolder folder;
    const Environment home("HOME", folder.Path().c_str());
    {
        const Environment xdg("XDG_CONFIG_HOME", folder.Path("xdg").c_str());
        EXPECT_EQ(FileRegistry(L"App").FileName(), folder.Name("xdg/App/App.ini"));
    }
    for (const char* notAbsolute : {static_cast<const char*>(nullptr), "", "relative"}) {
        const Environment xdg("XDG_CONFIG_HOME", notAbsolute);
        EXPECT_EQ(FileRegistry(L"App").FileName(), folder.Name(".config/App/App.ini"));
    }
}

TEST(FileRegistry, AUserWithoutAHomeHasNoRegistry) {
    const Environment home("HOME", nullptr);
    const Environment xdg("XDG_CONFIG_HOME", nullptr);
    const QuorError error = ErrorOf([] { const FileRegistry registry(L"App"); });
    EXPECT_EQ(error.Number(), 76);
    EXPECT_EQ(error.Source(), L"QuorRegistryII");
    EXPECT_EQ(error.Description(), L"Path not found: App.ini: The user's configuration folder is not known, "
                                   L"because HOME is not set");
    ASSERT_NE(error.Cause(), nullptr) << "another language says it in its words";
    EXPECT_EQ(error.Cause()->code, QuorIniFile::INI_CAUSE_NO_HOME);
}

TEST(FileRegistry, AnApplicationNameMustBeAFileName) {
    for (const std::wstring& name : {std::wstring(), std::wstring(L"."), std::wstring(L".."),
                                     std::wstring(L"a/b"), std::wstring(L"a\0b", 3)})
        EXPECT_EQ(NumberRaisedBy([&] { const FileRegistry registry(name, L"/tmp"); }), 52);
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
    EXPECT_EQ(NumberRaisedBy([&] { static_cast<void>(registry.ReadValue(L"A", L"x", value)); }), 75);
}
