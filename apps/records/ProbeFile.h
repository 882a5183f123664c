#pragma once

#include "QuorIniFile/detail/IniFormat.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ProbeRecords {

/// A probe's record in a file: a section of the host's choosing that the facade wrote, or the section of a
/// stand-alone settings file.
struct Record {
    std::wstring section;
    std::size_t line; ///< of the section's header
    bool standAlone;
};

/// The lines of an INI file, section by section, and the records among them.
class ProbeFile {
public:
    struct Key {
        std::string_view name;  ///< as it stands, without edge blanks
        std::string_view value; ///< as it stands, without edge blanks
        std::size_t line;
    };
    struct Section {
        std::wstring name;
        std::size_t line;
        std::vector<Key> keys;
        std::vector<std::size_t> malformedLines;
        bool isBroken = false; ///< its header has no ']', so it has no name
    };

    /// Reads the file. Raises QuorError when it cannot be read.
    explicit ProbeFile(std::wstring path);
    ProbeFile(const ProbeFile&) = delete;
    ProbeFile& operator=(const ProbeFile&) = delete;
    ~ProbeFile() = default;

    [[nodiscard]] const std::wstring& Path() const { return m_path; }
    /// The text of the file: its bytes, or those of a UTF-16 file in UTF-8.
    [[nodiscard]] const std::string& Bytes() const { return m_bytes; }
    /// All sections in the order of the file, those included that nobody can read.
    [[nodiscard]] const std::vector<Section>& Sections() const { return m_sections; }
    [[nodiscard]] const std::vector<Record>& Records() const { return m_records; }
    /// The lines of headers without a ']' above what would be a record: nobody can read it.
    [[nodiscard]] const std::vector<std::size_t>& LostRecords() const { return m_lostRecords; }
    /// The section of that name, in any ASCII case, that look-ups find: the first one. Null for none.
    [[nodiscard]] const Section* FindSection(std::wstring_view name) const;
    [[nodiscard]] std::optional<Record> FindRecord(std::wstring_view section) const;

    /// The key of that name in `section` that look-ups find: the first one. Null for none.
    [[nodiscard]] static const Key* FindKey(const Section& section, std::wstring_view name);

private:
    void ReadSections();
    void FindRecords();

    std::wstring m_path;
    std::string m_bytes;
    std::vector<Section> m_sections;
    std::unordered_map<std::wstring, std::size_t> m_firstByName;
    std::vector<Record> m_records;
    std::vector<std::size_t> m_lostRecords;
};

/// The section in which a stand-alone settings file with the extension of `path` keeps its record; nothing
/// for any other file.
[[nodiscard]] std::optional<std::wstring> StandAloneSection(std::wstring_view path);

} // namespace ProbeRecords
