#include "VORMetaClass.h"

const GUID CLSID_VORMetaClass = {
    0x1F0C44B6, 0x7A31, 0x4E0D, {0x9B, 0x52, 0x60, 0x3E, 0x8D, 0x17, 0xC2, 0x01}};

VORMetaClass::VORMetaClass(const GUID* iId, const char* iName, VORMetaClass* iBase,
                           VORMetaClass* iSecondBase, ENUMTypeOfClass iKind)
    : _Id(iId), _Name(iName), _Base(iBase), _SecondBase(iSecondBase), _Kind(iKind)
{
}

bool VORMetaClass::IsAKindOf(const GUID& iId) const
{
    return *_Id == iId || (_Base && _Base->IsAKindOf(iId)) ||
           (_SecondBase && _SecondBase->IsAKindOf(iId));
}
