#include "VORKTRReportingTable.h"

#include <algorithm>
#include <climits>
#include <limits>
#include <numeric>
#include <string>
#include <string_view>
#include <typeinfo>
#include <utility>

#include "VORKTRCell.h"
#include "VORKTRFragment.h"
#include "VORKTRLayout.h"
#include "VORStatus.h"

using namespace VORReport;

namespace
{

constexpr unsigned long Edged = VORKTRTableHeaderRow | VORKTRTableLastRow | VORKTRTableHeaderColumn;
constexpr unsigned long Framed = Edged | VORKTRTableRuled;

// The last position is kept out, so that the counts fit an int.
bool IsPosition(int iRow, int iColumn)
{
    return iRow >= 0 && iColumn >= 0 && iRow < INT_MAX && iColumn < INT_MAX;
}

// At most what size_t holds; there is no memory for that many either.
std::size_t CountCells(std::size_t iRows, std::size_t iStride)
{
    constexpr std::size_t most = std::numeric_limits<std::size_t>::max();
    return iRows > 0 && iStride > most / iRows ? most : iRows * iStride;
}

/// Width of a table, and blanks around it and its cells.
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
    if (place.width + iColumns < PageWidth) {
        place.width += iColumns;
        place.padRight = " ";
    }
    if (place.width + iColumns < PageWidth) {
        place.width += iColumns;
        place.padLeft = " ";
    }
    place.indent = Repeat(' ', MarginOf(place.width));
    return place;
}

// Two blanks, given up when a line would be as long as the page: first one of them, then both.
VORUnicodeString IndentOfNotCentered(int iWidth)
{
    return Repeat(' ', iWidth < PageWidth - 2 ? 2 : iWidth == PageWidth - 2 ? 1 : 0);
}

/// The text of one cell, from iBegin to iEnd of a row's texts, given out line by line for its place
/// in the row.
class CellLines
{
public:
    CellLines(std::size_t iBegin, std::size_t iEnd) : _Next(iBegin), _End(iEnd) {}

    /// Before the lines are asked for, unless the text is one line without an end.
    void CountLines(std::string_view iTexts)
    {
        if (_Next != _End && iTexts[_End - 1] == '\n')
            --_End; // a final line feed begins no line
        const std::string_view text = iTexts.substr(_Next, _End - _Next);
        _Height = 1 + static_cast<int>(std::count(text.begin(), text.end(), '\n'));
        _Left = _Height;
    }

    int GetHeight() const { return _Height; }

    /// Puts the text in the middle of a row; an odd empty line goes below.
    void CenterIn(int iRowHeight) { _EmptyAbove = (iRowHeight - _Height) / 2; }

    /// The next line of the row, empty above and below the text.
    std::string_view TakeLine(std::string_view iTexts)
    {
        if (_EmptyAbove > 0) {
            --_EmptyAbove;
            return {};
        }
        if (_Left == 0)
            return {};
        --_Left;
        const std::string_view rest = iTexts.substr(_Next, _End - _Next);
        const std::string_view line = _Left == 0 ? rest : rest.substr(0, rest.find('\n'));
        _Next += line.size() + 1;
        return line;
    }

private:
    std::size_t _Next;
    std::size_t _End;
    int _Height = 1;
    int _Left = 1; // lines that were not taken
    int _EmptyAbove = 0;
};

char* Put(char* iAt, std::string_view iText)
{
    return iAt + iText.copy(iAt, iText.size());
}

char* PutBlanks(char* iAt, int iCount)
{
    return std::fill_n(iAt, std::max(iCount, 0), ' ');
}

// With one for each separator and edge.
int WidthOf(const std::vector<int>& iColumns)
{
    return std::accumulate(iColumns.begin(), iColumns.end(), static_cast<int>(iColumns.size()) + 1);
}

} // namespace

/// Writes rows as text, with the memory of one for all.
class VORKTRReportingTable::RowWriter
{
public:
    RowWriter(const VORKTRReportingTable& iTable, const VORUnicodeString& iIndent,
              const VORUnicodeString& iPadLeft, const VORUnicodeString& iPadRight,
              const int* iWidths)
        : _Table(iTable), _Widths(iWidths), _Behind(static_cast<std::size_t>(iTable._ColumnNb))
    {
        _Ahead.append(BytesOf(iIndent)).append(1, _Table.EdgeChar()).append(BytesOf(iPadLeft));
        _LongestLine = _Ahead.size();
        _Cells.reserve(_Behind.size());
        for (int column = 0; column < _Table._ColumnNb; ++column) {
            std::string& behind = _Behind[static_cast<std::size_t>(column)];
            behind.append(BytesOf(iPadRight)).append(1, _Table.SeparatorBehind(column));
            if (column == _Table._ColumnNb - 1)
                behind += '\n';
            else
                behind.append(BytesOf(iPadLeft));
            _LongestLine += behind.size() + static_cast<std::size_t>(std::max(_Widths[column], 0));
        }
    }

