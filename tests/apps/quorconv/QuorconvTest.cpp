#include "tests/apps/quorconv/Quorconv.h"
#include "tests/support/Utf16.h"

#include <filesystem>
#include <sstream>

namespace {

const std::string hostFile = "; The host's own file\n"
                             "[Instrument]\n"
                             "Channels=4 ; of eight\n"
                             "\n"
                             "[Probe 1]\n"
                             "Version=1.0\n"
                             "ConversionType=2\n"
                             "\n"
                             "[Probe 1 - Settings]\n"
                             "Version=1.0\n"
                             "NumCoefficients=4\n"
                             "UsePolynomial=True\n"
                             "; IEC 60751\n"
                             "Coefficients0=100.0\n"
                             "Coefficients1=3.9083E-3\n"
                             "Coefficients2=-5.775E-7\n"
                             "Coefficients3=-4.183E-12\n";

} // namespace

TEST_F(QuorconvTest, ListsTheConversionTypes) {
    ExpectFine({"types"}, "-1\tCONV_NONE\t<keep existing>\t\n"
                          "0\tCONV_ITS90\tITS-90\ti90\n"
                          "1\tCONV_IPTS68\tIPTS-68\ti68\n"
                          "2\tCONV_CVD\tCallendar-Van Dusen\tcvd\n"
                          "3\tCONV_HTPRT\tHigh Temperature PRT\thpt\n"
                          "4\tCONV_POLYNOMIAL\tPolynomial\tply\n"
                          "5\tCONV_THERMISTORT_R\tThermistor T(R)\tthr\n"
                          "6\tCONV_THERMISTORR_T\tThermistor R(T)\tthr\n"
                          "7\tCONV_TCPOLYNOMIAL\tTC Polynomial\ttcp\n"
                          "8\tCONV_TCTABLE\tTC Table\ttct\n"
                          "9\tCONV_TCTYPEX\tTC Type \ttcx\n"
                          "10\tCONV_OHMS\tOhms\t\n"
                          "11\tCONV_VOLTS\tVolts\t\n"
                          "12\tCONV_IEC751\tIEC-751\t\n"
                          "13\tCONV_YSI400\tYSI-400\t\n"
                          "14\tCONV_WT90\tW(T90)\tw90\n"
                          "15\tCONV_RATIO\tRatio\t\n"
                          "16\tCONV_PT100\tPT100\t\n"
                          "17\tCONV_ITSSR5\tITS-SR5\ti90\n"
                          "18\tCONV_THERMISTOR_OHMS\t<unknown>\t\n"
                          "19\tCONV_PT100R0\t<unknown>\tpt1\n"
                          "20\tCONV_TCTYPEPOLY\t<unknown>\tttp\n");
}

TEST_F(QuorconvTest, ListsTheProbesOfAHostFileAndNothingElseInIt) {
    folder.Write("host.ini", hostFile + "[Probe 2]\nConversionType=10\n[Probe 3]\nConversionType=x\n");
    ExpectFine({"list", "host.ini"}, "Probe 1\tCONV_CVD\tCallendar-Van Dusen\n"
                                     "Probe 2\tCONV_OHMS\tOhms\n"
                                     "Probe 3\t?\t?\n");
}

TEST_F(QuorconvTest, ListsTheRecordOfAStandAloneFile) {
    folder.Write("a.thr", "[Thermistor]\nConvType=1\nNumCoefficients=1\nCoefficients0=2\n");
    ExpectFine({"list", "a.thr"}, "Thermistor\tCONV_THERMISTORR_T\tThermistor R(T)\n");
    folder.Write("b.PT1", "[Callendar-Van Dusen]\nNumCoefficients=1\nCoefficients0=100.1\n");
    ExpectFine({"list", "b.PT1"}, "Callendar-Van Dusen\tCONV_PT100R0\tPT100\n");
}

TEST_F(QuorconvTest, ShowsAProbeByItsKeysWithExactNumbers) {
    folder.Write("host.ini", hostFile);
    ExpectFine({"show", "host.ini", "probe 1"}, "[Probe 1] CONV_CVD Callendar-Van Dusen\n"
                                                "NumCoefficients=4\n"
                                                "UsePolynomial=True\n"
                                                "Coefficients0=100\n"
                                                "Coefficients1=0.0039083\n"
                                                "Coefficients2=-5.775e-07\n"
                                                "Coefficients3=-4.183e-12\n");
}

