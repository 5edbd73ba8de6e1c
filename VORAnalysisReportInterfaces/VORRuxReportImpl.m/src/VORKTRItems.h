#ifndef VORKTRItems_h
#define VORKTRItems_h

#include "VORKTRReportingTitle.h"
#include "detail/VORKTRSteppedArray.h"

namespace VORReport
{

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

/// Destroys the item at a position, where it is found until it is gone: reset would empty the
/// position first.
inline void DestroyItem(VORKTRItemArray& ioItems, int iIndex)
{
    delete ioItems[iIndex].get();
    static_cast<void>(ioItems[iIndex].release());
}

/// Destroys all items, from the first to the last.
inline void DestroyItems(VORKTRItemArray& ioItems)
{
    for (int i = 0; i < ioItems.GetSize(); ++i)
        DestroyItem(ioItems, i);
}

/// Destroys the item at a position that holds one and returns what its RemoveFromReport returned.
inline int RemoveItem(VORKTRItemArray& ioItems, int iIndex)
{
    const int status = ioItems[iIndex]->RemoveFromReport();
    DestroyItem(ioItems, iIndex);
    return status;
}

/// True for a heading of level iOrder.
inline bool IsTitle(const VORKTRReportingObj& iItem, int iOrder)
{
    return iItem.GetType() == VORKTRReportingTitleKind &&
           static_cast<const VORKTRReportingTitle&>(iItem).GetOrder() == iOrder;
}

} // namespace VORReport

#endif
