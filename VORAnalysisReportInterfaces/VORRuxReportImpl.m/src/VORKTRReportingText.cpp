#include "VORKTRReportingText.h"

#include <algorithm>
#include <memory_resource>
#include <string>
#include <string_view>

#include "VORKTRAssert.h"
#include "VORKTRCell.h"
#include "VORKTREscape.h"
#include "VORKTRFragment.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"

namespace
{

constexpr const char* Source = VORKTR_SOURCE_PATH "VORKTRReportingText";
constexpr const char* AllTextAssertion = "AssertionFailed:_AllText";

void WriteEscaped(unsigned int iFile, std::string_view iOpen, const VORUnicodeString& iText,
                  std::string_view iClose)
{
    // Most texts fit the stack; twice the text leaves a long one room to grow without a copy.
    char stack[1024];
    std::pmr::monotonic_buffer_resource memory(stack, sizeof stack);
    std::pmr::string html(&memory);
    const auto size = static_cast<std::size_t>(iText.GetLengthInByte());
    html.reserve(iOpen.size() + 2 * size + iClose.size());
    html = iOpen;
    EscapeHtml(BytesOf(iText), [&html](std::string_view piece) { html += piece; });
    html += iClose;
    SendFragment(iFile, html);
}

} // namespace

VORKTRReportingText::VORKTRReportingText() : _AllText(std::make_unique<VORUnicodeString>()) {}

VORKTRReportingText::VORKTRReportingText(const VORUnicodeString& text) : VORKTRReportingText()
{
    WriteUnicode(text);
}

VORKTRReportingText::~VORKTRReportingText() = default;

int VORKTRReportingText::WriteUnicode(const VORUnicodeString& text)
{
    AssertField(_AllText.get(), AllTextAssertion, Source, 70);
    _AllText->Append(text);
    return 0;
}

int VORKTRReportingText::WriteFloat(float value, const char* format)
{
    AssertField(_AllText.get(), AllTextAssertion, Source, 81);
    VORKTRReportingFloat(value, format).ASCIIReport(*_AllText);
    return 0;
}

int VORKTRReportingText::WriteInt(int value, const char* format)
{
    AssertField(_AllText.get(), AllTextAssertion, Source, 100);
    VORKTRReportingInt(value, format).ASCIIReport(*_AllText);
    return 0;
}

int VORKTRReportingText::GetType() const
{
    return VORKTRReportingTextKind;
}

void VORKTRReportingText::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    WriteEscaped(iFile, "<p>", *_AllText, "</p>\n");
}

void VORKTRReportingText::Report_in_List(unsigned int iFile, const char*, unsigned char,
                                         unsigned int, char iWide) const
{
    WriteEscaped(iFile, iWide ? "<TD ALIGN=CENTER COLSPAN=3>&nbsp;" : OpenRightTD, *_AllText,
                 CloseTD);
}

void VORKTRReportingText::Report_in_Table(unsigned int iFile, const char*, unsigned char,
                                          unsigned int, char iHeader) const
{
    const CellTags cell = CenteredCell(iHeader);
    WriteEscaped(iFile, cell.open, *_AllText, cell.close);
}

int VORKTRReportingText::GetWidthInChar() const
{
    AssertField(_AllText.get(), AllTextAssertion, Source, 211);
    std::string_view rest = BytesOf(*_AllText);
    int width = 0;
    for (auto end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
        width = std::max(width, CountChars(rest.substr(0, end)));
        rest.remove_prefix(end + 1);
    }
    return std::max(width, CountChars(rest));
}

void VORKTRReportingText::ASCIIReport(VORUnicodeString& ioText) const
{
    AssertField(_AllText.get(), AllTextAssertion, Source, 233);
    ioText.Append(*_AllText);
}

void VORKTRReportingText::ReplaceAllOccurrences(VORUnicodeString& text,
                                                const VORUnicodeString& what,
                                                const VORUnicodeString& by)
{
    text.ReplaceAll(what, by);
}
