// A host in C++ of the automation servers. Each command prints what it sees; the outputs are compared as
// texts.
//
//   typelib DLL    the members of a type library, in order
//   late           members called by name
//   early          members called by slot, by header and by number
//   list           a list control of this host
//   manifest DLL   an object of a server that is not registered
//   unload DLL     when a server may go

#include "QuorConversions.h" // by widl
#include "QuorIniFile.h"

#include <cguid.h>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <map>
#include <ocidl.h>
#include <ole2.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

// ---- What COM needs

void Good(HRESULT code) {
    if (FAILED(code)) {
        char text[40];
        std::snprintf(text, sizeof text, "HRESULT %08X", static_cast<unsigned>(code));
        throw std::runtime_error(text);
    }
}

std::string Code(HRESULT code) {
    char text[16];
    std::snprintf(text, sizeof text, "%08X", static_cast<unsigned>(code));
    return text;
}

std::string Narrow(const wchar_t* text) {
    std::string narrow;
    for (; text && *text; ++text)
        narrow += *text < 128 ? static_cast<char>(*text) : '?';
    return narrow;
}

std::string Taken(BSTR text) {
    std::string narrow = Narrow(text);
    SysFreeString(text);
    return narrow;
}

std::string Text(const GUID& id) {
    wchar_t text[39];
    StringFromGUID2(id, text, 39);
    return Narrow(text);
}

/// A reference.
template <class Interface>
class Ref {
public:
    Ref() = default;
    Ref(const Ref&) = delete;
    Ref& operator=(const Ref&) = delete;
    ~Ref() {
        if (m_object)
            m_object->Release();
    }
    Interface** Out() { return &m_object; }
    void** Any() { return reinterpret_cast<void**>(&m_object); }
    Interface* operator->() const { return m_object; }
    [[nodiscard]] Interface* Get() const { return m_object; }

private:
    Interface* m_object = nullptr;
};

class Bstr {
public:
    explicit Bstr(const wchar_t* text) : m_text(SysAllocString(text)) {}
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(m_text); }
    operator BSTR() const { return m_text; }
    BSTR* Out() { return &m_text; }

private:
    BSTR m_text;
};

VARIANT Long(LONG value) {
    VARIANT v{};
    v.vt = VT_I4;
    v.lVal = value;
    return v;
}

CLSID ClassOf(const wchar_t* programId) {
    CLSID id;
    Good(CLSIDFromProgID(programId, &id));
    return id;
}

void Print(const std::string& line) { std::printf("%s\n", line.c_str()); }

// ---- A type library

