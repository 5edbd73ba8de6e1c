#ifndef VORReportKitExport_h
#define VORReportKitExport_h

/// Marks a class, function or object that the report kit exports.
#if defined(_WIN32)
#define VORKIT_EXPORT // a DLL exports what its list names, and who uses it imports that unasked
#else
#define VORKIT_EXPORT __attribute__((visibility("default")))
#endif

#endif
