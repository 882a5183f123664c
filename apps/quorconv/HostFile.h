#pragma once

#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/ProbeNames.h"
#include "apps/quorconv/Arguments.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorconv {

/// The path that means the standard input, and the standard output for what is written.
inline constexpr const wchar_t* standardInput = L"-";

/// A path as the libraries have it, for the streams of the standard library.
[[nodiscard]] std::filesystem::path FilePath(const std::wstring& path);

/// All that a file holds, or the standard input. Raises Problem when it cannot be read, and when there is
/// nothing in it but blanks: the program that should have written it has failed, most likely.
[[nodiscard]] std::string ReadAll(const std::wstring& path);
/// The same as text, without a byte-order mark. Raises Problem for a text that is not UTF-8, too.
[[nodiscard]] std::wstring ReadText(const std::wstring& path);

/// Lines of a file that keep what stands below them, or behind them, from being read, each told with its
/// number; and that the file is no text.
[[nodiscard]] std::vector<std::wstring> UnreadableLines(QuorProbeFile::ProbeFile& file);
/// Raises Problem with them: a probe that is added to such a file may stand in it already, or be lost there.
void RequireReadable(QuorProbeFile::ProbeFile& file);
/// Prints what of the file cannot be read. False when there is something.
[[nodiscard]] bool TellUnreadable(QuorProbeFile::ProbeFile& file);

/// The probes of a file whose sections occur twice: only the first one of a name is read, and written.
class Duplicates {
public:
    explicit Duplicates(QuorProbeFile::ProbeFile& file);
    /// Prints it of the probe of a section.
    void Tell(const std::wstring& section) const;
    /// Raises Problem for it.
    void Require(const std::wstring& section) const;

private:
    std::wstring m_path;
    QuorProbeFile::NameMap<std::vector<QuorIniFile::IniWarning>> m_warnings; // by the names of probes
};

/// A folder of its own, for files that a person never sees. It goes with all that is in it.
class PrivateFolder {
public:
    PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    ~PrivateFolder();
    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// A file that a command works on.
class HostFile {
public:
    explicit HostFile(const std::wstring& path, QuorProbeFile::ProbeFile::Opening opening =
                                                    QuorProbeFile::ProbeFile::Opening::Existing);

    [[nodiscard]] QuorProbeFile::ProbeFile& operator*() { return *m_file; }
    [[nodiscard]] QuorProbeFile::ProbeFile* operator->() { return &*m_file; }

    /// Does what `edit` does in one turn, saves it, and of the standard input prints the new text. A dry run
    /// saves nothing, and prints the unified diff of what would have been saved.
    void Edit(bool isDryRun, const std::function<void()>& edit);
    /// Does it and saves nothing.
    void Try(const std::function<void()>& edit);

private:
    std::optional<PrivateFolder> m_folder; // in which the standard input stands as a file of the name "-"
    std::optional<QuorProbeFile::ProbeFile> m_file;
};

/// Does the same in several files, in each all or nothing, and returns the sum of what `edit` returns. It is
/// tried in each of them before the first one is saved; when a file cannot be saved after others were, the
/// failure says which ones were.
std::size_t EditFiles(const std::vector<std::wstring>& paths, bool isDryRun,
                      const std::function<std::size_t(QuorProbeFile::ProbeFile&)>& edit);

/// Declares "--dry-run".
void DeclareDryRun(Arguments& arguments, bool& isDryRun);

} // namespace quorconv
