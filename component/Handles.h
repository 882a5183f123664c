#pragma once

#include "QuorIniFile/QuorError.h"
#include "component/generated/Classes.h"
#include "component/quor.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace QuorConversions::Component {

/// Raises error 91: the handle is none of ours, was released, or stands for nothing any more.
[[noreturn]] void ThrowNoObject();
/// Raises error 13: `given` is an object of another class than `wanted`.
[[noreturn]] void ThrowOtherClass(ClassId wanted, ClassId given);

/// The handles that hosts hold. A handle is a place in the table and the generation of that place, which
/// changes with every release, so that no number, whatever it is, leads to an object but a handle that is in
/// use. One object has one handle.
///
/// Looking a handle up takes no lock; giving out and taking back take one. Places are never freed.
class HandleTable {
public:
    HandleTable() = default;
    HandleTable(const HandleTable&) = delete;
    HandleTable& operator=(const HandleTable&) = delete;
    ~HandleTable();

    /// The table of this process. It is never destroyed: hosts may release handles while the process ends.
    [[nodiscard]] static HandleTable& Instance();

    /// The handle of the object, with one reference more; 0 for null.
    template <class T>
    [[nodiscard]] quor_object Give(const std::shared_ptr<T>& object) {
        return object ? GiveAny(object, classOf<T>) : 0;
    }

    struct Found {
        const std::shared_ptr<void>* object; ///< null when the handle is not in use
        ClassId classId;
    };
    [[nodiscard]] Found Find(quor_object handle) const noexcept {
        const std::size_t place = (handle & placeMask) - 1; // 0 is no place: it wraps to one that is none
        if (place >= maxPlaces)
            return {nullptr, {}};
        const Chunk* const chunk = m_chunks[place / chunkSize].load(std::memory_order_acquire);
        if (!chunk)
            return {nullptr, {}};
        const Place& found = (*chunk)[place % chunkSize];
        if (found.generation.load(std::memory_order_acquire) != handle >> generationShift || !found.object)
            return {nullptr, {}};
        return {&found.object, found.classId};
    }

    /// Both raise error 91 for a handle that is not in use.
    void AddReference(quor_object handle);
    /// The object may be destroyed by it.
    void Release(quor_object handle);

    [[nodiscard]] std::int32_t Count() const;

private:
    struct Place {
        std::atomic<std::uint32_t> generation{1};
        ClassId classId{};
        std::int32_t references = 0;
        std::shared_ptr<void> object; ///< points to the object as the class that classId names
    };
    static constexpr std::size_t chunkSize = 1024;
    static constexpr std::size_t maxChunks = 65536;
    static constexpr std::size_t maxPlaces = chunkSize * maxChunks;
    static constexpr quor_object placeMask = 0xFFFFFFFF;
    static constexpr int generationShift = 32;
    using Chunk = std::array<Place, chunkSize>;

    [[nodiscard]] quor_object GiveAny(const std::shared_ptr<void>& object, ClassId classId);
    [[nodiscard]] Place& PlaceOf(std::size_t place) const {
        return (*m_chunks[place / chunkSize].load(std::memory_order_relaxed))[place % chunkSize];
    }
    /// A place that is free, still to be found so by the next call.
    [[nodiscard]] std::size_t FreePlace();

    std::array<std::atomic<Chunk*>, maxChunks> m_chunks{};
    mutable std::mutex m_mutex; ///< of all that follows, and of giving out and taking back
    std::vector<std::size_t> m_free;
    std::size_t m_places = 0;
    std::unordered_map<const void*, quor_object> m_handles;
};

/// The object of a handle as a T, and a reference to it: host code that the call runs may release the handle.
/// Raises 91 and 13.
template <class T>
[[nodiscard]] std::shared_ptr<void> KeepAlive(quor_object handle) {
    const HandleTable::Found found = HandleTable::Instance().Find(handle);
    if (!found.object)
        ThrowNoObject();
    if (found.classId != classOf<T>)
        ThrowOtherClass(classOf<T>, found.classId);
    return *found.object;
}

template <class T>
[[nodiscard]] std::shared_ptr<T> Reference(quor_object handle) {
    return std::static_pointer_cast<T>(KeepAlive<T>(handle));
}

/// The same; null for the handle 0.
template <class T>
[[nodiscard]] std::shared_ptr<T> AnyOrNone(quor_object handle) {
    return handle == 0 ? nullptr : Reference<T>(handle);
}

/// Gives a reference back at the end of a scope.
class ScopedHandle {
public:
    explicit ScopedHandle(quor_object handle) : m_handle(handle) {}
    ScopedHandle(const ScopedHandle&) = delete;
    ScopedHandle& operator=(const ScopedHandle&) = delete;
    ~ScopedHandle();

    [[nodiscard]] quor_object Get() const { return m_handle; }

private:
    quor_object m_handle;
};

} // namespace QuorConversions::Component
