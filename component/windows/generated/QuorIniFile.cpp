// Made by component/generate from members.txt and windows/identifiers.txt: change those.
// clang-format off

#include "QuorIniFile.h" // by widl, of QuorIniFile.idl

#include "component/windows/Object.h"
#include "component/windows/Server.h"

namespace QuorConversions::Automation {
namespace {

constexpr Member inifile[] = {
    {L"FileName", nullptr, 61, QUOR_PUT | QUOR_GET, VT_BSTR, 0, {{}}},
    {L"Section", nullptr, 62, QUOR_PUT | QUOR_GET, VT_BSTR, 0, {{}}},
    {L"ReadBoolean", nullptr, 63, QUOR_CALL, VT_BOOL, 2, {{{L"Key", VT_BSTR}, {L"Value", VT_BOOL | VT_BYREF}}}},
    {L"ReadDouble", nullptr, 64, QUOR_CALL, VT_BOOL, 2, {{{L"Key", VT_BSTR}, {L"Value", VT_R8 | VT_BYREF}}}},
    {L"ReadInteger", nullptr, 65, QUOR_CALL, VT_BOOL, 2, {{{L"Key", VT_BSTR}, {L"Value", VT_I2 | VT_BYREF}}}},
    {L"ReadString", nullptr, 66, QUOR_CALL, VT_BOOL, 2, {{{L"Key", VT_BSTR}, {L"Value", VT_BSTR | VT_BYREF}}}},
    {L"WriteBoolean", nullptr, 67, QUOR_CALL, VT_EMPTY, 2, {{{L"Key", VT_BSTR}, {L"Value", VT_BOOL}}}},
    {L"WriteDouble", nullptr, 68, QUOR_CALL, VT_EMPTY, 3, {{{L"Key", VT_BSTR}, {L"Value", VT_R8}, {L"Comment", VT_BSTR}}}},
    {L"WriteInteger", nullptr, 69, QUOR_CALL, VT_EMPTY, 3, {{{L"Key", VT_BSTR}, {L"Value", VT_I2}, {L"Comment", VT_BSTR}}}},
    {L"WriteString", nullptr, 70, QUOR_CALL, VT_EMPTY, 2, {{{L"Key", VT_BSTR}, {L"Value", VT_BSTR}}}},
    {L"Hold", nullptr, 71, QUOR_CALL, VT_EMPTY, 0, {{}}},
    {L"Release", L"ReleaseHold", 72, QUOR_CALL, VT_EMPTY, 0, {{}}},
    {L"Abandon", nullptr, 73, QUOR_CALL, VT_EMPTY, 0, {{}}},
};

class INIFileObject final : public Dual<IINIFile> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE put_FileName(BSTR Value) override { return Slot(inifile[0], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_FileName(BSTR* result) override { return Slot(inifile[0], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE put_Section(BSTR Value) override { return Slot(inifile[1], QUOR_PUT, nullptr, Value); }
    HRESULT STDMETHODCALLTYPE get_Section(BSTR* result) override { return Slot(inifile[1], QUOR_GET, result); }
    HRESULT STDMETHODCALLTYPE ReadBoolean(BSTR Key, VARIANT_BOOL* Value, VARIANT_BOOL* result) override { return Slot(inifile[2], QUOR_CALL, result, Key, Value); }
    HRESULT STDMETHODCALLTYPE ReadDouble(BSTR Key, double* Value, VARIANT_BOOL* result) override { return Slot(inifile[3], QUOR_CALL, result, Key, Value); }
    HRESULT STDMETHODCALLTYPE ReadInteger(BSTR Key, short* Value, VARIANT_BOOL* result) override { return Slot(inifile[4], QUOR_CALL, result, Key, Value); }
    HRESULT STDMETHODCALLTYPE ReadString(BSTR Key, BSTR* Value, VARIANT_BOOL* result) override { return Slot(inifile[5], QUOR_CALL, result, Key, Value); }
    HRESULT STDMETHODCALLTYPE WriteBoolean(BSTR Key, VARIANT_BOOL Value) override { return Slot(inifile[6], QUOR_CALL, nullptr, Key, Value); }
    HRESULT STDMETHODCALLTYPE WriteDouble(BSTR Key, double Value, BSTR Comment) override { return Slot(inifile[7], QUOR_CALL, nullptr, Key, Value, Comment); }
    HRESULT STDMETHODCALLTYPE WriteInteger(BSTR Key, short Value, BSTR Comment) override { return Slot(inifile[8], QUOR_CALL, nullptr, Key, Value, Comment); }
    HRESULT STDMETHODCALLTYPE WriteString(BSTR Key, BSTR Value) override { return Slot(inifile[9], QUOR_CALL, nullptr, Key, Value); }
    HRESULT STDMETHODCALLTYPE Hold() override { return Slot(inifile[10], QUOR_CALL, nullptr); }
    HRESULT STDMETHODCALLTYPE ReleaseHold() override { return Slot(inifile[11], QUOR_CALL, nullptr); }
    HRESULT STDMETHODCALLTYPE Abandon() override { return Slot(inifile[12], QUOR_CALL, nullptr); }
};

constexpr ClassRow classes[] = {
    {"INIFile", L"QuorIniFile.INIFile",
     {0x8ceb80f3, 0x9b76, 0x4371, {0xbd, 0xc2, 0x22, 0x1c, 0x7e, 0x34, 0x11, 0xac}},
     {0x94facb53, 0x9e85, 0x4556, {0x84, 0x42, 0xeb, 0x07, 0xfd, 0x7e, 0xaf, 0x11}},
     inifile, Make<INIFileObject>},
};

} // namespace

const ServerRow server = {L"QuorIniFile", {0xbe971b5d, 0x7436, 0x43b4, {0x84, 0xb0, 0xaa, 0xdd, 0x11, 0x39, 0xed, 0xec}}, 1, 0, classes};

} // namespace QuorConversions::Automation
