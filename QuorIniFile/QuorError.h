#pragma once

#include "QuorIniFile/Export.h"
#include "QuorIniFile/IniCause.h"

#include <cstdint>
#include <exception>
#include <optional>
#include <string>

namespace QuorIniFile {

/// Numbers of the errors that the three libraries raise. They leave the process in error reports, so a number
/// keeps its meaning for ever; new ones are only added. (Not ERROR_...: system headers have macros of such
/// names.)
enum EErrorNumber : std::int32_t {
    ERR_OVERFLOW = 6,
    ERR_OUT_OF_MEMORY = 7,
    ERR_SUBSCRIPT_OUT_OF_RANGE = 9,
    ERR_BAD_FILE_NAME = 52,
    ERR_FILE_NOT_FOUND = 53,
    ERR_DEVICE_IO = 57,
    ERR_DISK_FULL = 61,
    ERR_PERMISSION_DENIED = 70,
    ERR_PATH_FILE_ACCESS = 75,
    ERR_PATH_NOT_FOUND = 76,
    ERR_CANNOT_CREATE = 429,
    ERR_DIALOG_CANCELLED = 32755,
    ERR_INDEX_OUT_OF_RANGE = -2147221003, // 0x800401F5, the object-error base plus 501
    ERR_RANGE_OUT_OF_RANGE = -2147221002, // 0x800401F6, the object-error base plus 502
    ERR_UNEXPECTED = -2147467259,         // 0x80004005, any exception that carries no number of its own
};

/// The one exception of the libraries. It carries what an error report prints: number, source (the class or
/// component that raised it), description, and optionally a help file with a topic. An error of the INI-file
/// store, and of the registry that stands on it, also carries its cause.
class QUORINIFILE_EXPORT QuorError : public std::exception {
public:
    QuorError(std::int32_t number, std::wstring source, std::wstring description, std::wstring helpFile = {},
              std::int32_t helpContext = 0);
    QuorError(std::int32_t number, std::wstring source, std::wstring description, IniCause cause);

    [[nodiscard]] std::int32_t Number() const noexcept { return m_number; }
    [[nodiscard]] const std::wstring& Source() const noexcept { return m_source; }
    [[nodiscard]] const std::wstring& Description() const noexcept { return m_description; }
    [[nodiscard]] const std::wstring& HelpFile() const noexcept { return m_helpFile; }
    [[nodiscard]] std::int32_t HelpContext() const noexcept { return m_helpContext; }
    /// What the description says, for programs; null for an error that neither the store nor
    /// the registry that stands on it has raised.
    [[nodiscard]] const IniCause* Cause() const noexcept { return m_cause ? &*m_cause : nullptr; }

    /// The description as UTF-8, for hosts that catch std::exception. It is what a window shows as plain
    /// text: names of files, sections and keys stand in it as they are, control characters included. Whoever
    /// prints it on a terminal or in a log prints ToPrintable(Description()) instead (Utf8.h).
    [[nodiscard]] const char* what() const noexcept override { return m_what.c_str(); }

private:
    std::int32_t m_number;
    std::wstring m_source;
    std::wstring m_description;
    std::wstring m_helpFile;
    std::int32_t m_helpContext;
    std::optional<IniCause> m_cause;
    std::string m_what;
};

} // namespace QuorIniFile
