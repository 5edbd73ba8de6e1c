#ifndef VORKTRLook_h
#define VORKTRLook_h

#include "VORKTRReportingObj.h"
#include "VORReportKitExport.h"

/// The look of a site: whenever the site is written, the item replaces its stylesheets "main.css"
/// and, with frames, "navigation.css". The pages themselves stay as they are, and so does the text
/// report. One look for a report, anywhere in it.
class VORKIT_EXPORT VORKTRLook : public VORKTRReportingObj
{
public:
    /// The built-in look: quiet colours, the system's fonts, figures of one width, table headers
    /// that stay in sight, for screens, phones and paper.
    VORKTRLook();
    /// The look of the "main.css" and "navigation.css" in iDirectory (UTF-8), which is not the
    /// report's own; they are copied. A stylesheet that is missing there stays the report's own,
    /// and the report notes the status (see VORKTRReportingBuffer::TakeWriteStatus).
    explicit VORKTRLook(const VORUnicodeString& iDirectory);
    ~VORKTRLook() override;

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    /// Nothing.
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;

private:
    void Replace(const char* iPath, const char* iName, const char* iStyles) const;

    VORUnicodeString _Directory; // empty for the built-in look
};

#endif
