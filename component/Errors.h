#pragma once

#include "QuorIniFile/QuorError.h"
#include "component/quor.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace QuorConversions::Component {

/// Raises an error of this interface itself.
[[noreturn]] void Throw(std::int32_t number, const std::wstring& description);

/// Raises 9: there is no such element.
[[noreturn]] void ThrowSubscript(std::int32_t index, std::size_t count);

/// The element of that index. Raises 9 when there is none.
template <class List>
[[nodiscard]] const typename List::value_type& At(const List& list, std::int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= list.size())
        ThrowSubscript(index, list.size());
    return list[static_cast<std::size_t>(index)];
}

/// Keeps the exception that is being handled as the error of this thread. Returns its number, which is never
/// 0.
std::int32_t KeepCurrentError() noexcept;

/// Keeps an error that was not raised, but is about to be returned. Returns its number.
std::int32_t KeepError(std::int32_t number, const wchar_t* description) noexcept;

/// Runs `body`; 0, or the number of the error that it raised. No exception leaves.
template <class Body>
std::int32_t Guarded(Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
        return QUOR_OK;
    } catch (...) {
        return KeepCurrentError();
    }
}

/// A function of a host that runs in this thread: where its answer goes, and what its error number becomes.
class HostCall {
public:
    /// `source` is the source of an error for which the host has no words.
    explicit HostCall(const wchar_t* source);
    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;
    ~HostCall();

    /// Raises the error when `number` is not 0, with the words that the host has set, or that a function of
    /// this interface has left that has failed with the same number inside the host's function.
    void Check(std::int32_t number) const;

    /// What the host has answered.
    [[nodiscard]] bool HasAnswer() const { return m_hasAnswer; }
    [[nodiscard]] std::wstring& Answer() { return m_answer; }

    /// The innermost one of this thread; null when none runs.
    [[nodiscard]] static HostCall* Current();
    void SetAnswer(std::wstring answer) {
        m_answer = std::move(answer);
        m_hasAnswer = true;
    }

private:
    const wchar_t* m_source;
    HostCall* m_outer;
    std::uint64_t m_errorsBefore;
    bool m_hasAnswer = false;
    std::wstring m_answer;
};

/// Calls a host's function.
template <class... Parameter, class... Argument>
void CallHost(const wchar_t* source, std::int32_t (*function)(Parameter...), Argument... arguments) {
    const HostCall call(source);
    call.Check(function(arguments...));
}

/// Calls one that answers a text. Empty when it did not.
template <class... Parameter, class... Argument>
[[nodiscard]] std::wstring AnswerOf(const wchar_t* source, std::int32_t (*function)(Parameter...),
                                    Argument... arguments) {
    HostCall call(source);
    call.Check(function(arguments...));
    return std::move(call.Answer());
}

} // namespace QuorConversions::Component
