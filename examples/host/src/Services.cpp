#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "VORComponent.h"
#include "VOREnvironment.h"
#include "VORFatalError.h"

const GUID CLSID_VORMetaClass = {1, 0, 0, {}};

namespace
{

const GUID RootId = {2, 0, 0, {}};
VORBaseUnknown* Settings = nullptr;

} // namespace

VORMetaClass* VORBaseUnknown::MetaObject()
{
    static VORMetaClass metaObject(&RootId, "VORBaseUnknown", nullptr, nullptr,
                                   VORImplementationKind);
    return &metaObject;
}

VORStatus VORBaseUnknown::QueryInterface(const GUID& iId, void** oInterface)
{
    const bool granted = GetMetaObject()->IsAKindOf(iId);
    *oInterface = granted ? this : nullptr;
    if (!granted)
        return VOR_E_FAIL;
    AddRef();
    return VOR_S_OK;
}

unsigned int VORBaseUnknown::Release()
{
    const unsigned int left = --_References;
    if (left == 0)
        delete this;
    return left;
}

VORBaseUnknown_var::~VORBaseUnknown_var()
{
    if (_Object)
        _Object->Release();
}

VORBaseUnknown* VORBaseUnknown_var::CastTo(IUnknown* iObject, const GUID& iId)
{
    void* found = nullptr;
    if (iObject)
        iObject->QueryInterface(iId, &found);
    if (_Object)
        _Object->Release();
    return _Object = static_cast<VORBaseUnknown*>(found);
}

void VORSetReportSettings(VORBaseUnknown* iSettings)
{
    Settings = iSettings;
}

VORStatus VORInstantiateComponent(const char* iName, const GUID& iId, void** oInterface)
{
    *oInterface = nullptr;
    const bool isKnown = std::strcmp(iName, "VORKTRReportingSettingCtrl") == 0 && Settings;
    return isKnown ? Settings->QueryInterface(iId, oInterface) : VOR_E_FAIL;
}

const char* VORGetEnv(const char* iName)
{
    return std::getenv(iName);
}

void VORGetCurrentTime(unsigned long* oSeconds, unsigned long* oMicroseconds)
{
    using namespace std::chrono;
    const auto now = duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
    if (oSeconds)
        *oSeconds = static_cast<unsigned long>(now / 1000000);
    if (oMicroseconds)
        *oMicroseconds = static_cast<unsigned long>(now % 1000000);
}

int VORRunCommand(const VORUnicodeString&)
{
    return -1; // there are no programs on this host's disk
}

void VORFatalError(const char* iKey, const char*, const char*, const char*, const char* iPath,
                   int iLine)
{
    std::fprintf(stderr, "%s (%s, line %d)\n", iKey, iPath, iLine);
    std::abort();
}
