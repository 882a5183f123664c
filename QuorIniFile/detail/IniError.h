#pragma once

#include "QuorIniFile/IniCause.h"
#include "QuorIniFile/QuorError.h"

#include <string>
#include <string_view>
#include <vector>

namespace QuorIniFile {

/// The error of that number about a file, as everything in this library raises it: source "QuorIniFile",
/// description "standard text: file name" and, where there is more to say, ": cause". The texts are those of
/// IniTexts.def.
[[nodiscard]] QuorError FileError(EErrorNumber number, std::wstring_view fileName, EIniCause cause,
                                  std::vector<std::wstring> values = {});
/// The same with a cause in the words of the operating system, or of a host; none where they are empty.
[[nodiscard]] QuorError FileError(EErrorNumber number, std::wstring_view fileName,
                                  std::wstring_view words = {});

/// The same error about another file, for a program that has worked on a copy. An error without a cause comes
/// back as it is.
[[nodiscard]] QuorError WithFileName(const QuorError& error, std::wstring_view fileName);

/// The description of an error in other words than those of IniTexts.def: `standardText` says what its number
/// means, `causeText`, which may be empty, its cause.
[[nodiscard]] std::wstring Describe(std::wstring_view standardText, std::wstring_view causeText,
                                    const IniCause& cause);

/// `text` with each "~" filled in, from left to right, by the next of `values`, as it stands. Surplus values
/// are ignored; a "~" for which no value is left becomes empty text.
[[nodiscard]] std::wstring FillTildes(std::wstring_view text, const std::vector<std::wstring>& values);

} // namespace QuorIniFile
