#include "QuorProbeFile/RecordImage.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorProbeFile/ProbeNames.h"

#include <algorithm>

namespace QuorProbeFile {

using namespace QuorIniFile;

std::shared_ptr<RecordImage> RecordImage::Of(const QuorConversions::SettingsObject& settings) {
    auto image = std::make_shared<RecordImage>();
    std::shared_ptr<INIFile> iniFile = image;
    settings.WriteToFile(iniFile, L"", L"");
    return image;
}

void RecordImage::Apply(std::shared_ptr<RecordImage> image, QuorConversions::SettingsObject& settings) {
    std::shared_ptr<INIFile> iniFile = std::move(image);
    settings.ReadFromFile(iniFile, L"", L"");
}

bool RecordImage::Same(const RecordImage& a, const RecordImage& b) {
    return std::equal(
        a.m_entries.begin(), a.m_entries.end(), b.m_entries.begin(), b.m_entries.end(),
        [](const Entry& x, const Entry& y) { return x.path == y.path && SameValue(x.value, y.value); });
}

RecordImage::Entry* RecordImage::Find(std::wstring_view path) {
    const auto found = m_byPath.find(Folded(std::wstring(path)));
    return found == m_byPath.end() ? nullptr : &m_entries[found->second];
}

void RecordImage::SetFileName(std::wstring_view /*fileName*/) {}

void RecordImage::SetSection(std::wstring_view section) {
    // The record itself stands in the section "", a nested one in " - High Range" or the like.
    m_prefix = section.empty() ? L"" : std::wstring(section.substr(nestedMark.size())) + L"/";
}

void RecordImage::Write(std::wstring_view key, Value value) {
    if (key == QuorConversions::versionKey)
        return;
    std::wstring path = m_prefix + std::wstring(key);
    if (const auto [at, isNew] = m_byPath.emplace(Folded(path), m_entries.size()); isNew)
        m_entries.push_back({std::move(path), std::move(value)});
    else
        m_entries[at->second].value = std::move(value);
}

} // namespace QuorProbeFile
