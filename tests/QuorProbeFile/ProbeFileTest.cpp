#include "QuorProbeFile/ProbeFile.h"

#include "QuorConversions/polynomial/CQuorPolynomial.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/rtd/CQuorWT90.h"
#include "QuorConversions/thermistor/CQuorThermistor.h"
#include "QuorConversions/thermocouple/CQuorTCTable.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "QuorIniFile/QuorError.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "tests/support/InterceptedFiles.h"
#include "tests/support/TempFolder.h"
#include "toolkits/scripted/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

using namespace QuorConversions;
using namespace QuorProbeFile;

namespace {

constexpr const char* hostFile = "; the laboratory's file\n"
                                 "[Instrument]\n"
                                 "Channels=8\n"
                                 "\n"
                                 "[P]\n"
                                 "Version=1.0\n"
                                 "ConversionType=2\n"
                                 "\n"
                                 "[P - Settings]\n"
                                 "Version=1.0\n"
                                 "NumCoefficients=4\n"
                                 "UsePolynomial=False\n"
                                 "Coefficients0=100.0 ; ohms\n"
                                 "Coefficients1=3.9083E-3\n"
                                 "Coefficients2=1.5\n"
                                 "Coefficients3=0\n"
                                 "\n"
                                 "[Q]\n"
                                 "Version=1.0\n"
                                 "ConversionType=14\n"
                                 "[Q - Settings]\n"
                                 "Version=1.0\n"
                                 "RTPW=25.5\n";

/// Headers whose names share the low bits of their FNV-1a hashes, so that all of them begin to look for a
/// place among the first 4096 of a table of 2^17.
std::string HeadersWithCollidingHashes(std::size_t count) {
    std::string headers;
    for (std::uint32_t number = 0; count > 0; ++number) {
        const std::string name = "h" + std::to_string(number);
        std::uint64_t hash = 0xCBF29CE484222325U;
        for (const char c : name)
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
        if (((hash ^ hash >> 32U) & 0x1FFFFU) < 4096) {
            headers += "[" + name + "]\n";
            --count;
        }
    }
    return headers;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

class ProbeFileTest : public testing::Test {
protected:
    void Host(const std::string& text) const { folder.Write("host.ini", text); }
    [[nodiscard]] std::string File() const { return folder.Read("host.ini"); }
    [[nodiscard]] std::wstring Path() const { return folder.Name("host.ini"); }

    /// The error that `call` raises: "code section other".
    template <class Call>
    static std::wstring ErrorOf(const Call& call) {
        try {
            call();
            return L"none";
        } catch (const ProbeFileError& error) {
            return std::to_wstring(error.Code()) + L" [" + error.Section() + L"] " + error.Other();
        }
    }
    /// "line [section] key kind text" of each.
    static std::vector<std::wstring> Told(const std::vector<ProbeProblem>& problems) {
        std::vector<std::wstring> told;
        for (const ProbeProblem& p : problems)
            told.push_back(std::to_wstring(p.line) + L" [" + p.section + L"] " + p.key + L" " +
                           std::to_wstring(p.kind) + L" " + p.text);
        return told;
    }
    using Texts = std::vector<std::wstring>;

    TempFolder folder;
};

} // namespace

TEST_F(ProbeFileTest, TellsTheProbesInOrderWithSectionLineAndType) {
    Host(std::string(hostFile) + "[p]\nConversionType=4\n[R]\nConversionType=two\n[S]\nConversionType=77\n");
    ProbeFile file(Path());
    const std::vector<ProbeEntry> expected{
        {L"P", 5, CONV_CVD, false},
        {L"Q", 18, CONV_WT90, false},
        {L"R", 26, {}, false},
        {L"S", 28, EQuorConversionType{77}, false},
    };
    EXPECT_EQ(file.Probes(), expected) << "nobody reads a second section [p]";
    EXPECT_EQ(file.Find(L"q"), expected[1]);
    EXPECT_EQ(file.Find(L"Instrument"), std::nullopt);
    EXPECT_EQ(file.ConversionName(expected[0]), L"Callendar-Van Dusen");
    EXPECT_EQ(file.ConversionName(expected[2]), L"");
    EXPECT_EQ(file.ConversionName(expected[3]), L"<unknown>");
}

TEST_F(ProbeFileTest, TellsTheProbeOfAStandAloneFileWithTheTypeThatReadsIt) {
    folder.Write("a.thr", "; T(R)\n[Thermistor]\nConvType=1\nNumCoefficients=1\nCoefficients0=2\n");
    ProbeFile file(folder.Name("a.thr"));
    EXPECT_EQ(file.Probes(), (std::vector<ProbeEntry>{{L"Thermistor", 2, CONV_THERMISTORR_T, true}}));
    EXPECT_EQ(file.ConversionName(file.Probes().front()), L"Thermistor R(T)");
}

TEST_F(ProbeFileTest, AConversionThatIsNamedByItsValuesIsNamedByThem) {
    ProbeFile file(Path(), ProbeFile::Opening::OrNew);
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_TCTYPEX);
    file.Write(L"T", conversion);
    EXPECT_EQ(file.ConversionName(file.Probes().front()), L"TC Type K");
}

TEST_F(ProbeFileTest, TellsLostSectionsAndThoseThatStandTwice) {
    Host("[A\nConversionType=2\n[Host\nx=1\n[B]\nConversionType=10\n[b]\ny=1\n");
    ProbeFile file(Path());
    EXPECT_EQ(file.LostSections(), std::vector<std::size_t>{1});
    const auto duplicates = file.DuplicateSections();
    ASSERT_EQ(duplicates.size(), 1U);
    EXPECT_EQ(duplicates[0].section, L"B");
    EXPECT_EQ(duplicates[0].line, 7U);
    EXPECT_EQ(duplicates[0].first, 5U);
}

TEST_F(ProbeFileTest, SectionNamesThatWereChosenToCollideAreSurveyedAsFastAsOthers) {
    Host(HeadersWithCollidingHashes(40000) + "[P]\nConversionType=10\n");
    ProbeFile file(Path());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(file.Probes(), (std::vector<ProbeEntry>{{L"P", 40001, CONV_OHMS, false}}));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST_F(ProbeFileTest, ReadingOneProbeAfterTheOtherTakesTimeInProportion) {
    const auto time = [this](int count, const std::string& settings) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            const std::string name = "P" + std::to_string(i);
            text.append("[").append(name).append("]\nConversionType=14\n");
            text.append("[").append(name).append(" - Settings]\n").append(settings);
        }
        Host(text);
        double best = std::numeric_limits<double>::infinity();
        for (int round = 0; round < 3; ++round) {
            ProbeFile file(Path());
            CQuorConversion conversion;
            std::size_t problems = 0;
            const std::clock_t start = std::clock();
            for (const ProbeEntry& probe : file.Probes())
                problems += file.Read(probe.section, conversion).problems.size();
            best = std::min(best, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
            EXPECT_EQ(problems, settings == "RTPW=25.5\n" ? 0U : static_cast<std::size_t>(count));
        }
        return best;
    };
    for (const std::string settings : {"RTPW=25.5\n", "RTPW=25,5\n", "Rtpv=25.5\n"})
        EXPECT_LT(time(2000, settings), 10 * time(500, settings)) << settings;
}

TEST_F(ProbeFileTest, WhatOnlyReadsLeavesTheSelectedSectionAsItWas) {
    Host(Replaced(hostFile, "RTPW=25.5\n", ""));
    folder.Write("a.w90", "[W(T90)]\nRTPW=24.5\n[Host]\nx=1\n");
    for (const wchar_t* const name : {L"host.ini", L"a.w90"}) {
        ProbeFile file(folder.Name(std::filesystem::path(name).string()));
        const auto isStill = [&](const wchar_t* call) {
            EXPECT_EQ(file.Store()->Section(), L"Host") << call;
            file.Store()->SetSection(L"Host");
        };
        file.Store()->SetSection(L"Host");
        const std::vector<ProbeEntry> probes = file.Probes();
        isStill(L"Probes");
        CQuorConversion conversion;
        for (const ProbeEntry& probe : probes) {
            EXPECT_EQ(file.Find(probe.section), probe);
            isStill(L"Find");
            EXPECT_NE(file.ConversionName(probe), L"");
            isStill(L"ConversionName");
            static_cast<void>(file.Read(probe.section, conversion));
            isStill(L"Read");
        }
        EXPECT_EQ(ErrorOf([&] { (void)file.Read(L"Z", conversion); }), L"1 [Z] ");
        isStill(L"a Read that fails");
        static_cast<void>(file.Check());
        isStill(L"Check");
    }
}

TEST_F(ProbeFileTest, ReadsAProbeIntoAConversionThatCountsAsUnchanged) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion conversion;
    const ReadOutcome outcome = file.Read(L"p", conversion);
    EXPECT_TRUE(outcome.IsWhole());
    EXPECT_EQ(outcome.probe.type, CONV_CVD);
    EXPECT_EQ(conversion.ConversionType(), CONV_CVD);
    EXPECT_EQ(SettingsAs<CQuorCVD>(conversion)->Coefficients(CVD_ALPHA), 3.9083E-3);
    EXPECT_FALSE(conversion.Changed());
}

