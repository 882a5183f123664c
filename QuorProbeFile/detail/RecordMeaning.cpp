#include "QuorProbeFile/detail/RecordMeaning.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorProbeFile/RecordMeaning.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <variant>

namespace QuorProbeFile {

using namespace QuorConversions;

namespace {

/// Of which members of a list a key decides.
enum class Decides : std::uint8_t { All, AllButFirst, Count, CountButOne };

struct KeyWithMeaning {
    std::wstring_view key;
    Decides decides;
    std::wstring_view list;
};

// A type of thermocouple, a range and a scale are what the coefficients and points were found for.
constexpr KeyWithMeaning table[] = {
    {usePolynomialKey, Decides::AllButFirst, coefficientsKey},
    {convTypeKey, Decides::All, coefficientsKey},
    {ipts68ScaleKey, Decides::All, coefficientsKey},
    {rangeKey, Decides::All, coefficientsKey},
    {tcTypeKey, Decides::All, coefficientsKey},
    {tcTypeKey, Decides::All, temperaturesKey},
    {tcTypeKey, Decides::All, offsetsKey},
    {tempScaleKey, Decides::All, temperaturesKey},
    {offsetScaleKey, Decides::All, offsetsKey},
    {numCoefficientsKey, Decides::Count, coefficientsKey},
    {orderKey, Decides::CountButOne, coefficientsKey},
    {numPointsKey, Decides::Count, temperaturesKey},
    {numPointsKey, Decides::Count, offsetsKey},
    {numPointsKey, Decides::Count, voltagesKey},
};

bool IsCount(const KeyWithMeaning& row) {
    return row.decides == Decides::Count || row.decides == Decides::CountButOne;
}

/// How many members a list has.
int Members(const KeyWithMeaning& row, const std::optional<Value>& value) {
    const auto* const count = value ? std::get_if<std::int16_t>(&*value) : nullptr;
    return count ? *count + (row.decides == Decides::CountButOne ? 1 : 0) : 0;
}

/// The first member of the list whose meaning differs.
int FirstDifferent(const KeyWithMeaning& row, const std::optional<Value>& a, const std::optional<Value>& b) {
    if (IsCount(row))
        return std::min(Members(row, a), Members(row, b));
    return row.decides == Decides::AllButFirst ? 1 : 0;
}

/// The index of `key` if it is a member of `list`.
std::optional<int> IndexIn(std::wstring_view list, std::wstring_view key) {
    if (!key.starts_with(list))
        return std::nullopt;
    const auto index = ParseAs(std::int16_t{}, std::wstring(key.substr(list.size())));
    return index ? std::optional<int>(std::get<std::int16_t>(*index)) : std::nullopt;
}

} // namespace

bool GivesMeaning(std::wstring_view key) {
    return std::any_of(std::begin(table), std::end(table),
                       [&](const KeyWithMeaning& row) { return row.key == key; });
}

bool HasOtherMeaning(std::wstring_view key, std::wstring_view deciding, const std::optional<Value>& a,
                     const std::optional<Value>& b) {
    return std::any_of(std::begin(table), std::end(table), [&](const KeyWithMeaning& row) {
        if (row.key != deciding)
            return false;
        const auto index = IndexIn(row.list, key);
        return index && *index >= FirstDifferent(row, a, b);
    });
}

bool ChangesMeaning(std::wstring_view deciding, const std::optional<Value>& before,
                    const std::optional<Value>& after, std::wstring_view key) {
    const std::size_t nested = deciding.rfind(L'/') + 1; // 0: it stands in the record itself
    return key.rfind(L'/') + 1 == nested && key.substr(0, nested) == deciding.substr(0, nested) &&
           HasOtherMeaning(key.substr(nested), deciding.substr(nested), before, after);
}

std::vector<std::wstring> KeysBeyond(std::wstring_view key, const Value& now,
                                     const std::optional<Value>& before) {
    std::vector<std::wstring> keys;
    for (const KeyWithMeaning& row : table) {
        if (row.key != key || !IsCount(row))
            continue;
        for (int index = std::max(0, Members(row, now)); index < Members(row, before); ++index)
            keys.push_back(std::wstring(row.list) + std::to_wstring(index));
    }
    return keys;
}

} // namespace QuorProbeFile
