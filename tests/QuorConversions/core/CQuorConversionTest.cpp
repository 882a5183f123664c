#include "QuorConversions/core/CQuorConversion.h"

#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/platform/HeadlessPlatform.h"
#include "QuorConversions/polynomial/CQuorPolynomial.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorHTPRT.h"
#include "QuorConversions/rtd/CQuorIPTS68.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/rtd/CQuorPT100.h"
#include "QuorConversions/rtd/CQuorWT90.h"
#include "QuorConversions/thermistor/CQuorThermistor.h"
#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"
#include "QuorConversions/thermocouple/CQuorTCTable.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "tests/support/HostRegistry.h"
#include "tests/support/Messages.h"
#include "tests/support/NoScreen.h"
#include "tests/support/Objects.h"

#include <functional>
#include <limits>
#include <type_traits>

using namespace QuorConversions;
using Support::ErrorReport;
using Support::HostRegistry;
using Support::MemoryIniFile;
using Support::MessageTexts;
using Support::readingSettings;
using Support::ScriptedPlatform;
using Support::versionMessage;

namespace {

using Texts = std::vector<std::wstring>;

template <class T>
bool Is(const SettingsObject* settings) {
    return dynamic_cast<const T*>(settings) != nullptr;
}

bool IsNull(const SettingsObject* settings) { return settings == nullptr; }

/// One conversion type as a host sees it.
struct Type {
    std::int32_t code;
    const wchar_t* enumerator;
    const wchar_t* name;
    bool (*hasItsSettings)(const SettingsObject* settings);
    bool isSetUp = false; ///< by setters, which mark the new object changed
};

constexpr Type types[] = {
    {-1, L"CONV_NONE", L"<keep existing>", IsNull},
    {0, L"CONV_ITS90", L"ITS-90", Is<CQuorITS90>},
    {1, L"CONV_IPTS68", L"IPTS-68", Is<CQuorIPTS68>},
    {2, L"CONV_CVD", L"Callendar-Van Dusen", Is<CQuorCVD>},
    {3, L"CONV_HTPRT", L"High Temperature PRT", Is<CQuorHTPRT>},
    {4, L"CONV_POLYNOMIAL", L"Polynomial", Is<CQuorPolynomial>},
    {5, L"CONV_THERMISTORT_R", L"Thermistor T(R)", Is<CQuorThermistor>},
    {6, L"CONV_THERMISTORR_T", L"Thermistor R(T)", Is<CQuorThermistor>, true},
    {7, L"CONV_TCPOLYNOMIAL", L"TC Polynomial", Is<CQuorTCPolynomial>},
    {8, L"CONV_TCTABLE", L"TC Table", Is<CQuorTCTable>},
    {9, L"CONV_TCTYPEX", L"TC Type ", Is<CQuorTCTypeX>, true},
    {10, L"CONV_OHMS", L"Ohms", IsNull},
    {11, L"CONV_VOLTS", L"Volts", IsNull},
    {12, L"CONV_IEC751", L"IEC-751", IsNull},
    {13, L"CONV_YSI400", L"YSI-400", IsNull},
    {14, L"CONV_WT90", L"W(T90)", Is<CQuorWT90>},
    {15, L"CONV_RATIO", L"Ratio", IsNull},
    {16, L"CONV_PT100", L"PT100", IsNull},
    {17, L"CONV_ITSSR5", L"ITS-SR5", Is<CQuorITS90>, true},
    {18, L"CONV_THERMISTOR_OHMS", L"<unknown>", IsNull},
    {19, L"CONV_PT100R0", L"<unknown>", Is<CQuorPT100>},
    {20, L"CONV_TCTYPEPOLY", L"<unknown>", Is<CQuorTCTypePoly>, true},
    {21, nullptr, L"<unknown>", IsNull},
    {-3, nullptr, L"<unknown>", IsNull},
    {70000, nullptr, L"<unknown>", IsNull},
    {std::numeric_limits<std::int32_t>::min(), nullptr, L"<unknown>", IsNull},
};

class CQuorConversionTest : public testing::Test {
protected:
    [[nodiscard]] bool Read(const wchar_t* section = L"Probe") {
        return conversion.ReadFromFile(ini, L"", section);
    }
    void Write() const {
        std::shared_ptr<INIFile> same = ini;
        conversion.WriteToFile(same, L"", L"Probe");
    }

    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<Support::NoScreen>();
    CQuorConversion conversion{platform};
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
};

} // namespace

