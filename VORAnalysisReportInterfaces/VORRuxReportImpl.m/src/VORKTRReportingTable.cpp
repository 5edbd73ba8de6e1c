#include "VORKTRReportingTable.h"

#include <algorithm>
#include <climits>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>

#include "VORKTRCell.h"
#include "VORKTRFragment.h"
#include "VORKTRLayout.h"
#include "VORKTRMakeItem.h"
#include "VORKTRReportingFloat.h"
#include "VORKTRReportingInt.h"
#include "VORKTRReportingText.h"
#include "VORStatus.h"

namespace
{

constexpr unsigned long Edged = VORKTRTableHeaderRow | VORKTRTableLastRow | VORKTRTableHeaderColumn;
constexpr unsigned long Framed = Edged | VORKTRTableRuled;

// The last position is kept out, so that the counts fit an int.
bool IsPosition(int iRow, int iColumn)
{
    return iRow >= 0 && iColumn >= 0 && iRow < INT_MAX && iColumn < INT_MAX;
}

/// Blanks around a table and its cells.
struct Placement {
    int width;
    VORUnicodeString indent;
    VORUnicodeString padLeft;
    VORUnicodeString padRight;
};

// A blank on the right of each cell, then one on its left, while the table fits the page.
Placement PlaceOnPage(int iWidth, int iColumns)
{
    Placement place{iWidth, "", "", ""};
    for (VORUnicodeString* const pad : {&place.padRight, &place.padLeft}) {
        if (place.width + iColumns < PageWidth) {
            place.width += iColumns;
            *pad = " ";
        }
    }
    place.indent = Repeat(' ', MarginOf(place.width));
    return place;
}

VORUnicodeString IndentOfNotCentered(int iWidth)
{
    return Repeat(' ', std::clamp(PageWidth - 1 - iWidth, 0, 2));
}

/// The text of one cell, given out line by line for its place in a row.
class CellLines
{
public:
    explicit CellLines(const VORKTRReportingObj* iItem)
    {
        if (iItem)
            iItem->ASCIIReport_in_Table(_Text);
        const std::string_view text = _Text.ConvertToChar();
        _End = text.size() - (!text.empty() && text.back() == '\n' ? 1 : 0);
        _Height = 1 + static_cast<int>(std::count(text.begin(), text.begin() + _End, '\n'));
    }

    int GetHeight() const { return _Height; }

    /// Puts the text in the middle of a row; an odd empty line goes below.
    void CenterIn(int iRowHeight) { _EmptyAbove = (iRowHeight - _Height) / 2; }

    /// The next line of the row, empty above and below the text.
    std::string_view TakeLine()
    {
        if (_EmptyAbove > 0) {
            --_EmptyAbove;
            return {};
        }
        const std::string_view rest = BytesOf(_Text).substr(_Done, _End - _Done);
        const std::string_view line = rest.substr(0, rest.find('\n'));
        _Done = std::min(_Done + line.size() + 1, _End);
        return line;
    }

private:
    VORUnicodeString _Text;
    std::size_t _Done = 0;
    std::size_t _End = 0; // a final line feed begins no line
    int _Height = 1;
    int _EmptyAbove = 0;
};

void AppendBlanks(std::string& ioText, int iCount)
{
    ioText.append(static_cast<std::size_t>(std::max(iCount, 0)), ' ');
}

// The odd blank goes to the left.
void AppendCentered(std::string& ioText, std::string_view iLine, int iWidth)
{
    const int room = iWidth - CountChars(iLine);
    AppendBlanks(ioText, (room + 1) / 2);
    ioText += iLine;
    AppendBlanks(ioText, room / 2);
}

} // namespace

VORKTRReportingTable::VORKTRReportingTable(unsigned long style) : _Style(style) {}

VORKTRReportingTable::~VORKTRReportingTable() = default;

