#include "QuorProbeFile/RecordMerge.h"

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/polynomial/CQuorPolynomial.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/rtd/CQuorITS90LowRange.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"
#include "QuorIniFile/IniStore.h"
#include "QuorProbeFile/ProbeFile.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace QuorProbeFile;
using namespace QuorConversions;
using QuorIniFile::IniStore;

namespace {

constexpr const char* record = "[P]\n"
                               "Version=1.0\n"
                               "ConversionType=2\n"
                               "[P - Settings]\n"
                               "Version=1.0\n"
                               "NumCoefficients=4\n"
                               "UsePolynomial=False\n"
                               "Coefficients0=100.0\n"
                               "Coefficients1=3.9083E-3\n"
                               "Coefficients2=1.50\n"
                               "Coefficients3=0\n";

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

/// A probe that is read from a file, which other programs may change before the changes are merged into it.
class RecordMergeTest : public testing::Test {
protected:
    void Read(const std::string& text) {
        folder.Write("a.ini", text);
        before->SetFileName(folder.Name("a.ini"));
        std::shared_ptr<INIFile> iniFile = before;
        probe.ReadFromFile(iniFile, L"", L"P");
    }
    /// Another program leaves the file with this text.
    void Others(const std::string& text) const { folder.Write("a.ini", text); }
    [[nodiscard]] std::string File() const { return folder.Read("a.ini"); }
    [[nodiscard]] CQuorCVD& Cvd() const { return *SettingsAs<CQuorCVD>(probe); }

    /// What stands in the way of the probe's changes, now that it stands in `section`: a line each.
    std::vector<std::wstring> Conflicts(const std::wstring& section = L"P") {
        file->SetFileName(folder.Name("a.ini"));
        merge = std::make_shared<RecordMerge>(before, L"P", file, section);
        std::shared_ptr<INIFile> iniFile = merge;
        probe.WriteToFile(iniFile, L"", section);
        const auto text = [](const std::optional<Value>& value) { return value ? ToText(*value) : L"none"; };
        std::vector<std::wstring> lines;
        for (const RecordConflict& conflict : merge->Conflicts())
            lines.push_back(L"[" + conflict.section + L"] " + conflict.key + L": " + text(conflict.read) +
                            L", " + text(conflict.theirs) + L", " + ToText(conflict.ours));
        return lines;
    }
    using Lines = std::vector<std::wstring>;

    TempFolder folder;
    std::shared_ptr<IniStore> before = std::make_shared<IniStore>();
    std::shared_ptr<IniStore> file = std::make_shared<IniStore>();
    std::shared_ptr<RecordMerge> merge;
    CQuorConversion probe;
};

} // namespace

TEST_F(RecordMergeTest, WritesTheKeysThatHaveAnotherValueThanWasReadAndNoOthers) {
    Read(record);
    Cvd().SetCoefficients(CVD_R0, 100.5);
    const std::string theirs = Replaced(Replaced(record, "3.9083E-3", "0.004"), "=False", "=True");
    Others("; theirs\n" + theirs);
    EXPECT_EQ(Conflicts(), Lines{});
    EXPECT_EQ(File(), "; theirs\n" + theirs) << "nothing is written before the host says so";
    merge->WriteChanges();
    EXPECT_EQ(File(), "; theirs\n" + Replaced(theirs, "100.0\n", "100.5\n"));
}

TEST_F(RecordMergeTest, AKeyThatBothHaveChangedIsAConflict) {
    Read(record);
    Cvd().SetCoefficients(CVD_R0, 100.5);
    Cvd().SetCoefficients(CVD_DELTA, 1.6);
    Others(Replaced(Replaced(record, "100.0\n", "99\n"), "1.50", "abc"));
    EXPECT_EQ(Conflicts(), (Lines{L"[P - Settings] Coefficients0: 100, 99, 100.5",
                                  L"[P - Settings] Coefficients2: 1.5, abc, 1.6"}));
}

TEST_F(RecordMergeTest, AKeyThatBothHaveGivenTheSameValueIsNoConflict) {
    Read(record);
    Cvd().SetCoefficients(CVD_R0, 100.5);
    const std::string theirs = Replaced(record, "100.0\n", "1.005E2\n");
    Others(theirs);
    EXPECT_EQ(Conflicts(), Lines{});
    merge->WriteChanges();
    EXPECT_EQ(File(), theirs);
}

