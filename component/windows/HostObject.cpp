// What a host brings as an object of its own: any object that has the members, called by name.

#include "component/windows/Failure.h"
#include "component/windows/Objects.h"
#include "component/windows/Values.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <dispex.h>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace QuorConversions::Automation {
namespace {

// The ids of IUnknown and IDispatch in a type library. From the next one on they are those of a class of
// Visual Basic or .NET.
constexpr DISPID firstOfEveryInterface = 0x60000000;
constexpr DISPID firstOfClasses = 0x60020000;

/// An object of the host. Script engines answer IDispatchEx, and Wine's only that.
class HostObject {
public:
    explicit HostObject(IDispatch& object) : m_object(&object) {
        m_object->AddRef();
        if (FAILED(m_object->QueryInterface(__uuidof(IDispatchEx), reinterpret_cast<void**>(&m_script))))
            m_script = nullptr;
    }
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;
    ~HostObject() {
        if (m_script)
            m_script->Release();
        m_object->Release();
    }

    [[nodiscard]] IDispatch* Object() const { return m_object; }
    /// Script engines take variables for in/out arguments, others the type itself.
    [[nodiscard]] bool IsScript() const { return m_script != nullptr; }

    [[nodiscard]] bool Has(const wchar_t* name) { return Find(name).has_value(); }

    /// Calls a member with arguments in the order of the interface. Raises what the object reports, and 438
    /// when it has no such member.
    template <std::size_t count>
    void Invoke(const wchar_t* name, WORD flags, std::array<VARIANT, count>& arguments, VARIANT& result) {
        std::array<VARIANT, count> backwards;
        std::reverse_copy(arguments.begin(), arguments.end(), backwards.begin());
        DISPID ofPut = DISPID_PROPERTYPUT;
        DISPPARAMS given{backwards.data(), nullptr, static_cast<UINT>(count), 0};
        if (flags == DISPATCH_PROPERTYPUT) {
            given.rgdispidNamedArgs = &ofPut;
            given.cNamedArgs = 1;
        }
        const std::optional<DISPID> id = Find(name);
        if (!id)
            throw Failure{ToResult(QUOR_ERROR_NO_MEMBER), L"quor",
                          std::wstring(L"The object of the host has no member ") + name};
        EXCEPINFO info{};
        UINT wrong = 0;
        const HRESULT code =
            m_object->Invoke(*id, IID_NULL, LOCALE_USER_DEFAULT, flags, &given, &result, &info, &wrong);
        if (code == DISP_E_EXCEPTION)
            throw FromExcepInfo(info);
        if (FAILED(code))
            throw Failure{code, L"quor", std::wstring(L"The object of the host refuses a call of ") + name};
    }

private:
    [[nodiscard]] std::optional<DISPID> Find(const wchar_t* name) {
        const auto known = m_ids.find(name);
        if (known != m_ids.end())
            return known->second;
        DISPID id = DISPID_UNKNOWN;
        auto* names = const_cast<LPOLESTR>(name);
        HRESULT code = E_FAIL;
        if (m_script) {
            const BSTR text = NewBstr(name);
            code = m_script->GetDispID(text, fdexNameCaseInsensitive, &id);
            SysFreeString(text);
        } else {
            code = m_object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
        }
        // What every interface has, "Release" for one, is not the member that is meant.
        const bool isOwn =
            SUCCEEDED(code) && (m_script || id < firstOfEveryInterface || id >= firstOfClasses);
        return m_ids.emplace(name, isOwn ? std::optional(id) : std::nullopt).first->second;
    }

    IDispatch* m_object;
    IDispatchEx* m_script = nullptr;
    std::map<std::wstring, std::optional<DISPID>> m_ids;
};

[[nodiscard]] HostObject& Of(void* user) { return *static_cast<HostObject*>(user); }

/// Runs `body`. A failure goes to the library with its words, as the number that is returned.
template <class Body>
std::int32_t Guarded(Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
        return QUOR_OK;
    } catch (...) {
        const Failure failure = CurrentFailure();
        const std::int32_t number = ToNumber(failure.code);
        try {
            const std::string source = Utf8(failure.source);
            const std::string description = Utf8(failure.description);
            const std::string helpFile = Utf8(failure.helpFile);
            const auto text = [](const std::string& bytes) { return quor_text{bytes.data(), bytes.size()}; };
            quor_set_error(number, text(source), text(description), text(helpFile),
                           static_cast<std::int32_t>(failure.helpContext));
        } catch (...) { // no memory for the words
        }
        return number;
    }
}

