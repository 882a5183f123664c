#include "QuorConversions/core/modPaths.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace QuorConversions;

namespace {

struct Parts {
    const wchar_t* path;
    const wchar_t* folder;
    const wchar_t* fileName;
    const wchar_t* extension;
};

void ExpectParts(const Parts& parts) {
    EXPECT_EQ(GetFolderPart(parts.path), parts.folder);
    EXPECT_EQ(GetFileNamePart(parts.path), parts.fileName);
    EXPECT_EQ(GetExtensionPart(parts.path), parts.extension);
}

} // namespace

TEST(modPathsTest, TakesAPathApartAtItsLastBackslash) {
    for (const Parts& parts : {
             Parts{L"C:\\Probes\\one.cvd", L"C:\\Probes\\", L"one.cvd", L"cvd"},
             Parts{L"C:\\Probes.old\\one", L"C:\\Probes.old\\", L"one", L""},
             Parts{L"one.two.cvd", L"", L"one.two.cvd", L"cvd"},
             Parts{L"C:\\Probes\\", L"C:\\Probes\\", L"", L""},
             Parts{L"one.", L"", L"one.", L""},
             Parts{L"\\\\server\\share\\one.i90", L"\\\\server\\share\\", L"one.i90", L"i90"},
             Parts{L"*.cvd", L"", L"*.cvd", L"cvd"},
             Parts{L"", L"", L"", L""},
             // With a backslash anywhere a slash is a character like any other.
             Parts{L"C:\\Probes/one.cvd", L"C:\\", L"Probes/one.cvd", L"cvd"},
             Parts{L"/home/a\\b", L"/home/a\\", L"b", L""},
         })
        ExpectParts(parts);
}

TEST(modPathsTest, TakesAPathWithoutBackslashApartWhereTheSystemUsesTheSlash) {
    if (std::filesystem::path::preferred_separator != '/')
        GTEST_SKIP() << "this system separates with a backslash";
    for (const Parts& parts : {
             Parts{L"/home/probes/one.cvd", L"/home/probes/", L"one.cvd", L"cvd"},
             Parts{L"/home/probes.d/one", L"/home/probes.d/", L"one", L""},
             Parts{L"probes/", L"probes/", L"", L""},
         })
        ExpectParts(parts);
}
