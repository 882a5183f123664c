#include "component/ProbeFileFace.h"

#include "QuorProbeFile/ProbeNames.h"
#include "component/Errors.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <variant>

namespace QuorConversions::Component {

using QuorProbeFile::Folded;
using QuorProbeFile::ProbeEntry;
using QuorProbeFile::ProbeFile;
using QuorProbeFile::ProbeFileError;
using QuorProbeFile::ProbeProblem;
using QuorProbeFile::RecordConflict;
using QuorProbeFile::RecordImage;
using QuorProbeFile::ToText;

namespace {

constexpr std::int32_t changedMeanwhile = 75;

/// Asks what takes writing a conversion. An error that its settings object raises is one of its probe, as in
/// ProbeFile::Write.
template <class Body>
[[nodiscard]] bool Asked(const ProbeFile& file, std::wstring_view section, Body&& body) {
    try {
        return body();
    } catch (const QuorIniFile::QuorError& error) {
        throw ProbeFileError(file.Path(), std::wstring(section), error);
    }
}

/// The same conversion with the same values, without a platform. Raises what writing it would raise.
[[nodiscard]] std::shared_ptr<CQuorConversion> Copied(const ProbeFile& file, std::wstring_view section,
                                                      const CQuorConversion& conversion) {
    if (!Asked(file, section, [&] { return ProbeFile::IsConsistent(conversion); }))
        throw ProbeFileError(QuorProbeFile::PROBE_INCONSISTENT, file.Path(), std::wstring(section));
    auto copy = std::make_shared<CQuorConversion>();
    copy->SetConversionType(conversion.ConversionType());
    if (const auto settings = conversion.Settings())
        RecordImage::Apply(RecordImage::Of(*settings), *copy->Settings());
    return copy;
}

/// The other file that a step of a bracket reads. A step that kept it alive could be one of a ring.
[[nodiscard]] std::shared_ptr<ProbeFileFace> StillThere(const std::weak_ptr<ProbeFileFace>& file) {
    auto there = file.lock();
    if (!there)
        Throw(QUOR_ERROR_NO_OBJECT, L"A file that Release has to read was released before");
    return there;
}

[[nodiscard]] std::wstring OrNothing(const std::optional<QuorProbeFile::Value>& value) {
    return value ? ToText(*value) : std::wstring();
}

} // namespace

// ---- ProbeTableFace

void ProbeTableFace::Add(const QuorProbeFile::ReadOutcome& outcome, const CQuorConversion& conversion) {
    const std::wstring& section = outcome.probe.section;
    const std::wstring root = outcome.probe.standAlone ? section : QuorProbeFile::SettingsSection(section);
    bool isRefused = false; // and holds nothing but defaults
    std::unordered_set<std::wstring> defaults;
    for (const ProbeProblem& problem : outcome.problems) {
        isRefused =
            isRefused || problem.kind == PROBLEM_RECORD_REFUSED || problem.kind == PROBLEM_VALUE_REFUSED;
        defaults.insert(QuorProbeFile::PathOf(root, problem.section, problem.key));
    }
    std::wstring keys;
    if (const auto settings = conversion.Settings()) {
        const auto image = RecordImage::Of(*settings);
        for (const RecordImage::Entry& entry : image->Entries()) {
            std::visit(
                [&](const auto& value) {
                    if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(value)>>) {
                        keys.append(keys.empty() ? L"" : L"\t").append(entry.path);
                        m_values.push_back(isRefused || defaults.contains(entry.path)
                                               ? std::numeric_limits<double>::quiet_NaN()
                                               : static_cast<double>(value));
                    }
                },
                entry.value);
        }
    }
    Finish(section, conversion.ConversionType(),
           static_cast<std::int32_t>(outcome.problems.size() + outcome.messages.size()), std::move(keys));
}

void ProbeTableFace::AddUnreadable(std::wstring_view section) { Finish(section, CONV_NONE, -1, {}); }

void ProbeTableFace::Finish(std::wstring_view section, EQuorConversionType type, std::int32_t problems,
                            std::wstring keys) {
    m_sections.append(section).append(L"\n");
    m_types.push_back(type);
    m_problemCounts.push_back(problems);
    const auto [list, isNew] =
        m_keyListNumbers.try_emplace(std::move(keys), static_cast<std::int32_t>(m_keyListNumbers.size()));
    if (isNew)
        m_keyLists.append(list->first).append(L"\n");
    m_keyListOf.push_back(list->second);
    m_valueEnds.push_back(static_cast<std::int32_t>(m_values.size()));
}

