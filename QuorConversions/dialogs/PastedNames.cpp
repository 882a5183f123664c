#include "QuorConversions/dialogs/PastedNames.h"

#include "QuorConversions/core/NumberFromPaste.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace QuorConversions {
namespace {

/// Characters that a name may be written with, and what they mean in it.
constexpr struct {
    wchar_t first, last;
    std::wstring_view meaning; ///< of the first one; of each further one the next character
} meanings[] = {
    {L'A', L'Z', L"a"},
    {L'\u2080', L'\u2089', L"0"},
    {L'\u03B1', L'\u03B1', L"alpha"},
    {L'\u03B2', L'\u03B2', L"beta"},
    {L'\u03B4', L'\u03B4', L"delta"},
    {L' ', L' ', {}},
    {L'\u2003', L'\u2003', {}},
    {L'_', L'_', {}},
    {L'(', L'(', {}},
    {L')', L')', {}},
    {L'[', L'[', {}},
    {L']', L']', {}},
};

/// Other names of one value, in the bare form.
constexpr struct {
    std::wstring_view name, meaning;
} otherNames[] = {
    {L"r0\u00B0c", L"r0"},  {L"r0.00\u00B0c", L"r0"},   {L"r0,00\u00B0c", L"r0"},   {L"r273.15k", L"r0"},
    {L"r273,15k", L"r0"},   {L"r0.01\u00B0c", L"rtpw"}, {L"r0,01\u00B0c", L"rtpw"}, {L"r273.16k", L"rtpw"},
    {L"r273,16k", L"rtpw"}, {L"rh2o", L"rtpw"},         {L"mv25\u00B0c", L"mv25c"},
};

constexpr std::wstring_view beginnings[] = {L"coefficient", L"koeffizient"};

std::wstring_view WithoutUnit(std::wstring_view name) {
    const auto isUnit = [](std::wstring_view text) { return UnitFromPaste(text) != PastedUnit::None; };
    if (const auto slash = name.find(L'/');
        slash != std::wstring_view::npos && isUnit(name.substr(slash + 1)))
        return name.substr(0, slash);
    const auto open = name.find_last_of(L"([");
    if (open != std::wstring_view::npos && (name.back() == L')' || name.back() == L']') &&
        isUnit(name.substr(open + 1, name.size() - open - 2)))
        return name.substr(0, open);
    return name;
}

std::wstring Bare(std::wstring_view name) {
    std::wstring bare;
    for (const wchar_t c : WithoutUnit(name)) {
        const auto* const row = std::find_if(std::begin(meanings), std::end(meanings),
                                             [c](const auto& r) { return c >= r.first && c <= r.last; });
        if (row == std::end(meanings))
            bare += c;
        else if (row->first == row->last)
            bare += row->meaning;
        else
            bare += static_cast<wchar_t>(row->meaning.front() + (c - row->first));
    }
    for (const std::wstring_view beginning : beginnings)
        if (bare.starts_with(beginning) && bare.size() > beginning.size())
            bare.erase(0, beginning.size());
    for (const auto& other : otherNames)
        if (bare == other.name)
            return std::wstring(other.meaning);
    return bare;
}

} // namespace

bool IsNameOf(std::wstring_view label, std::wstring_view name) { return Bare(label) == Bare(name); }

} // namespace QuorConversions
