#include "QuorConversions/thermistor/CQuorThermistor.h"

#include "tests/support/Records.h"

using namespace QuorConversions;
using Support::indexOutOfRange;
using Support::Int;
using Support::OnlyMessage;
using Support::Record;
using Support::ScriptedPlatform;
using Support::versionMessage;

namespace {

class CQuorThermistorTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<CQuorThermistor> thermistor =
        Support::NewSettings<CQuorThermistor>(CONV_THERMISTORT_R, platform);
};

Record Curve(int convType, double a0, double a1) {
    return {{L"ConvType", Int(convType)},
            {L"NumCoefficients", Int(2)},
            {L"Coefficients0", a0},
            {L"Coefficients1", a1}};
}

template <class T>
concept CountCanBeSet = requires(T& settings) {
    settings.SetNumCoefficients(std::int16_t{2});
};

} // namespace

TEST_F(CQuorThermistorTest, IsNewWithFourCoefficientsOfZeroForTemperatureFromResistance) {
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_THERMISTORT_R);
    const auto fresh = SettingsAs<CQuorThermistor>(conversion);
    EXPECT_EQ(fresh->ConvType(), TCT_THRMT_R);
    EXPECT_EQ(fresh->ConvName(-2), L"Thermistor T(R)");
    EXPECT_EQ(fresh->NumCoefficients(), 4);
    for (const auto index : {THRM_A0, THRM_A1, THRM_A2, THRM_A3})
        EXPECT_EQ(fresh->Coefficients(index), 0.0);
    EXPECT_EQ(fresh->ValueFormat(), L"");
    EXPECT_TRUE(fresh->AllowEdit());
    EXPECT_FALSE(fresh->Changed());
}

TEST_F(CQuorThermistorTest, HasOneSetOfCoefficientsForBothDirections) {
    thermistor->SetCoefficients(THRM_A2, 2.5);
    thermistor->SetConvType(TCT_THRMR_T);
    EXPECT_EQ(thermistor->Coefficients(THRM_B2), 2.5);
}

TEST_F(CQuorThermistorTest, OffersItsCountForReadingOnly) { EXPECT_FALSE(CountCanBeSet<CQuorThermistor>); }

TEST_F(CQuorThermistorTest, NamesADirectionThatItDoesNotKnowInGetNameOnly) {
    struct Case {
        std::int32_t convType;
        const wchar_t* convName;
        const wchar_t* getName;
    };
    for (const Case& c : {Case{0, L"Thermistor T(R)", L"Thermistor T(R)"},
                          {1, L"Thermistor R(T)", L"Thermistor R(T)"},
                          {7, L"Thermistor ", L"Thermistor T(R)"},
                          {-1, L"Thermistor ", L"Thermistor T(R)"},
                          {-2, L"Thermistor ", L"Thermistor T(R)"},
                          {65536, L"Thermistor ", L"Thermistor T(R)"}}) {
        SCOPED_TRACE(c.convType);
        thermistor->SetConvType(EThermistorConvType{c.convType});
        EXPECT_EQ(thermistor->ConvName(-2), c.convName);
        EXPECT_EQ(thermistor->GetName(), c.getName);
        thermistor->SetConvType(TCT_THRMR_T);
        if (c.convType != -2) {
            EXPECT_EQ(thermistor->ConvName(c.convType), c.convName);
        }
    }
}

TEST_F(CQuorThermistorTest, IsChangedByAnotherDirectionOfWhateverValue) {
    thermistor->SetConvType(TCT_THRMT_R);
    EXPECT_FALSE(thermistor->Changed());
    thermistor->SetConvType(EThermistorConvType{70000});
    EXPECT_EQ(thermistor->ConvType(), 70000);
    EXPECT_TRUE(thermistor->Changed());
}

TEST_F(CQuorThermistorTest, IsChangedByAnotherCoefficientOnly) {
    Support::ExpectAMarkForADifferenceOnly(
        *thermistor, [&] { return thermistor->Coefficients(THRM_A3); },
        [&](double value) { thermistor->SetCoefficients(THRM_A3, value); });
}

TEST_F(CQuorThermistorTest, IsNeverChangedByItsDisplayFormat) {
    thermistor->SetValueFormat(L"0.0000");
    EXPECT_EQ(thermistor->ValueFormat(), L"0.0000");
    EXPECT_FALSE(thermistor->Changed());
}

TEST_F(CQuorThermistorTest, RefusesAnIndexOutsideItsCoefficients) {
    for (const std::int32_t index : {-1, 4, 65536}) {
        SCOPED_TRACE(index);
        EXPECT_QUOR_ERROR((void)thermistor->Coefficients(index), indexOutOfRange, L"CQuorThermistor",
                          L"Index out of range");
        EXPECT_QUOR_ERROR(thermistor->SetCoefficients(index, 1.0), indexOutOfRange, L"CQuorThermistor",
                          L"Index out of range");
    }
    EXPECT_FALSE(thermistor->Changed());
}

