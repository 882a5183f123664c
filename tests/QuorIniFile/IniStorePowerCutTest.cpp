// A power cut at any call of a save, after which each change that was not flushed is lost, done or half done.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/SimulatedDisk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <set>
#include <string>
#include <vector>

using namespace QuorIniFile;
using Support::InterceptedFiles;
using Support::SimulatedDisk;
using Files = SimulatedDisk::Files;

namespace {

constexpr const char* path = "/laboratory/a.ini";

struct PowerCut {};

bool IsTemporary(const Files::value_type& file) { return file.first.ends_with(".tmp"); }

void Write(IniFileSystem& files, const wchar_t* key, std::int16_t value) {
    IniStore store(files);
    store.SetFileName(L"/laboratory/a.ini");
    store.SetSection(L"A");
    store.WriteInteger(key, value, L"");
}

void WriteX(IniFileSystem& files) { Write(files, L"x", 2); }

/// Saves what "own.ini" says, with what is held for it, as "a.ini".
void SaveOwnAs(IniFileSystem& files) {
    IniStore store(files);
    store.SetFileName(L"/laboratory/own.ini");
    store.Hold();
    store.SetSection(L"A");
    store.WriteInteger(L"x", 2, L"");
    store.SaveAs(L"/laboratory/a.ini");
    store.Discard();
}

/// Cuts the power at each call of a save that turns `before` into `after`, and leaves other files alone.
void CutEverywhere(const Files& before, const std::string& after,
                   const std::function<void(IniFileSystem&)>& save = WriteX) {
    std::size_t states = 0;
    bool finished = false;
    for (std::size_t at = 0; !finished; ++at) {
        SimulatedDisk disk(before);
        InterceptedFiles files(disk);
        bool isDark = false;
        std::size_t calls = 0;
        files.onCall = [&](std::string_view) {
            if (!isDark && calls++ == at) {
                isDark = true;
                throw PowerCut();
            }
            return isDark ? EIO : 0;
        };
        try {
            save(files);
            finished = true;
        } catch (const PowerCut&) {
        }

        for (const Files& left : disk.AfterPowerCut()) {
            ++states;
            const auto file = left.find(path);
            const auto old = before.find(path);
            const bool isNew = file != left.end() && file->second == after;
            const bool isOld =
                file == left.end() ? old == before.end() : old != before.end() && file->second == old->second;
            ASSERT_TRUE(isNew || (isOld && !finished)) << "call " << at;

            SimulatedDisk next(left);
            save(next);
            Write(next, L"y", 3);
            Files now = next.Now();
            EXPECT_EQ(now.at(path), after + "y=3\n") << "call " << at;
            // What the next save does not remove, because its lock file is lost, can be found.
            now.erase(path);
            for (const auto& [name, bytes] : before) {
                if (name != path) {
                    EXPECT_EQ(now.at(name), bytes) << "call " << at;
                    now.erase(name);
                }
            }
            std::vector<std::string> abandoned;
            for (const auto& [name, bytes] : now)
                abandoned.push_back(name);
            std::vector<std::string> leftovers;
            for (const IniLeftover& leftover : LeftoversOf(L"/laboratory/a.ini", next))
                leftovers.push_back(ToUtf8(leftover.path));
            EXPECT_EQ(leftovers, abandoned) << "call " << at;
            const bool hadTemporary = std::any_of(left.begin(), left.end(), IsTemporary);
            EXPECT_TRUE(abandoned.empty() || hadTemporary) << "call " << at;
        }
    }
    EXPECT_GT(states, 30U);
}

} // namespace

TEST(IniStorePowerCut, LeavesTheOldFileOrTheCompleteNewOne) {
    CutEverywhere(Files{{path, "[A]\nx=1\n"}}, "[A]\nx=2\n");
}

TEST(IniStorePowerCut, LeavesNoFileOrTheCompleteFirstOne) { CutEverywhere({}, "[A]\nx=2\n"); }

TEST(IniStorePowerCut, LeavesOfASaveAsTheOldFileOrTheCompleteNewOne) {
    CutEverywhere(Files{{path, "; other\n[A]\n"}, {"/laboratory/own.ini", "; own\n[A]\nx=1\n"}},
                  "; own\n[A]\nx=2\n", SaveOwnAs);
}

TEST(IniStorePowerCut, LeavesOfASaveAsANewFileNoFileOrACompleteOne) {
    CutEverywhere(Files{{"/laboratory/own.ini", "; own\n[A]\nx=1\n"}}, "; own\n[A]\nx=2\n", SaveOwnAs);
}

TEST(IniStorePowerCut, AfterAFolderThatCouldNotBeFlushedTheNextSaveMakesItDurable) {
    SimulatedDisk disk(Files{{path, "[A]\nx=1\n"}});
    InterceptedFiles files(disk);
    files.onCall = [](std::string_view call) { return call == "SyncFolder" ? EIO : 0; };
    IniStore store(files);
    store.SetFileName(L"/laboratory/a.ini");
    store.SetSection(L"A");
    EXPECT_ANY_THROW(store.WriteInteger(L"x", 2, L""));
    EXPECT_EQ(disk.Now().at(path), "[A]\nx=2\n");
    EXPECT_GT(disk.AfterPowerCut().size(), 1U) << "the old file may come back";

    files.onCall = [](std::string_view) { return 0; };
    store.WriteInteger(L"x", 2, L"");
    for (const Files& left : disk.AfterPowerCut())
        EXPECT_EQ(left.at(path), "[A]\nx=2\n");
}

TEST(IniStorePowerCut, AFileThatIsNotFlushedIsSeenToBeLost) {
    // The simulated disk itself: it must be able to show the fault that a save does not have.
    SimulatedDisk disk;
    const auto file = disk.Open("/t", IniFileSystem::Opening::CreatePrivate);
    ASSERT_EQ(disk.Write(file.value, "text").value, 4U);
    ASSERT_EQ(disk.Rename("/t", "/a"), 0);
    ASSERT_EQ(disk.SyncFolder("/"), 0);
    std::set<std::string> left;
    for (const Files& files : disk.AfterPowerCut())
        left.insert(files.at("/a"));
    using namespace std::string_literals;
    EXPECT_EQ(left,
              (std::set<std::string>{"", "\0\0x"s, "\0\0xt"s, "t", "t\0x"s, "t\0xt"s, "te", "tex", "text"}));
    disk.Close(file.value);
}
