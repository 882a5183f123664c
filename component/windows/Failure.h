#pragma once

#include "component/quor.h"

#include <cstdint>
#include <ole2.h>
#include <string>
#include <string_view>
#include <utility>

// Errors on their way between the library, which has numbers and words, and automation, which has an HRESULT,
// an EXCEPINFO where members are called by name, and an IErrorInfo where they are called by slot.
namespace QuorConversions::Automation {

/// Raised inside a server; never leaves it.
struct Failure {
    HRESULT code;
    std::wstring source{};
    std::wstring description{};
    std::wstring helpFile{};
    DWORD helpContext = 0;
};

/// The error of the library that was returned last in this thread.
[[nodiscard]] Failure LastFailure();
/// Raises it, unless `number` is QUOR_OK.
void Check(std::int32_t number);

/// Numbers of 16 bits are those of Visual Basic, which adds 0x800A0000; others are an HRESULT already.
[[nodiscard]] HRESULT ToResult(std::int32_t number);
[[nodiscard]] std::int32_t ToNumber(HRESULT code);

/// The failure that is being handled, whatever was thrown.
[[nodiscard]] Failure CurrentFailure() noexcept;

/// A failure for those who called by name.
void Fill(EXCEPINFO& info, const Failure& failure) noexcept;
/// What an object of the host has reported, whose texts are freed.
[[nodiscard]] Failure FromExcepInfo(EXCEPINFO& info);
/// A failure for those who called by slot.
void SetErrorInfoOf(const IID& iid, const Failure& failure) noexcept;

// Texts: UTF-8 in the library, UTF-16 here.
/// Raises error 5 for half a surrogate pair.
[[nodiscard]] std::string Utf8(std::wstring_view text);
[[nodiscard]] std::wstring Wide(quor_text text);
/// Raises E_OUTOFMEMORY.
[[nodiscard]] BSTR NewBstr(std::wstring_view text);

[[nodiscard]] inline std::wstring_view View(BSTR text) {
    return text ? std::wstring_view(text, SysStringLen(text)) : std::wstring_view();
}

} // namespace QuorConversions::Automation
