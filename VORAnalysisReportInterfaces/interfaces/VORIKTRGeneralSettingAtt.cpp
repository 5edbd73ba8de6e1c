#include "VORIKTRGeneralSettingAtt.h"

#include "VORKTRMetaObject.h"

using namespace VORReport;

const GUID IID_VORIKTRGeneralSettingAtt = {
    0x7AF29DE1, 0xA4E8, 0x4B09, {0xB5, 0x04, 0x60, 0x03, 0x2B, 0x03, 0x90, 0x4E}};

VORMetaClass* VORIKTRGeneralSettingAtt::meta_object = nullptr;

VORMetaClass* VORIKTRGeneralSettingAtt::MetaObject()
{
    return InterfaceMetaObject(meta_object, IID_VORIKTRGeneralSettingAtt,
                               "VORIKTRGeneralSettingAtt");
}

const GUID& VORIKTRGeneralSettingAtt::ClassId()
{
    return MetaObject()->GetId();
}

const char* VORIKTRGeneralSettingAtt::ClassName()
{
    return MetaObject()->GetName();
}
