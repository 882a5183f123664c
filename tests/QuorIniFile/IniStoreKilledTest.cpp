// A process that is killed at any system call of a save, and system calls of the real disk that fail.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/Process.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <sys/mount.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using namespace std::chrono_literals;
using Names = std::vector<std::string>;
using Support::InterceptedFiles;

namespace {

constexpr const char* oldText = "; mine\n[A]\nx=1\n";
constexpr const char* newText = "; mine\n[A]\nx=2\n";
constexpr const char* firstText = "[A]\nx=2\n";

void Save(IniFileSystem& files, const std::wstring& file, const wchar_t* key, std::int16_t value) {
    IniStore store(files);
    store.SetFileName(file);
    store.SetSection(L"A");
    store.WriteInteger(key, value, L"");
}

enum class End { NotAllowed, Stopped, Finished };

/// Runs `action` in a process of its own. At its stop number `at`, of which there is one before and one after
/// each system call, it waits while `meanwhile` is done to it, and goes on if it still can.
End StopAt(int at, const std::function<void()>& action, const std::function<void(pid_t)>& meanwhile) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            ::_exit(2);
        static_cast<void>(std::raise(SIGSTOP));
        try {
            action();
        } catch (...) {
            ::_exit(3);
        }
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    if (!WIFSTOPPED(status))
        return End::NotAllowed;
    for (int stop = 0; stop < at; ++stop) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
        if (!WIFSTOPPED(status)) {
            EXPECT_EQ(status, 0) << "the save itself went well";
            return End::Finished;
        }
    }
    meanwhile(child);
    ::ptrace(PTRACE_DETACH, child, nullptr, nullptr);
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) || status == 0) << "the save goes well whenever it can go on";
    return End::Stopped;
}

void Kill(pid_t process) { ::kill(process, SIGKILL); }

bool HasLeftovers(const TempFolder& folder) {
    const Names names = folder.Files();
    return std::any_of(names.begin(), names.end(),
                       [](const std::string& name) { return name.starts_with(".quor-"); });
}

void SaveX(const std::wstring& file) { Save(IniFileSystem::System(), file, L"x", 2); }

/// Adds 1 to x.
void EditX(const std::wstring& file) {
    IniStore store;
    store.SetFileName(file);
    store.SetSection(L"A");
    store.Edit([&store] {
        std::int16_t value = 0;
        static_cast<void>(store.ReadInteger(L"x", value));
        store.WriteInteger(L"x", static_cast<std::int16_t>(value + 1), L"");
    });
}

constexpr const char* ownText = "; own\n[A]\nz=1\n";
constexpr const char* ownTextHeld = "; own\n[A]\nz=2\n";

void PrepareOwn(const TempFolder& folder) { folder.Write("own.ini", ownText); }

/// Saves the text of "own.ini" beside `file`, with what is held for it, as `file`.
void SaveOwnAs(const std::wstring& file) {
    IniStore store;
    store.SetFileName((fs::path(file).parent_path() / "own.ini").wstring());
    store.Hold();
    store.SetSection(L"A");
    store.WriteInteger(L"z", 2, L"");
    store.SaveAs(file);
    store.Discard();
}

/// Kills a save of "a.ini" at each system call. `target` is the file behind that name, `before` its text.
void KillEverywhere(const std::function<void(const TempFolder&)>& prepare, const std::string& target,
                    const std::optional<std::string>& before, const std::string& after,
                    const std::function<void(const std::wstring& file)>& save = SaveX) {
    int stops = 0;
    int leftovers = 0;
    for (End end = End::Stopped; end == End::Stopped; ++stops) {
        const TempFolder folder;
        prepare(folder);
        end = StopAt(
            stops, [&] { save(folder.Name("a.ini")); }, Kill);
        if (end == End::NotAllowed)
            GTEST_SKIP() << "this system does not let one process trace another";

        std::optional<std::string> text;
        if (fs::exists(folder.Path(target)))
            text = folder.Read(target);
        ASSERT_TRUE(text == after || (text == before && end == End::Stopped)) << "stop " << stops;
        leftovers += HasLeftovers(folder) ? 1 : 0;
        if (fs::exists(folder.Path("own.ini"))) {
            EXPECT_EQ(folder.Read("own.ini"), ownText) << "stop " << stops;
        }

        InterceptedFiles next;
        Save(next, folder.Name("a.ini"), L"y", 3);
        EXPECT_LT(next.paused, 1s) << "stop " << stops;
        EXPECT_EQ(folder.Read(target), text.value_or("[A]\n") + "y=3\n") << "stop " << stops;
        EXPECT_FALSE(HasLeftovers(folder)) << "stop " << stops;
    }
    EXPECT_GT(stops, 30);
    EXPECT_GT(leftovers, 5) << "of kills in the middle something is left";
}

