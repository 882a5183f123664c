#pragma once

// What the tests claim about saved and loaded records.

#include "tests/support/Messages.h"
#include "tests/support/Objects.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Support {

using Lines = std::vector<std::wstring>;
using Records = decltype(MemoryIniFile::values);

/// Reads the records `file` in the section "Probe", without one of their keys, into an object that holds
/// `own`, for each key in turn. The object's own value must stand for that key and all others must be taken;
/// the user must be told once, and once more for a record inside another one. "Version" may be missing.
template <class Make>
void ExpectOwnValueForEachMissingKey(const ScriptedPlatform& platform, const Make& make, const Records& own,
                                     const Records& file) {
    for (const auto& [place, value] : file) {
        SCOPED_TRACE(testing::PrintToString(place));
        const auto object = make();
        const auto memory = std::make_shared<MemoryIniFile>();
        std::shared_ptr<QuorIniFile::INIFile> ini = memory;
        memory->values = own;
        ASSERT_TRUE(object->ReadFromFile(ini, L"", L"Probe"));

        const bool mayBeMissing = place.second == L"Version";
        const std::size_t messages = mayBeMissing ? 0 : place.first == L"Probe" ? 1 : 2;
        Lines expectedMessages = MessageTexts(platform);
        expectedMessages.insert(expectedMessages.end(), messages, versionMessage);
        memory->values = file;
        memory->values.erase(place);
        EXPECT_EQ(object->ReadFromFile(ini, L"", L"Probe"), mayBeMissing);
        EXPECT_EQ(MessageTexts(platform), expectedMessages);

        Records expected = file;
        expected.at(place) = own.at(place);
        memory->values.clear();
        object->WriteToFile(ini, L"", L"Probe");
        EXPECT_EQ(memory->values, expected);
    }
}

} // namespace Support
