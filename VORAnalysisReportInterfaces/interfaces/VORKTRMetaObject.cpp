#include "VORKTRMetaObject.h"

#include <new>

#include "VORBaseUnknown.h"
#include "VORDictionary.h"

VORMetaClass* MakeInterfaceMetaObject(const GUID& iId, const char* iName)
{
    auto* const metaObject = new (std::nothrow)
        VORMetaClass(&iId, iName, VORBaseUnknown::MetaObject(), nullptr, VORInterfaceKind);
    AddDictionary(iId, CLSID_VORMetaClass, iName, "MetaObject", nullptr, metaObject, nullptr,
                  nullptr, 1, 0, 2, nullptr);
    if (metaObject)
        metaObject->SetFWname("VORAnalysisReportInterfaces");
    return metaObject;
}
