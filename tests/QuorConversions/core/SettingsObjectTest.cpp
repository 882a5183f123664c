#include "QuorConversions/core/SettingsObject.h"

#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "tests/support/HostRegistry.h"
#include "tests/support/Messages.h"
#include "tests/support/NoScreen.h"
#include "tests/support/Objects.h"
#include "tests/support/SettingsClasses.h"

#include <stdexcept>

using namespace QuorConversions;
using Support::HostRegistry;
using Support::MemoryIniFile;
using Support::MessageTexts;
using Support::ScriptedPlatform;
using Support::SettingsClass;
using Support::versionMessage;

namespace {

/// A platform whose file dialog cannot be shown.
class NoFileDialog : public ScriptedPlatform {
public:
    std::optional<std::wstring> AskForFile(const FileRequest&) override {
        throw std::runtime_error("no dialog");
    }
};

/// What all twelve classes promise alike. Every INI-file object that an object makes is `file`.
class SettingsObjectTest : public testing::TestWithParam<SettingsClass> {
protected:
    void UsePlatform(std::shared_ptr<ScriptedPlatform> other) {
        platform = std::move(other);
        platform->MakeIniFilesWith([this] { return file; });
        settings = Support::NewSettings<SettingsObject>(GetParam().code, platform);
        settings->SetFilePath(L"C:\\Probes\\");
    }
    void SetUp() override { UsePlatform(std::make_shared<ScriptedPlatform>()); }

    [[nodiscard]] const FileRequest& LastRequest() const {
        return platform->FileRequests().at(platform->FileRequests().size() - 1);
    }
    /// Fills `file` with a complete record.
    void FillFile() {
        std::shared_ptr<INIFile> ini = file;
        settings->WriteToFile(ini, L"", GetParam().sectionName);
        file->operations.clear();
    }
    /// The file that a dialog of the object starts with now; the dialog is cancelled.
    std::wstring StartOfDialog() {
        std::wstring none;
        EXPECT_FALSE(settings->OpenFile(0, none));
        return LastRequest().folder + LastRequest().fileName;
    }
    [[nodiscard]] std::wstring Pattern() const {
        return std::wstring(L"C:\\Probes\\*.") + GetParam().fileExtension;
    }

