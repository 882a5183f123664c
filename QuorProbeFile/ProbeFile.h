#pragma once

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorIniFile/IniStore.h"
#include "QuorProbeFile/Export.h"
#include "QuorProbeFile/ProbeEntry.h"
#include "QuorProbeFile/ProbeFileError.h"
#include "QuorProbeFile/ProbeProblem.h"
#include "QuorProbeFile/RecordAsRead.h"
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
#include <vector>

namespace QuorProbeFile {

class LinePlaces;
class RecordReading;
struct ProbeMove;

/// What came of reading a probe. Nothing is wrong when there are neither problems nor messages.
struct ReadOutcome {
    ProbeEntry probe; ///< that was read, of the type that it was read as
    /// What is missing, unreadable or refused, key by key, in the order in which the keys were looked for.
    std::vector<ProbeProblem> problems;
    /// What the library has said about that, in its words, each on one line.
    std::vector<std::wstring> messages;
    /// For WriteChanges.
    RecordAsRead record;
    [[nodiscard]] bool IsWhole() const { return problems.empty() && messages.empty(); }
};

/// A probe that is to be written: the section of its record, and its conversion, which lives until it is
/// written: no temporary can be given.
struct ProbeToWrite {
    std::wstring section;
    std::reference_wrapper<const QuorConversions::CQuorConversion> conversion;
};

/// The probes of a host's file, or the one of a stand-alone settings file ("prt-1188.cvd"): what is there,
/// read, written, renamed, removed, copied, checked.
///
/// What is written is durable when the call returns, and every call that writes does so in one turn, under
/// the lock between processes, upon the file as it is then: nothing that another program has saved meanwhile
/// is lost, and of a call that fails nothing is written. All reads see one and the same text, that which was
/// loaded first or saved last, until Reload; Changed tells whether another program has written since.
///
/// Names of sections are the same in any case of ASCII letters. Where a section stands twice the first one
/// counts. A section is a probe's record when it has the key "ConversionType", and in a stand-alone settings
/// file when it has the name that its type gives it. Calls that only read leave the section that is selected
/// in Store() as it is.
///
/// What cannot be done with a probe is raised as ProbeFileError, failures of the file as the QuorError of the
/// store (IniStore.h): the file itself, its folder, the disk. A lack of memory is std::bad_alloc.
class QUORPROBEFILE_EXPORT ProbeFile {
public:
    /// How a file is opened that may not be there.
    enum class Opening : std::uint8_t {
        Existing, ///< raises 53 when there is no file
        OrNew,    ///< a file that is not there has no probes, and is created by the first one that is written
    };

    /// Loads the file. Raises QuorError when it cannot be read.
    explicit ProbeFile(std::wstring_view path, Opening opening = Opening::Existing);
    /// The same on other files, which must outlive this object: those of a test.
    ProbeFile(std::wstring_view path, QuorIniFile::IniFileSystem& files, Opening opening = Opening::Existing);
    ProbeFile(const ProbeFile&) = delete;
    ProbeFile& operator=(const ProbeFile&) = delete;
    ~ProbeFile();

    /// The path as it was given.
    [[nodiscard]] const std::wstring& Path() const { return m_path; }
    /// Whether a write would be refused, because this user may not write the file or its folder.
    [[nodiscard]] bool IsReadOnly() const { return m_store->IsReadOnly(); }

    /// Whether there is a file, or something was written for one that is not there yet.
    [[nodiscard]] bool Exists() { return m_store->HasText(); }
    /// The names of all sections, those of the host among them, in the order of the file; none without one.
    [[nodiscard]] std::vector<std::wstring> Sections();
    /// The text of the file as reads see it (IniStore::Text); empty without one. The view lives until the
    /// next call that writes or reloads.
    [[nodiscard]] std::string_view Text();

    /// The probes, in the order of the file. The reference lives until the next call that writes or reloads.
    [[nodiscard]] const std::vector<ProbeEntry>& Probes();
    /// The probe of that section; nothing when there is none.
    [[nodiscard]] std::optional<ProbeEntry> Find(std::wstring_view section);
    /// The name of a probe's conversion: its settings' own ("TC Type K"), or that of its type where it has
    /// none; empty where the type cannot be read.
    [[nodiscard]] std::wstring ConversionName(const ProbeEntry& probe);
    /// The lines of headers without a "]" above what would be the record of a probe: nobody can read it. It
    /// stays in the file.
    [[nodiscard]] const std::vector<std::size_t>& LostSections();
    /// The sections that stand twice, with the line of the one that is read.
    [[nodiscard]] std::vector<QuorIniFile::IniWarning> DuplicateSections();

