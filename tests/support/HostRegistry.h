#pragma once

#include "QuorRegistryII/Registry.h"

namespace Support {

/// A registry that a host passes around; it keeps nothing.
class HostRegistry : public QuorRegistryII::Registry {
public:
    bool ReadValue(std::wstring_view, std::wstring_view, std::wstring&) override { return false; }
    void WriteValue(std::wstring_view, std::wstring_view, std::wstring_view) override {}
};

} // namespace Support
