#include "VORKTRKitPieces.h"

#include <algorithm>

#include "VORFile.h"
#include "VORKTRReportTools.h"

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

void WriteHtml(unsigned int iFile, std::string_view iHtml)
{
    VORFWrite(iFile, iHtml.data(), iHtml.size(), nullptr);
}

std::string Escaped(std::string_view iText)
{
    VORUnicodeString html;
    VORKTRReportTools::AppendEscaped(html, VORUnicodeString(iText));
    return html.ToString();
}

std::string_view OpenCell(bool iIsHeader, Align iAlign)
{
    constexpr std::string_view tags[][3] = {
        {"<TD ALIGN=LEFT>", "<TD ALIGN=CENTER>", "<TD ALIGN=RIGHT>"},
        {"<TH ALIGN=LEFT>", "<TH ALIGN=CENTER>", "<TH ALIGN=RIGHT>"}};
    return tags[iIsHeader][iAlign];
}

std::string_view CloseCell(bool iIsHeader)
{
    return iIsHeader ? "</TH>\n" : "</TD>\n";
}

std::string InCell(bool iIsHeader, Align iAlign, std::string_view iHtml)
{
    return std::string(OpenCell(iIsHeader, iAlign)).append(iHtml).append(CloseCell(iIsHeader));
}

std::string LinkHtml(const VORKTRLinkTarget::Place& iPlace)
{
    const std::string name = iPlace.name.ToString();
    return iPlace.href.empty() ? name : "<A HREF=\"" + iPlace.href + "\">" + name + "</A>";
}

int CountChars(std::string_view iText)
{
    return static_cast<int>(VORCountChars(iText.data(), iText.size()));
}

std::string Blanks(int iCount)
{
    return std::string(static_cast<std::size_t>(std::max(iCount, 0)), ' ');
}

std::vector<std::string> BreakLines(std::string_view iText, int iWidth)
{
    std::vector<std::string> lines;
    int room = 0;
    for (std::string_view word = TakeWord(iText); !word.empty(); word = TakeWord(iText)) {
        const int length = CountChars(word) + 1;
        if (room < length) {
            lines.emplace_back();
            room = iWidth + 1;
        }
        lines.back().append(lines.back().empty() ? "" : " ").append(word);
        room -= length;
    }
    return lines;
}

std::string JoinIndented(const std::vector<std::string>& iLines, int iIndent)
{
    std::string text;
    for (const std::string& line : iLines)
        text.append(Blanks(iIndent)).append(line) += '\n';
    return text;
}

std::string JoinCentred(const std::vector<std::string>& iLines)
{
    std::string text;
    for (const std::string& line : iLines)
        text += JoinIndented({line}, (PageWidth - CountChars(line)) / 2);
    return text;
}

int WidestLine(std::string_view iText)
{
    int width = 0;
    while (!iText.empty()) {
        const std::size_t end = std::min(iText.find('\n'), iText.size());
        width = std::max(width, CountChars(iText.substr(0, end)));
        iText.remove_prefix(std::min(end + 1, iText.size()));
    }
    return width;
}
