#pragma once

#include "QuorIniFile/detail/IniFileSystem.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace Support {

/// A disk in memory, with regular files alone and folders that are always there, that forgets at a power cut
/// what was not made durable. Rights, owners and attributes are not part of it.
class SimulatedDisk final : public QuorIniFile::IniFileSystem {
public:
    using Files = std::map<std::string, std::string>; // the bytes by the path

    explicit SimulatedDisk(const Files& files = {});

    /// How many bytes all files together may have.
    std::size_t capacity = std::numeric_limits<std::size_t>::max();
    /// Whether files can be locked on it.
    bool hasLocks = true;
    /// Which computer the calls come from, and whether one learns of the locks of another.
    int computer = 1;
    bool sharesLocks = true;
    /// Whether there can be files without a name, and whether two files can change names in one step.
    bool hasUnnamedFiles = true;
    bool hasExchange = true;
    /// Whether its clock stands still, so that every change is made in the tick of the one before.
    bool clockStands = false;
    /// How long a look at a path takes.
    std::chrono::milliseconds latency{0};
    /// What LockHolder tells.
    QuorIniFile::IniLockHolder lockHolder;
    /// How long the store has waited, for others and for calls that take their time.
    std::chrono::milliseconds waited{0};

    [[nodiscard]] Files Now() const;
    /// What a program does that takes no lock: other bytes in the same file.
    void Rewrite(const std::string& path, const std::string& bytes);
    /// What a program does that saves by renaming, or that puts its own file in the place of another's.
    void Replace(const std::string& path, const std::string& bytes);
    /// Every content that the disk can have when the power fails now: each write and each change of a name
    /// that no Sync has made durable is lost, done, or half done, whatever became of those before it.
    [[nodiscard]] std::vector<Files> AfterPowerCut() const;

    QuorIniFile::IniResult<std::string> CurrentFolder() override;
    QuorIniFile::IniResult<std::vector<std::string>> NamesIn(const std::string& folder) override;
    QuorIniFile::IniResult<QuorIniFile::IniFileStatus> StatusAt(const std::string& path) override;
    QuorIniFile::IniResult<QuorIniFile::IniFileStatus> StatusOf(Handle file) override;
    QuorIniFile::IniResult<std::string> LinkAt(const std::string& path) override;
    int MayWrite(const std::string& path) override;
    QuorIniFile::IniResult<Handle> Open(const std::string& path, Opening how) override;
    QuorIniFile::IniResult<Handle> OpenUnnamed(const std::string& folder, Opening how) override;
    int Name(Handle file, const std::string& path) override;
    void Close(Handle file) override;
    QuorIniFile::IniResult<std::size_t> Read(Handle file, std::uint64_t offset, char* bytes,
                                             std::size_t size) override;
    QuorIniFile::IniResult<std::size_t> Write(Handle file, std::string_view bytes) override;
    int Sync(Handle file) override;
    int SyncFolder(const std::string& path) override;
    int TryLock(Handle file) override;
    QuorIniFile::IniLockHolder LockHolder(Handle file) override;
    int CopyAttributes(Handle from, Handle to) override;
    int Rename(const std::string& from, const std::string& to) override;
    int SetRights(Handle file, std::uint32_t rights) override;
    int Exchange(const std::string& one, const std::string& other) override;
    int Remove(const std::string& path) override;
    int MakeFolder(const std::string& path) override;
    void Pause(std::chrono::milliseconds time) override;
    std::uint64_t RandomNumber() override;
    std::chrono::milliseconds Clock() override;

private:
    using Inode = std::uint64_t;
    struct File {
        std::string bytes;
        std::int64_t changed = 0; // a number that grows with every change on the disk
    };
    struct State {
        std::map<std::string, Inode> names;
        std::map<Inode, File> files;
    };
    struct Written {
        Inode file;
        std::size_t at;
        std::string bytes;
    };
    struct Named { // a new name for a file; the old one, unless it is empty, goes
        std::string from;
        std::string to;
        Inode file;
    };
    struct Removed {
        std::string name;
    };
    struct Exchanged {
        std::string one;
        std::string other;
        Inode first; // of the file that has the name `one` before
        Inode second;
    };
    using Change = std::variant<Written, Named, Removed, Exchanged>;
    enum class Extent : std::uint8_t { Nothing, Half, Whole };

    [[nodiscard]] QuorIniFile::IniFileStatus StatusOfInode(Inode inode) const;
    static void Apply(const Change& change, Extent extent, State& state);
    [[nodiscard]] static Files FilesOf(const State& state);
    void Make(Change change);

    State m_now;
    State m_durable;
    std::vector<Change> m_pending; // what separates the two
    struct OpenFile {
        Inode file;
        int computer;
    };
    std::map<Handle, OpenFile> m_open;
    std::map<std::pair<Inode, int>, Handle> m_locks; // by the computer that knows of it, 0 for all
    Inode m_lastInode = 0;
    Handle m_lastHandle = 0;
    std::int64_t m_changes = 0;
    std::uint64_t m_lastRandom = 0;
};

} // namespace Support
