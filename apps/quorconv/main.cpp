// quorconv: probe records in INI files, from the command line.

#include "apps/quorconv/CommandLine.h"
#include "apps/quorconv/System.h"

int main(int argc, char** argv) {
    const std::vector<std::string> arguments = quorconv::StartProgram(argc, argv);
    std::vector<const char*> pointers;
    pointers.reserve(arguments.size());
    for (const std::string& argument : arguments)
        pointers.push_back(argument.c_str());
    return quorconv::RunCommandLine(static_cast<int>(pointers.size()), pointers.data());
}
