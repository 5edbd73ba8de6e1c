#include "VORKTRKitPieces.h"

#include <algorithm>

#include "VORFile.h"

namespace
{

constexpr std::string_view Blanks = " \t\n\r";

std::string_view TakeWord(std::string_view& ioText)
{
    ioText.remove_prefix(std::min(ioText.find_first_not_of(Blanks), ioText.size()));
    const std::string_view word = ioText.substr(0, ioText.find_first_of(Blanks));
    ioText.remove_prefix(word.size());
    return word;
}

} // namespace

void WriteHtml(unsigned int iFile, std::string_view iHtml)
{
    VORFWrite(iFile, iHtml.data(), iHtml.size(), nullptr);
}

std::string_view BytesOf(const VORUnicodeString& iText)
{
    return {iText.ConvertToChar(), static_cast<std::size_t>(iText.GetLengthInByte())};
}

VORUnicodeString UnicodeOf(std::string_view iBytes)
{
    return VORUnicodeString(iBytes.data(), static_cast<int>(iBytes.size()));
}

int CountChars(std::string_view iText)
{
    return static_cast<int>(VORCountChars(iText.data(), iText.size()));
}

std::string Escaped(const VORUnicodeString& iText)
{
    VORUnicodeString html = iText;
    html.ReplaceAll("&", "&amp;");
    html.ReplaceAll("<", "&lt;");
    html.ReplaceAll(">", "&gt;");
    html.ReplaceAll("\"", "&quot;");
    return std::string(BytesOf(html));
}

std::string LinkHtml(const VORKTRLinkTarget::Place& iPlace)
{
    const std::string name(BytesOf(iPlace.name));
    return iPlace.href.empty() ? name : "<A HREF=\"" + iPlace.href + "\">" + name + "</A>";
}

std::vector<std::string> BreakLines(std::string_view iText, int iWidth)
{
    std::vector<std::string> lines;
    int length = 0;
    for (std::string_view word = TakeWord(iText); !word.empty(); word = TakeWord(iText)) {
        const int wordLength = CountChars(word);
        if (lines.empty() || length + 1 + wordLength > iWidth) {
            lines.emplace_back(word);
            length = wordLength;
        } else {
            lines.back().append(" ").append(word);
            length += 1 + wordLength;
        }
    }
    return lines;
}

std::string JoinIndented(const std::vector<std::string>& iLines, int iIndent)
{
    std::string text;
    for (const std::string& line : iLines)
        text.append(static_cast<std::size_t>(iIndent), ' ').append(line) += '\n';
    return text;
}

std::string JoinCentred(const std::vector<std::string>& iLines)
{
    std::string text;
    for (const std::string& line : iLines)
        text += JoinIndented({line}, std::max(PageWidth - CountChars(line), 0) / 2);
    return text;
}

int WidestLine(const std::vector<std::string>& iLines)
{
    int width = 0;
    for (const std::string& line : iLines)
        width = std::max(width, CountChars(line));
    return width;
}
