#pragma once

#include "QuorIniFile/IniLines.h"
#include "QuorIniFile/IniStore.h"
#include "QuorProbeFile/ProbeEntry.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeProblem.h"
#include "QuorProbeFile/detail/ReadLog.h"
#include "QuorProbeFile/detail/RecordReading.h"
#include "QuorProbeFile/detail/SectionIndex.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace QuorProbeFile {

/// Where the sections and keys of a text stand, for those few that something is wrong with.
class LinePlaces {
public:
    using Lines = QuorIniFile::IniLines;
    struct Key {
        std::size_t line;
        std::wstring value; ///< as it stands, without a comment behind a number
    };

    explicit LinePlaces(QuorIniFile::IniStore& store) : m_store(store) {}

    /// The section, the first one of that name; null when there is none.
    [[nodiscard]] const SectionIndex::Section* Section(std::wstring_view section);
    /// As it stands in the header.
    [[nodiscard]] std::wstring NameOf(const SectionIndex::Section& section) const;
    /// The key that look-ups find, the first one of that name; null when there is none. The section that was
    /// asked last is indexed: to ask for all keys of a long one takes no long time.
    [[nodiscard]] const Key* Find(const std::wstring& section, const std::wstring& key);

    /// Calls `visit` at each key and each malformed line of a section.
    template <class Visit>
    void ForEachLine(const SectionIndex::Section& section, const Visit& visit) {
        Lines lines = m_store.Lines(section.header);
        static_cast<void>(lines.Next()); // the header
        while (lines.Next() && !lines.Is(Lines::Kind::Header) && !lines.Is(Lines::Kind::UnclosedHeader))
            visit(lines);
    }

private:
    QuorIniFile::IniStore& m_store;
    SectionIndex m_sections;
    std::optional<std::wstring> m_section; // the one that was asked for keys last
    NameMap<Key> m_keys;                   // of it
};

/// A problem in these words.
[[nodiscard]] ProbeProblem ProblemIn(EProbeProblem kind, std::size_t line, std::wstring section,
                                     std::wstring key, std::vector<ProbePhrase> phrases);
/// A problem with a key that was read.
[[nodiscard]] ProbeProblem ProblemAt(const ReadLog::Read& read, const ProbeEntry& entry, LinePlaces& places,
                                     EProbeProblem kind, std::vector<ProbePhrase> phrases);

/// What a key that was not found, or whose value could not be read, is told with.
[[nodiscard]] ProbeProblem ProblemOf(const ReadLog::Read& read, const ProbeEntry& entry, LinePlaces& places);

/// What is wrong with a record by what the library found and said when it was read, in the order of its
/// keys.
[[nodiscard]] std::vector<ProbeProblem> ProblemsOf(const RecordReading& reading, const ProbeEntry& entry,
                                                   LinePlaces& places);

} // namespace QuorProbeFile
