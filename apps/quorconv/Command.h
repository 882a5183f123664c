#pragma once

#include "apps/quorconv/Arguments.h"
#include "apps/quorconv/Failure.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace quorconv {

/// A command of the program.
class Command {
public:
    Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    virtual ~Command() = default;

    virtual void Declare(Arguments& arguments) = 0;
    /// Prints its results on the standard output; raises Problem, UsageError or QuorError when it cannot do
    /// what it is asked, and nothing has been written then.
    virtual ExitCode Run() = 0;
    /// How the program ends when Run raises anything but UsageError.
    [[nodiscard]] virtual ExitCode Failure() const { return problemFound; }
};

/// A row of the table of commands.
struct CommandRow {
    const char* name;
    const char* what;                    ///< it does, for the help
    std::array<const char*, 2> examples; ///< whole lines for a shell; the second may be null
    std::unique_ptr<Command> (*create)();
};

template <class C>
std::unique_ptr<Command> Create() {
    return std::make_unique<C>();
}

/// All commands, in the order of the help.
[[nodiscard]] const std::vector<const CommandRow*>& Commands();

} // namespace quorconv
