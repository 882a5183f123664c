#pragma once

#include <string>

namespace QuorIniFile {

/// A file that a save has left beside its own.
struct IniLeftover {
    std::string path; // as the system takes it
    /// What another program had put in the place of the file at the very moment of a save, which has told so.
    /// It stays until somebody removes it. Others are what an interrupted save has left: the next save
    /// removes them, or, where their lock file is gone, nobody does.
    bool isKept = false;
};

} // namespace QuorIniFile
