// A lack of memory at each allocation in turn. That nothing leaks is seen by the sanitizer at its end.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "tests/support/FailingMemory.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Utf16.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <vector>

using namespace QuorIniFile;
using Names = std::vector<std::string>;
using Support::FailingMemory;

namespace {

constexpr const char* text = "; mine, \xE4\r\n[A]\r\nx=1\r\nname=\xB0\r\n\r\n[B]\r\ny=1\r\n";

/// A store that has loaded "a.ini", with section "A" selected.
struct Scene {
    explicit Scene(const std::string& file) {
        files.flushes = false;
        folder.Write("a.ini", file);
        store->SetFileName(folder.Name("a.ini"));
        store->SetSection(L"A");
    }
    [[nodiscard]] std::string File() const { return folder.Read("a.ini"); }
    [[nodiscard]] std::int16_t Read(const wchar_t* key) const {
        std::int16_t value = -1;
        EXPECT_TRUE(store->ReadInteger(key, value));
        return value;
    }

    TempFolder folder;
    Support::InterceptedFiles files;
    std::unique_ptr<IniStore> store = std::make_unique<IniStore>(files);
};

/// Does `action` with each of its allocations failing in turn, alone and with all that follow: it raises
/// std::bad_alloc, and the file is as `before` says; done again, it goes well.
void FailEach(const std::function<void(Scene&)>& prepare, const std::function<void(Scene&)>& action,
              const std::function<void(Scene&)>& before, const std::function<void(Scene&)>& after,
              std::size_t atLeast) {
    for (const bool lasting : {false, true}) {
        std::size_t failures = 0;
        for (bool failed = true; failed;) {
            Scene scene(text);
            prepare(scene);
            FailingMemory memory(failures, lasting);
            bool raised = false;
            try {
                action(scene);
            } catch (const std::bad_alloc&) {
                raised = true;
            }
            memory.Restore();
            failed = memory.HasFailed();
            ASSERT_EQ(raised, memory.HasThrown()) << "allocation " << failures;
            EXPECT_EQ(scene.files.openFiles, 0) << "allocation " << failures;
            failures += failed ? 1 : 0;
            if (raised) {
                before(scene);
                EXPECT_EQ(scene.folder.Files(), Names{"a.ini"});
                action(scene);
            }
            after(scene);
            EXPECT_EQ(scene.folder.Files(), Names{"a.ini"});
        }
        EXPECT_GE(failures, atLeast);
    }
}

void Nothing(Scene& /*scene*/) {}

void FileIsAsBefore(Scene& scene) { EXPECT_EQ(scene.File(), text); }

std::string With(const std::string& line, const std::string& other) {
    std::string result = text;
    return result.replace(result.find(line), line.size(), other);
}

} // namespace

TEST(IniStoreMemory, LoadingFailsClearlyAndLoadsTheNextTime) {
    FailEach(
        Nothing,
        [](Scene& scene) {
            std::int16_t value = 0;
            EXPECT_TRUE(scene.store->ReadInteger(L"x", value));
            EXPECT_EQ(value, 1);
        },
        FileIsAsBefore, FileIsAsBefore, 4);
}

TEST(IniStoreMemory, AnIndexOfKeysThatCouldNotBeFinishedIsForgotten) {
    std::string file = "[A]\n";
    for (int i = 0; i < 40; ++i)
        file += "K" + std::to_string(i) + "=0\n";
    file += "[C]\n";
    for (int i = 0; i < 40; ++i) // K5 stands twice, the second time where it stands in A
        file += (i == 1 || i == 5 ? "K5" : "X" + std::to_string(i)) + "=" + std::to_string(i) + "\n";
    std::size_t failures = 0;
    for (bool failed = true; failed;) {
        const Scene scene(file);
        FailingMemory memory(failures, false);
        std::int16_t value = 0;
        try {
            static_cast<void>(scene.store->ReadInteger(L"K39", value));
        } catch (const std::bad_alloc&) {
        }
        memory.Restore();
        failed = memory.HasFailed();
        failures += failed ? 1 : 0;
        scene.store->SetSection(L"C");
        EXPECT_EQ(scene.Read(L"K5"), 1) << failures;
    }
    EXPECT_GT(failures, 4U);
}

