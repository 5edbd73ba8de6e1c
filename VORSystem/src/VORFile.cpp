#include "VORFile.h"

#include <atomic>
#include <cstring>
#include <string>
#include <utility>

#include "VORFileTable.h"
#include "VORSystemLayer.h"

namespace
{

/// A file of the system, closed at its end.
class SystemFile
{
public:
    SystemFile() = default;
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;
    ~SystemFile() { Close(); }

    VORStatus OpenToRead(const char* iPath) { return VORLayer::OpenToRead(iPath, _File); }
    VORStatus OpenToWrite(const char* iPath) { return VORLayer::OpenToWrite(iPath, _File); }
    VORLayer::File Get() const { return _File; }
    VORLayer::File Release() { return std::exchange(_File, VORLayer::NoFile); }

    VORStatus Close() { return _File == VORLayer::NoFile ? VOR_S_OK : VORLayer::Close(Release()); }

private:
    VORLayer::File _File = VORLayer::NoFile;
};

/// A handle taken from the table, given back at its end unless somebody has it by then.
class FreeHandle
{
public:
    FreeHandle() : _Handle(VORFileTable::Take()) {}
    FreeHandle(const FreeHandle&) = delete;
    FreeHandle& operator=(const FreeHandle&) = delete;
    ~FreeHandle()
    {
        if (_Handle != 0)
            VORFileTable::Free(_Handle);
    }

    unsigned int Get() const { return _Handle; }
    unsigned int Release() { return std::exchange(_Handle, 0); }

private:
    unsigned int _Handle;
};

VOROutputFile* FindOpen(unsigned int iFile)
{
    VOROutputFile* const file = VORFileTable::PlaceOf(iFile);
    return file && file->IsOpen() ? file : nullptr;
}

VORStatus CopyBytes(VORLayer::File iSource, VORLayer::File iTarget)
{
    char block[16 * 1024];
    for (;;) {
        std::size_t length = 0;
        const VORStatus read = VORLayer::Read(iSource, block, sizeof block, length);
        if (read < 0 || length == 0)
            return read;
        const VORStatus written = VORLayer::Write(iTarget, block, length);
        if (written < 0)
            return written;
    }
}

VORStatus CopyFile(const char* iSource, const char* iTarget)
{
    SystemFile source;
    SystemFile target;
    VORStatus status = source.OpenToRead(iSource);
    if (status >= 0)
        status = target.OpenToWrite(iTarget);
    if (status >= 0)
        status = CopyBytes(source.Get(), target.Get());
    const VORStatus closed = target.Close();
    return status < 0 ? status : closed;
}

bool IsSpecial(VORFileKind iKind)
{
    return iKind == VORDirectory || iKind == VOROtherFile;
}

// In the directory of the target, whose own name may be as long as names can be. No two copies have
// the same name at a time among processes that the system tells apart by number; two machines or
// containers that share a directory may come to it.
std::string PartialName(const VORUnicodeString& iTarget)
{
    static std::atomic<unsigned int> count{0};
    const std::string target = iTarget.ToString();
    const std::size_t end = target.find_last_of(VORLayer::NameBegins) + 1; // 0 without a directory
    return target.substr(0, end) + ".part" + std::to_string(VORLayer::ProcessId()) + '.' +
           std::to_string(++count);
}

} // namespace

VORStatus VORFOpen(const VORUnicodeString& iPath, const char* iMode, unsigned int& oFile)
{
    oFile = 0;
    if (!iMode || std::strcmp(iMode, "w") != 0)
        return VOR_E_INVALIDARG;
    FreeHandle handle;
    if (handle.Get() == 0)
        return VOR_E_TOO_MANY_FILES;
    const VORStatus status = VORFileTable::PlaceOf(handle.Get())->Open(iPath.ConvertToChar());
    if (status >= 0)
        oFile = handle.Release();
    return status;
}

