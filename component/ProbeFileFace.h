#pragma once

#include "QuorProbeFile/QuorProbeFile.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace QuorConversions::Component {

using QuorProbeFile::EProbeFileError;
using QuorProbeFile::EProbeProblem;
using QuorProbeFile::RecordAsRead;
using enum QuorProbeFile::EProbeFileError;
using enum QuorProbeFile::EProbeProblem;

/// The numbers of all probes of a file, one array behind the other: what a host in a language with slow calls
/// reads in a few of them. It is of the moment in which it was made.
class ProbeTableFace {
public:
    [[nodiscard]] std::int32_t ProbeCount() const { return static_cast<std::int32_t>(m_types.size()); }
    [[nodiscard]] const std::wstring& Sections() const { return m_sections; }
    [[nodiscard]] std::span<const std::int32_t> Types() const { return m_types; }
    [[nodiscard]] std::span<const std::int32_t> ProblemCounts() const { return m_problemCounts; }
    [[nodiscard]] const std::wstring& KeyLists() const { return m_keyLists; }
    [[nodiscard]] std::span<const std::int32_t> KeyListOf() const { return m_keyListOf; }
    [[nodiscard]] std::span<const std::int32_t> ValueEnds() const { return m_valueEnds; }
    [[nodiscard]] std::span<const double> Values() const { return m_values; }

    /// Adds a probe that was read. Numbers that could not be read are NaN.
    void Add(const QuorProbeFile::ReadOutcome& outcome, const CQuorConversion& conversion);
    /// Adds a probe whose type cannot be read.
    void AddUnreadable(std::wstring_view section);

private:
    void Finish(std::wstring_view section, EQuorConversionType type, std::int32_t problems,
                std::wstring keys);

    std::wstring m_sections;
    std::vector<std::int32_t> m_types;
    std::vector<std::int32_t> m_problemCounts;
    std::wstring m_keyLists;
    std::map<std::wstring, std::int32_t, std::less<>> m_keyListNumbers;
    std::vector<std::int32_t> m_keyListOf;
    std::vector<std::int32_t> m_valueEnds;
    std::vector<double> m_values;
};

/// The probes of a file, as a host reaches them: rows by their index, and what was wrong with the last call.
class ProbeFileFace : public std::enable_shared_from_this<ProbeFileFace> {
public:
    using Conversion = std::shared_ptr<CQuorConversion>;

    ProbeFileFace(std::wstring_view path, bool mayBeNew);

    [[nodiscard]] const std::wstring& Path() const { return m_file.Path(); }
    [[nodiscard]] bool IsReadOnly() const { return m_file.IsReadOnly(); }
    [[nodiscard]] std::int32_t ProbeCount();
    [[nodiscard]] const std::wstring& ProbeSection(std::int32_t index) { return Probe(index).section; }
    [[nodiscard]] std::int32_t ProbeLine(std::int32_t index);
    [[nodiscard]] EQuorConversionType ProbeType(std::int32_t index);
    [[nodiscard]] bool HasType(std::int32_t index) { return Probe(index).type.has_value(); }
    [[nodiscard]] bool IsStandAlone(std::int32_t index) { return Probe(index).standAlone; }
    [[nodiscard]] std::wstring ConversionName(std::int32_t index);
    [[nodiscard]] std::int32_t FindProbe(std::wstring_view section);

    [[nodiscard]] bool Read(std::wstring_view section, const Conversion& conversion);
    [[nodiscard]] std::shared_ptr<ProbeTableFace> ReadAll();
    [[nodiscard]] std::int32_t Check();
    [[nodiscard]] std::int32_t ProblemCount() const { return static_cast<std::int32_t>(m_problems.size()); }
    [[nodiscard]] EProbeProblem ProblemKind(std::int32_t index) const { return Problem(index).kind; }
    [[nodiscard]] std::int32_t ProblemLine(std::int32_t index) const;
    [[nodiscard]] const std::wstring& ProblemSection(std::int32_t i) const { return Problem(i).section; }
    [[nodiscard]] const std::wstring& ProblemKey(std::int32_t index) const { return Problem(index).key; }
    [[nodiscard]] const std::wstring& ProblemText(std::int32_t index) const { return Problem(index).text; }
    [[nodiscard]] std::int32_t MessageCount() const { return static_cast<std::int32_t>(m_messages.size()); }
    [[nodiscard]] const std::wstring& Messages(std::int32_t index) const;

