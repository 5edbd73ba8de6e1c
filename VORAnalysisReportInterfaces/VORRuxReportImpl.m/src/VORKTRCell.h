#ifndef VORKTRCell_h
#define VORKTRCell_h

#include <string_view>

#include "VORNumberFormat.h"

class VORKTRByteBuffer;

namespace VORReport
{

// The parts of HTML tables that lists, tables and their cells share.

constexpr std::string_view OpenRow = "<TR>\n";
constexpr std::string_view CloseRow = "</TR>\n";
constexpr std::string_view CloseTable = "</TABLE>\n";
constexpr std::string_view OpenLeftTD = "<TD ALIGN=LEFT>";
constexpr std::string_view OpenCenterTD = "<TD ALIGN=CENTER>";
constexpr std::string_view OpenRightTD = "<TD ALIGN=RIGHT>";
constexpr std::string_view CloseTD = "</TD>\n";
constexpr std::string_view CloseTH = "</TH>\n";
constexpr std::string_view EmptyCell = "<TD>&nbsp;</TD>\n";
// Of a list with a float, whose values fill three cells each.
constexpr std::string_view OpenWideItemTD = "<TD ALIGN=RIGHT COLSPAN=3>";
constexpr std::string_view OpenWideTextTD = "<TD ALIGN=CENTER COLSPAN=3>&nbsp;";
constexpr std::string_view TwoEmptyCells = "<TD COLSPAN=2>&nbsp;</TD>\n";

/// Tags around a table cell: TH when the cell lies in a styled row or column, else TD.
struct CellTags {
    std::string_view open;
    std::string_view close;
};

constexpr CellTags CenteredCell(char iHeader)
{
    return iHeader ? CellTags{"<TH ALIGN=CENTER>", CloseTH} : CellTags{OpenCenterTD, CloseTD};
}

constexpr CellTags RightCell(char iHeader)
{
    return iHeader ? CellTags{"<TH ALIGN=RIGHT>", CloseTH} : CellTags{OpenRightTD, CloseTD};
}

/// @{ The texts of numbers.
void AppendInt(VORKTRByteBuffer& ioText, int iValue, const VORIntFormat& iFormat);
void AppendFloat(VORKTRByteBuffer& ioText, float iValue, const VORFloatFormat& iFormat);
/// @}

/// @{ How numbers and texts look in the cells of tables (iHeader as for an item) and in list lines
/// (iWide as for an item); each stands beside the item of its kind.
void AppendIntInTable(VORKTRByteBuffer& ioHtml, int iValue, const VORIntFormat& iFormat,
                      char iHeader);
void AppendIntInList(VORKTRByteBuffer& ioHtml, int iValue, const VORIntFormat& iFormat, char iWide);
void AppendFloatInTable(VORKTRByteBuffer& ioHtml, float iValue, const VORFloatFormat& iFormat,
                        char iHeader);
void AppendFloatInList(VORKTRByteBuffer& ioHtml, float iValue, const VORFloatFormat& iFormat);
void AppendTextInTable(VORKTRByteBuffer& ioHtml, std::string_view iText, char iHeader);
void AppendTextInList(VORKTRByteBuffer& ioHtml, std::string_view iText, char iWide);
/// @}

/// Length of a text's longest line in characters.
int WidthOfText(std::string_view iText);

} // namespace VORReport

#endif
