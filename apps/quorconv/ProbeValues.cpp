#include "apps/quorconv/ProbeValues.h"
#include "apps/quorconv/Failure.h"

#include "QuorProbeFile/ProbeNames.h"
#include "apps/quorconv/Progress.h"
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

ProbeTable::ProbeTable(ProbeFile& file) {
    using QuorIniFile::IniWarningKind;
    for (const QuorIniFile::IniWarning& warning : file.Store()->Warnings()) {
        if (warning.kind == IniWarningKind::UnclosedHeader || warning.kind == IniWarningKind::LineEndsInCr)
            throw Problem{file.Path() + L":" + std::to_wstring(warning.line) +
                          L": what stands here cannot be read; \"quorconv check\" tells why"};
    }
    const std::vector<ProbeEntry> entries = file.Probes();
    Progress progress(L"probes", entries.size());
    m_probes.reserve(entries.size());
    for (const ProbeEntry& entry : entries) {
        progress.Step();
        const Probe probe = ReadProbe(file, entry.section);
        m_bySection.emplace(Folded(entry.section), m_probes.size());
        m_probes.push_back({entry.section, probe.Conversion().ConversionType(), {}});
        if (probe.Settings())
            m_probes.back().entries = RecordImage::Of(*probe.Settings())->Entries();
    }
}

const ProbeValues* ProbeTable::Find(const std::wstring& section) const {
    const auto found = m_bySection.find(Folded(section));
    return found == m_bySection.end() ? nullptr : &m_probes[found->second];
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
