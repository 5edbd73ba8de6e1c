#ifndef VORKTRCharset_h
#define VORKTRCharset_h

#include "VORKTRReportingObj.h"

/// Says on the first page and on the navigation page that the site is UTF-8 and made for the width
/// of the device; VORKTRHeading says it on the pages that it begins. It is the first item of a
/// report. Browsers look in the first 1,024 bytes: keep title and headings below 350 bytes.
class VORKTR_EXPORT VORKTRCharset : public VORKTRReportingObj
{
public:
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    /// Nothing.
    void ASCIIReport(VORUnicodeString&) const override {}
    int GetWidthInChar() const override { return 0; }
};

#endif
