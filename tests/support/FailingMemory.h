#pragma once

#include <cstddef>

namespace Support {

/// A lack of memory, from its construction until Restore or its end. A program that links FailingMemory.cpp
/// has operators new of its own, so that it is no place for other tests. There is one at a time.
class FailingMemory {
public:
    /// So many allocations go well; then one fails, or, when `lasting`, all that follow.
    FailingMemory(std::size_t allocations, bool lasting);
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    ~FailingMemory();

    void Restore();
    /// Whether an allocation has failed, and whether one has failed with an exception: some ask without, and
    /// can do without the memory.
    [[nodiscard]] bool HasFailed() const { return m_hasFailed; }
    [[nodiscard]] bool HasThrown() const { return m_hasThrown; }

    /// For the operators new: whether the next allocation fails.
    [[nodiscard]] bool Fails();
    void Throws() { m_hasThrown = true; }

private:
    std::size_t m_left;
    bool m_lasting;
    bool m_isOver = false;
    bool m_hasFailed = false;
    bool m_hasThrown = false;
};

} // namespace Support
