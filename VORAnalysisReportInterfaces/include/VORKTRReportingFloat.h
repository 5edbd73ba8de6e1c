#ifndef VORKTRReportingFloat_h
#define VORKTRReportingFloat_h

#include "VORKTRReportingObj.h"
#include "VORString.h"

/// A single-precision number with its printf format (see VORFormatFloat, which says what becomes of
/// an unfit one). Its text begins with a blank when the number is not negative, always holds a '.',
/// whatever the locale, and has at most 29 characters: a longer one is formatted with "%.9g"
/// instead. Where the format gives no '.', one is put in front of the first character that is no
/// blank, digit or sign, else at the end: keep units out of such a format.
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
    VORString _Format;
};

#endif
