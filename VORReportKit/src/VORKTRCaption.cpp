#include "VORKTRCaption.h"

#include "VORKTRKitPieces.h"
#include "VORMsgCatalog.h"

namespace
{

VORUnicodeString NameOf(const char* iWord, const char* iMessage, const std::string& iNumber)
{
    return VORMsgCatalog::BuildMessage("VORKTRReportingMessages", iMessage, nullptr, 0, iWord) +
           VORUnicodeString(iNumber);
}

} // namespace

VORKTRCaption::VORKTRCaption(const Kind& iKind, const VORUnicodeString& iText)
    : VORKTRLinkTarget(NameOf(iKind.word, iKind.message, "?")), _Kind(iKind), _Text(iText)
{
}

void VORKTRCaption::Count() const
{
    _Number = _Kind.getNumber();
    SetName(NameOf(_Kind.word, _Kind.message, std::to_string(_Number)));
}

std::string VORKTRCaption::TakeNumber(VORKTRReportingBuffer* iReport, unsigned char iFrames) const
{
    Count();
    std::string anchor = _Kind.anchor + std::to_string(_Number);
    SetAnchor(iReport, iFrames, anchor);
    return anchor;
}

std::string VORKTRCaption::GetHtml() const
{
    return GetPlace()->name.ToString() + ": " + Escaped(_Text.GetView());
}

std::vector<std::string> VORKTRCaption::GetLines(int iWidth) const
{
    if (_Number == 0)
        Count();
    return BreakLines((GetPlace()->name + ": " + _Text).GetView(), iWidth);
}
