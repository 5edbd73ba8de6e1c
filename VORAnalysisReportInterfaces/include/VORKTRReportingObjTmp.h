#ifndef VORKTRReportingObjTmp_h
#define VORKTRReportingObjTmp_h

#include "VORAnalysisReportInterfacesExport.h"

/// Empty, destructible placeholder type of the public interface.
class VORKTR_EXPORT VORKTRReportingObjTmp
{
public:
    VORKTRReportingObjTmp();
    virtual ~VORKTRReportingObjTmp();
};

#endif
