#pragma once

#include "QuorIniFile/QuorError.h"
#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/ProbeProblem.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace QuorProbeFile {

/// Why an operation on a probe is not possible. Hosts may store these numbers: they are only added to.
enum EProbeFileError : std::int32_t {
    PROBE_NO_SUCH_SECTION = 1,    ///< there is no such section
    PROBE_NO_RECORD = 2,          ///< the section exists but is not the record of a probe
    PROBE_TYPE_UNREADABLE = 3,    ///< the type in the record cannot be read; `Other()` is its text
    PROBE_UNKNOWN_TYPE = 4,       ///< its type is not the code of a conversion; `Other()` is the code
    PROBE_INCOMPLETE = 5,         ///< it cannot be read completely; see Problems()
    PROBE_BAD_NAME = 6,           ///< a section cannot have the name
    PROBE_NAME_IS_TAKEN = 7,      ///< another section has the name, or another probe of the same Write
    PROBE_NAME_OF_SETTINGS = 8,   ///< the probe `Other()` has its settings in a section of that name
    PROBE_SETTINGS_ARE_TAKEN = 9, ///< the settings belong into the section `Other()`, which already exists
    PROBE_SECTION_IS_SHARED = 10, ///< a section that would be removed or renamed also belongs to `Other()`
    PROBE_OF_ANOTHER_TYPE = 11,   ///< the section has a probe of another type, `Other()`
    PROBE_DOES_NOT_FIT_FILE = 12, ///< the section is that of a stand-alone settings file, which cannot hold
                                  ///< the type, or the probe to be renamed, `Other()`
    PROBE_CANNOT_BE_WRITTEN = 13, ///< see Cause()
    PROBE_SECTION_OF_HOST = 14,   ///< the section exists and is not a record, so no probe is written into it
    PROBE_INCONSISTENT =
        15, ///< a file would not give back what the conversion holds (ProbeFile::IsConsistent)
};

/// An operation of a ProbeFile is not possible. Failures of the file itself are the QuorError of the store.
/// The number is 75 or that of the cause, the source "QuorProbeFile" or that of the cause; the description
/// names file and section.
class QUORPROBEFILE_EXPORT ProbeFileError : public QuorIniFile::QuorError {
public:
    /// An error with that code; the other arguments are those of File(), Section() and Other().
    ProbeFileError(EProbeFileError code, std::wstring file, std::wstring section, std::wstring other = {});
    /// An error with the code PROBE_INCOMPLETE.
    ProbeFileError(std::wstring file, std::wstring section, std::vector<ProbeProblem> problems,
                   std::vector<std::wstring> messages);
    /// An error with the code PROBE_CANNOT_BE_WRITTEN.
    ProbeFileError(std::wstring file, std::wstring section, const QuorIniFile::QuorError& cause);

    /// The reason, for programs.
    [[nodiscard]] EProbeFileError Code() const noexcept { return m_code; }
    /// The file as the ProbeFile was given it, and the section of the probe.
    [[nodiscard]] const std::wstring& File() const noexcept { return m_details->file; }
    [[nodiscard]] const std::wstring& Section() const noexcept { return m_details->section; }
    /// What else is concerned: another probe or section, or a type (see EProbeFileError). May be empty.
    [[nodiscard]] const std::wstring& Other() const noexcept { return m_details->other; }
    /// Why, without file and section, for programs that word it in another language: the text with the number
    /// of Code().
    [[nodiscard]] ProbePhrase Phrase() const;
    /// What cannot be read, for PROBE_INCOMPLETE; empty otherwise.
    [[nodiscard]] const std::vector<ProbeProblem>& Problems() const noexcept { return m_details->problems; }
    /// The messages of the settings object about that, each on one line.
    [[nodiscard]] const std::vector<std::wstring>& Messages() const noexcept { return m_details->messages; }
    /// Why the probe cannot be written, for PROBE_CANNOT_BE_WRITTEN; null otherwise.
    [[nodiscard]] const QuorIniFile::QuorError* Cause() const noexcept { return m_details->cause.get(); }

private:
    struct Details {
        std::wstring file;
        std::wstring section;
        std::wstring other;
        std::vector<ProbeProblem> problems;
        std::vector<std::wstring> messages;
        std::shared_ptr<const QuorIniFile::QuorError> cause;
    };
    ProbeFileError(EProbeFileError code, std::int32_t number, std::wstring source, Details details);

    EProbeFileError m_code;
    std::shared_ptr<const Details> m_details; // shared: an exception may be copied without memory
};

} // namespace QuorProbeFile
