#ifndef VORMetaClass_h
#define VORMetaClass_h

#include "VORGuid.h"

enum ENUMTypeOfClass { VORImplementationKind, VORInterfaceKind };

class VORMetaClass
{
public:
    VORMetaClass(const GUID* iId, const char* iName, VORMetaClass* iBase, VORMetaClass*,
                 ENUMTypeOfClass)
        : _Id(iId), _Name(iName), _Base(iBase)
    {
    }

    const GUID& GetId() const { return *_Id; }
    const char* GetName() const { return _Name; }
    void SetFWname(const char*) {}

    bool IsAKindOf(const GUID& iId) const
    {
        return *_Id == iId || (_Base && _Base->IsAKindOf(iId));
    }

private:
    const GUID* _Id;
    const char* _Name;
    VORMetaClass* _Base;
};

extern const GUID CLSID_VORMetaClass;

#endif