/// Removes what a save has beside its file.
void RemoveFilesOfSaves(const TempFolder& folder) {
    for (const std::string& name : folder.Files()) {
        if (name.starts_with(".quor-"))
            fs::remove(folder.Path(name));
    }
}

/// Stops a save of x in "a.ini" at each system call, and does something to its files meanwhile.
void DisturbEverywhere(const std::function<void(const TempFolder&)>& disturb, const std::string& after) {
    int stops = 0;
    for (End end = End::Stopped; end == End::Stopped; ++stops) {
        const TempFolder folder;
        folder.Write("a.ini", oldText);
        end = StopAt(
            stops, [&] { Save(IniFileSystem::System(), folder.Name("a.ini"), L"x", 2); },
            [&](pid_t) { disturb(folder); });
        if (end == End::NotAllowed)
            GTEST_SKIP() << "this system does not let one process trace another";
        if (end == End::Stopped) {
            ASSERT_EQ(folder.Read("a.ini"), after) << "stop " << stops;
        }
    }
    EXPECT_GT(stops, 60);
}

// System calls that fail, by means of strace --------------------------------------------------------------

/// Saves the key K0 of section A of "a.ini" under strace with these options; its log is "log" in `logs`.
struct TracedSave {
    int exitCode;
    std::string output;
};

TracedSave SaveTraced(const TempFolder& folder, const TempFolder& logs, const Names& options) {
    Names command{"strace", "-qq", "-E", "ASAN_OPTIONS=detect_leaks=0", "-o", logs.Path("log").string()};
    command.insert(command.end(), options.begin(), options.end());
    command.insert(command.end(), {QUOR_INI_SAVER, "keys", folder.Path("a.ini").string(), "A", "1"});
    Process strace(command);
    std::string output = strace.ReadLine();
    return {strace.Wait(), std::move(output)};
}

struct SystemCall {
    std::string name;
    int number; // among those of its name in the life of the process
};

/// The calls that a save makes about files, from the first that names its folder.
std::vector<SystemCall> CallsOf(const TempFolder& folder, const TempFolder& logs) {
    std::map<std::string, int> counts;
    std::vector<SystemCall> calls;
    bool hasBegun = false;
    bool isLookingAtMemory = false; // a sanitizer does so by writing it into a pipe
    std::ifstream log(logs.Path("log"));
    for (std::string line; std::getline(log, line);) {
        const std::string name = line.substr(0, line.find('('));
        const int number = ++counts[name];
        hasBegun = hasBegun || (name != "execve" && line.find(folder.Path().string()) != std::string::npos);
        const bool isSanitizer = name.starts_with("pipe") || (isLookingAtMemory && name == "write");
        isLookingAtMemory = name.starts_with("pipe") || (isLookingAtMemory && name != "write");
        // Memory has tests of its own.
        if (hasBegun && !isSanitizer && line.find('(') != std::string::npos && name != "mmap")
            calls.push_back({name, number});
    }
    return calls;
}

constexpr const char* beforeTraced = "; mine\n[A]\nK0=1\n";
constexpr const char* afterTraced = "; mine\n[A]\nK0=0\n";
constexpr const char* nextTraced = "; mine\n[A]\nK0=2\n";

