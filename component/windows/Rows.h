#pragma once

#include "component/quor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <ole2.h>
#include <span>

// What a server knows of its classes. What stands in the rows is made by component/generate.
namespace QuorConversions::Automation {

/// What an object of the host is taken for, by the members that it has.
enum class Offer : std::uint8_t { None, IniFile, Registry, ListControl };

struct Parameter {
    const wchar_t* name;
    int type; ///< a VARTYPE: VT_BOOL, VT_I2, VT_I4, VT_R8, VT_BSTR or VT_DISPATCH; VT_BYREF where it is
              ///< in/out
    Offer offer = Offer::None;
};

struct Member {
    const wchar_t* name;
    const wchar_t* otherName; ///< its name in the type library, where that is another one; else null
    DISPID id;
    std::int32_t kinds; ///< the sum of those that it has: QUOR_GET, QUOR_PUT, QUOR_CALL
    int result;         ///< the type of a property, or of what a call gives; VT_EMPTY for none
    std::size_t count;  ///< how many indices or arguments
    std::array<Parameter, 3> parameters;
};

struct ClassRow {
    const char* name;
    const wchar_t* programId; ///< null for a class that no host makes
    CLSID clsid;
    IID iid; ///< of the dual interface
    std::span<const Member> members;
    /// The object that stands for a handle, whose reference it takes, with one reference of the caller.
    IDispatch* (*make)(const ClassRow& row, quor_object handle);
};

struct ServerRow {
    const wchar_t* name; ///< of the DLL and of the library; program ids are this name, a point, and a class
    GUID typeLibrary;
    WORD major;
    WORD minor;
    std::span<const ClassRow> classes;
};

/// The one of this DLL.
extern const ServerRow server;

} // namespace QuorConversions::Automation
