#include "QuorProbeFile/RecordMerge.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/detail/KeptValues.h"
#include "QuorProbeFile/detail/RecordMeaning.h"
#include "QuorProbeFile/detail/WriteValue.h"

#include <algorithm>
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

bool RecordMerge::Key::TheyChanged() const { return !Same(read, theirs); }
bool RecordMerge::Key::WeChanged() const { return !isAsRead && !Same(read, ours); }
bool RecordMerge::Key::Differs() const { return !Same(theirs, ours); }

/// What the key has in both files, selected in each. They may be one object.
RecordMerge::Key RecordMerge::Look(std::wstring_view name, Value ours) {
    Key key{m_section,       std::wstring(name), std::nullopt, std::nullopt,
            std::move(ours), GivesMeaning(name), false};
    // The names of nested sections begin with that of the record, which it may have got since.
    const std::wstring sectionBefore = m_sectionBefore + m_section.substr(m_recordSection.size());
    m_before->SetSection(sectionBefore);
    key.read = ReadValue(*m_before, key.name, key.ours);
    m_file->SetSection(m_section);
    key.theirs = ReadValue(*m_file, key.name, key.ours);
    if (m_asRead && name != versionKey) {
        m_asRead->SetSection(sectionBefore);
        key.isAsRead = Same(ReadValue(*m_asRead, key.name, key.ours), key.ours);
    }
    return key;
}

void RecordMerge::Take(std::wstring_view name, Value ours) {
    const Key& key = m_keys.emplace_back(Look(name, std::move(ours)));
    // What a smaller count leaves in the file may have been changed by others, who still count it.
    for (const std::wstring& beyond : KeysBeyond(name, key.ours, key.read)) {
        Key left = Look(beyond, 0.0);
        if (!left.read)
            continue;
        left.ours = *left.read;
        m_keys.push_back(std::move(left));
    }
}

/// Whether `deciding` has other values in the file and in ours, and gives `key` other meanings by that.
bool RecordMerge::Decides(const Key& deciding, const Key& key) const {
    return deciding.givesMeaning && deciding.section == key.section && deciding.Differs() &&
           HasOtherMeaning(key.name, deciding.name, deciding.theirs, deciding.ours);
}

bool RecordMerge::IsConflict(const Key& key) const {
    if (key.name == versionKey || !key.TheyChanged())
        return false;
    if (key.name == conversionTypeKey) // of which the facade has the only one
        return HasChanges();
    if (key.WeChanged())
        return key.Differs();
    // Nor may their value stand beside one of ours that gives it another meaning, or gets one from it.
    return !HasAnotherType() && std::any_of(m_keys.begin(), m_keys.end(), [&](const Key& other) {
        if (key.givesMeaning)
            return other.WeChanged() && other.Differs() && Decides(key, other);
        return Decides(other, key) && (other.WeChanged() || IsConflict(other));
    });
}

bool RecordMerge::HasAnotherType() const {
    return std::any_of(m_keys.begin(), m_keys.end(),
                       [](const Key& key) { return key.name == conversionTypeKey && key.TheyChanged(); });
}

bool RecordMerge::HasChanges() const {
    return std::any_of(m_keys.begin(), m_keys.end(),
                       [](const Key& key) { return key.name != versionKey && key.WeChanged(); });
}

std::vector<RecordConflict> RecordMerge::Conflicts() const {
    std::vector<RecordConflict> conflicts;
    for (const Key& key : m_keys) {
        if (IsConflict(key))
            conflicts.push_back({key.section, key.name, key.read, key.theirs, key.ours});
    }
    return conflicts;
}

template <class IsToBeWritten>
void RecordMerge::Write(const IsToBeWritten& isToBeWritten) {
    for (const Key& key : m_keys) {
        if (!isToBeWritten(key))
            continue;
        m_file->SetSection(key.section);
        WriteValue(*m_file, key.name, key.ours);
    }
}

void RecordMerge::WriteChanges() {
    if (!HasChanges())
        return;
    Write([](const Key& key) { return key.name == versionKey && key.WeChanged() && !key.TheyChanged(); });
    Write([](const Key& key) { return key.name != versionKey && key.WeChanged(); });
}

void RecordMerge::WriteChangesAndRemoved() {
    Write([this](const Key& key) {
        return !key.WeChanged() && key.TheyChanged() && (!key.theirs || IsConflict(key));
    });
    WriteChanges();
}

} // namespace QuorProbeFile
