#pragma once

#include "tests/apps/quorconv/Quorconv.h"

#include <string>

/// The file of a host: a section of its own, a probe with settings, and one without.
inline const std::string host = "; The host's own file\n"
                                "\n"
                                "[Instrument]\n"
                                "Port=COM3\n"
                                "\n"
                                "; the reference\n"
                                "[Probe 1]\n"
                                "Version=1.0\n"
                                "ConversionType=2\n"
                                "\n"
                                "[Probe 1 - Settings]\n"
                                "Version=1.0\n"
                                "NumCoefficients=4\n"
                                "UsePolynomial=False\n"
                                "; as calibrated\n"
                                "Coefficients0=100.0\n"
                                "Coefficients1=3.9083E-3\n"
                                "Coefficients2=1.5\n"
                                "Coefficients3=0\n"
                                "\n"
                                "[Probe 2]\n"
                                "Version=1.0\n"
                                "ConversionType=10\n";

/// That text as the file "host.ini" in a folder of the test's own, where quorconv runs too.
class HostFileTest : public QuorconvTest {
protected:
    void SetUp() override { folder.Write("host.ini", host); }
    [[nodiscard]] std::string File() const { return folder.Read("host.ini"); }
};
