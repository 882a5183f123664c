#pragma once

#include "component/quor.h"

#include <string>
#include <string_view>

// Text on its way over the border: UTF-8 outside, wide text inside.
namespace QuorConversions::Component {

/// The bytes of `text` as a text for the host, which must not outlive it.
[[nodiscard]] inline quor_text ViewOf(const std::string& text) { return {text.c_str(), text.size()}; }

/// A host's text. Raises error 5 when it is not UTF-8, or a NULL that has a size.
[[nodiscard]] std::wstring Wide(quor_text text);

/// The same as bytes, unchecked.
[[nodiscard]] std::string_view Bytes(quor_text text);

/// A text for the host to free.
[[nodiscard]] quor_text NewText(std::wstring_view text);

} // namespace QuorConversions::Component
