#include "VORKTRReportingText.h"

#include <algorithm>
#include <array>
#include <memory_resource>
#include <string>
#include <string_view>

#include "VORKTRAssert.h"
#include "VORKTRCell.h"
#include "VORKTRFragment.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"

namespace
{

constexpr const char* Source = VORKTR_SOURCE_PATH "VORKTRReportingText";
constexpr const char* AllTextAssertion = "AssertionFailed:_AllText";

// What stands for a special character of HTML; empty for any other.
constexpr std::string_view EscapeOf(char iChar)
{
    switch (iChar) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '\n':
        return "<BR>\n";
    case '\t':
        return "<TT>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</TT>";
    default:
        return {};
    }
}

// Searching a text with this table is far faster than with the cases above.
constexpr auto IsSpecial = [] {
    std::array<bool, 256> special{};
    for (std::size_t i = 0; i < special.size(); ++i)
        special[i] = !EscapeOf(static_cast<char>(i)).empty();
    return special;
}();

void AppendEscaped(std::pmr::string& ioHtml, std::string_view iText)
{
    const auto isSpecial = [](char c) { return IsSpecial[static_cast<unsigned char>(c)]; };
    for (;;) {
        const auto special = std::find_if(iText.begin(), iText.end(), isSpecial);
        const auto plain = static_cast<std::size_t>(special - iText.begin());
        ioHtml += iText.substr(0, plain);
        if (special == iText.end())
            return;
        ioHtml += EscapeOf(*special);
        iText.remove_prefix(plain + 1);
    }
}

void WriteEscaped(unsigned int iFile, std::string_view iOpen, const VORUnicodeString& iText,
                  std::string_view iClose)
{
    const std::string_view text = BytesOf(iText);
    // Most texts fit the stack; twice the text leaves a long one room to grow without a copy.
    char stack[1024];
    std::pmr::monotonic_buffer_resource memory(stack, sizeof stack);
    std::pmr::string html(&memory);
    html.reserve(iOpen.size() + 2 * text.size() + iClose.size());
    html = iOpen;
    AppendEscaped(html, text);
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
