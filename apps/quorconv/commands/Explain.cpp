#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/RecordReference.h"
#include "apps/quorconv/Nearest.h"
#include "apps/quorconv/ProbeJson.h"
#include "apps/quorconv/Selection.h"

#include <iostream>

namespace quorconv {

using namespace QuorProbeFile;
using QuorIniFile::ToUtf8;

namespace {

class Explain final : public Command {
    std::optional<std::wstring> m_type;
    std::optional<std::wstring> m_key;
    bool m_isSchema = false;

    void Declare(Arguments& arguments) override {
        arguments.Maybe("TYPE", m_type, Meaning::Type,
                        "A code (2), an enumerator (CONV_CVD) or a file extension (cvd)");
        arguments.Maybe("KEY", m_key, Meaning::Key,
                        "A key, or the name of a coefficient: Coefficients1, ALPHA");
        arguments.Flag("--json-schema", m_isSchema, "Print the JSON Schema of probes instead");
    }

    ExitCode Run() override {
        if (m_isSchema) {
            std::cout << JsonSchema();
            return fine;
        }
        if (!m_type)
            throw UsageError{L"TYPE expected; the command \"types\" lists them"};
        const TypeInfo& type = RequireType(*m_type);
        if (!m_key) {
            std::cout << ToUtf8(type.enumerator) << " (" << type.code << "): " << ToUtf8(type.name) << '\n';
            if (!type.extension.empty())
                std::cout << "Stand-alone files: ." << ToUtf8(type.extension) << ", section ["
                          << ToUtf8(type.section) << "]\n";
            if (RecordKeys(type.code).empty())
                std::cout << "A record of this type has no settings.\n";
        }
        bool isFound = false;
        for (const RecordKey& key : RecordKeys(type.code)) {
            const bool isNamed = m_key && !m_key->empty() && EqualFolded(key.name, *m_key);
            if (m_key && !isNamed && !EqualFolded(key.path, *m_key))
                continue;
            isFound = true;
            Print(key);
        }
        if (m_key && !isFound) {
            std::vector<std::wstring> known;
            for (const RecordKey& key : RecordKeys(type.code)) {
                known.push_back(key.path);
                known.push_back(key.name);
            }
            throw Problem{type.enumerator + L": there is no key \"" + *m_key + L"\"" +
                          DidYouMean(*m_key, known)};
        }
        return fine;
    }

    static void Print(const RecordKey& key) {
        std::cout << '\n' << ToUtf8(key.path);
        if (!key.name.empty())
            std::cout << " (" << ToUtf8(key.name) << ')';
        if (key.form != RecordForm::Any)
            std::cout << ", with UsePolynomial=" << (key.form == RecordForm::Polynomial ? "True" : "False");
        std::cout << '\n';
        Line("meaning", key.meaning);
        Line("unit", key.unit == L"1" ? L"none (a ratio)" : key.unit);
        Line("range", key.range);
        Line("usual", key.usual);
        Line("default", ToText(key.initial));
        for (const RecordChoice& choice : key.choices)
            Line("", std::to_wstring(choice.code) + L": " + choice.name);
    }

    static void Line(const char* name, const std::wstring& text) {
        constexpr std::size_t width = 9;
        if (!text.empty())
            std::cout << "  " << name << std::string(width - std::string_view(name).size(), ' ')
                      << ToUtf8(text) << '\n';
    }
};

} // namespace

const CommandRow explainRow{"explain",
                            "Describe the records of a type: keys, meaning, unit, range, default",
                            {"quorconv explain cvd ALPHA"},
                            Create<Explain>};

} // namespace quorconv