TEST_F(ProbeFileTest, TellsOfAProbeThatIsReadTheNameAndTheLineThatStandInTheFile) {
    Host("; rig 4\n\n[Channel 1]\nConversionType=14\n[channel 1 - settings]\nRTPW=25.5\n"
         "[Channel 2]\nConversionType=14\n");
    ProbeFile file(Path());
    CQuorConversion conversion;
    const ReadOutcome whole = file.Read(L"CHANNEL 1", conversion);
    EXPECT_TRUE(whole.IsWhole());
    EXPECT_EQ(whole.probe, (ProbeEntry{L"Channel 1", 3, CONV_WT90, false}));
    EXPECT_EQ(SettingsAs<CQuorWT90>(conversion)->RTPW(), 25.5);
    const ReadOutcome incomplete = file.Read(L"CHANNEL 2", conversion);
    EXPECT_EQ(incomplete.probe, (ProbeEntry{L"Channel 2", 7, CONV_WT90, false}));
    EXPECT_EQ(Told(incomplete.problems), Texts{L"7 [Channel 2 - Settings] RTPW 1 the section is missing"});
    folder.Write("a.w90", "; certificate\n[w(t90)]\nRTPW=24.5\n");
    ProbeFile standAlone(folder.Name("a.w90"));
    EXPECT_EQ(standAlone.Read(L"W(T90)", conversion).probe, (ProbeEntry{L"w(t90)", 2, CONV_WT90, true}));
}

TEST_F(ProbeFileTest, RefusesToReadWhatIsNoRecordAndLeavesTheConversionAsItWas) {
    Host(std::string(hostFile) + "[R]\nConversionType=two\n");
    ProbeFile file(Path());
    const auto platform = std::make_shared<Scripted::ScriptedPlatform>();
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_CVD);
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, 99.5);
    EXPECT_EQ(ErrorOf([&] { (void)file.Read(L"Z", conversion); }), L"1 [Z] ");
    EXPECT_EQ(ErrorOf([&] { (void)file.Read(L"Instrument", conversion); }), L"2 [Instrument] ");
    EXPECT_EQ(ErrorOf([&] { (void)file.Read(L"R", conversion); }), L"3 [R] two");
    EXPECT_EQ(SettingsAs<CQuorCVD>(conversion)->Coefficients(CVD_R0), 99.5);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(ProbeFileTest, WhatIsMissingHasTheDefaultOfTheTypeAndIsToldKeyByKey) {
    Host(Replaced(Replaced(hostFile, "Coefficients2=1.5\n", ""), "3.9083E-3", "3,9083E-3"));
    ProbeFile file(Path());
    const auto platform = std::make_shared<Scripted::ScriptedPlatform>();
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_CVD);
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_DELTA, 7.0);
    const ReadOutcome outcome = file.Read(L"P", conversion);
    EXPECT_FALSE(outcome.IsWhole());
    EXPECT_EQ(
        Told(outcome.problems),
        (Texts{L"14 [P - Settings] Coefficients1 3 \"3,9083E-3\" is not a number; the decimal separator is a "
               L"point",
               L"9 [P - Settings] Coefficients2 2 the key is missing"}));
    EXPECT_EQ(SettingsAs<CQuorCVD>(conversion)->Coefficients(CVD_R0), 100.0);
    EXPECT_EQ(SettingsAs<CQuorCVD>(conversion)->Coefficients(CVD_DELTA), 0.0)
        << "a coefficient of the probe that was there before would be a wrong temperature";
    EXPECT_TRUE(platform->Messages().empty()) << "the host is told, not the user";
}

TEST_F(ProbeFileTest, OfARefusedRecordTheConversionHasTheTypeAlone) {
    Host(Replaced(hostFile, "NumCoefficients=4", "NumCoefficients=-4"));
    ProbeFile file(Path());
    const auto platform = std::make_shared<Scripted::ScriptedPlatform>();
    CQuorConversion conversion(platform);
    const ReadOutcome outcome = file.Read(L"P", conversion);
    EXPECT_EQ(Told(outcome.problems),
              Texts{L"11 [P - Settings] NumCoefficients 6 the value -4 is not accepted"});
    EXPECT_EQ(conversion.ConversionType(), CONV_CVD);
    EXPECT_EQ(SettingsAs<CQuorCVD>(conversion)->Coefficients(CVD_R0), 0.0);
    EXPECT_TRUE(platform->Messages().empty());
}

TEST_F(ProbeFileTest, ACountBelowZeroIsRefusedToWhereAnotherKeyIsMissingAndGivesNothingOfTheProbeBefore) {
    const std::string text = Replaced(Replaced(hostFile, "NumCoefficients=4", "NumCoefficients=-4"),
                                      "UsePolynomial=", "UsedPolynomial=");
    Host(text);
    ProbeFile file(Path());
    const auto platform = std::make_shared<Scripted::ScriptedPlatform>();
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_CVD);
    const auto cvd = SettingsAs<CQuorCVD>(conversion);
    cvd->SetCoefficients(CVD_R0, 99.5); // of another probe
    ReadOutcome outcome = file.Read(L"P", conversion);
    ASSERT_EQ(outcome.problems.size(), 2U);
    EXPECT_EQ(outcome.problems[0].key, L"NumCoefficients");
    EXPECT_EQ(outcome.problems[0].kind, PROBLEM_VALUE_REFUSED);
    EXPECT_EQ(outcome.problems[1].key, L"UsePolynomial");
    EXPECT_TRUE(platform->Messages().empty());
    EXPECT_EQ(cvd->NumCoefficients(), 4);
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 0.0);
    cvd->SetCoefficients(CVD_ALPHA, 0.0039);
    EXPECT_THROW(static_cast<void>(file.WriteChanges(L"P", conversion, outcome.record)), ProbeFileError);
    EXPECT_EQ(File(), text);
}

TEST_F(ProbeFileTest, ALastCarriageReturnBelongsToItsValueInTheRecordAsReadToo) {
    const std::string text = "[P]\r\nVersion=1.0\r\nConversionType=2\r\n[P - Settings]\r\nVersion=1.0\r\n"
                             "NumCoefficients=2\r\nUsePolynomial=True\r\nCoefficients0=100\r\n"
                             "Coefficients1=0.0039\r";
    Host(text);
    ProbeFile file(Path());
    CQuorConversion conversion;
    ReadOutcome outcome = file.Read(L"P", conversion);
    EXPECT_FALSE(outcome.IsWhole());
    EXPECT_FALSE(outcome.record.IsChanged(conversion));
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, 100.5);
    EXPECT_TRUE(file.WriteChanges(L"P", conversion, outcome.record).empty());
    EXPECT_EQ(File(), Replaced(text, "=100\r", "=100.5\r"));
}

TEST_F(ProbeFileTest, AMinusZeroThatSettingsKeepAsTheirZeroIsNoProblem) {
    Host("[W]\nVersion=1.0\nConversionType=14\n[W - Settings]\nVersion=1.0\nRTPW=-0\n");
    ProbeFile file(Path());
    CQuorConversion conversion;
    EXPECT_TRUE(file.Read(L"W", conversion).IsWhole());
    file.Copy(L"W", L"W 2");
    EXPECT_TRUE(file.Read(L"W 2", conversion).IsWhole());
}

TEST_F(ProbeFileTest, AnUnknownTypeIsTold) {
    Host("[S]\nConversionType=77\n");
    ProbeFile file(Path());
    CQuorConversion conversion;
    EXPECT_EQ(Told(file.Read(L"S", conversion).problems),
              Texts{L"2 [S] ConversionType 4 77 is no conversion type"});
    EXPECT_EQ(conversion.ConversionType(), 77);
}

TEST_F(ProbeFileTest, WritesOnlyTheLinesWithOtherValues) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion conversion;
    ASSERT_TRUE(file.Read(L"P", conversion).IsWhole());
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, 100.0123);
    file.Write(L"P", conversion);
    EXPECT_EQ(File(), Replaced(hostFile, "100.0 ;", "100.0123 ;"));
    EXPECT_TRUE(conversion.Changed()) << "only the host clears it";
}

TEST_F(ProbeFileTest, AProbeOfAnotherTypeTakesThePlaceOfTheOldSettings) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_WT90);
    SettingsAs<CQuorWT90>(conversion)->SetRTPW(24.75);
    file.Write(L"P", conversion);
    EXPECT_EQ(File(),
              "; the laboratory's file\n[Instrument]\nChannels=8\n\n[P]\nVersion=1.0\nConversionType=14\n\n"
              "[P - Settings]\nVersion=1.0\nRTPW=24.75\n\n"
              "[Q]\nVersion=1.0\nConversionType=14\n[Q - Settings]\nVersion=1.0\nRTPW=25.5\n");
    EXPECT_EQ(file.Find(L"P")->type, CONV_WT90);
}

TEST_F(ProbeFileTest, AProbeTakesThePlaceOfSettingsWhoseTypeCannotBeRead) {
    Host("[R]\nConversionType=two\n[R - Settings]\nCoefficients0=100\n[R - Settings - Low Range]\nx=1\n");
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_WT90);
    file.Write(L"R", conversion);
    EXPECT_EQ(File(), "[R]\nConversionType=14\nVersion=1.0\n[R - Settings]\nVersion=1.0\nRTPW=0\n");
}

TEST_F(ProbeFileTest, AFileWhoseLinesEndInACarriageReturnAloneIsToldByACheckAndStays) {
    const std::string text = "; Rig 4\r[P]\rConversionType=10\r";
    Host(text);
    ProbeFile file(Path());
    EXPECT_TRUE(file.Probes().empty());
    EXPECT_EQ(Told(file.Check()),
              Texts{L"1 []  15 the line goes on after a carriage return (CR), and what follows is not "
                    L"read; a line ends in a line feed (LF or CR LF)"});
    EXPECT_EQ(File(), text);
}

TEST_F(ProbeFileTest, ARecordThatIsWrittenWithFewerCoefficientsKeepsTheOthersAndIsInOrder) {
    ProbeFile file(Path(), ProbeFile::Opening::OrNew);
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_POLYNOMIAL);
    const auto polynomial = SettingsAs<CQuorPolynomial>(conversion);
    polynomial->SetOrder(6);
    polynomial->SetCoefficients(1, 1.0);
    polynomial->SetCoefficients(5, 0.25);
    file.Write(L"P", conversion);
    polynomial->SetOrder(4);
    file.Write(L"P", conversion);
    EXPECT_EQ(File(), "[P]\nVersion=1.0\nConversionType=4\n\n[P - Settings]\nVersion=1.0\nOrder=4\n"
                      "Coefficients0=0\nCoefficients1=1\nCoefficients2=0\nCoefficients3=0\n"
                      "Coefficients4=0\nCoefficients5=0.25\nCoefficients6=0\n");
    const auto problems = file.Check();
    EXPECT_EQ(Told(problems), Texts{L"7 [P - Settings] Order 121 4 leaves out these values, which are not 0: "
                                    L"Coefficients5"});
    EXPECT_TRUE(problems.front().IsWarning());
}

