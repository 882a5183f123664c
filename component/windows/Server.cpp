#include "component/windows/Server.h"

#include "component/Handles.h"
#include "component/windows/Failure.h"
#include "component/windows/Object.h"
#include "toolkits/win32/Win32Platform.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace QuorConversions::Automation {
namespace {

HINSTANCE module = nullptr; // set while the DLL is loaded

/// Makes the objects of a class.
class Factory final : public Counted<IClassFactory> {
public:
    explicit Factory(const ClassRow& row) : m_row(row) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object)
            return E_POINTER;
        const bool isOurs = iid == IID_IUnknown || iid == IID_IClassFactory;
        *object = isOurs ? this : nullptr;
        if (!isOurs)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        if (outer)
            return CLASS_E_NOAGGREGATION;
        try {
            IDispatch* const made = m_row.make(m_row, Create(m_row));
            const HRESULT code = made->QueryInterface(iid, object);
            made->Release();
            return code;
        } catch (...) {
            const Failure failure = CurrentFailure();
            SetErrorInfoOf(m_row.iid, failure);
            return failure.code;
        }
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL isLocked) override {
        Stay::Add(isLocked ? 1 : -1);
        return S_OK;
    }

private:
    const ClassRow& m_row;
};

} // namespace

std::wstring ModulePath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD size = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (size < path.size()) {
            path.resize(size);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

HRESULT TypeInfoOf(const GUID& id, ITypeInfo** info) noexcept {
    if (!info)
        return E_POINTER;
    *info = nullptr;
    try {
        ITypeLib* library = nullptr;
        HRESULT code = LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, &library);
        if (FAILED(code))
            return code;
        code = library->GetTypeInfoOfGuid(id, info);
        library->Release();
        return code;
    } catch (...) {
        return CurrentFailure().code;
    }
}

quor_object Create(const ClassRow& row) {
    const std::string_view name = row.name;
    std::string application;
    quor_value argument{};
    if (name == "Registry") {
        std::wstring program(MAX_PATH, L'\0');
        program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
        application = Utf8(std::filesystem::path(program).stem().wstring());
        argument.kind = QUOR_TEXT;
        argument.as.text = {application.data(), application.size()};
    } else if (name.starts_with("CQuor")) {
        const std::filesystem::path help = std::filesystem::path(ModulePath()).parent_path() / L"help";
        const std::shared_ptr<Platform> platform =
            std::make_shared<Win32Toolkit::Win32Platform>(help.wstring());
        argument.kind = QUOR_OBJECT;
        argument.as.object = Component::HandleTable::Instance().Give(platform);
        argument.owned = 1;
    }
    quor_object made = 0;
    const std::int32_t code =
        quor_create({name.data(), name.size()}, &argument, argument.kind == QUOR_EMPTY ? 0 : 1, &made);
    quor_value_clear(&argument);
    Check(code);
    return made;
}

} // namespace QuorConversions::Automation

using namespace QuorConversions::Automation;

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH)
        module = instance;
    return TRUE;
}

HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, LPVOID* object) {
    if (!object)
        return E_POINTER;
    *object = nullptr;
    const auto row = std::find_if(server.classes.begin(), server.classes.end(), [&](const ClassRow& known) {
        return known.programId && known.clsid == clsid;
    });
    if (row == server.classes.end())
        return CLASS_E_CLASSNOTAVAILABLE;
    auto* const factory = new (std::nothrow) Factory(*row);
    if (!factory)
        return E_OUTOFMEMORY;
    const HRESULT code = factory->QueryInterface(iid, object);
    factory->Release();
    return code;
}

HRESULT STDAPICALLTYPE DllCanUnloadNow() { return Stay::IsNeeded() ? S_FALSE : S_OK; }

HRESULT STDAPICALLTYPE DllRegisterServer() {
    const HRESULT code = Register();
    if (FAILED(code))
        static_cast<void>(Unregister());
    return code;
}

HRESULT STDAPICALLTYPE DllUnregisterServer() { return Unregister(); }

} // extern "C"
