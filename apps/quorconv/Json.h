#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorconv {

/// A text as JSON has it, in its quotes.
[[nodiscard]] std::string JsonText(std::wstring_view text);
void AppendJsonText(std::string& json, std::wstring_view text);
/// Appends a number as JSON has it: the shortest text that reads back to the same bits. NaN and infinities,
/// which JSON does not have, are the texts "NaN", "Infinity" and "-Infinity".
void AppendJsonNumber(std::string& json, double number);

/// A value of a JSON text, and where it stands. Numbers are kept as they are spelled, so that no bit is
/// lost on the way.
struct JsonValue {
    enum class Kind { Null, Boolean, Number, Text, List, Object };

    Kind kind = Kind::Null;
    bool flag = false;
    std::wstring text;               ///< of a text, or the spelling of a number
    std::vector<JsonValue> items;    ///< of a list
    std::vector<std::wstring> names; ///< of the members of an object, each once
    std::vector<JsonValue> members;  ///< of an object, in the order of their names
    std::size_t offset = 0;          ///< in the text, in bytes

    [[nodiscard]] const JsonValue* Find(std::wstring_view name) const;
};

/// A JSON text that cannot be read, or that does not say what it should.
struct JsonError {
    std::size_t offset; ///< in the text, in bytes
    std::wstring text;
};

/// A JSON text that is one object, a list of objects, or objects one after the other (JSON Lines).
class JsonObjects {
public:
    /// The text must outlive this.
    explicit JsonObjects(std::string_view text) : m_text(text) {}
    /// Moves to the next object, at first to the first one, and returns the text from its start on. Empty
    /// after the last one. Raises JsonError.
    [[nodiscard]] std::string_view Next();
    /// Where the object starts.
    [[nodiscard]] std::size_t Offset() const { return m_at; }
    /// Reads the object, and passes it. Raises JsonError; a name that stands twice in an object is one.
    [[nodiscard]] JsonValue Read();
    /// Passes the object, which is that long.
    void Pass(std::size_t length) { m_at += length; }

private:
    void SkipBlanks();
    [[nodiscard]] bool Skip(char character);

    std::string_view m_text;
    std::size_t m_at = 0;
    bool m_isList = false;
    bool m_isBehindOne = false; // behind an object
};

/// The lines and columns of places in a text, which are asked for in the order of the text, mostly.
class TextPlaces {
public:
    /// The text must outlive this.
    explicit TextPlaces(std::string_view text) : m_text(text) {}
    /// "12:34", both from 1, the column in bytes.
    [[nodiscard]] std::wstring At(std::size_t offset);

private:
    std::string_view m_text;
    std::size_t m_at = 0; // of which the line and its start are known
    std::size_t m_line = 1;
    std::size_t m_start = 0;
};

} // namespace quorconv
