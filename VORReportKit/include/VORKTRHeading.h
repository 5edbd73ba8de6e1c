#ifndef VORKTRHeading_h
#define VORKTRHeading_h

#include "VORKTRLinkTarget.h"
#include "VORKTRReportingTitle.h"

/// A heading that links can lead to. On a page that it begins it also says what VORKTRCharset says
/// on the first one.
class VORKTR_EXPORT VORKTRHeading : public VORKTRReportingTitle, public VORKTRLinkTarget
{
public:
    /// As VORKTRReportingTitle: iTitle is HTML, iOrder the level from 1 to 6.
    VORKTRHeading(const VORUnicodeString& iTitle, int iOrder);

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
};

#endif
