// The one file that talks to the operating system, here Windows.

#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniFileSystem.h"
#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <iterator>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <windows.h>

#include <sddl.h>
#include <winioctl.h>
#include <winternl.h>

extern "C" NTSTATUS NTAPI RtlGetLastNtStatus(); // ntdll exports it, no header declares it

namespace QuorIniFile {
namespace {

using Handle = IniFileSystem::Handle;

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE Raw(Handle file) {
    return reinterpret_cast<HANDLE>(file); // NOLINT: a handle is a number that looks like a pointer
}

// Errors
// -----------------------------------------------------------------------------------------------------

struct ErrorPair {
    DWORD windows;
    int error;
};

constexpr ErrorPair errors[] = {
    {ERROR_FILE_NOT_FOUND, ENOENT},
    {ERROR_PATH_NOT_FOUND, ENOENT},
    {ERROR_INVALID_DRIVE, ENOENT},
    {ERROR_BAD_NETPATH, ENOENT},
    {ERROR_BAD_NET_NAME, ENOENT},
    {ERROR_ACCESS_DENIED, EACCES},
    {ERROR_NETWORK_ACCESS_DENIED, EACCES},
    {ERROR_CANT_ACCESS_FILE, EACCES},
    {ERROR_PRIVILEGE_NOT_HELD, EPERM},
    {ERROR_INVALID_OWNER, EPERM},
    {ERROR_INVALID_PRIMARY_GROUP, EPERM},
    {ERROR_WRITE_PROTECT, EROFS},
    {ERROR_SHARING_VIOLATION, EWOULDBLOCK},
    {ERROR_LOCK_VIOLATION, EWOULDBLOCK},
    {ERROR_USER_MAPPED_FILE, EWOULDBLOCK},
    {ERROR_DELETE_PENDING, ENOENT},
    {ERROR_ALREADY_EXISTS, EEXIST},
    {ERROR_FILE_EXISTS, EEXIST},
    {ERROR_DISK_FULL, ENOSPC},
    {ERROR_HANDLE_DISK_FULL, ENOSPC},
    {ERROR_FILE_TOO_LARGE, EFBIG},
    {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
    {ERROR_OUTOFMEMORY, ENOMEM},
    {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
    {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
    {ERROR_INVALID_NAME, EINVAL},
    {ERROR_BAD_PATHNAME, EINVAL},
    {ERROR_INVALID_PARAMETER, EINVAL},
    {ERROR_DIRECTORY, ENOTDIR},
    {ERROR_DIR_NOT_EMPTY, ENOTEMPTY},
    {ERROR_NOT_SAME_DEVICE, EXDEV},
    {ERROR_INVALID_FUNCTION, ENOTSUP},
    {ERROR_NOT_SUPPORTED, ENOTSUP},
    {ERROR_CALL_NOT_IMPLEMENTED, ENOTSUP},
};

/// What the number of the system means; a failure that is not known is one of the device.
int ErrorFrom(DWORD windows) {
    const auto* const known =
        std::find_if(std::begin(errors), std::end(errors),
                     [windows](const ErrorPair& pair) { return pair.windows == windows; });
    return known != std::end(errors) ? known->error : EIO;
}

int LastError() { return ErrorFrom(::GetLastError()); }
int ErrorUnless(BOOL success) { return success != FALSE ? 0 : LastError(); }

/// The same for a file that could not be opened. One that was removed is refused like one that this user must
/// not open, as long as somebody has it open.
int OpeningError() {
    constexpr NTSTATUS deletePending = static_cast<NTSTATUS>(0xC0000056);
    const int error = LastError();
    return error == EACCES && ::RtlGetLastNtStatus() == deletePending ? ENOENT : error;
}

/// Whether the system says "not you" or "not here", rather than that something went wrong.
bool IsRefusal(int error) { return error == EPERM || error == EACCES || error == EINVAL || error == ENOTSUP; }

// Paths
// ------------------------------------------------------------------------------------------------------

/// A text whose length a call says when it has no room for it.
template <class Call>
std::wstring TextOf(const Call& call) {
    std::wstring text(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = call(text.data(), static_cast<DWORD>(text.size()));
        if (length < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(length + 1);
    }
}

/// A path as the system takes it at any length. What has no such form (a device) stays as it is. The text is
/// in the object itself: once a file is replaced, nothing that follows may fail for lack of memory.
class LongPath {
public:
    explicit LongPath(std::string_view path) {
        std::array<wchar_t, longest> given; // NOLINT: it is large, and written up to its end
        if (!Widen(path, given)) {
            std::wcscpy(m_text.data(), L"?"); // no file has that name
            return;
        }
        wchar_t* const full = m_text.data() + roomForPrefix;
        const DWORD length = ::GetFullPathNameW(given.data(), longest, full, nullptr);
        if (length == 0 || length >= longest) {
            std::wcscpy(m_text.data(), given.data());
            return;
        }
        m_start = roomForPrefix;
        const std::wstring_view found(full, length);
        if (found.starts_with(L"\\\\?\\") || found.starts_with(L"\\\\.\\"))
            return;
        const bool isShare = found.starts_with(L"\\\\");
        const std::wstring_view prefix = isShare ? L"\\\\?\\UNC" : L"\\\\?\\";
        m_start += (isShare ? 1 : 0) - prefix.size(); // of a share's "\\" one stays
        std::copy(prefix.begin(), prefix.end(), m_text.data() + m_start);
    }
    [[nodiscard]] const wchar_t* Get() const { return m_text.data() + m_start; }
    [[nodiscard]] std::wstring_view View() const { return Get(); }

private:
    static constexpr std::size_t longest = 32768; // characters, with the zero at the end
    static constexpr std::size_t roomForPrefix = 8;

    /// False where the path is no UTF-8, or longer than any path can be.
    static bool Widen(std::string_view utf8, std::array<wchar_t, longest>& text) {
        std::size_t size = 0;
        for (std::size_t at = 0; at < utf8.size();) {
            std::uint32_t code = NextFromUtf8(utf8, at);
            if (code == noCharacter || size + 2 >= longest)
                return false;
            if (code > 0xFFFF) {
                text[size++] = static_cast<wchar_t>(LeadSurrogate(code));
                code = TrailSurrogate(code);
            }
            text[size++] = static_cast<wchar_t>(code);
        }
        text[size] = L'\0';
        return true;
    }

    std::array<wchar_t, roomForPrefix + longest> m_text; // written up to its end, too
    std::size_t m_start = 0;
};

// Opening and looking
// ----------------------------------------------------------------------------------------

/// A handle of the system, closed at the end.
class Owned {
public:
    explicit Owned(HANDLE handle) : m_handle(handle) {}
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() {
        if (IsOpen())
            ::CloseHandle(m_handle);
    }
    [[nodiscard]] bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

HANDLE OpenThere(const std::string& path, DWORD access, DWORD flags) {
    return ::CreateFileW(LongPath(path).Get(), access, shareAll, nullptr, OPEN_EXISTING, flags, nullptr);
}

/// `time` in units of 100 nanoseconds since 1601, as seconds and nanoseconds since 1970.
void SetTime(IniFileStatus& status, std::int64_t time) {
    constexpr std::int64_t unitsPerSecond = 10'000'000;
    constexpr std::int64_t secondsTo1970 = 11'644'473'600;
    status.seconds = time / unitsPerSecond - secondsTo1970;
    status.nanoseconds = time % unitsPerSecond * 100;
}

IniResult<IniFileStatus> StatusFrom(HANDLE file) {
    IniFileStatus status;
    if (::GetFileType(file) != FILE_TYPE_DISK) {
        status.kind = IniFileStatus::Kind::Other;
        return {0, status};
    }
    BY_HANDLE_FILE_INFORMATION found{};
    FILE_BASIC_INFO times{};
    if (::GetFileInformationByHandle(file, &found) == FALSE ||
        ::GetFileInformationByHandleEx(file, FileBasicInfo, &times, sizeof times) == FALSE)
        return {LastError(), {}};
    const auto both = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; };
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        status.kind = IniFileStatus::Kind::Folder;
    else if ((found.dwFileAttributes & FILE_ATTRIBUTE_DEVICE) != 0)
        status.kind = IniFileStatus::Kind::Other;
    status.device = found.dwVolumeSerialNumber;
    status.inode = both(found.nFileIndexHigh, found.nFileIndexLow);
    status.size = both(found.nFileSizeHigh, found.nFileSizeLow);
    status.links = found.nNumberOfLinks;
    // A file system without a time of the last change of anything has that of the bytes.
    SetTime(status, std::max(times.ChangeTime.QuadPart, times.LastWriteTime.QuadPart));
    return {0, status};
}

/// The name that an entry has in its folder, where that is not the one that `path` has for it: an other case
/// of letters, the short form of a long name.
std::wstring OtherSpelling(const LongPath& path) {
    const std::wstring_view name = path.View().substr(path.View().find_last_of(L"\\/:") + 1);
    if (name.empty() || name.find_first_of(L"*?") != std::wstring_view::npos || name == L"." || name == L"..")
        return {};
    WIN32_FIND_DATAW entry{};
    const HANDLE search = ::FindFirstFileW(path.Get(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return {};
    ::FindClose(search);
    return name == entry.cFileName ? std::wstring() : std::wstring(entry.cFileName);
}

/// What a reparse point holds when it is a symbolic link; mingw has no header with it.
struct SymbolicLinkData {
    ULONG tag;
    USHORT size;
    USHORT reserved;
    USHORT substituteOffset; // bytes
    USHORT substituteSize;
    USHORT printOffset;
    USHORT printSize;
    ULONG flags;
};

/// Where the symbolic link leads that is open as such; EINVAL when it is none.
IniResult<std::string> TargetOf(HANDLE link) {
    constexpr DWORD mostBytes = 16384; // MAXIMUM_REPARSE_DATA_BUFFER_SIZE
    alignas(SymbolicLinkData) std::array<char, mostBytes> bytes{};
    DWORD size = 0;
    if (::DeviceIoControl(link, FSCTL_GET_REPARSE_POINT, nullptr, 0, bytes.data(), mostBytes, &size,
                          nullptr) == FALSE)
        return {EINVAL, {}};
    SymbolicLinkData data{};
    std::memcpy(&data, bytes.data(), std::min<std::size_t>(size, sizeof data));
    if (data.tag != IO_REPARSE_TAG_SYMLINK)
        return {EINVAL, {}};
    const auto text = [&](USHORT offset, USHORT length) {
        std::wstring part(length / sizeof(wchar_t), L'\0');
        if (sizeof data + offset + length <= size)
            std::memcpy(part.data(), bytes.data() + sizeof data + offset, part.size() * sizeof(wchar_t));
        return part;
    };
    std::wstring target = text(data.substituteOffset, data.substituteSize);
    if (target.starts_with(L"\\??\\")) // the system's own form of an absolute path
        target.replace(0, 4, L"\\\\?\\");
    return {0, ToUtf8(target)};
}

// Rights
// -----------------------------------------------------------------------------------------------------

struct LocalMemory {
    void operator()(void* memory) const { ::LocalFree(memory); }
};

/// The user that this process belongs to, as "S-1-5-...".
std::wstring UserId() {
    HANDLE token = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token) == FALSE)
        return {};
    const Owned owned(token);
    std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> bytes{};
    DWORD size = 0;
    LPWSTR text = nullptr;
    if (::GetTokenInformation(token, TokenUser, bytes.data(), static_cast<DWORD>(bytes.size()), &size) ==
            FALSE ||
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the system's interface
        ::ConvertSidToStringSidW(reinterpret_cast<const TOKEN_USER*>(bytes.data())->User.Sid, &text) == FALSE)
        return {};
    const std::unique_ptr<wchar_t, LocalMemory> owner(text);
    return text;
}

/// The rights of what is created for this user alone: of others the system and its administrators have some,
/// who can take them anyway.
class Private {
public:
    /// `inherited` is what is passed on to what is created within: "OICI" for a folder.
    explicit Private(std::wstring_view inherited) {
        std::wstring list = L"D:P";
        for (const std::wstring& who : {UserId(), std::wstring(L"SY"), std::wstring(L"BA")}) {
            if (!who.empty())
                list.append(L"(A;").append(inherited).append(L";FA;;;").append(who).append(L")");
        }
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        ::ConvertStringSecurityDescriptorToSecurityDescriptorW(list.c_str(), SDDL_REVISION_1, &descriptor,
                                                               nullptr);
        m_descriptor.reset(descriptor);
        m_attributes = {sizeof m_attributes, descriptor, FALSE};
    }
    [[nodiscard]] LPSECURITY_ATTRIBUTES Get() { return m_descriptor ? &m_attributes : nullptr; }

private:
    std::unique_ptr<void, LocalMemory> m_descriptor;
    SECURITY_ATTRIBUTES m_attributes{};
};

/// Gives a file the owner, group and access list of another one, entry by entry, those that it has got from
/// its folder included.
int CopyRights(HANDLE from, HANDLE to) {
    constexpr SECURITY_INFORMATION list = DACL_SECURITY_INFORMATION;
    constexpr SECURITY_INFORMATION all =
        OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    std::vector<std::byte> descriptor(1024);
    for (DWORD size = 0;;) {
        if (::GetKernelObjectSecurity(from, all, descriptor.data(), static_cast<DWORD>(descriptor.size()),
                                      &size) != FALSE)
            break;
        if (::GetLastError() != ERROR_INSUFFICIENT_BUFFER)
            return IsRefusal(LastError()) ? 0 : LastError();
        descriptor.resize(size);
    }
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    if (::GetSecurityDescriptorControl(descriptor.data(), &control, &revision) != FALSE &&
        (control & SE_DACL_AUTO_INHERITED) != 0) // or the system takes its entries for ones of the file's own
        ::SetSecurityDescriptorControl(descriptor.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    if (::SetKernelObjectSecurity(to, all, descriptor.data()) != FALSE ||
        ::SetKernelObjectSecurity(to, list, descriptor.data()) != FALSE) // the owner is this user then
        return 0;
    return IsRefusal(LastError()) ? 0 : LastError();
}

struct SearchEnd {
    void operator()(HANDLE search) const { ::FindClose(search); }
};

class WindowsFileSystem final : public IniFileSystem {
public:
    IniResult<std::string> CurrentFolder() override {
        return {0,
                ToUtf8(TextOf([](wchar_t* text, DWORD size) { return ::GetCurrentDirectoryW(size, text); }))};
    }

    IniResult<std::vector<std::string>> NamesIn(const std::string& folder) override {
        WIN32_FIND_DATAW entry{};
        const HANDLE search = ::FindFirstFileW(LongPath(folder + "\\*").Get(), &entry);
        if (search == INVALID_HANDLE_VALUE)
            return {LastError(), {}};
        const std::unique_ptr<void, SearchEnd> ended(search);
        std::vector<std::string> names;
        do {
            const std::wstring_view name = entry.cFileName;
            if (name != L"." && name != L"..")
                names.push_back(ToUtf8(name));
        } while (::FindNextFileW(search, &entry) != FALSE);
        return {0, std::move(names)};
    }

    IniResult<IniFileStatus> StatusAt(const std::string& path) override {
        // Nobody is asked who has the file open, because none of its bytes is to be read.
        const Owned file(OpenThere(path, FILE_READ_ATTRIBUTES, FILE_FLAG_BACKUP_SEMANTICS));
        return file.IsOpen() ? StatusFrom(file.Get()) : IniResult<IniFileStatus>{OpeningError(), {}};
    }

    IniResult<IniFileStatus> StatusOf(Handle file) override { return StatusFrom(Raw(file)); }

    /// A name that is not spelled as in its folder is a link to the one that is: all who save the file have
    /// one lock, and it keeps its name.
    IniResult<std::string> LinkAt(const std::string& path) override {
        const LongPath there(path);
        const DWORD attributes = ::GetFileAttributesW(there.Get());
        if (attributes == INVALID_FILE_ATTRIBUTES)
            return {LastError() == ENOENT ? ENOENT : EINVAL, {}};
        if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
            const Owned link(OpenThere(path, FILE_READ_ATTRIBUTES,
                                       FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS));
            if (!link.IsOpen())
                return {LastError(), {}};
            IniResult<std::string> target = TargetOf(link.Get());
            if (target.error == 0)
                return target;
        }
        const std::wstring name = OtherSpelling(there);
        return name.empty() ? IniResult<std::string>{EINVAL, {}} : IniResult<std::string>{0, ToUtf8(name)};
    }

    int MayWrite(const std::string& path) override {
        const DWORD attributes = ::GetFileAttributesW(LongPath(path).Get());
        if (attributes == INVALID_FILE_ATTRIBUTES)
            return LastError();
        const bool isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (!isFolder && (attributes & FILE_ATTRIBUTE_READONLY) != 0) // it means another thing for a folder
            return EACCES;
        const Owned there(
            OpenThere(path, isFolder ? FILE_ADD_FILE : FILE_WRITE_DATA, FILE_FLAG_BACKUP_SEMANTICS));
        const int error = there.IsOpen() ? 0 : OpeningError();
        return error == EWOULDBLOCK ? 0 : error;
    }

    IniResult<Handle> Open(const std::string& path, Opening how) override {
        HANDLE file = INVALID_HANDLE_VALUE;
        int whenPending = ENOENT;
        switch (how) {
        case Opening::ToRead:
            file = OpenThere(path, GENERIC_READ, FILE_ATTRIBUTE_NORMAL);
            break;
        case Opening::ToLock: {
            constexpr DWORD flags =
                FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS; // no link, any kind
            file = OpenThere(path, GENERIC_READ | GENERIC_WRITE, flags);
            if (file == INVALID_HANDLE_VALUE && OpeningError() == EACCES)
                file = OpenThere(path, GENERIC_READ, flags);
            break;
        }
        case Opening::CreateLock:
        case Opening::CreateShared:
            file = Create(path, nullptr);
            whenPending = EEXIST;
            break;
        case Opening::CreatePrivate: {
            Private rights(L"");
            file = Create(path, rights.Get());
            whenPending = EEXIST;
            break;
        }
        }
        if (file != INVALID_HANDLE_VALUE)
            return {0, reinterpret_cast<Handle>(file)}; // NOLINT: as above
        const int error = LastError();
        return {error == EACCES && OpeningError() == ENOENT ? whenPending : error, {}};
    }

    IniResult<Handle> OpenUnnamed(const std::string& /*folder*/, Opening /*how*/) override {
        return {ENOTSUP, {}};
    }

    /// A file with a name gets a second one.
    int Name(Handle file, const std::string& path) override {
        const std::wstring now = TextOf([file](wchar_t* text, DWORD size) {
            return ::GetFinalPathNameByHandleW(Raw(file), text, size, FILE_NAME_NORMALIZED);
        });
        if (now.empty())
            return ENOTSUP;
        return ErrorUnless(::CreateHardLinkW(LongPath(path).Get(), now.c_str(), nullptr));
    }

    // After a Sync that went well, closing has nothing to tell.
    void Close(Handle file) override { ::CloseHandle(Raw(file)); }

    IniResult<std::size_t> Read(Handle file, std::uint64_t offset, char* bytes, std::size_t size) override {
        OVERLAPPED place{};
        place.Offset = static_cast<DWORD>(offset & 0xFFFFFFFFU);
        place.OffsetHigh = static_cast<DWORD>(offset >> 32U);
        DWORD count = 0;
        if (::ReadFile(Raw(file), bytes, Portion(size), &count, &place) != FALSE ||
            ::GetLastError() == ERROR_HANDLE_EOF)
            return {0, count};
        const int error = LastError();
        return {error == EWOULDBLOCK ? EACCES : error, 0}; // another program keeps these bytes to itself
    }

    IniResult<std::size_t> Write(Handle file, std::string_view bytes) override {
        DWORD count = 0;
        const BOOL written = ::WriteFile(Raw(file), bytes.data(), Portion(bytes.size()), &count, nullptr);
        return {ErrorUnless(written), count};
    }

    int Sync(Handle file) override {
        if (::FlushFileBuffers(Raw(file)) != FALSE)
            return 0;
        if (LastError() != EACCES)
            return LastError();
        // Only a file that is open for writing is flushed; one that this user must not write he has not
        // written.
        const Owned writable(::ReOpenFile(Raw(file), GENERIC_WRITE, shareAll, 0));
        if (writable.IsOpen())
            return ErrorUnless(::FlushFileBuffers(writable.Get()));
        return IsRefusal(LastError()) || LastError() == EWOULDBLOCK ? 0 : LastError();
    }

    /// The file system has a journal of names, and Rename waits for it.
    int SyncFolder(const std::string& /*path*/) override { return 0; }

    int TryLock(Handle file) override {
        OVERLAPPED place{}; // a byte that the file, which is empty, does not have
        place.OffsetHigh = 0x7FFFFFFF;
        if (::LockFileEx(Raw(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) !=
            FALSE)
            return 0;
        const DWORD error = ::GetLastError();
        return error == ERROR_IO_PENDING || error == ERROR_LOCK_VIOLATION ? EWOULDBLOCK : ErrorFrom(error);
    }

    /// The system does not tell.
    IniLockHolder LockHolder(Handle /*file*/) override { return {}; }

    int CopyAttributes(Handle from, Handle to) override {
        FILE_BASIC_INFO old{};
        FILE_BASIC_INFO now{};
        if (::GetFileInformationByHandleEx(Raw(from), FileBasicInfo, &old, sizeof old) == FALSE ||
            ::GetFileInformationByHandleEx(Raw(to), FileBasicInfo, &now, sizeof now) == FALSE)
            return LastError();
        // What is encrypted must not stand there in plain.
        if ((old.FileAttributes & ~now.FileAttributes & FILE_ATTRIBUTE_ENCRYPTED) != 0)
            return EPERM;
        if (const int error = CopyRights(Raw(from), Raw(to)))
            return error;
        constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                               FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
        FILE_BASIC_INFO given{}; // a time of 0 stays as it is
        given.CreationTime = old.CreationTime;
        given.FileAttributes = old.FileAttributes & kept;
        if (given.FileAttributes == 0)
            given.FileAttributes = FILE_ATTRIBUTE_NORMAL;
        const int error =
            ErrorUnless(::SetFileInformationByHandle(Raw(to), FileBasicInfo, &given, sizeof given));
        return IsRefusal(error) ? 0 : error;
    }

    /// A new file has the rights that its folder gives, from the start.
    int SetRights(Handle /*file*/, std::uint32_t /*rights*/) override { return 0; }

    int Rename(const std::string& from, const std::string& to) override {
        const LongPath target(to);
        if (RenameOverOpenFile(from, target.View()))
            return 0;
        if (::MoveFileExW(LongPath(from).Get(), target.Get(),
                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE)
            return 0;
        const int error = LastError();
        if (error != EACCES)
            return error;
        // The system says the same when this user may not remove the file, and when somebody has it open.
        const Owned there(OpenThere(to, DELETE, FILE_FLAG_OPEN_REPARSE_POINT));
        return there.IsOpen() || LastError() == EWOULDBLOCK ? EWOULDBLOCK : EACCES;
    }

    /// The system cannot do that.
    int Exchange(const std::string& /*one*/, const std::string& /*other*/) override { return ENOTSUP; }

    int Remove(const std::string& path) override { return ErrorUnless(::DeleteFileW(LongPath(path).Get())); }

    int MakeFolder(const std::string& path) override {
        const LongPath folder(path);
        Private rights(L"OICI");
        if (::CreateDirectoryW(folder.Get(), rights.Get()) != FALSE)
            return 0;
        const int error = LastError();
        // The root of a drive is refused, though it is there.
        return ::GetFileAttributesW(folder.Get()) != INVALID_FILE_ATTRIBUTES ? EEXIST : error;
    }

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
    /// How much the system moves at once.
    static DWORD Portion(std::size_t size) {
        constexpr std::size_t most = std::numeric_limits<DWORD>::max() / 2;
        return static_cast<DWORD>(std::min(size, most));
    }

    static HANDLE Create(const std::string& path, LPSECURITY_ATTRIBUTES rights) {
        const LongPath there(path);
        const auto create = [&](DWORD access) {
            return ::CreateFileW(there.Get(), access, shareAll, rights, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                                 nullptr);
        };
        // The access list and the owner are given to it later, where that is allowed.
        constexpr DWORD plain = GENERIC_READ | GENERIC_WRITE;
        const HANDLE file = create(plain | WRITE_DAC | WRITE_OWNER);
        return file == INVALID_HANDLE_VALUE && OpeningError() == EACCES ? create(plain) : file;
    }

    /// In one step, in place of a file that others may have open, who go on reading the old one (Windows 10,
    /// NTFS). False where the system or the file system cannot do that.
    static bool RenameOverOpenFile(const std::string& from, std::wstring_view to) {
        const Owned file(
            OpenThere(from, DELETE | SYNCHRONIZE, FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_WRITE_THROUGH));
        if (!file.IsOpen())
            return false;
        constexpr auto renameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
        constexpr DWORD replaceIfExists = 1;
        constexpr DWORD posixSemantics = 2;
        const std::size_t nameSize = to.size() * sizeof(wchar_t);
        alignas(FILE_RENAME_INFO) std::array<std::byte, sizeof(FILE_RENAME_INFO) + sizeof(LongPath)> bytes{};
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the system's interface
        auto* const info = reinterpret_cast<FILE_RENAME_INFO*>(bytes.data());
        constexpr DWORD flags = replaceIfExists | posixSemantics;
        std::memcpy(bytes.data(), &flags, sizeof flags); // where older headers know a flag of one byte only
        info->FileNameLength = static_cast<DWORD>(nameSize);
        std::memcpy(bytes.data() + offsetof(FILE_RENAME_INFO, FileName), to.data(), nameSize);
        return ::SetFileInformationByHandle(file.Get(), renameInfoEx, info,
                                            static_cast<DWORD>(sizeof(FILE_RENAME_INFO) + nameSize)) != FALSE;
    }
};

} // namespace

IniFileSystem& IniFileSystem::System() {
    static WindowsFileSystem system;
    return system;
}

IniFileSystem::~IniFileSystem() = default;

} // namespace QuorIniFile
