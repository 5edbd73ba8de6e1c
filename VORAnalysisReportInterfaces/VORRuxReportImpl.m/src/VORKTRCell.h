#ifndef VORKTRCell_h
#define VORKTRCell_h

#include <string_view>

// The parts of HTML tables that lists, tables and their cells share.

constexpr std::string_view OpenRow = "<TR>\n";
constexpr std::string_view CloseRow = "</TR>\n";
constexpr std::string_view CloseTable = "</TABLE>\n";
constexpr std::string_view OpenLeftTD = "<TD ALIGN=LEFT>";
constexpr std::string_view OpenRightTD = "<TD ALIGN=RIGHT>";
constexpr std::string_view CloseTD = "</TD>\n";
constexpr std::string_view CloseTH = "</TH>\n";
constexpr std::string_view EmptyCell = "<TD>&nbsp;</TD>\n";

/// Tags around a table cell: TH when the cell lies in a styled row or column, else TD.
struct CellTags {
    std::string_view open;
    std::string_view close;
};

constexpr CellTags CenteredCell(char iHeader)
{
    return iHeader ? CellTags{"<TH ALIGN=CENTER>", CloseTH}
                   : CellTags{"<TD ALIGN=CENTER>", CloseTD};
}

constexpr CellTags RightCell(char iHeader)
{
    return iHeader ? CellTags{"<TH ALIGN=RIGHT>", CloseTH} : CellTags{OpenRightTD, CloseTD};
}

#endif
