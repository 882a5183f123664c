// A save that fails. An object that refuses to give a value is saved up to that value; where the store fails,
// the file is the old one, byte for byte. The object is what it was.

#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "QuorIniFile/IniStore.h"
#include "tests/support/Messages.h"
#include "tests/support/Objects.h"
#include "tests/support/Records.h"
#include "tests/support/SettingsClasses.h"
#include "tests/support/TempFolder.h"

using namespace QuorConversions;
using QuorIniFile::IniStore;
using Support::ErrorReport;
using Support::MessageTexts;
using Support::ScriptedPlatform;
using Support::writingSettings;
using Texts = std::vector<std::wstring>;

namespace {

constexpr const char* refusesIndex4 = "[Probe - Settings]\nVersion=1.0\nTCType=2\nNumCoefficients=16\n"
                                      "Coefficients0=1.5\nCoefficients1=0\nCoefficients2=0\n"
                                      "Coefficients3=0\n";

/// A thermocouple type with a deviation polynomial that claims 16 coefficients, of which it refuses all but
/// four.
class RecordWithARefusedValue : public testing::Test {
protected:
    RecordWithARefusedValue() {
        conversion.SetConversionType(CONV_TCTYPEPOLY);
        const auto typePoly = SettingsAs<CQuorTCTypePoly>(conversion);
        typePoly->SetNumCoefficients(16);
        typePoly->SetCoefficients(0, 1.5);
    }
    [[nodiscard]] std::string File() const { return folder.Read("host.ini"); }

    TempFolder folder;
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    CQuorConversion conversion{platform};
    const std::string reached = std::string("[Probe]\nVersion=1.0\nConversionType=20\n\n") + refusesIndex4;
    const Texts oneReport{
        ErrorReport(writingSettings, Support::indexOutOfRange, L"Index out of range", L"CQuorTCTypePoly")};
};

} // namespace

TEST_F(RecordWithARefusedValue, IsSavedUpToThatValueAndTheUserIsToldOnce) {
    std::shared_ptr<INIFile> none;
    conversion.WriteToFile(none, folder.Name("host.ini"), L"Probe");
    EXPECT_EQ(File(), reached);
    EXPECT_EQ(MessageTexts(*platform), oneReport);
    EXPECT_TRUE(conversion.Changed());
}

TEST_F(RecordWithARefusedValue, IsInTheFileBeforeTheUserIsTold) {
    std::string shownMeanwhile;
    platform->WhileMessageIsShown([&] { shownMeanwhile = File(); });
    std::shared_ptr<INIFile> none;
    conversion.Settings()->WriteToFile(none, folder.Name("host.ini"), L"Probe - Settings");
    EXPECT_EQ(shownMeanwhile, refusesIndex4);
    EXPECT_EQ(MessageTexts(*platform), oneReport);
}

TEST_F(RecordWithARefusedValue, LeavesTheOtherRecordsOfABracketToBeSavedAndItsReleaseRaisesNothing) {
    CQuorConversion before(platform);
    before.SetConversionType(CONV_OHMS);
    CQuorConversion after(platform);
    after.SetConversionType(CONV_VOLTS);
    const std::shared_ptr<INIFile> store = std::make_shared<IniStore>();
    store->SetFileName(folder.Name("host.ini"));
    store->Hold();
    std::shared_ptr<INIFile> ini = store;
    before.WriteToFile(ini, L"", L"Before");
    conversion.WriteToFile(ini, L"", L"Probe");
    after.WriteToFile(ini, L"", L"After");
    EXPECT_NO_THROW(store->Release());
    EXPECT_EQ(File(), "[Before]\nVersion=1.0\nConversionType=10\n\n" + reached +
                          "\n[After]\nVersion=1.0\nConversionType=11\n");
    EXPECT_EQ(MessageTexts(*platform), oneReport);
}

TEST_F(RecordWithARefusedValue, IsNotSavedAndTheFailureOfTheFileIsToldWhereTheFileCannotBeSaved) {
    folder.Write("host.ini", "; mine\n");
    folder.SetMode("host.ini", 0444);
    std::shared_ptr<INIFile> none;
    conversion.Settings()->WriteToFile(none, folder.Name("host.ini"), L"Probe - Settings");
    EXPECT_EQ(File(), "; mine\n");
    const std::wstring readOnly =
        L"Permission denied: " + folder.Name("host.ini") + L": The file is read-only";
    EXPECT_EQ(MessageTexts(*platform), Texts{ErrorReport(writingSettings, 70, readOnly, L"QuorIniFile")});
}

TEST_F(RecordWithARefusedValue, LeavesAllOtherSectionsOfItsConversionWhole) {
    conversion.SetConversionType(CONV_ITS90);
    const auto its90 = SettingsAs<CQuorITS90>(conversion);
    its90->SetRTPW(25.5);
    its90->HighRange()->SetMaxRange(EITS90RangeNumber{70000});
    its90->HighRange()->SetRange(EITS90RangeNumber{70000});
    std::shared_ptr<INIFile> none;
    conversion.WriteToFile(none, folder.Name("host.ini"), L"Probe");
    EXPECT_EQ(File(), "[Probe]\nVersion=1.0\nConversionType=0\n\n"
                      "[Probe - Settings]\nVersion=1.0\nRTPW=25.5\n\n"
                      "[Probe - Settings - High Range]\nVersion=1.0\n\n"
                      "[Probe - Settings - Low Range]\nVersion=1.0\nRange=-1\n");
    EXPECT_EQ(MessageTexts(*platform),
              Texts{ErrorReport(writingSettings, 6, L"Overflow", L"CQuorITS90HighRange")});
}

