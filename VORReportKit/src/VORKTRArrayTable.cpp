#include "VORKTRArrayTable.h"

#include <algorithm>
#include <numeric>

#include "VORKTRKitPieces.h"
#include "VORKTRReportingFloat.h"
#include "VORNumberFormat.h"
#include "VORStatus.h"

using namespace VORKit;

namespace
{

constexpr std::size_t BlockSize = 65536; // what is gathered before it is handed on

/// @{ Appends the text of a cell to ioText; without one returns its width. Floats look as
/// VORKTRReportingFloat, other numbers as their format says.
int Show(std::string* ioText, float iNumber, const VORFloatFormat& iFormat)
{
    if (!ioText)
        return VORKTRReportingFloat::GetTextLength(iNumber, iFormat);
    char text[VORKTRReportingFloat::TextSize];
    const int length = VORKTRReportingFloat::WriteText(iNumber, iFormat, text);
    ioText->append(text, static_cast<std::size_t>(length));
    return length;
}

template <typename Number, typename Format>
int Show(std::string* ioText, Number iNumber, const Format& iFormat)
{
    std::string own;
    return AppendNumber(ioText ? *ioText : own, iFormat, iNumber);
}

int Show(std::string* ioText, const VORUnicodeString& iText)
{
    if (!ioText)
        return WidestLine(iText.GetView());
    ioText->append(iText.GetView());
    return 0;
}
/// @}

using Texts = std::vector<std::string>;

/// Writes rows of cells as text, as a VORKTRReportingTable does with columns of these widths.
class RowWriter
{
public:
    RowWriter(const std::vector<int>& iWidths, unsigned long iStyle, bool iIsInTable)
        : _Widths(iWidths), _Style(iStyle), _IsInTable(iIsInTable)
    {
        constexpr char mark = '\1'; // which no frame holds
        for (const int width : _Widths)
            _Marks.emplace_back(static_cast<std::size_t>(width), mark);
        const std::string frame = Draw({_Marks});
        std::string_view lines = frame;
        _Empty.append(TakeLine(lines)) += '\n';
        if (!lines.empty()) {
            _Rule.swap(_Empty);
            _Empty.append(TakeLine(lines)) += '\n';
        }
        for (const std::string& marks : _Marks) {
            _Places.push_back(marks.empty() ? 0 : _Empty.find(mark));
            _Empty.replace(_Places.back(), marks.size(), marks.size(), ' ');
        }
    }

    /// The line around the rows and headers; empty when there is none.
    const std::string& GetRule() const { return _Rule; }

    /// Appends a row. The cells replace blanks of an empty line; the odd one stays on the left.
    void Append(std::string& ioText, const Texts& iCells) const
    {
        for (const std::string& text : iCells) {
            if (text.find('\n') != std::string::npos)
                return AppendLines(ioText, iCells);
        }
        std::size_t begin = ioText.size();
        ioText += _Empty;
        for (std::size_t i = 0; i < iCells.size(); ++i) {
            const int length = CountChars(iCells[i]);
            const auto blanks = static_cast<std::size_t>((_Widths[i] - length + 1) / 2);
            ioText.replace(begin + _Places[i] + blanks, static_cast<std::size_t>(length),
                           iCells[i]);
            begin += iCells[i].size() - static_cast<std::size_t>(length);
        }
    }

private:
    // Rows of texts as a table of their own.
    std::string Draw(const std::vector<Texts>& iRows) const
    {
        VORKTRReportingTable table(_Style);
        for (std::size_t row = 0; row < iRows.size(); ++row) {
            for (std::size_t column = 0; column < iRows[row].size(); ++column)
                table.SetText(static_cast<int>(row), static_cast<int>(column), iRows[row][column]);
        }
        VORUnicodeString text;
        table.ASCIIReport_generic(text, _IsInTable ? 1 : 0);
        return text.ToString();
    }

