#pragma once

#include "QuorIniFile/Export.h"
#include "QuorIniFile/IniCause.h"

#include <cstdint>
#include <exception>
#include <optional>
#include <string>

namespace QuorIniFile {

/// Numbers of the errors that the libraries raise. They appear in error reports, so a number never changes
/// its meaning; new ones are only added. (Not ERROR_...: system headers have macros with such names.)
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

/// The one exception class of the libraries, with what an error report prints: number, source, description,
/// and optionally a help file with a topic. An error of the INI-file store, or of the registry built on it,
/// also has a cause.
class QUORINIFILE_EXPORT QuorError : public std::exception {
public:
    /// `number` is an EErrorNumber or a number of the host's own, not 0; `source` is the class or component
    /// that raises it. `description` names the file, if there is one.
    QuorError(std::int32_t number, std::wstring source, std::wstring description, std::wstring helpFile = {},
              std::int32_t helpContext = 0);
    QuorError(std::int32_t number, std::wstring source, std::wstring description, IniCause cause);

    /// By which programs distinguish errors: an EErrorNumber, or a number of the host's own.
    [[nodiscard]] std::int32_t Number() const noexcept { return m_number; }
    /// The class or component that raised it, such as "CQuorCVD" or "QuorIniFile".
    [[nodiscard]] const std::wstring& Source() const noexcept { return m_source; }
    /// What went wrong; names of files, sections and keys are unchanged (see what()).
    [[nodiscard]] const std::wstring& Description() const noexcept { return m_description; }
    /// The help file and the topic in it that explain the error; empty and 0 if there is none.
    [[nodiscard]] const std::wstring& HelpFile() const noexcept { return m_helpFile; }
    [[nodiscard]] std::int32_t HelpContext() const noexcept { return m_helpContext; }
    /// The reason in a form for programs; null for an error that was raised neither by the store nor by the
    /// registry built on it.
    [[nodiscard]] const IniCause* Cause() const noexcept { return m_cause ? &*m_cause : nullptr; }

    /// The description as UTF-8, for hosts that catch std::exception. It may be shown in a window as plain
    /// text: names of files, sections and keys are unchanged, control characters included. On a terminal or
    /// in a log, print ToPrintable(Description()) instead (Utf8.h).
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
