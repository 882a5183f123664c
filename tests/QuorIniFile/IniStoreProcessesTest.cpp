// Several processes at one file: each has its turn, and nothing of any of them is lost.

#include "QuorIniFile/IniStore.h"

#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "QuorIniFile/detail/IniError.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "tests/QuorIniFile/RaisedBy.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/Process.h"
#include "tests/support/SimulatedDisk.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace QuorIniFile;
using namespace std::chrono_literals;
using Names = std::vector<std::string>;
using Support::RaisedBy;
using Support::InterceptedFiles;
using Support::SimulatedDisk;
using Opening = IniFileSystem::Opening;

namespace {

constexpr const char* saverProgram = QUOR_INI_SAVER;

/// How a message names who has a lock.
std::wstring Told(const IniLockHolder& holder) {
    const std::wstring inUse = L"Permission denied: a.ini: In use by ";
    const std::wstring text =
        FileError(ERR_PERMISSION_DENIED, L"a.ini", holder.cause, {DecodeBytes(holder.process)}).Description();
    return text.starts_with(inUse) ? text.substr(inUse.size()) : text;
}

void Save(IniFileSystem& files, const std::wstring& file) {
    IniStore store(files);
    store.SetFileName(file);
    store.SetSection(L"A");
    store.WriteInteger(L"x", 2, L"");
}

/// What the saver of the keys of a section adds to a file.
std::string KeysOf(const std::string& section, int count, const std::string& lineEnd) {
    std::string text = "[" + section + "]" + lineEnd;
    for (int i = 0; i < count; ++i)
        text += "K" + std::to_string(i) + "=" + std::to_string(i) + lineEnd;
    return text;
}

/// The file of a folder is what the host had in it, the keys of these sections, and not a byte more.
void ExpectKeys(const TempFolder& folder, const std::string& host, const Names& sections, int count,
                const std::string& lineEnd) {
    const std::string text = folder.Read("a.ini");
    EXPECT_EQ(text.rfind(host, 0), 0U);
    std::size_t length = host.size();
    for (const std::string& section : sections) {
        const std::string keys = lineEnd + KeysOf(section, count, lineEnd);
        EXPECT_NE(text.find(keys), std::string::npos) << section;
        length += keys.size();
    }
    EXPECT_EQ(text.size(), length);
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

/// A disk on which a process that is not ours has the lock file of "/a.ini".
class ForeignSave {
public:
    explicit ForeignSave(SimulatedDisk& disk) : m_disk(disk) {
        const IniReplacement one(L"/a.ini", disk); // to see the name
        m_path = disk.Now().begin()->first;
    }
    void Begin() {
        m_file = m_disk.Open(m_path, Opening::CreateLock).value;
        static_cast<void>(m_disk.TryLock(m_file));
    }
    void Touch() const { m_disk.Rewrite(m_path, ""); }
    void Die() const { m_disk.Close(m_file); }

private:
    SimulatedDisk& m_disk;
    std::string m_path;
    IniFileSystem::Handle m_file = 0;
};

} // namespace

TEST(IniStoreProcesses, EightProcessesSaveAHundredTimesEachIntoOneFileAndNothingIsLost) {
    const TempFolder folder;
    const std::string host = "; the host's own\r\n[Display]\r\ncolour = blue\r\nbroken line\r\n";
    folder.Write("a.ini", host);
    constexpr int saves = 100;
    Names sections;
    std::vector<Process> processes;
    for (int i = 0; i < 8; ++i) {
        sections.push_back("Probe " + std::to_string(i));
        processes.emplace_back(std::vector<std::string>{saverProgram, "keys", folder.Path("a.ini").string(),
                                                        sections.back(), std::to_string(saves)});
    }
    for (Process& process : processes) {
        EXPECT_EQ(process.ReadLine(), "");
        EXPECT_EQ(process.Wait(), 0);
    }
    ExpectKeys(folder, host, sections, saves, "\r\n");
}

TEST(IniStoreProcesses, TheFirstSaveOfAFileByEightProcessesAtOnceLosesNothing) {
    for (int round = 0; round < 3; ++round) {
        const TempFolder folder;
        std::vector<Process> processes;
        for (int i = 0; i < 8; ++i)
            processes.emplace_back(std::vector<std::string>{
                saverProgram, "keys", folder.Path("a.ini").string(), "Probe " + std::to_string(i), "2"});
        for (Process& process : processes)
            EXPECT_EQ(process.Wait(), 0);
        const std::string text = folder.Read("a.ini");
        for (int i = 0; i < 8; ++i)
            EXPECT_NE(text.find(KeysOf("Probe " + std::to_string(i), 2, "\n")), std::string::npos) << text;
        EXPECT_EQ(folder.Files(), Names{"a.ini"});
    }
}

TEST(IniStoreProcesses, EightThreadsOfOneProcessLoseNothing) {
    const TempFolder folder;
    folder.Write("a.ini", "; mine\n");
    Names sections;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        sections.push_back("Probe " + std::to_string(i));
        threads.emplace_back([file = folder.Name("a.ini"), i] {
            IniStore store;
            store.SetFileName(file);
            store.SetSection(L"Probe " + std::to_wstring(i));
            for (std::int16_t key = 0; key < 20; ++key)
                store.WriteInteger(L"K" + std::to_wstring(key), key, L"");
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    ExpectKeys(folder, "; mine\n", sections, 20, "\n");
}

TEST(IniStoreProcesses, ARecordThatTwoProcessesSaveIsAlwaysOneOfTheirs) {
    const TempFolder folder;
    const std::string file = folder.Path("a.ini").string();
    std::vector<Process> processes;
    for (const char* from : {"1000", "2000"})
        processes.emplace_back(std::vector<std::string>{saverProgram, "records", file, "100", from});
    int records = 0;
    for (bool running = true; running;) {
        running = !processes[0].HasEnded() || !processes[1].HasEnded();
        if (!fs::exists(folder.Path("a.ini")))
            continue;
        IniStore reader;
        reader.SetFileName(folder.Name("a.ini"));
        reader.SetSection(L"Shared");
        std::int16_t first = 0;
        ASSERT_TRUE(reader.ReadInteger(L"K0", first));
        for (int key = 1; key < 8; ++key) {
            std::int16_t value = 0;
            ASSERT_TRUE(reader.ReadInteger(L"K" + std::to_wstring(key), value));
            ASSERT_EQ(value, first);
        }
        ++records;
    }
    for (Process& process : processes)
        EXPECT_EQ(process.Wait(), 0);
    EXPECT_GT(records, 0);
}

TEST(IniStoreProcesses, EightProcessesThatEditOneKeyAHundredTimesEachLoseNoUpdate) {
    const TempFolder folder;
    const std::string host = "; the host's own\r\n[Display]\r\ncolour = blue\r\n[Counter]\r\n";
    folder.Write("a.ini", host + "N = 0 ; edits\r\n");
    std::vector<Process> processes;
    for (int i = 0; i < 8; ++i)
        processes.emplace_back(
            std::vector<std::string>{saverProgram, "add", folder.Path("a.ini").string(), "100"});
    for (Process& process : processes) {
        EXPECT_EQ(process.ReadLine(), "");
        EXPECT_EQ(process.Wait(), 0);
    }
    EXPECT_EQ(folder.Read("a.ini"), host + "N = 800 ; edits\r\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniStoreProcesses, AProcessThatIsKilledWhileItHasTheLockKeepsNobodyWaiting) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    for (int round = 0; round < 5; ++round) {
        Process holder({saverProgram, "lock", folder.Path("a.ini").string()});
        ASSERT_EQ(holder.ReadLine(), "locked");
        EXPECT_EQ(folder.Files().size(), 2U);
        holder.Kill();
        EXPECT_EQ(holder.Wait(), -SIGKILL);
        EXPECT_EQ(folder.Files().size(), 2U) << "it could not clean up";

        InterceptedFiles files;
        Save(files, folder.Name("a.ini"));
        EXPECT_LT(files.paused, 1s);
        EXPECT_EQ(folder.Files(), Names{"a.ini"});
        EXPECT_EQ(folder.Read("a.ini"), "[A]\nx=2\n");
        folder.Write("a.ini", "[A]\nx=1\n");
    }
}

TEST(IniStoreProcesses, AChildOfAProcessThatIsKilledWhileItHasTheLockDoesNotHaveIt) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    Process holder({saverProgram, "fork", folder.Path("a.ini").string()});
    const pid_t child = std::stoi(holder.ReadLine());
    holder.Kill();
    EXPECT_EQ(holder.Wait(), -SIGKILL);
    EXPECT_EQ(::kill(child, 0), 0) << "the child lives on";

    InterceptedFiles files;
    Save(files, folder.Name("a.ini"));
    EXPECT_LT(files.paused, 1s);
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nx=2\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
    ::kill(child, SIGKILL);
}

TEST(IniStoreProcesses, AChildThatIsStartedWhileTheLockIsBeingTakenDoesNotHaveIt) {
    // As when another thread forks between the creation of the lock file and its being locked.
    const TempFolder folder;
    IniFileSystem& files = IniFileSystem::System();
    const auto file = files.Open(folder.Path("lock").string(), Opening::CreateLock);
    ASSERT_EQ(file.error, 0);
    const pid_t child = ::fork();
    if (child == 0) {
        for (;;)
            ::pause();
    }
    EXPECT_EQ(files.TryLock(file.value), 0);
    files.Close(file.value);
    const auto again = files.Open(folder.Path("lock").string(), Opening::ToLock);
    int error = EWOULDBLOCK; // until the child has begun to run
    for (int looks = 0; looks < 1000 && error == EWOULDBLOCK; ++looks) {
        error = files.TryLock(again.value);
        files.Pause(10ms);
    }
    EXPECT_EQ(error, 0) << "the child has no handle that keeps it locked";
    files.Close(again.value);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
}

TEST(IniStoreProcesses, AChildThatEndsDoesNotGiveTheLockOfItsParentBack) {
    const TempFolder folder;
    Process holder({saverProgram, "fork", folder.Path("a.ini").string()});
    const pid_t child = std::stoi(holder.ReadLine());
    ::kill(child, SIGKILL);
    IniFileSystem& files = IniFileSystem::System();
    const auto file = files.Open(folder.Path(folder.Files().front()).string(), Opening::ToLock);
    ASSERT_EQ(file.error, 0);
    EXPECT_EQ(files.TryLock(file.value), EWOULDBLOCK);
    files.Close(file.value);
}

TEST(IniStoreProcesses, AFileUnderALeaseIsReadAsSoonAsItIsGivenBack) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    Process server({saverProgram, "lease", folder.Path("a.ini").string()});
    if (server.ReadLine() != "leased")
        GTEST_SKIP() << "this file system has no leases";
    InterceptedFiles files;
    IniStore store(files);
    store.SetFileName(folder.Name("a.ini"));
    store.SetSection(L"A");
    std::int16_t value = 0;
    EXPECT_TRUE(store.ReadInteger(L"x", value));
    EXPECT_EQ(value, 1);
    EXPECT_GE(files.paused, 100ms);
    EXPECT_EQ(server.ReadLine(), "given back");
    server.EndInput();
    EXPECT_EQ(server.Wait(), 0);
}

TEST(IniStoreProcesses, AFileUnderALeaseIsSavedAsSoonAsItIsGivenBack) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    IniStore store;
    store.SetFileName(folder.Name("a.ini"));
    store.SetSection(L"A");
    store.Hold();
    store.WriteInteger(L"x", 2, L"");
    Process server({saverProgram, "lease", folder.Path("a.ini").string()});
    if (server.ReadLine() != "leased")
        GTEST_SKIP() << "this file system has no leases";
    store.Release();
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nx=2\n");
    EXPECT_EQ(server.ReadLine(), "given back");
    server.EndInput();
    EXPECT_EQ(server.Wait(), 0);
}

