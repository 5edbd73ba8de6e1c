#ifndef VORBaseUnknown_h
#define VORBaseUnknown_h

/// @file
/// The root of the component model.

#include "VORGuid.h"
#include "VORMetaClass.h"
#include "VORStatus.h"
#include "VORSystemExport.h"

/// Root of the component model: counted references and a lookup of interfaces.
class VORSYSTEM_EXPORT IUnknown
{
public:
    /// On success oInterface is the object as the interface iId, with one reference added; else
    /// null and VOR_E_NOINTERFACE. A null oInterface is refused with VOR_E_INVALIDARG.
    virtual VORStatus QueryInterface(const GUID& iId, void** oInterface) = 0;
    /// Adds one reference. Returns the count.
    virtual unsigned int AddRef() = 0;
    /// Gives back one reference; the object ends with its last. Returns the count that is left.
    virtual unsigned int Release() = 0;

protected:
    ~IUnknown() = default;
};

/// Base of interfaces and components. An object begins with one reference, its creator's.
/// References are counted without locks.
class VORSYSTEM_EXPORT VORBaseUnknown : public IUnknown
{
public:
    VORBaseUnknown() = default;
    VORBaseUnknown(const VORBaseUnknown&) = delete;
    VORBaseUnknown& operator=(const VORBaseUnknown&) = delete;
    virtual ~VORBaseUnknown() = default;

    /// @{ The meta object of this class, and its identifier and name.
    static VORMetaClass* MetaObject();
    static const GUID& ClassId();
    static const char* ClassName();
    /// @}

    /// Meta class of the object's own class; an interface overrides it.
    virtual VORMetaClass* GetMetaObject() const { return MetaObject(); }

    /// Grants the interfaces among the object's single bases, by the chain of its meta classes. A
    /// component with several interfaces overrides it.
    VORStatus QueryInterface(const GUID& iId, void** oInterface) override;
    /// Adds one reference. Returns the count.
    unsigned int AddRef() override { return ++_References; }
    unsigned int Release() override;

private:
    unsigned int _References = 1;
};

/// @{ Identifiers of the two roots.
extern VORSYSTEM_EXPORT const GUID IID_IUnknown;
extern VORSYSTEM_EXPORT const GUID IID_VORBaseUnknown;
/// @}

/// Holds one reference on an object and releases it at its end.
class VORSYSTEM_EXPORT VORBaseUnknown_var
{
public:
    VORBaseUnknown_var() = default;
    VORBaseUnknown_var(const VORBaseUnknown_var&) = delete;
    VORBaseUnknown_var& operator=(const VORBaseUnknown_var&) = delete;
    ~VORBaseUnknown_var();

    /// Lets go of what is held and asks iObject for the interface iId. Returns that interface,
    /// which the handle now holds, or null, also for a null object.
    VORBaseUnknown* CastTo(IUnknown* iObject, const GUID& iId);

    /// What the handle holds; null when it is empty.
    VORBaseUnknown* Get() const { return _Object; }

private:
    VORBaseUnknown* _Object = nullptr;
};

#endif
