#include "QuorIniFile/detail/IniDisk.h"

#include "QuorIniFile/AsciiCase.h"
#include "QuorIniFile/detail/IniError.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

namespace QuorIniFile {
namespace {

namespace fs = std::filesystem;
using Opening = IniFileSystem::Opening;

constexpr std::uint64_t largestFile = 0xFFFFFFFF;

// Errors ---------------------------------------------------------------------------------------------------

/// Why the system was asked; a missing part of a path means another thing in each case.
enum class Purpose : std::uint8_t { Read, Write };

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

SystemError ErrorFor(int code) {
    const auto* const known = std::find_if(std::begin(systemErrors), std::end(systemErrors),
                                           [code](const SystemError& error) { return error.code == code; });
    return known != std::end(systemErrors) ? *known : SystemError{code, ERR_PATH_FILE_ACCESS, false};
}

std::wstring WordsFor(int code) { return DecodeBytes(std::generic_category().message(code)); }

[[noreturn]] void Raise(int code, std::wstring_view fileName, Purpose purpose) {
    if (code == ENOMEM)
        throw std::bad_alloc();
    if (code == ENOENT)
        throw FileError(purpose == Purpose::Read ? ERR_FILE_NOT_FOUND : ERR_PATH_NOT_FOUND, fileName);
    const SystemError error = ErrorFor(code);
    if (error.causeAddsNothing)
        throw FileError(error.number, fileName);
    throw FileError(error.number, fileName, WordsFor(code));
}

/// The same where it is the temporary file that cannot be taken.
[[noreturn]] void RaiseFor(const std::string& temporaryPath, int code, std::wstring_view fileName) {
    if (code == ENOMEM)
        throw std::bad_alloc();
    throw FileError(ErrorFor(code).number, fileName, INI_CAUSE_SYSTEM_AT_PATH,
                    {DecodeBytes(temporaryPath), WordsFor(code)});
}

int CodeOf(int error) { return error; }

template <class Value>
int CodeOf(const IniResult<Value>& result) {
    return result.error;
}

/// Repeats a call that a signal has interrupted.
template <class Call>
auto Uninterrupted(const Call& call) {
    auto result = call();
    while (CodeOf(result) == EINTR)
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

/// What tells a file from every other one, whatever its names.
struct FileId {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;

    template <class StatusOrStamp>
    explicit FileId(const StatusOrStamp& file) : device(file.device), inode(file.inode) {}
    friend bool operator==(const FileId&, const FileId&) = default;
};

void RequireRegular(const IniFileStatus& status, std::wstring_view fileName) {
    if (status.kind == IniFileStatus::Kind::Folder)
        Raise(EISDIR, fileName, Purpose::Read);
    if (status.kind != IniFileStatus::Kind::Regular)
        throw FileError(ERR_PATH_FILE_ACCESS, fileName, INI_CAUSE_NOT_A_REGULAR_FILE);
    if (status.size > largestFile)
        throw FileError(ERR_PATH_FILE_ACCESS, fileName, INI_CAUSE_TOO_LARGE);
}

/// The status of the regular file behind `path`, or nothing when there is none.
std::optional<IniFileStatus> FindRegular(const std::string& path, const Target& target) {
    const auto status = Uninterrupted([&] { return target.files.StatusAt(path); });
    if (status.error == ENOENT)
        return std::nullopt;
    if (status.error != 0)
        Raise(status.error, target.fileName, Purpose::Read);
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

IniFileStatus StatusOf(const OpenFile& file, const Target& target, Purpose purpose) {
    const auto status = Uninterrupted([&] { return target.files.StatusOf(file.Get()); });
    if (status.error != 0)
        Raise(status.error, target.fileName, purpose);
    return status.value;
}

IniStamp StampOfOpen(const OpenFile& file, const Target& target, Purpose purpose) {
    const Moment before = Now();
    return StampFrom(StatusOf(file, target, purpose), before);
}

struct RegularFile {
    OpenFile file;
    IniFileStatus status;
    IniStamp stamp;
};

/// Opens a file for reading. A program that has a lease on it (a file server for its clients) is given the
/// time that the system gives it, 45 seconds as a rule, to write what it still holds.
IniResult<IniFileSystem::Handle> OpenWhenFree(const std::string& path, const Target& target) {
    constexpr std::chrono::seconds patience(60);
    constexpr std::chrono::milliseconds step(5);
    const std::chrono::milliseconds start = target.files.Clock();
    for (;;) {
        const auto opened = Uninterrupted([&] { return target.files.Open(path, Opening::ToRead); });
        if (opened.error != EWOULDBLOCK || target.files.Clock() - start >= patience)
            return opened;
        target.files.Pause(step);
    }
}

/// The regular file behind `path`, open for reading, or nothing when there is none.
std::optional<RegularFile> OpenRegular(const std::string& path, const Target& target) {
    // Devices do things when they are opened, so one looks first; and what is there may be another thing by
    // the time it is open, so one looks again.
    if (!FindRegular(path, target))
        return std::nullopt;
    const auto opened = OpenWhenFree(path, target);
    if (opened.error == ENOENT)
        return std::nullopt;
    if (opened.error == EWOULDBLOCK)
        throw FileError(ERR_PERMISSION_DENIED, target.fileName, INI_CAUSE_IN_USE);
    if (opened.error != 0)
        Raise(opened.error, target.fileName, Purpose::Read);
    OpenFile file(target.files, opened.value);
    const Moment before = Now();
    const IniFileStatus status = StatusOf(file, target, Purpose::Read);
    RequireRegular(status, target.fileName);
    return RegularFile{std::move(file), status, StampFrom(status, before)};
}

std::size_t ReadAt(const OpenFile& file, std::uint64_t offset, char* bytes, std::size_t size,
                   const Target& target) {
    const auto count = Uninterrupted([&] { return target.files.Read(file.Get(), offset, bytes, size); });
    if (count.error != 0)
        Raise(count.error, target.fileName, Purpose::Read);
    return count.value;
}

constexpr std::size_t partSize = 262144;  // bytes that are read at once
constexpr std::size_t bufferSize = 65536; // bytes; in the heap, because stacks of threads may be small

std::string ReadAll(const RegularFile& regular, const Target& target) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(regular.status.size) + 1); // as the system said; there may be more
    for (std::size_t used = 0;;) {
        // Part by part: what is read is still in the cache of the processor, where the zeros were put.
        bytes.resize(std::max(std::min(bytes.capacity(), used + partSize), used + 1));
        const std::size_t count =
            ReadAt(regular.file, used, bytes.data() + used, bytes.size() - used, target);
        used += count;
        if (count == 0) {
            bytes.resize(used);
            return bytes;
        }
        if (used > largestFile)
            throw FileError(ERR_PATH_FILE_ACCESS, target.fileName, INI_CAUSE_TOO_LARGE);
    }
}

/// Whether a file has these very bytes. It is not kept in memory.
bool HasOnly(const OpenFile& file, std::string_view bytes, const Target& target) {
    const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize); // NOLINT(*-avoid-c-arrays)
    for (std::size_t used = 0;;) {
        const std::size_t count = ReadAt(file, used, buffer.get(), bufferSize, target);
        if (count == 0)
            return used == bytes.size();
        if (bytes.substr(used, count) != std::string_view(buffer.get(), count))
            return false;
        used += count;
    }
}

// Paths ----------------------------------------------------------------------------------------------------

/// A path of the file system's interface, which is UTF-8 on every system, and back.
fs::path PathFrom(std::string_view bytes) { return {std::u8string(bytes.begin(), bytes.end())}; }
std::string BytesOf(const fs::path& path) {
    const std::u8string bytes = path.u8string();
    return {bytes.begin(), bytes.end()};
}

bool IsAbsolute(const fs::path& path) {
    // Not every library knows the paths of a network: \\server\share\file.
    const auto& text = path.native();
    const auto isSeparator = [](auto c) { return c == '/' || c == '\\'; };
    return path.is_absolute() || (fs::path::preferred_separator != '/' && text.size() > 1 &&
                                  isSeparator(text[0]) && isSeparator(text[1]));
}

/// The path at the end of all symbolic links, whether there is a file or not.
fs::path FollowLinks(fs::path path, const Target& target) {
    constexpr int mostLinks = 40;
    for (int links = 0; links <= mostLinks; ++links) {
        const auto link = Uninterrupted([&] { return target.files.LinkAt(BytesOf(path)); });
        if (link.error == EINVAL || link.error == ENOENT)
            return path;
        if (link.error != 0)
            Raise(link.error, target.fileName, Purpose::Write);
        path = path.parent_path() / PathFrom(link.value);
    }
    Raise(ELOOP, target.fileName, Purpose::Write);
}

std::string FolderOf(const fs::path& path) {
    const fs::path folder = path.parent_path();
    return folder.empty() ? "." : BytesOf(folder);
}

std::string Hexadecimal(std::uint64_t number) {
    std::array<char, 16> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    return {digits.data(), end};
}

/// The files that a save needs beside its target. Their names begin with a number that says nothing but which
/// target is meant and is the same in every process: two files of one folder whose numbers are the same would
/// wait for each other and come to no harm.
struct Neighbours {
    std::string folder;
    std::string lock;           // a path
    std::string temporaryStart; // of names of temporary files
    static constexpr std::string_view temporaryEnd = ".tmp";
    static constexpr std::string_view keptEnd = ".kept";

