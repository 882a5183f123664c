#include "apps/quorconv/Commands.h"

#include "QuorIniFile/IniWarning.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniDisk.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniValue.h"
#include "apps/quorconv/Probe.h"
#include "apps/records/IniImage.h"
#include "apps/records/Names.h"
#include "apps/records/ProbeFile.h"

#include <algorithm>
#include <iostream>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

namespace quorconv {

using namespace QuorConversions;
using namespace ProbeRecords;
using QuorIniFile::ToPrintable;

namespace {

/// Checks the records of one file and prints what it finds, in the order of the lines.
class FileCheck {
public:
    explicit FileCheck(const std::wstring& path) : m_file(path) {}

    [[nodiscard]] bool Run() {
        if (const auto section = StandAloneSection(m_file.Path()); section && m_file.Records().empty())
            Report(1, *section, L"", L"the section is missing");
        for (const std::size_t line : m_file.LostRecords())
            Report(line, L"", L"", L"the header has no \"]\"; nobody can read the record below it");
        CheckRepetitions();
        const auto store = StoreOf(m_file.Path());
        for (const Record& record : m_file.Records())
            CheckRecord(Probe(store, m_file.Path(), record), record);
        for (const auto& [line, text] : m_problems)
            std::cout << ToPrintable(m_file.Path()) << ':' << line << ": " << ToPrintable(text) << '\n';
        return ReportLeftovers() && m_problems.empty();
    }

private:
    void Report(std::size_t line, const std::wstring& section, const std::wstring& key,
                const std::wstring& what) {
        m_problems.emplace(line, L"[" + section + L"] " + (key.empty() ? L"" : key + L": ") + what);
    }

    /// False when saves have left something beside the file.
    [[nodiscard]] bool ReportLeftovers() const {
        const std::vector<QuorIniFile::IniLeftover> leftovers = QuorIniFile::LeftoversOf(m_file.Path());
        for (const auto& [path, isKept] : leftovers)
            std::cout << ToPrintable(m_file.Path() +
                                     (isKept ? L": what another program had put in its place is kept as "
                                             : L": an interrupted save has left ") +
                                     QuorIniFile::DecodeBytes(path))
                      << '\n';
        return leftovers.empty();
    }

    /// Keys and sections that stand twice, the host's own too: who reads them sees the first.
    void CheckRepetitions() {
        using Kind = QuorIniFile::IniWarningKind;
        for (const auto& warning : QuorIniFile::WarningsOf(m_file.Bytes())) {
            if (warning.kind != Kind::DuplicateKey && warning.kind != Kind::DuplicateSection)
                continue;
            const std::wstring what = warning.kind == Kind::DuplicateKey ? L"the key" : L"the section";
            Report(warning.line, warning.section, warning.key,
                   what + L" stands twice; the one in line " + std::to_wstring(warning.first) + L" is read");
        }
    }

    void CheckRecord(Probe probe, const Record& record) {
        probe.Read();
        bool aborted = CheckType(probe);
        if (!aborted) {
            aborted = CheckMessages(probe);
            CheckReads(probe, record);
        }
        CheckSections(probe, record, aborted);
    }

    /// True when the type is not known, so that nothing else can be said of the record.
    bool CheckType(const Probe& probe) {
        if (probe.Where().standAlone || probe.Reads().empty())
            return false;
        const ReadLog::Read& type = probe.Reads().front();
        if (!probe.HasType()) {
            ReportRead(type, probe.Where());
            return true;
        }
        if (FindType(probe.Conversion().ConversionType()))
            return false;
        ReportAt(type, probe.Where(), ToText(type.value) + L" is no conversion type");
        return true;
    }

    /// What the library itself refuses. The keys that decide how a record is read are whole numbers: the last
    /// of them is to blame. The version message blames a value, too, where no key is missing (a count below
    /// zero). True when the reading of a part was given up.
    bool CheckMessages(const Probe& probe) {
        bool aborted = false;
        const auto& reads = probe.Reads();
        for (const auto& message : probe.Messages()) {
            const bool isVersion = IsVersionMessage(message);
            if (isVersion && probe.LacksKeys())
                continue; // each missing key is a problem of its own here
            aborted = true;
            const auto end = reads.rend();
            const auto blamed = std::find_if(
                std::make_reverse_iterator(reads.begin() + static_cast<std::ptrdiff_t>(message.readsBefore)),
                end,
                [](const ReadLog::Read& read) { return std::holds_alternative<std::int16_t>(read.value); });
            if (blamed == end)
                Report(probe.Where().line, probe.Where().section, L"", message.text);
            else if (m_blamed.emplace(blamed->section, blamed->key).second)
                ReportAt(*blamed, probe.Where(),
                         isVersion ? L"the value " + ToText(blamed->value) + L" is not accepted"
                                   : message.text);
        }
        return aborted;
    }

