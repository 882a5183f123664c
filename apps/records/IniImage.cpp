#include "apps/records/IniImage.h"

#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniValue.h"
#include "apps/records/Names.h"

#include <algorithm>
#include <cmath>

namespace ProbeRecords {

using namespace QuorIniFile;

namespace {

std::wstring Wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

} // namespace

std::wstring ToText(const Value& value) {
    struct Visitor {
        std::wstring operator()(const std::wstring& text) const { return text; }
        std::wstring operator()(std::int16_t number) const { return Wide(FormatInteger(number)); }
        std::wstring operator()(double number) const { return Wide(FormatDouble(number)); }
        std::wstring operator()(bool flag) const { return Wide(FormatBoolean(flag)); }
    };
    return std::visit(Visitor{}, value);
}

std::optional<Value> ParseAs(const Value& kind, const std::wstring& text) {
    const std::string bytes = ToUtf8(text);
    const auto asValue = [](const auto& parsed) {
        return parsed ? std::optional<Value>(*parsed) : std::nullopt;
    };
    if (std::holds_alternative<double>(kind))
        return asValue(ParseDouble(bytes));
    if (std::holds_alternative<std::int16_t>(kind))
        return asValue(ParseInteger(bytes));
    if (std::holds_alternative<bool>(kind))
        return asValue(ParseBoolean(bytes));
    return text;
}

std::wstring WhatIsWrong(const Value& kind, const std::wstring& text) {
    const std::wstring quoted = L"\"" + text + L"\" ";
    if (std::holds_alternative<double>(kind)) {
        std::wstring withPoints = text;
        std::replace(withPoints.begin(), withPoints.end(), L',', L'.');
        if (QuorIniFile::IsBeyondDouble(ToUtf8(text)))
            return quoted + L"is a number that no double can hold: too large, or too close to zero";
        if (ParseAs(kind, withPoints))
            return quoted + L"is not a number; the decimal separator is a point";
        return quoted + L"is not a number";
    }
    if (std::holds_alternative<std::int16_t>(kind))
        return quoted + L"is not a whole number from -32768 to 32767";
    if (std::holds_alternative<bool>(kind))
        return quoted + L"is neither True nor False";
    return quoted + L"cannot be read";
}

bool SameValue(const Value& a, const Value& b) {
    if (const auto* const x = std::get_if<double>(&a))
        if (const auto* const y = std::get_if<double>(&b))
            return (std::isnan(*x) && std::isnan(*y)) || (*x == *y && std::signbit(*x) == std::signbit(*y));
    return a == b;
}

std::shared_ptr<IniImage> IniImage::Of(const QuorConversions::SettingsObject& settings) {
    auto image = std::make_shared<IniImage>();
    std::shared_ptr<INIFile> iniFile = image;
    settings.WriteToFile(iniFile, L"", L"");
    return image;
}

void IniImage::Apply(std::shared_ptr<IniImage> image, QuorConversions::SettingsObject& settings) {
    std::shared_ptr<INIFile> iniFile = std::move(image);
    settings.ReadFromFile(iniFile, L"", L"");
}

bool IniImage::Same(const IniImage& a, const IniImage& b) {
    return std::equal(
        a.m_entries.begin(), a.m_entries.end(), b.m_entries.begin(), b.m_entries.end(),
        [](const Entry& x, const Entry& y) { return x.path == y.path && SameValue(x.value, y.value); });
}

IniImage::Entry* IniImage::Find(std::wstring_view path) {
    const auto found = m_byPath.find(Folded(std::wstring(path)));
    return found == m_byPath.end() ? nullptr : &m_entries[found->second];
}

void IniImage::SetFileName(std::wstring_view /*fileName*/) {}

void IniImage::SetSection(std::wstring_view section) {
    // The record itself stands in the section "", a nested one in " - High Range" or the like.
    m_prefix = section.empty() ? L"" : std::wstring(section.substr(nestedMark.size())) + L"/";
}

void IniImage::Write(std::wstring_view key, Value value) {
    if (key == L"Version")
        return;
    std::wstring path = m_prefix + std::wstring(key);
    if (const auto [at, isNew] = m_byPath.emplace(Folded(path), m_entries.size()); isNew)
        m_entries.push_back({std::move(path), std::move(value)});
    else
        m_entries[at->second].value = std::move(value);
}

} // namespace ProbeRecords
