#pragma once

#include "QuorIniFile/QuorError.h"
#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/ProbeProblem.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace QuorProbeFile {

/// Why something cannot be done with a probe. Hosts keep these numbers: they are only added to.
enum EProbeFileError : std::int32_t {
    PROBE_NO_SUCH_SECTION = 1,    ///< there is no such section
    PROBE_NO_RECORD = 2,          ///< the section is there and is not the record of a probe
    PROBE_TYPE_UNREADABLE = 3,    ///< the record says no type that could be read; `Other()` is its text
    PROBE_UNKNOWN_TYPE = 4,       ///< its type is the code of no conversion; `Other()` is the code
    PROBE_INCOMPLETE = 5,         ///< it cannot be read wholly; see Problems()
    PROBE_BAD_NAME = 6,           ///< no section can have the name
    PROBE_NAME_IS_TAKEN = 7,      ///< another section has the name, or another probe of one Write
    PROBE_NAME_OF_SETTINGS = 8,   ///< a probe, `Other()`, keeps its settings in a section of that name
    PROBE_SETTINGS_ARE_TAKEN = 9, ///< the settings would stand in `Other()`, a section that is there already
    PROBE_SECTION_IS_SHARED = 10, ///< a section would go or move with the probe that `Other()` needs, too
    PROBE_OF_ANOTHER_TYPE = 11,   ///< a probe of another type, `Other()`, stands in the section
    PROBE_DOES_NOT_FIT_FILE = 12, ///< the section is that of a stand-alone settings file, which is not for
                                  ///< the type, or for the probe that is to be renamed, `Other()`
    PROBE_CANNOT_BE_WRITTEN = 13, ///< see Cause()
    PROBE_SECTION_OF_HOST = 14,   ///< no probe can be written into a section that is there and is no record
    PROBE_INCONSISTENT = 15,      ///< no file gives back what the conversion holds: ProbeFile::IsConsistent
};

/// A ProbeFile cannot do what it is asked. Failures of the file itself are raised as the store raises them.
/// The number is 75 or that of the cause, the source "QuorProbeFile" or that of the cause; the description
/// names file and section.
class QUORPROBEFILE_EXPORT ProbeFileError : public QuorIniFile::QuorError {
public:
    ProbeFileError(EProbeFileError code, std::wstring file, std::wstring section, std::wstring other = {});
    /// PROBE_INCOMPLETE.
    ProbeFileError(std::wstring file, std::wstring section, std::vector<ProbeProblem> problems,
                   std::vector<std::wstring> messages);
    /// PROBE_CANNOT_BE_WRITTEN.
    ProbeFileError(std::wstring file, std::wstring section, const QuorIniFile::QuorError& cause);

    [[nodiscard]] EProbeFileError Code() const noexcept { return m_code; }
    [[nodiscard]] const std::wstring& File() const noexcept { return m_details->file; }
    [[nodiscard]] const std::wstring& Section() const noexcept { return m_details->section; }
    /// What else it concerns: another probe or section, or a type. Empty for nothing.
    [[nodiscard]] const std::wstring& Other() const noexcept { return m_details->other; }
    /// What cannot be read.
    [[nodiscard]] const std::vector<ProbeProblem>& Problems() const noexcept { return m_details->problems; }
    /// What the settings object has said about that, each on one line.
    [[nodiscard]] const std::vector<std::wstring>& Messages() const noexcept { return m_details->messages; }
    /// What has kept the probe from being written; null for nothing.
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
