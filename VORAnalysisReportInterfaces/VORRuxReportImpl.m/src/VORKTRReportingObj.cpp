#include "VORKTRReportingObj.h"

#include "VORKTRCell.h"
#include "VORKTRFragment.h"

using namespace VORReport;

VORKTRReportingObj::VORKTRReportingObj() = default;
VORKTRReportingObj::~VORKTRReportingObj() = default;

int VORKTRReportingObj::RemoveFromReport()
{
    return 0;
}

int VORKTRReportingObj::GetType() const
{
    return VORKTRReportingObjKind;
}

void VORKTRReportingObj::Report(unsigned int, const char*, unsigned char, unsigned int) const {}

void VORKTRReportingObj::Report_in_List(unsigned int iFile, const char* iPath,
                                        unsigned char iFrames, unsigned int iNavigationFile,
                                        char iWide) const
{
    WriteFragment(iFile, iWide ? OpenWideItemTD : OpenRightTD);
    Report(iFile, iPath, iFrames, iNavigationFile);
    WriteFragment(iFile, CloseTD);
}

void VORKTRReportingObj::Report_in_Table(unsigned int iFile, const char* iPath,
                                         unsigned char iFrames, unsigned int iNavigationFile,
                                         char iHeader) const
{
    const CellTags cell = CenteredCell(iHeader);
    WriteFragment(iFile, cell.open);
    Report(iFile, iPath, iFrames, iNavigationFile);
    WriteFragment(iFile, cell.close);
}

void VORKTRReportingObj::ASCIIReport_in_Table(VORUnicodeString& ioText) const
{
    ASCIIReport(ioText);
}

void VORKTRReportingObj::SetBuffer(VORKTRReportingBuffer* iBuffer)
{
    _Buffer = iBuffer;
}

void VORKTRReportingObj::SetBufferData(const VORUnicodeString*) {}
