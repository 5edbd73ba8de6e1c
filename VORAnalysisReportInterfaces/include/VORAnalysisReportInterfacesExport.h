#ifndef VORAnalysisReportInterfacesExport_h
#define VORAnalysisReportInterfacesExport_h

/// Marks a class, function or object that the report library exports.
#if defined(_WIN32)
#define VORKTR_EXPORT // a DLL exports what its list names, and who uses it imports that unasked
#else
#define VORKTR_EXPORT __attribute__((visibility("default")))
#endif

#endif