// ---- ProbeFileFace: the rows

ProbeFileFace::ProbeFileFace(std::wstring_view path, bool mayBeNew)
    : m_file(path, mayBeNew ? ProbeFile::Opening::OrNew : ProbeFile::Opening::Existing),
      m_known(ProbeFile::Snapshot(m_file)) {}

template <class Body>
auto ProbeFileFace::Do(Body&& body) {
    m_errorCode = {};
    m_errorOther.clear();
    m_problems.clear();
    m_messages.clear();
    m_conflicts.clear();
    try {
        return std::forward<Body>(body)();
    } catch (const ProbeFileError& error) {
        m_errorCode = error.Code();
        m_errorOther = error.Other();
        m_problems = error.Problems();
        m_messages = error.Messages();
        throw;
    }
}

template <class Body>
void ProbeFileFace::DoAndKnow(Body&& body) {
    Do(std::forward<Body>(body));
    m_known = ProbeFile::Snapshot(m_file);
}

const ProbeEntry& ProbeFileFace::Probe(std::int32_t index) { return At(m_file.Probes(), index); }
const ProbeProblem& ProbeFileFace::Problem(std::int32_t index) const { return At(m_problems, index); }
const RecordConflict& ProbeFileFace::Conflict(std::int32_t index) const { return At(m_conflicts, index); }

std::int32_t ProbeFileFace::ProbeCount() { return static_cast<std::int32_t>(m_file.Probes().size()); }

std::int32_t ProbeFileFace::ProbeLine(std::int32_t index) {
    return static_cast<std::int32_t>(Probe(index).line);
}

EQuorConversionType ProbeFileFace::ProbeType(std::int32_t index) {
    return Probe(index).type.value_or(CONV_NONE);
}

std::wstring ProbeFileFace::ConversionName(std::int32_t index) {
    const ProbeEntry probe = Probe(index); // the file may look at its probes again
    return m_file.ConversionName(probe);
}

std::int32_t ProbeFileFace::FindProbe(std::wstring_view section) {
    const auto& probes = m_file.Probes();
    // ProbeFile::Find looks through the file; hosts that ask for each probe of a large one have no time for
    // that.
    if (const std::uint64_t text = m_file.Store()->TextNumber(); m_placesText != text) {
        m_places.clear();
        for (const ProbeEntry& probe : probes)
            m_places.emplace(Folded(probe.section), static_cast<std::int32_t>(m_places.size()));
        m_placesText = text;
    }
    const auto found = m_places.find(Folded(std::wstring(section)));
    return found == m_places.end() ? -1 : found->second;
}

std::int32_t ProbeFileFace::ProblemLine(std::int32_t index) const {
    return static_cast<std::int32_t>(Problem(index).line);
}

const std::wstring& ProbeFileFace::Messages(std::int32_t index) const { return At(m_messages, index); }

std::wstring ProbeFileFace::ConflictRead(std::int32_t index) const { return OrNothing(Conflict(index).read); }
std::wstring ProbeFileFace::ConflictTheirs(std::int32_t index) const {
    return OrNothing(Conflict(index).theirs);
}
std::wstring ProbeFileFace::ConflictOurs(std::int32_t index) const { return ToText(Conflict(index).ours); }

// ---- Reading

bool ProbeFileFace::Read(std::wstring_view section, const Conversion& conversion) {
    return Do([&] {
        QuorProbeFile::ReadOutcome outcome = m_file.Read(section, *conversion);
        Remember(conversion, outcome.record);
        if (m_depth > 0)
            m_readAnew.insert(conversion);
        const bool isWhole = outcome.IsWhole();
        m_problems = std::move(outcome.problems);
        m_messages = std::move(outcome.messages);
        return isWhole;
    });
}

std::shared_ptr<ProbeTableFace> ProbeFileFace::ReadAll() {
    return Do([&] {
        auto table = std::make_shared<ProbeTableFace>();
        CQuorConversion conversion;
        for (const ProbeEntry& probe : m_file.Probes()) {
            try {
                table->Add(m_file.Read(probe.section, conversion), conversion);
            } catch (const ProbeFileError&) { // its type cannot be read
                table->AddUnreadable(probe.section);
            }
        }
        return table;
    });
}

