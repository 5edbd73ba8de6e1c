#include "VORKTRLinkTarget.h"

#include "VORKTRReportingBuffer.h"

VORKTRLinkTarget::VORKTRLinkTarget(const VORUnicodeString& iName)
    : _Place(std::make_shared<Place>(Place{"", iName}))
{
}

VORKTRLinkTarget::~VORKTRLinkTarget()
{
    _Place->href.clear(); // links that are left have nowhere to lead
}

std::shared_ptr<const VORKTRLinkTarget::Place> VORKTRLinkTarget::GetPlace() const
{
    return _Place;
}

void VORKTRLinkTarget::SetAnchor(VORKTRReportingBuffer* iReport, unsigned char iFrames,
                                 const std::string& iAnchor) const
{
    _Place->href = "#" + iAnchor;
    if (iFrames && iReport)
        _Place->href.insert(0, "page" + std::to_string(iReport->GetPagesNumber()) + ".html");
}
