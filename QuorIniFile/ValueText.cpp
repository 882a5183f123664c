#include "QuorIniFile/ValueText.h"

#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/detail/IniValue.h"

namespace QuorIniFile {
namespace {

std::wstring Wide(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

} // namespace

std::wstring ToValueText(double value) { return Wide(FormatDouble(value)); }
void AppendValueText(std::string& text, double value) {
    NumberText place;
    text += FormatDouble(value, place);
}
std::wstring ToValueText(std::int16_t value) { return Wide(FormatInteger(value)); }
std::wstring ToValueText(bool value) { return Wide(FormatBoolean(value)); }

std::optional<double> DoubleOf(std::wstring_view text) { return ParseDouble(ToUtf8(text)); }
bool IsBeyondDouble(std::wstring_view text) { return IsBeyondDouble(std::string_view(ToUtf8(text))); }
std::optional<std::int16_t> IntegerOf(std::wstring_view text) { return ParseInteger(ToUtf8(text)); }
std::optional<bool> BooleanOf(std::wstring_view text) { return ParseBoolean(ToUtf8(text)); }

} // namespace QuorIniFile
