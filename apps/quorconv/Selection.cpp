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

namespace {

bool IsPattern(const std::wstring& text) { return text.find_first_of(L"*?") != std::wstring::npos; }

} // namespace

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
    throw Problem{L"\"" + text + L"\" is no conversion type; the command \"types\" lists them" +
                  DidYouMean(text, known)};
}

void Selection::DeclareType(Arguments& arguments) {
    arguments.Option("--type", "TYPE", type, Meaning::Type, "Only probes of that type: cvd, CONV_CVD or 2");
}

bool Selection::IsMany() const { return type || patterns.size() != 1 || IsPattern(patterns.front()); }

// NOLINTNEXTLINE(readability-function-cognitive-complexity): one question a probe
std::vector<std::wstring> Selection::In(ProbeFile& file) const {
    if (!IsMany() || (!type && patterns.size() == 1 && file.Find(patterns.front())))
        return {SpelledInFile(file, patterns.front())};
    std::optional<QuorConversions::EQuorConversionType> code;
    if (type)
        code = RequireType(*type).code;
    std::unordered_set<std::wstring> names; // of single probes
    std::vector<std::wstring> missing;
    std::vector<std::wstring> globs;
    for (const std::wstring& pattern : patterns) {
        if (file.Find(pattern))
            names.insert(Folded(pattern));
        else
            (IsPattern(pattern) ? globs : missing).push_back(pattern);
    }
    std::vector<std::wstring> sections;
    std::vector<bool> isUsed(globs.size(), false);
    for (const ProbeEntry& probe : file.Probes()) {
        if (code && probe.type != code)
            continue;
        bool isMeant = patterns.empty() || names.contains(Folded(probe.section));
        for (std::size_t i = 0; i < globs.size(); ++i) {
            if (IsLike(probe.section, globs[i]))
                isMeant = isUsed[i] = true;
        }
        if (isMeant)
            sections.push_back(probe.section);
    }
    const std::wstring ofType = code ? L" of the type " + *type : L"";
    for (std::size_t i = 0; i < globs.size(); ++i) {
        if (!isUsed[i])
            throw Problem{file.Path() + L": no probe" + ofType + L" is like \"" + globs[i] + L"\""};
    }
    sections.insert(sections.end(), missing.begin(), missing.end());
    if (sections.empty() && !patterns.empty())
        throw Problem{file.Path() + L": none of the probes is" + ofType};
    return sections;
}

void TellCount(std::size_t number, const wchar_t* what, const char* done) {
    std::cout.flush();
    std::cerr << "quorconv: " << number << ' ' << QuorIniFile::ToUtf8(what) << (number == 1 ? " " : "s ")
              << done << '\n';
}

std::wstring SpelledInFile(ProbeFile& file, const std::wstring& section) {
    const auto present = file.Find(section);
    return present ? present->section : section;
}

} // namespace quorconv
