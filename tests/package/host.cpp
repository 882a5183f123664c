// A host as small as one can be: keeps a probe in a file and reads it back, in a thread whose stack is as
// small as those of instruments. Usage: host FOLDER

#include <QuorConversions/core/CQuorConversion.h>
#include <QuorConversions/rtd/CQuorCVD.h>
#include <QuorProbeFile/QuorProbeFile.h>

#include <string>

#include <pthread.h>

using namespace QuorConversions;

namespace {

int KeepProbe(const std::wstring& file) {
    CQuorConversion probe;
    probe.SetConversionType(CONV_CVD);
    SettingsAs<CQuorCVD>(probe)->SetCoefficients(CVD_R0, 100.0123);
    SettingsAs<CQuorCVD>(probe)->SetCoefficients(CVD_ALPHA, 3.85055E-3);
    SettingsAs<CQuorCVD>(probe)->SetCoefficients(CVD_DELTA, 1.499786);
    probe.WriteToFile(file, L"Probe 1");

    CQuorConversion again;
    if (!again.ReadFromFile(file, L"Probe 1"))
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

int KeepFile(const std::wstring& path) {
    QuorProbeFile::ProbeFile file(path);
    CQuorConversion probe;
    if (!file.Read(L"Probe 1", probe).IsWhole() || !file.Check().empty())
        return 1;
    file.Write(L"Probe 2", probe);
    try {
        file.Rename(L"Probe 2", L"Probe 1");
        return 1;
    } catch (const QuorProbeFile::ProbeFileError& error) { // crosses a border, too
        if (error.Code() != QuorProbeFile::PROBE_NAME_IS_TAKEN)
            return 1;
    }
    return file.Probes().size() == 2 && file.Probes()[1].section == L"Probe 2" ? 0 : 1;
}

struct Task {
    std::wstring file;
    int result = 1;
};

void* Run(void* argument) {
    Task& task = *static_cast<Task*>(argument);
    task.result = KeepProbe(task.file) == 0 && KeepFile(task.file) == 0 ? 0 : 1;
    return nullptr;
}

} // namespace

int main(int, char** argv) {
    const std::string folder = argv[1];
    Task task{std::wstring(folder.begin(), folder.end()) + L"/probes.ini"};
    pthread_attr_t attributes;
    pthread_t thread;
    if (pthread_attr_init(&attributes) != 0 || pthread_attr_setstacksize(&attributes, 65536) != 0 ||
        pthread_create(&thread, &attributes, Run, &task) != 0 || pthread_join(thread, nullptr) != 0)
        return 1;
    return task.result;
}
