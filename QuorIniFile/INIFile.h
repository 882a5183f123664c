#pragma once

#include "QuorIniFile/Export.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace QuorIniFile {

/// What the conversions need of an INI file: a file name, a selected section, and typed values under keys.
/// It knows nothing of coefficients; it gives back exactly what was written. A host may bring its own.
///
/// Reads return True and put the value into `value` when the key was found and holds a value of that kind.
/// Otherwise they return False; the library primes `value` and takes whatever an implementation leaves in it.
/// Failures (no such file, disk full) are raised as QuorError.
class QUORINIFILE_EXPORT INIFile {
public:
    INIFile() = default;
    INIFile(const INIFile&) = delete;
    INIFile& operator=(const INIFile&) = delete;
    virtual ~INIFile();

    /// Binds the object to the file of that path.
    virtual void SetFileName(std::wstring_view fileName) = 0;
    /// Selects the section that the reads and writes which follow address.
    virtual void SetSection(std::wstring_view section) = 0;
    [[nodiscard]] virtual bool ReadBoolean(std::wstring_view key, bool& value) = 0;
    [[nodiscard]] virtual bool ReadDouble(std::wstring_view key, double& value) = 0;
    [[nodiscard]] virtual bool ReadInteger(std::wstring_view key, std::int16_t& value) = 0;
    [[nodiscard]] virtual bool ReadString(std::wstring_view key, std::wstring& value) = 0;
    virtual void WriteBoolean(std::wstring_view key, bool value) = 0;
    /// `comment` is a remark for the person who reads the file; the conversions always pass an empty one.
    virtual void WriteDouble(std::wstring_view key, double value, std::wstring_view comment) = 0;
    virtual void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) = 0;
    virtual void WriteString(std::wstring_view key, std::wstring_view value) = 0;

    /// Hold and Release bracket the writes of one record: between them an implementation may keep what is
    /// written and make it durable once, in Release. They nest; the outermost Release counts. A host that
    /// saves many probes brackets them all and pays once.
    virtual void Hold();
    virtual void Release();
    /// In place of Release, when this object itself has failed, or memory, before a record was written: what
    /// was written since the outermost Hold should not become durable, and the outermost Release should
    /// raise. An implementation that does not override this one keeps the part that was written.
    virtual void Abandon();
};

} // namespace QuorIniFile
