#pragma once

#include "QuorConversions/Export.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/platform/Platform.h"
#include "QuorIniFile/QuorError.h"

#include <string>

namespace QuorConversions {

using QuorIniFile::QuorError;

/// The error that is being handled; call it inside a catch block. A QuorError comes back as it is. Every
/// other exception gets a number: out of memory 7, anything else -2147467259, described by its own text or,
/// where it has none, as "A system error has occurred"; its source is then `source`.
[[nodiscard]] QUORCONVERSIONS_EXPORT QuorError CurrentError(const std::wstring& source);

/// What an error report says of an error: its description, for an error of the INI-file store in the words of
/// the string table.
[[nodiscard]] QUORCONVERSIONS_EXPORT std::wstring DescriptionOf(const QuorError& error);

/// The error report: "An error occurred while <context>." and, for an error with a number other than 0, its
/// number, description and source, under the critical-stop icon. The help topic of the error is offered when
/// the caller names none. Shows; never raises.
QUORCONVERSIONS_EXPORT void ReportError(Platform& platform, const QuorError& error,
                                        const std::wstring& context, const std::wstring& title,
                                        const std::wstring& helpFile = {},
                                        std::int32_t helpContext = 0) noexcept;

/// An information message. `textId` is the string-table entry that `text` is made from, 0 where there is
/// none. Shows; never raises.
QUORCONVERSIONS_EXPORT void ShowMessage(Platform& platform, const std::wstring& text,
                                        const std::wstring& title, const std::wstring& helpFile = {},
                                        std::int32_t helpContext = 0, std::int32_t textId = 0) noexcept;

/// An information message under the library's title with the text of an entry of the string table, or with
/// `text`, which is made from that entry. Raises what the string table raises.
QUORCONVERSIONS_EXPORT void ShowMessage(Platform& platform, EStringId id);
QUORCONVERSIONS_EXPORT void ShowMessage(Platform& platform, EStringId id, const std::wstring& text);

} // namespace QuorConversions
