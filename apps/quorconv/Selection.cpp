#include "apps/quorconv/Selection.h"

#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeNames.h"
#include "apps/quorconv/Failure.h"
#include "apps/quorconv/Nearest.h"

#include <algorithm>
#include <iostream>
#include <unordered_set>

namespace quorconv {

using namespace QuorProbeFile;

bool IsPattern(const std::wstring& text) { return text.find_first_of(L"*?") != std::wstring::npos; }

bool IsLike(const std::wstring& name, const std::wstring& pattern) {
    const std::wstring text = Folded(name);
    const std::wstring glob = Folded(pattern);
    std::size_t star = std::wstring::npos; // the last "*" so far, and where the text behind it begins
    std::size_t behind = 0;
    std::size_t p = 0;
    for (std::size_t t = 0; t < text.size();) {
        if (p < glob.size() && glob[p] == L'*') {
            star = p++;
            behind = t;
        } else if (p < glob.size() && (glob[p] == L'?' || glob[p] == text[t])) {
            ++p;
            ++t;
        } else if (star != std::wstring::npos) {
            p = star + 1;
            t = ++behind;
        } else {
            return false;
        }
    }
    return glob.find_first_not_of(L'*', p) == std::wstring::npos;
}

const TypeInfo& RequireType(const std::wstring& text) {
    if (const TypeInfo* const info = ParseType(text))
        return *info;
    std::vector<std::wstring> known;
    for (const TypeInfo& info : Types()) {
        known.push_back(info.enumerator);
        known.push_back(info.extension);
    }
    throw UsageError{L"\"" + text + L"\" is no conversion type; the command \"types\" lists them" +
                     DidYouMean(text, known)};
}

void Selection::DeclareType(Arguments& arguments) {
    arguments.Option("--type", "TYPE", type, Meaning::Type, "Only probes of that type: cvd, CONV_CVD or 2");
}

bool Selection::IsMany() const { return type || patterns.size() != 1 || IsPattern(patterns.front()); }

namespace {

/// What a command line says of the sections of a file: names of single probes, and patterns.
class Chosen {
public:
    Chosen(const std::vector<std::wstring>& patterns, ProbeFile& file) : m_isAll(patterns.empty()) {
        for (const std::wstring& pattern : patterns) {
            if (file.Find(pattern))
                m_names.insert(Folded(pattern));
            else
                (IsPattern(pattern) ? m_globs : m_missing).push_back(pattern);
        }
        m_unused = {m_globs.begin(), m_globs.end()};
    }

    [[nodiscard]] bool Means(const std::wstring& section) {
        bool isMeant = m_isAll || m_names.contains(Folded(section));
        for (const std::wstring& glob : m_globs) {
            if (!IsLike(section, glob))
                continue;
            m_unused.erase(glob);
            isMeant = true;
        }
        return isMeant;
    }
    /// A pattern that none of the probes is like, which Means was asked for; null for none.
    [[nodiscard]] const std::wstring* Unused() const {
        const auto unused = std::find_if(m_globs.begin(), m_globs.end(),
                                         [&](const std::wstring& glob) { return m_unused.contains(glob); });
        return unused == m_globs.end() ? nullptr : &*unused;
    }
    /// The names that are neither probes nor patterns.
    [[nodiscard]] const std::vector<std::wstring>& Missing() const { return m_missing; }

private:
    bool m_isAll;
    std::unordered_set<std::wstring> m_names; // folded
    std::vector<std::wstring> m_globs;
    std::vector<std::wstring> m_missing;
    std::unordered_set<std::wstring> m_unused;
};

} // namespace

std::vector<std::wstring> Selection::In(ProbeFile& file) const {
    if (!IsMany() || (!type && patterns.size() == 1 && file.Find(patterns.front())))
        return {SpelledInFile(file, patterns.front())};
    std::optional<QuorConversions::EQuorConversionType> code;
    if (type)
        code = RequireType(*type).code;
    Chosen chosen(patterns, file);
    std::vector<std::wstring> sections;
    for (const ProbeEntry& probe : file.Probes())
        // One whose type cannot be read may be of this type: whoever reads it tells what is wrong.
        if ((!code || !probe.type || probe.type == code) && chosen.Means(probe.section))
            sections.push_back(probe.section);
    const std::wstring ofType = code ? L" of the type " + *type : L"";
    if (const std::wstring* const unused = chosen.Unused())
        throw Problem{file.Path() + L": no probe" + ofType + L" is like \"" + *unused + L"\""};
    sections.insert(sections.end(), chosen.Missing().begin(), chosen.Missing().end());
    if (sections.empty() && !patterns.empty())
        throw Problem{file.Path() + L": none of the probes is" + ofType};
    return sections;
}

void TellCount(std::size_t number, const wchar_t* what, const char* done) {
    if (!std::cout.flush())
        return; // the failure is told at the end of the program
    std::cerr << "quorconv: " << number << ' ' << QuorIniFile::ToUtf8(what) << (number == 1 ? " " : "s ")
              << done << '\n';
}

std::wstring SpelledInFile(ProbeFile& file, const std::wstring& section) {
    const auto present = file.Find(section);
    return present ? present->section : section;
}

} // namespace quorconv