template <typename ItemClass, typename... Arguments>
int VORKTRReportingTable::SetNew(int iRow, int iColumn, const Arguments&... iArguments)
{
    if (!IsPosition(iRow, iColumn))
        return VOR_E_FAIL;
    Reallocate(iRow, iColumn);
    CellAt(iRow, iColumn).reset();
    CellAt(iRow, iColumn) = MakeItem<ItemClass>(iArguments...);
    return VOR_S_OK;
}

int VORKTRReportingTable::SetInt(int row, int col, int value, const char* format)
{
    return SetNew<VORKTRReportingInt>(row, col, value, format);
}

int VORKTRReportingTable::SetFloat(int row, int col, float value, const char* format)
{
    return SetNew<VORKTRReportingFloat>(row, col, value, format);
}

int VORKTRReportingTable::SetFloat(int row, int col, double value, const char* format)
{
    return SetFloat(row, col, static_cast<float>(value), format);
}

int VORKTRReportingTable::SetText(int row, int col, const VORUnicodeString& text)
{
    return SetNew<VORKTRReportingText>(row, col, text);
}

int VORKTRReportingTable::SetObj(int row, int col, VORKTRReportingObj* item)
{
    if (!IsPosition(row, col) || !item)
        return VOR_E_FAIL;
    Cell cell(item);
    Reallocate(row, col);
    CellAt(row, col) = std::move(cell);
    return VOR_S_OK;
}

void VORKTRReportingTable::Reallocate(int row, int col)
{
    const int rows = std::max(_RowNb, row + 1);
    const int columns = std::max(_ColumnNb, col + 1);
    if (static_cast<std::size_t>(columns) > _Stride)
        Widen(static_cast<std::size_t>(columns));
    if (_Cells.size() < Offset(rows, 0))
        _Cells.resize(Offset(rows, 0));
    _RowNb = rows; // only now that there is memory for them
    _ColumnNb = columns;
}

// Half as much again at least, so that widening column by column moves each cell a few times only.
void VORKTRReportingTable::Widen(std::size_t iColumns)
{
    const std::size_t stride = _Stride == 0 ? iColumns : std::max(iColumns, _Stride * 3 / 2);
    std::vector<Cell> cells(stride * static_cast<std::size_t>(_RowNb));
    for (int row = 0; row < _RowNb; ++row) {
        for (int column = 0; column < _ColumnNb; ++column)
            cells[static_cast<std::size_t>(row) * stride + static_cast<std::size_t>(column)] =
                std::move(CellAt(row, column));
    }
    _Cells = std::move(cells);
    _Stride = stride;
}

int VORKTRReportingTable::GetType() const
{
    return VORKTRReportingTableKind;
}

void VORKTRReportingTable::Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                                  unsigned int iNavigationFile) const
{
    if (_RowNb == 0 || _ColumnNb == 0)
        return;
    const bool isCentered = !(_Style & VORKTRTableNotCentered);
    WriteFragment(iFile, isCentered ? "<BR>\n<CENTER>\n" : "<P>\n\n");
    WriteFragment(iFile, _Style & VORKTRTableRuled ? "<TABLE BORDER=2 CELLPADDING=5>\n"
                                                   : "<TABLE BORDER=0 CELLPADDING=5>\n");
    for (int row = 0; row < _RowNb; ++row) {
        WriteFragment(iFile, OpenRow);
        for (int column = 0; column < _ColumnNb; ++column) {
            if (const Cell& cell = CellAt(row, column))
                cell->Report_in_Table(iFile, iPath, iFrames, iNavigationFile,
                                      CellStyle(row, column));
            else
                WriteFragment(iFile, EmptyCell);
        }
        WriteFragment(iFile, CloseRow);
    }
    WriteFragment(iFile, CloseTable);
    WriteFragment(iFile, isCentered ? "</CENTER>\n" : "</P>\n");
}

char VORKTRReportingTable::CellStyle(int iRow, int iColumn) const
{
    unsigned long style = 0;
    if (iRow == 0)
        style |= _Style & VORKTRTableHeaderRow;
    if (iRow == _RowNb - 1)
        style |= _Style & VORKTRTableLastRow;
    if (iColumn == 0)
        style |= _Style & VORKTRTableHeaderColumn;
    return static_cast<char>(style);
}

