#ifndef VORHostDisk_h
#define VORHostDisk_h

#include <map>
#include <string>

#include "VORStatus.h"

/// The disk of this host: files and directories in memory, for one thread. Each operation of
/// VORFile.h and VORPath.h that a real disk could refuse is counted and can be told to fail; a
/// transfer counts twice, once for opening the files and once for the bytes.
namespace VORHostDisk
{

/// Bytes by path. A directory is a name that ends in "/".
std::map<std::string, std::string> ReadAll();

/// Puts a file there, and the directories above it; not counted.
void PutFile(const std::string& iPath, const std::string& iBytes);

/// Removes all files and directories, ends the failures and counts from 0. Open files stay open.
void Clear();

/// Operation iOperation from now fails, the next one being 1; with iForGood, all that follow too.
/// What fails has no effect, but that a close frees its handle and a transfer leaves half a file.
/// 0: none.
void FailAt(int iOperation, bool iForGood, VORStatus iStatus = VOR_E_DISK_FULL);

/// Operations since the last FailAt or Clear.
int GetOperationCount();

/// Handles that are open, 0 after each report.
int GetOpenFileCount();

} // namespace VORHostDisk

#endif
