#include "QuorConversions/core/NumberText.h"

#include "QuorConversions/core/modStrings.h"
#include "QuorIniFile/QuorError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

namespace QuorConversions {
namespace {

constexpr std::wstring_view blanks = L" \t";

/// The number in front of a text; infinite when it is too large, of no length when there is none.
struct LeadingNumber {
    double value = 0;
    std::size_t length = 0;
};

/// Whether `number`, which is not zero and does not fit into a double, is too large rather than too small.
bool IsTooLarge(std::string_view number) {
    const std::string_view mantissa = number.substr(0, number.find_first_of("eE"));
    std::string_view power = number.substr(std::min(mantissa.size() + 1, number.size()));
    power.remove_prefix(power.starts_with('+') ? 1 : 0);
    std::int64_t exponent = 0;
    if (std::from_chars(power.data(), power.data() + power.size(), exponent).ec ==
        std::errc::result_out_of_range)
        return !power.starts_with('-');
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto firstDigit = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    return point - firstDigit + exponent > 0;
}

LeadingNumber Read(std::wstring_view text) {
    const std::size_t sign = std::min(text.find_first_not_of(blanks), text.size());
    const std::wstring_view signedText = text.substr(sign);
    const bool minus = signedText.starts_with(L'-');
    const std::size_t begin = sign + (minus || signedText.starts_with(L'+') ? 1 : 0);

    // Nothing but these characters comes to the conversion, which knows words and a sign of its own.
    std::string number;
    for (const wchar_t character : text.substr(begin)) {
        if (std::wstring_view(L"0123456789.eE+-").find(character) == std::wstring_view::npos)
            break;
        number += static_cast<char>(character);
    }
    if (number.starts_with('-'))
        return {};
    LeadingNumber result;
    const auto [end, problem] = std::from_chars(number.data(), number.data() + number.size(), result.value);
    const auto length = static_cast<std::size_t>(end - number.data());
    if (length == 0)
        return {};
    if (problem == std::errc::result_out_of_range && IsTooLarge(std::string_view(number).substr(0, length)))
        result.value = std::numeric_limits<double>::infinity();
    return {minus ? -result.value : result.value, begin + length};
}

} // namespace

double ParseLeadingNumber(std::wstring_view text) {
    const double value = Read(text).value;
    if (std::isinf(value))
        throw QuorIniFile::QuorError(QuorIniFile::ERR_OVERFLOW, L"QuorConversions",
                                     TableText(IDS_OVERFLOWED));
    return value;
}

std::size_t LeadingNumberLength(std::wstring_view text) { return Read(text).length; }

std::optional<double> ParseWholeNumber(std::wstring_view text) {
    const auto [value, length] = Read(text);
    const bool whole = length > 0 && text.find_first_not_of(blanks, length) == std::wstring_view::npos;
    return whole && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace QuorConversions