int* VORKTRReportingTable::GetColsWidth() const
{
    int* const widths = new int[static_cast<std::size_t>(_ColumnNb)]();
    for (int row = 0; row < _RowNb; ++row) {
        for (int column = 0; column < _ColumnNb; ++column) {
            if (const Cell& cell = CellAt(row, column))
                widths[column] = std::max(widths[column], cell->GetWidthInChar());
        }
    }
    return widths;
}

int VORKTRReportingTable::GetWidthInChar() const
{
    const std::unique_ptr<int[]> widths(GetColsWidth());
    return std::accumulate(widths.get(), widths.get() + _ColumnNb, _ColumnNb + 1);
}

void VORKTRReportingTable::ASCIIReport(VORUnicodeString& ioText) const
{
    ASCIIReport_generic(ioText, 0);
}

void VORKTRReportingTable::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    ASCIIReport_generic(ioText, 1);
}

void VORKTRReportingTable::ASCIIReport_generic(VORUnicodeString& out, unsigned char inTable) const
{
    if (_RowNb == 0 || _ColumnNb == 0)
        return;
    const std::unique_ptr<const int[]> widths(GetColsWidth());
    const int width = GetWidthInChar();
    Placement place = inTable ? Placement{width, "", "", ""} : PlaceOnPage(width, _ColumnNb);
    if (_Style & VORKTRTableNotCentered)
        place.indent = IndentOfNotCentered(place.width);
    const VORUnicodeString rule = place.indent + Repeat('*', place.width) + "\n";
    if (_Style & Framed)
        out.Append(rule);
    for (int row = 0; row < _RowNb; ++row) {
        PrintRow(out, row, place.indent, place.padLeft, place.padRight, widths.get());
        if (HasRuleBelow(row))
            out.Append(rule);
    }
}

bool VORKTRReportingTable::HasRuleBelow(int iRow) const
{
    return (iRow == 0 && (_Style & VORKTRTableHeaderRow)) ||
           (iRow == _RowNb - 2 && (_Style & VORKTRTableLastRow)) ||
           (iRow == _RowNb - 1 && (_Style & Framed));
}

void VORKTRReportingTable::PrintRow(VORUnicodeString& out, int row, const VORUnicodeString& indent,
                                    const VORUnicodeString& padLeft,
                                    const VORUnicodeString& padRight, const int* widths) const
{
    std::vector<CellLines> cells;
    cells.reserve(static_cast<std::size_t>(_ColumnNb));
    int height = 1;
    for (int column = 0; column < _ColumnNb; ++column) {
        cells.emplace_back(CellAt(row, column).get());
        height = std::max(height, cells.back().GetHeight());
    }
    for (CellLines& cell : cells)
        cell.CenterIn(height);

    std::string text;
    for (int line = 0; line < height; ++line) {
        text.append(BytesOf(indent)) += EdgeChar();
        for (int column = 0; column < _ColumnNb; ++column) {
            text += BytesOf(padLeft);
            AppendCentered(text, cells[static_cast<std::size_t>(column)].TakeLine(),
                           widths[column]);
            text.append(BytesOf(padRight)) += SeparatorBehind(column);
        }
        text += '\n';
    }
    out.Append(UnicodeOf(text));
}

char VORKTRReportingTable::SeparatorChar() const
{
    return _Style & VORKTRTableRuled ? '*' : ' ';
}

char VORKTRReportingTable::EdgeChar() const
{
    return _Style & Edged ? '*' : SeparatorChar();
}

char VORKTRReportingTable::SeparatorBehind(int iColumn) const
{
    if (iColumn == 0 && (_Style & VORKTRTableHeaderColumn))
        return '*';
    return iColumn == _ColumnNb - 1 ? EdgeChar() : SeparatorChar();
}
