#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Fuzz {

/// The text of a file, found the plain way, unit by unit: UTF-8 where the file is UTF-16 with a byte-order
/// mark, else its bytes. Nothing for a file that the store has to refuse.
[[nodiscard]] std::optional<std::string> PlainText(std::string_view bytes);

/// Whether a file is UTF-16 with a byte-order mark.
[[nodiscard]] bool HasUtf16Mark(std::string_view bytes);

/// A text of ASCII as a UTF-16 file with its mark, the low byte first.
[[nodiscard]] std::string PlainUtf16(std::string_view ascii);

} // namespace Fuzz
