#pragma once

#include "QuorIniFile/IniCause.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QuorIniFile {

/// What a call to the system gave: an error number of <cerrno>, 0 when it went well, and then a value.
template <class Value>
struct IniResult {
    int error = 0;
    Value value{};
};

/// What there is under a path.
struct IniFileStatus {
    enum class Kind : std::uint8_t { Regular, Folder, Other };

    Kind kind = Kind::Regular;
    std::uint64_t device = 0;
    std::uint64_t inode = 0; // by device and inode one tells whether two paths lead to one file
    std::uint64_t size = 0;
    std::int64_t seconds = 0; // of the last change of its bytes, name or rights; nobody can set it back
    std::int64_t nanoseconds = 0;
    std::uint32_t rights = 0; // who may do what, as SetRights takes it
    std::uint64_t links = 1;  // how many names the file has
};

/// Who has a lock: the process and its name ("1234 (host)", "1234"), empty when the system does not tell; and
/// the cause to tell, INI_CAUSE_IN_USE or one of its kin.
struct IniLockHolder {
    EIniCause cause = INI_CAUSE_IN_USE;
    std::string process;
};

/// What the store asks of the operating system, a call a function, so that a test can put a disk in its place
/// that fails when it is told to. It decides nothing: what is done, in which order, and what an error means
/// stands in IniDisk.h.
///
/// Paths are UTF-8. Functions that give a plain int give the error number, 0 when it went well. A call may be
/// interrupted (EINTR), and do less than it was asked for, as the system may; whoever calls goes on.
class IniFileSystem {
public:
    /// An open file. Its owner closes it, once.
    using Handle = std::intptr_t;

    enum class Opening : std::uint8_t {
        ToRead,        // without waiting for anybody, whatever is there
        ToLock,        // a lock file that is there; a link is not followed
        CreateLock,    // a new lock file (EEXIST when there is one), for those alone who may write its folder
        CreatePrivate, // a new file (EEXIST when there is one), to be written, for this user alone
        CreateShared,  // the same, for whom the user allows his new files
    };

    /// The files of this computer.
    static IniFileSystem& System();

    IniFileSystem() = default;
    IniFileSystem(const IniFileSystem&) = delete;
    IniFileSystem& operator=(const IniFileSystem&) = delete;
    virtual ~IniFileSystem();

    /// The folder from which relative paths start.
    [[nodiscard]] virtual IniResult<std::string> CurrentFolder() = 0;
    /// The names of all that is in a folder, in any order.
    [[nodiscard]] virtual IniResult<std::vector<std::string>> NamesIn(const std::string& folder) = 0;
    /// Links are followed to their end.
    [[nodiscard]] virtual IniResult<IniFileStatus> StatusAt(const std::string& path) = 0;
    [[nodiscard]] virtual IniResult<IniFileStatus> StatusOf(Handle file) = 0;
    /// Where the symbolic link at `path` leads, as it says; EINVAL when there is something else.
    [[nodiscard]] virtual IniResult<std::string> LinkAt(const std::string& path) = 0;
    /// 0 when the file is meant to be written, and by this user; EACCES when not.
    [[nodiscard]] virtual int MayWrite(const std::string& path) = 0;

    /// ToRead: EWOULDBLOCK while another program has a lease on the file, which it is asked to give back.
    [[nodiscard]] virtual IniResult<Handle> Open(const std::string& path, Opening how) = 0;
    /// Creates a file that has no name until Name gives it one, and is gone when it is closed before that.
    /// `how` is CreatePrivate or CreateShared. ENOTSUP where the system or the file system knows no such
    /// files.
    [[nodiscard]] virtual IniResult<Handle> OpenUnnamed(const std::string& folder, Opening how) = 0;
    /// Gives a file without a name its name. EEXIST when there is something of that name.
    [[nodiscard]] virtual int Name(Handle file, const std::string& path) = 0;
    virtual void Close(Handle file) = 0;
    /// How many bytes were read at `offset`; 0 at the end of the file.
    [[nodiscard]] virtual IniResult<std::size_t> Read(Handle file, std::uint64_t offset, char* bytes,
                                                      std::size_t size) = 0;
    /// How many of the bytes were added to the file.
    [[nodiscard]] virtual IniResult<std::size_t> Write(Handle file, std::string_view bytes) = 0;
    /// Makes what was written outlive a power cut.
    [[nodiscard]] virtual int Sync(Handle file) = 0;
    /// The same for the names in a folder. Where that cannot be done or is not needed, it has gone well.
    [[nodiscard]] virtual int SyncFolder(const std::string& path) = 0;

    /// Locks a file against every other handle of any process, until it is closed or its process ends, in
    /// whatever way; a child of that process does not have the lock. EWOULDBLOCK when somebody has the lock,
    /// ENOTSUP when this file system knows none.
    [[nodiscard]] virtual int TryLock(Handle file) = 0;
    /// Who has the lock.
    [[nodiscard]] virtual IniLockHolder LockHolder(Handle file) = 0;

    /// Gives one file the owner, group, mode, access lists and other extended attributes of another, as far
    /// as this user may. Who could not read the one cannot read the other at any moment.
    [[nodiscard]] virtual int CopyAttributes(Handle from, Handle to) = 0;
    /// Gives a file the rights that its status said, or its owner's alone (`ownerOnly`).
    [[nodiscard]] virtual int SetRights(Handle file, std::uint32_t rights) = 0;
    static constexpr std::uint32_t ownerOnly = 0600;
    /// In one step, in place of what has the name `to`. EBUSY when that is a mount point, EWOULDBLOCK when
    /// somebody has it open and the system replaces no such file.
    [[nodiscard]] virtual int Rename(const std::string& from, const std::string& to) = 0;
    /// Lets two files change names, in one step. ENOTSUP where the system or the file system cannot do that.
    [[nodiscard]] virtual int Exchange(const std::string& one, const std::string& other) = 0;
    [[nodiscard]] virtual int Remove(const std::string& path) = 0;
    /// For this user alone.
    [[nodiscard]] virtual int MakeFolder(const std::string& path) = 0;

    /// A number that nobody can foresee.
    [[nodiscard]] virtual std::uint64_t RandomNumber() = 0;
    /// Lets that much time pass.
    virtual void Pause(std::chrono::milliseconds time) = 0;
    /// The time since some moment, on a clock that nobody sets.
    [[nodiscard]] virtual std::chrono::milliseconds Clock() = 0;
};

} // namespace QuorIniFile
