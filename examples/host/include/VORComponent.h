#ifndef VORComponent_h
#define VORComponent_h

#include "VORBaseUnknown.h"

/// The one component of this host, the user's report settings; null, as at first, for none. The
/// host keeps the caller's reference.
void VORSetReportSettings(VORBaseUnknown* iSettings);

VORStatus VORInstantiateComponent(const char* iName, const GUID& iId, void** oInterface);

#endif
