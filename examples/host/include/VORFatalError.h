#ifndef VORFatalError_h
#define VORFatalError_h

[[noreturn]] void VORFatalError(const char* iKey, const char* iArgument1, const char* iArgument2,
                                const char* iArgument3, const char* iPath, int iLine);

#endif
