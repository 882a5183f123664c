#include "apps/quorconv/Steps.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/ValueText.h"
#include "QuorProbeFile/ProbeNames.h"
#include "apps/quorconv/Batch.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/Nearest.h"
#include "apps/quorconv/Progress.h"
#include "apps/quorconv/Selection.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace quorconv {

using namespace QuorProbeFile;

const TypeInfo& RequireSettingsType(const std::wstring& text) {
    const TypeInfo& type = RequireType(text);
    if (type.code == QuorConversions::CONV_NONE)
        throw UsageError{L"\"" + text + L"\" is no conversion type; the command \"types\" lists them"};
    return type;
}

void NewProbe(ProbeFile& file, const std::wstring& section, const std::wstring& type,
              const std::vector<Assignment>& assignments, const ValueRules& rules) {
    const TypeInfo& info = RequireSettingsType(type);
    if (file.Find(section))
        throw Problem{Place(file.Path(), section) + L": there is a probe in this section already"};
    RequireName(file, section);
    Probe probe(section);
    probe.Conversion().SetConversionType(info.code);
    Assign(probe, file.Path(), assignments, rules);
    file.Write(section, probe.Conversion());
}

void SetValues(ProbeFile& file, const std::wstring& section, const std::vector<Assignment>& assignments,
               const ValueRules& rules) {
    AssignInFile(file, section, assignments, rules);
}

void RenameProbe(ProbeFile& file, const std::wstring& section, const std::wstring& name) {
    RequireName(file, name);
    file.Rename(section, name);
}

void RetypeProbe(ProbeFile& file, const std::wstring& section, const std::wstring& type,
                 const std::vector<Assignment>& assignments, const ValueRules& rules) {
    const TypeInfo& info = RequireSettingsType(type);
    const auto present = file.Find(section);
    if (!present) {
        Probe none(section);
        static_cast<void>(file.Read(section, none.Conversion())); // which tells why there is none
    } else if (present->type == info.code) {
        throw Problem{Place(file.Path(), section) +
                      L": the probe already has this type; its values would be lost"};
    }
    Probe probe(section);
    probe.Conversion().SetConversionType(info.code);
    Assign(probe, file.Path(), assignments, rules);
    WriteRetyped(file, section, probe.Conversion());
}

void CopyProbe(ProbeFile& from, const std::wstring& section, ProbeFile& to, const std::wstring& name,
               bool replaces) {
    if (!to.Find(name))
        RequireName(to, name);
    else if (!replaces)
        throw Problem{Place(to.Path(), name) +
                      L": there is a probe in this section already; --replace writes over it"};
    to.CopyFrom(from, section, name);
}

