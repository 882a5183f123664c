#pragma once

#include "QuorIniFile/detail/IniFormat.h"
#include "QuorIniFile/detail/IniIndex.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

// Hash tables of names of sections and keys. Names are given as NameToFind or CanonicalName spell them; the
// case of ASCII letters does not matter.
namespace QuorIniFile {

struct IniNameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const { return HashName(name); }
};

struct IniNameEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return SameName(a, b); }
};

template <class Value>
using IniNameMap = std::unordered_map<std::string, Value, IniNameHash, IniNameEqual>;
using IniNameSet = std::unordered_set<std::string, IniNameHash, IniNameEqual>;

} // namespace QuorIniFile