    void Write(std::wstring_view section, const Conversion& conversion);
    [[nodiscard]] bool WriteChanges(std::wstring_view section, const Conversion& conversion);
    [[nodiscard]] std::int32_t ConflictCount() const { return static_cast<std::int32_t>(m_conflicts.size()); }
    [[nodiscard]] const std::wstring& ConflictSection(std::int32_t i) const { return Conflict(i).section; }
    [[nodiscard]] const std::wstring& ConflictKey(std::int32_t index) const { return Conflict(index).key; }
    [[nodiscard]] std::wstring ConflictRead(std::int32_t index) const;
    [[nodiscard]] std::wstring ConflictTheirs(std::int32_t index) const;
    [[nodiscard]] std::wstring ConflictOurs(std::int32_t index) const;
    void Rename(std::wstring section, std::wstring name);
    void Remove(std::wstring section);
    void Copy(std::wstring section, std::wstring toSection);
    void CopyFrom(ProbeFileFace& source, std::wstring section, std::wstring toSection);

    void RequireUnchanged(std::wstring section, const Conversion& conversion);

    void Hold() { ++m_depth; }
    void Release();
    void Abandon();

    void SaveAs(std::wstring_view path);
    [[nodiscard]] bool Changed();
    void Reload();
    [[nodiscard]] std::shared_ptr<QuorIniFile::INIFile> Store() const { return m_file.Store(); }
    [[nodiscard]] EProbeFileError ErrorCode() const { return m_errorCode; }
    [[nodiscard]] const std::wstring& ErrorOther() const { return m_errorOther; }
    [[nodiscard]] bool Differs(std::wstring_view section, const Conversion& conversion);

private:
    /// What is to be done at the end of a bracket.
    struct Step {
        std::wstring section = {};
        std::shared_ptr<const CQuorConversion> written =
            {};                                   ///< as it was; null for another step than a write
        std::weak_ptr<CQuorConversion> host = {}; ///< of which it is a copy
        std::optional<RecordAsRead> record = {};  ///< of a write of changes
        bool isReadAnew = false;                  ///< since the step before of this conversion
        bool isRemoval = false;
        std::function<void()> other = {};
    };
    /// What was read into the conversions of a host, or written from them.
    using Records = std::map<std::weak_ptr<CQuorConversion>, RecordAsRead, std::owner_less<>>;

    /// A probe as the file has it, or why there is none.
    struct Present {
        RecordAsRead record = {};
        EProbeFileError code = {};
    };

    [[nodiscard]] const QuorProbeFile::ProbeEntry& Probe(std::int32_t index);
    [[nodiscard]] const QuorProbeFile::ProbeProblem& Problem(std::int32_t index) const;
    [[nodiscard]] const QuorProbeFile::RecordConflict& Conflict(std::int32_t index) const;
    /// Calls the file and keeps what is wrong with it. What was told of the call before is forgotten.
    template <class Body>
    auto Do(Body&& body);
    /// The same of a call that writes or reloads, after which the text is the one that the host knows. A call
    /// that fails, and what is written through the store, may load another one.
    template <class Body>
    void DoAndKnow(Body&& body);
    /// Takes the step now, or at the end of the bracket.
    void Take(std::function<void()> step);
    [[nodiscard]] static Present Look(QuorProbeFile::ProbeFile& file, std::wstring_view section);
    /// Takes all steps. What the records of the conversions are then.
    [[nodiscard]] Records TakeAll(const std::vector<Step>& steps);
    void TakeChanges(const Step& step, Records& records);
    [[nodiscard]] bool MergeInto(std::wstring_view section, const CQuorConversion& conversion,
                                 RecordAsRead& record);
    void Remember(const std::weak_ptr<CQuorConversion>& conversion, RecordAsRead record);
    /// Whether the conversion was read since its last step in this bracket, which is asked once.
    [[nodiscard]] bool TakeReadAnew(const std::weak_ptr<CQuorConversion>& conversion) {
        return m_readAnew.erase(conversion) > 0;
    }

    QuorProbeFile::ProbeFile m_file;
    std::unordered_map<std::wstring, std::int32_t> m_places; ///< of the probes, by their folded sections
    std::optional<std::uint64_t> m_placesText;               ///< the number of the text that they are of
    std::vector<QuorProbeFile::ProbeProblem> m_problems;
    std::vector<std::wstring> m_messages;
    std::vector<QuorProbeFile::RecordConflict> m_conflicts;
    EProbeFileError m_errorCode{};
    std::wstring m_errorOther;
    Records m_records;
    /// Those that were read in this bracket, since their last step.
    std::set<std::weak_ptr<CQuorConversion>, std::owner_less<>> m_readAnew;
    std::size_t m_recordsToLookThrough = 64; ///< for conversions that are gone, when there are so many
    std::unique_ptr<QuorProbeFile::ProbeFile> m_known; ///< the file as the host knows it
    std::vector<Step> m_steps;
    int m_depth = 0;
    bool m_isAbandoned = false;
};

} // namespace QuorConversions::Component
