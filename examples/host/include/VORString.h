#ifndef VORString_h
#define VORString_h

#include <string>

using VORString = std::string;

#endif
