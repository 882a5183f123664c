#pragma once

#include "QuorIniFile/Export.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QuorIniFile {

/// Why the store raises an error, for programs: INI_CAUSE_<name> of each row of IniTexts.def. The numbers
/// keep their meaning for ever; new ones are only added.
enum EIniCause : std::int32_t {
    INI_CAUSE_NONE = 0, ///< the number of the error says it all
#define QUOR_INI_CAUSE(number, name, text) INI_CAUSE_##name = (number),
#include "QuorIniFile/IniTexts.def"
};

/// What the description of an error of the store is made from. Whoever decides by an error looks here, never
/// at its text.
struct IniCause {
    EIniCause code = INI_CAUSE_NONE;
    std::wstring fileName;            ///< the file, as the caller has named it
    std::vector<std::wstring> values; ///< names, paths and the like, one for each "~" of the cause's text
};

/// The description of an error of that number, in the words of IniTexts.def.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring Describe(std::int32_t number, const IniCause& cause);

/// The description of an error in other words than those of IniTexts.def, such as another language's:
/// `standardText` says what its number means, `causeText`, which may be empty, its cause.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring Describe(std::wstring_view standardText,
                                                       std::wstring_view causeText, const IniCause& cause);

/// `text` with each "~" filled in, from left to right, by the next of `values`, as it stands. Surplus values
/// are ignored; a "~" for which no value is left becomes empty text.
[[nodiscard]] QUORINIFILE_EXPORT std::wstring FillTildes(std::wstring_view text,
                                                         const std::vector<std::wstring>& values);

} // namespace QuorIniFile
