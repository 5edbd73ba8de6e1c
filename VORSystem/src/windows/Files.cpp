#include <algorithm>
#include <cwchar>
#include <string>
#include <utility>

#include "Status.h"
#include "Text.h"
#include "VORSystemLayer.h"

namespace VORLayer
{

namespace
{

// Nobody is kept from reading, renaming or deleting what is open here.
constexpr DWORD Shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD NoAccess = 0; // enough to ask what it is

bool BeginsWith(const std::wstring& iText, const wchar_t* iBeginning)
{
    return iText.compare(0, std::wcslen(iBeginning), iBeginning) == 0;
}

// A path as wide calls take it: whole and with '\' alone, in the form that may be longer than
// MAX_PATH. Empty, which every call refuses, when it is empty or not UTF-8.
std::wstring SystemPath(const char* iPath)
{
    std::wstring path = Wide(iPath);
    if (path.size() == 2 && path[1] == L':')
        path += L'\\'; // the root of the drive, whatever directory the process has there
    const std::wstring full = TextOfCall([&](wchar_t* oText, DWORD iSize) {
        return GetFullPathNameW(path.c_str(), iSize, oText, nullptr);
    });
    if (full.empty() || BeginsWith(full, L"\\\\?\\") || BeginsWith(full, L"\\\\.\\"))
        return full;
    return BeginsWith(full, L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

HANDLE HandleOf(File iFile)
{
    return reinterpret_cast<HANDLE>(iFile);
}

/// What a name leads to, a directory too, opened to look at it.
class Entry
{
public:
    Entry(const std::wstring& iPath, DWORD iAccess, DWORD iFlags = 0)
        : _Handle(CreateFileW(iPath.c_str(), iAccess, Shared, nullptr, OPEN_EXISTING,
                              FILE_FLAG_BACKUP_SEMANTICS | iFlags, nullptr))
    {
    }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
    ~Entry()
    {
        if (IsThere())
            CloseHandle(_Handle);
    }

    bool IsThere() const { return _Handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return _Handle; }
    HANDLE Release() { return std::exchange(_Handle, INVALID_HANDLE_VALUE); }

    bool IsOnDisk() const { return GetFileType(_Handle) == FILE_TYPE_DISK; }

    BY_HANDLE_FILE_INFORMATION Information() const
    {
        BY_HANDLE_FILE_INFORMATION information = {};
        GetFileInformationByHandle(_Handle, &information);
        return information;
    }

    bool IsDirectory() const
    {
        return (Information().dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    }

private:
    HANDLE _Handle;
};

bool IsLink(const std::wstring& iPath)
{
    const Entry entry(iPath, NoAccess, FILE_FLAG_OPEN_REPARSE_POINT);
    FILE_ATTRIBUTE_TAG_INFO information = {};
    return GetFileInformationByHandleEx(entry.Get(), FileAttributeTagInfo, &information,
                                        sizeof information) &&
           IsReparseTagNameSurrogate(information.ReparseTag);
}

bool IsSame(const std::wstring& iLeft, const std::wstring& iRight)
{
    const Entry left(iLeft, NoAccess);
    const Entry right(iRight, NoAccess);
    const BY_HANDLE_FILE_INFORMATION one = left.Information();
    const BY_HANDLE_FILE_INFORMATION other = right.Information();
    return left.IsThere() && right.IsThere() &&
           one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
           one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
}

std::wstring DirectoryOf(const std::wstring& iPath)
{
    return iPath.substr(0, iPath.rfind(L'\\') + 1);
}

// As the directory has it, by whatever case or short form it is called; empty when there is none.
std::wstring NameInDirectory(const std::wstring& iPath)
{
    WIN32_FIND_DATAW entry = {};
    if (iPath.find_first_of(L"*?", 4) != iPath.npos) // behind the beginning of a whole path
        return std::wstring();
    const HANDLE search = FindFirstFileW(iPath.c_str(), &entry);
    if (search != INVALID_HANDLE_VALUE)
        FindClose(search);
    return entry.cFileName;
}

// Elsewhere a file that nobody may write can be deleted and replaced all the same: what counts is
// the directory.
bool TakeReadOnlyMark(const std::wstring& iPath)
{
    if (GetLastError() != ERROR_ACCESS_DENIED)
        return false;
    const DWORD attributes = GetFileAttributesW(iPath.c_str());
    constexpr DWORD mask = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & mask) == FILE_ATTRIBUTE_READONLY &&
           SetFileAttributesW(iPath.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
}

template <typename Call>
VORStatus Replace(const std::wstring& iPath, Call iCall)
{
    return StatusOfCall(iCall() || (TakeReadOnlyMark(iPath) && iCall()));
}

VORStatus Open(const char* iPath, DWORD iAccess, DWORD iDisposition, File& oFile)
{
    const HANDLE file = CreateFileW(SystemPath(iPath).c_str(), iAccess, Shared, nullptr,
                                    iDisposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    oFile = reinterpret_cast<File>(file);
    return StatusOfCall(file != INVALID_HANDLE_VALUE);
}

// At most what one call can be asked for.
DWORD Portion(std::size_t iLength)
{
    return static_cast<DWORD>(std::min(iLength, std::size_t{1} << 30));
}

} // namespace

VORStatus OpenToRead(const char* iPath, File& oFile)
{
    return Open(iPath, GENERIC_READ, OPEN_EXISTING, oFile);
}

VORStatus OpenToWrite(const char* iPath, File& oFile)
{
    VORStatus status = Open(iPath, GENERIC_WRITE, CREATE_ALWAYS, oFile);
    if (status == VOR_E_ACCESS_DENIED && // as for a hidden file, which would lose that mark
        Open(iPath, GENERIC_WRITE, TRUNCATE_EXISTING, oFile) >= 0)
        status = VOR_S_OK;
    // A directory in its place is refused in the same way, but is a failure of another kind.
    return status == VOR_E_ACCESS_DENIED && KindOf(iPath) == VORDirectory ? VOR_E_FAIL : status;
}

VORStatus Read(File iFile, void* oBytes, std::size_t iRoom, std::size_t& oLength) noexcept
{
    DWORD length = 0;
    const BOOL done = ReadFile(HandleOf(iFile), oBytes, Portion(iRoom), &length, nullptr);
    oLength = length;
    return StatusOfCall(done);
}

VORStatus Write(File iFile, const void* iBytes, std::size_t iLength) noexcept
{
    const char* at = static_cast<const char*>(iBytes);
    while (iLength > 0) {
        DWORD length = 0;
        if (!WriteFile(HandleOf(iFile), at, Portion(iLength), &length, nullptr))
            return StatusOf(GetLastError());
        at += length;
        iLength -= length;
    }
    return VOR_S_OK;
}

VORStatus Sync(File iFile, const char*)
{
    return StatusOfCall(FlushFileBuffers(HandleOf(iFile))); // writes the name as well
}

VORStatus Close(File iFile) noexcept
{
    return StatusOfCall(CloseHandle(HandleOf(iFile)));
}

VORStatus Access(const char* iPath, int iMode)
{
    // Of a directory these are the rights to list it and to add a file.
    const DWORD read = iMode & 4 ? FILE_READ_DATA : NoAccess;
    const DWORD write = iMode & 2 ? FILE_WRITE_DATA : NoAccess;
    return StatusOfCall(Entry(SystemPath(iPath), read | write).IsThere());
}

VORStatus Delete(const char* iPath)
{
    const std::wstring path = SystemPath(iPath);
    return Replace(path, [&] { return DeleteFileW(path.c_str()); });
}

VORStatus Rename(const char* iFrom, const char* iTo)
{
    const std::wstring from = SystemPath(iFrom);
    const std::wstring to = SystemPath(iTo);
    return Replace(
        to, [&] { return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING); });
}

VORFileKind KindOf(const char* iPath)
{
    const std::wstring path = SystemPath(iPath);
    const Entry file(path, NoAccess);
    if (!file.IsThere())
        return VORNoFile;
    if (!file.IsOnDisk())
        return VOROtherFile;
    if (file.IsDirectory())
        return VORDirectory;
    return IsLink(path) ? VORLinkToFile : VORRegularFile;
}

bool IsSameFile(const char* iLeft, const char* iRight)
{
    return IsSame(SystemPath(iLeft), SystemPath(iRight));
}

bool IsSameEntry(const char* iLeft, const char* iRight)
{
    const std::wstring left = SystemPath(iLeft);
    const std::wstring right = SystemPath(iRight);
    const std::wstring name = NameInDirectory(left);
    return !name.empty() && name == NameInDirectory(right) &&
           IsSame(DirectoryOf(left), DirectoryOf(right));
}

VORStatus CreateDirectory(const char* iPath)
{
    return StatusOfCall(CreateDirectoryW(SystemPath(iPath).c_str(), nullptr));
}

VORStatus OpenDirectory(const char* iPath, void*& oDirectory)
{
    Entry directory(SystemPath(iPath), FILE_LIST_DIRECTORY);
    if (directory.IsThere() && !directory.IsDirectory())
        return VOR_E_FILE_NOT_FOUND;
    const VORStatus status = StatusOfCall(directory.IsThere());
    oDirectory = directory.Release();
    return status;
}

VORStatus CloseDirectory(void* ioDirectory)
{
    return StatusOfCall(CloseHandle(ioDirectory));
}

const char* const Separators = "/\\";
const char* const NameBegins = "/\\:"; // in "C:name", too
const char ListSeparator = ';';

} // namespace VORLayer
