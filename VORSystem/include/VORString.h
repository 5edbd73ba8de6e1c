#ifndef VORString_h
#define VORString_h

/// @file
/// Narrow text.

#include <string>

/// Narrow text: bytes without an encoding of their own (paths, number formats).
using VORString = std::string;

#endif
