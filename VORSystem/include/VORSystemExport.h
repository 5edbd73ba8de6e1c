#ifndef VORSystemExport_h
#define VORSystemExport_h

/// Marks a class, function or object that VORSystem's shared library exports.
#if defined(_WIN32) && defined(VORSYSTEM_BUILDING)
#define VORSYSTEM_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define VORSYSTEM_EXPORT __declspec(dllimport)
#else
#define VORSYSTEM_EXPORT __attribute__((visibility("default")))
#endif

#endif
