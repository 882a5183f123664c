#pragma once

#include "component/windows/Rows.h"

#include <ole2.h>
#include <string>

// The DLL itself.
namespace QuorConversions::Automation {

/// The full path of this DLL.
[[nodiscard]] std::wstring ModulePath();

/// The description of a class or of its interface in the type library that this DLL carries.
[[nodiscard]] HRESULT TypeInfoOf(const GUID& id, ITypeInfo** info) noexcept;

/// Makes an object of the library as a host does that has nothing to give: with the windows of the system and
/// the help in the folder "help" beside this DLL, and, a registry, in the file of the host's program.
[[nodiscard]] quor_object Create(const ClassRow& row);

/// Writes what Windows looks for when a host makes an object by name, or takes it out again.
[[nodiscard]] HRESULT Register() noexcept;
[[nodiscard]] HRESULT Unregister() noexcept;

} // namespace QuorConversions::Automation
