#ifndef VORNumberFormat_h
#define VORNumberFormat_h

/// @file
/// Numbers as text. Number formats are printf's: text, "%%", and at most one conversion with flags
/// (-+ #0'), width and precision of at most 4095 each. Length modifiers are accepted and have no
/// effect, ' too. An int takes d i u o x X c, a float f F e E g G a A. Any other format, null
/// included, never reaches printf: the number is written with the default format instead. The text
/// is that of the "C" locale, whatever the process uses.

#include <cstddef>

#include "VORSystemExport.h"

/// @{ What an unfit format is replaced by.
constexpr const char* VORDefaultIntFormat = "%d";
constexpr const char* VORDefaultFloatFormat = "%g";
/// @}

/// @{ Writes a number, at most iSize bytes to oText, NUL-terminated, and returns the length of the
/// whole text without the NUL: when it is iSize or more, oText was too small and holds the
/// beginning.
VORSYSTEM_EXPORT int VORFormatInt(int iValue, const char* iFormat, char* oText, std::size_t iSize);
VORSYSTEM_EXPORT int VORFormatFloat(double iValue, const char* iFormat, char* oText,
                                    std::size_t iSize);
/// @}

#endif
