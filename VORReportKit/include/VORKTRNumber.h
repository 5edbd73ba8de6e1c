#ifndef VORKTRNumber_h
#define VORKTRNumber_h

#include <string>
#include <type_traits>

#include "VORKTRReportingObj.h"
#include "VORNumberFormat.h"

/// A number in double precision or a whole number of 64 bits, as its format says: no leading blank,
/// no forced point. It is right-aligned in cells; in a list that holds a VORKTRReportingFloat it
/// aligns with that on the decimal point. As an item of the report itself it brings no tag and no
/// line end with it.
class VORKTR_EXPORT VORKTRNumber : public VORKTRReportingObj
{
public:
    /// @{ A number in a printf format; VORNumberFormat.h says what becomes of an unfit one.
    explicit VORKTRNumber(double iValue, const char* iFormat = VORDefaultFloatFormat);
    explicit VORKTRNumber(long long iValue, const char* iFormat = VORDefaultIntFormat);
    /// @}
    /// A whole number of another type, below 2^63.
    template <typename Whole, typename = std::enable_if_t<std::is_integral_v<Whole>>>
    explicit VORKTRNumber(Whole iValue, const char* iFormat = VORDefaultIntFormat)
        : VORKTRNumber(static_cast<long long>(iValue), iFormat)
    {
    }

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    /// Length of the text in bytes, as of the report library's numbers.
    int GetWidthInChar() const override;
    void Report_in_List(unsigned int iFile, const char* iPath, unsigned char iFrames,
                        unsigned int iNavigationFile, char iWide) const override;
    void Report_in_Table(unsigned int iFile, const char* iPath, unsigned char iFrames,
                         unsigned int iNavigationFile, char iHeader) const override;

private:
    std::string _Text;
};

#endif
