#include "VORKTRArrayTable.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <type_traits>

#include "VORKTRKitPieces.h"
#include "VORKTRReportingFloat.h"
#include "VORNumberFormat.h"
#include "VORStatus.h"

namespace
{

constexpr std::size_t BlockSize = 65536; // what is gathered before it is handed on
constexpr std::size_t LongRow = 4096;    // what a row may add to that
constexpr unsigned long Edged = VORKTRTableHeaderRow | VORKTRTableLastRow | VORKTRTableHeaderColumn;
constexpr unsigned long Framed = Edged | VORKTRTableRuled;

template <typename Value>
const Value& At(const Value* iValues, std::size_t iStride, int iRow)
{
    const auto* const bytes = reinterpret_cast<const char*>(iValues);
    return *reinterpret_cast<const Value*>(bytes + static_cast<std::size_t>(iRow) * iStride);
}

/// What gives a number a text: a float as VORKTRReportingFloat does, others as their format says.
struct FloatText {
    VORFloatFormat format;

    int GetLength(float iValue) const
    {
        return VORKTRReportingFloat::GetTextLength(iValue, format);
    }
    int Write(float iValue, char* oText, std::size_t) const
    {
        return VORKTRReportingFloat::WriteText(iValue, format, oText);
    }
};

std::string_view ViewOf(const std::string& iText)
{
    return iText;
}

std::string_view ViewOf(const VORUnicodeString& iText)
{
    return iText.GetView();
}

VORUnicodeString Heading(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit)
{
    return iUnit == "" ? iHeading : iHeading + "\n" + iUnit;
}

/// The text of a cell, given out line by line for its place in a row. It serves the cells of a
/// column one after the other, so that memory is taken once.
class CellLines
{
public:
    std::string& Begin()
    {
        _Text.clear();
        return _Text;
    }

    /// Ends the text, whose final line feed begins no line, and returns its number of lines.
    int End()
    {
        if (!_Text.empty() && _Text.back() == '\n')
            _Text.pop_back();
        _Done = 0;
        _Height = 1 + static_cast<int>(std::count(_Text.begin(), _Text.end(), '\n'));
        return _Height;
    }

    /// Puts the text in the middle of a row; an odd empty line goes below.
    void CenterIn(int iRowHeight) { _EmptyAbove = (iRowHeight - _Height) / 2; }

    /// The next line of the row, empty above and below the text.
    std::string_view TakeLine()
    {
        if (_EmptyAbove-- > 0)
            return {};
        std::string_view line = std::string_view(_Text).substr(_Done);
        if (_Height > 1)
            line = line.substr(0, line.find('\n'));
        _Done = std::min(_Done + line.size() + 1, _Text.size());
        return line;
    }

private:
    std::string _Text;
    std::size_t _Done = 0;
    int _Height = 1;
    int _EmptyAbove = 0;
};

/// A row of a text: its cells and what stands around them.
struct TextRow {
    TextRow(const std::vector<int>& iWidths, unsigned long iStyle, bool iIsInTable)
        : widths(iWidths), cells(iWidths.size())
    {
        const auto columns = static_cast<int>(widths.size());
        int width = std::accumulate(widths.begin(), widths.end(), columns + 1);
        // A blank on the right of each cell, then one on its left, while the table fits the page.
        int pads[] = {0, 0};
        for (int& pad : pads) {
            if (!iIsInTable && width + columns < PageWidth) {
                width += columns;
                pad = 1;
            }
        }
        std::string indent;
        if (iStyle & VORKTRTableNotCentered)
            indent = Blanks(std::min(PageWidth - 1 - width, 2));
        else if (!iIsInTable)
            indent = Blanks((PageWidth - width) / 2);
        rule = indent + std::string(static_cast<std::size_t>(width), '*') + '\n';

        const char separator = iStyle & VORKTRTableRuled ? '*' : ' ';
        const char edge = iStyle & Edged ? '*' : separator;
        empty = indent + edge;
        for (const int cell : widths) {
            places.push_back(empty.size() + static_cast<std::size_t>(pads[1]));
            empty += Blanks(pads[1] + cell + pads[0]) + separator;
        }
        empty.back() = edge;
        if (iStyle & VORKTRTableHeaderColumn)
            empty[places.front() + static_cast<std::size_t>(widths.front() + pads[0])] = '*';
        empty += '\n';
    }

    void AppendTo(std::string& ioText)
    {
        int height = 1;
        for (CellLines& cell : cells)
            height = std::max(height, cell.End());
        for (CellLines& cell : cells)
            cell.CenterIn(height);
        for (int line = 0; line < height; ++line)
            AppendLine(ioText);
    }

    // The cells replace as many blanks of an empty line; the odd blank goes to the left.
    void AppendLine(std::string& ioText)
    {
        std::size_t begin = ioText.size();
        ioText += empty;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const std::string_view line = cells[i].TakeLine();
            const int length = CountChars(line);
            const auto blanks = static_cast<std::size_t>((widths[i] - length + 1) / 2);
            ioText.replace(begin + places[i] + blanks, static_cast<std::size_t>(length), line);
            begin += line.size() - static_cast<std::size_t>(length);
        }
    }

