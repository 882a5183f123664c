#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeTypes.h"

#include <iostream>

namespace quorconv {
namespace {

class ListTypes final : public Command {
    void Declare(Arguments& /*arguments*/) override {}
    ExitCode Run() override {
        for (const QuorProbeFile::TypeInfo& type : QuorProbeFile::Types())
            std::cout << type.code << '\t' << QuorIniFile::ToUtf8(type.enumerator) << '\t'
                      << QuorIniFile::ToUtf8(type.name) << '\t' << QuorIniFile::ToUtf8(type.extension)
                      << '\n';
        return fine;
    }
};

} // namespace

const CommandRow typesRow{"types",
                          "List the conversion types: code, enumerator, name, file extension",
                          {"quorconv types"},
                          Create<ListTypes>};

} // namespace quorconv
