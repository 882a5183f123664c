#pragma once

#include "QuorConversions/core/EQuorConversionType.h"
#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/RecordValue.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace QuorProbeFile {

/// The form of a record to which a description applies: "UsePolynomial" determines what the coefficients of
/// Callendar-Van Dusen are.
enum class RecordForm : std::uint8_t { Any, AlphaDeltaBeta, Polynomial };

/// A number with a meaning, and a name for it that is never translated.
struct RecordChoice {
    std::int16_t code;   ///< the number in files
    const wchar_t* name; ///< the name
};

/// The description of a key of a record, from which help texts, manual pages and data formats are made.
struct RecordKey {
    std::wstring path;    ///< as in a RecordImage: "Coefficients0", "High Range/Range"
    std::wstring list;    ///< for an indexed key the path without the index: "High Range/Coefficients"
    std::int16_t index;   ///< of an indexed key; -1 for any other
    RecordForm form;      ///< to which the description applies
    std::wstring name;    ///< of a coefficient or a point: "ALPHA"; empty if the key is its name
    std::wstring meaning; ///< in a few words
    std::wstring unit;    ///< "ohm"; empty if there is none or the instrument's equation decides
    std::wstring range;   ///< the valid values
    std::wstring usual;   ///< the limits outside which ProbeFile::Check warns; may be empty
    Value initial;        ///< in a new record, and of a key that a greater count adds; also gives the type
    std::span<const RecordChoice> choices; ///< the meanings of the number; empty if it is a plain number
};

/// The keys of the records of a type, without "Version", in the order of a file, with the greatest count and
/// all ranges. Two descriptions of the same key differ in their form. Empty for a type without settings.
[[nodiscard]] QUORPROBEFILE_EXPORT const std::vector<RecordKey>&
RecordKeys(QuorConversions::EQuorConversionType type);
/// The description of a key, ignoring case; null if there is none (for example for the fifth coefficient of a
/// record that was given five).
[[nodiscard]] QUORPROBEFILE_EXPORT const RecordKey* FindRecordKey(QuorConversions::EQuorConversionType type,
                                                                  std::wstring_view path, RecordForm form);
/// The name of a number with a meaning; empty for any other.
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring ChoiceName(const RecordKey& key, std::int16_t code);

} // namespace QuorProbeFile
