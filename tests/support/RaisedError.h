#pragma once

#include "QuorIniFile/QuorError.h"

#include <gtest/gtest.h>

namespace Support {

/// The error that `action` raises.
template <class Action>
QuorIniFile::QuorError ErrorOf(const Action& action) {
    try {
        action();
    } catch (const QuorIniFile::QuorError& error) {
        return error;
    }
    ADD_FAILURE() << "nothing was raised";
    return {0, L"", L""};
}

} // namespace Support
