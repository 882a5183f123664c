#include "apps/quorconv/ProbeValues.h"
#include "apps/quorconv/Failure.h"

#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Records.h"

#include <algorithm>

namespace quorconv {

using namespace QuorProbeFile;

const Value* ProbeValues::Find(const std::wstring& path) const {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const RecordImage::Entry& entry) { return entry.path == path; });
    return found == entries.end() ? nullptr : &found->value;
}

bool SameValues(const ProbeValues& a, const ProbeValues& b) {
    return a.code == b.code &&
           std::equal(a.entries.begin(), a.entries.end(), b.entries.begin(), b.entries.end(),
                      [](const RecordImage::Entry& x, const RecordImage::Entry& y) {
                          return x.path == y.path && SameValue(x.value, y.value);
                      });
}

ProbeTable::ProbeTable(ProbeFile& file) : m_file(file) {
    if (auto lines = UnreadableLines(file); !lines.empty())
        throw Problem{file.Path() + L": not all of this file can be read", std::move(lines)};
    m_duplicates = file.DuplicateSections();
}

void ProbeTable::ForEach(const std::function<void(const std::wstring&)>& use) const {
    auto duplicate = m_duplicates.begin();
    for (auto lines = m_file.Store()->Lines(); lines.NextHeader();) {
        if (duplicate != m_duplicates.end() && duplicate->line == lines.Number())
            ++duplicate;
        else if (const std::wstring name = lines.Name(); Has(name))
            use(name);
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

std::optional<ProbeValues> ProbeTable::Find(const std::wstring& section) const {
    return Has(section) ? std::optional(Read(section)) : std::nullopt;
}

bool ProbeTable::IsOfProbe(const std::wstring& section) const {
    const auto owners = QuorProbeFile::PossibleOwners(section);
    return Has(section) || std::any_of(owners.begin(), owners.end(),
                                       [&](std::wstring_view owner) { return Has(std::wstring(owner)); });
}

ProbeValues ProbeTable::Read(const std::wstring& section) const {
    const Probe probe = ReadProbe(m_file, section);
    ProbeValues values{section, probe.Conversion().ConversionType(), {}};
    if (probe.Settings())
        values.entries = RecordImage::Of(*probe.Settings())->Entries();
    return values;
}

std::vector<ValueChange> ChangesOf(const ProbeValues& before, const ProbeValues& after) {
    std::vector<ValueChange> changes;
    for (const RecordImage::Entry& entry : before.entries) {
        const Value* const now = after.Find(entry.path);
        if (!now || !SameValue(entry.value, *now))
            changes.push_back({entry.path, &entry.value, now});
    }
    for (const RecordImage::Entry& entry : after.entries) {
        if (!before.Find(entry.path))
            changes.push_back({entry.path, nullptr, &entry.value});
    }
    return changes;
}

} // namespace quorconv