TEST_F(RecordMergeTest, AChangedKeyThatIsGoneIsAConflictAndAnotherOneStaysGone) {
    Read(record);
    Cvd().SetCoefficients(CVD_R0, 100.5);
    Others(Replaced(record, "Coefficients0=100.0\n", ""));
    EXPECT_EQ(Conflicts(), Lines{L"[P - Settings] Coefficients0: 100, none, 100.5"});

    const std::string theirs = Replaced(record, "Coefficients2=1.50\n", "");
    Others(theirs);
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{});
    merge->WriteChanges();
    EXPECT_EQ(File(), Replaced(theirs, "100.0\n", "100.5\n"));
}

TEST_F(RecordMergeTest, WhatOthersHaveRemovedIsWrittenAgainOnRequest) {
    Read(record);
    Cvd().SetCoefficients(CVD_R0, 100.5);
    Others(Replaced(Replaced(record, "Coefficients0=100.0\n", ""), "Coefficients2=1.50\n", ""));
    EXPECT_EQ(Conflicts().size(), 1U);
    merge->WriteChangesAndRemoved();
    EXPECT_EQ(File(), Replaced(Replaced(record, "Coefficients0=100.0\n", ""), "Coefficients2=1.50\n", "") +
                          "Coefficients2=1.5\nCoefficients0=100.5\n");
}

TEST_F(RecordMergeTest, ANewKeyIsAConflictOnlyWhereOthersHaveMadeItToo) {
    // Coefficients5 is left from a greater count: nobody reads it, and everybody may write it.
    const std::string text = std::string(record) + "Coefficients5=7\n";
    Read(text);
    Cvd().SetNumCoefficients(6);
    Cvd().SetCoefficients(4, 0.25);
    Cvd().SetCoefficients(5, 0.75);
    EXPECT_EQ(Conflicts(), Lines{});
    const std::string theirs = Replaced(text, "=4\n", "=5\n") + "Coefficients4=9\n";
    Others(theirs);
    file->Reload();
    EXPECT_EQ(Conflicts(), (Lines{L"[P - Settings] NumCoefficients: 4, 5, 6",
                                  L"[P - Settings] Coefficients4: none, 9, 0.25"}));
    Others(text);
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{});
    merge->WriteChanges();
    EXPECT_EQ(File(), Replaced(Replaced(text, "=4\n", "=6\n"), "=7\n", "=0.75\n") + "Coefficients4=0.25\n");
}

TEST_F(RecordMergeTest, AnotherConversionTypeIsAConflictAsSoonAsAnythingWasChanged) {
    Read(record);
    Others(Replaced(record, "ConversionType=2", "ConversionType=4"));
    EXPECT_EQ(Conflicts(), Lines{});
    EXPECT_TRUE(merge->HasAnotherType());
    Cvd().SetCoefficients(CVD_R0, 100.5);
    EXPECT_EQ(Conflicts(), Lines{L"[P] ConversionType: 2, 4, 2"});
    Others("");
    file->Reload();
    EXPECT_EQ(Conflicts(),
              (Lines{L"[P] ConversionType: 2, none, 2", L"[P - Settings] Coefficients0: 100, none, 100.5"}));
    EXPECT_TRUE(merge->HasAnotherType());
}

TEST_F(RecordMergeTest, AChangedCoefficientIsAConflictWhereOthersHaveGivenTheCoefficientsAnotherMeaning) {
    Read(record);
    Cvd().SetCoefficients(CVD_ALPHA, 0.0039);
    const std::string theirs =
        Replaced(Replaced(record, "=False", "=True"), "Coefficients2=1.50", "Coefficients2=-5.8E-7");
    Others(theirs);
    EXPECT_EQ(Conflicts(), (Lines{L"[P - Settings] UsePolynomial: False, True, False",
                                  L"[P - Settings] Coefficients2: 1.5, -5.8e-07, 1.5"}));
    merge->WriteChangesAndRemoved();
    EXPECT_EQ(File(), Replaced(Replaced(record, "3.9083E-3", "0.0039"), "1.50", "1.5"))
        << "ours are one record again";
}

