#include "QuorProbeFile/ProbeFileError.h"

#include <utility>

namespace QuorProbeFile {

using QuorIniFile::QuorError;

namespace {

#define QUOR_PROBE_ERROR(number, name, text) static_assert(PROBE_##name == (number));
#include "QuorProbeFile/ProbeTexts.def"

ProbePhrase PhraseOf(EProbeFileError code, const std::wstring& other) {
    return {static_cast<EProbeText>(code), {other}};
}

} // namespace

ProbeFileError::ProbeFileError(EProbeFileError code, std::int32_t number, std::wstring source,
                               Details details)
    : QuorError(number, std::move(source),
                details.file + L": [" + details.section + L"]: " +
                    Describe({PhraseOf(code, details.cause ? details.cause->Description() : details.other)})),
      m_code(code),
      m_details(std::make_shared<const Details>(std::move(details))) {}

ProbeFileError::ProbeFileError(EProbeFileError code, std::wstring file, std::wstring section,
                               std::wstring other)
    : ProbeFileError(code, QuorIniFile::ERR_PATH_FILE_ACCESS, L"QuorProbeFile",
                     {std::move(file), std::move(section), std::move(other), {}, {}, nullptr}) {}

ProbeFileError::ProbeFileError(std::wstring file, std::wstring section, std::vector<ProbeProblem> problems,
                               std::vector<std::wstring> messages)
    : ProbeFileError(
          PROBE_INCOMPLETE, QuorIniFile::ERR_PATH_FILE_ACCESS, L"QuorProbeFile",
          {std::move(file), std::move(section), {}, std::move(problems), std::move(messages), nullptr}) {}

ProbeFileError::ProbeFileError(std::wstring file, std::wstring section, const QuorError& cause)
    : ProbeFileError(PROBE_CANNOT_BE_WRITTEN, cause.Number(), cause.Source(),
                     {std::move(file), std::move(section), {}, {}, {}, std::make_shared<QuorError>(cause)}) {}

ProbePhrase ProbeFileError::Phrase() const {
    return PhraseOf(m_code, m_details->cause ? m_details->cause->Description() : m_details->other);
}

} // namespace QuorProbeFile
