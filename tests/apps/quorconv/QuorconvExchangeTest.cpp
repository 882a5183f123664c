// Probes for other programs, and from them: JSON and CSV.

#include "tests/apps/quorconv/Quorconv.h"

#include <fstream>
#include <iterator>

namespace {

class QuorconvExchangeTest : public QuorconvTest {
protected:
    const std::string before = "[Bath]\n"
                               "Version=1.0\n"
                               "ConversionType=2\n"
                               "\n"
                               "[Bath - Settings]\n"
                               "Version=1.0\n"
                               "NumCoefficients=4\n"
                               "UsePolynomial=False\n"
                               "Coefficients0=100.0123\n"
                               "Coefficients1=0.00385055\n"
                               "Coefficients2=1.499786\n"
                               "Coefficients3=-0\n";

    void SetUp() override { folder.Write("host.ini", before); }

    /// Expects that the JSON text is refused, and nothing written.
    void ExpectRefusedJson(const std::string& json, const std::string& said) const {
        folder.Write("in.json", json);
        ExpectRefused({"put", "host.ini", "in.json", "--json"},
                      "quorconv: host.ini: nothing was written, because a line of in.json is wrong\n  " +
                          said + "\n");
        EXPECT_EQ(folder.Read("host.ini"), before);
    }
    void ExpectRefusedTable(const std::string& table, const std::string& said,
                            const std::vector<std::string>& options = {}) const {
        folder.Write("in.csv", table);
        std::vector<std::string> arguments{"put", "host.ini", "in.csv", "--csv"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        ExpectRefused(arguments,
                      "quorconv: host.ini: nothing was written, because a line of in.csv is wrong\n  " +
                          said + "\n");
        EXPECT_EQ(folder.Read("host.ini"), before);
    }
};

std::string Probe(const std::string& settings, const std::string& type = "CONV_CVD") {
    return R"({"section": "P", "type": ")" + type + R"(", "settings": )" + settings + "}";
}

} // namespace

TEST_F(QuorconvExchangeTest, PutsBackWhatItShowsAndEveryByteIsAsItWas) {
    std::filesystem::copy_file(QUOR_SAMPLES "/laboratory.ini", folder.Path("laboratory.ini"));
    const std::string laboratory = folder.Read("laboratory.ini");
    ExpectShell("quorconv show laboratory.ini --json >all.json\n"
                "quorconv put laboratory.ini --json <all.json\n"
                "quorconv put copy.ini --json <all.json\n"
                "quorconv show copy.ini --json | cmp - all.json\n"
                "cp copy.ini again.ini\n"
                "quorconv show again.ini --jsonl | quorconv put third.ini --json\n"
                "cmp copy.ini third.ini\n"
                "quorconv diff laboratory.ini third.ini",
                "", "quorconv: 29 probes put\nquorconv: 29 probes put\nquorconv: 29 probes put\n");
    EXPECT_EQ(folder.Read("laboratory.ini"), laboratory);
}

TEST_F(QuorconvExchangeTest, LosesNoBitOfANumberInJson) {
    const std::string record =
        "[P]\nVersion=1.0\nConversionType=5\n\n[P - Settings]\nVersion=1.0\nConvType=0\n"
        "NumCoefficients=4\nCoefficients0=5e-324\nCoefficients1=-0\n"
        "Coefficients2=1.7976931348623157e+308\nCoefficients3=0.1\n"
        "\n[N]\nVersion=1.0\nConversionType=5\n\n[N - Settings]\nVersion=1.0\nConvType=0\n"
        "NumCoefficients=4\nCoefficients0=NaN\nCoefficients1=Infinity\n"
        "Coefficients2=-Infinity\nCoefficients3=9007199254740993\n";
    folder.Write("numbers.ini", record);
    ExpectShell("quorconv show numbers.ini --json | quorconv put copy.ini --json --allow-nan", "",
                "quorconv: 2 probes put\n");
    EXPECT_EQ(folder.Read("copy.ini"), Replaced(record, "9007199254740993", "9007199254740992"));
    // As programs write it that know whole numbers.
    ExpectShell("quorconv show numbers.ini P --json | sed 's/-0.0/-0/' | quorconv put copy.ini --json", "",
                "quorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("copy.ini"), Replaced(record, "9007199254740993", "9007199254740992"));
    const Outcome refused = Shell("quorconv show numbers.ini --json | quorconv put other.ini --json");
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.err,
              "quorconv: other.ini: nothing was written, because a line of - is wrong\n"
              "  -:18:3: other.ini: [N] Coefficients0: NaN gives no temperature; --allow-nan stores "
              "it\n");
}

TEST_F(QuorconvExchangeTest, AMinusZeroIsStoredAsGivenOrAs0WhereItIsReadAs0) {
    const std::string given = "[W]\nConversionType=14\n[W - Settings]\nRTPW=25\n"
                              "[V]\nConversionType=14\n[V - Settings]\nRTPW=0.0\n"
                              "[R]\nConversionType=19\n[R - Settings]\nNumCoefficients=1\nCoefficients0=0\n";
    const std::string after = "[W]\nConversionType=14\n[W - Settings]\nRTPW=0\n"
                              "[V]\nConversionType=14\n[V - Settings]\nRTPW=0.0\n"
                              "[R]\nConversionType=19\n[R - Settings]\nNumCoefficients=1\nCoefficients0=-0\n";
    folder.Write("steps", "set W RTPW=-0\nset V RTPW=-0\nset R Coefficients0=-0\n");
    folder.Write("w.csv", "section,type,RTPW\nW,14,-0\nV,14,-0\n");
    folder.Write("r.csv", "section,type,Coefficients0\nR,19,-0\n");
    folder.Write("w.json", R"([{"section": "W", "type": "CONV_WT90", "settings": {"RTPW": -0.0}},)"
                           R"({"section": "V", "type": "CONV_WT90", "settings": {"RTPW": -0.0}},)"
                           R"({"section": "R", "type": "CONV_PT100R0", "settings": )"
                           R"({"NumCoefficients": 1, "Coefficients": [{"name": "R0", "value": -0.0}]}}])");
    for (const char* const line :
         {"quorconv set host.ini W RTPW=-0 && quorconv set host.ini V RTPW=-0 && "
          "quorconv set host.ini R Coefficients0=-0",
          "quorconv apply host.ini steps 2>/dev/null",
          "quorconv put host.ini w.csv --csv 2>/dev/null && quorconv put host.ini r.csv --csv 2>/dev/null",
          "quorconv put host.ini w.json --json 2>/dev/null"}) {
        folder.Write("host.ini", given);
        ExpectShell(line, "");
        EXPECT_EQ(folder.Read("host.ini"), after) << line;
        ExpectShell("quorconv get host.ini W RTPW; quorconv get host.ini R Coefficients0", "0\n-0\n");
    }
    ExpectFine({"new", "new.ini", "W", "14", "RTPW=-0"});
    ExpectFine({"get", "new.ini", "W", "RTPW"}, "0\n");
    EXPECT_EQ(folder.Read("new.ini"),
              "[W]\nVersion=1.0\nConversionType=14\n\n[W - Settings]\nVersion=1.0\nRTPW=0\n");
}

TEST_F(QuorconvExchangeTest, RefusesJsonThatNoProbeIsWithLineAndColumn) {
    ExpectRefusedJson("[\n  {\"section\": 1}\n]", "in.json:2:15: \"section\" is not a text");
    ExpectRefusedJson("{\"section\": \"P\"", "in.json:1:16: missing a comma or '}' after an object member");
    ExpectRefusedJson("[1]", "in.json:1:2: an object expected");
    ExpectRefusedJson(Probe("{}", "CONV_OHMS") + " x", "in.json:1:55: invalid value");
    ExpectRefusedJson(Probe("{}", "CONV_CDV"),
                      "in.json:1:26: \"CONV_CDV\" is no conversion type; did you mean \"CONV_CVD\"?");
    ExpectRefusedJson("{\"section\": \"P\", \"section\": \"Q\"}",
                      "in.json:1:18: the name \"section\" occurs twice");
    ExpectRefusedJson("{\"sektion\": \"P\"}",
                      "in.json:1:13: there is no member \"sektion\" here; did you mean \"section\"?");
    ExpectRefusedJson(Probe("{\n \"Coeficients\": []}"),
                      "in.json:2:17: there is no key \"Coeficients\" in a record of this type; did you mean "
                      "\"Coefficients\"?");
    ExpectRefusedJson(Probe("{\n \"Coefficients\": [{\"name\": \"ALPHA\", \"value\": 1}]}"),
                      "in.json:2:28: Coefficients0 is not \"ALPHA\" but \"R0\"");
    ExpectRefusedJson(
        Probe("{\n \"Coefficients\": [{\"value\": \"1\"}]}"),
        "in.json:2:29: Coefficients0: a number, \"NaN\", \"Infinity\" or \"-Infinity\" expected");
    ExpectRefusedJson(Probe("{\n \"UsePolynomial\": 1}"),
                      "in.json:2:19: UsePolynomial: true or false expected");
    ExpectRefusedJson(Probe("{\n \"TCType\": {\"code\": 4, \"name\": \"S\"}}", "CONV_TCTYPEX"),
                      "in.json:2:32: TCType: the name is not that of the code 4");
    ExpectRefusedJson(Probe("{\n \"TCType\": 4}", "CONV_TCTYPEX"),
                      "in.json:2:12: TCType: an object of \"code\" and \"name\" expected");
    ExpectRefusedJson("{\"section\": \"P\", \"code\": 3, \"type\": \"CONV_CVD\", \"settings\": {}}",
                      "in.json:1:26: the code of CONV_CVD is 2");
    ExpectRefusedJson(Probe("{\"NumCoefficients\": 01}"),
                      "in.json:1:71: missing a comma or '}' after an object member");
    ExpectRefusedJson("[" + Probe("{}", "CONV_OHMS") + "] x", "in.json:1:57: nothing may follow the list");
    ExpectRefusedJson("{\"a\": NaN}", "in.json:1:7: invalid value");
    ExpectRefusedJson(std::string(100000, '['), "in.json:1:2: an object expected");
    ExpectRefusedJson("{\"a\":" + std::string(100000, '['), "in.json:1:26: values are nested too deeply");
    ExpectRefusedJson("{\"a\": \"\\ud800\"}", "in.json:1:8: the surrogate pair in string is invalid");
    ExpectRefusedJson("{\"a\": \"\xFF\"}", "in.json:1:8: invalid encoding in string");
}

TEST_F(QuorconvExchangeTest, ReadsAnObjectThatDiffersFromTheOneBeforeItInNumbersAloneBitForBit) {
    const auto object = [](const std::string& section, const std::string& value) {
        return R"({"section": ")" + section + R"(", "type": "CONV_WT90", "settings": {"RTPW": )" + value +
               "}}";
    };
    const std::string record =
        "[A]\nVersion=1.0\nConversionType=14\n\n[A - Settings]\nVersion=1.0\nRTPW=25.5\n";
    const std::pair<const char*, const char*> numbers[] = {
        {"25.5", "25.5"},
        {"-25.50", "-25.5"},
        {"5e-324", "5e-324"},
        {"1E2", "100"},
        {"1e+02", "100"},
        {"0.1e1", "1"},
        {"1234567890123456789012345678901234567890123", "1.2345678901234567e+42"},
        {"0.10000000000000000555111512312578270211815834045410156250001", "0.1"},
    };
    for (const auto& [given, stored] : numbers) {
        folder.Write("in.json", object("A", "25.5") + "\n" + object("B", given));
        ExpectShell("rm -f new.ini; quorconv put new.ini in.json --json", "", "quorconv: 2 probes put\n");
        EXPECT_EQ(folder.Read("new.ini"),
                  record + "\n" +
                      Replaced(Replaced(Replaced(record, "[A]", "[B]"), "[A -", "[B -"), "25.5", stored));
    }
    folder.Write("in.json", "[" + object("A", "25.5") + ",\n" + object("B", "25.5") + " , " +
                                object("\\u0043\xC3\xBC", "25.5") + "]\n");
    ExpectShell("rm -f new.ini; quorconv put new.ini in.json --json; quorconv list new.ini | cut -f 1",
                "A\nB\nC\xC3\xBC\n", "quorconv: 3 probes put\n");
}

TEST_F(QuorconvExchangeTest, RefusesAnObjectThatIsNearlyLikeTheOneBeforeIt) {
    const std::string first = R"({"section": "A", "type": "CONV_WT90", "settings": {"RTPW": 25.5}})";
    const auto expect = [&](const std::string& what, const std::string& by, const std::string& said) {
        ExpectRefusedJson(first + "\n" + Replaced(Replaced(first, "\"A\"", "\"B\""), what, by),
                          "in.json:2:" + said);
    };
    expect("25.5", "1e400", "60: settings/RTPW: the number is too large for a double");
    expect("25.5", "025.5", "61: missing a comma or '}' after an object member");
    expect("25.5", "25.", "63: miss fraction part in number");
    expect("25.5", "2e", "62: miss exponent in number");
    expect("25.5", "-", "61: invalid value");
    expect("25.5", ".5", "60: invalid value");
    expect("25.5", "\"25.5\"", "60: RTPW: a number, \"NaN\", \"Infinity\" or \"-Infinity\" expected");
    expect("25.5", "\"NaN\"", "1: host.ini: [B] RTPW: NaN gives no temperature; --allow-nan stores it");
    expect("RTPW", "RTPX", "60: there is no key \"RTPX\" in a record of this type; did you mean \"RTPW\"?");
    expect("}}", "} x}", "66: missing a comma or '}' after an object member");
    expect("}}", "", "64: missing a comma or '}' after an object member");
    expect("\"B\"", "\"B\xFF\"", "15: invalid encoding in string");
    expect("\"B\"", "\"B\n\"", "15: invalid escape character in string");
    expect("\"B\"", "\"A\"", "1: [A]: the section occurs twice");
}

TEST_F(QuorconvExchangeTest, NamesOfCoefficientsNeedTheFlagThatSaysWhatTheyMean) {
    ExpectRefusedJson(
        Probe("{\"Coefficients\": [{\"value\": 100}, {\"name\": \"ALPHA\", \"value\": 0.00385}]}"),
        "in.json:1:50: \"UsePolynomial\" is missing, which says what the coefficients are");
}

TEST_F(QuorconvExchangeTest, AnEmptyTextGoesThroughATable) {
    std::filesystem::copy_file(QUOR_SAMPLES "/laboratory.ini", folder.Path("laboratory.ini"));
    ExpectFine({"set", "laboratory.ini", "Probe 17 TCK-5122", "TempScale=", "--drop"});
    ExpectShell("quorconv export laboratory.ini 'Probe 17*' --csv --type tcx | quorconv put copy.ini --csv",
                "", "quorconv: 1 probe exported\nquorconv: 1 probe put\n");
    ExpectFine({"get", "copy.ini", "Probe 17 TCK-5122", "TempScale"}, "\n");
}

TEST_F(QuorconvExchangeTest, AnInputWithoutAProbeIsNoSuccess) {
    folder.Write("in.json", "");
    ExpectRefused({"put", "host.ini", "in.json", "--json"},
                  "quorconv: in.json: there is nothing in this file\n");
    std::filesystem::create_directory(folder.Path("in"));
    ExpectRefused({"put", "host.ini", "in", "--json"}, "quorconv: in: this is a folder\n");
}

TEST_F(QuorconvExchangeTest, WritesNoneOfManyProbesWhenOneIsWrong) {
    folder.Write("in.jsonl", Probe("{\"RTPW\": 25.5}", "CONV_WT90") + "\n" +
                                 Replaced(Probe("{}", "CONV_WT90"), "\"P\"", "\"Q\"") + "\n");
    ExpectRefused({"put", "host.ini", "in.jsonl", "--json"},
                  "quorconv: host.ini: nothing was written, because a line of in.jsonl is wrong\n"
                  "  in.jsonl:2:1: host.ini: [Q] RTPW: the value is missing, and the probe is a new one\n");
    folder.Write("in.jsonl", Probe("{\"RTPW\": 25.5}", "CONV_WT90") + Probe("{\"RTPW\": 1}", "CONV_WT90"));
    const Outcome twice = Quorconv({"put", "host.ini", "in.jsonl", "--json"});
    EXPECT_EQ(twice.err, "quorconv: host.ini: nothing was written, because a line of in.jsonl is wrong\n"
                         "  in.jsonl:1:66: [P]: the section occurs twice\n");
    folder.Write("in.jsonl", Replaced(Probe("{\"RTPW\": 25.5}", "CONV_WT90"), "\"P\"", "\"Bath\""));
    ExpectRefused({"put", "host.ini", "in.jsonl", "--json"},
                  "quorconv: host.ini: nothing was written, because a line of in.jsonl is wrong\n"
                  "  in.jsonl:1:1: host.ini: [Bath]: there is a probe of another type (CONV_CVD) in this "
                  "section; \"retype\" changes that\n");
    EXPECT_EQ(folder.Read("host.ini"), before);
}

TEST_F(QuorconvExchangeTest, KeepsTheOtherValuesOfAProbeThatIsThere) {
    folder.Write(
        "in.json",
        R"({"section": "bath", "type": "CONV_CVD", "settings": {"Coefficients": [{"value": 99.5}]}})");
    ExpectShell("quorconv put host.ini in.json --json", "", "quorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "100.0123", "99.5"));
    // Not what stands in the file beyond the count.
    const std::string twoPoints = "[Table]\nConversionType=8\n\n[Table - Settings]\nNumPoints=1\n"
                                  "Temperatures0=0\nVoltages0=0\nTemperatures1=7\nVoltages1=8\n";
    folder.Write("host.ini", twoPoints);
    folder.Write("in.csv", "section,NumPoints,Temperatures0,Temperatures1,Voltages1\nTable,1,5,,\n");
    ExpectShell("quorconv put host.ini in.csv --csv --type tct", "", "quorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(twoPoints, "Temperatures0=0", "Temperatures0=5"));
}

TEST_F(QuorconvExchangeTest, ExportsATableWithNamesAndUnits) {
    const std::string head = "section,type,NumCoefficients,UsePolynomial,\"Coefficients0 [R0, ohm]\","
                             "\"Coefficients1 [ALPHA, 1/\xC2\xB0"
                             "C or A, 1/\xC2\xB0"
                             "C]\",\"Coefficients2 [DELTA, \xC2\xB0"
                             "C or B, 1/\xC2\xB0"
                             "C\xC2\xB2]\",\"Coefficients3 [BETA, \xC2\xB0"
                             "C or C, 1/\xC2\xB0"
                             "C\xE2\x81\xB4]\"\r\n";
    ExpectShell("quorconv export host.ini --csv --type cvd",
                head + "Bath,CONV_CVD,4,False,100.0123,0.00385055,1.499786,-0\r\n",
                "quorconv: 1 probe exported\n");
    ExpectShell("quorconv export host.ini --csv --type cvd --decimal comma",
                head + "Bath,CONV_CVD,4,False,\"100,0123\",\"0,00385055\",\"1,499786\",-0\r\n",
                "quorconv: 1 probe exported\n");
    ExpectRefused({"export", "host.ini", "--csv"},
                  "quorconv: --csv needs --type: the columns are the keys of one type\n", 2);
}

TEST_F(QuorconvExchangeTest, PutsBackATableOfEachTypeAndEveryByteIsAsItWas) {
    std::filesystem::copy_file(QUOR_SAMPLES "/laboratory.ini", folder.Path("laboratory.ini"));
    const std::string laboratory = folder.Read("laboratory.ini");
    for (const std::string decimal : {"point", "comma"}) {
        const Outcome run =
            Shell("for type in $(quorconv list laboratory.ini | cut -f 2 | sort -u); do\n"
                  "quorconv export laboratory.ini --csv --type $type --decimal " +
                  decimal +
                  " >$type.csv\n"
                  "quorconv put laboratory.ini $type.csv --csv --decimal " +
                  decimal + " || exit\nquorconv put copy-" + decimal + ".ini $type.csv --csv --decimal " +
                  decimal + " || exit\ndone\nquorconv diff laboratory.ini copy-" + decimal + ".ini");
        EXPECT_EQ(run.code, 0) << run.err;
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(folder.Read("laboratory.ini"), laboratory);
    }
}

TEST_F(QuorconvExchangeTest, ReadsEachOfManyProbesAsItReadsThatOneAlone) {
    std::string text = Replaced(folder.Read("host.ini"), "=-0\n", "=0.1\n");
    const auto add = [&text, host = text](const std::string& name, const std::string& from,
                                          const std::string& to) {
        std::string probe = Replaced(host, "[Bath]", "[" + name + "]");
        probe = Replaced(probe, "[Bath - Settings]", "[" + name + " - Settings]");
        text += "\n" + Replaced(probe, from, to);
    };
    add("Other numbers", "=100.0123\n", "=99.5 ; by the certificate\n");
    add("Minus zero", "=0.1\n", "=-0\n");
    add("Not a number", "=0.1\n", "=NaN\n");
    add("Unreadable", "=0.1\n", "=0,1\n");
    add("Missing", "Coefficients3=0.1\n", "");
    add("Three", "NumCoefficients=4\n", "NumCoefficients=3\n");
    add("Below zero", "NumCoefficients=4\n", "NumCoefficients=-4\n");
    add("Polynomial", "UsePolynomial=False\n", "UsePolynomial=1\n");
    add("Unknown type", "ConversionType=2\n", "ConversionType=99\n");
    add("No type", "ConversionType=2\n", "ConversionType=two\n");
    add("Last", "=1.499786\n", "=1e-3\n");
    std::ifstream laboratory(QUOR_SAMPLES "/laboratory.ini", std::ios::binary);
    const std::string samples{std::istreambuf_iterator<char>(laboratory), {}};
    folder.Write("many.ini", text + "\n" + samples);
    ExpectShell("quorconv list many.ini --json | grep -o '\"section\": \"[^\"]*' | cut -d '\"' -f 4 >names\n"
                "while read -r name; do quorconv show many.ini \"$name\" --jsonl; done <names >one 2>errors\n"
                "quorconv export many.ini --jsonl >all 2>failures\n"
                "cmp one all && head -n -1 failures | cmp errors - && grep -c . all errors",
                "all:36\nerrors:8\n");
}

TEST_F(QuorconvExchangeTest, GivesManyProbesValuesAsItGivesThemToEachAlone) {
    folder.Write("host.ini", Replaced(before, "=-0\n", "=0.1\n") +
                                 Replaced(Replaced(before, "[Bath]", "\n[Oil]"), "[Bath -", "[Oil -"));
    folder.Write("steps", "Bath Coefficients0=99.5\n"
                          "Bath coefficients0=99.75 NumCoefficients=4 UsePolynomial=0\n"
                          "Oil Coefficients3=0.5 Coefficients1=1e-3\n"
                          "Oil Coefficients3=-0\n"
                          "Bath Coefficients3=-0\n"
                          "Bath Coefficients2=0\n"
                          "Oil UsePolynomial=True\n"
                          "Oil NumCoefficients=5 Coefficients4=1\n"
                          "Oil Coefficients0=NaN\n");
    ExpectShell("cp host.ini each.ini\n"
                "while read -r step; do quorconv set each.ini $step --drop --allow-nan; done <steps\n"
                "sed 's/^/set /' steps | quorconv apply host.ini --drop --allow-nan\ncmp host.ini each.ini",
                "", "quorconv: 9 steps done\n");
    folder.Write("steps", "Bath Coefficients0=1\nBath Coefficients0=NaN\nBath Coefficients0=1,5\n"
                          "Bath Coefficients9=1\nBath UsePolynomial=True\nBath NumCoefficients=2\n");
    ExpectShell(
        "quorconv set host.ini --from steps; cmp host.ini each.ini", "",
        "quorconv: host.ini: nothing was written, because 4 lines of steps are wrong\n"
        "  steps:2: host.ini: [Bath] Coefficients0: NaN gives no temperature; --allow-nan stores it\n"
        "  steps:3: host.ini: [Bath] Coefficients0: \"1,5\" is not a number; the decimal separator is "
        "a point\n"
        "  steps:4: host.ini: [Bath] Coefficients9: there is no such key in a record of this type; "
        "did you mean \"Coefficients0\"?\n"
        "  steps:5: host.ini: [Bath] values of the probe would change their meaning; enter them again, "
        "or use --drop to allow it\n"
        "    Coefficients1=0.00385055, by UsePolynomial=True\n");
}

TEST_F(QuorconvExchangeTest, WritesManyNewProbesAsItWritesEachAlone) {
    std::filesystem::copy_file(QUOR_SAMPLES "/laboratory.ini", folder.Path("laboratory.ini"));
    folder.Write("in.csv", "section,type,NumCoefficients,UsePolynomial,Coefficients0,Coefficients1\n"
                           "First,cvd,2,False,100,0.0039\n"
                           "Second,cvd,2,False,99.5,1e-3\n"
                           "Minus zero,cvd,2,False,99.5,-0\n"
                           "Another count,cvd,1,False,99.5,\n"
                           "Another flag,cvd,2,True,99.5,0.0039\n"
                           "Zero,cvd,2,0,99.5,0\n"
                           "Not a number,cvd,2,False,NaN,0.0039\n");
    ExpectShell("quorconv export laboratory.ini --jsonl | sed 's/\"section\": \"/&Another /' >second\n"
                "{ quorconv export laboratory.ini --jsonl; cat second; } >in.jsonl 2>.told\n"
                "quorconv put many.ini in.jsonl --json --allow-nan 2>.told || exit\n"
                "quorconv put many.ini in.csv --csv --allow-nan 2>.told || exit\n"
                "while IFS= read -r probe; do\n"
                "printf '%s\\n' \"$probe\" | quorconv put each.ini --json --allow-nan 2>.told || exit\n"
                "done <in.jsonl\n"
                "for line in 2 3 4 5 6 7 8; do\n"
                "sed -n \"1p;${line}p\" in.csv | quorconv put each.ini --csv --allow-nan 2>.told || exit\n"
                "done\ncmp many.ini each.ini && quorconv list many.ini | grep -c .\n",
                "65\n", "quorconv: 29 probes exported\n");
    folder.Write("in.csv", "section,type,NumCoefficients,UsePolynomial,Coefficients0,Coefficients1\n"
                           "First,cvd,2,False,100,0.0039\n"
                           "Second,cvd,2,False,99.5,NaN\n"
                           "Third,cvd,2,False,99.5,\n"
                           "a]b,cvd,2,False,99.5,0.5\n"
                           "First - Settings,cvd,2,False,99.5,0.5\n");
    ExpectRefused({"put", "new.ini", "in.csv", "--csv"},
                  "quorconv: new.ini: nothing was written, because 4 lines of in.csv are wrong\n"
                  "  in.csv:3: new.ini: [Second] Coefficients1: NaN gives no temperature; --allow-nan "
                  "stores it\n"
                  "  in.csv:4: new.ini: [Third] Coefficients1: the value is missing, and the probe is a new "
                  "one\n"
                  "  in.csv:5: new.ini: [a]b]: no section can have this name: a \"]\" ends the name in the "
                  "file\n"
                  "  in.csv:6: new.ini: [First - Settings]: the section is not the record of a probe\n");
}

TEST_F(QuorconvExchangeTest, ACodeThatAnotherProbeOfTheFileHasIsRefusedForANewProbeAllTheSame) {
    folder.Write("host.ini", "[A]\nConversionType=1\n\n[A - Settings]\nIPTS-68 scale=5\nNumCoefficients=1\n"
                             "Coefficients0=25\n");
    folder.Write("in.csv", "section,IPTS-68 scale,NumCoefficients,Coefficients0\n"
                           "A,5,1,25.5\n"
                           "B,5,1,25.6\n");
    ExpectRefused({"put", "host.ini", "in.csv", "--csv", "--type", "i68"},
                  "quorconv: host.ini: nothing was written, because a line of in.csv is wrong\n"
                  "  in.csv:3: host.ini: [B] IPTS-68 scale: 5 is not accepted; range: 0 or 1\n");
}

TEST_F(QuorconvExchangeTest, AKeyOfAnInnerObjectIsRefusedOutsideItWhereItCouldStandForOneThatIsMissing) {
    std::filesystem::copy_file(QUOR_SAMPLES "/laboratory.ini", folder.Path("laboratory.ini"));
    ExpectShell("quorconv export laboratory.ini --jsonl --type i90 2>.told | head -n 1 >whole\n"
                "sed 's/Probe 1/Another/' whole >another\n"
                "sed 's/Probe 1/Third/; s/\"RTPW\": [0-9.]*, //; s/\"High Range\": /\"High Range\\/Range\": "
                "{\"code\": 11, "
                "\"name\": \"273 K to 302 K\"}, &/' whole >third\n"
                "cat whole another third | quorconv put new.ini --json >told 2>&1\n"
                "echo $?; grep -o 'there is no key \"High Range/Range\"' told; ls new.ini 2>&1 | grep -c ' '",
                "1\nthere is no key \"High Range/Range\"\n1\n", "");
}

TEST_F(QuorconvExchangeTest, TellsHowManyValuesAnEmptyFieldHasKept) {
    folder.Write("in.csv", "section,Coefficients0,Coefficients1,Coefficients2,Coefficients9\n"
                           "Bath,99.5,,,\n");
    ExpectShell("quorconv put host.ini in.csv --csv --type cvd", "",
                "quorconv: 1 probe put\nquorconv: 2 values kept: the fields are empty\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "100.0123", "99.5"));
}

TEST_F(QuorconvExchangeTest, AnEmptyFieldKeepsATextAsItKeepsANumber) {
    ExpectFine({"new", "a.ini", "T", "tcx", "TCType=4", "NumPoints=1", "Temperatures0=5", "Offsets0=0.25",
                "TempScale=C", "OffsetScale=C"});
    const std::string written = folder.Read("a.ini");
    folder.Write("in.csv", "section,TempScale,OffsetScale,Offsets0\nT,,,0.5\n");
    ExpectShell("quorconv put a.ini in.csv --csv --type tcx", "",
                "quorconv: 1 probe put\nquorconv: 2 values kept: the fields are empty\n");
    EXPECT_EQ(folder.Read("a.ini"), Replaced(written, "0.25", "0.5"));
}

TEST_F(QuorconvExchangeTest, TakesATableOfNewCertificates) {
    folder.Write("in.csv", "\xEF\xBB\xBFsection,Coefficients0\n\"Bath\",\"99,5\"\n\n");
    ExpectShell("quorconv put host.ini in.csv --csv --type cvd --decimal comma", "",
                "quorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("host.ini"), Replaced(before, "100.0123", "99.5"));
}

TEST_F(QuorconvExchangeTest, RefusesATableThatIsWrongWithLineAndColumn) {
    const std::vector<std::string> cvd{"--type", "cvd"};
    ExpectRefusedTable("name,type\n", "in.csv:1: there is no column \"section\"");
    ExpectRefusedTable("section,Coefficients0\n",
                       "in.csv:1: there is no column \"type\", and no --type says it");
    ExpectRefusedTable(
        "section,Coeficients0\nBath,1\n",
        "in.csv:1: column 2 (Coeficients0): a record of the type CONV_CVD has no such key; did you "
        "mean \"Coefficients0\"?",
        cvd);
    ExpectRefusedTable(
        "section,\"Coefficients0 [R0, mV]\"\nBath,1\n",
        "in.csv:1: column 2 (Coefficients0): \"Coefficients0 [R0, mV]\" is not \"Coefficients0 "
        "[R0, ohm]\"",
        cvd);
    ExpectRefusedTable("section,Coefficients0,coefficients0\nBath,1,2\n",
                       "in.csv:1: column 3: the column occurs twice", cvd);
    ExpectRefusedTable(
        "section,Coefficients0\n\nBath,\"99,5\"\n",
        "in.csv:3: column 2 (Coefficients0): \"99,5\" is not a number; the decimal sign is a point "
        "without --decimal comma",
        cvd);
    ExpectRefusedTable(
        "section,Coefficients0\nBath,99.5\n",
        "in.csv:2: column 2 (Coefficients0): \"99.5\" has a point, and the decimal sign is a comma",
        {"--type", "cvd", "--decimal", "comma"});
    ExpectRefusedTable("section,Coefficients0\nBath,1,2\n",
                       "in.csv:2: the line has 3 fields, and the first one has 2", cvd);
    ExpectRefusedTable("section,Coefficients0\nBath,\"1\nOven,2\nOil,3\n",
                       "in.csv:2: column 2: the quote that begins the field is not closed", cvd);
    ExpectRefusedTable(
        "section,Coefficients0\nBath,\"1\"2\n",
        "in.csv:2: column 2: a comma or the end of the line expected after the field in quotes", cvd);
    ExpectRefusedTable("section,Coefficients0\nBath,\"1\nOven,2\nOil,\"3\"\n",
                       "in.csv:2: column 2: a comma or the end of the line expected after the field in "
                       "quotes, which ends in line 4",
                       cvd);
    ExpectRefusedTable("section,Coefficients0\r\"Bath\",1\r",
                       "in.csv:1: the line ends in a lone carriage return; save the table with line ends "
                       "LF or CR LF",
                       cvd);
    ExpectRefusedTable("section,Coefficients0\nBath,1\nbath,2\n",
                       "in.csv:3: [bath]: the section occurs twice", cvd);
    ExpectRefusedTable(
        "section,Coefficients0\nNew,1\n",
        "in.csv:2: host.ini: [New] NumCoefficients, UsePolynomial, Coefficients1, Coefficients2, "
        "Coefficients3: the values are missing, and the probe is a new one",
        cvd);
    ExpectRefusedTable("section,type\nBath,w90\n",
                       "in.csv:2: column 2 (type): \"w90\" is not the type of --type CONV_CVD",
                       {"--type", "CONV_CVD"});
    ExpectRefusedTable("section,Coefficients0\nBath,\"1,2,3\"\n",
                       "in.csv:2: column 2 (Coefficients0): \"1,2,3\" is not a number",
                       {"--type", "cvd", "--decimal", "comma"});
    ExpectRefusedTable("section,NumCoefficients,Coefficients4\nBath,5,x\n",
                       "in.csv:2: column 3 (Coefficients4): \"x\" is not a number", cvd);
    ExpectRefusedTable(
        "section,Coefficients0\rBath,1\r",
        "in.csv:1: the line ends in a lone carriage return; save the table with line ends LF or "
        "CR LF",
        cvd);
    ExpectRefusedTable("section,Coefficients0\nB\xE4th,1\n",
                       "in.csv:2: the text is not UTF-8; save the table as \"CSV UTF-8\"", cvd);
    ExpectRefusedTable(
        "section,NumCoefficients,Coefficients0,Coefficients1,Coefficients2,Coefficients3\n"
        "Bath,3,100,0.0039,1.5,-4.183e-12\n",
        "in.csv:2: host.ini: [Bath] Coefficients3: the value -4.183e-12 is not accepted; it is "
        "beyond NumCoefficients=3",
        cvd);
    ExpectRefusedTable("section,,Coefficients0\nBath,,1\n", "in.csv:1: column 2: the column has no name",
                       cvd);
    ExpectRefusedTable("section,Coefficients0,,\nBath,1,,7\n",
                       "in.csv:2: column 4: there is a value in a column that has no name", cvd);
    ExpectRefusedTable("section,type\nBath,CONV_X\n",
                       "in.csv:2: column 2 (type): \"CONV_X\" is no conversion type");
}

TEST_F(QuorconvExchangeTest, LeavesOutColumnsAtTheEndThatAreEmptyInEveryLine) {
    folder.Write("in.csv", "section,type,RTPW,,\nNew,w90,25.5,,\n");
    ExpectShell("quorconv put new.ini in.csv --csv", "", "quorconv: 1 probe put\n");
    ExpectFine({"get", "new.ini", "New", "RTPW"}, "25.5\n");
}

TEST_F(QuorconvExchangeTest, RefusesOptionsThatSayNothingOfTheFormat) {
    folder.Write("in.json", "[]");
    const std::string style = "quorconv: --decimal and --separator are for --csv\n";
    ExpectRefused({"put", "host.ini", "in.json", "--json", "--decimal", "comma"}, style, 2);
    ExpectRefused({"put", "host.ini", "in.json", "--json", "--separator", "tab"}, style, 2);
    ExpectRefused({"export", "host.ini", "--jsonl", "--decimal", "comma"}, style, 2);
    ExpectRefused({"put", "host.ini", "in.json", "--json", "--type", "cvd"},
                  "quorconv: --type is for --csv; each probe in JSON has its own\n", 2);
    folder.Write("in.csv", "section,type\nBath,cvd\n");
    ExpectRefused({"put", "host.ini", "in.csv", "--csv", "--type", "zzz"},
                  "quorconv: \"zzz\" is no conversion type; the command \"types\" lists them\n", 2);
}

TEST_F(QuorconvExchangeTest, KeepsEveryTextOfATable) {
    ExpectFine({"new", "texts.ini", "P \"q\", r", "tcx", "TempScale=a,\"b\"\nc\r\n", "OffsetScale= "});
    ExpectShell("quorconv export texts.ini --csv --type tcx | quorconv put copy.ini --csv", "",
                "quorconv: 1 probe exported\nquorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("copy.ini"), folder.Read("texts.ini"));
}

TEST_F(QuorconvExchangeTest, ListsAndChangesWithoutReadingTheInputTwice) {
    ExpectFine({"list", "host.ini", "--json"},
               "[\n  {\"section\": \"Bath\", \"code\": 2, \"type\": \"CONV_CVD\", \"name\": \"Callendar-Van "
               "Dusen\", \"line\": 1}\n]\n");
    folder.Write("empty.ini", "");
    ExpectFine({"list", "empty.ini", "--json"}, "[]\n");
    ExpectFine({"show", "empty.ini", "--json"}, "[]\n");
}

// The schema is what quorconv itself would make; that it fits what is shown, and refuses what "put" refuses,
// is for a program that knows schemas.
TEST_F(QuorconvExchangeTest, DescribesItsJsonByASchemaThatTakesWhatItShowsAndNothingElse) {
    ExpectFine({"explain", "--json-schema"}, [] {
        std::ifstream file(QUOR_SCHEMA, std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(file), {}};
    }());
    folder.Write("numbers.ini",
                 "[N]\nConversionType=5\n[N - Settings]\nConvType=0\nNumCoefficients=4\n"
                 "Coefficients0=NaN\nCoefficients1=Infinity\nCoefficients2=-Infinity\n"
                 "Coefficients3=-0\n[O]\nConversionType=10\n[C]\nConversionType=2\n"
                 "[C - Settings]\nNumCoefficients=6\nUsePolynomial=True\nCoefficients0=1\n"
                 "Coefficients1=1\nCoefficients2=1\nCoefficients3=1\nCoefficients4=1\n"
                 "Coefficients5=1\n[T]\nConversionType=9\n[T - Settings]\nTCType=77\nNumPoints=0\n"
                 "TempScale=K\nOffsetScale=K\nCoefficients0=0\nCoefficients1=0\n");
    const Outcome run = Shell("quorconv show '" QUOR_SAMPLES "/laboratory.ini' --json >all.json\n"
                              "quorconv show numbers.ini --json >numbers.json\n"
                              "for sample in '" QUOR_SAMPLES "'/*.??? ; do\n"
                              "quorconv show $sample --json >$(basename $sample).json\ndone\n"
                              "/usr/bin/python3 '" QUOR_SCHEMA_CHECK "' '" QUOR_SCHEMA "' quorconv *.json");
    EXPECT_EQ(run.code, 0) << run.err << run.out;
}

TEST_F(QuorconvExchangeTest, AProbeOfAnUnknownTypeIsNoJsonForOtherPrograms) {
    folder.Write("a.ini", "[A]\nConversionType=99\n[B]\nConversionType=10\n");
    const std::string what = "quorconv: [A] ConversionType: 99 is the code of no conversion type\n";
    const std::string json =
        "{\"section\": \"B\", \"code\": 10, \"type\": \"CONV_OHMS\", \"name\": \"Ohms\", \"settings\": {}}\n";
    ExpectShell("quorconv show a.ini --jsonl", json, what, 1);
    ExpectShell("quorconv export a.ini --jsonl", json, what + "quorconv: 1 probe exported\n", 1);
    ExpectShell("quorconv show a.ini A --json", "", what, 1);
}

TEST_F(QuorconvExchangeTest, AGreaterCountThatIsPutNeedsItsValues) {
    ExpectFine({"new", "a.ini", "C", "cvd", "NumCoefficients=1", "Coefficients0=100"});
    const std::string written = folder.Read("a.ini");
    const std::string missing =
        " a.ini: [C] Coefficients1: the value is missing, and the record has none yet\n";
    folder.Write("in.csv", "section,type,NumCoefficients,Coefficients0,Coefficients1\nC,cvd,2,100.1,\n");
    ExpectRefused({"put", "a.ini", "in.csv", "--csv"},
                  "quorconv: a.ini: nothing was written, because a line of in.csv is wrong\n  in.csv:2:" +
                      missing);
    folder.Write("in.json", "{\"section\": \"C\", \"type\": \"CONV_CVD\", \"settings\": "
                            "{\"NumCoefficients\": 2, \"Coefficients\": [100.1]}}");
    const Outcome json = Quorconv({"put", "a.ini", "in.json", "--json"});
    EXPECT_EQ(json.code, 1);
    EXPECT_EQ(folder.Read("a.ini"), written);
    folder.Write("in.csv",
                 "section,type,NumCoefficients,Coefficients0,Coefficients1\nC,cvd,2,100.1,0.0039\n");
    ExpectShell("quorconv put a.ini in.csv --csv", "", "quorconv: 1 probe put\n");
}