TEST_F(CQuorConversionTest, IsNewWithoutATypeAndUnchanged) {
    EXPECT_EQ(conversion.ConversionType(), CONV_NONE);
    EXPECT_EQ(conversion.Settings(), nullptr);
    EXPECT_FALSE(conversion.Changed());
    EXPECT_TRUE(conversion.AllowEdit());
    EXPECT_EQ(conversion.FilePath(), L"");
    EXPECT_EQ(conversion.Registry(), nullptr);
    EXPECT_EQ(conversion.ConversionName(-2), L"");
    EXPECT_TRUE(conversion.Edit());
    EXPECT_TRUE(platform->Events().empty());
}

TEST_F(CQuorConversionTest, NamesEveryTypeAndStaysAsItIs) {
    conversion.SetConversionType(CONV_WT90);
    conversion.SetChanged(false);
    const auto settings = conversion.Settings();
    for (const Type& type : types)
        EXPECT_EQ(conversion.ConversionName(type.code), type.name) << type.code;
    EXPECT_EQ(conversion.ConversionType(), CONV_WT90);
    EXPECT_EQ(conversion.Settings(), settings);
    EXPECT_FALSE(conversion.Changed());
}

TEST_F(CQuorConversionTest, TellsTheEnumeratorOfEveryType) {
    for (const Type& type : types) {
        const wchar_t* const enumerator = ConversionEnumerator(type.code);
        EXPECT_EQ(enumerator ? std::wstring(enumerator) : L"none",
                  type.enumerator ? std::wstring(type.enumerator) : L"none");
    }
}

TEST_F(CQuorConversionTest, MakesTheSettingsOfEveryType) {
    for (const Type& type : types) {
        SCOPED_TRACE(type.code);
        CQuorConversion fresh(platform);
        fresh.SetConversionType(EQuorConversionType{type.code});
        EXPECT_EQ(fresh.ConversionType(), type.code);
        EXPECT_TRUE(type.hasItsSettings(fresh.Settings().get()));
        EXPECT_EQ(fresh.Changed(), type.code != CONV_NONE);
        EXPECT_EQ(fresh.Settings() && fresh.Settings()->Changed(), type.isSetUp);
    }
}

TEST_F(CQuorConversionTest, NamesItsOwnSettings) {
    for (const auto& [type, name] :
         {std::pair{CONV_ITSSR5, L"ITS-90"}, std::pair{CONV_PT100R0, L"PT100"},
          std::pair{CONV_THERMISTORR_T, L"Thermistor R(T)"}, std::pair{CONV_TCTYPEX, L"TC Type K"},
          std::pair{CONV_TCTYPEPOLY, L"TC Type E"}, std::pair{CONV_PT100, L""}}) {
        conversion.SetConversionType(type);
        EXPECT_EQ(conversion.ConversionName(-2), name);
    }
}

TEST_F(CQuorConversionTest, SetsUpWhatTheTypeSays) {
    conversion.SetConversionType(CONV_THERMISTORT_R);
    EXPECT_EQ(SettingsAs<CQuorThermistor>(conversion)->ConvType(), TCT_THRMT_R);
    conversion.SetConversionType(CONV_THERMISTORR_T);
    EXPECT_EQ(SettingsAs<CQuorThermistor>(conversion)->ConvType(), TCT_THRMR_T);
    conversion.SetConversionType(CONV_TCTYPEX);
    EXPECT_EQ(SettingsAs<CQuorTCTypeX>(conversion)->TCType(), TCTYPE_K);
    conversion.SetConversionType(CONV_TCTYPEPOLY);
    EXPECT_EQ(SettingsAs<CQuorTCTypePoly>(conversion)->TCType(), TCTYPE_E);
}

