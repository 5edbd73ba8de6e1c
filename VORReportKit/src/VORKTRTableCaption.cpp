#include "VORKTRTableCaption.h"

#include <atomic>

namespace
{

std::atomic<int> LastTableNumber{0};

} // namespace

VORKTRTableCaption::VORKTRTableCaption(const VORUnicodeString& iCaption)
    : VORKTRCaption(
          "Table", [] { return ++LastTableNumber; }, iCaption, "")
{
}

void VORKTRTableCaption::InitTableNumber()
{
    LastTableNumber = 0;
}

std::string VORKTRTableCaption::GetHtml(const std::string& iAnchor,
                                        const std::string& iCaption) const
{
    return "<DIV ID=\"" + iAnchor + "\" CLASS=\"tablecaption\" ALIGN=CENTER>" + iCaption +
           "</DIV>\n";
}
