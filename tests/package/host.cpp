// A host as small as one can be: keeps a probe in a file and reads it back. Usage: host FOLDER

#include <QuorConversions/core/CQuorConversion.h>
#include <QuorConversions/rtd/CQuorCVD.h>

#include <iostream>
#include <string>

using namespace QuorConversions;

int main(int, char** argv) {
    const std::string folder = argv[1];
    const std::wstring file = std::wstring(folder.begin(), folder.end()) + L"/probes.ini";
    std::shared_ptr<INIFile> none;

    CQuorConversion probe;
    probe.SetConversionType(CONV_CVD);
    SettingsAs<CQuorCVD>(probe)->SetCoefficients(CVD_R0, 100.0123);
    probe.WriteToFile(none, file, L"Probe 1");

    CQuorConversion again;
    if (!again.ReadFromFile(none, file, L"Probe 1"))
        return 1;
    try {
        (void)SettingsAs<CQuorCVD>(again)->Coefficients(4);
        return 1;
    } catch (const QuorError& error) { // crosses the border of a shared library
        if (error.Number() != QuorIniFile::ERR_INDEX_OUT_OF_RANGE)
            return 1;
    }
    return SettingsAs<CQuorCVD>(again)->Coefficients(CVD_R0) == 100.0123 ? 0 : 1;
}
