#pragma once

#include "component/Errors.h"
#include "component/Handles.h"
#include "component/Host.h"
#include "component/Text.h"
#include "component/quor.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>

// What the typed functions are made of: the object behind a handle, arguments on their way in, results on
// their way out. A result that the host does not want (NULL) is not made.
namespace QuorConversions::Component {

/// Calls a member of the object behind the handle, which lives until the call ends.
template <class T, class Body>
std::int32_t Call(quor_object object, Body&& body) noexcept {
    return Guarded([&] {
        const std::shared_ptr<void> alive = KeepAlive<T>(object);
        std::forward<Body>(body)(*static_cast<T*>(alive.get()));
    });
}

/// An in/out argument.
template <class T>
[[nodiscard]] T* Needed(T* argument) {
    if (!argument)
        Throw(QUOR_ERROR_ARGUMENT, L"An in/out argument is NULL");
    return argument;
}

/// Boolean: True is -1.
inline void Out(std::int16_t* result, bool value) {
    if (result)
        *result = static_cast<std::int16_t>(value ? -1 : 0);
}

template <class Number>
requires(std::is_arithmetic_v<Number> && !std::is_same_v<Number, bool>) void Out(Number* result,
                                                                                 Number value) {
    if (result)
        *result = value;
}

template <class Enumeration>
requires std::is_enum_v<Enumeration>
void Out(std::int32_t* result, Enumeration value) {
    if (result)
        *result = static_cast<std::int32_t>(value);
}

inline void Out(quor_text* result, std::wstring_view text) {
    if (result)
        *result = NewText(text);
}

inline void Out(quor_int32s* result, std::span<const std::int32_t> numbers) {
    if (result)
        *result = {numbers.data(), numbers.size()};
}

inline void Out(quor_doubles* result, std::span<const double> numbers) {
    if (result)
        *result = {numbers.data(), numbers.size()};
}

template <class T>
void Out(quor_object* result, const std::shared_ptr<T>& object) {
    if (result)
        *result = HandleTable::Instance().Give(object);
}

template <class... Class>
[[nodiscard]] quor_object GiveSettings(const std::shared_ptr<SettingsObject>& settings,
                                       Classes<Class...> /*those that there are*/) {
    quor_object handle = 0;
    const SettingsObject& object = *settings;
    const std::type_info& type = typeid(object);
    static_cast<void>(
        ((type == typeid(Class) &&
          (handle = HandleTable::Instance().Give(std::static_pointer_cast<Class>(settings)), true)) ||
         ...));
    return handle;
}

/// A settings object is given out as the class that it is.
inline void Out(quor_object* result, const std::shared_ptr<SettingsObject>& settings) {
    if (result)
        *result = settings ? GiveSettings(settings, SettingsClasses{}) : 0;
}

/// An in/out reference while the call lasts.
template <class T>
class InOutReference {
public:
    explicit InOutReference(quor_object* argument)
        : m_argument(argument), m_given(argument ? AnyOrNone<T>(*argument) : nullptr), m_pointer(m_given) {}

    [[nodiscard]] std::shared_ptr<T>& Pointer() { return m_pointer; }

    /// Puts a reference that the call has exchanged into the host's argument.
    void GiveBack() {
        if (!m_argument || m_pointer == m_given)
            return;
        const ScopedHandle released(std::exchange(*m_argument, HandleTable::Instance().Give(m_pointer)));
    }

private:
    quor_object* m_argument;
    std::shared_ptr<T> m_given;
    std::shared_ptr<T> m_pointer;
};

} // namespace QuorConversions::Component