void PrepareTraced(const TempFolder& folder) {
    folder.Write("a.ini", beforeTraced);
    // Where the file system has no attributes, there are fewer calls to fail.
    static_cast<void>(::setxattr(folder.Path("a.ini").c_str(), "user.quor", "kept", 4, 0));
}

} // namespace

TEST(IniStoreKilled, AtEverySystemCallOfASaveTheOldFileOrTheNewOneIsThere) {
    KillEverywhere([](const TempFolder& folder) { folder.Write("a.ini", oldText); }, "a.ini", oldText,
                   newText);
}

TEST(IniStoreKilled, AtEverySystemCallBehindALinkTheOldFileOrTheNewOneIsThere) {
    KillEverywhere(
        [](const TempFolder& folder) {
            folder.Write("real.ini", oldText);
            fs::create_symlink("real.ini", folder.Path("a.ini"));
        },
        "real.ini", oldText, newText);
}

TEST(IniStoreKilled, AtEverySystemCallOfTheFirstSaveThereIsNoFileOrACompleteOne) {
    KillEverywhere([](const TempFolder&) {}, "a.ini", std::nullopt, firstText);
}

TEST(IniStoreKilled, AtEverySystemCallACleanerMayRemoveItsFilesAndTheSaveGoesWell) {
    DisturbEverywhere(RemoveFilesOfSaves, newText);
}

TEST(IniStoreKilled, AtEverySystemCallAnotherProcessMayTakeItsLockAndSaveAndNothingIsLost) {
    DisturbEverywhere(
        [](const TempFolder& folder) {
            RemoveFilesOfSaves(folder);
            Save(IniFileSystem::System(), folder.Name("a.ini"), L"y", 3);
        },
        std::string(newText) + "y=3\n");
}

TEST(IniStoreKilled, AtEverySystemCallOfAnEditTheOldFileOrTheNewOneIsThere) {
    KillEverywhere([](const TempFolder& folder) { folder.Write("a.ini", oldText); }, "a.ini", oldText,
                   newText, EditX);
}

TEST(IniStoreKilled, AtEverySystemCallOfASaveAsTheOtherFileIsTheOldOneOrTheNewOne) {
    KillEverywhere(
        [](const TempFolder& folder) {
            PrepareOwn(folder);
            folder.Write("a.ini", oldText);
        },
        "a.ini", oldText, ownTextHeld, SaveOwnAs);
}

TEST(IniStoreKilled, AtEverySystemCallOfASaveAsANewFileThereIsNoneOrACompleteOne) {
    KillEverywhere(PrepareOwn, "a.ini", std::nullopt, ownTextHeld, SaveOwnAs);
}

