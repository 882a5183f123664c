#pragma once

#include <string>

namespace QuorIniFile {

/// A file that a save has left beside its own.
struct IniLeftover {
    /// A path as names of files are given; bytes in it that are no UTF-8 stand for Latin-1.
    std::wstring path;
    /// What another program had put in the place of the file at the very moment of a save, which has told so.
    /// It stays until somebody removes it. Others are what an interrupted save has left: the next save
    /// removes them, or, where their lock file is gone, nobody does.
    bool isKept = false;
};

} // namespace QuorIniFile
