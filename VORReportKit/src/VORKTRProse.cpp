#include "VORKTRProse.h"

#include <algorithm>

#include "VORKTRKitPieces.h"

using namespace VORKit;

VORKTRProse::VORKTRProse(const VORUnicodeString& iText, int iIndent, int iCellWidth)
    : _Indent(std::clamp(iIndent, 0, PageWidth - 1)), _CellWidth(iCellWidth)
{
    Add(iText);
}

VORKTRProse& VORKTRProse::Add(const VORUnicodeString& iText)
{
    _Pieces.push_back({OnOneLine(iText), nullptr});
    return *this;
}

VORKTRProse& VORKTRProse::AddLink(const VORKTRLinkTarget& iTarget)
{
    _Pieces.push_back({"", iTarget.GetPlace()});
    return *this;
}

std::string VORKTRProse::GetHtml() const
{
    std::string html;
    for (const Piece& piece : _Pieces)
        html += piece.place ? LinkHtml(*piece.place) : Escaped(piece.text.GetView());
    return html;
}

std::string VORKTRProse::GetLines(int iWidth) const
{
    std::string text;
    for (const Piece& piece : _Pieces)
        text += (piece.place ? piece.place->name : piece.text).GetView();
    return BreakLines(text, iWidth);
}

void VORKTRProse::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    WriteHtml(iFile, "<P>" + GetHtml() + "</P>\n");
}

void VORKTRProse::Report_in_Table(unsigned int iFile, const char*, unsigned char, unsigned int,
                                  char iHeader) const
{
    WriteHtml(iFile, InCell(iHeader, Left, GetHtml()));
}

void VORKTRProse::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.AppendBytes(PlaceLines(GetLines(PageWidth - _Indent), _Indent) + "\n");
}

int VORKTRProse::GetWidthInChar() const
{
    return WidestLine(GetLines(_CellWidth));
}

void VORKTRProse::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    ioText.AppendBytes(GetLines(_CellWidth));
}
