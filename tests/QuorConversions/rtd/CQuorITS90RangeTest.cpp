#include "QuorConversions/rtd/CQuorITS90Range.h"

#include "QuorConversions/rtd/CQuorITS90.h"
#include "tests/support/Objects.h"
#include "tests/support/RecordClaims.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <span>
#include <string_view>

using namespace QuorConversions;
using Support::ErrorReport;
using Support::indexOutOfRange;
using Support::Lines;
using Support::ListRecorder;
using Support::MemoryIniFile;
using Support::MessageTexts;
using Support::ScriptedPlatform;

namespace {

constexpr std::int32_t rangeOutOfRange = -2147221002; // 0x800401F6

struct Row {
    std::int32_t number;
    std::int16_t count;
    const wchar_t* name;
};

/// What one of the two classes must know: its ranges in ascending order, its name, and which range is
/// selected when it is disabled.
struct Side {
    const char* name;
    const wchar_t* className;
    std::shared_ptr<CQuorITS90Range> (*of)(const CQuorITS90& its90);
    std::span<const Row> rows;
    EITS90RangeNumber whenDisabled;

    [[nodiscard]] std::int32_t First() const { return rows.front().number; }
    [[nodiscard]] std::int32_t Last() const { return rows.back().number; }
};

void PrintTo(const Side& side, std::ostream* out) { *out << side.name; }

constexpr Row lowRows[] = {
    {1, 7, L"Range 1 (13K to 273K)"}, {2, 5, L"Range 2 (24K to 273K)"},  {3, 3, L"Range 3 (54K to 273K)"},
    {4, 2, L"Range 4 (83K to 273K)"}, {5, 2, L"Range 5 (234K to 302K)"},
};
constexpr Row highRows[] = {
    {5, 2, L"Range 5 (234K to 302K)"},   {6, 4, L"Range 6 (273K to 1234K)"},
    {7, 3, L"Range 7 (273K to 933K)"},   {8, 2, L"Range 8 (273K to 692K)"},
    {9, 2, L"Range 9 (273K to 505K)"},   {10, 1, L"Range 10 (273K to 429K)"},
    {11, 1, L"Range 11 (273K to 302K)"},
};

std::shared_ptr<CQuorITS90Range> LowRange(const CQuorITS90& its90) { return its90.LowRange(); }
std::shared_ptr<CQuorITS90Range> HighRange(const CQuorITS90& its90) { return its90.HighRange(); }

constexpr Side sides[] = {
    {"Low", L"CQuorITS90LowRange", LowRange, lowRows, ITS90_RANGE_1},
    {"High", L"CQuorITS90HighRange", HighRange, highRows, ITS90_RANGE_6},
};

EITS90RangeNumber Number(std::int32_t range) { return EITS90RangeNumber{range}; }

class CQuorITS90RangeTest : public testing::TestWithParam<Side> {
protected:
    const Side& side = GetParam();
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorITS90Range> range =
        side.of(*Support::FreshSettings<CQuorITS90>(CONV_ITS90, platform));
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;

    /// A range with two coefficients on either side.
    void SelectRange5() {
        range->SetRange(ITS90_RANGE_5);
        range->SetCoefficients(0, -2.5e-4);
        range->SetCoefficients(1, 1.25e-5);
        range->SetChanged(false);
    }
};

INSTANTIATE_TEST_SUITE_P(Sides, CQuorITS90RangeTest, testing::ValuesIn(sides),
                         [](const auto& instance) { return std::string(instance.param.name); });

/// A list that keeps its newest item in front, as a sorted one may.
class NewestFirst : public ListRecorder {
public:
    void AddItem(std::wstring_view text) override { items.insert(items.begin(), {std::wstring(text), 0}); }
    [[nodiscard]] std::int32_t NewIndex() const override { return 0; }
};

template <class T>
concept HasMembersOfASettingsClass = requires(T& object) {
    object.AllowEdit();
}
|| requires(T& object) { object.FilePath(); }
|| requires(T& object) { object.Edit(); }
|| requires(T& object) { object.GetName(); };
static_assert(HasMembersOfASettingsClass<CQuorITS90>);
static_assert(!HasMembersOfASettingsClass<CQuorITS90LowRange>);
static_assert(!HasMembersOfASettingsClass<CQuorITS90HighRange>);

} // namespace

