#include "QuorIniFile/IniWarning.h"

#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniNames.h"
#include "QuorIniFile/detail/Unicode.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace QuorIniFile {
namespace {

class WarningReader {
public:
    explicit WarningReader(std::string_view text) : m_walker(text) {
        constexpr std::size_t few = 16; // so many are compared faster than put into a table
        m_fewKeys.reserve(few);
    }

    [[nodiscard]] std::vector<IniWarning> Read() {
        while (m_walker.Next()) {
            const IniLine& line = m_walker.Line();
            switch (line.kind) {
            case IniLineKind::Section:
                ReadHeader(line.name);
                break;
            case IniLineKind::BrokenSection:
                BeginSection({}, false);
                Warn(IniWarningKind::UnclosedHeader, {}, 0);
                break;
            case IniLineKind::Key:
                ReadKey(line.name);
                break;
            case IniLineKind::Malformed:
                Warn(IniWarningKind::MalformedLine, {}, 0);
                break;
            case IniLineKind::Blank:
            case IniLineKind::Comment:
                break;
            }
            if (HidesLines()) {
                Warn(IniWarningKind::LineEndsInCr, {}, 0);
                if (line.kind == IniLineKind::Section) // the name may be all of the file
                    m_warnings.back().section.clear();
            }
        }
        return std::move(m_warnings);
    }

private:
    struct Header {
        std::string_view name; // as it stands in the text
        std::size_t line = 0;
    };

    /// Whether a carriage return in the line stands between what looks like a line and one that is to be
    /// read.
    [[nodiscard]] bool HidesLines() const {
        std::string_view rest = m_walker.Bytes();
        bool isBehindLine = false;
        for (std::size_t end = rest.find('\r'); end != npos || isBehindLine; end = rest.find('\r')) {
            const IniLineKind kind = ClassifyLine(rest.substr(0, end)).kind;
            if (isBehindLine && (kind == IniLineKind::Section || kind == IniLineKind::Key))
                return true;
            if (end == npos)
                return false;
            isBehindLine = kind != IniLineKind::Malformed && kind != IniLineKind::BrokenSection;
            rest.remove_prefix(end + 1);
        }
        return false;
    }

    void ReadHeader(std::string_view name) {
        std::string buffer;
        std::string_view canonical = CanonicalName(name, buffer);
        if (canonical.data() != name.data())
            canonical = m_spelled.emplace_back(canonical);
        const auto [first, isFirst] = m_sections.try_emplace(canonical, Header{name, m_walker.Number()});
        BeginSection(DecodeBytes(name), isFirst);
        if (isFirst)
            return;
        Warn(IniWarningKind::DuplicateSection, {}, first->second.line);
        m_warnings.back().section = DecodeBytes(first->second.name);
    }

    void ReadKey(std::string_view name) {
        if (!m_hasHeader)
            Warn(IniWarningKind::KeyAboveSections, name, 0);
        if (!m_isRead)
            return;
        if (const std::size_t first = FirstOf(name))
            Warn(IniWarningKind::DuplicateKey, name, first);
    }

    /// The line of an earlier key of that name in the section, or 0, and notes this one then.
    [[nodiscard]] std::size_t FirstOf(std::string_view name) {
        std::string buffer;
        name = CanonicalName(name, buffer);
        if (m_keys.empty() && m_fewKeys.size() < m_fewKeys.capacity() && IsAscii(name)) {
            const auto found = std::find_if(m_fewKeys.begin(), m_fewKeys.end(),
                                            [name](const Header& key) { return SameName(key.name, name); });
            if (found != m_fewKeys.end())
                return found->line;
            m_fewKeys.push_back({name, m_walker.Number()}); // a name in the text itself
            return 0;
        }
        for (const Header& key : m_fewKeys)
            m_keys.try_emplace(std::string(key.name), key.line);
        m_fewKeys.clear();
        const auto [first, isFirst] = m_keys.try_emplace(std::string(name), m_walker.Number());
        return isFirst ? 0 : first->second;
    }

    void BeginSection(std::wstring name, bool isRead) {
        m_section = std::move(name);
        m_hasHeader = true;
        m_isRead = isRead;
        m_fewKeys.clear();
        if (!m_keys.empty()) // a new table: the old one, once large, would take long to clear each time
            m_keys = IniNameMap<std::size_t>();
    }

    void Warn(IniWarningKind kind, std::string_view key, std::size_t first) {
        m_warnings.push_back({kind, m_walker.Number(), first, m_section, DecodeBytes(key)});
    }

    IniWalker m_walker;
    std::vector<IniWarning> m_warnings;
    std::unordered_map<std::string_view, Header, IniNameHash, IniNameEqual> m_sections; // by name, the first
    std::deque<std::string> m_spelled; // names of sections that the text spells in another way
    std::vector<Header> m_fewKeys;     // of the section: the first key of each name, with its line;
    IniNameMap<std::size_t> m_keys;    // where there are many, or some outside ASCII, all of them
    std::wstring m_section;            // the name in the last header
    bool m_hasHeader = false;          // above the line
    bool m_isRead = false;             // the section: its header is the first of its name
};

} // namespace

std::vector<IniWarning> WarningsOf(std::string_view text) { return WarningReader(text).Read(); }

} // namespace QuorIniFile
