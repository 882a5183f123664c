#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorIniFile/IniStore.h"
#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/ProbeEntry.h"
#include "QuorProbeFile/ProbeFileError.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeProblem.h"
#include "QuorProbeFile/RecordAsRead.h"
#include "QuorProbeFile/RecordImage.h"
#include "QuorProbeFile/RecordMerge.h"
#include "QuorProbeFile/TakenNames.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace QuorProbeFile {

class ConsistencyCheck;
class LinePlaces;
class RecordReading;
struct ProbeMove;

/// The result of reading a probe.
struct ReadOutcome {
    ProbeEntry probe; ///< the probe that was read, with the type that was used
    /// What is missing, unreadable or refused, key by key, in the order in which the keys were read.
    std::vector<ProbeProblem> problems;
    /// The messages of the library about that, each on one line.
    std::vector<std::wstring> messages;
    /// What WriteChanges needs.
    RecordAsRead record;
    /// Whether the probe was read completely: there are neither problems nor messages.
    [[nodiscard]] bool IsWhole() const { return problems.empty() && messages.empty(); }
};

/// A probe to be written.
struct ProbeToWrite {
    std::wstring section; ///< of its record
    /// Its conversion, which must exist until it is written: a temporary is not accepted.
    std::reference_wrapper<const QuorConversions::CQuorConversion> conversion;
};

/// The probes of a host's file, or the one of a stand-alone settings file ("prt-1188.cvd"): list, read,
/// write, rename, remove, copy and check them.
///
/// What is written is durable when the call returns. Every call that writes holds the inter-process lock and
/// works on the current file: nothing that another program has saved in the meantime is lost, and a call that
/// fails writes nothing. All reads see the same text, the one that was loaded first or saved last, until
/// Reload; Changed is True if another program has written since.
///
/// Names of sections ignore the case of ASCII letters. If a section occurs twice, the first one counts. A
/// section is the record of a probe if it has the key "ConversionType", and in a stand-alone settings file if
/// it has the name that belongs to its type. Calls that only read keep the section that is selected in
/// Store().
///
/// An operation that is not possible raises ProbeFileError; failures of the file, its folder or the disk
/// raise the QuorError of the store (IniStore.h). Lack of memory is std::bad_alloc.
class QUORPROBEFILE_EXPORT ProbeFile {
public:
    /// Whether the file must exist.
    enum class Opening : std::uint8_t {
        Existing, ///< raises 53 if there is no file
        OrNew,    ///< a file that does not exist has no probes, and is created by the first write
    };

    /// Loads the file. Raises QuorError if it cannot be read.
    explicit ProbeFile(std::wstring_view path, Opening opening = Opening::Existing);
    /// The same on other files, such as those of a test, which must outlive this object.
    ProbeFile(std::wstring_view path, QuorIniFile::IniFileSystem& files, Opening opening = Opening::Existing);
    /// The probes as reads of `file` see them now, in memory: they stay when it is written or reloaded.
    /// Writing to them raises 52.
    [[nodiscard]] static std::unique_ptr<ProbeFile> Snapshot(ProbeFile& file);
    ProbeFile(const ProbeFile&) = delete;
    ProbeFile& operator=(const ProbeFile&) = delete;
    ~ProbeFile();

    /// The path that the constructor received.
    [[nodiscard]] const std::wstring& Path() const { return m_path; }
    /// Whether a write would be refused because the user has no permission to write the file or its folder.
    [[nodiscard]] bool IsReadOnly() const { return m_store->IsReadOnly(); }

    /// Whether there is a file, or something was written for one that does not exist yet.
    [[nodiscard]] bool Exists() { return m_store->HasText(); }
    /// The names of all sections, including those of the host, in the order of the file; none without a file.
    [[nodiscard]] std::vector<std::wstring> Sections();
    /// The text of the file as reads see it (IniStore::Text); empty without a file. The view is valid until
    /// the next call that writes or reloads.
    [[nodiscard]] std::string_view Text();