TEST(IniStoreProcesses, ALeaseThatIsNotGivenBackForAMinuteIsAnError) {
    SimulatedDisk disk(SimulatedDisk::Files{{"/a.ini", "[A]\nx=1\n"}});
    InterceptedFiles files(disk);
    files.onCall = [](std::string_view call) { return call == "Open" ? EWOULDBLOCK : 0; };
    const QuorError error = RaisedBy([&] { static_cast<void>(ReadBytes(L"/a.ini", files)); });
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Description(), L"Permission denied: /a.ini: In use by another program");
    EXPECT_GE(disk.waited, 60s);
}

TEST(IniStoreProcesses, AProcessThatHasTheLockIsWaitedFor) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    Process holder({saverProgram, "lock", folder.Path("a.ini").string()});
    ASSERT_EQ(holder.ReadLine(), "locked");
    std::thread ending([&holder] {
        std::this_thread::sleep_for(200ms);
        holder.EndInput();
    });
    InterceptedFiles files;
    Save(files, folder.Name("a.ini"));
    ending.join();
    EXPECT_GT(files.paused, 0ms);
    EXPECT_EQ(holder.Wait(), 0);
    EXPECT_EQ(folder.Read("a.ini"), "[A]\nx=2\n");
    EXPECT_EQ(folder.Files(), Names{"a.ini"});
}

