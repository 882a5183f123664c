#pragma once

#include "apps/quorconv/Arguments.h"

#include <string>
#include <vector>

namespace quorconv {

/// Runs the command that the arguments name; the exit code of the program. What fails is printed.
int RunCommandLine(int argc, const char* const* argv);

/// The arguments that a command declares, for those who make something else from the table of commands.
struct DeclaredCommand {
    std::string name;
    std::string what;
    std::vector<Argument> arguments;
};
[[nodiscard]] std::vector<DeclaredCommand> DeclaredCommands();

} // namespace quorconv
