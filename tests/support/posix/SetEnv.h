#ifndef SetEnv_h
#define SetEnv_h

#include <cstdlib>

/// Sets an environment variable; null unsets it.
inline void SetEnv(const char* iName, const char* iValue)
{
    iValue ? ::setenv(iName, iValue, 1) : ::unsetenv(iName);
}

#endif
