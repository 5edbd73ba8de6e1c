#include "VORKTRNumber.h"

#include "VORKTRKitPieces.h"

using namespace VORKit;

VORKTRNumber::VORKTRNumber(double iValue, const char* iFormat)
{
    AppendNumber(_Text, VORFloatFormat(iFormat), iValue);
}

VORKTRNumber::VORKTRNumber(long long iValue, const char* iFormat)
{
    AppendNumber(_Text, VORIntFormat(iFormat), iValue);
}

void VORKTRNumber::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    WriteHtml(iFile, _Text);
}

void VORKTRNumber::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.AppendBytes(_Text);
}

int VORKTRNumber::GetWidthInChar() const
{
    return static_cast<int>(_Text.size());
}

// Three cells beside those of floats: what is before the decimal point, the point, the rest.
void VORKTRNumber::Report_in_List(unsigned int iFile, const char*, unsigned char, unsigned int,
                                  char iWide) const
{
    const std::size_t point = iWide ? _Text.find('.') : std::string::npos;
    std::string html = InCell(false, Right, _Text.substr(0, point));
    if (point != std::string::npos)
        html += InCell(false, Centred, ".") + InCell(false, Left, _Text.substr(point + 1));
    else if (iWide)
        html += "<TD COLSPAN=2>&nbsp;</TD>\n";
    WriteHtml(iFile, html);
}

void VORKTRNumber::Report_in_Table(unsigned int iFile, const char*, unsigned char, unsigned int,
                                   char iHeader) const
{
    WriteHtml(iFile, InCell(iHeader, Right, _Text));
}
