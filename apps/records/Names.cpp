#include "apps/records/Names.h"

#include <algorithm>

namespace ProbeRecords {

namespace {

wchar_t Fold(wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; }

} // namespace

std::wstring Folded(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(), Fold);
    return text;
}

bool SameName(std::wstring_view a, std::wstring_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t x, wchar_t y) { return Fold(x) == Fold(y); });
}

std::wstring SettingsSection(std::wstring_view probe) { return std::wstring(probe).append(settingsMark); }

bool HoldsSettingsOf(std::wstring_view section, std::wstring_view probe) {
    const std::size_t length = probe.size() + settingsMark.size();
    return section.size() >= length && SameName(section.substr(0, probe.size()), probe) &&
           SameName(section.substr(probe.size(), settingsMark.size()), settingsMark) &&
           (section.size() == length || section.substr(length).starts_with(nestedMark));
}

} // namespace ProbeRecords
