#include "QuorProbeFile/detail/RecordReading.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorProbeFile/ProbeTypes.h"

#include <algorithm>

namespace QuorProbeFile {

using namespace QuorConversions;
using QuorIniFile::IniStore;

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

} // namespace

void MessageCollector::ShowMessage(const MessageRequest& request) {
    m_messages.push_back(
        {OnOneLine(request.text), m_reads->Count(), request.textId == IDS_WRONG_FILE_VERSION});
}

RecordReading::RecordReading(const std::shared_ptr<IniStore>& store, std::wstring_view path,
                             const ProbeEntry& entry)
    : m_standAlone(entry.standAlone) {
    StartAnew(store);
    std::shared_ptr<INIFile> iniFile = m_reads;
    if (!m_standAlone) {
        m_conversion->ReadFromFile(iniFile, L"", entry.section);
        return;
    }
    // Several types share an extension (the two directions of a thermistor): the first that reads the record
    // without a complaint is meant, else the first of all.
    std::vector<const TypeInfo*> candidates = TypesOfExtension(GetExtensionPart(path));
    candidates.push_back(candidates.front());
    for (const TypeInfo* const type : candidates) {
        StartAnew(store);
        m_conversion->SetConversionType(type->code);
        iniFile = m_reads;
        Settings()->ReadFromFile(iniFile, L"", entry.section);
        if (Messages().empty())
            break;
    }
}

void RecordReading::StartAnew(const std::shared_ptr<IniStore>& store) {
    m_reads = std::make_shared<ReadLog>(store);
    m_messages = std::make_shared<MessageCollector>(m_reads);
    m_conversion = std::make_unique<CQuorConversion>(m_messages);
}

bool RecordReading::HasType() const { return m_standAlone || (!Reads().empty() && Reads().front().found); }

bool RecordReading::LacksKeys() const {
    return std::any_of(Reads().begin(), Reads().end(), [](const ReadLog::Read& read) { return !read.found; });
}

} // namespace QuorProbeFile
