#pragma once

#include <string_view>

namespace Interop {

/// The file of a host that was there before us: two kinds of line ends, two kinds of comments, and values
/// that mean something to the host alone.
inline constexpr std::string_view hostFile = "; settings of the rig\r\n"
                                             "[Rig]\r\n"
                                             "Folder=C:\\Data\\Runs\r\n"
                                             "Columns=Channel;Probe;Temperature\r\n"
                                             "Name = Rig 4 ; the old one\r\n"
                                             "\r\n"
                                             "# certificate 4711\r\n"
                                             "[Probe]\r\n"
                                             "R0=100.0123\r\n"
                                             "Alpha=0.00385055\r\n";

/// The one edit: R0 becomes 100.5.
inline constexpr std::string_view editedLine = "R0=100.5\r\n";
inline constexpr double editedValue = 100.5;

} // namespace Interop
