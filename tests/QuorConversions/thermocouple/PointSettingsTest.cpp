// The points, their count and their units, as both thermocouple classes with points have them.

#include "QuorConversions/thermocouple/PointSettings.h"

#include "QuorConversions/thermocouple/CQuorTCTable.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "tests/support/Records.h"
#include "tests/support/Translation.h"

using namespace QuorConversions;
using Support::Int;
using Support::ListRecorder;
using Support::OnlyMessage;
using Support::Record;
using Support::ScriptedPlatform;

namespace {

template <class Settings>
struct Column {
    const wchar_t* key;
    double (Settings::*get)(std::int32_t) const;
    void (Settings::*set)(std::int32_t, double);
};

struct Table {
    using Settings = CQuorTCTable;
    static constexpr EQuorConversionType type = CONV_TCTABLE;
    static constexpr const wchar_t* className = L"CQuorTCTable";
    static constexpr std::int16_t limit = 10;
    static constexpr Column<Settings> columns[] = {
        {L"Temperatures", &Settings::Temperatures, &Settings::SetTemperatures},
        {L"Voltages", &Settings::Voltages, &Settings::SetVoltages}};
    static constexpr const wchar_t* unit = L"mV";
    static constexpr auto valueScale = &Settings::VoltageScale;
    static constexpr auto setValueScale = &Settings::SetVoltageScale;
    static constexpr auto valueFormat = &Settings::VoltageFormat;
    static constexpr auto setValueFormat = &Settings::SetVoltageFormat;
    static Record Keys() { return {}; }
};

struct TypeX {
    using Settings = CQuorTCTypeX;
    static constexpr EQuorConversionType type = CONV_TCTYPEX;
    static constexpr const wchar_t* className = L"CQuorTCTypeX";
    static constexpr std::int16_t limit = 3;
    static constexpr Column<Settings> columns[] = {
        {L"Temperatures", &Settings::Temperatures, &Settings::SetTemperatures},
        {L"Offsets", &Settings::Offsets, &Settings::SetOffsets}};
    static constexpr const wchar_t* unit = L"\u00B0C";
    static constexpr auto valueScale = &Settings::OffsetScale;
    static constexpr auto setValueScale = &Settings::SetOffsetScale;
    static constexpr auto valueFormat = &Settings::OffsetFormat;
    static constexpr auto setValueFormat = &Settings::SetOffsetFormat;
    static Record Keys() {
        return {{L"TCType", Int(TCTYPE_K)},
                {L"TempScale", L"K"},
                {L"OffsetScale", L"mK"},
                {L"Coefficients0", 0.5},
                {L"Coefficients1", 0.25}};
    }
};

struct Names {
    template <class Case>
    static std::string GetName(int /*index*/) {
        return Case::limit == 10 ? "CQuorTCTable" : "CQuorTCTypeX";
    }
};

template <class Case>
class PointSettingsTest : public testing::Test {
protected:
    using Settings = typename Case::Settings;
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<Settings> settings = Support::NewSettings<Settings>(Case::type, platform);

    /// A record that says `count` and holds `held` points: 1.0, 2.0 and so on in both columns, plus `shift`.
    static Record Points(int count, int held, double shift = 0.0) {
        Record record = Case::Keys();
        record[L"NumPoints"] = Int(count);
        for (int i = 0; i < held; ++i)
            for (const auto& column : Case::columns)
                record[column.key + std::to_wstring(i)] = i + 1.0 + shift;
        return record;
    }
    void Fill() {
        for (const auto& column : Case::columns)
            for (std::int32_t i = 0; i < Case::limit; ++i)
                (*settings.*column.set)(i, i + 1.0);
        settings->SetChanged(false);
    }
    /// Expects these values at the indices from 0, in both columns.
    void ExpectPoints(const std::vector<double>& values) {
        for (const auto& column : Case::columns)
            for (std::size_t i = 0; i < values.size(); ++i)
                EXPECT_EQ((*settings.*column.get)(static_cast<std::int32_t>(i)), values[i])
                    << column.key << i;
    }
};

using Cases = testing::Types<Table, TypeX>;
TYPED_TEST_SUITE(PointSettingsTest, Cases, Names);

} // namespace

