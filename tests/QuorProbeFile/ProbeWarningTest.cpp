#include "QuorProbeFile/ProbeWarning.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeFile.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace QuorProbeFile;

namespace {

using Texts = std::vector<std::wstring>;

/// A record of the type, whose settings stand from line 4 on.
std::string Record(int type, const std::string& settings) {
    return "[P]\nConversionType=" + std::to_string(type) + "\n[P - Settings]\n" + settings;
}

/// A Callendar-Van Dusen record; the values stand from line 6 on.
std::string Cvd(bool isPolynomial, const std::string& r0, const std::string& one, const std::string& two,
                const std::string& three) {
    return Record(2, std::string("NumCoefficients=4\nUsePolynomial=") + (isPolynomial ? "True" : "False") +
                         "\nCoefficients0=" + r0 + "\nCoefficients1=" + one + "\nCoefficients2=" + two +
                         "\nCoefficients3=" + three + "\n");
}

/// An ITS-90 record; its high range stands from line 6 on.
std::string Its90(const std::string& high, const std::string& low) {
    return Record(0,
                  "RTPW=25.5\n[P - Settings - High Range]\n" + high + "[P - Settings - Low Range]\n" + low);
}

class ProbeWarningTest : public testing::Test {
protected:
    /// "line key number text" of each problem of a file with that text.
    [[nodiscard]] Texts Told(const std::string& text) const {
        folder.Write("host.ini", text);
        Texts told;
        for (const ProbeProblem& p : ProbeFile(folder.Name("host.ini")).Check())
            told.push_back(std::to_wstring(p.line) + L" " + p.key + L" " + std::to_wstring(p.kind) + L" " +
                           p.text);
        return told;
    }

    TempFolder folder;
};

} // namespace

TEST_F(ProbeWarningTest, AResistanceIsAboveZero) {
    EXPECT_EQ(Told(Cvd(false, "0", "3.85055E-3", "1.5", "0")),
              Texts{L"6 Coefficients0 101 R0 is 0; limit: above 0"});
    EXPECT_EQ(Told(Record(19, "NumCoefficients=1\nCoefficients0=-100\n")),
              Texts{L"5 Coefficients0 101 R0 is -100; limit: above 0"});
    EXPECT_EQ(Told(Record(1, "IPTS-68 scale=0\nNumCoefficients=5\nCoefficients0=0\nCoefficients1=3.926E-3\n"
                             "Coefficients2=1.4965\nCoefficients3=0\nCoefficients4=0\n")),
              Texts{L"6 Coefficients0 101 R0 is 0; limit: above 0"});
    EXPECT_EQ(Told(Record(14, "RTPW=0\n")), Texts{L"4 RTPW 102 RTPW is 0; limit: above 0"});
    EXPECT_EQ(Told(Record(14, "RTPW=1E-300\n")), Texts{});
    EXPECT_EQ(Told(Record(
                  3, "NumCoefficients=3\nCoefficients0=-2.5\nCoefficients1=-1.5E-4\nCoefficients2=-8E-6\n")),
              Texts{L"5 Coefficients0 102 RTPW is -2.5; limit: above 0"});
    const std::string sr5 =
        "RTPW=0\n[P - Settings - High Range]\nRange=-1\n[P - Settings - Low Range]\nRange=5\n"
        "Coefficients0=-4E-4\nCoefficients1=-3E-5\n";
    EXPECT_EQ(Told(Record(17, sr5)), Texts{L"4 RTPW 102 RTPW is 0; limit: above 0"});
    EXPECT_EQ(Told(Record(0, sr5)), Texts{L"4 RTPW 102 RTPW is 0; limit: above 0"});
}

