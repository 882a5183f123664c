#include "QuorIniFile/IniDisk.h"

#include "QuorIniFile/IniError.h"
#include "QuorIniFile/IniFormat.h"
#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <new>
#include <system_error>
#include <utility>

namespace QuorIniFile {
namespace {

namespace fs = std::filesystem;
using Opening = IniFileSystem::Opening;

constexpr std::uint64_t largestFile = 0xFFFFFFFF;

// Errors ---------------------------------------------------------------------------------------------------

/// What is being done when the system refuses; a missing part of a path means another thing in each case.
enum class Deed : std::uint8_t { Read, Write };

struct SystemError {
    int code;
    EErrorNumber number;
    bool causeAddsNothing;
};

constexpr SystemError systemErrors[] = {
    {EACCES, ERR_PERMISSION_DENIED, true}, {EPERM, ERR_PERMISSION_DENIED, false},
    {EROFS, ERR_PERMISSION_DENIED, false}, {ENOSPC, ERR_DISK_FULL, true},
#ifdef EDQUOT // not every system has quotas
    {EDQUOT, ERR_DISK_FULL, false},
#endif
    {EFBIG, ERR_DISK_FULL, false},         {EIO, ERR_DEVICE_IO, true},
    {ENOTDIR, ERR_PATH_NOT_FOUND, false},  {ENAMETOOLONG, ERR_BAD_FILE_NAME, false},
};

SystemError Known(int code) {
    const auto* const known = std::find_if(std::begin(systemErrors), std::end(systemErrors),
                                           [code](const SystemError& error) { return error.code == code; });
    return known != std::end(systemErrors) ? *known : SystemError{code, ERR_PATH_FILE_ACCESS, false};
}

std::wstring WordsFor(int code) { return DecodeBytes(std::generic_category().message(code)); }

[[noreturn]] void Raise(int code, std::wstring_view fileName, Deed deed) {
    if (code == ENOMEM)
        throw std::bad_alloc();
    if (code == ENOENT)
        throw FileError(deed == Deed::Read ? ERR_FILE_NOT_FOUND : ERR_PATH_NOT_FOUND, fileName);
    const SystemError error = Known(code);
    if (error.causeAddsNothing)
        throw FileError(error.number, fileName);
    throw FileError(error.number, fileName, WordsFor(code));
}

/// The same where it is the temporary file that cannot be taken.
[[noreturn]] void RaiseFor(const std::string& temporaryPath, int code, std::wstring_view fileName) {
    if (code == ENOMEM)
        throw std::bad_alloc();
    throw FileError(Known(code).number, fileName, DecodeBytes(temporaryPath) + L": " + WordsFor(code));
}

int ErrorOf(int error) { return error; }

template <class Value>
int ErrorOf(const IniResult<Value>& result) {
    return result.error;
}

/// Repeats a call that a signal has interrupted.
template <class Call>
auto Uninterrupted(const Call& call) {
    auto result = call();
    while (ErrorOf(result) == EINTR)
        result = call();
    return result;
}

// Files ----------------------------------------------------------------------------------------------------

using Moment = std::chrono::system_clock::time_point;

Moment Now() { return std::chrono::system_clock::now(); }

/// The stamp of a file whose status was asked after a moment.
IniStamp StampFrom(const IniFileStatus& status, Moment before) {
    constexpr std::int64_t coarsestTick = 2;
    const bool isSettled =
        std::chrono::duration_cast<std::chrono::seconds>(before.time_since_epoch()).count() >
        status.seconds + coarsestTick;
    return {true, status.device, status.inode, status.size, status.seconds, status.nanoseconds, isSettled};
}

/// A file system and the file whose errors are to be told.
struct Target {
    IniFileSystem& files;
    std::wstring_view fileName;
};

void RequireRegular(const IniFileStatus& status, std::wstring_view fileName) {
    if (status.kind == IniFileStatus::Kind::Folder)
        Raise(EISDIR, fileName, Deed::Read);
    if (status.kind != IniFileStatus::Kind::Regular)
        throw FileError(ERR_PATH_FILE_ACCESS, fileName, L"It is not a regular file");
    if (status.size > largestFile)
        throw FileError(ERR_PATH_FILE_ACCESS, fileName, L"It is larger than 4 GiB");
}

/// The status of the regular file behind `path`, or nothing when there is none.
std::optional<IniFileStatus> FindRegular(const std::string& path, const Target& target) {
    const auto status = Uninterrupted([&] { return target.files.StatusAt(path); });
    if (status.error == ENOENT)
        return std::nullopt;
    if (status.error != 0)
        Raise(status.error, target.fileName, Deed::Read);
    RequireRegular(status.value, target.fileName);
    return status.value;
}

/// The stamp of the regular file behind `path`.
IniStamp StampAt(const std::string& path, const Target& target) {
    const Moment before = Now();
    const auto status = FindRegular(path, target);
    return status ? StampFrom(*status, before) : IniStamp{};
}

/// An open file, closed at the end.
class OpenFile {
public:
    OpenFile() = default;
    OpenFile(IniFileSystem& files, IniFileSystem::Handle handle) : m_files(&files), m_handle(handle) {}
    OpenFile(OpenFile&& other) noexcept
        : m_files(std::exchange(other.m_files, nullptr)), m_handle(other.m_handle) {}
    OpenFile& operator=(OpenFile&& other) noexcept {
        std::swap(m_files, other.m_files);
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (m_files != nullptr)
            m_files->Close(m_handle);
    }
    [[nodiscard]] IniFileSystem::Handle Get() const { return m_handle; }

private:
    IniFileSystem* m_files = nullptr; // there is no file without one
    IniFileSystem::Handle m_handle = 0;
};

IniFileStatus StatusOf(const OpenFile& file, const Target& target, Deed deed) {
    const auto status = Uninterrupted([&] { return target.files.StatusOf(file.Get()); });
    if (status.error != 0)
        Raise(status.error, target.fileName, deed);
    return status.value;
}

IniStamp StampOfOpen(const OpenFile& file, const Target& target, Deed deed) {
    const Moment before = Now();
    return StampFrom(StatusOf(file, target, deed), before);
}

struct RegularFile {
    OpenFile file;
    IniFileStatus status;
    IniStamp stamp;
};

/// The regular file behind `path`, open for reading, or nothing when there is none.
std::optional<RegularFile> OpenRegular(const std::string& path, const Target& target) {
    // Devices do things when they are opened, so one looks first; and what is there may be another thing by
    // the time it is open, so one looks again.
    if (!FindRegular(path, target))
        return std::nullopt;
    const auto opened = Uninterrupted([&] { return target.files.Open(path, Opening::ToRead); });
    if (opened.error == ENOENT)
        return std::nullopt;
    if (opened.error != 0)
        Raise(opened.error, target.fileName, Deed::Read);
    OpenFile file(target.files, opened.value);
    const Moment before = Now();
    const IniFileStatus status = StatusOf(file, target, Deed::Read);
    RequireRegular(status, target.fileName);
    return RegularFile{std::move(file), status, StampFrom(status, before)};
}

std::size_t ReadAt(const OpenFile& file, std::uint64_t offset, char* bytes, std::size_t size,
                   const Target& target) {
    const auto count = Uninterrupted([&] { return target.files.Read(file.Get(), offset, bytes, size); });
    if (count.error != 0)
        Raise(count.error, target.fileName, Deed::Read);
    return count.value;
}

constexpr std::size_t bufferSize = 65536;

std::string ReadAll(const RegularFile& regular, const Target& target) {
    std::string bytes(static_cast<std::size_t>(regular.status.size), '\0');
    for (std::size_t used = 0;;) {
        // The size is what the system said; there may be more.
        std::array<char, bufferSize> beyond; // NOLINT(cppcoreguidelines-pro-type-member-init): it is filled
        const bool full = used == bytes.size();
        const std::size_t count =
            full ? ReadAt(regular.file, used, beyond.data(), beyond.size(), target)
                 : ReadAt(regular.file, used, bytes.data() + used, bytes.size() - used, target);
        if (count == 0) {
            bytes.resize(used);
            return bytes;
        }
        used += count;
        if (used > largestFile)
            throw FileError(ERR_PATH_FILE_ACCESS, target.fileName, L"It is larger than 4 GiB");
        if (full)
            bytes.append(beyond.data(), count);
    }
}

/// Whether a file has these very bytes. It is not kept in memory.
bool HasOnly(const OpenFile& file, std::string_view bytes, const Target& target) {
    std::array<char, bufferSize> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): it is filled
    for (std::size_t used = 0;;) {
        const std::size_t count = ReadAt(file, used, buffer.data(), buffer.size(), target);
        if (count == 0)
            return used == bytes.size();
        if (bytes.substr(used, count) != std::string_view(buffer.data(), count))
            return false;
        used += count;
    }
}

// Paths ----------------------------------------------------------------------------------------------------

/// The path at the end of all symbolic links, whether there is a file or not.
fs::path FollowLinks(fs::path path, const Target& target) {
    constexpr int mostLinks = 40;
    for (int links = 0; links <= mostLinks; ++links) {
        const auto link = Uninterrupted([&] { return target.files.LinkAt(path.string()); });
        if (link.error == EINVAL || link.error == ENOENT)
            return path;
        if (link.error != 0)
            Raise(link.error, target.fileName, Deed::Write);
        path = path.parent_path() / link.value;
    }
    Raise(ELOOP, target.fileName, Deed::Write);
}

std::string FolderOf(const fs::path& path) {
    const fs::path folder = path.parent_path();
    return folder.empty() ? "." : folder.string();
}

/// The temporary file for a path, the same in every process. Its name says nothing but which file is meant:
/// two files of one folder whose numbers are the same would wait for each other and come to no harm.
std::string TemporaryPathFor(const fs::path& path) {
    std::uint64_t number = 0xCBF29CE484222325U;
    for (const char c : path.filename().string()) {
        // Where the case of letters makes no difference, it must not make two locks.
        number = (number ^ static_cast<unsigned char>(Small(c))) * 0x100000001B3U;
    }
    std::array<char, 16> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    return (path.parent_path() / (".quor-" + std::string(digits.data(), end) + ".tmp")).string();
}

} // namespace

