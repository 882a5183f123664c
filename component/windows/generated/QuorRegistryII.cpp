// Made by component/generate from members.txt and windows/identifiers.txt: change those.
// clang-format off

#include "QuorRegistryII.h" // by widl, of QuorRegistryII.idl

#include "component/windows/Object.h"
#include "component/windows/Server.h"

namespace QuorConversions::Automation {
namespace {

constexpr Member registry[] = {
    {L"ReadValue", nullptr, 74, QUOR_CALL, VT_BOOL, 3, {{{L"Section", VT_BSTR}, {L"Name", VT_BSTR}, {L"Value", VT_BSTR | VT_BYREF}}}},
    {L"WriteValue", nullptr, 75, QUOR_CALL, VT_EMPTY, 3, {{{L"Section", VT_BSTR}, {L"Name", VT_BSTR}, {L"Value", VT_BSTR}}}},
};

class RegistryObject final : public Dual<IRegistry> {
public:
    using Dual::Dual;
    HRESULT STDMETHODCALLTYPE ReadValue(BSTR Section, BSTR Name, BSTR* Value, VARIANT_BOOL* result) override { return Slot(registry[0], QUOR_CALL, result, Section, Name, Value); }
    HRESULT STDMETHODCALLTYPE WriteValue(BSTR Section, BSTR Name, BSTR Value) override { return Slot(registry[1], QUOR_CALL, nullptr, Section, Name, Value); }
};

constexpr ClassRow classes[] = {
    {"Registry", L"QuorRegistryII.Registry",
     {0x51772cdf, 0xbfd1, 0x4a42, {0xbb, 0x12, 0x20, 0xce, 0x4d, 0x31, 0x72, 0xfd}},
     {0xf97d64e7, 0xd977, 0x4308, {0x8c, 0x76, 0x09, 0x1e, 0x60, 0x34, 0x3f, 0x8c}},
     registry, Make<RegistryObject>},
};

} // namespace

const ServerRow server = {L"QuorRegistryII", {0x2d77c80f, 0xd864, 0x46fc, {0xb5, 0x27, 0x2b, 0x61, 0x0b, 0x64, 0x0c, 0x4e}}, 1, 0, classes};

} // namespace QuorConversions::Automation
