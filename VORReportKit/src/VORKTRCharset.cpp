#include "VORKTRCharset.h"

#include "VORKTRKitPieces.h"

using namespace VORKit;

void VORKTRCharset::Report(unsigned int iFile, const char*, unsigned char iFrames,
                           unsigned int iNavigationFile) const
{
    WriteHtml(iFile, PageFacts);
    if (iFrames)
        WriteHtml(iNavigationFile, PageFacts);
}
