// What is done with several probes at once, and with probes as text.

#include "tests/apps/probe-setup/DocumentTest.h"

#include <gtest/gtest.h>

#include <ctime>

using namespace ProbeSetup;
using namespace QuorConversions;
using Texts = std::vector<std::wstring>;

using ManyProbes = DocumentTest;

TEST_F(ManyProbes, AreDuplicatedInOneStep) {
    Open();
    EXPECT_EQ(document.Duplicate({0, 1}), (std::vector<std::size_t>{2, 3}));
    EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Probe 2", L"Probe 1 (2)", L"Probe 2 (2)"}));
    EXPECT_EQ(document.Undo(), (std::vector<std::size_t>{2, 3}));
    EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Probe 2"}));
    EXPECT_EQ(document.UndoKind(), std::nullopt);
}

TEST_F(ManyProbes, OfWhichOneCannotBeReadAreNotDuplicatedAtAll) {
    Open(host + "[P]\nConversionType=2\n");
    EXPECT_EQ(FailureOf([this] { document.Duplicate({0, 2}); }), Failure::UnreadableRecord);
    EXPECT_EQ(document.Count(), 3U);
    EXPECT_FALSE(document.Changed());
}

TEST_F(ManyProbes, GetAnotherTypeInOneStepAndThoseThatHaveItStayAsTheyAre) {
    Open();
    document.SetType({0, 1}, CONV_OHMS);
    EXPECT_TRUE(document.IsChanged(0));
    EXPECT_FALSE(document.IsChanged(1));
    static_cast<void>(document.Undo());
    EXPECT_FALSE(document.Changed());
}

TEST_F(ManyProbes, ThatGetSettingsAreSavedInAboutTheTimeThatTheirNumberTakes) {
    const auto secondsFor = [this](std::size_t count) {
        std::string text;
        std::vector<std::size_t> all(count);
        for (std::size_t i = 0; i < count; ++i) {
            text += "[Probe " + std::to_string(i) + "]\nConversionType=10\n";
            all[i] = i;
        }
        Open(text);
        document.SetType(all, CONV_CVD);
        const std::clock_t start = std::clock();
        document.Save();
        return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    };
    const double few = secondsFor(200);
    EXPECT_LT(secondsFor(1600) / few, 20) << "8 is the ratio of the numbers, 64 that of their squares";
}

TEST_F(ManyProbes, GoIntoATextAndComeBackUnderFreeNames) {
    Open();
    Edit(0, L"R0", L"100.0123");
    const std::wstring text = document.TextOf({0, 1});
    EXPECT_EQ(text, L"[Probe 1]\n"
                    L"Version=1.0\n"
                    L"ConversionType=2\n"
                    L"\n"
                    L"[Probe 1 - Settings]\n"
                    L"Version=1.0\n"
                    L"NumCoefficients=4\n"
                    L"UsePolynomial=False\n"
                    L"Coefficients0=100.0123\n"
                    L"Coefficients1=0.0039083\n"
                    L"Coefficients2=1.5\n"
                    L"Coefficients3=0\n"
                    L"\n"
                    L"[Probe 2]\n"
                    L"Version=1.0\n"
                    L"ConversionType=10\n");
    folder.Write("pasted.ini", std::string(text.begin(), text.end()));
    EXPECT_EQ(document.AddFrom(folder.Name("pasted.ini")), (std::vector<std::size_t>{2, 3}));
    EXPECT_EQ(Names(), (Texts{L"Probe 1", L"Probe 2", L"Probe 1 (2)", L"Probe 2 (2)"}));
    EXPECT_EQ(document.UndoKind(), StepKind::Paste);
    EXPECT_EQ(document.TextOf({2}).substr(0, 15), L"[Probe 1 (2)]\nV");
}

TEST_F(ManyProbes, OfATextThatIsNoneAreRefused) {
    Open();
    folder.Write("pasted.ini", "Dear colleague,\nthe probe is fine.\n");
    EXPECT_EQ(FailureOf([this] { document.AddFrom(folder.Name("pasted.ini")); }), Failure::NoProbesInText);
    folder.Write("pasted.ini", "[P]\nConversionType=2\n[Q]\nConversionType=10\n");
    EXPECT_EQ(FailureOf([this] { document.AddFrom(folder.Name("pasted.ini")); }), Failure::UnreadableText);
    EXPECT_EQ(document.Count(), 2U);
}

TEST_F(ManyProbes, OfATextWithSectionsThatNobodyReadsAreRefused) {
    Open();
    const auto headersRefused = [this](const std::string& text) {
        folder.Write("pasted.ini", text);
        try {
            document.AddFrom(folder.Name("pasted.ini"));
        } catch (const DocumentError& error) {
            EXPECT_EQ(error.failure, Failure::UnreadSections);
            return error.details;
        }
        return Texts{};
    };
    EXPECT_EQ(headersRefused("[P]\nConversionType=10\n[Q]\nConversionType=10\n[p]\nConversionType=11\n"),
              Texts{L"[P]"});
    EXPECT_EQ(headersRefused("[P]\nConversionType=10\n[Q\nConversionType=11\n"), Texts{L"[Q"});
    EXPECT_EQ(document.Count(), 2U);
}

TEST_F(ManyProbes, AreExportedUnderTheirNamesWithoutSlashes) {
    Open();
    document.Rename(0, L"A/B");
    EXPECT_EQ(document.ExportName(0), L"A-B.cvd");
    EXPECT_EQ(document.ExportName(1), L"");
    folder.Write("A-B.cvd", "old\n");
    document.ExportTo(0, folder.Name("A-B.cvd"));
    EXPECT_EQ(folder.Read("A-B.cvd").find("old"), std::string::npos);
    EXPECT_EQ(document.Import(folder.Name("A-B.cvd")), 2U);
    const std::wstring values = L"Coefficients0=100\nCoefficients1=0.0039083\n";
    EXPECT_NE(document.TextOf({2}).find(values), std::wstring::npos);
}
