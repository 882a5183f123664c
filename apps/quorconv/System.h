#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// What quorconv asks of the operating system beside its files.
namespace quorconv {

/// The standard output and the standard error.
enum class Stream { Output, Error };

/// The arguments of the program as UTF-8, its name first. From here on the standard streams take and give
/// bytes as they are, and a terminal shows them as UTF-8.
[[nodiscard]] std::vector<std::string> StartProgram(int argc, char** argv);

/// Whether that is a terminal that can move its cursor and shows colours.
[[nodiscard]] bool IsTerminal(Stream stream);

/// A new folder for this user alone, of a name that nobody foresees; nothing when none can be made.
[[nodiscard]] std::optional<std::filesystem::path> NewPrivateFolder();

/// Whether a window can be shown.
[[nodiscard]] bool HasDisplay();

/// Goes on as another program: that beside this one, or the one that is installed. Returns when there is
/// none.
void BecomeProgram(const std::string& name, std::vector<std::string> arguments);

} // namespace quorconv