namespace {

/// Whether a file keeps the settings of a probe in its one section.
bool IsStandAlone(const ProbeFile& file, const std::wstring& section) {
    const auto standAlone = StandAloneSection(file.Path());
    return standAlone && EqualFolded(*standAlone, section);
}

/// Whether sections named like the settings of a probe are its own.
bool OwnsSettings(const ProbeFile& file, std::wstring_view section) {
    std::int16_t code = 0;
    file.Store()->SetSection(section);
    const bool hasCode = file.Store()->ReadInteger(QuorConversions::conversionTypeKey, code);
    return !hasCode || MayHaveSettings(static_cast<QuorConversions::EQuorConversionType>(code));
}

/// The section of `to` for a section of `from`, if it is one of a probe that was copied.
std::optional<std::wstring> TargetOf(const std::wstring& name, const ProbeFile& from,
                                     const NameMap<std::wstring>& copied, const ProbeFile& to) {
    auto owners = PossibleOwners(name);
    owners.insert(owners.begin(), name);
    for (const std::wstring_view owner : owners) {
        const auto found = copied.find(std::wstring(owner));
        std::wstring rest = name.substr(owner.size()); // " - Settings - Low Range"
        if (found == copied.end() || (!rest.empty() && !OwnsSettings(from, owner)))
            continue;
        if (rest.empty() && IsStandAlone(from, name))
            rest = settingsMark;
        if (!rest.empty() && IsStandAlone(to, found->second))
            rest.erase(0, settingsMark.size());
        return found->second + rest;
    }
    return std::nullopt;
}

/// A key of a section, with its value and comment as they stand there: nobody knows its type.
struct CopiedKey {
    std::wstring section;
    std::wstring name;
    std::wstring text;
    std::wstring plain; ///< without the comment behind a number or flag
};

/// The key in a line; nothing for a line that has none, or one of the record itself.
std::optional<CopiedKey> KeyIn(const QuorIniFile::IniLines& line, const std::wstring& target) {
    if (!line.Is(QuorIniFile::IniLines::Kind::Key))
        return std::nullopt;
    CopiedKey key{target, line.Name(), line.ValueWithComment(), line.Value()};
    if (EqualFolded(key.name, QuorConversions::versionKey) ||
        EqualFolded(key.name, QuorConversions::conversionTypeKey))
        return std::nullopt;
    return key;
}

/// The keys that CopyOtherKeys copies. Of a key that stands twice the first line, which is read.
std::vector<CopiedKey> OtherKeys(ProbeFile& from, const NameMap<std::wstring>& copied, const ProbeFile& to,
                                 NameSet but) {
    using LineKind = QuorIniFile::IniLines::Kind;
    std::vector<CopiedKey> keys;
    // Of one probe, as in each of thousands of steps, a glance at a name tells most of the others from it.
    const std::wstring begin = copied.size() == 1 ? copied.begin()->first : L"";
    auto line = from.Store()->Lines();
    for (bool isThere = line.NextHeader(); isThere;) {
        const std::wstring section = line.Name();
        const bool mayBeOfIt = EqualFolded(std::wstring_view(section).substr(0, begin.size()), begin);
        const auto target =
            mayBeOfIt && line.Is(LineKind::Header) ? TargetOf(section, from, copied, to) : std::nullopt;
        if (!target) {
            isThere = line.NextHeader();
            continue;
        }
        while ((isThere = line.Next()) && (line.Is(LineKind::Key) || line.Is(LineKind::Malformed)))
            if (const auto key = KeyIn(line, *target);
                key && but.insert(std::wstring(section).append(L"/").append(key->name)).second)
                keys.push_back(*key);
    }
    return keys;
}

/// The path of a key in the record of its probe.
std::wstring PathOf(const CopiedKey& key) {
    const auto mark = Folded(key.section).rfind(Folded(std::wstring(settingsMark)));
    const std::wstring place = // " - Low Range"
        mark == std::wstring::npos ? L"" : key.section.substr(mark + settingsMark.size());
    return place.empty() ? key.name : place.substr(nestedMark.size()) + L"/" + key.name;
}

/// Whether a key may be a value of a record of any type.
bool IsOfSomeRecord(const CopiedKey& key) {
    return std::any_of(Types().begin(), Types().end(),
                       [&](const TypeInfo& type) { return MayHaveKey(type.code, PathOf(key)); });
}

/// Whether the selected section has a value of a record already, in whatever spelling: it was written by its
/// type.
bool HasValue(QuorIniFile::IniStore& store, const CopiedKey& key) {
    if (!IsOfSomeRecord(key))
        return false;
    std::wstring text;
    bool flag = false;
    double number = 0.0;
    const auto givenNumber = QuorIniFile::DoubleOf(key.plain);
    const auto givenFlag = QuorIniFile::BooleanOf(key.plain);
    return (store.ReadString(key.name, text) && text == key.plain) ||
           (givenNumber && store.ReadDouble(key.name, number) && SameValue(number, *givenNumber)) ||
           (givenFlag && store.ReadBoolean(key.name, flag) && flag == *givenFlag);
}

void WriteKeys(ProbeFile& to, const std::vector<CopiedKey>& keys) {
    for (const CopiedKey& key : keys) {
        to.Store()->SetSection(key.section);
        if (!HasValue(*to.Store(), key))
            to.Store()->WriteAsItStands(key.name, key.text);
    }
}

/// Whether a key of the settings of a probe is a value of one of two types; null for one that nobody knows.
bool IsValue(const CopiedKey& key, const TypeInfo* before, const TypeInfo& now) {
    return MayHaveKey(now.code, PathOf(key)) ||
           (before ? MayHaveKey(before->code, PathOf(key)) : IsOfSomeRecord(key));
}

} // namespace

