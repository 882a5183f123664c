#include "QuorConversions/core/detail/Record.h"

#include "QuorConversions/core/RecordNames.h"

#include <charconv>
#include <limits>
#include <string>
#include <utility>

namespace QuorConversions {

IndexedKey::IndexedKey(const wchar_t* name, std::int32_t index) {
    for (; *name != L'\0' && m_length < mostLetters; ++name)
        m_text[m_length++] = *name;
    std::array<char, mostDigits> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), index).ptr;
    for (const char* digit = digits.data(); digit != end; ++digit)
        m_text[m_length++] = static_cast<wchar_t>(*digit);
}

std::wstring NestedSection(const std::wstring& parent, const wchar_t* child) {
    return std::wstring(parent).append(nestedMark).append(child);
}

RecordWriter::RecordWriter(std::shared_ptr<INIFile> iniFile, std::wstring section, const wchar_t* source,
                           Failures failures)
    : m_iniFile(std::move(iniFile)), m_section(std::move(section)), m_source(source), m_failures(failures) {}

template <class Operation>
void RecordWriter::Store(Operation operation) {
    m_storeFailed = true; // unless the operation returns
    operation(*m_iniFile);
    m_storeFailed = false;
}

void RecordWriter::Text(const wchar_t* key, const std::wstring& value) {
    Store([&](INIFile& iniFile) { iniFile.WriteString(key, value); });
}

void RecordWriter::Integer(const wchar_t* key, std::int32_t value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max())
        throw QuorError(QuorIniFile::ERR_OVERFLOW, m_source, TableText(IDS_OVERFLOWED));
    Store([&](INIFile& iniFile) { iniFile.WriteInteger(key, static_cast<std::int16_t>(value), L""); });
}

void RecordWriter::Double(std::wstring_view key, double value) {
    Store([&](INIFile& iniFile) { iniFile.WriteDouble(key, value, L""); });
}

void RecordWriter::Boolean(const wchar_t* key, bool value) {
    Store([&](INIFile& iniFile) { iniFile.WriteBoolean(key, value); });
}

void RecordWriter::Nested(const wchar_t* name, const QuorObject& child) {
    const std::wstring section = NestedSection(m_section, name);
    if (m_failures == Failures::Raised)
        child.WriteOrRaise(m_iniFile, section);
    else
        child.WriteToFile(m_iniFile, L"", section);
}

RecordReader::RecordReader(std::shared_ptr<INIFile> iniFile, std::wstring section)
    : m_iniFile(std::move(iniFile)), m_section(std::move(section)) {}

std::wstring RecordReader::Text(const wchar_t* key, std::wstring current) {
    if (!m_iniFile->ReadString(key, current))
        Fail();
    return current;
}

std::int16_t RecordReader::Count(const wchar_t* key, std::int16_t current) {
    if (!m_iniFile->ReadInteger(key, current))
        Fail();
    return current;
}

std::int32_t RecordReader::Integer(const wchar_t* key, std::int32_t current) {
    // A host may have set a code that 16 bits cannot hold; a missing key must not cut it.
    const auto primed = static_cast<std::int16_t>(current);
    std::int16_t value = primed;
    if (m_iniFile->ReadInteger(key, value))
        return value;
    Fail();
    return value == primed ? current : value;
}

double RecordReader::Double(std::wstring_view key, double current) {
    if (!m_iniFile->ReadDouble(key, current))
        Fail();
    return current;
}

bool RecordReader::Boolean(const wchar_t* key, bool current) {
    if (!m_iniFile->ReadBoolean(key, current))
        Fail();
    return current;
}

void RecordReader::Nested(const wchar_t* name, QuorObject& child) {
    if (!child.ReadFromFile(m_iniFile, L"", NestedSection(m_section, name)))
        Fail();
}

} // namespace QuorConversions
