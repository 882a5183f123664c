#pragma once

#include "QuorIniFile/detail/IniIndex.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace QuorIniFile {

/// A header line of a text.
struct IniHeader {
    std::size_t start = 0;                // where its '[' stands
    std::size_t next = 0;                 // where the line behind it starts
    std::optional<std::string_view> name; // nothing for a broken header
};

/// All headers of a text, in its order.
[[nodiscard]] std::vector<IniHeader> AllHeaders(std::string_view text);

/// The sections of a text, found as far as they were asked for: a host that wants one probe does not wait for
/// all of them. It holds places and no text: each call is given the same one.
class IniSections {
public:
    /// The number of a section, in the order of the text.
    using Section = std::uint32_t;

    /// The first section of that name.
    [[nodiscard]] std::optional<Section> Find(std::string_view text, std::string_view name);
    /// How many numbers are taken. Headers that nobody can find may share one.
    [[nodiscard]] std::size_t Count(std::string_view text);
    [[nodiscard]] std::string_view Name(std::string_view text, Section section) const;
    /// Whether Find knows it: it has a name that did not stand before.
    [[nodiscard]] bool CanBeFound(std::string_view text, Section section);
    /// Whether a later section of its name is spelled in another way. For a section that Find knows.
    [[nodiscard]] bool HasOtherSpellings(std::string_view text, Section section);
    /// Where the line behind the header starts, and where the text of the section ends.
    [[nodiscard]] std::size_t Begin(std::string_view text, Section section) const;
    [[nodiscard]] std::size_t End(std::string_view text, Section section);

private:
    static constexpr std::uint32_t nameless = 0xFFFFFFFF;
    /// So many sections are found by looking at one name after the other: who wants one probe does not pay
    /// for an index of all.
    static constexpr int fewQuestions = 4;

    struct Span {               // small, because a file may have millions
        std::uint32_t name = 0; // where its name starts; the '[' stands right before
        std::uint32_t nameLength = nameless;
        // Known once the section is indexed.
        bool isFirst = false;           // of its name
        bool hasOtherSpellings = false; // among the sections that were indexed so far
    };

    /// Gives the next header that matters a number. False when there is none.
    bool ReadOn(std::string_view text);
    /// Whether nobody can find the section of that header, nor the one before it, whose end it marks: both
    /// have no name, or that of the one before them.
    [[nodiscard]] bool IsOneOfMany(std::string_view text, const Span& span) const;
    [[nodiscard]] static std::string_view Name(std::string_view text, const Span& span) {
        return text.substr(span.name, span.nameLength);
    }
    /// Indexes the names of all sections that have a number.
    void Index(std::string_view text);
    [[nodiscard]] bool IsNamed(std::string_view text, std::size_t section, std::string_view name) const;
    /// Looks at one name after the other, from a section on.
    [[nodiscard]] std::optional<Section> Search(std::string_view text, std::size_t from,
                                                std::string_view name);

    std::vector<Span> m_spans;
    IniIndex m_names;
    std::size_t m_indexed = 0;      // so many sections, from the first on
    int m_questions = 0;            // up to fewQuestions
    std::size_t m_next = 0;         // up to where the text was looked through
    std::optional<Section> m_asked; // the section that was found last
};

} // namespace QuorIniFile