    explicit Neighbours(const fs::path& target) : folder(FolderOf(target)) {
        std::uint64_t number = 0xCBF29CE484222325U;
        for (const char c : BytesOf(target.filename())) {
            // Where the case of letters makes no difference, it must not make two locks.
            number = (number ^ static_cast<unsigned char>(Small(c))) * 0x100000001B3U;
        }
        const std::string start = ".quor-" + Hexadecimal(number);
        lock = Path(start + ".lock");
        temporaryStart = start + '-';
    }
    [[nodiscard]] std::string Path(const std::string& name) const {
        return folder == "." ? name : BytesOf(PathFrom(folder) / PathFrom(name));
    }
    [[nodiscard]] std::string Temporary(std::uint64_t random) const {
        return Path(temporaryStart + Hexadecimal(random) + std::string(temporaryEnd));
    }
    /// Another name for a temporary file.
    [[nodiscard]] static std::string Kept(const std::string& temporary) {
        return temporary.substr(0, temporary.size() - temporaryEnd.size()) + std::string(keptEnd);
    }
    /// The temporary files that are there, or those that were kept. In a folder that may not be read there
    /// seem to be none.
    [[nodiscard]] std::vector<std::string> Find(std::string_view end, IniFileSystem& files) const {
        std::vector<std::string> paths;
        for (const std::string& name : Uninterrupted([&] { return files.NamesIn(folder); }).value) {
            if (name.starts_with(temporaryStart) && name.ends_with(end))
                paths.push_back(Path(name));
        }
        std::sort(paths.begin(), paths.end());
        return paths;
    }
};

/// Creates a folder, and those above it that are missing.
void MakeFolder(const fs::path& folder, const Target& target) {
    const std::string path = BytesOf(folder);
    const auto make = [&] { return Uninterrupted([&] { return target.files.MakeFolder(path); }); };
    int error = make();
    if (error == ENOENT && folder.has_parent_path() && folder.parent_path() != folder) {
        MakeFolder(folder.parent_path(), target);
        error = make();
    }
    if (error == EEXIST) { // a folder, or a link to one?
        const auto there = Uninterrupted([&] { return target.files.StatusAt(path); });
        error = there.error == 0 && there.value.kind != IniFileStatus::Kind::Folder ? ENOTDIR : there.error;
    }
    if (error != 0)
        Raise(error, target.fileName, Purpose::Write);
}

} // namespace

