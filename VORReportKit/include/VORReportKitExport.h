#ifndef VORReportKitExport_h
#define VORReportKitExport_h

/// Marks a class, function or object that the report kit exports.
#define VORKIT_EXPORT __attribute__((visibility("default")))

#endif
