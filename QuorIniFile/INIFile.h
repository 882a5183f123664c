#pragma once

#include "QuorIniFile/Export.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace QuorIniFile {

/// What the conversions need of an INI file: a file name, a selected section, and typed values under keys.
/// It knows nothing of coefficients; it returns exactly what was written. A host may derive its own.
/// Failures (no such file, disk full) are raised as QuorError.
class QUORINIFILE_EXPORT INIFile {
public:
    INIFile() = default;
    INIFile(const INIFile&) = delete;
    INIFile& operator=(const INIFile&) = delete;
    virtual ~INIFile();

    /// Binds the object to the file with that path.
    virtual void SetFileName(std::wstring_view fileName) = 0;
    /// Selects the section for the reads and writes that follow.
    virtual void SetSection(std::wstring_view section) = 0;

    /// Reads the value under `key` in the selected section. True, and the value in `value`, if the key exists
    /// and holds a value of that type; otherwise False. The library initialises `value` and uses whatever an
    /// implementation leaves in it.
    [[nodiscard]] virtual bool ReadBoolean(std::wstring_view key, bool& value) = 0;
    [[nodiscard]] virtual bool ReadDouble(std::wstring_view key, double& value) = 0;
    [[nodiscard]] virtual bool ReadInteger(std::wstring_view key, std::int16_t& value) = 0;
    [[nodiscard]] virtual bool ReadString(std::wstring_view key, std::wstring& value) = 0;
    /// Writes `value` under `key` in the selected section. `comment` is a remark for people who read the
    /// file; the conversions always pass an empty one. Any double is written so that it reads back to the
    /// same bits.
    virtual void WriteBoolean(std::wstring_view key, bool value) = 0;
    virtual void WriteDouble(std::wstring_view key, double value, std::wstring_view comment) = 0;
    virtual void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) = 0;
    virtual void WriteString(std::wstring_view key, std::wstring_view value) = 0;

    /// Hold and Release bracket the writes of one record: between them an implementation may keep what is
    /// written in memory and make it durable once, in Release. They nest; the outermost Release counts. A
    /// host that saves many probes brackets them all and waits for the disk once. Release raises what a save
    /// raises.
    virtual void Hold();
    virtual void Release();
    /// Called instead of Release when a record could not be written completely, because this object failed or
    /// memory ran out: what was written since the outermost Hold should not become durable, and the outermost
    /// Release should raise. An implementation that does not override it keeps the part that was written.
    virtual void Abandon();
};

} // namespace QuorIniFile
