#pragma once

#include "QuorIniFile/Export.h"
#include "QuorIniFile/INIFile.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace QuorIniFile {

/// The built-in INI-file component: it stands on the file of that name and changes nothing in it but the
/// lines that are written.
///
/// The file is loaded by the first read or write. A read from a file that does not exist is error 53; a write
/// creates it, in a folder that must exist (76). A key that is missing, or whose value is not of the kind
/// asked for, reads as False and leaves `value` as it was.
///
/// A write is durable when it returns. Between Hold and Release the writes are kept in memory; the outermost
/// Release makes them durable together. A value that stands in the file already writes nothing. A save
/// replaces the file as a whole, atomically. If another program has changed the file since it was loaded,
/// what we have written is written into its text. A save that fails raises and keeps the changes; the next
/// write or Release tries again.
///
/// All errors are QuorError with the source "QuorIniFile" and the file's name in the description: bad file
/// name 52, device error 57, disk full 61, permission denied 70, path not found 76, anything else that cannot
/// be read or written 75, UTF-16 text and names that the file could not give back among it.
class QUORINIFILE_EXPORT IniStore final : public INIFile {
public:
    IniStore();
    IniStore(const IniStore&) = delete;
    IniStore& operator=(const IniStore&) = delete;
    /// Saves what is still held; failures are swallowed, so a caller that must know calls Release.
    ~IniStore() override;

    /// Remembers the name; the file is not touched. An empty name, or one that no file can have, is error 52.
    /// Pending changes of another file are saved first, even when held. The same name changes nothing.
    void SetFileName(std::wstring_view fileName) override;
    [[nodiscard]] std::wstring_view FileName() const;
    /// Without a call the section without a name is selected.
    void SetSection(std::wstring_view section) override;
    [[nodiscard]] std::wstring_view Section() const;

    [[nodiscard]] bool ReadBoolean(std::wstring_view key, bool& value) override;
    [[nodiscard]] bool ReadDouble(std::wstring_view key, double& value) override;
    [[nodiscard]] bool ReadInteger(std::wstring_view key, std::int16_t& value) override;
    [[nodiscard]] bool ReadString(std::wstring_view key, std::wstring& value) override;
    void WriteBoolean(std::wstring_view key, bool value) override;
    /// A comment stands behind the value as " ; comment"; an empty one leaves that of the line as it is.
    void WriteDouble(std::wstring_view key, double value, std::wstring_view comment) override;
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) override;
    void WriteString(std::wstring_view key, std::wstring_view value) override;

    void Hold() override;
    /// Without a Hold it does nothing.
    void Release() override;

private:
    class Session;
    std::unique_ptr<Session> m_session;
};

} // namespace QuorIniFile
