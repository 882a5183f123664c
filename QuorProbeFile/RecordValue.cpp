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

ProbePhrase PhraseOfWrong(const Value& kind, const std::wstring& text) {
    const auto told = [&text](EProbeText phrase) { return ProbePhrase{phrase, {text}}; };
    if (std::holds_alternative<double>(kind)) {
        std::wstring withPoints = text;
        std::replace(withPoints.begin(), withPoints.end(), L',', L'.');
        if (IsBeyondDouble(text))
            return told(PROBE_TEXT_BEYOND_DOUBLE);
        return told(ParseAs(kind, withPoints) ? PROBE_TEXT_DECIMAL_COMMA : PROBE_TEXT_NO_NUMBER);
    }
    if (std::holds_alternative<std::int16_t>(kind))
        return told(PROBE_TEXT_NO_WHOLE_NUMBER);
    return told(std::holds_alternative<bool>(kind) ? PROBE_TEXT_NO_FLAG : PROBE_TEXT_NO_TEXT);
}

std::wstring WhatIsWrong(const Value& kind, const std::wstring& text) {
    return Describe({PhraseOfWrong(kind, text)});
}

bool SameValue(const Value& a, const Value& b) {
    if (const auto* const x = std::get_if<double>(&a))
        if (const auto* const y = std::get_if<double>(&b))
            return (std::isnan(*x) && std::isnan(*y)) || (*x == *y && std::signbit(*x) == std::signbit(*y));
    return a == b;
}

bool IsTaken(const Value& given, const Value& held) {
    const double* const x = std::get_if<double>(&given);
    const double* const y = std::get_if<double>(&held);
    return (x && y && *x == *y) || SameValue(given, held);
}

} // namespace QuorProbeFile
