#ifndef VORSystemExport_h
#define VORSystemExport_h

/// Marks a class, function or object that VORSystem's shared library exports.
#if !defined(_WIN32)
#define VORSYSTEM_EXPORT __attribute__((visibility("default")))
#elif defined(VORSystem_EXPORTS) || defined(VORSystem_STATIC)
#define VORSYSTEM_EXPORT // a DLL exports what its list names
#else
#define VORSYSTEM_EXPORT __declspec(dllimport)
#endif

#endif
