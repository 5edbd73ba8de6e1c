#ifndef VORDictionary_h
#define VORDictionary_h

/// @file
/// The dictionary of meta objects.

#include "VORGuid.h"
#include "VORMetaClass.h"
#include "VORSystemExport.h"

/// Enters an object under the pair of a class identifier and the kind of entry; a second entry of
/// the same pair replaces the first. The object is not owned. Arguments without a name are
/// reserved.
VORSYSTEM_EXPORT void AddDictionary(const GUID& iClass, const GUID& iKind, const char* iName,
                                    const char* iEntry, const char*, VORMetaClass* iObject, void*,
                                    void*, int, int, int, void*);

/// Enters an object when it is constructed: a static one fills the dictionary while its library
/// loads.
class VORSYSTEM_EXPORT VORFillDictionary
{
public:
    /// As AddDictionary; the last argument is reserved.
    VORFillDictionary(const GUID& iClass, const GUID& iKind, VORMetaClass* iObject,
                      void* iReserved);
};

/// The meta class entered for iClass, null when there is none.
VORSYSTEM_EXPORT VORMetaClass* VORFindInDictionary(const GUID& iClass);

#endif
