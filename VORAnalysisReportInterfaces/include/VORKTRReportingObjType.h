#ifndef VORKTRReportingObjType_h
#define VORKTRReportingObjType_h

/// @file
/// Kinds of report items.

/// Kind of a report item, as VORKTRReportingObj::GetType returns it.
enum VORKTRReportingObjType {
    VORKTRReportingObjKind = 0,
    VORKTRReportingBagKind = 1,
    VORKTRReportingTextKind = 2,
    VORKTRReportingTableKind = 3,
    VORKTRReportingListKind = 4,
    VORKTRReportingTitleKind = 5,
    VORKTRReportingFileKind = 6,
    VORKTRReportingFloatKind = 7,
    VORKTRReportingIntKind = 8
};

#endif