TEST_F(RecordMergeTest, AnotherMeaningOfTheCoefficientsIsAConflictWhereOthersHaveChangedOne) {
    Read(record);
    Cvd().SetUsePolynomial(true);
    Others(Replaced(record, "1.50", "1.6"));
    EXPECT_EQ(Conflicts(), Lines{L"[P - Settings] Coefficients2: 1.5, 1.6, 1.5"});
    merge->WriteChangesAndRemoved();
    EXPECT_EQ(File(), Replaced(Replaced(record, "=False", "=True"), "1.50", "1.5"));

    Others(Replaced(record, "100.0\n", "99\n"));
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{}) << "R0 is R0 either way";
    Others(Replaced(Replaced(record, "=False", "=True"), "1.50", "-5.8E-7"));
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{}) << "both have given them the same meaning";
}

TEST_F(RecordMergeTest, AChangedCoefficientThatOthersCountNoMoreIsAConflict) {
    const std::string text = "[P]\nVersion=1.0\nConversionType=4\n[P - Settings]\nVersion=1.0\nOrder=6\n"
                             "Coefficients0=0\nCoefficients1=1\nCoefficients2=2\nCoefficients3=3\n"
                             "Coefficients4=4\nCoefficients5=5\nCoefficients6=6\n";
    Read(text);
    ASSERT_EQ(probe.ConversionType(), CONV_POLYNOMIAL);
    const auto polynomial = SettingsAs<CQuorPolynomial>(probe);
    polynomial->SetCoefficients(6, 6.5);
    Others(Replaced(text, "Order=6", "Order=5"));
    EXPECT_EQ(Conflicts(), Lines{L"[P - Settings] Order: 6, 5, 6"});
    Others(Replaced(text, "Order=6", "Order=7"));
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{}) << "it is counted as before";

    polynomial->SetCoefficients(6, 6);
    polynomial->SetCoefficients(5, 5.5);
    Others(Replaced(text, "Order=6", "Order=5"));
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{}) << "they count this one";
}

TEST_F(RecordMergeTest, ASmallerCountIsAConflictWhereOthersHaveChangedWhatItLeavesOut) {
    Read(record);
    Cvd().SetNumCoefficients(3);
    Others(Replaced(record, "Coefficients3=0", "Coefficients3=0.5"));
    EXPECT_EQ(Conflicts(), Lines{L"[P - Settings] Coefficients3: 0, 0.5, 0"});
    Others(Replaced(record, "1.50", "1.6"));
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{});
    merge->WriteChanges();
    EXPECT_EQ(File(), Replaced(Replaced(record, "1.50", "1.6"), "=4\n", "=3\n"));
}

TEST_F(RecordMergeTest, ASmallerCountThatAFileWritesIsAConflictWithWhatOthersHaveChangedBeyondIt) {
    folder.Write("a.ini", record);
    ProbeFile probes(folder.Name("a.ini"));
    RecordAsRead asRead = probes.Read(L"P", probe).record;
    Cvd().SetNumCoefficients(3);
    const std::string theirs = Replaced(record, "Coefficients3=0", "Coefficients3=0.5");
    Others(theirs);
    const auto conflicts = probes.WriteChanges(L"P", probe, asRead);
    ASSERT_EQ(conflicts.size(), 1U);
    EXPECT_EQ(conflicts[0].key, L"Coefficients3");
    EXPECT_EQ(conflicts[0].theirs, Value(0.5));
    EXPECT_EQ(File(), theirs);
}

TEST_F(RecordMergeTest, ADeviationIsAConflictWhereOthersHaveChosenAnotherThermocoupleOrUnit) {
    CQuorConversion fresh;
    fresh.SetConversionType(CONV_TCTYPEX);
    folder.Write("a.ini", "");
    file->SetFileName(folder.Name("a.ini"));
    std::shared_ptr<INIFile> iniFile = file;
    fresh.WriteToFile(iniFile, L"", L"P");
    const std::string text = File();
    Read(text);
    SettingsAs<CQuorTCTypeX>(probe)->SetOffsets(1, 0.25);
    Others(Replaced(text, "TCType=4", "TCType=2"));
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{L"[P - Settings] TCType: 4, 2, 4"});
    Others(Replaced(text, "OffsetScale=", "OffsetScale=K"));
    file->Reload();
    ASSERT_EQ(Conflicts().size(), 1U);
    EXPECT_EQ(merge->Conflicts().front().key, L"OffsetScale");
    Others(Replaced(text, "TempScale=", "TempScale=K"));
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{});
}

