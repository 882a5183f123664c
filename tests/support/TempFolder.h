#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// A folder of its own for one test. It vanishes, with all that is in it, when the test ends.
class TempFolder {
public:
    TempFolder() {
        do {
            std::random_device device;
            m_path = std::filesystem::temp_directory_path() / ("quor-test-" + std::to_string(device()));
        } while (!std::filesystem::create_directory(m_path));
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(m_path, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }
    [[nodiscard]] std::filesystem::path Path(std::string_view file) const {
        return m_path / std::u8string(file.begin(), file.end());
    }
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
    /// Who may do what with a file, as chmod takes it; elsewhere whether it may be written.
    void SetMode(std::string_view file, unsigned mode) const {
        std::filesystem::permissions(Path(file), static_cast<std::filesystem::perms>(mode));
    }
    /// The names of all that is in the folder, sorted.
    [[nodiscard]] std::vector<std::string> Files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path)) {
            const std::u8string name = entry.path().filename().u8string();
            names.emplace_back(name.begin(), name.end());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::filesystem::path m_path;
};