    /// The probes, in the order of the file. The reference is valid until the next call that writes or
    /// reloads.
    [[nodiscard]] const std::vector<ProbeEntry>& Probes();
    /// The probe in that section; nothing if there is none.
    [[nodiscard]] std::optional<ProbeEntry> Find(std::wstring_view section);
    /// The name of a probe's conversion: that of its settings ("TC Type K"), or of its type if it has none;
    /// empty if the type cannot be read.
    [[nodiscard]] std::wstring ConversionName(const ProbeEntry& probe);
    /// The lines of headers without a "]" above what would be the record of a probe. It cannot be read, and
    /// stays in the file.
    [[nodiscard]] const std::vector<std::size_t>& LostSections();
    /// The sections that occur twice, with the line of the one that is read.
    [[nodiscard]] std::vector<QuorIniFile::IniWarning> DuplicateSections();

    /// Reads the probe in a section into `conversion`, which receives its type. Values that are missing or
    /// unreadable get the defaults of the type, never what the conversion held before, and are returned as
    /// problems, key by key; the user sees no messages. Afterwards Changed of the conversion is False:
    /// reading is not a change.
    ///
    /// A type that is not the code of a conversion is returned as a problem, and the conversion receives that
    /// type, which has no settings. So is a range of the ITS-90 outside the limits that a host has set
    /// (MinRange, MaxRange) in a conversion of the same type, which receives the defaults.
    ///
    /// Raises PROBE_NO_SUCH_SECTION, PROBE_NO_RECORD and PROBE_TYPE_UNREADABLE, and leaves the conversion
    /// unchanged.
    [[nodiscard]] ReadOutcome Read(std::wstring_view section, QuorConversions::CQuorConversion& conversion);

    /// Everything that is wrong with the probes of the file, and with the file itself: what is missing or
    /// cannot be read, what the settings objects refuse or replace, duplicates, unknown keys, and what saves
    /// have left beside the file; and warnings about values that are readable but implausible
    /// (ProbeProblem::IsWarning). In the order of the lines, files beside it last. Each missing section is
    /// listed once.
    [[nodiscard]] std::vector<ProbeProblem> Check();
    /// The same for hosts that show how far it is: calls `afterEach` after each probe, in the order of
    /// Probes(). It must not use this object.
    [[nodiscard]] std::vector<ProbeProblem> Check(const std::function<void()>& afterEach);

    /// Whether a file gives back what the conversion holds. It does not for a count below zero, for settings
    /// that no longer belong to the conversion's type (a thermistor of the other direction), and for anything
    /// else that reading refuses or replaces. Raises what the conversion raises when it is written.
    [[nodiscard]] static bool IsConsistent(const QuorConversions::CQuorConversion& conversion);

    /// Writes a probe into a section, which is added if it does not exist. If a probe is already there, only
    /// the lines of values that differ change; if it has another type, or one that cannot be read, its
    /// settings are removed first.
    ///
    /// Raises PROBE_SECTION_OF_HOST for an existing section that is not a record; for a new one
    /// PROBE_BAD_NAME, PROBE_NAME_OF_SETTINGS and PROBE_SETTINGS_ARE_TAKEN, the last also if a probe without
    /// settings receives a type with settings; PROBE_DOES_NOT_FIT_FILE, PROBE_SECTION_IS_SHARED,
    /// PROBE_CANNOT_BE_WRITTEN if the conversion itself refuses, and PROBE_INCONSISTENT if IsConsistent is
    /// false. Changed of the conversion is not affected.
    void Write(std::wstring_view section, const QuorConversions::CQuorConversion& conversion);
    /// Writes several probes: all of them, or none. Stops at the first one that cannot be written, with the
    /// error that writing it alone would raise, which names its section; later ones are not examined. Raises
    /// PROBE_NAME_IS_TAKEN if two of them have the same section.
    void Write(const std::vector<ProbeToWrite>& probes);