// Names ----------------------------------------------------------------------------------------------------

IniFileName::IniFileName(std::wstring text) : m_text(std::move(text)), m_path(ToUtf8(m_text)) {}

IniFileName IniFileName::Absolute(std::wstring_view text, IniFileSystem& files) {
    // No file has an empty name, or one with a NUL, or one that is no valid text.
    if (text.empty() || text.find(L'\0') != std::wstring_view::npos || !NameToFind(text))
        throw FileError(ERR_BAD_FILE_NAME, text);
    IniFileName name{std::wstring(text)};
    if (IsAbsolute(PathFrom(name.m_path)))
        return name;
    const auto folder = Uninterrupted([&] { return files.CurrentFolder(); });
    if (folder.error != 0)
        Raise(folder.error, text, Purpose::Write);
    std::string path = BytesOf(PathFrom(folder.value) / PathFrom(name.m_path));
    constexpr std::size_t longest = 4095; // bytes; what is below such a folder can be named from there only
    if (path.size() <= longest)
        name.m_path = std::move(path);
    return name;
}

// Reading --------------------------------------------------------------------------------------------------

std::optional<IniFileBytes> ReadBytes(const IniFileName& fileName, IniFileSystem& files) {
    const Target target{files, fileName.Text()};
    constexpr int mostReadings = 10; // a file that is always being written is taken as it is
    for (int reading = 1;; ++reading) {
        const auto regular = OpenRegular(fileName.Path(), target);
        if (!regular)
            return std::nullopt;
        IniFileBytes result{ReadAll(*regular, target), regular->stamp};
        if (reading == mostReadings || result.stamp == StampOfOpen(regular->file, target, Purpose::Read))
            return result;
        files.Pause(std::chrono::milliseconds(1));
    }
}

IniStamp StampOf(const IniFileName& fileName, IniFileSystem& files) {
    return StampAt(fileName.Path(), {files, fileName.Text()});
}

bool HasBytes(const IniFileName& fileName, std::string_view bytes, IniFileSystem& files) {
    const Target target{files, fileName.Text()};
    const auto regular = OpenRegular(fileName.Path(), target);
    return regular ? HasOnly(regular->file, bytes, target) : bytes.empty();
}

bool IsSamePlace(const IniFileName& a, const IniFileName& b, IniFileSystem& files) {
    const fs::path one = FollowLinks(PathFrom(a.Path()), {files, a.Text()});
    const fs::path other = FollowLinks(PathFrom(b.Path()), {files, b.Text()});
    // An answer that is not known is no "no": the one file would be overwritten as another one.
    const auto statusOf = [&files](const std::string& path, const IniFileName& name) {
        const auto status = Uninterrupted([&] { return files.StatusAt(path); });
        if (status.error != 0 && status.error != ENOENT)
            Raise(status.error, name.Text(), Purpose::Write);
        return status;
    };
    const auto isOne = [](const IniResult<IniFileStatus>& x, const IniResult<IniFileStatus>& y) {
        return x.error == 0 && y.error == 0 && FileId(x.value) == FileId(y.value);
    };
    if (one.filename() == other.filename() && isOne(statusOf(FolderOf(one), a), statusOf(FolderOf(other), b)))
        return true;
    // Where the case of letters makes no difference, one file answers to two spellings of its only name.
    const auto file = statusOf(BytesOf(one), a);
    return file.value.links == 1 && isOne(file, statusOf(BytesOf(other), b));
}

