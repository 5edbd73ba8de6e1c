#include "VORKTRReportingObjTmp2.h"

VORKTRReportingObjTmp2::VORKTRReportingObjTmp2() = default;
VORKTRReportingObjTmp2::~VORKTRReportingObjTmp2() = default;