TEST_F(CQuorConversionTest, FixesTheRangesOfITSSR5) {
    conversion.SetConversionType(CONV_ITSSR5);
    const auto its90 = SettingsAs<CQuorITS90>(conversion);
    ASSERT_TRUE(its90);
    EXPECT_EQ(its90->LowRange()->Range(), ITS90_RANGE_5);
    EXPECT_EQ(its90->LowRange()->MinRange(), ITS90_RANGE_5);
    EXPECT_EQ(its90->LowRange()->MaxRange(), ITS90_RANGE_5);
    EXPECT_EQ(its90->LowRange()->NumCoefficients(), 2);
    EXPECT_FALSE(its90->LowRange()->AllowChangeRange());
    EXPECT_EQ(its90->HighRange()->Range(), ITS90_NORANGE);
    EXPECT_EQ(its90->HighRange()->MinRange(), ITS90_NORANGE);
    EXPECT_EQ(its90->HighRange()->MaxRange(), ITS90_NORANGE);
    EXPECT_TRUE(its90->HighRange()->AllowChangeRange()); // nothing is said of it
    EXPECT_TRUE(its90->LowRange()->Changed());
    EXPECT_FALSE(its90->HighRange()->Changed());
}

TEST_F(CQuorConversionTest, KeepsItsSettingsWhenTheTypeIsSetAgain) {
    conversion.SetConversionType(CONV_CVD);
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, 100.5);
    conversion.SetChanged(false);
    const auto settings = conversion.Settings();
    conversion.SetConversionType(CONV_CVD);
    EXPECT_EQ(conversion.Settings(), settings);
    EXPECT_FALSE(conversion.Changed());
    conversion.SetConversionType(CONV_NONE);
    conversion.SetConversionType(CONV_CVD);
    EXPECT_NE(conversion.Settings(), settings);
    EXPECT_EQ(SettingsAs<CQuorCVD>(conversion)->Coefficients(CVD_R0), 0.0);
}

TEST_F(CQuorConversionTest, MarksTheOldSettingsAndNeverSpeaksToThemAgain) {
    conversion.SetConversionType(CONV_CVD);
    conversion.SetChanged(false);
    const auto old = conversion.Settings();
    conversion.SetConversionType(CONV_OHMS);
    EXPECT_TRUE(conversion.Changed());
    EXPECT_TRUE(old->Changed());
    EXPECT_EQ(old.use_count(), 1);
    conversion.SetFilePath(L"/probes");
    conversion.SetAllowEdit(false);
    conversion.SetChanged(false);
    EXPECT_EQ(old->FilePath(), L"");
    EXPECT_TRUE(old->AllowEdit());
    EXPECT_TRUE(old->Changed());
}

TEST_F(CQuorConversionTest, HandsItsContextToTheSettingsNowAndLater) {
    std::shared_ptr<QuorRegistryII::Registry> registry = std::make_shared<HostRegistry>();
    conversion.SetConversionType(CONV_CVD);
    const auto expectContext = [&](bool allowEdit, const wchar_t* filePath) {
        EXPECT_EQ(conversion.AllowEdit(), allowEdit);
        EXPECT_EQ(conversion.FilePath(), filePath);
        EXPECT_EQ(conversion.Registry(), registry);
        EXPECT_EQ(conversion.Settings()->AllowEdit(), allowEdit);
        EXPECT_EQ(conversion.Settings()->FilePath(), filePath);
        EXPECT_EQ(conversion.Settings()->Registry(), registry);
    };
    conversion.SetAllowEdit(false);
    conversion.SetFilePath(L"/probes");
    conversion.SetRegistry(registry);
    expectContext(false, L"/probes");
    conversion.SetConversionType(CONV_ITS90);
    expectContext(false, L"/probes");
    EXPECT_EQ(SettingsAs<CQuorITS90>(conversion)->LowRange()->Registry(), registry);
    EXPECT_EQ(SettingsAs<CQuorITS90>(conversion)->HighRange()->Registry(), registry);
    registry = nullptr; // a value like any other
    conversion.SetRegistry(registry);
    conversion.SetAllowEdit(true);
    conversion.SetFilePath(L"");
    expectContext(true, L"");
}

TEST_F(CQuorConversionTest, OnlyRefersToTheRegistryOfTheHost) {
    std::shared_ptr<QuorRegistryII::Registry> registry = std::make_shared<HostRegistry>();
    {
        CQuorConversion other(platform);
        other.SetConversionType(CONV_ITS90);
        other.SetRegistry(registry);
        EXPECT_EQ(other.Registry(), registry);
        EXPECT_NE(registry, nullptr);
    }
    EXPECT_EQ(registry.use_count(), 1);
}

