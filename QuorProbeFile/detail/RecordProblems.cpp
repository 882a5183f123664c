#include "QuorProbeFile/detail/RecordProblems.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/RecordImage.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace QuorProbeFile {

namespace {

/// What is wrong with a value; and with what looks like a comment after it but is none, where it would be
/// fine without, or wrong in a way of its own.
std::vector<ProbePhrase> PhrasesOfWrong(const Value& kind, const std::wstring& text) {
    const ProbePhrase whole = PhraseOfWrong(kind, text);
    const std::size_t sign = text.find_first_of(L"#;");
    if (sign == std::wstring::npos)
        return {whole};
    const std::size_t end = text.find_last_not_of(L" \t", sign == 0 ? 0 : sign - 1);
    if (end == std::wstring::npos)
        return {whole};
    const std::wstring plain = text.substr(0, end + 1);
    const ProbePhrase comment{text[sign] == L'#' ? PROBE_TEXT_COMMENT_SIGN : PROBE_TEXT_COMMENT_BLANK};
    if (ParseAs(kind, plain))
        return {whole, comment};
    const ProbePhrase ofPlain = PhraseOfWrong(kind, plain); // a decimal comma, or beyond a double
    if (ofPlain.text != whole.text)
        return {ofPlain, comment};
    return {whole};
}

} // namespace

ProbeProblem ProblemIn(EProbeProblem kind, std::size_t line, std::wstring section, std::wstring key,
                       std::vector<ProbePhrase> phrases) {
    std::wstring text = Describe(phrases);
    return {kind, line, std::move(section), std::move(key), std::move(text), std::move(phrases)};
}

ProbeProblem ProblemAt(const ReadLog::Read& read, const ProbeEntry& entry, LinePlaces& places,
                       EProbeProblem kind, std::vector<ProbePhrase> phrases) {
    const LinePlaces::Key* const key = places.Find(read.section, read.key);
    return ProblemIn(kind, key ? key->line : entry.line, read.section, read.key, std::move(phrases));
}

const SectionIndex::Section* LinePlaces::Section(std::wstring_view section) {
    if (m_sections.IsEmpty()) {
        Lines lines = m_store.Lines();
        const std::string version = QuorIniFile::ToUtf8(QuorConversions::versionKey);
        SectionIndex::Section* present = nullptr; // that which is read
        while (lines.Next()) {
            if (lines.Is(Lines::Kind::Header))
                present = m_sections.Add(lines);
            else if (lines.Is(Lines::Kind::UnclosedHeader))
                present = nullptr;
            else if (present && lines.Is(Lines::Kind::Malformed))
                ++present->malformed;
            else if (present && !lines.HasName(version))
                ++present->keys;
        }
    }
    return m_sections.Find(section);
}

std::wstring LinePlaces::NameOf(const SectionIndex::Section& section) const {
    Lines lines = m_store.Lines(section.header);
    static_cast<void>(lines.Next());
    return lines.Name();
}

const LinePlaces::Key* LinePlaces::Find(const std::wstring& section, const std::wstring& key) {
    if (m_section != section) {
        m_section = section;
        m_keys = {};
        if (const auto* const found = Section(section))
            ForEachLine(*found, [this](const Lines& line) {
                if (line.Is(Lines::Kind::Key))
                    m_keys.try_emplace(line.Name(), Key{line.Number(), line.Value()});
            });
    }
    const auto found = m_keys.find(key);
    return found == m_keys.end() ? nullptr : &found->second;
}

ProbeProblem ProblemOf(const ReadLog::Read& read, const ProbeEntry& entry, LinePlaces& places) {
    const auto* const section = places.Section(read.section);
    if (!section)
        return ProblemIn(PROBLEM_SECTION_MISSING, entry.line, read.section, read.key,
                         {{PROBE_TEXT_SECTION_MISSING}});
    const LinePlaces::Key* const key = places.Find(read.section, read.key);
    if (!key)
        return ProblemIn(PROBLEM_KEY_MISSING, section->header.number, read.section, read.key,
                         {{PROBE_TEXT_KEY_MISSING}});
    return ProblemIn(PROBLEM_VALUE_UNREADABLE, key->line, read.section, read.key,
                     PhrasesOfWrong(read.value, key->value));
}

