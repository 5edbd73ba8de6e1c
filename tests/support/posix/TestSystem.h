#ifndef TestSystem_h
#define TestSystem_h

#include <csignal>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "SetEnv.h"

/// What the tests need of the system, for each system once.

constexpr const char* NullDevice = "/dev/null";
constexpr const char* FullDevice = "/dev/full";    ///< a disk without room
constexpr const char* CommaLocale = "de_DE.UTF-8"; ///< a locale with a decimal comma
constexpr const char* ListSeparator = ":";         ///< of path lists

/// How std::abort ends a process.
inline const testing::KilledBySignal Aborted(SIGABRT);

/// What the program returned whose command std::system has run; -1 when it ended otherwise.
inline int ExitStatus(int iStatus)
{
    return WIFEXITED(iStatus) ? WEXITSTATUS(iStatus) : -1;
}

#endif
