#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorProbeFile/Export.h"

#include <optional>
#include <string>
#include <vector>

namespace QuorProbeFile {

/// A conversion type.
struct TypeInfo {
    QuorConversions::EQuorConversionType code; ///< the number in files
    std::wstring enumerator;                   ///< the name of the code, "CONV_CVD"
    std::wstring name;                         ///< as CQuorConversion::ConversionName gives it
    std::wstring extension; ///< of its stand-alone files; empty for a type without settings
    std::wstring section;   ///< of its stand-alone files
};

/// All conversion types, by code.
[[nodiscard]] QUORPROBEFILE_EXPORT const std::vector<TypeInfo>& Types();
/// The type with that code; null for a code that is not a conversion type.
[[nodiscard]] QUORPROBEFILE_EXPORT const TypeInfo* FindType(std::int32_t code);
/// Whether a probe of that type has a section of settings, or may have one because its type is not known. For
/// any other type, a section with such a name belongs to the host.
[[nodiscard]] QUORPROBEFILE_EXPORT bool
MayHaveSettings(const std::optional<QuorConversions::EQuorConversionType>& type);
/// The types whose stand-alone files have that extension, ignoring case; several types may share one. None
/// for an empty extension.
[[nodiscard]] QUORPROBEFILE_EXPORT std::vector<const TypeInfo*>
TypesOfExtension(const std::wstring& extension);
/// The type named by a code ("2"), an enumerator ("CONV_CVD") or a file extension ("cvd"); null if there is
/// none. An extension that several types share means the first of them.
[[nodiscard]] QUORPROBEFILE_EXPORT const TypeInfo* ParseType(const std::wstring& text);
/// The name of a conversion: that of its settings ("TC Type K"), or of its type if it has none.
[[nodiscard]] QUORPROBEFILE_EXPORT std::wstring NameOf(const QuorConversions::CQuorConversion& conversion);

} // namespace QuorProbeFile