/// An argument that goes in: a text or a number.
class In {
public:
    explicit In(quor_text text) {
        m_value->bstrVal = NewBstr(Wide(text));
        m_value->vt = VT_BSTR;
    }
    explicit In(double value) {
        m_value->vt = VT_R8;
        m_value->dblVal = value;
    }
    /// Of 16 bits: a Boolean or an integer.
    In(int type, std::int16_t value) {
        m_value->vt = static_cast<VARTYPE>(type);
        m_value->iVal = value;
    }
    explicit In(std::int32_t value) {
        m_value->vt = VT_I4;
        m_value->lVal = value;
    }
    [[nodiscard]] VARIANT Get() { return *m_value; }

private:
    Variant m_value;
};

template <class... Arguments>
void Call(void* user, const wchar_t* name, WORD flags, Variant& result, Arguments... arguments) {
    std::array<VARIANT, sizeof...(Arguments)> given{arguments...};
    Of(user).Invoke(name, flags, given, *result);
}

/// A call without a result.
template <class... Arguments>
std::int32_t Do(void* user, const wchar_t* name, Arguments&&... arguments) noexcept {
    return Guarded([&] {
        Variant result;
        Call(user, name, DISPATCH_METHOD, result, arguments.Get()...);
    });
}

template <class... Arguments>
std::int32_t Put(void* user, const wchar_t* name, Arguments&&... arguments) noexcept {
    return Guarded([&] {
        Variant result;
        Call(user, name, DISPATCH_PROPERTYPUT, result, arguments.Get()...);
    });
}

/// A property. `use` is given the value, as the interface has it.
template <class Use>
std::int32_t Get(void* user, const wchar_t* name, int type, Use&& use) noexcept {
    return Guarded([&] {
        Variant result;
        Call(user, name, DISPATCH_PROPERTYGET, result);
        Argument value;
        value.Load(type, Offer::None, *result);
        std::forward<Use>(use)(value.Value());
    });
}

/// A call whose last argument is in/out and which gives a Boolean: a read. `variable` holds the value, of the
/// type of the interface, when it begins. `use` is given the value when it was found.
template <class Use, class... Arguments>
std::int32_t ReadInto(void* user, const wchar_t* name, quor_bool* found, In variable, Use&& use,
                      Arguments&&... arguments) noexcept {
    return Guarded([&] {
        Variant value;
        VARIANT before = variable.Get();
        if (const HRESULT code = VariantCopy(value.Get(), &before); FAILED(code))
            throw Failure{code};
        const auto type = value->vt;
        VARIANT reference{};
        if (Of(user).IsScript()) {
            reference.vt = VT_BYREF | VT_VARIANT;
            reference.pvarVal = value.Get();
        } else {
            reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
            reference.byref = &value->llVal;
        }
        Variant result;
        Call(user, name, DISPATCH_METHOD, result, arguments.Get()..., reference);
        Argument isFound;
        isFound.Load(VT_BOOL, Offer::None, *result);
        *found = isFound.Value().as.boolean;
        if (*found == 0)
            return;
        Argument read;
        read.Load(type, Offer::None, *value);
        std::forward<Use>(use)(read.Value());
    });
}

void Destroyed(void* user) { const std::unique_ptr<HostObject> last(static_cast<HostObject*>(user)); }

std::int32_t Answer(const quor_value& value) { return quor_answer(value.as.text); }
constexpr auto answered = [](const quor_value& value) { Check(Answer(value)); };

// ---- An INI file

std::int32_t PutFileName(void* user, quor_text text) { return Put(user, L"FileName", In(text)); }
std::int32_t GetFileName(void* user) { return Get(user, L"FileName", VT_BSTR, answered); }
std::int32_t PutSection(void* user, quor_text text) { return Put(user, L"Section", In(text)); }
std::int32_t GetSection(void* user) { return Get(user, L"Section", VT_BSTR, answered); }

std::int32_t ReadBoolean(void* user, quor_text key, quor_bool* value, quor_bool* found) {
    return ReadInto(
        user, L"ReadBoolean", found, In(VT_BOOL, *value),
        [&](const quor_value& read) { *value = read.as.boolean; }, In(key));
}

std::int32_t ReadDouble(void* user, quor_text key, double* value, quor_bool* found) {
    return ReadInto(
        user, L"ReadDouble", found, In(*value), [&](const quor_value& read) { *value = read.as.number; },
        In(key));
}

