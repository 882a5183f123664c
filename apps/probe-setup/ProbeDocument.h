#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorIniFile/IniStore.h"
#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/RecordMerge.h"
#include "QuorRegistryII/Registry.h"
#include "apps/probe-setup/QuietPlatform.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace ProbeSetup {

/// A conversion type; nothing where a record says none that could be read.
using ProbeType = std::optional<QuorConversions::EQuorConversionType>;

/// Why a probe cannot have a name.
enum class NameProblem {
    None,
    Empty,
    CannotBeWritten,       ///< no section of a file can have it
    ProbeExists,           ///< names are the same in any case of ASCII letters
    SectionExists,         ///< the host's file has a section of its own with that name
    IsSettingsOfProbe,     ///< another probe keeps its settings in that section
    SettingsSectionExists, ///< this probe would keep its settings in a section that is there already
};

/// What the user has done to the list; each can be taken back.
enum class StepKind { Add, Duplicate, Import, Remove, Rename, ChangeType, Edit };

/// What could not be read of a probe.
struct ReadProblems {
    std::vector<std::wstring> keys;     ///< "[section] key" of each that is missing or cannot be read
    std::vector<std::wstring> messages; ///< what else the library said
    [[nodiscard]] bool IsEmpty() const { return keys.empty() && messages.empty(); }
    /// Keys and messages.
    [[nodiscard]] std::vector<std::wstring> Lines() const;
};

/// What the document cannot do, for a reason that it knows better than the library.
enum class Failure {
    NoSettingsFile,   ///< no probe stands in it, and it is no INI file; details: the line that shows it
    NoStandAloneFile, ///< the file's extension is that of no conversion type
    UnreadableRecord, ///< details: "[section] key" of what is missing or unreadable, or the library's
                      ///< messages
    UnknownType,      ///< details: the probe, and the code of its type
    ChangedByOthers,  ///< details: the probes that another program has changed or removed meanwhile, and that
                      ///< a save would write whole or remove; conflicts: the keys that it has changed, and
                      ///< that a save would give other values
    NameIsTaken,      ///< details: a new name that another program has used in the file meanwhile
    CannotWrite,      ///< details: the section, and the library's messages
    SharedSection,    ///< details: a section that would go or move, the probe that it would follow, and
                      ///< another one, which has or keeps its settings in it too
};
struct DocumentError {
    Failure failure;
    std::wstring file;
    std::vector<std::wstring> details;
    std::vector<QuorProbeFile::RecordConflict> conflicts = {};
};

/// What another program has written about the very probes or keys that are to be saved, and what is to give
/// way: the user has seen it, in the error of a save. Whatever else it has written meanwhile refuses the save
/// anew. What was removed of a changed probe comes back.
struct OthersChanges {
    std::vector<std::wstring> probes;
    std::vector<QuorProbeFile::RecordConflict> values;
};

/// The probes of a host's INI file, as they are to be: a list that is edited in memory and saved on request.
/// It shows nothing but the dialogs of the conversions, through the platform; it knows no toolkit.
///
/// A probe is read when somebody looks into it, and it is written only when it was changed: a new one, and
/// one of another type than in the file, as a whole, of any other one the keys that have got other values. A
/// save changes nothing else in the file, and what other programs have written since the file was read stays,
/// also about other keys of the same probe. No other program that takes the lock comes in between. Probes are
/// addressed by their place in the list, which has the order of the file, with new probes behind.
class ProbeDocument {
public:
    /// Told how much of the file has been taken in, from 0 to 1.
    using Progress = std::function<void(double)>;

    /// The conversions speak to the user through `platform` and keep the places of their dialogs in
    /// `registry`, which may be null. Its stores work on `files`, which must outlive the document. The
    /// document is empty and has no file.
    explicit ProbeDocument(std::shared_ptr<QuorConversions::Platform> platform,
                           std::shared_ptr<QuorRegistryII::Registry> registry = nullptr,
                           QuorIniFile::IniFileSystem& files = QuorIniFile::IniFileSystem::System());

    /// Takes the probes of a file in place of what was there. Raises QuorError, and leaves all as it was,
    /// when the file cannot be read, and DocumentError when it is no settings file.
    void Open(const std::wstring& path, const Progress& progress = {});
    /// Makes the document empty, without a file.
    void Close();

    /// The path of the file; empty for a document that was never saved.
    [[nodiscard]] const std::wstring& Path() const { return m_path; }
    /// Whether the file may not be written. Nothing can be changed then.
    [[nodiscard]] bool IsReadOnly() const { return m_isReadOnly; }

    /// The lines of headers without a ']' above what would be a probe when the file was opened: nobody can
    /// read it. It stays in the file.
    [[nodiscard]] std::vector<std::size_t> LostRecords() const;