TEST_F(CQuorConversionTest, IsChangedWhenItsSettingsAre) {
    conversion.SetConversionType(CONV_ITS90);
    const auto its90 = SettingsAs<CQuorITS90>(conversion);
    conversion.SetChanged(false);
    EXPECT_FALSE(its90->Changed());
    EXPECT_FALSE(conversion.Changed());
    its90->HighRange()->SetRange(ITS90_RANGE_11);
    EXPECT_TRUE(conversion.Changed());
    conversion.SetChanged(false);
    EXPECT_FALSE(its90->HighRange()->Changed());
    conversion.SetChanged(true);
    EXPECT_TRUE(its90->Changed());
    its90->SetChanged(false);
    EXPECT_TRUE(conversion.Changed()) << "its own flag still stands";
}

TEST_F(CQuorConversionTest, IsNotChangedByItsContext) {
    std::shared_ptr<QuorRegistryII::Registry> registry = std::make_shared<HostRegistry>();
    conversion.SetConversionType(CONV_CVD);
    conversion.SetChanged(false);
    conversion.SetAllowEdit(false);
    conversion.SetFilePath(L"/probes");
    conversion.SetRegistry(registry);
    EXPECT_FALSE(conversion.Changed());
}

TEST_F(CQuorConversionTest, SharesOneHelpFileWithTheWholeLibrary) {
    CQuorConversion other(platform);
    conversion.SetHelpFile(L"quor.hlp");
    EXPECT_EQ(other.HelpFile(), L"quor.hlp");
    EXPECT_EQ(HelpFile(), L"quor.hlp");
    other.SetHelpFile(L"");
    EXPECT_EQ(conversion.HelpFile(), L"");
    EXPECT_FALSE(conversion.Changed());
}

TEST_F(CQuorConversionTest, ReportsOnceThatItsSettingsCannotBeEdited) {
    conversion.SetConversionType(CONV_CVD);
    EXPECT_FALSE(conversion.Edit());
    EXPECT_EQ(MessageTexts(*platform),
              (Texts{ErrorReport(L"attempting to edit the conversion settings", 429,
                                 L"No dialog can be shown here", L"HeadlessPlatform")}));
}

TEST_F(CQuorConversionTest, HasNothingToEditWithoutSettings) {
    for (const auto type : {CONV_OHMS, CONV_PT100, CONV_THERMISTOR_OHMS, EQuorConversionType{99}}) {
        conversion.SetConversionType(type);
        EXPECT_TRUE(conversion.Edit());
    }
    EXPECT_TRUE(platform->Events().empty());
}

TEST_F(CQuorConversionTest, WritesItsTypeAndThenItsSettingsIntoTheirOwnSection) {
    conversion.SetConversionType(CONV_WT90);
    SettingsAs<CQuorWT90>(conversion)->SetRTPW(25.5);
    conversion.WriteToFile(ini, L"", L"Probe 1");
    EXPECT_EQ(memory->operations,
              (Texts{L"Section \"Probe 1\"", L"Hold", L"WriteString Version=\"1.0\"",
                     L"WriteInteger ConversionType=14 comment \"\"", L"Section \"Probe 1 - Settings\"",
                     L"Hold", L"WriteString Version=\"1.0\"", L"WriteDouble RTPW=25.5 comment \"\"",
                     L"Release", L"Release"}));
    EXPECT_TRUE(platform->Messages().empty());
    EXPECT_TRUE(conversion.Changed()) << "no save clears the flag";
}

TEST_F(CQuorConversionTest, WritesNoSettingsForATypeWithoutThemAndDeletesNone) {
    conversion.SetConversionType(CONV_CVD);
    Write();
    conversion.SetConversionType(CONV_OHMS);
    memory->operations.clear();
    Write();
    EXPECT_EQ(memory->operations, (Texts{L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\"",
                                         L"WriteInteger ConversionType=10 comment \"\"", L"Release"}));
    EXPECT_TRUE(memory->Has(L"Probe - Settings", L"Coefficients3"));
}

