// The one file that talks to the operating system, here one of the POSIX family.

#include "QuorIniFile/detail/IniFileSystem.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iomanip>
#include <locale>
#include <mutex>
#include <new>
#include <optional>
#include <random>
#include <sstream>
#include <system_error>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/sysmacros.h>
#include <sys/xattr.h>
#endif

namespace QuorIniFile {
namespace {

using Handle = IniFileSystem::Handle;

int Fd(Handle file) { return static_cast<int>(file); }

int ErrorUnless(bool success) { return success ? 0 : errno; }

bool IsOneOf(int error, std::initializer_list<int> errors) {
    return std::find(errors.begin(), errors.end(), error) != errors.end();
}

/// Whether the system says "not you" or "not here", rather than that something went wrong.
bool IsRefusal(int error) { return IsOneOf(error, {EPERM, EACCES, EINVAL, ENOSYS, ENOTSUP, EOPNOTSUPP}); }

IniFileStatus StatusFrom(const struct stat& status) {
    using Kind = IniFileStatus::Kind;
    return {S_ISREG(status.st_mode)   ? Kind::Regular
            : S_ISDIR(status.st_mode) ? Kind::Folder
                                      : Kind::Other,
            static_cast<std::uint64_t>(status.st_dev),
            static_cast<std::uint64_t>(status.st_ino),
            static_cast<std::uint64_t>(status.st_size),
            static_cast<std::int64_t>(status.st_ctim.tv_sec),
            static_cast<std::int64_t>(status.st_ctim.tv_nsec),
            static_cast<std::uint32_t>(status.st_mode & 07777U),
            static_cast<std::uint64_t>(status.st_nlink)};
}

#ifdef __linux__

// Extended attributes, access lists (system.posix_acl_access) among them.

/// A text of the system whose length it says when it is asked with no room at all; nothing on an error.
template <class Call>
std::optional<std::string> TextOf(const Call& call) {
    for (;;) {
        const ssize_t size = call(nullptr, 0);
        if (size <= 0)
            return size == 0 ? std::optional<std::string>("") : std::nullopt;
        std::string text(static_cast<std::size_t>(size), '\0');
        const ssize_t got = call(text.data(), text.size());
        if (got >= 0) {
            text.resize(static_cast<std::size_t>(got));
            return text;
        }
        if (errno != ERANGE) // it has grown in between
            return std::nullopt;
    }
}

/// The names of a file's attributes. Sums over the bytes of a file are none of them: they would be wrong.
std::optional<std::vector<std::string>> AttributeNames(int file) {
    const auto list = TextOf([file](char* text, std::size_t size) { return ::flistxattr(file, text, size); });
    if (!list)
        return std::nullopt;
    std::vector<std::string> names;
    for (std::size_t at = 0; at < list->size();) {
        std::string name(list->c_str() + at);
        at += name.size() + 1;
        if (name != "security.ima" && name != "security.evm")
            names.push_back(std::move(name));
    }
    return names;
}

int CopyExtendedAttributes(int from, int to, bool sameGroup) {
    auto names = AttributeNames(from);
    if (!names)
        return IsRefusal(errno) ? 0 : errno;
    if (!sameGroup) // an access list says what the group may, and this one is another
        names->erase(std::remove(names->begin(), names->end(), "system.posix_acl_access"), names->end());
    const auto inherited = AttributeNames(to);
    if (!inherited)
        return IsRefusal(errno) ? 0 : errno;
    // What the folder gives to new files, the old one need not have: an access list for instance.
    for (const std::string& name : *inherited) {
        if (std::find(names->begin(), names->end(), name) == names->end() &&
            ::fremovexattr(to, name.c_str()) != 0 && errno != ENODATA && !IsRefusal(errno))
            return errno;
    }
    for (const std::string& name : *names) {
        const auto value = TextOf([&name, from](char* text, std::size_t size) {
            return ::fgetxattr(from, name.c_str(), text, size);
        });
        if (!value && errno != ENODATA && !IsRefusal(errno))
            return errno;
        if (value && ::fsetxattr(to, name.c_str(), value->data(), value->size(), 0) != 0 && !IsRefusal(errno))
            return errno;
    }
    return 0;
}

/// Whether a folder has an access list, or one for what is created in it: its mode bits do not say then who
/// may write it.
bool HasAccessList(const std::string& folder) {
    const auto has = [&folder](const char* list) { return ::getxattr(folder.c_str(), list, nullptr, 0) > 0; };
    return has("system.posix_acl_access") || has("system.posix_acl_default");
}

/// The process that holds the lock on a file, from the kernel's list of locks, a line each:
/// "1: FLOCK  ADVISORY  WRITE 1234 fe:00:10985491 0 EOF".
std::optional<std::string> LockingProcess(const struct stat& status) {
    std::ostringstream file;
    file.imbue(std::locale::classic());
    file << std::hex << std::setfill('0') << std::setw(2) << ::major(status.st_dev) << ':' << std::setw(2)
         << ::minor(status.st_dev) << ':' << std::dec << status.st_ino;

    std::ifstream locks("/proc/locks");
    for (std::string line; std::getline(locks, line);) {
        std::istringstream words(line);
        std::string number;
        std::string kind;
        std::string strictness;
        std::string access;
        std::string process;
        std::string place;
        if (words >> number >> kind >> strictness >> access >> process >> place && place == file.str())
            return process;
    }
    return std::nullopt;
}

#else

int CopyExtendedAttributes(int /*from*/, int /*to*/, bool /*sameGroup*/) { return 0; }
bool HasAccessList(const std::string& /*folder*/) { return true; } // nobody knows
std::optional<std::string> LockingProcess(const struct stat& /*status*/) { return std::nullopt; }

#endif

/// The process of that number, its name where the system tells it, and what keeps it from going on.
IniLockHolder HolderFrom(const std::string& process) {
    std::ifstream file("/proc/" + process + "/stat"); // 1234 (host) S ...; the name may hold anything
    std::string line;
    if (!std::getline(file, line)) { // it has ended, or is not shown to us
        const bool hasEnded = ::kill(static_cast<pid_t>(std::stol(process)), 0) != 0 && errno == ESRCH;
        return {hasEnded ? INI_CAUSE_IN_USE_BY_ENDED : INI_CAUSE_IN_USE_BY, process};
    }
    const std::size_t open = line.find('(');
    const std::size_t close = line.rfind(") ");
    if (open == std::string::npos || close == std::string::npos || close + 2 >= line.size())
        return {INI_CAUSE_IN_USE_BY, process};
    std::string named = process + ' ' + line.substr(open, close + 1 - open);
    const char state = line[close + 2];
    if (state == 'T' || state == 't')
        return {INI_CAUSE_IN_USE_BY_STOPPED, std::move(named)};
    return {state == 'Z' ? INI_CAUSE_IN_USE_BY_ENDED : INI_CAUSE_IN_USE_BY, std::move(named)};
}

/// The lock files that this process has open. The kernel gives a lock back when all handles to it are closed,
/// those included that a child of fork has got without knowing: it closes them before it does anything else,
/// so that no lock outlives the process that took it. (A program that is started closes them by O_CLOEXEC.)
class OpenLockFiles {
public:
    static OpenLockFiles& OfThisProcess() {
        // Never destroyed: a store may end at the very end of the program.
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory,cppcoreguidelines-avoid-non-const-global-variables)
        static auto* const files = new OpenLockFiles;
        return *files;
    }
    /// What `open` opens. No fork comes between that and its being remembered.
    template <class Open>
    int Add(const Open& open) {
        const std::lock_guard lock(m_mutex);
        m_files.reserve(m_files.size() + 1);
        const int file = open();
        if (file >= 0)
            m_files.push_back(file);
        return file;
    }
    /// Closes a file, whether it is one of these or not.
    void Close(int file) {
        const std::lock_guard lock(m_mutex);
        m_files.erase(std::remove(m_files.begin(), m_files.end(), file), m_files.end());
        ::close(file);
    }

private:
    OpenLockFiles() {
        ::pthread_atfork([] { OfThisProcess().m_mutex.lock(); }, [] { OfThisProcess().m_mutex.unlock(); },
                         [] {
                             OpenLockFiles& files = OfThisProcess();
                             for (const int file : files.m_files)
                                 ::close(file);
                             files.m_files.clear();
                             files.m_mutex.unlock();
                         });
    }

