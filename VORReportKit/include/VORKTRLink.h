#ifndef VORKTRLink_h
#define VORKTRLink_h

#include "VORKTRLinkTarget.h"
#include "VORKTRReportingObj.h"

/// A link to a heading, figure or table caption of the kit that stands before it in the report, on
/// whatever page. Its usual place is a cell of a list or table; VORKTRProse has links within a
/// paragraph. It reads as the target's name; without a target in the site it is that name alone. A
/// link that stands before its target has the name and place of the site that was written last.
class VORKTR_EXPORT VORKTRLink : public VORKTRReportingObj
{
public:
    /// The target may end before the link.
    explicit VORKTRLink(const VORKTRLinkTarget& iTarget);

    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    int GetWidthInChar() const override;

private:
    std::shared_ptr<const VORKTRLinkTarget::Place> _Place;
};

#endif
