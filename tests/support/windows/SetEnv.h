#ifndef SetEnv_h
#define SetEnv_h

// As in <windows.h>, which has names of the component headers as well.
extern "C" __declspec(dllimport) int __stdcall SetEnvironmentVariableA(const char* iName,
                                                                       const char* iValue);

/// Sets an environment variable; null unsets it.
inline void SetEnv(const char* iName, const char* iValue)
{
    SetEnvironmentVariableA(iName, iValue);
}

#endif
