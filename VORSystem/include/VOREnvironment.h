#ifndef VOREnvironment_h
#define VOREnvironment_h

/// @file
/// Environment variables, the time, and other programs.

#include "VORSystemExport.h"
#include "VORUnicodeString.h"

/// Value of an environment variable in UTF-8, null when it is unset or iName is null; an empty
/// value counts as set. Valid until the environment changes.
VORSYSTEM_EXPORT const char* VORGetEnv(const char* iName);

/// The time since 1970-01-01 UTC: whole seconds, and the microseconds of the running second. Either
/// pointer may be null.
VORSYSTEM_EXPORT void VORGetCurrentTime(unsigned long* oSeconds, unsigned long* oMicroseconds);

/// Runs a command line through the system's command interpreter, waits for it and returns what the
/// C library's system() returns: -1 when none could be started, else its exit status as the system
/// gives it.
VORSYSTEM_EXPORT int VORRunCommand(const VORUnicodeString& iCommand);

#endif
