#include "apps/quorconv/System.h"

#include "QuorIniFile/Utf8.h"

#include <cstdint>
#include <memory>
#include <random>
#include <system_error>

#include <fcntl.h>
#include <io.h>
#include <stdio.h> // NOLINT(modernize-deprecated-headers): _fileno is not in cstdio

#include <windows.h>

#include <shellapi.h>

namespace quorconv {

std::vector<std::string> StartProgram(int /*argc*/, char** /*argv*/) {
    for (FILE* const stream : {stdin, stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
    ::SetConsoleOutputCP(CP_UTF8);

    struct LocalMemory {
        void operator()(wchar_t** memory) const { ::LocalFree(static_cast<HLOCAL>(memory)); }
    };
    int count = 0;
    const std::unique_ptr<wchar_t*, LocalMemory> wide(::CommandLineToArgvW(::GetCommandLineW(), &count));
    std::vector<std::string> arguments;
    for (int i = 0; wide && i < count; ++i)
        arguments.push_back(QuorIniFile::ToUtf8(wide.get()[i]));
    return arguments;
}

bool IsTerminal(Stream stream) {
    const HANDLE handle = ::GetStdHandle(stream == Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    DWORD mode = 0;
    return ::GetConsoleMode(handle, &mode) != FALSE &&
           ::SetConsoleMode(handle, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != FALSE;
}

// The folder for temporary files is the user's own, and what is made in it has its rights.
std::optional<std::filesystem::path> NewPrivateFolder() {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    for (int attempts = 0; !error && attempts < 10; ++attempts) {
        std::random_device device;
        const auto path = folder / ("quorconv-" + std::to_string(std::uint64_t{device()} << 32U | device()));
        if (std::filesystem::create_directory(path, error))
            return path;
    }
    return std::nullopt;
}

bool HasDisplay() { return true; }

// The program with the windows is not made for this system.
void BecomeProgram(const std::string& /*name*/, std::vector<std::string> /*arguments*/) {}

} // namespace quorconv
