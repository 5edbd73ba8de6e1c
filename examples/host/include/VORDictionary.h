#ifndef VORDictionary_h
#define VORDictionary_h

#include "VORMetaClass.h"

/// @{ This host looks up no meta objects.
inline void AddDictionary(const GUID&, const GUID&, const char*, const char*, const char*,
                          VORMetaClass*, void*, void*, int, int, int, void*)
{
}

struct VORFillDictionary {
    VORFillDictionary(const GUID&, const GUID&, VORMetaClass*, void*) {}
};
/// @}

#endif
