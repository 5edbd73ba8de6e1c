#ifndef VORKTRReportingFloat_h
#define VORKTRReportingFloat_h

#include <cstddef>

#include "VORKTRReportingObj.h"
#include "VORNumberFormat.h"

/// A single-precision number with its printf format (see VORFormatFloat, which says what becomes of
/// an unfit one). Its text begins with a blank when the number is not negative, always holds a '.',
/// whatever the locale, and has at most 29 bytes: a longer one is the number in "%.9g" instead,
/// without what else the format holds, so that 3 in "%.9f of 1000000 cycles" is " 3.". Where the
/// format gives no '.', one is put in front of the first character that is no blank, digit or sign,
/// else at the end: keep units out of such a format.
class VORKTR_EXPORT VORKTRReportingFloat : public VORKTRReportingObj
{
public:
    /// The format is copied.
    VORKTRReportingFloat(float value, const char* format);
    ~VORKTRReportingFloat() override;

    /// The formatted number in a new string, which the caller releases with delete[].
    char* ConvertToChar() const;

    /// The decimal separator of all float texts: '.'.
    static char float_separator();

    /// Room for the text of any float, its NUL included.
    static constexpr std::size_t TextSize = 30;
    /// @{ For items of an application's own: writes the text that a float item has, NUL-terminated,
    /// to oText, which has room for TextSize bytes, and returns its length in bytes. A double keeps
    /// its precision; a text that is too long becomes "%.17g" of it.
    static int WriteText(float iValue, const VORFloatFormat& iFormat, char* oText);
    static int WriteText(double iValue, const VORFloatFormat& iFormat, char* oText);
    /// @}
    /// Length in bytes of the text of a float.
    static int GetTextLength(float iValue, const VORFloatFormat& iFormat);

    int GetType() const override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    /// Length of the formatted number in bytes, its leading blank included.
    int GetWidthInChar() const override;
    /// Three cells: integer part, '.', fraction.
    void Report_in_List(unsigned int iFile, const char* iPath, unsigned char iFrames,
                        unsigned int iNavigationFile, char hasFloats) const override;
    /// One right-aligned cell.
    void Report_in_Table(unsigned int iFile, const char* iPath, unsigned char iFrames,
                         unsigned int iNavigationFile, char cellStyle) const override;

private:
    float _Value;
    VORFloatFormat _Format;
};

#endif