std::string TypeName(ITypeInfo& info, const TYPEDESC& type) {
    static const std::map<int, std::string> names{
        {VT_I2, "short"},  {VT_I4, "long"},         {VT_INT, "int"},
        {VT_R8, "double"}, {VT_BSTR, "BSTR"},       {VT_BOOL, "VARIANT_BOOL"},
        {VT_VOID, "void"}, {VT_HRESULT, "HRESULT"}, {VT_DISPATCH, "IDispatch*"}};
    if (type.vt == VT_PTR)
        return TypeName(info, *type.lptdesc) + "*";
    if (type.vt != VT_USERDEFINED)
        return names.count(type.vt) ? names.at(type.vt) : "type " + std::to_string(type.vt);
    Ref<ITypeInfo> named;
    Good(info.GetRefTypeInfo(type.hreftype, named.Out()));
    BSTR name = nullptr;
    Good(named->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    return Taken(name);
}

std::string ParameterText(ITypeInfo& info, const ELEMDESC& element, const std::string& name) {
    const auto flags = element.paramdesc.wParamFlags;
    std::string text = "[";
    for (const auto& [flag, word] : std::vector<std::pair<int, const char*>>{{PARAMFLAG_FIN, "in"},
                                                                             {PARAMFLAG_FOUT, "out"},
                                                                             {PARAMFLAG_FRETVAL, "retval"},
                                                                             {PARAMFLAG_FOPT, "optional"}})
        if ((flags & flag) != 0)
            text += (text.size() > 1 ? ", " : "") + std::string(word);
    if ((flags & PARAMFLAG_FHASDEFAULT) != 0) {
        const VARIANT& value = element.paramdesc.pparamdescex->varDefaultValue;
        text +=
            value.vt == VT_BSTR ? " = \"" + Narrow(value.bstrVal) + "\"" : " = " + std::to_string(value.lVal);
    }
    return text + "] " + TypeName(info, element.tdesc) + (name.empty() ? "" : " " + name);
}

void PrintFunctions(ITypeInfo& info, const TYPEATTR& attributes) {
    for (UINT i = 0; i < attributes.cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        Good(info.GetFuncDesc(i, &function));
        if ((function->wFuncFlags & FUNCFLAG_FRESTRICTED) == 0) { // those of IUnknown and IDispatch
            BSTR names[8]{};
            UINT count = 0;
            Good(info.GetNames(function->memid, names, 8, &count));
            const char* kind = function->invkind == INVOKE_PROPERTYGET   ? "get "
                               : function->invkind == INVOKE_PROPERTYPUT ? "put "
                                                                         : "call ";
            std::string line = "  " + std::to_string(function->oVft / 8) + " [" +
                               std::to_string(function->memid) + "] " + kind + Taken(names[0]) + "(";
            for (SHORT place = 0; place < function->cParams; ++place) {
                const UINT at = static_cast<UINT>(place) + 1;
                std::string name = at < count ? Taken(names[at]) : "";
                if (function->invkind == INVOKE_PROPERTYPUT && place + 1 == function->cParams)
                    name.clear(); // the names are those of the property: none for its value
                line += (place ? ", " : "") + ParameterText(info, function->lprgelemdescParam[place], name);
            }
            Print(line + ") " + TypeName(info, function->elemdescFunc.tdesc));
        }
        info.ReleaseFuncDesc(function);
    }
}

void PrintType(ITypeInfo& info) {
    TYPEATTR* attributes = nullptr;
    Good(info.GetTypeAttr(&attributes));
    BSTR name = nullptr;
    Good(info.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    const std::string head = Taken(name) + " " + Text(attributes->guid);
    switch (attributes->typekind) {
    case TKIND_ENUM:
        Print("enum " + head);
        for (UINT i = 0; i < attributes->cVars; ++i) {
            VARDESC* constant = nullptr;
            Good(info.GetVarDesc(i, &constant));
            BSTR word = nullptr;
            UINT count = 0;
            Good(info.GetNames(constant->memid, &word, 1, &count));
            Print("  " + Taken(word) + " = " + std::to_string(constant->lpvarValue->lVal));
            info.ReleaseVarDesc(constant);
        }
        break;
    case TKIND_COCLASS: {
        HREFTYPE reference = 0;
        Ref<ITypeInfo> interface_;
        Good(info.GetRefTypeOfImplType(0, &reference));
        Good(info.GetRefTypeInfo(reference, interface_.Out()));
        BSTR of = nullptr;
        Good(interface_->GetDocumentation(MEMBERID_NIL, &of, nullptr, nullptr, nullptr));
        Print("class " + head + ", " + Taken(of) +
              ((attributes->wTypeFlags & TYPEFLAG_FCANCREATE) != 0 ? ", creatable" : ", not creatable"));
        break;
    }
    case TKIND_DISPATCH: {
        HREFTYPE reference = 0;
        Ref<ITypeInfo> table; // of functions: the other side of a dual interface
        Good(info.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
        Good(info.GetRefTypeInfo(reference, table.Out()));
        TYPEATTR* ofTable = nullptr;
        Good(table->GetTypeAttr(&ofTable));
        Print("interface " + head + ((attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0 ? ", dual" : ""));
        PrintFunctions(*table.Get(), *ofTable);
        table->ReleaseTypeAttr(ofTable);
        break;
    }
    default:
        Print("other " + head);
    }
    info.ReleaseTypeAttr(attributes);
}

void PrintTypeLibrary(const std::wstring& path) {
    Ref<ITypeLib> library;
    Good(LoadTypeLibEx(path.c_str(), REGKIND_NONE, library.Out()));
    TLIBATTR* attributes = nullptr;
    Good(library->GetLibAttr(&attributes));
    BSTR name = nullptr;
    Good(library->GetDocumentation(-1, &name, nullptr, nullptr, nullptr));
    Print("library " + Taken(name) + " " + std::to_string(attributes->wMajorVerNum) + "." +
          std::to_string(attributes->wMinorVerNum) + " " + Text(attributes->guid));
    library->ReleaseTLibAttr(attributes);
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        Ref<ITypeInfo> info;
        Good(library->GetTypeInfo(i, info.Out()));
        PrintType(*info.Get());
    }
}

// ---- By name

DISPID IdOf(IDispatch& object, const wchar_t* name) {
    auto* names = const_cast<LPOLESTR>(name);
    DISPID id = DISPID_UNKNOWN;
    Good(object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id));
    return id;
}

/// A call by name, with the arguments as they stand in DISPPARAMS: the last first.
HRESULT Invoke(IDispatch& object, const wchar_t* name, WORD flags, std::vector<VARIANT> backwards,
               VARIANT* result, EXCEPINFO* info = nullptr, UINT* wrong = nullptr) {
    DISPID ofPut = DISPID_PROPERTYPUT;
    DISPPARAMS given{backwards.data(), nullptr, static_cast<UINT>(backwards.size()), 0};
    if (flags == DISPATCH_PROPERTYPUT) {
        given.rgdispidNamedArgs = &ofPut;
        given.cNamedArgs = 1;
    }
    return object.Invoke(IdOf(object, name), IID_NULL, LOCALE_USER_DEFAULT, flags, &given, result, info,
                         wrong);
}

void CallByName() {
    Ref<IDispatch> probe;
    Good(CoCreateInstance(ClassOf(L"QuorConversions.CQuorConversion"), nullptr, CLSCTX_INPROC_SERVER,
                          IID_IDispatch, probe.Any()));
    Print("Numbers: " + std::to_string(IdOf(*probe.Get(), L"allowEDIT")) + " " +
          std::to_string(IdOf(*probe.Get(), L"ReadFromFile")));

    wchar_t member[] = L"writetofile";
    wchar_t section[] = L"SecName";
    wchar_t file[] = L"fname";
    wchar_t other[] = L"other";
    LPOLESTR names[] = {member, section, file, other};
    DISPID ids[4]{};
    const HRESULT code = probe->GetIDsOfNames(IID_NULL, names, 4, LOCALE_USER_DEFAULT, ids);
    Print("Names of parameters: " + Code(code) + " " + std::to_string(ids[0]) + " " + std::to_string(ids[1]) +
          " " + std::to_string(ids[2]) + " " + std::to_string(ids[3]));

    VARIANT result{};
    Good(Invoke(*probe.Get(), L"ConversionType", DISPATCH_PROPERTYPUT, {Long(2)}, nullptr));
    Good(Invoke(*probe.Get(), L"ConversionType", DISPATCH_PROPERTYGET, {}, &result));
    Print("A property: type " + std::to_string(result.vt) + ", " + std::to_string(result.lVal));

    DISPID ofValue = 0;
    VARIANT four = Long(4);
    DISPPARAMS named{&four, &ofValue, 1, 1};
    Good(probe->Invoke(IdOf(*probe.Get(), L"ConversionName"), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                       &named, &result, nullptr, nullptr));
    Print("An argument with its name: " + Taken(result.bstrVal));
    VARIANT missing{};
    missing.vt = VT_ERROR;
    missing.scode = DISP_E_PARAMNOTFOUND;
    Good(Invoke(*probe.Get(), L"ConversionName", DISPATCH_METHOD, {missing}, &result));
    Print("An argument that is left out: " + Taken(result.bstrVal));

    Good(Invoke(*probe.Get(), L"Settings", DISPATCH_PROPERTYGET, {}, &result));
    Ref<IDispatch> cvd;
    *cvd.Out() = result.pdispVal;
    VARIANT value{};
    value.vt = VT_R8;
    value.dblVal = 100.0123;
    Good(Invoke(*cvd.Get(), L"Coefficients", DISPATCH_PROPERTYPUT, {value, Long(0)}, nullptr));
    Good(Invoke(*cvd.Get(), L"Coefficients", DISPATCH_PROPERTYGET, {Long(0)}, &result));
    Print(std::string("An indexed property: ") + (result.dblVal == 100.0123 ? "exact" : "another number"));

    EXCEPINFO info{};
    const HRESULT index =
        Invoke(*cvd.Get(), L"Coefficients", DISPATCH_PROPERTYGET, {Long(4)}, &result, &info);
    Print("An error: " + Code(index) + " " + Code(info.scode) + " [" + Narrow(info.bstrSource) + "] " +
          Narrow(info.bstrDescription) + ", help file: " + (info.bstrHelpFile ? "some" : "none"));
    SysFreeString(info.bstrSource);
    SysFreeString(info.bstrDescription);
    SysFreeString(info.bstrHelpFile);
    VARIANT words{};
    words.vt = VT_BSTR;
    words.bstrVal = SysAllocString(L"x");
    UINT wrong = 99;
    const HRESULT mismatch =
        Invoke(*cvd.Get(), L"Coefficients", DISPATCH_PROPERTYPUT, {value, words}, nullptr, nullptr, &wrong);
    Print("A wrong argument: " + Code(mismatch) + ", number " + std::to_string(wrong));
    VariantClear(&words);
    Print("Too many: " + Code(Invoke(*cvd.Get(), L"GetName", DISPATCH_METHOD, {Long(1)}, nullptr)));
    Print("A method as a property: " +
          Code(Invoke(*cvd.Get(), L"GetName", DISPATCH_PROPERTYGET, {}, &result)));

    // In/out, each with its own type, as typed languages pass them.
    VARIANT fileName{};
    Bstr name(L"Z:\\no such file.cvd");
    fileName.vt = VT_BYREF | VT_BSTR;
    fileName.pbstrVal = name.Out();
    Good(Invoke(*cvd.Get(), L"OpenFile", DISPATCH_METHOD, {fileName, Long(0)}, &result));
    Print("A text in and out: " + std::to_string(result.boolVal) + " " + Narrow(name));
    IDispatch* registry = cvd.Get(); // an object of another class
    VARIANT reference{};
    reference.vt = VT_BYREF | VT_DISPATCH;
    reference.ppdispVal = &registry;
    const HRESULT refused =
        Invoke(*probe.Get(), L"SetRegistry", DISPATCH_METHOD, {reference}, nullptr, &info);
    Print("An object of another class: " + Code(refused) + " " + Code(info.scode) + " " +
          Narrow(info.bstrDescription));

    Ref<IProvideClassInfo> provider;
    Ref<ITypeInfo> type;
    Good(cvd->QueryInterface(IID_IProvideClassInfo, provider.Any()));
    Good(provider->GetClassInfo(type.Out()));
    BSTR className = nullptr;
    Good(type->GetDocumentation(MEMBERID_NIL, &className, nullptr, nullptr, nullptr));
    Print("The class: " + Taken(className));
    Ref<ITypeInfo> own;
    Good(cvd->GetTypeInfo(0, LOCALE_USER_DEFAULT, own.Out()));
    Good(own->GetDocumentation(MEMBERID_NIL, &className, nullptr, nullptr, nullptr));
    Print("The interface: " + Taken(className));

    Ref<IUnknown> outer;
    Ref<IDispatch> inner;
    Print("As a part of another object: " +
          Code(CoCreateInstance(ClassOf(L"QuorConversions.CQuorConversion"), probe.Get(),
                                CLSCTX_INPROC_SERVER, IID_IUnknown, outer.Any())));
    Print("A class that no host makes: " +
          Code(CoCreateInstance(CLSID_CQuorCVD, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, inner.Any())));
}

// ---- By slot

/// The function in a slot, as a caller of C sees it.
template <class... Arguments>
HRESULT CallSlot(IUnknown* object, int slot, Arguments... arguments) {
    using Function = HRESULT(STDMETHODCALLTYPE*)(IUnknown*, Arguments...);
    return reinterpret_cast<Function>((*reinterpret_cast<void***>(object))[slot])(object, arguments...);
}

void CallBySlot() {
    Ref<ICQuorConversion> probe;
    Good(CoCreateInstance(CLSID_CQuorConversion, nullptr, CLSCTX_INPROC_SERVER, IID_ICQuorConversion,
                          probe.Any()));
    VARIANT_BOOL flag = VARIANT_FALSE;
    Good(probe->get_AllowEdit(&flag));
    EQuorConversionType type{};
    Good(probe->get_ConversionType(&type));
    Print("By header: " + std::to_string(flag) + " " + std::to_string(type));
    Good(probe->put_ConversionType(CONV_CVD));
    BSTR name = nullptr;
    Good(probe->ConversionName(-2, &name));
    Print("Its name: " + Taken(name));

    Ref<IDispatch> settings;
    Ref<ICQuorCVD> cvd;
    Good(probe->get_Settings(settings.Out()));
    Good(settings->QueryInterface(IID_ICQuorCVD, cvd.Any()));
    Good(cvd->put_Coefficients(CVD_BETA, 1.0 / 3));
    double beta = 0;
    Good(cvd->get_Coefficients(CVD_BETA, &beta));
    Print(std::string("A coefficient: ") + (beta == 1.0 / 3 ? "exact" : "another number"));

    // Slots by number: 7 of IDispatch stand first. get and put of AllowEdit, then of HelpFile, and so on.
    flag = VARIANT_TRUE;
    Good(CallSlot(probe.Get(), 8, VARIANT_BOOL{VARIANT_FALSE}));
    Good(CallSlot(probe.Get(), 7, &flag));
    BSTR cvdName = nullptr;
    Good(CallSlot(cvd.Get(), 23, &cvdName));
    LONG code = 0;
    Good(CallSlot(probe.Get(), 18, &code));
    Print("By number: " + std::to_string(flag) + " " + Taken(cvdName) + " " + std::to_string(code));

    const HRESULT refused = cvd->get_Coefficients(static_cast<ECVDCoefficients>(4), &beta);
    Ref<ISupportErrorInfo> support;
    Ref<IErrorInfo> error;
    Good(cvd->QueryInterface(IID_ISupportErrorInfo, support.Any()));
    Good(GetErrorInfo(0, error.Out()));
    BSTR source = nullptr;
    BSTR description = nullptr;
    BSTR helpFile = nullptr;
    DWORD helpContext = 99;
    GUID of{};
    Good(error->GetSource(&source));
    Good(error->GetDescription(&description));
    Good(error->GetHelpFile(&helpFile));
    Good(error->GetHelpContext(&helpContext));
    Good(error->GetGUID(&of));
    Print("An error: " + Code(refused) + " [" + Taken(source) + "] " + Taken(description) + " [" +
          Taken(helpFile) + "] " + std::to_string(helpContext) +
          ", of the interface: " + std::to_string(of == IID_ICQuorCVD) +
          ", supported: " + Code(support->InterfaceSupportsErrorInfo(IID_ICQuorCVD)));
    Print("No place for a result: " + Code(cvd->get_Coefficients(CVD_R0, nullptr)));

    // The INI file of another server goes in as an object of the host, and comes back untouched.
    Ref<IINIFile> file;
    Good(CoCreateInstance(CLSID_INIFile, nullptr, CLSCTX_INPROC_SERVER, IID_IINIFile, file.Any()));
    IDispatch* given = file.Get();
    Bstr path(L"early.ini");
    Bstr section(L"Probe 1");
    Bstr none(L"");
    Good(file->put_FileName(path));
    Good(probe->WriteToFile(&given, none, section));
    Ref<ICQuorConversion> again;
    Good(CoCreateInstance(CLSID_CQuorConversion, nullptr, CLSCTX_INPROC_SERVER, IID_ICQuorConversion,
                          again.Any()));
    Good(again->ReadFromFile(&given, nullptr, section, &flag));
    Good(again->get_ConversionType(&type));
    Print("Written and read: " + std::to_string(flag) + " " + std::to_string(type) +
          ", the same object: " + std::to_string(given == file.Get()));

    Ref<IUnknown> first;
    Ref<IUnknown> second;
    Ref<IDispatch> settingsAgain;
    Good(cvd->QueryInterface(IID_IUnknown, first.Any()));
    Good(probe->get_Settings(settingsAgain.Out()));
    Good(settingsAgain->QueryInterface(IID_IUnknown, second.Any()));
    Print("One identity: " + std::to_string(first.Get() == second.Get()));
}

// ---- A list control

/// A drop-down list of the host, which has only what a list needs.
class ListControl final : public IDispatch {
public:
    explicit ListControl(DISPID firstId) : m_firstId(firstId) {}
    virtual ~ListControl() = default;
    std::vector<std::pair<std::string, LONG>> items{{"an old one", 0}};
    ULONG references = 1;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool isOurs = iid == IID_IUnknown || iid == IID_IDispatch;
        *object = isOurs ? this : nullptr;
        return isOurs ? (AddRef(), S_OK) : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; } // it stands on the stack
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        static const std::vector<std::wstring> known{L"Clear", L"AddItem", L"NewIndex", L"ItemData"};
        for (std::size_t i = 0; i < known.size(); ++i)
            if (known[i] == names[0]) {
                *ids = m_firstId + static_cast<DISPID>(i);
                return S_OK;
            }
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* given, VARIANT* result,
                                     EXCEPINFO* info, UINT*) override {
        const DISPID member = id - m_firstId;
        if (member == 0 && flags == DISPATCH_METHOD) {
            items.clear();
            return S_OK;
        }
        if (member == 1 && flags == DISPATCH_METHOD && items.size() == full) {
            info->wCode = 0;
            info->scode = static_cast<SCODE>(0x800A0007);
            info->bstrSource = SysAllocString(L"The list");
            info->bstrDescription = SysAllocString(L"The list is full");
            info->bstrHelpFile = SysAllocString(L"list.hlp");
            info->dwHelpContext = 7;
            return DISP_E_EXCEPTION;
        }
        if (member == 1 && flags == DISPATCH_METHOD) {
            items.emplace_back(Narrow(given->rgvarg[0].bstrVal), -99);
            return S_OK;
        }
        if (member == 2 && flags == DISPATCH_PROPERTYGET) {
            *result = Long(static_cast<LONG>(items.size()) - 1);
            return S_OK;
        }
        if (member == 3 && flags == DISPATCH_PROPERTYPUT && given->cNamedArgs == 1) {
            items.at(static_cast<std::size_t>(given->rgvarg[1].lVal)).second = given->rgvarg[0].lVal;
            return S_OK;
        }
        return DISP_E_MEMBERNOTFOUND;
    }
    std::size_t full = 1000;

private:
    DISPID m_firstId;
};

