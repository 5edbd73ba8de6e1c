#include "VORKTRCharset.h"

#include "VORKTRKitPieces.h"

VORKTRCharset::VORKTRCharset() = default;

VORKTRCharset::~VORKTRCharset() = default;

void VORKTRCharset::Report(unsigned int iFile, const char*, unsigned char iFrames,
                           unsigned int iNavigationFile) const
{
    WriteHtml(iFile, PageFacts);
    if (iFrames)
        WriteHtml(iNavigationFile, PageFacts);
}

void VORKTRCharset::ASCIIReport(VORUnicodeString&) const {}

int VORKTRCharset::GetWidthInChar() const
{
    return 0;
}