    std::vector<int> widths;
    std::vector<CellLines> cells;
    std::vector<std::size_t> places; // of the cells in an empty line
    std::string empty;
    std::string rule;
};

} // namespace

VORKTRArrayTable::VORKTRArrayTable(unsigned long iStyle, int iRows)
    : _Style(iStyle), _RowNb(iRows), _End(iRows)
{
}

template <typename Number>
int VORKTRArrayTable::AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                                const Number* iValues, const char* iFormat, std::size_t iStride)
{
    constexpr bool isInt = std::is_same_v<Number, int>;
    using Whole = std::conditional_t<isInt, int, long long>;
    using Wide = std::conditional_t<std::is_integral_v<Number>, Whole, Number>;
    using Other = std::conditional_t<std::is_integral_v<Number>, VORIntFormat, VORFloatFormat>;
    using Text = std::conditional_t<std::is_same_v<Number, float>, FloatText, Other>;
    if (!iValues)
        return VOR_E_INVALIDARG;
    const auto cell = [=, text = Text{Other(iFormat)}](std::string* ioText, int iRow) {
        const auto value = static_cast<Wide>(At(iValues, iStride, iRow));
        return ioText ? AppendNumber(*ioText, text, value) : text.GetLength(value);
    };
    _Columns.push_back({Heading(iHeading, iUnit), cell, !isInt, false});
    return VOR_S_OK;
}

template int VORKTRArrayTable::AddColumn(const VORUnicodeString&, const VORUnicodeString&,
                                         const float*, const char*, std::size_t);
template int VORKTRArrayTable::AddColumn(const VORUnicodeString&, const VORUnicodeString&,
                                         const double*, const char*, std::size_t);
template int VORKTRArrayTable::AddColumn(const VORUnicodeString&, const VORUnicodeString&,
                                         const int*, const char*, std::size_t);
template int VORKTRArrayTable::AddColumn(const VORUnicodeString&, const VORUnicodeString&,
                                         const long*, const char*, std::size_t);
template int VORKTRArrayTable::AddColumn(const VORUnicodeString&, const VORUnicodeString&,
                                         const long long*, const char*, std::size_t);

template <typename Text>
int VORKTRArrayTable::AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                                const Text* iValues, std::size_t iStride)
{
    if (!iValues)
        return VOR_E_INVALIDARG;
    const auto cell = [=](std::string* ioText, int iRow) {
        const std::string_view text = ViewOf(At(iValues, iStride, iRow));
        if (!ioText)
            return WidestLine(text);
        ioText->append(text);
        return 0;
    };
    _Columns.push_back({Heading(iHeading, iUnit), cell, false, true});
    return VOR_S_OK;
}

template int VORKTRArrayTable::AddColumn(const VORUnicodeString&, const VORUnicodeString&,
                                         const std::string*, std::size_t);
template int VORKTRArrayTable::AddColumn(const VORUnicodeString&, const VORUnicodeString&,
                                         const VORUnicodeString*, std::size_t);

void VORKTRArrayTable::AddIndexColumn(const VORUnicodeString& iHeading, int iFirst)
{
    const auto cell = [=, text = VORIntFormat("%d")](std::string* ioText, int iRow) {
        const long long index = static_cast<long long>(iFirst) + iRow;
        return ioText ? AppendNumber(*ioText, text, index) : text.GetLength(index);
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

void VORKTRArrayTable::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    const int first = GetFirstRow();
    if (_Columns.empty() || first >= _End)
        return;
    const bool isCentered = !(_Style & VORKTRTableNotCentered);
    std::string html;
    html.reserve(BlockSize + LongRow);
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
        const bool isHeading = iRow < _Begin;
        ioHtml += OpenCell(isHeader, column.isRight && !isHeading ? Right : Centred);
        if (isHeading) {
            ioHtml += Escaped(column.heading.GetView());
        } else if (column.isText) {
            std::string text;
            column.cell(&text, iRow);
            ioHtml += Escaped(text);
        } else {
            column.cell(&ioHtml, iRow);
        }
        ioHtml += CloseCell(isHeader);
    }
    ioHtml += "</TR>\n";
}

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
    const int first = GetFirstRow();
    if (_Columns.empty() || first >= _End)
        return;
    TextRow line(GetWidths(), _Style, iIsInTable);
    std::string text;
    text.reserve(BlockSize + LongRow);
    text += _Style & Framed ? line.rule : "";
    for (int row = first; row < _End; ++row) {
        for (std::size_t i = 0; i < _Columns.size(); ++i) {
            if (row < _Begin)
                line.cells[i].Begin() = _Columns[i].heading.GetView();
            else
                _Columns[i].cell(&line.cells[i].Begin(), row);
        }
        line.AppendTo(text);
        if ((row == first && (_Style & VORKTRTableHeaderRow)) ||
            (row == _End - 2 && (_Style & VORKTRTableLastRow)) ||
            (row == _End - 1 && (_Style & Framed)))
            text += line.rule;
        if (text.size() >= BlockSize) {
            ioText.AppendBytes(text);
            text.clear();
        }
    }
    ioText.AppendBytes(text);
}