// Reading --------------------------------------------------------------------------------------------------

std::optional<IniFileBytes> ReadBytes(std::wstring_view fileName, IniFileSystem& files) {
    const Target target{files, fileName};
    const std::string path = ToUtf8(fileName);
    constexpr int mostReadings = 10; // a file that is always being written is taken as it is
    for (int reading = 1;; ++reading) {
        const auto regular = OpenRegular(path, target);
        if (!regular)
            return std::nullopt;
        IniFileBytes result{ReadAll(*regular, target), regular->stamp};
        if (reading == mostReadings || result.stamp == StampOfOpen(regular->file, target, Deed::Read))
            return result;
        files.Pause(std::chrono::milliseconds(1));
    }
}

IniStamp StampOf(std::wstring_view fileName, IniFileSystem& files) {
    return StampAt(ToUtf8(fileName), {files, fileName});
}

bool HasBytes(std::wstring_view fileName, std::string_view bytes, IniFileSystem& files) {
    const Target target{files, fileName};
    const auto regular = OpenRegular(ToUtf8(fileName), target);
    return regular ? HasOnly(regular->file, bytes, target) : bytes.empty();
}

void MakeFolders(std::wstring_view folder, IniFileSystem& files) {
    const fs::path path(ToUtf8(folder));
    fs::path made;
    for (const fs::path& part : path) {
        made /= part;
        const int error = Uninterrupted([&] { return files.MakeFolder(made.string()); });
        if (error != 0 && error != EEXIST)
            Raise(error, folder, Deed::Write);
    }
}

