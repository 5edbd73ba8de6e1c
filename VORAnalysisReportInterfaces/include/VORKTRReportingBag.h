#ifndef VORKTRReportingBag_h
#define VORKTRReportingBag_h

#include "VORKTRReportingObj.h"
#include "detail/VORKTRSteppedArray.h"

/// Groups items so that a report holds and removes them as one; it renders as its children in
/// order.
class VORKTR_EXPORT VORKTRReportingBag : public VORKTRReportingObj
{
public:
    VORKTRReportingBag();
    ~VORKTRReportingBag() override;

    /// Removes and destroys every child; returns the last child's result, 0 without children.
    int RemoveFromReport() override;
    int GetType() const override;
    void Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                unsigned int iNavigationFile) const override;
    void ASCIIReport(VORUnicodeString& ioText) const override;
    /// Width of the widest child.
    int GetWidthInChar() const override;
    void SetBuffer(VORKTRReportingBuffer* iBuffer) override;
    void SetBufferData(const VORUnicodeString* iPath) override;

    /// Appends an item and takes ownership of it; null is ignored. A child added after the report
    /// was written learns the directory at the next MakeReport or SetBufferData of the bag.
    void AddObject(VORKTRReportingObj* iObject);

    /// Number of headings of level iOrder among the children themselves.
    int GetNbTitles(int iOrder);

    /// @{ Number of positions, and of those that there is room for (from 5 on in steps of 5).
    int GetObjectNumber() const { return _ObjectList.GetSize(); }
    int GetAllocatedNumber() const { return _ObjectList.GetCapacity(); }
    /// @}
    /// Makes room for one more position.
    void Reallocate() { _ObjectList.Reallocate(); }

private:
    VORKTRItemArray _ObjectList;
};

#endif
