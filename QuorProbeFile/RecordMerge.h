#pragma once

#include "QuorIniFile/INIFile.h"
#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/RecordValue.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace QuorProbeFile {

/// A key that both sides have changed since the record was read, to different values; or that one side has
/// changed while the other has changed its meaning. Text represents a value that cannot be read as its type.
struct RecordConflict {
    std::wstring section;        ///< the section in the file
    std::wstring key;            ///< the key
    std::optional<Value> read;   ///< what was read; nothing if the key was missing
    std::optional<Value> theirs; ///< what the file has now; nothing if the key is gone
    Value ours;                  ///< what should be written

    /// Whether all fields are equal. (NaN differs from NaN: the user is asked again.)
    friend bool operator==(const RecordConflict&, const RecordConflict&) = default;
};

/// The changes of a record since it was read, to be merged into the current file, which other programs may
/// have changed too.
///
/// A settings object or a conversion is written to it as to a file, which records the changes: the keys whose
/// values differ from those that were read. The host then examines the conflicts and calls WriteChanges,
/// inside the same edit of the store, so that the file cannot change in between. Reads read the current file.
///
/// It is public for hosts that write many probes in one edit and show all conflicts first, or let the user
/// decide which values are overwritten, as Probe Setup does. ProbeFile::WriteChanges does the same for one
/// probe.
///
/// "Version" is not a value of the record: it never causes a conflict, and is written together with a change
/// if it was missing or different and nobody has changed it.
class QUORPROBEFILE_EXPORT RecordMerge final : public QuorIniFile::INIFile {
public:
    /// The record was read from the section `sectionBefore` of `before`, which still has what it had then;
    /// now it is in the section `section` of `file`. Both may be the same object.
    ///
    /// `asRead` has, in the sections of `before`, the values of an object that has read the record from
    /// there, including the defaults of keys that are missing or cannot be read. A value that is still the
    /// same is not a change. If it is null, such keys are written.
    RecordMerge(std::shared_ptr<QuorIniFile::INIFile> before, std::wstring sectionBefore,
                std::shared_ptr<QuorIniFile::INIFile> file, std::wstring section,
                std::shared_ptr<QuorIniFile::INIFile> asRead = nullptr);

    /// The changes that cannot be merged. If the conversion type differs from the one that was read, every
    /// change is one. The same holds for keys that determine the meaning of others (a count, a scale, a
    /// range, "UsePolynomial", "TCType"): one side must not change such a key and the other side those
    /// others.
    [[nodiscard]] std::vector<RecordConflict> Conflicts() const;
    /// Whether the record has lost its conversion type or has another one than was read. Its keys are then
    /// different ones.
    [[nodiscard]] bool HasAnotherType() const;

    /// Writes the changes, if there are any. Raises what the file raises.
    void WriteChanges();
    /// Writes the changes, including conflicting ones, and what others have removed from the record.
    void WriteChangesAndRemoved();

    void SetFileName(std::wstring_view /*fileName*/) override {}
    void SetSection(std::wstring_view section) override;
    bool ReadBoolean(std::wstring_view key, bool& value) override { return m_file->ReadBoolean(key, value); }
    bool ReadDouble(std::wstring_view key, double& value) override { return m_file->ReadDouble(key, value); }
    bool ReadInteger(std::wstring_view key, std::int16_t& value) override {
        return m_file->ReadInteger(key, value);
    }
    bool ReadString(std::wstring_view key, std::wstring& value) override {
        return m_file->ReadString(key, value);
    }
    void WriteBoolean(std::wstring_view key, bool value) override { Take(key, value); }
    void WriteDouble(std::wstring_view key, double value, std::wstring_view /*comment*/) override {
        Take(key, value);
    }
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view /*comment*/) override {
        Take(key, value);
    }
    void WriteString(std::wstring_view key, std::wstring_view value) override {
        Take(key, std::wstring(value));
    }

private:
    /// A key of the record, as it was read, as it stands in the file now, and as it is to be.
    struct Key {
        std::wstring section;
        std::wstring name;
        std::optional<Value> read;
        std::optional<Value> theirs;
        Value ours;
        bool givesMeaning; // to other keys
        bool isAsRead;     // ours is what a read has made of a key that is missing or cannot be read

        [[nodiscard]] bool TheyChanged() const;
        [[nodiscard]] bool WeChanged() const;
        [[nodiscard]] bool Differs() const; // theirs from ours
    };
    [[nodiscard]] Key Look(std::wstring_view name, Value ours);
    void Take(std::wstring_view name, Value ours);
    [[nodiscard]] bool Decides(const Key& deciding, const Key& key) const;
    [[nodiscard]] bool IsConflict(const Key& key) const;
    [[nodiscard]] bool HasChanges() const;
    template <class IsToBeWritten>
    void Write(const IsToBeWritten& isToBeWritten);

    std::shared_ptr<QuorIniFile::INIFile> m_before;
    std::wstring m_sectionBefore;
    std::shared_ptr<QuorIniFile::INIFile> m_file;
    std::wstring m_recordSection;
    std::shared_ptr<QuorIniFile::INIFile> m_asRead;
    std::wstring m_section;
    std::vector<Key> m_keys;
};

} // namespace QuorProbeFile