    /// Reads the probe of a section into `conversion`, which becomes one of its type. What is missing or
    /// unreadable has the default value of the type then, never one that the conversion held before, and is
    /// told, key by key; nothing of it is shown to the user. Changed of the conversion is False afterwards:
    /// what was read is no change.
    ///
    /// A type that is the code of no conversion is told as a problem, and the conversion gets that type,
    /// which has no settings.
    ///
    /// Raises PROBE_NO_SUCH_SECTION, PROBE_NO_RECORD and PROBE_TYPE_UNREADABLE, and leaves the conversion as
    /// it was.
    [[nodiscard]] ReadOutcome Read(std::wstring_view section, QuorConversions::CQuorConversion& conversion);

    /// All that is wrong with the probes of the file, and with the file around them: what is missing or
    /// cannot be read, what the settings objects refuse or take for another value, what stands twice, what no
    /// record holds, and what saves have left beside the file; and warnings of values that can be read and
    /// hardly be meant (ProbeProblem::IsWarning). In the order of the lines; what stands beside the file
    /// comes last. Each section that is missing is told once.
    [[nodiscard]] std::vector<ProbeProblem> Check();

    /// Whether a file gives back what the conversion holds. Not so with a count below zero, with settings
    /// that are no more of the conversion's type (a thermistor of the other direction), and with whatever
    /// else a read refuses or replaces. Raises what the conversion raises when it is written.
    [[nodiscard]] static bool IsConsistent(const QuorConversions::CQuorConversion& conversion);

    /// Writes a probe into a section, which is added when it is not there. Of a probe that stands there only
    /// the lines of values that differ change; when that one is of another type, or of one that cannot be
    /// read, its settings go first.
    ///
    /// Raises PROBE_SECTION_OF_HOST for a section that is there and is no record, PROBE_BAD_NAME,
    /// PROBE_NAME_OF_SETTINGS and PROBE_SETTINGS_ARE_TAKEN for a new one - the last also for one of a type
    /// without settings that gets another type -, PROBE_DOES_NOT_FIT_FILE, PROBE_SECTION_IS_SHARED,
    /// PROBE_CANNOT_BE_WRITTEN when the conversion itself refuses it, and PROBE_INCONSISTENT when
    /// IsConsistent does. Changed of the conversion stays as it is.
    void Write(std::wstring_view section, const QuorConversions::CQuorConversion& conversion);
    /// Writes many, durable together: all of them, or none. Stops at the first one that cannot be written,
    /// with the error that Write of it alone raises, which names its section; nothing is told of those behind
    /// it. Raises PROBE_NAME_IS_TAKEN when two of them have one section.
    void Write(const std::vector<ProbeToWrite>& probes);

    /// Writes of a probe the keys that have got other values since `record` was read - from this object, or
    /// another one on the same file - and nothing else: what other programs have written about it meanwhile
    /// stays, and so do keys that are missing or cannot be read, as long as the conversion holds what Read
    /// has given it for them. Keys that they have changed too, to other values, are returned, and nothing is
    /// written then.
    ///
    /// What was written is a part of `record` afterwards, so that the same two can be given again and again,
    /// after each change of the conversion. What others have written is not: the conversion does not hold it.
    /// `record` stays as it is when nothing was written. `section` is another one than that of `record` where
    /// the probe has got another name since.
    ///
    /// Raises PROBE_NO_RECORD for a record of no probe, PROBE_OF_ANOTHER_TYPE when the conversion is of
    /// another type than the record, which only Write can replace, PROBE_CANNOT_BE_WRITTEN and
    /// PROBE_INCONSISTENT.
    [[nodiscard]] std::vector<RecordConflict> WriteChanges(std::wstring_view section,
                                                           const QuorConversions::CQuorConversion& conversion,
                                                           RecordAsRead& record);
    /// The record of a probe as it stands in the file, for WriteChanges of a conversion that Write has
    /// written there. Raises as Read does.
    [[nodiscard]] RecordAsRead Record(std::wstring_view section);

