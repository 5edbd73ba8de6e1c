#include "VORKTRNumber.h"

#include "VORKTRKitPieces.h"
#include "VORNumberFormat.h"

namespace
{

std::string TextOf(double iValue, const char* iFormat)
{
    const int length = VORFormatFloat(iValue, iFormat, nullptr, 0);
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    VORFormatFloat(iValue, iFormat, text.data(), text.size());
    text.pop_back();
    return text;
}

} // namespace

VORKTRNumber::VORKTRNumber(double iValue, const char* iFormat) : _Text(TextOf(iValue, iFormat)) {}

VORKTRNumber::~VORKTRNumber() = default;

void VORKTRNumber::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    WriteHtml(iFile, _Text);
}

void VORKTRNumber::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.Append(UnicodeOf(_Text));
}

int VORKTRNumber::GetWidthInChar() const
{
    return CountChars(_Text);
}

// Three cells beside those of floats: what is before the decimal point, the point, the rest.
void VORKTRNumber::Report_in_List(unsigned int iFile, const char*, unsigned char, unsigned int,
                                  char iWide) const
{
    const std::size_t point = iWide ? _Text.find('.') : std::string::npos;
    std::string html = "<TD ALIGN=RIGHT>" + _Text.substr(0, point) + "</TD>\n";
    if (point != std::string::npos)
        html += "<TD ALIGN=CENTER>.</TD>\n<TD ALIGN=LEFT>" + _Text.substr(point + 1) + "</TD>\n";
    else if (iWide)
        html += "<TD COLSPAN=2>&nbsp;</TD>\n";
    WriteHtml(iFile, html);
}

void VORKTRNumber::Report_in_Table(unsigned int iFile, const char*, unsigned char, unsigned int,
                                   char iHeader) const
{
    WriteHtml(iFile, (iHeader ? "<TH ALIGN=RIGHT>" : "<TD ALIGN=RIGHT>") + _Text +
                         (iHeader ? "</TH>\n" : "</TD>\n"));
}
