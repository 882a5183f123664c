#include "QuorIniFile/detail/IniFormat.h"

#include "QuorIniFile/AsciiCase.h"
#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <array>
#include <utility>

namespace QuorIniFile {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

bool StartsComment(char c) { return c == ';' || c == '#'; }

std::string_view TrimLeft(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

std::string_view TrimRight(std::string_view text) {
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

IniLine ClassifyHeader(std::string_view header) {
    std::size_t close = npos;
    for (std::size_t at = 1; at < header.size(); ++at) {
        if (header[at] != ']')
            continue;
        close = at;
        const std::string_view behind = TrimLeft(header.substr(at + 1));
        if (behind.empty() || StartsComment(behind.front()))
            break;
    }
    if (close == npos)
        return {IniLineKind::BrokenSection, {}, {}};
    return {IniLineKind::Section, header.substr(1, close - 1), {}};
}

/// Where the text in quotes ends that `value` begins with.
std::size_t ClosingQuote(std::string_view value) {
    for (std::size_t at = 1; at < value.size(); ++at) {
        if (value[at] == '"')
            return at;
        if (value[at] == '\\' && at + 1 < value.size() && (value[at + 1] == '\\' || value[at + 1] == '"'))
            ++at;
    }
    return npos;
}

/// The same text in quotes, if it stands in none.
std::string InQuotes(std::string_view text) {
    if (text.starts_with('"'))
        return std::string(text);
    std::string quoted(1, '"');
    for (const char c : text) {
        if (c == '"' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted.append(1, '"');
}

std::wstring FromLatin1(std::string_view bytes) {
    std::wstring text(bytes.size(), L'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char c) { return static_cast<wchar_t>(static_cast<unsigned char>(c)); });
    return text;
}

/// Letters, digits and hyphens, and blanks between them: such a name reads back wherever it stands.
bool IsPlain(std::string_view name) {
    static constexpr auto plain = [] {
        std::array<bool, 256> table{};
        for (const char c :
             std::string_view("0123456789 -ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"))
            table[static_cast<unsigned char>(c)] = true;
        return table;
    }();
    return !name.empty() && !IsBlank(name.front()) && !IsBlank(name.back()) &&
           std::all_of(name.begin(), name.end(), [](char c) { return plain[static_cast<unsigned char>(c)]; });
}

/// Line breaks end a name wherever it stands, and a NUL can make a new file look like UTF-16.
bool HasForbiddenByte(std::string_view name) {
    return name.find_first_of(std::string_view("\n\r\0", 3)) != npos;
}

} // namespace

IniLine ClassifyLine(std::string_view line) {
    const std::string_view rest = TrimLeft(line);
    if (rest.empty())
        return {};
    if (StartsComment(rest.front()))
        return {IniLineKind::Comment, {}, {}};
    if (rest.front() == '[')
        return ClassifyHeader(rest);
    const std::size_t equals = rest.find('=');
    if (equals == npos)
        return {IniLineKind::Malformed, {}, {}};
    const std::string_view name(rest.data(), equals);
    const std::string_view value(rest.data() + equals + 1, rest.size() - equals - 1);
    return {IniLineKind::Key, TrimRight(name), TrimRight(TrimLeft(value))};
}

bool IniContinuation::IsPartOfValue(std::string_view line, IniLineKind kind) {
    if (kind == IniLineKind::Comment)
        return false; // neither a part nor the end of a value
    const bool isBelowBackslash = m_isContinued;
    m_isContinued = false;
    if (kind == IniLineKind::Blank)
        return isBelowBackslash;
    m_isValue = kind == IniLineKind::Key || isBelowBackslash || (m_isValue && IsBlank(line.front()));
    m_isContinued = m_isValue && line.back() == '\\';
    return m_isValue;
}

IniCommentedValue SplitTextComment(std::string_view value) {
    if (!value.starts_with('"'))
        return {value, {}};
    const std::size_t close = ClosingQuote(value);
    if (close == npos)
        return {value, {}};
    const std::string_view behind = value.substr(close + 1);
    const std::string_view comment = TrimLeft(behind);
    if (comment.size() == behind.size() || !comment.starts_with(';') || comment.find('"') != npos)
        return {value, {}};
    return {value.substr(0, close + 1), comment};
}

IniCommentedValue SplitComment(std::string_view value) {
    if (value.empty() || value.front() == '"')
        return SplitTextComment(value);
    for (std::size_t at = value.find(';'); at != npos; at = value.find(';', at + 1)) {
        if (at == 0 || IsBlank(value[at - 1]))
            return {TrimRight(value.substr(0, at)), value.substr(at)};
    }
    return {value, {}};
}

std::string RewriteLine(std::string_view line, const IniNewValue& value) {
    const std::string_view present = ClassifyLine(line).value;
    if (value.isText && value.bytes == present)
        return std::string(line);
    const std::string_view old = SplitComment(present).plain;
    const auto start = static_cast<std::size_t>(old.data() - line.data());
    const std::string_view before = line.substr(0, start);
    std::string tail(line.substr(start + old.size()));
    std::string bytes = value.bytes;
    if (value.isText && old.size() < present.size()) {
        bytes = InQuotes(bytes);
        std::replace(tail.begin(), tail.end(), '"', '\'');
    }
    if (!value.comment.empty())
        tail = ' ' + value.comment;
    else if (tail.starts_with(';'))
        tail.insert(0, 1, ' '); // there was no value to keep the comment away from the '='
    return std::string(before).append(bytes).append(tail);
}

std::size_t MarkLength(std::string_view text) { return text.starts_with("\xEF\xBB\xBF") ? 3 : 0; }

bool IsUtf16(std::string_view text) {
    return text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF") ||
           (text.size() >= 2 && (text[0] == '\0') != (text[1] == '\0'));
}

bool IniWalker::Next() {
    if (m_next >= m_text.size())
        return false;
    const IniCut cut = CutLine(m_text, m_next);
    m_bytes = cut.line;
    m_line = ClassifyLine(m_bytes);
    m_next = cut.next;
    ++m_number;
    return true;
}

IniEncoding EncodingOf(std::string_view text) {
    return IsUtf8(text) ? IniEncoding::Utf8 : IniEncoding::Latin1;
}

std::wstring DecodeBytes(std::string_view bytes) {
    std::optional<std::wstring> text = FromUtf8(bytes);
    return text ? *std::move(text) : FromLatin1(bytes);
}

std::optional<std::string> NameToFind(std::wstring_view name) {
    std::string bytes = ToUtf8(name);
    return IsAscii(name) || FromUtf8(bytes) == name ? std::optional(std::move(bytes)) : std::nullopt;
}

std::optional<std::string> NameToWrite(std::wstring_view name, IniEncoding encoding) {
    if (encoding == IniEncoding::Utf8)
        return NameToFind(name);
    std::string bytes(name.size(), '\0');
    std::transform(name.begin(), name.end(), bytes.begin(), [](wchar_t c) { return static_cast<char>(c); });
    return DecodeBytes(bytes) == name ? std::optional(std::move(bytes)) : std::nullopt;
}

std::string_view CanonicalName(std::string_view name, std::string& buffer) {
    if (IsUtf8(name))
        return name;
    buffer.clear();
    for (const char c : name) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80)
            buffer += c;
        else
            buffer.append(1, static_cast<char>(0xC0U | code >> 6U))
                .append(1, static_cast<char>(0x80U | (code & 0x3FU)));
    }
    return buffer;
}

bool AreOneName(std::string_view name, std::string_view wanted) {
    // Latin-1 takes fewer bytes than UTF-8, so names of one length are compared for good.
    if (name.size() == wanted.size())
        return EqualFolded(name, wanted);
    // Many short names are compared with one that may be very long: the look is at the short one.
    if (name.size() > wanted.size() || IsAscii(name))
        return false;
    std::string buffer;
    return EqualFolded(CanonicalName(name, buffer), wanted);
}

bool AreOneName(std::string_view name, std::wstring_view wanted) {
    // No character has more units than bytes, nor a unit more than four bytes: of a short and a very long
    // name nobody looks at the long one.
    constexpr std::size_t mostBytes = 4;
    if (wanted.size() > name.size() || name.size() / mostBytes > wanted.size())
        return false;
    if (wanted.empty())
        return name.empty();
    // The first character tells most names apart, whatever the encoding of the rest.
    const bool isAscii = IsAscii(name.substr(0, 1));
    if (isAscii != IsAscii(wanted.substr(0, 1)) ||
        (isAscii && Small(static_cast<wchar_t>(name.front())) != Small(wanted.front())))
        return false;
    if (IsAscii(name))
        return EqualFolded(name, wanted);
    return EqualFolded(std::wstring_view(DecodeBytes(name)), wanted);
}

bool IsSectionName(std::string_view name) {
    if (IsPlain(name))
        return true;
    const std::string header = '[' + std::string(name) + ']';
    const IniLine line = ClassifyLine(header);
    return line.kind == IniLineKind::Section && line.name == name && !HasForbiddenByte(name);
}

bool IsKeyName(std::string_view name) {
    if (IsPlain(name))
        return true;
    const std::string text = std::string(name) + '=';
    const IniLine line = ClassifyLine(text);
    return line.kind == IniLineKind::Key && line.name == name && !HasForbiddenByte(name);
}

} // namespace QuorIniFile
