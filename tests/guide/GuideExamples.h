#ifndef GuideExamples_h
#define GuideExamples_h

#include <map>
#include <string>

#include "VORKTRReportingBuffer.h"

using GuideExample = void (*)(VORKTRReportingBuffer& report);

/// The example blocks of the guide by name; their source is generated.
extern const std::map<std::string, GuideExample> GuideExamples;

/// Writes a filled report as a site into "report" and prints its text; leaves by an exception when
/// that fails.
void Publish(VORKTRReportingBuffer& ioReport);

#endif