    std::mutex m_mutex;
    std::vector<int> m_files;
};

class PosixFileSystem final : public IniFileSystem {
public:
    IniResult<std::string> CurrentFolder() override {
        std::error_code error;
        std::string folder = std::filesystem::current_path(error).string();
        return {error.value(), std::move(folder)};
    }

    IniResult<std::vector<std::string>> NamesIn(const std::string& folder) override {
        std::vector<std::string> names;
        std::error_code error;
        const std::filesystem::directory_iterator end;
        for (std::filesystem::directory_iterator entry(folder, error); !error && entry != end;
             entry.increment(error))
            names.push_back(entry->path().filename().string());
        return {error.value(), std::move(names)};
    }

    IniResult<IniFileStatus> StatusAt(const std::string& path) override {
        struct stat status {};
        return ::stat(path.c_str(), &status) == 0 ? IniResult<IniFileStatus>{0, StatusFrom(status)}
                                                  : IniResult<IniFileStatus>{errno, {}};
    }

    IniResult<IniFileStatus> StatusOf(Handle file) override {
        struct stat status {};
        return ::fstat(Fd(file), &status) == 0 ? IniResult<IniFileStatus>{0, StatusFrom(status)}
                                               : IniResult<IniFileStatus>{errno, {}};
    }

    IniResult<std::string> LinkAt(const std::string& path) override {
        std::string target(256, '\0');
        for (;;) {
            const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
            if (length < 0)
                return {IsOneOf(errno, {ENOSYS, ENOTSUP}) ? EINVAL : errno, {}}; // no links there at all
            if (static_cast<std::size_t>(length) < target.size()) {
                target.resize(static_cast<std::size_t>(length));
                return {0, std::move(target)};
            }
            target.resize(target.size() * 2); // it may have been cut off
        }
    }

