#include "VORNumberFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

#include "VORSystemLayer.h"

namespace
{

constexpr std::string_view Flags = "-+ #0'";
constexpr std::string_view LengthModifiers = "hlLqjzt";
constexpr std::string_view IntConversions = "diuoxXc";
constexpr std::string_view FloatConversions = "fFeEgGaA";
constexpr int LargestField = 4095; // what every C library can print in one conversion
constexpr int NotGiven = -1;

// A plain loop: a call of the library to search so few characters costs more than the search.
constexpr bool IsOneOf(char iChar, std::string_view iSet)
{
    for (const char c : iSet) {
        if (c == iChar)
            return true;
    }
    return false;
}

bool IsDigit(char iChar)
{
    return iChar >= '0' && iChar <= '9';
}

struct Format {
    std::string_view before; // text around the conversion, "%%" still doubled
    std::string_view after;
    bool left = false;
    bool zero = false;
    bool alternate = false;
    char plus = '\0'; // sign of a number that is not negative
    int width = NotGiven;
    int precision = NotGiven;
    char conversion = '\0'; // none: the format is text alone
};

// Up to the next conversion or the end; null at a '%' that ends the format.
const char* SkipText(const char* iAt)
{
    for (; *iAt; ++iAt) {
        if (*iAt != '%')
            continue;
        if (iAt[1] != '%')
            return iAt[1] ? iAt : nullptr;
        ++iAt;
    }
    return iAt;
}

bool ReadNumber(const char*& ioAt, int& oNumber)
{
    oNumber = 0;
    for (; IsDigit(*ioAt); ++ioAt) {
        oNumber = oNumber * 10 + (*ioAt - '0');
        if (oNumber > LargestField)
            return false;
    }
    return true;
}

void ReadFlags(const char*& ioAt, Format& oFormat)
{
    for (; *ioAt && IsOneOf(*ioAt, Flags); ++ioAt) {
        oFormat.left |= *ioAt == '-';
        oFormat.zero |= *ioAt == '0';
        oFormat.alternate |= *ioAt == '#';
        if (*ioAt == '+' || (*ioAt == ' ' && oFormat.plus == '\0'))
            oFormat.plus = *ioAt;
    }
}

bool ReadConversion(const char*& ioAt, std::string_view iConversions, Format& oFormat)
{
    ReadFlags(++ioAt, oFormat);
    if (IsDigit(*ioAt) && !ReadNumber(ioAt, oFormat.width))
        return false;
    if (*ioAt == '.' && !ReadNumber(++ioAt, oFormat.precision))
        return false;
    while (*ioAt && IsOneOf(*ioAt, LengthModifiers))
        ++ioAt;
    oFormat.conversion = *ioAt;
    return *ioAt && IsOneOf(*ioAt++, iConversions);
}

std::string_view Span(const char* iBegin, const char* iEnd)
{
    return {iBegin, static_cast<std::size_t>(iEnd - iBegin)};
}

bool Parse(const char* iFormat, std::string_view iConversions, Format& oFormat)
{
    const char* at = iFormat ? SkipText(iFormat) : nullptr;
    if (!at)
        return false;
    oFormat.before = Span(iFormat, at);
    if (!*at)
        return true;
    if (!ReadConversion(at, iConversions, oFormat))
        return false;
    const char* const end = SkipText(at);
    if (!end || *end)
        return false;
    oFormat.after = Span(at, end);
    return true;
}

Format ParseOr(const char* iFallback, const char* iFormat, std::string_view iConversions)
{
    Format format;
    if (!Parse(iFormat, iConversions, format)) {
        format = Format();
        Parse(iFallback, iConversions, format);
    }
    return format;
}

// Bounded text that goes on counting when it is full, as snprintf does.
class Output
{
public:
    Output(char* oText, std::size_t iSize) : _Text(oText), _Room(iSize > 0 ? iSize - 1 : 0)
    {
        if (iSize > 0)
            *oText = '\0';
    }

    void Put(std::string_view iText)
    {
        if (_Length < _Room)
            std::memcpy(_Text + _Length, iText.data(), std::min(iText.size(), _Room - _Length));
        _Length += iText.size();
    }

    void Put(char iChar, std::size_t iCount)
    {
        if (iCount > 0 && _Length < _Room)
            std::memset(_Text + _Length, iChar, std::min(iCount, _Room - _Length));
        _Length += iCount;
    }

    void PutFormatText(std::string_view iText)
    {
        for (auto at = iText.find('%'); at != std::string_view::npos; at = iText.find('%')) {
            Put(iText.substr(0, at + 1));
            iText.remove_prefix(at + 2);
        }
        Put(iText);
    }

