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

/// A key that another program has changed in the file since the record was read, and that we are to change to
/// another value; or have changed the meaning of, or that changes the meaning of what we have changed. A
/// value that is missing was not there, or is gone; text stands for one that cannot be read as a value of its
/// kind.
struct RecordConflict {
    std::wstring section;
    std::wstring key;
    std::optional<Value> read;
    std::optional<Value> theirs;
    Value ours;

    /// Whether the same stands against the same. (A NaN counts as another one: the user is asked again.)
    friend bool operator==(const RecordConflict&, const RecordConflict&) = default;
};

/// The changes of a record since it was read, to be merged into the file as it is now, which other programs
/// may have changed as well.
///
/// A settings object or facade is written to it as to a file. That takes the changes down: the keys whose
/// value is another one than that which was read. Nothing is written before the host has looked at the
/// conflicts and says so; all of it is done inside one edit of the store, so that the file stays as it is
/// meanwhile. Reads read what the file holds now.
///
/// "Version" is no value of the record: it never makes a conflict, and is written along with a change, where
/// it was missing or another one and nobody has changed it.
class QUORPROBEFILE_EXPORT RecordMerge final : public QuorIniFile::INIFile {
public:
    /// The record was read from `before`, which still gives what it gave then, and stood there in the section
    /// `sectionBefore`; now it stands in `section` of `file`. Both may be the same object.
    ///
    /// `asRead` gives, in the sections of `before`, the values that an object holds that has read the record
    /// from there: defaults for the keys that are missing or cannot be read. A value that is still the same
    /// is no change. Null: such keys are written.
    RecordMerge(std::shared_ptr<QuorIniFile::INIFile> before, std::wstring sectionBefore,
                std::shared_ptr<QuorIniFile::INIFile> file, std::wstring section,
                std::shared_ptr<QuorIniFile::INIFile> asRead = nullptr);

    /// The changes that cannot be merged. Another conversion type than was read makes every change one. So
    /// does a key that says what others beside it mean (a count, a scale, a range, "UsePolynomial", "TCType")
    /// for those: of them one side may not have changed one and the other side the other.
    [[nodiscard]] std::vector<RecordConflict> Conflicts() const;
    /// Whether the record has lost its conversion type, or has another one than was read. Its keys are not
    /// those that we know, then.
    [[nodiscard]] bool HasAnotherType() const;

    /// Writes the changes; where there are none, nothing.
    void WriteChanges();
    /// Writes the changes, and again what others have removed of the record, and what conflicts.
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