    void Write(VORUnicodeString& oText, int iRow)
    {
        ReadTexts(iRow);
        const int height = CutTexts();
        const std::string_view texts = _Texts.Get();
        _IsAscii = CountChars(texts) == static_cast<int>(texts.size());
        _Lines.Clear();
        for (int line = 0; line < height; ++line)
            _Lines.EndAt(PutLine(_Lines.MakeRoom(_LongestLine + texts.size()), texts));
        oText.AppendBytes(_Lines.Get());
    }

private:
    // Items see a text of their own.
    void ReadTexts(int iRow)
    {
        _Texts.Clear();
        _Cells.clear();
        for (int column = 0; column < _Table._ColumnNb; ++column) {
            const std::size_t begin = _Texts.GetSize();
            const VORKTRValue& cell = _Table.CellAt(iRow, column);
            if (cell.IsItem()) {
                VORUnicodeString text;
                cell.GetItem().ASCIIReport_in_Table(text);
                _Texts.Append(text);
            } else if (!cell.IsEmpty()) {
                cell.AppendText(_Texts);
            }
            _Cells.emplace_back(begin, _Texts.GetSize());
        }
    }

    // Returns the height of the row.
    int CutTexts()
    {
        if (_Texts.Get().find('\n') == std::string_view::npos)
            return 1;
        int height = 1;
        for (CellLines& cell : _Cells) {
            cell.CountLines(_Texts.Get());
            height = std::max(height, cell.GetHeight());
        }
        for (CellLines& cell : _Cells)
            cell.CenterIn(height);
        return height;
    }

    // There is room for the longest line, and for a text that is longer than its column.
    char* PutLine(char* iAt, std::string_view iTexts)
    {
        iAt = Put(iAt, _Ahead);
        for (std::size_t column = 0; column < _Cells.size(); ++column) {
            iAt = PutCentered(iAt, _Cells[column].TakeLine(iTexts), _Widths[column]);
            iAt = Put(iAt, _Behind[column]);
        }
        return iAt;
    }

    // The odd blank goes to the left.
    char* PutCentered(char* iAt, std::string_view iLine, int iWidth) const
    {
        const int room = iWidth - (_IsAscii ? static_cast<int>(iLine.size()) : CountChars(iLine));
        return PutBlanks(Put(PutBlanks(iAt, (room + 1) / 2), iLine), room / 2);
    }

    const VORKTRReportingTable& _Table;
    const int* _Widths;
    std::string _Ahead;               // what stands ahead of the first cell
    std::vector<std::string> _Behind; // and behind each
    std::size_t _LongestLine;         // but for the texts
    VORKTRByteBuffer _Texts;          // of a row's cells
    std::vector<CellLines> _Cells;
    VORKTRByteBuffer _Lines;
    bool _IsAscii = true; // without this W3 takes 1.04 times the instructions
};

VORKTRReportingTable::VORKTRReportingTable(unsigned long style) : _Style(style) {}

VORKTRReportingTable::~VORKTRReportingTable()
{
    if (!_HoldsItems)
        return;
    // In their order, which not every vector keeps at its end; an item may make the table grow.
    for (std::size_t i = 0; i < _Cells.GetSize(); ++i) {
        while (_Cells[i].IsItem())
            const VORKTRValue ended = std::move(_Cells[i]);
    }
}

// Empties a cell. An item may change its table as it ends, even this cell, so that it is no longer
// in it by then.
void VORKTRReportingTable::EndItem(int iRow, int iColumn)
{
    while (_HoldsItems && CellAt(iRow, iColumn).IsItem())
        const VORKTRValue ended = std::move(CellAt(iRow, iColumn));
}

template <typename... Arguments>
int VORKTRReportingTable::SetNew(int iRow, int iColumn, const Arguments&... iArguments)
{
    if (!IsPosition(iRow, iColumn))
        return VOR_E_FAIL;
    if (iRow >= _RowNb || iColumn >= _ColumnNb)
        Reallocate(iRow, iColumn);
    EndItem(iRow, iColumn);
    VORKTRValue& cell = CellAt(iRow, iColumn);
    cell = _Values.Make(iArguments...);
    _HoldsItems |= cell.IsItem();
    return VOR_S_OK;
}

int VORKTRReportingTable::SetInt(int row, int col, int value, const char* format)
{
    return SetNew(row, col, value, format);
}

int VORKTRReportingTable::SetFloat(int row, int col, float value, const char* format)
{
    return SetNew(row, col, value, format);
}

int VORKTRReportingTable::SetFloat(int row, int col, double value, const char* format)
{
    return SetFloat(row, col, static_cast<float>(value), format);
}

