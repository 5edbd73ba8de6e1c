#include "VORKTRReportingFloat.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "VORKTRCell.h"
#include "VORKTRFragment.h"

using namespace VORReport;

namespace
{

constexpr std::size_t Size = VORKTRReportingFloat::TextSize;

// Numbers from 0 on do; negative ones and NaN do not.
bool BeginsWithBlank(double iValue)
{
    return 0.0 <= iValue;
}

bool HasSeparator(std::string_view iText)
{
    return iText.find(VORKTRReportingFloat::float_separator()) != std::string_view::npos;
}

// Puts a '.' behind the leading digits, so that NaN is ".nan" and infinity " .inf". Returns the
// length with it; Size when there is no room.
std::size_t PutSeparator(char* ioText, std::size_t iLength)
{
    if (iLength + 1 == Size)
        return Size;
    const std::string_view text(ioText, iLength);
    const std::size_t at = std::min(text.find_first_not_of(" 0123456789-+"), iLength);
    std::memmove(ioText + at + 1, ioText + at, iLength - at + 1);
    ioText[at] = VORKTRReportingFloat::float_separator();
    return iLength + 1;
}

// The length of the text; 0 when it does not fit.
int Build(double iValue, const VORFloatFormat& iFormat, char* oText)
{
    const std::size_t blank = BeginsWithBlank(iValue) ? 1 : 0;
    oText[0] = ' ';
    const int number = iFormat.Write(iValue, oText + blank, Size - blank);
    std::size_t length = blank + static_cast<std::size_t>(number);
    if (length < Size && !iFormat.HasPoint(iValue) && !HasSeparator({oText, length}))
        length = PutSeparator(oText, length);
    return length < Size ? static_cast<int>(length) : 0;
}

/// The text of a float, made on the stack.
class FloatText
{
public:
    FloatText(float iValue, const VORFloatFormat& iFormat)
        : _Length(VORKTRReportingFloat::WriteText(iValue, iFormat, _Text))
    {
    }

    std::string_view Get() const { return {_Text, static_cast<std::size_t>(_Length)}; }

private:
    char _Text[Size];
    int _Length;
};

} // namespace

VORKTRReportingFloat::VORKTRReportingFloat(float value, const char* format)
    : _Value(value), _Format(format)
{
}

int VORKTRReportingFloat::WriteText(float iValue, const VORFloatFormat& iFormat, char* oText)
{
    const int length = Build(iValue, iFormat, oText);
    // Enough digits for every float, in 15 characters.
    return length > 0 ? length : Build(iValue, VORFloatFormat("%.9g"), oText);
}

int VORKTRReportingFloat::WriteText(double iValue, const VORFloatFormat& iFormat, char* oText)
{
    const int length = Build(iValue, iFormat, oText);
    // Enough digits for every double, in 24 characters.
    return length > 0 ? length : Build(iValue, VORFloatFormat("%.17g"), oText);
}

VORKTRReportingFloat::~VORKTRReportingFloat() = default;

int VORKTRReportingFloat::GetTextLength(float iValue, const VORFloatFormat& iFormat)
{
    if (iFormat.HasPoint(iValue)) {
        const int length = iFormat.GetLength(iValue) + (BeginsWithBlank(iValue) ? 1 : 0);
        if (length < static_cast<int>(Size))
            return length;
    }
    return static_cast<int>(FloatText(iValue, iFormat).Get().size());
}

char* VORKTRReportingFloat::ConvertToChar() const
{
    const FloatText text(_Value, _Format);
    char* const result = new char[Size];
    result[text.Get().copy(result, Size - 1)] = '\0';
    return result;
}

char VORKTRReportingFloat::float_separator()
{
    return '.';
}

int VORKTRReportingFloat::GetType() const
{
    return VORKTRReportingFloatKind;
}

void VORKTRReportingFloat::Report(unsigned int iFile, const char*, unsigned char,
                                  unsigned int) const
{
    WriteFragment(iFile, FloatText(_Value, _Format).Get());
}

void VORKTRReportingFloat::ASCIIReport(VORUnicodeString& ioText) const
{
    const FloatText text(_Value, _Format);
    ioText.AppendBytes(text.Get());
}

int VORKTRReportingFloat::GetWidthInChar() const
{
    return GetTextLength(_Value, _Format);
}

void VORKTRReportingFloat::Report_in_List(unsigned int iFile, const char*, unsigned char,
                                          unsigned int, char) const
{
    ShortFragment html(iFile);
    AppendFloatInList(html, _Value, _Format);
    html.Send();
}

void VORKTRReportingFloat::Report_in_Table(unsigned int iFile, const char*, unsigned char,
                                           unsigned int, char cellStyle) const
{
    ShortFragment html(iFile);
    AppendFloatInTable(html, _Value, _Format, cellStyle);
    html.Send();
}

void VORReport::AppendFloat(VORKTRByteBuffer& ioText, float iValue, const VORFloatFormat& iFormat)
{
    char* const text = ioText.MakeRoom(Size);
    ioText.EndAt(text + VORKTRReportingFloat::WriteText(iValue, iFormat, text));
}

void VORReport::AppendFloatInTable(VORKTRByteBuffer& ioHtml, float iValue,
                                   const VORFloatFormat& iFormat, char iHeader)
{
    const CellTags cell = RightCell(iHeader);
    ioHtml.Append(cell.open);
    AppendFloat(ioHtml, iValue, iFormat);
    ioHtml.Append(cell.close);
}

void VORReport::AppendFloatInList(VORKTRByteBuffer& ioHtml, float iValue,
                                  const VORFloatFormat& iFormat)
{
    const FloatText made(iValue, iFormat);
    const std::string_view text = made.Get();
    const std::size_t point = text.find(VORKTRReportingFloat::float_separator());
    ioHtml.Append(OpenRightTD, text.substr(0, point), CloseTD, OpenCenterTD, text.substr(point, 1),
                  CloseTD, OpenLeftTD, text.substr(point + 1), CloseTD);
}