VORStatus VORFReserve(unsigned int& oFile, VORStatus iStatus) noexcept
{
    oFile = iStatus < 0 ? VORFileTable::Take() : 0;
    if (iStatus >= 0)
        return VOR_E_INVALIDARG;
    if (oFile == 0)
        return VOR_E_TOO_MANY_FILES;
    VORFileTable::PlaceOf(oFile)->Reserve(iStatus);
    return VOR_S_OK;
}

VORStatus VORFWrite(unsigned int iFile, const void* iBytes, std::size_t iLength,
                    std::size_t* oWritten) noexcept
{
    if (oWritten)
        *oWritten = 0;
    if (!iBytes && iLength > 0)
        return VOR_E_INVALIDARG;
    VOROutputFile* const file = FindOpen(iFile);
    const VORStatus status = file ? file->Write(iBytes, iLength) : VOR_E_INVALID_HANDLE;
    if (oWritten && status >= 0)
        *oWritten = iLength;
    return status;
}

VORStatus VORFClose(unsigned int iFile) noexcept
{
    VOROutputFile* const file = FindOpen(iFile);
    if (!file)
        return VOR_E_INVALID_HANDLE;
    const VORStatus status = file->Close();
    VORFileTable::Free(iFile);
    return status;
}

VORStatus VORFCopy(const VORUnicodeString& iSource, const VORUnicodeString& iTarget, int iReplace)
{
    const char* const source = iSource.ConvertToChar();
    const char* const target = iTarget.ConvertToChar();
    if (VORLayer::IsSameFile(source, target))
        return VOR_S_OK;
    // Nothing but a file is replaced: a rename would put an end to a device, too.
    const VORFileKind kind = VORLayer::KindOf(target);
    if (IsSpecial(VORLayer::KindOf(source)) || IsSpecial(kind))
        return VOR_E_ACCESS_DENIED;
    if (kind != VORNoFile && !iReplace)
        return VOR_E_FILE_EXISTS;
    // Under another name first, so that the target is never seen half-made.
    const std::string partial = PartialName(iTarget);
    VORStatus status = CopyFile(source, partial.c_str());
    if (status >= 0)
        status = VORLayer::Rename(partial.c_str(), target);
    if (status < 0)
        VORLayer::Delete(partial.c_str());
    return status;
}

VORStatus VORFTransfer(const VORUnicodeString& iSource, const VORUnicodeString& iTarget,
                       VORStatus& oArrival)
{
    SystemFile source;
    SystemFile target;
    const bool isSame = VORLayer::IsSameFile(iSource.ConvertToChar(), iTarget.ConvertToChar());
    oArrival = isSame ? VOR_E_INVALIDARG : source.OpenToRead(iSource.ConvertToChar());
    if (oArrival >= 0)
        oArrival = target.OpenToWrite(iTarget.ConvertToChar());
    if (oArrival < 0)
        return oArrival;
    oArrival = CopyBytes(source.Get(), target.Get());
    if (oArrival >= 0)
        oArrival = VORLayer::Sync(target.Get(), iTarget.ConvertToChar());
    const VORStatus closed = target.Close();
    if (oArrival >= 0)
        oArrival = closed;
    return VOR_S_OK;
}

VORStatus VORFileAccess(const VORUnicodeString& iPath, int iMode, int)
{
    return VORLayer::Access(iPath.ConvertToChar(), iMode);
}

VORStatus VORDeleteFile(const VORUnicodeString& iPath)
{
    return VORLayer::Delete(iPath.ConvertToChar());
}

VORStatus VORRenameFile(const VORUnicodeString& iFrom, const VORUnicodeString& iTo)
{
    return VORLayer::Rename(iFrom.ConvertToChar(), iTo.ConvertToChar());
}

VORFileKind VORGetFileKind(const VORUnicodeString& iPath)
{
    return VORLayer::KindOf(iPath.ConvertToChar());
}

bool VORIsSameEntry(const VORUnicodeString& iLeft, const VORUnicodeString& iRight)
{
    return VORLayer::IsSameEntry(iLeft.ConvertToChar(), iRight.ConvertToChar());
}
