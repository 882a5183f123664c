#include "toolkits/scripted/Script.h"

#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace QuorConversions::Scripted {
namespace {

constexpr std::int16_t enterKey = 13;

std::wstring_view Trimmed(std::wstring_view text) {
    const auto first = text.find_first_not_of(L" \t\r");
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(L" \t\r") - first + 1);
}

/// The name of a control at the start of `rest`, and what follows it. The longest name counts, because names
/// hold blanks.
std::pair<std::wstring, std::wstring> SplitName(const Person& person, const std::wstring& rest) {
    std::wstring best;
    for (const std::wstring& name : person.Names())
        if (name.size() > best.size() && (rest == name || rest.starts_with(name + L" ")))
            best = name;
    if (best.empty())
        best = rest.substr(0, rest.find(L' ')); // a name in the code, or one that will be complained of
    return {best, std::wstring(Trimmed(std::wstring_view(rest).substr(best.size())))};
}

constexpr struct {
    std::wstring_view written;
    wchar_t meaning;
} escapes[] = {{L"\\t", L'\t'}, {L"\\n", L'\n'}, {L"\\r", L'\r'}, {L"\\\\", L'\\'}};

/// The character that `text` begins to name by its number, as "\u{A0}", and the length of that; 0 for none.
std::pair<wchar_t, std::size_t> NumberedCharacter(std::wstring_view text) {
    constexpr std::wstring_view hexDigits = L"0123456789ABCDEF";
    if (!text.starts_with(L"\\u{"))
        return {};
    std::uint32_t number = 0;
    for (std::size_t at = 3; at < text.size() && at < 10; ++at) {
        if (text[at] == L'}')
            return {static_cast<wchar_t>(number), at > 3 && number <= 0x10FFFF ? at + 1 : 0};
        const auto digit = hexDigits.find(text[at]);
        if (digit == std::wstring_view::npos)
            break;
        number = number * 16 + static_cast<std::uint32_t>(digit);
    }
    return {};
}

/// A text with the character for each escape: \t, \n, \r, \\ and \u{A0}.
std::wstring Unescaped(std::wstring_view text) {
    std::wstring result;
    while (!text.empty()) {
        const auto* const escape =
            std::find_if(std::begin(escapes), std::end(escapes),
                         [text](const auto& e) { return text.starts_with(e.written); });
        const auto [character, length] = NumberedCharacter(text);
        result += escape != std::end(escapes) ? escape->meaning : length > 0 ? character : text.front();
        text.remove_prefix(escape != std::end(escapes) ? escape->written.size()
                                                       : std::max<std::size_t>(length, 1));
    }
    return result;
}

/// Of what is expected the text of an advice; nothing for a message.
std::optional<std::wstring> AdviceIn(std::wstring_view expected) {
    constexpr std::wstring_view advice = L"advice ";
    if (!expected.starts_with(advice))
        return std::nullopt;
    return std::wstring(Trimmed(expected.substr(advice.size())));
}

/// Tells the platform of each advice that a person has seen and the script has not expected.
class AdviceLog {
public:
    AdviceLog(ScriptedPlatform& platform, const Person& person) : m_platform(platform), m_person(person) {
        m_platform.ForgetAdvice();
    }
    ~AdviceLog() {
        for (const auto& [advice, place] : m_seen) {
            std::wstring text = advice.second;
            if (!place.empty())
                text.append(L" (").append(place).append(L")");
            m_platform.TellAdvice(std::move(text));
        }
    }
    AdviceLog(const AdviceLog&) = delete;
    AdviceLog& operator=(const AdviceLog&) = delete;