void FillLists() {
    Ref<ICQuorConversion> probe;
    Good(CoCreateInstance(CLSID_CQuorConversion, nullptr, CLSCTX_INPROC_SERVER, IID_ICQuorConversion,
                          probe.Any()));
    Good(probe->put_ConversionType(CONV_ITS90));
    Ref<IDispatch> settings;
    Ref<ICQuorITS90> its90;
    Ref<ICQuorITS90LowRange> low;
    Good(probe->get_Settings(settings.Out()));
    Good(settings->QueryInterface(IID_ICQuorITS90, its90.Any()));
    Good(its90->get_LowRange(low.Out()));
    // Classes of Visual Basic and .NET number their members from 0x60020000 on.
    ListControl list(0x60030000);
    Good(low->FillRangeCombo(&list));
    for (const DISPID firstId : {1, 100, 0x60020000, 0x68030000}) {
        ListControl other(firstId);
        Good(low->FillRangeCombo(&other));
        if (other.items != list.items)
            throw std::runtime_error("another list by members from " + std::to_string(firstId));
    }
    for (const auto& [text, data] : list.items)
        Print("  " + text + " = " + std::to_string(data));
    Print("References left: " + std::to_string(list.references - 1));

    list.full = 2;
    const HRESULT code = low->FillRangeCombo(&list);
    Ref<IErrorInfo> error;
    Good(GetErrorInfo(0, error.Out()));
    BSTR source = nullptr;
    BSTR description = nullptr;
    Good(error->GetSource(&source));
    BSTR helpFile = nullptr;
    DWORD helpContext = 0;
    Good(error->GetDescription(&description));
    Good(error->GetHelpFile(&helpFile));
    Good(error->GetHelpContext(&helpContext));
    Print("An error of the list: " + Code(code) + " [" + Taken(source) + "] " + Taken(description) + " [" +
          Taken(helpFile) + "] " + std::to_string(helpContext));

    Ref<ICQuorConversion> other;
    Good(CoCreateInstance(CLSID_CQuorConversion, nullptr, CLSCTX_INPROC_SERVER, IID_ICQuorConversion,
                          other.Any()));
    Print("What is no list: " + Code(low->FillRangeCombo(other.Get())));
}

