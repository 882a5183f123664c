#include "QuorIniFile/IniDisk.h"

#include "QuorIniFile/IniError.h"
#include "QuorIniFile/IniFormat.h"
#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <new>
#include <random>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace QuorIniFile {
namespace {

namespace fs = std::filesystem;

/// What is being done when the system refuses; a missing part of a path means another thing in each case.
enum class Deed : std::uint8_t { Read, Write };

struct SystemError {
    int code;
    EErrorNumber number;
    bool causeAddsNothing;
};

constexpr SystemError systemErrors[] = {
    {EACCES, ERR_PERMISSION_DENIED, true},
    {EPERM, ERR_PERMISSION_DENIED, false},
    {EROFS, ERR_PERMISSION_DENIED, false},
    {ENOSPC, ERR_DISK_FULL, true},
    {EDQUOT, ERR_DISK_FULL, false},
    {EFBIG, ERR_DISK_FULL, false},
    {EIO, ERR_DEVICE_IO, true},
    {ENOTDIR, ERR_PATH_NOT_FOUND, false},
    {ENAMETOOLONG, ERR_BAD_FILE_NAME, false},
};

[[noreturn]] void Raise(int code, std::wstring_view fileName, Deed deed) {
    if (code == ENOMEM)
        throw std::bad_alloc();
    if (code == ENOENT)
        throw FileError(deed == Deed::Read ? ERR_FILE_NOT_FOUND : ERR_PATH_NOT_FOUND, fileName);
    const auto* const known = std::find_if(std::begin(systemErrors), std::end(systemErrors),
                                           [code](const SystemError& error) { return error.code == code; });
    if (known != std::end(systemErrors) && known->causeAddsNothing)
        throw FileError(known->number, fileName);
    throw FileError(known != std::end(systemErrors) ? known->number : ERR_PATH_FILE_ACCESS, fileName,
                    DecodeBytes(std::generic_category().message(code)));
}

/// Repeats a system call that a signal has interrupted.
template <class Call>
auto Uninterrupted(const Call& call) {
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

class Descriptor {
public:
    Descriptor(const std::string& path, int flags, mode_t mode = 0)
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system's interface
        : m_descriptor(Uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); })) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { static_cast<void>(Close()); }

    [[nodiscard]] bool IsOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] int Get() const { return m_descriptor; }
    /// The error code of closing, 0 when it went well or there was nothing to close.
    int Close() {
        const int descriptor = std::exchange(m_descriptor, -1);
        return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR ? 0 : errno;
    }

private:
    int m_descriptor;
};

IniStamp StampFrom(const struct stat& status) {
    return {true,
            static_cast<std::uint64_t>(status.st_dev),
            static_cast<std::uint64_t>(status.st_ino),
            static_cast<std::uint64_t>(status.st_size),
            static_cast<std::int64_t>(status.st_mtim.tv_sec),
            static_cast<std::int64_t>(status.st_mtim.tv_nsec)};
}

void RequireRegular(const struct stat& status, std::wstring_view fileName) {
    if (S_ISDIR(status.st_mode))
        Raise(EISDIR, fileName, Deed::Read);
    if (!S_ISREG(status.st_mode))
        throw FileError(ERR_PATH_FILE_ACCESS, fileName, L"It is not a regular file");
}

/// The status of the regular file behind `path`, or nothing when there is none.
std::optional<struct stat> FindRegular(const std::string& path, std::wstring_view fileName) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        if (errno == ENOENT)
            return std::nullopt;
        Raise(errno, fileName, Deed::Read);
    }
    RequireRegular(status, fileName);
    return status;
}

/// The path at the end of all symbolic links, whether there is a file or not.
fs::path FollowLinks(fs::path path, std::wstring_view fileName) {
    constexpr int mostLinks = 40;
    for (int links = 0; links <= mostLinks; ++links) {
        std::error_code noLink;
        const fs::path target = fs::read_symlink(path, noLink);
        if (noLink)
            return path;
        path = path.parent_path() / target;
    }
    Raise(ELOOP, fileName, Deed::Write);
}

std::string FolderOf(const fs::path& path) {
    const fs::path folder = path.parent_path();
    return folder.empty() ? "." : folder.string();
}

/// The file that is written in place of the old one until it takes that one's name. It vanishes on every way
/// that does not lead there.
class TemporaryFile {
public:
    TemporaryFile(const std::string& folder, mode_t mode)
        : m_path(folder + '/' + RandomName()), m_file(m_path, O_WRONLY | O_CREAT | O_EXCL, mode) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (m_file.IsOpen() || m_written)
            ::unlink(m_path.c_str());
    }

    [[nodiscard]] bool IsOpen() const { return m_file.IsOpen(); }
    [[nodiscard]] int Get() const { return m_file.Get(); }

    /// Each of these returns the error code, 0 when it went well.
    [[nodiscard]] int Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t count =
                Uninterrupted([&] { return ::write(m_file.Get(), bytes.data(), bytes.size()); });
            if (count < 0)
                return errno;
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        return Uninterrupted([&] { return ::fsync(m_file.Get()); }) == 0 ? 0 : errno;
    }
    [[nodiscard]] int Close() {
        m_written = true;
        return m_file.Close();
    }
    [[nodiscard]] int Become(const std::string& path) {
        if (::rename(m_path.c_str(), path.c_str()) != 0)
            return errno;
        m_written = false;
        return 0;
    }

