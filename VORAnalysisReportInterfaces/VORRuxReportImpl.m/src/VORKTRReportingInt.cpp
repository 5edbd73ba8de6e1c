#include "VORKTRReportingInt.h"

#include <cstdlib>
#include <cstring>

#include "VORKTRCell.h"
#include "VORKTRFragment.h"
#include "VORNumberFormat.h"

VORKTRReportingInt::VORKTRReportingInt(int value, const char* format)
    : _Value(value), _Format(format ? format : VORDefaultIntFormat)
{
}

VORKTRReportingInt::~VORKTRReportingInt() = default;

VORUnicodeString VORKTRReportingInt::GetText() const
{
    VORUnicodeString text;
    text.BuildFromNum(_Value, _Format.c_str());
    return text;
}

char* VORKTRReportingInt::ConvertToChar() const
{
    const VORUnicodeString text = GetText();
    const auto size = static_cast<std::size_t>(text.GetLengthInByte()) + 1;
    auto* const result = static_cast<char*>(std::malloc(size));
    return result ? static_cast<char*>(std::memcpy(result, text.ConvertToChar(), size)) : nullptr;
}

int VORKTRReportingInt::GetType() const
{
    return VORKTRReportingIntKind;
}

void VORKTRReportingInt::Report(unsigned int iFile, const char*, unsigned char, unsigned int) const
{
    WriteFragment(iFile, GetText());
}

void VORKTRReportingInt::ASCIIReport(VORUnicodeString& ioText) const
{
    ioText.Append(GetText());
}

int VORKTRReportingInt::GetWidthInChar() const
{
    return GetText().GetLengthInByte();
}

void VORKTRReportingInt::Report_in_List(unsigned int iFile, const char* iPath,
                                        unsigned char iFrames, unsigned int iNavigationFile,
                                        char hasFloats) const
{
    VORKTRReportingObj::Report_in_List(iFile, iPath, iFrames, iNavigationFile, 0);
    if (hasFloats)
        WriteFragment(iFile, "<TD COLSPAN=2>&nbsp;", CloseTD);
}
