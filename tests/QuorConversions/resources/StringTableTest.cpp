#include "QuorConversions/resources/StringTable.h"

#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "tests/support/Objects.h"

#include <stdexcept>

using namespace QuorConversions;
using Support::MemoryIniFile;
using Support::ScriptedPlatform;

namespace {

/// Puts a table in front for one test.
class StringTableTest : public testing::Test {
protected:
    void TearDown() override { ReplaceStringTable({}); }

    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
};

std::optional<std::wstring> German(std::int32_t id) {
    switch (id) {
    case 103:
        return L"Quor Wissenschaft";
    case 119:
        return L"Falsche Version.";
    case 120:
        return L"Datei ~ \u00F6ffnen";
    case 163:
        return L"ITS von 1990";
    default:
        return std::nullopt;
    }
}

std::optional<std::wstring> Numbers(std::int32_t id) { return std::to_wstring(id); }

} // namespace

TEST_F(StringTableTest, HoldsTheTextsUnderTheirNumbers) {
    const struct {
        std::int32_t id;
        const wchar_t* text;
    } texts[] = {
        {101, L"An error occurred while"},
        {102, L"Error"},
        {112, L"attempting to gather settings"},
        {114, L"Files (*.~)|*.~"},
        {115, L"Settings"},
        {116, L"Index out of range"},
        {117, L"attempting to write settings"},
        {118, L"attempting to read settings"},
        {119, L"Cannot read the selected settings file because the file version is incorrect."},
        {120, L"Open ~ File"},
        {121, L"Save ~ File As"},
        {122, L"attempting to edit the conversion settings"},
        {123, L"<keep existing>"},
        {124, L"<unknown>"},
        {125, L"Ohms"},
        {126, L"Volts"},
        {127, L"Ratio"},
        {128, L"attempting to display help topic"},
        {132, L"Cannot use 0\u00B0C as a table value."},
        {133, L"attempting to validate settings"},
        {160, L"Callendar-Van Dusen"},
        {161, L"High Temperature PRT"},
        {162, L"IPTS-68"},
        {163, L"ITS-90"},
        {164, L"Polynomial"},
        {165, L"TC Polynomial"},
        {166, L"TC Table"},
        {167, L"TC Type"},
        {168, L"Thermistor"},
        {169, L"W(T90)"},
        {170, L"<none>"},
        {171, L"Range 5 (234K to 302K)"},
        {172, L"Range 6 (273K to 1234K)"},
        {173, L"Range 7 (273K to 933K)"},
        {174, L"Range 8 (273K to 692K)"},
        {175, L"Range 9 (273K to 505K)"},
        {176, L"Range 10 (273K to 429K)"},
        {177, L"Range 11 (273K to 302K)"},
        {178, L"Range 1 (13K to 273K)"},
        {179, L"Range 2 (24K to 273K)"},
        {180, L"Range 3 (54K to 273K)"},
        {181, L"Range 4 (83K to 273K)"},
        {183, L"T(R)"},
        {184, L"R(T)"},
        {194, L"Not a number: 0 would be stored"},
        {195, L"Only ~ of ~ would be stored"},
        {196, L"The decimal separator here is the point"},
        {197, L"The decimal separator here is ~"},
        {198, L"~ would be stored for ~"},
        {199, L"~ is too large to be stored"},
        {200, L"Pasted as ~"},
        {201, L"Nothing pasted: ~ can be read in two ways"},
        {202, L"Nothing pasted: ~ is not a number"},
        {203, L"Nothing pasted: there is no room for ~ numbers"},
        {204, L"Pasted from ~"},
        {205, L"This configuration file does not contain ~ coefficients. The conversion type must be changed "
              L"to ~ to open this file."},
        {206, L"mV (25C)"},
        {207, L"A system error has occurred"},
        {209, L"PT100"},
        {210, L"\"~\" cannot be typed here"},
        {211, L"Nothing pasted: the cell in line ~, column ~ is empty"},
    };
    for (const auto& [id, text] : texts)
        EXPECT_EQ(TableText(id), text) << id;
}

TEST_F(StringTableTest, HasNoTextForOtherNumbers) {
    for (const std::int32_t id : {-1, 0, 1, 100, 138, 208, 213, 65536 + 116, -2147483647})
        EXPECT_EQ(TableText(id), L"") << id;
    for (std::int32_t id = -300; id < 1000; ++id)
        EXPECT_TRUE(TableText(id).empty() || (id >= 101 && id <= 212)) << id;
}

