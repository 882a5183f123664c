#pragma once

#include <cstddef>
#include <functional>
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
    std::size_t line = 1;
    std::size_t column = 1;

    [[nodiscard]] const JsonValue* Find(std::wstring_view name) const;
};

/// A JSON text that cannot be read, or that does not say what it should.
struct JsonError {
    std::size_t line;
    std::size_t column; ///< in bytes, from 1
    std::wstring text;
};

/// Reads a JSON text that is one object, a list of objects, or objects one after the other (JSON Lines), and
/// calls `use` with each of the objects. Raises JsonError; a name that stands twice in an object is one.
void ReadJsonObjects(std::string_view text, const std::function<void(const JsonValue&)>& use);

} // namespace quorconv
