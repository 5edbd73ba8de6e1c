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

std::string_view BytesOf(const VORUnicodeString& iText);
VORUnicodeString UnicodeOf(std::string_view iBytes);
int CountChars(std::string_view iText);

/// The text as HTML, fit for the value of an attribute too.
std::string Escaped(const VORUnicodeString& iText);

/// A link as HTML; the target's name alone while it has no place in a site.
std::string LinkHtml(const VORKTRLinkTarget::Place& iPlace);

/// Breaks a text between words into lines of at most iWidth characters; a longer word has a line to
/// itself.
std::vector<std::string> BreakLines(std::string_view iText, int iWidth);

/// The lines, each behind iIndent blanks or centred on the page and ended by a line feed.
std::string JoinIndented(const std::vector<std::string>& iLines, int iIndent);
std::string JoinCentred(const std::vector<std::string>& iLines);

/// Length of the longest line in characters.
int WidestLine(const std::vector<std::string>& iLines);

#endif
