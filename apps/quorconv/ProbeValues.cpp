#include "apps/quorconv/ProbeValues.h"
#include "apps/quorconv/Failure.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Records.h"

#include <algorithm>

namespace quorconv {

using namespace QuorProbeFile;

ProbeTable::ProbeTable(ProbeFile& file) : m_file(file) {
    if (auto lines = UnreadableLines(file); !lines.empty())
        throw Problem{file.Path() + L": not all of this file can be read", std::move(lines)};
    m_duplicates = file.DuplicateSections();
}

void ProbeTable::ForEach(const std::function<void(const std::wstring&)>& use) const {
    using QuorIniFile::IniLines;
    const std::string typeKey = QuorIniFile::ToUtf8(QuorConversions::conversionTypeKey);
    const auto standAlone = StandAloneSection(m_file.Path());
    auto duplicate = m_duplicates.begin();
    IniLines lines = m_file.Store()->Lines();
    IniLines header = lines;
    bool isOpen = false; // a section in which no type has been found
    while (lines.NextHeaderOr(typeKey)) {
        bool isProbe = isOpen && lines.Is(IniLines::Kind::Key);
        if (!lines.Is(IniLines::Kind::Key)) {
            header = lines;
            isOpen = lines.Is(IniLines::Kind::Header);
            if (duplicate != m_duplicates.end() && duplicate->line == header.Number()) {
                isOpen = false;
                ++duplicate;
            }
            isProbe = isOpen && standAlone && EqualFolded(*standAlone, header.Name());
        }
        if (isProbe) {
            use(header.Name());
            isOpen = false;
        }
    }
}

bool ProbeTable::Has(const std::wstring& section) const {
    QuorIniFile::IniStore& store = *m_file.Store();
    if (!store.HasSection(section))
        return false;
    std::wstring type;
    store.SetSection(section);
    if (store.ReadString(QuorConversions::conversionTypeKey, type))
        return true;
    const auto standAlone = StandAloneSection(m_file.Path());
    return standAlone && EqualFolded(*standAlone, section);
}

const ProbeValues* ProbeTable::Find(const std::wstring& section) const {
    return Has(section) ? &Read(section) : nullptr;
}

bool ProbeTable::IsOfProbe(const std::wstring& section) const {
    const auto owners = QuorProbeFile::PossibleOwners(section);
    return Has(section) || std::any_of(owners.begin(), owners.end(),
                                       [&](std::wstring_view owner) { return Has(std::wstring(owner)); });
}

bool ProbeTable::HasSection(const std::wstring& section) const { return m_file.Store()->HasSection(section); }

std::wstring ProbeTable::Select(const std::wstring& section, const std::wstring& path) const {
    const auto standAlone = StandAloneSection(m_file.Path());
    const bool isStandAlone = standAlone && EqualFolded(*standAlone, section);
    return SelectKey(*m_file.Store(), isStandAlone ? section : SettingsSection(section), path);
}

std::optional<std::wstring> ProbeTable::Text(const std::wstring& section, const std::wstring& path) const {
    std::wstring text;
    const std::wstring key = Select(section, path);
    return m_file.Store()->ReadString(key, text) ? std::optional(text) : std::nullopt;
}

std::wstring ProbeTable::PlaceOf(const std::wstring& section, const std::wstring& path) const {
    const std::wstring key = Select(section, path);
    return std::wstring(m_file.Store()->Section()).append(L"/").append(key);
}

OtherLines::OtherLines(const ProbeTable& table, const NameSet& sections) {
    using QuorIniFile::IniLines;
    if (sections.empty())
        return;
    const auto standAlone = StandAloneSection(table.m_file.Path());
    std::vector<Line>* lines = nullptr; // of the probe whose section this is
    std::wstring section;               // without the name of the probe
    for (auto line = table.m_file.Store()->Lines(); line.Next();) {
        if (line.Is(IniLines::Kind::Header)) {
            const std::wstring name = line.Name();
            auto owners = PossibleOwners(name);
            owners.insert(owners.begin(), name);
            const auto owner = std::find_if(owners.begin(), owners.end(),
                                            [&](std::wstring_view one) { return sections.contains(one); });
            lines = owner == owners.end() ? nullptr : &m_lines[std::wstring(*owner)];
            section = owner == owners.end() ? L"" : Folded(name.substr(owner->size()));
            if (standAlone && EqualFolded(*standAlone, name))
                section = settingsMark;
        } else if (lines && line.Is(IniLines::Kind::Key)) {
            const std::wstring key = Folded(line.Name());
            const bool isOfRecord = section.empty() && EqualFolded(key, QuorConversions::conversionTypeKey);
            if (!isOfRecord && !EqualFolded(key, QuorConversions::versionKey))
                lines->push_back(
                    {Folded(PathOf(Folded(std::wstring(settingsMark)), section, key)),
                     std::wstring(section).append(L"/").append(key),
                     std::wstring(section).append(L"/").append(key).append(L"=").append(line.Value()),
                     !section.empty()});
        } else if (lines) {
            lines->push_back(
                {L"", L"", section + L"/" + QuorIniFile::DecodeBytes(line.Bytes()), !section.empty()});
        }
    }
}

std::vector<const OtherLines::Line*> OtherLines::LinesOf(const ProbeValues& probe) const {
    std::vector<const Line*> lines;
    const auto found = m_lines.find(probe.section);
    if (found == m_lines.end())
        return lines;
    NameSet read;
    for (const RecordImage::Entry& entry : probe.entries)
        read.insert(entry.path);
    const bool hasSettings = !read.empty() || !FindType(probe.code);
    for (const Line& line : found->second)
        if ((hasSettings || !line.isOfSettings) && (line.path.empty() || !read.contains(line.path)))
            lines.push_back(&line);
    return lines;
}

std::vector<std::wstring> OtherLines::Of(const ProbeValues& probe) const {
    std::vector<std::wstring> texts;
    for (const Line* const line : LinesOf(probe))
        texts.push_back(line->text);
    std::sort(texts.begin(), texts.end());
    return texts;
}

std::unordered_map<std::wstring, std::wstring> OtherLines::ByKey(const ProbeValues& probe) const {
    std::unordered_map<std::wstring, std::wstring> byKey;
    for (const Line* const line : LinesOf(probe))
        if (!line->key.empty())
            byKey.emplace(line->key, line->text);
    return byKey;
}

const ProbeValues& ProbeTable::Read(const std::wstring& section) const {
    return m_reader.Read(m_file, section);
}

namespace {

/// The value of a key that most records of the type have at the same place: there may be 32767 of them.
const Value* FindNear(const ProbeValues& probe, std::size_t at, const std::wstring& path) {
    const bool isThere = at < probe.entries.size() && probe.entries[at].path == path;
    return isThere ? &probe.entries[at].value : probe.Find(path);
}

} // namespace

std::vector<ValueChange> ChangesOf(const ProbeValues& before, const ProbeValues& after) {
    std::vector<ValueChange> changes;
    for (std::size_t at = 0; at < before.entries.size(); ++at) {
        const RecordImage::Entry& entry = before.entries[at];
        const Value* const now = FindNear(after, at, entry.path);
        if (!now || !SameValue(entry.value, *now))
            changes.push_back({entry.path, &entry.value, now});
    }
    for (std::size_t at = 0; at < after.entries.size(); ++at) {
        const RecordImage::Entry& entry = after.entries[at];
        if (!FindNear(before, at, entry.path))
            changes.push_back({entry.path, nullptr, &entry.value});
    }
    return changes;
}

} // namespace quorconv
