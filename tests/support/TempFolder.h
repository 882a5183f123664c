#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <stdlib.h> // NOLINT(modernize-deprecated-headers): mkdtemp is not in cstdlib

/// A folder of its own for one test. It vanishes, with all that is in it, when the test ends.
class TempFolder {
public:
    TempFolder() {
        std::string path = (std::filesystem::temp_directory_path() / "quor-test-XXXXXX").string();
        if (::mkdtemp(path.data()) == nullptr)
            throw std::runtime_error("no temporary folder: " + path);
        m_path = path;
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(m_path, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }
    [[nodiscard]] std::filesystem::path Path(std::string_view file) const { return m_path / file; }
    /// The path of a file as the libraries take it.
    [[nodiscard]] std::wstring Name(std::string_view file) const { return Path(file).wstring(); }

    void Write(std::string_view file, std::string_view bytes) const {
        std::ofstream stream(Path(file), std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!stream.flush())
            throw std::runtime_error("cannot write " + Path(file).string());
    }
    [[nodiscard]] std::string Read(std::string_view file) const {
        std::ifstream stream(Path(file), std::ios::binary);
        std::string bytes(std::filesystem::file_size(Path(file)), '\0');
        if (!stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
            throw std::runtime_error("cannot read " + Path(file).string());
        return bytes;
    }
    /// The names of all that is in the folder, sorted.
    [[nodiscard]] std::vector<std::string> Files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::filesystem::path m_path;
};
