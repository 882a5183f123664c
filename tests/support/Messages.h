#pragma once

// What the user was told, as texts to compare.

#include "toolkits/scripted/ScriptedPlatform.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Support {

/// The whole error report; `activity` is "attempting to read settings" and the like.
inline std::wstring ErrorReport(const std::wstring& activity, std::int32_t number,
                                const std::wstring& description, const std::wstring& source) {
    return L"An error occurred while " + activity + L".\r\rError: " + std::to_wstring(number) + L" - " +
           description + L"\r(" + source + L")";
}

inline const wchar_t* const readingSettings = L"attempting to read settings";
inline const wchar_t* const writingSettings = L"attempting to write settings";

/// The texts of all messages so far, in order.
inline std::vector<std::wstring> MessageTexts(const QuorConversions::Scripted::ScriptedPlatform& platform) {
    std::vector<std::wstring> texts;
    for (const auto& message : platform.Messages())
        texts.push_back(message.text);
    return texts;
}

} // namespace Support
