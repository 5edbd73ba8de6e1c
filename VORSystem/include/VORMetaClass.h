#ifndef VORMetaClass_h
#define VORMetaClass_h

/// @file
/// Meta objects of classes and interfaces.

#include "VORGuid.h"
#include "VORSystemExport.h"

/// What a meta class describes.
enum ENUMTypeOfClass { VORImplementationKind = 1, VORInterfaceKind = 8 };

/// Meta object of a class or interface: its identifier, its name and its bases. The identifier, the
/// names and the bases are not copied and must live as long as the meta object.
class VORSYSTEM_EXPORT VORMetaClass
{
public:
    /// A base may be null.
    VORMetaClass(const GUID* iId, const char* iName, VORMetaClass* iBase, VORMetaClass* iSecondBase,
                 ENUMTypeOfClass iKind);
    VORMetaClass(const VORMetaClass&) = delete;
    VORMetaClass& operator=(const VORMetaClass&) = delete;

    /// @{ What the constructor was given.
    const GUID& GetId() const { return *_Id; }
    const char* GetName() const { return _Name; }
    VORMetaClass* GetBase() const { return _Base; }
    ENUMTypeOfClass GetKind() const { return _Kind; }
    /// @}

    /// Name of the framework that the class is filed under, null until it is set.
    const char* GetFWname() const { return _FWname; }
    /// Sets that name.
    void SetFWname(const char* iName) { _FWname = iName; }

    /// True when iId is the identifier of this class or of one of its bases.
    bool IsAKindOf(const GUID& iId) const;

private:
    const GUID* _Id;
    const char* _Name;
    VORMetaClass* _Base;
    VORMetaClass* _SecondBase;
    ENUMTypeOfClass _Kind;
    const char* _FWname = nullptr;
};

/// The kind of dictionary entries that are meta classes.
extern VORSYSTEM_EXPORT const GUID CLSID_VORMetaClass;

#endif