void CopyOtherKeys(ProbeFile& from, const NameMap<std::wstring>& copied, ProbeFile& to, const NameSet& but) {
    WriteKeys(to, OtherKeys(from, copied, to, but));
}

void WriteRetyped(ProbeFile& file, const std::wstring& section,
                  const QuorConversions::CQuorConversion& conversion) {
    std::int16_t code = 0;
    file.Store()->SetSection(section);
    const TypeInfo* const before =
        file.Store()->ReadInteger(QuorConversions::conversionTypeKey, code) ? FindType(code) : nullptr;
    const TypeInfo& now = *FindType(conversion.ConversionType());
    auto keys = OtherKeys(file, {{section, section}}, file, {});
    std::erase_if(keys, [&](const CopiedKey& key) {
        return EqualFolded(key.section, section) || IsValue(key, before, now);
    });
    if (!keys.empty() && !MayHaveSettings(now.code)) {
        std::vector<std::wstring> own;
        own.reserve(keys.size());
        for (const CopiedKey& key : keys)
            own.push_back(L"[" + key.section + L"] " + key.name + L"=" + key.text);
        throw Problem{Place(file.Path(), section) + L": " + now.enumerator +
                          L" has no settings, and keys beside the values would be lost with them",
                      std::move(own)};
    }
    file.Write(section, conversion);
    WriteKeys(file, keys);
}

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

using Strings = std::vector<std::wstring>;

/// The words from one on.
Strings WordsFrom(const Strings& words, std::size_t first) {
    return {words.begin() + static_cast<std::ptrdiff_t>(std::min(first, words.size())), words.end()};
}

/// What a command needs, and what it does, by the words behind it.
struct StepCommand {
    const wchar_t* name;
    bool isForPresent; // the first word is a probe that is there
    const wchar_t* arguments;
    std::size_t least;
    std::size_t most; // words
    std::function<void(ProbeFile&)> (*make)(const Strings&, const ValueRules&);
};

constexpr std::size_t any = static_cast<std::size_t>(-1);

const std::vector<StepCommand>& StepCommands() {
    static const std::vector<StepCommand> commands{
        {L"new", false, L"SECTION TYPE [KEY=VALUE...]", 2, any,
         [](const Strings& words, const ValueRules& rules) -> std::function<void(ProbeFile&)> {
             return [words, rules, values = Assignments(WordsFrom(words, 2))](ProbeFile& file) {
                 NewProbe(file, words[0], words[1], values, rules);
             };
         }},
        {L"set", true, L"SECTION KEY=VALUE...", 2, any,
         [](const Strings& words, const ValueRules& rules) -> std::function<void(ProbeFile&)> {
             return [section = words[0], rules, values = Assignments(WordsFrom(words, 1))](ProbeFile& file) {
                 SetValues(file, section, values, rules);
             };
         }},
        {L"copy", true, L"SECTION TO-SECTION [--replace]", 2, 3,
         [](const Strings& words, const ValueRules& /*rules*/) -> std::function<void(ProbeFile&)> {
             if (words.size() == 3 && words[2] != L"--replace")
                 throw Problem{L"\"--replace\" expected: " + words[2]};
             return [words](ProbeFile& file) {
                 CopyProbe(file, words[0], file, words[1], words.size() == 3);
                 CopyOtherKeys(file, {{words[0], words[1]}}, file);
             };
         }},
        {L"rename", true, L"SECTION NAME", 2, 2,
         [](const Strings& words, const ValueRules& /*rules*/) -> std::function<void(ProbeFile&)> {
             return [words](ProbeFile& file) { RenameProbe(file, words[0], words[1]); };
         }},
        {L"retype", true, L"SECTION TYPE [KEY=VALUE...]", 2, any,
         [](const Strings& words, const ValueRules& rules) -> std::function<void(ProbeFile&)> {
             return [words, rules, values = Assignments(WordsFrom(words, 2))](ProbeFile& file) {
                 RetypeProbe(file, words[0], words[1], values, rules);
             };
         }},
        {L"remove", true, L"SECTION", 1, 1,
         [](const Strings& words, const ValueRules& /*rules*/) -> std::function<void(ProbeFile&)> {
             return [words](ProbeFile& file) { file.Remove(words[0]); };
         }},
    };
    return commands;
}