TEST_P(CQuorITS90RangeTest, IsNewWithoutARange) {
    EXPECT_EQ(range->Range(), ITS90_NORANGE);
    EXPECT_EQ(range->NumCoefficients(), 0);
    EXPECT_EQ(range->MinRange(), Number(side.First()));
    EXPECT_EQ(range->MaxRange(), Number(side.Last()));
    EXPECT_TRUE(range->RangeEnabled());
    EXPECT_TRUE(range->AllowChangeRange());
    EXPECT_TRUE(range->ShowCoefRange());
    EXPECT_EQ(range->ValueFormat(), L"");
    EXPECT_EQ(range->Registry(), nullptr);
    EXPECT_FALSE(range->Changed());
    EXPECT_QUOR_ERROR((void)range->Coefficients(0), indexOutOfRange, side.className, L"Index out of range");
}

TEST_P(CQuorITS90RangeTest, KnowsTheNamesOfItsOwnRangesOnly) {
    EXPECT_EQ(range->RangeName(-1), L"<none>");
    EXPECT_EQ(range->RangeName(-2), L"<none>"); // the current one
    for (const Row& row : side.rows)
        EXPECT_EQ(range->RangeName(row.number), row.name);
    for (const std::int32_t other : {-3, 0, side.First() - 1, side.Last() + 1, 12, 70000})
        EXPECT_EQ(range->RangeName(other), L"") << other;
}

TEST_P(CQuorITS90RangeTest, CarriesTheCoefficientsOfTheSelectedRange) {
    for (const Row& row : side.rows) {
        SCOPED_TRACE(row.number);
        range->SetRange(Number(row.number));
        EXPECT_EQ(range->Range(), Number(row.number));
        EXPECT_EQ(range->RangeName(-2), row.name);
        EXPECT_EQ(range->NumCoefficients(), row.count);
        range->SetCoefficients(row.count - 1, 0.25);
        EXPECT_EQ(range->Coefficients(row.count - 1), 0.25);
        for (const std::int32_t index : {-1, std::int32_t{row.count}}) {
            EXPECT_QUOR_ERROR((void)range->Coefficients(index), indexOutOfRange, side.className,
                              L"Index out of range");
            EXPECT_QUOR_ERROR(range->SetCoefficients(index, 1.0), indexOutOfRange, side.className,
                              L"Index out of range");
        }
    }
}

TEST_P(CQuorITS90RangeTest, RefusesARangeOutsideItsLimitsAndKeepsWhatItHas) {
    SelectRange5();
    for (const std::int32_t other : {side.First() - 1, side.Last() + 1, 0, -2, -3, 70000}) {
        SCOPED_TRACE(other);
        EXPECT_QUOR_ERROR(range->SetRange(Number(other)), rangeOutOfRange, side.className,
                          L"ITS-90 range out of range.");
    }
    EXPECT_EQ(range->Range(), ITS90_RANGE_5);
    EXPECT_EQ(range->NumCoefficients(), 2);
    EXPECT_EQ(range->Coefficients(0), -2.5e-4);
    EXPECT_FALSE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, TakesNoRangeWithAnyLimits) {
    SelectRange5();
    range->SetMinRange(ITS90_RANGE_9);
    range->SetMaxRange(ITS90_RANGE_3);
    range->SetRange(ITS90_NORANGE);
    EXPECT_EQ(range->Range(), ITS90_NORANGE);
    EXPECT_EQ(range->NumCoefficients(), 0);
    EXPECT_TRUE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, KeepsAndTakesAgainItsRangeWhenTheLimitsExcludeIt) {
    SelectRange5();
    range->SetMinRange(ITS90_RANGE_6);
    range->SetMaxRange(ITS90_RANGE_4);
    EXPECT_NO_THROW(range->SetRange(ITS90_RANGE_5));
    EXPECT_EQ(range->Range(), ITS90_RANGE_5);
    EXPECT_EQ(range->MinRange(), ITS90_RANGE_6);
    EXPECT_EQ(range->MaxRange(), ITS90_RANGE_4);
    EXPECT_FALSE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, HasNoCoefficientsInARangeThatItDoesNotKnow) {
    SelectRange5();
    range->SetMinRange(Number(-100));
    range->SetMaxRange(Number(100));
    for (const std::int32_t other : {side.First() - 1, side.Last() + 1, 0, -50}) {
        range->SetRange(Number(other));
        EXPECT_EQ(range->Range(), Number(other));
        EXPECT_EQ(range->NumCoefficients(), 0) << other;
        EXPECT_EQ(range->RangeName(-2), L"") << other;
    }
}

