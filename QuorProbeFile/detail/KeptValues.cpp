#include "QuorProbeFile/detail/KeptValues.h"

#include "QuorProbeFile/detail/RecordMeaning.h"

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

void KeptValues::Keep(std::wstring_view key, const Value& kind) {
    std::wstring name(key);
    if (!m_file) {
        m_values.insert_or_assign({m_section, std::move(name)}, kind);
        return;
    }
    m_file->SetSection(m_section);
    auto value = ReadValue(*m_file, name, kind);
    // What a smaller count leaves in the file was read with the greater one.
    for (const std::wstring& beyond : KeysBeyond(name, kind, value)) {
        if (auto left = ReadValue(*m_file, beyond, 0.0))
            m_values.insert_or_assign({m_section, beyond}, *std::move(left));
    }
    if (value)
        m_values.insert_or_assign({m_section, std::move(name)}, *std::move(value));
}

} // namespace QuorProbeFile
