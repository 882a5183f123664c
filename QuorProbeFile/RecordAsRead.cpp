#include "QuorProbeFile/RecordAsRead.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/detail/RecordBaseline.h"
#include "QuorProbeFile/detail/RecordReading.h"

#include <algorithm>
#include <map>
#include <utility>

namespace QuorProbeFile {

using QuorConversions::CQuorConversion;

void WriteRecordTo(const std::shared_ptr<QuorIniFile::INIFile>& to, const std::wstring& section,
                   const CQuorConversion& conversion, bool standAlone) {
    if (standAlone)
        conversion.Settings()->WriteOrRaise(to, section);
    else
        conversion.WriteOrRaise(to, section);
}

std::shared_ptr<KeptValues> RecordAsRead::State::Record() const {
    return std::make_shared<KeptValues>(text, read);
}

std::shared_ptr<KeptValues> RecordAsRead::State::Unchanged() const {
    auto unchanged = std::make_shared<KeptValues>(std::string(), held);
    if (!held.empty())
        return unchanged;
    const RecordReading reading(Record(), probe);
    WriteRecordTo(unchanged, probe.section, reading.Conversion(), probe.standAlone);
    return unchanged;
}

const std::wstring& RecordAsRead::Section() const {
    static const std::wstring none;
    return m_state ? m_state->probe.section : none;
}

bool RecordAsRead::IsChanged(const CQuorConversion& conversion) const {
    if (!m_state || m_state->probe.type != conversion.ConversionType())
        return true;
    const auto now = std::make_shared<KeptValues>();
    WriteRecordTo(now, m_state->probe.section, conversion, m_state->probe.standAlone);
    const KeptValues::Values before = m_state->Unchanged()->Written();
    return !std::equal(
        now->Written().begin(), now->Written().end(), before.begin(), before.end(),
        [](const auto& a, const auto& b) { return a.first == b.first && SameValue(a.second, b.second); });
}

namespace {

/// The values of the lines of a record by their sections and keys, as texts where nothing reads them. A line
/// that is no key has none.
using RecordLines = std::multimap<std::pair<std::wstring, std::wstring>, Value>;

RecordLines LinesOf(const std::string& text, const RecordReading& reading) {
    RecordLines all;
    const auto store = QuorIniFile::IniStore::OfText(text);
    std::wstring section;
    for (QuorIniFile::IniLines lines = store->Lines(); lines.Next();) {
        if (lines.Is(QuorIniFile::IniLines::Kind::Header))
            section = Folded(lines.Name());
        else if (!lines.Is(QuorIniFile::IniLines::Kind::Key))
            all.emplace(std::pair(section, L""), QuorIniFile::DecodeBytes(lines.Bytes()));
        else if (std::wstring key = lines.Name(); !EqualFolded(key, QuorConversions::versionKey))
            all.emplace(std::pair(section, Folded(std::move(key))), lines.Value());
    }
    for (const ReadLog::Read& read : reading.Reads()) {
        if (!read.found)
            continue;
        const std::pair name(Folded(read.section), Folded(read.key));
        const auto first = all.lower_bound(name); // which is read
        if (first != all.end() && first->first == name)
            first->second = read.value;
        else
            all.emplace(name, read.value);
    }
    return all;
}

} // namespace

bool RecordAsRead::HasSameValues(const RecordAsRead& other) const {
    if (!m_state || !other.m_state)
        return !m_state && !other.m_state;
    const RecordReading mine(m_state->Record(), m_state->probe);
    const RecordReading theirs(other.m_state->Record(), m_state->probe);
    const RecordLines before = LinesOf(m_state->text, mine);
    const RecordLines now = LinesOf(other.m_state->text, theirs);
    return std::equal(before.begin(), before.end(), now.begin(), now.end(), [](const auto& a, const auto& b) {
        return a.first == b.first && SameValue(a.second, b.second);
    });
}

} // namespace QuorProbeFile
