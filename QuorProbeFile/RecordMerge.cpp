#include "QuorProbeFile/RecordMerge.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/detail/KeptValues.h"

#include <utility>

namespace QuorProbeFile {

using QuorConversions::conversionTypeKey;
using QuorConversions::versionKey;
using QuorIniFile::INIFile;

namespace {

bool Same(const std::optional<Value>& a, const std::optional<Value>& b) {
    return a && b ? SameValue(*a, *b) : a.has_value() == b.has_value();
}

} // namespace

RecordMerge::RecordMerge(std::shared_ptr<INIFile> before, std::wstring sectionBefore,
                         std::shared_ptr<INIFile> file, std::wstring section, std::shared_ptr<INIFile> asRead)
    : m_before(std::move(before)),
      m_sectionBefore(std::move(sectionBefore)),
      m_file(std::move(file)),
      m_recordSection(std::move(section)),
      m_asRead(std::move(asRead)) {}

void RecordMerge::SetSection(std::wstring_view section) {
    m_section = section;
    m_file->SetSection(section);
}

void RecordMerge::Take(std::wstring_view key, Value ours) {
    Change change{m_section, std::wstring(key), std::move(ours)};
    // Both sections are selected each time: the two may be one object. The names of nested sections begin
    // with that of the record, which it may have got since.
    const std::wstring sectionBefore = m_sectionBefore + m_section.substr(m_recordSection.size());
    m_before->SetSection(sectionBefore);
    const std::optional<Value> read = ReadValue(*m_before, change.key, change.value);
    m_file->SetSection(m_section);
    const std::optional<Value> theirs = ReadValue(*m_file, change.key, change.value);
    const bool theyChanged = !Same(read, theirs);
    if (m_asRead)
        m_asRead->SetSection(sectionBefore);
    const bool weChanged = !Same(read, change.value) && !IsAsRead(change.key, change.value);
    if (theyChanged && key != versionKey) {
        RecordConflict conflict{change.section, change.key, read, theirs, change.value};
        if (key == conversionTypeKey) // of which the facade has the only one
            m_typeConflict = std::move(conflict);
        else if (weChanged && !Same(theirs, change.value))
            m_conflicts.push_back(std::move(conflict));
    }
    if (!weChanged) {
        if (!theirs)
            m_removed.push_back(std::move(change));
    } else if (key != versionKey) {
        m_changes.push_back(std::move(change));
    } else if (!theyChanged) {
        m_versions.push_back(std::move(change));
    }
}

/// Whether a key of the section that is selected in m_asRead has the value that a read has given it.
bool RecordMerge::IsAsRead(const std::wstring& key, const Value& ours) const {
    return m_asRead && key != versionKey && Same(ReadValue(*m_asRead, key, ours), ours);
}

std::vector<RecordConflict> RecordMerge::Conflicts() const {
    std::vector<RecordConflict> conflicts = m_conflicts;
    if (m_typeConflict && !m_changes.empty())
        conflicts.insert(conflicts.begin(), *m_typeConflict);
    return conflicts;
}

void RecordMerge::WriteChanges() {
    if (!m_changes.empty())
        Write(m_versions);
    Write(m_changes);
}

void RecordMerge::WriteChangesAndRemoved() {
    Write(m_removed);
    WriteChanges();
}

void RecordMerge::Write(const std::vector<Change>& changes) {
    struct Visitor {
        INIFile& file;
        const std::wstring& key;
        void operator()(const std::wstring& value) const { file.WriteString(key, value); }
        void operator()(std::int16_t value) const { file.WriteInteger(key, value, L""); }
        void operator()(double value) const { file.WriteDouble(key, value, L""); }
        void operator()(bool value) const { file.WriteBoolean(key, value); }
    };
    for (const Change& change : changes) {
        m_file->SetSection(change.section);
        std::visit(Visitor{*m_file, change.key}, change.value);
    }
}

} // namespace QuorProbeFile
