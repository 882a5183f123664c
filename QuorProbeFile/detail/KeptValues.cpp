#include "QuorProbeFile/detail/KeptValues.h"

#include <variant>

namespace QuorProbeFile {

using QuorIniFile::INIFile;

std::optional<Value> ReadValue(INIFile& file, const std::wstring& key, const Value& kind) {
    struct Visitor {
        INIFile& file;
        const std::wstring& key;
        bool operator()(std::wstring& value) const { return file.ReadString(key, value); }
        bool operator()(std::int16_t& value) const { return file.ReadInteger(key, value); }
        bool operator()(double& value) const { return file.ReadDouble(key, value); }
        bool operator()(bool& value) const { return file.ReadBoolean(key, value); }
    };
    Value value = kind;
    if (std::visit(Visitor{file, key}, value))
        return value;
    std::wstring text;
    if (file.ReadString(key, text))
        return text;
    return std::nullopt;
}

} // namespace QuorProbeFile
