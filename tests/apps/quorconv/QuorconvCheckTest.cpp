#include "tests/apps/quorconv/Quorconv.h"

#include "QuorIniFile/detail/IniDisk.h"

#include <algorithm>
#include <filesystem>

TEST_F(QuorconvTest, ChecksTheSamplesWithoutAComplaint) {
    std::vector<std::string> arguments{"check"};
    for (const auto& entry : std::filesystem::directory_iterator(QUOR_SAMPLES))
        if (entry.is_regular_file() && entry.path().extension() != ".md" &&
            entry.path().filename().string().front() != '.')
            arguments.push_back(entry.path().string());
    EXPECT_EQ(arguments.size(), 14U);
    ExpectFine(arguments);
}

TEST_F(QuorconvTest, ChecksWhatSavesHaveLeftBesideTheFile) {
    folder.Write("host.ini", "[Host]\nColour=red\n");
    std::string start;
    {
        const QuorIniFile::IniReplacement save(folder.Name("host.ini"));
        const std::string lock = folder.Files().front();
        start = lock.substr(0, lock.rfind('.'));
        ExpectFine({"check", "host.ini"}); // a save that is under way
    }
    folder.Write(start + ".lock", "");
    folder.Write(start + "-1234.tmp", "[Host]\n");
    folder.Write(start + "-5678.kept", "[Host]\n");
    folder.Write(".quor-0-1234.tmp", "of another file");
    const Outcome check = Quorconv({"check", "host.ini"});
    EXPECT_EQ(check.code, 1);
    EXPECT_EQ(check.out, "host.ini: what another program had put in its place is kept as " + start +
                             "-5678.kept\n" + "host.ini: an interrupted save has left " + start +
                             "-1234.tmp\n" + "host.ini: an interrupted save has left " + start + ".lock\n");
    EXPECT_EQ(check.err, "");
}

