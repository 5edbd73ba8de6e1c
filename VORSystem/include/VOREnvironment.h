#ifndef VOREnvironment_h
#define VOREnvironment_h

/// @file
/// Environment variables and the time.

#include "VORSystemExport.h"

/// Value of an environment variable, null when it is unset; an empty value counts as set. Valid
/// until the environment changes.
VORSYSTEM_EXPORT const char* VORGetEnv(const char* iName);

/// The time since 1970-01-01 UTC: whole seconds, and the microseconds of the running second. Either
/// pointer may be null.
VORSYSTEM_EXPORT void VORGetCurrentTime(unsigned long* oSeconds, unsigned long* oMicroseconds);

#endif
