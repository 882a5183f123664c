#include "apps/records/ProbeFile.h"

#include "QuorConversions/core/modPaths.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "QuorIniFile/detail/IniEncodedText.h"
#include "QuorIniFile/detail/IniError.h"
#include "apps/records/Names.h"
#include "apps/records/Types.h"

#include <algorithm>

namespace ProbeRecords {

using namespace QuorIniFile;

namespace {

std::string TextOf(const std::wstring& path) {
    auto file = ReadBytes(path);
    if (!file)
        throw FileError(ERR_FILE_NOT_FOUND, path);
    return DecodeFile(std::move(file->bytes), path).text;
}

} // namespace

std::optional<std::wstring> StandAloneSection(std::wstring_view path) {
    const std::wstring extension = Folded(QuorConversions::GetExtensionPart(path));
    const auto type = std::find_if(Types().begin(), Types().end(), [&](const TypeInfo& t) {
        return !t.extension.empty() && t.extension == extension;
    });
    return type == Types().end() ? std::nullopt : std::optional(type->section);
}

ProbeFile::ProbeFile(std::wstring path) : m_path(std::move(path)), m_bytes(TextOf(m_path)) {
    ReadSections();
    FindRecords();
}

void ProbeFile::ReadSections() {
    IniWalker walker(m_bytes);
    while (walker.Next()) {
        const IniLine& line = walker.Line();
        switch (line.kind) {
        case IniLineKind::Section:
            m_sections.push_back({DecodeBytes(line.name), walker.Number(), {}, {}, false});
            m_firstByName.emplace(Folded(m_sections.back().name), m_sections.size() - 1);
            break;
        case IniLineKind::BrokenSection:
            m_sections.push_back({{}, walker.Number(), {}, {}, true});
            break;
        case IniLineKind::Key:
            if (!m_sections.empty())
                m_sections.back().keys.push_back({line.name, line.value, walker.Number()});
            break;
        case IniLineKind::Malformed:
            if (!m_sections.empty())
                m_sections.back().malformedLines.push_back(walker.Number());
            break;
        case IniLineKind::Blank:
        case IniLineKind::Comment:
            break;
        }
    }
}

void ProbeFile::FindRecords() {
    const auto standAlone = StandAloneSection(m_path);
    for (const Section& section : m_sections) {
        const bool hasType = FindKey(section, L"ConversionType") != nullptr;
        if (section.isBroken && hasType)
            m_lostRecords.push_back(section.line);
        if (FindSection(section.name) != &section)
            continue; // nobody reads a second section of that name
        if (hasType)
            m_records.push_back({section.name, section.line, false});
        else if (standAlone && SameName(section.name, *standAlone))
            m_records.push_back({section.name, section.line, true});
    }
}

const ProbeFile::Section* ProbeFile::FindSection(std::wstring_view name) const {
    const auto found = m_firstByName.find(Folded(std::wstring(name)));
    return found == m_firstByName.end() ? nullptr : &m_sections[found->second];
}

std::optional<Record> ProbeFile::FindRecord(std::wstring_view section) const {
    const auto record = std::find_if(m_records.begin(), m_records.end(),
                                     [&](const Record& r) { return SameName(r.section, section); });
    return record == m_records.end() ? std::nullopt : std::optional(*record);
}

const ProbeFile::Key* ProbeFile::FindKey(const Section& section, std::wstring_view name) {
    const std::string wanted = ToUtf8(name);
    const auto key = std::find_if(section.keys.begin(), section.keys.end(),
                                  [&](const Key& k) { return QuorIniFile::SameName(k.name, wanted); });
    return key == section.keys.end() ? nullptr : &*key;
}

} // namespace ProbeRecords