int VORKTRReportingTable::SetText(int row, int col, const VORUnicodeString& text)
{
    return SetNew(row, col, text);
}

int VORKTRReportingTable::SetObj(int row, int col, VORKTRReportingObj* item)
{
    if (!IsPosition(row, col) || !item)
        return VOR_E_FAIL;
    VORKTRValue cell{std::unique_ptr<VORKTRReportingObj>(item)};
    Reallocate(row, col);
    EndItem(row, col);
    CellAt(row, col) = std::move(cell);
    _HoldsItems = true;
    return VOR_S_OK;
}

void VORKTRReportingTable::Reallocate(int row, int col)
{
    if (row < _RowNb && col < _ColumnNb)
        return;
    const int rows = std::max(_RowNb, row + 1);
    const int columns = std::max(_ColumnNb, col + 1);
    if (rows > 1 && static_cast<std::size_t>(columns) > _Stride)
        Rearrange(rows, columns);
    // In the first row no other has to move; with Rearrange W4 takes 1.05 times the time to fill.
    const std::size_t stride = std::max(_Stride, static_cast<std::size_t>(columns));
    _Cells.Grow(CountCells(static_cast<std::size_t>(rows), stride));
    _Stride = stride; // only now that there is memory for them
    _RowNb = rows;
    _ColumnNb = columns;
}

// Half as much again at least, so that widening column by column moves each cell a few times only.
void VORKTRReportingTable::Rearrange(int iRows, int iColumns)
{
    const auto columns = static_cast<std::size_t>(iColumns);
    const std::size_t stride = std::max(columns, _Stride * 3 / 2);
    VORKTRCells cells;
    cells.Grow(CountCells(static_cast<std::size_t>(iRows), stride));
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
    const bool isIndented = (_Style & VORKTRTableNotCentered) != 0;
    Fragment html(iFile);
    html.Append(isIndented ? "<P>\n\n" : "<BR>\n<CENTER>\n");
    html.Append(_Style & VORKTRTableRuled ? "<TABLE BORDER=2 CELLPADDING=5>\n"
                                          : "<TABLE BORDER=0 CELLPADDING=5>\n");
    for (int row = 0; row < _RowNb; ++row) {
        html.Append(OpenRow);
        for (int column = 0; column < _ColumnNb; ++column) {
            const VORKTRValue& cell = CellAt(row, column);
            if (cell.IsEmpty()) {
                html.Append(EmptyCell);
            } else if (cell.IsItem()) {
                html.Send();
                cell.GetItem().Report_in_Table(iFile, iPath, iFrames, iNavigationFile,
                                               CellStyle(row, column));
            } else {
                cell.AppendInTable(html, CellStyle(row, column));
            }
        }
        html.Append(CloseRow);
        html.Send();
    }
    html.Append(CloseTable, isIndented ? "</P>\n" : "</CENTER>\n");
    html.Send();
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

std::vector<int> VORKTRReportingTable::MeasureColumns() const
{
    std::vector<int> widths(static_cast<std::size_t>(_ColumnNb));
    for (int row = 0; row < _RowNb; ++row) {
        for (int column = 0; column < _ColumnNb; ++column) {
            int& width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, CellAt(row, column).GetWidthInChar());
        }
    }
    return widths;
}

int* VORKTRReportingTable::GetColsWidth() const
{
    const std::vector<int> widths = MeasureColumns();
    int* const result = new int[widths.size()];
    std::copy(widths.begin(), widths.end(), result);
    return result;
}

int VORKTRReportingTable::GetWidthInChar() const
{
    return WidthOf(MeasureColumns());
}

// True where nobody can tell that GetWidthInChar is not asked: neither an item nor a class of an
// application's own. Without it W3 takes 1.17 times the instructions.
bool VORKTRReportingTable::IsMeasuredOnce() const
{
    return !_HoldsItems && typeid(*this) == typeid(VORKTRReportingTable);
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
    const std::vector<int> widths = MeasureColumns();
    const int width = IsMeasuredOnce() ? WidthOf(widths) : GetWidthInChar();
    Placement place = inTable ? Placement{width, "", "", ""} : PlaceOnPage(width, _ColumnNb);
    if (_Style & VORKTRTableNotCentered)
        place.indent = IndentOfNotCentered(place.width);
    VORUnicodeString rule;
    if (_Style & Framed)
        rule = place.indent + Repeat('*', place.width) + "\n";
    out.Append(rule);
    RowWriter rows(*this, place.indent, place.padLeft, place.padRight, widths.data());
    for (int row = 0; row < _RowNb; ++row) {
        rows.Write(out, row);
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
    if (row >= 0 && row < _RowNb && widths)
        RowWriter(*this, indent, padLeft, padRight, widths).Write(out, row);
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