TEST_F(ProbeWarningTest, EveryNumberIsFinite) {
    EXPECT_EQ(Told(Record(14, "RTPW=NaN\n")), Texts{L"4 RTPW 103 NaN is not finite"});
    EXPECT_EQ(Told(Record(4, "Order=4\nCoefficients0=Infinity\nCoefficients1=2\nCoefficients2=-Infinity\n"
                             "Coefficients3=0\nCoefficients4=0\n")),
              (Texts{L"5 Coefficients0 103 Infinity is not finite",
                     L"7 Coefficients2 103 -Infinity is not finite"}));
    EXPECT_EQ(Told(Record(7, "mV(25C)=NaN\nNumCoefficients=1\nCoefficients0=1\n")),
              Texts{L"4 mV(25C) 103 NaN is not finite"});
    EXPECT_EQ(
        Told(Record(8, "NumPoints=3\nTemperatures0=100\nVoltages0=Infinity\nTemperatures1=NaN\nVoltages1=2\n"
                       "Temperatures2=90\nVoltages2=3\n")),
        (Texts{L"6 Voltages0 103 Infinity is not finite", L"7 Temperatures1 103 NaN is not finite",
               L"9 Temperatures2 105 90 is not above 100, the temperature before it"}));
}

TEST_F(ProbeWarningTest, CoefficientsAreNotAllZero) {
    const Texts atLine7{L"7 Coefficients1 104 all coefficients are 0"};
    EXPECT_EQ(Told(Cvd(false, "100", "0", "0", "0")), atLine7);
    EXPECT_EQ(Told(Cvd(true, "100", "0", "-0.0", "0")), atLine7);
    const Texts atLine6{L"6 Coefficients0 104 all coefficients are 0"};
    EXPECT_EQ(Told(Record(5, "ConvType=0\nNumCoefficients=2\nCoefficients0=0\nCoefficients1=0\n")), atLine6);
    EXPECT_EQ(Told(Record(7, "mV(25C)=1\nNumCoefficients=1\nCoefficients0=0\n")), atLine6);
    EXPECT_EQ(Told(Record(20, "TCType=10\nNumCoefficients=2\nCoefficients0=0\nCoefficients1=0\n")), atLine6);
    EXPECT_EQ(Told(Record(20, "TCType=10\nNumCoefficients=2\nCoefficients0=0\nCoefficients1=1E-9\n")),
              Texts{});
    EXPECT_EQ(Told(Record(20, "TCType=10\nNumCoefficients=0\n")), Texts{}) << "there are none";
    EXPECT_EQ(Told(Record(3, "NumCoefficients=3\nCoefficients0=2.5\nCoefficients1=0\nCoefficients2=0\n")), //
              (Texts{L"6 Coefficients1 104 all coefficients are 0"}));
    EXPECT_EQ(Told(Record(19, "NumCoefficients=1\nCoefficients0=100\n")), Texts{})
        << "R0 is all that it needs";
    EXPECT_EQ(Told(Record(19, "NumCoefficients=2\nCoefficients0=100\nCoefficients1=0\n")), Texts{});
    EXPECT_EQ(Told(Its90("Range=8\nCoefficients0=0\nCoefficients1=0\n",
                         "Range=4\nCoefficients0=-1E-4\nCoefficients1=0\n")),
              Texts{L"7 Coefficients0 104 all coefficients are 0"})
        << "each range has its own";
    EXPECT_EQ(Told(Record(7, "mV(25C)=1\nNumCoefficients=2\nCoefficients0=0\n")),
              Texts{L"3 Coefficients1 2 the key is missing"})
        << "the missing one need not be 0";
}

