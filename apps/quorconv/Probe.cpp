#include "apps/quorconv/Probe.h"

#include "QuorProbeFile/ProbeTypes.h"

namespace quorconv {

using namespace QuorConversions;

void MessageLog::ShowMessage(const MessageRequest& request) {
    ScriptedPlatform::ShowMessage(request);
    m_messages.push_back(Scripted::OnOneLine(request.text));
}

std::wstring TypeName(std::int32_t code) {
    const wchar_t* const enumerator = ConversionEnumerator(code);
    return enumerator ? enumerator : std::to_wstring(code);
}

Probe::Probe(std::wstring section)
    : m_section(std::move(section)),
      m_messages(std::make_shared<MessageLog>()),
      m_conversion(std::make_unique<CQuorConversion>(m_messages)) {}

std::wstring Probe::Name() const { return QuorProbeFile::NameOf(*m_conversion); }

} // namespace quorconv
