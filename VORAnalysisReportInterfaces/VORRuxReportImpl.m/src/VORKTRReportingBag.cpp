#include "VORKTRReportingBag.h"

#include <algorithm>
#include <utility>

#include "VORKTRItems.h"

using namespace VORReport;

VORKTRReportingBag::VORKTRReportingBag() = default;

VORKTRReportingBag::~VORKTRReportingBag()
{
    DestroyItems(_ObjectList);
}

int VORKTRReportingBag::RemoveFromReport()
{
    int status = 0;
    for (int i = 0; i < _ObjectList.GetSize(); ++i) {
        if (_ObjectList[i])
            status = RemoveItem(_ObjectList, i);
    }
    return status;
}

int VORKTRReportingBag::GetType() const
{
    return VORKTRReportingBagKind;
}

void VORKTRReportingBag::Report(unsigned int iFile, const char* iPath, unsigned char iFrames,
                                unsigned int iNavigationFile) const
{
    ForEachItem(_ObjectList, [&](const VORKTRReportingObj& child) {
        child.Report(iFile, iPath, iFrames, iNavigationFile);
    });
}

void VORKTRReportingBag::ASCIIReport(VORUnicodeString& ioText) const
{
    ForEachItem(_ObjectList, [&](const VORKTRReportingObj& child) { child.ASCIIReport(ioText); });
}

int VORKTRReportingBag::GetWidthInChar() const
{
    int width = 0;
    ForEachItem(_ObjectList, [&](const VORKTRReportingObj& child) {
        width = std::max(width, child.GetWidthInChar());
    });
    return width;
}

void VORKTRReportingBag::SetBuffer(VORKTRReportingBuffer* iBuffer)
{
    _Buffer = iBuffer;
    ForEachItem(_ObjectList, [&](VORKTRReportingObj& child) { child.SetBuffer(iBuffer); });
}

void VORKTRReportingBag::SetBufferData(const VORUnicodeString* iPath)
{
    ForEachItem(_ObjectList, [&](VORKTRReportingObj& child) { child.SetBufferData(iPath); });
}

void VORKTRReportingBag::AddObject(VORKTRReportingObj* iObject)
{
    if (!iObject)
        return;
    std::unique_ptr<VORKTRReportingObj> child(iObject);
    const VORKTRItemArray::Room room(_ObjectList);
    child->SetBuffer(_Buffer);
    _ObjectList.Append(std::move(child));
}

int VORKTRReportingBag::GetNbTitles(int iOrder)
{
    int count = 0;
    ForEachItem(_ObjectList,
                [&](const VORKTRReportingObj& child) { count += IsTitle(child, iOrder) ? 1 : 0; });
    return count;
}