    int Finish()
    {
        if (_Room > 0)
            _Text[std::min(_Length, _Room)] = '\0';
        return static_cast<int>(_Length);
    }

private:
    char* _Text;
    std::size_t _Room;
    std::size_t _Length = 0;
};

// Places "-12.5" or "12.5" in the field that the format asks for.
void PutPadded(Output& ioOutput, const Format& iFormat, std::string_view iNumber)
{
    char sign = iFormat.plus;
    if (iNumber.front() == '-') {
        sign = '-';
        iNumber.remove_prefix(1);
    }
    const std::size_t length = iNumber.size() + (sign ? 1 : 0);
    const auto width = static_cast<std::size_t>(std::max(iFormat.width, 0));
    const std::size_t padding = width > length ? width - length : 0;
    if (!iFormat.left && !iFormat.zero)
        ioOutput.Put(' ', padding);
    if (sign)
        ioOutput.Put(sign, 1);
    if (!iFormat.left && iFormat.zero)
        ioOutput.Put('0', padding);
    ioOutput.Put(iNumber);
    if (iFormat.left)
        ioOutput.Put(' ', padding);
}

// Put together anew from what was checked, so that nothing else of the caller's reaches printf.
std::string PrintfConversion(const Format& iFormat)
{
    std::string text = "%";
    if (iFormat.left)
        text += '-';
    if (iFormat.zero)
        text += '0';
    if (iFormat.alternate)
        text += '#';
    if (iFormat.plus)
        text += iFormat.plus;
    if (iFormat.width != NotGiven)
        text += std::to_string(iFormat.width);
    if (iFormat.precision != NotGiven)
        text += '.' + std::to_string(iFormat.precision);
    return text + iFormat.conversion;
}

template <typename Number>
void PutPrintf(Output& ioOutput, const Format& iFormat, Number iValue)
{
    const std::string conversion = PrintfConversion(iFormat);
    const int length = VORLayer::PrintNumber(nullptr, 0, conversion.c_str(), iValue);
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    VORLayer::PrintNumber(text.data(), text.size(), conversion.c_str(), iValue);
    text.pop_back();
    ioOutput.Put(text);
}

std::to_chars_result Convert(char* oBegin, char* oEnd, const Format&, int iValue)
{
    return std::to_chars(oBegin, oEnd, iValue);
}

constexpr std::int64_t PowersOfTen[] = {
    1,        10,        100,        1000,        10000,        100000,       1000000,
    10000000, 100000000, 1000000000, 10000000000, 100000000000, 1000000000000};

// True when scaling the number to an integer for this precision is exact: it was a float, whose 24
// bits and the 28 of 5^12 fit a double.
bool IsScaledExactly(double iValue, int iPrecision)
{
    constexpr double largest = 9e15; // below 2^53
    return iPrecision < static_cast<int>(std::size(PowersOfTen)) &&
           std::abs(iValue) * static_cast<double>(PowersOfTen[iPrecision]) < largest &&
           static_cast<double>(static_cast<float>(iValue)) == iValue;
}

// Reports are made of such numbers: integer arithmetic is several times as fast as to_chars on
// them, with the same digits.
std::to_chars_result ConvertFixed(char* oBegin, char* oEnd, double iValue, int iPrecision)
{
    if (!IsScaledExactly(iValue, iPrecision))
        return std::to_chars(oBegin, oEnd, iValue, std::chars_format::fixed, iPrecision);
    const std::int64_t scale = PowersOfTen[iPrecision];
    const std::int64_t scaled = std::llrint(std::abs(iValue) * static_cast<double>(scale));
    if (std::signbit(iValue))
        *oBegin++ = '-';
    const std::to_chars_result whole = std::to_chars(oBegin, oEnd, scaled / scale);
    if (iPrecision == 0)
        return whole;
    // A 1 ahead of the fraction keeps its zeros, and the place of the point.
    const std::to_chars_result all = std::to_chars(whole.ptr, oEnd, scale + scaled % scale);
    if (all.ec == std::errc())
        *whole.ptr = '.';
    return all;
}

std::to_chars_result Convert(char* oBegin, char* oEnd, const Format& iFormat, double iValue)
{
    const int precision = iFormat.precision == NotGiven ? 6 : iFormat.precision;
    if (iFormat.conversion == 'f')
        return ConvertFixed(oBegin, oEnd, iValue, precision);
    const auto style =
        iFormat.conversion == 'e' ? std::chars_format::scientific : std::chars_format::general;
    return std::to_chars(oBegin, oEnd, iValue, style, precision);
}

bool IsPlain(const Format& iFormat, int)
{
    return IsOneOf(iFormat.conversion, "di") && iFormat.precision == NotGiven;
}

bool IsPlain(const Format& iFormat, double iValue)
{
    return IsOneOf(iFormat.conversion, "feg") && !iFormat.alternate && std::isfinite(iValue);
}

template <typename Number>
int Write(const Format& iFormat, Number iValue, char* oText, std::size_t iSize)
{
    Output output(oText, iSize);
    output.PutFormatText(iFormat.before);
    if (iFormat.conversion) {
        char number[128];
        std::to_chars_result result = {number, std::errc::value_too_large};
        if (IsPlain(iFormat, iValue))
            result = Convert(number, std::end(number), iFormat, iValue);
        if (result.ec == std::errc())
            PutPadded(output, iFormat, Span(number, result.ptr));
        else
            PutPrintf(output, iFormat, iValue);
        output.PutFormatText(iFormat.after);
    }
    return output.Finish();
}

} // namespace

int VORFormatInt(int iValue, const char* iFormat, char* oText, std::size_t iSize)
{
    return Write(ParseOr(VORDefaultIntFormat, iFormat, IntConversions), iValue, oText, iSize);
}

int VORFormatFloat(double iValue, const char* iFormat, char* oText, std::size_t iSize)
{
    return Write(ParseOr(VORDefaultFloatFormat, iFormat, FloatConversions), iValue, oText, iSize);
}
