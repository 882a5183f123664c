#pragma once

#include "component/quor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

// The table of members, as calls by name see it. What stands in it is made by component/generate.
namespace QuorConversions::Component {

using MemberFunction = std::int32_t (*)(quor_object object, quor_value* args, std::int32_t n,
                                        quor_value* result);
using MakingFunction = std::int32_t (*)(quor_value* args, std::int32_t n, quor_object* object);

struct NameRow {
    const char* name; ///< in lower case
    std::int32_t number;
};

struct MemberRow {
    const char* name;
    const char* signature;
    std::int32_t number;
    std::int32_t parameters;
    std::int32_t required;
    MemberFunction get; ///< null when the member has no such kind, as those below
    MemberFunction put;
    MemberFunction call;
};

/// Where in a class the member of a number stands.
class PlacesOfNumbers {
public:
    template <std::size_t count>
    explicit constexpr PlacesOfNumbers(const MemberRow (&members)[count]) {
        static_assert(count < none);
        m_places.fill(none);
        for (std::size_t place = 0; place < count; ++place)
            m_places.at(static_cast<std::size_t>(members[place].number)) = static_cast<std::uint8_t>(place);
    }
    /// 255 for none.
    [[nodiscard]] constexpr std::uint8_t Of(std::int32_t number) const {
        return number < 0 || static_cast<std::size_t>(number) >= m_places.size()
                   ? none
                   : m_places[static_cast<std::size_t>(number)];
    }
    static constexpr std::uint8_t none = 255;

private:
    std::array<std::uint8_t, 256> m_places{};
};

struct ClassRow {
    const char* name;
    std::span<const MemberRow> members;
    const PlacesOfNumbers* places; ///< null for a class without members
    MakingFunction make;           ///< null for a class that no host makes

    /// The member of that number; null when there is none.
    [[nodiscard]] const MemberRow* Find(std::int32_t number) const {
        const std::uint8_t place = places ? places->Of(number) : PlacesOfNumbers::none;
        return place == PlacesOfNumbers::none ? nullptr : &members[place];
    }
};

/// All names of members, sorted.
[[nodiscard]] std::span<const NameRow> Names();
/// In the order of ClassId.
[[nodiscard]] std::span<const ClassRow> AllClasses();

} // namespace QuorConversions::Component
