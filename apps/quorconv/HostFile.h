#pragma once

#include "QuorProbeFile/ProbeFile.h"
#include "apps/quorconv/Arguments.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace quorconv {

/// The path that means the standard input, and the standard output for what is written.
inline constexpr const wchar_t* standardInput = L"-";

/// All that a file holds, or the standard input. Raises Problem when it cannot be read.
[[nodiscard]] std::string ReadAll(const std::wstring& path);

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

private:
    std::optional<PrivateFolder> m_folder; // in which the standard input stands as a file of the name "-"
    std::optional<QuorProbeFile::ProbeFile> m_file;
};

/// Declares "--dry-run".
void DeclareDryRun(Arguments& arguments, bool& isDryRun);

} // namespace quorconv
