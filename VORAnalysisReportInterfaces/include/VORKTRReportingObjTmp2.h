#ifndef VORKTRReportingObjTmp2_h
#define VORKTRReportingObjTmp2_h

#include "VORAnalysisReportInterfacesExport.h"

/// Empty, destructible placeholder type of the public interface.
class VORKTR_EXPORT VORKTRReportingObjTmp2
{
public:
    VORKTRReportingObjTmp2();
    virtual ~VORKTRReportingObjTmp2();
};

#endif
