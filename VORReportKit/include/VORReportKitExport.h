#ifndef VORReportKitExport_h
#define VORReportKitExport_h

/// Marks a class, function or object that the report kit exports.
#if !defined(_WIN32)
#define VORKIT_EXPORT __attribute__((visibility("default")))
#elif defined(VORReportKit_EXPORTS) || defined(VORReportKit_STATIC)
#define VORKIT_EXPORT // a DLL exports what its list names
#else
#define VORKIT_EXPORT __declspec(dllimport)
#endif

#endif
