#ifndef VORKTRFigure_h
#define VORKTRFigure_h

#include "VORKTRCaption.h"
#include "VORKTRReportingFile.h"

/// An image with a caption of its own, "Figure 3: ...", that links can lead to. It moves the file
/// and is counted with the report's figures, as VORKTRReportingFile. In a list or table the program
/// calls SetBuffer and SetBufferData, as for that; else the image is not moved.
class VORKTR_EXPORT VORKTRFigure : public VORKTRCaption
{
public:
    /// iPath (UTF-8) is the image; iCaption stands below it. iAlternative says what the image shows
    /// to who cannot see it, in the text report too. iWidth is in CSS pixels, 0 for the image's own
    /// width. Caption and alternative are escaped.
    VORKTRFigure(const VORUnicodeString& iPath, const VORUnicodeString& iCaption,
                 const VORUnicodeString& iAlternative, int iWidth = 0);

    void SetBuffer(VORKTRReportingBuffer* iBuffer) override;
    /// Moves the file. When it throws, the file was not moved.
    void SetBufferData(const VORUnicodeString* iDirectory) override;
    /// Deletes the file.
    int RemoveFromReport() override;
    void ASCIIReport(VORUnicodeString& ioText) const override;

private:
    std::string GetHtml(const std::string& iAnchor, const std::string& iCaption) const override;

    VORKTRReportingFile _File;
    VORUnicodeString _Path;              // of the image, until it is moved
    std::unique_ptr<const char[]> _Name; // once it is: in _Directory
    VORUnicodeString _Directory;
    VORUnicodeString _Alternative;
    int _Width;
};

#endif
