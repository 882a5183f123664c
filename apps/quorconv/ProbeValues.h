#pragma once

#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/RecordImage.h"
#include "apps/quorconv/ProbeReader.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace quorconv {

/// The probes of a file, whose values are read when they are asked for: there may be a hundred thousand.
/// Raises Problem for a file of which not all can be read, and for a probe that cannot be read wholly: nobody
/// could tell what differs then.
class ProbeTable {
public:
    explicit ProbeTable(QuorProbeFile::ProbeFile& file);
    /// Calls `use` with the section of each probe, in the order of the file, from which nothing is held.
    void ForEach(const std::function<void(const std::wstring& section)>& use) const;
    [[nodiscard]] bool Has(const std::wstring& section) const;
    /// Null when there is none of that name. Valid until the next one of this table is read.
    [[nodiscard]] const ProbeValues* Find(const std::wstring& section) const;
    /// Valid until the next one of this table is read.
    [[nodiscard]] const ProbeValues& Read(const std::wstring& section) const;
    /// The text of a value of a probe by its path, read or not; nothing when there is no such key.
    [[nodiscard]] std::optional<std::wstring> Text(const std::wstring& section,
                                                   const std::wstring& path) const;
    /// Where a value of a probe stands, by its path: "section/key".
    [[nodiscard]] std::wstring PlaceOf(const std::wstring& section, const std::wstring& path) const;
    [[nodiscard]] bool HasSection(const std::wstring& section) const;
    /// Whether a section is that of a probe, or of its settings.
    [[nodiscard]] bool IsOfProbe(const std::wstring& section) const;
    /// The sections that occur twice, of which the first one is read.
    [[nodiscard]] const std::vector<QuorIniFile::IniWarning>& Duplicates() const { return m_duplicates; }

private:
    friend class OtherLines;
    /// Selects the section of a value, and returns its key.
    [[nodiscard]] std::wstring Select(const std::wstring& section, const std::wstring& path) const;
    QuorProbeFile::ProbeFile& m_file;
    mutable ProbeReader m_reader;
    std::vector<QuorIniFile::IniWarning> m_duplicates; // by their lines
};

/// The lines of probes that no record has: keys of their own ("Due=2026-05"), values beyond a count, and
/// lines that are no keys. They go when a probe is removed.
class OtherLines {
public:
    /// Of the probes in `sections`, in one walk through the file.
    OtherLines(const ProbeTable& table, const QuorProbeFile::NameSet& sections);
    /// Those of one of them, sorted.
    [[nodiscard]] std::vector<std::wstring> Of(const ProbeValues& probe) const;
    /// Those that are keys, by what stands before their "="; of a key that stands twice the first one, which
    /// is read.
    [[nodiscard]] std::unordered_map<std::wstring, std::wstring> ByKey(const ProbeValues& probe) const;

private:
    struct Line {
        std::wstring path; ///< of a value of the settings; empty for any other line
        std::wstring key;  ///< empty for a line that is no key
        std::wstring text; ///< both with the section as far as it is not the probe's name
        bool isOfSettings; ///< stands in a section that is the host's where the type has no settings
    };
    [[nodiscard]] std::vector<const Line*> LinesOf(const ProbeValues& probe) const;
    QuorProbeFile::NameMap<std::vector<Line>> m_lines; // by the sections of the probes
};

/// What has become another value from one record to another of the same type.
struct ValueChange {
    std::wstring key;
    const QuorProbeFile::Value* before; ///< null for one that was not there
    const QuorProbeFile::Value* after;  ///< null for one that is gone
};
[[nodiscard]] std::vector<ValueChange> ChangesOf(const ProbeValues& before, const ProbeValues& after);

} // namespace quorconv
