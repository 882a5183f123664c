// No command loses or misreads a value without being told to.

#include "tests/apps/quorconv/Quorconv.h"

namespace {

class QuorconvLossTest : public QuorconvTest {
protected:
    const std::string lost = " values of the probe would be lost; --drop lets them go\n";
};

} // namespace

TEST_F(QuorconvLossTest, ASmallerCountNamesTheValuesThatItWouldLeaveOut) {
    ExpectFine({"new", "a.ini", "C", "cvd", "Coefficients0=100", "Coefficients2=1.5", "Coefficients3=0.1"});
    ExpectFine({"new", "a.ini", "T", "tct", "NumPoints=2", "Temperatures1=5", "Voltages1=0.25"});
    const std::string before = folder.Read("a.ini");
    ExpectRefused({"set", "a.ini", "C", "NumCoefficients=2"},
                  "quorconv: a.ini: [C]" + lost + "  Coefficients2=1.5\n  Coefficients3=0.1\n");
    ExpectRefused({"set", "a.ini", "T", "NumPoints=1"},
                  "quorconv: a.ini: [T]" + lost + "  Temperatures1=5\n  Voltages1=0.25\n");
    EXPECT_EQ(folder.Read("a.ini"), before);
    ExpectFine({"set", "a.ini", "T", "NumPoints=1", "--drop"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(before, "NumPoints=2", "NumPoints=1"));
}

TEST_F(QuorconvLossTest, AnotherRangeNamesTheCoefficientsThatItDoesNotHave) {
    ExpectFine({"new", "a.ini", "P", "i90", "High Range/Range=6", "High Range/Coefficients0=1e-3",
                "High Range/Coefficients3=2e-3"});
    const std::string before = folder.Read("a.ini");
    ExpectRefused({"set", "a.ini", "P", "High Range/Range=8"},
                  "quorconv: a.ini: [P]" + lost + "  High Range/Coefficients3=0.002\n");
    ExpectRefused({"set", "a.ini", "*", "--type", "i90", "High Range/Range=-1"},
                  "quorconv: a.ini: [P]" + lost +
                      "  High Range/Coefficients0=0.001\n  High Range/Coefficients3=0.002\n");
    EXPECT_EQ(folder.Read("a.ini"), before);
    ExpectFine({"set", "a.ini", "P", "High Range/Range=8", "--drop"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(before, "Range=6", "Range=8"));
}

TEST_F(QuorconvLossTest, AGreaterCountDoesNotWriteOverValuesThatASmallerOneHasLeftInTheFile) {
    const std::string file = "[C]\nConversionType=2\n[C - Settings]\nNumCoefficients=2\nUsePolynomial=0\n"
                             "Coefficients0=100\nCoefficients1=0.0039\nCoefficients2=1.5\n";
    folder.Write("a.ini", file);
    ExpectRefused({"set", "a.ini", "C", "NumCoefficients=3"},
                  "quorconv: a.ini: [C]" + lost + "  Coefficients2=1.5\n");
    EXPECT_EQ(folder.Read("a.ini"), file);
    ExpectFine({"set", "a.ini", "C", "NumCoefficients=3", "Coefficients2=1.5"});
    EXPECT_EQ(folder.Read("a.ini"), Replaced(file, "NumCoefficients=2", "NumCoefficients=3"));
}

TEST_F(QuorconvLossTest, StepsAndTablesNameTheirLineWhenTheyWouldLoseValues) {
    ExpectFine({"new", "a.ini", "C", "cvd", "Coefficients3=1"});
    const std::string before = folder.Read("a.ini");
    ExpectShell("printf 'set C Coefficients0=1\nset C NumCoefficients=1\n' | quorconv apply a.ini", "",
                "quorconv: a.ini: nothing was written, because a line of - is wrong\n"
                "  -:2: a.ini: [C]" +
                    lost + "    Coefficients3=1\n",
                1);
    ExpectShell("printf 'section,type,NumCoefficients\nC,cvd,1\n' | quorconv put a.ini --csv", "",
                "quorconv: a.ini: nothing was written, because a line of - is wrong\n"
                "  -:2: a.ini: [C]" +
                    lost + "    Coefficients3=1\n",
                1);
    EXPECT_EQ(folder.Read("a.ini"), before);
    ExpectShell("printf 'section,type,NumCoefficients\nC,cvd,1\n' | quorconv put a.ini --csv --drop", "",
                "quorconv: 1 probe put\n");
    EXPECT_EQ(folder.Read("a.ini"), Replaced(before, "NumCoefficients=4", "NumCoefficients=1"));
}
