#include "VORKTRCaption.h"

#include "VORKTRKitPieces.h"
#include "VORMsgCatalog.h"

using namespace VORKit;

namespace
{

constexpr int CaptionWidth = 72; // leaves a margin on both sides

VORUnicodeString NameOf(const std::string& iWord, const std::string& iNumber)
{
    return VORMsgCatalog::BuildMessage("VORKTRReportingMessages", (iWord + "_Number").c_str(),
                                       nullptr, 0, (iWord + " ").c_str()) +
           iNumber;
}

} // namespace

VORKTRCaption::VORKTRCaption(const char* iWord, int (*iGetNumber)(), const VORUnicodeString& iText,
                             const VORUnicodeString& iAbove)
    : VORKTRLinkTarget(NameOf(iWord, "?")), _Word(iWord), _GetNumber(iGetNumber), _Text(iText),
      _Above(iAbove)
{
}

void VORKTRCaption::Count() const
{
    _Number = _GetNumber();
    _Place->name = NameOf(_Word, std::to_string(_Number));
}

void VORKTRCaption::Report(unsigned int iFile, const char*, unsigned char iFrames,
                           unsigned int) const
{
    Count();
    const std::string anchor = _Word + std::to_string(_Number);
    SetAnchor(_Buffer, iFrames, anchor);
    const std::string name = _Place->name.ToString();
    WriteHtml(iFile, GetHtml(anchor, name + ": " + Escaped(_Text.GetView())));
}

std::string VORKTRCaption::GetLines(int iWidth) const
{
    if (_Number == 0)
        Count();
    const std::string above = BreakLines(_Above.GetView(), iWidth);
    return above + (above.empty() ? "" : "\n") +
           BreakLines((_Place->name + ": " + _Text).GetView(), iWidth);
}

void VORKTRCaption::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.Append("\n").AppendBytes(PlaceLines(GetLines(CaptionWidth), OnCentre));
}

int VORKTRCaption::GetWidthInChar() const
{
    return WidestLine(GetLines(CellWidth));
}

void VORKTRCaption::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    ioText.AppendBytes(GetLines(CellWidth));
}
