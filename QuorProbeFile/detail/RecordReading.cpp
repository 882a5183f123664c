#include "QuorProbeFile/detail/RecordReading.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorProbeFile/ProbeTypes.h"

#include <algorithm>

namespace QuorProbeFile {

using namespace QuorConversions;

namespace {

std::wstring OnOneLine(const std::wstring& text) {
    std::wstring line;
    for (const wchar_t character : text)
        if (character != L'\r')
            line += character;
        else if (!line.empty() && line.back() != L' ')
            line += L' ';
    return line;
}

void TakeRangeLimits(CQuorITS90Range& to, const CQuorITS90Range& from) {
    to.SetMinRange(from.MinRange());
    to.SetMaxRange(from.MaxRange());
    if (to.Range() < to.MinRange() || to.Range() > to.MaxRange())
        to.SetRange(ITS90_NORANGE);
}

} // namespace

void TakeLimits(CQuorConversion& to, const CQuorConversion& from) {
    const auto its90 = SettingsAs<CQuorITS90>(from);
    if (!its90)
        return;
    to.SetConversionType(from.ConversionType());
    const auto limited = SettingsAs<CQuorITS90>(to);
    TakeRangeLimits(*limited->LowRange(), *its90->LowRange());
    TakeRangeLimits(*limited->HighRange(), *its90->HighRange());
}

void MessageCollector::ShowMessage(const MessageRequest& request) {
    m_messages.push_back(
        {OnOneLine(request.text), m_reads->Count(), request.textId == IDS_WRONG_FILE_VERSION});
}

RecordReading::RecordReading(const std::shared_ptr<INIFile>& file, std::wstring_view path,
                             const ProbeEntry& entry, const CQuorConversion* host)
    : m_standAlone(entry.standAlone) {
    if (!m_standAlone) {
        Read(file, entry, host);
        return;
    }
    // Several types share an extension (the two directions of a thermistor): the first that reads the record
    // without a complaint is meant, else the first of all.
    std::vector<const TypeInfo*> candidates = TypesOfExtension(GetExtensionPart(path));
    candidates.push_back(candidates.front());
    ProbeEntry candidate = entry;
    for (const TypeInfo* const type : candidates) {
        candidate.type = type->code;
        Read(file, candidate, host);
        if (Messages().empty())
            break;
    }
}

RecordReading::RecordReading(const std::shared_ptr<INIFile>& file, const ProbeEntry& entry)
    : m_standAlone(entry.standAlone) {
    Read(file, entry);
}

void RecordReading::Read(const std::shared_ptr<INIFile>& file, const ProbeEntry& entry,
                         const CQuorConversion* host) {
    m_reads = std::make_shared<ReadLog>(file);
    m_messages = std::make_shared<MessageCollector>(m_reads);
    m_conversion = std::make_unique<CQuorConversion>(m_messages);
    if (host)
        TakeLimits(*m_conversion, *host);
    std::shared_ptr<INIFile> iniFile = m_reads;
    if (m_standAlone) {
        m_conversion->SetConversionType(*entry.type);
        Settings()->ReadFromFile(iniFile, L"", entry.section);
    } else {
        m_conversion->ReadFromFile(iniFile, L"", entry.section);
    }
}

bool RecordReading::HasType() const { return m_standAlone || (!Reads().empty() && Reads().front().found); }

bool RecordReading::LacksKeys() const {
    return std::any_of(Reads().begin(), Reads().end(), [](const ReadLog::Read& read) { return !read.found; });
}

} // namespace QuorProbeFile