TEST_F(CQuorConversionTest, WritesItsSettingsAlsoWhenTheyFailToBeWritten) {
    conversion.SetConversionType(CONV_WT90);
    memory->failAt = 7; // the RTPW of the settings
    Write();
    EXPECT_EQ(MessageTexts(*platform), (Texts{ErrorReport(Support::writingSettings, 57,
                                                          L"Device I/O error: memory", L"QuorIniFile")}));
    EXPECT_TRUE(memory->Has(L"Probe", L"ConversionType"));
    EXPECT_TRUE(memory->Has(L"Probe - Settings", L"Version"));
}

TEST_F(CQuorConversionTest, ReadsEveryTypeThatItWrites) {
    for (const Type& type : types) {
        if (type.code == 70000 || type.code < -32768) // not of 16 bits
            continue;
        SCOPED_TRACE(type.code);
        conversion.SetConversionType(EQuorConversionType{type.code});
        Write();
        CQuorConversion other(platform);
        EXPECT_TRUE(other.ReadFromFile(ini, L"", L"Probe"));
        EXPECT_EQ(other.ConversionType(), type.code);
        EXPECT_TRUE(type.hasItsSettings(other.Settings().get()));
        EXPECT_EQ(other.Changed(), type.code != CONV_NONE);
    }
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(CQuorConversionTest, ReadsIntoTheSettingsThatItHasWhenTheTypeIsTheSame) {
    conversion.SetConversionType(CONV_CVD);
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, 100.5);
    Write();
    const auto settings = SettingsAs<CQuorCVD>(conversion);
    settings->SetCoefficients(CVD_R0, 99.0);
    settings->SetValueFormat(CVD_R0, L"0.00");
    conversion.SetChanged(false);
    EXPECT_TRUE(Read());
    EXPECT_EQ(conversion.Settings(), settings);
    EXPECT_EQ(settings->Coefficients(CVD_R0), 100.5);
    EXPECT_EQ(settings->ValueFormat(CVD_R0), L"0.00");
    conversion.SetChanged(false);
    EXPECT_TRUE(Read());
    EXPECT_FALSE(conversion.Changed()) << "the file holds what the object holds";
}

TEST_F(CQuorConversionTest, ReadsARecordWithoutATypeAsITS90) {
    conversion.SetConversionType(CONV_OHMS);
    memory->Set(L"Probe - Settings", L"RTPW", 25.5);
    for (const wchar_t* const range : {L"Probe - Settings - High Range", L"Probe - Settings - Low Range"})
        memory->Set(range, L"Range", std::int16_t{-1});
    EXPECT_FALSE(Read());
    ASSERT_EQ(conversion.ConversionType(), CONV_ITS90);
    EXPECT_EQ(SettingsAs<CQuorITS90>(conversion)->RTPW(), 25.5);
    EXPECT_EQ(MessageTexts(*platform), (Texts{versionMessage}));
    EXPECT_EQ(platform->Messages().at(0).title, L"Quor Scientific");
    EXPECT_EQ(platform->Messages().at(0).icon, ICON_INFORMATION);
    EXPECT_EQ(platform->Messages().at(0).helpFile, L"");
}

TEST_F(CQuorConversionTest, TakesTheTypeThatTheStoreLeavesForAMissingKey) {
    memory->scribblesOnMissingKeys = true;
    EXPECT_FALSE(Read());
    EXPECT_EQ(conversion.ConversionType(), CONV_IPTS68);
}

TEST_F(CQuorConversionTest, TellsOfAMissingKeyOncePerLevel) {
    const struct {
        EQuorConversionType type;
        const wchar_t* section;
        const wchar_t* key;
        std::size_t messages;
    } cases[] = {{CONV_CVD, L"Probe - Settings", L"Coefficients2", 2},
                 {CONV_ITS90, L"Probe - Settings", L"RTPW", 2},
                 {CONV_ITS90, L"Probe - Settings - Low Range", L"Range", 3}};
    Texts expected;
    for (const auto& [type, section, key, messages] : cases) {
        conversion.SetConversionType(type);
        Write();
        memory->Remove(section, key);
        EXPECT_FALSE(Read());
        expected.insert(expected.end(), messages, versionMessage);
        EXPECT_EQ(MessageTexts(*platform), expected);
    }
}

