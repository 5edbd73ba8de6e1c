#ifndef VORComponent_h
#define VORComponent_h

/// @file
/// Components by name.

#include "VORBaseUnknown.h"

/// Makes a component; the caller gets its first reference. Null when it cannot be made.
using VORComponentFactory = VORBaseUnknown* (*)();

/// Registers a component under a name, replacing an earlier one; a null factory removes the name. A
/// null name is ignored. The factory may be called from several threads.
VORSYSTEM_EXPORT void VORRegisterComponent(const char* iName, VORComponentFactory iFactory);

/// Makes the component iName and asks it for the interface iId. The caller releases oInterface.
/// Without such a component or interface oInterface is null and the status negative; a null
/// oInterface is refused with VOR_E_INVALIDARG.
VORSYSTEM_EXPORT VORStatus VORInstantiateComponent(const char* iName, const GUID& iId,
                                                   void** oInterface);

#endif
