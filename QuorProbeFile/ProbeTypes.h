#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorProbeFile/Export.h"

#include <optional>
#include <string>
#include <vector>

namespace QuorProbeFile {

/// One conversion type as the library describes it.
struct TypeInfo {
    QuorConversions::EQuorConversionType code;
    std::wstring enumerator;
    std::wstring name;
    std::wstring extension; ///< of its stand-alone files; empty for a type without settings
    std::wstring section;   ///< of its stand-alone files
};

/// All conversion types, by code.
[[nodiscard]] QUORPROBEFILE_EXPORT const std::vector<TypeInfo>& Types();
/// The type of a code; null for a code that is no conversion type.
[[nodiscard]] QUORPROBEFILE_EXPORT const TypeInfo* FindType(std::int32_t code);
/// Whether the record of a probe of that type has settings beside it, or may have, where the type is not
/// known: a section that is called like the settings of any other one is the host's.
[[nodiscard]] QUORPROBEFILE_EXPORT bool
MayHaveSettings(const std::optional<QuorConversions::EQuorConversionType>& type);
/// The types whose stand-alone files have that extension, in any ASCII case; several share one. None for an
/// empty extension.
[[nodiscard]] QUORPROBEFILE_EXPORT std::vector<const TypeInfo*>
TypesOfExtension(const std::wstring& extension);
/// The type that a person means by a code ("2"), an enumerator ("CONV_CVD") or a file extension ("cvd"); null
/// for none. An extension that several types share means the first of them.
[[nodiscard]] QUORPROBEFILE_EXPORT const TypeInfo* ParseType(const std::wstring& text);
/// The name of a conversion: its settings' own ("TC Type K"), or that of its type where it has none.
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring NameOf(const QuorConversions::CQuorConversion& conversion);

} // namespace QuorProbeFile