TEST(IniStoreMemory, SavingFailsClearlyAndSavesTheNextTime) {
    FailEach([](Scene& scene) { EXPECT_EQ(scene.Read(L"x"), 1); },
             [](Scene& scene) { scene.store->WriteInteger(L"x", 2, L"a comment"); },
             [](Scene& scene) {
                 FileIsAsBefore(scene);
                 const std::int16_t value = scene.Read(L"x");
                 EXPECT_TRUE(value == 1 || value == 2) << "as read, or as written and still to be saved";
             },
             [](Scene& scene) { EXPECT_EQ(scene.File(), With("x=1", "x=2 ; a comment")); }, 15);
}

TEST(IniStoreMemory, TextThatIsSpelledAndAddedSectionsFailClearly) {
    FailEach(
        Nothing,
        [](Scene& scene) {
            scene.store->SetSection(L"A");
            scene.store->WriteString(L"name", L" \u2126, a text that is longer than a short one");
            scene.store->SetSection(L"A section of its own \u00D6");
            scene.store->WriteString(L"K\u00F6ln, which is not a short key", L"\u00B0");
        },
        Nothing,
        [](Scene& scene) {
            EXPECT_EQ(scene.File(),
                      With("\xB0", "\" \\u{2126}, a text that is longer than a short one\"") +
                          "\r\n[A section of its own \xD6]\r\nK\xF6ln, which is not a short key=\xB0\r\n");
        },
        40);
}

TEST(IniStoreMemory, ARecordOfManyKeysIsKeptWholeUntilThereIsMemoryToSaveIt) {
    FailEach(
        [](Scene& scene) {
            scene.store->Hold();
            for (std::int16_t i = 0; i < 40; ++i)
                scene.store->WriteInteger(L"Coefficients" + std::to_wstring(i), i, L"");
            scene.store->Hold();
        },
        [](Scene& scene) {
            scene.store->Release();
            scene.store->Release();
        },
        [](Scene& scene) {
            FileIsAsBefore(scene);
            for (std::int16_t i = 0; i < 40; ++i)
                EXPECT_EQ(scene.Read((L"Coefficients" + std::to_wstring(i)).c_str()), i);
            scene.store->Hold(); // the Release that has failed is done again
            scene.store->Hold();
        },
        [](Scene& scene) {
            std::string keys = "x=1\r\nname=\xB0\r\n";
            for (int i = 0; i < 40; ++i)
                keys += "Coefficients" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
            EXPECT_EQ(scene.File(), With("x=1\r\nname=\xB0\r\n", keys));
        },
        15);
}

TEST(IniStoreMemory, EachKeyStandsOnceHoweverOftenMemoryWasMissingForIt) {
    Scene scene(text);
    scene.store->Hold();
    std::string keys = "x=1\r\nname=\xB0\r\n";
    std::size_t failures = 0;
    for (std::int16_t i = 0; i < 200; ++i) {
        const std::wstring key = L"Coefficients" + std::to_wstring(i);
        for (bool failed = true; failed;) {
            // Each allocation of the write fails before it goes well.
            static std::size_t left = 0;
            FailingMemory memory(left, false);
            try {
                scene.store->WriteInteger(key, i, L"");
            } catch (const std::bad_alloc&) {
                ++failures;
            }
            failed = memory.HasFailed();
            left = failed ? left + 1 : 0;
        }
        keys += "Coefficients" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
    }
    EXPECT_GT(failures, 10U);
    scene.store->Release();
    EXPECT_EQ(scene.File(), With("x=1\r\nname=\xB0\r\n", keys));
}

TEST(IniStoreMemory, TheKeysOfAnotherProgramAreSafeToo) {
    const std::string theirs = With("x=1", "z=9\r\nx=1");
    FailEach(
        [&](Scene& scene) {
            scene.store->Hold();
            scene.store->WriteInteger(L"x", 2, L"");
            scene.folder.Write("a.ini", theirs);
            scene.store->Hold();
        },
        [](Scene& scene) {
            scene.store->Release();
            scene.store->Release();
        },
        [&](Scene& scene) {
            EXPECT_EQ(scene.File(), theirs);
            scene.store->Hold();
            scene.store->Hold();
        },
        [](Scene& scene) { EXPECT_EQ(scene.File(), With("x=1", "z=9\r\nx=2")); }, 20);
}

