#include "tests/support/FailingMemory.h"

#include <cstdlib>
#include <new>

namespace Support {
namespace {

FailingMemory* current = nullptr;

void* Allocate(std::size_t size) {
    return current != nullptr && current->Fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* AllocateOrThrow(std::size_t size) {
    if (void* const memory = Allocate(size))
        return memory;
    if (current != nullptr)
        current->Throws();
    throw std::bad_alloc();
}

} // namespace

FailingMemory::FailingMemory(std::size_t allocations, bool lasting)
    : m_left(allocations), m_lasting(lasting) {
    current = this;
}

FailingMemory::~FailingMemory() { Restore(); }

void FailingMemory::Restore() {
    m_isOver = true;
    current = nullptr;
}

bool FailingMemory::Fails() {
    if (m_isOver || m_left > 0) {
        m_left -= m_isOver ? 0 : 1;
        return false;
    }
    m_hasFailed = true;
    m_isOver = !m_lasting;
    return true;
}

} // namespace Support

using Support::Allocate;
using Support::AllocateOrThrow;

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept { std::free(memory); }
