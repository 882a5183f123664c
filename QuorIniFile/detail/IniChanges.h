#pragma once

#include "QuorIniFile/detail/IniIndex.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace QuorIniFile {

/// The key lines that were written since a text was read, each as it is to be. Few lines of a section are
/// looked through, many have an index; the lines stand one behind the other in one piece of memory.
class IniChanges {
public:
    static constexpr std::uint32_t none = 0xFFFFFFFF;
    static constexpr std::size_t newLine = static_cast<std::size_t>(-1);

    struct Change {
        std::size_t line = newLine; // where the line stands in the text
        std::uint32_t section = 0;  // none: it was dropped with its section
        std::uint32_t next = none;  // the one that was written next into the section
        bool isText = false;
        bool hasComment = false; // the comment on the line was written with the value

    private:
        friend class IniChanges;
        std::uint32_t tag = 0;
        std::uint32_t nameOffset = 0, nameLength = 0; // of the key, in the line
        std::size_t start = 0, length = 0;            // of the line, in m_lines
    };

    [[nodiscard]] std::size_t Size() const { return m_changes.size(); }
    [[nodiscard]] const Change& operator[](std::size_t number) const { return m_changes[number]; }
    /// The first that was written into a section; `none` without one.
    [[nodiscard]] std::uint32_t FirstOf(std::uint32_t section) const;
    [[nodiscard]] std::string_view Line(const Change& change) const {
        return std::string_view(m_lines).substr(change.start, change.length);
    }

    [[nodiscard]] std::optional<std::uint32_t> Find(std::uint32_t section, std::string_view key) const;
    /// `line` is a key line, `name` the part of it that is its name, `key` the same as look-ups take it. It
    /// is not there yet.
    void Add(Change change, std::string_view key, std::string_view line, std::string_view name);
    /// Gives a change another line, with its name in the same place.
    void Rewrite(std::uint32_t number, std::string_view line, bool isText, bool hasComment);
    /// Drops what was written into a section. The other changes keep their numbers.
    void Drop(std::uint32_t section) noexcept;

private:
    static constexpr std::uint32_t few = 16;

    /// What was written into one section, in order.
    struct Chain {
        std::uint32_t section = 0, first = none, last = none, count = 0;
        bool isIndexed = false;
    };

    [[nodiscard]] std::optional<std::uint32_t> ChainOf(std::uint32_t section) const;
    [[nodiscard]] std::string_view Name(const Change& change) const {
        return Line(change).substr(change.nameOffset, change.nameLength);
    }
    [[nodiscard]] bool IsNamed(const Change& change, std::string_view key) const;
    void Put(Change& change, std::string_view line);
    void ThrowOutWaste();
    void IndexChain(Chain& chain);

    std::vector<Change> m_changes;
    std::vector<Chain> m_chains;
    IniIndex m_chainOfSection;
    IniIndex m_keys;                      // of the sections in which many were written
    std::string m_lines;                  // all lines, and what is left of lines that were written again
    std::size_t m_wasted = 0;             // bytes of m_lines that no change needs any more
    mutable std::uint32_t m_asked = none; // the chain that was asked for last
};

} // namespace QuorIniFile