// Replacing ------------------------------------------------------------------------------------------------

class IniReplacement::Work {
public:
    Work(std::wstring_view fileName, IniFileSystem& files)
        : m_fileName(fileName),
          m_files(files),
          m_path(FollowLinks(fs::path(ToUtf8(fileName)), {files, fileName})),
          m_folder(FolderOf(m_path)),
          m_temporaryPath(TemporaryPathFor(m_path)) {}
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() {
        // While the lock is held, so that nobody else's file goes. Where it cannot be removed, the next
        // replacement does it.
        if (m_isOurs)
            static_cast<void>(Uninterrupted([&] { return m_files.Remove(m_temporaryPath); }));
    }

    void Begin() {
        constexpr std::chrono::seconds patience(10);
        constexpr std::chrono::milliseconds step(1);             // short, so that each of many has its turn
        const std::chrono::milliseconds start = m_files.Clock(); // calls take their time, too
        while (!TryBegin(m_files.Clock() - start >= patience))
            m_files.Pause(step);
    }

    [[nodiscard]] const IniStamp& Stamp() const { return m_stamp; }
    [[nodiscard]] bool Has(std::string_view bytes) const {
        return m_old ? HasOnly(m_old->file, bytes, Here()) : bytes.empty();
    }
    [[nodiscard]] std::string Bytes() const { return m_old ? ReadAll(*m_old, Here()) : std::string(); }

