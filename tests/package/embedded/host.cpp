#include <QuorIniFile/QuorIniFile.h>

#include <string>

// host FOLDER: writes a value into a file there and reads it back.
int main(int, char* arguments[]) {
    const std::string folder = arguments[1];
    QuorIniFile::IniStore file;
    file.SetFileName(std::wstring(folder.begin(), folder.end()) + L"/host.ini");
    file.SetSection(L"Host");
    file.WriteDouble(L"Value", 0.1, L"");
    double value = 0;
    return file.ReadDouble(L"Value", value) && value == 0.1 ? 0 : 1;
}
