#ifndef VORKTRKitPieces_h
#define VORKTRKitPieces_h

#include <string>
#include <string_view>

#include "VORKTRLinkTarget.h"

namespace VORKit
{

constexpr int PageWidth = 80; // of the text report
constexpr int CellWidth = 40; // of what is broken inside a cell

/// Says the character set of a page, and that it is made for the width of the device.
constexpr std::string_view PageFacts =
    "<META CHARSET=\"utf-8\">\n"
    "<META NAME=\"viewport\" CONTENT=\"width=device-width, initial-scale=1\">\n";

/// Writes one finished fragment of HTML; the page keeps a failure.
void WriteHtml(unsigned int iFile, std::string_view iHtml);

/// The text as HTML, as a paragraph writes it.
std::string Escaped(std::string_view iText);

/// The text with blanks in place of line feeds and tabs.
VORUnicodeString OnOneLine(VORUnicodeString ioText);

enum Align { Left, Centred, Right };

/// The tag that opens a table cell, and the one that closes it.
std::string_view OpenCell(bool iIsHeader, Align iAlign);
std::string_view CloseCell(bool iIsHeader);
/// A whole cell.
std::string InCell(bool iIsHeader, Align iAlign, std::string_view iHtml);

/// A link as HTML; the target's name alone while it has no place in a site.
std::string LinkHtml(const VORKTRLinkTarget::Place& iPlace);

int CountChars(std::string_view iText);
/// Length of the longest line of a text in characters.
int WidestLine(std::string_view iText);
/// Cuts the first line off a text and returns it without its line feed.
std::string_view TakeLine(std::string_view& ioText);

/// The text broken between words into lines of at most iWidth characters; a longer word has a line
/// to itself.
std::string BreakLines(std::string_view iText, int iWidth);

constexpr int OnCentre = -1;
/// The lines of a text behind iIndent blanks each, or on the centre of the page.
std::string PlaceLines(std::string_view iText, int iIndent);

/// Appends a number in a format of VORNumberFormat.h and returns the length of its text, which ends
/// at a NUL, that of "%c" with 0.
template <typename Format, typename Number>
int AppendNumber(std::string& ioText, const Format& iFormat, Number iNumber)
{
    const std::size_t before = ioText.size();
    char text[64];
    const auto size = static_cast<std::size_t>(iFormat.Write(iNumber, text, sizeof text)) + 1;
    if (size <= sizeof text) {
        ioText += text;
    } else {
        std::string longText(size, '\0');
        iFormat.Write(iNumber, longText.data(), size);
        ioText += longText.c_str();
    }
    return static_cast<int>(ioText.size() - before);
}

} // namespace VORKit

#endif
