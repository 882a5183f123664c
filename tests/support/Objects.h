#pragma once

// What most tests need: a conversion on a platform that records, and its settings object.

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorIniFile/QuorError.h"
#include "tests/support/ListRecorder.h"
#include "tests/support/MemoryIniFile.h"
#include "toolkits/scripted/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace Support {

using QuorConversions::Scripted::ScriptedPlatform;

/// The settings object as the facade makes it for a type.
template <class T>
std::shared_ptr<T> FreshSettings(QuorConversions::EQuorConversionType type,
                                 const std::shared_ptr<ScriptedPlatform>& platform) {
    QuorConversions::CQuorConversion conversion(platform);
    conversion.SetConversionType(type);
    return QuorConversions::SettingsAs<T>(conversion);
}

/// The same with `Changed` cleared, so that a test starts clean.
template <class T>
std::shared_ptr<T> NewSettings(QuorConversions::EQuorConversionType type,
                               const std::shared_ptr<ScriptedPlatform>& platform) {
    auto settings = FreshSettings<T>(type, platform);
    if (settings)
        settings->SetChanged(false);
    return settings;
}

/// Expects that `statement` raises a QuorError with this number, source and description.
#define EXPECT_QUOR_ERROR(statement, number, source, description)                                            \
    try {                                                                                                    \
        statement;                                                                                           \
        ADD_FAILURE() << "no error was raised";                                                              \
    } catch (const QuorIniFile::QuorError& error) {                                                          \
        EXPECT_EQ(error.Number(), number);                                                                   \
        EXPECT_EQ(error.Source(), source);                                                                   \
        EXPECT_EQ(error.Description(), description);                                                         \
    }

inline constexpr std::int32_t indexOutOfRange = -2147221003; // 0x800401F5
inline const wchar_t* const versionMessage =
    L"Cannot read the selected settings file because the file version is incorrect.";

} // namespace Support
