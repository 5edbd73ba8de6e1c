#ifndef VORPath_h
#define VORPath_h

#include <cstddef>

#include "VORStatus.h"
#include "VORUnicodeString.h"

VORStatus VORMakePath(const VORUnicodeString& iDirectory, const VORUnicodeString& iName,
                      VORUnicodeString& oPath);
VORStatus VORSplitPath(const VORUnicodeString& iPath, VORUnicodeString& oDirectory,
                       VORUnicodeString& oName);
VORStatus VORSplitPath(const char* iPath, char* oDirectory, char* oName, std::size_t iSize);
VORStatus VORFindPath(const char* iName, const char* iList, VORUnicodeString& oPath);

struct VORDIR {
};

VORStatus VOROpenDirectory(const VORUnicodeString& iPath, VORDIR* oDirectory);
VORStatus VORCloseDirectory(VORDIR* ioDirectory);
VORStatus VORCreateDirectory(const VORUnicodeString& iPath);

#endif
