#include "QuorProbeFile/RecordValue.h"

#include "QuorIniFile/ValueText.h"

#include <algorithm>
#include <cmath>

namespace QuorProbeFile {

using QuorIniFile::BooleanOf;
using QuorIniFile::DoubleOf;
using QuorIniFile::IntegerOf;
using QuorIniFile::IsBeyondDouble;
using QuorIniFile::ToValueText;

std::wstring ToText(const Value& value) {
    struct Visitor {
        std::wstring operator()(const std::wstring& text) const { return text; }
        std::wstring operator()(std::int16_t number) const { return ToValueText(number); }
        std::wstring operator()(double number) const { return ToValueText(number); }
        std::wstring operator()(bool flag) const { return ToValueText(flag); }
    };
    return std::visit(Visitor{}, value);
}

std::optional<Value> ParseAs(const Value& kind, const std::wstring& text) {
    const auto asValue = [](const auto& parsed) {
        return parsed ? std::optional<Value>(*parsed) : std::nullopt;
    };
    if (std::holds_alternative<double>(kind))
        return asValue(DoubleOf(text));
    if (std::holds_alternative<std::int16_t>(kind))
        return asValue(IntegerOf(text));
    if (std::holds_alternative<bool>(kind))
        return asValue(BooleanOf(text));
    return text;
}

std::wstring WhatIsWrong(const Value& kind, const std::wstring& text) {
    const std::wstring quoted = L"\"" + text + L"\" ";
    if (std::holds_alternative<double>(kind)) {
        std::wstring withPoints = text;
        std::replace(withPoints.begin(), withPoints.end(), L',', L'.');
        if (IsBeyondDouble(text))
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

} // namespace QuorProbeFile