TEST_F(ProbeWarningTest, TemperaturesOfPointsIncrease) {
    EXPECT_EQ(Told(Record(8, "NumPoints=4\nTemperatures0=100\nVoltages0=1\nTemperatures1=100\nVoltages1=2\n"
                             "Temperatures2=300\nVoltages2=3\nTemperatures3=200\nVoltages3=4\n")),
              (Texts{L"7 Temperatures1 105 100 is not above 100, the temperature before it",
                     L"11 Temperatures3 105 200 is not above 300, the temperature before it"}));
    EXPECT_EQ(Told(Record(8, "NumPoints=2\nTemperatures0=100\nVoltages0=1\nTemperatures1=0\nVoltages1=0\n")),
              Texts{L"7 Temperatures1 105 0 is not above 100, the temperature before it"});
    const std::string scales = "TempScale=C\nOffsetScale=C\n";
    const std::string dc = "Coefficients0=0\nCoefficients1=0\n";
    EXPECT_EQ(
        Told(Record(9, "TCType=4\nNumPoints=3\n" + scales +
                           "Temperatures0=100\nOffsets0=0.4\nTemperatures1=0\nOffsets1=0\nTemperatures2=0\n"
                           "Offsets2=0\n" +
                           dc)),
        Texts{})
        << "points that the probe has not got";
    EXPECT_EQ(Told(Record(9, "TCType=4\nNumPoints=3\n" + scales +
                                 "Temperatures0=0\nOffsets0=0\nTemperatures1=0\nOffsets1=0\nTemperatures2=0\n"
                                 "Offsets2=0\n" +
                                 dc)),
              Texts{})
        << "a new one";
    EXPECT_EQ(
        Told(Record(9, "TCType=4\nNumPoints=3\n" + scales +
                           "Temperatures0=400\nOffsets0=0.4\nTemperatures1=0\nOffsets1=0\nTemperatures2=0\n"
                           "Offsets2=0.1\n" +
                           dc)),
        (Texts{L"10 Temperatures1 105 0 is not above 400, the temperature before it",
               L"12 Temperatures2 105 0 is not above 0, the temperature before it"}));
}

TEST_F(ProbeWarningTest, CoefficientsThatARangeDoesNotHaveAreNotThere) {
    EXPECT_EQ(
        Told(Its90(
            "Range=10\nCoefficients0=-1E-4\nCoefficients1=-9E-6\nCoefficients2=0\ncoefficients3=2E-6 ; d\n",
            "Range=-1\nCoefficients0=-1E-4\n")),
        (Texts{L"6 Range 106 range 10 does not have these coefficients, which are not 0: Coefficients1, "
               L"coefficients3",
               L"12 Range 106 range -1 does not have these coefficients, which are not 0: Coefficients0"}));
    EXPECT_EQ(Told(Its90("Range=10\nCoefficients0=-1E-4\nCoefficients1=0\n", "Range=-1\n")), Texts{});
}

TEST_F(ProbeWarningTest, ValuesThatACountLeavesOutAreNotThere) {
    EXPECT_EQ(Told(Record(7, "mV(25C)=1\nNumCoefficients=1\nCoefficients0=1\nCoefficients1=2 ; old\n"
                             "coefficients2=0\nCOEFFICIENTS10=3\n")),
              Texts{L"5 NumCoefficients 121 1 leaves out these values, which are not 0: Coefficients1, "
                    L"COEFFICIENTS10"});
    EXPECT_EQ(Told(Record(8, "NumPoints=1\nTemperatures0=100\nVoltages0=1\nTemperatures1=200\n"
                             "Voltages1=0\n")),
              Texts{L"4 NumPoints 121 1 leaves out these values, which are not 0: Temperatures1"});
    EXPECT_EQ(Told(Record(4, "Order=4\nCoefficients0=1\nCoefficients1=2\nCoefficients2=0\nCoefficients3=0\n"
                             "Coefficients4=0\nCoefficients5=1E-30\n")),
              Texts{L"4 Order 121 4 leaves out these values, which are not 0: Coefficients5"});
    EXPECT_EQ(Told(Record(7, "mV(25C)=1\nNumCoefficients=1\nCoefficients0=1\nCoefficients01=2\n"
                             "Temperatures1=2\n")),
              (Texts{L"7 Coefficients01 8 unknown key: a record of this type and size does not hold it",
                     L"8 Temperatures1 8 unknown key: a record of this type and size does not hold it"}))
        << "no count leaves out these";
}

