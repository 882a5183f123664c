#pragma once

// Claims about records that every class makes in the same words. A record here is what the file holds for an
// object, without "Version".

#include "tests/support/Objects.h"

#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <variant>

namespace Support {

using Record = std::map<std::wstring, MemoryIniFile::Value>;

inline constexpr const wchar_t* recordSection = L"Probe";

constexpr std::int16_t Int(int value) { return static_cast<std::int16_t>(value); }

/// A store that holds `record` and no "Version", which nobody may ask for.
inline std::shared_ptr<MemoryIniFile> StoreWith(const Record& record) {
    auto store = std::make_shared<MemoryIniFile>();
    for (const auto& [key, value] : record)
        store->Set(recordSection, key, value);
    return store;
}

template <class T>
bool ReadFrom(T& object, const std::shared_ptr<MemoryIniFile>& store) {
    std::shared_ptr<QuorIniFile::INIFile> ini = store;
    return object.ReadFromFile(ini, L"", recordSection);
}

template <class T>
bool Load(T& object, const Record& record) {
    return ReadFrom(object, StoreWith(record));
}

template <class T>
std::vector<std::wstring> OperationsOfWriting(const T& object) {
    const auto store = std::make_shared<MemoryIniFile>();
    std::shared_ptr<QuorIniFile::INIFile> ini = store;
    object.WriteToFile(ini, L"", recordSection);
    return store->operations;
}

/// What the object puts into a file.
template <class T>
Record Held(const T& object) {
    const auto store = std::make_shared<MemoryIniFile>();
    std::shared_ptr<QuorIniFile::INIFile> ini = store;
    object.WriteToFile(ini, L"", recordSection);
    Record record;
    for (const auto& [place, value] : store->values)
        if (place.second != L"Version")
            record[place.second] = value;
    return record;
}

/// The text of the only message that was shown.
inline std::wstring OnlyMessage(const ScriptedPlatform& platform) {
    EXPECT_EQ(platform.Messages().size(), 1U);
    return platform.Messages().empty() ? L"" : platform.Messages().back().text;
}

inline std::wstring ReadingReport(const std::wstring& error) {
    return L"An error occurred while attempting to read settings.\r\rError: " + error;
}
inline std::wstring WritingReport(const std::wstring& error) {
    return L"An error occurred while attempting to write settings.\r\rError: " + error;
}

/// Reads `other`, without each of its keys in turn, into an object that holds `own`: the user is told once,
/// the object's own value stands for the missing key and every other key loads. Both records have the same
/// keys and counts.
template <class T>
void ExpectOwnValueForEachMissingKey(T& object, const ScriptedPlatform& platform, const Record& own,
                                     const Record& other) {
    for (const auto& [key, value] : other) {
        SCOPED_TRACE(testing::Message() << "missing key " << key);
        ASSERT_TRUE(Load(object, own));
        const auto store = StoreWith(other);
        store->Remove(recordSection, key);
        const std::size_t shownBefore = platform.Messages().size();
        EXPECT_FALSE(ReadFrom(object, store));
        Record expected = other;
        expected[key] = own.at(key);
        EXPECT_EQ(Held(object), expected);
        ASSERT_EQ(platform.Messages().size(), shownBefore + 1);
        EXPECT_EQ(platform.Messages().back().text, versionMessage);
        EXPECT_EQ(platform.Messages().back().title, L"Quor Scientific");
    }
}

/// As above with a store that leaves something else in the variable: that is assigned. Codes and counts are
/// left to the classes, which have rules of their own for them.
template <class T>
void ExpectWhatTheStoreLeavesForEachMissingValue(T& object, const Record& own, const Record& other) {
    for (const auto& [key, value] : other) {
        if (std::holds_alternative<std::int16_t>(value))
            continue;
        SCOPED_TRACE(testing::Message() << "missing key " << key);
        ASSERT_TRUE(Load(object, own));
        const auto store = StoreWith(other);
        store->Remove(recordSection, key);
        store->scribblesOnMissingKeys = true;
        EXPECT_FALSE(ReadFrom(object, store));
        Record expected = other;
        if (std::holds_alternative<double>(value))
            expected[key] = 7.5;
        else
            expected[key] = L"scribble";
        EXPECT_EQ(Held(object), expected);
    }
}

/// Reading what the object holds is no change, reading any one other value is; and neither reading nor
/// writing ever clears the mark.
template <class T>
void ExpectChangeByEachOtherStoredValue(T& object, const Record& own, const Record& other) {
    for (const auto& [key, value] : other) {
        if (value == own.at(key))
            continue;
        SCOPED_TRACE(testing::Message() << "other value of " << key);
        ASSERT_TRUE(Load(object, own));
        object.SetChanged(false);
        ASSERT_TRUE(Load(object, own));
        EXPECT_FALSE(object.Changed());
        Record changed = own;
        changed[key] = value;
        ASSERT_TRUE(Load(object, changed));
        EXPECT_TRUE(object.Changed());
        EXPECT_EQ(Held(object), changed);
        ASSERT_TRUE(Load(object, changed));
        EXPECT_TRUE(object.Changed());
    }
}

/// The story of one value that is 0.0 at first and whose setter stores in any case and marks only a
/// difference: NaN equals NaN, and a zero of the other sign is stored without a mark.
template <class T, class Get, class Set>
void ExpectAMarkForADifferenceOnly(T& object, Get get, Set set) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto marks = [&](double value) {
        object.SetChanged(false);
        set(value);
        return object.Changed();
    };
    EXPECT_FALSE(marks(0.0));
    EXPECT_FALSE(marks(-0.0));
    EXPECT_TRUE(std::signbit(get()));
    EXPECT_TRUE(marks(0.1));
    EXPECT_FALSE(marks(0.1));
    EXPECT_TRUE(marks(std::nextafter(0.1, 1.0)));
    EXPECT_EQ(get(), std::nextafter(0.1, 1.0));
    EXPECT_TRUE(marks(nan));
    EXPECT_TRUE(std::isnan(get()));
    EXPECT_FALSE(marks(nan));
    EXPECT_TRUE(marks(2.5));
    EXPECT_EQ(get(), 2.5);
}

} // namespace Support
