#ifndef VORKTRCaption_h
#define VORKTRCaption_h

#include "VORKTRLinkTarget.h"
#include "VORKTRReportingObj.h"

/// A numbered caption, "Figure 3: ...": what the figures and table captions of the kit share. It
/// takes the next number whenever a site is written; a text report shows the number of the last
/// site, or takes the next one when there is none.
class VORKTR_EXPORT VORKTRCaption : public VORKTRReportingObj, public VORKTRLinkTarget
{
public:
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;
    /// In lines of at most 40 characters.
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;

protected:
    /// A caption without a number yet; iGetNumber gives the next one. The word in front of it is
    /// iWord, which must live on, or the message "Figure_Number" of that word in the catalog
    /// "VORKTRReportingMessages". iText is escaped. iAbove, which may be empty, stands above the
    /// caption in the text report.
    VORKTRCaption(const char* iWord, int (*iGetNumber)(), const VORUnicodeString& iText,
                  const VORUnicodeString& iAbove);

    /// The whole block as HTML: that of the caption, iCaption, with iAnchor as the place of links.
    virtual std::string GetHtml(const std::string& iAnchor, const std::string& iCaption) const = 0;

private:
    void Count() const;
    std::string GetLines(int iWidth) const;

    const char* _Word;
    int (*_GetNumber)();
    VORUnicodeString _Text;
    VORUnicodeString _Above;
    mutable int _Number = 0;
};

#endif
