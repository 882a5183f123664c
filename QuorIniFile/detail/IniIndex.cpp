#include "QuorIniFile/detail/IniIndex.h"

#include <array>
#include <bit>
#include <cstring>
#include <random>
#include <utility>

namespace QuorIniFile {
namespace {

struct HashKey {
    std::uint64_t first, second;
};

HashKey RandomKey() {
    std::random_device random;
    const auto word = [&random] { return (std::uint64_t{random()} << 32U) | random(); };
    return {word(), word()};
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

} // namespace

std::uint64_t HashName(std::string_view name) {
    static const HashKey key = RandomKey();
    SipHash hash(key);
    const std::size_t length = name.size();
    for (; name.size() >= sizeof(std::uint64_t); name.remove_prefix(sizeof(std::uint64_t))) {
        std::uint64_t word = 0;
        std::memcpy(&word, name.data(), sizeof word);
        hash.Take(Fold(word));
    }
    std::uint64_t rest = 0;
    for (std::size_t at = 0; at < name.size(); ++at) // a copy of unknown length would take longer
        rest |= std::uint64_t{static_cast<unsigned char>(name[at])} << (8 * at);
    hash.Take(Fold(rest));
    hash.Take(length);
    return hash.Finish();
}

void IniIndex::Add(std::uint64_t hash, std::uint32_t number) {
    Reserve(1);
    Put({static_cast<std::uint32_t>(hash), number});
    ++m_count;
}

void IniIndex::Reserve(std::size_t more) {
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

void IniIndex::Put(Slot slot) {
    std::size_t at = Start(slot.tag);
    while (m_slots[at].number != unused)
        at = Next(at);
    m_slots[at] = slot;
}

} // namespace QuorIniFile
