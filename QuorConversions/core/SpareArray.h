#pragma once

#include "QuorConversions/core/modStrings.h"
#include "QuorIniFile/QuorError.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace QuorConversions {

/// Slots with indices 0 to count, of which 0 to count - 1 are accessible; the last one is spare. On purpose,
/// an array that was shortened keeps the value in its spare slot and shows it again when it grows.
template <class Slot>
class SpareArray {
public:
    /// No index above `highestIndex` is valid, whatever the count. `source` names the class in errors.
    explicit SpareArray(const wchar_t* source,
                        std::int32_t highestIndex = std::numeric_limits<std::int32_t>::max())
        : m_source(source), m_highestIndex(highestIndex) {}

    /// How many slots are accessible; may be negative, as SetCount has stored it.
    [[nodiscard]] std::int16_t Count() const { return m_count; }

    /// Resizes to 0 .. count; values are kept, new slots are empty. A negative count is stored, makes every
    /// index invalid, and leaves the slots alone, so that a later valid count shows them again.
    void SetCount(std::int16_t count) {
        if (count >= 0)
            m_slots.resize(static_cast<std::size_t>(count) + 1);
        m_count = count; // last: without memory for the slots the old count must stand
    }

    /// As SetCount, but raises 9 "Subscript out of range" for a negative count, after storing it.
    void Resize(std::int16_t count) {
        SetCount(count);
        if (count < 0)
            throw QuorIniFile::QuorError(QuorIniFile::ERR_SUBSCRIPT_OUT_OF_RANGE, m_source,
                                         TableText(IDS_SUBSCRIPT_OUT_OF_RANGE));
    }

    /// Calls `clear` for each slot that is not accessible.
    template <class Clear>
    void ClearSpare(const Clear& clear) {
        for (auto at = static_cast<std::size_t>(m_count < 0 ? 0 : m_count); at < m_slots.size(); ++at)
            clear(m_slots[at]);
    }

    /// Whether the index is accessible.
    [[nodiscard]] bool IsValid(std::int32_t index) const {
        return index >= 0 && index < m_count && index <= m_highestIndex;
    }

    /// The slot at an index, from 0. Raises "Index out of range" (0x800401F5) for an invalid index.
    [[nodiscard]] const Slot& At(std::int32_t index) const {
        if (!IsValid(index))
            throw QuorIniFile::QuorError(QuorIniFile::ERR_INDEX_OUT_OF_RANGE, m_source,
                                         TableText(IDS_INDEX_OUT_OF_RANGE));
        return m_slots[static_cast<std::size_t>(index)];
    }
    /// The same, to be changed.
    [[nodiscard]] Slot& At(std::int32_t index) {
        return const_cast<Slot&>(static_cast<const SpareArray&>(*this).At(index)); // NOLINT: the slot is ours
    }

private:
    const wchar_t* m_source;
    std::int32_t m_highestIndex;
    std::int16_t m_count = 0;
    std::vector<Slot> m_slots;
};

} // namespace QuorConversions
