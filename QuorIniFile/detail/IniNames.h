#pragma once

#include "QuorIniFile/AsciiCase.h"
#include "QuorIniFile/detail/IniFormat.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

// Hash tables of names of sections and keys. The case of ASCII letters does not matter.
namespace QuorIniFile {

struct IniNameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const { return HashName(name); }
};

struct IniNameEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return SameName(a, b); }
};

/// Names are spelled as CanonicalName does.
template <class Value>
using IniNameMap = std::unordered_map<std::string, Value, IniNameHash, IniNameEqual>;
using IniNameSet = std::unordered_set<std::string, IniNameHash, IniNameEqual>;

/// Finds numbers (of sections, of keys) by the hash of their names. It holds no names: whoever asks says
/// whether a candidate is meant. Eight bytes a slot, of which at most two thirds are taken.
class IniNameIndex {
public:
    /// The number that was added under that hash and for which `same(number)` holds, or nothing.
    template <class Same>
    [[nodiscard]] std::optional<std::uint32_t> Find(std::uint64_t hash, const Same& same) const {
        if (m_slots.empty())
            return std::nullopt;
        const auto tag = static_cast<std::uint32_t>(hash);
        for (std::size_t at = Start(tag); m_slots[at].number != unused; at = Next(at)) {
            if (m_slots[at].tag == tag && same(m_slots[at].number))
                return m_slots[at].number;
        }
        return std::nullopt;
    }

    /// Tells that this hash is about to be looked for or added, among others.
    void WillFind([[maybe_unused]] std::uint64_t hash) const {
#ifdef __GNUC__
        if (!m_slots.empty())
            __builtin_prefetch(&m_slots[Start(static_cast<std::uint32_t>(hash))]);
#endif
    }

    /// Adds a number below 2^32 - 1 that is not there under that hash yet.
    void Add(std::uint64_t hash, std::uint32_t number);
    /// Makes room for so many more numbers in one step: adding them needs no memory then.
    void Reserve(std::size_t more);
    /// Removes a number that was added under that hash; nothing for any other.
    void Remove(std::uint64_t hash, std::uint32_t number) noexcept;
    void Clear() noexcept;

private:
    static constexpr std::uint32_t unused = 0xFFFFFFFF;

    struct Slot {
        std::uint32_t tag = 0;
        std::uint32_t number = unused;
    };

    [[nodiscard]] std::size_t Start(std::uint32_t tag) const { return tag & (m_slots.size() - 1); }
    [[nodiscard]] std::size_t Next(std::size_t at) const { return (at + 1) & (m_slots.size() - 1); }
    void Put(Slot slot);

    std::vector<Slot> m_slots; // a power of two of them
    std::size_t m_count = 0;
};

} // namespace QuorIniFile
