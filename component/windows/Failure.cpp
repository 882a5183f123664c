#include "component/windows/Failure.h"

#include <new>

namespace QuorConversions::Automation {
namespace {

constexpr std::uint32_t basicNumbers = 0x800A0000; // FACILITY_CONTROL
constexpr std::uint32_t facilityMask = 0xFFFF0000;

/// A text of an error, which may be cut rather than refused.
BSTR BstrOrNone(const std::wstring& text) noexcept {
    return text.empty() ? nullptr : SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

std::wstring Taken(BSTR& text) {
    std::wstring taken(View(text));
    SysFreeString(std::exchange(text, nullptr));
    return taken;
}

} // namespace

HRESULT ToResult(std::int32_t number) {
    if (number > 0 && number <= 0xFFFF)
        return static_cast<HRESULT>(basicNumbers | static_cast<std::uint32_t>(number));
    return number < 0 ? static_cast<HRESULT>(number) : E_FAIL;
}

std::int32_t ToNumber(HRESULT code) {
    const auto bits = static_cast<std::uint32_t>(code);
    if ((bits & facilityMask) == basicNumbers && (bits & ~facilityMask) != 0)
        return static_cast<std::int32_t>(bits & ~facilityMask);
    return code == DISP_E_MEMBERNOTFOUND || code == DISP_E_UNKNOWNNAME ? std::int32_t{QUOR_ERROR_NO_MEMBER}
           : code == DISP_E_TYPEMISMATCH                               ? std::int32_t{QUOR_ERROR_TYPE}
           : code == DISP_E_OVERFLOW                                   ? std::int32_t{QUOR_ERROR_OVERFLOW}
           : code == DISP_E_BADPARAMCOUNT || code == DISP_E_PARAMNOTOPTIONAL
               ? std::int32_t{QUOR_ERROR_ARGUMENT_COUNT}
           : code == E_OUTOFMEMORY ? std::int32_t{QUOR_ERROR_OUT_OF_MEMORY}
           : code >= 0             ? std::int32_t{QUOR_ERROR_UNEXPECTED}
                                   : std::int32_t{code};
}

Failure LastFailure() {
    quor_error error{};
    if (quor_last_error(&error) != QUOR_OK)
        return {E_UNEXPECTED};
    return {ToResult(error.number), Wide(error.source), Wide(error.description), Wide(error.help_file),
            static_cast<DWORD>(error.help_context)};
}

void Check(std::int32_t number) {
    if (number != QUOR_OK)
        throw LastFailure();
}

Failure CurrentFailure() noexcept {
    try {
        throw;
    } catch (Failure& failure) {
        return std::move(failure);
    } catch (const std::bad_alloc&) {
        return {E_OUTOFMEMORY};
    } catch (...) {
        return {E_UNEXPECTED};
    }
}

void Fill(EXCEPINFO& info, const Failure& failure) noexcept {
    info = EXCEPINFO{};
    info.scode = failure.code;
    info.bstrSource = BstrOrNone(failure.source);
    info.bstrDescription = BstrOrNone(failure.description);
    info.bstrHelpFile = BstrOrNone(failure.helpFile);
    info.dwHelpContext = failure.helpContext;
}

Failure FromExcepInfo(EXCEPINFO& info) {
    if (info.pfnDeferredFillIn)
        info.pfnDeferredFillIn(&info);
    const HRESULT code = info.wCode != 0 ? ToResult(info.wCode) : info.scode;
    Failure failure{code < 0 ? code : E_FAIL};
    failure.source = Taken(info.bstrSource);
    failure.description = Taken(info.bstrDescription);
    failure.helpFile = Taken(info.bstrHelpFile);
    failure.helpContext = info.dwHelpContext;
    return failure;
}

void SetErrorInfoOf(const IID& iid, const Failure& failure) noexcept {
    ICreateErrorInfo* made = nullptr;
    if (FAILED(CreateErrorInfo(&made)))
        return;
    const auto words = [](const std::wstring& text) { return const_cast<LPOLESTR>(text.c_str()); };
    made->SetGUID(iid);
    made->SetSource(words(failure.source));
    made->SetDescription(words(failure.description));
    if (!failure.helpFile.empty())
        made->SetHelpFile(words(failure.helpFile));
    made->SetHelpContext(failure.helpContext);
    IErrorInfo* info = nullptr;
    if (SUCCEEDED(made->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info)))) {
        SetErrorInfo(0, info);
        info->Release();
    }
    made->Release();
}

std::string Utf8(std::wstring_view text) {
    if (text.empty())
        return {};
    const auto size = static_cast<int>(text.size());
    const int needed =
        WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), size, nullptr, 0, nullptr, nullptr);
    if (needed == 0)
        throw Failure{ToResult(QUOR_ERROR_ARGUMENT), L"quor", L"A text has half a surrogate pair"};
    std::string bytes(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(), size, bytes.data(), needed, nullptr,
                        nullptr);
    return bytes;
}

std::wstring Wide(quor_text text) {
    if (text.size == 0)
        return {};
    const auto size = static_cast<int>(text.size);
    const int needed = MultiByteToWideChar(CP_UTF8, 0, text.bytes, size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.bytes, size, wide.data(), needed);
    return wide;
}

BSTR NewBstr(std::wstring_view text) {
    const BSTR made = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!made)
        throw std::bad_alloc();
    return made;
}

} // namespace QuorConversions::Automation