std::int32_t ProbeFileFace::Check() {
    return Do([&] {
        m_problems = m_file.Check();
        return ProblemCount();
    });
}

bool ProbeFileFace::Differs(std::wstring_view section, const Conversion& conversion) {
    return Do([&] {
        const auto known = m_records.find(conversion);
        const RecordAsRead& record = known == m_records.end() ? m_file.Record(section) : known->second;
        return Asked(m_file, section, [&] { return record.IsChanged(*conversion); });
    });
}

// ---- Writing

void ProbeFileFace::Remember(const std::weak_ptr<CQuorConversion>& conversion, RecordAsRead record) {
    m_records.insert_or_assign(conversion, std::move(record));
    if (m_records.size() < m_recordsToLookThrough)
        return;
    std::erase_if(m_records, [](const auto& known) { return known.first.expired(); });
    m_recordsToLookThrough = std::max(m_recordsToLookThrough, m_records.size() * 2);
}

void ProbeFileFace::Take(std::function<void()> step) {
    if (m_depth == 0)
        DoAndKnow(step);
    else
        Do([&] { m_steps.push_back({.other = std::move(step)}); });
}

void ProbeFileFace::Write(std::wstring_view section, const Conversion& conversion) {
    if (m_depth == 0) {
        DoAndKnow([&] {
            m_file.Write(section, *conversion);
            Remember(conversion, m_file.Record(section));
        });
    } else {
        Do([&] {
            m_steps.push_back({std::wstring(section), Copied(m_file, section, *conversion), conversion});
            m_readAnew.erase(conversion);
        });
    }
}

bool ProbeFileFace::MergeInto(std::wstring_view section, const CQuorConversion& conversion,
                              RecordAsRead& record) {
    auto conflicts = m_file.WriteChanges(section, conversion, record);
    const bool isWritten = conflicts.empty();
    m_conflicts = std::move(conflicts);
    return isWritten;
}

bool ProbeFileFace::WriteChanges(std::wstring_view section, const Conversion& conversion) {
    const auto isWritten = [&](const Step& step) { // in this bracket
        return step.written && !step.host.owner_before(conversion) && !conversion.owner_before(step.host);
    };
    return Do([&] {
        const auto known = m_records.find(conversion);
        if (known == m_records.end() && std::none_of(m_steps.begin(), m_steps.end(), isWritten))
            Throw(QUOR_ERROR_ARGUMENT, L"This object has neither read nor written the conversion");
        if (m_depth == 0) {
            const bool isDone = MergeInto(section, *conversion, known->second);
            if (isDone)
                m_known = ProbeFile::Snapshot(m_file);
            return isDone;
        }
        m_steps.push_back({std::wstring(section), Copied(m_file, section, *conversion), conversion,
                           known == m_records.end() ? RecordAsRead() : known->second});
        m_steps.back().isReadAnew = TakeReadAnew(conversion);
        return true;
    });
}

void ProbeFileFace::Rename(std::wstring section, std::wstring name) {
    Take([this, section = std::move(section), name = std::move(name)] { m_file.Rename(section, name); });
}

void ProbeFileFace::Remove(std::wstring section) {
    if (m_depth == 0)
        DoAndKnow([&] { m_file.Remove(section); });
    else
        Do([&] { m_steps.push_back({.section = std::move(section), .isRemoval = true}); });
}

void ProbeFileFace::Copy(std::wstring section, std::wstring toSection) {
    Take([this, section = std::move(section), to = std::move(toSection)] { m_file.Copy(section, to); });
}

void ProbeFileFace::CopyFrom(ProbeFileFace& source, std::wstring section, std::wstring toSection) {
    Take([this, from = source.weak_from_this(), section = std::move(section), to = std::move(toSection)] {
        m_file.CopyFrom(StillThere(from)->m_file, section, to);
    });
}

auto ProbeFileFace::Look(ProbeFile& file, std::wstring_view section) -> Present {
    try {
        return {file.Record(section)};
    } catch (const ProbeFileError& error) {
        return {{}, error.Code()};
    }
}