    void Begin(std::size_t line, const std::wstring& command, const std::optional<std::wstring>& expected) {
        m_place = L"line " + std::to_wstring(line) + L": " + command;
        if (!expected)
            return;
        for (const auto& advice : m_person.AllAdvice()) { // of the boxes that show it at this line
            if (advice.second != *expected)
                continue;
            m_expected.insert(advice);
            m_seen.erase(advice);
        }
    }
    /// At what stands on the screen now. What was expected holds for as long as its box shows it.
    void Look() {
        const auto shown = m_person.AllAdvice();
        std::erase_if(m_expected, [&](const auto& advice) { return !shown.contains(advice); });
        for (const auto& advice : shown)
            if (!m_expected.contains(advice))
                m_seen.try_emplace(advice, m_place);
    }

private:
    ScriptedPlatform& m_platform;
    const Person& m_person;
    std::wstring m_place;                     // of the line that is carried out; empty before the first one
    std::map<BoxAdvice, std::wstring> m_seen; // with its place
    std::set<BoxAdvice> m_expected;
};

/// A dialog looks at the whole text with each key.
void RequireTypable(const std::wstring& text) {
    constexpr std::size_t most = 1000;
    if (text.size() > most)
        throw CannotDo(L"more than 1000 characters are no text to type; \"paste\" takes them at once");
}

/// A box leaves out keys that no number has: what is left of "0x1p3" would be another number. Of some it
/// gives advice, which is told by itself.
void RequireTyped(const Person& person, const std::wstring& box, const std::wstring& text) {
    const std::wstring taken = person.Reads(box);
    const auto isSame = [](wchar_t typed, wchar_t shown) { // the point key types the separator
        return typed == shown || (typed == L'.' && shown == L',');
    };
    if (!std::equal(text.begin(), text.end(), taken.begin(), taken.end(), isSame) &&
        person.Advice(box).empty())
        throw CannotDo(L"of \"" + text + L"\" the box \"" + box + L"\" has \"" + taken + L"\"");
}

} // namespace

std::optional<std::wstring> Script::Line::AnnouncedAdvice() const {
    return verb == L"expect" ? AdviceIn(rest) : std::nullopt;
}

ScriptError::ScriptError(std::size_t lineNumber, const std::wstring& what)
    : std::runtime_error(QuorIniFile::ToUtf8(L"line " + std::to_wstring(lineNumber) + L": " + what)),
      line(lineNumber),
      text(L"line " + std::to_wstring(lineNumber) + L": " + what) {}

/// What may be needed to carry out a command.
struct Script::Verb {
    struct Stage {
        Person& person;
        ScriptedPlatform& platform;
        const std::function<void(const std::wstring&)>& print;
    };
    const wchar_t* name;
    bool hasArgument;
    void (*run)(const Stage& stage, const std::wstring& rest);
};

const Script::Verb* Script::FindVerb(const std::wstring& name) {
    static constexpr Verb verbs[] = {
        {L"type", true,
         [](const Verb::Stage& stage, const std::wstring& rest) {
             const auto [box, text] = SplitName(stage.person, rest);
             RequireTypable(text);
             stage.person.Type(box, text);
             RequireTyped(stage.person, box, text);
         }},
        {L"paste", true,
         [](const Verb::Stage& stage, const std::wstring& rest) {
             const auto into = rest.rfind(L" into ");
             if (into == std::wstring::npos)
                 throw CannotDo(L"\"paste\" does not say into which box");
             stage.person.Paste(Trimmed(std::wstring_view(rest).substr(into + 6)),
                                Unescaped(std::wstring_view(rest).substr(0, into)));
         }},
        {L"choose", true,
         [](const Verb::Stage& stage, const std::wstring& rest) {
             const auto [list, item] = SplitName(stage.person, rest);
             stage.person.Choose(list, item);
         }},
        {L"page", true,
         [](const Verb::Stage& stage, const std::wstring& rest) { stage.person.TurnTo(rest); }},
        {L"click", true,
         [](const Verb::Stage& stage, const std::wstring& rest) { stage.person.Click(rest); }},
        {L"key", true,
         [](const Verb::Stage& stage, const std::wstring& rest) {
             RequireTypable(rest);
             stage.person.TypeHere(rest);
         }},
        {L"enter", false,
         [](const Verb::Stage& stage, const std::wstring&) { stage.person.Press(enterKey); }},
        {L"tab", false, [](const Verb::Stage& stage, const std::wstring&) { stage.person.Tab(); }},
        {L"backtab", false, [](const Verb::Stage& stage, const std::wstring&) { stage.person.Tab(true); }},
        {L"escape", false, [](const Verb::Stage& stage, const std::wstring&) { stage.person.Escape(); }},
        {L"help", false, [](const Verb::Stage& stage, const std::wstring&) { stage.person.Help(); }},
        {L"close", false, [](const Verb::Stage& stage, const std::wstring&) { stage.person.Close(); }},
        {L"file", true,
         [](const Verb::Stage& stage, const std::wstring& rest) { stage.platform.ChooseFile(rest); }},
        {L"nofile", false,
         [](const Verb::Stage& stage, const std::wstring&) { stage.platform.CancelFile(); }},
        {L"expect", true,
         [](const Verb::Stage& stage, const std::wstring& rest) {
             const auto advice = AdviceIn(rest);
             if (!advice)
                 stage.platform.ExpectMessage(rest);
             else if (!stage.person.SeesAdvice(*advice))
                 throw CannotDo(L"there is no advice \"" + *advice + L"\"");
         }},
        {L"show", false,
         [](const Verb::Stage& stage, const std::wstring&) { stage.print(stage.person.Screen()); }},
    };
    const auto* const verb =
        std::find_if(std::begin(verbs), std::end(verbs), [&](const Verb& v) { return v.name == name; });
    return verb == std::end(verbs) ? nullptr : verb;
}

