#pragma once

#include <string>

namespace QuorIniFile {

/// A file that a save has left beside the saved one.
struct IniLeftover {
    /// Its path; bytes that are not UTF-8 are read as Latin-1.
    std::wstring path;
    /// True for a version of the file that another program wrote at the very moment of a save, which reported
    /// it. It stays until somebody removes it. Other leftovers are from an interrupted save: the next save
    /// removes them, unless their lock file is gone.
    bool isKept = false;
};

} // namespace QuorIniFile
