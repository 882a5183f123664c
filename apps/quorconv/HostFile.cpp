#include "apps/quorconv/HostFile.h"

#include "QuorIniFile/Utf8.h"
#include "apps/quorconv/Failure.h"
#include "apps/quorconv/System.h"
#include "apps/quorconv/UnifiedDiff.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>

namespace quorconv {

using QuorProbeFile::ProbeFile;

namespace {

/// What an input is read for: a host's file may be UTF-16.
enum class Input : std::uint8_t { Text, HostFile, NewHostFile };

/// How many bytes are still to be read; 0 where that is not known, as of a pipe.
std::size_t LengthOfRest(std::istream& in) {
    const std::streamoff here = in.tellg();
    in.seekg(0, std::ios::end);
    const std::streamoff end = in.tellg();
    in.clear(); // nothing is wrong with a pipe
    if (here < 0 || end <= here)
        return 0;
    in.seekg(here);
    return static_cast<std::size_t>(end - here);
}

/// All that is still to be read. Raises Problem for bytes that no text has: a device may have no end of them.
std::string Rest(std::istream& in, const std::wstring& path, Input input) {
    std::string bytes;
    constexpr std::size_t step = std::size_t{1} << 20U;
    constexpr std::size_t most = std::size_t{1} << 30U; // what a device tells of its length is no measure
    bytes.reserve(std::min(LengthOfRest(in), most) + step);
    for (std::size_t size = 0; in; bytes.resize(size)) {
        bytes.resize(size + step);
        in.read(bytes.data() + size, static_cast<std::streamsize>(step));
        const auto length = static_cast<std::size_t>(in.gcount());
        if (input == Input::Text &&
            std::string_view(bytes).substr(size, length).find('\0') != std::string::npos)
            throw Problem{path + L": there are zero bytes: this is no text in UTF-8"};
        size += length;
    }
    return bytes;
}

/// Blanks, ends of lines and a byte-order mark, or nothing.
bool IsBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n\xEF\xBB\xBF") == std::string_view::npos;
}

std::string StandardInput(Input input) {
    static bool isRead = false;
    if (std::exchange(isRead, true))
        throw UsageError{L"\"-\" can be given only once: the standard input can be read only once"};
    std::string bytes = Rest(std::cin, standardInput, input);
    if (std::cin.bad() || std::ferror(stdin) != 0)
        throw Problem{L"-: the standard input cannot be read"};
    if (IsBlank(bytes) && input != Input::NewHostFile)
        throw Problem{L"-: there is nothing in the standard input"};
    return bytes;
}

/// The text of a file as it is now, with what was written, until that changes; and whether it has a header
/// that is not closed.
struct FileText {
    std::string_view bytes;
    bool hasUnclosedHeader = false;
};

FileText TextOf(ProbeFile& file) {
    FileText text{file.Text()};
    if (!file.Exists() || file.Store()->HasPlainHeaders())
        return text;
    auto lines = file.Store()->Lines();
    while (!text.hasUnclosedHeader && lines.NextHeader())
        text.hasUnclosedHeader = lines.Is(QuorIniFile::IniLines::Kind::UnclosedHeader);
    return text;
}

bool HasLoneCr(std::string_view text) {
    for (auto at = text.find('\r'); at != std::string_view::npos; at = text.find('\r', at + 1))
        if (at + 1 == text.size() || text[at + 1] != '\n')
            return true;
    return false;
}

/// Ends the turn of a dry run.
struct NothingIsSaved {};

} // namespace

std::filesystem::path FilePath(const std::wstring& path) {
    const std::string bytes = QuorIniFile::ToUtf8(path);
    return {std::u8string(bytes.begin(), bytes.end())};
}

std::string ReadAll(const std::wstring& path) {
    if (path == standardInput)
        return StandardInput(Input::Text);
    const std::filesystem::path name = FilePath(path);
    std::error_code ignored;
    if (std::filesystem::is_directory(name, ignored))
        throw Problem{path + L": this is a folder"};
    std::ifstream file(name, std::ios::binary);
    const int cause = errno;
    if (!file)
        throw Problem{cause == ENOENT
                          ? L"File not found: " + path
                          : path + L": " + QuorIniFile::DecodeBytes(std::generic_category().message(cause))};
    std::string bytes = Rest(file, path, Input::Text);
    if (file.bad())
        throw Problem{path + L": the file cannot be read"};
    if (IsBlank(bytes))
        throw Problem{path + L": there is nothing in this file"};
    return bytes;
}

std::wstring ReadText(const std::wstring& path) {
    constexpr wchar_t byteOrderMark = L'\uFEFF';
    const auto text = QuorIniFile::FromUtf8(ReadAll(path));
    if (!text)
        throw Problem{path + L": the text is not UTF-8"};
    return text->starts_with(byteOrderMark) ? text->substr(1) : *text;
}

std::vector<std::wstring> UnreadableLines(ProbeFile& file) {
    using QuorIniFile::IniWarningKind;
    std::vector<std::wstring> told;
    const FileText text = TextOf(file);
    if (text.hasUnclosedHeader || HasLoneCr(text.bytes)) {
        for (const QuorIniFile::IniWarning& warning : file.Store()->Warnings()) {
            const bool isUnclosed = warning.kind == IniWarningKind::UnclosedHeader;
            if (isUnclosed || warning.kind == IniWarningKind::LineEndsInCr)
                told.push_back(L"line " + std::to_wstring(warning.line) + L": " +
                               (isUnclosed ? L"the header has no \"]\"; what is below it cannot be read"
                                           : L"the line ends in a lone carriage return; what follows it "
                                             L"cannot be read"));
        }
    }
    if (text.bytes.find('\0') != std::string_view::npos)
        told.emplace_back(L"there are zero bytes: this is no text");
    return told;
}