private:
    static std::string RandomName() {
        std::random_device random;
        std::array<char, 16> digits{};
        const auto result = std::to_chars(digits.data(), digits.data() + digits.size(),
                                          (std::uint64_t{random()} << 32U) | random(), 16);
        return ".quor-" + std::string(digits.data(), result.ptr) + ".tmp";
    }

    std::string m_path;
    Descriptor m_file;
    bool m_written = false;
};

/// Gives the new file the owner, the group and the mode of the old one. Where the group cannot be kept, what
/// it was allowed is not passed on to another group.
void KeepOwnerAndMode(int descriptor, const struct stat& old) {
    mode_t mode = old.st_mode & 07777U;
    if (::fchown(descriptor, old.st_uid, old.st_gid) != 0 &&
        ::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0)
        mode &= ~mode_t{070} | ((mode & 07U) << 3U);
    static_cast<void>(
        ::fchmod(descriptor, mode)); // a file system that knows no modes refuses, and needs none
}

/// Makes the new name in the folder outlive a power cut. Where the folder may not be opened for reading, or
/// the file system cannot do it, there is nothing that could be done.
void FlushFolder(const std::string& folder, std::wstring_view fileName) {
    const Descriptor directory(folder, O_RDONLY | O_DIRECTORY);
    if (directory.IsOpen() && Uninterrupted([&] { return ::fsync(directory.Get()); }) != 0 && errno != EINVAL)
        Raise(errno, fileName, Deed::Write);
}

} // namespace

std::optional<IniFileBytes> ReadBytes(std::wstring_view fileName) {
    const std::string path = ToUtf8(fileName);
    if (!FindRegular(path, fileName))
        return std::nullopt;
    // Between the two looks somebody may put a pipe there: O_NONBLOCK keeps us from waiting for it.
    const Descriptor file(path, O_RDONLY | O_NONBLOCK);
    struct stat status {};
    if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0) {
        if (errno == ENOENT)
            return std::nullopt;
        Raise(errno, fileName, Deed::Read);
    }
    RequireRegular(status, fileName);

    constexpr std::size_t step = 65536;
    IniFileBytes result{{}, StampFrom(status)};
    std::string& bytes = result.bytes;
    bytes.resize(static_cast<std::size_t>(status.st_size));
    for (std::size_t used = 0;;) {
        std::array<char, step> beyond; // NOLINT(cppcoreguidelines-pro-type-member-init): read() fills it
        const bool full = used == bytes.size();
        const ssize_t count = Uninterrupted([&] {
            return full ? ::read(file.Get(), beyond.data(), beyond.size())
                        : ::read(file.Get(), bytes.data() + used, bytes.size() - used);
        });
        if (count < 0)
            Raise(errno, fileName, Deed::Read);
        if (count == 0) {
            bytes.resize(used);
            return result;
        }
        used += static_cast<std::size_t>(count);
        if (full)
            bytes.append(beyond.data(), static_cast<std::size_t>(count));
    }
}

IniStamp StampOf(std::wstring_view fileName) {
    const auto status = FindRegular(ToUtf8(fileName), fileName);
    return status ? StampFrom(*status) : IniStamp{};
}

IniStamp ReplaceBytes(std::wstring_view fileName, std::string_view bytes) {
    const fs::path path = FollowLinks(fs::path(ToUtf8(fileName)), fileName);
    const std::string folder = FolderOf(path);
    const std::optional<struct stat> old = FindRegular(path.string(), fileName);
    // The superuser may write anything; a file without any write bit is still meant to stay as it is.
    if (old && (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0 || (old->st_mode & 0222U) == 0))
        throw FileError(ERR_PERMISSION_DENIED, fileName, L"The file is read-only");

    TemporaryFile temporary(folder, old ? 0600 : 0666);
    if (!temporary.IsOpen())
        Raise(errno, fileName, Deed::Write);
    if (old)
        KeepOwnerAndMode(temporary.Get(), *old);
    struct stat status {};
    int error = temporary.Write(bytes);
    if (error == 0 && ::fstat(temporary.Get(), &status) != 0)
        error = errno;
    if (error == 0)
        error = temporary.Close();
    if (error == 0)
        error = temporary.Become(path.string());
    if (error != 0)
        Raise(error, fileName, Deed::Write);
    FlushFolder(folder, fileName);
    return StampFrom(status);
}

void MakeFolders(std::wstring_view folder) {
    const fs::path path(ToUtf8(folder));
    fs::path made;
    for (const fs::path& part : path) {
        made /= part;
        if (::mkdir(made.c_str(), 0700) != 0 && errno != EEXIST)
            Raise(errno, folder, Deed::Write);
    }
}

} // namespace QuorIniFile
