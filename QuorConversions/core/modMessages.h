#pragma once

#include "QuorConversions/Export.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/platform/Platform.h"
#include "QuorIniFile/QuorError.h"

#include <string>

namespace QuorConversions {

using QuorIniFile::QuorError;

/// The current exception; call it inside a catch block. A QuorError is returned unchanged. Any other
/// exception gets the source `source` and a number: 7 for out of memory, otherwise -2147467259, with its own
/// text as the description or, if it has none, "A system error has occurred".
[[nodiscard]] QUORCONVERSIONS_EXPORT QuorError CurrentError(const std::wstring& source);

/// The description of an error as an error report shows it: for an error of the INI-file store, in the
/// language of the string table.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring DescriptionOf(const QuorError& error);

/// Shows the error report: "An error occurred while <context>." and, for an error with a number other than 0,
/// its number, description and source, with the critical-stop icon. If the caller passes no help topic, that
/// of the error is offered. Never raises.
QUORCONVERSIONS_EXPORT void ReportError(Platform& platform, const QuorError& error,
                                        const std::wstring& context, const std::wstring& title,
                                        const std::wstring& helpFile = {},
                                        std::int32_t helpContext = 0) noexcept;

/// Shows an information message. `textId` is the string-table entry that `text` is made from, 0 if there is
/// none. Never raises.
QUORCONVERSIONS_EXPORT void ShowMessage(Platform& platform, const std::wstring& text,
                                        const std::wstring& title, const std::wstring& helpFile = {},
                                        std::int32_t helpContext = 0, std::int32_t textId = 0) noexcept;

/// Shows an information message with the library's title and the text of a string-table entry, or `text`,
/// which is made from that entry. Raises only what a host's string table raises.
QUORCONVERSIONS_EXPORT void ShowMessage(Platform& platform, EStringId id);
QUORCONVERSIONS_EXPORT void ShowMessage(Platform& platform, EStringId id, const std::wstring& text);

} // namespace QuorConversions
