#ifndef VORFileTable_h
#define VORFileTable_h

#include <memory>

#include "VORSystemLayer.h"

/// One file open for writing, or the place of one, with a buffer of its own so that a small write
/// is a copy. The buffer stays for the next file of the place: a report of many pages writes them
/// all through the same one, which makes W5 4 % faster.
class VOROutputFile
{
public:
    bool IsOpen() const { return _IsOpen; }

    /// Creates or empties a file.
    VORStatus Open(const char* iPath);
    /// Stands for a file that failed with iStatus.
    void Reserve(VORStatus iStatus);
    VORStatus Write(const void* iBytes, std::size_t iLength);
    VORStatus Close();

    unsigned int nextFree = 0; ///< The table's: the handle that is free behind this one, or 0.

private:
    void Flush();
    void Send(const void* iBytes, std::size_t iLength);

    VORLayer::File _File = VORLayer::NoFile;
    std::unique_ptr<char[]> _Buffer;
    std::size_t _Used = 0;
    VORStatus _Status = VOR_S_OK;
    bool _IsOpen = false;
};

/// The files of the process by handle. Each thread keeps the handle that it has freed last, until
/// it ends; the others are there for all, last-in first-out. In a thread that has taken a handle,
/// freeing one needs no memory; finding the file of one needs no lock.
namespace VORFileTable
{

/// A free handle, taken from the table; 0 when there is none or no memory.
unsigned int Take();
/// Gives a handle back.
void Free(unsigned int iHandle);
/// The place of a handle, open or not; null for a handle that was never given out.
VOROutputFile* PlaceOf(unsigned int iHandle);

} // namespace VORFileTable

#endif
