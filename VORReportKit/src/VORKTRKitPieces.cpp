#include "VORKTRKitPieces.h"

#include <algorithm>

#include "VORFile.h"
#include "VORKTRReportTools.h"

using namespace VORKit;

namespace
{

std::string_view TakeWord(std::string_view& ioText)
{
    constexpr std::string_view blanks = " \t\n\r";
    ioText.remove_prefix(std::min(ioText.find_first_not_of(blanks), ioText.size()));
    const std::string_view word = ioText.substr(0, ioText.find_first_of(blanks));
    ioText.remove_prefix(word.size());
    return word;
}

} // namespace

void VORKit::WriteHtml(unsigned int iFile, std::string_view iHtml)
{
    VORFWrite(iFile, iHtml.data(), iHtml.size(), nullptr);
}

std::string VORKit::Escaped(std::string_view iText)
{
    VORUnicodeString html;
    VORKTRReportTools::AppendEscaped(html, VORUnicodeString(iText));
    return html.ToString();
}

VORUnicodeString VORKit::OnOneLine(VORUnicodeString ioText)
{
    ioText.ReplaceAll("\n", " ");
    ioText.ReplaceAll("\t", " ");
    return ioText;
}

std::string_view VORKit::OpenCell(bool iIsHeader, Align iAlign)
{
    constexpr std::string_view tags[][3] = {
        {"<TD ALIGN=LEFT>", "<TD ALIGN=CENTER>", "<TD ALIGN=RIGHT>"},
        {"<TH ALIGN=LEFT>", "<TH ALIGN=CENTER>", "<TH ALIGN=RIGHT>"}};
    return tags[iIsHeader][iAlign];
}

std::string_view VORKit::CloseCell(bool iIsHeader)
{
    return iIsHeader ? "</TH>\n" : "</TD>\n";
}

std::string VORKit::InCell(bool iIsHeader, Align iAlign, std::string_view iHtml)
{
    return std::string(OpenCell(iIsHeader, iAlign)).append(iHtml).append(CloseCell(iIsHeader));
}

std::string VORKit::LinkHtml(const VORKTRLinkTarget::Place& iPlace)
{
    const std::string name = iPlace.name.ToString();
    return iPlace.href.empty() ? name : "<A HREF=\"" + iPlace.href + "\">" + name + "</A>";
}

int VORKit::CountChars(std::string_view iText)
{
    return static_cast<int>(VORCountChars(iText.data(), iText.size()));
}

int VORKit::WidestLine(std::string_view iText)
{
    int width = 0;
    while (!iText.empty())
        width = std::max(width, CountChars(TakeLine(iText)));
    return width;
}

std::string_view VORKit::TakeLine(std::string_view& ioText)
{
    const std::string_view line = ioText.substr(0, ioText.find('\n'));
    ioText.remove_prefix(std::min(line.size() + 1, ioText.size()));
    return line;
}

std::string VORKit::BreakLines(std::string_view iText, int iWidth)
{
    std::string lines;
    int used = 0; // of the line
    for (std::string_view word = TakeWord(iText); !word.empty(); word = TakeWord(iText)) {
        const int length = CountChars(word);
        const bool fits = used + 1 + length <= iWidth;
        if (!lines.empty())
            lines += fits ? ' ' : '\n';
        used = (fits && used > 0 ? used + 1 : 0) + length;
        lines += word;
    }
    return lines;
}

std::string VORKit::PlaceLines(std::string_view iText, int iIndent)
{
    std::string placed;
    while (!iText.empty()) {
        const std::string_view line = TakeLine(iText);
        const int blanks = iIndent == OnCentre ? (PageWidth - CountChars(line)) / 2 : iIndent;
        placed.append(static_cast<std::size_t>(std::max(blanks, 0)), ' ').append(line) += '\n';
    }
    return placed;
}
