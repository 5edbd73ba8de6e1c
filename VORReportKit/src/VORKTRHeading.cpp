#include "VORKTRHeading.h"

#include "VORKTRKitPieces.h"
#include "VORKTRReportingBuffer.h"

using namespace VORKit;

VORKTRHeading::VORKTRHeading(const VORUnicodeString& iTitle, int iOrder)
    : VORKTRReportingTitle(iTitle, iOrder), VORKTRLinkTarget(iTitle)
{
}

void VORKTRHeading::Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                           unsigned int iNavigationFile) const
{
    if (!_Buffer) // which the assertion of every heading reports
        return VORKTRReportingTitle::Report(iFile, iPath, iFrames, iNavigationFile);
    const int page = _Buffer->GetPagesNumber();
    VORKTRReportingTitle::Report(iFile, iPath, iFrames, iNavigationFile);
    // A new page has taken over the number of the one that the heading ended.
    if (_Buffer->GetPagesNumber() != page)
        WriteHtml(iFile, PageFacts);
    SetAnchor(_Buffer, iFrames, std::to_string(_Buffer->GetIndex()));
}
