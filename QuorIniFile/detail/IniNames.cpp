#include "QuorIniFile/detail/IniNames.h"

#include "QuorIniFile/detail/Unicode.h"

#include <array>
#include <bit>
#include <random>
#include <utility>

namespace QuorIniFile {
namespace {

struct HashKey {
    std::uint64_t first, second;
};

/// The key of this process.
HashKey ProcessKey() {
    static const HashKey key = [] {
        std::random_device random;
        const auto word = [&random] { return (std::uint64_t{random()} << 32U) | random(); };
        return HashKey{word(), word()};
    }();
    return key;
}

/// SipHash with one round a word and three at the end: fast on short names, and without the key nobody can
/// choose names that collide.
class SipHash {
public:
    explicit SipHash(HashKey key)
        : m_state{key.first ^ 0x736F6D6570736575U, key.second ^ 0x646F72616E646F6DU,
                  key.first ^ 0x6C7967656E657261U, key.second ^ 0x7465646279746573U} {}

    void Take(std::uint64_t word) {
        m_state[3] ^= word;
        Round();
        m_state[0] ^= word;
    }

    [[nodiscard]] std::uint64_t Finish() {
        m_state[2] ^= 0xFFU;
        Round();
        Round();
        Round();
        return m_state[0] ^ m_state[1] ^ m_state[2] ^ m_state[3];
    }

private:
    void Round() {
        auto& [a, b, c, d] = m_state;
        a += b;
        b = std::rotl(b, 13) ^ a;
        a = std::rotl(a, 32);
        c += d;
        d = std::rotl(d, 16) ^ c;
        a += d;
        d = std::rotl(d, 21) ^ a;
        c += b;
        b = std::rotl(b, 17) ^ c;
        c = std::rotl(c, 32);
    }

    std::array<std::uint64_t, 4> m_state;
};

/// Eight characters at once, capital ASCII letters made small.
std::uint64_t Fold(std::uint64_t word) {
    constexpr std::uint64_t each = 0x0101010101010101U;
    const std::uint64_t low = word & (each * 0x7F);
    const std::uint64_t fromA = low + each * (0x80 - 'A'); // the high bit says: 'A' or above
    const std::uint64_t behindZ = low + each * (0x7F - 'Z');
    const std::uint64_t capitals = ~word & (fromA ^ behindZ) & (each * 0x80);
    return word | (capitals >> 2U);
}

/// The hash of an ASCII or UTF-8 name in units of any width.
template <class Unit>
std::uint64_t HashUnits(std::basic_string_view<Unit> name) {
    SipHash hash(ProcessKey());
    // Eight characters at once; the last ones again with some before them, as the length tells.
    constexpr std::size_t step = sizeof(std::uint64_t);
    const auto word = [&name](std::size_t from) {
        std::array<char, step> bytes{};
        for (std::size_t at = 0; at < step; ++at)
            bytes[at] = static_cast<char>(name[from + at]);
        return Fold(std::bit_cast<std::uint64_t>(bytes));
    };
    for (std::size_t at = 0; at + step < name.size(); at += step)
        hash.Take(word(at));
    if (name.size() >= step) {
        hash.Take(word(name.size() - step));
    } else {
        std::uint64_t rest = 0;
        for (std::size_t at = 0; at < name.size(); ++at)
            rest |= std::uint64_t{static_cast<unsigned char>(name[at])} << (8 * at);
        hash.Take(Fold(rest));
    }
    hash.Take(name.size());
    return hash.Finish();
}

} // namespace

std::uint64_t HashName(std::string_view name) { return HashUnits(name); }

std::uint64_t HashName(std::wstring_view name) {
    return IsAscii(name) ? HashUnits(name) : HashUnits(std::string_view(ToUtf8(name)));
}

void IniNameIndex::Add(std::uint64_t hash, std::uint32_t number) {
    Reserve(1);
    Put({static_cast<std::uint32_t>(hash), number});
    ++m_count;
}

void IniNameIndex::Reserve(std::size_t more) {
    constexpr std::size_t fewest = 16;
    std::size_t size = m_slots.empty() ? fewest : m_slots.size();
    while ((m_count + more) * 3 > size * 2)
        size *= 2;
    if (size == m_slots.size())
        return;
    const std::vector<Slot> old = std::exchange(m_slots, std::vector<Slot>(size));
    for (const Slot& slot : old) {
        if (slot.number != unused)
            Put(slot);
    }
}

void IniNameIndex::Remove(std::uint64_t hash, std::uint32_t number) noexcept {
    if (m_slots.empty())
        return;
    std::size_t at = Start(static_cast<std::uint32_t>(hash));
    while (m_slots[at].number != number) {
        if (m_slots[at].number == unused)
            return;
        at = Next(at);
    }
    // What was put behind it because its own place was taken moves up.
    for (std::size_t next = Next(at); m_slots[next].number != unused; next = Next(next)) {
        const std::size_t start = Start(m_slots[next].tag);
        const bool isBehind = at <= next ? at < start && start <= next : at < start || start <= next;
        if (!isBehind) {
            m_slots[at] = m_slots[next];
            at = next;
        }
    }
    m_slots[at] = {};
    --m_count;
}

void IniNameIndex::Clear() noexcept {
    m_slots.clear();
    m_count = 0;
}

void IniNameIndex::Put(Slot slot) {
    std::size_t at = Start(slot.tag);
    while (m_slots[at].number != unused)
        at = Next(at);
    m_slots[at] = slot;
}

} // namespace QuorIniFile
