#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/ProbeWarning.h"
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
    case Meaning::Warning: {
        std::string words = "choice";
        for (const QuorProbeFile::ProbeWarning& warning : QuorProbeFile::Warnings())
            words.append(":").append(QuorIniFile::ToUtf8(warning.id));
        return words;
    }
    case Meaning::Shell:
        return "choice:bash";
    case Meaning::Text:
        break;
    }
    return "text";
}

const char* const functions = R"shell(
# A name with blanks is completed in double quotes, whose last one the shell adds.
_quorconv_names() { # CURRENT NAME...
    local current=${1#[\"\']} name quoted=
    case $1 in [\"\']*) quoted=yes ;; *) current=${current//\\/} ;; esac
    current=${current,,}
    shift
    for name; do
        case ${name,,} in
        "$current"*)
            # What the shell would take for more than a text inside quotes is not offered there.
            if [ ! $quoted ]; then
                COMPREPLY+=("$(printf %q "$name")")
            elif [[ $name != *[\$\`\"\'\!\\]* ]]; then
                COMPREPLY+=("$name")
            fi
            ;;
        esac
    done
}

# The value that is typed behind "--option=" or in an argument of its own, without what stands before it.
_quorconv_values() { # MEANING CURRENT
    local meaning=${1%...} current=$2 coefficient=''
    local -a names
    case $meaning in
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
        if [ "$type" ]; then # "explain" takes the names of coefficients, too
            [ "$command" = explain ] && coefficient='\n\1'
            mapfile -t names < <("${COMP_WORDS[0]}" explain "$type" 2>/dev/null |
                sed -n '/^$/{n;s/, with UsePolynomial=.*//;s/ (\([^)]*\))$/'"$coefficient"'/;p;}' | sort -u)
        elif [ -f "$file" ]; then
            mapfile -t names < <("${COMP_WORDS[0]}" show "$file" "$section" 2>/dev/null | sed -n '2,$s/=.*//p')
            [ "$command" = get ] && names+=(ConversionType)
        fi
        if [ "$meaning" = assignment ]; then
            case $current in *=*) return ;; esac
            names=("${names[@]/%/=}")
            compopt -o nospace 2>/dev/null
        fi
        _quorconv_names "$current" "${names[@]}"
        ;;
    esac
}

_quorconv() {
    local current=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]-} word option meaning='' before=''
    local file='' section='' type='' typed
    local -a words meanings options
    local -i at position=0
    COMPREPLY=()
    if [ "$COMP_CWORD" -le 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "$_quorconv_commands --help --version" -- "$current")
        return
    fi
    [ "${_quorconv_arguments[$command]+known}" ] || return
    read -ra meanings <<<"${_quorconv_arguments[$command]}"
    read -ra options <<<"${_quorconv_options[$command]}"
    for ((at = 2; at <= COMP_CWORD; ++at)); do # "--type=cvd" and "Order=1" may have been split at the "="
        word=${COMP_WORDS[at]}
        case ${#words[@]},$word,${COMP_WORDS[at - 1]} in
        [1-9]*,=,* | [1-9]*,=) words[-1]+=$word ;;
        *) words+=("$word") ;;
        esac
    done
    typed=${words[-1]}
    unset 'words[-1]'
    for ((at = 0; at < ${#words[@]}; ++at)); do
        word=${words[at]}
        case $word in
        --*=*) ;;
        --*)
            for option in "${options[@]}"; do
                if [ "${option%%=*}" = "$word" ] && [ "$option" != "$word" ]; then
                    ((at + 1 == ${#words[@]})) && meaning=${option#*=}
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
            section*) [ "$section" ] || section=$word ;;
            type) type=$word ;;
            esac
            case ${meanings[position]-} in *...) ;; *) ((++position)) ;; esac
            ;;
        esac
    done
    case $meaning,$typed in
    ,--*=*)
        before=${typed%%=*}=
        for option in "${options[@]}"; do
            case $option in "$before"*) meaning=${option#*=} ;; esac
        done
        ;;
    ,-*) mapfile -t COMPREPLY < <(compgen -W "${options[*]%%=*} --help" -- "$typed") ;;
    ,*) meaning=${meanings[position]-} ;;
    esac
    _quorconv_values "$meaning" "${typed#"$before"}"
    # The part of the word in which nothing is replaced.
    [ "$current" = = ] || typed=${typed%"$current"}
    for at in "${!COMPREPLY[@]}"; do
        word=$before${COMPREPLY[at]}
        COMPREPLY[at]=${word#"$typed"}
    done
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
        arguments.One("SHELL", m_shell, Meaning::Shell, "The shell: bash");
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

const CommandRow completionRow{
    "completion",
    "Print the completion script of a shell, for commands, sections and keys",
    {"source <(quorconv completion bash)", "quorconv completion bash >quorconv.bash"},
    Create<Completion>};

} // namespace quorconv
