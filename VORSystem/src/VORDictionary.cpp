#include "VORDictionary.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace
{

struct Entry {
    GUID classId;
    GUID kind;
    VORMetaClass* object;
};

struct Dictionary {
    std::mutex mutex;
    std::vector<Entry> entries;
};

// Built on first use, as the static objects that fill it may be constructed in any order, and never
// destroyed, as others may end later.
Dictionary& TheDictionary()
{
    static Dictionary& dictionary = *new Dictionary;
    return dictionary;
}

Entry* Find(std::vector<Entry>& ioEntries, const GUID& iClass, const GUID& iKind)
{
    const auto found = std::find_if(ioEntries.begin(), ioEntries.end(), [&](const Entry& entry) {
        return entry.classId == iClass && entry.kind == iKind;
    });
    return found == ioEntries.end() ? nullptr : &*found;
}

void Enter(const GUID& iClass, const GUID& iKind, VORMetaClass* iObject)
{
    Dictionary& dictionary = TheDictionary();
    const std::lock_guard<std::mutex> lock(dictionary.mutex);
    if (Entry* const entry = Find(dictionary.entries, iClass, iKind))
        entry->object = iObject;
    else
        dictionary.entries.push_back({iClass, iKind, iObject});
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
    Dictionary& dictionary = TheDictionary();
    const std::lock_guard<std::mutex> lock(dictionary.mutex);
    const Entry* const entry = Find(dictionary.entries, iClass, CLSID_VORMetaClass);
    return entry ? entry->object : nullptr;
}
