#include "VORKTRReportingText.h"

#include <algorithm>
#include <string_view>

#include "VORKTRAssert.h"
#include "VORKTRCell.h"
#include "VORKTREscape.h"
#include "VORKTRFragment.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"

using namespace VORReport;

namespace
{

constexpr const char* Source = VORKTR_SOURCE_PATH "VORKTRReportingText";
constexpr const char* AllTextAssertion = "AssertionFailed:_AllText";

void AppendEscaped(VORKTRByteBuffer& ioHtml, std::string_view iText)
{
    EscapeHtml(iText, [&ioHtml](std::string_view piece) { ioHtml.Append(piece); });
}

} // namespace

VORKTRReportingText::VORKTRReportingText() : _AllText(std::in_place) {}

VORKTRReportingText::VORKTRReportingText(const VORUnicodeString& text) : _AllText(text) {}

VORKTRReportingText::~VORKTRReportingText() = default;

int VORKTRReportingText::WriteUnicode(const VORUnicodeString& text)
{
    AssertField(_AllText.has_value(), AllTextAssertion, Source, 70);
    _AllText->Append(text);
    return 0;
}

int VORKTRReportingText::WriteFloat(float value, const char* format)
{
    AssertField(_AllText.has_value(), AllTextAssertion, Source, 81);
    VORKTRReportingFloat(value, format).ASCIIReport(*_AllText);
    return 0;
}

int VORKTRReportingText::WriteInt(int value, const char* format)
{
    AssertField(_AllText.has_value(), AllTextAssertion, Source, 100);
    VORKTRReportingInt(value, format).ASCIIReport(*_AllText);
    return 0;
}

int VORKTRReportingText::GetType() const
{
    return VORKTRReportingTextKind;
}

void VORKTRReportingText::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    ShortFragment html(iFile);
    html.Append("<p>");
    AppendEscaped(html, BytesOf(*_AllText));
    html.Append("</p>\n");
    html.Send();
}

void VORKTRReportingText::Report_in_List(unsigned int iFile, const char*, unsigned char,
                                         unsigned int, char iWide) const
{
    ShortFragment html(iFile);
    AppendTextInList(html, BytesOf(*_AllText), iWide);
    html.Send();
}

void VORKTRReportingText::Report_in_Table(unsigned int iFile, const char*, unsigned char,
                                          unsigned int, char iHeader) const
{
    ShortFragment html(iFile);
    AppendTextInTable(html, BytesOf(*_AllText), iHeader);
    html.Send();
}

void VORReport::AppendTextInTable(VORKTRByteBuffer& ioHtml, std::string_view iText, char iHeader)
{
    const CellTags cell = CenteredCell(iHeader);
    ioHtml.Append(cell.open);
    AppendEscaped(ioHtml, iText);
    ioHtml.Append(cell.close);
}

void VORReport::AppendTextInList(VORKTRByteBuffer& ioHtml, std::string_view iText, char iWide)
{
    ioHtml.Append(iWide ? OpenWideTextTD : OpenRightTD);
    AppendEscaped(ioHtml, iText);
    ioHtml.Append(CloseTD);
}

int VORReport::WidthOfText(std::string_view iText)
{
    int width = 0;
    for (auto end = iText.find('\n'); end != std::string_view::npos; end = iText.find('\n')) {
        width = std::max(width, CountChars(iText.substr(0, end)));
        iText.remove_prefix(end + 1);
    }
    return std::max(width, CountChars(iText));
}

int VORKTRReportingText::GetWidthInChar() const
{
    AssertField(_AllText.has_value(), AllTextAssertion, Source, 211);
    return WidthOfText(BytesOf(*_AllText));
}

void VORKTRReportingText::ASCIIReport(VORUnicodeString& ioText) const
{
    AssertField(_AllText.has_value(), AllTextAssertion, Source, 233);
    ioText.Append(*_AllText);
}

void VORKTRReportingText::ReplaceAllOccurrences(VORUnicodeString& text,
                                                const VORUnicodeString& what,
                                                const VORUnicodeString& by)
{
    text.ReplaceAll(what, by);
}