namespace {

/// A warning whose limit is an interval, and a record with "~" in the place of its value.
struct SizeCase {
    EProbeProblem kind;
    std::string record;
    double least; ///< as the documents have them
    double most;
    const char* below; ///< texts of values just outside, and of the limits themselves
    const char* least_;
    const char* most_;
    const char* above;
};

std::string With(std::string record, const std::string& value) {
    return record.replace(record.find('~'), 1, value);
}

std::vector<SizeCase> SizeCases() {
    const std::string ipts = "IPTS-68 scale=0\nNumCoefficients=5\nCoefficients0=25\n";
    const std::string htprt = "NumCoefficients=3\nCoefficients0=2.5\n";
    const std::string thermistor = "ConvType=0\nNumCoefficients=4\n";
    const std::string noRange = "Range=-1\n";
    return {
        {WARNING_ALPHA_SIZE, Cvd(false, "100", "~", "1.5", "0"), 0.0037, 0.004, "3.6999E-3", "0.0037",
         "0.004", "0.0040001"},
        {WARNING_ALPHA_SIZE,
         Record(1, ipts + "Coefficients1=~\nCoefficients2=1.5\nCoefficients3=0\nCoefficients4=0\n"), 0.0037,
         0.004, "0.003926083E-3", "0.0037", "0.004", "0.3926"},
        {WARNING_DELTA_SIZE, Cvd(false, "100", "3.85E-3", "~", "0"), 0.75, 3, "0", "0.75", "3", "3.01"},
        {WARNING_DELTA_SIZE,
         Record(1, ipts + "Coefficients1=3.926E-3\nCoefficients2=~\nCoefficients3=0\nCoefficients4=0\n"),
         0.75, 3, "-1.4965", "0.75", "3", "149.65"},
        {WARNING_BETA_SIZE, Cvd(false, "100", "3.85E-3", "1.5", "~"), -0.55, 0.55, "-0.56", "-0.55", "0.55",
         "1.086"},
        {WARNING_CVD_A_SIZE, Cvd(true, "100", "~", "-5.775E-7", "0"), 0.0037, 0.0041, "3.9083E-4", "0.0037",
         "0.0041", "0.39083"},
        {WARNING_CVD_B_SIZE, Cvd(true, "100", "3.9083E-3", "~", "0"), -1.2E-6, -2.8E-7, "-5.775E-6",
         "-1.2E-6", "-2.8E-7", "5.775E-7"},
        {WARNING_CVD_C_SIZE, Cvd(true, "100", "3.9083E-3", "-5.775E-7", "~"), -2.1E-11, 2.1E-11, "-4.183E-11",
         "-2.1E-11", "2.1E-11", "2.2E-11"},
        {WARNING_A4_SIZE,
         Record(1, ipts + "Coefficients1=3.926E-3\nCoefficients2=1.5\nCoefficients3=~\nCoefficients4=0\n"),
         -3E-4, 3E-4, "-4E-4", "-3E-4", "3E-4", "1.16"},
        {WARNING_C4_SIZE,
         Record(1, ipts + "Coefficients1=3.926E-3\nCoefficients2=1.5\nCoefficients3=0\nCoefficients4=~\n"),
         -2.5E-11, 2.5E-11, "-3.6E-7", "-2.5E-11", "2.5E-11", "3E-11"},
        {WARNING_DEVIATION_A_SIZE, Record(3, htprt + "Coefficients1=~\nCoefficients2=-8E-6\n"), -0.08, 0.05,
         "-1.4926", "-0.08", "0.05", "0.051"},
        {WARNING_DEVIATION_A_SIZE, Its90("Range=11\nCoefficients0=~\n", noRange), -0.08, 0.05, "-0.081",
         "-0.08", "0.05", "2.3"},
        {WARNING_DEVIATION_A_SIZE, Its90(noRange, "Range=4\nCoefficients0=~\nCoefficients1=0\n"), -0.08, 0.05,
         "-0.081", "-0.08", "0.05", "25.5"},
        {WARNING_DEVIATION_SIZE, Record(3, htprt + "Coefficients1=-1E-4\nCoefficients2=~\n"), -0.06, 0.06,
         "-8.27", "-0.06", "0.06", "0.061"},
        {WARNING_DEVIATION_SIZE,
         Its90("Range=6\nCoefficients0=-1E-4\nCoefficients1=0\nCoefficients2=0\nCoefficients3=~\n", noRange),
         -0.06, 0.06, "-1.227", "-0.06", "0.06", "0.061"},
        {WARNING_DEVIATION_SIZE,
         Its90(noRange, "Range=1\nCoefficients0=-1E-4\nCoefficients1=0\nCoefficients2=0\nCoefficients3=0\n"
                        "Coefficients4=0\nCoefficients5=0\nCoefficients6=~\n"),
         -0.06, 0.06, "-1.1283713", "-0.06", "0.06", "9"},
        {WARNING_THERMISTOR_A0_SIZE,
         Record(5,
                thermistor + "Coefficients0=~\nCoefficients1=2.3E-4\nCoefficients2=0\nCoefficients3=8E-8\n"),
         -0.006, 0.006, "-6.1E-3", "-0.006", "0.006", "1.129241E-2"},
        {WARNING_THERMISTOR_A1_SIZE,
         Record(5, thermistor + "Coefficients0=1E-3\nCoefficients1=~\nCoefficients2=9\nCoefficients3=8E-8\n"),
         8E-5, 0.001, "2.3E-5", "8E-5", "0.001", "2.3E-3"},
        {WARNING_THERMISTOR_A3_SIZE,
         Record(5,
                thermistor + "Coefficients0=1E-3\nCoefficients1=2.3E-4\nCoefficients2=0\nCoefficients3=~\n"),
         -1E-6, 1E-6, "-8.8E-6", "-1E-6", "1E-6", "8.8E-5"},
        {WARNING_THERMISTOR_B1_SIZE,
         Record(6, "ConvType=1\nNumCoefficients=4\nCoefficients0=-14\nCoefficients1=~\nCoefficients2=-1E5\n"
                   "Coefficients3=-4E6\n"),
         1000, 12000, "479.18", "1000", "12000", "47918"},
        {WARNING_UNKNOWN_CODE, Record(20, "TCType=~\nNumCoefficients=1\nCoefficients0=1E-9\n"), -1, 12, "-2",
         "-1", "12", "13"},
    };
}

} // namespace

