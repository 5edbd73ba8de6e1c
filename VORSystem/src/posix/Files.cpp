#include <cstdio>
#include <cstring>
#include <string>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Status.h"
#include "VORSystemLayer.h"

namespace VORLayer
{

namespace
{

constexpr int PermissionsOfFiles = 0666; // less what the user's mask takes away
constexpr int PermissionsOfDirectories = 0777;

VORStatus Open(const char* iPath, int iFlags, File& oFile)
{
    const int file = ::open(iPath, iFlags | O_CLOEXEC, PermissionsOfFiles);
    oFile = file;
    return StatusOfCall(file);
}

// Calls again when a signal came between.
template <typename Call>
auto Repeat(Call&& iCall)
{
    auto result = iCall();
    while (result < 0 && errno == EINTR)
        result = iCall();
    return result;
}

int Descriptor(File iFile)
{
    return static_cast<int>(iFile);
}

const char* NameIn(const char* iPath)
{
    const char* const separator = std::strrchr(iPath, '/');
    return separator ? separator + 1 : iPath;
}

std::string DirectoryOf(const char* iPath)
{
    return std::string(iPath, NameIn(iPath)) + '.';
}

} // namespace

VORStatus OpenToRead(const char* iPath, File& oFile)
{
    return Open(iPath, O_RDONLY, oFile);
}

VORStatus OpenToWrite(const char* iPath, File& oFile)
{
    return Open(iPath, O_WRONLY | O_CREAT | O_TRUNC, oFile);
}

VORStatus Read(File iFile, void* oBytes, std::size_t iRoom, std::size_t& oLength) noexcept
{
    const ssize_t length = Repeat([&] { return ::read(Descriptor(iFile), oBytes, iRoom); });
    oLength = length < 0 ? 0 : static_cast<std::size_t>(length);
    return StatusOfCall(length);
}

VORStatus Write(File iFile, const void* iBytes, std::size_t iLength) noexcept
{
    const char* at = static_cast<const char*>(iBytes);
    while (iLength > 0) {
        const ssize_t length = Repeat([&] { return ::write(Descriptor(iFile), at, iLength); });
        if (length < 0)
            return StatusOf(errno);
        at += length;
        iLength -= static_cast<std::size_t>(length);
    }
    return VOR_S_OK;
}

VORStatus Sync(File iFile, const char* iPath)
{
    const int directory = ::open(DirectoryOf(iPath).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const int synced = Repeat([&] { return ::fsync(Descriptor(iFile)); });
    const VORStatus status = StatusOfCall(synced);
    if (directory >= 0) {
        ::fsync(directory); // which not every file system can
        ::close(directory);
    }
    return status;
}

VORStatus Close(File iFile) noexcept
{
    return StatusOfCall(::close(Descriptor(iFile)));
}

VORStatus Access(const char* iPath, int iMode)
{
    return StatusOfCall(::access(iPath, iMode));
}

VORStatus Delete(const char* iPath)
{
    return StatusOfCall(::unlink(iPath));
}

VORStatus Rename(const char* iFrom, const char* iTo)
{
    return StatusOfCall(std::rename(iFrom, iTo));
}

VORFileKind KindOf(const char* iPath)
{
    struct stat entry;
    struct stat file;
    if (::lstat(iPath, &entry) != 0 || ::stat(iPath, &file) != 0)
        return VORNoFile;
    if (S_ISDIR(file.st_mode))
        return VORDirectory;
    if (!S_ISREG(file.st_mode))
        return VOROtherFile;
    return S_ISLNK(entry.st_mode) ? VORLinkToFile : VORRegularFile;
}

bool IsSameFile(const char* iLeft, const char* iRight)
{
    struct stat left;
    struct stat right;
    return ::stat(iLeft, &left) == 0 && ::stat(iRight, &right) == 0 &&
           left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

bool IsSameEntry(const char* iLeft, const char* iRight)
{
    struct stat entry;
    return ::lstat(iLeft, &entry) == 0 && std::strcmp(NameIn(iLeft), NameIn(iRight)) == 0 &&
           IsSameFile(DirectoryOf(iLeft).c_str(), DirectoryOf(iRight).c_str());
}

VORStatus CreateDirectory(const char* iPath)
{
    return StatusOfCall(::mkdir(iPath, PermissionsOfDirectories));
}

VORStatus OpenDirectory(const char* iPath, void*& oDirectory)
{
    oDirectory = ::opendir(iPath);
    return oDirectory ? VOR_S_OK : StatusOf(errno);
}

VORStatus CloseDirectory(void* ioDirectory)
{
    return StatusOfCall(::closedir(static_cast<DIR*>(ioDirectory)));
}

const char* const Separators = "/";
const char* const NameBegins = "/";
const char ListSeparator = ':';

} // namespace VORLayer
