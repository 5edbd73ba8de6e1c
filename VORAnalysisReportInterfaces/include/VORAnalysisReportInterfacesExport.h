#ifndef VORAnalysisReportInterfacesExport_h
#define VORAnalysisReportInterfacesExport_h

/// Marks a class, function or object that the report library exports.
#if defined(_WIN32) && defined(VORKTR_BUILDING)
#define VORKTR_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define VORKTR_EXPORT __declspec(dllimport)
#else
#define VORKTR_EXPORT __attribute__((visibility("default")))
#endif

#endif
