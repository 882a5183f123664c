#pragma once

#include "QuorIniFile/detail/IniText.h"
#include "fuzz/Edits.h"
#include "fuzz/PlainIni.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Fuzz {

/// A text and what is done to it, kept the plain way: lists that are searched from top to bottom. It says
/// what the edited document and the store have to find.
class PlainEdits {
public:
    explicit PlainEdits(std::string_view text);

    /// The text before the edits.
    [[nodiscard]] const std::string& Text() const { return m_text; }
    /// Whether anything was asked for, even if it stood there already.
    [[nodiscard]] bool AreMade() const { return !m_moves.empty() || !m_written.empty(); }
    /// The edits whose values have to be there: of each place the last one, under the name that its section
    /// has now.
    [[nodiscard]] const std::map<PlainIni::Place, Edit>& Written() const { return m_written; }
    [[nodiscard]] bool Has(const std::wstring& section) const { return Find(section) != none; }
    /// The names of all sections, those of the text first.
    [[nodiscard]] std::vector<std::wstring> Names() const;

    /// The edit has names that a file can hold.
    void Write(const Edit& edit);
    void Remove(const std::wstring& name);
    /// False, and nothing has changed, when the section is not there, another one has the name, or a header
    /// line could not give it back.
    [[nodiscard]] bool Rename(const std::wstring& from, const std::wstring& to);

    struct Merged;
    /// The same edits in what somebody else has made of the text.
    [[nodiscard]] Merged In(std::string_view others) const;
    /// Claims that `after` is the text with these edits and nothing else: every other line byte for byte and
    /// in its order, every section and value there.
    void ClaimMade(std::string_view after) const;

private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    struct Section {
        std::string name;    // as it is spelled now
        std::wstring called; // the same, folded
        std::wstring inText; // folded, as the text calls it
        bool isRenamed = false;
        bool isNew = false;
        bool isRemoved = false;
        bool isEmptied = false; // it was removed and has come back
    };
    /// A removal (without `to`) or a renaming of a section of the text.
    struct Move {
        std::wstring from;
        std::optional<std::wstring> to;
    };
    /// What has to become of the lines of the text.
    struct Lines {
        std::set<std::size_t> gone, rewritten;
        std::map<std::size_t, std::string> headers; // that have another name
        std::size_t added = 0;                      // that are not blank
        std::size_t mostBlanks = 0;                 // that are added
    };

    [[nodiscard]] std::size_t Find(const std::wstring& name) const;
    /// Whether the edits write each key that a section has in the text.
    [[nodiscard]] bool AreAllOf(const Section& section) const;
    /// The section of the text that a header line belongs to; null for a broken header.
    [[nodiscard]] const Section* OfHeader(const PlainIni::Line& line) const;
    [[nodiscard]] std::set<std::size_t> LinesThatGo(const PlainIni& old) const;
    [[nodiscard]] Lines ExpectedLines(const PlainIni& old) const;
    void ClaimKeys(const PlainIni& old, const PlainIni& now) const;

    std::string m_text;
    std::vector<Section> m_sections;              // those of the text in its order, then new ones
    std::map<std::wstring, std::size_t> m_inText; // the numbers of those of the text
    std::vector<Move> m_moves;
    std::map<PlainIni::Place, Edit> m_written;
    bool m_isVague = false; // several removed sections had the name of one that came back: any may have
};

/// What becomes of edits in another text.
struct PlainEdits::Merged {
    std::optional<PlainEdits> edits;                     // nothing: they cannot be made
    std::optional<QuorIniFile::IniConflict::Kind> inWay; // why
};

} // namespace Fuzz
