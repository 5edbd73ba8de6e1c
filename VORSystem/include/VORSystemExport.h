#ifndef VORSystemExport_h
#define VORSystemExport_h

/// Marks a class, function or object that VORSystem's shared library exports.
#define VORSYSTEM_EXPORT __attribute__((visibility("default")))

#endif
