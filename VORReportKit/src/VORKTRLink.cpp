#include "VORKTRLink.h"

#include "VORKTRKitPieces.h"

using namespace VORKit;

VORKTRLink::VORKTRLink(const VORKTRLinkTarget& iTarget) : _Place(iTarget.GetPlace()) {}

void VORKTRLink::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    WriteHtml(iFile, LinkHtml(*_Place));
}

void VORKTRLink::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.Append(_Place->name);
}

int VORKTRLink::GetWidthInChar() const
{
    return _Place->name.GetLengthInChar();
}
