#include "VORComponent.h"

#include <map>
#include <string>

namespace
{

using FactoryMap = std::map<std::string, VORComponentFactory>;

FactoryMap& Factories()
{
    static FactoryMap factories;
    return factories;
}

} // namespace

void VORRegisterComponent(const char* iName, VORComponentFactory iFactory)
{
    if (iFactory)
        Factories()[iName] = iFactory;
    else
        Factories().erase(iName);
}

VORStatus VORInstantiateComponent(const char* iName, const GUID& iId, void** oInterface)
{
    *oInterface = nullptr;
    const auto found = Factories().find(iName);
    VORBaseUnknown* const component = found == Factories().end() ? nullptr : found->second();
    if (!component)
        return VOR_E_FAIL;
    const VORStatus status = component->QueryInterface(iId, oInterface);
    component->Release();
    if (status < 0)
        *oInterface = nullptr; // whatever the component left there
    return status;
}
