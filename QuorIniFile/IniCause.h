#pragma once

#include "QuorIniFile/Export.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QuorIniFile {

/// Why the store raises an error, for programs: INI_CAUSE_<name> for each row of IniTexts.def. The numbers
/// never change their meaning; new ones are only added.
enum EIniCause : std::int32_t {
    INI_CAUSE_NONE = 0, ///< the number of the error is the whole reason
#define QUOR_INI_CAUSE(number, name, text) INI_CAUSE_##name = (number),
#include "QuorIniFile/IniTexts.def"
};

/// What the description of an error of the store is made from. Programs that distinguish errors look here,
/// never at the text.
struct IniCause {
    EIniCause code = INI_CAUSE_NONE;  ///< the reason
    std::wstring fileName;            ///< the file, as the caller named it
    std::vector<std::wstring> values; ///< names, paths and the like, one for each "~" of the cause's text
};

/// The description of the error `number` with the texts of IniTexts.def.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring Describe(std::int32_t number, const IniCause& cause);

/// The description of an error with other texts than those of IniTexts.def, for example in another language:
/// `standardText` is the meaning of its number, `causeText`, which may be empty, that of its cause.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring Describe(std::wstring_view standardText,
                                                       std::wstring_view causeText, const IniCause& cause);

/// `text` with each "~" filled in, from left to right, with the next of `values`, unchanged. Surplus values
/// are ignored; a "~" for which no value is left is removed.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring FillTildes(std::wstring_view text,
                                                         const std::vector<std::wstring>& values);

} // namespace QuorIniFile
