#include "VORKTRMetaObject.h"

#include <new>

#include "VORBaseUnknown.h"
#include "VORDictionary.h"

VORMetaClass* InterfaceMetaObject(VORMetaClass*& ioMetaObject, const GUID& iId, const char* iName)
{
    if (ioMetaObject)
        return ioMetaObject;
    ioMetaObject = new (std::nothrow)
        VORMetaClass(&iId, iName, VORBaseUnknown::MetaObject(), nullptr, VORInterfaceKind);
    AddDictionary(iId, CLSID_VORMetaClass, iName, "MetaObject", nullptr, ioMetaObject, nullptr,
                  nullptr, 1, 0, 2, nullptr);
    if (ioMetaObject)
        ioMetaObject->SetFWname("VORAnalysisReportInterfaces");
    return ioMetaObject;
}