    /// Writes a new probe of the type `type` whose settings write `values`, in that order, and makes no
    /// conversion: for hosts that write thousands of probes which differ in numbers alone, and know that a
    /// conversion gives them back. Raises PROBE_NAME_IS_TAKEN for a section that exists, PROBE_UNKNOWN_TYPE,
    /// and what Write raises for a section that does not exist.
    void WriteNew(std::wstring_view section, QuorConversions::EQuorConversionType type,
                  const std::vector<RecordImage::Entry>& values);

    /// Writes only those values of a probe that have changed since `record` was read from this object, or
    /// from another one on the same file. What other programs have written in the meantime is kept, and so
    /// are keys that are missing or cannot be read, as long as the conversion holds what Read has set for
    /// them. If other programs have changed some of the same keys to other values, these are returned and
    /// nothing is written.
    ///
    /// Afterwards `record` includes what was written, so that the same two can be passed again after each
    /// change of the conversion. It does not include what others have written: the conversion does not hold
    /// that. If nothing was written, `record` is unchanged. `section` differs from the section of `record` if
    /// the probe was renamed since.
    ///
    /// Inside an Edit nothing is saved yet, and the function may be called again: there pass a copy of the
    /// record, and keep it once Edit has returned.
    ///
    /// Raises PROBE_NO_RECORD for a record of no probe, PROBE_OF_ANOTHER_TYPE if the conversion has another
    /// type than the record, PROBE_INCOMPLETE if the settings object had refused the record as a whole
    /// (PROBLEM_RECORD_REFUSED, PROBLEM_VALUE_REFUSED), so that the conversion holds none of its values; both
    /// can only be replaced by Write. But if such a conversion still holds what Read has set, there is
    /// nothing to write: the list is empty and nothing is raised. Raises PROBE_CANNOT_BE_WRITTEN and
    /// PROBE_INCONSISTENT.
    [[nodiscard]] std::vector<RecordConflict> WriteChanges(std::wstring_view section,
                                                           const QuorConversions::CQuorConversion& conversion,
                                                           RecordAsRead& record);
    /// The record of a probe as it is in the file, for WriteChanges of a conversion that Write has written
    /// there, and for HasSameValues, also if its type cannot be read. Raises PROBE_NO_SUCH_SECTION and
    /// PROBE_NO_RECORD.
    [[nodiscard]] RecordAsRead Record(std::wstring_view section);

    /// Renames a probe and the sections of its settings. `name` may differ only in case. Raises what Read and
    /// Write raise, and PROBE_NAME_IS_TAKEN; the record of a stand-alone settings file cannot be renamed, and
    /// no other probe can receive its name (PROBE_DOES_NOT_FIT_FILE).
    void Rename(std::wstring_view section, std::wstring_view name);
    /// Renames several probes, each from the first name to the second: all of them at once, so that they may
    /// exchange their names, or none. Raises the same, for the first one that cannot have its name, and
    /// PROBE_NAME_IS_TAKEN also for a probe that is listed twice.
    void Rename(const std::vector<std::pair<std::wstring, std::wstring>>& names);
    /// Removes a probe with the sections of its settings, or those nested in a stand-alone one. A section
    /// that is named like settings, of a probe whose type has none, belongs to the host and stays. Comments
    /// set apart by a blank line stay. Raises PROBE_NO_SUCH_SECTION, PROBE_NO_RECORD and
    /// PROBE_SECTION_IS_SHARED.
    void Remove(std::wstring_view section);
    /// Removes several probes: all of them, or none. Raises the same, for the first one that is not there.
    void Remove(const std::vector<std::wstring>& sections);
    /// Copies the values of a probe of this file, or of another file as it was loaded, into the section
    /// `toSection`, which is new or has a probe of the same type; otherwise raises PROBE_OF_ANOTHER_TYPE.
    /// Raises PROBE_INCOMPLETE for a record that cannot be read completely, PROBE_UNKNOWN_TYPE for one whose
    /// type is not the code of a conversion, and what Read and Write raise.
    void Copy(std::wstring_view section, std::wstring_view toSection);
    void CopyFrom(ProbeFile& source, std::wstring_view section, std::wstring_view toSection);

