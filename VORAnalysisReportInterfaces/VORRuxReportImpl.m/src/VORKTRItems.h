#ifndef VORKTRItems_h
#define VORKTRItems_h

#include "VORKTRReportingTitle.h"
#include "detail/VORKTRSteppedArray.h"

/// Calls iVisit with each item in order. Positions emptied by a removal are skipped; items that are
/// added on the way are visited too.
template <typename Visit>
void ForEachItem(const VORKTRItemArray& iItems, Visit&& iVisit)
{
    for (int i = 0; i < iItems.GetSize(); ++i) {
        if (iItems[i])
            iVisit(*iItems[i]);
    }
}

/// Destroys the item at a position that holds one and returns what its RemoveFromReport returned.
inline int RemoveItem(VORKTRItemArray& ioItems, int iIndex)
{
    const int status = ioItems[iIndex]->RemoveFromReport();
    ioItems[iIndex].reset();
    return status;
}

/// True for a heading of level iOrder.
inline bool IsTitle(const VORKTRReportingObj& iItem, int iOrder)
{
    return iItem.GetType() == VORKTRReportingTitleKind &&
           static_cast<const VORKTRReportingTitle&>(iItem).GetOrder() == iOrder;
}

#endif
