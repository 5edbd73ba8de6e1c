#include "VORIKTRReportingSettingAtt.h"

#include "VORKTRMetaObject.h"

using namespace VORReport;

const GUID IID_VORIKTRReportingSettingAtt = {
    0x5C3B22E5, 0x0845, 0x4AAD, {0xAB, 0x6E, 0xA9, 0x25, 0x0F, 0x6F, 0x7E, 0xE5}};

VORMetaClass* VORIKTRReportingSettingAtt::meta_object = nullptr;

VORMetaClass* VORIKTRReportingSettingAtt::MetaObject()
{
    return InterfaceMetaObject(meta_object, IID_VORIKTRReportingSettingAtt,
                               "VORIKTRReportingSettingAtt");
}

const GUID& VORIKTRReportingSettingAtt::ClassId()
{
    return MetaObject()->GetId();
}

const char* VORIKTRReportingSettingAtt::ClassName()
{
    return MetaObject()->GetName();
}

int VORIKTRReportingSettingAtt::GetReservedSetting1()
{
    return VOR_E_NOTIMPL;
}

int VORIKTRReportingSettingAtt::GetReservedSetting2()
{
    return VOR_E_NOTIMPL;
}

int VORIKTRReportingSettingAtt::GetReservedSetting3()
{
    return VOR_E_NOTIMPL;
}
