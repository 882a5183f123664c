#include "component/windows/Values.h"

#include "component/windows/Failure.h"
#include "component/windows/Objects.h"

#include <cmath>
#include <cstring>

namespace QuorConversions::Automation {
namespace {

[[noreturn]] void ThrowMismatch() { throw Failure{DISP_E_TYPEMISMATCH}; }

[[nodiscard]] bool IsWhole(VARTYPE type) {
    switch (type) {
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_UI4:
    case VT_I8:
    case VT_UI8:
    case VT_INT:
    case VT_UINT:
        return true;
    default:
        return false;
    }
}

[[nodiscard]] double ToDouble(VARIANT& given) {
    if (given.vt == VT_R8)
        return given.dblVal;
    if (!IsWhole(given.vt) && given.vt != VT_R4 && given.vt != VT_CY && given.vt != VT_DECIMAL)
        ThrowMismatch();
    Variant changed;
    if (const HRESULT code = VariantChangeType(changed.Get(), &given, 0, VT_R8); FAILED(code))
        throw Failure{code};
    return changed->dblVal;
}

[[nodiscard]] std::int32_t ToInteger(VARIANT& given) {
    if (IsWhole(given.vt)) {
        Variant changed;
        if (const HRESULT code = VariantChangeType(changed.Get(), &given, 0, VT_I4); FAILED(code))
            throw Failure{code};
        return changed->lVal;
    }
    const double value = ToDouble(given);
    if (!(std::trunc(value) == value))
        ThrowMismatch();
    if (value < -2147483648.0 || value > 2147483647.0)
        throw Failure{DISP_E_OVERFLOW};
    return static_cast<std::int32_t>(value);
}

} // namespace

std::size_t SizeOf(int type) {
    switch (type) {
    case VT_I1:
    case VT_UI1:
        return 1;
    case VT_BOOL:
    case VT_I2:
    case VT_UI2:
        return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
        return 4;
    case VT_R8:
    case VT_I8:
    case VT_UI8:
    case VT_CY:
    case VT_DATE:
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return 8;
    default:
        return 0;
    }
}

VARIANT& Unwrapped(VARIANT& given) {
    VARIANT* found = &given;
    while (found->vt == (VT_BYREF | VT_VARIANT))
        found = found->pvarVal;
    return *found;
}

bool IsMissing(const VARIANT& given) { return given.vt == VT_ERROR && given.scode == DISP_E_PARAMNOTFOUND; }

void Argument::Load(int type, Offer offer, VARIANT& given) {
    const bool isInOut = (type & VT_BYREF) != 0;
    Variant plain;
    if (const HRESULT code = VariantCopyInd(plain.Get(), &Unwrapped(given)); FAILED(code))
        throw Failure{code};
    if (IsMissing(*plain))
        return; // the library knows what stands for it
    const bool isEmpty = plain->vt == VT_EMPTY;
    switch (type & ~VT_BYREF) {
    case VT_BOOL:
        m_value.kind = QUOR_BOOL;
        m_value.as.boolean = static_cast<quor_bool>(isEmpty && isInOut      ? VARIANT_FALSE
                                                    : plain->vt == VT_BOOL  ? plain->boolVal
                                                    : ToDouble(*plain) != 0 ? VARIANT_TRUE
                                                                            : VARIANT_FALSE);
        break;
    case VT_I2:
    case VT_I4:
        m_value.kind = QUOR_INT32; // the library tells what does not fit
        m_value.as.int32 = isEmpty && isInOut ? 0 : ToInteger(*plain);
        break;
    case VT_R8:
        m_value.kind = QUOR_DOUBLE;
        m_value.as.number = isEmpty && isInOut ? 0.0 : ToDouble(*plain);
        break;
    case VT_BSTR:
        if (!isEmpty && plain->vt != VT_BSTR)
            ThrowMismatch();
        if (!isEmpty)
            m_text = Utf8(View(plain->bstrVal));
        m_value.kind = QUOR_TEXT;
        m_value.as.text = {m_text.data(), m_text.size()};
        break;
    default: {
        const bool isReference = plain->vt == VT_DISPATCH || plain->vt == VT_UNKNOWN;
        if (!isReference && !isEmpty && plain->vt != VT_NULL)
            ThrowMismatch();
        m_value.kind = QUOR_OBJECT;
        m_value.as.object = isReference && plain->punkVal ? HandleOf(*plain->punkVal, offer) : 0;
        m_value.owned = m_value.as.object != 0 ? 1 : 0;
    }
    }
}

void Argument::Store(VARIANT& given) const {
    VARIANT& variable = Unwrapped(given);
    const bool isScripts = given.vt == (VT_BYREF | VT_VARIANT);
    if (!isScripts && (variable.vt & VT_BYREF) == 0)
        return; // given by value
    Variant out;
    ToVariant(m_value, *out);
    if ((variable.vt & VT_BYREF) == 0) {
        VariantClear(&variable);
        variable = std::exchange(*out, VARIANT{});
        return;
    }
    const auto type = static_cast<VARTYPE>(variable.vt & ~VT_BYREF);
    if (const HRESULT code = VariantChangeType(out.Get(), out.Get(), 0, type); FAILED(code))
        throw Failure{code};
    if (type == VT_BSTR)
        SysFreeString(*variable.pbstrVal);
    if ((type == VT_DISPATCH || type == VT_UNKNOWN) && *variable.ppunkVal)
        (*variable.ppunkVal)->Release();
    std::memcpy(variable.byref, &out->llVal, SizeOf(type));
    *out = VARIANT{}; // what it held is the receiver's
}

void ToVariant(const quor_value& value, VARIANT& result) {
    VariantInit(&result);
    switch (value.kind) {
    case QUOR_BOOL:
        result.vt = VT_BOOL;
        result.boolVal = static_cast<VARIANT_BOOL>(value.as.boolean != 0 ? VARIANT_TRUE : VARIANT_FALSE);
        break;
    case QUOR_INT16:
        result.vt = VT_I2;
        result.iVal = value.as.int16;
        break;
    case QUOR_INT32:
        result.vt = VT_I4;
        result.lVal = value.as.int32;
        break;
    case QUOR_DOUBLE:
        result.vt = VT_R8;
        result.dblVal = value.as.number;
        break;
    case QUOR_TEXT:
        result.bstrVal = NewBstr(Wide(value.as.text));
        result.vt = VT_BSTR;
        break;
    case QUOR_OBJECT:
        result.pdispVal = DispatchOf(value.as.object);
        result.vt = VT_DISPATCH;
        break;
    default:
        break;
    }
}

} // namespace QuorConversions::Automation