TEST_F(ProbeFileTest, CreatesAFileWithTheFirstProbe) {
    EXPECT_THROW(ProbeFile file(Path()), QuorError);
    ProbeFile file(Path(), ProbeFile::Opening::OrNew);
    EXPECT_TRUE(file.Probes().empty());
    EXPECT_EQ(file.Check(), std::vector<ProbeProblem>{});
    EXPECT_FALSE(std::filesystem::exists(folder.Path("host.ini")));
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_OHMS);
    file.Write(L"R", conversion);
    EXPECT_EQ(File(), "[R]\nVersion=1.0\nConversionType=10\n");
    EXPECT_EQ(file.Probes(), (std::vector<ProbeEntry>{{L"R", 1, CONV_OHMS, false}}));
}

TEST_F(ProbeFileTest, WritesManyTogetherOrNone) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion good;
    good.SetConversionType(CONV_OHMS);
    CQuorConversion bad;
    bad.SetConversionType(EQuorConversionType{40000}); // no file holds such a code
    try {
        file.Write({{L"A", good}, {L"B", bad}});
        FAIL() << "nothing was raised";
    } catch (const ProbeFileError& error) {
        EXPECT_EQ(error.Code(), PROBE_CANNOT_BE_WRITTEN);
        EXPECT_EQ(error.Section(), L"B");
        ASSERT_NE(error.Cause(), nullptr);
        EXPECT_EQ(error.Cause()->Number(), QuorIniFile::ERR_OVERFLOW);
        EXPECT_EQ(error.Number(), QuorIniFile::ERR_OVERFLOW);
        EXPECT_EQ(error.Description(), Path() + L": [B]: the record cannot be written: Overflow");
    }
    EXPECT_EQ(File(), hostFile);
    file.Write({{L"A", good}, {L"B", good}});
    EXPECT_EQ(File(), std::string(hostFile) +
                          "\n[A]\nVersion=1.0\nConversionType=10\n\n[B]\nVersion=1.0\nConversionType=10\n");
}

TEST_F(ProbeFileTest, ProbesToWriteCanBeSortedAndHoldNoTemporary) {
    using Conversion = decltype(ProbeToWrite::conversion);
    EXPECT_FALSE((std::is_constructible_v<Conversion, CQuorConversion>));
    EXPECT_TRUE((std::is_constructible_v<Conversion, const CQuorConversion&>));
    ASSERT_TRUE(std::is_move_assignable_v<ProbeToWrite>);
    CQuorConversion ohms;
    ohms.SetConversionType(CONV_OHMS);
    CQuorConversion volts;
    volts.SetConversionType(CONV_VOLTS);
    std::vector<ProbeToWrite> probes{{L"B", volts}, {L"A", ohms}};
    std::ranges::sort(probes, {}, &ProbeToWrite::section);
    ProbeFile file(Path(), ProbeFile::Opening::OrNew);
    file.Write(probes);
    EXPECT_EQ(File(), "[A]\nVersion=1.0\nConversionType=10\n\n[B]\nVersion=1.0\nConversionType=11\n");
}

TEST_F(ProbeFileTest, WritesManyStopsAtTheFirstOneThatCannotBeWritten) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion ohms;
    ohms.SetConversionType(CONV_OHMS);
    EXPECT_EQ(ErrorOf([&] {
                  file.Write({{L"A", ohms}, {L"Instrument", ohms}, {L"b\nc", ohms}});
              }),
              L"14 [Instrument] ");
    EXPECT_EQ(File(), hostFile);
}

TEST_F(ProbeFileTest, WritesNoTwoProbesIntoOneSection) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion a;
    a.SetConversionType(CONV_OHMS);
    CQuorConversion b;
    b.SetConversionType(CONV_WT90);
    EXPECT_EQ(ErrorOf([&] { file.Write({{L"New", a}, {L"new", b}}); }), L"7 [new] ");
    EXPECT_EQ(ErrorOf([&] { file.Write({{L"P", a}, {L"P", a}}); }), L"7 [P] ");
    EXPECT_EQ(File(), hostFile);
}

TEST_F(ProbeFileTest, TakesOverNoSettingsThatHaveLostTheirProbe) {
    const std::string text = std::string(hostFile) + "[X - Settings - Low Range]\nNumCoefficients=2\n";
    Host(text);
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_OHMS);
    EXPECT_EQ(ErrorOf([&] { file.Write(L"x", conversion); }), L"9 [x] X - Settings - Low Range");
    EXPECT_EQ(ErrorOf([&] { file.Rename(L"P", L"X"); }), L"9 [X] X - Settings - Low Range");
    EXPECT_EQ(ErrorOf([&] { file.Copy(L"P", L"X"); }), L"9 [X] X - Settings - Low Range");
    EXPECT_EQ(ErrorOf([&] {
                  file.Write({{L"Y - Settings - Z", conversion}, {L"Y", conversion}});
              }),
              L"9 [Y] Y - Settings - Z");
    EXPECT_EQ(File(), text);
}

TEST_F(ProbeFileTest, AProbeWithoutANameTakesOverNoSettingsEither) {
    const std::string text = "[ - Settings]\nRTPW=1 ; the rig's\n";
    Host(text);
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_WT90);
    EXPECT_EQ(ErrorOf([&] { file.Write(L"", conversion); }), L"9 []  - Settings");
    EXPECT_EQ(File(), text);
}

TEST_F(ProbeFileTest, AProbeMayBeRenamedToTheNameThatItsOwnSectionLooksLikeSettingsOf) {
    Host("[X - Settings - A]\nConversionType=14\n[X - Settings - A - Settings]\nRTPW=25.5\n");
    ProbeFile file(Path());
    file.Rename(L"X - Settings - A", L"X");
    EXPECT_EQ(File(), "[X]\nConversionType=14\n[X - Settings]\nRTPW=25.5\n");
}

TEST_F(ProbeFileTest, AProbeWithoutSettingsDoesNotGetTheNameOfASectionThatIsCalledLikeItsSettings) {
    const std::string text = "[P]\nConversionType=10\n[P - Settings]\nOfTheHost=1\n";
    Host(text);
    ProbeFile file(Path());
    EXPECT_EQ(ErrorOf([&] { file.Rename(L"P", L"p - settings"); }), L"7 [p - settings] ");
    EXPECT_EQ(File(), text);
    file.Rename(L"P", L"P - Notes");
    EXPECT_EQ(File(), Replaced(text, "[P]", "[P - Notes]"));
}

TEST_F(ProbeFileTest, WritesNothingThatNoFileGivesBack) {
    Host(hostFile);
    ProbeFile file(Path());
    const auto isRefused = [&](const CQuorConversion& conversion, RecordAsRead& record) {
        EXPECT_FALSE(ProbeFile::IsConsistent(conversion));
        EXPECT_EQ(ErrorOf([&] { file.Write(L"New", conversion); }), L"15 [New] ");
        EXPECT_EQ(ErrorOf([&] { static_cast<void>(file.WriteChanges(L"P", conversion, record)); }),
                  L"15 [P] ");
        EXPECT_EQ(File(), hostFile);
    };
    CQuorConversion conversion;
    RecordAsRead record = file.Read(L"P", conversion).record;
    EXPECT_TRUE(ProbeFile::IsConsistent(conversion));
    try {
        SettingsAs<CQuorCVD>(conversion)->SetNumCoefficients(-1);
    } catch (const QuorError&) { // it is stored all the same
    }
    isRefused(conversion, record);

    Host("[P]\nConversionType=5\n");
    file.Reload();
    record = file.Read(L"P", conversion).record;
    Host(hostFile);
    SettingsAs<CQuorThermistor>(conversion)->SetConvType(EThermistorConvType{1}); // the other
    isRefused(conversion, record);
}

TEST_F(ProbeFileTest, WritesAMinusZeroThatSettingsHold) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_WT90);
    const auto settings = SettingsAs<CQuorWT90>(conversion);
    settings->SetRTPW(25.5);
    settings->SetRTPW(-0.0);
    EXPECT_TRUE(ProbeFile::IsConsistent(conversion));
    file.Write(L"New", conversion);
    EXPECT_NE(File().find("RTPW=-0\n"), std::string::npos) << File();
}

TEST_F(ProbeFileTest, AProbeWithoutSettingsGetsAnotherCaseBesideAHostsSection) {
    const std::string text = "[P]\nConversionType=10\n\n[P - Settings]\nColour=red\n";
    Host(text);
    ProbeFile file(Path());
    file.Rename(L"P", L"p");
    EXPECT_EQ(File(), Replaced(text, "[P]", "[p]"));
}

TEST_F(ProbeFileTest, NewSettingsOfEachTypeAreGivenBackByAFile) {
    for (const TypeInfo& type : Types()) {
        CQuorConversion conversion;
        conversion.SetConversionType(type.code);
        EXPECT_TRUE(ProbeFile::IsConsistent(conversion)) << type.code;
    }
}

