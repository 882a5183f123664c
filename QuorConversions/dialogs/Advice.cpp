#include "QuorConversions/dialogs/Advice.h"

#include "QuorConversions/core/NumberText.h"
#include "QuorConversions/core/detail/modEditing.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"

#include <algorithm>

namespace QuorConversions {
namespace {

/// A text of the user's as it is quoted: on one line, and not longer than one reads.
std::wstring Quoted(std::wstring_view text) {
    constexpr std::size_t longest = 40;
    std::wstring quoted = QuorIniFile::EscapeControls(text);
    if (quoted.size() > longest)
        quoted = quoted.substr(0, longest) + L"...";
    std::replace(quoted.begin(), quoted.end(), L'|', L'\u00A6'); // a bar divides the values
    return quoted;
}

std::wstring Filled(EStringId id, std::wstring_view first, std::wstring_view second = {}) {
    return ReplaceTildes(TableText(id), Quoted(first) + L"|" + Quoted(second));
}

bool Overflows(std::wstring_view pointText) {
    try {
        (void)ParseLeadingNumber(pointText);
        return false;
    } catch (const QuorIniFile::QuorError&) {
        return true;
    }
}

/// Whether a number that is read as zero was written as another one: "1E-400".
bool VanishesToZero(double value, std::wstring_view text) {
    return value == 0 &&
           text.substr(0, text.find_first_of(L"eE")).find_first_of(L"123456789") != std::wstring_view::npos;
}

} // namespace

std::wstring AdviceOnText(const std::wstring& text, std::wstring_view format,
                          const NumberSeparators& separators) {
    const std::wstring pointText = ToPointDecimal(text, separators.decimal);
    const std::size_t length = LeadingNumberLength(pointText);
    if (length == 0)
        return TableText(IDS_NOT_A_NUMBER);
    const std::wstring number = text.substr(0, length);
    if (Overflows(pointText))
        return Filled(IDS_TOO_LARGE_TO_STORE, number);
    const auto whole = ParseWholeNumber(pointText);
    if (!whole)
        return Filled(IDS_ONLY_PART_STORED, number, text);
    if (VanishesToZero(*whole, number))
        return Filled(IDS_STORED_FOR, L"0", text);
    if (IsGeneralFormat(format))
        return {};
    return AdviceOnShownValue(*whole, FormatValue(*whole, format, separators), separators);
}

std::wstring AdviceOnShownValue(double value, const std::wstring& text, const NumberSeparators& separators) {
    const std::wstring pointText = ToPointDecimal(text, separators.decimal);
    if (Overflows(pointText))
        return Filled(IDS_TOO_LARGE_TO_STORE, text);
    const double stored = ParseLeadingNumber(pointText);
    return stored == value ? std::wstring{}
                           : Filled(IDS_STORED_FOR, FormatValue(stored, {}, separators),
                                    FormatValue(value, {}, separators));
}

std::wstring AdviceOnSeparator(const NumberSeparators& separators) {
    return separators.decimal == L"." ? TableText(IDS_SEPARATOR_IS_POINT)
                                      : Filled(IDS_SEPARATOR_IS, separators.decimal);
}

std::wstring AdviceOnMissingKeys(std::wstring_view keys) { return Filled(IDS_CANNOT_BE_TYPED, keys); }

std::wstring AdviceOnRefusedPaste(std::wstring_view text, PasteRefusal refusal) {
    return Filled(refusal == PasteRefusal::TwoReadings ? IDS_PASTE_HAS_TWO_READINGS : IDS_PASTE_IS_NO_NUMBER,
                  text.empty() ? L"\"\"" : text);
}

std::wstring AdviceOnNoRoom(std::size_t cells) {
    return Filled(IDS_PASTE_HAS_NO_ROOM, std::to_wstring(cells));
}

std::wstring AdviceOnEmptyCell(std::size_t line, std::size_t column) {
    return Filled(IDS_PASTE_HAS_EMPTY_CELL, std::to_wstring(line), std::to_wstring(column));
}

std::wstring AdviceOnPasted(const std::wstring& number) { return Filled(IDS_PASTED_AS, number); }

std::wstring AdviceOnPastedFrom(std::wstring_view text) {
    const auto first = text.find_first_not_of(L" \u00A0\uFEFF");
    const auto last = text.find_last_not_of(L" \u00A0\uFEFF");
    return Filled(IDS_PASTED_FROM, text.substr(first, last - first + 1));
}

std::wstring JoinAdvice(const std::wstring& first, const std::wstring& second) {
    return first.empty() || second.empty() ? first + second : first + L". " + second;
}

} // namespace QuorConversions
