#include "QuorConversions/core/CQuorConversion.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/ConversionTable.h"
#include "QuorConversions/core/detail/Record.h"
#include "QuorConversions/core/modHelp.h"

#include <utility>

namespace QuorConversions {

CQuorConversion::CQuorConversion(std::shared_ptr<Platform> platform)
    : QuorObject(std::move(platform), L"CQuorConversion") {}

void CQuorConversion::SetAllowEdit(bool value) {
    m_allowEdit = value;
    if (m_settings)
        m_settings->SetAllowEdit(value);
}

std::wstring CQuorConversion::HelpFile() const { return QuorConversions::HelpFile(); }

void CQuorConversion::SetHelpFile(std::wstring value) { QuorConversions::SetHelpFile(std::move(value)); }

void CQuorConversion::SetRegistry(std::shared_ptr<QuorRegistryII::Registry>& vData) {
    QuorObject::SetRegistry(vData);
    if (m_settings) {
        std::shared_ptr<QuorRegistryII::Registry> handed = vData;
        m_settings->SetRegistry(handed);
        QuorObject::SetRegistry(handed);
    }
}

bool CQuorConversion::Changed() const {
    return QuorObject::Changed() || (m_settings && m_settings->Changed());
}

void CQuorConversion::SetChanged(bool value) {
    QuorObject::SetChanged(value);
    if (m_settings)
        m_settings->SetChanged(value);
}

void CQuorConversion::SetFilePath(std::wstring value) {
    m_filePath = std::move(value);
    if (m_settings)
        m_settings->SetFilePath(m_filePath);
}

void CQuorConversion::SetConversionType(EQuorConversionType value) {
    if (value == m_type)
        return;
    SetChanged(true);
    m_type = value;
    m_settings = nullptr;
    const ConversionTypeRow* const row = FindConversionType(value);
    if (!row || !row->create)
        return;
    std::shared_ptr<SettingsObject> settings = row->create(HostPlatform());
    if (row->setUp)
        row->setUp(*settings);
    settings->SetFilePath(m_filePath);
    std::shared_ptr<QuorRegistryII::Registry> registry = Registry();
    settings->SetRegistry(registry);
    settings->SetAllowEdit(m_allowEdit);
    m_settings = std::move(settings);
}

std::wstring CQuorConversion::ConversionName(std::int32_t value) const {
    if (value == currentValue)
        return m_settings ? m_settings->GetName() : std::wstring{};
    const ConversionTypeRow* const row = FindConversionType(value);
    if (!row)
        return TableText(IDS_UNKNOWN);
    return row->name != 0 ? TableText(row->name) : row->create(HostPlatform())->GetName();
}

bool CQuorConversion::Edit() {
    try {
        // A reference of its own: host code that runs while the dialog is open may change the type.
        const std::shared_ptr<SettingsObject> settings = m_settings;
        return !settings || settings->Edit();
    } catch (...) {
        ReportCurrentError(IDS_EDITING_SETTINGS);
        return false;
    }
}

void CQuorConversion::WriteRecord(RecordWriter& record) const {
    record.Integer(conversionTypeKey, m_type);
    if (const std::shared_ptr<SettingsObject> settings = m_settings)
        record.Nested(settingsName, *settings);
}

void CQuorConversion::ReadRecord(RecordReader& record) {
    // The variable starts at 0, not at the current type: a record without a type is an ITS-90 one.
    SetConversionType(EQuorConversionType{record.Integer(conversionTypeKey, CONV_ITS90)});
    if (const std::shared_ptr<SettingsObject> settings = m_settings)
        record.Nested(settingsName, *settings);
}

} // namespace QuorConversions