    /// Calls `edit` while holding the inter-process lock, and saves everything that it writes together: no
    /// other program can write between its reads and its writes. If it raises, the exception passes through
    /// and nothing is saved. It may be called again on a newer text: see IniStore::Edit.
    void Edit(const std::function<void()>& edit);

    /// Replaces another file with the text of this one as it was last loaded or saved. This object keeps its
    /// own file. Raises as IniStore::SaveAs does.
    void SaveAs(std::wstring_view path) { m_store->SaveAs(path); }
    /// Whether another program has changed or deleted the file since it was loaded or saved.
    [[nodiscard]] bool Changed() { return m_store->FileChanged(); }
    /// Loads the current file.
    void Reload() { m_store->Reload(); }

    /// The underlying store, for hosts that also read and write other sections of the file.
    [[nodiscard]] const std::shared_ptr<QuorIniFile::IniStore>& Store() const { return m_store; }

private:
    ProbeFile(std::wstring path, std::shared_ptr<QuorIniFile::IniStore> store);
    void Load(std::wstring_view path, Opening opening);
    void Survey();
    [[nodiscard]] LinePlaces& Places();
    [[nodiscard]] bool HasSection(std::wstring_view section);
    [[nodiscard]] std::optional<ProbeEntry> Locate(std::wstring_view section);
    [[nodiscard]] ProbeEntry Require(std::wstring_view section);
    [[nodiscard]] ProbeFileError Error(EProbeFileError code, std::wstring_view section,
                                       std::wstring_view other = {}) const;
    [[nodiscard]] QuorConversions::EQuorConversionType RequireType(const ProbeEntry& probe);
    [[nodiscard]] TakenNames NamesBut(const NameMap<ProbeEntry>& probes);
    [[nodiscard]] TakenNames NestedSections();
    void RequireName(std::wstring_view name, const TakenNames& names,
                     const std::function<bool(std::wstring_view)>& isProbe);
    void RequireNames(const std::vector<std::pair<std::wstring, std::wstring>>& names,
                      const NameMap<ProbeEntry>& probes);
    void RequireNoSettings(std::wstring_view section, const std::wstring& settings);
    void MoveSections(const std::function<void(ProbeMove&)>& move);
    void RemoveOldSettings(const std::vector<ProbeToWrite>& probes);
    void WriteOne(const std::wstring& section, QuorConversions::EQuorConversionType type,
                  const std::optional<ProbeEntry>& present,
                  const std::function<void(bool standAlone)>& write);
    template <class Body>
    void WithRefusal(std::wstring_view section, const Body& body) const;
    void RequireConsistent(std::wstring_view section, const QuorConversions::CQuorConversion& conversion,
                           ConsistencyCheck& check) const;
    void WriteRecord(const std::shared_ptr<QuorIniFile::INIFile>& to, std::wstring_view section,
                     const QuorConversions::CQuorConversion& conversion, bool standAlone) const;
    [[nodiscard]] RecordAsRead RecordOf(const ProbeEntry& probe, const ReadOutcome& outcome,
                                        const QuorConversions::CQuorConversion& result);
    [[nodiscard]] std::string TextOf(const ProbeEntry& probe);

    std::wstring m_path;
    std::optional<std::wstring> m_standAlone = StandAloneSection(m_path); // the section of its record
    std::shared_ptr<QuorIniFile::IniStore> m_store;
    std::uint64_t m_surveyed = 0; // the number of the text that was surveyed
    std::vector<ProbeEntry> m_probes;
    std::unordered_map<std::int32_t, std::wstring> m_typeNames; // of types that were asked for
    std::vector<std::size_t> m_lostSections;
    std::unique_ptr<LinePlaces> m_places; // once a record was read
    std::uint64_t m_placesText = 0;       // the number of the text that they are of
    TakenNames m_nested;                  // NestedSections of a text
    std::uint64_t m_namesText = 0;        // the number of that text
};

} // namespace QuorProbeFile
