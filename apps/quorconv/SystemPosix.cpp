#include "apps/quorconv/System.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iterator>
#include <string_view>
#include <system_error>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp is not in cstdlib
#include <unistd.h>

namespace quorconv {

std::vector<std::string> StartProgram(int argc, char** argv) {
    static_cast<void>(
        std::signal(SIGXFSZ, SIG_IGN)); // a file that must not grow is an error of its write, which is told
    return {argv, argv + argc};
}

bool IsTerminal(Stream stream) {
    const char* const kind = std::getenv("TERM");
    return ::isatty(stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO) != 0 && kind != nullptr &&
           std::string_view(kind) != "dumb";
}

std::optional<std::filesystem::path> NewPrivateFolder() {
    std::string path = (std::filesystem::temp_directory_path() / "quorconv-XXXXXX").string();
    return ::mkdtemp(path.data()) != nullptr ? std::optional<std::filesystem::path>(path) : std::nullopt;
}

bool HasDisplay() {
    static constexpr const char* names[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::any_of(std::begin(names), std::end(names), [](const char* name) {
        const char* const value = std::getenv(name);
        return value != nullptr && *value != '\0';
    });
}

void BecomeProgram(const std::string& name, std::vector<std::string> arguments) {
    std::error_code ignored;
    const auto beside = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path() / name;
    for (std::string program : {beside.string(), name}) {
        std::vector<char*> pointers{program.data()};
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        ::execvp(pointers.front(), pointers.data());
    }
}

} // namespace quorconv