    void Flush() const {
        if (!m_old)
            return;
        Require([&] { return m_files.Sync(m_old->file.Get()); });
        Require([&] { return m_files.SyncFolder(m_folder); });
    }

    std::optional<IniStamp> Commit(std::string_view bytes, std::optional<std::string_view> read) {
        if (bytes.size() > largestFile)
            throw FileError(ERR_PATH_FILE_ACCESS, m_fileName, L"It would be larger than 4 GiB");
        if (m_old)
            TakeOverAttributes();
        Write(bytes);
        Require([&] { return m_files.Sync(m_temporary.Get()); });
        // A change in the tick of the one before leaves no trace in the stamp.
        if (m_old && read && !m_stamp.isSettled && !HasOnly(m_old->file, *read, Here()))
            return std::nullopt;
        if (StampAt(m_path.string(), Here()) != m_stamp)
            return std::nullopt;
        Require([&] { return m_files.Rename(m_temporaryPath, m_path.string()); });
        m_isOurs = false;
        // Before the flush, which takes time: what another program makes of the file meanwhile is not ours.
        const IniStamp stamp = StampOfOpen(m_temporary, Here(), Deed::Write);
        Require([&] { return m_files.SyncFolder(m_folder); });
        return stamp;
    }

private:
    [[nodiscard]] Target Here() const { return {m_files, m_fileName}; }

    template <class Call>
    void Require(const Call& call) const {
        if (const int error = Uninterrupted(call))
            Raise(error, m_fileName, Deed::Write);
    }

    /// Whether it is our turn now. Raises when it is not and `isLast` says that we have waited long enough.
    bool TryBegin(bool isLast) {
        const bool exists = FindRegular(m_path.string(), Here()).has_value();
        const auto created = Uninterrupted([&] {
            return m_files.Open(m_temporaryPath, exists ? Opening::CreatePrivate : Opening::CreateShared);
        });
        if (created.error == EEXIST) {
            RemoveAbandoned(isLast);
            return false;
        }
        if (created.error == EACCES)
            throw FileError(ERR_PERMISSION_DENIED, m_fileName, L"Its folder does not allow new files");
        if (created.error != 0)
            Raise(created.error, m_fileName, Deed::Write);

        OpenFile temporary(m_files, created.value);
        const int lock = Uninterrupted([&] { return m_files.TryLock(temporary.Get()); });
        if (lock == EWOULDBLOCK) // it was taken for abandoned before we could lock it
            return false;
        if (lock != 0 && lock != ENOTSUP)
            Raise(lock, m_fileName, Deed::Write);
        if (!IsTemporary(temporary))
            return false;
        m_temporary = std::move(temporary);
        m_isOurs = true;

        m_old = OpenRegular(m_path.string(), Here());
        m_stamp = m_old ? m_old->stamp : IniStamp{};
        if (m_old.has_value() == exists)
            return true;
        // It has come or gone meanwhile; the temporary file was made for the wrong readers.
        Require([&] { return m_files.Remove(m_temporaryPath); });
        m_isOurs = false;
        return false;
    }

