#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

#include "VORFile.h"
#include "VORHostDisk.h"
#include "VORPath.h"

namespace
{

using Bytes = std::shared_ptr<std::string>; // shared by a name and the handles that write

struct Handle {
    Bytes bytes;
    VORStatus status = VOR_S_OK; // of all writes up to now
    bool isOpen = false;
};

struct Disk {
    std::map<std::string, Bytes> entries; // a directory has no bytes
    std::vector<Handle> handles;          // that of number n at n - 1
    std::vector<unsigned int> closed;     // the handle closed last is opened first
    int operations = 0;
    int failing = 0; // the operation that fails; 0 for none
    bool isForGood = false;
    VORStatus failure = VOR_S_OK;
};

// Never destroyed: a report that the application holds as a static object closes its files after
// main.
Disk& TheDisk()
{
    static Disk& disk = *new Disk;
    return disk;
}

// Counts an operation and returns what became of it.
VORStatus Count()
{
    Disk& disk = TheDisk();
    const int number = ++disk.operations;
    const bool fails =
        disk.failing > 0 && (number == disk.failing || (disk.isForGood && number > disk.failing));
    return fails ? disk.failure : VOR_S_OK;
}

// Without doubled separators and one at the end. The directory of all is the empty name.
std::string Key(const VORUnicodeString& iPath)
{
    std::string key;
    for (const char* at = iPath.ConvertToChar(); *at; ++at) {
        if (*at != '/' || key.empty() || key.back() != '/')
            key += *at;
    }
    if (!key.empty() && key.back() == '/')
        key.pop_back();
    return key;
}

VORFileKind KindOf(const std::string& iKey)
{
    const auto& entries = TheDisk().entries;
    const auto found = entries.find(iKey);
    if (iKey.empty() || (found != entries.end() && !found->second))
        return VORDirectory;
    return found == entries.end() ? VORNoFile : VORRegularFile;
}

bool IsInDirectory(const std::string& iKey)
{
    const std::size_t cut = iKey.rfind('/');
    return KindOf(cut == std::string::npos ? "" : iKey.substr(0, cut)) == VORDirectory;
}

// May a file of this name be written?
VORStatus CheckTarget(const std::string& iKey)
{
    if (!IsInDirectory(iKey))
        return VOR_E_FILE_NOT_FOUND;
    return KindOf(iKey) == VORDirectory ? VOR_E_ACCESS_DENIED : VOR_S_OK;
}

VORStatus CheckBoth(const std::string& iSource, const std::string& iTarget)
{
    return KindOf(iSource) == VORRegularFile ? CheckTarget(iTarget) : VOR_E_FILE_NOT_FOUND;
}

// Makes sure that the next handle needs no memory, nor its end.
void Reserve(Disk& ioDisk)
{
    if (!ioDisk.closed.empty())
        return;
    ioDisk.closed.reserve(ioDisk.handles.size() + 1);
    ioDisk.handles.emplace_back();
    ioDisk.closed.push_back(static_cast<unsigned int>(ioDisk.handles.size()));
}

unsigned int Open(Disk& ioDisk, Bytes ioBytes, VORStatus iStatus)
{
    const unsigned int number = ioDisk.closed.back();
    ioDisk.closed.pop_back();
    ioDisk.handles[number - 1] = {std::move(ioBytes), iStatus, true};
    return number;
}

Handle* FindOpen(unsigned int iFile)
{
    auto& handles = TheDisk().handles;
    const bool isOpen = iFile > 0 && iFile <= handles.size() && handles[iFile - 1].isOpen;
    return isOpen ? &handles[iFile - 1] : nullptr;
}

} // namespace

std::map<std::string, std::string> VORHostDisk::ReadAll()
{
    std::map<std::string, std::string> all;
    for (const auto& [name, bytes] : TheDisk().entries)
        all.emplace(bytes ? name : name + '/', bytes ? *bytes : std::string());
    return all;
}

void VORHostDisk::PutFile(const std::string& iPath, const std::string& iBytes)
{
    const std::string key = Key(iPath.c_str());
    for (std::size_t cut = key.find('/'); cut != std::string::npos; cut = key.find('/', cut + 1))
        TheDisk().entries.emplace(key.substr(0, cut), nullptr);
    TheDisk().entries[key] = std::make_shared<std::string>(iBytes);
}

void VORHostDisk::Clear()
{
    TheDisk().entries.clear();
    FailAt(0, false);
}

void VORHostDisk::FailAt(int iOperation, bool iForGood, VORStatus iStatus)
{
    Disk& disk = TheDisk();
    disk.operations = 0;
    disk.failing = iOperation;
    disk.isForGood = iForGood;
    disk.failure = iStatus;
}

int VORHostDisk::GetOperationCount()
{
    return TheDisk().operations;
}

int VORHostDisk::GetOpenFileCount()
{
    return static_cast<int>(TheDisk().handles.size() - TheDisk().closed.size());
}

VORStatus VORFOpen(const VORUnicodeString& iPath, const char* iMode, unsigned int& oFile)
{
    oFile = 0;
    if (std::strcmp(iMode, "w") != 0)
        return VOR_E_INVALIDARG;
    const std::string key = Key(iPath);
    VORStatus status = Count();
    if (status >= 0)
        status = CheckTarget(key);
    if (status < 0)
        return status;
    Disk& disk = TheDisk();
    const auto bytes = std::make_shared<std::string>();
    Reserve(disk);
    disk.entries[key] = bytes;
    oFile = Open(disk, bytes, VOR_S_OK);
    return VOR_S_OK;
}