Script::Script(std::wstring_view text, std::size_t ownLines) {
    for (std::size_t number = 1; !text.empty(); ++number) {
        const auto end = text.find(L'\n');
        const std::wstring_view line = Trimmed(text.substr(0, end));
        text = end == std::wstring_view::npos ? std::wstring_view{} : text.substr(end + 1);
        if (line.empty() || line.front() == L'#')
            continue;
        const auto blank = line.find(L' ');
        std::wstring verb(line.substr(0, blank));
        std::wstring rest(blank == std::wstring_view::npos ? std::wstring_view{}
                                                           : Trimmed(line.substr(blank)));
        const Verb* const known = FindVerb(verb);
        if (!known)
            throw ScriptError(number - ownLines, L"there is no command \"" + verb + L"\"");
        if (known->hasArgument == rest.empty())
            throw ScriptError(number - ownLines,
                              L"\"" + verb + (rest.empty() ? L"\" needs more" : L"\" stands alone"));
        m_lines.push_back({number - ownLines, std::move(verb), std::move(rest)});
    }
}

void Script::PlayOn(ScriptedPlatform& platform, std::function<void(const std::wstring&)> print) const {
    platform.ExpectNoMessages();
    platform.InDialog([lines = m_lines, &platform, print = std::move(print)](Person& person) {
        const auto endAt = [](const Line& line) {
            throw CannotDo(L"in line " + std::to_wstring(line.number) + L": " + line.verb + L" " + line.rest);
        };
        std::vector<const Line*> announced; // the messages that were, in that order
        AdviceLog advice(platform, person);
        advice.Look();
        const auto endAtWhatDidNotCome = [&] {
            platform.ComplainOfWhatDidNotCome();
            if (const std::size_t missing = platform.MessagesToCome(); missing > 0)
                endAt(*announced[announced.size() - missing]);
        };
        for (const Line& line : lines) {
            const std::size_t before = platform.Complaints().size();
            const std::size_t toCome = platform.MessagesToCome();
            advice.Begin(line.number, line.verb + L" " + line.rest, line.AnnouncedAdvice());
            try {
                FindVerb(line.verb)->run({person, platform, print}, line.rest);
            } catch (const CannotDo& error) {
                if (!person.Sees().IsOpen()) // without a message that was to keep it open, it is too early
                    endAtWhatDidNotCome();
                platform.Complain(error.text);
            }
            if (platform.Complaints().size() > before)
                endAt(line);
            advice.Look();
            if (platform.MessagesToCome() > toCome)
                announced.push_back(&line);
        }
        endAtWhatDidNotCome();
    });
}

} // namespace QuorConversions::Scripted