    /// Keys that are missing, cannot be read, or hold what the object does not accept.
    void CheckReads(const Probe& probe, const Record& record) {
        const auto image = probe.Settings() ? IniImage::Of(*probe.Settings()) : nullptr;
        for (const ReadLog::Read& read : probe.Reads()) {
            if (!read.found) {
                ReportRead(read, record);
                continue;
            }
            const auto* const stored = image ? image->Find(probe.PathOf(read)) : nullptr;
            if (stored && !SameValue(stored->value, read.value) &&
                !m_blamed.contains({read.section, read.key}))
                ReportAt(read, record,
                         L"the value " + ToText(read.value) + L" is not accepted; " + ToText(stored->value) +
                             L" would be used");
        }
    }

    /// Keys that no record of this type has, and lines that are no keys.
    void CheckSections(const Probe& probe, const Record& record, bool aborted) {
        std::map<std::wstring, std::set<std::wstring>> known;
        known[Folded(record.section)];
        if (probe.Settings())
            known[Folded(probe.SettingsSection())];
        for (const ReadLog::Read& read : probe.Reads())
            known[Folded(read.section)].insert(Folded(read.key));
        for (const auto& [name, keys] : known)
            if (const auto* const section = m_file.FindSection(name))
                CheckSection(*section, keys, aborted);
    }

    void CheckSection(const ProbeFile::Section& section, const std::set<std::wstring>& known, bool aborted) {
        for (const std::size_t line : section.malformedLines)
            Report(line, section.name, L"", L"the line is no key=value");
        for (const auto& key : section.keys) {
            const std::wstring name = QuorIniFile::DecodeBytes(key.name);
            if (!aborted && Folded(name) != L"version" && !known.contains(Folded(name)) &&
                FindKey(section, name) == &key)
                Report(key.line, section.name, name,
                       L"unknown key: a record of this type and size does not hold it");
        }
    }

    /// The key of that name that look-ups find. Sections are asked one after the other, each for all its
    /// keys: an index of the one that was asked last keeps a long section from taking long.
    const ProbeFile::Key* FindKey(const ProbeFile::Section& section, const std::wstring& name) {
        if (m_indexed != &section) {
            m_indexed = &section;
            m_keys = {};
            for (const auto& key : section.keys)
                m_keys.emplace(Folded(QuorIniFile::DecodeBytes(key.name)), &key);
        }
        const auto found = m_keys.find(Folded(name));
        return found == m_keys.end() ? nullptr : found->second;
    }

    /// A key that was not found: it is missing, or its text is not of its kind.
    void ReportRead(const ReadLog::Read& read, const Record& record) {
        const auto* const section = m_file.FindSection(read.section);
        const auto* const key = section ? FindKey(*section, read.key) : nullptr;
        if (!section) {
            if (m_missingSections.insert(Folded(read.section)).second)
                Report(record.line, read.section, L"", L"the section is missing");
        } else if (!key) {
            Report(section->line, read.section, read.key, L"the key is missing");
        } else {
            const std::wstring text = QuorIniFile::DecodeBytes(QuorIniFile::SplitComment(key->value).plain);
            Report(key->line, read.section, read.key,
                   WhatIsWrong(read.value, text) + WhatIsNoComment(read.value, text));
        }
    }

    /// For a value that would be fine without what looks like a comment after it, but is none.
    static std::wstring WhatIsNoComment(const Value& kind, const std::wstring& text) {
        const std::size_t sign = text.find_first_of(L"#;");
        if (sign == std::wstring::npos)
            return {};
        const std::size_t end = text.find_last_not_of(L" \t", sign == 0 ? 0 : sign - 1);
        if (end == std::wstring::npos || !ParseAs(kind, text.substr(0, end + 1)))
            return {};
        return text[sign] == L'#' ? L"; a comment begins with \";\""
                                  : L"; a comment begins with \";\" after a blank";
    }

    /// A problem with a key that was read.
    void ReportAt(const ReadLog::Read& read, const Record& record, const std::wstring& what) {
        const auto* const section = m_file.FindSection(read.section);
        const auto* const key = section ? FindKey(*section, read.key) : nullptr;
        Report(key ? key->line : record.line, read.section, read.key, what);
    }

    ProbeFile m_file;
    const ProbeFile::Section* m_indexed = nullptr;
    std::unordered_map<std::wstring, const ProbeFile::Key*> m_keys; ///< of m_indexed, by folded name
    std::multimap<std::size_t, std::wstring> m_problems;
    std::set<std::wstring> m_missingSections;
    std::set<std::pair<std::wstring, std::wstring>>
        m_blamed; ///< sections and keys that the library complained of
};

} // namespace

bool CheckFiles(const std::vector<std::wstring>& files) {
    bool fine = true;
    for (const std::wstring& file : files) {
        try {
            fine = FileCheck(file).Run() && fine;
        } catch (const QuorIniFile::QuorError& error) {
            std::cout << ToPrintable(file) << ": " << ToPrintable(error.Description()) << '\n';
            fine = false;
        }
    }
    return fine;
}

} // namespace quorconv