bool IsReadOnly(const IniFileName& fileName, IniFileSystem& files) {
    const fs::path path = FollowLinks(PathFrom(fileName.Path()), {files, fileName.Text()});
    const int error = Uninterrupted([&] { return files.MayWrite(BytesOf(path)); });
    return (error != 0 && error != ENOENT) ||
           Uninterrupted([&] { return files.MayWrite(FolderOf(path)); }) != 0;
}

void MakeFolderOf(const IniFileName& fileName, IniFileSystem& files) {
    const fs::path folder = PathFrom(fileName.Path()).parent_path();
    if (!folder.empty())
        MakeFolder(folder, {files, fileName.Text()});
}

std::vector<IniLeftover> LeftoversOf(const IniFileName& fileName, IniFileSystem& files) {
    const Neighbours neighbours(FollowLinks(PathFrom(fileName.Path()), {files, fileName.Text()}));
    // A relative name was completed by the folder that was the current one then.
    const std::string_view path = fileName.Path();
    const std::string given = ToUtf8(fileName.Text());
    const std::string_view added = path.substr(0, path.ends_with(given) ? path.size() - given.size() : 0);
    std::vector<IniLeftover> leftovers;
    const auto tell = [&](std::string_view left, bool isKept) {
        leftovers.push_back({DecodeBytes(left.substr(left.starts_with(added) ? added.size() : 0)), isKept});
    };
    for (const std::string& kept : neighbours.Find(Neighbours::keptEnd, files))
        tell(kept, true);

    std::vector<std::string> paths = neighbours.Find(Neighbours::temporaryEnd, files);
    paths.push_back(neighbours.lock);
    // A save that has just created its lock file has it locked a moment later.
    for (int look = 0; look < 2; ++look) {
        if (look != 0)
            files.Pause(std::chrono::milliseconds(20));
        const auto lock = Uninterrupted([&] { return files.Open(neighbours.lock, Opening::ToLock); });
        if (lock.error == 0) {
            const OpenFile file(files, lock.value);
            if (Uninterrupted([&] { return files.TryLock(file.Get()); }) != 0)
                return leftovers;
        } else if (lock.error != ENOENT) {
            return leftovers;
        }
        paths.erase(std::remove_if(paths.begin(), paths.end(),
                                   [&](const std::string& left) {
                                       return Uninterrupted([&] { return files.StatusAt(left); }).error != 0;
                                   }),
                    paths.end()); // a save that has ended meanwhile has taken its files along
        if (paths.empty())
            break;
    }
    for (const std::string& left : paths)
        tell(left, false);
    return leftovers;
}

// Replacing ------------------------------------------------------------------------------------------------

class IniReplacement::Work {
public:
    Work(const IniFileName& fileName, IniFileSystem& files)
        : m_fileName(fileName.Text()),
          m_files(files),
          m_path(BytesOf(FollowLinks(PathFrom(fileName.Path()), {files, m_fileName}))),
          m_neighbours(PathFrom(m_path)) {}
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() {
        // Where the temporary file cannot be removed, the lock file stays, too: so the next replacement knows
        // that there is something to remove.
        try {
            if (RemoveTemporary() && HasLock())
                static_cast<void>(Remove(m_neighbours.lock));
        } catch (...) { // NOLINT(bugprone-empty-catch): a destructor has nobody to tell
        }
    }

    void Begin() {
        constexpr std::chrono::milliseconds step(1);             // short, so that each of many has its turn
        const std::chrono::milliseconds start = m_files.Clock(); // calls take their time, too
        for (;;) {
            const std::chrono::milliseconds waited = m_files.Clock() - start;
            if (TryBegin(waited >= patience))
                break;
            if (waited >= 2 * patience)
                throw ErrorOf(SetbackKind::LockLost);
            m_files.Pause(step);
        }
        m_old = OpenRegular(m_path, Here());
        if (m_old)
            m_stamp = m_old->stamp;
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
        Require([&] { return m_files.SyncFolder(m_neighbours.folder); });
    }

    std::optional<IniStamp> Commit(std::string_view bytes, std::optional<std::string_view> read) {
        if (bytes.size() > largestFile)
            throw FileError(ERR_PATH_FILE_ACCESS, m_fileName, INI_CAUSE_WOULD_BE_TOO_LARGE);
        RequireWritable();
        const auto setback = CommitUnlessStolen(bytes, read);
        if (!m_kept.empty())
            throw KeptAside();
        if (setback)
            return SetBack(*setback);
        // Before the flush, which takes time: what another program makes of the file meanwhile is not ours.
        const IniStamp stamp = StampOfOpen(m_text->file, Here(), Purpose::Write);
        Require([&] { return m_files.SyncFolder(m_neighbours.folder); });
        return stamp;
    }
    [[nodiscard]] const QuorError& Setback() const { return m_setback.value(); }

private:
    static constexpr std::chrono::seconds patience{10};

    enum class SetbackKind : std::uint8_t {
        FileChanged,
        FileOpen, // the system does not replace it as long as somebody has it open
        LockLost,
        TemporaryLost,
        NeedsName, // the new text has to have a name from the start
        Stolen, // another file stands there, though we have the lock, and the one that we have read is gone
    };

