#ifndef VORSystemExport_h
#define VORSystemExport_h

/// Marks a class, function or object that VORSystem's shared library exports.
#if defined(_WIN32)
#define VORSYSTEM_EXPORT // a DLL exports what its list names, and who uses it imports that unasked
#else
#define VORSYSTEM_EXPORT __attribute__((visibility("default")))
#endif

#endif
