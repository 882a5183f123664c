#include "QuorProbeFile/RecordAsRead.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorProbeFile/detail/RecordBaseline.h"
#include "QuorProbeFile/detail/RecordReading.h"

#include <algorithm>

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

bool RecordAsRead::HasSameValues(const RecordAsRead& other) const {
    if (!m_state || !other.m_state)
        return !m_state && !other.m_state;
    const RecordReading mine(m_state->Record(), m_state->probe);
    const RecordReading theirs(other.m_state->Record(), m_state->probe);
    return std::equal(mine.Reads().begin(), mine.Reads().end(), theirs.Reads().begin(), theirs.Reads().end(),
                      [](const ReadLog::Read& a, const ReadLog::Read& b) {
                          return a.section == b.section && a.key == b.key && a.found == b.found &&
                                 (!a.found || SameValue(a.value, b.value));
                      });
}

} // namespace QuorProbeFile
