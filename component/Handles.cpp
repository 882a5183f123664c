#include "component/Handles.h"

#include "component/Members.h"

#include <limits>
#include <new>
#include <string>

namespace QuorConversions::Component {
namespace {

std::wstring NameOf(ClassId classId) {
    const std::string_view name = AllClasses()[static_cast<std::size_t>(classId)].name;
    return {name.begin(), name.end()};
}

} // namespace

void ThrowNoObject() {
    throw QuorIniFile::QuorError(QUOR_ERROR_NO_OBJECT, L"quor",
                                 L"Invalid handle: it was never given out, or it was released");
}

void ThrowOtherClass(ClassId wanted, ClassId given) {
    throw QuorIniFile::QuorError(QUOR_ERROR_TYPE, L"quor",
                                 L"The object is a " + NameOf(given) + L", not a " + NameOf(wanted));
}

HandleTable::~HandleTable() {
    for (std::atomic<Chunk*>& chunk : m_chunks)
        delete chunk.load(); // NOLINT(cppcoreguidelines-owning-memory): an atomic cannot own it
}

HandleTable& HandleTable::Instance() {
    static HandleTable& table = *new HandleTable; // NOLINT: the one of the process, never destroyed
    return table;
}

std::size_t HandleTable::FreePlace() {
    if (!m_free.empty())
        return m_free.back();
    if (m_places == maxPlaces)
        throw std::bad_alloc();
    if (m_places % chunkSize == 0 && !m_chunks[m_places / chunkSize].load(std::memory_order_relaxed)) {
        m_free.reserve(m_places + chunkSize); // Release must not fail
        m_chunks[m_places / chunkSize].store(std::make_unique<Chunk>().release(), std::memory_order_release);
    }
    m_free.push_back(m_places++);
    return m_free.back();
}

quor_object HandleTable::GiveAny(const std::shared_ptr<void>& object, ClassId classId) {
    const std::lock_guard lock(m_mutex);
    if (const auto known = m_handles.find(object.get()); known != m_handles.end()) {
        Place& place = PlaceOf((known->second & placeMask) - 1);
        if (place.references == std::numeric_limits<std::int32_t>::max())
            throw std::bad_alloc();
        ++place.references;
        return known->second;
    }
    const std::size_t at = FreePlace();
    Place& place = PlaceOf(at);
    const quor_object handle =
        quor_object{place.generation.load(std::memory_order_relaxed)} << generationShift | (at + 1);
    m_handles.emplace(object.get(), handle);
    m_free.pop_back();
    place.classId = classId;
    place.references = 1;
    place.object = object;
    return handle;
}

void HandleTable::AddReference(quor_object handle) {
    const std::lock_guard lock(m_mutex);
    if (!Find(handle).object)
        ThrowNoObject();
    Place& place = PlaceOf((handle & placeMask) - 1);
    if (place.references == std::numeric_limits<std::int32_t>::max())
        throw std::bad_alloc();
    ++place.references;
}

void HandleTable::Release(quor_object handle) {
    std::shared_ptr<void> last; // destroyed without the lock: what a host offers is told, and may call back
    const std::lock_guard lock(m_mutex);
    if (!Find(handle).object)
        ThrowNoObject();
    const std::size_t at = (handle & placeMask) - 1;
    Place& place = PlaceOf(at);
    if (--place.references > 0)
        return;
    last.swap(place.object);
    m_handles.erase(last.get());
    const std::uint32_t generation = place.generation.load(std::memory_order_relaxed) + 1;
    place.generation.store(generation, std::memory_order_release);
    if (generation != 0) // a place whose generations are used up is not used again
        m_free.push_back(at);
}

std::int32_t HandleTable::Count() const {
    const std::lock_guard lock(m_mutex);
    return static_cast<std::int32_t>(m_handles.size());
}

ScopedHandle::~ScopedHandle() {
    try {
        if (m_handle != 0)
            HandleTable::Instance().Release(m_handle);
    } catch (...) { // the host has given back what was not its own
    }
}

} // namespace QuorConversions::Component
