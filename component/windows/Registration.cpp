#include "component/windows/Server.h"

#include "component/windows/Failure.h"

#include <cwchar>
#include <olectl.h>

namespace QuorConversions::Automation {
namespace {

std::wstring Braced(const GUID& id) {
    wchar_t text[39] = {};
    StringFromGUID2(id, text, 39);
    return text;
}

std::wstring Version() { return std::to_wstring(server.major) + L'.' + std::to_wstring(server.minor); }

/// Sets a text of a key, which is made where it is missing. An empty name: that of the key itself.
void Set(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
    const LSTATUS code = RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), name, REG_SZ, text.c_str(),
                                         static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    if (code != ERROR_SUCCESS)
        throw Failure{HRESULT_FROM_WIN32(static_cast<DWORD>(code))};
}

void SetClass(const ClassRow& row, const std::wstring& path) {
    const std::wstring id = Braced(row.clsid);
    const std::wstring key = L"CLSID\\" + id;
    Set(row.programId, nullptr, row.programId);
    Set(row.programId + std::wstring(L"\\CLSID"), nullptr, id);
    Set(key, nullptr, row.programId);
    Set(key + L"\\InprocServer32", nullptr, path);
    Set(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    Set(key + L"\\ProgID", nullptr, row.programId);
    Set(key + L"\\Programmable", nullptr, {});
    Set(key + L"\\TypeLib", nullptr, Braced(server.typeLibrary));
    Set(key + L"\\Version", nullptr, Version());
}

[[nodiscard]] bool Remove(const std::wstring& key) {
    const LSTATUS code = RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str());
    return code == ERROR_SUCCESS || code == ERROR_FILE_NOT_FOUND;
}

[[nodiscard]] bool IsThere(const std::wstring& key) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return false;
    RegCloseKey(opened);
    return true;
}

} // namespace

HRESULT Register() noexcept {
    try {
        const std::wstring path = ModulePath();
        for (const ClassRow& row : server.classes)
            if (row.programId)
                SetClass(row, path);
        ITypeLib* library = nullptr;
        if (FAILED(LoadTypeLibEx(path.c_str(), REGKIND_REGISTER, &library)))
            return SELFREG_E_TYPELIB;
        library->Release();
        return S_OK;
    } catch (...) {
        return SELFREG_E_CLASS;
    }
}

HRESULT Unregister() noexcept {
    try {
        bool isGone = true;
        for (const ClassRow& row : server.classes)
            if (row.programId)
                isGone = Remove(row.programId) && Remove(L"CLSID\\" + Braced(row.clsid)) && isGone;
        if (IsThere(L"TypeLib\\" + Braced(server.typeLibrary) + L'\\' + Version()) &&
            FAILED(
                UnRegisterTypeLib(server.typeLibrary, server.major, server.minor, LOCALE_NEUTRAL, SYS_WIN64)))
            return SELFREG_E_TYPELIB;
        return isGone ? S_OK : SELFREG_E_CLASS;
    } catch (...) {
        return SELFREG_E_CLASS;
    }
}

} // namespace QuorConversions::Automation
