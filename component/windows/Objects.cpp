#include "component/windows/Objects.h"

#include "component/windows/Failure.h"

#include <algorithm>
#include <mutex>
#include <string_view>
#include <unordered_map>

namespace QuorConversions::Automation {
namespace {

/// The objects of this server that are in use, by handle and by identity. It outlives the last of them: a
/// host may release objects while the process ends.
struct InUse {
    std::mutex mutex;
    std::unordered_map<quor_object, IUnknown*> byHandle;
    std::unordered_map<IUnknown*, quor_object> byIdentity;
};

[[nodiscard]] InUse& Objects() {
    static InUse& objects = *new InUse;
    return objects;
}

[[nodiscard]] const ClassRow& ClassOf(quor_object handle) {
    const char* name = nullptr;
    Check(quor_class_of(handle, &name));
    const auto found = std::find_if(server.classes.begin(), server.classes.end(),
                                    [&](const ClassRow& row) { return std::string_view(row.name) == name; });
    if (found == server.classes.end())
        throw Failure{E_UNEXPECTED};
    return *found;
}

template <class Interface>
[[nodiscard]] Interface* Query(IUnknown& object, const IID& iid) {
    Interface* found = nullptr;
    return SUCCEEDED(object.QueryInterface(iid, reinterpret_cast<void**>(&found))) ? found : nullptr;
}

/// The handle of an object of this server; 0 for any other.
[[nodiscard]] quor_object OwnHandle(IUnknown& object) {
    IUnknown* const identity = Query<IUnknown>(object, IID_IUnknown);
    if (!identity)
        return 0;
    identity->Release(); // the caller's reference keeps it
    InUse& objects = Objects();
    const std::lock_guard lock(objects.mutex);
    const auto found = objects.byIdentity.find(identity);
    return found == objects.byIdentity.end() ? 0 : found->second;
}

} // namespace

void Enter(quor_object handle, IUnknown& identity) {
    InUse& objects = Objects();
    const std::lock_guard lock(objects.mutex);
    objects.byHandle.emplace(handle, &identity);
    objects.byIdentity.emplace(&identity, handle);
}

void Leave(quor_object handle, IUnknown& identity) {
    InUse& objects = Objects();
    const std::lock_guard lock(objects.mutex);
    objects.byHandle.erase(handle);
    objects.byIdentity.erase(&identity);
}

IDispatch* DispatchOf(quor_object handle) {
    if (handle == 0)
        return nullptr;
    if (IDispatch* const host = HostOf(handle)) {
        host->AddRef();
        return host;
    }
    InUse& objects = Objects();
    {
        const std::lock_guard lock(objects.mutex);
        if (const auto found = objects.byHandle.find(handle); found != objects.byHandle.end())
            return Query<IDispatch>(*found->second, IID_IDispatch);
    }
    const ClassRow& row = ClassOf(handle);
    Check(quor_add_ref(handle));
    return row.make(row, handle);
}

quor_object HandleOf(IUnknown& object, Offer offer) {
    if (const quor_object own = OwnHandle(object)) {
        Check(quor_add_ref(own));
        return own;
    }
    IDispatch* const dispatch = Query<IDispatch>(object, IID_IDispatch);
    if (!dispatch)
        throw Failure{DISP_E_TYPEMISMATCH};
    struct Released {
        IDispatch* object;
        ~Released() { object->Release(); }
    } const released{dispatch};
    return FromHost(*dispatch, offer);
}

} // namespace QuorConversions::Automation
