#include "QuorIniFile/INIFile.h"

namespace QuorIniFile {

INIFile::~INIFile() = default;
void INIFile::Hold() {}
void INIFile::Release() {}

} // namespace QuorIniFile