TEST_P(CQuorITS90RangeTest, IsChangedByAnotherRangeOnly) {
    range->SetRange(ITS90_NORANGE);
    EXPECT_FALSE(range->Changed());
    range->SetRange(ITS90_RANGE_5);
    EXPECT_TRUE(range->Changed());
    range->SetChanged(false);
    range->SetRange(ITS90_RANGE_5);
    EXPECT_FALSE(range->Changed());
    range->SetRange(Number(side.Last()));
    range->SetChanged(true);
    range->SetRange(Number(side.Last()));
    EXPECT_TRUE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, IsChangedByAnotherRangeWithTheSameCountOfCoefficients) {
    range->SetRange(Number(side.First() + 3)); // 4 or 8, with two coefficients like range 5
    range->SetCoefficients(1, 0.5);
    range->SetChanged(false);
    range->SetRange(ITS90_RANGE_5);
    EXPECT_TRUE(range->Changed());
    EXPECT_EQ(range->Coefficients(1), 0.5);
}

TEST_P(CQuorITS90RangeTest, IsChangedByAnotherCoefficientOnly) {
    SelectRange5();
    range->SetCoefficients(0, -2.5e-4);
    EXPECT_FALSE(range->Changed());
    range->SetCoefficients(0, std::nextafter(-2.5e-4, 0.0));
    EXPECT_TRUE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, IsNeverChangedByDisplaySettingsAndLimits) {
    range->SetShowCoefRange(false);
    range->SetAllowChangeRange(false);
    range->SetMinRange(ITS90_RANGE_2);
    range->SetMaxRange(ITS90_RANGE_8);
    range->SetValueFormat(L"0.0000000E+00");
    EXPECT_FALSE(range->ShowCoefRange());
    EXPECT_FALSE(range->AllowChangeRange());
    EXPECT_EQ(range->ValueFormat(), L"0.0000000E+00");
    EXPECT_FALSE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, KeepsItsFirstCoefficientAloneOverNoRange) {
    SelectRange5();
    range->SetRange(ITS90_NORANGE);
    range->SetRange(ITS90_RANGE_5);
    EXPECT_EQ(range->Coefficients(0), -2.5e-4); // it waited in the spare slot
    EXPECT_EQ(range->Coefficients(1), 0.0);
}

TEST_P(CQuorITS90RangeTest, SelectsARangeWhenItIsDisabledAndKeepsItWhenEnabled) {
    range->SetRangeEnabled(true);
    EXPECT_FALSE(range->Changed());
    range->SetRangeEnabled(false);
    EXPECT_FALSE(range->RangeEnabled());
    EXPECT_EQ(range->Range(), side.whenDisabled);
    EXPECT_TRUE(range->Changed());
    range->SetChanged(false);
    range->SetRangeEnabled(true);
    EXPECT_TRUE(range->RangeEnabled());
    EXPECT_EQ(range->Range(), side.whenDisabled);
    EXPECT_TRUE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, SelectsNothingWhenItIsDisabledAgain) {
    range->SetRangeEnabled(false);
    range->SetRange(ITS90_RANGE_5);
    range->SetChanged(false);
    range->SetRangeEnabled(false);
    EXPECT_EQ(range->Range(), ITS90_RANGE_5);
    EXPECT_FALSE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, IsChangedByDisablingAlsoWhereTheRangeIsSelectedAlready) {
    range->SetRange(side.whenDisabled);
    range->SetChanged(false);
    range->SetRangeEnabled(false);
    EXPECT_EQ(range->Range(), side.whenDisabled);
    EXPECT_TRUE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, StaysDisabledWhenItsLimitsRefuseTheRangeToSelect) {
    range->SetMaxRange(Number(0));
    EXPECT_QUOR_ERROR(range->SetRangeEnabled(false), rangeOutOfRange, side.className,
                      L"ITS-90 range out of range.");
    EXPECT_FALSE(range->RangeEnabled());
    EXPECT_EQ(range->Range(), ITS90_NORANGE);
    EXPECT_TRUE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, FillsAListWithNoneAndItsRanges) {
    std::vector<ListRecorder::Item> expected = {{L"<none>", -1}};
    for (const Row& row : side.rows)
        expected.emplace_back(row.name, row.number);
    ListRecorder list;
    list.items = {{L"left from before", 99}};
    range->FillRangeCombo(list);
    EXPECT_EQ(list.items, expected);
    EXPECT_EQ(range->Range(), ITS90_NORANGE);

    std::reverse(expected.begin(), expected.end());
    NewestFirst sorted;
    range->FillRangeCombo(sorted);
    EXPECT_EQ(sorted.items, expected);
}

