#ifndef VORKTRReportingText_h
#define VORKTRReportingText_h

#include <optional>

#include "VORKTRReportingObj.h"

/// A paragraph. The text may grow until it is rendered. HTML's special characters are escaped; a
/// line feed breaks the line, a tab is five blanks wide. As plain text it is written as it stands:
/// a text that is to end its line ends in a line feed.
class VORKTR_EXPORT VORKTRReportingText : public VORKTRReportingObj
{
public:
    /// @{ A paragraph, empty at first or with its first piece.
    VORKTRReportingText();
    explicit VORKTRReportingText(const VORUnicodeString& text);
    /// @}
    ~VORKTRReportingText() override;

    /// @{ Appends text, or a number as VORKTRReportingInt and VORKTRReportingFloat render it in the
    /// printf format; nothing comes between the pieces. Returns 0.
    int WriteUnicode(const VORUnicodeString& text);
    int WriteInt(int value, const char* format);
    int WriteFloat(float value, const char* format);
    /// @}

    int GetType() const override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    /// Length of the longest line; a tab counts one.
    int GetWidthInChar() const override;
    void Report_in_List(unsigned int iFile, const char* iPath, unsigned char iFrames,
                        unsigned int iNavigationFile, char iWide) const override;
    void Report_in_Table(unsigned int iFile, const char* iPath, unsigned char iFrames,
                         unsigned int iNavigationFile, char iHeader) const override;

    /// Replaces every what in text by by; what was put in is not searched again. An empty what
    /// changes nothing.
    static void ReplaceAllOccurrences(VORUnicodeString& text, const VORUnicodeString& what,
                                      const VORUnicodeString& by);

private:
    // Optional because the operations check it: its absence is a fatal error.
    std::optional<VORUnicodeString> _AllText;
};

#endif
