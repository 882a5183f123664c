#pragma once

#include "QuorRegistryII/Registry.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>

/// Remembers as long as the test runs.
class MemoryRegistry final : public QuorRegistryII::Registry {
public:
    bool ReadValue(std::wstring_view section, std::wstring_view name, std::wstring& value) override {
        const auto found = values.find({std::wstring(section), std::wstring(name)});
        if (found != values.end())
            value = found->second;
        return found != values.end();
    }
    void WriteValue(std::wstring_view section, std::wstring_view name, std::wstring_view value) override {
        values[{std::wstring(section), std::wstring(name)}] = value;
    }
    std::map<std::pair<std::wstring, std::wstring>, std::wstring> values;
};
