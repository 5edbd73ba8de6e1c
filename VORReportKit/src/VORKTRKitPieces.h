#ifndef VORKTRKitPieces_h
#define VORKTRKitPieces_h

#include <string>
#include <string_view>
#include <vector>

#include "VORKTRLinkTarget.h"

// What the items of the kit share.

constexpr int PageWidth = 80;    // of the text report
constexpr int CaptionWidth = 72; // leaves a margin on both sides
constexpr int CellWidth = 40;    // of what is broken inside a cell

/// Says the character set of a page, and that it is made for the width of the device.
constexpr std::string_view PageFacts =
    "<META CHARSET=\"utf-8\">\n"
    "<META NAME=\"viewport\" CONTENT=\"width=device-width, initial-scale=1\">\n";

/// Writes one finished fragment of HTML; the page keeps a failure.
void WriteHtml(unsigned int iFile, std::string_view iHtml);

/// The text as HTML, as a paragraph writes it.
std::string Escaped(std::string_view iText);

enum Align { Left, Centred, Right };

/// The tag that opens a table cell, and the one that closes it.
std::string_view OpenCell(bool iIsHeader, Align iAlign);
std::string_view CloseCell(bool iIsHeader);
/// A whole cell.
std::string InCell(bool iIsHeader, Align iAlign, std::string_view iHtml);

/// A link as HTML; the target's name alone while it has no place in a site.
std::string LinkHtml(const VORKTRLinkTarget::Place& iPlace);

int CountChars(std::string_view iText);
/// iCount blanks; none for a count below 1.
std::string Blanks(int iCount);

/// Breaks a text between words into lines of at most iWidth characters; a longer word has a line to
/// itself.
std::vector<std::string> BreakLines(std::string_view iText, int iWidth);

/// The lines, each behind iIndent blanks or centred on the page and ended by a line feed.
std::string JoinIndented(const std::vector<std::string>& iLines, int iIndent);
std::string JoinCentred(const std::vector<std::string>& iLines);

/// Length of the longest line of a text in characters.
int WidestLine(std::string_view iText);

/// Appends a number in a format of VORNumberFormat.h or its like, and returns the length.
template <typename Format, typename Number>
int AppendNumber(std::string& ioText, const Format& iFormat, Number iNumber)
{
    char text[64];
    const int length = iFormat.Write(iNumber, text, sizeof text);
    const auto size = static_cast<std::size_t>(length);
    if (size < sizeof text) {
        ioText.append(text, size);
        return length;
    }
    std::string longText(size + 1, '\0');
    iFormat.Write(iNumber, longText.data(), longText.size());
    ioText.append(longText, 0, size);
    return length;
}

#endif
