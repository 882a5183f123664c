#include "apps/quorconv/HostFile.h"

#include "QuorIniFile/Utf8.h"
#include "apps/quorconv/Failure.h"
#include "apps/quorconv/UnifiedDiff.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp is not in cstdlib

namespace quorconv {

using QuorProbeFile::ProbeFile;

namespace {

std::string StandardInput() {
    static bool isRead = false;
    if (std::exchange(isRead, true))
        throw UsageError{L"\"-\" can stand once: the standard input can be read once"};
    std::string bytes{std::istreambuf_iterator<char>(std::cin), {}};
    if (std::cin.bad() || std::ferror(stdin) != 0)
        throw Problem{L"-: the standard input cannot be read"};
    return bytes;
}

/// The text of a file as it is now, with what was written.
std::string TextOf(QuorIniFile::IniStore& store) {
    try {
        auto lines = store.Lines();
        while (lines.Next()) {
        }
        const std::string_view last = lines.Bytes(); // also of a comment behind the last line that counts
        const char* const begin = last.data() - lines.Here().offset;
        return {begin, last.data() + last.size()};
    } catch (const QuorIniFile::QuorError& error) {
        if (error.Number() != QuorIniFile::ERR_FILE_NOT_FOUND)
            throw;
        return {};
    }
}

/// Ends the turn of a dry run.
struct NothingIsSaved {};

} // namespace

std::string ReadAll(const std::wstring& path) {
    if (path == standardInput)
        return StandardInput();
    const std::string name = QuorIniFile::ToUtf8(path);
    std::error_code ignored;
    if (std::filesystem::is_directory(name, ignored))
        throw Problem{path + L": this is a folder"};
    std::ifstream file(name, std::ios::binary);
    if (!file)
        throw Problem{L"File not found: " + path};
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (file.bad())
        throw Problem{path + L": the file cannot be read"};
    return bytes;
}

PrivateFolder::PrivateFolder() {
    std::string path = (std::filesystem::temp_directory_path() / "quorconv-XXXXXX").string();
    if (::mkdtemp(path.data()) == nullptr)
        throw Problem{L"no temporary folder can be made: " + QuorIniFile::DecodeBytes(path)};
    m_path = path;
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
    const std::string bytes = StandardInput();
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

void HostFile::Edit(bool isDryRun, const std::function<void()>& edit) {
    if (!isDryRun) {
        m_file->Edit(edit);
        if (m_folder)
            std::cout << std::ifstream(m_folder->Path() / "-", std::ios::binary).rdbuf();
        return;
    }
    std::string before;
    std::string after;
    try {
        m_file->Edit([&] {
            before = TextOf(*m_file->Store());
            edit();
            after = TextOf(*m_file->Store());
            throw NothingIsSaved();
        });
    } catch (const NothingIsSaved&) {
        std::cout << UnifiedDiff(QuorIniFile::ToPrintable(m_file->Path()), before, after);
    }
}

void DeclareDryRun(Arguments& arguments, bool& isDryRun) {
    arguments.Flag("--dry-run", isDryRun, "Write nothing; print the change as a unified diff");
}

} // namespace quorconv
