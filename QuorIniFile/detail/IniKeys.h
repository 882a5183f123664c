#pragma once

#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniIndex.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace QuorIniFile {

/// A number that two names have in common when they differ in the case of ASCII letters only, and seldom
/// otherwise: looking at it first saves looking at most names.
[[nodiscard]] std::uint32_t TagOfName(std::string_view name);

/// The key lines of one section. Few keys are looked through, many have an index.
/// It holds places and no text: each call is given the text of which Read was told.
class IniKeys {
public:
    /// A key line of the text: the first of its name.
    struct Found {
        std::size_t start = 0; // of the line
        IniLine line;
    };

    /// Finds all key lines between two line starts.
    void Read(std::string_view text, std::size_t begin, std::size_t end);

    [[nodiscard]] std::optional<Found> Find(std::string_view text, std::string_view name) const;
    /// The names of all keys as they stand in the text. Some may stand several times.
    [[nodiscard]] std::vector<std::string_view> Names(std::string_view text) const;
    /// Where the line below the last value starts, continuation lines included; `begin` when there is none.
    [[nodiscard]] std::size_t BehindLast() const { return m_behindLast; }
    /// Whether the section is so long that reading it again is worth avoiding.
    [[nodiscard]] bool AreLong() const { return m_length > shortSection || m_isIndexed; }

private:
    static constexpr std::size_t few = 32;
    static constexpr std::size_t shortSection = 4096; // bytes
    static constexpr std::uint32_t tooLong = 0xFFFFFFFF;

    struct Key {
        std::size_t name = 0; // where it starts in the text
        std::uint32_t nameLength = 0;
        std::uint32_t tag = 0;
        std::uint32_t value = 0; // where it starts behind the start of the name; or tooLong
        std::uint32_t valueLength = 0;
    };

    void Add(std::string_view text, const IniLine& line);
    /// Says whether the name of the next key is a new one. Of many keys only the first of each name is kept.
    bool AddToIndex(std::string_view text, std::string_view name);
    [[nodiscard]] static std::string_view Name(std::string_view text, const Key& key) {
        return text.substr(key.name, key.nameLength);
    }

    std::vector<Key> m_keys;
    IniIndex m_names; // of many keys, the first of each name
    bool m_isIndexed = false;
    std::size_t m_begin = 0;
    std::size_t m_length = 0; // of the section, in bytes
    std::size_t m_behindLast = 0;
};

} // namespace QuorIniFile
