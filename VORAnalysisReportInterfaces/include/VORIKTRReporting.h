#ifndef VORIKTRReporting_h
#define VORIKTRReporting_h

/// @file
/// The component interface VORIKTRReporting.

#include "VORAnalysisReportInterfacesExport.h"
#include "VORBaseUnknown.h"

/// Identifier of the interface.
extern VORKTR_EXPORT const GUID IID_VORIKTRReporting;

/// Interface of components that offer reporting; it has no operations of its own yet.
class VORKTR_EXPORT VORIKTRReporting : public VORBaseUnknown
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

/// Holds one reference on a VORIKTRReporting.
class VORKTR_EXPORT VORIKTRReporting_var : public VORBaseUnknown_var
{
public:
    /// Asks iObject for this interface and holds it; null when it is refused.
    VORBaseUnknown* __CastTo(IUnknown* iObject);

    /// @{ What the handle holds, not owned by who asks; null when it is empty.
    operator VORIKTRReporting*() const { return static_cast<VORIKTRReporting*>(Get()); }
    VORIKTRReporting* operator->() const { return *this; }
    /// @}
};

#endif
