#include "QuorProbeFile/ProbeFileError.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace QuorProbeFile {

using QuorIniFile::QuorError;

namespace {

struct Text {
    EProbeFileError code;
    std::wstring_view text; // "~" stands for what else the error concerns
};

constexpr Text texts[] = {
    {PROBE_NO_SUCH_SECTION, L"there is no such section"},
    {PROBE_NO_RECORD, L"the section is not the record of a probe"},
    {PROBE_TYPE_UNREADABLE, L"the conversion type cannot be read: \"~\""},
    {PROBE_UNKNOWN_TYPE, L"~ is no conversion type"},
    {PROBE_INCOMPLETE, L"the record cannot be read"},
    {PROBE_BAD_NAME, L"no section can have this name"},
    {PROBE_NAME_IS_TAKEN, L"there is a section of this name already"},
    {PROBE_NAME_OF_SETTINGS, L"the probe \"~\" keeps its settings in a section of this name"},
    {PROBE_SETTINGS_ARE_TAKEN, L"the settings would stand in the section \"~\", which is there already"},
    {PROBE_SECTION_IS_SHARED, L"a section of this probe belongs to the probe \"~\", too"},
    {PROBE_OF_ANOTHER_TYPE, L"there is a probe of another type (~) in this section"},
    {PROBE_DOES_NOT_FIT_FILE, L"in a file of this kind the section is not for ~"},
    {PROBE_SECTION_OF_HOST, L"the section exists and is not the record of a probe"},
    {PROBE_CANNOT_BE_WRITTEN, L"the record cannot be written: ~"},
    {PROBE_INCONSISTENT, L"the values of the settings do not go together: no file gives them back"},
};

std::wstring TextOf(EProbeFileError code, const std::wstring& other) {
    const auto* const found =
        std::find_if(std::begin(texts), std::end(texts), [code](const Text& t) { return t.code == code; });
    std::wstring text(found->text);
    if (const auto mark = text.find(L'~'); mark != std::wstring::npos)
        text.replace(mark, 1, other);
    return text;
}

} // namespace

ProbeFileError::ProbeFileError(EProbeFileError code, std::int32_t number, std::wstring source,
                               Details details)
    : QuorError(number, std::move(source),
                details.file + L": [" + details.section + L"]: " +
                    TextOf(code, details.cause ? details.cause->Description() : details.other)),
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

} // namespace QuorProbeFile