TEST(IniStoreKilled, EverySystemCallThatFailsIsAnErrorWithTheOldFileOrAnInterruptionWithTheNewOne) {
    const TempFolder logs;
    Names trace{"-e", "trace=%file,%desc"};
    std::vector<SystemCall> calls;
    try {
        const TempFolder folder;
        PrepareTraced(folder);
        if (SaveTraced(folder, logs, trace).exitCode != 0)
            GTEST_SKIP() << "this system does not let strace trace";
        calls = CallsOf(folder, logs);
    } catch (const std::system_error&) {
        GTEST_SKIP() << "strace is not installed";
    }
    ASSERT_GT(calls.size(), 20U);

    bool isRenamed = false;
    std::set<std::string> doneWithout;
    int flushes = 0; // of the new text, and of the folder with its name
    for (const auto& [name, number] : calls) {
        for (const std::string error : {"EIO", "ENOSPC", "EDQUOT", "EINTR"}) {
            const std::string injection = name + ":error=" + error + ":when=" + std::to_string(number);
            const TempFolder folder;
            PrepareTraced(folder);
            Names options = trace;
            options.insert(options.end(), {"-e", "inject=" + injection});
            const TracedSave save = SaveTraced(folder, logs, options);
            const std::string text = folder.Read("a.ini");
            // Closing has nothing to tell after a flush, nor has what is tidied up when all is flushed.
            if (error == "EINTR" || name == "close" || flushes == 2) {
                EXPECT_EQ(save.exitCode, 0) << injection << ": " << save.output;
                EXPECT_EQ(text, afterTraced) << injection;
            } else if (save.exitCode == 0) {
                EXPECT_EQ(text, afterTraced) << injection;
                doneWithout.insert(name);
            } else {
                EXPECT_EQ(save.exitCode, 1) << injection;
                EXPECT_NE(save.output.find(folder.Path("a.ini").string()), std::string::npos) << save.output;
                EXPECT_EQ(text, isRenamed ? afterTraced : beforeTraced) << injection;
            }
            Save(IniFileSystem::System(), folder.Name("a.ini"), L"K0", 2);
            EXPECT_EQ(folder.Read("a.ini"), nextTraced) << injection;
            EXPECT_EQ(folder.Files(), Names{"a.ini"}) << injection;
        }
        isRenamed = isRenamed || name.starts_with("rename");
        flushes += name == "fsync" ? 1 : 0;
    }
    EXPECT_TRUE(isRenamed);
    EXPECT_EQ(flushes, 2);
    // Who else may use the lock file, and whether a file can be without a name.
    EXPECT_EQ(doneWithout.size(), 2U) << testing::PrintToString(doneWithout);
}

TEST(IniStoreKilled, WhereTheSystemRefusesWhatASaveWouldLikeItGoesAnotherWay) {
    // No locks, no exchange, no names for files without one, in the words of several systems.
    for (const std::string refusal :
         {"flock:error=ENOLCK", "flock:error=EOPNOTSUPP", "renameat2:error=EINVAL", "renameat2:error=ENOSYS",
          "linkat:error=EPERM", "linkat:error=ENOENT", "linkat:error=EMLINK", "access:error=ENOENT"}) {
        const TempFolder logs;
        const TempFolder folder;
        PrepareTraced(folder);
        TracedSave save{};
        try {
            save = SaveTraced(folder, logs, {"-e", "trace=%file,%desc", "-e", "inject=" + refusal});
        } catch (const std::system_error&) {
            GTEST_SKIP() << "strace is not installed";
        }
        EXPECT_EQ(save.exitCode, 0) << refusal << ": " << save.output;
        EXPECT_EQ(folder.Read("a.ini"), afterTraced) << refusal;
        EXPECT_EQ(folder.Files(), Names{"a.ini"}) << refusal;
    }
}

// A disk that is really full ------------------------------------------------------------------------------

TEST(IniStoreKilled, AFullDiskKeepsTheOldFileAndTheNextSaveThatFitsGoesWell) {
    const TempFolder folder;
    fs::create_directory(folder.Path("disk"));
    const fs::path disk = folder.Path("disk");
    if (::mount("none", disk.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "only the superuser may mount a small disk";
    const std::string text = "[A]\nx=1\nfill=" + std::string(20'000, 'f') + "\n";
    folder.Write("disk/a.ini", text);
    // Every page in turn is the one that is missing, until there is room enough.
    bool isSaved = false;
    int failures = 0;
    for (std::size_t room = 0; !isSaved && room <= 10; ++room) {
        folder.Write("disk/other", std::string((10 - room) * 4096, 'o'));
        try {
            Save(IniFileSystem::System(), (disk / "a.ini").wstring(), L"x", 2);
            isSaved = true;
        } catch (const QuorError& error) {
            EXPECT_EQ(error.Number(), 61);
            EXPECT_EQ(folder.Read("disk/a.ini"), text);
            EXPECT_EQ(std::distance(fs::directory_iterator(disk), fs::directory_iterator()), 2);
            ++failures;
        }
    }
    EXPECT_TRUE(isSaved);
    EXPECT_GT(failures, 0);
    EXPECT_EQ(folder.Read("disk/a.ini").substr(0, 8), "[A]\nx=2\n");
    EXPECT_EQ(::umount(disk.c_str()), 0);
}
