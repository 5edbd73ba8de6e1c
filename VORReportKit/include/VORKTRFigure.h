#ifndef VORKTRFigure_h
#define VORKTRFigure_h

#include "VORKTRCaption.h"
#include "VORKTRReportingFile.h"

/// An image with a caption of its own, "Figure 3: ...", that links can lead to. It moves the file
/// and takes the next figure number whenever a site is written, as VORKTRReportingFile does; a text
/// report shows the number of the last site, or takes the next one when there is none.
class VORKIT_EXPORT VORKTRFigure : public VORKTRReportingFile, public VORKTRCaption
{
public:
    /// iPath (UTF-8) is the image; iCaption stands below it. iAlternative says what the image shows
    /// to who cannot see it, in the text report too. iWidth is in CSS pixels, 0 for the image's own
    /// width. Caption and alternative are escaped.
    VORKTRFigure(const char* iPath, const VORUnicodeString& iCaption,
                 const VORUnicodeString& iAlternative, int iWidth = 0);

    void SetBufferData(const VORUnicodeString* iDirectory) override;
    int RemoveFromReport() override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;
    /// In lines of at most 40 characters.
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;

private:
    std::vector<std::string> GetAllLines(int iWidth) const;

    VORUnicodeString _Path; // where the image is
    std::string _Name;      // how the page names it: once moved, without the directory
    bool _IsMoved = false;
    VORUnicodeString _Alternative;
    int _Width;
};

#endif
