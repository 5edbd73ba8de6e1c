#ifndef VORBaseUnknown_h
#define VORBaseUnknown_h

#include "VORGuid.h"
#include "VORMetaClass.h"
#include "VORStatus.h"

class IUnknown
{
public:
    virtual VORStatus QueryInterface(const GUID& iId, void** oInterface) = 0;
    virtual unsigned int AddRef() = 0;
    virtual unsigned int Release() = 0;

protected:
    ~IUnknown() = default;
};

class VORBaseUnknown : public IUnknown
{
public:
    VORBaseUnknown() = default;
    VORBaseUnknown(const VORBaseUnknown&) = delete;
    VORBaseUnknown& operator=(const VORBaseUnknown&) = delete;
    virtual ~VORBaseUnknown() = default;

    static VORMetaClass* MetaObject();
    virtual VORMetaClass* GetMetaObject() const { return MetaObject(); }

    VORStatus QueryInterface(const GUID& iId, void** oInterface) override;
    unsigned int AddRef() override { return ++_References; }
    unsigned int Release() override;

private:
    unsigned int _References = 1;
};

class VORBaseUnknown_var
{
public:
    VORBaseUnknown_var() = default;
    VORBaseUnknown_var(const VORBaseUnknown_var&) = delete;
    VORBaseUnknown_var& operator=(const VORBaseUnknown_var&) = delete;
    ~VORBaseUnknown_var();

    VORBaseUnknown* CastTo(IUnknown* iObject, const GUID& iId);
    VORBaseUnknown* Get() const { return _Object; }

private:
    VORBaseUnknown* _Object = nullptr;
};

#endif
