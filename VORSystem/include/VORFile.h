#ifndef VORFile_h
#define VORFile_h

/// @file
/// Files open for writing, and what else is done with whole files.

#include <cstddef>

#include "VORStatus.h"
#include "VORSystemExport.h"
#include "VORUnicodeString.h"

// Files are named by handles from 1; 0 is no file. In each thread the handle freed last is given
// out first: a file opened right after another is closed receives the closed file's number. An
// operation on a handle that is not open returns VOR_E_INVALID_HANDLE and does nothing. Names are
// UTF-8. A failure of the system comes back as a negative status. Threads may use different files
// at once. A thread whose thread_local objects have ended, as the main thread's in destructors of
// static objects, gives what it closes to all: there the rule holds while no other thread opens or
// closes a file.

/// Creates or empties iPath for writing; iMode must be "w". oFile becomes the handle, 0 on failure.
VORSYSTEM_EXPORT VORStatus VORFOpen(const VORUnicodeString& iPath, const char* iMode,
                                    unsigned int& oFile);

/// Opens a handle without a file, for a file that could not be opened: what is written to it goes
/// nowhere, and each write and the close return iStatus, which is negative (VOR_E_INVALIDARG
/// refuses another one). oFile becomes the handle that VORFOpen would have given, 0 on failure;
/// right after a close it does not fail.
VORSYSTEM_EXPORT VORStatus VORFReserve(unsigned int& oFile, VORStatus iStatus) noexcept;

/// Writes iLength bytes, buffered. oWritten, when not null, becomes the number of bytes taken: all
/// of them, or 0 on failure. A failure of the system may show in a later write or in the close, and
/// from then on in every one. Null bytes are refused with VOR_E_INVALIDARG unless iLength is 0.
VORSYSTEM_EXPORT VORStatus VORFWrite(unsigned int iFile, const void* iBytes, std::size_t iLength,
                                     std::size_t* oWritten) noexcept;

/// Writes what is buffered, closes the file and reports every failure up to now. The handle is free
/// afterwards, also on failure. Needs no memory in a thread that has opened a file.
VORSYSTEM_EXPORT VORStatus VORFClose(unsigned int iFile) noexcept;

/// Copies a file's bytes; the copy has the permissions of a new file. An existing target is
/// replaced when iReplace is not 0, else refused with VOR_E_FILE_EXISTS. The target appears whole
/// or not at all; a file copied onto itself stays.
VORSYSTEM_EXPORT VORStatus VORFCopy(const VORUnicodeString& iSource,
                                    const VORUnicodeString& iTarget, int iReplace);

/// Writes a file's bytes to a new or emptied target and waits until they are on the disk, so that
/// the source can go. Negative, with nothing written, when either cannot be opened or both are one
/// file; else 0, and oArrival tells how it went: 0 when all bytes arrived, or the status of what
/// failed.
VORSYSTEM_EXPORT VORStatus VORFTransfer(const VORUnicodeString& iSource,
                                        const VORUnicodeString& iTarget, VORStatus& oArrival);

/// Tests iPath: iMode 0 existence, 2 write, 4 read, 6 both. The last argument is reserved.
VORSYSTEM_EXPORT VORStatus VORFileAccess(const VORUnicodeString& iPath, int iMode, int iReserved);

/// Deletes a file, of a link the link itself; a directory is refused.
VORSYSTEM_EXPORT VORStatus VORDeleteFile(const VORUnicodeString& iPath);

/// Renames a file, replacing an existing target; fails across file systems. A link is renamed
/// itself, a directory too.
VORSYSTEM_EXPORT VORStatus VORRenameFile(const VORUnicodeString& iFrom,
                                         const VORUnicodeString& iTo);

/// What a name leads to. VOROtherFile is a device, a pipe or the like.
enum VORFileKind { VORNoFile, VORRegularFile, VORLinkToFile, VORDirectory, VOROtherFile };

/// What iPath is: a regular file, a symbolic link to one, or what it or the link leads to;
/// VORNoFile when there is nothing or it cannot be told.
VORSYSTEM_EXPORT VORFileKind VORGetFileKind(const VORUnicodeString& iPath);

/// True when both paths name one existing entry of one directory. Links to one file are different
/// entries.
VORSYSTEM_EXPORT bool VORIsSameEntry(const VORUnicodeString& iLeft, const VORUnicodeString& iRight);

#endif
