#include "QuorConversions/thermocouple/CQuorTCTable.h"

#include "tests/support/Records.h"

#include <algorithm>

using namespace QuorConversions;
using Support::indexOutOfRange;
using Support::Int;
using Support::ListRecorder;
using Support::Record;
using Support::ScriptedPlatform;

namespace {

class CQuorTCTableTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorTCTable> table = Support::NewSettings<CQuorTCTable>(CONV_TCTABLE, platform);
    const Record own{{L"NumPoints", Int(2)},
                     {L"Temperatures0", 1.0},
                     {L"Voltages0", 2.0},
                     {L"Temperatures1", 3.0},
                     {L"Voltages1", 4.0}};
    const Record other{{L"NumPoints", Int(2)},
                       {L"Temperatures0", -40.0},
                       {L"Voltages0", -1.527},
                       {L"Temperatures1", 100.0},
                       {L"Voltages1", 4.096}};
};

/// A drop-down that keeps its items sorted, as a host may have set it up: a new item is rarely the last one.
class SortedList : public ListRecorder {
public:
    void AddItem(std::wstring_view text) override {
        const auto place = std::lower_bound(items.begin(), items.end(), Item(text, 0));
        m_newIndex = static_cast<std::int32_t>(place - items.begin());
        items.insert(place, Item(text, 0));
    }
    [[nodiscard]] std::int32_t NewIndex() const override { return m_newIndex; }

private:
    std::int32_t m_newIndex = -1;
};

} // namespace

TEST_F(CQuorTCTableTest, IsNewAndUnchangedWithTenPoints) {
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_TCTABLE);
    const auto fresh = SettingsAs<CQuorTCTable>(conversion);
    EXPECT_EQ(fresh->NumPoints(), 10);
    EXPECT_EQ(fresh->GetName(), L"TC Table");
    EXPECT_TRUE(fresh->AllowEdit());
    EXPECT_FALSE(fresh->Changed());
}

TEST_F(CQuorTCTableTest, RaisesForAnIndexOutsideItsPoints) {
    table->SetNumPoints(4);
    table->SetChanged(false);
    const std::wstring text = L"Index out of range";
    for (const std::int32_t index : {-1, 4, 10, 65536}) {
        SCOPED_TRACE(index);
        EXPECT_QUOR_ERROR((void)table->Temperatures(index), indexOutOfRange, L"CQuorTCTable", text);
        EXPECT_QUOR_ERROR(table->SetTemperatures(index, 1.0), indexOutOfRange, L"CQuorTCTable", text);
        EXPECT_QUOR_ERROR((void)table->Voltages(index), indexOutOfRange, L"CQuorTCTable", text);
        EXPECT_QUOR_ERROR(table->SetVoltages(index, 1.0), indexOutOfRange, L"CQuorTCTable", text);
    }
    EXPECT_FALSE(table->Changed());
    EXPECT_TRUE(platform->Messages().empty());
    table->SetNumPoints(5);
    EXPECT_EQ(table->Temperatures(4), 0.0); // the refused values went nowhere
    EXPECT_EQ(table->Voltages(4), 0.0);
}

TEST_F(CQuorTCTableTest, TakesAPointAtZeroDegrees) {
    table->SetTemperatures(TCTABLE_T10, 100.0);
    table->SetTemperatures(TCTABLE_T10, 0.0);
    EXPECT_EQ(table->Temperatures(TCTABLE_T10), 0.0);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorTCTableTest, WritesItsPointsInPairsAndNeitherUnitsNorFormats) {
    table->SetNumPoints(3);
    table->SetTemperatures(TCTABLE_T1, -40.0);
    table->SetVoltages(TCTABLE_ADJ1, -1.5);
    table->SetVoltages(TCTABLE_ADJ3, 4.25);
    table->SetTempScale(L"K");
    table->SetVoltageFormat(L"0.00");
    EXPECT_EQ(Support::OperationsOfWriting(*table),
              (std::vector<std::wstring>{
                  L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
                  L"WriteInteger NumPoints=3 comment \"\"", L"WriteDouble Temperatures0=-40 comment \"\"",
                  L"WriteDouble Voltages0=-1.5 comment \"\"", L"WriteDouble Temperatures1=0 comment \"\"",
                  L"WriteDouble Voltages1=0 comment \"\"", L"WriteDouble Temperatures2=0 comment \"\"",
                  L"WriteDouble Voltages2=4.25 comment \"\"", L"Release"}));
}

TEST_F(CQuorTCTableTest, ReadsItsCountBeforeItsPointsAndNoVersion) {
    const auto store = Support::StoreWith(other);
    EXPECT_TRUE(Support::ReadFrom(*table, store));
    EXPECT_EQ(store->operations,
              (std::vector<std::wstring>{L"Section \"Probe\"", L"ReadInteger NumPoints",
                                         L"ReadDouble Temperatures0", L"ReadDouble Voltages0",
                                         L"ReadDouble Temperatures1", L"ReadDouble Voltages1"}));
    EXPECT_EQ(table->NumPoints(), 2);
    EXPECT_EQ(table->Temperatures(TCTABLE_T2), 100.0);
    EXPECT_EQ(table->Voltages(TCTABLE_ADJ2), 4.096);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorTCTableTest, KeepsItsOwnValueForEachMissingKey) {
    Support::ExpectOwnValueForEachMissingKey(*table, *platform, own, other);
}

TEST_F(CQuorTCTableTest, TakesWhatTheStoreLeavesForEachMissingValue) {
    Support::ExpectWhatTheStoreLeavesForEachMissingValue(*table, own, other);
}

TEST_F(CQuorTCTableTest, IsChangedByReadingAnotherValue) {
    Support::ExpectChangeByEachOtherStoredValue(*table, own, other);
}

TEST_F(CQuorTCTableTest, GivesEachCountItsNumberInASortedListToo) {
    SortedList list;
    table->FillPointsCombo(list);
    EXPECT_EQ(list.items, (std::vector<ListRecorder::Item>{{L"1", 1},
                                                           {L"10", 10},
                                                           {L"2", 2},
                                                           {L"3", 3},
                                                           {L"4", 4},
                                                           {L"5", 5},
                                                           {L"6", 6},
                                                           {L"7", 7},
                                                           {L"8", 8},
                                                           {L"9", 9}}));
}