TEST_F(QuorconvTest, ShowsNestedRecordsByTheirPath) {
    ExpectFine({"new", "a.ini", "S", "i90", "RTPW=25.5"});
    ExpectFine({"set", "a.ini", "S", "High Range/Range=10", "High Range/Coefficients0=-1E-4"});
    ExpectFine({"show", "a.ini"}, "[S] CONV_ITS90 ITS-90\n"
                                  "RTPW=25.5\n"
                                  "High Range/Range=10\n"
                                  "High Range/Coefficients0=-1e-04\n"
                                  "Low Range/Range=-1\n");
}

TEST_F(QuorconvTest, ShowsAProbeAsAJsonObject) {
    folder.Write("a.tcx", "[Thermocouple Type]\nTCType=4\nNumPoints=1\nTempScale=°C\nOffsetScale=K\n"
                          "Temperatures0=0.1\nOffsets0=-0\nCoefficients0=NaN\nCoefficients1=5e-324\n");
    ExpectFine({"show", "a.tcx", "Thermocouple Type", "--json"}, R"({
  "section": "Thermocouple Type",
  "code": 9,
  "type": "CONV_TCTYPEX",
  "name": "TC Type K",
  "settings": {
    "TCType": {"code": 4, "name": "K"},
    "NumPoints": 1,
    "TempScale": "°C",
    "OffsetScale": "K",
    "Temperatures": [
      {"name": "T1", "value": 0.1}
    ],
    "Offsets": [
      {"name": "ADJ1", "value": -0.0}
    ],
    "Coefficients": [
      {"name": "DC1", "value": "NaN"},
      {"name": "DC2", "value": 5e-324}
    ]
  }
}
)");
}

TEST_F(QuorconvTest, ShowsAllProbesAsAJsonArrayWithNestedRecordsInside) {
    ExpectFine({"new", "a.ini", "S", "17", "RTPW=25.5", "Low Range/Coefficients0=1E-4"});
    ExpectFine({"show", "a.ini", "--json"}, R"([
  {
    "section": "S",
    "code": 17,
    "type": "CONV_ITSSR5",
    "name": "ITS-90",
    "settings": {
      "RTPW": 25.5,
      "High Range": {
        "Range": {"code": -1, "name": "none"}
      },
      "Low Range": {
        "Range": {"code": 5, "name": "234 K to 302 K"},
        "Coefficients": [
          {"name": "a", "value": 1e-04},
          {"name": "b", "value": 0}
        ]
      }
    }
  }
]
)");
}

TEST_F(QuorconvTest, AddsAProbeByCodeEnumeratorOrExtension) {
    for (const char* const type : {"2", "CONV_CVD", "conv_cvd", "cvd", "CVD"}) {
        const std::string file = std::string(type) + ".ini";
        ExpectFine({"new", file, "Probe 1", type, "Coefficients0=100.0123", "UsePolynomial=true"});
        EXPECT_EQ(folder.Read(file), "[Probe 1]\n"
                                     "Version=1.0\n"
                                     "ConversionType=2\n"
                                     "\n"
                                     "[Probe 1 - Settings]\n"
                                     "Version=1.0\n"
                                     "NumCoefficients=4\n"
                                     "UsePolynomial=True\n"
                                     "Coefficients0=100.0123\n"
                                     "Coefficients1=0\n"
                                     "Coefficients2=0\n"
                                     "Coefficients3=0\n");
    }
}

TEST_F(QuorconvTest, AddsAProbeToAHostFileBehindWhatIsThere) {
    folder.Write("host.ini", hostFile);
    ExpectFine({"new", "host.ini", "Probe 2", "CONV_OHMS"});
    EXPECT_EQ(folder.Read("host.ini"), hostFile + "\n[Probe 2]\nVersion=1.0\nConversionType=10\n");
}

TEST_F(QuorconvTest, AddsAStandAloneRecordUnderItsOwnSection) {
    ExpectFine({"new", "probe.pt1", "Callendar-Van Dusen", "pt1", "Coefficients0=100.02"});
    EXPECT_EQ(folder.Read("probe.pt1"),
              "[Callendar-Van Dusen]\nVersion=1.0\nNumCoefficients=1\nCoefficients0=100.02\n");
}

TEST_F(QuorconvTest, GivesACountBeforeWhatNeedsIt) {
    ExpectFine({"new", "a.ini", "P", "ply", "Coefficients6=6.5", "Order=6"});
    ExpectFine({"show", "a.ini", "P"},
               "[P] CONV_POLYNOMIAL Polynomial\nOrder=6\nCoefficients0=0\nCoefficients1=0\n"
               "Coefficients2=0\nCoefficients3=0\nCoefficients4=0\nCoefficients5=0\n"
               "Coefficients6=6.5\n");
}

