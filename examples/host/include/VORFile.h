#ifndef VORFile_h
#define VORFile_h

#include <cstddef>

#include "VORStatus.h"
#include "VORUnicodeString.h"

VORStatus VORFOpen(const VORUnicodeString& iPath, const char* iMode, unsigned int& oFile);
VORStatus VORFReserve(unsigned int& oFile, VORStatus iStatus) noexcept;
VORStatus VORFWrite(unsigned int iFile, const void* iBytes, std::size_t iLength,
                    std::size_t* oWritten) noexcept;
VORStatus VORFClose(unsigned int iFile) noexcept;

VORStatus VORFCopy(const VORUnicodeString& iSource, const VORUnicodeString& iTarget, int iReplace);
VORStatus VORFTransfer(const VORUnicodeString& iSource, const VORUnicodeString& iTarget,
                       VORStatus& oArrival);
VORStatus VORFileAccess(const VORUnicodeString& iPath, int iMode, int iReserved);
VORStatus VORDeleteFile(const VORUnicodeString& iPath);
VORStatus VORRenameFile(const VORUnicodeString& iFrom, const VORUnicodeString& iTo);

enum VORFileKind { VORNoFile, VORRegularFile, VORLinkToFile, VORDirectory, VOROtherFile };

VORFileKind VORGetFileKind(const VORUnicodeString& iPath);
bool VORIsSameEntry(const VORUnicodeString& iLeft, const VORUnicodeString& iRight);

#endif