std::int32_t ReadInteger(void* user, quor_text key, std::int16_t* value, quor_bool* found) {
    return ReadInto(
        user, L"ReadInteger", found, In(VT_I2, *value),
        [&](const quor_value& read) {
            *value = static_cast<std::int16_t>(read.as.int32);
            if (*value != read.as.int32)
                throw Failure{DISP_E_OVERFLOW, L"quor",
                              L"The object of the host reads a number of more than 16 bits"};
        },
        In(key));
}

std::int32_t ReadString(void* user, quor_text key, quor_bool* found) {
    return ReadInto(user, L"ReadString", found, In(quor_text{}), answered, In(key));
}

std::int32_t WriteBoolean(void* user, quor_text key, quor_bool value) {
    return Do(user, L"WriteBoolean", In(key), In(VT_BOOL, value));
}

std::int32_t WriteDouble(void* user, quor_text key, double value, quor_text comment) {
    return Do(user, L"WriteDouble", In(key), In(value), In(comment));
}

std::int32_t WriteInteger(void* user, quor_text key, std::int16_t value, quor_text comment) {
    return Do(user, L"WriteInteger", In(key), In(VT_I2, value), In(comment));
}

std::int32_t WriteString(void* user, quor_text key, quor_text value) {
    return Do(user, L"WriteString", In(key), In(value));
}

/// A host's INI file may have these, all of them or none.
[[nodiscard]] bool HasBrackets(void* user) {
    return Of(user).Has(L"Hold") && Of(user).Has(L"Release") && Of(user).Has(L"Abandon");
}

std::int32_t Hold(void* user) { return Do(user, L"Hold"); }
std::int32_t Release(void* user) { return Do(user, L"Release"); }
std::int32_t Abandon(void* user) { return Do(user, L"Abandon"); }

// ---- A registry

std::int32_t ReadValue(void* user, quor_text section, quor_text name, quor_bool* found) {
    return ReadInto(user, L"ReadValue", found, In(quor_text{}), answered, In(section), In(name));
}

std::int32_t WriteValue(void* user, quor_text section, quor_text name, quor_text value) {
    return Do(user, L"WriteValue", In(section), In(name), In(value));
}

// ---- A list control

std::int32_t Clear(void* user) { return Do(user, L"Clear"); }
std::int32_t AddItem(void* user, quor_text item) { return Do(user, L"AddItem", In(item)); }

std::int32_t NewIndex(void* user, std::int32_t* index) {
    return Get(user, L"NewIndex", VT_I4, [&](const quor_value& value) { *index = value.as.int32; });
}

std::int32_t PutItemData(void* user, std::int32_t index, std::int32_t data) {
    return Put(user, L"ItemData", In(index), In(data));
}

[[nodiscard]] std::int32_t Make(Offer offer, HostObject& object, quor_object* made) {
    switch (offer) {
    case Offer::IniFile: {
        const bool brackets = HasBrackets(&object);
        const quor_inifile_functions functions{sizeof(functions),
                                               Destroyed,
                                               PutFileName,
                                               GetFileName,
                                               PutSection,
                                               GetSection,
                                               ReadBoolean,
                                               ReadDouble,
                                               ReadInteger,
                                               ReadString,
                                               WriteBoolean,
                                               WriteDouble,
                                               WriteInteger,
                                               WriteString,
                                               brackets ? Hold : nullptr,
                                               brackets ? Release : nullptr,
                                               brackets ? Abandon : nullptr};
        return quor_inifile_from_host(&functions, &object, made);
    }
    case Offer::Registry: {
        const quor_registry_functions functions{sizeof(functions), Destroyed, ReadValue, WriteValue};
        return quor_registry_from_host(&functions, &object, made);
    }
    case Offer::ListControl: {
        const quor_list_control_functions functions{sizeof(functions), Destroyed, Clear,
                                                    AddItem,           NewIndex,  PutItemData};
        return quor_list_control_from_host(&functions, &object, made);
    }
    case Offer::None:
        break;
    }
    throw Failure{DISP_E_TYPEMISMATCH};
}

} // namespace

quor_object FromHost(IDispatch& object, Offer offer) {
    auto host = std::make_unique<HostObject>(object);
    quor_object made = 0;
    Check(Make(offer, *host, &made));
    static_cast<void>(host.release()); // Destroyed has it
    return made;
}

IDispatch* HostOf(quor_object handle) {
    void* user = nullptr;
    Check(quor_host_user(handle, &user));
    return user ? Of(user).Object() : nullptr;
}

} // namespace QuorConversions::Automation
