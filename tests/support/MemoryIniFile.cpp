#include "tests/support/MemoryIniFile.h"

#include "QuorIniFile/QuorError.h"

#include <sstream>

namespace Support {
namespace {

std::wstring Quoted(std::wstring_view text) { return L"\"" + std::wstring(text) + L"\""; }

std::wstring Number(double value) {
    std::wostringstream text;
    text.imbue(std::locale::classic());
    text.precision(17);
    text << value;
    return text.str();
}

} // namespace

void MemoryIniFile::Set(const std::wstring& section, const std::wstring& key, Value value) {
    values[{section, key}] = std::move(value);
}

bool MemoryIniFile::Has(const std::wstring& section, const std::wstring& key) const {
    return values.count({section, key}) != 0;
}

double MemoryIniFile::Double(const std::wstring& section, const std::wstring& key) const {
    return std::get<double>(values.at({section, key}));
}

void MemoryIniFile::Operation(std::wstring line) {
    operations.push_back(std::move(line));
    if (operations.size() - 1 == failAt)
        throw QuorIniFile::QuorError(QuorIniFile::ERR_DEVICE_IO, L"QuorIniFile", L"Device I/O error: memory");
}

template <class T>
bool MemoryIniFile::Read(const wchar_t* name, std::wstring_view key, T& value, T scribble) {
    Operation(name + std::wstring(L" ") + std::wstring(key));
    const auto found = values.find({m_section, std::wstring(key)});
    if (found != values.end() && std::holds_alternative<T>(found->second)) {
        value = std::get<T>(found->second);
        return true;
    }
    if (scribblesOnMissingKeys)
        value = std::move(scribble);
    return false;
}

void MemoryIniFile::Write(std::wstring line, std::wstring_view key, Value value) {
    Operation(std::move(line));
    Set(m_section, std::wstring(key), std::move(value));
}

void MemoryIniFile::SetFileName(std::wstring_view fileName) { Operation(L"FileName " + Quoted(fileName)); }

void MemoryIniFile::SetSection(std::wstring_view section) {
    Operation(L"Section " + Quoted(section));
    m_section = section;
}

bool MemoryIniFile::ReadBoolean(std::wstring_view key, bool& value) {
    return Read(L"ReadBoolean", key, value, true);
}
bool MemoryIniFile::ReadDouble(std::wstring_view key, double& value) {
    return Read(L"ReadDouble", key, value, 7.5);
}
bool MemoryIniFile::ReadInteger(std::wstring_view key, std::int16_t& value) {
    return Read(L"ReadInteger", key, value, std::int16_t{1});
}
bool MemoryIniFile::ReadString(std::wstring_view key, std::wstring& value) {
    return Read(L"ReadString", key, value, std::wstring(L"scribble"));
}

void MemoryIniFile::WriteBoolean(std::wstring_view key, bool value) {
    Write(L"WriteBoolean " + std::wstring(key) + (value ? L"=True" : L"=False"), key, value);
}

void MemoryIniFile::WriteDouble(std::wstring_view key, double value, std::wstring_view comment) {
    Write(L"WriteDouble " + std::wstring(key) + L"=" + Number(value) + L" comment " + Quoted(comment), key,
          value);
}

void MemoryIniFile::WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) {
    Write(L"WriteInteger " + std::wstring(key) + L"=" + std::to_wstring(value) + L" comment " +
              Quoted(comment),
          key, value);
}

void MemoryIniFile::WriteString(std::wstring_view key, std::wstring_view value) {
    Write(L"WriteString " + std::wstring(key) + L"=" + Quoted(value), key, std::wstring(value));
}

} // namespace Support
