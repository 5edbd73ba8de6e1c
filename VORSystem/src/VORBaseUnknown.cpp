#include "VORBaseUnknown.h"

#include <utility>

// The value that it has wherever there is such a root: a library that has the name as well may come
// first where a program is linked.
const GUID IID_IUnknown = {0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
const GUID IID_VORBaseUnknown = {
    0x1F0C44B6, 0x7A31, 0x4E0D, {0x9B, 0x52, 0x60, 0x3E, 0x8D, 0x17, 0xC2, 0x02}};

VORMetaClass* VORBaseUnknown::MetaObject()
{
    static VORMetaClass metaObject(&IID_VORBaseUnknown, "VORBaseUnknown", nullptr, nullptr,
                                   VORImplementationKind);
    return &metaObject;
}

const GUID& VORBaseUnknown::ClassId()
{
    return MetaObject()->GetId();
}

const char* VORBaseUnknown::ClassName()
{
    return MetaObject()->GetName();
}

VORStatus VORBaseUnknown::QueryInterface(const GUID& iId, void** oInterface)
{
    if (!oInterface)
        return VOR_E_INVALIDARG;
    const bool granted = iId == IID_IUnknown || GetMetaObject()->IsAKindOf(iId);
    *oInterface = granted ? this : nullptr;
    if (!granted)
        return VOR_E_NOINTERFACE;
    AddRef();
    return VOR_S_OK;
}

unsigned int VORBaseUnknown::Release()
{
    const unsigned int left = --_References;
    if (left == 0) {
        _References = 1u << 31; // it may be counted on its way out, and must not end twice
        delete this;
    }
    return left;
}

VORBaseUnknown_var::~VORBaseUnknown_var()
{
    if (_Object)
        _Object->Release();
}

VORBaseUnknown* VORBaseUnknown_var::CastTo(IUnknown* iObject, const GUID& iId)
{
    void* found = nullptr;
    if (iObject)
        iObject->QueryInterface(iId, &found);
    VORBaseUnknown* const last = std::exchange(_Object, static_cast<VORBaseUnknown*>(found));
    if (last)
        last->Release();
    return _Object;
}