// ---- Without registering; loading and unloading

void UseManifest(const std::wstring& path) {
    Ref<IDispatch> none;
    Print("Before: " + Code(CoCreateInstance(CLSID_CQuorConversion, nullptr, CLSCTX_INPROC_SERVER,
                                             IID_IDispatch, none.Any())));
    ACTCTXW wanted{};
    wanted.cbSize = sizeof wanted;
    wanted.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
    wanted.lpSource = path.c_str();
    wanted.lpResourceName = MAKEINTRESOURCEW(1);
    const HANDLE context = CreateActCtxW(&wanted);
    ULONG_PTR cookie = 0;
    if (context == INVALID_HANDLE_VALUE || !ActivateActCtx(context, &cookie))
        throw std::runtime_error("no activation context");
    {
        Ref<IDispatch> probe;
        Good(CoCreateInstance(ClassOf(L"QuorConversions.CQuorConversion"), nullptr, CLSCTX_INPROC_SERVER,
                              IID_IDispatch, probe.Any()));
        VARIANT result{};
        Good(Invoke(*probe.Get(), L"ConversionName", DISPATCH_METHOD, {Long(2)}, &result));
        Print("By the manifest: " + Taken(result.bstrVal));
    }
    DeactivateActCtx(0, cookie);
    ReleaseActCtx(context);
}

