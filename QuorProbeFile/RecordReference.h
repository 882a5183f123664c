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

/// In which form of a record a description holds: what "UsePolynomial" says changes what the coefficients of
/// Callendar-Van Dusen are.
enum class RecordForm : std::uint8_t { Any, AlphaDeltaBeta, Polynomial };

/// A number that stands for something, with a word for it that is never translated.
struct RecordChoice {
    std::int16_t code;
    const wchar_t* name;
};

/// What a key of a record holds: the facts that help texts, manual pages and data formats are made from.
struct RecordKey {
    std::wstring path;  ///< as in a RecordImage: "Coefficients0", "High Range/Range"
    std::wstring list;  ///< of an indexed key the path without the index: "High Range/Coefficients"
    std::int16_t index; ///< of an indexed key; -1 for any other
    RecordForm form;
    std::wstring name;    ///< of a coefficient or a point: "ALPHA"; empty where the key is its name
    std::wstring meaning; ///< in a few words
    std::wstring unit;    ///< "ohm"; empty for none, and where the instrument's equation decides
    std::wstring range;   ///< what the record can hold
    std::wstring usual;   ///< beyond which ProbeFile::Check warns; empty for no limit
    Value initial;        ///< in a new record, and of a key that appears with a count; tells the kind, too
    std::span<const RecordChoice> choices; ///< empty for a number that is one
};

/// The keys of the records of a type, without "Version", in the order in which they stand in a file; those
/// that depend on a count or a range up to the most that there can be. Two descriptions of one key differ in
/// their form. Empty for a type without settings.
[[nodiscard]] QUORPROBEFILE_EXPORT const std::vector<RecordKey>&
RecordKeys(QuorConversions::EQuorConversionType type);
/// The description of a key, in any ASCII case; null for a key that none is known of (such as the fifth
/// coefficient of a record that was given a fifth one).
[[nodiscard]] QUORPROBEFILE_EXPORT const RecordKey* FindRecordKey(QuorConversions::EQuorConversionType type,
                                                                  std::wstring_view path, RecordForm form);
/// The name of a number that stands for something; empty for one that does not.
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring ChoiceName(const RecordKey& key, std::int16_t code);

} // namespace QuorProbeFile