std::function<void(ProbeFile&)> MakeStep(Strings words, StepLanguage language, const ValueRules& rules) {
    std::wstring name = L"set";
    if (language == StepLanguage::Commands) {
        name = words.front();
        words.erase(words.begin());
    }
    const auto command = std::find_if(StepCommands().begin(), StepCommands().end(),
                                      [&](const StepCommand& known) { return known.name == name; });
    if (command == StepCommands().end()) {
        Strings known;
        for (const StepCommand& one : StepCommands())
            known.emplace_back(one.name);
        throw Problem{L"there is no step \"" + name + L"\"" + DidYouMean(name, known)};
    }
    if (words.size() < command->least || words.size() > command->most)
        throw Problem{(language == StepLanguage::Commands ? name + L" " : L"") + command->arguments +
                      L" expected"};
    auto step = command->make(words, rules);
    if (!command->isForPresent || !IsPattern(words.front()))
        return step;
    return [step = std::move(step), section = words.front()](ProbeFile& file) {
        if (!file.Find(section))
            throw Problem{L"[" + section +
                          L"]: no probe has this name; a step is for one probe, and takes no "
                          L"pattern"};
        step(file);
    };
}

/// Steps one below the other that remove probes, or that rename them: they are done together, because each
/// time all sections of the file are looked through.
class Moves {
public:
    Moves(ProbeFile& file, Batch& batch) : m_file(file), m_batch(batch) {}

    [[nodiscard]] static bool IsMove(const Strings& words) {
        return ((words.size() == 2 && words[0] == L"remove") ||
                (words.size() == 3 && words[0] == L"rename")) &&
               !IsPattern(words[1]);
    }

    void Add(std::size_t line, Strings words) {
        const auto isKnown = [this](const std::wstring& name) { return m_names.contains(name); };
        if (!m_steps.empty() && (m_steps.front().words.size() != words.size() ||
                                 std::any_of(words.begin() + 1, words.end(), isKnown)))
            Finish();
        m_names.insert(words.begin() + 1, words.end());
        m_steps.push_back({line, std::move(words)});
    }

    void Finish() {
        Do(0, m_steps.size());
        m_steps.clear();
        m_names.clear();
    }

private:
    struct Step {
        std::size_t line;
        Strings words;
    };

    /// Of those that fail together, each one that is wrong is told with its line.
    void Do(std::size_t first, std::size_t last) {
        if (first == last)
            return;
        if (last - first == 1)
            return m_batch.Do([&] { return std::to_wstring(m_steps[first].line); },
                              [&] { DoTogether(first, last); });
        try {
            return DoTogether(first, last);
        } catch (const Problem&) {
        } catch (const ProbeFileError&) { // both are raised before anything was written
        }
        const std::size_t middle = first + (last - first) / 2;
        Do(first, middle);
        Do(middle, last);
    }