TEST_F(StringTableTest, LetsAHostTranslateATextAndFallsBackForTheOthers) {
    ReplaceStringTable(German);
    EXPECT_EQ(TableText(119), L"Falsche Version.");
    EXPECT_EQ(TableText(118), L"attempting to read settings");
    EXPECT_EQ(TableText(138), L"");
    ReplaceStringTable({});
    EXPECT_EQ(TableText(119),
              L"Cannot read the selected settings file because the file version is incorrect.");
}

TEST_F(StringTableTest, TakesAnEmptyTranslationAsIt) {
    ReplaceStringTable([](std::int32_t) { return std::wstring(); });
    EXPECT_EQ(TableText(163), L"");
}

TEST_F(StringTableTest, IsAskedAtEachUse) {
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_ITS90);
    EXPECT_EQ(conversion.Settings()->GetName(), L"ITS-90");
    ReplaceStringTable(German);
    EXPECT_EQ(conversion.Settings()->GetName(), L"ITS von 1990");
    EXPECT_EQ(conversion.ConversionName(CONV_ITS90), L"ITS von 1990");
    EXPECT_FALSE(conversion.ReadFromFile(ini, L"", L"Nowhere"));
    EXPECT_EQ(platform->Messages().at(0).text, L"Falsche Version.");
    EXPECT_EQ(platform->Messages().at(0).title, L"Quor Wissenschaft");
    std::wstring filename;
    EXPECT_FALSE(conversion.Settings()->OpenFile(0, filename));
    EXPECT_EQ(platform->FileRequests().at(0).title, L"Datei ITS von 1990 \u00F6ffnen");
    EXPECT_EQ(platform->FileRequests().at(0).filter, L"ITS von 1990 Files (*.i90)|*.i90");
}

TEST_F(StringTableTest, TranslatesErrorsButNeverTheNamesOfClasses) {
    const auto cvd = Support::NewSettings<CQuorCVD>(CONV_CVD, platform);
    ReplaceStringTable(Numbers);
    EXPECT_QUOR_ERROR((void)cvd->Coefficients(4), Support::indexOutOfRange, L"CQuorCVD", L"116");
}

TEST_F(StringTableTest, NeverReachesFilesLettersOrUnits) {
    const auto save = [&] {
        const auto into = std::make_shared<MemoryIniFile>();
        std::shared_ptr<INIFile> file = into;
        for (const auto type : {CONV_ITS90, CONV_TCTYPEX, CONV_CVD}) {
            CQuorConversion conversion(platform);
            conversion.SetConversionType(type);
            conversion.WriteToFile(file, L"", L"Probe " + std::to_wstring(type));
        }
        return into->operations;
    };
    const auto plain = save();
    ReplaceStringTable(Numbers);
    EXPECT_EQ(save(), plain);
    const auto thermocouple = Support::NewSettings<CQuorTCTypeX>(CONV_TCTYPEX, platform);
    EXPECT_EQ(thermocouple->GetTCTypeName(TCTYPE_AUPT), L"AuPt");
    EXPECT_EQ(thermocouple->GetName(), L"167 K");
    EXPECT_EQ(thermocouple->TempScale(), L"\u00B0C");
    EXPECT_EQ(thermocouple->SectionName(), L"Thermocouple Type");
    EXPECT_EQ(thermocouple->FileExtension(), L"tcx");
}

TEST_F(StringTableTest, ThatFailsSpoilsNoCallThatReports) {
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_CVD);
    memory->failAt = 0;
    ReplaceStringTable([](std::int32_t) -> std::optional<std::wstring> { throw std::runtime_error("gone"); });
    EXPECT_NO_THROW(conversion.WriteToFile(ini, L"", L"Probe"));
    EXPECT_NO_THROW(EXPECT_FALSE(conversion.ReadFromFile(ini, L"", L"Probe")));
    EXPECT_NO_THROW(EXPECT_FALSE(conversion.Edit()));
    std::wstring filename;
    EXPECT_NO_THROW(EXPECT_FALSE(conversion.Settings()->OpenFile(0, filename)));
}

TEST_F(StringTableTest, HoldsWhatTheStoreSaysOfItsErrors) {
    EXPECT_EQ(TableText(1052), L"Bad file name or number");
    EXPECT_EQ(TableText(1076), L"Path not found");
    EXPECT_EQ(TableText(2041), L"In use by process ~");
    EXPECT_EQ(TableText(2082), L"A record could not be written whole, so nothing was saved");
    for (const std::int32_t id : {1000, 1051, 1999, 2000, 2900})
        EXPECT_EQ(TableText(id), L"") << id;
}
