#include "VORKTRMetaObject.h"

#include <new>

#include "VORBaseUnknown.h"
#include "VORDictionary.h"
#include "VORIKTRGeneralSettingAtt.h"
#include "VORIKTRReporting.h"
#include "VORIKTRReportingSettingAtt.h"

using namespace VORReport;

VORMetaClass* VORReport::InterfaceMetaObject(VORMetaClass*& ioMetaObject, const GUID& iId,
                                             const char* iName)
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

namespace
{

// All of them here, in a file that every program with a report links: of a static library it would
// not link one that nothing asks for.
const VORFillDictionary FillDictionary[] = {
    {IID_VORIKTRGeneralSettingAtt, CLSID_VORMetaClass, VORIKTRGeneralSettingAtt::MetaObject(),
     nullptr},
    {IID_VORIKTRReporting, CLSID_VORMetaClass, VORIKTRReporting::MetaObject(), nullptr},
    {IID_VORIKTRReportingSettingAtt, CLSID_VORMetaClass, VORIKTRReportingSettingAtt::MetaObject(),
     nullptr}};

} // namespace