TEST_F(QuorconvTest, RefusesANewProbeWhereSomethingStands) {
    folder.Write("host.ini", hostFile);
    ExpectRefused({"new", "host.ini", "Probe 1", "cvd"},
                  "quorconv: host.ini: [Probe 1]: there is a probe in this section already\n");
    ExpectRefused({"new", "host.ini", "Instrument", "cvd"},
                  "quorconv: host.ini: [Instrument]: the section exists and is not the record of a probe\n");
    ExpectRefused({"new", "other.ini", "Probe 1", "CONV_XYZ"},
                  "quorconv: \"CONV_XYZ\" is no conversion type; the command \"types\" lists them\n", 2);
    ExpectRefused({"new", "other.ini", "Probe 1", "CONV_OHMS", "R0=1"},
                  "quorconv: other.ini: [Probe 1] R0: CONV_OHMS has no settings\n");
    ExpectRefused({"new", "none/other.ini", "Probe 1", "cvd"}, "quorconv: Path not found: none/other.ini\n");
    EXPECT_EQ(folder.Read("host.ini"), hostFile);
    EXPECT_EQ(folder.Files(), (std::vector<std::string>{".err", ".out", "host.ini"}));
}

TEST_F(QuorconvTest, ChangesTheLineOfTheValueAndNoOtherByte) {
    folder.Write("host.ini", hostFile);
    ExpectFine({"set", "host.ini", "Probe 1", "coefficients0=100.0123"});
    EXPECT_EQ(folder.Read("host.ini"),
              Replaced(hostFile, "Coefficients0=100.0\n", "Coefficients0=100.0123\n"));
}

TEST_F(QuorconvTest, ReadsAndChangesAUtf16FileAndLeavesItsOtherBytes) {
    const std::u16string before = u"\uFEFF; \u00B0C\r\n[\u00D6l]\r\nConversionType=14\r\nVersion=1.0\r\n\r\n"
                                  u"[\u00D6l - Settings]\r\nVersion=1.0\r\nRTPW=";
    folder.Write("host.ini", Utf16Le(before + u"25.5 ; ohms\r\n; \u2126"));
    ExpectFine({"list", "host.ini"}, "\xC3\x96l\tCONV_WT90\tW(T90)\n");
    ExpectFine({"show", "host.ini", "\xC3\x96l"}, "[\xC3\x96l] CONV_WT90 W(T90)\nRTPW=25.5\n");
    ExpectFine({"check", "host.ini"});
    ExpectFine({"set", "host.ini", "\xC3\x96l", "RTPW=25.4"});
    EXPECT_EQ(folder.Read("host.ini"), Utf16Le(before + u"25.4 ; ohms\r\n; \u2126"));
    folder.Write("host.ini", Utf16Be(before + u"x\r\n"));
    EXPECT_EQ(Quorconv({"check", "host.ini"}).out,
              "host.ini:8: [\xC3\x96l - Settings] RTPW: \"x\" is not a number\n");
}

TEST_F(QuorconvTest, RefusesWhatIsNoExactValueAndWritesNothing) {
    folder.Write("host.ini", hostFile);
    const std::string place = "quorconv: host.ini: [Probe 1] ";
    ExpectRefused({"set", "host.ini", "Probe 1", "Coefficients0=1,5"},
                  place + "Coefficients0: \"1,5\" is not a number; the decimal separator is a point\n");
    ExpectRefused({"set", "host.ini", "Probe 1", "Coefficients0=12abc"},
                  place + "Coefficients0: \"12abc\" is not a number\n");
    ExpectRefused({"set", "host.ini", "Probe 1", "Coefficients0=1e999"},
                  place + "Coefficients0: \"1e999\" is a number that no double can hold: too large, or too "
                          "close to zero\n");
    ExpectRefused({"set", "host.ini", "Probe 1", "NumCoefficients=70000"},
                  place + "NumCoefficients: \"70000\" is not a whole number from -32768 to 32767\n");
    ExpectRefused({"set", "host.ini", "Probe 1", "UsePolynomial=maybe"},
                  place + "UsePolynomial: \"maybe\" is neither True nor False\n");
    ExpectRefused({"set", "host.ini", "Probe 1", "Coefficients0=101", "Alpha=1"},
                  place + "Alpha: there is no such key in a record of this type\n");
    ExpectRefused({"set", "host.ini", "Probe 9", "Coefficients0=101"},
                  "quorconv: host.ini: [Probe 9]: there is no such section\n");
    ExpectRefused({"set", "host.ini", "Instrument", "Channels=5"},
                  "quorconv: host.ini: [Instrument]: the section is not the record of a probe\n");
    EXPECT_EQ(folder.Read("host.ini"), hostFile);
}

