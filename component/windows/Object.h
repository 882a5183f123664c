#pragma once

#include "component/quor.h"
#include "component/windows/Rows.h"

#include <array>
#include <atomic>
#include <cstring>
#include <ocidl.h>
#include <ole2.h>

namespace QuorConversions::Automation {

/// What all objects of a server do, whatever their class: a handle of the library, and its members, by name
/// and by slot.
class Core {
public:
    /// Takes the reference of the handle. `identity` is what the object answers to IUnknown.
    Core(const ClassRow& row, quor_object handle, IUnknown& identity);
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;
    ~Core();

    [[nodiscard]] const ClassRow& Row() const { return *m_row; }

    [[nodiscard]] HRESULT GetTypeInfo(UINT index, ITypeInfo** info) const noexcept;
    [[nodiscard]] HRESULT GetClassInfo(ITypeInfo** info) const noexcept;
    /// Names of members in any case, and behind one those of its parameters.
    [[nodiscard]] HRESULT GetIDsOfNames(LPOLESTR* names, UINT count, DISPID* ids) const noexcept;
    [[nodiscard]] HRESULT Invoke(DISPID id, WORD flags, DISPPARAMS* given, VARIANT* result, EXCEPINFO* info,
                                 UINT* wrong) const noexcept;
    /// A call through the table of functions; `arguments` have the types of the interface. Raises E_POINTER
    /// when there is no place for what it gives.
    [[nodiscard]] HRESULT Slot(const Member& member, std::int32_t kind, void* result, VARIANT* arguments,
                               std::size_t count) const noexcept;

private:
    const ClassRow* m_row;
    quor_object m_handle;
    IUnknown* m_identity;
};

/// Counts the objects and locks for which this DLL must stay.
class Stay {
public:
    Stay() { ++s_count; }
    Stay(const Stay&) = delete;
    Stay& operator=(const Stay&) = delete;
    ~Stay() { --s_count; }

    static void Add(int more) { s_count += more; }
    [[nodiscard]] static bool IsNeeded() { return s_count != 0; }

private:
    static inline std::atomic<int> s_count = 0;
};

/// An object of this DLL that counts its references, of which the creator has the first.
template <class... Interfaces>
class Counted : public Interfaces... {
public:
    Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    virtual ~Counted() = default;

private:
    std::atomic<ULONG> m_references = 1;
    Stay m_stay;
};

/// An object with a dual interface. A class has its slots, each of which calls Slot.
template <class Interface>
class Dual : public Counted<Interface, ISupportErrorInfo, IProvideClassInfo> {
public:
    Dual(const ClassRow& row, quor_object handle) : m_core(row, handle, *static_cast<IDispatch*>(this)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object)
            return E_POINTER;
        if (iid == IID_IUnknown || iid == IID_IDispatch || iid == m_core.Row().iid)
            *object = static_cast<Interface*>(this);
        else if (iid == IID_ISupportErrorInfo)
            *object = static_cast<ISupportErrorInfo*>(this);
        else if (iid == IID_IProvideClassInfo)
            *object = static_cast<IProvideClassInfo*>(this);
        else
            *object = nullptr;
        if (!*object)
            return E_NOINTERFACE;
        this->AddRef();
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (!count)
            return E_POINTER;
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID /*language*/, ITypeInfo** info) override {
        return m_core.GetTypeInfo(index, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count,
                                            LCID /*language*/, DISPID* ids) override {
        return m_core.GetIDsOfNames(names, count, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID /*reserved*/, LCID /*language*/, WORD flags,
                                     DISPPARAMS* given, VARIANT* result, EXCEPINFO* info,
                                     UINT* wrong) override {
        return m_core.Invoke(id, flags, given, result, info, wrong);
    }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == m_core.Row().iid ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override { return m_core.GetClassInfo(info); }

protected:
    template <class... Given>
    [[nodiscard]] HRESULT Slot(const Member& member, std::int32_t kind, void* result,
                               Given... given) noexcept {
        std::array<VARIANT, sizeof...(Given) + 1> arguments{}; // one more: none is no array
        std::size_t place = 0;
        (static_cast<void>(Set(arguments[place], TypeOf(member, place), given), ++place), ...);
        return m_core.Slot(member, kind, result, arguments.data(), sizeof...(Given));
    }

private:
    /// The type of an argument: behind the indices stands the value that a property is set to.
    [[nodiscard]] static int TypeOf(const Member& member, std::size_t place) {
        return place < member.count ? member.parameters[place].type : member.result;
    }
    template <class T>
    static void Set(VARIANT& argument, int type, T value) {
        static_assert(sizeof(value) <= sizeof(argument.llVal));
        argument.vt = static_cast<VARTYPE>(type);
        std::memcpy(&argument.llVal, &value, sizeof(value)); // each field of a VARIANT begins there
    }

    Core m_core;
};

template <class Object>
[[nodiscard]] IDispatch* Make(const ClassRow& row, quor_object handle) {
    return new Object(row, handle);
}

} // namespace QuorConversions::Automation
