#include "QuorProbeFile/RecordMerge.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorProbeFile/ProbeNames.h"

#include <utility>

namespace QuorProbeFile {

using QuorConversions::conversionTypeKey;
using QuorConversions::versionKey;
using QuorIniFile::INIFile;

namespace {

/// The value of a key of the selected section, of the kind of `kind`, or its text when it is none of that
/// kind; nothing when there is no such key.
std::optional<Value> Look(INIFile& file, const std::wstring& key, const Value& kind) {
    struct Visitor {
        INIFile& file;
        const std::wstring& key;
        bool operator()(std::wstring& value) const { return file.ReadString(key, value); }
        bool operator()(std::int16_t& value) const { return file.ReadInteger(key, value); }
        bool operator()(double& value) const { return file.ReadDouble(key, value); }
        bool operator()(bool& value) const { return file.ReadBoolean(key, value); }
    };
    Value value = kind;
    if (std::visit(Visitor{file, key}, value))
        return value;
    std::wstring text;
    if (file.ReadString(key, text))
        return text;
    return std::nullopt;
}

bool Same(const std::optional<Value>& a, const std::optional<Value>& b) {
    return a && b ? SameValue(*a, *b) : a.has_value() == b.has_value();
}

} // namespace

RecordMerge::RecordMerge(std::shared_ptr<INIFile> before, std::wstring sectionBefore,
                         std::shared_ptr<INIFile> file, std::wstring section)
    : m_before(std::move(before)),
      m_sectionBefore(std::move(sectionBefore)),
      m_file(std::move(file)),
      m_recordSection(std::move(section)) {}

void RecordMerge::SetSection(std::wstring_view section) {
    m_section = section;
    m_file->SetSection(section);
}

void RecordMerge::Take(std::wstring_view key, Value ours) {
    Change change{m_section, std::wstring(key), std::move(ours)};
    // Both sections are selected each time: the two may be one object. The names of nested sections begin
    // with that of the record, which it may have got since.
    m_before->SetSection(m_sectionBefore + m_section.substr(m_recordSection.size()));
    const std::optional<Value> read = Look(*m_before, change.key, change.value);
    m_file->SetSection(m_section);
    const std::optional<Value> theirs = Look(*m_file, change.key, change.value);
    const bool theyChanged = !Same(read, theirs);
    const bool weChanged = !Same(read, change.value);
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

std::vector<RecordConflict> RecordMerge::Conflicts() const {
    std::vector<RecordConflict> conflicts = m_conflicts;
    if (m_typeConflict && !m_changes.empty())
        conflicts.insert(conflicts.begin(), *m_typeConflict);
    return conflicts;
}

void RecordMerge::WriteChanges() {
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