    /// Gives a probe another name, and so the sections of its settings. The same in another case of letters
    /// is another name, too. Raises as Read and Write do, and PROBE_NAME_IS_TAKEN; the record of a
    /// stand-alone settings file keeps its name, and no other probe gets that (PROBE_DOES_NOT_FIT_FILE).
    void Rename(std::wstring_view section, std::wstring_view name);
    /// Removes a probe with the sections of its settings, or those that are nested in a stand-alone one. What
    /// is called like the settings of a probe whose type has none belongs to the host and stays.
    /// Comments that stand apart stay. Raises PROBE_NO_SUCH_SECTION, PROBE_NO_RECORD and
    /// PROBE_SECTION_IS_SHARED.
    void Remove(std::wstring_view section);
    /// Writes the values of a probe into another section of this file, or of a probe of another file, as it
    /// was loaded. Into a new one, or over a probe of the same type; PROBE_OF_ANOTHER_TYPE for any other
    /// one. Raises PROBE_INCOMPLETE for a record that cannot be read wholly, PROBE_UNKNOWN_TYPE for one whose
    /// type is the code of no conversion, and what Read and Write raise.
    void Copy(std::wstring_view section, std::wstring_view toSection);
    void CopyFrom(ProbeFile& source, std::wstring_view section, std::wstring_view toSection);

    /// Does several of these in one turn under the lock, and saves them together: no other program comes in
    /// between what `edit` reads and what it writes. What it raises passes through, and nothing is saved
    /// then. It may be called again, upon the file as it is then: IniStore::Edit has the details.
    void Edit(const std::function<void()>& edit);

    /// Gives another file the text of this one as it was loaded or saved last, in place of what stands there.
    /// This object stays with its own file.
    void SaveAs(std::wstring_view path) { m_store->SaveAs(path); }
    /// Whether another program has changed the file since it was loaded or saved, or has removed it.
    [[nodiscard]] bool Changed() { return m_store->FileChanged(); }
    /// Loads the file as it is now.
    void Reload() { m_store->Reload(); }

    /// The store that this object stands on, for those who read and write other sections of the file too.
    [[nodiscard]] const std::shared_ptr<QuorIniFile::IniStore>& Store() const { return m_store; }

private:
    void Load(std::wstring_view path, Opening opening);
    void Survey();
    [[nodiscard]] LinePlaces& Places();
    [[nodiscard]] bool HasSection(std::wstring_view section);
    [[nodiscard]] std::optional<ProbeEntry> Locate(std::wstring_view section);
    [[nodiscard]] ProbeEntry Require(std::wstring_view section);
    [[nodiscard]] ProbeFileError Error(EProbeFileError code, std::wstring_view section,
                                       std::wstring_view other = {}) const;
    [[nodiscard]] QuorConversions::EQuorConversionType RequireType(const ProbeEntry& probe);
    [[nodiscard]] TakenNames NamesBut(const ProbeEntry* except);
    void RequireName(std::wstring_view name, const ProbeEntry* except, const TakenNames& names);
    void MoveSections(const std::function<void(ProbeMove&)>& move);
    void RemoveOldSettings(const std::vector<ProbeToWrite>& probes);
    void WriteOne(const ProbeToWrite& probe);
    template <class Body>
    void WithRefusal(std::wstring_view section, const Body& body) const;
    void RequireConsistent(std::wstring_view section,
                           const QuorConversions::CQuorConversion& conversion) const;
    void WriteRecord(const std::shared_ptr<QuorIniFile::INIFile>& to, std::wstring_view section,
                     const QuorConversions::CQuorConversion& conversion, bool standAlone) const;
    [[nodiscard]] RecordAsRead RecordOf(const RecordReading& reading, const ProbeEntry& probe,
                                        bool isRefused);

    std::wstring m_path;
    std::shared_ptr<QuorIniFile::IniStore> m_store;
    std::uint64_t m_surveyed = 0; // the number of the text that was surveyed
    std::vector<ProbeEntry> m_probes;
    std::unordered_map<std::int32_t, std::wstring> m_typeNames; // of types that were asked for
    std::vector<std::size_t> m_lostSections;
    std::unique_ptr<LinePlaces> m_places; // once a record was read
    std::uint64_t m_placesText = 0;       // the number of the text that they are of
    TakenNames m_names;                   // of all sections
    std::uint64_t m_namesText = 0;        // the number of the text that they are of
};

} // namespace QuorProbeFile