    int MayWrite(const std::string& path) override {
        struct stat status {};
        if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0 || ::stat(path.c_str(), &status) != 0)
            return errno;
        // The superuser may write anything; a file without any write bit is still meant to stay as it is.
        return (status.st_mode & 0222U) == 0 ? EACCES : 0;
    }

    IniResult<Handle> Open(const std::string& path, Opening how) override {
        int file = -1;
        switch (how) {
        case Opening::ToRead:
            file = OpenFile(path, O_RDONLY | O_NONBLOCK, 0);
            break;
        case Opening::ToLock:
            // Some network file systems lock only what is open for writing; elsewhere reading will do.
            file = OpenLockFiles::OfThisProcess().Add([&] {
                const int writable = OpenFile(path, O_RDWR | O_NONBLOCK | O_NOFOLLOW, 0);
                return writable < 0 && errno == EACCES ? OpenFile(path, O_RDONLY | O_NONBLOCK | O_NOFOLLOW, 0)
                                                       : writable;
            });
            break;
        case Opening::CreateLock: {
            const std::size_t slash = path.rfind('/');
            const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
            file = OpenLockFiles::OfThisProcess().Add(
                [&] { return OpenFile(path, O_RDWR | O_CREAT | O_EXCL, 0600); });
            if (file >= 0)
                ShareLock(file, folder);
            break;
        }
        case Opening::CreatePrivate:
            file = OpenFile(path, O_RDWR | O_CREAT | O_EXCL, 0600);
            break;
        case Opening::CreateShared:
            file = OpenFile(path, O_RDWR | O_CREAT | O_EXCL, 0666);
            break;
        }
        return {ErrorUnless(file >= 0), file};
    }

    IniResult<Handle> OpenUnnamed(const std::string& folder, Opening how) override {
#ifdef O_TMPFILE
        const int file = OpenFile(folder, O_TMPFILE | O_RDWR, how == Opening::CreateShared ? 0666 : 0600);
        if (file < 0) // an old system takes it for an attempt to write the folder
            return {IsOneOf(errno, {EISDIR, EINVAL, EOPNOTSUPP, ENOSYS}) ? ENOTSUP : errno, -1};
        if (::access(PathOfOpen(file).c_str(), F_OK) == 0)
            return {0, file};
        ::close(file); // without /proc it could never get a name
#endif
        return {ENOTSUP, -1};
    }

