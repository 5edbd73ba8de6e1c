#ifndef VORKTRAssert_h
#define VORKTRAssert_h

#include "VORFatalError.h"

namespace VORReport
{

// Base of the source paths that fatal errors name.
#define VORKTR_SOURCE_PATH "VORAnalysisReportInterfaces/VORRuxReportImpl.m/src/"

/// Ends in the platform's fatal error when a field that must be set is missing. iPlace is the
/// check's number within its source, fixed so that it does not move with the code.
inline void AssertField(bool iHasField, const char* iKey, const char* iSource, int iPlace)
{
    if (!iHasField)
        VORFatalError(iKey, nullptr, nullptr, nullptr, iSource, iPlace);
}

} // namespace VORReport

#endif
