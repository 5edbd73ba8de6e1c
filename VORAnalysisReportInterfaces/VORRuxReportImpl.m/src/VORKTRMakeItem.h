#ifndef VORKTRMakeItem_h
#define VORKTRMakeItem_h

#include <memory>
#include <new>

#include "VORKTRReportingObj.h"

/// Makes an item of a list or table; null when there is no memory for it.
template <typename ItemClass, typename... Arguments>
std::unique_ptr<VORKTRReportingObj> MakeItem(const Arguments&... iArguments)
{
    try {
        return std::make_unique<ItemClass>(iArguments...);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

#endif
