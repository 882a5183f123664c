#pragma once

#include "QuorIniFile/Export.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace QuorIniFile {

class IniText;

/// Reads values from the text of an INI file, or from a part of it, in memory, by the rules of IniStore: for
/// those who keep what a file has held (IniStore::Text) while the file becomes another one.
///
/// Names of sections and keys are the same in any case of ASCII letters; where one stands twice the first
/// counts. Reads return True when the key was found and holds a value of that kind; otherwise `value` stays
/// as it was. A lack of memory is std::bad_alloc, and the only error.
class QUORINIFILE_EXPORT IniTextReader {
public:
    explicit IniTextReader(std::string text);
    IniTextReader(const IniTextReader&) = delete;
    IniTextReader& operator=(const IniTextReader&) = delete;
    ~IniTextReader();

    [[nodiscard]] bool Read(std::wstring_view section, std::wstring_view key, bool& value);
    [[nodiscard]] bool Read(std::wstring_view section, std::wstring_view key, double& value);
    [[nodiscard]] bool Read(std::wstring_view section, std::wstring_view key, std::int16_t& value);
    [[nodiscard]] bool Read(std::wstring_view section, std::wstring_view key, std::wstring& value);

private:
    template <class Value>
    bool Take(std::wstring_view section, std::wstring_view key, Value& value);

    std::unique_ptr<IniText> m_text;
};

} // namespace QuorIniFile