    /// An open file, with what tells it from others.
    struct KnownFile {
        OpenFile file;
        FileId id;
        std::uint32_t rights = 0;
    };

    [[nodiscard]] Target Here() const { return {m_files, m_fileName}; }

    [[nodiscard]] KnownFile Known(OpenFile file) const {
        const IniFileStatus status = StatusOf(file, Here(), Purpose::Write);
        return {std::move(file), FileId(status), status.rights};
    }

    template <class Call>
    void Require(const Call& call) const {
        if (const int error = Uninterrupted(call))
            Raise(error, m_fileName, Purpose::Write);
    }

    [[nodiscard]] int Remove(const std::string& path) const {
        return Uninterrupted([&] { return m_files.Remove(path); });
    }

    /// Which file a path leads to; nothing when there is none.
    [[nodiscard]] std::optional<FileId> FileAt(const std::string& path) const {
        const auto named = Uninterrupted([&] { return m_files.StatusAt(path); });
        if (named.error == ENOENT)
            return std::nullopt;
        if (named.error != 0)
            Raise(named.error, m_fileName, Purpose::Write);
        return FileId(named.value);
    }
    [[nodiscard]] bool HasLock() const { return m_lock && FileAt(m_neighbours.lock) == m_lock->id; }

    std::nullopt_t SetBack(SetbackKind kind) {
        m_setback = ErrorOf(kind);
        return std::nullopt;
    }

    /// What is to be told when something comes in between again and again.
    [[nodiscard]] QuorError ErrorOf(SetbackKind kind) const {
        switch (kind) {
        case SetbackKind::LockLost:
            return FileError(ERR_PERMISSION_DENIED, m_fileName, INI_CAUSE_KEEPS_REMOVING,
                             {DecodeBytes(m_neighbours.lock)});
        case SetbackKind::TemporaryLost:
        case SetbackKind::NeedsName:
        case SetbackKind::Stolen:
            return FileError(ERR_PATH_FILE_ACCESS, m_fileName, INI_CAUSE_KEEPS_REMOVING,
                             {DecodeBytes(m_temporary)});
        case SetbackKind::FileOpen: // waited for where it is told
        case SetbackKind::FileChanged:
            break;
        }
        return FileError(ERR_PERMISSION_DENIED, m_fileName, INI_CAUSE_KEEPS_WRITING);
    }

    // The lock.

    /// Whether it is our turn now. Raises when it is not and `isLast` says that we have waited long enough.
    bool TryBegin(bool isLast) {
        // What is no file to be replaced is told before anything is created.
        static_cast<void>(FindRegular(m_path, Here()));
        const auto created =
            Uninterrupted([&] { return m_files.Open(m_neighbours.lock, Opening::CreateLock); });
        if (created.error == EEXIST) {
            RemoveAbandoned(isLast);
            return false;
        }
        if (created.error == EACCES)
            throw FileError(ERR_PERMISSION_DENIED, m_fileName, INI_CAUSE_FOLDER_REFUSES_FILES);
        if (created.error != 0)
            Raise(created.error, m_fileName, Purpose::Write);

        try {
            m_lock = Known(OpenFile(m_files, created.value));
        } catch (...) {
            static_cast<void>(Remove(m_neighbours.lock));
            throw;
        }
        const int error = Uninterrupted([&] { return m_files.TryLock(m_lock->file.Get()); });
        if (error != 0 && error != ENOTSUP && error != EWOULDBLOCK)
            Raise(error, m_fileName, Purpose::Write);
        // It may have been taken for abandoned before we could lock it.
        if (error != EWOULDBLOCK && HasLock())
            return true;
        m_lock.reset();
        return false;
    }

    /// Removes a lock file whose process has ended, and what that has left. Raises when there is one that is
    /// in use and `isLast`.
    void RemoveAbandoned(bool isLast) {
        const auto opened = Uninterrupted([&] { return m_files.Open(m_neighbours.lock, Opening::ToLock); });
        if (opened.error == ENOENT)
            return;
        if (opened.error == EACCES) { // another user's, who alone may lock it
            RemoveUntouched(nullptr, isLast);
            return;
        }
        if (opened.error != 0)
            RaiseFor(m_neighbours.lock, opened.error, m_fileName);

        const OpenFile lock(m_files, opened.value);
        const IniFileStatus status = StatusOf(lock, Here(), Purpose::Write);
        if (status.kind != IniFileStatus::Kind::Regular || status.size != 0)
            throw FileError(ERR_PATH_FILE_ACCESS, m_fileName, INI_CAUSE_NOT_A_LOCK_FILE,
                            {DecodeBytes(m_neighbours.lock)});
        const int error = Uninterrupted([&] { return m_files.TryLock(lock.Get()); });
        if (error == ENOTSUP)
            RemoveUntouched(&lock, isLast);
        else if (error == 0 && FileAt(m_neighbours.lock) == FileId(status))
            RemoveLeftovers(StampOfOpen(lock, Here(), Purpose::Write));
        else if (error == EWOULDBLOCK && isLast)
            throw InUse(m_files.LockHolder(lock.Get()));
        else if (error != 0 && error != EWOULDBLOCK)
            RaiseFor(m_neighbours.lock, error, m_fileName);
    }