    [[nodiscard]] std::size_t Count() const { return m_entries.size(); }
    [[nodiscard]] const std::wstring& Name(std::size_t probe) const { return m_entries[probe].name; }
    /// The type; nothing when the record says none that could be read.
    [[nodiscard]] ProbeType Type(std::size_t probe) const { return m_entries[probe].content.type; }
    /// The number of the conversion's name: equal names have equal numbers, from 0 on.
    [[nodiscard]] std::size_t ConversionNumber(std::size_t probe) const {
        return m_entries[probe].content.name;
    }
    /// The name of the conversion, from its settings where there are any; empty for a type that cannot be
    /// read.
    [[nodiscard]] const std::wstring& ConversionName(std::size_t number) const { return m_names[number]; }
    /// Whether a save would write the probe.
    [[nodiscard]] bool IsChanged(std::size_t probe) const;
    /// The place of the probe with that name, in any case of ASCII letters.
    [[nodiscard]] std::optional<std::size_t> Find(std::wstring_view name) const;

    /// Whether a new probe can have `name`, or the one in the place `except`.
    [[nodiscard]] NameProblem CheckName(std::wstring_view name, std::optional<std::size_t> except = {}) const;
    /// A name that a new probe can have: `wish`, or `wish` with a number behind it, without what no section
    /// of a probe's own can have in its name.
    [[nodiscard]] std::wstring FreeName(const std::wstring& wish) const;

    // What changes the list. A name must have no problem; the document must not be read-only.

    /// Adds a probe with the type's default values; its place.
    std::size_t Add(const std::wstring& name, QuorConversions::EQuorConversionType type);
    /// Adds a probe with the values of another one, under a free name; its place. Raises DocumentError when
    /// the record of that one cannot be read wholly, or its type is unknown.
    std::size_t Duplicate(std::size_t probe);
    /// Adds the probe of a stand-alone settings file, under a free name made of the file's; its place. Raises
    /// DocumentError when the file is none or cannot be read wholly.
    std::size_t Import(const std::wstring& path);
    /// Keeps the name when it is the same to the letter.
    void Rename(std::size_t probe, const std::wstring& name);
    /// Gives a probe another type, with default values. The type that it has changes nothing.
    void SetType(std::size_t probe, QuorConversions::EQuorConversionType type);
    /// Removes probes; their places in ascending order.
    void Remove(const std::vector<std::size_t>& probes);

    /// Opens the dialog of the probe's settings on a copy of them, which takes their place when the user
    /// accepts and any value of the record is another one; True then. A read-only document shows it
    /// read-only. What cannot be read of the record shows with the default values.
    bool Edit(std::size_t probe);
    /// Whether the probe has settings to edit.
    [[nodiscard]] bool HasSettings(std::size_t probe);
    /// What cannot be read of the probe's record. Nothing for a probe whose dialog was accepted with changes:
    /// its values are those of the dialog.
    [[nodiscard]] const ReadProblems& CheckRecord(std::size_t probe);
    /// The conversion of a probe, for looking at it.
    [[nodiscard]] const QuorConversions::CQuorConversion& Conversion(std::size_t probe);
    /// Asks for a file, in a dialog owned by the window `hwnd`, and writes the probe as a stand-alone
    /// settings file; its path, or nothing when the user cancelled. Raises DocumentError when the record
    /// cannot be read wholly, or the file cannot be written. The probe must have settings.
    std::optional<std::wstring> Export(std::size_t probe, std::int32_t hwnd);

    /// The last thing that was done, and the last that was taken back; nothing where there is none. A save
    /// ends the history.
    [[nodiscard]] std::optional<StepKind> UndoKind() const;
    [[nodiscard]] std::optional<StepKind> RedoKind() const;
    /// Each returns the places of the probes that it concerns, or where probes have gone, in ascending order.
    /// There must be a step.
    std::vector<std::size_t> Undo();
    std::vector<std::size_t> Redo();

    /// Whether a save would write anything.
    [[nodiscard]] bool Changed() const;
    /// Saves into the file, all or nothing. Raises QuorError or DocumentError, and the document stays as it
    /// was, when the file cannot be written, when a section would go that belongs to another probe too, when
    /// another program has used one of the new names in it, and when it has changed a probe that is to be
    /// written whole or removed, or a key that is to be written. What another program has added or changed is
    /// in the list afterwards. The document must have a file.
    void Save(const OthersChanges& replaced = {});
    /// Saves the document, with all of the file around the probes, under another name, in place of what is
    /// there; without its surroundings, when its own file is gone. The document stays with its own file, if
    /// it has one, and takes the new one otherwise; a file of its own that was gone is its own again. Raises
    /// what Save raises, and DocumentError when the file is gone and a probe, whose text is lost with it, was
    /// not read wholly or is of an unknown type.
    void SaveCopyAs(const std::wstring& path, const OthersChanges& replaced = {});