TEST(IniStoreProcesses, ReadingNeedsNoLock) {
    const TempFolder folder;
    folder.Write("a.ini", "[A]\nx=1\n");
    Process holder({saverProgram, "lock", folder.Path("a.ini").string()});
    ASSERT_EQ(holder.ReadLine(), "locked");
    IniStore store;
    store.SetFileName(folder.Name("a.ini"));
    store.SetSection(L"A");
    std::int16_t value = 0;
    EXPECT_TRUE(store.ReadInteger(L"x", value));
    store.WriteInteger(L"x", 1, L""); // stands there already: nothing to save
    holder.EndInput();
    EXPECT_EQ(holder.Wait(), 0);
}

TEST(IniStoreProcesses, TheProcessThatHasTheLockIsNamed) {
    if (!std::ifstream("/proc/locks"))
        GTEST_SKIP() << "this system has no list of locks";
    const TempFolder folder;
    Process holder({saverProgram, "lock", folder.Path("a.ini").string()});
    ASSERT_EQ(holder.ReadLine(), "locked");
    IniFileSystem& files = IniFileSystem::System();
    const auto file = files.Open(folder.Path(folder.Files().front()).string(), Opening::ToLock);
    ASSERT_EQ(file.error, 0);
    EXPECT_EQ(files.TryLock(file.value), EWOULDBLOCK);
    const std::wstring name = L"process " + std::to_wstring(holder.Number()) + L" (IniSaver)";
    EXPECT_EQ(Told(files.LockHolder(file.value)), name);
    ::kill(holder.Number(), SIGSTOP);
    siginfo_t info{};
    EXPECT_EQ(::waitid(P_PID, static_cast<id_t>(holder.Number()), &info, WSTOPPED | WNOWAIT), 0);
    EXPECT_EQ(Told(files.LockHolder(file.value)), name + L", which is stopped");
    files.Close(file.value);
}

