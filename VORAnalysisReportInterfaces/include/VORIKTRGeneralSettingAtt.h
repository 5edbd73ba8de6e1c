#ifndef VORIKTRGeneralSettingAtt_h
#define VORIKTRGeneralSettingAtt_h

/// @file
/// The component interface VORIKTRGeneralSettingAtt.

#include "VORAnalysisReportInterfacesExport.h"
#include "VORBaseUnknown.h"

/// Identifier of the interface.
extern VORKTR_EXPORT const GUID IID_VORIKTRGeneralSettingAtt;

/// Interface of general settings; it has no operations of its own yet.
class VORKTR_EXPORT VORIKTRGeneralSettingAtt : public VORBaseUnknown
{
public:
    /// @{ The meta object of this interface, and its identifier and name.
    static VORMetaClass* MetaObject();
    static const GUID& ClassId();
    static const char* ClassName();
    /// @}

    VORMetaClass* GetMetaObject() const override { return MetaObject(); }

private:
    static VORMetaClass* meta_object;
};

#endif
