#ifndef VORKTRCharset_h
#define VORKTRCharset_h

#include "VORKTRReportingObj.h"
#include "VORReportKitExport.h"

/// Says on the first page, and on the navigation page, that the site is UTF-8 and made for the
/// width of the device. It is the first item of a report; VORKTRHeading does the same for the pages
/// that it begins. Browsers look for it in the first 1,024 bytes: titles and headings have at most
/// 350.
class VORKIT_EXPORT VORKTRCharset : public VORKTRReportingObj
{
public:
    VORKTRCharset();
    ~VORKTRCharset() override;

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    /// Nothing.
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;
};

#endif