TEST_F(ProbeWarningTest, ASizeIsWithinItsLimitsAndTheyBelongToIt) {
    std::set<EProbeProblem> tried;
    for (const SizeCase& one : SizeCases()) {
        const ProbeWarning* const warning = FindWarning(one.kind);
        ASSERT_NE(warning, nullptr);
        SCOPED_TRACE(QuorIniFile::ToUtf8(warning->id) + "\n" + one.record);
        EXPECT_EQ(warning->least, one.least);
        EXPECT_EQ(warning->most, one.most);
        tried.insert(one.kind);
        for (const char* const inside : {one.least_, one.most_})
            EXPECT_EQ(Told(With(one.record, inside)), Texts{});
        for (const char* const outside : {one.below, one.above}) {
            const Texts told = Told(With(one.record, outside));
            ASSERT_EQ(told.size(), 1U) << outside;
            EXPECT_NE(told[0].find(L" " + std::to_wstring(one.kind) + L" "), std::wstring::npos);
        }
    }
    for (const ProbeWarning& warning : Warnings())
        EXPECT_EQ(tried.contains(warning.kind), warning.least < warning.most) << warning.kind;
}

TEST_F(ProbeWarningTest, ASizeIsToldWithItsNameItsValueAndItsLimit) {
    EXPECT_EQ(Told(Cvd(false, "100", "0.385055", "1.5", "0.1")),
              Texts{L"7 Coefficients1 107 ALPHA is 0.385055; limit: 0.0037 to 0.004"});
    EXPECT_EQ(Told(Cvd(true, "100", "3.9083E-3", "-5.775E-7", "-4.183")),
              Texts{L"9 Coefficients3 112 C is -4.183; limit: at most 2.1e-11 in size"});
    EXPECT_EQ(Told(Its90("Range=8\nCoefficients0=-3\nCoefficients1=2\n", "Range=-1\n")),
              (Texts{L"7 Coefficients0 115 a is -3; limit: -0.08 to 0.05",
                     L"8 Coefficients1 116 the coefficient is 2; limit: at most 0.06 in size"}));
}

