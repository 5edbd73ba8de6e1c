#include "VORKTRReportingObjTmp.h"

VORKTRReportingObjTmp::VORKTRReportingObjTmp() = default;
VORKTRReportingObjTmp::~VORKTRReportingObjTmp() = default;