TEST(IniStoreProcesses, ALockThatAProcessHasLeftToAnotherOneIsToldOf) {
    if (!std::ifstream("/proc/locks"))
        GTEST_SKIP() << "this system has no list of locks";
    // Taken by other means than ours, so that the child keeps it.
    const TempFolder folder;
    folder.Write("lock", "");
    const int file = ::open(folder.Path("lock").c_str(), O_RDWR | O_CLOEXEC);
    const pid_t parent = ::fork();
    if (parent == 0) {
        static_cast<void>(::flock(file, LOCK_EX));
        ::_exit(0); // our own handle is a copy of its own, and keeps the lock
    }
    siginfo_t info{};
    EXPECT_EQ(::waitid(P_PID, static_cast<id_t>(parent), &info, WEXITED | WNOWAIT), 0);
    const std::wstring ended = L", which has ended; a process that it has started has its lock";
    const std::wstring holder =
        Told(IniFileSystem::System().LockHolder(file)); // nobody has waited for it yet
    EXPECT_TRUE(holder.starts_with(L"process " + std::to_wstring(parent) + L" (")) << ToUtf8(holder);
    EXPECT_TRUE(holder.ends_with(L")" + ended)) << ToUtf8(holder);
    int status = 0;
    ::waitpid(parent, &status, 0);
    // In a container the system does not list locks of processes that are gone altogether.
    const bool isInContainer = std::filesystem::read_symlink("/proc/self/ns/pid") != "pid:[4026531836]";
    EXPECT_EQ(Told(IniFileSystem::System().LockHolder(file)),
              isInContainer ? L"another program" : L"process " + std::to_wstring(parent) + ended);
    ::close(file);
}