TEST_F(CQuorConversionTest, KeepsTypeAndSettingsWhenTheTypeCannotBeRead) {
    conversion.SetConversionType(CONV_CVD);
    const auto settings = conversion.Settings();
    memory->failAt = 1; // ConversionType
    EXPECT_FALSE(Read());
    EXPECT_EQ(conversion.Settings(), settings);
    EXPECT_EQ(MessageTexts(*platform),
              (Texts{ErrorReport(readingSettings, 57, L"Device I/O error: memory", L"QuorIniFile")}));
}

TEST_F(CQuorConversionTest, KeepsTheRangesOfITSSR5WhateverTheFileSays) {
    conversion.SetConversionType(CONV_ITSSR5);
    const auto its90 = SettingsAs<CQuorITS90>(conversion);
    its90->LowRange()->SetCoefficients(ITS90_LOW_A, 0.5);
    Write();
    memory->Set(L"Probe - Settings - High Range", L"Range", std::int16_t{6});
    memory->Set(L"Probe - Settings - Low Range", L"Range", std::int16_t{7});
    EXPECT_FALSE(Read());
    EXPECT_EQ(conversion.Settings(), its90);
    EXPECT_EQ(its90->LowRange()->Range(), ITS90_RANGE_5);
    EXPECT_EQ(its90->LowRange()->Coefficients(ITS90_LOW_A), 0.5);
    EXPECT_EQ(its90->HighRange()->Range(), ITS90_NORANGE);
    EXPECT_EQ(
        MessageTexts(*platform),
        (Texts{
            ErrorReport(readingSettings, -2147221002, L"ITS-90 range out of range.", L"CQuorITS90HighRange"),
            ErrorReport(readingSettings, -2147221002, L"ITS-90 range out of range.", L"CQuorITS90LowRange"),
            versionMessage, versionMessage}));
}

TEST_F(CQuorConversionTest, SurvivesAHostThatChangesTheTypeWhileItReads) {
    conversion.SetConversionType(CONV_CVD);
    Write();
    memory->Remove(L"Probe - Settings", L"Coefficients0");
    const std::weak_ptr<SettingsObject> settings = conversion.Settings();
    bool aliveInFirstBox = false;
    platform->WhileMessageIsShown([&] {
        conversion.SetConversionType(CONV_OHMS);
        if (platform->Messages().size() == 1)
            aliveInFirstBox = !settings.expired();
    });
    EXPECT_FALSE(Read());
    EXPECT_TRUE(aliveInFirstBox);
    EXPECT_TRUE(settings.expired());
    EXPECT_EQ(conversion.ConversionType(), CONV_OHMS);
    EXPECT_EQ(MessageTexts(*platform), (Texts{versionMessage, versionMessage}));
}

// A host writes conversion.Settings()->ReadFromFile(...) without a reference of its own. Settings() once lent
// it the conversion's, and a change of the type inside the message box destroyed the object under the call.
TEST_F(CQuorConversionTest, LetsNoSettingsDieUnderACallOfTheHost) {
    const std::function<void(SettingsObject&)> calls[] = {
        [&](SettingsObject& settings) { (void)settings.ReadFromFile(ini, L"", L"Nowhere"); },
        [&](SettingsObject& settings) { (void)settings.Edit(); },
        [&](SettingsObject& settings) {
            memory->failAt = memory->operations.size();
            settings.WriteToFile(ini, L"", L"Probe");
        }};
    for (const auto& call : calls) {
        conversion.SetConversionType(CONV_CVD);
        std::weak_ptr<SettingsObject> settings = conversion.Settings();
        platform->WhileMessageIsShown([&] {
            conversion.SetConversionType(CONV_OHMS);
            EXPECT_FALSE(settings.expired());
        });
        call(*conversion.Settings());
        EXPECT_TRUE(settings.expired());
    }
    EXPECT_EQ(platform->Messages().size(), 3U);
}

namespace {

/// A platform that keeps what the user is told with the test, so that it may end with its conversion.
class EndingPlatform : public HeadlessPlatform {
public:
    Texts* told = nullptr;
    std::function<void()> whileShown;
    void ShowMessage(const MessageRequest& request) override {
        told->push_back(request.text);
        whileShown();
    }
};

} // namespace

