#include "QuorIniFile/IniLines.h"

#include "QuorIniFile/AsciiCase.h"
#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniValue.h"

#include <algorithm>

namespace QuorIniFile {

IniLines::IniLines(std::string_view text, const Place& from) : m_text(text), m_next(from) {
    m_next.offset = std::max(from.offset, MarkLength(text));
}

bool IniLines::Next() {
    while (m_next.offset < m_text.size()) {
        const IniCut cut = CutLine(m_text, m_next.offset);
        const IniLine line = ClassifyLine(cut.line);
        m_line = m_next;
        m_next = {cut.next, m_next.number + 1};
        m_name = line.name;
        m_value = line.value;
        switch (line.kind) {
        case IniLineKind::Blank:
        case IniLineKind::Comment:
            continue;
        case IniLineKind::Section:
            m_kind = Kind::Header;
            return true;
        case IniLineKind::BrokenSection:
            m_kind = Kind::UnclosedHeader;
            return true;
        case IniLineKind::Key:
            m_kind = Kind::Key;
            return true;
        case IniLineKind::Malformed:
            m_kind = Kind::Malformed;
            return true;
        }
    }
    return false;
}

bool IniLines::NextHeader() { return NextHeaderOr({}); }

bool IniLines::NextHeaderOr(std::string_view key) {
    while (m_next.offset < m_text.size()) {
        std::size_t start = m_next.offset;
        while (start < m_text.size() && (m_text[start] == ' ' || m_text[start] == '\t'))
            ++start;
        const std::string_view line = m_text.substr(start);
        const bool isHeader = line.starts_with('[');
        if (!isHeader && (key.empty() || !EqualFolded(line.substr(0, key.size()), key)))
            m_next = {CutLine(m_text, m_next.offset).next, m_next.number + 1};
        else if (Next() && (isHeader || (Is(Kind::Key) && HasName(key))))
            return true;
    }
    return false;
}

std::wstring IniLines::Name() const { return DecodeBytes(m_name); }

bool IniLines::HasName(std::string_view name) const {
    return m_name.size() == name.size() && SameName(m_name, name); // ASCII has one spelling
}

std::wstring IniLines::Value() const { return DecodeBytes(SplitComment(m_value).plain); }

std::wstring IniLines::ValueWithComment() const { return DecodeBytes(m_value); }

std::optional<std::int16_t> IniLines::Integer() const { return ParseInteger(SplitComment(m_value).plain); }

} // namespace QuorIniFile
