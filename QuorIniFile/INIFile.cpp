#include "QuorIniFile/INIFile.h"

namespace QuorIniFile {

INIFile::~INIFile() = default;
void INIFile::Hold() {}
void INIFile::Release() {}
void INIFile::Abandon() { Release(); }

} // namespace QuorIniFile
