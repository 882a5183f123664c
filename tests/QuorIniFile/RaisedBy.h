#pragma once

#include "QuorIniFile/QuorError.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace Support {

/// The error of the store that `action` raises; one with the number 0 when it raises nothing.
template <class Action>
[[nodiscard]] QuorIniFile::QuorError RaisedBy(const Action& action) {
    try {
        action();
    } catch (const QuorIniFile::QuorError& error) {
        EXPECT_EQ(error.Source(), L"QuorIniFile");
        return error;
    }
    return {0, L"", L"nothing"};
}

/// The number of the error that `action` raises; 0 when it raises nothing.
template <class Action>
[[nodiscard]] std::int32_t NumberRaisedBy(const Action& action) {
    return RaisedBy(action).Number();
}

/// The description of the error 75 by which `action` is refused; L"" when it is not.
template <class Action>
[[nodiscard]] std::wstring RefusalOf(const Action& action) {
    const QuorIniFile::QuorError error = RaisedBy(action);
    if (error.Number() == 0)
        return L"";
    EXPECT_EQ(error.Number(), QuorIniFile::ERR_PATH_FILE_ACCESS);
    return error.Description();
}

} // namespace Support
