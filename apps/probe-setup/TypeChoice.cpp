#include "apps/probe-setup/TypeChoice.h"

#include "QuorConversions/controls/ListControl.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/rtd/CQuorITS90HighRange.h"
#include "QuorConversions/rtd/CQuorITS90LowRange.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "QuorProbeFile/ProbeTypes.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ProbeSetup {

using namespace QuorConversions;

namespace {

/// Takes what an object offers in a list.
class Items final : public ListControl {
public:
    struct Item {
        std::wstring text;
        std::int32_t data = 0;
    };
    void Clear() override { items.clear(); }
    void AddItem(std::wstring_view text) override { items.push_back({std::wstring(text)}); }
    [[nodiscard]] std::int32_t NewIndex() const override {
        return static_cast<std::int32_t>(items.size()) - 1;
    }
    void SetItemData(std::int32_t index, std::int32_t data) override {
        items.at(static_cast<std::size_t>(index)).data = data;
    }
    std::vector<Item> items;
};

/// The ITS-90 settings whose ranges are free; null for others.
std::shared_ptr<CQuorITS90> FreeRanges(const CQuorConversion& conversion) {
    return conversion.ConversionType() == CONV_ITS90 ? SettingsAs<CQuorITS90>(conversion) : nullptr;
}

template <class T>
void AddLetters(const T& settings, EQuorConversionType type, std::vector<TypeChoice>& choices) {
    Items letters;
    settings.FillTCTypeNameCombo(letters);
    for (const Items::Item& letter : letters.items) {
        choices.emplace_back(type);
        choices.back().letter = ETCType{letter.data};
    }
}

} // namespace

std::vector<TypeChoice> TypeChoice::All() {
    std::vector<TypeChoice> choices;
    for (const QuorProbeFile::TypeInfo& type : QuorProbeFile::Types()) {
        if (type.code == CONV_NONE)
            continue;
        CQuorConversion conversion;
        conversion.SetConversionType(type.code);
        if (SettingsAs<CQuorCVD>(conversion)) {
            for (const bool polynomial : {false, true}) {
                choices.emplace_back(type.code);
                choices.back().polynomial = polynomial;
            }
        } else if (const auto points = SettingsAs<CQuorTCTypeX>(conversion)) {
            AddLetters(*points, type.code, choices);
        } else if (const auto coefficients = SettingsAs<CQuorTCTypePoly>(conversion)) {
            AddLetters(*coefficients, type.code, choices);
        } else {
            choices.emplace_back(type.code);
        }
    }
    return choices;
}

TypeChoice TypeChoice::Of(const CQuorConversion& conversion) {
    TypeChoice choice(conversion.ConversionType());
    if (const auto cvd = SettingsAs<CQuorCVD>(conversion))
        choice.polynomial = cvd->UsePolynomial();
    if (const auto points = SettingsAs<CQuorTCTypeX>(conversion))
        choice.letter = points->TCType();
    if (const auto coefficients = SettingsAs<CQuorTCTypePoly>(conversion))
        choice.letter = coefficients->TCType();
    if (const auto ranges = FreeRanges(conversion)) {
        choice.low = ranges->LowRange()->Range();
        choice.high = ranges->HighRange()->Range();
    }
    return choice;
}

void TypeChoice::ApplyTo(CQuorConversion& conversion) const {
    conversion.SetConversionType(type);
    if (const auto cvd = SettingsAs<CQuorCVD>(conversion); cvd && polynomial)
        cvd->SetUsePolynomial(*polynomial);
    if (const auto points = SettingsAs<CQuorTCTypeX>(conversion); points && letter)
        points->SetTCType(*letter);
    if (const auto coefficients = SettingsAs<CQuorTCTypePoly>(conversion); coefficients && letter)
        coefficients->SetTCType(*letter);
    if (const auto ranges = FreeRanges(conversion)) {
        if (low)
            ranges->LowRange()->SetRange(*low);
        if (high)
            ranges->HighRange()->SetRange(*high);
    }
}

std::vector<RangeChoice> RangeChoices(EITS90RangeHL side) {
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_ITS90);
    const auto settings = FreeRanges(conversion);
    Items ranges;
    if (side == IR_LOWRANGE)
        settings->LowRange()->FillRangeCombo(ranges);
    else
        settings->HighRange()->FillRangeCombo(ranges);
    std::vector<RangeChoice> choices;
    for (const Items::Item& range : ranges.items)
        choices.push_back({EITS90RangeNumber{range.data}, range.text});
    return choices;
}

} // namespace ProbeSetup
