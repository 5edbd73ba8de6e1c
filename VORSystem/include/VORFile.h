#ifndef VORFile_h
#define VORFile_h

/// @file
/// Files open for writing, and what else is done with whole files.

#include <cstddef>

#include "VORStatus.h"
#include "VORSystemExport.h"
#include "VORUnicodeString.h"

// Files are named by handles from 1; 0 is no file. The handle freed last is given out first: a file
// opened right after another is closed receives the closed file's number. An operation on a handle
// that is not open returns VOR_E_INVALID_HANDLE and does nothing. Names are UTF-8. A failure of the
// system comes back as a negative status.

/// Creates or empties iPath for writing; iMode must be "w". oFile becomes the handle, 0 on failure.
VORSYSTEM_EXPORT VORStatus VORFOpen(const VORUnicodeString& iPath, const char* iMode,
                                    unsigned int& oFile);

/// Writes iLength bytes, buffered. oWritten, when not null, becomes the number of bytes taken: all
/// of them, or 0 on failure. A failure of the system may show in a later write or in the close, and
/// from then on in every one.
VORSYSTEM_EXPORT VORStatus VORFWrite(unsigned int iFile, const void* iBytes, std::size_t iLength,
                                     std::size_t* oWritten);

/// Writes what is buffered and closes the file. The handle is free afterwards, also on failure.
VORSYSTEM_EXPORT VORStatus VORFClose(unsigned int iFile);

/// Copies a file's bytes. An existing target is replaced when iReplace is not 0, else refused with
/// VOR_E_FILE_EXISTS. The target appears whole or not at all; a file copied onto itself stays.
VORSYSTEM_EXPORT VORStatus VORFCopy(const VORUnicodeString& iSource,
                                    const VORUnicodeString& iTarget, int iReplace);

/// Tests iPath: iMode 0 existence, 2 write, 4 read, 6 both. The last argument is reserved.
VORSYSTEM_EXPORT VORStatus VORFileAccess(const VORUnicodeString& iPath, int iMode, int iReserved);

/// Deletes a file; a directory is refused.
VORSYSTEM_EXPORT VORStatus VORDeleteFile(const VORUnicodeString& iPath);

/// Renames a file, replacing an existing target; fails across file systems.
VORSYSTEM_EXPORT VORStatus VORRenameFile(const VORUnicodeString& iFrom,
                                         const VORUnicodeString& iTo);

/// True when both paths name one existing file, by whatever links.
VORSYSTEM_EXPORT bool VORIsSameFile(const VORUnicodeString& iLeft, const VORUnicodeString& iRight);

#endif