    void DoTogether(std::size_t first, std::size_t last) {
        Strings removed;
        std::vector<std::pair<std::wstring, std::wstring>> renamed;
        for (std::size_t at = first; at < last; ++at) {
            const Strings& words = m_steps[at].words;
            if (words.size() == 2) {
                removed.push_back(words[1]);
            } else {
                RequireName(m_file, words[2]);
                renamed.emplace_back(words[1], words[2]);
            }
        }
        if (removed.empty())
            m_file.Rename(renamed);
        else
            m_file.Remove(removed);
    }

    ProbeFile& m_file;
    Batch& m_batch;
    std::vector<Step> m_steps;
    NameSet m_names; // in them
};

} // namespace

Strings Words(std::wstring_view line) {
    Strings words;
    std::size_t at = 0;
    const auto isBlank = [&] {
        return line[at] == L' ' || line[at] == L'\t' || line[at] == L'\r' || line[at] == L'\n';
    };
    while (true) {
        while (at < line.size() && isBlank())
            ++at;
        if (at == line.size() || line[at] == L'#')
            return words;
        std::wstring word;
        bool isQuoted = false;
        bool wasQuoted = false; // up to the character before
        for (; at < line.size() && (isQuoted || !isBlank()); ++at) {
            if (std::exchange(wasQuoted, false) && line[at] == L'"')
                throw Problem{L"a double quote follows a closing one; inside quotes it is written \\\""};
            if (line[at] == L'"')
                wasQuoted = !(isQuoted = !isQuoted);
            else if (isQuoted && line[at] == L'\\' && at + 1 < line.size() &&
                     (line[at + 1] == L'"' || line[at + 1] == L'\\'))
                word += line[++at];
            else
                word += line[at];
        }
        if (isQuoted)
            throw Problem{L"a double quote is not closed"};
        words.push_back(std::move(word));
    }
}

namespace {

/// The words of a line of an input. Another encoding than UTF-8 would be a guess, and names would be wrong.
Strings WordsOfBytes(std::string_view line) {
    const auto text = QuorIniFile::FromUtf8(line);
    if (!text)
        throw Problem{L"the text is not UTF-8"};
    return Words(*text);
}

} // namespace

ExitCode RunSteps(const std::wstring& path, const std::wstring& from, StepLanguage language,
                  const ValueRules& rules, bool isDryRun) {
    const std::string text = ReadAll(from); // a line of which is made text when it is its turn
    std::size_t count = 0;
    HostFile file(path, ProbeFile::Opening::OrNew);
    file.Edit(isDryRun, [&] {
        RequireReadable(*file);
        Batch batch(path, from);
        const Duplicates duplicates(*file);
        Moves moves(*file, batch);
        Progress progress(L"steps", static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')));
        count = 0;
        std::string_view rest = text;
        if (rest.starts_with(byteOrderMark))
            rest.remove_prefix(byteOrderMark.size());
        for (std::size_t number = 1; !rest.empty(); ++number) {
            const std::size_t end = std::min(rest.find('\n'), rest.size() - 1) + 1;
            const std::string_view line = rest.substr(0, end);
            rest.remove_prefix(end);
            progress.Step();
            const auto place = [number] { return std::to_wstring(number); };
            batch.Do(place, [&] {
                Strings words;
                try {
                    words = WordsOfBytes(line);
                    if (words.empty())
                        return;
                    ++count;
                    for (const std::wstring& word : words)
                        duplicates.Require(word);
                    if (language == StepLanguage::Commands && Moves::IsMove(words))
                        return moves.Add(number, std::move(words));
                } catch (const Problem&) {
                    moves.Finish(); // what is wrong in the lines above is told first
                    throw;
                }
                moves.Finish();
                MakeStep(std::move(words), language, rules)(*file);
            });
        }
        moves.Finish();
        batch.RequireFine();
    });
    TellCount(count, L"step", isDryRun ? "would be done" : "done");
    return fine;
}

} // namespace quorconv
