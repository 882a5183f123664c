#pragma once

#include "QuorIniFile/IniLeftover.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/detail/IniFileSystem.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

// Files as the store needs them: read whole, replaced whole, by one process at a time. It knows nothing of
// what the bytes mean. File names go to the system as UTF-8.
//
// Only regular files of less than 4 GiB are touched: a folder, a pipe, a socket, a device or a larger file is
// error 75 at once. Symbolic links are followed and stay. Failures are raised as QuorError with the file's
// name and, where it adds something, the cause in the system's words; a lack of memory is std::bad_alloc.
namespace QuorIniFile {

/// The name of a file: as messages say it, and as the system takes it.
class IniFileName {
public:
    IniFileName() = default;
    /// A relative name is looked up in the current folder whenever it is used.
    template <class Text>
    requires std::is_convertible_v<const Text&, std::wstring_view>
    IniFileName(const Text& text) // NOLINT(google-explicit-constructor): a name is a name
        : IniFileName(std::wstring(std::wstring_view(text))) {}
    IniFileName(std::wstring text); // NOLINT(google-explicit-constructor)

    /// A relative name that goes on meaning the file in what is the current folder now, unless that is so
    /// deep that no path leads to it. Raises 52 for a name that no file can have, 76 when there is no current
    /// folder.
    [[nodiscard]] static IniFileName Absolute(std::wstring_view text, IniFileSystem& files);

    [[nodiscard]] const std::wstring& Text() const { return m_text; }
    [[nodiscard]] const std::string& Path() const { return m_path; }

    friend bool operator==(const IniFileName&, const IniFileName&) = default;

private:
    std::wstring m_text;
    std::string m_path; // UTF-8, but for the current folder, whose bytes are the system's
};

/// By what one tells that a file is still the one that was read. Other stamps: it may have changed. Equal
/// ones: it has not, if the older one is settled.
struct IniStamp {
    bool exists = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t seconds = 0; // of the last change of its bytes, name or rights
    std::int64_t nanoseconds = 0;
    /// Whether every change of the file since this stamp was taken gives another one. Clocks of file systems
    /// tick every few milliseconds, the coarsest every two seconds; a change in the same tick leaves no
    /// trace.
    bool isSettled = true;

    friend bool operator==(const IniStamp& a, const IniStamp& b) {
        const auto tell = [](const IniStamp& stamp) {
            return std::tie(stamp.exists, stamp.device, stamp.inode, stamp.size, stamp.seconds,
                            stamp.nanoseconds);
        };
        return tell(a) == tell(b);
    }
};

struct IniFileBytes {
    std::string bytes;
    IniStamp stamp;
};

/// All bytes of a file, or nothing when there is no such file. A file that is being written meanwhile is read
/// again.
[[nodiscard]] std::optional<IniFileBytes> ReadBytes(const IniFileName& fileName,
                                                    IniFileSystem& files = IniFileSystem::System());

/// The stamp of a file as it is now; that of a missing file says so.
[[nodiscard]] IniStamp StampOf(const IniFileName& fileName, IniFileSystem& files = IniFileSystem::System());

/// Whether the file has these very bytes; a missing file has none.
[[nodiscard]] bool HasBytes(const IniFileName& fileName, std::string_view bytes,
                            IniFileSystem& files = IniFileSystem::System());

/// Whether a save to the one name is a save to the other: both lead, through all links, to one place, whether
/// there is a file or not. Of two hard links each is a place of its own, because a save parts them. Raises
/// when the system does not tell.
[[nodiscard]] bool IsSamePlace(const IniFileName& a, const IniFileName& b,
                               IniFileSystem& files = IniFileSystem::System());

/// Whether a save would be refused: the file, at the end of all links, is not to be written by this user, or
/// nothing can be put into its folder.
[[nodiscard]] bool IsReadOnly(const IniFileName& fileName, IniFileSystem& files = IniFileSystem::System());

/// Creates the folder of a file, and those above it, where they are missing. What is created is for the user
/// alone.
void MakeFolderOf(const IniFileName& fileName, IniFileSystem& files = IniFileSystem::System());

/// What saves of a file have left beside it, as paths from where its name starts. Of interrupted saves
/// nothing as long as a save is under way, or where nobody can tell (a file system without locks, a lock file
/// that only another user may open).
[[nodiscard]] std::vector<IniLeftover> LeftoversOf(const IniFileName& fileName,
                                                   IniFileSystem& files = IniFileSystem::System());

/// The replacement of one file: locked, then read, then written, so that no other process that goes this way
/// comes in between.
///
/// The lock is an empty file beside the target, ".quor-<number of its name>.lock": whoever created it and
/// holds the kernel's lock on it may replace the target, for as long as it has its name. The kernel's lock
/// dies with its process; a lock file that nobody has locked is removed by the next replacement, with what
/// else that process has left. Where nobody can tell whether a lock file is locked (a file system without
/// locks, another user's file), one that nobody has touched for as long as one waits is taken for abandoned.
///
/// The new text is another file, of a name that nobody can foresee, ".quor-<number>-<random>.tmp", and has
/// none until it is whole, where the system can do that. It changes names with the target, and the old file
/// goes when it is certain which file stands where. A file that somebody else has put there meanwhile goes
/// back to its place, or is kept beside it (".quor-<number>-<random>.kept") and told of.
class IniReplacement {
public:
    /// Waits up to ten seconds for its turn, then raises 70 with the process that has the file in use; twenty
    /// where somebody keeps removing the lock file. A folder that does not exist is 76, one that cannot be
    /// written 70.
    explicit IniReplacement(const IniFileName& fileName, IniFileSystem& files = IniFileSystem::System());
    IniReplacement(const IniReplacement&) = delete;
    IniReplacement& operator=(const IniReplacement&) = delete;
    /// Without Commit the file is as it was, and nothing is left beside it.
    ~IniReplacement();

    /// The stamp of the file that is to be replaced.
    [[nodiscard]] const IniStamp& Stamp() const;
    /// Whether it has these very bytes; a missing file has none.
    [[nodiscard]] bool Has(std::string_view bytes) const;
    /// All its bytes; empty when it is missing.
    [[nodiscard]] std::string Bytes() const;

    /// Makes what stands in the file outlive a power cut, without replacing it.
    void Flush() const;

    /// Replaces the file by `bytes`, or creates it; to be called once. Returns the new stamp when the bytes
    /// have reached the disk and are what stands under the name of the file; nothing when something has come
    /// in between, which Setback() tells: the file is as somebody else has made it, and a new replacement may
    /// be tried. A change by a program that takes no lock is seen by the stamp of the file, and where the
    /// stamp may not tell, by its not having the bytes that were `read` any more, as far as these are given.
    ///
    /// On a failure the file is as it was, or, when the failure comes after the replacement, whole and new;
    /// it may not outlive a power cut then. Mode, owner, access lists and extended attributes are kept as far
    /// as the system allows; of several hard links the others keep the old file. A file that we are not to
    /// write is error 70, a mount point 75. 75 is also, with the name under which it is kept, that another
    /// program has put a file there at the very moment: the new text is in the file then, or the old one.
    [[nodiscard]] std::optional<IniStamp> Commit(std::string_view bytes,
                                                 std::optional<std::string_view> read = std::nullopt);
    /// What has come in between, as the error to raise when one does not try again: 70 when another program
    /// has changed the file or taken the lock, 75 when the temporary file was removed.
    [[nodiscard]] const QuorError& Setback() const;

private:
    class Work;
    std::unique_ptr<Work> m_work;
};

} // namespace QuorIniFile