void RequireReadable(ProbeFile& file) {
    if (auto lines = UnreadableLines(file); !lines.empty())
        throw Problem{file.Path() + L": not all of this file can be read, and nothing was written",
                      std::move(lines)};
}

bool TellUnreadable(ProbeFile& file) {
    auto lines = UnreadableLines(file);
    if (lines.empty())
        return true;
    PrintFailure({file.Path() + L": not all of this file can be read", std::move(lines)});
    return false;
}

Duplicates::Duplicates(ProbeFile& file) : m_path(file.Path()) {
    if (!file.Exists())
        return;
    for (const QuorIniFile::IniWarning& warning : file.DuplicateSections()) {
        m_warnings[warning.section].push_back(warning);
        for (const std::wstring_view owner : QuorProbeFile::PossibleOwners(warning.section))
            m_warnings[std::wstring(owner)].push_back(warning);
    }
}

void Duplicates::Tell(const std::wstring& section) const {
    if (const auto found = m_warnings.find(section); found != m_warnings.end())
        for (const QuorIniFile::IniWarning& warning : found->second)
            PrintFailure({m_path + L":" + std::to_wstring(warning.line) + L": [" + warning.section +
                          L"]: the section occurs twice; the one in line " + std::to_wstring(warning.first) +
                          L" is read"});
}

void Duplicates::Require(const std::wstring& section) const {
    const auto found = m_warnings.find(section);
    if (found == m_warnings.end())
        return;
    std::vector<std::wstring> lines;
    for (const QuorIniFile::IniWarning& warning : found->second)
        lines.push_back(L"line " + std::to_wstring(warning.line) + L": [" + warning.section +
                        L"] occurs twice; the first is in line " + std::to_wstring(warning.first));
    throw Problem{m_path + L": nothing was written, because the probe occurs twice", std::move(lines)};
}

PrivateFolder::PrivateFolder() {
    auto path = NewPrivateFolder();
    if (!path)
        throw Problem{L"no temporary folder can be made in " +
                      std::filesystem::temp_directory_path().wstring()};
    m_path = *std::move(path);
}

PrivateFolder::~PrivateFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

HostFile::HostFile(const std::wstring& path, ProbeFile::Opening opening) {
    if (path != standardInput) {
        m_file.emplace(path, opening);
        return;
    }
    const std::string bytes =
        StandardInput(opening == ProbeFile::Opening::OrNew ? Input::NewHostFile : Input::HostFile);
    m_folder.emplace();
    std::ofstream file(m_folder->Path() / "-", std::ios::binary);
    if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush())
        throw Problem{L"-: the standard input cannot be kept in " + m_folder->Path().wstring()};
    // A relative name means the folder that is the current one now: the file is told as "-".
    const std::filesystem::path current = std::filesystem::current_path();
    std::filesystem::current_path(m_folder->Path());
    m_file.emplace(path, opening);
    std::filesystem::current_path(current);
}

namespace {

/// Of an empty file, too: a stream that takes no byte of another one counts that as a failure.
void Print(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (file.peek() != std::ifstream::traits_type::eof())
        std::cout << file.rdbuf();
}

} // namespace

void HostFile::Edit(bool isDryRun, const std::function<void()>& edit) {
    if (!isDryRun) {
        m_file->Edit(edit);
        if (m_folder)
            Print(m_folder->Path() / "-");
        return;
    }
    std::string before;
    std::string after;
    try {
        m_file->Edit([&] {
            before = m_file->Text();
            edit();
            after = m_file->Text();
            throw NothingIsSaved();
        });
    } catch (const NothingIsSaved&) {
        std::cout << UnifiedDiff(QuorIniFile::ToPrintable(m_file->Path()), before, after);
    }
}

void HostFile::Try(const std::function<void()>& edit) {
    try {
        m_file->Edit([&] {
            edit();
            throw NothingIsSaved();
        });
    } catch (const NothingIsSaved&) { // as it should be
    }
}

std::size_t EditFiles(const std::vector<std::wstring>& paths, bool isDryRun,
                      const std::function<std::size_t(ProbeFile&)>& edit) {
    std::vector<std::unique_ptr<HostFile>> files;
    for (const std::wstring& path : paths) {
        for (const auto& before : files)
            if (path != standardInput && (*before)->Store()->IsOwnFile(path))
                throw UsageError{L"the file is named twice: " + path};
        files.push_back(std::make_unique<HostFile>(path));
    }
    if (files.size() > 1 && !isDryRun)
        for (const auto& file : files)
            file->Try([&] { static_cast<void>(edit(**file)); });
    std::size_t sum = 0;
    for (auto file = files.begin(); file != files.end(); ++file) {
        std::size_t count = 0; // an edit may be done again
        try {
            (*file)->Edit(isDryRun, [&] { count = edit(***file); });
        } catch (...) {
            if (file == files.begin() || isDryRun)
                throw;
            Problem problem = CurrentFailure();
            for (auto other = files.begin(); other != files.end(); ++other)
                problem.reasons.push_back((**other)->Path() +
                                          (other < file ? L": is written" : L": is not written"));
            throw Problem(problem);
        }
        sum += count;
    }
    return sum;
}

void DeclareDryRun(Arguments& arguments, bool& isDryRun) {
    arguments.Flag("--dry-run", isDryRun, "Write nothing; print the change as a unified diff");
}

} // namespace quorconv
