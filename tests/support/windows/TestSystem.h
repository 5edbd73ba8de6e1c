#ifndef TestSystem_h
#define TestSystem_h

#include <gtest/gtest.h>

#include "SetEnv.h"

/// What the tests need of the system, for each system once.

constexpr const char* NullDevice = "NUL";
constexpr const char* FullDevice = "Z:/dev/full"; ///< a disk without room, which Wine has
constexpr const char* CommaLocale = "German";     ///< a locale with a decimal comma
constexpr const char* ListSeparator = ";";        ///< of path lists

/// How std::abort ends a process.
inline const testing::ExitedWithCode Aborted(3);

/// What the program returned whose command std::system has run.
inline int ExitStatus(int iStatus)
{
    return iStatus;
}

#endif
