#ifndef VORKTRProse_h
#define VORKTRProse_h

#include <memory>
#include <string>
#include <vector>

#include "VORKTRLinkTarget.h"
#include "VORKTRReportingObj.h"

/// A paragraph whose lines break where there is room: in a browser, and in the text report between
/// words at 80 columns, where an empty line follows it. Blanks, tabs and line feeds only part
/// words; a no-break space does not. HTML's special characters are escaped.
class VORKTR_EXPORT VORKTRProse : public VORKTRReportingObj
{
public:
    /// A paragraph with its first words. In the text report its lines are indented by iIndent
    /// blanks, 0 to 79; in a cell they have iCellWidth characters at most. Longer words run over.
    /// As the value of a list it has one line, for which iCellWidth must suffice.
    explicit VORKTRProse(const VORUnicodeString& iText, int iIndent = 0, int iCellWidth = 40);

    /// @{ Appends text, or a link to a target that stands before the paragraph and may end before
    /// it. Nothing comes between the pieces. Returns the paragraph.
    VORKTRProse& Add(const VORUnicodeString& iText);
    VORKTRProse& AddLink(const VORKTRLinkTarget& iTarget);
    /// @}

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    /// One cell, aligned on the left.
    void Report_in_Table(unsigned int iFile, const char* iPath, unsigned char iFrames,
                         unsigned int iNavigationFile, char iHeader) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    /// Length of the longest line in a cell.
    int GetWidthInChar() const override;
    void ASCIIReport_in_Table(VORUnicodeString& ioText) const override;

private:
    /// Text, or a link when it has a place.
    struct Piece {
        VORUnicodeString text;
        std::shared_ptr<const VORKTRLinkTarget::Place> place;
    };

    std::string GetHtml() const;
    std::string GetLines(int iWidth) const;

    std::vector<Piece> _Pieces;
    int _Indent;
    int _CellWidth;
};

#endif
