// What is wrong with the probes of a document, as it would be saved.

#include "QuorIniFile/Utf8.h"
#include "tests/apps/probe-setup/DocumentTest.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;
using namespace ProbeSetup;
using namespace QuorConversions;
using QuorIniFile::ToUtf8;
using Texts = std::vector<std::wstring>;

class ProbeFindings : public DocumentTest {
protected:
    /// A line each: the probe's place, the line in the file, section, key and text.
    [[nodiscard]] Texts Findings() {
        Texts lines;
        for (const ProbeFinding& finding : document.Check()) {
            const auto& problem = finding.problem;
            lines.push_back((finding.probe ? std::to_wstring(*finding.probe) : std::wstring(L"-")) +
                            L" line " + std::to_wstring(problem.line) + L" [" + problem.section + L"] " +
                            problem.key + (problem.IsWarning() ? L" warning: " : L" error: ") + problem.text);
        }
        return lines;
    }
};

TEST_F(ProbeFindings, AreNoneForAFileThatIsRight) {
    Open();
    EXPECT_EQ(Findings(), Texts{});
}

TEST_F(ProbeFindings, TellAMissingKeyWithItsProbe) {
    Open("[P]\nConversionType=10\n[Q]\nConversionType=19\n[Q - Settings]\nNumCoefficients=1\n");
    EXPECT_EQ(Findings(), Texts{L"1 line 5 [Q - Settings] Coefficients0 error: the key is missing"});
}

TEST_F(ProbeFindings, TellAValueThatIsStrangeAsAWarningAndForgetItWhenItIsMended) {
    Open("[Q]\nConversionType=19\n[Q - Settings]\nNumCoefficients=1\nCoefficients0=0\n");
    EXPECT_EQ(Findings(), Texts{L"0 line 5 [Q - Settings] Coefficients0 warning: R0 is 0; limit: above 0"});
    Edit(0, L"R0", L"100.5");
    EXPECT_EQ(Findings(), Texts{});
    static_cast<void>(document.Undo());
    EXPECT_EQ(Findings().size(), 1U);
}

TEST_F(ProbeFindings, TellWhatIsWrongWithAProbeThatIsNotInTheFileYet) {
    Open();
    const std::size_t probe = document.Add(L"New", CONV_WT90);
    const Texts findings = Findings();
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(findings.front().substr(0, 9), std::to_wstring(probe) + L" line 0 ");
}

TEST_F(ProbeFindings, OfAProbeThatWasRenamedAreStillItsOwn) {
    Open("[Q]\nConversionType=19\n[Q - Settings]\nNumCoefficients=1\n[P]\nConversionType=10\n");
    document.Rename(0, L"Renamed");
    EXPECT_EQ(Findings(), Texts{L"0 line 3 [Q - Settings] Coefficients0 error: the key is missing"});
    document.Remove({0});
    EXPECT_EQ(Findings().size(), 1U) << "the section is in the file until it is saved";
    document.Save();
    EXPECT_EQ(Findings(), Texts{});
}

TEST_F(ProbeFindings, OfLinesThatASaveLeavesAloneOutliveAnEdit) {
    Open("[Q]\nConversionType=19\n[Q - Settings]\nNumCoefficients=1\nCoefficients0=100\nCoefficients0=99\n"
         "Color=red\nno key\n");
    const Texts found{
        L"0 line 6 [Q - Settings] Coefficients0 error: the key occurs twice; the one in line 5 is read",
        L"0 line 7 [Q - Settings] Color error: unknown key: a record of this type and size does "
        L"not hold it",
        L"0 line 8 [Q - Settings]  error: the line is no key=value"};
    EXPECT_EQ(Findings(), found);
    Edit(0, L"R0", L"100.5");
    EXPECT_EQ(Findings(), found);
    document.Save();
    EXPECT_EQ(Findings().size(), 3U) << "as quorconv check tells them";
    document.SetType({0}, CONV_OHMS); // takes the settings out of the file
    EXPECT_EQ(Findings(), Texts{});
}

TEST_F(ProbeFindings, OfAProbeThatCannotBeCheckedTellWhy) {
    Open();
    fs::create_directory(folder.Path("host.ini.1"));
    Edit(0, L"R0", L"100.5");
    const Texts findings = Findings();
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_NE(findings.front().find(L"host.ini.1"), std::wstring::npos) << ToUtf8(findings.front());
}