TEST_F(ProbeFileTest, AFailureOfTheFileIsRaisedAsTheStoreRaisesIt) {
    Host(hostFile);
    Support::InterceptedFiles files;
    ProbeFile file(Path(), files);
    CQuorConversion conversion;
    RecordAsRead record = file.Read(L"P", conversion).record;
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, 100.5);
    const auto numberOf = [](const auto& call) {
        try {
            call();
            return 0;
        } catch (const ProbeFileError& error) {
            return -static_cast<int>(error.Code());
        } catch (const QuorError& error) {
            return static_cast<int>(error.Number());
        }
    };
    files.onCall = [](std::string_view call) { return call == "Write" ? ENOSPC : 0; };
    EXPECT_EQ(numberOf([&] { file.Write(L"P", conversion); }), QuorIniFile::ERR_DISK_FULL);
    EXPECT_EQ(File(), hostFile);
    files.onCall = [](std::string_view) { return 0; };
    std::filesystem::remove(folder.Path("host.ini"));
    EXPECT_EQ(numberOf([&] { static_cast<void>(file.WriteChanges(L"P", conversion, record)); }),
              QuorIniFile::ERR_FILE_NOT_FOUND);
    EXPECT_FALSE(std::filesystem::exists(folder.Path("host.ini")));
}

TEST_F(ProbeFileTest, AFileThatIsNotThereYetHasNoTextNoSectionsAndNoProbes) {
    ProbeFile file(Path(), ProbeFile::Opening::OrNew);
    EXPECT_FALSE(file.Exists());
    EXPECT_EQ(file.Text(), "");
    EXPECT_TRUE(file.Sections().empty());
    EXPECT_TRUE(file.Probes().empty());
    EXPECT_TRUE(file.Check().empty());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_OHMS);
    file.Edit([&] {
        file.Write(L"P", conversion);
        EXPECT_TRUE(file.Exists()) << "what was written for it counts";
        EXPECT_EQ(file.Text(), "[P]\nVersion=1.0\nConversionType=10\n");
        EXPECT_EQ(file.Sections(), std::vector<std::wstring>{L"P"});
        EXPECT_EQ(file.Read(L"p", conversion).probe, (ProbeEntry{L"P", 1, CONV_OHMS}));
    });
    EXPECT_EQ(file.Text(), File());
}

TEST_F(ProbeFileTest, WritesIntoNoSectionThatIsAnotherOnes) {
    Host(std::string(hostFile) + "[New - Settings]\nx=1\n");
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_OHMS);
    EXPECT_EQ(ErrorOf([&] { file.Write(L"Instrument", conversion); }), L"14 [Instrument] ");
    EXPECT_EQ(ErrorOf([&] { file.Write(L"a\nb", conversion); }), L"6 [a\nb] ");
    EXPECT_EQ(ErrorOf([&] { file.Write(L"p - settings - X", conversion); }), L"8 [p - settings - X] p");
    EXPECT_EQ(ErrorOf([&] { file.Write(L"New", conversion); }), L"9 [New] New - Settings");
    EXPECT_EQ(File(), std::string(hostFile) + "[New - Settings]\nx=1\n");
}

TEST_F(ProbeFileTest, AStandAloneFileTakesItsOwnTypeAlone) {
    ProbeFile file(folder.Name("a.w90"), ProbeFile::Opening::OrNew);
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    EXPECT_EQ(ErrorOf([&] { file.Write(L"W(T90)", conversion); }), L"12 [W(T90)] CONV_CVD");
    conversion.SetConversionType(CONV_WT90);
    file.Write(L"W(T90)", conversion);
    EXPECT_EQ(folder.Read("a.w90"), "[W(T90)]\nVersion=1.0\nRTPW=0\n");
}

TEST_F(ProbeFileTest, AStandAloneRecordIsRemovedWithItsRanges) {
    const std::string text = "; certificate 17\n[ITS-90]\nVersion=1.0\n[ITS-90 - High Range]\nx=1\n"
                             "[its-90 - Low Range]\ny=1\n[ITS-90 notes]\nz=1\n";
    folder.Write("prt.i90", text);
    ProbeFile file(folder.Name("prt.i90"));
    file.Remove(L"ITS-90");
    EXPECT_EQ(folder.Read("prt.i90"), "; certificate 17\n[ITS-90 notes]\nz=1\n");
}

TEST_F(ProbeFileTest, AStandAloneRecordTakesNoProbeOfAHostAlong) {
    const std::string text = "[ITS-90]\nVersion=1.0\n[ITS-90 - B]\nConversionType=10\n";
    folder.Write("prt.i90", text);
    ProbeFile file(folder.Name("prt.i90"));
    EXPECT_EQ(ErrorOf([&] { file.Remove(L"ITS-90"); }), L"10 [ITS-90] ITS-90 - B");
    EXPECT_EQ(folder.Read("prt.i90"), text);
}

TEST_F(ProbeFileTest, AStandAloneRecordKeepsItsNameAndNoOtherProbeGetsIt) {
    const std::string text = "[ITS-90]\nVersion=1.0\n[ITS-90 - High Range]\nx=1\n";
    folder.Write("prt.i90", text);
    ProbeFile file(folder.Name("prt.i90"));
    EXPECT_EQ(ErrorOf([&] { file.Rename(L"ITS-90", L"Foo"); }), L"12 [Foo] ITS-90");
    EXPECT_EQ(folder.Read("prt.i90"), text);
    const std::string host = "[R]\nConversionType=10\n";
    folder.Write("host.i90", host);
    ProbeFile other(folder.Name("host.i90"));
    EXPECT_EQ(ErrorOf([&] { other.Rename(L"R", L"its-90"); }), L"12 [its-90] R");
    EXPECT_EQ(folder.Read("host.i90"), host);
}

TEST_F(ProbeFileTest, RenamesAProbeWithItsSettings) {
    Host(hostFile);
    ProbeFile file(Path());
    file.Rename(L"p", L"PRT-1188");
    EXPECT_EQ(File(), Replaced(Replaced(hostFile, "[P]", "[PRT-1188]"), "[P - S", "[PRT-1188 - S"));
    file.Rename(L"PRT-1188", L"prt-1188");
    EXPECT_EQ(file.Probes().front().section, L"prt-1188");
}

TEST_F(ProbeFileTest, RenamesSeveralProbesAtOnceOrNone) {
    using Names = std::vector<std::pair<std::wstring, std::wstring>>;
    Host(hostFile);
    ProbeFile file(Path());
    const auto error = [&](const Names& names) { return ErrorOf([&] { file.Rename(names); }); };
    EXPECT_EQ(error({{L"P", L"A"}, {L"Z", L"B"}}), L"1 [Z] ");
    EXPECT_EQ(error({{L"P", L"A"}, {L"Q", L"a"}}), L"7 [a] ");
    EXPECT_EQ(error({{L"P", L"A"}, {L"Q", L"Instrument"}}), L"7 [Instrument] ");
    EXPECT_EQ(error({{L"P", L"A"}, {L"p", L"B"}}), L"7 [p] ");
    EXPECT_EQ(error({{L"P", L"q"}, {L"Q", L"q"}}), L"7 [q] ") << "Q keeps its name, in another case";
    EXPECT_EQ(error({{L"P", L"A"}, {L"Q", L"A - Settings"}}), L"8 [A - Settings] A");
    EXPECT_EQ(error({{L"P", L"A - Settings"}, {L"Q", L"A"}}), L"9 [A] A - Settings");
    EXPECT_EQ(File(), hostFile);
    file.Rename(Names{});
    EXPECT_EQ(File(), hostFile);
    file.Rename({{L"p", L"Q"}, {L"Q", L"P"}});
    EXPECT_EQ(File(),
              "; the laboratory's file\n[Instrument]\nChannels=8\n\n"
              "[Q]\nVersion=1.0\nConversionType=2\n\n"
              "[Q - Settings]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=False\n"
              "Coefficients0=100.0 ; ohms\nCoefficients1=3.9083E-3\nCoefficients2=1.5\nCoefficients3=0\n\n"
              "[P]\nVersion=1.0\nConversionType=14\n[P - Settings]\nVersion=1.0\nRTPW=25.5\n");
}

TEST_F(ProbeFileTest, ANameThatIsTakenIsRefused) {
    Host(hostFile);
    ProbeFile file(Path());
    EXPECT_EQ(ErrorOf([&] { file.Rename(L"P", L"q"); }), L"7 [q] ");
    EXPECT_EQ(ErrorOf([&] { file.Rename(L"P", L"Instrument"); }), L"7 [Instrument] ");
    EXPECT_EQ(ErrorOf([&] { file.Rename(L"P", L"Q - Settings - P"); }), L"8 [Q - Settings - P] Q");
    EXPECT_EQ(ErrorOf([&] { file.Rename(L"P", L"x]\n"); }), L"6 [x]\n] ");
    EXPECT_EQ(ErrorOf([&] { file.Rename(L"Z", L"A"); }), L"1 [Z] ");
    EXPECT_EQ(File(), hostFile);
}

TEST_F(ProbeFileTest, RemovesAProbeWithItsSettings) {
    Host(hostFile);
    ProbeFile file(Path());
    file.Remove(L"P");
    EXPECT_EQ(File(), "; the laboratory's file\n[Instrument]\nChannels=8\n\n"
                      "[Q]\nVersion=1.0\nConversionType=14\n[Q - Settings]\nVersion=1.0\nRTPW=25.5\n");
    EXPECT_EQ(file.Probes().size(), 1U);
    EXPECT_EQ(ErrorOf([&] { file.Remove(L"P"); }), L"1 [P] ");
    EXPECT_EQ(ErrorOf([&] { file.Remove(L"Instrument"); }), L"2 [Instrument] ");
}

TEST_F(ProbeFileTest, RemovesSeveralProbesOrNone) {
    const std::string theirs = "[O - Settings]\nLamp=1\n";
    Host(std::string(hostFile) + "[O]\nConversionType=10\n" + theirs);
    const std::string before = File();
    ProbeFile file(Path());
    EXPECT_EQ(ErrorOf([&] { file.Remove(std::vector<std::wstring>{L"P", L"Other", L"Q"}); }), L"1 [Other] ");
    EXPECT_EQ(File(), before);
    file.Remove({L"p", L"O", L"Q"});
    EXPECT_EQ(File(), "; the laboratory's file\n[Instrument]\nChannels=8\n\n" + theirs);
}