    // Between two rows of marks, which are left out with their rules, the columns keep their width.
    void AppendLines(std::string& ioText, const Texts& iCells) const
    {
        const std::string drawn = Draw({_Marks, iCells, _Marks});
        const std::size_t above =
            _Empty.size() + _Rule.size() * (_Style & VORKTRTableHeaderRow ? 2 : 1);
        const std::size_t below =
            _Empty.size() + _Rule.size() * (_Style & VORKTRTableLastRow ? 2 : 1);
        ioText.append(drawn, above, drawn.size() - above - below);
    }

    std::vector<int> _Widths;
    unsigned long _Style;
    bool _IsInTable;
    Texts _Marks; // a row that is as wide as the columns
    std::string _Rule;
    std::string _Empty;               // a line without cells
    std::vector<std::size_t> _Places; // of the cells in it
};

} // namespace

VORKTRArrayTable::VORKTRArrayTable(unsigned long iStyle, int iRows)
    : _Style(iStyle), _RowNb(iRows), _End(iRows)
{
}

template <typename Value>
int VORKTRArrayTable::Add(const Array& iArray)
{
    constexpr bool isText = !std::is_arithmetic_v<Value>;
    constexpr bool isInt = std::is_same_v<Value, int>;
    if (!iArray.values && _RowNb > 0)
        return VOR_E_INVALIDARG;
    const auto at = [values = static_cast<const char*>(iArray.values),
                     stride = iArray.stride](int iRow) -> const Value& {
        return *reinterpret_cast<const Value*>(values + static_cast<std::size_t>(iRow) * stride);
    };
    Cell cell;
    if constexpr (isText) {
        cell = [at](std::string* ioText, int iRow) { return Show(ioText, at(iRow)); };
    } else {
        using Format = std::conditional_t<std::is_integral_v<Value>, VORIntFormat, VORFloatFormat>;
        using Wide = std::conditional_t<std::is_same_v<Value, long>, long long, Value>;
        cell = [at, format = Format(iArray.format)](std::string* ioText, int iRow) {
            return Show(ioText, static_cast<Wide>(at(iRow)), format);
        };
    }
    const VORUnicodeString& heading = iArray.heading;
    _Columns.push_back({iArray.unit == "" ? heading : heading + "\n" + iArray.unit, cell,
                        !isText && !isInt, isText});
    return VOR_S_OK;
}

// What AddColumn takes.
template int VORKTRArrayTable::Add<float>(const Array&);
template int VORKTRArrayTable::Add<double>(const Array&);
template int VORKTRArrayTable::Add<int>(const Array&);
template int VORKTRArrayTable::Add<long>(const Array&);
template int VORKTRArrayTable::Add<long long>(const Array&);
template int VORKTRArrayTable::Add<std::string>(const Array&);
template int VORKTRArrayTable::Add<VORUnicodeString>(const Array&);

void VORKTRArrayTable::AddIndexColumn(const VORUnicodeString& iHeading, int iFirst)
{
    const auto cell = [iFirst, format = VORIntFormat("%d")](std::string* ioText, int iRow) {
        return Show(ioText, static_cast<long long>(iFirst) + iRow, format);
    };
    _Columns.push_back({iHeading, cell, false, false});
}

int VORKTRArrayTable::SetRows(int iBegin, int iEnd)
{
    if (iBegin < 0 || iBegin > iEnd || iEnd > _RowNb)
        return VOR_E_INVALIDARG;
    _Begin = iBegin;
    _End = iEnd;
    return VOR_S_OK;
}

// The headings are the row before the first one of the arrays.
int VORKTRArrayTable::GetFirstRow() const
{
    const bool hasHeadings = std::any_of(_Columns.begin(), _Columns.end(),
                                         [](const Column& column) { return column.heading != ""; });
    return hasHeadings ? _Begin - 1 : _Begin;
}