namespace {

struct BadFile {
    const char* claim;
    const char* file;
    const char* problems; ///< all that is printed
};

const BadFile badFiles[] = {
    {"a missing key stands at the header of its section",
     "[A]\nConversionType=14\n[A - Settings]\nVersion=1.0\n", //
     "host.ini:3: [A - Settings] RTPW: the key is missing\n"},
    {"a missing section is one problem",
     "[A]\nConversionType=2\n", //
     "host.ini:1: [A - Settings] the section is missing\n"},
    {"a value that cannot be read stands at its line", "[A]\nConversionType=14\n[A - Settings]\nRTPW=25,5\n",
     "host.ini:4: [A - Settings] RTPW: \"25,5\" is not a number; the decimal separator is a point\n"},
    {"a decimal comma before a comment is told, whatever the comment says",
     "[A]\nConversionType=14\n[A - Settings]\nRTPW=25,5 ; ohms, at 0.01 C\n",
     "host.ini:4: [A - Settings] RTPW: \"25,5\" is not a number; the decimal separator is a point\n"},
    {"a sign that begins no comment is told",
     "[A]\nConversionType=14 # ITS-90\n", //
     "host.ini:2: [A] ConversionType: \"14 # ITS-90\" is not a whole number from -32768 to 32767; a comment "
     "begins with \";\"\n"},
    {"the same behind a number", "[A]\nConversionType=14\n[A - Settings]\nRTPW=0.00385 # alpha, or ;\n",
     "host.ini:4: [A - Settings] RTPW: \"0.00385 # alpha, or\" is not a number; a comment begins with "
     "\";\"\n"},
    {"a comment without a blank in front of it is told",
     "[A]\nConversionType=14\n[A - Settings]\nRTPW=25.5;ohms\n",
     "host.ini:4: [A - Settings] RTPW: \"25.5;ohms\" is not a number; a comment begins with \";\" after a "
     "blank\n"},
    {"a number that is too large is told", "[A]\nConversionType=14\n[A - Settings]\nRTPW=1E400 ; at 0, 1 C\n",
     "host.ini:4: [A - Settings] RTPW: \"1E400\" is a number that no double can hold: too large, or too "
     "close "
     "to zero\n"},
    {"a number that is too close to zero is told", "[A]\nConversionType=14\n[A - Settings]\nRTPW=-1E-400\n",
     "host.ini:4: [A - Settings] RTPW: \"-1E-400\" is a number that no double can hold: too large, or too "
     "close to zero\n"},
    {"a number that is too large is told also before a sign that begins no comment",
     "[A]\nConversionType=14\n[A - Settings]\nRTPW=1E999 # x\n",
     "host.ini:4: [A - Settings] RTPW: \"1E999\" is a number that no double can hold: too large, or too "
     "close to zero; a comment begins with \";\"\n"},
    {"so is a decimal comma", "[A]\nConversionType=14\n[A - Settings]\nRTPW=25,5#x\n",
     "host.ini:4: [A - Settings] RTPW: \"25,5\" is not a number; the decimal separator is a point; a comment "
     "begins with \";\"\n"},
    {"what is no number in any way is told without advice",
     "[A]\nConversionType=14\n[A - Settings]\nRTPW=1,2,3 # list\n",
     "host.ini:4: [A - Settings] RTPW: \"1,2,3 # list\" is not a number\n"},
    {"unknown keys are told in each section of a record, not in the host's own",
     "[Host]\nColour=red\n[A]\nConversionType=14\nColour=red\n[A - Settings]\nRTPW=25.5\nRTWP=25.6\n",
     "host.ini:5: [A] Colour: unknown key: a record of this type and size does not hold it\n"
     "host.ini:8: [A - Settings] RTWP: unknown key: a record of this type and size does not hold it\n"},
    {"keys and sections that stand twice are told with the line that counts",
     "[A]\nConversionType=14\n[A - Settings]\nRTPW=25.5\nrtpw=25.6\n[a - settings]\nRTPW=1\n",
     "host.ini:5: [A - Settings] rtpw: the key occurs twice; the one in line 4 is read\n"
     "host.ini:6: [A - Settings] the section occurs twice; the one in line 3 is read\n"},
    {"keys and sections of the host that stand twice are told, too: whoever reads them sees the first",
     "[Host]\nColour=red\nSize=1\ncolour=blue\n[Other]\nx=1\n[HOST]\nColour=green\n[Host]\n",
     "host.ini:4: [Host] colour: the key occurs twice; the one in line 2 is read\n"
     "host.ini:7: [Host] the section occurs twice; the one in line 1 is read\n"
     "host.ini:9: [Host] the section occurs twice; the one in line 1 is read\n"},
    {"a line that is no key is told",
     "[A]\nConversionType=14\n[A - Settings]\nRTPW=25.5\nRTPW 25.6\n", //
     "host.ini:5: [A - Settings] the line is no key=value\n"},
    {"a record whose header is broken is told", "[Host\nColour=red\n[A\nConversionType=14\n",
     "host.ini:3: the header has no \"]\"; nobody can read the record below it\n"},
    {"a type that does not exist is told",
     "[A]\nConversionType=99\n", //
     "host.ini:2: [A] ConversionType: 99 is no conversion type\n"},
    {"a type that cannot be read is all that can be told",
     "[A]\nConversionType=two\n[A - Settings]\nRTPW=1\n",
     "host.ini:2: [A] ConversionType: \"two\" is not a whole number from -32768 to 32767\n"},
    {"a count that the class refuses is to blame for the index",
     "[A]\nConversionType=3\n[A - Settings]\nNumCoefficients=4\nCoefficients0=1\nCoefficients1=1\n"
     "Coefficients2=1\nCoefficients3=1\n",
     "host.ini:4: [A - Settings] NumCoefficients: An error occurred while attempting to read settings. "
     "Error: -2147221003 - Index out of range (CQuorHTPRT)\n"},
    {"a count below zero is told, though no key is missing",
     "[A]\nConversionType=2\n[A - Settings]\nNumCoefficients=-5\nUsePolynomial=False\nCoefficients0=1\n",
     "host.ini:4: [A - Settings] NumCoefficients: the value -5 is not accepted\n"},
    {"a value that would be ignored silently is told",
     "[A]\nConversionType=8\n[A - Settings]\nNumPoints=11\n" //
     "Temperatures0=0\nVoltages0=0\nTemperatures1=1\nVoltages1=0\nTemperatures2=2\nVoltages2=0\n"
     "Temperatures3=3\nVoltages3=0\nTemperatures4=4\nVoltages4=0\nTemperatures5=5\nVoltages5=0\n"
     "Temperatures6=6\nVoltages6=0\nTemperatures7=7\nVoltages7=0\nTemperatures8=8\nVoltages8=0\n"
     "Temperatures9=9\nVoltages9=0\n",
     "host.ini:4: [A - Settings] NumPoints: the value 11 is not accepted; 10 would be used\n"},
    {"the other thermistor direction is told",
     "[A]\nConversionType=6\n[A - Settings]\nConvType=0\nNumCoefficients=0\n",
     "host.ini:4: [A - Settings] ConvType: This configuration file does not contain Thermistor R(T) "
     "coefficients. "
     "The conversion type must be changed to T(R) to open this file.\n"},
    {"a range outside the limits is told",
     "[A]\nConversionType=17\n[A - Settings]\nRTPW=25.5\n[A - Settings - High Range]\nRange=-1\n"
     "[A - Settings - Low Range]\nRange=4\nCoefficients0=1\nCoefficients1=1\n",
     "host.ini:8: [A - Settings - Low Range] Range: An error occurred while attempting to read settings. "
     "Error: -2147221002 - ITS-90 range out of range. (CQuorITS90LowRange)\n"},
    {"a file without probes is fine", "[Host]\nColour=red\n", ""},
};

} // namespace

