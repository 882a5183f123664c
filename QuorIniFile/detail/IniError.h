#pragma once

#include "QuorIniFile/QuorError.h"

#include <string_view>

namespace QuorIniFile {

/// The error of that number about a file, as everything in this library raises it: source "QuorIniFile",
/// description "standard text: file name" and, where there is more to say, ": cause".
[[nodiscard]] QuorError FileError(EErrorNumber number, std::wstring_view fileName,
                                  std::wstring_view cause = {});

} // namespace QuorIniFile