TEST_F(ProbeFileTest, ASectionThatIsCalledLikeSettingsOfAProbeWithoutAnyIsTheHosts) {
    const std::string theirs = "[P - Settings]\nChannel=4\n[P - Settings - Low Range]\nx=1\n";
    const std::string text = "[P]\nVersion=1.0\nConversionType=10\n" + theirs;
    Host(text);
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    EXPECT_EQ(ErrorOf([&] { file.Write(L"P", conversion); }), L"9 [P] P - Settings");
    EXPECT_EQ(File(), text);
    conversion.SetConversionType(CONV_VOLTS);
    file.Write(L"P", conversion);
    EXPECT_EQ(File(), "[P]\nVersion=1.0\nConversionType=11\n" + theirs);
    file.Rename(L"P", L"Q");
    EXPECT_EQ(File(), "[Q]\nVersion=1.0\nConversionType=11\n" + theirs);
    file.Rename(L"Q", L"q");
    file.Remove(L"q");
    EXPECT_EQ(File(), theirs);
}

TEST_F(ProbeFileTest, AProbeGetsSettingsAndLosesThemAgainWithItsType) {
    Host("[P]\nVersion=1.0\nConversionType=10\n");
    ProbeFile file(Path());
    CQuorConversion ohms;
    ohms.SetConversionType(CONV_OHMS);
    CQuorConversion wt90;
    wt90.SetConversionType(CONV_WT90);
    const std::string record = "[P]\nVersion=1.0\nConversionType=";
    for (int i = 0; i < 2; ++i) {
        file.Write(L"P", wt90);
        EXPECT_EQ(File(), record + "14\n\n[P - Settings]\nVersion=1.0\nRTPW=0\n");
        file.Write(L"P", ohms);
        EXPECT_EQ(File(), record + "10\n");
    }
}

TEST_F(ProbeFileTest, WhatStandsBesideARecordOfAnUnknownTypeGoesWithIt) {
    Host("[S]\nConversionType=77\n[S - Settings]\nx=1\n[T]\nConversionType=two\n[T - "
         "Settings]\nx=1\n[Host]\n");
    ProbeFile file(Path());
    file.Remove(L"S");
    file.Remove(L"T");
    EXPECT_EQ(File(), "[Host]\n");
}

TEST_F(ProbeFileTest, AProbeThatSharesItsSectionWithAnotherOneStays) {
    const std::string text = "[A]\nConversionType=14\n[A - Settings]\nConversionType=10\n";
    Host(text);
    ProbeFile file(Path());
    EXPECT_EQ(ErrorOf([&] { file.Remove(L"A"); }), L"10 [A] A - Settings");
    EXPECT_EQ(File(), text);
}

TEST_F(ProbeFileTest, CopiesAProbeWithinTheFileAndFromAnother) {
    Host(hostFile);
    folder.Write("a.w90", "[W(T90)]\nRTPW=24.5\n");
    ProbeFile file(Path());
    file.Copy(L"Q", L"Q2");
    const std::string copied =
        std::string(hostFile) +
        "\n[Q2]\nVersion=1.0\nConversionType=14\n\n[Q2 - Settings]\nVersion=1.0\nRTPW=25.5\n";
    EXPECT_EQ(File(), copied);
    ProbeFile other(folder.Name("a.w90"));
    file.CopyFrom(other, L"W(T90)", L"q2");
    EXPECT_EQ(File(), copied.substr(0, copied.size() - 5) + "24.5\n");
    EXPECT_EQ(ErrorOf([&] { file.CopyFrom(other, L"W(T90)", L"P"); }), L"11 [P] CONV_CVD");
}

TEST_F(ProbeFileTest, CopiesNoProbeThatCannotBeReadWholly) {
    const std::string text = Replaced(hostFile, "RTPW=25.5", "RTPW=25,5");
    Host(text);
    ProbeFile file(Path());
    try {
        file.Copy(L"Q", L"Q2");
        FAIL() << "nothing was raised";
    } catch (const ProbeFileError& error) {
        EXPECT_EQ(error.Code(), PROBE_INCOMPLETE);
        EXPECT_EQ(
            Told(error.Problems()),
            Texts{L"23 [Q - Settings] RTPW 3 \"25,5\" is not a number; the decimal separator is a point"});
    }
    EXPECT_EQ(File(), text);
}

TEST_F(ProbeFileTest, WritesChangesIntoWhatOthersHaveWrittenAndTellsConflicts) {
    Host(hostFile);
    CQuorConversion conversion;
    RecordAsRead record = ProbeFile(Path()).Read(L"P", conversion).record;
    EXPECT_EQ(record.Section(), L"P");
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, 100.5);
    const std::string theirs = Replaced(hostFile, "Coefficients2=1.5", "Coefficients2=1.6");
    Host(theirs);
    ProbeFile now(Path());
    EXPECT_TRUE(now.WriteChanges(L"P", conversion, record).empty());
    EXPECT_EQ(File(), Replaced(theirs, "100.0 ;", "100.5 ;"));

    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_DELTA, 1.7);
    const auto conflicts = now.WriteChanges(L"P", conversion, record);
    ASSERT_EQ(conflicts.size(), 1U);
    EXPECT_EQ(conflicts[0].section, L"P - Settings");
    EXPECT_EQ(conflicts[0].key, L"Coefficients2");
    EXPECT_EQ(conflicts[0].read, Value(1.5));
    EXPECT_EQ(conflicts[0].theirs, Value(1.6));
    EXPECT_EQ(conflicts[0].ours, Value(1.7));
    EXPECT_EQ(File(), Replaced(theirs, "100.0 ;", "100.5 ;"));
}

TEST_F(ProbeFileTest, TwoWritersOfOneProbeMayWriteTheirChangesInTurnAsOftenAsTheyLike) {
    Host(hostFile);
    ProbeFile ourFile(Path());
    ProbeFile theirFile(Path());
    CQuorConversion ours;
    CQuorConversion theirs;
    RecordAsRead ourRecord = ourFile.Read(L"P", ours).record;
    RecordAsRead theirRecord = theirFile.Read(L"P", theirs).record;
    std::string expected = hostFile;
    std::string r0 = "100.0 ;";
    std::string delta = "Coefficients2=1.5";
    for (int round = 1; round <= 3; ++round) {
        SettingsAs<CQuorCVD>(ours)->SetCoefficients(CVD_R0, 100.0 + round);
        EXPECT_TRUE(ourFile.WriteChanges(L"P", ours, ourRecord).empty());
        expected = Replaced(expected, r0, std::to_string(100 + round) + " ;");
        r0 = std::to_string(100 + round) + " ;";
        EXPECT_EQ(File(), expected);

        SettingsAs<CQuorCVD>(theirs)->SetCoefficients(CVD_DELTA, 1.5 + round);
        EXPECT_TRUE(theirFile.WriteChanges(L"P", theirs, theirRecord).empty());
        expected = Replaced(expected, delta, "Coefficients2=" + std::to_string(1 + round) + ".5");
        delta = "Coefficients2=" + std::to_string(1 + round) + ".5";
        EXPECT_EQ(File(), expected) << "neither writes the other's value back";

        EXPECT_TRUE(ourFile.WriteChanges(L"P", ours, ourRecord).empty());
        EXPECT_EQ(File(), expected) << "nothing has changed since";
    }
}

TEST_F(ProbeFileTest, AValueThatOthersHaveWrittenBetweenTwoWritesOfOursIsAConflictWithTheSecond) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion conversion;
    RecordAsRead record = file.Read(L"P", conversion).record;
    const auto write = [&](double r0) {
        SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, r0);
        return file.WriteChanges(L"P", conversion, record);
    };
    EXPECT_TRUE(write(100.5).empty());
    const std::string theirs = Replaced(hostFile, "100.0 ;", "100.75 ;");
    Host(theirs);
    for (const double again : {101.0, 102.0}) { // a conflict changes nothing of what counts as read
        const auto conflicts = write(again);
        ASSERT_EQ(conflicts.size(), 1U);
        EXPECT_EQ(conflicts[0].read, Value(100.5));
        EXPECT_EQ(conflicts[0].theirs, Value(100.75));
        EXPECT_EQ(conflicts[0].ours, Value(again));
        EXPECT_EQ(File(), theirs);
    }
    EXPECT_TRUE(write(100.5).empty()) << "nothing of ours has changed since the last write";
    EXPECT_EQ(File(), theirs);
}

TEST_F(ProbeFileTest, AValueThatGetsBackTheOneThatWasReadIsAChangeOnceAnotherOneWasWritten) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion conversion;
    RecordAsRead record = file.Read(L"P", conversion).record;
    EXPECT_FALSE(record.IsChanged(conversion));
    for (const double r0 : {100.5, 100.0, 100.5}) {
        SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, r0);
        EXPECT_TRUE(record.IsChanged(conversion));
        EXPECT_TRUE(file.WriteChanges(L"P", conversion, record).empty());
        EXPECT_FALSE(record.IsChanged(conversion));
        EXPECT_EQ(file.Read(L"P", conversion).problems.size(), 0U);
        EXPECT_EQ(SettingsAs<CQuorCVD>(conversion)->Coefficients(CVD_R0), r0);
    }
    conversion.SetConversionType(CONV_WT90);
    EXPECT_TRUE(record.IsChanged(conversion));
    EXPECT_TRUE(RecordAsRead().IsChanged(conversion));
}

TEST_F(ProbeFileTest, ChangesOfAProbeThatWasRenamedMeanwhileAreWrittenUnderItsNewName) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion conversion;
    RecordAsRead record = file.Read(L"P", conversion).record;
    file.Rename(L"P", L"New");
    const std::string renamed = File();
    for (const double r0 : {100.5, 100.75}) {
        SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, r0);
        EXPECT_TRUE(file.WriteChanges(L"New", conversion, record).empty());
    }
    EXPECT_EQ(File(), Replaced(renamed, "100.0 ;", "100.75 ;"));
}