TEST_P(CQuorITS90RangeTest, FillsAListWithinItsLimits) {
    ListRecorder list;
    range->SetMinRange(ITS90_RANGE_5);
    range->SetMaxRange(ITS90_RANGE_5);
    range->FillRangeCombo(list);
    EXPECT_EQ(list.items, (std::vector<ListRecorder::Item>{{L"<none>", -1}, {L"Range 5 (234K to 302K)", 5}}));

    range->SetMinRange(ITS90_NORANGE); // would give "<none>" a second time
    range->SetMaxRange(ITS90_NORANGE);
    range->FillRangeCombo(list);
    EXPECT_EQ(list.items, (std::vector<ListRecorder::Item>{{L"<none>", -1}}));
}

TEST_P(CQuorITS90RangeTest, WritesItsRangeAndCoefficientsAndNothingElse) {
    SelectRange5();
    range->SetRangeEnabled(true);
    range->SetValueFormat(L"0.00");
    range->SetChanged(true);
    range->WriteToFile(ini, L"", L"R");
    EXPECT_EQ(memory->operations,
              (Lines{L"Section \"R\"", L"Hold", L"WriteString Version=\"1.0\"",
                     L"WriteInteger Range=5 comment \"\"",
                     L"WriteDouble Coefficients0=-0.00025000000000000001 comment \"\"",
                     L"WriteDouble Coefficients1=1.2500000000000001e-05 comment \"\"", L"Release"}));
    EXPECT_TRUE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, WritesNoRangeAsMinusOne) {
    range->WriteToFile(ini, L"", L"R");
    EXPECT_EQ(memory->operations, (Lines{L"Section \"R\"", L"Hold", L"WriteString Version=\"1.0\"",
                                         L"WriteInteger Range=-1 comment \"\"", L"Release"}));
}

TEST_P(CQuorITS90RangeTest, ReadsTheCountOfCoefficientsThatTheRangeCarries) {
    memory->values = {{{L"R", L"Range"}, std::int16_t{5}},
                      {{L"R", L"Coefficients0"}, 0.125},
                      {{L"R", L"Coefficients1"}, -0.0},
                      {{L"R", L"Coefficients2"}, 9.0}};
    EXPECT_TRUE(range->ReadFromFile(ini, L"", L"R"));
    EXPECT_EQ(memory->operations, (Lines{L"Section \"R\"", L"ReadInteger Range", L"ReadDouble Coefficients0",
                                         L"ReadDouble Coefficients1"}));
    EXPECT_EQ(range->Range(), ITS90_RANGE_5);
    EXPECT_EQ(range->Coefficients(0), 0.125);
    EXPECT_TRUE(std::signbit(range->Coefficients(1)));
    EXPECT_TRUE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, IsNotChangedByReadingWhatItHolds) {
    SelectRange5();
    range->WriteToFile(ini, L"", L"R");
    EXPECT_TRUE(range->ReadFromFile(ini, L"", L"R"));
    EXPECT_FALSE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, ReadsNoRangeWithoutCoefficients) {
    SelectRange5();
    memory->Set(L"R", L"Range", std::int16_t{-1});
    EXPECT_TRUE(range->ReadFromFile(ini, L"", L"R"));
    EXPECT_EQ(range->Range(), ITS90_NORANGE);
    EXPECT_EQ(range->NumCoefficients(), 0);
}

TEST_P(CQuorITS90RangeTest, ReportsARangeOfTheFileThatItsLimitsRefuse) {
    SelectRange5();
    memory->Set(L"R", L"Range", std::int16_t{12});
    memory->Set(L"R", L"Coefficients0", 1.0);
    EXPECT_FALSE(range->ReadFromFile(ini, L"", L"R"));
    EXPECT_EQ(MessageTexts(*platform), (Lines{ErrorReport(Support::readingSettings, rangeOutOfRange,
                                                          L"ITS-90 range out of range.", side.className)}));
    EXPECT_EQ(range->Range(), ITS90_RANGE_5);
    EXPECT_EQ(range->Coefficients(0), -2.5e-4);
    EXPECT_FALSE(range->Changed());
}

TEST_P(CQuorITS90RangeTest, ReportsARangeThatDoesNotFitIntoAFile) {
    range->SetMaxRange(Number(70000));
    range->SetRange(Number(70000));
    range->WriteToFile(ini, L"", L"R");
    EXPECT_EQ(MessageTexts(*platform),
              (Lines{ErrorReport(Support::writingSettings, 6, L"Overflow", side.className)}));
    EXPECT_FALSE(memory->Has(L"R", L"Range"));

    EXPECT_FALSE(range->ReadFromFile(ini, L"", L"R"));
    EXPECT_EQ(range->Range(), Number(70000)); // the missing key leaves it uncut
}
