#pragma once

#include "QuorIniFile/INIFile.h"
#include "QuorProbeFile/RecordValue.h"

#include <cstdint>
#include <string>
#include <variant>

namespace QuorProbeFile {

/// Writes a value under a key of the selected section, by the member for its type.
inline void WriteValue(QuorIniFile::INIFile& file, const std::wstring& key, const Value& value) {
    struct Visitor {
        QuorIniFile::INIFile& file;
        const std::wstring& key;
        void operator()(const std::wstring& text) const { file.WriteString(key, text); }
        void operator()(std::int16_t number) const { file.WriteInteger(key, number, L""); }
        void operator()(double number) const { file.WriteDouble(key, number, L""); }
        void operator()(bool flag) const { file.WriteBoolean(key, flag); }
    };
    std::visit(Visitor{file, key}, value);
}

} // namespace QuorProbeFile
