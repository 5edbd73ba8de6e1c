#ifndef VORFatalError_h
#define VORFatalError_h

/// @file
/// The end of a process that found itself inconsistent.

#include "VORSystemExport.h"

/// Reports an internal inconsistency and does not return. iKey says what failed, iPath and iLine
/// where; the three arguments are reserved, null when unused. Without a handler, key, path and line
/// go to the error stream and the process aborts.
[[noreturn]] VORSYSTEM_EXPORT void VORFatalError(const char* iKey, const char* iArgument1,
                                                 const char* iArgument2, const char* iArgument3,
                                                 const char* iPath, int iLine);

/// Called in place of the message. It may leave by an exception; when it returns, the process
/// aborts.
using VORFatalErrorHandler = void (*)(const char* iKey, const char* iPath, int iLine);

/// Installs a handler, null for none, and returns the one before.
VORSYSTEM_EXPORT VORFatalErrorHandler VORSetFatalErrorHandler(VORFatalErrorHandler iHandler);

#endif