TYPED_TEST(PointSettingsTest, AreNewWithAllTheirPointsAtZero) {
    EXPECT_EQ(this->settings->NumPoints(), TypeParam::limit);
    this->ExpectPoints(std::vector<double>(TypeParam::limit, 0.0));
}

TYPED_TEST(PointSettingsTest, AreNewWithTheSameUnitsInEveryLanguage) {
    const Support::Translation translation;
    const auto fresh = Support::NewSettings<typename TypeParam::Settings>(TypeParam::type, this->platform);
    EXPECT_EQ(fresh->TempScale(), L"\u00B0C");
    EXPECT_EQ((*fresh.*TypeParam::valueScale)(), TypeParam::unit);
    EXPECT_EQ(fresh->TempFormat(), L"");
    EXPECT_EQ((*fresh.*TypeParam::valueFormat)(), L"");
}

TYPED_TEST(PointSettingsTest, IgnoreACountAboveTheirLimit) {
    this->settings->SetNumPoints(2);
    this->settings->SetChanged(false);
    for (const int count : {TypeParam::limit + 1, 32767}) {
        this->settings->SetNumPoints(Int(count));
        EXPECT_EQ(this->settings->NumPoints(), 2);
    }
    EXPECT_FALSE(this->settings->Changed());
    EXPECT_TRUE(this->platform->Messages().empty());
}

TYPED_TEST(PointSettingsTest, AreChangedByAnotherCountOnly) {
    this->settings->SetNumPoints(TypeParam::limit);
    EXPECT_FALSE(this->settings->Changed());
    this->settings->SetNumPoints(1);
    EXPECT_TRUE(this->settings->Changed());
}

TYPED_TEST(PointSettingsTest, AreChangedByAnotherPointOnly) {
    for (const auto& column : TypeParam::columns) {
        SCOPED_TRACE(column.key);
        Support::ExpectAMarkForADifferenceOnly(
            *this->settings, [&] { return (*this->settings.*column.get)(TypeParam::limit - 1); },
            [&](double value) { (*this->settings.*column.set)(TypeParam::limit - 1, value); });
    }
}

TYPED_TEST(PointSettingsTest, AreChangedByAnotherUnitExactly) {
    this->settings->SetTempScale(L"\u00B0C");
    (*this->settings.*TypeParam::setValueScale)(TypeParam::unit);
    EXPECT_FALSE(this->settings->Changed());
    this->settings->SetTempScale(L"\u00B0c");
    EXPECT_TRUE(this->settings->Changed());
    this->settings->SetChanged(false);
    (*this->settings.*TypeParam::setValueScale)(L"mv");
    EXPECT_TRUE(this->settings->Changed());
    EXPECT_EQ(this->settings->TempScale(), L"\u00B0c");
    EXPECT_EQ((*this->settings.*TypeParam::valueScale)(), L"mv");
}

TYPED_TEST(PointSettingsTest, AreNeverChangedByFormats) {
    this->settings->SetTempFormat(L"0.0");
    (*this->settings.*TypeParam::setValueFormat)(L"0.00");
    EXPECT_EQ(this->settings->TempFormat(), L"0.0");
    EXPECT_EQ((*this->settings.*TypeParam::valueFormat)(), L"0.00");
    EXPECT_FALSE(this->settings->Changed());
}

TYPED_TEST(PointSettingsTest, KeepTheirSpareSlotWhenTheyShrinkAndGrow) {
    this->Fill();
    this->settings->SetNumPoints(1);
    this->settings->SetNumPoints(3);
    this->ExpectPoints({1.0, 2.0, 0.0});
}

TYPED_TEST(PointSettingsTest, CanHaveNoPoints) {
    this->Fill();
    this->settings->SetNumPoints(0);
    EXPECT_EQ(this->settings->NumPoints(), 0);
    EXPECT_TRUE(this->settings->Changed());
    this->settings->SetNumPoints(2);
    this->ExpectPoints({1.0, 0.0});
}

