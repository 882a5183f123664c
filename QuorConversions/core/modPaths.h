#pragma once

#include "QuorConversions/Export.h"

#include <string>
#include <string_view>

namespace QuorConversions {

// The parts of a path. The separator is "\"; a path without any "\" may use "/" where that is the system's
// own separator.

/// The text up to the last separator, separator included; empty when there is none.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring GetFolderPart(std::wstring_view path) noexcept;
/// The text after the last separator; the whole path if there is none.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring GetFileNamePart(std::wstring_view path) noexcept;
/// The extension of the last component, without the point; empty when there is none.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring GetExtensionPart(std::wstring_view path) noexcept;

} // namespace QuorConversions
