#ifndef VORAnalysisReportInterfacesExport_h
#define VORAnalysisReportInterfacesExport_h

/// Marks a class, function or object that the report library exports.
#if !defined(_WIN32)
#define VORKTR_EXPORT __attribute__((visibility("default")))
#elif defined(VORAnalysisReportInterfaces_EXPORTS) || defined(VORAnalysisReportInterfaces_STATIC)
#define VORKTR_EXPORT // a DLL exports what its list names
#else
#define VORKTR_EXPORT __declspec(dllimport)
#endif

#endif
