#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/quorconv/CommandLine.h"

#include <iostream>

namespace quorconv {
namespace {

/// The word by which the shell function below knows what completes an argument.
std::string WordOf(const Argument& argument) {
    switch (argument.meaning) {
    case Meaning::File:
        return "file";
    case Meaning::Section:
        return "section";
    case Meaning::Key:
        return "key";
    case Meaning::Assignment:
        return "assignment";
    case Meaning::Type:
        return "type";
    case Meaning::Choice: {
        std::string words = "choice";
        for (const std::string& choice : argument.choices)
            words += ":" + choice;
        return words;
    }
    case Meaning::Text:
        break;
    }
    return "text";
}

const char* const functions = R"shell(
# A name with blanks is completed in double quotes, whose last one the shell adds.
_quorconv_names() { # CURRENT NAME...
    local current=${1#[\"\']} name quoted=
    case ${COMP_WORDS[COMP_CWORD]-} in [\"\']*) ;; *) current=${current//\\/} ;; esac
    current=${current,,}
    shift
    case ${COMP_WORDS[COMP_CWORD]-} in [\"\']*) quoted=yes ;; esac
    for name; do
        case ${name,,} in
        "$current"*)
            if [ $quoted ]; then COMPREPLY+=("$name"); else COMPREPLY+=("$(printf %q "$name")"); fi
            ;;
        esac
    done
}

_quorconv() {
    local current=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]-} word option meaning='' file='' section=''
    local -a meanings options names
    local -i at position=0
    COMPREPLY=()
    if [ "$COMP_CWORD" -le 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "$_quorconv_commands --help --version" -- "$current")
        return
    fi
    [ "${_quorconv_arguments[$command]+known}" ] || return
    read -ra meanings <<<"${_quorconv_arguments[$command]}"
    read -ra options <<<"${_quorconv_options[$command]}"
    for ((at = 2; at < COMP_CWORD; ++at)); do
        word=${COMP_WORDS[at]}
        case $word in
        --*)
            for option in "${options[@]}"; do
                if [ "${option%%=*}" = "$word" ] && [ "$option" != "$word" ]; then
                    ((at + 1 == COMP_CWORD)) && meaning=${option#*=}
                    ((++at))
                fi
            done
            ;;
        *)
            case $word in # without its quotes
            \"*\" | \'*\') word=${word:1:${#word}-2} ;;
            *) word=${word//\\/} ;;
            esac
            case ${meanings[position]-} in
            file*) [ "$file" ] || file=$word ;;
            section* | type) [ "$section" ] || section=$word ;;
            esac
            case ${meanings[position]-} in *...) ;; *) ((++position)) ;; esac
            ;;
        esac
    done
    if [ ! "$meaning" ]; then
        case $current in
        -*)
            mapfile -t COMPREPLY < <(compgen -W "${options[*]%%=*} --help" -- "$current")
            return
            ;;
        esac
        meaning=${meanings[position]-}
    fi
    case ${meaning%...} in
    file)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        ;;
    type)
        mapfile -t COMPREPLY < <(compgen -W "$_quorconv_types" -- "$current")
        ;;
    choice:*)
        meaning=${meaning#choice:}
        mapfile -t COMPREPLY < <(compgen -W "${meaning//:/ }" -- "$current")
        ;;
    section)
        [ -f "$file" ] || return
        mapfile -t names < <("${COMP_WORDS[0]}" list "$file" 2>/dev/null | cut -f 1)
        _quorconv_names "$current" "${names[@]}"
        ;;
    key | assignment)
        if [ "$command" = explain ]; then
            mapfile -t names < <("${COMP_WORDS[0]}" explain "$section" 2>/dev/null |
                sed -n 's/^\([A-Z][^ ]*\)\( (.*\)\{0,1\}$/\1/p' | sort -u)
        elif [ -f "$file" ]; then
            mapfile -t names < <("${COMP_WORDS[0]}" show "$file" "$section" 2>/dev/null | sed -n '2,$s/=.*//p')
        fi
        if [ "${meaning%...}" = assignment ]; then
            names=("${names[@]/%/=}")
            compopt -o nospace 2>/dev/null
        fi
        _quorconv_names "$current" "${names[@]}"
        ;;
    esac
}

complete -F _quorconv quorconv
)shell";

/// The words for the types, for the shell.
std::string TypeWords() {
    std::string types;
    for (const QuorProbeFile::TypeInfo& type : QuorProbeFile::Types())
        for (const std::wstring& word : {type.enumerator, type.extension})
            if (!word.empty())
                types.append(types.empty() ? "" : " ").append(QuorIniFile::ToUtf8(word));
    return types;
}

class Completion final : public Command {
    std::wstring m_shell;

    void Declare(Arguments& arguments) override {
        arguments.One("SHELL", m_shell, Meaning::Text, "The shell: bash");
    }

    ExitCode Run() override {
        if (m_shell != L"bash")
            throw UsageError{L"\"bash\" expected: " + m_shell};
        std::cout
            << "# Completes the commands of quorconv in bash. Made by \"quorconv completion bash\".\n\n";
        std::string names;
        std::string arguments;
        std::string options;
        for (const DeclaredCommand& command : DeclaredCommands()) {
            names += (names.empty() ? "" : " ") + command.name;
            arguments += "    [" + command.name + "]='";
            options += "    [" + command.name + "]='";
            const char* separator = "";
            const char* optionSeparator = "";
            for (const Argument& argument : command.arguments) {
                if (argument.IsOption()) {
                    options.append(optionSeparator).append(argument.name);
                    if (!argument.value.empty())
                        options.append("=").append(WordOf(argument));
                    optionSeparator = " ";
                } else {
                    arguments.append(separator).append(WordOf(argument));
                    arguments += argument.name.ends_with("...") ? "..." : "";
                    separator = " ";
                }
            }
            arguments += "'\n";
            options += "'\n";
        }
        std::cout << "_quorconv_commands='" << names << "'\n_quorconv_types='" << TypeWords()
                  << "'\ndeclare -gA _quorconv_arguments=(\n"
                  << arguments << ")\ndeclare -gA _quorconv_options=(\n"
                  << options << ")\n"
                  << functions;
        return fine;
    }
};

} // namespace

const CommandRow completionRow{"completion",
                               "Print the completion script of a shell, for commands, sections and keys",
                               {"quorconv completion bash >quorconv.bash"},
                               Create<Completion>};

} // namespace quorconv
