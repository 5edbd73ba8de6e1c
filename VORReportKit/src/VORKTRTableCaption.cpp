#include "VORKTRTableCaption.h"

#include <atomic>

#include "VORKTRKitPieces.h"

namespace
{

std::atomic<int> LastTableNumber{0};

int GetTableNumber()
{
    return ++LastTableNumber;
}

constexpr VORKTRCaption::Kind Tables = {"Table ", "Table_Number", "table", &GetTableNumber};

} // namespace

VORKTRTableCaption::VORKTRTableCaption(const VORUnicodeString& iCaption)
    : VORKTRCaption(Tables, iCaption)
{
}

void VORKTRTableCaption::InitTableNumber()
{
    LastTableNumber = 0;
}

void VORKTRTableCaption::Report(unsigned int iFile, const char*, unsigned char iFrames,
                                unsigned int) const
{
    const std::string anchor = TakeNumber(_Buffer, iFrames);
    WriteHtml(iFile, "<DIV ID=\"" + anchor + "\" CLASS=\"tablecaption\" ALIGN=CENTER>" + GetHtml() +
                         "</DIV>\n");
}

void VORKTRTableCaption::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.AppendBytes("\n" + JoinCentred(GetLines(CaptionWidth)));
}

int VORKTRTableCaption::GetWidthInChar() const
{
    return WidestLine(JoinIndented(GetLines(CellWidth), 0));
}

void VORKTRTableCaption::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    ioText.AppendBytes(JoinIndented(GetLines(CellWidth), 0));
}
