#include "fuzz/PlainIni.h"

#include <algorithm>

namespace Fuzz {

using namespace QuorIniFile;

std::wstring Folded(std::wstring name) {
    std::transform(name.begin(), name.end(), name.begin(), [](wchar_t c) {
        return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
    });
    return name;
}

PlainIni::PlainIni(std::string_view text) {
    text.remove_prefix(MarkLength(text));
    std::optional<std::wstring> section; // that of the line, unless its keys count for nothing
    while (!text.empty()) {
        const std::size_t feed = text.find('\n');
        const std::size_t length = feed == std::string_view::npos ? text.size() : feed + 1;
        std::string_view content = text.substr(0, std::min(feed, text.size()));
        if (feed != std::string_view::npos && content.ends_with('\r'))
            content.remove_suffix(1);
        const IniLine parsed = ClassifyLine(content);
        const std::size_t number = m_lines.size();
        m_lines.push_back({content, text.substr(content.size(), length - content.size()), parsed});
        text.remove_prefix(length);

        if (parsed.kind == IniLineKind::BrokenSection) {
            section.reset();
        } else if (parsed.kind == IniLineKind::Section) {
            section = Folded(DecodeBytes(parsed.name));
            if (m_sections.insert(*section).second)
                m_names.push_back(parsed.name);
            else
                section.reset();
        } else if (parsed.kind == IniLineKind::Key && section) {
            m_keys.emplace(Place(*section, Folded(DecodeBytes(parsed.name))), number);
        }
    }
}

std::optional<std::string_view> PlainIni::Value(const Place& place) const {
    const auto found = m_keys.find(place);
    if (found == m_keys.end())
        return std::nullopt;
    return m_lines[found->second].parsed.value;
}

} // namespace Fuzz
