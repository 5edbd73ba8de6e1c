#include "VORKTRReportingText.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
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

struct Escape {
    char character;
    std::string_view html;
};

constexpr Escape Escapes[] = {{'&', "&amp;"},
                              {'<', "&lt;"},
                              {'>', "&gt;"},
                              {'\n', "<BR>\n"},
                              {'\t', "<TT>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</TT>"}};

// The characters alone, for strcspn, which is the fastest way to the next of them.
constexpr auto EscapedCharacters = [] {
    std::array<char, std::size(Escapes) + 1> characters{};
    for (std::size_t i = 0; i < std::size(Escapes); ++i)
        characters[i] = Escapes[i].character;
    return characters;
}();

void AppendEscape(std::pmr::string& ioHtml, char iCharacter)
{
    for (const Escape& escape : Escapes) {
        if (escape.character == iCharacter) {
            ioHtml += escape.html;
            return;
        }
    }
    ioHtml += iCharacter; // a NUL inside the text, where strcspn stops too
}

void AppendEscaped(std::pmr::string& ioHtml, const VORUnicodeString& iText)
{
    const char* at = iText.ConvertToChar();
    const char* const end = at + iText.GetLengthInByte();
    for (;;) {
        const std::size_t plain = std::strcspn(at, EscapedCharacters.data());
        ioHtml.append(at, plain);
        at += plain;
        if (at == end)
            return;
        AppendEscape(ioHtml, *at++);
    }
}

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
    AppendEscaped(html, iText);
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
