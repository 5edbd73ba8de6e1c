#ifndef VORKTRMetaObject_h
#define VORKTRMetaObject_h

#include "VORMetaClass.h"

/// Makes the meta object of one of the library's interfaces and enters it in the dictionary. It
/// lives as long as the library. Null when there is no memory for it.
VORMetaClass* MakeInterfaceMetaObject(const GUID& iId, const char* iName);

#endif