    int Name(Handle file, const std::string& path) override {
        return ErrorUnless(
            ::linkat(AT_FDCWD, PathOfOpen(Fd(file)).c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0);
    }

    // After a Sync that went well, closing has nothing to tell.
    void Close(Handle file) override { OpenLockFiles::OfThisProcess().Close(Fd(file)); }

    IniResult<std::size_t> Read(Handle file, std::uint64_t offset, char* bytes, std::size_t size) override {
        const ssize_t count = ::pread(Fd(file), bytes, size, static_cast<off_t>(offset));
        return count >= 0 ? IniResult<std::size_t>{0, static_cast<std::size_t>(count)}
                          : IniResult<std::size_t>{errno, 0};
    }

    IniResult<std::size_t> Write(Handle file, std::string_view bytes) override {
        const ssize_t count = ::write(Fd(file), bytes.data(), bytes.size());
        return count >= 0 ? IniResult<std::size_t>{0, static_cast<std::size_t>(count)}
                          : IniResult<std::size_t>{errno, 0};
    }

    int Sync(Handle file) override { return ErrorUnless(::fsync(Fd(file)) == 0); }

    int SyncFolder(const std::string& path) override {
        const int folder = OpenFile(path, O_RDONLY | O_DIRECTORY, 0);
        if (folder < 0) // one may be allowed to write into a folder and not to read it
            return errno == EACCES ? 0 : errno;
        const int error = ErrorUnless(::fsync(folder) == 0);
        ::close(folder);
        return error == EINVAL ? 0 : error;
    }

    int TryLock(Handle file) override {
        const int error = ErrorUnless(::flock(Fd(file), LOCK_EX | LOCK_NB) == 0);
        return IsOneOf(error, {ENOLCK, ENOSYS, EINVAL, EOPNOTSUPP}) ? ENOTSUP : error;
    }

    IniLockHolder LockHolder(Handle file) override {
        struct stat status {};
        const auto process = ::fstat(Fd(file), &status) == 0 ? LockingProcess(status) : std::nullopt;
        return process ? HolderFrom(*process) : IniLockHolder();
    }

    int CopyAttributes(Handle from, Handle to) override {
        struct stat old {};
        if (::fstat(Fd(from), &old) != 0)
            return errno;
        bool sameGroup = true;
        if (::fchown(Fd(to), old.st_uid, old.st_gid) != 0) {
            if (!IsRefusal(errno))
                return errno;
            sameGroup = ::fchown(Fd(to), static_cast<uid_t>(-1), old.st_gid) == 0;
            if (!sameGroup && !IsRefusal(errno))
                return errno;
        }
        // The access list goes first: mode bits mean another thing with it than without.
        if (const int error = CopyExtendedAttributes(Fd(from), Fd(to), sameGroup))
            return error;
        mode_t mode = old.st_mode & 07777U;
        if (!sameGroup) // what the group was allowed is not passed on to another group
            mode &= ~mode_t{070} | ((mode & 07U) << 3U);
        return ::fchmod(Fd(to), mode) == 0 || IsRefusal(errno) ? 0 : errno;
    }

    int Rename(const std::string& from, const std::string& to) override {
        return ErrorUnless(::rename(from.c_str(), to.c_str()) == 0);
    }

    int Exchange(const std::string& one, const std::string& other) override {
#ifdef RENAME_EXCHANGE
        const int error =
            ErrorUnless(::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0);
        return IsOneOf(error, {EINVAL, ENOSYS, EOPNOTSUPP}) ? ENOTSUP : error;
#else
        static_cast<void>(one);
        static_cast<void>(other);
        return ENOTSUP;
#endif
    }

    int SetRights(Handle file, std::uint32_t rights) override {
        return ErrorUnless(::fchmod(Fd(file), static_cast<mode_t>(rights)) == 0);
    }

    int Remove(const std::string& path) override { return ErrorUnless(::unlink(path.c_str()) == 0); }

    int MakeFolder(const std::string& path) override { return ErrorUnless(::mkdir(path.c_str(), 0700) == 0); }

    std::uint64_t RandomNumber() override {
        std::random_device device;
        return (std::uint64_t{device()} << 32U) | device();
    }

    void Pause(std::chrono::milliseconds time) override { std::this_thread::sleep_for(time); }

    std::chrono::milliseconds Clock() override {
        return std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now().time_since_epoch());
    }

private:
    static std::string PathOfOpen(int file) { return "/proc/self/fd/" + std::to_string(file); }

    /// Opens a new lock file to the users who may write its folder, and to no others: whoever can open it can
    /// lock it. Where that cannot be said, it stays its owner's.
    static void ShareLock(int file, const std::string& folder) {
        struct stat status {};
        if (::stat(folder.c_str(), &status) != 0 || (status.st_mode & 022U) == 0 || HasAccessList(folder))
            return;
        mode_t mode = 0600;
        const auto mayCreate = [&status](unsigned shift) { return ((status.st_mode >> shift) & 03U) == 03U; };
        if (mayCreate(3) && ::fchown(file, static_cast<uid_t>(-1), status.st_gid) == 0)
            mode |= 0060U;
        if (mayCreate(0))
            mode |= 0006U;
        static_cast<void>(::fchmod(file, mode));
    }

    static int OpenFile(const std::string& path, int flags, mode_t mode) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system's interface
        return ::open(path.c_str(), flags | O_CLOEXEC, mode);
    }
};

} // namespace

IniFileSystem& IniFileSystem::System() {
    static PosixFileSystem system;
    return system;
}

IniFileSystem::~IniFileSystem() = default;

} // namespace QuorIniFile
