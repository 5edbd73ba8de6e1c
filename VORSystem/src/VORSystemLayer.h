#ifndef VORSystemLayer_h
#define VORSystemLayer_h

#include <cstddef>
#include <cstdint>

#include "VORFile.h"
#include "VORStatus.h"

/// What VORSystem asks of the operating system: all that differs between systems, implemented once
/// for each in a folder beside this header, one file per concern. Texts and paths are UTF-8. A
/// failure of the system comes back as the status that stands for it.
namespace VORLayer
{

/// @{ A file that the system has open. What is noexcept allocates nothing.
using File = std::intptr_t;
constexpr File NoFile = -1;

VORStatus OpenToRead(const char* iPath, File& oFile);
/// Creates or empties a file, with the permissions that new files get.
VORStatus OpenToWrite(const char* iPath, File& oFile);
/// Reads at most iRoom bytes; oLength is 0 at the end of the file.
VORStatus Read(File iFile, void* oBytes, std::size_t iRoom, std::size_t& oLength) noexcept;
/// Writes all of the bytes, or fails.
VORStatus Write(File iFile, const void* iBytes, std::size_t iLength) noexcept;
/// Waits until the bytes written to the file iPath, and that name, are on the disk.
VORStatus Sync(File iFile, const char* iPath);
VORStatus Close(File iFile) noexcept;
/// @}

/// @{ Files and directories by name, as the operations of VORFile.h and VORPath.h say.
VORStatus Access(const char* iPath, int iMode);
VORStatus Delete(const char* iPath);
VORStatus Rename(const char* iFrom, const char* iTo);
VORFileKind KindOf(const char* iPath);
/// True when both names lead to one existing file, by whatever links.
bool IsSameFile(const char* iLeft, const char* iRight);
bool IsSameEntry(const char* iLeft, const char* iRight);
VORStatus CreateDirectory(const char* iPath);
VORStatus OpenDirectory(const char* iPath, void*& oDirectory);
VORStatus CloseDirectory(void* ioDirectory);
/// @}

/// @{ How paths and lists of paths are written.
extern const char* const Separators; ///< All that are understood; the first one is written.
extern const char* const NameBegins; ///< The characters in front of a name: it is behind the last.
extern const char ListSeparator;
/// @}

/// @{ The process.
const char* GetEnv(const char* iName);
int RunCommand(const char* iCommand);
unsigned long ProcessId();
/// @}

/// @{ A number of the calling thread's own, 0 at first. iAtEnd gets it when the thread ends, at
/// once when that is past or the system has no room for it, and is the same function in every call.
/// The first call of a thread may need memory.
unsigned int ThreadNumber() noexcept;
void SetThreadNumber(unsigned int iNumber, void (*iAtEnd)(unsigned int)) noexcept;
/// @}

/// What snprintf gives for one number, under the numeric locale "C" whatever is set. iConversion is
/// a conversion of a double alone, without ' and length modifiers.
int PrintNumber(char* oText, std::size_t iSize, const char* iConversion, double iNumber);

} // namespace VORLayer

#endif