TEST_F(QuorconvTest, ChecksEachRecordAndTellsFileLineSectionAndKey) {
    for (const BadFile& bad : badFiles) {
        SCOPED_TRACE(bad.claim);
        folder.Write("host.ini", bad.file);
        const Outcome run = Quorconv({"check", "host.ini"});
        EXPECT_EQ(run.out, bad.problems);
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.code, *bad.problems == '\0' ? 0 : 1);
        EXPECT_EQ(folder.Read("host.ini"), bad.file);
    }
}

TEST_F(QuorconvTest, ChecksARecordOfTheGreatestCountAndALongSection) {
    std::string file = "[A]\nConversionType=2\n[A - Settings]\nNumCoefficients=32767\nUsePolynomial=False\n"
                       "Coefficients0=100\nCoefficients1=3.85055E-3\nCoefficients2=1.499786\n";
    for (int i = 3; i < 32766; ++i) // the last one is missing
        file += "Coefficients" + std::to_string(i) + "=0\n";
    file += "[B]\nConversionType=10\nlast=1\n";
    for (int i = 0; i < 32767; ++i)
        file += "last" + std::to_string(i % 10) + "=1\n";
    folder.Write("host.ini", file);
    const Outcome run = Quorconv({"check", "host.ini"});
    EXPECT_EQ(run.out.substr(0, run.out.find('\n')),
              "host.ini:3: [A - Settings] Coefficients32766: the key is missing");
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 1 + 1 + 32767);
}

