#ifndef VORAnalysisReportInterfacesExport_h
#define VORAnalysisReportInterfacesExport_h

/// Marks a class, function or object that the report library exports.
#define VORKTR_EXPORT __attribute__((visibility("default")))

#endif
