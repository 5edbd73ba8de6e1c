#ifndef VORKTRReportingTable_h
#define VORKTRReportingTable_h

#include <cstddef>
#include <vector>

#include "VORKTRReportingObj.h"
#include "detail/VORKTRCells.h"

/// @{ The style of a table is a sum of these: the first row, the last row, the first column are
/// headers; rules between the columns and a border; not centred on the page.
constexpr unsigned long VORKTRTableHeaderRow = 0x01;
constexpr unsigned long VORKTRTableLastRow = 0x02;
constexpr unsigned long VORKTRTableHeaderColumn = 0x04;
constexpr unsigned long VORKTRTableRuled = 0x08;
constexpr unsigned long VORKTRTableNotCentered = 0x10;
/// @}

/// A grid of cells, each a number, a text, an item or empty. Rows and columns count from 0; the
/// grid grows to hold each cell that is set. In HTML floats are right-aligned, all else is centred;
/// as text every cell is centred in its column.
class VORKTR_EXPORT VORKTRReportingTable : public VORKTRReportingObj
{
public:
    /// An empty table of a style.
    explicit VORKTRReportingTable(unsigned long style);
    ~VORKTRReportingTable() override;

    /// @{ Sets a cell to a number in the printf format (see VORKTRReportingInt and
    /// VORKTRReportingFloat) or to a text. An item that was there is destroyed. A double is
    /// converted to float. Returns 0, or VOR_E_FAIL for a negative row or column; a value that
    /// memory lacks for leaves its cell empty.
    int SetInt(int row, int col, int value, const char* format);
    int SetFloat(int row, int col, float value, const char* format);
    int SetFloat(int row, int col, double value, const char* format);
    int SetText(int row, int col, const VORUnicodeString& text);
    /// @}

    /// Sets a cell to any item and takes ownership of it, also when memory runs out on the way;
    /// never twice with the same item. Returns 0, or VOR_E_FAIL for a null item and for a negative
    /// row or column: the item stays the caller's. The table tells the item neither its report nor
    /// the directory: call SetBuffer on a heading, SetBuffer and SetBufferData on a file.
    int SetObj(int row, int col, VORKTRReportingObj* item);

    /// @{ Size of the grid.
    int GetRowNumber() const { return _RowNb; }
    int GetColumnNumber() const { return _ColumnNb; }
    /// @}

    /// Grows the grid so that it holds a cell; row and column are from 0 to below INT_MAX. Throws
    /// std::bad_alloc or std::length_error, the table being as it was, when there is no memory for
    /// it; so does every setting of a cell.
    void Reallocate(int row, int col);

    /// Widths of the columns in characters: a new array, which the caller releases with delete[].
    int* GetColsWidth() const;

    /// Appends the table's text, centred on 80 columns unless inTable is not 0.
    void ASCIIReport_generic(VORUnicodeString& out, unsigned char inTable) const;
    /// Appends the lines of one row: indent, then each cell between padLeft and padRight, in
    /// columns of the given widths, one for each column of the table. Nothing for a row that the
    /// table has not, and without widths.
    void PrintRow(VORUnicodeString& out, int row, const VORUnicodeString& indent,
                  const VORUnicodeString& padLeft, const VORUnicodeString& padRight,
                  const int* widths) const;

    int GetType() const override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    /// Sum of the column widths, and one for each separator and edge.
    int GetWidthInChar() const override;
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;

private:
    class RowWriter;

    VORKTRValue& CellAt(int iRow, int iColumn) { return _Cells[Offset(iRow, iColumn)]; }
    const VORKTRValue& CellAt(int iRow, int iColumn) const { return _Cells[Offset(iRow, iColumn)]; }
    std::size_t Offset(int iRow, int iColumn) const
    {
        return static_cast<std::size_t>(iRow) * _Stride + static_cast<std::size_t>(iColumn);
    }

    template <typename... Arguments>
    int SetNew(int iRow, int iColumn, const Arguments&... iArguments);
    void EndItem(int iRow, int iColumn);
    void Rearrange(int iRows, int iColumns);
    std::vector<int> MeasureColumns() const;
    bool IsMeasuredOnce() const;
    char CellStyle(int iRow, int iColumn) const;
    bool HasRuleBelow(int iRow) const;
    char SeparatorChar() const;
    char EdgeChar() const;
    char SeparatorBehind(int iColumn) const;

    VORKTRValues _Values; // outlives the cells
    // Row-major; a row has room for _Stride cells, so that columns can be added without moving
    // every row each time.
    VORKTRCells _Cells;
    std::size_t _Stride = 0;
    int _RowNb = 0;
    int _ColumnNb = 0;
    unsigned long _Style;
    bool _HoldsItems = false; // or held one
};

#endif