/// Whether a read has found a count below zero. A settings object may take it and only then give up, with a
/// message that is that of a missing key, too.
[[nodiscard]] static bool IsCountBelowZero(const ReadLog::Read& read) {
    const auto* const count = std::get_if<std::int16_t>(&read.value);
    return read.found && count && *count < 0 &&
           (read.key == QuorConversions::numCoefficientsKey || read.key == QuorConversions::numPointsKey ||
            read.key == QuorConversions::orderKey);
}

std::vector<ProbeProblem> ProblemsOf(const RecordReading& reading, const ProbeEntry& entry,
                                     LinePlaces& places) {
    const std::vector<ReadLog::Read>& reads = reading.Reads();
    if (!entry.standAlone && !reads.empty()) {
        const ReadLog::Read& type = reads.front();
        if (!reading.HasType()) // nothing else can be said of the record
            return {ProblemOf(type, entry, places)};
        if (!FindType(reading.Conversion().ConversionType()))
            return {ProblemAt(type, entry, places, PROBLEM_UNKNOWN_TYPE,
                              {{PROBE_TEXT_UNKNOWN_TYPE, {ToText(type.value)}}})};
    }

    // What the library itself refuses. The keys that decide how a record is read are whole numbers: the last
    // of them is to blame. The version message blames a value, too, where no key is missing (a count below
    // zero).
    std::vector<ProbeProblem> problems;
    std::set<std::pair<std::wstring, std::wstring>> blamed;
    for (const MessageCollector::Message& message : reading.Messages()) {
        if (message.isVersion && reading.LacksKeys())
            continue; // each missing key is a problem of its own
        const auto read = std::find_if(
            std::make_reverse_iterator(reads.begin() + static_cast<std::ptrdiff_t>(message.readsBefore)),
            reads.rend(),
            [](const ReadLog::Read& r) { return std::holds_alternative<std::int16_t>(r.value); });
        if (read == reads.rend())
            problems.push_back(ProblemIn(PROBLEM_RECORD_REFUSED, entry.line, entry.section, L"",
                                         {{PROBE_TEXT_RECORD_REFUSED, {message.text}}}));
        else if (blamed.emplace(read->section, read->key).second)
            problems.push_back(message.isVersion
                                   ? ProblemAt(*read, entry, places, PROBLEM_VALUE_REFUSED,
                                               {{PROBE_TEXT_VALUE_NOT_ACCEPTED, {ToText(read->value)}}})
                                   : ProblemAt(*read, entry, places, PROBLEM_RECORD_REFUSED,
                                               {{PROBE_TEXT_RECORD_REFUSED, {message.text}}}));
    }

    for (const ReadLog::Read& read : reads)
        if (IsCountBelowZero(read) && blamed.emplace(read.section, read.key).second)
            problems.push_back(ProblemAt(read, entry, places, PROBLEM_VALUE_REFUSED,
                                         {{PROBE_TEXT_VALUE_NOT_ACCEPTED, {ToText(read.value)}}}));

    // Keys that are missing, cannot be read, or hold what the object does not accept.
    const auto settings = reading.Settings();
    const auto image = settings ? RecordImage::Of(*settings) : nullptr;
    const std::wstring root = entry.standAlone ? entry.section : SettingsSection(entry.section);
    for (const ReadLog::Read& read : reads) {
        if (!read.found) {
            problems.push_back(ProblemOf(read, entry, places));
            continue;
        }
        const auto* const stored = image ? image->Find(PathOf(root, read.section, read.key)) : nullptr;
        if (stored && !IsTaken(read.value, stored->value) && !blamed.contains({read.section, read.key}))
            problems.push_back(
                ProblemAt(read, entry, places, PROBLEM_VALUE_REPLACED,
                          {{PROBE_TEXT_VALUE_REPLACED, {ToText(read.value), ToText(stored->value)}}}));
    }
    return problems;
}

} // namespace QuorProbeFile
