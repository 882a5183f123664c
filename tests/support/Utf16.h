#pragma once

#include <string>
#include <string_view>

// The bytes of a UTF-16 text, low byte first or high byte first. A byte-order mark is a character of the
// text.

inline std::string Utf16Le(std::u16string_view text) {
    std::string bytes;
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit % 256);
        bytes += static_cast<char>(unit / 256);
    }
    return bytes;
}

inline std::string Utf16Be(std::u16string_view text) {
    std::string bytes;
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit / 256);
        bytes += static_cast<char>(unit % 256);
    }
    return bytes;
}