TEST(CQuorConversionEndTest, AConversionMayEndInsideAMessageBoxOfItsOwnRead) {
    const auto memory = std::make_shared<Support::MemoryIniFile>();
    memory->Set(L"Probe", L"ConversionType", std::int16_t{CONV_CVD});
    auto platform = std::make_shared<EndingPlatform>();
    const std::weak_ptr<EndingPlatform> watched = platform;
    Texts texts;
    platform->told = &texts;
    auto conversion = std::make_unique<CQuorConversion>(platform);
    platform->whileShown = [&] {
        conversion.reset();
        EXPECT_FALSE(watched.expired()) << "the platform of a message that is shown";
    };
    platform.reset();
    std::shared_ptr<QuorIniFile::INIFile> ini = memory;
    EXPECT_FALSE(conversion->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(texts, (Texts{versionMessage, versionMessage})) << "one of the settings, one of the conversion";
    EXPECT_EQ(conversion, nullptr);
    EXPECT_TRUE(watched.expired()) << "nothing is left of it";
}

TEST(CQuorConversionEndTest, AConversionMayEndInsideAMessageBoxOfItsOwnWrite) {
    const auto memory = std::make_shared<Support::MemoryIniFile>();
    auto platform = std::make_shared<EndingPlatform>();
    const std::weak_ptr<EndingPlatform> watched = platform;
    Texts texts;
    platform->told = &texts;
    auto conversion = std::make_unique<CQuorConversion>(platform);
    conversion->SetConversionType(CONV_CVD);
    platform->whileShown = [&] { conversion.reset(); };
    platform.reset();
    memory->failAt = 6; // Version of the settings
    std::shared_ptr<QuorIniFile::INIFile> ini = memory;
    conversion->WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(texts, (Texts{ErrorReport(Support::writingSettings, 57, L"Device I/O error: memory",
                                        L"QuorIniFile")}));
    EXPECT_EQ(conversion, nullptr);
    EXPECT_TRUE(watched.expired());
}

TEST_F(CQuorConversionTest, LetsNoRangeDieUnderACallOfTheHost) {
    auto its90 = Support::NewSettings<CQuorITS90>(CONV_ITS90, platform);
    const std::weak_ptr<CQuorITS90LowRange> low = its90->LowRange();
    const std::weak_ptr<CQuorITS90HighRange> high = its90->HighRange();
    platform->WhileMessageIsShown([&] {
        its90 = nullptr;
        EXPECT_NE(low.expired(), high.expired()) << "the one that reads lives";
    });
    EXPECT_FALSE(its90->LowRange()->ReadFromFile(ini, L"", L"Nowhere"));
    EXPECT_TRUE(low.expired());
}

TEST_F(CQuorConversionTest, SurvivesAHostThatChangesTheTypeWhileItWritesOrEdits) {
    for (const bool edit : {true, false}) {
        conversion.SetConversionType(CONV_CVD);
        const std::weak_ptr<SettingsObject> settings = conversion.Settings();
        platform->WhileMessageIsShown([&] {
            conversion.SetConversionType(CONV_OHMS);
            EXPECT_FALSE(settings.expired());
        });
        memory->failAt = 6; // Version of the settings
        if (edit)
            EXPECT_FALSE(conversion.Edit());
        else
            Write();
        EXPECT_TRUE(settings.expired());
    }
    EXPECT_EQ(platform->Messages().size(), 2U);
}

TEST(CQuorConversionCreationTest, MakesTheTwoClassesThatAHostMayMakeItselfUnchanged) {
    const CQuorPT100 pt100;
    const CQuorTCTypePoly thermocouple;
    EXPECT_FALSE(pt100.Changed());
    EXPECT_TRUE(pt100.AllowEdit());
    EXPECT_FALSE(thermocouple.Changed());
    EXPECT_TRUE(thermocouple.AllowEdit());
}

TEST(CQuorConversionCreationTest, LetsAHostMakeNoOtherClass) {
    EXPECT_FALSE((std::is_default_constructible_v<CQuorCVD>));
    EXPECT_FALSE((std::is_constructible_v<CQuorCVD, std::shared_ptr<Platform>>));
    EXPECT_FALSE((std::is_default_constructible_v<CreationKey>));
}