TYPED_TEST(PointSettingsTest, RaiseForANegativeCountAndFindTheirPointsAgain) {
    this->Fill();
    for (const int count : {-1, -32768}) {
        SCOPED_TRACE(count);
        this->settings->SetChanged(false);
        EXPECT_QUOR_ERROR(this->settings->SetNumPoints(Int(count)), 9, TypeParam::className,
                          L"Subscript out of range");
        EXPECT_EQ(this->settings->NumPoints(), count);
        EXPECT_TRUE(this->settings->Changed());
        this->settings->SetNumPoints(3);
        this->ExpectPoints({1.0, 2.0, 3.0});
    }
}

TYPED_TEST(PointSettingsTest, WriteNoPointsForANegativeCount) {
    ASSERT_TRUE(Support::Load(*this->settings, this->Points(2, 2)));
    EXPECT_QUOR_ERROR(this->settings->SetNumPoints(-32768), 9, TypeParam::className,
                      L"Subscript out of range");
    EXPECT_EQ(Support::Held(*this->settings), this->Points(-32768, 0));
    EXPECT_TRUE(this->platform->Messages().empty());
}

TYPED_TEST(PointSettingsTest, ReportANegativeCountInAFileAndKeepTheirPoints) {
    this->Fill();
    EXPECT_FALSE(Support::Load(*this->settings, this->Points(-5, 3, 10.0)));
    EXPECT_EQ(
        OnlyMessage(*this->platform),
        Support::ReadingReport(std::wstring(L"9 - Subscript out of range\r(") + TypeParam::className + L")"));
    EXPECT_EQ(this->settings->NumPoints(), -5);
    this->settings->SetNumPoints(3);
    this->ExpectPoints({1.0, 2.0, 3.0});
}

TYPED_TEST(PointSettingsTest, TakeNoFileForReadThatHoldsTheirOwnNegativeCount) {
    EXPECT_FALSE(Support::Load(*this->settings, this->Points(-5, 3)));
    EXPECT_FALSE(Support::Load(*this->settings, this->Points(-5, 3)));
    ASSERT_EQ(this->platform->Messages().size(), 2U);
    EXPECT_EQ(this->platform->Messages()[1].text, Support::versionMessage);
}

TYPED_TEST(PointSettingsTest, IgnoreACountAboveTheirLimitInAFileAndReadAsManyPointsAsTheyHave) {
    this->settings->SetNumPoints(2);
    for (const int count : {TypeParam::limit + 1, 32767}) {
        SCOPED_TRACE(count);
        EXPECT_TRUE(Support::Load(*this->settings, this->Points(count, TypeParam::limit + 1, count)));
        EXPECT_EQ(Support::Held(*this->settings), this->Points(2, 2, count));
    }
    EXPECT_TRUE(this->platform->Messages().empty());
}

TYPED_TEST(PointSettingsTest, ReadTheirOwnCountOrTheOneTheStoreLeavesWhenTheKeyIsMissing) {
    Record record = this->Points(2, 3);
    record.erase(L"NumPoints");
    this->settings->SetNumPoints(2);
    EXPECT_FALSE(Support::Load(*this->settings, record));
    EXPECT_EQ(Support::Held(*this->settings), this->Points(2, 2));
    const auto store = Support::StoreWith(record);
    store->scribblesOnMissingKeys = true; // leaves 1
    EXPECT_FALSE(Support::ReadFrom(*this->settings, store));
    EXPECT_EQ(Support::Held(*this->settings), this->Points(1, 1));
}

TYPED_TEST(PointSettingsTest, FillAListThatIsClearedFirstWithTheCountsToChoose) {
    ListRecorder list;
    list.AddItem(L"left over");
    this->settings->SetNumPoints(1); // not the present count but the greatest one decides
    this->settings->FillPointsCombo(list);
    std::vector<ListRecorder::Item> expected;
    for (std::int32_t count = 1; count <= TypeParam::limit; ++count)
        expected.emplace_back(std::to_wstring(count), count);
    EXPECT_EQ(list.items, expected);
}
