#include "component/windows/Object.h"

#include "component/windows/Failure.h"
#include "component/windows/Objects.h"
#include "component/windows/Server.h"
#include "component/windows/Values.h"

#include <algorithm>
#include <optional>

namespace QuorConversions::Automation {
namespace {

constexpr std::size_t most = std::tuple_size_v<decltype(Member::parameters)> + 1; // indices and a value

[[nodiscard]] bool SameName(const wchar_t* left, const wchar_t* right) {
    return left && CompareStringOrdinal(left, -1, right, -1, TRUE) == CSTR_EQUAL;
}

[[nodiscard]] const Member* FindMember(const ClassRow& row, DISPID id) {
    const auto found = std::find_if(row.members.begin(), row.members.end(),
                                    [&](const Member& member) { return member.id == id; });
    return found == row.members.end() ? nullptr : &*found;
}

/// What a caller wants of a member. Scripts that use a value say that it is a method or a property; JScript
/// says of a statement that it is a method, whatever it is.
[[nodiscard]] std::optional<std::int32_t> KindOf(const Member& member, WORD flags) {
    if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0)
        return QUOR_PUT;
    if ((member.kinds & QUOR_CALL) == 0)
        return QUOR_GET;
    return (flags & DISPATCH_METHOD) != 0 ? std::optional<std::int32_t>(QUOR_CALL) : std::nullopt;
}

[[nodiscard]] int TypeOf(const Member& member, std::size_t place) {
    return place < member.count ? member.parameters[place].type : member.result;
}

/// A failure that concerns one argument.
struct ArgumentFailure {
    Failure failure;
    std::size_t place;
};

/// Calls the member. An argument that is null was left out.
void Call(quor_object handle, const Member& member, std::int32_t kind, VARIANT* const* arguments,
          std::size_t count, VARIANT& result) {
    std::array<Argument, most> loaded;
    std::array<quor_value, most> values{};
    for (std::size_t place = 0; place < count; ++place) {
        if (!arguments[place])
            continue;
        try {
            const Offer offer = place < member.count ? member.parameters[place].offer : Offer::None;
            loaded[place].Load(TypeOf(member, place), offer, *arguments[place]);
        } catch (...) {
            throw ArgumentFailure{CurrentFailure(), place};
        }
        values[place] = loaded[place].Value();
    }
    struct Result {
        quor_value value{};
        ~Result() { quor_value_clear(&value); }
    } out;
    const std::int32_t code =
        quor_invoke(handle, member.id, kind, values.data(), static_cast<std::int32_t>(count), &out.value);
    for (std::size_t place = 0; place < count; ++place)
        loaded[place].Value() = values[place];
    Check(code);
    for (std::size_t place = 0; place < count; ++place)
        if (arguments[place] && (TypeOf(member, place) & VT_BYREF) != 0 && !IsMissing(*arguments[place]))
            loaded[place].Store(*arguments[place]);
    ToVariant(out.value, result);
}

/// Where the arguments of a call by name stand: the last comes first, behind those that have names.
[[nodiscard]] HRESULT Sorted(const Member& member, std::size_t expected, DISPPARAMS& given,
                             std::array<VARIANT*, most>& arguments, std::array<UINT, most>& places,
                             UINT* wrong) {
    if (given.cArgs > expected)
        return DISP_E_BADPARAMCOUNT;
    for (UINT i = 0; i < given.cArgs; ++i) {
        std::size_t place = given.cArgs - 1 - i;
        if (i < given.cNamedArgs) {
            const DISPID name = given.rgdispidNamedArgs[i];
            place = name == DISPID_PROPERTYPUT ? member.count : static_cast<std::size_t>(name);
        }
        if (place >= expected || arguments[place]) {
            if (wrong)
                *wrong = i;
            return place >= expected ? DISP_E_PARAMNOTFOUND : DISP_E_BADPARAMCOUNT;
        }
        arguments[place] = &given.rgvarg[i];
        places[place] = i;
    }
    return S_OK;
}

} // namespace

