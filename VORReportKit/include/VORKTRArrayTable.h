#ifndef VORKTRArrayTable_h
#define VORKTRArrayTable_h

#include <functional>
#include <string>
#include <vector>

#include "VORKTRReportingTable.h"
#include "VORReportKitExport.h"

/// A table over the program's own arrays. Nothing is copied and nothing is kept for a cell: the
/// arrays must live at the same place as long as the report; they are read anew for each output.
/// The table looks as a VORKTRReportingTable of the same style and cells: floats right-aligned with
/// a leading blank and a point, ints and texts centred. Doubles and whole numbers of 64 bits are
/// right-aligned as their formats say.
class VORKIT_EXPORT VORKTRArrayTable : public VORKTRReportingObj
{
public:
    /// A table of iRows rows, without columns; iStyle as for VORKTRReportingTable. Above the rows
    /// stand the headings of the columns, unless none has any.
    VORKTRArrayTable(unsigned long iStyle, int iRows);

    /// @{ Adds a column over iValues, one for each row and iStride bytes apart: a member of an
    /// array of structures has their size. Heading and unit are texts, the unit below the heading;
    /// both may be empty. The format is printf's. Returns 0, or 0x80070057 when iValues is null.
    int AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                  const float* iValues, const char* iFormat, std::size_t iStride = sizeof(float));
    int AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                  const double* iValues, const char* iFormat, std::size_t iStride = sizeof(double));
    int AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                  const int* iValues, const char* iFormat, std::size_t iStride = sizeof(int));
    int AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                  const long* iValues, const char* iFormat, std::size_t iStride = sizeof(long));
    int AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                  const long long* iValues, const char* iFormat,
                  std::size_t iStride = sizeof(long long));
    int AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                  const std::string* iTexts, std::size_t iStride = sizeof(std::string));
    int AddColumn(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit,
                  const VORUnicodeString* iTexts, std::size_t iStride = sizeof(VORUnicodeString));
    /// @}
    /// Adds a column of ints that counts the rows of the arrays, the first one as iFirst.
    void AddIndexColumn(const VORUnicodeString& iHeading, int iFirst = 1);

    /// Shows the rows from iBegin to before iEnd only; in the beginning, all. Returns 0, or
    /// 0x80070057 when the arrays have no such rows.
    int SetRows(int iBegin, int iEnd);

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;

private:
    using AppendCell = std::function<void(std::string& ioText, int iRow)>;

    struct Column {
        VORUnicodeString heading;
        AppendCell appendCell; // for a row of the arrays
        bool isRight;          // right-aligned on the page, else centred
        bool isText;           // escaped on the page; else a number
    };

    int Add(const VORUnicodeString& iHeading, const VORUnicodeString& iUnit, bool iIsRight,
            bool iIsText, AppendCell iAppendCell);
    int GetFirstRow() const;
    std::string GetText(const Column& iColumn, int iRow) const;
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