TEST_F(QuorconvTest, ChecksEveryFileAndGoesOnAfterABadOne) {
    folder.Write("a.w90", "[W(T90)]\nRTPW=x\n");
    folder.Write("b.w90", "[RTPW]\nRTPW=25\n");
    folder.Write("c.w90", "\xFF\xFE[");
    folder.Write("d.w90", "[W(T90)]\nRTPW=25\n");
    const Outcome run = Quorconv({"check", "a.w90", "b.w90", "c.w90", "missing.w90", "d.w90"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "a.w90:2: [W(T90)] RTPW: \"x\" is not a number\n"
                       "b.w90:1: [W(T90)] the section is missing\n"
                       "c.w90: Path/File access error: The file is UTF-16 text with an odd number of bytes\n"
                       "missing.w90: File not found\n");
}

namespace {

constexpr const char* hardlyMeant =
    "[A]\nConversionType=2\n[A - Settings]\nNumCoefficients=4\nUsePolynomial=True\n"
    "Coefficients0=0\nCoefficients1=0.39083\nCoefficients2=-5.775E-7\n"
    "Coefficients3=0\n";
constexpr const char* r0Warning =
    "host.ini:6: warning: [A - Settings] Coefficients0: R0 is 0; limit: above 0 [r0-not-positive]\n";
constexpr const char* aWarning =
    "host.ini:7: warning: [A - Settings] Coefficients1: A is 0.39083; limit: 0.0037 to "
    "0.0041 [cvd-a-size]\n";

} // namespace

TEST_F(QuorconvTest, WarnsOfValuesThatCanHardlyBeMeantAndEndsWell) {
    folder.Write("host.ini", hardlyMeant);
    ExpectFine({"check", "host.ini"}, std::string(r0Warning) + aWarning);
}

TEST_F(QuorconvTest, WarnsOfCoefficientsThatACountLeavesOut) {
    folder.Write("host.ini", "[A]\nConversionType=19\n[A - Settings]\nNumCoefficients=1\nCoefficients0=100\n"
                             "Coefficients1=7\n");
    ExpectFine({"check", "host.ini"},
               "host.ini:4: warning: [A - Settings] NumCoefficients: 1 leaves out these "
               "values, which are not 0: Coefficients1 [count-does-not-fit]\n");
}

TEST_F(QuorconvTest, WarnsOfSettingsWhoseProbeIsNotThere) {
    folder.Write("host.ini", "[Display - Settings]\nBrightness=7\nRange=2\n"
                             "[Bath - Settings]\nNumCoefficients=1\nCoefficients0=100\n");
    const std::string text = "[Bath - Settings] these are settings of \"Bath\", but there is no such probe";
    ExpectFine({"check", "host.ini"}, "host.ini:4: warning: " + text + " [no-such-probe]\n");
    ExpectFine({"check", "host.ini", "--format", "gcc"},
               "host.ini:4:1: warning: " + text + " [no-such-probe]\n");
    ExpectFine({"check", "host.ini", "--format", "github"},
               "::warning file=host.ini,line=4,title=no-such-probe::" + text + "\n");
    ExpectFine({"check", "host.ini", "--json"},
               R"([
  {"file": "host.ini", "line": 4, "section": "Bath - Settings", "key": "", "id": "no-such-probe", )"
               R"("severity": "warning", "text": "these are settings of \"Bath\", but there is no such probe"}
]
)");
    ExpectFine({"check", "host.ini", "--strict", "--ignore", "no-such-probe"});
    EXPECT_EQ(Quorconv({"check", "host.ini", "--strict"}).code, 1);
}

TEST_F(QuorconvTest, AStrictCheckEndsWithOneForAWarning) {
    folder.Write("host.ini", hardlyMeant);
    folder.Write("good.w90", "[W(T90)]\nRTPW=25.5\n");
    const Outcome run = Quorconv({"check", "--strict", "host.ini", "good.w90"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, std::string(r0Warning) + aWarning);
    EXPECT_EQ(run.err, "");
    ExpectFine({"check", "--strict", "good.w90"});
}

TEST_F(QuorconvTest, IgnoresTheWarningsOfAnIdAndNothingElse) {
    folder.Write("host.ini", hardlyMeant);
    ExpectFine({"check", "--ignore", "cvd-a-size", "host.ini"}, r0Warning);
    ExpectFine({"check", "host.ini", "--strict", "--ignore", "cvd-a-size", "--ignore", "r0-not-positive"});
    folder.Write("bad.w90", "[W(T90)]\nRTPW=x\n");
    const Outcome run = Quorconv({"check", "--ignore=rtpw-not-positive", "bad.w90"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "bad.w90:2: [W(T90)] RTPW: \"x\" is not a number\n");
}

TEST_F(QuorconvTest, RefusesToIgnoreWhatIsNoWarning) {
    folder.Write("host.ini", hardlyMeant);
    ExpectRefused({"check", "host.ini", "--ignore", "r0"},
                  "quorconv: there is no warning \"r0\"; each ends with its id in brackets\n", 2);
}