TEST_F(QuorconvTest, RefusesWhatTheObjectDoesNotAccept) {
    ExpectFine({"new", "a.ini", "Table", "tct"});
    ExpectFine({"new", "a.ini", "Its", "i90"});
    const std::string before = folder.Read("a.ini");
    ExpectRefused({"set", "a.ini", "Table", "NumPoints=11"},
                  "quorconv: a.ini: [Table] NumPoints: the value 11 is not accepted; range: 0 to 10\n");
    ExpectRefused({"set", "a.ini", "Table", "NumPoints=-1"},
                  "quorconv: a.ini: [Table] NumPoints: -1 is not accepted; range: 0 to 10\n");
    ExpectRefused({"set", "a.ini", "Its", "Low Range/Range=9"},
                  "quorconv: a.ini: [Its] Low Range/Range: 9 is not accepted; range: -1, 1 to 5\n");
    ExpectRefused({"set", "a.ini", "Its", "Low Range/Range=44"},
                  "quorconv: a.ini: [Its] Low Range/Range: 44 is not accepted; range: -1, 1 to 5\n");
    ExpectRefused({"new", "a.ini", "K", "tcx", "TCType=77"},
                  "quorconv: a.ini: [K] TCType: 77 is not accepted; range: -1 to 12\n");
    EXPECT_EQ(folder.Read("a.ini"), before);
}

TEST_F(QuorconvTest, CompletesARecordOnlyByAllKeysThatItLacks) {
    folder.Write("host.ini", Replaced(hostFile, "Coefficients2=-5.775E-7\n", ""));
    const Outcome run = Quorconv({"set", "host.ini", "Probe 1", "Coefficients0=100.5"});
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.err.find("line 9: [Probe 1 - Settings] Coefficients2: the key is missing"),
              std::string::npos);
    ExpectFine({"set", "host.ini", "Probe 1", "Coefficients2=-5.775E-7"});
    EXPECT_EQ(folder.Read("host.ini"),
              Replaced(hostFile, "Coefficients2=-5.775E-7\n", "") + "Coefficients2=-5.775e-07\n");
}

TEST_F(QuorconvTest, ShowsAndCopiesNoRecordThatTheLibraryRefuses) {
    folder.Write("host.ini", Replaced(hostFile, "NumCoefficients=4", "NumCoefficients=-4"));
    const std::string refusal =
        "quorconv: host.ini: [Probe 1]: the record cannot be read\n"
        "  line 11: [Probe 1 - Settings] NumCoefficients: the value -4 is not accepted\n";
    ExpectRefused({"show", "host.ini"}, refusal);
    ExpectRefused({"copy", "host.ini", "Probe 1", "host.ini", "Probe 2"}, refusal);
}

TEST_F(QuorconvTest, CopiesBetweenStandAloneFilesAndHostFiles) {
    folder.Write("host.ini", hostFile);
    ExpectFine({"copy", "host.ini", "Probe 1", "probe.cvd", "Callendar-Van Dusen"});
    EXPECT_EQ(folder.Read("probe.cvd"),
              "[Callendar-Van Dusen]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=True\n"
              "Coefficients0=100\nCoefficients1=0.0039083\n"
              "Coefficients2=-5.775e-07\nCoefficients3=-4.183e-12\n");
    ExpectFine({"set", "probe.cvd", "Callendar-Van Dusen", "Coefficients0=100.0123"});
    ExpectFine({"copy", "probe.cvd", "Callendar-Van Dusen", "host.ini", "Probe 1", "--replace"});
    EXPECT_EQ(folder.Read("host.ini"),
              Replaced(hostFile, "Coefficients0=100.0\n", "Coefficients0=100.0123\n"));
    ExpectFine({"copy", "probe.cvd", "Callendar-Van Dusen", "host.ini", "Probe 2"});
    ExpectFine({"list", "host.ini"},
               "Probe 1\tCONV_CVD\tCallendar-Van Dusen\nProbe 2\tCONV_CVD\tCallendar-Van Dusen\n");
}

