// A save that fails: the file is the old one, byte for byte, and the object is what it was.

#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorIniFile/IniStore.h"
#include "tests/support/Messages.h"
#include "tests/support/Objects.h"
#include "tests/support/Records.h"
#include "tests/support/SettingsClasses.h"
#include "tests/support/TempFolder.h"

#include <sys/stat.h>

using namespace QuorConversions;
using QuorIniFile::IniStore;
using Support::ErrorReport;
using Support::MessageTexts;
using Support::ScriptedPlatform;
using Support::writingSettings;
using Texts = std::vector<std::wstring>;

namespace {

/// An ITS-90 conversion whose record stands in a file, with a low range that no file can hold.
class RecordThatDoesNotFit : public testing::Test {
protected:
    RecordThatDoesNotFit() {
        conversion.SetConversionType(CONV_ITS90);
        its90 = SettingsAs<CQuorITS90>(conversion);
        its90->SetRTPW(25.5);
        WriteInto(none);
        before = folder.Read("host.ini");
        its90->SetRTPW(99.0);
        its90->LowRange()->SetMaxRange(EITS90RangeNumber{70000});
        its90->LowRange()->SetRange(EITS90RangeNumber{70000});
    }
    void WriteInto(std::shared_ptr<INIFile> ini) const {
        conversion.WriteToFile(ini, folder.Name("host.ini"), L"Probe");
    }
    [[nodiscard]] std::wstring WhatIsNotSaved() const {
        return L"Path/File access error: " + folder.Name("host.ini") +
               L": A record could not be written whole, so nothing was saved";
    }

    TempFolder folder;
    std::shared_ptr<INIFile> none;
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    CQuorConversion conversion{platform};
    std::shared_ptr<CQuorITS90> its90;
    std::string before;
};

} // namespace

TEST_F(RecordThatDoesNotFit, IsNotSavedInPart) {
    WriteInto(none);
    EXPECT_EQ(folder.Read("host.ini"), before);
    const std::wstring report = ErrorReport(writingSettings, 75, WhatIsNotSaved(), L"QuorIniFile");
    EXPECT_EQ(MessageTexts(*platform),
              (Texts{ErrorReport(writingSettings, 6, L"Overflow", L"CQuorITS90LowRange"), report}));
    EXPECT_EQ(its90->RTPW(), 99.0);
    EXPECT_TRUE(conversion.Changed());
}

TEST_F(RecordThatDoesNotFit, LeavesNothingBehindInTheStoreOfAHost) {
    const auto store = std::make_shared<IniStore>();
    store->SetFileName(folder.Name("host.ini"));
    WriteInto(store);
    store->SetSection(L"Display");
    store->WriteString(L"Colour", L"blue");
    EXPECT_EQ(folder.Read("host.ini"), before + "\n[Display]\nColour=blue\n");
}

TEST_F(RecordThatDoesNotFit, MakesTheBracketOfItsHostFailThatHoldsOtherRecordsToo) {
    const auto store = std::make_shared<IniStore>();
    store->SetFileName(folder.Name("host.ini"));
    store->Hold();
    WriteInto(store);
    store->SetSection(L"Display");
    store->WriteString(L"Colour", L"blue");
    EXPECT_QUOR_ERROR(store->Release(), 75, L"QuorIniFile", WhatIsNotSaved());
    EXPECT_EQ(folder.Read("host.ini"), before);
    store->Hold();
    store->WriteString(L"Colour", L"red");
    store->Release();
    EXPECT_EQ(folder.Read("host.ini"), before + "\n[Display]\nColour=red\n") << "the next one is another one";
}

TEST_F(RecordThatDoesNotFit, IsNotSavedWhenItsHostOpensAnotherFileOrEnds) {
    for (const bool opensAnother : {true, false}) {
        auto store = std::make_shared<IniStore>();
        store->SetFileName(folder.Name("host.ini"));
        store->Hold();
        WriteInto(store);
        if (opensAnother)
            store->SetFileName(folder.Name("other.ini"));
        store.reset();
        EXPECT_EQ(folder.Read("host.ini"), before);
    }
}

namespace {

/// Every settings class, and a file of its own that cannot be written.
class FailedSave : public testing::TestWithParam<Support::SettingsClass> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Every, FailedSave, testing::ValuesIn(Support::settingsClasses),
                         [](const auto& test) { return Support::Narrow(test.param.className); });

TEST_P(FailedSave, LeavesTheFileTheObjectAndItsChangedFlagAsTheyWere) {
    const TempFolder folder;
    const std::string before = "; mine\n[Host]\nVersion=0.9\n";
    folder.Write("a.ini", before);
    ASSERT_EQ(::chmod(folder.Path("a.ini").c_str(), 0444), 0);
    const std::wstring report = ErrorReport(
        writingSettings, 70, L"Permission denied: " + folder.Name("a.ini") + L": The file is read-only",
        L"QuorIniFile");
    for (const bool changed : {false, true}) {
        const auto platform = std::make_shared<ScriptedPlatform>();
        const auto settings = Support::NewSettings<SettingsObject>(GetParam().code, platform);
        const Support::Record held = Support::Held(*settings);
        settings->SetChanged(changed);
        std::shared_ptr<INIFile> none;
        settings->WriteToFile(none, folder.Name("a.ini"), GetParam().sectionName);
        EXPECT_EQ(MessageTexts(*platform), Texts{report});
        EXPECT_EQ(none, nullptr);
        EXPECT_EQ(settings->Changed(), changed);
        EXPECT_EQ(Support::Held(*settings), held);
        EXPECT_EQ(folder.Read("a.ini"), before);
        EXPECT_EQ(folder.Files(), std::vector<std::string>{"a.ini"});
    }
}
