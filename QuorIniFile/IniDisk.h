#pragma once

#include "QuorIniFile/Export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Files as the store needs them: read whole, replaced whole. The one place that talks to the operating
// system; it knows nothing of what the bytes mean. File names go to the system as UTF-8.
//
// Only regular files are touched: a folder, a pipe, a socket or a device is error 75 at once. Symbolic links
// are followed. Failures are raised as QuorError with the file's name and, where it adds something, the cause
// in the system's words; a lack of memory stays std::bad_alloc.
namespace QuorIniFile {

/// By what one tells that a file is still the one that was read. Equal stamps: nobody has written in between.
struct IniStamp {
    bool exists = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t seconds = 0; // of the last change of its bytes
    std::int64_t nanoseconds = 0;

    friend bool operator==(const IniStamp&, const IniStamp&) = default;
};

struct IniFileBytes {
    std::string bytes;
    IniStamp stamp;
};

/// All bytes of a file, or nothing when there is no such file.
[[nodiscard]] QUORINIFILE_EXPORT std::optional<IniFileBytes> ReadBytes(std::wstring_view fileName);

/// The stamp of a file as it is now; that of a missing file says so.
[[nodiscard]] QUORINIFILE_EXPORT IniStamp StampOf(std::wstring_view fileName);

/// Replaces a file by `bytes`, or creates it; returns the new stamp. On success the bytes have reached the
/// disk. On failure the old file is as it was and nothing is left beside it; the one exception is a folder
/// that cannot be flushed after the file was replaced: the file is whole and new then, but may not outlive a
/// power cut. Mode and owner are kept as far as the system allows; a file that we may not write is error 70.
QUORINIFILE_EXPORT IniStamp ReplaceBytes(std::wstring_view fileName, std::string_view bytes);

/// Creates a folder, and those above it, where they are missing. What is created is for the user alone.
QUORINIFILE_EXPORT void MakeFolders(std::wstring_view folder);

} // namespace QuorIniFile
