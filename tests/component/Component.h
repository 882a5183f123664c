#pragma once

#include "component/quor.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

// What the tests of the C interface share.

/// A text of C++ as one that goes in.
[[nodiscard]] inline quor_text Text(const std::string& text) { return {text.data(), text.size()}; }

/// A text that came out, freed.
[[nodiscard]] inline std::string Taken(quor_text text) {
    std::string taken(text.size == 0 ? "" : text.bytes, text.size);
    quor_text_free(&text);
    return taken;
}

[[nodiscard]] inline std::string Seen(quor_text text) {
    return {text.size == 0 ? "" : text.bytes, text.size};
}

struct Error {
    std::int32_t number;
    std::string source;
    std::string description;
    bool operator==(const Error&) const = default;
};
inline void PrintTo(const Error& error, std::ostream* stream) {
    *stream << error.number << " \"" << error.source << "\" \"" << error.description << '"';
}

[[nodiscard]] inline Error LastError() {
    quor_error error{};
    EXPECT_EQ(quor_last_error(&error), 0);
    return {error.number, Seen(error.source), Seen(error.description)};
}

/// A reference of the test, given back at its end.
class Handle {
public:
    Handle() = default;
    explicit Handle(quor_object handle) : m_handle(handle) {}
    Handle(Handle&& other) noexcept : m_handle(std::exchange(other.m_handle, 0)) {}
    Handle& operator=(Handle&&) = delete;
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { Release(); }

    void Release() {
        if (m_handle != 0) {
            EXPECT_EQ(quor_release(std::exchange(m_handle, 0)), 0);
        }
    }
    operator quor_object() const { return m_handle; } // NOLINT: it stands for its handle
    quor_object* operator&() { return &m_handle; }    // NOLINT: where a call puts it

private:
    quor_object m_handle = 0;
};

[[nodiscard]] inline std::int32_t HandleCount() {
    std::int32_t count = -1;
    EXPECT_EQ(quor_handle_count(&count), 0);
    return count;
}

/// A conversion of that type.
[[nodiscard]] inline Handle Conversion(quor_EQuorConversionType type, quor_object platform = 0) {
    Handle conversion;
    EXPECT_EQ(quor_conversion_create(platform, &conversion), 0);
    EXPECT_EQ(quor_conversion_put_ConversionType(conversion, type), 0);
    return conversion;
}

[[nodiscard]] inline Handle SettingsOf(quor_object conversion) {
    Handle settings;
    EXPECT_EQ(quor_conversion_get_Settings(conversion, &settings), 0);
    return settings;
}

/// Holds that a test gives back every handle.
class ComponentTest : public testing::Test {
protected:
    ~ComponentTest() override { EXPECT_EQ(HandleCount(), m_before); } // when those of the fixture are gone

private:
    std::int32_t m_before = HandleCount();
};

// ---- What a host offers, in memory.

/// An INI file in a map.
struct MapIniFile {
    std::string fileName, section;
    std::map<std::pair<std::string, std::string>, std::string> texts;
    std::map<std::pair<std::string, std::string>, double> numbers;
    std::int32_t failWith = 0; ///< by reads and writes
    bool setsError = false;
    int destroyed = 0;
    std::vector<std::string> brackets;

    [[nodiscard]] std::int32_t Failure() const {
        if (failWith != 0 && setsError)
            quor_set_error(failWith, Text("Store"), Text("The disk is on fire"), Text("host.hlp"), 77);
        return failWith;
    }
    template <class Value>
    std::int32_t Read(quor_text key, Value* value, std::int16_t* found) const {
        const auto at = numbers.find({section, Seen(key)});
        *found = at == numbers.end() ? 0 : -1;
        if (*found != 0)
            *value = static_cast<Value>(at->second);
        return Failure();
    }
    std::int32_t Write(quor_text key, double value) {
        if (failWith == 0)
            numbers[{section, Seen(key)}] = value;
        return Failure();
    }
    static MapIniFile& Of(void* user) { return *static_cast<MapIniFile*>(user); }

    [[nodiscard]] static quor_inifile_functions Functions() {
        quor_inifile_functions f{};
        f.size = sizeof f;
        f.destroyed = [](void* u) { ++Of(u).destroyed; };
        f.put_file_name = [](void* u, quor_text t) { return Of(u).fileName = Seen(t), 0; };
        f.get_file_name = [](void* u) { return quor_answer(Text(Of(u).fileName)); };
        f.put_section = [](void* u, quor_text t) { return Of(u).section = Seen(t), 0; };
        f.get_section = [](void* u) { return quor_answer(Text(Of(u).section)); };
        f.read_boolean = [](void* u, quor_text k, std::int16_t* v, std::int16_t* found) {
            return Of(u).Read(k, v, found);
        };
        f.read_double = [](void* u, quor_text k, double* v, std::int16_t* found) {
            return Of(u).Read(k, v, found);
        };
        f.read_integer = [](void* u, quor_text k, std::int16_t* v, std::int16_t* found) {
            return Of(u).Read(k, v, found);
        };
        f.read_string = [](void* u, quor_text k, std::int16_t* found) {
            const auto at = Of(u).texts.find({Of(u).section, Seen(k)});
            *found = at == Of(u).texts.end() ? 0 : -1;
            return *found == 0 ? Of(u).Failure() : quor_answer(Text(at->second));
        };
        f.write_boolean = [](void* u, quor_text k, std::int16_t v) { return Of(u).Write(k, v); };
        f.write_double = [](void* u, quor_text k, double v, quor_text) { return Of(u).Write(k, v); };
        f.write_integer = [](void* u, quor_text k, std::int16_t v, quor_text) { return Of(u).Write(k, v); };
        f.write_string = [](void* u, quor_text k, quor_text v) {
            Of(u).texts[{Of(u).section, Seen(k)}] = Seen(v);
            return Of(u).Failure();
        };
        f.hold = [](void* u) { return Of(u).brackets.emplace_back("hold"), 0; };
        f.release = [](void* u) { return Of(u).brackets.emplace_back("release"), 0; };
        f.abandon = [](void* u) { return Of(u).brackets.emplace_back("abandon"), 0; };
        return f;
    }
    [[nodiscard]] Handle Make() {
        Handle handle;
        const quor_inifile_functions functions = Functions();
        EXPECT_EQ(quor_inifile_from_host(&functions, this, &handle), 0);
        return handle;
    }
};