template <class Function>
Function FunctionOf(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

void Unload(const std::wstring& path) {
    for (int round = 0; round < 20; ++round) {
        const HMODULE module = LoadLibraryW(path.c_str());
        const auto factoryOf =
            FunctionOf<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(module, "DllGetClassObject");
        const auto canUnload = FunctionOf<HRESULT(WINAPI*)()>(module, "DllCanUnloadNow");
        std::string codes = Code(canUnload());
        IClassFactory* factory = nullptr;
        Good(factoryOf(CLSID_CQuorConversion, IID_IClassFactory, reinterpret_cast<void**>(&factory)));
        codes += " " + Code(canUnload());
        ICQuorConversion* probe = nullptr;
        Good(factory->CreateInstance(nullptr, IID_ICQuorConversion, reinterpret_cast<void**>(&probe)));
        factory->Release();
        Good(probe->put_ConversionType(CONV_ITS90));
        IDispatch* settings = nullptr;
        Good(probe->get_Settings(&settings));
        probe->Release();
        codes += " " + Code(canUnload());
        settings->Release();
        codes += " " + Code(canUnload());
        void* refused = nullptr;
        codes +=
            ", a class that no host makes: " + Code(factoryOf(CLSID_CQuorCVD, IID_IClassFactory, &refused));
        FreeLibrary(module);
        if (round == 0 || round == 19)
            Print(codes + (GetModuleHandleW(path.c_str()) ? ", still loaded" : ", unloaded"));
    }
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    const std::map<std::wstring, std::function<void(const std::wstring&)>> commands{
        {L"typelib", PrintTypeLibrary},
        {L"late", [](const std::wstring&) { CallByName(); }},
        {L"early", [](const std::wstring&) { CallBySlot(); }},
        {L"list", [](const std::wstring&) { FillLists(); }},
        {L"manifest", UseManifest},
        {L"unload", Unload}};
    const auto command = commands.find(count > 1 ? arguments[1] : L"");
    if (command == commands.end())
        return 2;
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int code = 0;
    try {
        command->second(count > 2 ? arguments[2] : L"");
    } catch (const std::exception& error) {
        Print(error.what());
        code = 1;
    }
    CoUninitialize();
    return code;
}
