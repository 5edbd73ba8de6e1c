#include "VORKTRReportingInt.h"

#include <cstdlib>

#include "VORKTRCell.h"
#include "VORKTRFragment.h"
#include "VORKTRIntText.h"

using namespace VORReport;

VORKTRReportingInt::VORKTRReportingInt(int value, const char* format)
    : _Value(value), _Format(format)
{
}

VORKTRReportingInt::~VORKTRReportingInt() = default;

char* VORKTRReportingInt::ConvertToChar() const
{
    const IntText text(_Value, _Format);
    auto* const result = static_cast<char*>(std::malloc(text.Get().size() + 1));
    if (result)
        result[text.Get().copy(result, text.Get().size())] = '\0';
    return result;
}

int VORKTRReportingInt::GetType() const
{
    return VORKTRReportingIntKind;
}

void VORKTRReportingInt::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    WriteFragment(iFile, IntText(_Value, _Format).Get());
}

void VORKTRReportingInt::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.AppendBytes(IntText(_Value, _Format).Get());
}

int VORKTRReportingInt::GetWidthInChar() const
{
    return static_cast<int>(IntText(_Value, _Format).Get().size());
}

void VORKTRReportingInt::Report_in_List(unsigned int iFile, const char* iPath,
                                        unsigned char iFrames, unsigned int iNavigationFile,
                                        char hasFloats) const
{
    VORKTRReportingObj::Report_in_List(iFile, iPath, iFrames, iNavigationFile, 0);
    if (hasFloats)
        WriteFragment(iFile, TwoEmptyCells);
}

void VORReport::AppendInt(VORKTRByteBuffer& ioText, int iValue, const VORIntFormat& iFormat)
{
    ioText.Append(IntText(iValue, iFormat).Get());
}

void VORReport::AppendIntInTable(VORKTRByteBuffer& ioHtml, int iValue, const VORIntFormat& iFormat,
                                 char iHeader)
{
    const CellTags cell = CenteredCell(iHeader);
    ioHtml.Append(cell.open, IntText(iValue, iFormat).Get(), cell.close);
}

void VORReport::AppendIntInList(VORKTRByteBuffer& ioHtml, int iValue, const VORIntFormat& iFormat,
                                char iWide)
{
    ioHtml.Append(OpenRightTD, IntText(iValue, iFormat).Get(), CloseTD);
    if (iWide)
        ioHtml.Append(TwoEmptyCells);
}