TEST_F(CQuorThermistorTest, WritesItsKeysInOrderWithEmptyComments) {
    thermistor->SetConvType(TCT_THRMR_T);
    thermistor->SetCoefficients(THRM_B0, -4.25);
    thermistor->SetCoefficients(THRM_B3, 0.5);
    thermistor->SetValueFormat(L"0.00");
    EXPECT_EQ(Support::OperationsOfWriting(*thermistor),
              (std::vector<std::wstring>{
                  L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
                  L"WriteInteger ConvType=1 comment \"\"", L"WriteInteger NumCoefficients=4 comment \"\"",
                  L"WriteDouble Coefficients0=-4.25 comment \"\"",
                  L"WriteDouble Coefficients1=0 comment \"\"", L"WriteDouble Coefficients2=0 comment \"\"",
                  L"WriteDouble Coefficients3=0.5 comment \"\"", L"Release"}));
}

TEST_F(CQuorThermistorTest, ReadsItsCountBeforeItsCoefficientsAndNoVersion) {
    const auto store = Support::StoreWith(Curve(TCT_THRMT_R, 1.0, 2.0));
    EXPECT_TRUE(Support::ReadFrom(*thermistor, store));
    EXPECT_EQ(store->operations,
              (std::vector<std::wstring>{L"Section \"Probe\"", L"ReadInteger ConvType",
                                         L"ReadInteger NumCoefficients", L"ReadDouble Coefficients0",
                                         L"ReadDouble Coefficients1"}));
    EXPECT_EQ(thermistor->NumCoefficients(), 2);
    EXPECT_EQ(thermistor->Coefficients(THRM_A0), 1.0);
    EXPECT_EQ(thermistor->Coefficients(THRM_A1), 2.0);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorThermistorTest, KeepsItsOwnValueForEachMissingKey) {
    Support::ExpectOwnValueForEachMissingKey(*thermistor, *platform, Curve(TCT_THRMT_R, 1.0, 2.0),
                                             Curve(TCT_THRMT_R, 10.0, 20.0));
}

TEST_F(CQuorThermistorTest, TakesWhatTheStoreLeavesForAMissingCoefficientOrCount) {
    const Record record = Curve(TCT_THRMT_R, 10.0, 20.0);
    Support::ExpectWhatTheStoreLeavesForEachMissingValue(*thermistor, Curve(TCT_THRMT_R, 1.0, 2.0), record);
    const auto store = Support::StoreWith(record);
    store->Remove(L"Probe", L"NumCoefficients");
    store->scribblesOnMissingKeys = true;
    EXPECT_FALSE(Support::ReadFrom(*thermistor, store));
    EXPECT_EQ(thermistor->NumCoefficients(), 1);
}

TEST_F(CQuorThermistorTest, IsChangedByReadingAnotherValueOrAnotherCount) {
    const Record record = Curve(TCT_THRMT_R, 1.0, 2.0);
    Support::ExpectChangeByEachOtherStoredValue(*thermistor, record, Curve(TCT_THRMT_R, 10.0, 20.0));
    thermistor->SetChanged(false);
    ASSERT_TRUE(Support::Load(*thermistor, {{L"ConvType", Int(0)}, {L"NumCoefficients", Int(0)}}));
    EXPECT_TRUE(thermistor->Changed());
}

TEST_F(CQuorThermistorTest, RefusesTheOtherDirectionWithAMessageAndStillCallsItRead) {
    struct Case {
        int own;
        int stored;
        const wchar_t* message;
    };
    for (const Case& c :
         {Case{0, 1,
               L"This configuration file does not contain Thermistor T(R) coefficients. The conversion type "
               L"must be changed to R(T) to open this file."},
          {1, 0,
           L"This configuration file does not contain Thermistor R(T) coefficients. The conversion type must "
           L"be changed to T(R) to open this file."},
          {1, 7,
           L"This configuration file does not contain Thermistor R(T) coefficients. The conversion type must "
           L"be changed to T(R) to open this file."},
          {7, 0,
           L"This configuration file does not contain Thermistor T(R) coefficients. The conversion type must "
           L"be changed to T(R) to open this file."}}) {
        SCOPED_TRACE(testing::Message() << c.own << " reads " << c.stored);
        thermistor->SetConvType(EThermistorConvType{c.own});
        thermistor->SetChanged(false);
        const Record before = Support::Held(*thermistor);
        const auto store = Support::StoreWith(Curve(c.stored, 10.0, 20.0));
        EXPECT_TRUE(Support::ReadFrom(*thermistor, store));
        EXPECT_EQ(platform->Messages().back().text, c.message);
        EXPECT_EQ(platform->Messages().back().title, L"Quor Scientific");
        EXPECT_EQ(platform->Messages().back().icon, ICON_INFORMATION);
        EXPECT_EQ(store->operations,
                  (std::vector<std::wstring>{L"Section \"Probe\"", L"ReadInteger ConvType"}));
        EXPECT_EQ(Support::Held(*thermistor), before);
        EXPECT_FALSE(thermistor->Changed());
    }
    EXPECT_EQ(platform->Messages().size(), 4U);
}