TEST_F(ProbeWarningTest, ACodeIsToldWithItsLimitsAsNumbersForEveryLanguage) {
    folder.Write("host.ini", Record(20, "TCType=77\nNumCoefficients=1\nCoefficients0=1E-9\n"));
    const std::vector<ProbeProblem> problems = ProbeFile(folder.Name("host.ini")).Check();
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].text, L"TCType is 77; limit: -1 to 12");
    EXPECT_EQ(problems[0].phrases,
              (std::vector<ProbePhrase>{{PROBE_TEXT_OUT_OF_INTERVAL, {L"TCType", L"77", L"-1", L"12"}}}));
}

TEST_F(ProbeWarningTest, TheFormsOfCallendarVanDusenHaveTheirOwnLimits) {
    EXPECT_EQ(Told(Cvd(true, "100", "3.9083E-3", "-5.775E-7", "-4.183E-12")), Texts{});
    EXPECT_EQ(Told(Cvd(false, "100", "3.85055E-3", "1.499786", "0.1086338")), Texts{});
    EXPECT_EQ(Told(Cvd(false, "100", "3.9083E-3", "-5.775E-7", "-4.183E-12")),
              Texts{L"8 Coefficients2 108 DELTA is -5.775e-07; limit: 0.75 to 3"});
    EXPECT_EQ(Told(Cvd(true, "100", "3.85055E-3", "1.499786", "0.1086338")),
              (Texts{L"8 Coefficients2 111 B is 1.499786; limit: -1.2e-06 to -2.8e-07",
                     L"9 Coefficients3 112 C is 0.1086338; limit: at most 2.1e-11 in size"}));
    EXPECT_EQ(Told(Record(2, "NumCoefficients=2\nCoefficients0=100\nCoefficients1=9\n")),
              Texts{L"3 UsePolynomial 2 the key is missing"})
        << "nobody knows which form it is";
}

TEST_F(ProbeWarningTest, SettingsOfAProbeThatIsNotThereAreTold) {
    EXPECT_EQ(Told("[P - Settings]\nRTPW=25.5\n[P - Settings - High Range]\nRange=8\nCoefficients0=-4E-4\n"
                   "[P - Settings - Low Range]\nRange=-1\n[Q]\nConversionType=14\n[q - settings]\nRTPW=25\n"),
              (Texts{L"1  123 these are settings of \"P\", but there is no such probe",
                     L"3  123 these are settings of \"P\", but there is no such probe"}))
        << "a range without coefficients holds nothing that was measured";
    EXPECT_EQ(Told("[P]\nConversonType=14\n[P - Settings]\nrtpw=25\n"),
              Texts{L"3  123 these are settings of \"P\", but there is no such probe"});
    EXPECT_EQ(Told("[P]\nName=Display\n[P - Settings]\nRange=3\nName=x\nVersion=1.0\nCoefficients=4\n"),
              Texts{})
        << "it is the host's";
    EXPECT_EQ(Told("[P]\nConversionType=-1\n[P - Settings]\nRTPW=25\n"), Texts{})
        << "a probe without settings, and what was kept of another type";
}

TEST_F(ProbeWarningTest, SettingsWhoseProbeMayBeTheOneWithABrokenHeaderAreNotToldAsWell) {
    EXPECT_EQ(Told("[P\nConversionType=14\n[P - Settings]\nRTPW=25\n"),
              Texts{L"1  11 the header has no \"]\"; nobody can read the record below it"});
}

