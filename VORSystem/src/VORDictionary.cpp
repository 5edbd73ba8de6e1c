#include "VORDictionary.h"

#include <algorithm>
#include <vector>

namespace
{

struct Entry {
    GUID classId;
    GUID kind;
    VORMetaClass* object;
};

// Built on first use: the static objects that fill it may be constructed in any order.
std::vector<Entry>& Entries()
{
    static std::vector<Entry> entries;
    return entries;
}

Entry* Find(const GUID& iClass, const GUID& iKind)
{
    auto& entries = Entries();
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) {
        return entry.classId == iClass && entry.kind == iKind;
    });
    return found == entries.end() ? nullptr : &*found;
}

void Enter(const GUID& iClass, const GUID& iKind, VORMetaClass* iObject)
{
    if (Entry* const entry = Find(iClass, iKind))
        entry->object = iObject;
    else
        Entries().push_back({iClass, iKind, iObject});
}

} // namespace

void AddDictionary(const GUID& iClass, const GUID& iKind, const char*, const char*, const char*,
                   VORMetaClass* iObject, void*, void*, int, int, int, void*)
{
    Enter(iClass, iKind, iObject);
}

VORFillDictionary::VORFillDictionary(const GUID& iClass, const GUID& iKind, VORMetaClass* iObject,
                                     void*)
{
    Enter(iClass, iKind, iObject);
}

VORMetaClass* VORFindInDictionary(const GUID& iClass)
{
    const Entry* const entry = Find(iClass, CLSID_VORMetaClass);
    return entry ? entry->object : nullptr;
}