    /// Whether `path` is a stand-alone settings file: by its extension, and because no host keeps probes in
    /// it. Raises QuorError when it cannot be read.
    [[nodiscard]] static bool IsStandAlone(const std::wstring& path);

private:
    /// What is stored of a probe.
    struct Content {
        std::shared_ptr<QuorConversions::CQuorConversion> conversion; // null until somebody looks into it
        ProbeType type;
        ReadProblems problems;       // of the record that the conversion was read from
        std::uint32_t name = 0;      // in m_names
        bool replacesRecord = false; // the settings in the file are those of another conversion
        [[nodiscard]] bool IsChanged() const {
            return replacesRecord || (conversion && conversion->Changed());
        }
    };
    struct Entry {
        std::wstring name;
        std::optional<std::wstring> nameInFile; // where it is another one
        bool isNew = false;                     // it has no record in the file
        Content content;
        [[nodiscard]] const std::wstring& Section() const { return nameInFile ? *nameInFile : name; }
        [[nodiscard]] bool IsRenamed() const { return !isNew && nameInFile; }
        void SetName(std::wstring newName);
    };
    /// Something that was done. It holds what is not in the list at the moment, so that doing it and taking
    /// it back are the same: both change places.
    struct Step {
        StepKind kind;
        std::vector<std::size_t> places;
        std::vector<Entry> entries; // those that are not in the list, for steps that add or remove
        std::wstring name;          // for a step that renames
        Content content;            // for a step that changes the content
    };

    [[nodiscard]] std::shared_ptr<QuorConversions::CQuorConversion> NewConversion() const;
    [[nodiscard]] std::shared_ptr<QuorConversions::CQuorConversion>
    CopyOf(const QuorConversions::CQuorConversion& conversion) const;
    [[nodiscard]] Content ContentOf(std::shared_ptr<QuorConversions::CQuorConversion> conversion);
    [[nodiscard]] std::uint32_t NumberOf(const std::wstring& name);
    [[nodiscard]] std::wstring NameOf(const QuorConversions::CQuorConversion& conversion) const;
    const ReadProblems& Load(Entry& entry);
    /// Raises DocumentError unless all of the probe is in its conversion, so that it can be written
    /// elsewhere.
    void RequireWhole(Entry& entry);

    std::size_t Append(StepKind kind, std::wstring name, Content content);
    void Do(Step step);
    void Toggle(Step& step);

    /// Writes all probes into an empty file.
    void WriteAll(const QuorProbeFile::ProbeFile& file);
    /// Joins what was done with what others have written into `file`, and writes it there, within an edit or
    /// in memory; nothing of the document changes, for the edit may begin anew. Returns whether others have
    /// written.
    [[nodiscard]] bool WriteChanges(const QuorProbeFile::ProbeFile& file, const OthersChanges& replaced);
    /// Removes and renames sections before anything is written into them. Raises DocumentError when one would
    /// go or move with one of its probes, and is needed by another.
    void MoveSections(QuorIniFile::IniStore& store) const;
    /// Whether a save writes of the probe only the keys that have other values than in m_file.
    [[nodiscard]] static bool IsMerged(const Entry& entry) {
        return !entry.isNew && !entry.content.replacesRecord && entry.content.IsChanged();
    }
    /// The changes of a probe that is merged, now that it stands in `section` of `file`. Raises
    /// DocumentError when the library refuses the record.
    [[nodiscard]] std::shared_ptr<QuorProbeFile::RecordMerge>
    MergeOf(const Entry& entry, const QuorProbeFile::ProbeFile& file, const std::wstring& section) const;
    /// Conflicts give way: the user has agreed to that, or there were none.
    void WriteMerged(const QuorProbeFile::ProbeFile& file, const Entry& entry) const;
    void Write(const std::shared_ptr<QuorIniFile::INIFile>& iniFile, const Entry& entry,
               const std::wstring& section) const;
    /// Raises DocumentError when what was done cannot be joined with what others have written into `theirs`.
    /// Returns the changed probes that are gone there.
    [[nodiscard]] std::unordered_set<const Entry*> CheckForConflicts(const QuorProbeFile::ProbeFile& theirs,
                                                                     const OthersChanges& replaced);
    /// Raises DocumentError when a probe would get a name that is `taken` in the file, and was not by ours.
    void RequireFreeNames(const std::unordered_set<std::wstring>& taken) const;
    /// Gives new probes their names in the letters that the user has typed: a section that is written in the
    /// place of one that was removed has the letters of that one.
    void SpellNewNames(QuorIniFile::IniStore& store) const;
    [[nodiscard]] bool IsSameRecord(const QuorProbeFile::ProbeFile& theirs,
                                    const std::wstring& section) const;
    [[nodiscard]] std::vector<const Entry*> RemovedEntries() const;
    void Settle();

    std::shared_ptr<QuietPlatform> m_platform;
    std::shared_ptr<QuorRegistryII::Registry> m_registry;
    QuorIniFile::IniFileSystem& m_files;
    std::wstring m_path;
    bool m_isReadOnly = false;
    std::unique_ptr<QuorProbeFile::ProbeFile> m_file; // as it was last read or saved; never written to
    std::vector<Entry> m_entries;
    std::vector<std::wstring> m_foreign; // the names of the file's other sections
    std::vector<std::wstring> m_names;   // of conversions
    std::vector<Step> m_done;
    std::vector<Step> m_undone;
};

} // namespace ProbeSetup
