#pragma once

#include "apps/quorconv/Arguments.h"

#include <string>
#include <vector>

namespace quorconv {

/// Runs the command that the arguments name; the exit code of the program. What fails is printed.
int RunCommandLine(int argc, const char* const* argv);

inline constexpr const char* version = QUORCONV_VERSION;
inline constexpr const char* whatItDoes = "View, change and check the probe records in INI files.";
inline constexpr const char* exitCodes =
    "Exit codes: 0 success, 1 a problem was found (or files differ), 2 wrong usage (or no comparison).";
inline constexpr const char* standardStreams =
    "\"-\" for a file is the standard input; what a command writes into it goes to the standard output.";

/// The arguments that a command declares, for those who make something else from the table of commands.
struct DeclaredCommand {
    std::string name;
    std::string what;
    std::vector<Argument> arguments;
    std::vector<const char*> examples;
};
[[nodiscard]] std::vector<DeclaredCommand> DeclaredCommands();

} // namespace quorconv
