#ifndef VORKTRReportingList_h
#define VORKTRReportingList_h

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "VORKTRReportingObj.h"
#include "detail/VORKTRSteppedArray.h"
#include "detail/VORKTRValue.h"

/// Lines of label, separator, value and unit, in aligned columns. When a value is a float, values
/// align on their decimal point in HTML. Labels and units are HTML, not escaped; a text value is.
/// All are of one line.
class VORKTR_EXPORT VORKTRReportingList : public VORKTRReportingObj
{
public:
    /// The separator stands between each label and its value.
    explicit VORKTRReportingList(char separator);
    ~VORKTRReportingList() override;

    /// @{ Adds a line whose value is a text, or a number in the printf format (see
    /// VORKTRReportingFloat and VORKTRReportingInt); a double is converted to float, other kinds of
    /// numbers need a cast. A unit may be empty. Returns 0; without memory for its value, a line
    /// has none.
    int addLine(const VORUnicodeString& label, const VORUnicodeString& value,
                const VORUnicodeString& unit);
    int addLine(const VORUnicodeString& label, float value, const VORUnicodeString& unit,
                const char* format);
    int addLine(const VORUnicodeString& label, double value, const VORUnicodeString& unit,
                const char* format);
    int addLine(const VORUnicodeString& label, int value, const VORUnicodeString& unit,
                const char* format);
    /// @}

    /// Adds a line with any item as its value and takes ownership of it, also when memory runs out;
    /// null leaves the line without one. Returns 0. The list tells the item neither its report nor
    /// the directory: call SetBuffer on a heading, SetBuffer and SetBufferData on a file.
    int addLine(const VORUnicodeString& label, VORKTRReportingObj* value,
                const VORUnicodeString& unit);
    /// A number without its format, of which 0 would count as a null item.
    int addLine(const VORUnicodeString& label, int value, const VORUnicodeString& unit) = delete;

    /// @{ Number of lines, and of those that there is room for (from 5 on in steps of 5).
    int GetLineNumber() const { return _Lines.GetSize(); }
    int GetAllocatedNumber() const { return _Lines.GetCapacity(); }
    /// @}
    /// Makes room for one more line.
    void Reallocate() { _Lines.Reallocate(); }

    /// The decimal separator of the locale that the program has set; a report's texts have '.'.
    static char float_separator();

    /// Widths of the three columns in characters.
    void GetColsWidth(int& labelWidth, int& valueWidth, int& unitWidth) const;

    /// Appends the list's text, indented by two blanks unless inTable is not 0. Values are
    /// right-aligned when a line has a unit, else left-aligned.
    void ASCIIReport_generic(VORUnicodeString& out, unsigned char inTable) const;

    int GetType() const override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;

private:
    // The label and the unit stand in _Texts, one behind the other: strings of their own would take
    // twice the memory.
    struct Line {
        std::size_t label; // where it begins
        unsigned int labelSize;
        unsigned int unitSize;
        VORKTRValue value;
    };

    std::string_view LabelOf(const Line& iLine) const;
    std::string_view UnitOf(const Line& iLine) const;
    int Store(const VORUnicodeString& iLabel, VORKTRValue ioValue, const VORUnicodeString& iUnit);
    bool HasFloats() const;
    void AppendSeparatorCell(VORKTRByteBuffer& ioHtml, const Line& iLine) const;
    void AppendValue(VORUnicodeString& out, VORKTRByteBuffer& ioText, const Line& iLine,
                     int iValueWidth, int iUnitWidth) const;

    VORKTRValues _Values; // outlives the lines
    VORKTRSteppedArray<Line> _Lines;
    std::string _Texts;
    char _Separator;
};

#endif
