#ifndef VORIKTRReportingSettingAtt_h
#define VORIKTRReportingSettingAtt_h

/// @file
/// The component interface VORIKTRReportingSettingAtt.

#include "VORAnalysisReportInterfacesExport.h"
#include "VORBaseUnknown.h"
#include "VORUnicodeString.h"

/// Identifier of the interface.
extern VORKTR_EXPORT const GUID IID_VORIKTRReportingSettingAtt;

/// The user's settings of reports. A host registers a component that implements it under the name
/// "VORKTRReportingSettingCtrl" (VORRegisterComponent); without one the standard background is
/// used.
class VORKTR_EXPORT VORIKTRReportingSettingAtt : public VORBaseUnknown
{
public:
    /// @{ The meta object of this interface, and its identifier and name.
    static VORMetaClass* MetaObject();
    static const GUID& ClassId();
    static const char* ClassName();
    /// @}

    VORMetaClass* GetMetaObject() const override { return MetaObject(); }

    /// Sets oDefault to 1 when pages use the standard background image, to 0 when they use the
    /// user's. A negative status counts as 1.
    virtual int GetDefaultBackground(unsigned char& oDefault) = 0;

    /// @{ Reserved, not called by this library; they refuse with VOR_E_NOTIMPL.
    virtual int GetReservedSetting1();
    virtual int GetReservedSetting2();
    virtual int GetReservedSetting3();
    /// @}

    /// Sets oPath to the full path of the user's background image (UTF-8); a bare file name is
    /// ignored. Called only when GetDefaultBackground gave 0. On a negative status the first page
    /// takes the standard image, else the background of the process so far, later pages the plain
    /// colour, as they do where the directory or the name is longer than 256 bytes.
    virtual int GetBackgroundPath(VORUnicodeString& oPath) = 0;

private:
    static VORMetaClass* meta_object;
};

#endif