Core::Core(const ClassRow& row, quor_object handle, IUnknown& identity)
    : m_row(&row), m_handle(handle), m_identity(&identity) {
    Enter(m_handle, *m_identity);
}

Core::~Core() {
    Leave(m_handle, *m_identity);
    quor_release(m_handle);
}

HRESULT Core::GetTypeInfo(UINT index, ITypeInfo** info) const noexcept {
    return index == 0 ? TypeInfoOf(m_row->iid, info) : DISP_E_BADINDEX;
}

HRESULT Core::GetClassInfo(ITypeInfo** info) const noexcept { return TypeInfoOf(m_row->clsid, info); }

HRESULT Core::GetIDsOfNames(LPOLESTR* names, UINT count, DISPID* ids) const noexcept {
    if (!names || !ids || count == 0)
        return E_INVALIDARG;
    std::fill_n(ids, count, DISPID_UNKNOWN);
    const auto member = std::find_if(m_row->members.begin(), m_row->members.end(), [&](const Member& row) {
        return SameName(row.name, names[0]) || SameName(row.otherName, names[0]);
    });
    if (member == m_row->members.end())
        return DISP_E_UNKNOWNNAME;
    ids[0] = member->id;
    HRESULT code = S_OK;
    for (UINT i = 1; i < count; ++i) {
        const auto* const end = member->parameters.begin() + member->count;
        const auto* const found = std::find_if(member->parameters.begin(), end, [&](const Parameter& row) {
            return SameName(row.name, names[i]);
        });
        if (found == end)
            code = DISP_E_UNKNOWNNAME;
        else
            ids[i] = static_cast<DISPID>(found - member->parameters.begin());
    }
    return code;
}

HRESULT Core::Invoke(DISPID id, WORD flags, DISPPARAMS* given, VARIANT* result, EXCEPINFO* info,
                     UINT* wrong) const noexcept {
    const Member* const member = FindMember(*m_row, id);
    const std::optional<std::int32_t> kind = member ? KindOf(*member, flags) : std::nullopt;
    if (!kind)
        return DISP_E_MEMBERNOTFOUND;
    DISPPARAMS none{};
    const std::size_t expected = member->count + (*kind == QUOR_PUT ? 1 : 0);
    std::array<VARIANT*, most> arguments{};
    std::array<UINT, most> places{};
    if (const HRESULT code = Sorted(*member, expected, given ? *given : none, arguments, places, wrong);
        FAILED(code))
        return code;
    Failure failure{};
    try {
        Variant out;
        Call(m_handle, *member, *kind, arguments.data(), expected, *out);
        if (result)
            *result = std::exchange(*out, VARIANT{});
        return S_OK;
    } catch (ArgumentFailure& concerned) {
        if (wrong)
            *wrong = places[concerned.place];
        failure = std::move(concerned.failure);
    } catch (...) {
        failure = CurrentFailure();
    }
    if (failure.description.empty())
        return failure.code;
    if (info)
        Fill(*info, failure);
    return DISP_E_EXCEPTION;
}

HRESULT Core::Slot(const Member& member, std::int32_t kind, void* result, VARIANT* arguments,
                   std::size_t count) const noexcept {
    const std::size_t size = kind == QUOR_PUT ? 0 : SizeOf(member.result);
    if (size != 0 && !result)
        return E_POINTER;
    if (size != 0)
        std::memset(result, 0, size);
    std::array<VARIANT*, most> given{};
    for (std::size_t place = 0; place < count; ++place) {
        given[place] = &arguments[place];
        if ((arguments[place].vt & VT_BYREF) != 0 && !arguments[place].byref)
            return E_POINTER;
    }
    Failure failure{};
    try {
        Variant out;
        Call(m_handle, member, kind, given.data(), count, *out);
        if (size != 0) {
            std::memcpy(result, &out->llVal, size);
            *out = VARIANT{}; // what it held is the caller's
        }
        return S_OK;
    } catch (ArgumentFailure& concerned) {
        failure = std::move(concerned.failure);
    } catch (...) {
        failure = CurrentFailure();
    }
    SetErrorInfoOf(m_row->iid, failure);
    return failure.code;
}

} // namespace QuorConversions::Automation
