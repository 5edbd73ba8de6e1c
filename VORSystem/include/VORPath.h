#ifndef VORPath_h
#define VORPath_h

/// @file
/// Paths, directories and the search along path lists. The separator is "/"; Windows understands
/// "\" as well, and there a drive without it stands for its root.

#include <cstddef>

#include "VORStatus.h"
#include "VORSystemExport.h"
#include "VORUnicodeString.h"

/// Joins a directory and a name without doubling the separator between them. An empty directory or
/// name is refused with VOR_E_INVALIDARG and leaves oPath as it is.
VORSYSTEM_EXPORT VORStatus VORMakePath(const VORUnicodeString& iDirectory,
                                       const VORUnicodeString& iName, VORUnicodeString& oPath);
/// As above into a buffer of iSize bytes; refused with VOR_E_INVALIDARG when it is too small.
VORSYSTEM_EXPORT VORStatus VORMakePath(const char* iDirectory, const char* iName, char* oPath,
                                       std::size_t iSize);

/// Splits a path at its last separator. The directory is empty when there is none, "/" for a file
/// of the root. A path that names no file (empty, or ending in a separator) is refused with
/// VOR_E_INVALIDARG and leaves the results as they are.
VORSYSTEM_EXPORT VORStatus VORSplitPath(const VORUnicodeString& iPath, VORUnicodeString& oDirectory,
                                        VORUnicodeString& oName);
/// As above into two buffers of iSize bytes each; refused with VOR_E_INVALIDARG when one is too
/// small.
VORSYSTEM_EXPORT VORStatus VORSplitPath(const char* iPath, char* oDirectory, char* oName,
                                        std::size_t iSize);

/// Looks for a file called iName in the directories of iList, separated as the system's path lists
/// are (":", on Windows ";"); empty entries are skipped, a null list has none. oPath becomes the
/// first match, empty when there is none (VOR_E_FILE_NOT_FOUND).
VORSYSTEM_EXPORT VORStatus VORFindPath(const char* iName, const char* iList,
                                       VORUnicodeString& oPath);

/// An open directory.
struct VORDIR {
    void* handle = nullptr; ///< The system's; null while closed.
};

/// Opens an existing directory, to be closed again; negative when it is absent or cannot be read,
/// VOR_E_INVALIDARG for null.
VORSYSTEM_EXPORT VORStatus VOROpenDirectory(const VORUnicodeString& iPath, VORDIR* oDirectory);
/// Closes it again. One that is not open is refused with VOR_E_INVALIDARG, null too.
VORSYSTEM_EXPORT VORStatus VORCloseDirectory(VORDIR* ioDirectory);

/// Creates one directory; its parent must exist. Negative when anything of that name exists
/// already.
VORSYSTEM_EXPORT VORStatus VORCreateDirectory(const VORUnicodeString& iPath);

#endif
