#ifndef VOREnvironment_h
#define VOREnvironment_h

#include "VORUnicodeString.h"

const char* VORGetEnv(const char* iName);
void VORGetCurrentTime(unsigned long* oSeconds, unsigned long* oMicroseconds);
int VORRunCommand(const VORUnicodeString& iCommand);

#endif
