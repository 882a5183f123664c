#pragma once

#include "QuorConversions/core/CQuorConversion.h"

#include <optional>
#include <string>
#include <vector>

namespace ProbeRecords {

/// One conversion type as the library describes it.
struct TypeInfo {
    QuorConversions::EQuorConversionType code;
    std::wstring enumerator;
    std::wstring name;
    std::wstring extension; ///< of its stand-alone files; empty for a type without settings
    std::wstring section;   ///< of its stand-alone files
};

/// All conversion types, by code.
[[nodiscard]] const std::vector<TypeInfo>& Types();
/// The type of a code; null for a code that is no conversion type.
[[nodiscard]] const TypeInfo* FindType(std::int32_t code);
/// The type that a person means by a code ("2"), an enumerator ("CONV_CVD") or a file extension ("cvd"); null
/// for none. An extension that several types share means the first of them.
[[nodiscard]] const TypeInfo* ParseType(const std::wstring& text);

} // namespace ProbeRecords