    /// Where nobody can tell whether a lock file is locked: removes it when it is the one that we saw first,
    /// untouched, at the end of the waiting. A save that takes longer than that sees that its lock is gone.
    void RemoveUntouched(const OpenFile* lock, bool isLast) {
        const IniStamp stamp =
            lock ? StampOfOpen(*lock, Here(), Purpose::Write) : StampAt(m_neighbours.lock, Here());
        if (!m_firstSeen.exists)
            m_firstSeen = stamp;
        if (!isLast || !stamp.exists)
            return;
        if (stamp != m_firstSeen)
            throw InUse({});
        RemoveLeftovers(stamp);
    }

    /// Removes what a save has left whose lock file that is: temporary files that were changed since it was
    /// created. Older ones are somebody else's, and may be all that is left of a file. The lock file goes
    /// last: as long as it is there, somebody knows that there is something to remove.
    void RemoveLeftovers(const IniStamp& lock) {
        std::vector<std::string> paths;
        for (const std::string& path : m_neighbours.Find(Neighbours::temporaryEnd, m_files)) {
            const auto status = Uninterrupted([&] { return m_files.StatusAt(path); });
            if (status.error == 0 && std::tie(status.value.seconds, status.value.nanoseconds) >=
                                         std::tie(lock.seconds, lock.nanoseconds))
                paths.push_back(path);
        }
        paths.push_back(m_neighbours.lock);
        for (const std::string& path : paths) {
            const int error = Remove(path);
            if (error != 0 && error != ENOENT)
                RaiseFor(path, error, m_fileName);
        }
    }

    [[nodiscard]] QuorError InUse(const IniLockHolder& holder) const {
        return FileError(ERR_PERMISSION_DENIED, m_fileName, holder.cause, {DecodeBytes(holder.process)});
    }

    // The new text.

    void RequireWritable() const {
        if (!m_old)
            return;
        const int error = Uninterrupted([&] { return m_files.MayWrite(m_path); });
        if (error == EACCES)
            throw FileError(ERR_PERMISSION_DENIED, m_fileName, INI_CAUSE_READ_ONLY);
        if (error != 0)
            Raise(error, m_fileName, Purpose::Write);
    }

    /// Creates the file for the new text, without a name where that can be. False when its name is taken.
    bool CreateText() {
        const Opening how = m_old ? Opening::CreatePrivate : Opening::CreateShared;
        static_cast<void>(RemoveTemporary()); // what an attempt before this one has left
        m_hasTemporary = false;
        m_temporary = m_neighbours.Temporary(m_files.RandomNumber());
        IniResult<IniFileSystem::Handle> created{ENOTSUP, {}};
        if (!m_needsName)
            created = Uninterrupted([&] { return m_files.OpenUnnamed(m_neighbours.folder, how); });
        if (created.error == ENOTSUP) {
            created = Uninterrupted([&] { return m_files.Open(m_temporary, how); });
            if (created.error == EEXIST)
                return false;
            m_hasTemporary = created.error == 0;
        }
        if (created.error != 0)
            Raise(created.error, m_fileName, Purpose::Write);
        m_text = Known(OpenFile(m_files, created.value));
        return true;
    }

    /// Writes and flushes the new text. It is for us alone until it is whole; then it gets the rights of the
    /// old file, or those of a new one.
    void WriteText(std::string_view bytes) {
        if (!m_hasTemporary) { // nobody can open it
            if (m_old)
                Require([&] { return m_files.CopyAttributes(m_old->file.Get(), m_text->file.Get()); });
            Write(bytes);
            Require([&] { return m_files.Sync(m_text->file.Get()); });
            return;
        }
        if (!m_old)
            Require([&] { return m_files.SetRights(m_text->file.Get(), IniFileSystem::ownerOnly); });
        Write(bytes);
        Require([&] { return m_files.Sync(m_text->file.Get()); });
        Require([&] {
            return m_old ? m_files.CopyAttributes(m_old->file.Get(), m_text->file.Get())
                         : m_files.SetRights(m_text->file.Get(), m_text->rights);
        });
        Require([&] { return m_files.Sync(m_text->file.Get()); });
    }