VORStatus VORFReserve(unsigned int& oFile, VORStatus iStatus) noexcept
try {
    oFile = 0;
    Reserve(TheDisk());
    oFile = Open(TheDisk(), nullptr, iStatus);
    return VOR_S_OK;
} catch (const std::bad_alloc&) {
    return VOR_E_OUT_OF_MEMORY;
}

VORStatus VORFWrite(unsigned int iFile, const void* iBytes, std::size_t iLength,
                    std::size_t* oWritten) noexcept
{
    Handle* const handle = FindOpen(iFile);
    VORStatus status = VOR_E_INVALID_HANDLE;
    if (handle) {
        VORStatus& kept = handle->status;
        if (kept >= 0)
            kept = Count();
        try {
            if (kept >= 0)
                handle->bytes->append(static_cast<const char*>(iBytes), iLength);
        } catch (const std::bad_alloc&) {
            kept = VOR_E_OUT_OF_MEMORY;
        }
        status = kept;
    }
    if (oWritten)
        *oWritten = status < 0 ? 0 : iLength;
    return status;
}

VORStatus VORFClose(unsigned int iFile) noexcept
{
    Handle* const handle = FindOpen(iFile);
    if (!handle)
        return VOR_E_INVALID_HANDLE;
    const VORStatus status = handle->status < 0 ? handle->status : Count();
    *handle = Handle();
    TheDisk().closed.push_back(iFile); // has room since the file was opened
    return status;
}

VORStatus VORFCopy(const VORUnicodeString& iSource, const VORUnicodeString& iTarget, int iReplace)
{
    const std::string source = Key(iSource);
    const std::string target = Key(iTarget);
    VORStatus status = Count();
    if (status >= 0)
        status = CheckBoth(source, target);
    if (status >= 0 && !iReplace && KindOf(target) != VORNoFile)
        status = VOR_E_ACCESS_DENIED;
    if (status >= 0)
        VORHostDisk::PutFile(target, *TheDisk().entries[source]);
    return status;
}

VORStatus VORFTransfer(const VORUnicodeString& iSource, const VORUnicodeString& iTarget,
                       VORStatus& oArrival)
{
    const std::string source = Key(iSource);
    const std::string target = Key(iTarget);
    oArrival = Count();
    if (oArrival >= 0)
        oArrival = CheckBoth(source, target);
    if (oArrival < 0)
        return oArrival;
    const std::string bytes = *TheDisk().entries[source];
    oArrival = Count();
    VORHostDisk::PutFile(target, oArrival < 0 ? bytes.substr(0, bytes.size() / 2) : bytes);
    return VOR_S_OK;
}

VORStatus VORFileAccess(const VORUnicodeString& iPath, int, int)
{
    const VORStatus status = Count();
    if (status < 0)
        return status;
    return KindOf(Key(iPath)) == VORNoFile ? VOR_E_FILE_NOT_FOUND : VOR_S_OK;
}

VORStatus VORDeleteFile(const VORUnicodeString& iPath)
{
    const std::string key = Key(iPath);
    const VORStatus status = Count();
    if (status < 0)
        return status;
    if (KindOf(key) != VORRegularFile)
        return VOR_E_FILE_NOT_FOUND;
    TheDisk().entries.erase(key);
    return VOR_S_OK;
}

VORStatus VORRenameFile(const VORUnicodeString& iFrom, const VORUnicodeString& iTo)
{
    const std::string from = Key(iFrom);
    const std::string to = Key(iTo);
    VORStatus status = Count();
    if (status >= 0)
        status = CheckBoth(from, to);
    if (status < 0 || from == to)
        return status;
    auto& entries = TheDisk().entries;
    entries[to] = entries[from];
    entries.erase(from);
    return VOR_S_OK;
}

VORFileKind VORGetFileKind(const VORUnicodeString& iPath)
{
    return Count() < 0 ? VORNoFile : KindOf(Key(iPath));
}

bool VORIsSameEntry(const VORUnicodeString& iLeft, const VORUnicodeString& iRight)
{
    return KindOf(Key(iLeft)) != VORNoFile && Key(iLeft) == Key(iRight);
}

VORStatus VORFindPath(const char* iName, const char* iList, VORUnicodeString& oPath)
{
    VORStatus status = Count();
    oPath = VORUnicodeString();
    std::string_view rest = iList ? iList : "";
    while (status >= 0 && !rest.empty()) {
        const std::string directory(rest.substr(0, rest.find(':')));
        rest.remove_prefix(std::min(rest.size(), directory.size() + 1));
        VORUnicodeString path;
        if (VORMakePath(directory.c_str(), iName, path) >= 0 &&
            KindOf(Key(path)) == VORRegularFile) {
            oPath = path;
            return VOR_S_OK;
        }
    }
    return status < 0 ? status : VOR_E_FILE_NOT_FOUND;
}

VORStatus VOROpenDirectory(const VORUnicodeString& iPath, VORDIR*)
{
    const VORStatus status = Count();
    if (status < 0)
        return status;
    return KindOf(Key(iPath)) == VORDirectory ? VOR_S_OK : VOR_E_FILE_NOT_FOUND;
}

VORStatus VORCloseDirectory(VORDIR*)
{
    return Count();
}

VORStatus VORCreateDirectory(const VORUnicodeString& iPath)
{
    const std::string key = Key(iPath);
    VORStatus status = Count();
    if (status >= 0)
        status = CheckTarget(key);
    if (status >= 0 && KindOf(key) != VORNoFile)
        status = VOR_E_ACCESS_DENIED;
    if (status >= 0)
        TheDisk().entries.emplace(key, nullptr);
    return status;
}