void ProbeFileFace::RequireUnchanged(std::wstring section, const Conversion& conversion) {
    const auto known = m_records.find(conversion);
    const bool isOfSection =
        known != m_records.end() && QuorProbeFile::EqualFolded(known->second.Section(), section);
    const Present before = isOfSection ? Present{known->second} : Look(*m_known, section);
    const auto require = [this, section = std::move(section), before] {
        m_file.Edit([&] {
            const Present now = Look(m_file, section);
            if (now.code == before.code && before.record.HasSameValues(now.record))
                return;
            m_conflicts = {{section, {}, {}, {}, {}}};
            throw QuorIniFile::QuorError(
                changedMeanwhile, L"QuorProbeFile",
                Path() + L": [" + section +
                    L"]: another program has changed, added or removed the probe meanwhile");
        });
    };
    Do([&] {
        if (m_depth == 0)
            require();
        else
            m_steps.push_back({.other = require});
    });
}

auto ProbeFileFace::TakeAll(const std::vector<Step>& steps) -> Records {
    Records records;
    std::vector<const Step*> written; // whole, since what was written is remembered
    // Before a section that was written gets another name, or another probe its name, or is written again.
    const auto remember = [&] {
        for (const Step* const step : std::exchange(written, {}))
            records.insert_or_assign(step->host, m_file.Record(step->section));
    };
    // Many of a kind in one call, which is faster, as long as each section is named once.
    const auto runOf = [&](auto step, const auto& isOfKind, const auto& take) {
        std::unordered_set<std::wstring> sections;
        for (; step != steps.end() && isOfKind(*step) && sections.insert(Folded(step->section)).second;
             ++step)
            take(*step);
        return step;
    };
    for (auto step = steps.begin(); step != steps.end();) {
        remember();
        if (step->other) {
            (step++)->other();
        } else if (step->record) {
            TakeChanges(*step++, records);
        } else if (step->isRemoval) {
            std::vector<std::wstring> removed;
            step = runOf(
                step, [](const Step& one) { return one.isRemoval; },
                [&](const Step& one) { removed.push_back(one.section); });
            m_file.Remove(removed);
        } else {
            std::vector<QuorProbeFile::ProbeToWrite> probes;
            step = runOf(
                step, [](const Step& one) { return one.written && !one.record; },
                [&](const Step& one) {
                    probes.push_back({one.section, *one.written});
                    written.push_back(&one);
                });
            m_file.Write(probes);
        }
    }
    remember();
    return records;
}

void ProbeFileFace::TakeChanges(const Step& step, Records& records) {
    if (step.isReadAnew) // perhaps from another probe: what was written from it before counts no more
        records.erase(step.host);
    RecordAsRead& record = records.try_emplace(step.host, *step.record).first->second;
    if (MergeInto(step.section, *step.written, record))
        return;
    const RecordConflict& first = m_conflicts.front();
    throw QuorIniFile::QuorError(changedMeanwhile, L"QuorProbeFile",
                                 Path() + L": [" + first.section + L"] " + first.key +
                                     L": another program has changed the value meanwhile");
}

void ProbeFileFace::Release() {
    if (m_depth == 0 || --m_depth > 0)
        return;
    const std::vector<Step> steps = std::exchange(m_steps, {});
    const auto readAnew = std::exchange(m_readAnew, {});
    DoAndKnow([&] {
        if (std::exchange(m_isAbandoned, false))
            Throw(changedMeanwhile, Path() + L": nothing is written: a bracket was abandoned");
        Records records;
        m_file.Edit([&] { records = TakeAll(steps); });
        for (auto& [host, record] : records)
            if (!host.expired() && !readAnew.contains(host)) // what was read last counts
                Remember(host, std::move(record));
    });
}

void ProbeFileFace::Abandon() {
    if (m_depth == 0)
        return;
    --m_depth;
    m_steps.clear();
    m_readAnew.clear();
    m_isAbandoned = m_depth > 0;
}

// ---- The file

void ProbeFileFace::SaveAs(std::wstring_view path) {
    Do([&] { m_file.SaveAs(path); });
}

bool ProbeFileFace::Changed() { return m_file.Changed(); }

void ProbeFileFace::Reload() {
    DoAndKnow([&] { m_file.Reload(); });
}

} // namespace QuorConversions::Component