TEST_F(CQuorThermistorTest, TellsOfTheDirectionAndOfTheMissingKeyWhenTheStoreLeavesTheOtherDirection) {
    Record record = Curve(TCT_THRMT_R, 10.0, 20.0);
    record.erase(L"ConvType");
    const auto store = Support::StoreWith(record);
    store->scribblesOnMissingKeys = true; // leaves 1, R(T)
    EXPECT_FALSE(Support::ReadFrom(*thermistor, store));
    ASSERT_EQ(platform->Messages().size(), 2U);
    EXPECT_EQ(platform->Messages()[0].text,
              L"This configuration file does not contain Thermistor T(R) coefficients. The conversion type "
              L"must be changed to R(T) to open this file.");
    EXPECT_EQ(platform->Messages()[1].text, versionMessage);
    EXPECT_EQ(thermistor->Coefficients(THRM_A0), 0.0);
}

TEST_F(CQuorThermistorTest, TakesAShorterCountFromAFileAndShowsItsSpareSlotAgain) {
    for (std::int32_t i = 0; i < 4; ++i)
        thermistor->SetCoefficients(i, i + 1.0);
    ASSERT_TRUE(Support::Load(*thermistor, Curve(TCT_THRMT_R, 10.0, 20.0)));
    EXPECT_QUOR_ERROR((void)thermistor->Coefficients(THRM_A2), indexOutOfRange, L"CQuorThermistor",
                      L"Index out of range");
    Record longer = Curve(TCT_THRMT_R, 10.0, 20.0);
    longer[L"NumCoefficients"] = Int(4);
    EXPECT_FALSE(Support::Load(*thermistor, longer));
    EXPECT_EQ(thermistor->Coefficients(THRM_A1), 20.0);
    EXPECT_EQ(thermistor->Coefficients(THRM_A2), 3.0);
    EXPECT_EQ(thermistor->Coefficients(THRM_A3), 0.0);
    EXPECT_EQ(OnlyMessage(*platform), versionMessage);
}

TEST_F(CQuorThermistorTest, ReportsACountAboveFourInAFileAndKeepsTheFourThatItReached) {
    Record record{{L"ConvType", Int(0)}, {L"NumCoefficients", Int(32767)}};
    for (int i = 0; i < 6; ++i)
        record[L"Coefficients" + std::to_wstring(i)] = i + 1.0;
    EXPECT_FALSE(Support::Load(*thermistor, record));
    EXPECT_EQ(OnlyMessage(*platform),
              Support::ReadingReport(L"-2147221003 - Index out of range\r(CQuorThermistor)"));
    EXPECT_EQ(thermistor->NumCoefficients(), 32767);
    EXPECT_EQ(thermistor->Coefficients(THRM_A3), 4.0);
    EXPECT_QUOR_ERROR((void)thermistor->Coefficients(4), indexOutOfRange, L"CQuorThermistor",
                      L"Index out of range");
}

TEST_F(CQuorThermistorTest, ReportsANegativeCountInAFileAndFindsItsValuesAgain) {
    thermistor->SetCoefficients(THRM_A3, 4.0);
    thermistor->SetChanged(false);
    EXPECT_FALSE(Support::Load(*thermistor, {{L"ConvType", Int(0)}, {L"NumCoefficients", Int(-32768)}}));
    EXPECT_EQ(OnlyMessage(*platform),
              Support::ReadingReport(L"9 - Subscript out of range\r(CQuorThermistor)"));
    EXPECT_EQ(thermistor->NumCoefficients(), -32768);
    EXPECT_TRUE(thermistor->Changed());
    EXPECT_QUOR_ERROR((void)thermistor->Coefficients(THRM_A0), indexOutOfRange, L"CQuorThermistor",
                      L"Index out of range");
    Support::Load(*thermistor, {{L"ConvType", Int(0)}, {L"NumCoefficients", Int(4)}});
    EXPECT_EQ(thermistor->Coefficients(THRM_A3), 4.0);
}

TEST_F(CQuorThermistorTest, ReportsADirectionBeyond16BitsWhenWritingAndKeepsItWhenTheKeyIsMissing) {
    thermistor->SetConvType(EThermistorConvType{70000});
    EXPECT_EQ(Support::OperationsOfWriting(*thermistor),
              (std::vector<std::wstring>{L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
                                         L"Release"}));
    EXPECT_EQ(OnlyMessage(*platform), Support::WritingReport(L"6 - Overflow\r(CQuorThermistor)"));
    EXPECT_FALSE(Support::Load(*thermistor, {{L"NumCoefficients", Int(1)}, {L"Coefficients0", 5.0}}));
    EXPECT_EQ(thermistor->ConvType(), 70000);
    EXPECT_EQ(thermistor->Coefficients(THRM_A0), 5.0);
}
