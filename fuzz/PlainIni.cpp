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
        m_lines.push_back({content, text.substr(content.size(), length - content.size()), parsed, false});
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
    MarkContinuedValues();
}

void PlainIni::MarkContinuedValues() {
    const auto is = [this](std::size_t line, IniLineKind kind) { return m_lines[line].parsed.kind == kind; };
    for (std::size_t key = 0; key < m_lines.size(); ++key) {
        if (!is(key, IniLineKind::Key))
            continue;
        std::size_t last = key; // of the value
        for (std::size_t line = key + 1; line < m_lines.size(); ++line) {
            if (is(line, IniLineKind::Comment))
                continue;
            const std::string_view content = m_lines[line].content;
            std::size_t above = line - 1;
            while (above > last && is(above, IniLineKind::Comment))
                --above;
            const bool isBelowBackslash = above == last && m_lines[last].content.ends_with('\\');
            const bool isIndented = content.starts_with(' ') || content.starts_with('\t');
            if (is(line, IniLineKind::Blank) && !isBelowBackslash)
                continue;
            if (!is(line, IniLineKind::Blank) &&
                (!is(line, IniLineKind::Malformed) || (!isBelowBackslash && !isIndented)))
                break;
            while (last < line)
                m_lines[++last].mustFollow = true;
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
