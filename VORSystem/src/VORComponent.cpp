#include "VORComponent.h"

#include <map>
#include <mutex>
#include <string>

namespace
{

struct Registry {
    std::mutex mutex;
    std::map<std::string, VORComponentFactory, std::less<>> factories;
};

// Never destroyed: static objects of other libraries may end later.
Registry& Components()
{
    static Registry& registry = *new Registry;
    return registry;
}

// Null for a name without a factory.
VORComponentFactory FactoryOf(const char* iName)
{
    Registry& registry = Components();
    const std::lock_guard<std::mutex> lock(registry.mutex);
    const auto found = registry.factories.find(iName);
    return found == registry.factories.end() ? nullptr : found->second;
}

} // namespace

void VORRegisterComponent(const char* iName, VORComponentFactory iFactory)
{
    if (!iName)
        return;
    Registry& registry = Components();
    const std::lock_guard<std::mutex> lock(registry.mutex);
    if (iFactory)
        registry.factories[iName] = iFactory;
    else
        registry.factories.erase(iName);
}

VORStatus VORInstantiateComponent(const char* iName, const GUID& iId, void** oInterface)
{
    if (!oInterface)
        return VOR_E_INVALIDARG;
    *oInterface = nullptr;
    const VORComponentFactory factory = iName ? FactoryOf(iName) : nullptr;
    VORBaseUnknown* const component = factory ? factory() : nullptr;
    if (!component)
        return VOR_E_FAIL;
    const VORStatus status = component->QueryInterface(iId, oInterface);
    component->Release();
    if (status < 0)
        *oInterface = nullptr; // whatever the component left there
    return status;
}
