#ifndef VORKTRMetaObject_h
#define VORKTRMetaObject_h

#include "VORMetaClass.h"

namespace VORReport
{

/// The meta object of one of the library's interfaces, made and entered in the dictionary while
/// ioMetaObject is null. It lives as long as the library. Null when there is no memory for it.
VORMetaClass* InterfaceMetaObject(VORMetaClass*& ioMetaObject, const GUID& iId, const char* iName);

} // namespace VORReport

#endif