namespace {

/// A built-in store that cannot take the key "Range".
class StoreThatFails : public INIFile {
public:
    void SetFileName(std::wstring_view fileName) override { store.SetFileName(fileName); }
    void SetSection(std::wstring_view section) override { store.SetSection(section); }
    bool ReadBoolean(std::wstring_view key, bool& value) override { return store.ReadBoolean(key, value); }
    bool ReadDouble(std::wstring_view key, double& value) override { return store.ReadDouble(key, value); }
    bool ReadInteger(std::wstring_view key, std::int16_t& value) override {
        return store.ReadInteger(key, value);
    }
    bool ReadString(std::wstring_view key, std::wstring& value) override {
        return store.ReadString(key, value);
    }
    void WriteBoolean(std::wstring_view key, bool value) override { store.WriteBoolean(key, value); }
    void WriteDouble(std::wstring_view key, double value, std::wstring_view comment) override {
        store.WriteDouble(key, value, comment);
    }
    void WriteInteger(std::wstring_view key, std::int16_t value, std::wstring_view comment) override {
        if (key == L"Range")
            throw QuorError(57, L"StoreThatFails", L"Device I/O error");
        store.WriteInteger(key, value, comment);
    }
    void WriteString(std::wstring_view key, std::wstring_view value) override {
        store.WriteString(key, value);
    }
    void Hold() override { store.Hold(); }
    void Release() override { store.Release(); }
    void Abandon() override { store.Abandon(); }

    IniStore store;
};

/// An ITS-90 conversion whose record stands in a file, and a store that fails in the midst of a new one.
class RecordThatTheStoreCannotTake : public testing::Test {
protected:
    RecordThatTheStoreCannotTake() {
        conversion.SetConversionType(CONV_ITS90);
        its90 = SettingsAs<CQuorITS90>(conversion);
        its90->SetRTPW(25.5);
        std::shared_ptr<INIFile> none;
        conversion.WriteToFile(none, folder.Name("host.ini"), L"Probe");
        before = File();
        its90->SetRTPW(99.0);
        store->SetFileName(folder.Name("host.ini"));
    }
    void WriteIntoStore() const {
        std::shared_ptr<INIFile> ini = store;
        conversion.WriteToFile(ini, L"", L"Probe");
    }
    [[nodiscard]] std::string File() const { return folder.Read("host.ini"); }

    TempFolder folder;
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    CQuorConversion conversion{platform};
    std::shared_ptr<CQuorITS90> its90;
    std::string before;
    std::shared_ptr<StoreThatFails> store = std::make_shared<StoreThatFails>();
    const std::wstring nothingSaved = L"Path/File access error: " + folder.Name("host.ini") +
                                      L": A record could not be written whole, so nothing was saved";
};

} // namespace

TEST_F(RecordThatTheStoreCannotTake, IsNotSavedInPart) {
    WriteIntoStore();
    EXPECT_EQ(File(), before);
    const auto report = [](const wchar_t* source) {
        return ErrorReport(writingSettings, 57, L"Device I/O error", source);
    };
    EXPECT_EQ(MessageTexts(*platform),
              (Texts{report(L"StoreThatFails"), report(L"StoreThatFails"),
                     ErrorReport(writingSettings, 75, nothingSaved, L"QuorIniFile")}));
    EXPECT_EQ(its90->RTPW(), 99.0);
    EXPECT_TRUE(conversion.Changed());
}

TEST_F(RecordThatTheStoreCannotTake, LeavesNothingBehindInTheStoreOfAHost) {
    WriteIntoStore();
    store->SetSection(L"Display");
    store->WriteString(L"Colour", L"blue");
    EXPECT_EQ(File(), before + "\n[Display]\nColour=blue\n");
}

TEST_F(RecordThatTheStoreCannotTake, MakesTheBracketOfItsHostFailThatHoldsOtherRecordsToo) {
    store->Hold();
    WriteIntoStore();
    store->SetSection(L"Display");
    store->WriteString(L"Colour", L"blue");
    EXPECT_QUOR_ERROR(store->Release(), 75, L"QuorIniFile", nothingSaved);
    EXPECT_EQ(File(), before);
    store->Hold();
    store->WriteString(L"Colour", L"red");
    store->Release();
    EXPECT_EQ(File(), before + "\n[Display]\nColour=red\n") << "the next one is another one";
}

TEST_F(RecordThatTheStoreCannotTake, IsNotSavedWhenItsHostOpensAnotherFile) {
    store->Hold();
    WriteIntoStore();
    store->SetFileName(folder.Name("other.ini"));
    store.reset();
    EXPECT_EQ(File(), before);
}

TEST_F(RecordThatTheStoreCannotTake, IsNotSavedWhenItsHostEnds) {
    store->Hold();
    WriteIntoStore();
    store.reset();
    EXPECT_EQ(File(), before);
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
    folder.SetMode("a.ini", 0444);
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
