#ifndef VORKTRReportingTitle_h
#define VORKTRReportingTitle_h

#include <optional>

#include "VORKTRReportingObj.h"

/// A heading of level 1 to 6. In a site with frames it also adds a link to the navigation page, and
/// one of level 1 or 2 starts a new page. Its text is HTML, not escaped.
class VORKTR_EXPORT VORKTRReportingTitle : public VORKTRReportingObj
{
public:
    /// A level iOrder out of range becomes the nearest one.
    VORKTRReportingTitle(const VORUnicodeString& iTitle, int iOrder);
    ~VORKTRReportingTitle() override;

    /// Level of the heading, 1 to 6.
    int GetOrder() const;

    int GetType() const override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    /// Length of the heading alone.
    int GetWidthInChar() const override;
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;
    /// Keeps a copy of the first directory that it is told.
    void SetBufferData(const VORUnicodeString* iPath) override;

    /// Ends the page open as ioFile and opens the next one in iPath, headed iTitle, as ioFile. The
    /// report's page number rises by 1, its anchor starts at 0. Returns 0, VOR_E_INVALIDARG for a
    /// null title, or the negative status of the open that failed, with ioFile 0 and the anchor as
    /// it was. A null iPath cannot be opened. The title must be in a report.
    int NewPage(const VORUnicodeString* iTitle, unsigned int& ioFile, const char* iPath) const;

private:
    void BreakPage(unsigned int& ioFile) const;
    int OpenNextPage(const VORUnicodeString& iTitle, unsigned int& ioFile,
                     const VORUnicodeString& iPath) const;

    // Optional because the operations check it: its absence is a fatal error.
    std::optional<VORUnicodeString> _Title;
    std::optional<VORUnicodeString> _Path;
    int _Order;
};

#endif
