#include "VORKTRHeading.h"

#include "VORKTRKitPieces.h"
#include "VORKTRReportingBuffer.h"

VORKTRHeading::VORKTRHeading(const VORUnicodeString& iTitle, int iOrder)
    : VORKTRReportingTitle(iTitle, iOrder), VORKTRLinkTarget(iTitle)
{
}

void VORKTRHeading::Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                           unsigned int iNavigationFile) const
{
    const int page = _Buffer ? _Buffer->GetPagesNumber() : 0;
    VORKTRReportingTitle::Report(iFile, iPath, iFrames, iNavigationFile);
    // A new page has taken over the number of the one that the heading ended.
    if (_Buffer->GetPagesNumber() != page)
        WriteHtml(iFile, PageFacts);
    SetAnchor(_Buffer, iFrames, std::to_string(_Buffer->GetIndex()));
}