TEST_F(ProbeFileTest, ChangesOfAProbeThatWasWrittenWholeAreThoseSinceThen) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_WT90);
    file.Write(L"W", conversion);
    RecordAsRead record = file.Record(L"W");
    SettingsAs<CQuorWT90>(conversion)->SetRTPW(25.5);
    EXPECT_TRUE(file.WriteChanges(L"W", conversion, record).empty());
    EXPECT_EQ(File(), std::string(hostFile) + "\n[W]\nVersion=1.0\nConversionType=14\n\n[W - Settings]\n"
                                              "Version=1.0\nRTPW=25.5\n");
}

TEST_F(ProbeFileTest, RecordsAreTheSameWhenTheSameWouldBeReadFromThem) {
    Host(hostFile);
    ProbeFile file(Path());
    const RecordAsRead record = file.Record(L"P");
    const auto isSameIn = [&](const std::string& text) {
        Host(text);
        file.Reload();
        return record.HasSameValues(file.Record(L"p")) && file.Record(L"P").HasSameValues(record);
    };
    EXPECT_TRUE(
        isSameIn(Replaced(Replaced(hostFile, "[P]", "[p]"), "Coefficients3=0", "Coefficients3 = 0.0")));
    EXPECT_FALSE(isSameIn(Replaced(hostFile, "Coefficients3=0", "Coefficients3=1")));
    EXPECT_FALSE(isSameIn(Replaced(hostFile, "Coefficients3=0\n", "")));
    EXPECT_FALSE(isSameIn(Replaced(hostFile, "ConversionType=2", "ConversionType=10")));
    EXPECT_FALSE(record.HasSameValues(RecordAsRead()));
    EXPECT_TRUE(RecordAsRead().HasSameValues(RecordAsRead()));
}

TEST_F(ProbeFileTest, ALineThatNothingReadsMakesARecordAnotherOne) {
    const auto areSame = [&](const std::string& text, const std::string& from, const std::string& to) {
        Host(text);
        ProbeFile file(Path());
        const RecordAsRead before = file.Record(L"P");
        Host(Replaced(text, from, to));
        file.Reload();
        return before.HasSameValues(file.Record(L"P"));
    };
    const std::string unreadable = Replaced(hostFile, "3.9083E-3", "n/a");
    EXPECT_FALSE(areSame(unreadable, "n/a", "0,0039083"));
    EXPECT_TRUE(areSame(unreadable, "100.0 ; ohms", "1E2 ; of 2026"));
    const std::string refused = Replaced(hostFile, "NumCoefficients=4", "NumCoefficients=-4");
    EXPECT_FALSE(areSame(refused, "Coefficients2=1.5", "Coefficients2=1.6"));
    const std::string noType = Replaced(hostFile, "ConversionType=2", "ConversionType=cvd");
    EXPECT_FALSE(areSame(noType, "=cvd", "=pt100"));
    EXPECT_FALSE(areSame(noType, "Coefficients2=1.5", "Coefficients2=1.6"));
    EXPECT_FALSE(areSame(hostFile, "Coefficients3=0\n", "Coefficients3=0\nCertificate=A-17\n"));
    EXPECT_FALSE(areSame(hostFile, "Coefficients3=0\n", "Coefficients3=0\nnot a key\n"));
    const std::string its90 = "[P]\nConversionType=0\n[P - Settings]\nRTPW=n/a\n"
                              "[P - Settings - Low Range]\nRange=99\nCoefficients0=1\n"
                              "[P - Settings - High Range]\nRange=11\nCoefficients0=2\n";
    EXPECT_FALSE(areSame(its90, "Coefficients0=1", "Coefficients0=3"));
    EXPECT_FALSE(areSame(its90, "Coefficients0=2", "Coefficients0=3"));
    EXPECT_TRUE(areSame(its90, "[P - Settings - High", "[p - settings - High"));
}

TEST_F(ProbeFileTest, TheRecordOfATypeThatCannotBeReadIsThatOfNoConversion) {
    Host(Replaced(hostFile, "ConversionType=2", "ConversionType=cvd"));
    ProbeFile file(Path());
    RecordAsRead record = file.Record(L"p");
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    EXPECT_TRUE(record.IsChanged(conversion));
    EXPECT_EQ(ErrorOf([&] { (void)file.WriteChanges(L"P", conversion, record); }), L"11 [P] ?");
}

TEST_F(ProbeFileTest, ASnapshotStaysAsTheFileWas) {
    Host(hostFile);
    ProbeFile file(Path());
    const auto before = ProbeFile::Snapshot(file);
    file.Remove(L"Q");
    EXPECT_EQ(before->Probes().size(), 2U);
    EXPECT_EQ(before->Path(), Path());
    EXPECT_TRUE(before->Record(L"P").HasSameValues(file.Record(L"P")));
    EXPECT_THROW(before->Remove(L"Q"), QuorIniFile::QuorError);
    EXPECT_EQ(file.Probes().size(), 1U);
    folder.Write("a.w90", "[W(T90)]\nVersion=1.0\nRTPW=25\n");
    ProbeFile standAlone(folder.Name("a.w90"));
    EXPECT_TRUE(
        ProbeFile::Snapshot(standAlone)->Record(L"W(T90)").HasSameValues(standAlone.Record(L"W(T90)")));
}

TEST_F(ProbeFileTest, AProblemSaysInPhrasesWhatItSaysInItsText) {
    Host(Replaced(Replaced(Replaced(hostFile, "3.9083E-3", "0.0039 # alpha"), "100.0 ;", "-1 ;"),
                  "Coefficients3=0\n", "Colour=red\n"));
    const std::vector<ProbeProblem> problems = ProbeFile(Path()).Check();
    ASSERT_EQ(problems.size(), 4U);
    for (const ProbeProblem& problem : problems)
        EXPECT_EQ(Describe(problem.phrases), problem.text);
    const auto phrasesOf = [&](EProbeProblem kind) {
        return std::find_if(problems.begin(), problems.end(),
                            [kind](const ProbeProblem& problem) { return problem.kind == kind; })
            ->phrases;
    };
    EXPECT_EQ(phrasesOf(PROBLEM_KEY_MISSING), (std::vector<ProbePhrase>{{PROBE_TEXT_KEY_MISSING}}));
    EXPECT_EQ(
        phrasesOf(PROBLEM_VALUE_UNREADABLE),
        (std::vector<ProbePhrase>{{PROBE_TEXT_NO_NUMBER, {L"0.0039 # alpha"}}, {PROBE_TEXT_COMMENT_SIGN}}));
    EXPECT_EQ(phrasesOf(WARNING_R0_NOT_POSITIVE),
              (std::vector<ProbePhrase>{{PROBE_TEXT_NOT_ABOVE_ZERO, {L"R0", L"-1"}}}));
    EXPECT_EQ(phrasesOf(PROBLEM_UNKNOWN_KEY), (std::vector<ProbePhrase>{{PROBE_TEXT_UNKNOWN_KEY}}));
}

TEST_F(ProbeFileTest, AnErrorHasThePhraseOfItsCodeWithWhatElseItConcerns) {
    Host(hostFile);
    try {
        ProbeFile(Path()).Rename(L"Q", L"P - Settings - X");
        FAIL();
    } catch (const ProbeFileError& error) {
        EXPECT_EQ(error.Phrase(), (ProbePhrase{PROBE_TEXT_NAME_OF_SETTINGS, {L"P"}}));
        EXPECT_EQ(error.Description(), Path() + L": [P - Settings - X]: " + Describe({error.Phrase()}));
    }
}

TEST_F(ProbeFileTest, AFewerAndThenAGreaterCountConflictWithNothingThatStoodThereBefore) {
    const std::string text = "[P]\nVersion=1.0\nConversionType=4\n[P - Settings]\nVersion=1.0\nOrder=5\n"
                             "Coefficients0=1\nCoefficients1=2\nCoefficients2=3\nCoefficients3=4\n"
                             "Coefficients4=5\nCoefficients5=6\nCoefficients6=7\n";
    Host(text);
    ProbeFile file(Path());
    CQuorConversion conversion;
    RecordAsRead record = file.Read(L"P", conversion).record;
    const auto polynomial = SettingsAs<CQuorPolynomial>(conversion);
    const auto writes = [&](std::int16_t order) {
        polynomial->SetOrder(order);
        return file.WriteChanges(L"P", conversion, record).empty();
    };
    EXPECT_TRUE(writes(4));
    EXPECT_EQ(File(), Replaced(text, "Order=5", "Order=4"));
    EXPECT_TRUE(writes(6)); // which has kept one coefficient beyond the count
    EXPECT_EQ(File(), Replaced(Replaced(text, "Order=5", "Order=6"), "Coefficients6=7", "Coefficients6=0"));
}

TEST_F(ProbeFileTest, ChangesOfARecordThatCouldNotBeReadWhollyLeaveWhatCouldNotBeRead) {
    const std::string text =
        Replaced(Replaced(hostFile, "3.9083E-3", "0,0039083"), "Coefficients2=1.5\n", "");
    Host(text);
    ProbeFile file(Path());
    CQuorConversion conversion;
    ReadOutcome outcome = file.Read(L"P", conversion);
    EXPECT_EQ(outcome.problems.size(), 2U);
    EXPECT_TRUE(file.WriteChanges(L"P", conversion, outcome.record).empty());
    EXPECT_EQ(File(), text) << "nothing has changed";
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, 100.5);
    EXPECT_TRUE(file.WriteChanges(L"P", conversion, outcome.record).empty());
    EXPECT_EQ(File(), Replaced(text, "100.0 ;", "100.5 ;"));
    for (const double alpha : {0.0039083, 0.0}) { // 0 is what a read gives for it
        SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_ALPHA, alpha);
        EXPECT_TRUE(file.WriteChanges(L"P", conversion, outcome.record).empty());
        EXPECT_EQ(File(), Replaced(Replaced(text, "100.0 ;", "100.5 ;"), "0,0039083",
                                   alpha == 0.0 ? "0" : "0.0039083"));
    }
}

