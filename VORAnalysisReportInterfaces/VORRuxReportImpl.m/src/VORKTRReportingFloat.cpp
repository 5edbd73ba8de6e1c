#include "VORKTRReportingFloat.h"

#include <cstring>
#include <string_view>

#include "VORKTRCell.h"
#include "VORKTRFragment.h"
#include "VORNumberFormat.h"

namespace
{

constexpr std::size_t BufferSize = 30;
constexpr const char* BoundedFormat = "%.9g"; // enough digits for every float, in 15 characters

/// The text of a float, made on the stack: it has a leading blank when the value is not negative,
/// and a '.' in any case.
class FloatText
{
public:
    FloatText(float iValue, const char* iFormat)
    {
        if (!Build(iValue, iFormat))
            Build(iValue, BoundedFormat);
    }

    std::string_view Get() const { return {_Text, _Length}; }

private:
    // False when the text does not fit.
    bool Build(float iValue, const char* iFormat)
    {
        const std::size_t blank = 0.0f <= iValue ? 1 : 0;
        _Text[0] = ' ';
        _Length = blank + static_cast<std::size_t>(
                              VORFormatFloat(iValue, iFormat, _Text + blank, BufferSize - blank));
        return _Length < BufferSize && EnsureSeparator();
    }

    bool EnsureSeparator()
    {
        if (Get().find(VORKTRReportingFloat::float_separator()) != std::string_view::npos)
            return true;
        if (_Length + 1 == BufferSize)
            return false;
        const std::size_t number = Get().find_first_not_of(" 0123456789-+");
        const std::size_t at = number == std::string_view::npos ? _Length : number;
        std::memmove(_Text + at + 1, _Text + at, _Length - at);
        _Text[at] = VORKTRReportingFloat::float_separator();
        ++_Length;
        return true;
    }

    char _Text[BufferSize];
    std::size_t _Length = 0;
};

} // namespace

VORKTRReportingFloat::VORKTRReportingFloat(float value, const char* format)
    : _Value(value), _Format(format ? format : VORDefaultFloatFormat)
{
}

VORKTRReportingFloat::~VORKTRReportingFloat() = default;

char* VORKTRReportingFloat::ConvertToChar() const
{
    const FloatText text(_Value, _Format.c_str());
    char* const result = new char[BufferSize];
    result[text.Get().copy(result, BufferSize - 1)] = '\0';
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
    WriteFragment(iFile, FloatText(_Value, _Format.c_str()).Get());
}

void VORKTRReportingFloat::ASCIIReport(VORUnicodeString& ioText) const
{
    const FloatText text(_Value, _Format.c_str());
    ioText.Append(UnicodeOf(text.Get()));
}

int VORKTRReportingFloat::GetWidthInChar() const
{
    return static_cast<int>(FloatText(_Value, _Format.c_str()).Get().size());
}

void VORKTRReportingFloat::Report_in_List(unsigned int iFile, const char*, unsigned char,
                                          unsigned int, char) const
{
    const FloatText text(_Value, _Format.c_str());
    const std::size_t point = text.Get().find(float_separator());
    WriteFragment(iFile, OpenRightTD, text.Get().substr(0, point), CloseTD, CenteredCell(0).open,
                  text.Get().substr(point, 1), CloseTD, OpenLeftTD, text.Get().substr(point + 1),
                  CloseTD);
}

void VORKTRReportingFloat::Report_in_Table(unsigned int iFile, const char*, unsigned char,
                                           unsigned int, char cellStyle) const
{
    const CellTags cell = RightCell(cellStyle);
    WriteFragment(iFile, cell.open, FloatText(_Value, _Format.c_str()).Get(), cell.close);
}
