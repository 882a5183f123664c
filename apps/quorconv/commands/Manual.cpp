#include "apps/quorconv/commands/Rows.h"

#include "QuorIniFile/Utf8.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/RecordReference.h"
#include "apps/quorconv/CommandLine.h"
#include "apps/quorconv/HostFile.h"
#include "apps/quorconv/UnifiedDiff.h"

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <sstream>

namespace quorconv {

using namespace QuorProbeFile;

namespace {

/// A text as man has it: no line of it is a request, every "-" is one that can be copied, and characters
/// beyond ASCII are named, whatever the encoding of the reader.
std::string Roff(const std::wstring& text) {
    std::string roff;
    for (const wchar_t character : text) {
        if (roff.empty() || roff.back() == '\n') {
            if (character == L'.' || character == L'\'')
                roff += "\\&";
        }
        if (character == L'\\') {
            roff += "\\e";
        } else if (character == L'-') {
            roff += "\\-";
        } else if (character > L'~') {
            std::ostringstream name;
            name << "\\[u" << std::hex << std::uppercase << std::setw(4) << std::setfill('0')
                 << static_cast<unsigned long>(character) << ']';
            roff += name.str();
        } else {
            roff += static_cast<char>(character);
        }
    }
    return roff;
}

std::string Roff(const std::string& text) { return Roff(QuorIniFile::DecodeBytes(text)); }

/// A page of the manual.
class Page {
public:
    /// `name` is that of the file, too: "quorconv-set". `what` ends the line by which the page is found.
    Page(std::string name, char section, const std::string& what)
        : m_name(std::move(name)), m_section(section) {
        std::string title = Roff(m_name);
        std::transform(title.begin(), title.end(), title.begin(),
                       [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
        m_text = ".TH " + title + " " + section + " \"\" \"quorconv " + version + "\" \"Quor Conversions\"\n";
        Heading("NAME");
        m_text += Roff(m_name) + " \\- " + Roff(what) + "\n";
    }

    void Heading(const std::string& title) { m_text += ".SH \"" + Roff(title) + "\"\n"; }
    void Subheading(const std::string& title) { m_text += ".SS \"" + Roff(title) + "\"\n"; }
    void Paragraph(const std::string& text) { m_text += ".PP\n" + Roff(text) + "\n"; }
    void Raw(const std::string& text) { m_text += text + "\n"; }
    void Term(const std::string& roff, const std::string& text) {
        m_text += ".TP\n" + roff + "\n" + Roff(text) + "\n";
    }
    void Example(const std::string& line) { m_text += ".PP\n.RS 4\n.nf\n" + Roff(line) + "\n.fi\n.RE\n"; }

    void Save(const std::wstring& folder, bool isDryRun) const {
        const std::wstring path = folder + L"/" + QuorIniFile::DecodeBytes(m_name) + L"." +
                                  std::wstring(1, static_cast<wchar_t>(m_section));
        if (isDryRun) {
            std::ostringstream present;
            present << std::ifstream(FilePath(path), std::ios::binary).rdbuf();
            std::cout << UnifiedDiff(QuorIniFile::ToPrintable(path), present.str(), m_text);
            return;
        }
        std::ofstream file(FilePath(path), std::ios::binary);
        if (!(file << m_text).flush())
            throw Problem{path + L": the file cannot be written"};
    }

private:
    std::string m_name;
    char m_section;
    std::string m_text;
};

/// "FILE", "[SECTION]", "--type TYPE", each as man sets it.
std::string Spelling(const Argument& argument) {
    const std::string value = argument.value.empty() ? "" : " \\fI" + Roff(argument.value) + "\\fR";
    return argument.IsOption() ? "\\fB" + Roff(argument.name) + "\\fR" + value
                               : "\\fI" + Roff(argument.name) + "\\fR";
}

void EndPage(Page& page, const std::string& seeAlso) {
    page.Heading("EXIT STATUS");
    page.Term("0", "fine");
    page.Term("1", "a problem was found, or the files differ");
    page.Term("2", "wrong usage, or no comparison was possible");
    page.Heading("SEE ALSO");
    page.Raw(seeAlso);
}

Page PageOf(const DeclaredCommand& command) {
    Page page("quorconv-" + command.name, '1', command.what);
    page.Heading("SYNOPSIS");
    std::string synopsis = "\\fBquorconv " + Roff(command.name) + "\\fR";
    if (std::any_of(command.arguments.begin(), command.arguments.end(),
                    [](const Argument& a) { return a.IsOption(); }))
        synopsis += " [\\fIoptions\\fR]";
    for (const Argument& argument : command.arguments) {
        if (!argument.IsOption())
            synopsis.append(argument.isRequired ? " " : " [")
                .append(Spelling(argument))
                .append(argument.isRequired ? "" : "]");
    }
    page.Raw(synopsis);
    page.Heading("ARGUMENTS");
    for (const Argument& argument : command.arguments)
        if (!argument.IsOption())
            page.Term(Spelling(argument), argument.what);
    page.Heading("OPTIONS");
    for (const Argument& argument : command.arguments)
        if (argument.IsOption())
            page.Term(Spelling(argument), argument.what);
    page.Term("\\fB\\-\\-help\\fR", "Print a short help");
    page.Heading("EXAMPLES");
    for (const char* const example : command.examples)
        page.Example(example);
    EndPage(page, ".BR quorconv (1),\n.BR quor\\-records (5)");
    return page;
}

Page OverviewPage() {
    Page page("quorconv", '1', whatItDoes);
    page.Heading("SYNOPSIS");
    page.Raw("\\fBquorconv\\fR \\fICOMMAND\\fR [\\fIargument\\fR...]");
    page.Heading("DESCRIPTION");
    page.Paragraph(
        "Works on the records of precision thermometer probes, their equations and calibration coefficients, "
        "in the INI files of instrument programs and in settings files of single probes. It is made for "
        "scripts.");
    page.Paragraph(
        "A command changes the lines of the values that change, and no other byte. It reads and writes under "
        "one lock: any number of processes may work on one file at once.");
    page.Paragraph(standardStreams);
    page.Heading("COMMANDS");
    for (const DeclaredCommand& command : DeclaredCommands())
        page.Term("\\fBquorconv\\-" + Roff(command.name) + "\\fR(1)", command.what);
    page.Heading("ENVIRONMENT");
    page.Term("\\fBNO_COLOR\\fR", "If it is set, nothing is printed in colour.");
    EndPage(page, ".BR quor\\-records (5),\n.BR probe\\-setup (1)");
    return page;
}

void AddKey(Page& page, const RecordKey& key) {
    std::string term = "\\fB" + Roff(key.path) + "\\fR";
    if (!key.name.empty())
        term += " (" + Roff(key.name) + ")";
    if (key.form != RecordForm::Any)
        term +=
            std::string(", with UsePolynomial=") + (key.form == RecordForm::Polynomial ? "True" : "False");
    std::wstring text = key.meaning + L".";
    const auto add = [&text](const wchar_t* name, const std::wstring& fact) {
        if (!fact.empty())
            text += L" " + std::wstring(name) + L": " + fact + L".";
    };
    add(L"Unit", key.unit == L"1" ? L"none (a ratio)" : key.unit);
    add(L"Range", key.range);
    add(L"Usual", key.usual);
    add(L"Default", ToText(key.initial));
    page.Raw(".TP\n" + term + "\n" + Roff(text));
    for (const RecordChoice& choice : key.choices)
        page.Raw(".br\n" + Roff(std::to_wstring(choice.code) + L": " + choice.name));
}

Page RecordsPage() {
    Page page("quor-records", '5', "records of probe conversions in INI files");
    page.Heading("DESCRIPTION");
    page.Paragraph(
        "A probe of an instrument program has a section of its own name in the program's INI file, with the "
        "keys Version and ConversionType, and the section \"NAME - Settings\" with the keys below; the "
        "ranges "
        "of ITS-90 have sections of their own (\"NAME - Settings - Low Range\", \"NAME - Settings - High "
        "Range\"). A settings file of a single probe has the settings alone, in the section that is named "
        "below. All other sections, keys and comments are those of the program, and stay.");
    page.Paragraph(
        "Numbers are written with a decimal point, as the shortest text that reads back to the same value. "
        "Flags are True or False. The case of ASCII letters in the names of sections and keys does not "
        "matter; of several keys of one name the first one counts.");
    page.Heading("RECORDS");
    for (const TypeInfo& type : Types()) {
        if (type.code < 0)
            continue;
        page.Subheading(QuorIniFile::ToUtf8(type.enumerator) +
                        ": ConversionType=" + std::to_string(type.code));
        page.Raw(Roff(type.extension.empty() ? type.name + L"."
                                             : type.name + L". Settings files: ." + type.extension +
                                                   L", section [" + type.section + L"]."));
        if (RecordKeys(type.code).empty())
            page.Raw("No settings.");
        for (const RecordKey& key : RecordKeys(type.code))
            AddKey(page, key);
    }
    page.Heading("SEE ALSO");
    page.Raw(".BR quorconv (1),\n.BR quorconv\\-explain (1),\n.BR probe\\-setup (1)");
    return page;
}

class Manual final : public Command {
    std::wstring m_folder;
    bool m_isDryRun = false;

    void Declare(Arguments& arguments) override {
        arguments.One("FOLDER", m_folder, Meaning::File, "The folder that gets the pages");
        DeclareDryRun(arguments, m_isDryRun);
    }

    ExitCode Run() override {
        if (m_folder.empty())
            throw UsageError{L"the name of the folder is empty"};
        for (const DeclaredCommand& command : DeclaredCommands())
            PageOf(command).Save(m_folder, m_isDryRun);
        OverviewPage().Save(m_folder, m_isDryRun);
        RecordsPage().Save(m_folder, m_isDryRun);
        return fine;
    }
};

} // namespace

const CommandRow manualRow{"manual",
                           "Write the manual pages: one for each command, and the file format",
                           {"mkdir man && quorconv manual man"},
                           Create<Manual>};

} // namespace quorconv