TEST_F(RecordMergeTest, ADeviationCoefficientIsAConflictWhereOthersHaveChosenAnotherRange) {
    const std::string text =
        "[P]\nVersion=1.0\nConversionType=0\n[P - Settings]\nVersion=1.0\nRTPW=25.5\n"
        "[P - Settings - High Range]\nVersion=1.0\nRange=9\nCoefficients0=0\nCoefficients1=0\n"
        "[P - Settings - Low Range]\nVersion=1.0\nRange=4\nCoefficients0=0\nCoefficients1=0\n";
    Read(text);
    ASSERT_EQ(probe.ConversionType(), CONV_ITS90);
    SettingsAs<CQuorITS90>(probe)->LowRange()->SetCoefficients(1, 1e-5);
    Others(Replaced(text, "Range=9", "Range=8"));
    EXPECT_EQ(Conflicts(), Lines{}) << "of another section";
    Others(Replaced(text, "Range=4", "Range=5"));
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{L"[P - Settings - Low Range] Range: 4, 5, 4"});
}

TEST_F(RecordMergeTest, ARecordThatIsGoneAndWasNotChangedIsNotBegunAgain) {
    Read(Replaced(record, "Version=1.0\n", "Version=0.9\n"));
    Others("[Other]\n");
    EXPECT_EQ(Conflicts(), Lines{});
    merge->WriteChanges();
    EXPECT_EQ(File(), "[Other]\n");
}

TEST_F(RecordMergeTest, WhereNothingHasChangedNotAByteIsWritten) {
    for (const char* const version : {"", "Version=0.9\n", "Version=1.0 ; from the certificate\n"}) {
        const std::string text = Replaced(record, "Version=1.0\n", version);
        before = std::make_shared<IniStore>();
        file = std::make_shared<IniStore>();
        Read(text);
        EXPECT_EQ(Conflicts(), Lines{});
        merge->WriteChanges();
        EXPECT_EQ(File(), text);
    }
}

TEST_F(RecordMergeTest, AVersionThatIsMissingOrAnotherOneIsWrittenWithAChangeAndNeverAConflict) {
    const std::string missing =
        Replaced(Replaced(record, "Version=1.0\n", ""), "Version=1.0\n", "Version=0.9\n");
    Read(missing);
    Cvd().SetCoefficients(CVD_R0, 100.5);
    EXPECT_EQ(Conflicts(), Lines{});
    merge->WriteChanges();
    const std::string changed = Replaced(missing, "100.0\n", "100.5\n");
    EXPECT_EQ(File(), Replaced(Replaced(changed, "ConversionType=2\n", "ConversionType=2\nVersion=1.0\n"),
                               "Version=0.9", "Version=1.0"));

    const std::string theirs = Replaced(missing, "Version=0.9", "Version=7");
    Others(theirs);
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{});
    merge->WriteChanges();
    EXPECT_EQ(File(), Replaced(Replaced(theirs, "100.0\n", "100.5\n"), "=2\n", "=2\nVersion=1.0\n"));
}

TEST_F(RecordMergeTest, WhatCouldNotBeReadIsWrittenUnlessOthersHaveChangedIt) {
    const std::string text = Replaced(record, "1.50", "one");
    Read(text);
    EXPECT_EQ(Conflicts(), Lines{});
    merge->WriteChanges();
    EXPECT_EQ(File(), Replaced(text, "=one", "=0"));
    Others(Replaced(text, "=one", "=two"));
    file->Reload();
    EXPECT_EQ(Conflicts(), Lines{L"[P - Settings] Coefficients2: one, two, 0"});
}

TEST_F(RecordMergeTest, ARecordThatHasGotAnotherNameIsMergedUnderThat) {
    Read(record);
    Cvd().SetCoefficients(CVD_R0, 100.5);
    const std::string theirs = Replaced(Replaced(record, "[P]", "[Q 2]"), "[P -", "[Q 2 -");
    Others(Replaced(theirs, "1.50", "1.7"));
    EXPECT_EQ(Conflicts(L"Q 2"), Lines{});
    merge->WriteChanges();
    EXPECT_EQ(File(), Replaced(Replaced(theirs, "1.50", "1.7"), "100.0\n", "100.5\n"));
}

TEST_F(RecordMergeTest, OneStoreMayGiveWhatWasReadAndTakeWhatIsWritten) {
    Read(record);
    Cvd().SetCoefficients(CVD_R0, 100.5);
    file = before;
    EXPECT_EQ(Conflicts(), Lines{});
    merge->WriteChanges();
    EXPECT_EQ(File(), Replaced(record, "100.0\n", "100.5\n"));
}