TEST(IniStoreMemory, LoadingAnewFailsClearlyAndKeepsWhatIsNotSaved) {
    const std::string theirs = With("x=1", "z=9\r\nx=1");
    FailEach(
        [&](Scene& scene) {
            scene.store->Hold();
            scene.store->WriteInteger(L"x", 2, L"");
            scene.folder.Write("a.ini", theirs);
        },
        [](Scene& scene) {
            EXPECT_TRUE(scene.store->FileChanged());
            scene.store->Reload();
        },
        [](Scene& scene) {
            EXPECT_EQ(scene.Read(L"x"), 2);
            std::int16_t value = 0;
            EXPECT_FALSE(scene.store->ReadInteger(L"z", value)) << "the text that was loaded first";
        },
        [](Scene& scene) {
            EXPECT_EQ(scene.Read(L"x"), 2);
            EXPECT_EQ(scene.Read(L"z"), 9);
            scene.store->Release();
            EXPECT_EQ(scene.File(), With("x=1", "z=9\r\nx=2"));
        },
        5);
}

TEST(IniStoreMemory, SectionsAreRemovedAndRenamedOrNot) {
    const std::string after =
        "; mine, \xE4\r\n[A name that is longer than a short one]\r\nx=1\r\nname=\xB0\r\n";
    const auto has = [](Scene& scene, const wchar_t* name) {
        const auto names = scene.store->Sections();
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    FailEach([](Scene& scene) { scene.store->Hold(); },
             [&](Scene& scene) {
                 // What has been done before the lack of memory is held, and not done again.
                 if (has(scene, L"B"))
                     scene.store->RemoveSection(L"B");
                 if (has(scene, L"A"))
                     scene.store->RenameSection(L"A", L"A name that is longer than a short one");
             },
             FileIsAsBefore,
             [&](Scene& scene) {
                 scene.store->Release();
                 EXPECT_EQ(scene.File(), after);
             },
             10);
}

TEST(IniStoreMemory, ARemovedSectionComesBackWithItsFirstKeyOrNotAtAll) {
    const std::string removed = "; mine, \xE4\r\n[A]\r\nx=1\r\nname=\xB0\r\n";
    FailEach(
        [](Scene& scene) {
            scene.store->Hold();
            scene.store->RemoveSection(L"B");
        },
        [](Scene& scene) {
            scene.store->SetSection(L"B");
            scene.store->WriteInteger(L"a key that is longer than a short one", 2, L"");
        },
        [](Scene& scene) {
            FileIsAsBefore(scene);
            EXPECT_EQ(scene.store->Sections(), std::vector<std::wstring>{L"A"});
        },
        [&](Scene& scene) {
            scene.store->Release();
            EXPECT_EQ(scene.File(), removed + "\r\n[B]\r\na key that is longer than a short one=2\r\n");
        },
        5);
}

TEST(IniStoreMemory, ASaveOfRemovedAndRenamedSectionsFailsClearly) {
    const std::string after = "; mine, \xE4\r\n[C]\r\nx=1\r\nname=\xB0\r\n";
    FailEach(
        [](Scene& scene) {
            scene.store->Hold();
            scene.store->RemoveSection(L"B");
            scene.store->RenameSection(L"A", L"C");
            scene.store->Hold();
        },
        [](Scene& scene) {
            scene.store->Release();
            scene.store->Release();
        },
        [](Scene& scene) {
            FileIsAsBefore(scene);
            scene.store->Hold();
            scene.store->Hold();
        },
        [&](Scene& scene) { EXPECT_EQ(scene.File(), after); }, 15);
}

TEST(IniStoreMemory, ASectionThatIsRenamedThereAndBackIsAsBeforeOrHasOneOfItsNames) {
    const std::wstring other = L"A name that is longer than a short one";
    FailEach([](Scene& scene) { scene.store->Hold(); },
             [&](Scene& scene) {
                 if (scene.store->Sections().front() == L"A") // not so when the second renaming has failed
                     scene.store->RenameSection(L"A", other);
                 scene.store->RenameSection(other, L"A");
             },
             [&](Scene& scene) {
                 const std::vector<std::wstring> names = scene.store->Sections();
                 EXPECT_TRUE(names == (std::vector<std::wstring>{L"A", L"B"}) ||
                             names == (std::vector<std::wstring>{other, L"B"}));
                 scene.store->SetSection(names.front());
                 EXPECT_EQ(scene.Read(L"x"), 1);
             },
             [](Scene& scene) {
                 scene.store->Release();
                 FileIsAsBefore(scene);
                 scene.store->SetSection(L"A");
                 EXPECT_EQ(scene.Read(L"x"), 1);
             },
             10);
}

TEST(IniStoreMemory, WarningsFailClearlyAndAreToldTheNextTime) {
    std::vector<IniWarning> warnings;
    FailEach(
        [](Scene& scene) { scene.folder.Write("a.ini", "[A]\nx=1\n[A section of its own]\n[a]\nx 1\n"); },
        [&](Scene& scene) { warnings = scene.store->Warnings(); }, Nothing,
        [&](Scene& /*scene*/) {
            EXPECT_EQ(warnings, (std::vector<IniWarning>{{IniWarningKind::DuplicateSection, 4, 1, L"A", L""},
                                                         {IniWarningKind::MalformedLine, 5, 0, L"a", L""}}));
        },
        8);
}

TEST(IniStoreMemory, AnEditSavesAllThatItWroteOrForgetsIt) {
    FailEach(
        Nothing,
        [](Scene& scene) {
            scene.store->Edit([&scene] {
                scene.store->WriteInteger(L"x", static_cast<std::int16_t>(scene.Read(L"x") + 1), L"");
                scene.store->SetSection(L"A section of its own, which is not a short one");
                scene.store->WriteInteger(L"y", 1, L"a comment");
            });
        },
        [](Scene& scene) {
            FileIsAsBefore(scene);
            EXPECT_EQ(scene.store->Section(), L"A");
            EXPECT_EQ(scene.Read(L"x"), 1);
        },
        [](Scene& scene) {
            EXPECT_EQ(scene.File(), With("x=1", "x=2") + "\r\n[A section of its own, which is not a short "
                                                         "one]\r\ny=1 ; a comment\r\n");
            EXPECT_EQ(scene.store->Section(), L"A");
        },
        30);
}

TEST(IniStoreMemory, AUtf16FileIsLoadedAndSavedOrNot) {
    const std::string before = Utf16Le(u"\uFEFF; \u2126\r\n[A]\r\nx=1\r\n");
    FailEach([&](Scene& scene) { scene.folder.Write("a.ini", before); },
             [](Scene& scene) {
                 EXPECT_EQ(scene.store->Sections(), std::vector<std::wstring>{L"A"});
                 scene.store->WriteString(L"x", L"\u2126, a text that is longer than a short one");
             },
             [&](Scene& scene) { EXPECT_EQ(scene.File(), before); },
             [](Scene& scene) {
                 EXPECT_FALSE(scene.store->FileChanged());
                 EXPECT_EQ(scene.File(), Utf16Le(u"\uFEFF; \u2126\r\n[A]\r\nx=\u2126, a text that is longer "
                                                 u"than a short one\r\n"));
             },
             20);
}

TEST(IniStoreMemory, AFileThatHasBecomeUtf16GetsWhatIsHeldOrStays) {
    const std::string theirs = Utf16Be(u"\uFEFF; \u2126\r\n[A]\r\nx=5\r\nname=1\r\n");
    FailEach(
        [&](Scene& scene) {
            scene.store->Hold();
            scene.store->WriteString(L"x", L"\u00B0");
            scene.folder.Write("a.ini", theirs);
            scene.store->Hold();
        },
        [](Scene& scene) {
            scene.store->Release();
            scene.store->Release();
        },
        [&](Scene& scene) {
            EXPECT_EQ(scene.File(), theirs);
            EXPECT_TRUE(scene.store->FileChanged());
            scene.store->Hold();
            scene.store->Hold();
        },
        [](Scene& scene) {
            EXPECT_EQ(scene.File(), Utf16Be(u"\uFEFF; \u2126\r\n[A]\r\nx=\u00B0\r\nname=1\r\n"));
            EXPECT_FALSE(scene.store->FileChanged());
        },
        20);
}

TEST(IniStoreMemory, AStoreThatEndsWithoutMemoryEndsQuietly) {
    for (std::size_t left = 0; left < 60; ++left) {
        Scene scene(text);
        scene.store->Hold();
        scene.store->WriteInteger(L"x", 2, L"");
        FailingMemory memory(left, true);
        scene.store.reset();
        memory.Restore();
        EXPECT_TRUE(scene.File() == text || scene.File() == With("x=1", "x=2"));
        EXPECT_EQ(scene.folder.Files(), Names{"a.ini"});
    }
}
