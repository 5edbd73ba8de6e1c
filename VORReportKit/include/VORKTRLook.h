#ifndef VORKTRLook_h
#define VORKTRLook_h

#include "VORKTRReportingObj.h"

/// The look of a site: whenever the site is written, it replaces the stylesheets "main.css" and,
/// with frames, "navigation.css". The pages and the text report stay as they are. A report has one
/// look, anywhere in it.
class VORKTR_EXPORT VORKTRLook : public VORKTRReportingObj
{
public:
    /// The built-in look: quiet colours, the system's fonts, table headers that stay in sight; for
    /// screens, phones and paper.
    VORKTRLook() = default;
    /// The look of the stylesheets of these two names in iDirectory (UTF-8), not the report's own.
    /// One that is missing there stays the report's, and the report notes the status.
    explicit VORKTRLook(const VORUnicodeString& iDirectory) : _Directory(iDirectory) {}

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    /// Nothing.
    void ASCIIReport(VORUnicodeString&) const override {}
    int GetWidthInChar() const override { return 0; }

private:
    void Replace(const char* iPath, const char* iName, const char* iStyles) const;

    VORUnicodeString _Directory; // empty for the built-in look
};

#endif
