#ifndef VORKTRLinkTarget_h
#define VORKTRLinkTarget_h

#include <memory>
#include <string>

#include "VORAnalysisReportInterfacesExport.h"
#include "VORUnicodeString.h"

class VORKTRReportingBuffer;

/// What a link can lead to: a heading, a figure or a table caption of the kit.
class VORKTR_EXPORT VORKTRLinkTarget
{
public:
    /// How a link refers to the target.
    struct Place {
        std::string href;      ///< Empty until the target is written to a site, and after its end.
        VORUnicodeString name; ///< HTML: "Figure 2", or the heading; "Figure ?" without a number.
    };

    VORKTRLinkTarget(const VORKTRLinkTarget&) = delete;
    VORKTRLinkTarget& operator=(const VORKTRLinkTarget&) = delete;

    /// The place, which outlives the target.
    std::shared_ptr<const Place> GetPlace() const;

protected:
    /// A target of that name, without a place in a site.
    explicit VORKTRLinkTarget(const VORUnicodeString& iName);
    ~VORKTRLinkTarget();

    /// Notes that the target is an anchor on the page that iReport, which may be null, is writing.
    void SetAnchor(VORKTRReportingBuffer* iReport, unsigned char iFrames,
                   const std::string& iAnchor) const;

    /// The place, which the links share.
    const std::shared_ptr<Place> _Place;
};

#endif
