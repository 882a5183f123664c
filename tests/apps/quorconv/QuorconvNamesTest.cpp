// Names of probes that are not plain: beyond the encoding of the file, and with tabs and backslashes.

#include "tests/apps/quorconv/Quorconv.h"

namespace {

using QuorconvNamesTest = QuorconvTest;

const std::string latin1 = "; caf\xE9\n[P\xFC]\nConversionType=14\n[P\xFC - Settings]\nRTPW=25\n";
const std::string reason = "no section can have this name: the file is in Latin-1, which cannot spell it; "
                           "save the file as UTF-8 first\n";

} // namespace

TEST_F(QuorconvNamesTest, BeyondTheLatin1OfTheFileAreRefusedAndTheFileStaysOfOneEncoding) {
    folder.Write("l1.ini", latin1);
    for (const std::string name : {"\u03A9mega", "P\u00B5 \u03A9", "\u00C3\u00BC"}) {
        const std::string told = "quorconv: l1.ini: [" + name + "]: " + reason;
        ExpectRefused({"new", "l1.ini", name, "pt1", "Coefficients0=1"}, told);
        ExpectRefused({"rename", "l1.ini", "P\u00FC", name}, told);
        ExpectRefused({"copy", "l1.ini", "P\u00FC", "l1.ini", name}, told);
        folder.Write("new.csv", "section,type,RTPW\n" + name + ",w90,1\n");
        ExpectRefused({"put", "l1.ini", "new.csv", "--csv"},
                      "quorconv: l1.ini: nothing was written, because a line of new.csv is wrong\n"
                      "  new.csv:2: l1.ini: [" +
                          name + "]: " + reason);
        folder.Write("steps.txt", "rename \"P\u00FC\" \"" + name + "\"\n");
        ExpectRefused({"apply", "l1.ini", "steps.txt"},
                      "quorconv: l1.ini: nothing was written, because a line of steps.txt is wrong\n"
                      "  steps.txt:1: l1.ini: [" +
                          name + "]: " + reason);
        EXPECT_EQ(folder.Read("l1.ini"), latin1);
    }
    ExpectFine({"rename", "l1.ini", "P\u00FC", "P\u00B5"});
    EXPECT_EQ(folder.Read("l1.ini"), "; caf\xE9\n[P\xB5]\nConversionType=14\n[P\xB5 - Settings]\nRTPW=25\n");
}

TEST_F(QuorconvNamesTest, InAnotherEncodingThanTheRestOfTheFileAreToldByACheck) {
    folder.Write("l1.ini", latin1 + "[\xCE\xA9]\nx=1\n");
    const std::string told = "l1.ini:6: warning: the line is in UTF-8, and line 1 is not: programs that take "
                             "the file for one of the two misread the other [mixed-encoding]\n";
    ExpectFine({"check", "l1.ini"}, told);
    ExpectFine({"check", "l1.ini", "--ignore", "mixed-encoding"});
    EXPECT_EQ(Quorconv({"check", "l1.ini", "--strict"}).code, 1);
    folder.Write("l1.ini", latin1);
    ExpectFine({"check", "l1.ini"});
}

TEST_F(QuorconvNamesTest, WithControlCharactersAreNotGivenToNewProbesAndAreReadWhereTheyStand) {
    const std::string tabbed = "[a\tb]\nConversionType=14\n[a\tb - Settings]\nRTPW=25\n";
    folder.Write("host.ini", tabbed);
    for (const std::string name : {"c\td", "c\x1B", "c\x7F"})
        EXPECT_EQ(Quorconv({"rename", "host.ini", "a\tb", name}).code, 1);
    ExpectRefused({"new", "host.ini", "c\td", "w90", "RTPW=25"},
                  "quorconv: host.ini: [c\\td]: no section can have this name: it has a tab or another "
                  "control character, which no list of names can show as it is\n");
    EXPECT_EQ(folder.Read("host.ini"), tabbed);
    ExpectFine({"get", "host.ini", "a\tb", "RTPW"}, "25\n");
    ExpectFine({"rename", "host.ini", "a\tb", "a\\tb"});
    ExpectFine({"list", "host.ini"}, "a\\tb\tCONV_WT90\tW(T90)\n");
}
