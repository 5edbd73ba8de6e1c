#ifndef VORNumberFormat_h
#define VORNumberFormat_h

#include <cstddef>

constexpr const char* VORDefaultIntFormat = "%d";
constexpr const char* VORDefaultFloatFormat = "%g";

int VORFormatInt(int iValue, const char* iFormat, char* oText, std::size_t iSize);
int VORFormatFloat(double iValue, const char* iFormat, char* oText, std::size_t iSize);

#endif