TEST_F(ProbeFileTest, AKeyThatCouldNotBeReadAndThatOthersHaveMendedStaysAsTheyHaveWrittenIt) {
    const std::string text = Replaced(hostFile, "3.9083E-3", "0,0039083");
    Host(text);
    ProbeFile file(Path());
    CQuorConversion conversion;
    RecordAsRead record = file.Read(L"P", conversion).record;
    SettingsAs<CQuorCVD>(conversion)->SetCoefficients(CVD_R0, 100.5);
    Host(hostFile);
    EXPECT_TRUE(file.WriteChanges(L"P", conversion, record).empty());
    EXPECT_EQ(File(), Replaced(hostFile, "100.0 ;", "100.5 ;"));
}

TEST_F(ProbeFileTest, ChangesOfARecordThatWasRefusedAreNotWrittenIntoItAndTheKeyToBlameIsTold) {
    const std::string text = "[P]\nVersion=1.0\nConversionType=20\n[P - Settings]\nVersion=1.0\nTCType=4\n"
                             "NumCoefficients=16\nCoefficients0=1.5\nCoefficients1=2.5\n";
    Host(text);
    ProbeFile file(Path());
    CQuorConversion conversion;
    ReadOutcome outcome = file.Read(L"P", conversion);
    const auto settings = SettingsAs<CQuorTCTypePoly>(conversion);
    EXPECT_EQ(settings->Coefficients(0), 0.0);
    EXPECT_TRUE(file.WriteChanges(L"P", conversion, outcome.record).empty()) << "there is none";
    settings->SetCoefficients(0, 9.5);
    for (const char* const present : {text.c_str(), "[P]\nConversionType=20\n"}) {
        Host(present); // the second is somebody else's
        try {
            static_cast<void>(file.WriteChanges(L"P", conversion, outcome.record));
            FAIL();
        } catch (const ProbeFileError& error) {
            EXPECT_EQ(error.Code(), PROBE_INCOMPLETE);
            EXPECT_EQ(error.Section(), L"P");
            ASSERT_FALSE(error.Problems().empty());
            EXPECT_EQ(error.Problems(), outcome.problems);
            EXPECT_EQ(error.Problems()[0].section + L" " + error.Problems()[0].key,
                      L"P - Settings NumCoefficients");
            EXPECT_EQ(error.Messages(), outcome.messages);
        }
        EXPECT_EQ(File(), present);
    }
    EXPECT_TRUE(outcome.record.IsChanged(conversion));
    file.Write(L"P", conversion); // all of it
    EXPECT_TRUE(file.Read(L"P", conversion).IsWhole());
    EXPECT_EQ(SettingsAs<CQuorTCTypePoly>(conversion)->Coefficients(0), 9.5);
}

TEST_F(ProbeFileTest, ARangeThatTheHostsConversionRefusesIsAProblemAndIsNotLost) {
    const std::string text = "[P]\nVersion=1.0\nConversionType=0\n[P - Settings]\nVersion=1.0\nRTPW=25.5\n"
                             "[P - Settings - High Range]\nVersion=1.0\nRange=11\nCoefficients0=-0.0001\n"
                             "[P - Settings - Low Range]\nVersion=1.0\nRange=1\nCoefficients0=-0.0002\n"
                             "Coefficients1=-1E-05\nCoefficients2=0\nCoefficients3=0\nCoefficients4=0\n"
                             "Coefficients5=0\nCoefficients6=0\n";
    Host(text);
    ProbeFile file(Path());
    const auto platform = std::make_shared<Scripted::ScriptedPlatform>();
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_ITS90);
    const auto its90 = SettingsAs<CQuorITS90>(conversion);
    its90->LowRange()->SetMinRange(ITS90_RANGE_4); // an instrument without the ranges below
    ReadOutcome outcome = file.Read(L"P", conversion);
    ASSERT_EQ(outcome.problems.size(), 1U);
    EXPECT_EQ(outcome.problems[0].kind, PROBLEM_RECORD_REFUSED);
    EXPECT_EQ(outcome.problems[0].section, L"P - Settings - Low Range");
    EXPECT_EQ(outcome.problems[0].key, L"Range");
    EXPECT_EQ(outcome.problems[0].line, 13U);
    EXPECT_TRUE(platform->Messages().empty());
    its90->SetRTPW(25.48318);
    EXPECT_THROW(static_cast<void>(file.WriteChanges(L"P", conversion, outcome.record)), ProbeFileError);
    EXPECT_EQ(File(), text);

    its90->LowRange()->SetMinRange(ITS90_RANGE_1);
    outcome = file.Read(L"P", conversion);
    EXPECT_TRUE(outcome.IsWhole());
    its90->SetRTPW(25.48318);
    EXPECT_TRUE(file.WriteChanges(L"P", conversion, outcome.record).empty());
    EXPECT_EQ(File(), Replaced(text, "25.5", "25.48318"));
}

TEST_F(ProbeFileTest, NoRangeShowsACoefficientOfTheProbeThatWasReadBefore) {
    const auto its90 = [](const std::string& name, const std::string& low) {
        return "[" + name + "]\nVersion=1.0\nConversionType=0\n[" + name + " - Settings]\nRTPW=25.5\n[" +
               name + " - Settings - High Range]\nRange=-1\n[" + name + " - Settings - Low Range]\n" + low;
    };
    Host(its90("P", "Range=3\nCoefficients0=1\nCoefficients1=2\nCoefficients2=3\n") +
         its90("Q", "Range=4\nCoefficients0=4\nCoefficients1=5\n") + its90("R", "Range=-1\n"));
    ProbeFile file(Path());
    CQuorConversion conversion;
    EXPECT_TRUE(file.Read(L"P", conversion).IsWhole());
    const auto settings = SettingsAs<CQuorITS90>(conversion);
    const auto low = settings->LowRange();
    EXPECT_TRUE(file.Read(L"Q", conversion).IsWhole());
    EXPECT_EQ(conversion.Settings(), settings); // the one that the host holds
    low->SetRange(ITS90_RANGE_3);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_A), 4);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_B), 5);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_C1), 0);
    EXPECT_TRUE(file.Read(L"R", conversion).IsWhole());
    EXPECT_FALSE(conversion.Changed());
    low->SetRange(ITS90_RANGE_5);
    EXPECT_EQ(low->Coefficients(ITS90_LOW_A), 0);
}

TEST_F(ProbeFileTest, NoGreaterCountShowsAValueOfTheProbeThatWasReadBefore) {
    Host("[P]\nConversionType=4\n[P - Settings]\nOrder=5\nCoefficients0=1\nCoefficients1=2\nCoefficients2=3\n"
         "Coefficients3=4\nCoefficients4=5\nCoefficients5=6\n"
         "[Q]\nConversionType=4\n[Q - Settings]\nOrder=4\nCoefficients0=7\nCoefficients1=8\nCoefficients2=9\n"
         "Coefficients3=10\nCoefficients4=11\n"
         "[R]\nConversionType=8\n[R - Settings]\nNumPoints=2\nTemperatures0=1\nVoltages0=2\n"
         "Temperatures1=3\nVoltages1=4\n"
         "[S]\nConversionType=8\n[S - Settings]\nNumPoints=1\nTemperatures0=5\nVoltages0=6\n");
    ProbeFile file(Path());
    CQuorConversion conversion;
    EXPECT_TRUE(file.Read(L"P", conversion).IsWhole());
    EXPECT_TRUE(file.Read(L"Q", conversion).IsWhole());
    const auto polynomial = SettingsAs<CQuorPolynomial>(conversion);
    polynomial->SetOrder(5);
    EXPECT_EQ(polynomial->Coefficients(POLY_A4), 11);
    EXPECT_EQ(polynomial->Coefficients(POLY_A5), 0);

    EXPECT_TRUE(file.Read(L"R", conversion).IsWhole());
    EXPECT_TRUE(file.Read(L"S", conversion).IsWhole());
    const auto table = SettingsAs<CQuorTCTable>(conversion);
    table->SetNumPoints(2);
    EXPECT_EQ(table->Voltages(0), 6);
    EXPECT_EQ(table->Temperatures(1), 0);
    EXPECT_EQ(table->Voltages(1), 0);
}

TEST_F(ProbeFileTest, AReadKeepsTheFormatOfACoefficientThatTheProbeDoesNotHave) {
    Host("[P]\nConversionType=2\n[P - Settings]\nNumCoefficients=3\nUsePolynomial=False\nCoefficients0=100\n"
         "Coefficients1=0.0039\nCoefficients2=1.5\n");
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_CVD);
    const auto cvd = SettingsAs<CQuorCVD>(conversion);
    cvd->SetCoefficients(3, 0.1);
    cvd->SetValueFormat(3, L"0.000");
    EXPECT_TRUE(file.Read(L"P", conversion).IsWhole());
    cvd->SetNumCoefficients(4);
    EXPECT_EQ(cvd->Coefficients(3), 0);
    EXPECT_EQ(cvd->ValueFormat(3), L"0.000");
}

