#ifndef VORKTRArrayTable_h
#define VORKTRArrayTable_h

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "VORKTRReportingTable.h"

/// A table over the program's own arrays. Nothing is copied and nothing is kept for a cell: the
/// arrays must live at the same place as long as the report; they are read anew for each output.
/// The table looks as a VORKTRReportingTable of the same style and cells: floats right-aligned with
/// a leading blank and a point, ints and texts centred. Doubles and whole numbers of 64 bits are
/// right-aligned as their formats say.
class VORKTR_EXPORT VORKTRArrayTable : public VORKTRReportingObj
{
public:
    /// A table of iRows rows, without columns; iStyle as for VORKTRReportingTable. Above the rows
    /// stand the headings of the columns, unless none has any.
    VORKTRArrayTable(unsigned long iStyle, int iRows);

    /// @{ Adds a column over iValues, one for each row and iStride bytes apart: a member of an
    /// array of structures has their size. A number is a float, double, int, long or long long,
    /// shown in a printf format; a text is a std::string or a VORUnicodeString. Heading and unit
    /// are texts, the unit below the heading; both may be empty. Returns 0, or VOR_E_INVALIDARG
    /// when iValues is null although there are rows.
    template <typename Number>
    int AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                  const Number* iValues, const char* iFormat, std::size_t iStride = sizeof(Number))
    {
        static_assert(IsAnyOf<Number, float, double, int, long, long long>,
                      "a column with a format holds float, double, int, long or long long");
        return Add<Number>({iHeading, iUnit, iValues, iFormat, iStride});
    }
    template <typename Text>
    int AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                  const Text* iValues, std::size_t iStride = sizeof(Text))
    {
        static_assert(IsAnyOf<Text, std::string, VORUnicodeString>,
                      "a column without a format holds std::string or VORUnicodeString");
        return Add<Text>({iHeading, iUnit, iValues, nullptr, iStride});
    }
    /// @}
    /// Adds a column of ints that counts the rows of the arrays, the first one as iFirst.
    void AddIndexColumn(const VORUnicodeString& iHeading, int iFirst = 1);

    /// Shows the rows from iBegin to before iEnd only; in the beginning, all. Returns 0, or
    /// VOR_E_INVALIDARG when the arrays have no such rows.
    int SetRows(int iBegin, int iEnd);

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;

private:
    template <typename Value, typename... Values>
    static constexpr bool IsAnyOf = (std::is_same_v<Value, Values> || ...);

    struct Array {
        const VORUnicodeString& heading;
        const VORUnicodeString& unit;
        const void* values;
        const char* format; // of numbers
        std::size_t stride;
    };

    /// Appends the text of a row to ioText; without one returns its width.
    using Cell = std::function<int(std::string* ioText, int iRow)>;

    struct Column {
        VORUnicodeString heading;
        Cell cell;
        bool isRight; // right-aligned on the page, else centred
        bool isText;  // escaped on the page; else a number
    };

    template <typename Value>
    int Add(const Array& iArray);
    int GetFirstRow() const;
    void AppendText(std::string& ioText, const Column& iColumn, int iRow) const;
    void AppendHtmlRow(std::string& ioHtml, int iRow, bool iIsHeader) const;
    std::vector<int> GetWidths() const;
    void AppendTable(VORUnicodeString& ioText, bool iIsInTable) const;

    std::vector<Column> _Columns;
    unsigned long _Style;
    int _RowNb;
    int _Begin = 0; // the rows that are shown
    int _End;
};

#endif
