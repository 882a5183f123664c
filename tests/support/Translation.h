#pragma once

#include "QuorConversions/resources/StringTable.h"

#include <string>

namespace Support {

/// Every text in another language, for as long as it lives: the id of the entry.
class Translation {
public:
    Translation() {
        QuorConversions::ReplaceStringTable([](std::int32_t id) { return std::to_wstring(id); });
    }
    Translation(const Translation&) = delete;
    Translation& operator=(const Translation&) = delete;
    ~Translation() { QuorConversions::ReplaceStringTable({}); }
};

} // namespace Support