TEST_F(ProbeWarningTest, SettingsThatStandTwiceWithoutAProbeAreToldOnceAsThese) {
    EXPECT_EQ(Told("[P - Settings]\nRTPW=25\n[P - Settings]\nRTPW=26\n"),
              (Texts{L"1  123 these are settings of \"P\", but there is no such probe",
                     L"3  10 the section occurs twice; the one in line 1 is read"}));
}

TEST_F(ProbeWarningTest, ANameOfManyPiecesIsCheckedAtOnce) { // by their lengths squared it would be minutes
    std::string name;
    for (int i = 0; i < 100000; ++i)
        name += " - Settings";
    EXPECT_EQ(Told("[" + name + "]\nRTPW=1\n").size(), 1U);
}

TEST_F(ProbeWarningTest, ARecordThatIsRefusedOrHasNoTypeHasNoWarnings) {
    EXPECT_EQ(
        Told(
            Record(3,
                   "NumCoefficients=4\nCoefficients0=0\nCoefficients1=7\nCoefficients2=7\nCoefficients3=7\n"))
            .size(),
        1U);
    EXPECT_EQ(Told("[P]\nConversionType=two\n[P - Settings]\nRTPW=0\n").size(), 1U);
    EXPECT_EQ(Told("[P]\nConversionType=99\n[P - Settings]\nRTPW=0\n").size(), 1U);
}

TEST_F(ProbeWarningTest, AStandAloneFileHasTheSameWarnings) {
    folder.Write("a.w90", "[W(T90)]\nRTPW=0\n");
    const auto problems = ProbeFile(folder.Name("a.w90")).Check();
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0],
              (ProbeProblem{WARNING_RTPW_NOT_POSITIVE, 2, L"W(T90)", L"RTPW", L"RTPW is 0; limit: above 0"}));
    EXPECT_TRUE(problems[0].IsWarning());
    EXPECT_FALSE((ProbeProblem{PROBLEM_INTERRUPTED_SAVE, 0, {}, {}, {}}).IsWarning());
}

TEST_F(ProbeWarningTest, ReadTellsNoWarning) {
    folder.Write("host.ini", Record(14, "RTPW=NaN\n"));
    QuorConversions::CQuorConversion conversion;
    EXPECT_TRUE(ProbeFile(folder.Name("host.ini")).Read(L"P", conversion).IsWhole());
}

TEST(ProbeWarnings, NumbersAndIdsAreDifferent) {
    std::set<std::wstring> ids;
    std::int32_t next = 101;
    for (const ProbeWarning& warning : Warnings()) {
        EXPECT_EQ(warning.kind, next++);
        EXPECT_TRUE(ids.insert(warning.id).second) << QuorIniFile::ToUtf8(warning.id);
        EXPECT_EQ(FindWarning(warning.kind), &warning);
        EXPECT_EQ(FindWarning(warning.id), &warning);
        EXPECT_FALSE(warning.source.empty());
    }
    EXPECT_EQ(next, 124);
    EXPECT_EQ(FindWarning(PROBLEM_KEY_MISSING), nullptr);
    EXPECT_EQ(FindWarning(L"no-such-warning"), nullptr);
}

TEST(ProbeWarnings, TheDocumentListsEachAsTheCodeHasIt) {
    std::ifstream document(QUOR_CHECKS_DOCUMENT);
    std::vector<std::string> rows;
    for (std::string line; std::getline(document, line);)
        if (line.starts_with("| `"))
            rows.push_back(line);
    std::vector<std::string> expected;
    for (const ProbeWarning& w : Warnings())
        expected.push_back(QuorIniFile::ToUtf8(L"| `" + w.id + L"` | " + w.what + L" | " + w.limit + L" | " +
                                               w.source + L" |"));
    EXPECT_EQ(rows, expected);
}
