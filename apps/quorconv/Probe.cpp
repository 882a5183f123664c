#include "apps/quorconv/Probe.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorConversions/core/modStrings.h"
#include "apps/records/Names.h"

#include <algorithm>

namespace quorconv {

using namespace QuorConversions;
using namespace ProbeRecords;

void MessageLog::ShowMessage(const MessageRequest& request) {
    ScriptedPlatform::ShowMessage(request);
    m_messages.push_back({Scripted::OnOneLine(request.text), m_reads->Count()});
}

bool IsVersionMessage(const MessageLog::Message& message) {
    return message.text == TableText(IDS_WRONG_FILE_VERSION);
}

std::shared_ptr<QuorIniFile::IniStore> StoreOf(const std::wstring& path) {
    auto store = std::make_shared<QuorIniFile::IniStore>();
    store->SetFileName(path);
    return store;
}

Probe::Probe(std::shared_ptr<QuorIniFile::INIFile> store, std::wstring path, Record record)
    : m_store(std::move(store)), m_path(std::move(path)), m_record(std::move(record)) {
    StartAnew();
}

void Probe::StartAnew() {
    m_reads = std::make_shared<ReadLog>(m_store);
    m_messages = std::make_shared<MessageLog>(m_reads);
    m_conversion = std::make_unique<CQuorConversion>(m_messages);
}

void Probe::Read() {
    std::shared_ptr<QuorIniFile::INIFile> iniFile = m_reads;
    if (!m_record.standAlone) {
        m_conversion->ReadFromFile(iniFile, L"", m_record.section);
        return;
    }
    // Several types share an extension (the two directions of a thermistor): the first that reads the record
    // without a complaint is meant, else the first of all.
    const std::wstring extension = Folded(GetExtensionPart(m_path));
    std::vector<const TypeInfo*> candidates;
    for (const TypeInfo& type : Types())
        if (type.extension == extension)
            candidates.push_back(&type);
    candidates.push_back(candidates.front());
    for (const TypeInfo* const type : candidates) {
        StartAnew();
        SetType(*type);
        iniFile = m_reads;
        Settings()->ReadFromFile(iniFile, L"", m_record.section);
        if (Messages().empty())
            break;
    }
}

void Probe::SetType(const TypeInfo& type) { m_conversion->SetConversionType(type.code); }

bool Probe::Write(std::shared_ptr<QuorIniFile::INIFile> iniFile) {
    m_messages->Forget();
    if (m_record.standAlone)
        Settings()->WriteToFile(iniFile, L"", m_record.section);
    else
        m_conversion->WriteToFile(iniFile, L"", m_record.section);
    return Messages().empty();
}

std::wstring Probe::Name() const {
    return m_conversion->ConversionName(Settings() ? currentValue : m_conversion->ConversionType());
}

std::wstring Probe::SettingsSection() const {
    return m_record.standAlone ? m_record.section : ProbeRecords::SettingsSection(m_record.section);
}

std::wstring Probe::PathOf(const ReadLog::Read& read) const {
    const std::wstring root = SettingsSection();
    if (read.section == root)
        return read.key;
    const std::wstring nested = root + std::wstring(nestedMark);
    return read.section.starts_with(nested) ? read.section.substr(nested.size()) + L"/" + read.key
                                            : std::wstring{};
}

bool Probe::HasType() const { return m_record.standAlone || (!Reads().empty() && Reads().front().found); }

bool Probe::LacksKeys() const {
    return std::any_of(Reads().begin(), Reads().end(), [](const ReadLog::Read& read) { return !read.found; });
}

std::wstring Probe::TypeName() const {
    const std::int32_t code = m_conversion->ConversionType();
    const wchar_t* const enumerator = ConversionEnumerator(code);
    return enumerator ? enumerator : std::to_wstring(code);
}

} // namespace quorconv
