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

} // namespace QuorIniFile