    /// Removes a temporary file whose process has ended. Raises when there is one that is in use and
    /// `isLast`.
    void RemoveAbandoned(bool isLast) {
        const auto opened = Uninterrupted([&] { return m_files.Open(m_temporaryPath, Opening::ToLock); });
        if (opened.error == ENOENT)
            return;
        if (opened.error == EACCES) { // another user's, as long as nobody but that one may read it
            if (isLast)
                throw FileError(ERR_PERMISSION_DENIED, m_fileName,
                                L"In use by the owner of " + DecodeBytes(m_temporaryPath));
            return;
        }
        if (opened.error != 0)
            RaiseFor(m_temporaryPath, opened.error, m_fileName);

        const OpenFile temporary(m_files, opened.value);
        const int lock = Uninterrupted([&] { return m_files.TryLock(temporary.Get()); });
        if (lock != 0 && lock != EWOULDBLOCK && lock != ENOTSUP)
            RaiseFor(m_temporaryPath, lock, m_fileName);
        if (lock == 0 || (lock == ENOTSUP && IsUntouched(temporary, isLast))) {
            if (!IsTemporary(temporary))
                return;
            const int error = Uninterrupted([&] { return m_files.Remove(m_temporaryPath); });
            if (error != 0 && error != ENOENT)
                RaiseFor(m_temporaryPath, error, m_fileName);
            return;
        }
        if (isLast) {
            const std::string holder = m_files.LockHolder(temporary.Get());
            throw FileError(ERR_PERMISSION_DENIED, m_fileName,
                            L"In use by " + (holder.empty() ? L"another program" : DecodeBytes(holder)));
        }
    }

    /// Whether the temporary file is as it was when we first saw it, asked at the end of the waiting.
    bool IsUntouched(const OpenFile& temporary, bool isLast) {
        const IniStamp stamp = StampOfOpen(temporary, Here(), Deed::Write);
        if (!m_firstSeen.exists)
            m_firstSeen = stamp;
        return isLast && stamp == m_firstSeen;
    }

    /// Whether an open file is the one that has the name of the temporary file.
    [[nodiscard]] bool IsTemporary(const OpenFile& file) const {
        const auto named = Uninterrupted([&] { return m_files.StatusAt(m_temporaryPath); });
        if (named.error == ENOENT)
            return false;
        if (named.error != 0)
            Raise(named.error, m_fileName, Deed::Write);
        const IniFileStatus own = StatusOf(file, Here(), Deed::Write);
        return own.device == named.value.device && own.inode == named.value.inode;
    }

    void TakeOverAttributes() {
        const int error = Uninterrupted([&] { return m_files.MayWrite(m_path.string()); });
        if (error == EACCES)
            throw FileError(ERR_PERMISSION_DENIED, m_fileName, L"The file is read-only");
        if (error != 0)
            Raise(error, m_fileName, Deed::Write);
        Require([&] { return m_files.CopyAttributes(m_old->file.Get(), m_temporary.Get()); });
    }

    void Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const auto count = Uninterrupted([&] { return m_files.Write(m_temporary.Get(), bytes); });
            if (count.error != 0)
                Raise(count.error, m_fileName, Deed::Write);
            if (count.value == 0) // a system that neither writes nor says why would be asked for ever
                Raise(EIO, m_fileName, Deed::Write);
            bytes.remove_prefix(count.value);
        }
    }

    std::wstring m_fileName;
    IniFileSystem& m_files;
    fs::path m_path; // at the end of all links
    std::string m_folder;
    std::string m_temporaryPath;
    OpenFile m_temporary;
    bool m_isOurs = false;            // the temporary file: it was made, locked, and has still its name
    std::optional<RegularFile> m_old; // nothing when there is no file yet
    IniStamp m_stamp;
    IniStamp m_firstSeen; // of a temporary file that cannot be locked
};

IniReplacement::IniReplacement(std::wstring_view fileName, IniFileSystem& files)
    : m_work(std::make_unique<Work>(fileName, files)) {
    m_work->Begin();
}

IniReplacement::~IniReplacement() = default;

const IniStamp& IniReplacement::Stamp() const { return m_work->Stamp(); }
bool IniReplacement::Has(std::string_view bytes) const { return m_work->Has(bytes); }
std::string IniReplacement::Bytes() const { return m_work->Bytes(); }
void IniReplacement::Flush() const { m_work->Flush(); }
std::optional<IniStamp> IniReplacement::Commit(std::string_view bytes, std::optional<std::string_view> read) {
    return m_work->Commit(bytes, read);
}

} // namespace QuorIniFile