TEST_F(ProbeFileTest, ADefaultRangeThatTheHostsConversionRefusesIsNoneAndNotTheOneOfTheProbeBefore) {
    Host("[P]\nConversionType=17\n[P - Settings]\nRTPW=25.5\n[P - Settings - High Range]\nRange=-1\n"
         "[P - Settings - Low Range]\nRange=4\nCoefficients0=1\nCoefficients1=2\n"
         "[Q]\nConversionType=17\n[Q - Settings]\nRTPW=100\n[Q - Settings - High Range]\nRange=-1\n"
         "[Q - Settings - Low Range]\nRange=5\nCoefficients0=3\nCoefficients1=4\n");
    ProbeFile file(Path());
    const auto platform = std::make_shared<Scripted::ScriptedPlatform>();
    CQuorConversion conversion(platform);
    conversion.SetConversionType(CONV_ITSSR5);
    const auto its90 = SettingsAs<CQuorITS90>(conversion);
    its90->LowRange()->SetMinRange(ITS90_RANGE_1);
    its90->LowRange()->SetMaxRange(ITS90_RANGE_4);
    EXPECT_TRUE(file.Read(L"P", conversion).IsWhole());
    EXPECT_EQ(its90->LowRange()->Coefficients(ITS90_LOW_A), 1);

    ReadOutcome outcome = file.Read(L"Q", conversion);
    ASSERT_EQ(outcome.problems.size(), 1U);
    EXPECT_EQ(outcome.problems[0].kind, PROBLEM_RECORD_REFUSED);
    EXPECT_EQ(outcome.problems[0].section, L"Q - Settings - Low Range");
    EXPECT_TRUE(platform->Messages().empty());
    EXPECT_EQ(its90->RTPW(), 0);
    EXPECT_EQ(its90->LowRange()->Range(), ITS90_NORANGE);
    EXPECT_FALSE(outcome.record.IsChanged(conversion));
    EXPECT_TRUE(file.WriteChanges(L"Q", conversion, outcome.record).empty());
    its90->LowRange()->SetRange(ITS90_RANGE_4);
    EXPECT_EQ(its90->LowRange()->Coefficients(ITS90_LOW_A), 0);
}

TEST_F(ProbeFileTest, ReadingAThermistorSetsTheDirectionThatAHostHasTurned) {
    Host("[P]\nVersion=1.0\nConversionType=5\n[P - Settings]\nVersion=1.0\nConvType=0\nNumCoefficients=1\n"
         "Coefficients0=0.001\n");
    ProbeFile file(Path());
    CQuorConversion conversion;
    conversion.SetConversionType(CONV_THERMISTORT_R);
    const auto thermistor = SettingsAs<CQuorThermistor>(conversion);
    const auto direction = thermistor->ConvType();
    thermistor->SetConvType(direction == TCT_THRMT_R ? TCT_THRMR_T : TCT_THRMT_R);
    EXPECT_TRUE(file.Read(L"P", conversion).IsWhole());
    EXPECT_EQ(thermistor->ConvType(), direction);
    EXPECT_EQ(thermistor->Coefficients(0), 0.001);
}

TEST_F(ProbeFileTest, ChangesOfAnotherTypeThanWasReadAreRefused) {
    Host(hostFile);
    ProbeFile file(Path());
    CQuorConversion conversion;
    RecordAsRead record = file.Read(L"P", conversion).record;
    conversion.SetConversionType(CONV_WT90);
    RecordAsRead none;
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(file.WriteChanges(L"P", conversion, record)); }),
              L"11 [P] CONV_CVD");
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(file.WriteChanges(L"P", conversion, none)); }), L"2 [P] ");
    EXPECT_EQ(none.Section(), L"");
    EXPECT_EQ(File(), hostFile);
}

TEST_F(ProbeFileTest, WritesUponWhatAnotherProgramHasSavedMeanwhile) {
    Host(hostFile);
    ProbeFile file(Path());
    ASSERT_EQ(file.Probes().size(), 2U);
    EXPECT_FALSE(file.Changed());
    Host(std::string("; theirs\n") + hostFile);
    EXPECT_TRUE(file.Changed());
    EXPECT_EQ(file.Probes().front().line, 5U) << "all reads see the text that was loaded";
    file.Remove(L"Q");
    EXPECT_FALSE(file.Changed());
    EXPECT_EQ(File().substr(0, 9), "; theirs\n");
    EXPECT_EQ(file.Probes().front().line, 6U);
    Host(hostFile);
    file.Reload();
    EXPECT_EQ(file.Probes().size(), 2U);
}

TEST_F(ProbeFileTest, ANameOutOfTheProbesMeansThatProbeAlsoWhenAnotherProgramHasSaved) {
    const std::string p1 = "[P1]\nVersion=1.0\nConversionType=10\n";
    const std::string p2 = "[P2]\nConversionType=11\n";
    const auto afterTheyHaveSaved = [&](const std::string& theirs, const auto& call) {
        Host(p1 + p2);
        ProbeFile file(Path());
        const std::vector<ProbeEntry>& probes = file.Probes();
        Host(theirs);
        call(file, std::wstring_view(probes[0].section));
        return File();
    };
    const auto remove = [](ProbeFile& file, std::wstring_view section) { file.Remove(section); };
    const auto rename = [](ProbeFile& file, std::wstring_view section) { file.Rename(section, L"N"); };
    const auto toTheName = [](ProbeFile& file, std::wstring_view section) { file.Rename(L"P2", section); };
    const auto copy = [](ProbeFile& file, std::wstring_view section) { file.Copy(L"P3", section); };
    const auto change = [](ProbeFile& file, std::wstring_view section) {
        CQuorConversion conversion;
        RecordAsRead record = file.Record(section);
        conversion.SetConversionType(CONV_OHMS);
        EXPECT_TRUE(file.WriteChanges(section, conversion, record).empty());
    };
    EXPECT_EQ(afterTheyHaveSaved(p2 + p1, remove), p2);
    EXPECT_EQ(afterTheyHaveSaved("[P9]\nConversionType=10\n" + p1 + p2, remove),
              "[P9]\nConversionType=10\n" + p2);
    EXPECT_EQ(afterTheyHaveSaved(p2 + p1, rename), p2 + "[N]\nVersion=1.0\nConversionType=10\n");
    EXPECT_EQ(afterTheyHaveSaved(p2, toTheName), "[P1]\nConversionType=11\n");
    EXPECT_EQ(afterTheyHaveSaved(p2 + "[P3]\nConversionType=10\n", copy),
              p2 + "[P3]\nConversionType=10\n\n[P1]\nVersion=1.0\nConversionType=10\n");
    EXPECT_EQ(afterTheyHaveSaved(p2 + p1, change), p2 + p1);
    for (const auto& call : {std::function<void(ProbeFile&, std::wstring_view)>(remove), {rename}}) {
        EXPECT_EQ(ErrorOf([&] { static_cast<void>(afterTheyHaveSaved(p2, call)); }), L"1 [P1] ");
        EXPECT_EQ(File(), p2);
    }
}

TEST_F(ProbeFileTest, AllProbesCanBeRemovedByTheirNamesInOneEdit) {
    Host(hostFile);
    ProbeFile file(Path());
    file.Edit([&] {
        while (!file.Probes().empty())
            file.Remove(file.Probes().back().section);
    });
    EXPECT_EQ(File(), "; the laboratory's file\n[Instrument]\nChannels=8\n");
}

TEST_F(ProbeFileTest, SeveralStepsOfAnEditAreSavedTogetherOrNotAtAll) {
    Host(hostFile);
    ProbeFile file(Path());
    EXPECT_EQ(ErrorOf([&] {
                  file.Edit([&] {
                      file.Rename(L"P", L"A");
                      EXPECT_EQ(file.Probes().front().section, L"A");
                      file.Remove(L"Z");
                  });
              }),
              L"1 [Z] ");
    EXPECT_EQ(File(), hostFile);
    EXPECT_EQ(file.Probes().front().section, L"P");
}

TEST_F(ProbeFileTest, SavesAnotherFileAndStaysWithItsOwn) {
    Host(hostFile);
    folder.Write("real.ini", "old");
    std::filesystem::create_symlink("real.ini", folder.Path("link.ini"));
    ProbeFile file(Path());
    file.SaveAs(folder.Name("link.ini"));
    EXPECT_EQ(folder.Read("real.ini"), hostFile);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link.ini")));
    file.Remove(L"Q");
    EXPECT_EQ(folder.Read("real.ini"), hostFile);
    EXPECT_NE(File(), hostFile);
}

TEST_F(ProbeFileTest, TellsAFileThatMayNotBeWritten) {
    Host(hostFile);
    ProbeFile file(Path());
    EXPECT_FALSE(file.IsReadOnly());
    std::filesystem::permissions(folder.Path("host.ini"), std::filesystem::perms::owner_read);
    EXPECT_TRUE(file.IsReadOnly());
}

TEST_F(ProbeFileTest, ChecksAFileAndTellsEachProblemWithLineSectionKeyAndKind) {
    Host("[Host]\nx=1\nX=2\n"
         "[A]\nConversionType=2\n"
         "[B]\nConversionType=14 # W(T90)\n"
         "[C]\nConversionType=14\nColour=red\n[C - Settings]\nRTPW=25.5\nrubbish\n[C - Settings]\n"
         "[D]\nConversionType=99\n"
         "[E\nConversionType=2\n"
         "[F]\nConversionType=2\n[F - Settings]\nNumCoefficients=-5\nUsePolynomial=False\n");
    EXPECT_EQ(
        Told(ProbeFile(Path()).Check()),
        (Texts{
            L"3 [Host] X 9 the key occurs twice; the one in line 2 is read",
            L"4 [A - Settings]  1 the section is missing",
            L"7 [B] ConversionType 3 \"14 # W(T90)\" is not a whole number from -32768 to 32767; a comment "
            L"begins with \";\"",
            L"10 [C] Colour 8 unknown key: a record of this type and size does not hold it",
            L"13 [C - Settings]  12 the line is no key=value",
            L"14 [C - Settings]  10 the section occurs twice; the one in line 11 is read",
            L"16 [D] ConversionType 4 99 is no conversion type",
            L"17 []  11 the header has no \"]\"; nobody can read the record below it",
            L"22 [F - Settings] NumCoefficients 6 the value -5 is not accepted",
        }));
}

TEST_F(ProbeFileTest, ChecksARightFileWithoutAComplaint) {
    Host(hostFile);
    ProbeFile file(Path());
    EXPECT_EQ(file.Check(), std::vector<ProbeProblem>{});
}
