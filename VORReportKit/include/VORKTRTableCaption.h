#ifndef VORKTRTableCaption_h
#define VORKTRTableCaption_h

#include "VORKTRCaption.h"
#include "VORKTRReportingObj.h"

/// The caption above a table, "Table 3: ...", that links can lead to. Tables are numbered in the
/// process as figures are: it takes the next number whenever a site is written; a text report shows
/// the number of the last site, or takes the next one when there is none. The word is the message
/// "Table_Number" of the catalog "VORKTRReportingMessages".
class VORKIT_EXPORT VORKTRTableCaption : public VORKTRReportingObj, public VORKTRCaption
{
public:
    /// The text is escaped.
    explicit VORKTRTableCaption(const VORUnicodeString& iCaption);

    /// Starts the table numbers of the process at 1 again. Only the application calls it.
    static void InitTableNumber();

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;
    /// In lines of at most 40 characters.
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;
};

#endif