    std::shared_ptr<MemoryIniFile> file = std::make_shared<MemoryIniFile>();
    std::shared_ptr<ScriptedPlatform> platform;
    std::shared_ptr<SettingsObject> settings;
    std::wstring filename;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Every, SettingsObjectTest, testing::ValuesIn(Support::settingsClasses),
                         [](const auto& test) { return Support::Narrow(test.param.className); });

TEST_P(SettingsObjectTest, HasTheNameExtensionAndSectionOfItsClass) {
    EXPECT_EQ(settings->GetName(), GetParam().name);
    EXPECT_EQ(settings->FileExtension(), GetParam().fileExtension);
    EXPECT_EQ(settings->SectionName(), GetParam().sectionName);
}

TEST_P(SettingsObjectTest, KeepsWhatTheHostSetsAndIsNotChangedByIt) {
    std::shared_ptr<QuorRegistryII::Registry> registry = std::make_shared<HostRegistry>();
    const auto same = registry;
    EXPECT_TRUE(settings->AllowEdit());
    EXPECT_EQ(settings->Registry(), nullptr);
    settings->SetAllowEdit(false);
    settings->SetFilePath(L"/mnt/probes");
    settings->SetRegistry(registry);
    EXPECT_FALSE(settings->AllowEdit());
    EXPECT_EQ(settings->FilePath(), L"/mnt/probes");
    EXPECT_EQ(settings->Registry(), same);
    EXPECT_EQ(registry, same);
    EXPECT_FALSE(settings->Changed());
    registry = nullptr;
    settings->SetRegistry(registry);
    EXPECT_EQ(settings->Registry(), nullptr);
}

TEST_P(SettingsObjectTest, KeepsItsChangedFlagThroughSavesAndLoads) {
    for (const bool changed : {false, true}) {
        settings->SetChanged(changed);
        FillFile();
        std::shared_ptr<INIFile> ini = file;
        EXPECT_TRUE(settings->ReadFromFile(ini, L"", GetParam().sectionName));
        EXPECT_EQ(settings->Changed(), changed);
    }
}

TEST_P(SettingsObjectTest, AsksForTheFileToOpen) {
    const std::wstring name = GetParam().name;
    const std::wstring extension = GetParam().fileExtension;
    EXPECT_FALSE(settings->OpenFile(4711, filename));
    ASSERT_EQ(platform->FileRequests().size(), 1U);
    EXPECT_EQ(LastRequest().kind, FileDialogKind::Open);
    EXPECT_EQ(LastRequest().title, L"Open " + name + L" File");
    EXPECT_EQ(LastRequest().filter, name + L" Files (*." + extension + L")|*." + extension);
    EXPECT_EQ(LastRequest().defaultExtension, extension);
    EXPECT_EQ(LastRequest().fileName, L"*." + extension);
    EXPECT_EQ(LastRequest().folder, L"C:\\Probes\\");
    EXPECT_EQ(LastRequest().flags, 0x281804U);
    EXPECT_EQ(LastRequest().owner, 4711);
}

TEST_P(SettingsObjectTest, AsksForTheFileToSave) {
    const std::wstring name = GetParam().name;
    const std::wstring extension = GetParam().fileExtension;
    EXPECT_FALSE(settings->SaveFileAs(-1, filename));
    ASSERT_EQ(platform->FileRequests().size(), 1U);
    EXPECT_EQ(LastRequest().kind, FileDialogKind::Save);
    EXPECT_EQ(LastRequest().title, L"Save " + name + L" File As");
    EXPECT_EQ(LastRequest().filter, name + L" Files (*." + extension + L")|*." + extension);
    EXPECT_EQ(LastRequest().defaultExtension, extension);
    EXPECT_EQ(LastRequest().fileName, L"*." + extension);
    EXPECT_EQ(LastRequest().folder, L"C:\\Probes\\");
    EXPECT_EQ(LastRequest().flags, 0x280806U);
    EXPECT_EQ(LastRequest().owner, -1);
}

TEST_P(SettingsObjectTest, OpensAFileByNameWithoutADialogAndForgetsTheName) {
    FillFile();
    filename = L"D:\\Archive\\probe.ini";
    EXPECT_TRUE(settings->OpenFile(0, filename));
    EXPECT_EQ(filename, L"D:\\Archive\\probe.ini");
    EXPECT_TRUE(platform->FileRequests().empty());
    EXPECT_TRUE(platform->Messages().empty());
    ASSERT_GE(file->operations.size(), 2U);
    EXPECT_EQ(file->operations[0], L"FileName \"D:\\Archive\\probe.ini\"");
    EXPECT_EQ(file->operations[1], std::wstring(L"Section \"") + GetParam().sectionName + L"\"");
    EXPECT_EQ(StartOfDialog(), Pattern());
}

TEST_P(SettingsObjectTest, OpensTheChosenFileAndStartsThereTheNextTime) {
    FillFile();
    platform->ChooseFile(L"D:\\Archive\\probe.ini");
    EXPECT_TRUE(settings->OpenFile(0, filename));
    EXPECT_EQ(filename, L"D:\\Archive\\probe.ini");
    EXPECT_EQ(file->operations.at(0), L"FileName \"D:\\Archive\\probe.ini\"");
    EXPECT_TRUE(platform->Messages().empty());
    EXPECT_EQ(StartOfDialog(), L"D:\\Archive\\probe.ini");
    std::wstring none;
    EXPECT_FALSE(settings->SaveFileAs(0, none));
    EXPECT_EQ(LastRequest().folder, L"D:\\Archive\\");
    EXPECT_EQ(LastRequest().fileName, L"probe.ini");
}

TEST_P(SettingsObjectTest, SavesIntoTheSectionOfItsClassAndStartsThereTheNextTime) {
    platform->ChooseFile(L"D:\\Archive\\probe.ini");
    EXPECT_TRUE(settings->SaveFileAs(0, filename));
    EXPECT_EQ(filename, L"D:\\Archive\\probe.ini");
    EXPECT_TRUE(file->Has(GetParam().sectionName, L"Version"));
    EXPECT_EQ(StartOfDialog(), L"D:\\Archive\\probe.ini");
    auto other = Support::NewSettings<SettingsObject>(GetParam().code, platform);
    EXPECT_TRUE(other->OpenFile(0, filename));
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_P(SettingsObjectTest, StartsToSaveAtTheFileThatTheHostNames) {
    platform->ChooseFile(L"D:\\Archive\\probe.ini");
    EXPECT_TRUE(settings->SaveFileAs(0, filename));
    for (const auto& [given, folder, name] : {std::tuple{L"E:\\New\\copy.ini", L"E:\\New\\", L"copy.ini"},
                                              std::tuple{L"copy.ini", L"", L"copy.ini"}}) {
        filename = given;
        EXPECT_FALSE(settings->SaveFileAs(0, filename));
        EXPECT_EQ(LastRequest().folder, folder);
        EXPECT_EQ(LastRequest().fileName, name);
        EXPECT_EQ(filename, given);
    }
}

TEST_P(SettingsObjectTest, DoesNothingWhenTheUserCancels) {
    platform->ChooseFile(L"D:\\Archive\\probe.ini");
    EXPECT_TRUE(settings->SaveFileAs(0, filename));
    file->operations.clear();
    std::wstring none;
    EXPECT_FALSE(settings->OpenFile(0, none));
    EXPECT_FALSE(settings->SaveFileAs(0, none));
    EXPECT_EQ(none, L"");
    filename = L"E:\\other.ini";
    EXPECT_FALSE(settings->SaveFileAs(0, filename));
    EXPECT_EQ(filename, L"E:\\other.ini");
    EXPECT_TRUE(file->operations.empty());
    EXPECT_TRUE(platform->Messages().empty());
    EXPECT_EQ(StartOfDialog(), L"D:\\Archive\\probe.ini");
}

TEST_P(SettingsObjectTest, TakesAnEmptyPathForACancel) {
    for (const wchar_t* const given : {L"", L"E:\\other.ini"}) {
        platform->ChooseFile(L"");
        filename = given;
        EXPECT_FALSE(settings->SaveFileAs(0, filename));
        EXPECT_EQ(filename, given);
    }
    platform->ChooseFile(L"");
    std::wstring none;
    EXPECT_FALSE(settings->OpenFile(0, none));
    EXPECT_EQ(none, L"");
    EXPECT_TRUE(file->operations.empty());
    EXPECT_TRUE(platform->Messages().empty());
    EXPECT_EQ(StartOfDialog(), Pattern());
}

TEST_P(SettingsObjectTest, IsQuietWhenTheFileDialogFails) {
    UsePlatform(std::make_shared<NoFileDialog>());
    EXPECT_FALSE(settings->OpenFile(0, filename));
    EXPECT_EQ(filename, L"");
    filename = L"E:\\other.ini";
    EXPECT_FALSE(settings->SaveFileAs(0, filename));
    EXPECT_EQ(filename, L"E:\\other.ini");
    EXPECT_TRUE(platform->Events().empty());
}

TEST_P(SettingsObjectTest, AppendsItsExtensionAsItStandsToANameWithoutOne) {
    const std::wstring extension = GetParam().fileExtension;
    for (const auto& [chosen, saved] : std::vector<std::pair<std::wstring, std::wstring>>{
             {L"D:\\Archive\\probe", L"D:\\Archive\\probe" + extension}, // no point on purpose
             {L"D:\\Archive\\probe.", L"D:\\Archive\\probe." + extension},
             {L"D:\\Archive.old\\probe", L"D:\\Archive.old\\probe" + extension},
             {L"D:\\Archive\\probe.txt", L"D:\\Archive\\probe.txt"},
             {L"D:\\Archive\\probe.v2.txt", L"D:\\Archive\\probe.v2.txt"}}) {
        file->operations.clear();
        platform->ChooseFile(chosen);
        EXPECT_TRUE(settings->SaveFileAs(0, filename));
        EXPECT_EQ(filename, saved);
        EXPECT_EQ(file->operations.at(0), L"FileName \"" + saved + L"\"");
        EXPECT_EQ(StartOfDialog(), saved);
    }
}

TEST_P(SettingsObjectTest, ReadsTheFileBeforeItTakesItsName) {
    std::wstring nameInBox = L"unset";
    std::wstring startInBox;
    platform->ChooseFile(L"D:\\Archive\\probe.ini"); // which is empty
    platform->WhileMessageIsShown([&] {
        nameInBox = filename;
        startInBox = StartOfDialog();
    });
    EXPECT_TRUE(settings->OpenFile(0, filename)) << "the failure has been shown";
    ASSERT_FALSE(platform->Messages().empty());
    EXPECT_EQ(platform->Messages().back().text, versionMessage);
    EXPECT_EQ(nameInBox, L"");
    EXPECT_EQ(startInBox, Pattern());
    EXPECT_EQ(filename, L"D:\\Archive\\probe.ini");
    EXPECT_EQ(StartOfDialog(), L"D:\\Archive\\probe.ini");
}

TEST_P(SettingsObjectTest, TakesTheNameBeforeItWritesTheFile) {
    std::wstring nameInBox;
    std::wstring startInBox;
    file->failAt = 0;
    platform->ChooseFile(L"D:\\Archive\\probe");
    platform->WhileMessageIsShown([&] {
        nameInBox = filename;
        startInBox = StartOfDialog();
    });
    EXPECT_TRUE(settings->SaveFileAs(0, filename)) << "the failure has been shown";
    EXPECT_EQ(MessageTexts(*platform),
              (std::vector{Support::ErrorReport(Support::writingSettings, 57, L"Device I/O error: memory",
                                                L"QuorIniFile")}));
    EXPECT_EQ(nameInBox, std::wstring(L"D:\\Archive\\probe") + GetParam().fileExtension);
    EXPECT_EQ(startInBox, nameInBox);
}

TEST_P(SettingsObjectTest, TellsWhereNoDialogCanBeShown) {
    UsePlatform(std::make_shared<Support::NoScreen>());
    EXPECT_FALSE(settings->Edit());
    ASSERT_EQ(platform->Messages().size(), 1U);
    const MessageRequest& message = platform->Messages()[0];
    EXPECT_EQ(message.text, Support::ErrorReport(L"attempting to edit the conversion settings", 429,
                                                 L"No dialog can be shown here", L"HeadlessPlatform"));
    EXPECT_EQ(message.title, L"Quor Scientific");
    EXPECT_EQ(message.icon, ICON_CRITICAL);
    EXPECT_FALSE(settings->Changed());
}

TEST(SettingsObjectNameTest, ATypelessThermocoupleHasOneBlankInTheTitleAndTwoInTheFilter) {
    const auto platform = std::make_shared<ScriptedPlatform>();
    const auto thermocouple = Support::NewSettings<CQuorTCTypeX>(CONV_TCTYPEX, platform);
    thermocouple->SetTCType(TCTYPE_NONE);
    std::wstring filename;
    EXPECT_FALSE(thermocouple->OpenFile(0, filename));
    EXPECT_EQ(platform->FileRequests().at(0).title, L"Open TC Type File");
    EXPECT_EQ(platform->FileRequests().at(0).filter, L"TC Type  Files (*.tcx)|*.tcx");
}
