#include "QuorIniFile/IniTextReader.h"

#include "QuorIniFile/detail/IniText.h"
#include "QuorIniFile/detail/IniValue.h"

#include <optional>
#include <utility>

namespace QuorIniFile {

IniTextReader::IniTextReader(std::string text) : m_text(std::make_unique<IniText>(std::move(text))) {}
IniTextReader::~IniTextReader() = default;

template <class Value>
bool IniTextReader::Take(std::wstring_view section, std::wstring_view key, Value& value) {
    const auto number = m_text->FindSection(section);
    return number && TakeValue(m_text->FindValue(*number, key), value);
}

bool IniTextReader::Read(std::wstring_view section, std::wstring_view key, bool& value) {
    return Take(section, key, value);
}
bool IniTextReader::Read(std::wstring_view section, std::wstring_view key, double& value) {
    return Take(section, key, value);
}
bool IniTextReader::Read(std::wstring_view section, std::wstring_view key, std::int16_t& value) {
    return Take(section, key, value);
}
bool IniTextReader::Read(std::wstring_view section, std::wstring_view key, std::wstring& value) {
    return Take(section, key, value);
}

} // namespace QuorIniFile