    void Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            const auto count = Uninterrupted([&] { return m_files.Write(m_text->file.Get(), bytes); });
            if (count.error != 0)
                Raise(count.error, m_fileName, Purpose::Write);
            if (count.value == 0) // a system that neither writes nor says why would be asked for ever
                Raise(EIO, m_fileName, Purpose::Write);
            bytes.remove_prefix(count.value);
        }
    }

    // The replacement.

    /// Whether the file is still the one that we have read.
    [[nodiscard]] bool IsAsItWas(std::optional<std::string_view> read) const {
        // A change in the tick of the one before leaves no trace in the stamp.
        if (m_old && read && !m_stamp.isSettled && !HasOnly(m_old->file, *read, Here()))
            return false;
        return StampAt(m_path, Here()) == m_stamp;
    }

    /// Writes the new text, and puts it in the place of the file. What has come in between, if anything.
    std::optional<SetbackKind> TryCommit(std::string_view bytes, std::optional<std::string_view> read) {
        if (!CreateText())
            return SetbackKind::TemporaryLost;
        WriteText(bytes);
        if (StatusOf(m_text->file, Here(), Purpose::Write).size != bytes.size())
            Raise(EIO, m_fileName, Purpose::Write); // the system has not done what it said
        return ReplaceWhenFree(read);
    }

    /// Where the system replaces no file that is open: waits until whoever has it open has closed it.
    std::optional<SetbackKind> ReplaceWhenFree(std::optional<std::string_view> read) {
        constexpr std::chrono::milliseconds step(5);
        const std::chrono::milliseconds start = m_files.Clock();
        for (;;) {
            const auto setback = Replace(read);
            if (setback != SetbackKind::FileOpen)
                return setback;
            if (m_files.Clock() - start >= patience)
                throw InUse({});
            m_files.Pause(step);
            m_old = OpenRegular(m_path, Here());
            if (!m_old || m_old->stamp != m_stamp)
                return SetbackKind::FileChanged;
        }
    }

    /// The same until it has succeeded, or something has come in between that is not a theft.
    std::optional<SetbackKind> CommitUnlessStolen(std::string_view bytes,
                                                  std::optional<std::string_view> read) {
        constexpr int mostThefts = 20;
        for (int thefts = 0;;) {
            const auto setback = TryCommit(bytes, read);
            if (setback == SetbackKind::NeedsName)
                continue;
            if (setback != SetbackKind::Stolen)
                return setback;
            if (++thefts > mostThefts)
                throw ErrorOf(SetbackKind::TemporaryLost);
            // The file that we have read is gone, and what stands there is not ours: ours comes there first.
            m_stamp = StampAt(m_path, Here());
            m_isOldGone = true;
            read.reset();
        }
    }

    std::optional<SetbackKind> Replace(std::optional<std::string_view> read) {
        if (m_stamp.exists && !m_hasTemporary) {
            const int error = Uninterrupted([&] { return m_files.Name(m_text->file.Get(), m_temporary); });
            if (error == EEXIST)
                return SetbackKind::TemporaryLost;
            if (error != 0)
                return WhyNoName(error);
            m_hasTemporary = true;
        }
        if (m_hasTemporary && FileAt(m_temporary) != m_text->id)
            return SetbackKind::TemporaryLost;
        if (!HasLock())
            return SetbackKind::LockLost;
        if (!IsAsItWas(read)) // the last look: what comes now must not be waited for
            return SetbackKind::FileChanged;
        return m_stamp.exists ? Exchange() : Create();
    }

    /// Whether the system says that a file cannot be named in this way, rather than that something went
    /// wrong.
    static bool IsRefusal(int error) {
        constexpr int refusals[] = {EPERM, EACCES, EMLINK, ENOENT, EXDEV, EINVAL, ENOSYS, ENOTSUP};
        return std::find(std::begin(refusals), std::end(refusals), error) != std::end(refusals);
    }

    /// When a file without a name cannot get one: raises what will not be better with a name from the start.
    [[nodiscard]] SetbackKind WhyNoName(int error) {
        if (!IsRefusal(error))
            Raise(error, m_fileName, Purpose::Write);
        m_needsName = true;
        return SetbackKind::NeedsName;
    }

    /// For a file that is not there yet.
    std::optional<SetbackKind> Create() {
        const int error = Uninterrupted([&] { return m_files.Name(m_text->file.Get(), m_path); });
        if (error == EEXIST)
            return SetbackKind::FileChanged;
        if (error != 0 && m_hasTemporary && IsRefusal(error)) // not every file can have two names
            return Overwrite();
        if (error != 0)
            return WhyNoName(error);
        return FileAt(m_path) == m_text->id ? std::nullopt : std::optional(SetbackKind::FileChanged);
    }

    /// Lets the new text and the file change names. Whatever file then stands where none of ours should be
    /// goes back to its place, or is kept aside and told of: it is never removed.
    std::optional<SetbackKind> Exchange() {
        const int error = Uninterrupted([&] { return m_files.Exchange(m_temporary, m_path); });
        if (error == ENOTSUP)
            return Overwrite();
        if (error != 0)
            return WhyNot(error);
        m_hasTemporary = false; // nothing there is ours to remove until we know what it is
        try {
            return Settle();
        } catch (const QuorError&) {
            if (!m_hasTemporary)
                SettleWithoutKnowing();
            throw;
        }
    }

    /// What an exchange has brought.
    std::optional<SetbackKind> Settle() {
        const std::optional<FileId> there = FileAt(m_path);
        const std::optional<FileId> taken = FileAt(m_temporary);
        const bool isNewThere = there == m_text->id;
        const bool isOld = taken == FileId(m_stamp) && !m_isOldGone;
        if (isNewThere && (isOld || !taken)) {
            m_hasTemporary = isOld;
            return std::nullopt;
        }
        if (taken == m_text->id) { // the system has not done what it says
            m_hasTemporary = true;
            return Overwrite();
        }
        if (!HasLock()) { // somebody has saved meanwhile
            if (taken && !isOld && !(isNewThere && PutBack(*there)))
                KeepAside();
            m_hasTemporary = m_hasTemporary || isOld;
            return SetbackKind::FileChanged;
        }
        // A program that takes no lock has put a file there, right before us, or right behind us, or in the
        // place of our new text: nobody can tell.
        if (isOld && there && PutBack(*there) && FileAt(m_path) == taken) {
            KeepAside();
            return SetbackKind::FileChanged;
        }
        KeepAside();
        return isNewThere ? std::nullopt : std::optional(SetbackKind::Stolen);
    }

    /// The same when the system does not answer. Asks once more, and else keeps what it does not know.
    void SettleWithoutKnowing() {
        const auto there = m_files.StatusAt(m_path);
        const auto taken = m_files.StatusAt(m_temporary);
        m_hasTemporary = there.error == 0 && taken.error == 0 && FileId(there.value) == m_text->id &&
                         FileId(taken.value) == FileId(m_stamp) && !m_isOldGone;
        if (!m_hasTemporary)
            KeepAside();
    }

    /// Takes an exchange back. True when what stood there, `there`, is what has the temporary name then. What
    /// somebody has put there in between goes back to its place, and what that takes out is kept aside.
    bool PutBack(const FileId& there) {
        for (int exchanges = 0; exchanges < 2; ++exchanges) {
            const int error = Uninterrupted([&] { return m_files.Exchange(m_temporary, m_path); });
            if (error != 0 && error != ENOENT) {
                KeepAside();
                RaiseFor(m_kept, error, m_fileName);
            }
            const std::optional<FileId> back = FileAt(m_temporary);
            m_hasTemporary = back == m_text->id;
            if (back == there || m_hasTemporary)
                return back == there;
        }
        KeepAside();
        return false;
    }

    /// Gives what stands under the temporary name another one, under which no save ever removes it.
    void KeepAside() {
        if (m_hasTemporary)
            return; // it is ours
        const std::string kept = Neighbours::Kept(m_temporary);
        const int error = Uninterrupted([&] { return m_files.Rename(m_temporary, kept); });
        if (error != ENOENT)
            m_kept += (m_kept.empty() ? "" : ", ") + (error == 0 ? kept : m_temporary);
    }
    [[nodiscard]] QuorError KeptAside() const {
        return FileError(ERR_PATH_FILE_ACCESS, m_fileName, INI_CAUSE_REPLACED_AND_KEPT,
                         {DecodeBytes(m_kept)});
    }

    /// Where files cannot change names, or there is no old one.
    std::optional<SetbackKind> Overwrite() {
        if (m_old)
            m_old->file = OpenFile(); // some systems replace no file that is open
        const int error = Uninterrupted([&] { return m_files.Rename(m_temporary, m_path); });
        if (error == EWOULDBLOCK)
            return SetbackKind::FileOpen;
        if (error != 0)
            return WhyNot(error);
        m_hasTemporary = false;
        if (FileAt(m_path) == m_text->id)
            return std::nullopt;
        if (!HasLock()) // somebody has saved after us
            return SetbackKind::FileChanged;
        throw FileError(ERR_PATH_FILE_ACCESS, m_fileName, INI_CAUSE_REPLACED);
    }

    /// What has come in between when a name could not be given. Raises what is an error.
    [[nodiscard]] SetbackKind WhyNot(int error) const {
        if (error == EBUSY)
            throw FileError(ERR_PATH_FILE_ACCESS, m_fileName, INI_CAUSE_MOUNT_POINT);
        if (error != ENOENT)
            Raise(error, m_fileName, Purpose::Write);
        return FileAt(m_temporary) == m_text->id ? SetbackKind::FileChanged : SetbackKind::TemporaryLost;
    }

    /// False when the temporary file, or the old file under its name, is still there.
    bool RemoveTemporary() {
        if (!m_hasTemporary)
            return true;
        const int error = Remove(m_temporary);
        return error == 0 || error == ENOENT;
    }

    std::wstring m_fileName;
    IniFileSystem& m_files;
    std::string m_path; // at the end of all links
    Neighbours m_neighbours;
    std::optional<KnownFile> m_lock;  // once it is our turn
    IniStamp m_firstSeen;             // of a lock file of which nobody can tell whether it is locked
    std::optional<RegularFile> m_old; // nothing when there is no file yet
    IniStamp m_stamp;
    std::optional<KnownFile> m_text;
    std::string m_temporary;     // the path that the new text has, or gets, before that of the file
    bool m_hasTemporary = false; // there is something of ours under that path
    bool m_needsName = false;    // there can be no files without one here
    bool m_isOldGone = false;    // the file that we have read; m_stamp is that of another one then
    std::string m_kept;          // files of others that were kept aside
    std::optional<QuorError> m_setback;
};

IniReplacement::IniReplacement(const IniFileName& fileName, IniFileSystem& files)
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
const QuorError& IniReplacement::Setback() const { return m_work->Setback(); }

} // namespace QuorIniFile