void VORKTRArrayTable::AppendText(std::string& ioText, const Column& iColumn, int iRow) const
{
    if (iRow < _Begin)
        ioText += iColumn.heading.GetView();
    else
        iColumn.cell(&ioText, iRow);
}

void VORKTRArrayTable::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    const int first = GetFirstRow();
    if (_Columns.empty() || first >= _End)
        return;
    const bool isCentered = !(_Style & VORKTRTableNotCentered);
    std::string html;
    html.reserve(BlockSize * 2);
    html += isCentered ? "<BR>\n<CENTER>\n" : "<P>\n\n";
    html += _Style & VORKTRTableRuled ? "<TABLE BORDER=2 CELLPADDING=5>\n"
                                      : "<TABLE BORDER=0 CELLPADDING=5>\n";
    for (int row = first; row < _End; ++row) {
        const bool isHeader = (row == first && (_Style & VORKTRTableHeaderRow)) ||
                              (row == _End - 1 && (_Style & VORKTRTableLastRow));
        AppendHtmlRow(html, row, isHeader);
        if (html.size() >= BlockSize) {
            WriteHtml(iFile, html);
            html.clear();
        }
    }
    html += isCentered ? "</TABLE>\n</CENTER>\n" : "</TABLE>\n</P>\n";
    WriteHtml(iFile, html);
}

void VORKTRArrayTable::AppendHtmlRow(std::string& ioHtml, int iRow, bool iIsHeader) const
{
    ioHtml += "<TR>\n";
    for (const Column& column : _Columns) {
        const bool isHeader =
            iIsHeader || (&column == &_Columns.front() && (_Style & VORKTRTableHeaderColumn));
        const bool isNumber = iRow >= _Begin && !column.isText;
        ioHtml += OpenCell(isHeader, isNumber && column.isRight ? Right : Centred);
        if (isNumber) {
            column.cell(&ioHtml, iRow);
        } else {
            std::string text;
            AppendText(text, column, iRow);
            ioHtml += Escaped(text);
        }
        ioHtml += CloseCell(isHeader);
    }
    ioHtml += "</TR>\n";
}

// None without rows.
std::vector<int> VORKTRArrayTable::GetWidths() const
{
    std::vector<int> widths;
    if (GetFirstRow() >= _End)
        return widths;
    for (const Column& column : _Columns) {
        widths.push_back(WidestLine(column.heading.GetView()));
        for (int row = _Begin; row < _End; ++row)
            widths.back() = std::max(widths.back(), column.cell(nullptr, row));
    }
    return widths;
}

int VORKTRArrayTable::GetWidthInChar() const
{
    const std::vector<int> widths = GetWidths();
    return std::accumulate(widths.begin(), widths.end(), static_cast<int>(widths.size()) + 1);
}

void VORKTRArrayTable::ASCIIReport(VORUnicodeString& ioText) const
{
    AppendTable(ioText, false);
}

void VORKTRArrayTable::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    AppendTable(ioText, true);
}

void VORKTRArrayTable::AppendTable(VORUnicodeString& ioText, bool iIsInTable) const
{
    const std::vector<int> widths = GetWidths();
    if (widths.empty())
        return;
    const int first = GetFirstRow();
    const RowWriter rows(widths, _Style, iIsInTable);
    Texts cells(_Columns.size());
    std::string text;
    text.reserve(BlockSize * 2);
    text += rows.GetRule();
    for (int row = first; row < _End; ++row) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            cells[i].clear();
            AppendText(cells[i], _Columns[i], row);
        }
        rows.Append(text, cells);
        if ((row == first && (_Style & VORKTRTableHeaderRow)) ||
            (row == _End - 2 && (_Style & VORKTRTableLastRow)) || row == _End - 1)
            text += rows.GetRule();
        if (text.size() >= BlockSize) {
            ioText.AppendBytes(text);
            text.clear();
        }
    }
    ioText.AppendBytes(text);
}
