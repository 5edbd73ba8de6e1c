#ifndef WindowsApi_h
#define WindowsApi_h

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX 1
#include <windows.h>

#undef CreateDirectory // which is also a name of the layer

#endif