TEST_F(QuorconvTest, CopiesOverNothingThatIsOfAnotherKind) {
    folder.Write("host.ini", hostFile);
    ExpectFine({"new", "other.ini", "P", "w90"});
    ExpectRefused(
        {"copy", "other.ini", "P", "host.ini", "Probe 1", "--replace"},
        "quorconv: host.ini: [Probe 1]: there is a probe of another type (CONV_CVD) in this section\n");
    ExpectRefused({"copy", "other.ini", "P", "host.ini", "Instrument"},
                  "quorconv: host.ini: [Instrument]: the section exists and is not the record of a probe\n");
    EXPECT_EQ(folder.Read("host.ini"), hostFile);
}

TEST_F(QuorconvTest, MakesNoStandAloneFileOfATypeThatHasAnotherExtension) {
    ExpectRefused({"new", "a.cvd", "Callendar-Van Dusen", "pt1"},
                  "quorconv: a.cvd: [Callendar-Van Dusen]: in a file of this kind the section is not for "
                  "CONV_PT100R0\n");
    ExpectFine({"new", "host.ini", "P", "tcp"});
    ExpectRefused({"copy", "host.ini", "P", "a.ttp", "Thermocouple Polynomial"},
                  "quorconv: a.ttp: [Thermocouple Polynomial]: in a file of this kind the section is not for "
                  "CONV_TCPOLYNOMIAL\n");
    EXPECT_EQ(folder.Files(), (std::vector<std::string>{".err", ".out", "host.ini"}));
    ExpectFine({"new", "a.cvd", "Probe 1", "pt1", "Coefficients0=100"});
    ExpectFine({"check", "a.cvd"});
}

TEST_F(QuorconvTest, CopiesEveryProbeOfTheSampleLaboratoryExactly) {
    std::filesystem::copy_file(QUOR_SAMPLES "/laboratory.ini", folder.Path("laboratory.ini"));
    const Outcome list = Quorconv({"list", "laboratory.ini"});
    std::istringstream lines(list.out);
    for (std::string line; std::getline(lines, line);) {
        const std::string section = line.substr(0, line.find('\t'));
        ExpectFine({"copy", "laboratory.ini", section, "copies.ini", section});
    }
    ExpectFine({"show", "copies.ini"}, Quorconv({"show", "laboratory.ini"}).out);
    ExpectFine({"check", "copies.ini"});
}

TEST_F(QuorconvTest, TellsWrongUsageFromAProblem) {
    EXPECT_EQ(Quorconv({}).code, 2);
    EXPECT_EQ(Quorconv({"lsit", "a.ini"}).code, 2);
    EXPECT_EQ(Quorconv({"set", "a.ini", "P"}).code, 2);
    EXPECT_EQ(Quorconv({"types", "surplus"}).code, 2);
    ExpectRefused({"set", "a.ini", "P", "Coefficients0"}, "quorconv: KEY=VALUE expected: Coefficients0\n", 2);
    ExpectRefused({"list", "\xFF.ini"}, "quorconv: an argument is not UTF-8 text: \xC3\xBF.ini\n", 2);
    ExpectRefused({"list", "missing.ini"}, "quorconv: File not found: missing.ini\n");
    ExpectRefused({"list", "."}, "quorconv: Path/File access error: .: Is a directory\n");
}

TEST_F(QuorconvTest, ShowsAnExampleOfEachCommandAndItsVersion) {
    for (const std::string command : {"types", "list", "show", "new", "set", "edit", "copy", "check"}) {
        const Outcome run = Quorconv({command, "--help"});
        EXPECT_EQ(run.code, 0) << command;
        EXPECT_NE(run.out.find("\n  quorconv " + command), std::string::npos) << run.out;
        EXPECT_EQ(run.err, "");
    }
    ExpectFine({"--version"}, "quorconv 1.0.0\n");
}

TEST_F(QuorconvTest, ASectionThatIsCalledLikeSettingsOfAProbeWithoutAnyIsTheHosts) {
    const std::string theirs = "[P - Settings]\nChannel=4\n";
    const std::string text = "[P]\nVersion=1.0\nConversionType=10\n" + theirs;
    folder.Write("rig.ini", text);
    ExpectRefused(
        {"retype", "rig.ini", "P", "pt1", "Coefficients0=100"},
        "quorconv: rig.ini: [P]: the settings would stand in the section \"P - Settings\", which is "
        "there already\n");
    EXPECT_EQ(folder.Read("rig.ini"), text);
    ExpectFine({"remove", "rig.ini", "P"});
    EXPECT_EQ(folder.Read("rig.ini"), theirs);
}
