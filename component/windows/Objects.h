#pragma once

#include "component/quor.h"
#include "component/windows/Rows.h"

#include <ole2.h>

// The one object of automation for each object of the library, and the one of the library for what a host
// offers.
namespace QuorConversions::Automation {

/// The object of a handle, with one reference for the caller: that of the host which the handle stands for,
/// or one of this server. Null for 0.
[[nodiscard]] IDispatch* DispatchOf(quor_object handle);

/// The handle of an object, with one reference for the caller: the one that the object stands for when it is
/// of this server; otherwise the object is the host's, and taken for what `offer` says. Raises
/// DISP_E_TYPEMISMATCH for one that cannot be called by name.
[[nodiscard]] quor_object HandleOf(IUnknown& object, Offer offer);

/// Objects of this server say when they come, and when they are gone; `identity` is what they answer to
/// IUnknown.
void Enter(quor_object handle, IUnknown& identity);
void Leave(quor_object handle, IUnknown& identity);

/// The object of the server, or of the host, that a handle of the library shall stand for: an INI file, a
/// registry or a list control of the host.
[[nodiscard]] quor_object FromHost(IDispatch& object, Offer offer);
/// The object of the host for which a handle stands; null for one of the library.
[[nodiscard]] IDispatch* HostOf(quor_object handle);

} // namespace QuorConversions::Automation
