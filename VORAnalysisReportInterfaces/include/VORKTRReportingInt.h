#ifndef VORKTRReportingInt_h
#define VORKTRReportingInt_h

#include "VORKTRReportingObj.h"
#include "VORNumberFormat.h"

/// An integer with its printf format (see VORFormatInt, which says what becomes of an unfit one).
class VORKTR_EXPORT VORKTRReportingInt : public VORKTRReportingObj
{
public:
    /// The format is copied.
    VORKTRReportingInt(int value, const char* format);
    ~VORKTRReportingInt() override;

    /// The formatted number in a new string, which the caller releases with free(); null when
    /// there is no memory for it.
    char* ConvertToChar() const;

    int GetType() const override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    /// Length of the formatted number in bytes.
    int GetWidthInChar() const override;
    void Report_in_List(unsigned int iFile, const char* iPath, unsigned char iFrames,
                        unsigned int iNavigationFile, char hasFloats) const override;

private:
    int _Value;
    VORIntFormat _Format;
};

#endif
