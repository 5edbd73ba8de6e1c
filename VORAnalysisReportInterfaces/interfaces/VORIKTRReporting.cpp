#include "VORIKTRReporting.h"

#include "VORKTRMetaObject.h"

using namespace VORReport;

const GUID IID_VORIKTRReporting = {
    0x580C9CBA, 0x86E9, 0x4B9A, {0xAC, 0x55, 0x59, 0x6D, 0x6E, 0x89, 0xA4, 0x9E}};

VORMetaClass* VORIKTRReporting::meta_object = nullptr;

VORMetaClass* VORIKTRReporting::MetaObject()
{
    return InterfaceMetaObject(meta_object, IID_VORIKTRReporting, "VORIKTRReporting");
}

const GUID& VORIKTRReporting::ClassId()
{
    return MetaObject()->GetId();
}

const char* VORIKTRReporting::ClassName()
{
    return MetaObject()->GetName();
}

VORBaseUnknown* VORIKTRReporting_var::__CastTo(IUnknown* iObject)
{
    return CastTo(iObject, IID_VORIKTRReporting);
}
