#include "QuorProbeFile/SectionPlan.h"

#include "QuorIniFile/IniStore.h"
#include "QuorProbeFile/ProbeNames.h"

#include <algorithm>
#include <string_view>

namespace QuorProbeFile {
namespace {

bool IsRenamed(const ProbeMove& probe) { return !probe.isRemoved && probe.name != probe.section; }

bool Moves(const ProbeMove& probe) { return probe.isRemoved || IsRenamed(probe); }

/// Whether a section is a nested one of a stand-alone record: "ITS-90 - High Range".
bool IsNestedIn(std::wstring_view section, std::wstring_view record) {
    return section.size() > record.size() && EqualFolded(section.substr(0, record.size()), record) &&
           section.substr(record.size()).starts_with(nestedMark);
}

/// A probe to which a section belongs, with its name in that of the section.
struct Owner {
    std::size_t probe;
    std::size_t nameLength;
};

class Planner {
public:
    explicit Planner(const std::vector<ProbeMove>& probes) : m_probes(probes) {
        for (std::size_t i = 0; i < probes.size(); ++i) {
            m_byName.emplace(probes[i].section, i);
            if (probes[i].standAlone)
                m_standAlone = i;
        }
    }

    /// False when the section is shared.
    [[nodiscard]] bool Add(const std::wstring& section) {
        m_owners.clear();
        FindOwner(section, section);
        for (const std::wstring_view name : PossibleOwners(section))
            FindOwner(section, name);
        if (m_standAlone && IsNestedIn(section, m_probes[*m_standAlone].section))
            m_owners.push_back({*m_standAlone, m_probes[*m_standAlone].section.size()});
        if (const auto shared = Disagreement(section)) {
            m_shared = shared;
            return false;
        }
        for (const Owner& owner : m_owners)
            Follow(owner, section);
        return true;
    }

    SectionPlan plan;
    [[nodiscard]] const std::optional<SharedSection>& Shared() const { return m_shared; }

private:
    void FindOwner(std::wstring_view section, std::wstring_view name) {
        const auto found = m_byName.find(name);
        if (found != m_byName.end() && (section == name || m_probes[found->second].hasSettings))
            m_owners.push_back({found->second, name.size()});
    }

    [[nodiscard]] std::optional<SharedSection> Disagreement(const std::wstring& section) const {
        for (const Owner& owner : m_owners) {
            const ProbeMove& moving = m_probes[owner.probe];
            const bool isOfSettings = section.size() > owner.nameLength;
            if (!Moves(moving) && !(isOfSettings && moving.changesType))
                continue;
            for (const Owner& other : m_owners) {
                if (other.probe != owner.probe && !m_probes[other.probe].isRemoved)
                    return SharedSection{section, owner.probe, other.probe};
            }
        }
        return std::nullopt;
    }

    void Follow(const Owner& owner, const std::wstring& section) {
        const ProbeMove& probe = m_probes[owner.probe];
        if (probe.isRemoved) {
            if (plan.removed.empty() || plan.removed.back() != section) // it may have gone with another one
                plan.removed.push_back(section);
            return;
        }
        const std::wstring name = probe.name + section.substr(owner.nameLength);
        if (IsRenamed(probe))
            plan.renamed.emplace_back(section, name);
        if (probe.changesType && section.size() > owner.nameLength)
            plan.outdated.push_back(name);
    }

    const std::vector<ProbeMove>& m_probes;
    NameMap<std::size_t> m_byName;
    std::optional<std::size_t> m_standAlone; // the only probe whose own section holds its settings
    std::vector<Owner> m_owners;             // of one section
    std::optional<SharedSection> m_shared;
};

/// Names that no section of a file has.
class FreeNames {
public:
    explicit FreeNames(QuorIniFile::IniStore& store) : m_store(store) {}

    [[nodiscard]] std::wstring Next() {
        if (m_taken.empty()) {
            for (std::wstring& section : m_store.Sections())
                m_taken.insert(std::move(section));
        }
        std::wstring name;
        do
            name = L"being renamed " + std::to_wstring(++m_number);
        while (m_taken.contains(name));
        return name;
    }

private:
    QuorIniFile::IniStore& m_store;
    NameSet m_taken;
    std::size_t m_number = 0;
};

} // namespace

SectionPlan PlanSections(const std::vector<std::wstring>& sections, const std::vector<ProbeMove>& probes,
                         std::optional<SharedSection>& shared) {
    shared.reset();
    if (std::none_of(probes.begin(), probes.end(),
                     [](const ProbeMove& probe) { return Moves(probe) || probe.changesType; }))
        return {};
    Planner planner(probes);
    for (const std::wstring& section : sections) {
        if (!planner.Add(section)) {
            shared = planner.Shared();
            return {};
        }
    }
    return std::move(planner.plan);
}

void ApplyPlan(QuorIniFile::IniStore& store, const SectionPlan& plan) {
    for (const std::wstring& section : plan.removed)
        store.RemoveSection(section);
    // Probes may change names among each other: a name that another one waits for is given up first.
    NameSet wanted;
    for (const auto& [from, to] : plan.renamed) {
        if (!EqualFolded(from, to))
            wanted.insert(to);
    }
    std::vector<std::pair<std::wstring, std::wstring>> renamed = plan.renamed;
    FreeNames names(store);
    for (auto& [from, to] : renamed) {
        if (!wanted.contains(from))
            continue;
        const std::wstring between = names.Next();
        store.RenameSection(from, between);
        from = between;
    }
    for (const auto& [from, to] : renamed)
        store.RenameSection(from, to);
    for (const std::wstring& section : plan.outdated)
        store.RemoveSection(section);
}

} // namespace QuorProbeFile