TEST(IniStoreProcesses, AFileThatIsInUseForTenSecondsIsAnErrorThatSaysByWhom) {
    SimulatedDisk disk;
    ForeignSave foreign(disk);
    foreign.Begin();
    disk.lockHolder = {INI_CAUSE_IN_USE_BY, "1234 (host)"};
    const QuorError error = RaisedBy([&] { Save(disk, L"/a.ini"); });
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Description(), L"Permission denied: /a.ini: In use by process 1234 (host)");
    EXPECT_GE(disk.waited, 10s);
    EXPECT_LT(disk.waited, 11s);
    EXPECT_EQ(disk.Now().size(), 1U) << "what the other one has begun stays";

    disk.lockHolder = {};
    EXPECT_EQ(RaisedBy([&] { Save(disk, L"/a.ini"); }).Description(),
              L"Permission denied: /a.ini: In use by another program");

    foreign.Die();
    Save(disk, L"/a.ini");
    EXPECT_EQ(disk.Now(), (SimulatedDisk::Files{{"/a.ini", "[A]\nx=2\n"}}));
}

TEST(IniStoreProcesses, TheTenSecondsAreThoseOfTheClockAlsoWhereEachCallTakesLong) {
    SimulatedDisk disk;
    ForeignSave foreign(disk);
    foreign.Begin();
    disk.latency = 50ms; // a server far away
    disk.waited = 0ms;
    EXPECT_EQ(RaisedBy([&] { Save(disk, L"/a.ini"); }).Number(), 70);
    EXPECT_GE(disk.waited, 10s);
    EXPECT_LT(disk.waited, 11s);
}

TEST(IniStoreProcesses, ALockFileThatOnlyItsOwnerMayOpenIsWaitedForUntilNobodyHasTouchedItForTenSeconds) {
    SimulatedDisk disk;
    ForeignSave foreign(disk);
    foreign.Begin();
    InterceptedFiles files(disk);
    bool isCreated = false;
    bool isTouched = true;
    files.onCall = [&](std::string_view call) {
        if (isTouched && disk.waited == 5s)
            foreign.Touch();
        isCreated = call == "Open" && !isCreated && disk.Now().size() == 1; // the second one is to lock it
        return call == "Open" && !isCreated && disk.Now().size() == 1 ? EACCES : 0;
    };
    const QuorError error = RaisedBy([&] { Save(files, L"/a.ini"); });
    EXPECT_EQ(error.Number(), 70);
    EXPECT_EQ(error.Description(), L"Permission denied: /a.ini: In use by another program");
    EXPECT_GE(disk.waited, 10s);

    isTouched = false;
    Save(files, L"/a.ini");
    EXPECT_GE(disk.waited, 20s);
    EXPECT_EQ(disk.Now(), (SimulatedDisk::Files{{"/a.ini", "[A]\nx=2\n"}}));
}

TEST(IniStoreProcesses, WhereThereAreNoLocksTheLockFileIsTheLock) {
    SimulatedDisk disk;
    disk.hasLocks = false;
    Save(disk, L"/a.ini");
    EXPECT_EQ(disk.Now(), (SimulatedDisk::Files{{"/a.ini", "[A]\nx=2\n"}}));
    EXPECT_EQ(disk.waited, 0s);
}

TEST(IniStoreProcesses, WhereThereAreNoLocksALockFileThatNobodyTouchesForTenSecondsIsAbandoned) {
    SimulatedDisk disk;
    disk.hasLocks = false;
    ForeignSave foreign(disk);
    foreign.Begin();
    foreign.Die();
    Save(disk, L"/a.ini");
    EXPECT_GE(disk.waited, 10s);
    EXPECT_EQ(disk.Now(), (SimulatedDisk::Files{{"/a.ini", "[A]\nx=2\n"}}));
}

TEST(IniStoreProcesses, WhereThereAreNoLocksALockFileThatIsTouchedIsInUse) {
    SimulatedDisk disk;
    disk.hasLocks = false;
    ForeignSave foreign(disk);
    foreign.Begin();
    InterceptedFiles files(disk);
    files.onCall = [&](std::string_view) {
        if (disk.waited == 5s)
            foreign.Touch();
        return 0;
    };
    EXPECT_EQ(RaisedBy([&] { Save(files, L"/a.ini"); }).Number(), 70);
    EXPECT_EQ(disk.Now().size(), 1U);
}

TEST(IniStoreProcesses, TwoFilesOfOneFolderDoNotWaitForEachOther) {
    const TempFolder folder;
    const IniReplacement other(folder.Name("b.ini"));
    InterceptedFiles files;
    Save(files, folder.Name("a.ini"));
    EXPECT_EQ(files.paused, 0s);
}
