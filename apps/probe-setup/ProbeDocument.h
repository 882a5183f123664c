#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorProbeFile/ProbeFile.h"
#include "QuorRegistryII/Registry.h"
#include "apps/probe-setup/DocumentError.h"
#include "apps/probe-setup/ListedProbe.h"
#include "apps/probe-setup/ProbeFinding.h"
#include "apps/probe-setup/QuietPlatform.h"
#include "apps/probe-setup/TypeChoice.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ProbeSetup {

/// Why a probe cannot have a name.
enum class NameProblem {
    None,
    Empty,
    CannotBeWritten,       ///< no section of a file can have it
    CannotBeSpelled,       ///< the file is in Latin-1, which lacks characters of it
    ProbeExists,           ///< names are the same in any case of ASCII letters
    SectionExists,         ///< the host's file has a section of its own with that name
    IsSettingsOfProbe,     ///< another probe keeps its settings in that section
    SettingsSectionExists, ///< this probe would keep its settings in a section that is there already
};

/// What the user has done to the list; each can be taken back.
enum class StepKind { Add, Duplicate, Import, Remove, Rename, ChangeType, Edit, Paste };

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
    /// `registry`, which may be null. The files are those of this computer, or those of a test, which must
    /// outlive the document. The document is empty and has no file.
    explicit ProbeDocument(std::shared_ptr<QuorConversions::Platform> platform,
                           std::shared_ptr<QuorRegistryII::Registry> registry = nullptr,
                           QuorIniFile::IniFileSystem* files = nullptr);

    /// Takes the probes of a file in place of what was there. Raises QuorError, and leaves all as it was,
    /// when the file cannot be read, and DocumentError when it is no settings file.
    void Open(const std::wstring& path) { Take(Read(path)); }
    /// The same in two steps. The first touches nothing of the document, and may be done in another thread;
    /// what `progress` raises ends it and passes through.
    struct Loaded;
    [[nodiscard]] std::unique_ptr<Loaded> Read(const std::wstring& path, const Progress& progress = {}) const;
    void Take(std::unique_ptr<Loaded> loaded);
    /// Makes the document empty, without a file.
    void Close();

    /// The path of the file; empty for a document that was never saved.
    [[nodiscard]] const std::wstring& Path() const { return m_path; }
    /// Whether the file may not be written. Nothing can be changed then.
    [[nodiscard]] bool IsReadOnly() const { return m_isReadOnly; }

    /// The lines of headers without a ']' above what would be a probe when the file was opened: nobody can
    /// read it. It stays in the file.
    [[nodiscard]] std::vector<std::size_t> LostRecords() const;

    [[nodiscard]] std::size_t Count() const { return m_probes.size(); }
    [[nodiscard]] const std::wstring& Name(std::size_t probe) const { return m_probes[probe].name; }
    /// The type; nothing when the record says none that could be read.
    [[nodiscard]] ProbeType Type(std::size_t probe) const { return m_probes[probe].content.type; }
    /// The number of the conversion's name: equal names have equal numbers, from 0 on.
    [[nodiscard]] std::size_t ConversionNumber(std::size_t probe) const {
        return m_probes[probe].content.name;
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

    /// Adds a probe with the default values of a type; its place.
    std::size_t Add(const std::wstring& name, const TypeChoice& type);
    /// Adds probes with the values of others, under free names, in one step; their places. Raises
    /// DocumentError, and adds none, when the record of one cannot be read wholly, or its type is unknown.
    std::vector<std::size_t> Duplicate(const std::vector<std::size_t>& probes);
    /// Adds the probe of a stand-alone settings file, under a free name made of the file's; its place. Raises
    /// DocumentError when the file is none or cannot be read wholly.
    std::size_t Import(const std::wstring& path);
    /// Adds the probes of another file under free names, in one step; their places. Raises QuorError when the
    /// file cannot be read, and DocumentError, and adds none, when it has no probe, one that cannot be
    /// read wholly, or sections that nobody reads.
    std::vector<std::size_t> AddFrom(const std::wstring& path);
    /// Keeps the name when it is the same to the letter.
    void Rename(std::size_t probe, const std::wstring& name);
    /// Gives probes another type, with default values, in one step. A probe that is of the type already stays
    /// as it is.
    void SetType(const std::vector<std::size_t>& probes, const TypeChoice& type);
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
    /// What is wrong with the probes as they would be saved, by the rules of ProbeFile::Check; the lines are
    /// those of the file, 0 for what does not stand in it so. The file is looked through once, what has
    /// changed each time.
    [[nodiscard]] std::vector<ProbeFinding> Check();
    /// The conversion of a probe, for looking at it.
    [[nodiscard]] const QuorConversions::CQuorConversion& Conversion(std::size_t probe);
    /// Asks for a file, in a dialog owned by the window `hwnd`, and writes the probe as a stand-alone
    /// settings file; its path, or nothing when the user cancelled. Raises DocumentError when the record
    /// cannot be read wholly, or the file cannot be written. The probe must have settings.
    std::optional<std::wstring> Export(std::size_t probe, std::int32_t hwnd);
    /// The name of the stand-alone settings file that a probe is exported to, without a folder; empty for a
    /// probe without settings.
    [[nodiscard]] std::wstring ExportName(std::size_t probe);
    /// Writes a probe as a stand-alone settings file, in place of what is there. Raises DocumentError when
    /// the record cannot be read wholly, and QuorError when the file cannot be written.
    void ExportTo(std::size_t probe, const std::wstring& path);
    /// Probes as the text of an INI file, with all their values. Raises DocumentError when the record of one
    /// cannot be read wholly, or its type is unknown.
    [[nodiscard]] std::wstring TextOf(const std::vector<std::size_t>& probes);

    /// Another number whenever the probes, or the file that they are of, may be others.
    [[nodiscard]] std::uint64_t Revision() const { return m_revision; }

    /// Whether another program has changed the file since it was read, or has removed it.
    [[nodiscard]] bool ChangedByOthers();
    /// Those of which another program has changed what the file holds since it was read.
    [[nodiscard]] std::vector<std::size_t> StaleAmong(const std::vector<std::size_t>& probes);

    /// The last thing that was done, and the last that was taken back; nothing where there is none. It
    /// outlives a save, unless values of other programs have come in by it.
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
    /// there; when its own file is gone, with all that stood in it when it was read. The document stays with
    /// its own file, if it has one, and takes the new one otherwise; a file of its own that was gone is its
    /// own again. Raises what Save raises, before anything is replaced; but if the disk fails while its own
    /// file is gone, the other one may hold what stood in it, without the changes.
    void SaveCopyAs(const std::wstring& path, const OthersChanges& replaced = {});
    /// Saves as SaveCopyAs does, and the document goes over to the new file.
    void SaveAs(const std::wstring& path, const OthersChanges& replaced = {});

    /// Whether `path` is a stand-alone settings file: by its extension, and because no host keeps probes in
    /// it. Raises QuorError when it cannot be read.
    [[nodiscard]] static bool IsStandAlone(const std::wstring& path);

private:
    /// Something that was done. It holds what is not in the list at the moment, so that doing it and taking
    /// it back are the same: both change places.
    struct Step {
        StepKind kind;
        std::vector<std::size_t> places;
        std::vector<ListedProbe> entries;   // those that are not in the list, for steps that add or remove
        std::wstring name;                  // for a step that renames
        std::vector<ProbeContent> contents; // for a step that changes contents, one a place
    };
    struct NewProbe {
        std::wstring wish; // its name, if it is free
        ProbeContent content;
    };

    [[nodiscard]] std::shared_ptr<QuorConversions::CQuorConversion> NewConversion() const;
    [[nodiscard]] std::shared_ptr<QuorConversions::CQuorConversion>
    CopyOf(const QuorConversions::CQuorConversion& conversion) const;
    [[nodiscard]] ProbeContent ContentOf(std::shared_ptr<QuorConversions::CQuorConversion> conversion);
    [[nodiscard]] static std::uint32_t NumberOf(const std::wstring& name, std::vector<std::wstring>& names);
    [[nodiscard]] std::wstring NameOf(const QuorConversions::CQuorConversion& conversion) const;
    const ReadProblems& Load(ListedProbe& entry);
    /// Raises DocumentError unless all of the probe is in its conversion, so that it can be written
    /// elsewhere.
    void RequireWhole(ListedProbe& entry);

    /// Whether a file holds something else of a probe than when it was read.
    [[nodiscard]] bool IsStale(const ListedProbe& entry, QuorProbeFile::ProbeFile& file);
    /// Adds probes under free names; their places.
    std::vector<std::size_t> Append(StepKind kind, std::vector<NewProbe> probes);
    void Do(Step step);
    /// Keeps a step that was done.
    void Push(Step step);
    void Toggle(Step& step);

    using Opening = QuorProbeFile::ProbeFile::Opening;
    [[nodiscard]] std::unique_ptr<QuorProbeFile::ProbeFile> FileAt(const std::wstring& path,
                                                                   Opening opening = Opening::Existing) const;
    /// A file beside `path` that is not there, for a text that is saved as `path` whatever stands in that
    /// one.
    [[nodiscard]] std::unique_ptr<QuorProbeFile::ProbeFile>
    FileThatDoesNotExist(const std::wstring& path) const;
    /// The names of the file's sections that belong to no probe.
    [[nodiscard]] const std::vector<std::wstring>& Foreign() const;
    /// Whether the file has been removed since it was read, or cannot be read any more.
    [[nodiscard]] bool IsGone() const;
    /// Writes all probes into an empty file.
    void WriteAll(QuorProbeFile::ProbeFile& file);
    [[nodiscard]] std::vector<const ListedProbe*> RemovedProbes() const;
    /// Writes what was done into the file as it is now, within an edit or in memory. Returns whether another
    /// program has written into it.
    [[nodiscard]] bool WriteChanges(QuorProbeFile::ProbeFile& file, const OthersChanges& replaced);
    /// The same where it is known whether another program has.
    void WriteChanges(QuorProbeFile::ProbeFile& file, bool othersWrote, const OthersChanges& replaced);
    void SaveTo(const std::wstring& path, const OthersChanges& replaced, bool moves);
    /// Reads the file, which holds what others have written, too, after a save.
    void TakeOthersChanges();
    /// Reads what only the file holds of the steps that were done, because a save takes it out of the file.
    /// Returns how many of them end with a save: a record that cannot be read wholly does not come back from
    /// memory, and neither does what was done before.
    [[nodiscard]] std::size_t ReadHistory();
    /// Takes note that all is saved, and forgets the first steps that were done.
    void Settle(std::size_t lostSteps);

    std::shared_ptr<QuietPlatform> m_platform;
    std::shared_ptr<QuorRegistryII::Registry> m_registry;
    QuorIniFile::IniFileSystem* m_files; // null: those of this computer
    std::wstring m_path;
    bool m_isReadOnly = false;
    std::unique_ptr<QuorProbeFile::ProbeFile> m_file; // as it was last read or saved; never written to
    std::vector<ListedProbe> m_probes;
    mutable std::optional<std::vector<std::wstring>> m_foreign; // once they were looked for
    std::vector<std::wstring> m_names;                          // of conversions
    std::vector<Step> m_done;
    std::vector<Step> m_undone;
    std::vector<ListedProbe> m_gone; // removed, to go from the file, and never to come back
    std::uint64_t m_revision = 0;
    std::optional<std::vector<QuorProbeFile::ProbeProblem>> m_problems; // of m_file, once it was checked
};

/// What was read of a file.
struct ProbeDocument::Loaded {
    std::wstring path;
    std::unique_ptr<QuorProbeFile::ProbeFile> file;
    bool isReadOnly = false;
    std::vector<ListedProbe> probes;
    std::vector<std::wstring> names;
};

} // namespace ProbeSetup