/// A registry in a map.
struct MapRegistry {
    std::map<std::pair<std::string, std::string>, std::string> values;
    int destroyed = 0;

    static MapRegistry& Of(void* user) { return *static_cast<MapRegistry*>(user); }
    [[nodiscard]] static quor_registry_functions Functions() {
        quor_registry_functions f{};
        f.size = sizeof f;
        f.destroyed = [](void* u) { ++Of(u).destroyed; };
        f.read_value = [](void* u, quor_text section, quor_text name, std::int16_t* found) {
            const auto at = Of(u).values.find({Seen(section), Seen(name)});
            *found = at == Of(u).values.end() ? 0 : -1;
            return *found == 0 ? 0 : quor_answer(Text(at->second));
        };
        f.write_value = [](void* u, quor_text section, quor_text name, quor_text value) {
            return Of(u).values[{Seen(section), Seen(name)}] = Seen(value), 0;
        };
        return f;
    }
    [[nodiscard]] Handle Make() {
        Handle handle;
        const quor_registry_functions functions = Functions();
        EXPECT_EQ(quor_registry_from_host(&functions, this, &handle), 0);
        return handle;
    }
};

/// A list of texts with numbers.
struct ListOfItems {
    std::vector<std::pair<std::string, std::int32_t>> items;
    int destroyed = 0;

    static ListOfItems& Of(void* user) { return *static_cast<ListOfItems*>(user); }
    [[nodiscard]] static quor_list_control_functions Functions() {
        quor_list_control_functions f{};
        f.size = sizeof f;
        f.destroyed = [](void* u) { ++Of(u).destroyed; };
        f.clear = [](void* u) { return Of(u).items.clear(), 0; };
        f.add_item = [](void* u, quor_text item) { return Of(u).items.emplace_back(Seen(item), 0), 0; };
        f.get_new_index = [](void* u, std::int32_t* index) {
            return *index = static_cast<std::int32_t>(Of(u).items.size()) - 1, 0;
        };
        f.put_item_data = [](void* u, std::int32_t index, std::int32_t data) {
            if (index < 0 || static_cast<std::size_t>(index) >= Of(u).items.size())
                return 9;
            return Of(u).items[static_cast<std::size_t>(index)].second = data, 0;
        };
        return f;
    }
    [[nodiscard]] Handle Make() {
        Handle handle;
        const quor_list_control_functions functions = Functions();
        EXPECT_EQ(quor_list_control_from_host(&functions, this, &handle), 0);
        return handle;
    }
};

/// A platform that records what it is asked, and lets a function of the test run each dialog.
struct RecordingPlatform {
    std::vector<std::string> events;
    std::string answer; ///< to file dialogs; empty cancels
    std::int32_t pointer = 0;
    std::int32_t (*runDialog)(RecordingPlatform&, quor_object dialog) = nullptr;
    int destroyed = 0;
    void* more = nullptr; ///< of the test

    static RecordingPlatform& Of(void* user) { return *static_cast<RecordingPlatform*>(user); }
    void Note(std::string event) { events.push_back(std::move(event)); }
    [[nodiscard]] static quor_platform_functions Functions() {
        quor_platform_functions f{};
        f.size = sizeof f;
        f.destroyed = [](void* u) { ++Of(u).destroyed; };
        f.run_dialog = [](void* u, quor_object dialog) { return Of(u).runDialog(Of(u), dialog); };
        f.show_message = [](void* u, const quor_message* message) {
            Of(u).Note(Seen(message->title) + ", " + std::to_string(message->icon) + ": " +
                       Seen(message->text));
            return 0;
        };
        f.ask_for_file = [](void* u, const quor_file_request* request) {
            Of(u).Note(std::to_string(request->kind) + " " + Seen(request->title) + " | " +
                       Seen(request->filter) + " | " + Seen(request->file_name) + " of " +
                       std::to_string(request->owner));
            return quor_answer(Text(Of(u).answer));
        };
        f.call_help = [](void* u, quor_text file, std::uint32_t command, std::int32_t data,
                         std::int32_t* result) {
            Of(u).Note("help " + Seen(file) + " " + std::to_string(command) + " " + std::to_string(data));
            return *result = -1, 0;
        };
        f.get_mouse_pointer = [](void* u, std::int32_t* shape) { return *shape = Of(u).pointer, 0; };
        f.set_mouse_pointer = [](void* u, std::int32_t shape) {
            Of(u).Note("pointer " + std::to_string(shape));
            return Of(u).pointer = shape, 0;
        };
        return f;
    }
    [[nodiscard]] Handle Make(const quor_platform_functions& functions = Functions()) {
        Handle handle;
        EXPECT_EQ(quor_platform_from_host(&functions, this, &handle), 0);
        return handle;
    }
};

/// The control of that name.
[[nodiscard]] inline Handle Find(quor_object dialog, const std::string& name) {
    Handle control;
    EXPECT_EQ(quor_dialog_FindControl(dialog, Text(name), &control), 0);
    return control;
}
